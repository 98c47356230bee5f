#include "forget_icons.h"
#include "preview_frame.h"

#include "add_ribbon_bar.h"
#include "configuration_watch.h"
#include "kept_bar_states.h"
#include "kept_command_ids.h"

#include "problem_report.h"

#include "varnhold/language.h"
#include "varnhold/strings.h"

#include <algorithm>
#include <cstdio>

// The bars of files that have changed, built anew while the window stays.

void CPreviewFrame::Bars::Add(const Bars& others) {
    isRibbon = isRibbon || others.isRibbon;
    areMenus = areMenus || others.areMenus;
    areTexts = areTexts || others.areTexts;
    toolBars.insert(others.toolBars.begin(), others.toolBars.end());
}

void CPreviewFrame::Bars::Remove(const Bars& others) {
    isRibbon = isRibbon && !others.isRibbon;
    areMenus = areMenus && !others.areMenus;
    areTexts = areTexts && !others.areTexts;
    std::erase_if(toolBars, [&others](const std::wstring& file) { return others.toolBars.contains(file); });
}

bool CPreviewFrame::Bars::HaveAnyOf(const Bars& others) const {
    return (isRibbon && others.isRibbon) || (areMenus && others.areMenus) || (areTexts && others.areTexts) ||
           std::ranges::any_of(toolBars,
                               [&others](const std::wstring& file) { return others.toolBars.contains(file); });
}

CPreviewFrame::Bars CPreviewFrame::BarsOf(const std::wstring& file) const {
    using enum ConfigurationFileKind;
    const ConfigurationFileKind kind = KindOfConfigurationFile(file);
    // Files may be named otherwise on the command line.
    const auto isAmong = [&file](const std::vector<std::wstring>& files) {
        return std::ranges::find(files, file) != files.end();
    };
    Bars bars{.isRibbon = kind == Ribbon || isAmong(m_options.ribbonFiles),
              .areMenus = kind == Menu || kind == Icon || isAmong(m_options.menuFiles),
              .areTexts = kind == Texts,
              .toolBars = {}};
    if (kind == Icon) {
        bars.toolBars = AllBars().toolBars;
    } else if (kind == ToolBars || isAmong(m_options.toolBarFiles)) {
        bars.toolBars = {file};
    }
    return bars;
}

CPreviewFrame::Bars CPreviewFrame::AllBars() const {
    return {.isRibbon = true,
            .areMenus = true,
            .areTexts = false,
            .toolBars = {m_options.toolBarFiles.begin(), m_options.toolBarFiles.end()}};
}

bool CPreviewFrame::Rebuild(const ConfigurationChange& change) {
    for (const std::wstring& file : change.files) {
        m_waiting.Add(BarsOf(file));
    }
    if (change.Has(ConfigurationFileKind::Icon)) {
        ForgetIcons();
        m_ribbon.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    }
    return RebuildWaiting();
}

bool CPreviewFrame::RebuildAll() {
    m_waiting.Add(AllBars());
    return RebuildWaiting();
}

bool CPreviewFrame::IsWaiting(const std::wstring& file) const { return m_waiting.HaveAnyOf(BarsOf(file)); }

std::wstring CPreviewFrame::WantedLanguage() const {
    return m_options.language.empty() ? CMultiLanguageMgr::GetLanguage() : m_options.language;
}

bool CPreviewFrame::RebuildWaiting() {
    const Faults faults = FindFaults();
    ProblemReport report(m_options.directory);
    for (const ConfigurationProblem& problem : faults.problems) {
        std::fputs(wstring2String(report.Of(problem)).c_str(), stderr);
    }
    std::fflush(stderr);
    ShowInCaption(faults);
    const std::wstring language = WantedLanguage();
    if (m_waiting.areTexts && !faults.kept.areTexts && (language.empty() || CMultiLanguageMgr::SetLanguage(language))) {
        m_waiting.areTexts = false;
        m_waiting.Add(AllBars());
    }
    Bars bars = m_waiting;
    bars.Remove(faults.kept);
    bars.areTexts = false;
    m_waiting.Remove(bars);
    if (bars.AreAny()) {
        RebuildBars(bars);
    }
    return bars.AreAny();
}

void CPreviewFrame::RebuildBars(const Bars& asked) {
    Bars bars = asked;
    if (!bars.toolBars.empty() && HasManyUnusedImages()) {
        bars.toolBars = AllBars().toolBars;
    }
    std::set<std::wstring> forgotten;
    const auto forget = [&forgotten](bool isMeant, const std::set<std::wstring>& keywords) {
        if (isMeant) {
            forgotten.insert(keywords.begin(), keywords.end());
        }
    };
    forget(bars.isRibbon, m_ofRibbon);
    forget(bars.areMenus, m_ofMenus);
    for (const auto& [file, keywords] : m_ofToolBars) {
        forget(bars.toolBars.contains(file), keywords);
    }
    const CKeptCommandIds kept(forgotten);
    if (bars.isRibbon) {
        RebuildRibbon();
    }
    if (bars.areMenus) {
        RebuildMenus();
    }
    if (!bars.toolBars.empty()) {
        RebuildToolBars(bars.toolBars);
    }
    RecalcLayout();
}

void CPreviewFrame::RebuildRibbon() {
    {
        const CKeptRibbonStates states(m_ribbon);
        m_ribbon.RemoveAllCategories();
        CAddRibbonBar::m_smStatusExBtns.clear();
        m_commands.clear();
        BuildRibbon();
    }
    if (m_status.GetSafeHwnd()) {
        m_status.SetExEleApp(m_options.application.c_str());
    }
    m_ribbon.ForceRecalcLayout();
    m_ribbon.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

void CPreviewFrame::RebuildMenus() {
    m_menus.clear();
    // The shortcuts of the files alone are in force here.
    if (m_hAccelTable) {
        ::DestroyAcceleratorTable(m_hAccelTable);
        m_hAccelTable = nullptr;
    }
    BuildMenus();
}

void CPreviewFrame::RebuildToolBars(const std::set<std::wstring>& files) {
    for (auto file = m_toolBars.begin(); file != m_toolBars.end();) {
        if (std::ranges::find(m_options.toolBarFiles, file->first) == m_options.toolBarFiles.end()) {
            ReplaceToolBars(*this, file->second, {}); // it has gone
            m_ofToolBars.erase(file->first);
            file = m_toolBars.erase(file);
        } else {
            ++file;
        }
    }
    const bool areAll = files == AllBars().toolBars;
    CMFCToolBarImages* const images = CMFCToolBar::GetUserImages();
    if (areAll && images) {
        images->Clear();
        CMFCToolBar::SetUserImages(nullptr);
    }
    BuildToolBars(files);
    CountToolBars(areAll);
}

/// Each button takes a place of its own in the list of icons, and those of bars that have gone stay there until all
/// are built anew.
bool CPreviewFrame::HasManyUnusedImages() const {
    const CMFCToolBarImages* const images = CMFCToolBar::GetUserImages();
    return images && images->GetCount() > 2 * m_toolBarImages && FindFaults().kept.toolBars.empty();
}

void CPreviewFrame::CountToolBars(bool areAll) {
    CDynToolBarCreater::s_ToolbarIndex = m_firstToolBar;
    for (const auto& [file, creater] : m_toolBars) {
        for (const CMFCToolBar* const bar : creater.GetAllToolBar()) {
            const auto next = static_cast<std::uint32_t>(bar->GetDlgCtrlID()) + 1;
            CDynToolBarCreater::s_ToolbarIndex = std::max(CDynToolBarCreater::s_ToolbarIndex, next);
        }
    }
    if (areAll) {
        const CMFCToolBarImages* const images = CMFCToolBar::GetUserImages();
        m_toolBarImages = images ? images->GetCount() : 0;
    }
}

CPreviewFrame::Faults CPreviewFrame::FindFaults() const {
    Faults faults;
    const auto add = [&faults](const std::vector<ConfigurationProblem>& problems, bool& isKept) {
        isKept = isKept || !problems.empty();
        faults.problems.insert(faults.problems.end(), problems.begin(), problems.end());
    };
    const auto look = [&](const std::vector<std::wstring>& files, ConfiguredBars bars, bool& isKept) {
        for (const std::wstring& file : files) {
            add(FindLoadFaults(m_options.directory + file, bars), isKept);
        }
    };
    look(m_options.ribbonFiles, ConfiguredBars::Ribbon, faults.kept.isRibbon);
    look(m_options.menuFiles, ConfiguredBars::Menu, faults.kept.areMenus);
    for (const std::wstring& file : m_options.toolBarFiles) {
        bool isKept = false;
        look({file}, ConfiguredBars::ToolBars, isKept);
        if (isKept) {
            faults.kept.toolBars.insert(file);
        }
    }
    add(FindLanguageFaults(WantedLanguage()), faults.kept.areTexts);
    return faults;
}

void CPreviewFrame::ShowFaults() { ShowInCaption(FindFaults()); }

void CPreviewFrame::ShowInCaption(const Faults& faults) {
    std::wstring caption = m_options.directory;
    if (!faults.problems.empty()) {
        caption = ProblemReport(m_options.directory).InShort(faults.problems.front()) + L" - " + caption;
    }
    SetWindowText(caption.c_str());
}

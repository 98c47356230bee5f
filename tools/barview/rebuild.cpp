#include "forget_icons.h"
#include "preview_frame.h"
#include "ribbon_states.h"

#include "add_ribbon_bar.h"
#include "configuration_watch.h"
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
    areToolBars = areToolBars || others.areToolBars;
    areTexts = areTexts || others.areTexts;
}

void CPreviewFrame::Bars::Remove(const Bars& others) {
    isRibbon = isRibbon && !others.isRibbon;
    areMenus = areMenus && !others.areMenus;
    areToolBars = areToolBars && !others.areToolBars;
    areTexts = areTexts && !others.areTexts;
}

bool CPreviewFrame::Bars::HaveAnyOf(const Bars& others) const {
    return (isRibbon && others.isRibbon) || (areMenus && others.areMenus) || (areToolBars && others.areToolBars) ||
           (areTexts && others.areTexts);
}

CPreviewFrame::Bars CPreviewFrame::BarsOf(const std::wstring& file) const {
    using enum ConfigurationFileKind;
    const ConfigurationFileKind kind = KindOfConfigurationFile(file);
    // Files may be named otherwise on the command line.
    const auto isAmong = [&file](const std::vector<std::wstring>& files) {
        return std::ranges::find(files, file) != files.end();
    };
    return {.isRibbon = kind == Ribbon || isAmong(m_options.ribbonFiles),
            .areMenus = kind == Menu || kind == Icon || isAmong(m_options.menuFiles),
            .areToolBars = kind == ToolBars || kind == Icon || isAmong(m_options.toolBarFiles),
            .areTexts = kind == Texts};
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
    m_waiting.Add({.isRibbon = true, .areMenus = true, .areToolBars = true});
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
        m_waiting = {.isRibbon = true, .areMenus = true, .areToolBars = true};
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

void CPreviewFrame::RebuildBars(const Bars& bars) {
    std::set<std::wstring> forgotten;
    for (const auto& [isMeant, keywords] : {std::pair(bars.isRibbon, &m_ofRibbon), std::pair(bars.areMenus, &m_ofMenus),
                                            std::pair(bars.areToolBars, &m_ofToolBars)}) {
        if (isMeant) {
            forgotten.insert(keywords->begin(), keywords->end());
        }
    }
    const CKeptCommandIds kept(forgotten);
    if (bars.isRibbon) {
        RebuildRibbon();
    }
    if (bars.areMenus) {
        RebuildMenus();
    }
    if (bars.areToolBars) {
        RebuildToolBars();
    }
    RecalcLayout();
}

void CPreviewFrame::RebuildRibbon() {
    const RibbonStates states(m_ribbon);
    m_ribbon.RemoveAllCategories();
    CAddRibbonBar::m_smStatusExBtns.clear();
    m_commands.clear();
    BuildRibbon();
    states.GiveTo(m_ribbon);
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

void CPreviewFrame::RebuildToolBars() {
    for (CMFCToolBar* const bar : m_toolBars.GetAllToolBar()) {
        RemovePaneFromDockManager(bar, FALSE, FALSE, FALSE, nullptr);
        bar->DestroyWindow();
    }
    m_toolBars = CDynToolBarCreater();
    CDynToolBarCreater::s_ToolbarIndex = m_firstToolBar;
    // Each button takes a place of its own in the list of icons.
    if (CMFCToolBarImages* const images = CMFCToolBar::GetUserImages()) {
        images->Clear();
        CMFCToolBar::SetUserImages(nullptr);
    }
    BuildToolBars();
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
    look(m_options.toolBarFiles, ConfiguredBars::ToolBars, faults.kept.areToolBars);
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

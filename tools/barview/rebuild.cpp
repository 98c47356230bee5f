#include "forget_icons.h"
#include "preview_frame.h"
#include "ribbon_states.h"

#include "add_ribbon_bar.h"
#include "configuration_watch.h"
#include "kept_command_ids.h"

#include "varnhold/language.h"
#include "varnhold/xml.h"

#include <list>

// The bars of files that have changed, built anew while the window stays.

namespace {

/// Whether the library reads the file; where not, what is wrong with it.
std::wstring ProblemOf(const std::wstring& directory, const std::wstring& file) {
    CXmlDocumentWrapper document;
    if (document.Load(directory + file)) {
        return {};
    }
    const std::wstring& text = document.GetErrorText();
    return text.starts_with(directory) ? text.substr(directory.size()) : text;
}

} // namespace

bool CPreviewFrame::Rebuild(const ConfigurationChange& change) {
    using enum ConfigurationFileKind;
    Bars bars{change.Has(Ribbon), change.Has(Menu), change.Has(ToolBars)};
    for (const std::wstring& file : change.files) { // files that were named on the command line
        const auto isAmong = [&file](const std::vector<std::wstring>& files) {
            return std::ranges::find(files, file) != files.end();
        };
        bars.isRibbon = bars.isRibbon || isAmong(m_options.ribbonFiles);
        bars.areMenus = bars.areMenus || isAmong(m_options.menuFiles);
        bars.areToolBars = bars.areToolBars || isAmong(m_options.toolBarFiles);
    }
    if (change.Has(Texts)) {
        const std::wstring language = CMultiLanguageMgr::GetLanguage();
        if (!language.empty() && !CMultiLanguageMgr::SetLanguage(language)) {
            ShowProblem(L"no usable language " + language);
            return false;
        }
        bars = {true, true, true};
    }
    if (change.Has(Icon)) {
        bars.areMenus = bars.areToolBars = true;
        ForgetIcons();
        m_ribbon.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    }
    return RebuildBars(bars);
}

bool CPreviewFrame::RebuildAll() { return RebuildBars({true, true, true}); }

bool CPreviewFrame::RebuildBars(const Bars& bars) {
    const std::wstring problem = FindBroken(bars);
    ShowProblem(problem);
    if (!problem.empty() || (!bars.isRibbon && !bars.areMenus && !bars.areToolBars)) {
        return false;
    }
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
    return true;
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

std::wstring CPreviewFrame::FindBroken(const Bars& bars) const {
    for (const auto& [isMeant, files] :
         {std::pair(bars.isRibbon, &m_options.ribbonFiles), std::pair(bars.areMenus, &m_options.menuFiles),
          std::pair(bars.areToolBars, &m_options.toolBarFiles)}) {
        for (const std::wstring& file : *files) {
            if (const std::wstring problem = isMeant ? ProblemOf(m_options.directory, file) : std::wstring();
                !problem.empty()) {
                return problem;
            }
        }
    }
    return {};
}

void CPreviewFrame::ShowProblem(const std::wstring& problem) {
    SetWindowText(problem.empty() ? m_options.directory.c_str() : (problem + L" - " + m_options.directory).c_str());
    if (!problem.empty()) {
        Complain(problem);
    }
}

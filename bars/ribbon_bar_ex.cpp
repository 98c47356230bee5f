// Paths of the extended ribbon bar: ranges of categories with their quick access toolbars.
#include "ribbon_bar_ex.h"

#include <afxribbonquickaccesstoolbar.h>
#include <fx/window_guard.h>

IMPLEMENT_DYNAMIC(CMFCRibbonBarEx, CMFCRibbonBar2)

BEGIN_MESSAGE_MAP(CMFCRibbonBarEx, CMFCRibbonBar2)
ON_WM_LBUTTONDOWN()
ON_NOTIFY_EX(TTN_NEEDTEXT, 0, OnNeedTipText)
END_MESSAGE_MAP()

namespace {

std::list<unsigned int> QuickAccessCommands(CMFCRibbonBar& bar) {
    CList<UINT, UINT> shown;
    bar.GetQuickAccessCommands(shown);
    std::list<unsigned int> commands;
    for (POSITION position = shown.GetHeadPosition(); position != nullptr;) {
        if (const UINT id = shown.GetNext(position); id != 0) { // a separator
            commands.push_back(id);
        }
    }
    return commands;
}

} // namespace

CMFCRibbonBarEx::CMFCRibbonBarEx(int nReplaceFrameCaption) : CMFCRibbonBar2(nReplaceFrameCaption) {}

// The window first: its tooltip may show a text that this object has lent it.
CMFCRibbonBarEx::~CMFCRibbonBarEx() {
    if (GetSafeHwnd() != nullptr) {
        DestroyWindow();
    }
}

void CMFCRibbonBarEx::setPath(const std::wstring& name, int first, int last, const std::list<unsigned int>& commands) {
    m_mapPathRange.try_emplace(name, PathRange{first, last, first});
    m_mapPathQACmds[name] = commands;
}

bool CMFCRibbonBarEx::havPath(const std::wstring& name) const { return m_mapPathRange.contains(name); }

std::list<std::wstring> CMFCRibbonBarEx::Paths() const {
    std::list<std::wstring> names;
    for (const auto& [name, range] : m_mapPathRange) {
        names.push_back(name);
    }
    return names;
}

std::list<unsigned int> CMFCRibbonBarEx::PathCommands(const std::wstring& name) const {
    const auto found = m_mapPathQACmds.find(name);
    return found != m_mapPathQACmds.end() ? found->second : std::list<unsigned int>();
}

void CMFCRibbonBarEx::RememberActiveCategory() {
    const auto shown = m_mapPathRange.find(m_strCurPath);
    if (shown != m_mapPathRange.end()) {
        shown->second.active = GetCategoryIndex(GetActiveCategory());
    }
}

bool CMFCRibbonBarEx::ShowPath(const std::wstring& name, const std::set<std::wstring>* categories) {
    RememberActiveCategory();
    const auto found = m_mapPathRange.find(name);
    if (found == m_mapPathRange.end()) {
        return false;
    }
    // The host hears of pop-ups that close on the way, and may declare paths, rebuild or end the bar: copies, from
    // here.
    const auto [first, last, remembered] = found->second;
    const fx::WindowGuard guard(this);
    const bool hasWindow = GetSafeHwnd() != nullptr;
    int active = remembered;
    m_strCurPath = name;
    for (int index = 0; index < GetCategoryCount(); ++index) {
        const bool isShown = first <= index && index <= last;
        ShowCategory(index, isShown ? TRUE : FALSE);
        if (hasWindow && guard.IsGone()) {
            return true;
        }
        const CMFCRibbonCategory* const category = GetCategory(index);
        if (isShown && category != nullptr && categories != nullptr && categories->contains(category->GetName())) {
            active = index;
        }
    }
    if (active < first || active > last) {
        active = first;
    }
    if (active >= 0) {
        SetActiveCategory(GetCategory(active));
        if (hasWindow && guard.IsGone()) {
            return true;
        }
    }
    ShowQuickAccess(m_strCurPath);
    return true;
}

// The framework applies a default state only until somebody has chosen commands, the user or the host. The toolbar is
// the path's all the same.
void CMFCRibbonBarEx::ShowQuickAccess(const std::wstring& path) {
    CMFCRibbonQuickAccessToolBarDefaultState state;
    CList<UINT, UINT> wanted;
    std::list<unsigned int> known;
    for (const unsigned int id : m_mapPathQACmds[path]) {
        state.AddCommand(id, TRUE);
        wanted.AddTail(id);
        if (FindByID(id, FALSE, TRUE) != nullptr) {
            known.push_back(id);
        }
    }
    SetQuickAccessDefaultState(state);
    if (QuickAccessCommands(*this) != known) {
        SetQuickAccessCommands(wanted);
    }
}

void CMFCRibbonBarEx::UpdateCurQATollBar(const std::wstring& fallback) {
    const std::wstring& path = m_strCurPath.empty() ? fallback : m_strCurPath;
    if (!path.empty()) {
        m_mapPathQACmds[path] = QuickAccessCommands(*this);
    }
}

void CMFCRibbonBarEx::SaveQAToolBar() {}

void CMFCRibbonBarEx::setHMenu(HMENU menu) { m_hContextMenu = menu; }

#include "panes/pane_state.h"

#include "afxPane.h"
#include "fx/app.h"
#include "fx/state_store.h"

// Where panes keep their state: one section per pane below the application's base section.

namespace {

CString SectionOf(const CBasePane& pane, LPCTSTR profile, int index, UINT id, LPCTSTR kind) {
    if (index == -1) {
        index = pane.GetDlgCtrlID();
    }
    CString section;
    if (id == static_cast<UINT>(-1)) {
        section.Format(L"%s\\%s-%d", profile ? profile : L"", kind, index);
    } else {
        section.Format(L"%s\\%s-%d%x", profile ? profile : L"", kind, index, id);
    }
    return section;
}

fx::StateStore* Store() {
    CWinApp* const application = AfxGetApp();
    return application != nullptr ? application->GetStateStore() : nullptr;
}

constexpr LPCTSTR kBasePane = L"BasePane";
constexpr LPCTSTR kPane = L"Pane";
constexpr LPCTSTR kVisibleEntry = L"IsVisible";
constexpr LPCTSTR kAlignmentEntry = L"RecentAlignment";

} // namespace

bool panes::HasKeptState(const CBasePane& pane, LPCTSTR profile) {
    constexpr auto kNoId = static_cast<UINT>(-1);
    fx::StateStore* const store = Store();
    return store != nullptr && (store->HasEntry(SectionOf(pane, profile, -1, kNoId, kBasePane), kVisibleEntry) ||
                                store->HasEntry(SectionOf(pane, profile, -1, kNoId, kPane), kAlignmentEntry));
}

BOOL CBasePane::LoadState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    fx::StateStore* const store = Store();
    if (!store) {
        return FALSE;
    }
    const CString section = SectionOf(*this, lpszProfileName, nIndex, uiID, kBasePane);
    const int isVisible = store->ReadInt(section, kVisibleEntry, -1);
    if (isVisible == -1) {
        return FALSE;
    }
    ShowPane(isVisible, TRUE, FALSE);
    return TRUE;
}

BOOL CBasePane::SaveState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    fx::StateStore* const store = Store();
    const CString section = SectionOf(*this, lpszProfileName, nIndex, uiID, kBasePane);
    return store && store->WriteInt(section, kVisibleEntry, GetRecentVisibleState());
}

BOOL CPane::LoadState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    fx::StateStore* const store = Store();
    if (!store) {
        return FALSE;
    }
    const CString section = SectionOf(*this, lpszProfileName, nIndex, uiID, kPane);
    const DWORD alignment = static_cast<DWORD>(store->ReadInt(section, kAlignmentEntry, 0));
    // Only sides that the host still allows are taken back; where a docked pane lies the docking manager knows.
    if ((alignment & m_dwEnabledAlignment) != 0 && GetParentDockSite() == nullptr && !IsFloating()) {
        SetPaneAlignment(alignment);
    }
    return CBasePane::LoadState(lpszProfileName, nIndex, uiID);
}

BOOL CPane::SaveState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    fx::StateStore* const store = Store();
    const CString section = SectionOf(*this, lpszProfileName, nIndex, uiID, kPane);
    return store && store->WriteInt(section, kAlignmentEntry, static_cast<int>(GetCurrentAlignment())) &&
           CBasePane::SaveState(lpszProfileName, nIndex, uiID);
}

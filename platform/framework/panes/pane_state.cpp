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

} // namespace

BOOL CBasePane::LoadState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    fx::StateStore* const store = Store();
    if (!store) {
        return FALSE;
    }
    const CString section = SectionOf(*this, lpszProfileName, nIndex, uiID, L"BasePane");
    const int isVisible = store->ReadInt(section, L"IsVisible", -1);
    if (isVisible == -1) {
        return FALSE;
    }
    ShowPane(isVisible, TRUE, FALSE);
    return TRUE;
}

BOOL CBasePane::SaveState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    fx::StateStore* const store = Store();
    const CString section = SectionOf(*this, lpszProfileName, nIndex, uiID, L"BasePane");
    return store && store->WriteInt(section, L"IsVisible", GetRecentVisibleState());
}

BOOL CPane::LoadState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    fx::StateStore* const store = Store();
    if (!store) {
        return FALSE;
    }
    const CString section = SectionOf(*this, lpszProfileName, nIndex, uiID, L"Pane");
    const DWORD alignment = static_cast<DWORD>(store->ReadInt(section, L"RecentAlignment", 0));
    // Only sides that the host still allows are taken back; where a docked pane lies the docking manager knows.
    if ((alignment & m_dwEnabledAlignment) != 0 && GetParentDockSite() == nullptr && !IsFloating()) {
        SetPaneAlignment(alignment);
    }
    return CBasePane::LoadState(lpszProfileName, nIndex, uiID);
}

BOOL CPane::SaveState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    fx::StateStore* const store = Store();
    const CString section = SectionOf(*this, lpszProfileName, nIndex, uiID, L"Pane");
    return store && store->WriteInt(section, L"RecentAlignment", static_cast<int>(GetCurrentAlignment())) &&
           CBasePane::SaveState(lpszProfileName, nIndex, uiID);
}

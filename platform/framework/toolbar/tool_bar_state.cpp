// A toolbar's buttons in the user's settings.
#include "afxtoolbar.h"

#include "afxwinappex.h"

#include <memory>

namespace {

CWinAppEx* Application() { return DYNAMIC_DOWNCAST(CWinAppEx, AfxGetApp()); }

CString SectionOf(const CWnd& bar, LPCTSTR profile, int index, UINT id) {
    if (index == -1) {
        index = bar.GetDlgCtrlID();
    }
    CString section;
    if (id == static_cast<UINT>(-1)) {
        section.Format(L"%s\\MFCToolBar-%d", profile ? profile : L"", index);
    } else {
        section.Format(L"%s\\MFCToolBar-%d%x", profile ? profile : L"", index, id);
    }
    return section;
}

constexpr LPCTSTR buttonsEntry = L"Buttons";

} // namespace

void CMFCToolBar::Serialize(CArchive& ar) {
    CMFCBaseToolBar::Serialize(ar);
    if (ar.IsLoading()) {
        int count = 0;
        ar >> count;
        RemoveAllButtons();
        for (int i = 0; i < count; ++i) {
            InsertButton(static_cast<CMFCToolBarButton*>(ar.ReadObject(RUNTIME_CLASS(CMFCToolBarButton))));
        }
        return;
    }
    CObList stored;
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        auto* button = static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position));
        if (button->CanBeStored()) {
            stored.AddTail(button);
        }
    }
    ar << static_cast<int>(stored.GetCount());
    for (POSITION position = stored.GetHeadPosition(); position;) {
        ar.WriteObject(stored.GetNext(position));
    }
}

BOOL CMFCToolBar::SaveState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    CWinAppEx* application = Application();
    const CString section = SectionOf(*this, lpszProfileName, nIndex, uiID);
    if (!application || (!m_bFromConfig && !application->WriteSectionObject(section, buttonsEntry, *this))) {
        return FALSE;
    }
    return CMFCBaseToolBar::SaveState(lpszProfileName, nIndex, uiID);
}

BOOL CMFCToolBar::LoadState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    CWinAppEx* application = Application();
    const CString section = SectionOf(*this, lpszProfileName, nIndex, uiID);
    const BOOL hasButtons =
        application && !m_bFromConfig && application->GetSectionObject(section, buttonsEntry, *this);
    const BOOL hasPlace = CMFCBaseToolBar::LoadState(lpszProfileName, nIndex, uiID);
    if (hasButtons && m_hWnd) {
        AdjustLayout();
    }
    return hasButtons || hasPlace;
}

BOOL CMFCToolBar::RemoveStateFromRegistry(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    CWinAppEx* application = Application();
    return application &&
           application->CleanState(application->GetRegSectionPath(SectionOf(*this, lpszProfileName, nIndex, uiID)));
}

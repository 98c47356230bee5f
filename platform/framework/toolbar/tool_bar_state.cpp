// A toolbar's buttons in the user's settings.
#include "afxtoolbar.h"

#include "afxwinappex.h"

#include <memory>
#include <vector>

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

bool HasButtonsEntry(CWinAppEx& application, const CString& section) {
    LPBYTE data = nullptr;
    UINT size = 0;
    const BOOL exists = application.GetSectionBinary(section, buttonsEntry, &data, &size);
    const std::unique_ptr<BYTE[]> bytes(data);
    return exists != FALSE;
}

} // namespace

void CMFCToolBar::Serialize(CArchive& ar) {
    CMFCBaseToolBar::Serialize(ar);
    if (ar.IsLoading()) {
        ReadButtons(ar);
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
    ar << static_cast<int>(stored.GetCount());
}

// The number stands behind the buttons as well: one that is damaged would leave the last of them away.
void CMFCToolBar::ReadButtons(CArchive& ar) {
    int count = 0;
    ar >> count;
    fx::ArchiveChecks::RequireElements(ar, static_cast<ULONGLONG>(count)); // below zero: more than there can be
    std::vector<std::unique_ptr<CMFCToolBarButton>> buttons;
    for (int i = 0; i < count; ++i) {
        buttons.emplace_back(
            static_cast<CMFCToolBarButton*>(fx::ArchiveChecks::ReadOwnedObject(ar, RUNTIME_CLASS(CMFCToolBarButton))));
    }
    int countAgain = 0;
    ar >> countAgain;
    if (countAgain != count) {
        AfxThrowArchiveException(CArchiveException::badIndex);
    }
    RemoveAllButtons();
    for (auto& button : buttons) {
        InsertButton(button.release());
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
    const bool mayHaveButtons = application && !m_bFromConfig && HasButtonsEntry(*application, section);
    const BOOL hasButtons = mayHaveButtons && application->GetSectionObject(section, buttonsEntry, *this);
    if (mayHaveButtons && !hasButtons) {
        return FALSE; // damaged: the bar stays as the program made it, its place too
    }
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

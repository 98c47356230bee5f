// A toolbar's buttons in the user's settings.
#include "afxtoolbar.h"

#include "fx/app.h"
#include "fx/state_store.h"

#include <memory>
#include <vector>

namespace {

fx::StateStore* Store() {
    CWinApp* const application = AfxGetApp();
    return application != nullptr ? application->GetStateStore() : nullptr;
}

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
        // No room is made beforehand: the count may be a damaged one.
        // NOLINTNEXTLINE(performance-inefficient-vector-operation)
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
    fx::StateStore* const store = Store();
    const CString section = SectionOf(*this, lpszProfileName, nIndex, uiID);
    if (!store || (!m_bFromConfig && !store->WriteObject(section, buttonsEntry, *this))) {
        return FALSE;
    }
    return CMFCBaseToolBar::SaveState(lpszProfileName, nIndex, uiID);
}

BOOL CMFCToolBar::LoadState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    fx::StateStore* const store = Store();
    const CString section = SectionOf(*this, lpszProfileName, nIndex, uiID);
    const bool mayHaveButtons = store && !m_bFromConfig && store->HasObject(section, buttonsEntry);
    const BOOL hasButtons = mayHaveButtons && store->ReadObject(section, buttonsEntry, *this);
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
    fx::StateStore* const store = Store();
    return store && store->DeleteSection(SectionOf(*this, lpszProfileName, nIndex, uiID));
}

// The field of a menu bar in which the user asks for help.
#include "afxmenubar.h"

#include "toolbar/button_copy.h"
#include "toolbar/help_combo.h"

#include <algorithm>

void CMFCMenuBar::EnableHelpCombobox(UINT uiID, LPCTSTR lpszPrompt, int nComboBoxWidth) {
    if (const int index = ButtonToIndex(GetHelpCombobox()); index >= 0) {
        RemoveButton(index);
    }
    if (uiID != 0) {
        // Behind all others, so that the menu's own buttons keep their indexes.
        InsertButton(new toolbar::HelpCombo(uiID, CString(lpszPrompt), nComboBoxWidth));
    }
    AdjustLayout();
}

CMFCToolBarComboBoxButton* CMFCMenuBar::GetHelpCombobox() {
    for (int i = 0; i < GetCount(); ++i) {
        if (auto* const help = DYNAMIC_DOWNCAST(toolbar::HelpCombo, GetButton(i))) {
            return help->IsHidden() ? nullptr : help;
        }
    }
    return nullptr;
}

std::unique_ptr<CMFCToolBarButton> CMFCMenuBar::CopyOfHelpCombo() {
    const CMFCToolBarComboBoxButton* const help = GetHelpCombobox();
    return help ? toolbar::CopyOf(*help) : nullptr;
}

// At the right edge of its row, before the buttons of a maximised child.
void CMFCMenuBar::PlaceHelpCombo() {
    auto* const help = static_cast<toolbar::HelpCombo*>(GetHelpCombobox());
    if (!help) {
        return;
    }
    if (IsHorizontal()) {
        CRect client;
        GetClientRect(&client);
        LONG right = client.right - m_rectBorders.right;
        for (int i = 0; i < GetSystemButtonsCount(); ++i) {
            right = std::min(right, GetSystemButton(static_cast<UINT>(i), FALSE)->Rect().left);
        }
        CRect place = help->Rect();
        place.MoveToX(std::max(place.left, right - place.Width()));
        help->SetRect(place);
    }
    help->Settle();
}

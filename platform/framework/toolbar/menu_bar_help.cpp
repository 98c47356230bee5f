// The field of a menu bar in which the user asks for help.
#include "afxmenubar.h"

#include "toolbar/button_copy.h"
#include "toolbar/help_field.h"

#include <algorithm>
#include <vector>

namespace {

toolbar::HelpField* HelpFieldOf(const CMFCMenuBar& bar) {
    for (int i = 0; i < bar.GetCount(); ++i) {
        if (auto* const help = dynamic_cast<toolbar::HelpField*>(bar.GetButton(i))) {
            return help->Combo().IsHidden() ? nullptr : help;
        }
    }
    return nullptr;
}

bool IsOfMaximizedChild(const CMFCToolBarButton& button) {
    return button.IsKindOf(RUNTIME_CLASS(CMFCToolBarMenuButtonsButton)) ||
           button.IsKindOf(RUNTIME_CLASS(CMFCToolBarSystemMenuButton));
}

/// Moves the field, and the buttons that follow it in its row, as far right as they have room before `right`.
void MoveToEnd(const CMFCMenuBar& bar, CMFCToolBarComboBoxButton& field, LONG right) {
    std::vector<CMFCToolBarButton*> moved = {&field};
    for (int i = bar.ButtonToIndex(&field) + 1; i < bar.GetCount(); ++i) {
        CMFCToolBarButton* const button = bar.GetButton(i);
        if (button->Rect().top == field.Rect().top && !IsOfMaximizedChild(*button)) {
            moved.push_back(button);
        }
    }
    const auto shift = static_cast<int>(std::max(0L, right - moved.back()->Rect().right));
    for (CMFCToolBarButton* const button : moved) {
        CRect place = button->Rect();
        place.OffsetRect(shift, 0);
        button->SetRect(place);
    }
}

} // namespace

void toolbar::HoldHelpField(const CMFCMenuBar& bar) {
    if (HelpField* const help = HelpFieldOf(bar)) {
        help->Hold();
    }
}

CMFCToolBarComboBoxButton* CMFCMenuBar::GetHelpCombobox() {
    toolbar::HelpField* const help = HelpFieldOf(*this);
    return help ? &help->Combo() : nullptr;
}

std::unique_ptr<CMFCToolBarButton> CMFCMenuBar::CopyOfHelpCombo() {
    const CMFCToolBarComboBoxButton* const help = GetHelpCombobox();
    return help ? toolbar::CopyOf(*help) : nullptr;
}

// At the right edge of its row, before the buttons of a maximised child. Buttons that follow it in its row keep behind
// it.
void CMFCMenuBar::PlaceHelpCombo() {
    toolbar::HelpField* const help = HelpFieldOf(*this);
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
        MoveToEnd(*this, help->Combo(), right);
    }
    help->Settle();
}

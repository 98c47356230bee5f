// The field of a menu bar in which the user asks for help.
#include "afxmenubar.h"

#include "toolbar/button_copy.h"
#include "toolbar/help_field.h"

#include <algorithm>

namespace {

toolbar::HelpField* HelpFieldOf(const CMFCMenuBar& bar) {
    for (int i = 0; i < bar.GetCount(); ++i) {
        if (auto* const help = dynamic_cast<toolbar::HelpField*>(bar.GetButton(i))) {
            return help->Combo().IsHidden() ? nullptr : help;
        }
    }
    return nullptr;
}

} // namespace

CMFCToolBarComboBoxButton* CMFCMenuBar::GetHelpCombobox() {
    toolbar::HelpField* const help = HelpFieldOf(*this);
    return help ? &help->Combo() : nullptr;
}

std::unique_ptr<CMFCToolBarButton> CMFCMenuBar::CopyOfHelpCombo() {
    const CMFCToolBarComboBoxButton* const help = GetHelpCombobox();
    return help ? toolbar::CopyOf(*help) : nullptr;
}

// At the right edge of its row, before the buttons of a maximised child.
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
        CMFCToolBarComboBoxButton& combo = help->Combo();
        CRect place = combo.Rect();
        place.MoveToX(std::max(place.left, right - place.Width()));
        combo.SetRect(place);
    }
    help->Settle();
}

// The keyboard of a ribbon pop-up: the walk through its elements, letters, and what a key opens.
#include "afxribbonpanelmenu.h"

#include <algorithm>

#include "afxribbonbutton.h"
#include "afxRibbonLabel.h"
#include "afxRibbonMainPanel.h"
#include "core/letters.h"
#include "fx/window_guard.h"
#include "popups/row_keys.h"
#include "popups/row_letters.h"
#include "ribbon/element_metrics.h"
#include "ribbon/focus_stops.h"
#include "ribbon/menu_items.h"
#include "ribbon/panel_menu_parts.h"
#include "ribbon/shown_text.h"

namespace {

bool IsHeading(CMFCRibbonBaseElement& element) { return DYNAMIC_DOWNCAST(CMFCRibbonLabel, &element) != nullptr; }

int IndexOf(const CMFCRibbonPanelMenuBar::ElementArray& stops, const CMFCRibbonBaseElement* element) {
    for (INT_PTR index = 0; index < stops.GetSize(); ++index) {
        if (stops[index] == element) {
            return static_cast<int>(index);
        }
    }
    return -1;
}

toolbar::RowLetters LettersOf(CMFCRibbonBaseElement& element) {
    CString keys = *element.GetMenuKeys() != 0 ? element.GetMenuKeys() : element.GetKeys();
    if (keys.IsEmpty()) {
        keys = MnemonicOf(element.GetShownText());
    }
    if (!keys.IsEmpty()) {
        return {keys.GetLength() == 1 ? fx::UpperCase(keys[0]) : L'\0', L'\0'};
    }
    const CString text = ribbon::PlainTextOf(element);
    return {L'\0', text.IsEmpty() ? L'\0' : fx::UpperCase(text[0])};
}

} // namespace

void CMFCRibbonPanelMenuBar::Highlight(CMFCRibbonBaseElement* pElement) {
    ShowRowOf(pElement);
    m_parts->pointer.SetHot(pElement);
}

void CMFCRibbonPanelMenuBar::HighlightFirst() {
    ElementArray stops;
    CollectStops(stops);
    if (!stops.IsEmpty()) {
        Highlight(stops[0]);
    }
}

// What the keyboard stops at, in the order of Tab. Rows that are scrolled out of view count.
void CMFCRibbonPanelMenuBar::CollectStops(ElementArray& stops) const {
    ElementArray all;
    if (m_parts->category != nullptr) {
        m_parts->category->GetVisibleElements(all);
    } else {
        for (CMFCRibbonBaseElement* element : m_parts->shown) {
            element->GetElements(all);
        }
    }
    for (INT_PTR index = 0; index < all.GetSize(); ++index) {
        CMFCRibbonBaseElement& element = *all[index];
        if (element.IsVisible() && element.IsTabStop() && !element.IsSeparator() && !IsHeading(element)) {
            stops.Add(&element);
        }
    }
}

BOOL CMFCRibbonPanelMenuBar::OnKey(UINT nChar) {
    CMFCRibbonBaseElement* hot = m_parts->pointer.GetHot();
    CMFCRibbonPanelMenu* menu = GetMenu();
    if (menu == nullptr) {
        return FALSE;
    }
    const fx::WindowGuard guard(this);
    if (OfferKey(nChar) || guard.IsGone()) {
        return TRUE;
    }
    switch (nChar) {
    case VK_ESCAPE:
        menu->GoBack();
        return TRUE;
    case VK_RETURN:
    case VK_SPACE:
        if (hot != nullptr) {
            Activate(hot, Choice::Command);
        }
        return TRUE;
    case VK_F4:
        return DropDown();
    case VK_RIGHT:
        if (hot != nullptr && IsMenuMode() && hot->HasMenu() && RibbonPointer::TakesInput(*hot)) {
            Activate(hot, Choice::Menu);
            return TRUE;
        }
        break;
    case VK_LEFT:
        if (IsMenuMode() && menu->GetParentMenu() != nullptr &&
            (hot == nullptr || DYNAMIC_DOWNCAST(CMFCRibbonButton, hot) != nullptr)) {
            menu->GoBack();
            return TRUE;
        }
        break;
    default:
        break;
    }
    return MoveHot(nChar);
}

// In a list one goes up and down, whatever a row could do with the key.
BOOL CMFCRibbonPanelMenuBar::OfferKey(UINT nChar) {
    if (IsMenuMode() && (nChar == VK_UP || nChar == VK_DOWN)) {
        return FALSE;
    }
    if (m_parts->category != nullptr) {
        return m_parts->category->OnKey(nChar);
    }
    return GetPanel() != nullptr && GetPanel()->OnKey(nChar);
}

// A split button's row sends its command; its menu opens by the arrow key and the pointer.
void CMFCRibbonPanelMenuBar::Activate(CMFCRibbonBaseElement* pElement, Choice choice) {
    if (!RibbonPointer::TakesInput(*pElement)) {
        return;
    }
    CMFCRibbonButton* button = DYNAMIC_DOWNCAST(CMFCRibbonButton, pElement);
    const bool opens =
        button != nullptr && button->HasMenu() && (!button->IsDefaultCommand() || choice == Choice::Menu);
    if (!opens) {
        pElement->OnKey(FALSE);
        return;
    }
    if (!pElement->IsDroppedDown()) {
        pElement->OnShowPopupMenu();
    }
    CMFCRibbonPanelMenu* opened = CMFCRibbonPanelMenu::GetDeepest();
    if (opened != nullptr && opened->GetOpener() == pElement) {
        opened->GetRibbonMenuBar().HighlightFirst();
    }
}

BOOL CMFCRibbonPanelMenuBar::CanDropDown() const {
    CMFCRibbonBaseElement* hot = m_parts->pointer.GetHot();
    return hot != nullptr && hot->HasDropDown() && RibbonPointer::TakesInput(*hot) && !(IsMenuMode() && hot->HasMenu());
}

BOOL CMFCRibbonPanelMenuBar::DropDown() {
    if (!CanDropDown()) {
        return FALSE;
    }
    CMFCRibbonBaseElement* hot = m_parts->pointer.GetHot();
    if (hot->HasMenu()) {
        Activate(hot, Choice::Menu);
    } else {
        hot->OnKey(TRUE);
    }
    return TRUE;
}

BOOL CMFCRibbonPanelMenuBar::MoveHot(UINT nChar) {
    ElementArray stops;
    CollectStops(stops);
    if (stops.IsEmpty()) {
        return FALSE;
    }
    // Arrows that look for the nearest place would not find rows that are scrolled out of view.
    const bool isList = m_parts->look == RibbonPopupLook::Menu || m_parts->strips.AreShown();
    if (!isList && (nChar == VK_UP || nChar == VK_DOWN)) {
        return StepTowards(nChar);
    }
    if (nChar == VK_LEFT || nChar == VK_RIGHT) {
        return m_parts->look == RibbonPopupLook::Menu ? TRUE : StepTowards(nChar);
    }
    const auto step = toolbar::RowStepOf(nChar);
    if (!step || toolbar::IsPage(*step)) {
        return FALSE;
    }
    const int count = static_cast<int>(stops.GetSize());
    const int row =
        toolbar::WalkRows({count, IndexOf(stops, m_parts->pointer.GetHot())}, *step, [](int) { return true; });
    Highlight(stops[row]);
    return TRUE;
}

// The stop beside it, where there is one.
BOOL CMFCRibbonPanelMenuBar::StepTowards(UINT nChar) {
    CMFCRibbonBaseElement* hot = m_parts->pointer.GetHot();
    ElementArray stops;
    CollectStops(stops);
    if (IndexOf(stops, hot) < 0) {
        HighlightFirst();
        return TRUE;
    }
    const RibbonFocusStops::Elements places(stops.GetData(), stops.GetData() + stops.GetSize());
    if (CMFCRibbonBaseElement* next = RibbonFocusStops::NeighbourOf(places, *hot, RibbonFocusStops::StepOf(nChar))) {
        Highlight(next);
    }
    return TRUE;
}

void CMFCRibbonPanelMenuBar::ShowRowOf(CMFCRibbonBaseElement* pElement) {
    if (pElement == nullptr || m_parts->list.scrollDown.IsEmpty()) {
        return;
    }
    const auto row =
        std::find_if(m_parts->shown.begin(), m_parts->shown.end(),
                     [pElement](CMFCRibbonBaseElement* shown) { return shown->Find(pElement) != nullptr; });
    if (row == m_parts->shown.end()) {
        return;
    }
    int first = m_parts->list.firstRow;
    if (m_parts->mainPanel != nullptr) {
        first = m_parts->mainPanel->FirstRowThatShows(*row, first);
    } else {
        first = ribbon::FirstRowThatShows(m_parts->rows, static_cast<int>(row - m_parts->shown.begin()),
                                          static_cast<int>(m_parts->room.cy), first, ribbon::CurrentMetrics());
    }
    if (first != m_parts->list.firstRow) {
        m_parts->list.firstRow = first;
        CalcContentSize(m_parts->room);
        Invalidate(FALSE);
    }
}

BOOL CMFCRibbonPanelMenuBar::TranslateChar(UINT nChar) { return OnLetter(fx::UpperCase(static_cast<wchar_t>(nChar))); }

// What the element makes of the letter itself goes first.
BOOL CMFCRibbonPanelMenuBar::OnLetter(UINT nUpperChar) {
    ElementArray stops;
    CollectStops(stops);
    std::vector<toolbar::RowLetters> rows;
    for (INT_PTR index = 0; index < stops.GetSize(); ++index) {
        CMFCRibbonBaseElement& element = *stops[index];
        if (RibbonPointer::TakesInput(element) && element.OnMenuKey(nUpperChar)) {
            return TRUE;
        }
        rows.push_back(LettersOf(element));
    }
    const toolbar::LetterGoal goal =
        toolbar::FindByLetter(rows, static_cast<wchar_t>(nUpperChar), IndexOf(stops, m_parts->pointer.GetHot()));
    if (goal.row < 0) {
        return FALSE;
    }
    CMFCRibbonBaseElement* element = stops[goal.row];
    Highlight(element);
    if (goal.isOnlyOne) {
        Activate(element, Choice::Command);
    }
    return TRUE;
}

// The keyboard of a ribbon pop-up: the walk through its elements, letters, and what a key opens.
#include "afxribbonpanelmenu.h"

#include <algorithm>

#include "afxribbonbutton.h"
#include "afxRibbonLabel.h"
#include "afxRibbonMainPanel.h"
#include "core/letters.h"
#include "fx/window_guard.h"
#include "ribbon/element_metrics.h"
#include "ribbon/menu_items.h"
#include "ribbon/panel_menu_parts.h"
#include "ribbon/shown_text.h"

namespace {

bool IsHeading(CMFCRibbonBaseElement& element) { return DYNAMIC_DOWNCAST(CMFCRibbonLabel, &element) != nullptr; }

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
    switch (nChar) {
    case VK_HOME:
        Highlight(stops[0]);
        return TRUE;
    case VK_END:
        Highlight(stops[stops.GetUpperBound()]);
        return TRUE;
    case VK_TAB:
        return Step(::GetKeyState(VK_SHIFT) < 0 ? -1 : 1);
    case VK_UP:
    case VK_DOWN:
        // Arrows that look for the nearest place would not find rows that are scrolled out of view.
        if (m_parts->look == RibbonPopupLook::Menu || !m_parts->list.scrollDown.IsEmpty()) {
            return Step(nChar == VK_UP ? -1 : 1);
        }
        return StepTowards(nChar);
    case VK_LEFT:
    case VK_RIGHT:
        return m_parts->look == RibbonPopupLook::Menu ? TRUE : StepTowards(nChar);
    default:
        return FALSE;
    }
}

BOOL CMFCRibbonPanelMenuBar::Step(int direction) {
    ElementArray stops;
    CollectStops(stops);
    const INT_PTR count = stops.GetSize();
    if (count == 0) {
        return FALSE;
    }
    INT_PTR at = direction > 0 ? -1 : count;
    for (INT_PTR index = 0; index < count; ++index) {
        if (stops[index] == m_parts->pointer.GetHot()) {
            at = index;
        }
    }
    Highlight(stops[(at + direction + count) % count]);
    return TRUE;
}

// The nearest stop on that side; sideways distance counts double.
BOOL CMFCRibbonPanelMenuBar::StepTowards(UINT nChar) {
    if (m_parts->pointer.GetHot() == nullptr) {
        HighlightFirst();
        return TRUE;
    }
    ElementArray stops;
    CollectStops(stops);
    const CRect from = m_parts->pointer.GetHot()->GetRect();
    CMFCRibbonBaseElement* best = nullptr;
    int bestDistance = 0;
    for (INT_PTR index = 0; index < stops.GetSize(); ++index) {
        const CRect to = stops[index]->GetRect();
        if (stops[index] == m_parts->pointer.GetHot() || to.IsRectEmpty()) {
            continue;
        }
        const bool isVertical = nChar == VK_UP || nChar == VK_DOWN;
        const int along = nChar == VK_DOWN    ? to.top - from.bottom
                          : nChar == VK_UP    ? from.top - to.bottom
                          : nChar == VK_RIGHT ? to.left - from.right
                                              : from.left - to.right;
        const int across = isVertical ? std::abs(to.CenterPoint().x - from.CenterPoint().x)
                                      : std::abs(to.CenterPoint().y - from.CenterPoint().y);
        const int distance = along + 2 * across;
        if (along >= -1 && (best == nullptr || distance < bestDistance)) {
            best = stops[index];
            bestDistance = distance;
        }
    }
    if (best != nullptr) {
        Highlight(best);
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

// A key tip that fits acts at once; a first letter that several texts share walks through them.
BOOL CMFCRibbonPanelMenuBar::OnLetter(UINT nUpperChar) {
    ElementArray stops;
    CollectStops(stops);
    const auto letter = static_cast<wchar_t>(nUpperChar);
    std::vector<CMFCRibbonBaseElement*> byText;
    for (INT_PTR index = 0; index < stops.GetSize(); ++index) {
        CMFCRibbonBaseElement& element = *stops[index];
        if (RibbonPointer::TakesInput(element) && element.OnMenuKey(nUpperChar)) {
            return TRUE;
        }
        CString keys = *element.GetMenuKeys() != 0 ? element.GetMenuKeys() : element.GetKeys();
        if (keys.IsEmpty()) {
            keys = MnemonicOf(element.GetShownText());
        }
        if (keys.GetLength() == 1 && fx::UpperCase(keys[0]) == letter) {
            Highlight(&element);
            Activate(&element, Choice::Command);
            return TRUE;
        }
        const CString text = ribbon::PlainTextOf(element);
        if (keys.IsEmpty() && !text.IsEmpty() && fx::UpperCase(text[0]) == letter) {
            byText.push_back(&element);
        }
    }
    if (byText.empty()) {
        return FALSE;
    }
    const auto at = std::find(byText.begin(), byText.end(), m_parts->pointer.GetHot());
    CMFCRibbonBaseElement* next = at == byText.end() || at + 1 == byText.end() ? byText.front() : *(at + 1);
    Highlight(next);
    if (byText.size() == 1) {
        Activate(next, Choice::Command);
    }
    return TRUE;
}

// The focus in a ribbon bar: where it can stand, how keys move it, and what they do with the element that has it.
#include <algorithm>
#include <utility>

#include <imm.h>

#include "afxDockingManager.h"
#include "afxglobals.h"
#include "afxribbonbar.h"
#include "afxRibbonEdit.h"
#include "afxribbonpanelmenu.h"
#include "fx/frame.h"
#include "ribbon/bar_parts.h"
#include "ribbon/keyboard.h"

namespace {

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;
using Elements = std::vector<CMFCRibbonBaseElement*>;

bool CanStand(CMFCRibbonBaseElement& element) {
    return element.IsVisible() && element.IsTabStop() && !element.IsSeparator() && !element.GetRect().IsRectEmpty();
}

void AppendStops(const ElementArray& elements, Elements& stops) {
    for (INT_PTR place = 0; place < elements.GetSize(); ++place) {
        if (CanStand(*elements[place])) {
            stops.push_back(elements[place]);
        }
    }
}

void Join(Elements& to, const Elements& from) { to.insert(to.end(), from.begin(), from.end()); }

bool Contains(const Elements& elements, const CMFCRibbonBaseElement* element) {
    return std::find(elements.begin(), elements.end(), element) != elements.end();
}

ribbon::FocusStep StepOf(UINT key) {
    switch (key) {
    case VK_LEFT:
        return ribbon::FocusStep::Left;
    case VK_RIGHT:
        return ribbon::FocusStep::Right;
    case VK_UP:
        return ribbon::FocusStep::Up;
    default:
        return ribbon::FocusStep::Down;
    }
}

CMFCRibbonBaseElement* NeighbourOf(const Elements& stops, const CMFCRibbonBaseElement& from, ribbon::FocusStep step) {
    std::vector<RibbonRect> places;
    std::size_t start = stops.size();
    for (std::size_t place = 0; place < stops.size(); ++place) {
        const CRect rect = stops[place]->GetRect();
        places.push_back({static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
                          static_cast<int>(rect.bottom)});
        start = stops[place] == &from ? place : start;
    }
    const auto next = ribbon::FocusNeighbour(places, start, step);
    return next ? stops[*next] : nullptr;
}

bool CanTakeFocus(HWND window) { return ::IsWindow(window) && ::IsWindowVisible(window) && ::IsWindowEnabled(window); }

} // namespace

// ---- the system's focus

bool RibbonKeyboard::HoldsFocus() const {
    const HWND focus = ::GetFocus();
    return focus != nullptr && (focus == m_bar.GetSafeHwnd() || ::IsChild(m_bar.GetSafeHwnd(), focus));
}

// On its way from a pop-up back to the bar the focus passes through the frame, which is activated.
void RibbonKeyboard::OnFocusCame(HWND former) {
    const bool isOwn = former == m_bar.GetSafeHwnd() || ::IsChild(m_bar.GetSafeHwnd(), former);
    if (former != nullptr && !isOwn && !m_isMovingFocus) {
        m_formerFocus = former;
    }
}

void RibbonKeyboard::OnEditFocusCame(HWND former) {
    OnFocusCame(former);
    m_isActive = m_isActive || HoldsFocus();
}

bool RibbonKeyboard::TakeFocusBack() {
    if (!m_isActive) {
        return false;
    }
    const HWND window = m_bar.GetSafeHwnd();
    m_isMovingFocus = true;
    m_bar.SetFocus();
    if (::IsWindow(window)) {
        m_isMovingFocus = false;
    }
    return true;
}

void RibbonKeyboard::GiveFocusBack() {
    Deactivate(Focus::Leave);
    ReturnFocus();
}

void RibbonKeyboard::OnFocusWent(HWND next) {
    const bool stays = next != nullptr && (next == m_bar.GetSafeHwnd() || ::IsChild(m_bar.GetSafeHwnd(), next));
    const HWND popup = IsPopupOnTop() ? m_levels.back().window->GetSafeHwnd() : nullptr;
    const bool goesToPopup = next != nullptr && popup != nullptr && (next == popup || ::IsChild(popup, next));
    if (m_isActive && !m_isMovingFocus && !stays && !goesToPopup) {
        Deactivate(Focus::Leave);
    }
}

void RibbonKeyboard::Activate() {
    if (m_isActive || m_bar.GetSafeHwnd() == nullptr) {
        return;
    }
    m_bar.EnsureLayout();
    m_bar.PopTooltip();
    m_isActive = true;
    // Letters are for the tips, not for an input method.
    ::ImmAssociateContext(m_bar.GetSafeHwnd(), nullptr);
    if (::GetFocus() != m_bar.GetSafeHwnd()) {
        // The system tells the former focus to the window that gets it; an edit in the bar is none to return to.
        m_bar.SetFocus();
    }
    SetFocusTo(ActiveTab());
}

void RibbonKeyboard::Deactivate(Focus focus) {
    if (!m_isActive) {
        return;
    }
    m_isActive = false;
    m_isInList = false;
    m_areTipsShown = false;
    m_typed.clear();
    m_levels.clear();
    if (CMFCRibbonBaseElement* focused = m_bar.GetFocused()) {
        focused->SetFocused(FALSE);
    }
    m_bar.Invalidate(FALSE);
    if (focus == Focus::GiveBack) {
        ReturnFocus();
    }
}

// The loss of the focus may send an edit's command, which may end the bar.
void RibbonKeyboard::ReturnFocus() {
    if (!HoldsFocus() && !CMFCRibbonPanelMenu::IsPopupWindow(::GetFocus())) {
        return;
    }
    const HWND former = std::exchange(m_formerFocus, nullptr);
    const CWnd* frame = m_bar.GetTopLevelFrame();
    if (CanTakeFocus(former) && frame != nullptr && ::GetAncestor(former, GA_ROOT) == frame->GetSafeHwnd()) {
        ::SetFocus(former);
    } else if (frame != nullptr) {
        ::SetFocus(frame->GetSafeHwnd());
    }
}

void RibbonKeyboard::SetFocusTo(CMFCRibbonBaseElement* element) {
    CMFCRibbonBaseElement* former = m_bar.GetFocused();
    if (element == nullptr || former == element) {
        return;
    }
    const HWND window = m_bar.GetSafeHwnd();
    m_target = element;
    m_isMovingFocus = true;
    if (former != nullptr) {
        former->SetFocused(FALSE);
    }
    if (::GetFocus() != window) {
        m_bar.SetFocus();
    }
    if (!::IsWindow(window)) {
        return;
    }
    if (CMFCRibbonBaseElement* target = std::exchange(m_target, nullptr)) {
        target->SetFocused(TRUE);
    }
    m_isMovingFocus = false;
    m_bar.Invalidate(FALSE);
}

void RibbonKeyboard::DrawFocus(CDC& dc) const {
    CMFCRibbonBaseElement* focused = m_isActive && !m_areTipsShown ? m_bar.GetFocused() : nullptr;
    const auto* edit = DYNAMIC_DOWNCAST(CMFCRibbonEdit, focused);
    if (focused == nullptr || focused->GetRect().IsRectEmpty() || (edit != nullptr && edit->TakesTyping())) {
        return;
    }
    CRect rect = focused->GetRect();
    const int inset = afxGlobalData.ScalePixels(2);
    rect.DeflateRect(inset, inset);
    const COLORREF text = dc.SetTextColor(RGB(0, 0, 0));
    const COLORREF background = dc.SetBkColor(RGB(255, 255, 255));
    dc.DrawFocusRect(rect);
    dc.SetBkColor(background);
    dc.SetTextColor(text);
}

// ---- stops

RibbonKeyboard::Elements RibbonKeyboard::CaptionStops() const {
    RibbonBarParts& parts = *m_bar.m_parts;
    Elements stops;
    if (parts.applicationButton != nullptr && CanStand(*parts.applicationButton)) {
        stops.push_back(parts.applicationButton);
    }
    ElementArray commands;
    parts.quickAccess.GetElements(commands);
    AppendStops(commands, stops);
    for (CMFCRibbonBaseElement* button :
         {&parts.quickAccess.GetMoreButton(), &parts.quickAccess.GetCustomizeButton()}) {
        if (CanStand(*button) && !Contains(stops, button)) {
            stops.push_back(button);
        }
    }
    return stops;
}

RibbonKeyboard::Elements RibbonKeyboard::Tabs() const {
    Elements tabs;
    for (const auto& category : m_bar.m_parts->categories) {
        if (category->IsVisible() && !category->m_Tab.GetRect().IsRectEmpty()) {
            tabs.push_back(&category->m_Tab);
        }
    }
    return tabs;
}

RibbonKeyboard::Elements RibbonKeyboard::TabRowStops() const {
    Elements stops;
    for (const auto& element : m_bar.m_parts->tabElements) {
        ElementArray elements;
        element->GetElements(elements);
        AppendStops(elements, stops);
    }
    return stops;
}

// The scroll buttons are none: the walk scrolls by itself.
RibbonKeyboard::Elements RibbonKeyboard::CategoryStops() const {
    Elements stops;
    CMFCRibbonCategory* active = m_bar.GetActiveCategory();
    if (active == nullptr) {
        return stops;
    }
    ElementArray elements;
    active->GetVisibleElements(elements);
    AppendStops(elements, stops);
    std::erase_if(stops, [](CMFCRibbonBaseElement* element) {
        return element->IsKindOf(RUNTIME_CLASS(CRibbonCategoryScroll)) != FALSE;
    });
    return stops;
}

CMFCRibbonTab* RibbonKeyboard::ActiveTab() const {
    CMFCRibbonCategory* active = m_bar.GetActiveCategory();
    return active != nullptr ? &active->m_Tab : nullptr;
}

// ---- moves

// The category is asked first; what is in none is asked itself. A handler may end the bar.
bool RibbonKeyboard::HandKeyToFocused(UINT key) {
    CMFCRibbonBaseElement* focused = m_bar.GetFocused();
    if (focused == nullptr) {
        return false;
    }
    if (CMFCRibbonCategory* category = focused->GetParentPanel() != nullptr ? m_bar.GetActiveCategory() : nullptr) {
        return category->OnKey(key);
    }
    return !focused->IsKindOf(RUNTIME_CLASS(CMFCRibbonButton)) && focused->ProcessKey(key);
}

bool RibbonKeyboard::OnArrow(UINT key) {
    CMFCRibbonBaseElement* focused = m_bar.GetFocused();
    if (focused == nullptr) {
        SetFocusTo(ActiveTab());
        return true;
    }
    const ribbon::FocusStep step = StepOf(key);
    const bool isAcross = key == VK_LEFT || key == VK_RIGHT;
    if (auto* tab = DYNAMIC_DOWNCAST(CMFCRibbonTab, focused)) {
        if (isAcross && MoveAmongTabs(*tab, key == VK_LEFT ? -1 : 1)) {
            return true;
        }
        if (key == VK_DOWN) {
            EnterCategory(*tab);
            return true;
        }
    } else if (Contains(CategoryStops(), focused)) {
        if (MoveInCategory(*focused, step)) {
            return true;
        }
        if (key == VK_UP) {
            SetFocusTo(ActiveTab());
            return true;
        }
    }
    if (!MoveAnywhere(*focused, step) && key == VK_DOWN && Contains(CaptionStops(), focused)) {
        const CMFCRibbonTab* tab = ActiveTab();
        if (tab != nullptr && tab->GetRect().top >= focused->GetRect().bottom) {
            SetFocusTo(ActiveTab());
        }
    }
    return true;
}

bool RibbonKeyboard::MoveAmongTabs(CMFCRibbonTab& tab, int step) {
    const Elements tabs = Tabs();
    const auto place = std::find(tabs.begin(), tabs.end(), &tab) - tabs.begin() + step;
    if (place < 0 || place >= static_cast<std::ptrdiff_t>(tabs.size())) {
        return false;
    }
    auto& next = static_cast<CMFCRibbonTab&>(*tabs[static_cast<std::size_t>(place)]);
    const HWND window = m_bar.GetSafeHwnd();
    m_target = &next;
    ChooseTab(next);
    if (::IsWindow(window) && m_isActive) {
        SetFocusTo(std::exchange(m_target, nullptr));
    }
    return true;
}

// The owner hears of the choice and may end the bar.
void RibbonKeyboard::ChooseTab(CMFCRibbonTab& tab) {
    CMFCRibbonCategory* category = tab.GetParentCategory();
    if (category->IsActive() || !m_bar.SetActiveCategory(category)) {
        return;
    }
    m_bar.EnsureLayout();
    m_bar.NotifyCategoryChanged();
}

void RibbonKeyboard::EnterCategory(CMFCRibbonTab& tab) {
    const Elements stops = CategoryStops();
    if (!stops.empty()) {
        SetFocusTo(stops.front());
        return;
    }
    // Minimised: the tab shows its panels as a press on it does.
    const HWND window = m_bar.GetSafeHwnd();
    tab.OnLButtonDown(tab.GetRect().CenterPoint());
    if (::IsWindow(window) && !IsPopupOnTop()) {
        if (const Elements shown = CategoryStops(); !shown.empty()) {
            SetFocusTo(shown.front());
        }
    }
}

// Across the end of what is in view the category scrolls on.
bool RibbonKeyboard::MoveInCategory(CMFCRibbonBaseElement& from, ribbon::FocusStep step) {
    if (CMFCRibbonBaseElement* next = NeighbourOf(CategoryStops(), from, step)) {
        SetFocusTo(next);
        return true;
    }
    CMFCRibbonCategory& category = *m_bar.GetActiveCategory();
    const bool goesLeft = step == ribbon::FocusStep::Left;
    const CRibbonCategoryScroll& scroll = goesLeft ? category.m_ScrollLeft : category.m_ScrollRight;
    const bool isAcross = goesLeft || step == ribbon::FocusStep::Right;
    if (!isAcross || scroll.GetRect().IsRectEmpty() || !category.OnScrollHorz(goesLeft)) {
        return false;
    }
    const Elements stops = CategoryStops();
    CMFCRibbonBaseElement* next = NeighbourOf(stops, from, step);
    if (next == nullptr && !stops.empty()) {
        next = goesLeft ? stops.front() : stops.back();
    }
    SetFocusTo(next);
    return true;
}

bool RibbonKeyboard::MoveAnywhere(const CMFCRibbonBaseElement& from, ribbon::FocusStep step) {
    Elements stops = CaptionStops();
    if (CMFCRibbonTab* tab = ActiveTab()) {
        stops.push_back(tab);
    }
    Join(stops, TabRowStops());
    Join(stops, CategoryStops());
    if (!Contains(stops, &from)) {
        return false;
    }
    CMFCRibbonBaseElement* next = NeighbourOf(stops, from, step);
    SetFocusTo(next);
    return next != nullptr;
}

// The tabs are one stop: Tab goes through the bar, arrows go through the tabs.
void RibbonKeyboard::MoveInOrder(bool forward) {
    Elements stops = CaptionStops();
    if (CMFCRibbonTab* tab = ActiveTab()) {
        stops.push_back(tab);
    }
    Join(stops, CategoryStops());
    Join(stops, TabRowStops());
    if (stops.empty()) {
        return;
    }
    const std::size_t count = stops.size();
    const auto found = std::find(stops.begin(), stops.end(), m_bar.GetFocused());
    const std::size_t place = found != stops.end() ? static_cast<std::size_t>(found - stops.begin()) : 0;
    SetFocusTo(stops[(place + (forward ? 1 : count - 1)) % count]);
}

void RibbonKeyboard::MoveToEnd(bool last) {
    CMFCRibbonBaseElement* focused = m_bar.GetFocused();
    if (focused == nullptr) {
        return;
    }
    for (const Elements& stops : {CategoryStops(), Tabs(), CaptionStops(), TabRowStops()}) {
        if (!Contains(stops, focused)) {
            continue;
        }
        CMFCRibbonBaseElement* end = last ? stops.back() : stops.front();
        if (auto* tab = DYNAMIC_DOWNCAST(CMFCRibbonTab, end)) {
            const HWND window = m_bar.GetSafeHwnd();
            m_target = tab;
            ChooseTab(*tab);
            if (!::IsWindow(window) || !m_isActive) {
                return;
            }
            end = std::exchange(m_target, nullptr);
        }
        SetFocusTo(end);
        return;
    }
}

// The next of the frame's panes, or the document; without panes what had the focus before.
void RibbonKeyboard::GoToNextPane(bool forward) {
    auto* frame = DYNAMIC_DOWNCAST(CFrameWnd, m_bar.GetTopLevelFrame());
    if (CDockingManager* manager = frame != nullptr ? frame->FindDockingManager() : nullptr) {
        manager->RememberDocumentFocus(m_formerFocus);
        m_formerFocus = manager->FindNextFocus(m_bar.GetSafeHwnd(), forward);
    }
    Deactivate(Focus::GiveBack);
}

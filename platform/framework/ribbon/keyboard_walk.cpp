// How keys move the focus of a ribbon bar.
#include <algorithm>

#include "afxDockingManager.h"
#include "afxribbonbar.h"
#include "fx/frame.h"
#include "fx/window_guard.h"
#include "ribbon/keyboard.h"

using ribbon::FocusStep;

namespace {

bool IsAcross(FocusStep step) { return step == FocusStep::Left || step == FocusStep::Right; }

} // namespace

// ---- arrows

void RibbonKeyboard::MoveByArrow(UINT key) {
    if (CMFCRibbonBaseElement* focused = m_bar.GetFocused()) {
        MoveFrom(*focused, RibbonFocusStops::StepOf(key));
    } else {
        SetFocusTo(m_stops.ActiveTab());
    }
}

void RibbonKeyboard::MoveFrom(CMFCRibbonBaseElement& focused, FocusStep step) {
    auto* tab = DYNAMIC_DOWNCAST(CMFCRibbonTab, &focused);
    if (tab != nullptr && MoveFromTab(*tab, step)) {
        return;
    }
    if (tab == nullptr && RibbonFocusStops::Contains(m_stops.Category(), &focused)) {
        if (MoveInCategory(focused, step)) {
            return;
        }
        if (step == FocusStep::Up) {
            SetFocusTo(m_stops.ActiveTab());
            return;
        }
    }
    MoveAnywhere(focused, step);
}

bool RibbonKeyboard::MoveFromTab(CMFCRibbonTab& tab, FocusStep step) {
    if (step == FocusStep::Down) {
        EnterCategory(tab);
        return true;
    }
    return IsAcross(step) && MoveAmongTabs(tab, step == FocusStep::Left ? -1 : 1);
}

bool RibbonKeyboard::MoveAmongTabs(CMFCRibbonTab& tab, int step) {
    const Elements tabs = m_stops.Tabs();
    const auto place = std::find(tabs.begin(), tabs.end(), &tab) - tabs.begin() + step;
    if (place < 0 || place >= static_cast<std::ptrdiff_t>(tabs.size())) {
        return false;
    }
    auto& next = static_cast<CMFCRibbonTab&>(*tabs[static_cast<std::size_t>(place)]);
    if (CMFCRibbonBaseElement* chosen = SurvivorOf(next, [this, &next] { ChooseTab(next); })) {
        SetFocusTo(chosen);
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
    const Elements stops = m_stops.Category();
    if (!stops.empty()) {
        SetFocusTo(stops.front());
        return;
    }
    // Minimised: the tab shows its panels as a press on it does.
    const fx::WindowGuard guard(&m_bar);
    tab.OnLButtonDown(tab.GetRect().CenterPoint());
    if (guard.IsGone() || m_levels.GetPopup() != nullptr) {
        return;
    }
    if (const Elements shown = m_stops.Category(); !shown.empty()) {
        SetFocusTo(shown.front());
    }
}

bool RibbonKeyboard::MoveInCategory(CMFCRibbonBaseElement& from, FocusStep step) {
    if (CMFCRibbonBaseElement* next = RibbonFocusStops::NeighbourOf(m_stops.Category(), from, step)) {
        SetFocusTo(next);
        return true;
    }
    return IsAcross(step) && ScrollOn(from, step);
}

// Across the end of what is in view the category scrolls on.
bool RibbonKeyboard::ScrollOn(CMFCRibbonBaseElement& from, FocusStep step) {
    CMFCRibbonCategory& category = *m_bar.GetActiveCategory();
    const BOOL goesLeft = step == FocusStep::Left;
    if (!category.HasScrollButton(goesLeft) || !category.OnScrollHorz(goesLeft)) {
        return false;
    }
    const Elements stops = m_stops.Category();
    CMFCRibbonBaseElement* next = RibbonFocusStops::NeighbourOf(stops, from, step);
    if (next == nullptr && !stops.empty()) {
        next = goesLeft ? stops.front() : stops.back();
    }
    SetFocusTo(next);
    return true;
}

// Below the caption lie the tabs, also where none lies straight below.
void RibbonKeyboard::MoveAnywhere(const CMFCRibbonBaseElement& from, FocusStep step) {
    const Elements stops = m_stops.InOrder();
    if (RibbonFocusStops::Contains(stops, &from)) {
        if (CMFCRibbonBaseElement* next = RibbonFocusStops::NeighbourOf(stops, from, step)) {
            SetFocusTo(next);
            return;
        }
    }
    CMFCRibbonTab* tab = m_stops.ActiveTab();
    if (step == FocusStep::Down && tab != nullptr && RibbonFocusStops::Contains(m_stops.Caption(), &from) &&
        tab->GetRect().top >= from.GetRect().bottom) {
        SetFocusTo(tab);
    }
}

// ---- Tab, Home, End and F6

void RibbonKeyboard::MoveInOrder(bool forward) {
    const Elements stops = m_stops.InOrder();
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
    const Elements stops = focused != nullptr ? m_stops.RowOf(*focused) : Elements();
    if (stops.empty()) {
        return;
    }
    CMFCRibbonBaseElement* end = last ? stops.back() : stops.front();
    if (auto* tab = DYNAMIC_DOWNCAST(CMFCRibbonTab, end)) {
        end = SurvivorOf(*tab, [this, tab] { ChooseTab(*tab); });
        if (end == nullptr) {
            return;
        }
    }
    SetFocusTo(end);
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

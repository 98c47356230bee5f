#pragma once

#include <windows.h>

#include <vector>

#include "ribbon/focus_walk.h"

class CMFCRibbonBar;
class CMFCRibbonBaseElement;
class CMFCRibbonTab;
struct RibbonBarParts;

/// Where the keyboard's focus can stand in a ribbon bar, as the bar is laid out now. Asked anew at each step.
class RibbonFocusStops {
public:
    using Elements = std::vector<CMFCRibbonBaseElement*>;

    RibbonFocusStops(CMFCRibbonBar& bar, RibbonBarParts& parts) : m_bar(bar), m_parts(parts) {}

    /// Application button and quick access toolbar.
    Elements Caption() const;
    Elements Tabs() const;
    /// What stands beside the tabs.
    Elements TabRow() const;
    /// The active category's elements, without the buttons that scroll it: the walk scrolls by itself.
    Elements Category() const;
    /// Null without an active category.
    CMFCRibbonTab* ActiveTab() const;

    /// All of them as Tab goes through them; the tabs are one stop.
    Elements InOrder() const;
    /// The stops among which the element stands; empty when it is none.
    Elements RowOf(const CMFCRibbonBaseElement& element) const;

    /// Of an arrow key.
    static ribbon::FocusStep StepOf(UINT key);
    static bool Contains(const Elements& stops, const CMFCRibbonBaseElement* element);
    /// The stop that an arrow leads to; null when there is none in that direction.
    static CMFCRibbonBaseElement* NeighbourOf(const Elements& stops, const CMFCRibbonBaseElement& from,
                                              ribbon::FocusStep step);

private:
    CMFCRibbonBar& m_bar;
    RibbonBarParts& m_parts;
};

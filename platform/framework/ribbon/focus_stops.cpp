#include "ribbon/focus_stops.h"

#include <algorithm>

#include "afxribbonbar.h"
#include "ribbon/bar_parts.h"

namespace {

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;
using Elements = RibbonFocusStops::Elements;

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

} // namespace

ribbon::FocusStep RibbonFocusStops::StepOf(UINT key) {
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

bool RibbonFocusStops::Contains(const Elements& stops, const CMFCRibbonBaseElement* element) {
    return std::find(stops.begin(), stops.end(), element) != stops.end();
}

CMFCRibbonBaseElement* RibbonFocusStops::NeighbourOf(const Elements& stops, const CMFCRibbonBaseElement& from,
                                                     ribbon::FocusStep step) {
    std::vector<fx::Rect> places;
    std::size_t start = stops.size();
    for (std::size_t place = 0; place < stops.size(); ++place) {
        places.push_back(fx::FromRect(stops[place]->GetRect()));
        start = stops[place] == &from ? place : start;
    }
    const auto next = ribbon::FocusNeighbour(places, start, step);
    return next ? stops[*next] : nullptr;
}

Elements RibbonFocusStops::Caption() const {
    Elements stops;
    if (m_parts.applicationButton != nullptr && CanStand(*m_parts.applicationButton)) {
        stops.push_back(m_parts.applicationButton);
    }
    ElementArray commands;
    m_parts.quickAccess.GetElements(commands);
    AppendStops(commands, stops);
    for (CMFCRibbonBaseElement* button :
         {&m_parts.quickAccess.GetMoreButton(), &m_parts.quickAccess.GetCustomizeButton()}) {
        if (CanStand(*button) && !Contains(stops, button)) {
            stops.push_back(button);
        }
    }
    return stops;
}

Elements RibbonFocusStops::Tabs() const {
    Elements tabs;
    for (const auto& category : m_parts.categories) {
        if (category->IsVisible() && !category->GetTabRect().IsRectEmpty()) {
            tabs.push_back(&category->GetTab());
        }
    }
    return tabs;
}

Elements RibbonFocusStops::TabRow() const {
    Elements stops;
    ElementArray own;
    m_bar.GetBarElements(own);
    ElementArray elements;
    for (INT_PTR place = 0; place < own.GetSize(); ++place) {
        own[place]->GetElements(elements);
    }
    AppendStops(elements, stops);
    return stops;
}

Elements RibbonFocusStops::Category() const {
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

CMFCRibbonTab* RibbonFocusStops::ActiveTab() const {
    CMFCRibbonCategory* active = m_bar.GetActiveCategory();
    return active != nullptr ? &active->GetTab() : nullptr;
}

Elements RibbonFocusStops::InOrder() const {
    Elements stops = Caption();
    if (CMFCRibbonTab* tab = ActiveTab()) {
        stops.push_back(tab);
    }
    Join(stops, Category());
    Join(stops, TabRow());
    return stops;
}

Elements RibbonFocusStops::RowOf(const CMFCRibbonBaseElement& element) const {
    for (const Elements& stops : {Category(), Tabs(), Caption(), TabRow()}) {
        if (Contains(stops, &element)) {
            return stops;
        }
    }
    return {};
}

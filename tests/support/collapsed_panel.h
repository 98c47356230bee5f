#pragma once

#include "tests/support/pointer.h"
#include "tests/support/ribbon_host.h"

#include <functional>
#include <stdexcept>

/// Narrows a bar until that panel of the category, which takes all its sizes before any other does, is a button. The
/// width is in pixels. Throws when the panel never collapses.
inline CMFCRibbonPanel& CollapsePanel(CMFCRibbonCategory& category, int index,
                                      const std::function<void(int width)>& setWidth) {
    CArray<int, int> order;
    for (int step = 0; step < 3; ++step) {
        order.Add(index);
    }
    category.SetCollapseOrder(order);
    CMFCRibbonPanel& panel = *category.GetPanel(index);
    for (int width = 900; width > 100 && !panel.IsCollapsed(); width -= 20) {
        setWidth(width);
    }
    if (!panel.IsCollapsed()) {
        throw std::runtime_error("the panel never collapses");
    }
    return panel;
}

/// Collapses the host's panel beside another one that takes the room, and clicks what is left of it: its elements are
/// in a pop-up then.
inline void OpenCollapsedPanel(RibbonHost& host, Pointer& pointer) {
    CMFCRibbonCategory& category = *host.Bar().GetCategory(0);
    CMFCRibbonPanel& other = *category.AddPanel(L"Other");
    for (UINT i = 0; i < 6; ++i) {
        other.Add(new CMFCRibbonButton(900 + i, L"A button with a long text"));
    }
    host.LayOut();
    CMFCRibbonPanel& panel = CollapsePanel(category, 0, [&host](int width) {
        host.Frame().SetWindowPos(nullptr, 0, 0, width, 400, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        PumpPending();
    });
    pointer.Click(host.BarWindow(), panel.GetDefaultButton().GetRect().CenterPoint());
    PumpPending();
}

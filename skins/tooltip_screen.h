#pragma once

#include <atltypes.h>

/// A length at 96 DPI in pixels of the ribbon's scale.
int ScaledForDisplay(int length);

/// What a tooltip asks of the screen to find its place. Tests put monitors of their own in its place.
class TooltipScreen {
public:
    TooltipScreen() = default;
    TooltipScreen(const TooltipScreen&) = delete;
    TooltipScreen& operator=(const TooltipScreen&) = delete;
    virtual ~TooltipScreen() = default;

    /// Of the monitor that has the point, or the nearest one; the desktop's where the system knows of no monitor.
    virtual CRect WorkAreaAt(CPoint point) const;
    virtual CPoint Pointer() const;
    virtual int PointerHeight() const;

    /// The one in use, the system's at first. User-interface thread only.
    static const TooltipScreen& Get();
    /// Null: the system's. Not owned.
    static void Use(const TooltipScreen* screen);
};

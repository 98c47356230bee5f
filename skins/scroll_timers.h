#pragma once

#include <afxwin.h>

/// Starts and stops the timers of scroll bars, which come as WM_TIMER. Tests put a clock of their own in its place.
class ScrollTimers {
public:
    ScrollTimers() = default;
    ScrollTimers(const ScrollTimers&) = delete;
    ScrollTimers& operator=(const ScrollTimers&) = delete;
    virtual ~ScrollTimers() = default;

    virtual void Start(CWnd& bar, UINT_PTR id, UINT milliseconds) { bar.SetTimer(id, milliseconds, nullptr); }
    virtual void Stop(CWnd& bar, UINT_PTR id) { bar.KillTimer(id); }

    /// Those in use, the system's at first. User-interface thread only.
    static ScrollTimers& Get();
    /// Null: the system's. Not owned.
    static void Use(ScrollTimers* timers);
};

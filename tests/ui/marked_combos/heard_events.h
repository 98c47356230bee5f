#pragma once

#include "tests/support/message_pump.h"

#include <gtest/gtest.h>
#include <oleacc.h>

#include <algorithm>
#include <utility>
#include <vector>

/// Hears what a window tells assistive programs of the elements inside of it; one object at a time.
class HeardEvents {
public:
    explicit HeardEvents(HWND window) {
        s_window = window;
        s_events.clear();
        m_hook = ::SetWinEventHook(EVENT_OBJECT_CREATE, EVENT_OBJECT_END, nullptr, &OnEvent, ::GetCurrentProcessId(),
                                   ::GetCurrentThreadId(), WINEVENT_OUTOFCONTEXT);
        EXPECT_NE(m_hook, nullptr);
    }
    ~HeardEvents() { ::UnhookWinEvent(m_hook); }
    HeardEvents(const HeardEvents&) = delete;
    HeardEvents& operator=(const HeardEvents&) = delete;

    /// How often the event came since the last call of this.
    int CountOf(DWORD event) {
        PumpPending();
        return static_cast<int>(std::ranges::count(std::exchange(s_events, {}), event));
    }

private:
    static void CALLBACK OnEvent(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD, DWORD) {
        if (window == s_window && object == OBJID_CLIENT && child != CHILDID_SELF) {
            s_events.push_back(event);
        }
    }

    static inline HWND s_window = nullptr;
    static inline std::vector<DWORD> s_events;
    HWINEVENTHOOK m_hook;
};

#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/ui/ribbon_access/accessible.h"

/// Listens to the events of a ribbon bar as an assistive program does; one object at a time.
class RibbonEvents {
public:
    explicit RibbonEvents(CMFCRibbonBar& bar) {
        s_bar = bar.GetSafeHwnd();
        s_events.clear();
        m_hook = ::SetWinEventHook(EVENT_OBJECT_CREATE, EVENT_OBJECT_END, nullptr, &OnEvent, ::GetCurrentProcessId(),
                                   ::GetCurrentThreadId(), WINEVENT_OUTOFCONTEXT);
        EXPECT_NE(m_hook, nullptr);
    }
    ~RibbonEvents() { ::UnhookWinEvent(m_hook); }
    RibbonEvents(const RibbonEvents&) = delete;
    RibbonEvents& operator=(const RibbonEvents&) = delete;

    /// The names of the objects that had such an event since the last call.
    std::vector<std::wstring> NamesOf(DWORD event) {
        PumpPending();
        std::vector<std::wstring> names;
        for (const auto& [kind, child] : std::exchange(s_events, {})) {
            if (kind != event) {
                continue;
            }
            IAccessible* object = nullptr;
            VARIANT inside;
            EXPECT_EQ(::AccessibleObjectFromEvent(s_bar, static_cast<DWORD>(OBJID_CLIENT), static_cast<DWORD>(child),
                                                  &object, &inside),
                      S_OK);
            names.push_back(Accessible(object, inside.lVal).Name());
        }
        return names;
    }

private:
    static void CALLBACK OnEvent(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD, DWORD) {
        if (window == s_bar && object == OBJID_CLIENT) {
            s_events.emplace_back(event, child);
        }
    }

    static inline HWND s_bar = nullptr;
    static inline std::vector<std::pair<DWORD, LONG>> s_events;
    HWINEVENTHOOK m_hook;
};

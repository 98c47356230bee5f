#pragma once

#include <windows.h>

#include <array>
#include <chrono>
#include <cstddef>
#include <memory>
#include <mutex>
#include <type_traits>
#include <vector>

/// The last messages that one thread took from its queue, for finding out from another thread what it is busy with. Not
/// those that windows send each other: there are many times as many, and listening to them would slow the thread down
/// by half. One of them at a time.
class LastMessages {
public:
    struct Entry {
        std::chrono::system_clock::time_point when;
        UINT message = 0;
        WPARAM wParam = 0;
        LPARAM lParam = 0;
        std::array<char, 24> windowClass = {}; ///< Its beginning; ends with a NUL.
    };

    /// Listens to the thread that makes this, until this is destroyed, which may be done by any thread.
    LastMessages();
    ~LastMessages();
    LastMessages(const LastMessages&) = delete;
    LastMessages& operator=(const LastMessages&) = delete;

    /// The oldest one first. From any thread.
    std::vector<Entry> Copy() const;

private:
    struct HookRemover {
        void operator()(HHOOK hook) const { ::UnhookWindowsHookEx(hook); }
    };
    using Hook = std::unique_ptr<std::remove_pointer_t<HHOOK>, HookRemover>;

    static LRESULT CALLBACK OnTaken(int code, WPARAM wParam, LPARAM lParam);
    void Add(const MSG& message);

    static LastMessages* s_listening;

    mutable std::mutex m_mutex;
    std::array<Entry, 24> m_entries = {};
    std::size_t m_count = 0; ///< Of all so far; those beyond the array's size have overwritten the first ones.
    Hook m_taken;
};

#include "last_messages.h"

#include <algorithm>

LastMessages* LastMessages::s_listening = nullptr;

LastMessages::LastMessages() : m_taken(::SetWindowsHookExW(WH_GETMESSAGE, OnTaken, nullptr, ::GetCurrentThreadId())) {
    s_listening = this;
}

LastMessages::~LastMessages() { s_listening = nullptr; }

LRESULT CALLBACK LastMessages::OnTaken(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && wParam == PM_REMOVE && s_listening != nullptr) {
        const auto& taken = *reinterpret_cast<const MSG*>(lParam);
        s_listening->Add(taken);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

void LastMessages::Add(const MSG& message) {
    if (message.message == WM_NULL) { // the question of whoever watches
        return;
    }
    const std::scoped_lock lock(m_mutex);
    Entry& entry = m_entries[m_count++ % m_entries.size()];
    entry.when = std::chrono::system_clock::now();
    entry.message = message.message;
    entry.wParam = message.wParam;
    entry.lParam = message.lParam;
    entry.windowClass = {};
    ::GetClassNameA(message.hwnd, entry.windowClass.data(), static_cast<int>(entry.windowClass.size()));
}

std::vector<LastMessages::Entry> LastMessages::Copy() const {
    const std::scoped_lock lock(m_mutex);
    const std::size_t kept = std::min(m_count, m_entries.size());
    std::vector<Entry> entries;
    for (std::size_t i = m_count - kept; i < m_count; ++i) {
        entries.push_back(m_entries[i % m_entries.size()]);
    }
    return entries;
}

#pragma once

#include <algorithm>
#include <cstdint>
#include <string>

// What is typed into a list goes to the next row that begins with it; pure functions.
namespace toolbar {

/// The characters typed in a row, without a pause between them.
class TypeAhead {
public:
    static constexpr std::uint64_t pause = 1000; ///< milliseconds

    bool IsGoingOn(std::uint64_t now) const { return !m_typed.empty() && now - m_last <= pause; }
    void Forget() { m_typed.clear(); }

    /// The row to go to, or -1. startsWith(row, text) answers in any case of letters. current: the hot row or -1. One
    /// letter again and again walks through the rows that begin with it, unless one begins with all of them.
    template <class StartsWith>
    int Type(wchar_t character, std::uint64_t now, int current, int count, StartsWith startsWith) {
        const bool goesOn = IsGoingOn(now);
        if (!goesOn) {
            m_typed.clear();
        }
        m_typed += character;
        m_last = now;
        const int here = std::max(current, 0);
        const int found = Find(goesOn ? here : current + 1, count, m_typed, startsWith);
        const bool isOneLetter = m_typed.find_first_not_of(character) == std::wstring::npos;
        return found >= 0 || !goesOn || !isOneLetter ? found
                                                     : Find(current + 1, count, std::wstring(1, character), startsWith);
    }

private:
    template <class StartsWith>
    static int Find(int from, int count, const std::wstring& text, StartsWith startsWith) {
        for (int step = 0; step < count; ++step) {
            const int row = (from + step) % count;
            if (startsWith(row, text)) {
                return row;
            }
        }
        return -1;
    }

    std::wstring m_typed;
    std::uint64_t m_last = 0;
};

} // namespace toolbar

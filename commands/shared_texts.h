#pragma once

#include <afxwin.h>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

/// Texts that are made from a text and a number again and again, as those of thousands of buttons with the same few
/// pictures are: equal ones share their memory. It keeps the last few hundred; a text that somebody holds is his own.
/// For one thread.
class SharedTexts {
public:
    /// What `make` answers for the two, now or at an earlier call.
    template <class Make>
    CString Get(std::wstring_view text, int number, Make&& make) {
        const auto found = m_texts.find(Asked{text, number});
        if (found != m_texts.end()) {
            return found->second;
        }
        if (m_texts.size() >= kMost) {
            m_texts.clear();
        }
        return m_texts.emplace(Key{std::wstring(text), number}, std::forward<Make>(make)()).first->second;
    }

private:
    struct Asked {
        std::wstring_view text;
        int number;
        bool operator==(const Asked&) const = default;
    };
    struct Key {
        std::wstring text;
        int number;
        operator Asked() const { return {text, number}; } // NOLINT(google-explicit-constructor)
    };
    // Both take either, so that nothing is copied to look a text up.
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(const Asked& asked) const {
            return std::hash<std::wstring_view>()(asked.text) + static_cast<std::size_t>(asked.number);
        }
    };
    struct AreEqual {
        using is_transparent = void;
        bool operator()(const Asked& a, const Asked& b) const { return a == b; }
    };

    static constexpr std::size_t kMost = 512;

    std::unordered_map<Key, CString, Hash, AreEqual> m_texts;
};

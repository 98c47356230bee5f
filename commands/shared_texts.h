#pragma once

#include <afxwin.h>

#include <cstddef>
#include <map>
#include <utility>

/// Texts that are made from a key again and again, as those of thousands of buttons with the same few pictures are:
/// equal ones share their memory. It keeps the last few hundred; a text that somebody holds is his own. For one thread.
template <class Key>
class SharedTexts {
public:
    /// What `make` answers for the key, now or at an earlier call.
    template <class Make>
    CString Get(const Key& key, Make&& make) {
        const auto found = m_texts.find(key);
        if (found != m_texts.end()) {
            return found->second;
        }
        if (m_texts.size() >= kMost) {
            m_texts.clear();
        }
        return m_texts.emplace(key, std::forward<Make>(make)()).first->second;
    }

private:
    static constexpr std::size_t kMost = 512;

    std::map<Key, CString> m_texts;
};

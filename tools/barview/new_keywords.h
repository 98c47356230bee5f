#pragma once

#include "kept_command_ids.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>

/// Fills a set with the keywords that are registered as long as it lives.
class NewKeywords {
public:
    explicit NewKeywords(std::set<std::wstring>& keywords)
        : m_keywords(keywords), m_before(CKeptCommandIds::RegisteredKeywords()) {}
    ~NewKeywords() {
        m_keywords.clear();
        std::ranges::set_difference(CKeptCommandIds::RegisteredKeywords(), m_before,
                                    std::inserter(m_keywords, m_keywords.end()));
    }
    NewKeywords(const NewKeywords&) = delete;
    NewKeywords& operator=(const NewKeywords&) = delete;

private:
    std::set<std::wstring>& m_keywords;
    std::set<std::wstring> m_before;
};

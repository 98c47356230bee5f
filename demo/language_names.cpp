#include "language_names.h"

#include "varnhold/strings.h"

#include <algorithm>

void LanguageNames::Read() {
    m_sections.clear();
    for (const std::wstring& language : CMultiLanguageMgr::Languages()) {
        if (CMultiLanguageMgr::SetLanguage(language)) {
            m_sections[language] = std::make_unique<CTranslationSection>("RibbonBarCfg"); // stays in that language
        }
    }
}

std::vector<std::wstring> LanguageNames::OtherNames(const std::wstring& keyword, const std::wstring& language) const {
    std::vector<std::wstring> names;
    const std::string key = wstring2String(keyword);
    for (const auto& [code, section] : m_sections) {
        const std::wstring* const name = code != language ? section->Find(key, -1) : nullptr;
        if (name != nullptr && std::find(names.begin(), names.end(), *name) == names.end()) {
            names.push_back(*name);
        }
    }
    return names;
}

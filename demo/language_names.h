#pragma once

#include "varnhold/language.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

/// What commands are called in every installed language, for those who look for a name that is not shown.
class LanguageNames {
public:
    /// Reads the tables of all languages, one after the other; whoever calls it sets a language afterwards. One that
    /// cannot be read is left out.
    void Read();
    /// The names of the command in all languages but this one, each once.
    std::vector<std::wstring> OtherNames(const std::wstring& keyword, const std::wstring& language) const;

private:
    std::map<std::wstring, std::unique_ptr<CTranslationSection>> m_sections;
};

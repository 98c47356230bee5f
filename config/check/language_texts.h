#pragma once

#include "config/check/installation_files.h"
#include "config/diagnostics.h"

#include <map>
#include <string>
#include <vector>

/// A text of a translation table, and where it stands.
struct PlacedText {
    std::wstring text;
    std::wstring file;
    varnhold::TextPosition position;
};

/// The texts of one language.
struct LanguageTexts {
    std::wstring code;
    /// False: one of its tables is broken, and then the language is not used.
    bool isUsable = true;
    /// Of the section of commands, by key.
    std::map<std::wstring, PlacedText> commands;
};

/// Reads the tables of all languages, or of `only` one, and reports what is wrong with them by themselves: xml-syntax
/// and its like, bad-table, duplicate-text, untranslated-text; missing-file for a language that is not there.
std::vector<LanguageTexts> ReadLanguages(const InstallationFiles& files, const std::wstring& only,
                                         DiagnosticsSink& sink);

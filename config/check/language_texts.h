#pragma once

#include "config/check/installation_files.h"
#include "config/diagnostics.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// The files of a folder.
using FolderStamp = std::vector<std::pair<std::wstring, FileStamp>>;

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
    /// Files of it that nobody reads lie beside its tables, which was reported: what is missing may be there.
    bool hasUnread = false;
    /// A section of it is lost, which was reported: what is missing may be there.
    bool hasLostSection = false;
    /// How many of its units have no key, which was reported: so many texts may seem missing.
    std::size_t lostUnits = 0;
    /// Of the section of commands, by key.
    std::map<std::wstring, PlacedText> commands;
    /// Keys of units that were left out, which was reported.
    std::set<std::wstring> leftOut;
    /// The first text of each other section, by the section's name.
    std::map<std::wstring, PlacedText> otherSections;
};

/// Reads the tables of all languages, or of `only` one, and reports what is wrong with them by themselves: xml-syntax
/// and its like, bad-table, duplicate-text, untranslated-text; missing-file for a language that is not there.
std::vector<LanguageTexts> ReadLanguages(const InstallationFiles& files, const std::wstring& only,
                                         DiagnosticsSink& sink);

/// How the files of that language are: as long as it is the same ReadLanguages gives the same texts. Nothing where this
/// cannot be told.
std::optional<FolderStamp> StampOfLanguage(const InstallationFiles& files, const std::wstring& language);

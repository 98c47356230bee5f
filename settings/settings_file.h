#pragma once

#include "settings/kept_settings.h"

#include <string_view>

/// The text form of kept settings, UTF-8. Made for people to read; the same settings give the same text.
std::string WriteSettings(const KeptSettings& settings);

/// Nothing for a text that is no settings file. Elements and attributes that are not known are passed over.
std::optional<KeptSettings> ReadSettings(std::string_view text);

/// A file and, beside it, the last good one.
class SettingsFile {
public:
    enum class Source { Nowhere, File, LastGood, Damaged };

    explicit SettingsFile(std::wstring path) : m_path(std::move(path)) {}

    Source Load(KeptSettings& settings) const;
    /// Whole or not at all: a text that could not be written to its end never takes the file's place.
    bool Save(const KeptSettings& settings) const;

private:
    std::wstring m_path;
};

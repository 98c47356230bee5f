#pragma once

#include <string>

/// The folder of the made-up language below lang.
inline constexpr wchar_t kPseudoLanguage[] = L"qps-ploc";

/// A text as a translation may make it: a third longer, with marks above its letters, in brackets that show where it is
/// cut off. What stands behind "&", and words in braces or with "%", stay as they are.
std::wstring PseudoText(const std::wstring& text);

/// A directory of its own with all files of an installation, except its programs and its tables, and with a table of
/// the made-up language, made from those of `language`. Gone with the object.
class PseudoInstallation {
public:
    /// `directory`: with its closing separator.
    PseudoInstallation(const std::wstring& directory, const std::wstring& language);
    ~PseudoInstallation();
    PseudoInstallation(const PseudoInstallation&) = delete;
    PseudoInstallation& operator=(const PseudoInstallation&) = delete;

    /// With its closing separator; empty when it could not be written.
    const std::wstring& Directory() const { return m_directory; }

private:
    std::wstring m_directory;
};

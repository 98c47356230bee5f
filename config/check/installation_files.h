#pragma once

#include "config/check/folder_listing.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The files below an installation directory, found as Windows finds them: letter case does not count, and both "\" and
/// "/" divide folders, on every system. A folder is read once, when it is first asked for.
class InstallationFiles {
public:
    /// With its closing separator.
    explicit InstallationFiles(std::wstring directory);

    /// The full path of a file that is given relative to the directory, in the spelling that it has. Nothing for a
    /// folder, for what is not there and for what lies outside.
    std::optional<std::wstring> Find(std::wstring_view path) const;
    /// How that file was when its folder was read. Nothing where there is no such file, or where this would not tell
    /// whether it has changed.
    std::optional<FileStamp> StampOf(std::wstring_view path) const;
    /// The full path that such a file would have.
    std::wstring FullPath(std::wstring_view path) const;
    /// The names of the files, or of the folders, in a folder, in order without regard to letter case.
    std::vector<std::wstring> FilesIn(std::wstring_view folder) const;
    std::vector<std::wstring> FoldersIn(std::wstring_view folder) const;
    /// Whether the path leads out of the directory.
    static bool LeadsOut(std::wstring_view path);
    /// The path of a file below the directory, relative to it and with "/"; others as they are.
    std::wstring RelativeName(const std::wstring& fullPath) const;

    const std::wstring& Directory() const { return m_directory; }

private:
    struct Folder {
        std::wstring path; ///< with its closing separator
        FolderListing listing;
    };
    /// Null when there is no such folder. `parts`: folder names.
    const Folder* Open(const std::vector<std::wstring>& parts) const;
    /// The file, null where it is not there, and its folder.
    std::pair<const Folder*, const ListedFile*> FindListed(std::wstring_view path) const;

    std::wstring m_directory;
    mutable std::map<std::wstring, Folder> m_folders;
};

/// Paths of the same file, in small letters and with the same separators.
std::wstring FoldedPath(std::wstring_view path);

/// What is between the separators, "." left out and ".." resolved. Nothing when it leads out.
std::optional<std::vector<std::wstring>> PathParts(std::wstring_view path);

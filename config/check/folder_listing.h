#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

/// How a file was when its folder was looked at. Two that are equal belong to the same contents.
struct FileStamp {
    std::uint64_t size = 0;
    std::int64_t writeTime = 0; ///< the system's, as finely as it keeps it

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

struct ListedFile {
    std::wstring name;
    /// None for a link, whose file may change without it, and for a file that was written a moment ago: written once
    /// more it might have the same size and time.
    std::optional<FileStamp> stamp;
};

/// What is in a folder, by the names in small letters.
struct FolderListing {
    std::map<std::wstring, ListedFile> files;
    std::map<std::wstring, std::wstring> folders;
};

/// `path`: with its closing separator. Empty where there is no such folder.
FolderListing ListFolder(const std::wstring& path);

/// In small letters, as names of files are compared.
std::wstring FoldedName(std::wstring_view name);

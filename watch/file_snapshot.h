#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// How a file was when it was looked at.
struct FileStamp {
    std::uint64_t size = 0;
    std::uint64_t writeTime = 0; ///< the system's, to a tenth of a microsecond: an edit may follow another at once

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// The configuration files, tables and icons below a directory, by their paths relative to it with backslashes.
using FileSnapshot = std::map<std::wstring, FileStamp>;

/// What cannot be looked at is left out.
FileSnapshot TakeFileSnapshot(const std::filesystem::path& directory);

/// The files that one has and the other has not, or has in another state; in order.
std::vector<std::wstring> ChangedFiles(const FileSnapshot& before, const FileSnapshot& after);

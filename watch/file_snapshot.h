#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// How a file was when it was looked at.
struct FileStamp {
    std::uintmax_t size = 0;
    std::filesystem::file_time_type time;

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// The configuration files, tables and icons below a directory, by their paths relative to it with backslashes.
using FileSnapshot = std::map<std::wstring, FileStamp>;

/// What cannot be looked at is left out.
FileSnapshot TakeFileSnapshot(const std::filesystem::path& directory);

/// The files that one has and the other has not, or has in another state; in order.
std::vector<std::wstring> ChangedFiles(const FileSnapshot& before, const FileSnapshot& after);

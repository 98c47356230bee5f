#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

// What is kept of a file's content is as good as the stamp that it was read under. Windows only.

namespace varnhold {

/// What changes when a file is written anew; all zero where there is no file. A folder is not a file.
struct FileStamp {
    std::uint64_t writeTime = 0; ///< units of 100 ns since 1601, UTC
    std::uint64_t size = 0;      ///< bytes

    bool IsFile() const { return writeTime != 0 || size != 0; }
    bool operator==(const FileStamp&) const = default;
};

inline std::uint64_t JoinHalves(DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; }

/// Take it before the file is read: what is written meanwhile then shows at the next look.
inline FileStamp StampOf(const std::wstring& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) ||
        (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return {};
    }
    return {JoinHalves(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime),
            JoinHalves(data.nFileSizeHigh, data.nFileSizeLow)};
}

/// False for a file that was written so shortly ago that the next writing could leave the same stamp: what is read of
/// it now must be read again. 2 s are the coarsest step that a file system counts in.
inline bool IsSettled(const FileStamp& stamp) {
    constexpr std::uint64_t step = 20'000'000; // 2 s
    FILETIME now{};
    ::GetSystemTimeAsFileTime(&now);
    return stamp.writeTime + step <= JoinHalves(now.dwHighDateTime, now.dwLowDateTime);
}

} // namespace varnhold

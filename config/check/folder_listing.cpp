#include "config/check/folder_listing.h"

#include <varnhold/letter_case.h>
#include <varnhold/strings.h>

#include <algorithm>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#endif

namespace {

/// File systems keep times to two seconds at worst.
constexpr std::int64_t kCoarsestSeconds = 2;

void Take(FolderListing& listing, std::wstring name, bool isFolder, std::optional<FileStamp> stamp) {
    std::wstring folded = FoldedName(name);
    if (isFolder) {
        listing.folders.emplace(std::move(folded), std::move(name));
    } else {
        listing.files.emplace(std::move(folded), ListedFile{std::move(name), stamp});
    }
}

#ifdef _WIN32

constexpr std::int64_t kUnitsInASecond = 10'000'000;

std::uint64_t Joined(DWORD high, DWORD low) { return static_cast<std::uint64_t>(high) << 32 | low; }

std::int64_t TimeOf(const FILETIME& time) {
    return static_cast<std::int64_t>(Joined(time.dwHighDateTime, time.dwLowDateTime));
}

std::int64_t Now() {
    FILETIME now;
    ::GetSystemTimeAsFileTime(&now);
    return TimeOf(now);
}

#else

constexpr std::int64_t kUnitsInASecond = 1'000'000'000;

std::int64_t Now() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

#endif

bool IsSettled(std::int64_t writeTime, std::int64_t now) {
    return writeTime + kCoarsestSeconds * kUnitsInASecond < now;
}

} // namespace

std::wstring FoldedName(std::wstring_view name) {
    std::wstring folded(name);
    std::ranges::transform(folded, folded.begin(), [](wchar_t c) { return varnhold::LowerAscii(c); });
    return folded;
}

#ifdef _WIN32

// The search itself says all that is to be known; asking for each file costs more than reading small ones.
FolderListing ListFolder(const std::wstring& path) {
    FolderListing listing;
    const std::int64_t now = Now();
    WIN32_FIND_DATAW entry;
    const HANDLE search =
        ::FindFirstFileExW((path + L'*').c_str(), FindExInfoBasic, &entry, FindExSearchNameMatch, nullptr, 0);
    if (search == INVALID_HANDLE_VALUE) {
        return listing;
    }
    do {
        const std::wstring_view name = entry.cFileName;
        if (name == L"." || name == L"..") {
            continue;
        }
        const FileStamp stamp{Joined(entry.nFileSizeHigh, entry.nFileSizeLow), TimeOf(entry.ftLastWriteTime)};
        const bool isLink = (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
        Take(listing, std::wstring(name), (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
             !isLink && IsSettled(stamp.writeTime, now) ? std::optional(stamp) : std::nullopt);
    } while (::FindNextFileW(search, &entry));
    ::FindClose(search);
    return listing;
}

#else

FolderListing ListFolder(const std::wstring& path) {
    namespace fs = std::filesystem;
    FolderListing listing;
    const std::int64_t now = Now();
    std::error_code error;
    for (fs::directory_iterator entry(wstring2String(path), error), end; !error && entry != end;
         entry.increment(error)) {
        struct stat found {};
        const bool isThere = ::lstat(entry->path().c_str(), &found) == 0;
        const std::int64_t writeTime = found.st_mtim.tv_sec * kUnitsInASecond + found.st_mtim.tv_nsec;
        const bool isKnown = isThere && S_ISREG(found.st_mode) && IsSettled(writeTime, now);
        std::error_code ignored;
        Take(listing, string2wstring(entry->path().filename().native()), entry->is_directory(ignored),
             isKnown ? std::optional(FileStamp{static_cast<std::uint64_t>(found.st_size), writeTime}) : std::nullopt);
    }
    return listing;
}

#endif

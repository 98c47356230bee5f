#include "watch/file_snapshot.h"

#include <varnhold/letter_case.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include <windows.h>

namespace fs = std::filesystem;

namespace {

constexpr std::array<std::wstring_view, 3> kExtensions = {L".xml", L".xlf", L".ico"};

bool IsWatched(const fs::path& path) {
    const std::wstring extension = path.extension().wstring();
    return std::ranges::any_of(
        kExtensions, [&extension](std::wstring_view known) { return varnhold::EqualsIgnoringCase(known, extension); });
}

std::wstring RelativeName(const fs::path& path, const fs::path& directory) {
    std::wstring name = path.lexically_relative(directory).wstring();
    std::ranges::replace(name, L'/', L'\\');
    return name;
}

std::uint64_t Joined(DWORD high, DWORD low) { return static_cast<std::uint64_t>(high) << 32 | low; }

std::optional<FileStamp> StampOf(const fs::path& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) {
        return std::nullopt;
    }
    return FileStamp{Joined(data.nFileSizeHigh, data.nFileSizeLow),
                     Joined(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime)};
}

} // namespace

FileSnapshot TakeFileSnapshot(const fs::path& directory) {
    FileSnapshot snapshot;
    std::error_code error;
    fs::recursive_directory_iterator entry(directory, fs::directory_options::skip_permission_denied, error);
    for (const fs::recursive_directory_iterator end; !error && entry != end; entry.increment(error)) {
        std::error_code ofFile; // it may have gone meanwhile
        if (!IsWatched(entry->path()) || !entry->is_regular_file(ofFile)) {
            continue;
        }
        if (const std::optional<FileStamp> stamp = StampOf(entry->path())) {
            snapshot.emplace(RelativeName(entry->path(), directory), *stamp);
        }
    }
    return snapshot;
}

std::vector<std::wstring> ChangedFiles(const FileSnapshot& before, const FileSnapshot& after) {
    std::vector<std::wstring> changed;
    for (const auto& [name, stamp] : before) {
        const auto found = after.find(name);
        if (found == after.end() || found->second != stamp) {
            changed.push_back(name);
        }
    }
    for (const auto& [name, stamp] : after) {
        if (!before.contains(name)) {
            changed.push_back(name);
        }
    }
    std::ranges::sort(changed);
    return changed;
}

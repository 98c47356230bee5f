#include "src/kept_pictures.h"

#include <algorithm>
#include <map>
#include <utility>

#include <windows.h>

namespace tovasque {

namespace {

constexpr std::size_t kMostKept = 128;           // two skins at a few scales
constexpr std::size_t kMostPixels = 256 * 256;   // of one kept picture; skins' own are far smaller
constexpr std::uint64_t kStampStep = 20'000'000; // 2 s in units of 100 ns: the coarsest that a file system counts in

std::uint64_t Joined(DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; }

std::uint64_t Now() {
    FILETIME now{};
    ::GetSystemTimeAsFileTime(&now);
    return Joined(now.dwHighDateTime, now.dwLowDateTime);
}

struct Kept {
    LookedAtFiles files;
    std::shared_ptr<const LoadedPicture> picture;
};

std::map<std::wstring, Kept>& AllKept() {
    static std::map<std::wstring, Kept> kept;
    return kept;
}

} // namespace

FileStamp StampOf(const std::wstring& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) ||
        (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return {};
    }
    return {Joined(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime),
            Joined(data.nFileSizeHigh, data.nFileSizeLow)};
}

const std::wstring& LookedAtFiles::Add(std::wstring path) {
    const FileStamp stamp = StampOf(path);
    m_areSettled = m_areSettled && stamp.writeTime + kStampStep <= Now();
    return m_files.emplace_back(std::move(path), stamp).path;
}

bool LookedAtFiles::AreUnchanged() const {
    return std::ranges::all_of(m_files, [](const File& file) { return StampOf(file.path) == file.stamp; });
}

std::shared_ptr<const LoadedPicture> FindPicture(const std::wstring& key,
                                                 const std::function<LoadedPicture(LookedAtFiles& files)>& read) {
    std::map<std::wstring, Kept>& all = AllKept();
    const auto found = all.find(key);
    if (found != all.end() && found->second.files.AreUnchanged()) {
        return found->second.picture;
    }
    if (found != all.end()) {
        all.erase(found);
    }
    LookedAtFiles files;
    auto picture = std::make_shared<const LoadedPicture>(read(files));
    if (files.AreSettled() && picture->pixels.bits.size() <= kMostPixels) {
        if (all.size() >= kMostKept) {
            all.clear();
        }
        all.emplace(key, Kept{std::move(files), picture});
    }
    return picture;
}

} // namespace tovasque

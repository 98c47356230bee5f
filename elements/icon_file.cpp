#include "elements/icon_file.h"

#include <map>
#include <string>

std::size_t FileIcon::s_readCount = 0;
std::size_t FileIcon::s_aliveCount = 0;

namespace {

/// What changes when a file is written anew.
struct FileStamp {
    ULONGLONG writeTime = 0;
    ULONGLONG size = 0;
    bool operator==(const FileStamp&) const = default;
};

ULONGLONG Joined(DWORD high, DWORD low) { return (static_cast<ULONGLONG>(high) << 32) | low; }

/// All zero where there is no file.
FileStamp StampOf(const wchar_t* path) {
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!::GetFileAttributesExW(path, GetFileExInfoStandard, &data)) {
        return {};
    }
    return {Joined(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime),
            Joined(data.nFileSizeHigh, data.nFileSizeLow)};
}

} // namespace

FileIcon::FileIcon(const wchar_t* path, int side) {
    if (!*path) {
        return;
    }
    ++s_readCount;
    m_icon = static_cast<HICON>(::LoadImageW(nullptr, path, IMAGE_ICON, side, side, LR_LOADFROMFILE));
    if (m_icon) {
        ++s_aliveCount;
    }
}

FileIcon::~FileIcon() {
    if (!m_icon) {
        return;
    }
    ::DestroyIcon(m_icon);
    --s_aliveCount;
}

void TryIconFile(const wchar_t* path, int side) {
    if (!*path) {
        return;
    }
    static std::map<std::pair<std::wstring, int>, FileStamp> stamps;
    const FileStamp stamp = StampOf(path);
    const auto [tried, isNew] = stamps.try_emplace({path, side}, stamp);
    if (!isNew && tried->second == stamp) {
        return;
    }
    tried->second = stamp;
    const FileIcon trial(path, side);
}

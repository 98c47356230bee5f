#include "elements/icon_file.h"

#include <cstdint>
#include <map>
#include <string>

namespace {

/// Changes with the file; 0 where there is none.
std::uint64_t TimeStampOf(const wchar_t* path) {
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!::GetFileAttributesExW(path, GetFileExInfoStandard, &data))
        return 0;
    return (static_cast<std::uint64_t>(data.ftLastWriteTime.dwHighDateTime) << 32) | data.ftLastWriteTime.dwLowDateTime;
}

} // namespace

OwnedIcon LoadIconFile(const wchar_t* path, int side) {
    if (!*path)
        return {};
    return OwnedIcon(static_cast<HICON>(::LoadImageW(nullptr, path, IMAGE_ICON, side, side, LR_LOADFROMFILE)));
}

void TryIconFile(const wchar_t* path, int side) {
    if (!*path)
        return;
    // User-interface thread only, like every ribbon element.
    static std::map<std::pair<std::wstring, int>, std::uint64_t> triedStamps;
    const std::uint64_t stamp = TimeStampOf(path);
    const auto [tried, isNew] = triedStamps.try_emplace({path, side}, stamp);
    if (!isNew && tried->second == stamp)
        return;
    tried->second = stamp;
    LoadIconFile(path, side);
}

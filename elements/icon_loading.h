#pragma once

#include <windows.h>

#include <cstddef>
#include <memory>

/// Owns an icon of the system and knows how many there are. User-interface thread only.
struct LoadedIcon {
    LoadedIcon(HICON owned, int loadedSide);
    ~LoadedIcon();
    LoadedIcon(const LoadedIcon&) = delete;
    LoadedIcon& operator=(const LoadedIcon&) = delete;

    const HICON icon;
    const int side; ///< the pixels at which it was loaded

    static std::size_t s_readCount;  ///< files that were read, successfully or not
    static std::size_t s_aliveCount; ///< icons that are alive
};

/// Reads an icon file at `usualSide` x `usualSide` pixels, or for a picture that is drawn `drawnSide` pixels wide as
/// SideToLoad says. Null for what cannot be opened, is no icon or may not be decoded.
std::shared_ptr<const LoadedIcon> LoadIconFile(const wchar_t* path, int usualSide, int drawnSide);

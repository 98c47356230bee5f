#pragma once

#include <afxtoolbarimages.h>

#include <cstddef>
#include <map>
#include <memory>
#include <utility>

/// Owns an icon of the system, the lists that were made of it, and knows how many there are. User-interface thread
/// only.
struct LoadedIcon {
    LoadedIcon(HICON owned, int loadedSide);
    ~LoadedIcon();
    LoadedIcon(const LoadedIcon&) = delete;
    LoadedIcon& operator=(const LoadedIcon&) = delete;

    /// The icon alone in an image list of so many pixels a side. Made once for each size, and kept as long as the icon.
    /// Null when it cannot be made.
    CMFCToolBarImages* ListOf(int listedSide, BOOL isAlphaBlended) const;

    const HICON icon;
    const int side; ///< the pixels at which it was loaded

    static std::size_t s_readCount;  ///< files that were read, successfully or not
    static std::size_t s_aliveCount; ///< icons that are alive
    static std::size_t s_listCount;  ///< lists that were made

private:
    mutable std::map<std::pair<int, bool>, std::unique_ptr<CMFCToolBarImages>> m_lists; // null: could not be made
};

/// An icon that its holder destroys, and the side at which it was loaded, in pixels.
struct SizedIcon {
    HICON icon = nullptr;
    int side = 0;
};

/// Reads an icon file at `usualSide` x `usualSide` pixels, or for a picture that is drawn `drawnSide` pixels wide as
/// SideToLoad says. No icon for what cannot be opened, is none or may not be decoded.
SizedIcon ReadIconFile(const wchar_t* path, int usualSide, int drawnSide);

/// The same for whoever shares it; null for none.
std::shared_ptr<const LoadedIcon> LoadIconFile(const wchar_t* path, int usualSide, int drawnSide);

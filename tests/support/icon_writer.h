#pragma once

#include "tests/support/icon_file_bytes.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/// Colours of the left and the right half of an icon, 0x00RRGGBB.
struct IconColours {
    std::uint32_t left;
    std::uint32_t right;
};

/// One opaque picture of an icon file, `side` x `side` pixels at 32 bits, and the mask behind it.
inline std::string MakeIconPicture(int side, IconColours colours) {
    std::string bytes = BitmapHeader(side, side);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            bytes += LittleEndian(0xFF000000u | (x < side / 2 ? colours.left : colours.right), 4);
        }
    }
    const std::size_t maskRowBytes = (static_cast<std::size_t>(side) + 31) / 32 * 4;
    bytes.append(maskRowBytes * static_cast<std::size_t>(side), '\0');
    return bytes;
}

/// The bytes of an icon file with one picture for each side, in that order.
inline std::string MakeIconFile(const std::vector<std::pair<int, IconColours>>& pictures) {
    std::vector<std::string> parts;
    std::vector<int> sides;
    for (const auto& [side, colours] : pictures) {
        parts.push_back(MakeIconPicture(side, colours));
        sides.push_back(side);
    }
    return MakeIconDirectory(parts, sides);
}

/// The bytes of an icon file with one picture.
inline std::string MakeIconFile(int side, IconColours colours) { return MakeIconFile({{side, colours}}); }

#pragma once

#include <cstdint>
#include <string>

/// Colours of the left and the right half of an icon, 0x00RRGGBB.
struct IconColours {
    std::uint32_t left;
    std::uint32_t right;
};

/// The bytes of an icon file with one opaque picture of `side` x `side` pixels at 32 bits.
inline std::string MakeIconFile(int side, IconColours colours) {
    std::string bytes;
    const auto put = [&bytes](std::uint32_t value, int count) {
        for (int i = 0; i < count; ++i) {
            bytes += static_cast<char>(value >> (8 * i));
        }
    };
    const auto unsignedSide = static_cast<std::uint32_t>(side);
    const std::uint32_t maskRowBytes = (unsignedSide + 31) / 32 * 4;
    constexpr std::uint32_t headerBytes = 40;
    const std::uint32_t pictureBytes = headerBytes + unsignedSide * unsignedSide * 4 + maskRowBytes * unsignedSide;

    put(0, 2);
    put(1, 2); // an icon
    put(1, 2); // one picture
    put(unsignedSide, 1);
    put(unsignedSide, 1);
    put(0, 2);
    put(1, 2);
    put(32, 2);
    put(pictureBytes, 4);
    put(22, 4); // the picture follows the directory

    put(headerBytes, 4);
    put(unsignedSide, 4);
    put(unsignedSide * 2, 4); // colours and mask
    put(1, 2);
    put(32, 2);
    for (int i = 0; i < 6; ++i) {
        put(0, 4);
    }
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            put(0xFF000000u | (x < side / 2 ? colours.left : colours.right), 4);
        }
    }
    bytes.append(maskRowBytes * unsignedSide, '\0');
    return bytes;
}

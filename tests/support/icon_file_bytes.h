#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// `value` in `count` bytes, the lowest first.
inline std::string LittleEndian(std::uint32_t value, int count) {
    std::string bytes;
    for (int i = 0; i < count; ++i) {
        bytes += static_cast<char>(value >> (8 * i));
    }
    return bytes;
}

inline std::string BigEndian(std::uint32_t value) {
    const std::string bytes = LittleEndian(value, 4);
    return {bytes.rbegin(), bytes.rend()};
}

/// The start of a picture of an icon file, with nothing behind its header. `height` is that of the picture.
inline std::string BitmapHeader(std::int32_t width, std::int32_t height) {
    return LittleEndian(40, 4) + LittleEndian(static_cast<std::uint32_t>(width), 4) +
           LittleEndian(static_cast<std::uint32_t>(height) * 2, 4) + LittleEndian(1, 2) + LittleEndian(32, 2) +
           std::string(24, '\0');
}

inline std::string CoreBitmapHeader(std::int32_t width, std::int32_t height) {
    return LittleEndian(12, 4) + LittleEndian(static_cast<std::uint32_t>(width), 2) +
           LittleEndian(static_cast<std::uint32_t>(height) * 2, 2) + LittleEndian(1, 2) + LittleEndian(24, 2) +
           std::string(12, '\0');
}

inline std::string PngHeader(std::int32_t width, std::int32_t height) {
    return "\x89PNG\r\n\x1A\n" + BigEndian(13) + "IHDR" + BigEndian(static_cast<std::uint32_t>(width)) +
           BigEndian(static_cast<std::uint32_t>(height)) + std::string("\x08\x06\0\0\0", 5);
}

/// An icon file of these pictures. Its directory says these sides of them, 0 where there is none.
inline std::string MakeIconDirectory(const std::vector<std::string>& pictures, const std::vector<int>& sides = {}) {
    std::string directory =
        LittleEndian(0, 2) + LittleEndian(1, 2) + LittleEndian(static_cast<std::uint32_t>(pictures.size()), 2);
    std::string behind;
    for (std::size_t index = 0; index < pictures.size(); ++index) {
        const std::string& picture = pictures[index];
        const std::size_t offset = 6 + pictures.size() * 16 + behind.size();
        const auto side = static_cast<std::uint32_t>(index < sides.size() ? sides[index] : 0);
        directory += LittleEndian(side, 1) + LittleEndian(side, 1) + std::string(2, '\0') + LittleEndian(1, 2) +
                     LittleEndian(32, 2) + LittleEndian(static_cast<std::uint32_t>(picture.size()), 4) +
                     LittleEndian(static_cast<std::uint32_t>(offset), 4);
        behind += picture;
    }
    return directory + behind;
}

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tovasque {

/// Pixels multiplied by alpha, row 0 on top. Empty: there was no picture that can be used.
struct Pixels {
    std::vector<std::uint32_t> bits;
    int width = 0, height = 0;

    bool IsEmpty() const { return bits.empty(); }
};

/// No skin picture is larger than this, width or height.
constexpr unsigned kMostPixelsASide = 1024;

/// What a whole PNG file says its size is; false for any other bytes, for a file that is cut off and for pictures
/// larger than kMostPixelsASide. Nothing is decoded.
bool ReadPngSize(const std::vector<unsigned char>& file, int& width, int& height);

/// Reads and decodes a PNG file of that path. Empty when it is missing, a folder, cut off or too large.
Pixels ReadPngFile(const std::wstring& path);

/// Reads an icon file at that size and paints its shape in one colour, 0xFFRRGGBB. Empty when there is no such icon, or
/// a picture of the file is larger than kMostPixelsASide.
Pixels ReadIconShape(const std::wstring& path, int side, std::uint32_t color);

/// Drawn anew at another size, smoothed.
Pixels Scaled(const Pixels& picture, int width, int height);

} // namespace tovasque

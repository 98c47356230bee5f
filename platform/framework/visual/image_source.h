#pragma once

#include "visual/canvas.h"

#include <vector>

// Pictures from files, resources and icons as top-down 32-bit bitmaps. Null when there is no such picture; the caller
// deletes the bitmap.
namespace visual {

struct Picture {
    HBITMAP bitmap = nullptr;
    bool hasAlpha = false; // colours are then multiplied by alpha; else alpha is 255 everywhere
};

/// The rows of a 32-bit bitmap made by MakeBitmap32; empty for any other.
PixelView ViewOf(HBITMAP bitmap);
/// Copies a rectangle to the place `left` in the target's rows, from row 0 on; what lies outside of either is left out.
void CopyPixels(const PixelView& source, const RECT& from, const PixelView& target, int left);
/// The pixels of any bitmap as they stand, in 32 bits (alpha 0 where there was none).
HBITMAP CopyBitmap32(HBITMAP bitmap);
Picture PictureFromBitmap(HBITMAP bitmap, bool isMultiplied);
Picture PictureFromFile(const wchar_t* path);
Picture PictureFromResource(HINSTANCE module, const wchar_t* name);
/// The bytes of a BMP file: 32 bits a pixel, bottom row first.
std::vector<BYTE> BitmapFileFrom(const PixelView& view);
/// Resampled when the icon has another size.
Picture PictureFromIcon(HICON icon, SIZE size);

} // namespace visual

#pragma once

#include "visual/canvas.h"

// Pictures from files, resources and icons as top-down 32-bit bitmaps. Null when there is no such picture; the caller
// deletes the bitmap.
namespace visual {

struct Picture {
    HBITMAP bitmap = nullptr;
    bool hasAlpha = false; // colours are then multiplied by alpha; else alpha is 255 everywhere
};

PixelView ViewOf(HBITMAP bitmap);
Picture PictureFromBitmap(HBITMAP bitmap, bool isMultiplied);
Picture PictureFromFile(const wchar_t* path);
Picture PictureFromResource(HINSTANCE module, const wchar_t* name);
/// Resampled when the icon has another size.
Picture PictureFromIcon(HICON icon, SIZE size);

} // namespace visual

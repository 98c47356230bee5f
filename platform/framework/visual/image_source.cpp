#include "visual/image_source.h"

#include <fx/gdi_plus.h>

#include <algorithm>
#include <cstring>
#include <shlwapi.h>

namespace visual {

namespace {

Picture Decode(Gdiplus::Bitmap& source) {
    const int width = static_cast<int>(source.GetWidth()), height = static_cast<int>(source.GetHeight());
    if (source.GetLastStatus() != Gdiplus::Ok || width <= 0 || height <= 0) {
        return {};
    }
    Gdiplus::BitmapData data;
    const Gdiplus::Rect whole(0, 0, width, height);
    if (source.LockBits(&whole, Gdiplus::ImageLockModeRead, PixelFormat32bppPARGB, &data) != Gdiplus::Ok) {
        return {};
    }
    Picture picture;
    std::uint32_t* bits = nullptr;
    picture.bitmap = MakeBitmap32(width, height, &bits);
    if (picture.bitmap != nullptr) {
        for (int y = 0; y < height; ++y) {
            std::copy_n(reinterpret_cast<const std::uint32_t*>(static_cast<const BYTE*>(data.Scan0) + y * data.Stride),
                        width, bits + static_cast<std::size_t>(y) * width);
        }
    }
    source.UnlockBits(&data);
    picture.hasAlpha = Gdiplus::IsAlphaPixelFormat(source.GetPixelFormat());
    return picture;
}

/// The bits of a bitmap that belongs to no memory of ours and is kept as we want it: no context is needed, and for one
/// the system looks at all its screens. False for any other.
bool ReadPlainRows(HBITMAP bitmap, const BITMAP& info, std::uint32_t* bits) {
    constexpr WORD depth = 32;
    const bool isPlain = info.bmBits == nullptr && info.bmPlanes == 1 && info.bmBitsPixel == depth &&
                         info.bmWidthBytes == info.bmWidth * static_cast<LONG>(sizeof(std::uint32_t));
    const LONG size = info.bmWidthBytes * std::abs(info.bmHeight);
    return isPlain && GetBitmapBits(bitmap, size, bits) == size;
}

/// Reads any bitmap as 32-bit rows from the top, alpha as it stands. There must be room for them.
void ReadRows(HBITMAP bitmap, const BITMAP& info, std::uint32_t* bits) {
    if (ReadPlainRows(bitmap, info, bits)) {
        return;
    }
    const LONG height = std::abs(info.bmHeight);
    BITMAPINFO format{};
    format.bmiHeader = {sizeof(format.bmiHeader), info.bmWidth, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    const HDC memory = CreateCompatibleDC(nullptr);
    GetDIBits(memory, bitmap, 0, static_cast<UINT>(height), bits, &format, DIB_RGB_COLORS);
    DeleteDC(memory);
}

/// The same into a new bitmap.
HBITMAP CopyRows(HBITMAP bitmap, std::uint32_t** bits, BITMAP& info) {
    if (GetObjectW(bitmap, sizeof(info), &info) == 0) {
        return nullptr;
    }
    info.bmHeight = std::abs(info.bmHeight);
    const HBITMAP copy = MakeBitmap32(info.bmWidth, info.bmHeight, bits);
    if (copy != nullptr) {
        ReadRows(bitmap, info, *bits);
    }
    return copy;
}

void MakeOpaque(const PixelView& view) {
    std::for_each_n(view.bits, static_cast<std::size_t>(view.width) * view.height,
                    [](std::uint32_t& pixel) { pixel |= 0xFF000000; });
}

} // namespace

PixelView ViewOf(HBITMAP bitmap) {
    BITMAP info{};
    if (bitmap == nullptr || GetObjectW(bitmap, sizeof(info), &info) == 0 || info.bmBits == nullptr) {
        return {};
    }
    GdiFlush();
    return {static_cast<std::uint32_t*>(info.bmBits), info.bmWidth, info.bmHeight};
}

void CopyPixels(const PixelView& source, const RECT& from, const PixelView& target, int left) {
    const int width = std::min(
        {static_cast<int>(from.right - from.left), static_cast<int>(source.width - from.left), target.width - left});
    const int height =
        std::min({static_cast<int>(from.bottom - from.top), static_cast<int>(source.height - from.top), target.height});
    for (int y = 0; width > 0 && y < height; ++y) {
        std::copy_n(&source.At(from.left, from.top + y), width, &target.At(left, y));
    }
}

std::vector<BYTE> BitmapFileFrom(const PixelView& view) {
    const std::size_t rowSize = static_cast<std::size_t>(view.width) * sizeof(std::uint32_t);
    constexpr std::size_t headerSize = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    std::vector<BYTE> file(headerSize + rowSize * view.height);
    BITMAPFILEHEADER header = {};
    header.bfType = 0x4D42; // "BM"
    header.bfSize = static_cast<DWORD>(file.size());
    header.bfOffBits = headerSize;
    BITMAPINFOHEADER info = {};
    info.biSize = sizeof(info);
    info.biWidth = view.width;
    info.biHeight = view.height;
    info.biPlanes = 1;
    info.biBitCount = 32;
    std::memcpy(file.data(), &header, sizeof(header));
    std::memcpy(file.data() + sizeof(header), &info, sizeof(info));
    for (int y = 0; y < view.height; ++y) {
        std::memcpy(file.data() + headerSize + rowSize * (view.height - 1 - y), &view.At(0, y), rowSize);
    }
    return file;
}

HBITMAP CopyBitmap32(HBITMAP bitmap) {
    std::uint32_t* bits = nullptr;
    BITMAP info{};
    return CopyRows(bitmap, &bits, info);
}

Picture PictureFromBitmap(HBITMAP bitmap, bool isMultiplied) {
    BITMAP info{};
    std::uint32_t* bits = nullptr;
    Picture picture{CopyRows(bitmap, &bits, info), false};
    if (picture.bitmap == nullptr) {
        return {};
    }
    const PixelView view{bits, info.bmWidth, info.bmHeight};
    picture.hasAlpha = info.bmBitsPixel == 32 && HasAlpha(view);
    if (picture.hasAlpha) {
        PreMultiply(view, isMultiplied);
    } else {
        MakeOpaque(view);
    }
    return picture;
}

Picture PictureFromFile(const wchar_t* path) {
    const auto bitmap =
        static_cast<HBITMAP>(LoadImageW(nullptr, path, IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION));
    if (bitmap != nullptr) {
        const Picture picture = PictureFromBitmap(bitmap, true);
        DeleteObject(bitmap);
        return picture;
    }
    if (!fx::StartGdiPlus()) {
        return {};
    }
    Gdiplus::Bitmap source(path);
    return Decode(source);
}

Picture PictureFromResource(HINSTANCE module, const wchar_t* name) {
    if (const HRSRC found = FindResourceW(module, name, L"PNG"); found != nullptr && fx::StartGdiPlus()) {
        const HGLOBAL loaded = LoadResource(module, found);
        IStream* stream =
            SHCreateMemStream(static_cast<const BYTE*>(LockResource(loaded)), SizeofResource(module, found));
        if (stream == nullptr) {
            return {};
        }
        Picture picture;
        {
            Gdiplus::Bitmap source(stream);
            picture = Decode(source);
        }
        stream->Release();
        return picture;
    }
    const auto bitmap = static_cast<HBITMAP>(LoadImageW(module, name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    if (bitmap == nullptr) {
        return {};
    }
    const Picture picture = PictureFromBitmap(bitmap, true);
    DeleteObject(bitmap);
    return picture;
}

namespace {

/// false: the icon's colours have no alpha.
bool MultiplyOwnAlpha(const PixelView& source, const ICONINFO& info, const BITMAP& colors) {
    if (info.hbmColor == nullptr || colors.bmBitsPixel != 32 || !HasAlpha(source)) {
        return false;
    }
    PreMultiply(source, false);
    return true;
}

/// What the mask covers is clear, all else opaque. false: there is no mask.
bool CutByMask(const PixelView& source, const ICONINFO& info) {
    BITMAP maskInfo{};
    std::uint32_t* maskBits = nullptr;
    const HBITMAP mask = CopyRows(info.hbmMask, &maskBits, maskInfo);
    if (mask == nullptr) {
        return false;
    }
    for (int i = 0; i < source.width * source.height; ++i) {
        source.bits[i] = (maskBits[i] & 0xFFFFFF) != 0 ? 0 : source.bits[i] | 0xFF000000;
    }
    DeleteObject(mask);
    return true;
}

} // namespace

Picture PictureFromIcon(HICON icon, SIZE size) {
    ICONINFO info{};
    if (!GetIconInfo(icon, &info)) {
        return {};
    }
    Picture picture;
    BITMAP colorInfo{};
    std::uint32_t* colorBits = nullptr;
    // An icon without colours keeps its picture in the lower half of the mask.
    const HBITMAP color = CopyRows(info.hbmColor != nullptr ? info.hbmColor : info.hbmMask, &colorBits, colorInfo);
    const int width = colorInfo.bmWidth;
    const int height = info.hbmColor != nullptr ? colorInfo.bmHeight : colorInfo.bmHeight / 2;
    const std::size_t upperHalf = info.hbmColor != nullptr ? 0 : static_cast<std::size_t>(width) * height;
    const PixelView source{color != nullptr ? colorBits + upperHalf : nullptr, width, height};
    const bool isReadable = color != nullptr && (MultiplyOwnAlpha(source, info, colorInfo) || CutByMask(source, info));
    std::uint32_t* bits = nullptr;
    if (isReadable) {
        picture = {MakeBitmap32(size.cx, size.cy, &bits), true};
    }
    if (picture.bitmap != nullptr) {
        Resample(source, {bits, size.cx, size.cy});
    }
    for (const HBITMAP bitmap : {color, info.hbmColor, info.hbmMask}) {
        if (bitmap != nullptr) {
            DeleteObject(bitmap);
        }
    }
    return picture;
}

} // namespace visual

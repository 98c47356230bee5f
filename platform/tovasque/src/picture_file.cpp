#include "src/picture_file.h"

#include "tovasque/skin_files.h"

#include <fx/gdi_plus.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <shlwapi.h>
#include <span>

namespace tovasque {

namespace {

constexpr std::size_t kMostBytes = std::size_t(4) << 20; // far beyond any picture of the permitted size

struct FileCloser {
    void operator()(HANDLE file) const { ::CloseHandle(file); }
};

struct IconPartsDeleter {
    ICONINFO info;
    void operator()(void* icon) const {
        ::DeleteObject(info.hbmColor);
        ::DeleteObject(info.hbmMask);
        ::DestroyIcon(static_cast<HICON>(icon));
    }
};

struct StreamReleaser {
    void operator()(IStream* stream) const { stream->Release(); }
};

std::vector<unsigned char> ReadBytes(const std::wstring& path) {
    const HANDLE opened = ::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE) {
        return {};
    }
    const std::unique_ptr<void, FileCloser> file(opened);
    LARGE_INTEGER size{};
    if (!::GetFileSizeEx(file.get(), &size) || size.QuadPart <= 0 ||
        static_cast<std::uint64_t>(size.QuadPart) > kMostBytes) {
        return {};
    }
    std::vector<unsigned char> bytes(static_cast<std::size_t>(size.QuadPart));
    DWORD read = 0;
    if (!::ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr) ||
        read != bytes.size()) {
        return {};
    }
    return bytes;
}

std::uint32_t LittleEndian(std::span<const unsigned char> bytes, std::size_t at, std::size_t count) {
    std::uint32_t value = 0;
    for (std::size_t index = 0; index < count && at + index < bytes.size(); ++index) {
        value |= std::uint32_t{bytes[at + index]} << (8 * index);
    }
    return value;
}

/// Whether a picture of an icon file would take long to decode. Of those that are not packed none fits into kMostBytes.
bool HasLargePicture(std::span<const unsigned char> icon) {
    constexpr std::size_t countAt = 4, firstEntry = 6, entryBytes = 16, offsetInEntry = 12;
    const std::size_t count = LittleEndian(icon, countAt, 2);
    for (std::size_t entry = 0; entry < count; ++entry) {
        const std::size_t offset = LittleEndian(icon, firstEntry + entry * entryBytes + offsetInEntry, 4);
        const auto claimed = ClaimedPngSize(icon.subspan(std::min(offset, icon.size())));
        if (claimed && (claimed->width > kMostPixelsASide || claimed->height > kMostPixelsASide)) {
            return true;
        }
    }
    return false;
}

Pixels Decode(Gdiplus::Bitmap& source) {
    const int width = static_cast<int>(source.GetWidth()), height = static_cast<int>(source.GetHeight());
    Gdiplus::BitmapData data;
    const Gdiplus::Rect whole(0, 0, width, height);
    if (source.GetLastStatus() != Gdiplus::Ok || width <= 0 || height <= 0 ||
        source.LockBits(&whole, Gdiplus::ImageLockModeRead, PixelFormat32bppPARGB, &data) != Gdiplus::Ok) {
        return {};
    }
    Pixels pixels{{}, width, height};
    pixels.bits.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        std::memcpy(pixels.bits.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width),
                    static_cast<const BYTE*>(data.Scan0) + static_cast<std::ptrdiff_t>(y) * data.Stride,
                    static_cast<std::size_t>(width) * sizeof(std::uint32_t));
    }
    source.UnlockBits(&data);
    return pixels;
}

} // namespace

bool ReadPngSize(const std::vector<unsigned char>& file, int& width, int& height) {
    const std::optional<PngSize> claimed = ClaimedPngSize(file);
    if (!claimed || !IsWholePng(file) || claimed->width == 0 || claimed->height == 0 ||
        claimed->width > kMostPixelsASide || claimed->height > kMostPixelsASide) {
        return false;
    }
    width = static_cast<int>(claimed->width);
    height = static_cast<int>(claimed->height);
    return true;
}

Pixels ReadPngFile(const std::wstring& path) {
    const std::vector<unsigned char> bytes = ReadBytes(path);
    int width = 0, height = 0;
    if (!ReadPngSize(bytes, width, height) || !fx::StartGdiPlus()) {
        return {};
    }
    const std::unique_ptr<IStream, StreamReleaser> stream(
        ::SHCreateMemStream(bytes.data(), static_cast<UINT>(bytes.size())));
    if (stream == nullptr) {
        return {};
    }
    Gdiplus::Bitmap source(stream.get());
    Pixels pixels = Decode(source);
    return pixels.width == width && pixels.height == height ? pixels : Pixels{};
}

Pixels ReadIconShape(const std::wstring& path, int side, std::uint32_t color) {
    const std::vector<unsigned char> bytes = ReadBytes(path);
    if (bytes.empty() || HasLargePicture(bytes) || !fx::StartGdiPlus()) {
        return {};
    }
    const auto icon = static_cast<HICON>(::LoadImageW(nullptr, path.c_str(), IMAGE_ICON, side, side, LR_LOADFROMFILE));
    ICONINFO info{};
    if (icon == nullptr || !::GetIconInfo(icon, &info)) {
        return {};
    }
    const std::unique_ptr<void, IconPartsDeleter> owned(icon, {info});
    // The rows as they are: GDI+ gives up the transparency of a bitmap that it takes from a handle.
    Pixels shape{std::vector<std::uint32_t>(static_cast<std::size_t>(side) * static_cast<std::size_t>(side)), side,
                 side};
    BITMAPINFO format{};
    format.bmiHeader = {sizeof(format.bmiHeader), side, -side, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    const HDC screen = ::GetDC(nullptr);
    const int rows =
        ::GetDIBits(screen, info.hbmColor, 0, static_cast<UINT>(side), shape.bits.data(), &format, DIB_RGB_COLORS);
    ::ReleaseDC(nullptr, screen);
    if (rows != side) {
        return {};
    }
    for (std::uint32_t& pixel : shape.bits) {
        const std::uint32_t alpha = pixel >> 24;
        const auto part = [alpha, color](int shift) { return ((color >> shift & 0xFF) * alpha + 127) / 255 << shift; };
        pixel = alpha << 24 | part(16) | part(8) | part(0);
    }
    return shape;
}

Pixels Scaled(const Pixels& picture, int width, int height) {
    if (picture.IsEmpty() || width <= 0 || height <= 0 || !fx::StartGdiPlus()) {
        return {};
    }
    std::vector<std::uint32_t> bits = picture.bits; // GDI+ wants them writable
    Gdiplus::Bitmap source(picture.width, picture.height, picture.width * 4, PixelFormat32bppPARGB,
                           reinterpret_cast<BYTE*>(bits.data()));
    Gdiplus::Bitmap target(width, height, PixelFormat32bppPARGB);
    Gdiplus::Graphics graphics(&target);
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBilinear);
    graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    Gdiplus::ImageAttributes edges;
    edges.SetWrapMode(Gdiplus::WrapModeTileFlipXY);
    graphics.DrawImage(&source, Gdiplus::Rect(0, 0, width, height), 0, 0, picture.width, picture.height,
                       Gdiplus::UnitPixel, &edges);
    return Decode(target);
}

} // namespace tovasque

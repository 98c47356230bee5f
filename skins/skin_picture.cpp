#include "skins/skin_picture.h"

#include <fx/gdi_plus.h>
#include <tovasque/skin_files.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <shlwapi.h>
#include <vector>

namespace {

/// More bytes than a picture of the longest side can need when it is packed at all.
constexpr std::uintmax_t kLargestFile = 32U << 20;

std::vector<BYTE> ReadBytes(const std::wstring& path) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error || size == 0 || size > kLargestFile) {
        return {};
    }
    std::vector<BYTE> bytes(static_cast<std::size_t>(size));
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

bool ClaimsTooMuch(const std::vector<BYTE>& bytes) {
    const std::optional<tovasque::PngSize> claimed = tovasque::ClaimedPngSize(bytes);
    return claimed && std::max(claimed->width, claimed->height) > SkinPicture::kLongestSide;
}

/// A bitmap of its own with the pixels, ready to be blended, and the resolution of another.
std::unique_ptr<Gdiplus::Bitmap> CopyPixels(Gdiplus::Bitmap& source) {
    const INT width = static_cast<INT>(source.GetWidth()), height = static_cast<INT>(source.GetHeight());
    auto copy = std::make_unique<Gdiplus::Bitmap>(width, height, PixelFormat32bppPARGB);
    const Gdiplus::Rect whole(0, 0, width, height);
    Gdiplus::BitmapData from, to;
    if (copy->GetLastStatus() != Gdiplus::Ok ||
        source.LockBits(&whole, Gdiplus::ImageLockModeRead, PixelFormat32bppPARGB, &from) != Gdiplus::Ok) {
        return nullptr;
    }
    const bool isLocked =
        copy->LockBits(&whole, Gdiplus::ImageLockModeWrite, PixelFormat32bppPARGB, &to) == Gdiplus::Ok;
    for (INT y = 0; isLocked && y < height; ++y) {
        std::copy_n(static_cast<const BYTE*>(from.Scan0) + static_cast<std::ptrdiff_t>(y) * from.Stride,
                    static_cast<std::size_t>(width) * sizeof(std::uint32_t),
                    static_cast<BYTE*>(to.Scan0) + static_cast<std::ptrdiff_t>(y) * to.Stride);
    }
    source.UnlockBits(&from);
    if (!isLocked) {
        return nullptr;
    }
    copy->UnlockBits(&to);
    copy->SetResolution(source.GetHorizontalResolution(), source.GetVerticalResolution());
    return copy;
}

std::unique_ptr<Gdiplus::Bitmap> Decode(const std::wstring& path) {
    const std::vector<BYTE> bytes = ReadBytes(path);
    if (!tovasque::IsWholePng(bytes) || ClaimsTooMuch(bytes) || !fx::StartGdiPlus()) {
        return nullptr;
    }
    IStream* const stream = ::SHCreateMemStream(bytes.data(), static_cast<UINT>(bytes.size()));
    if (!stream) {
        return nullptr;
    }
    std::unique_ptr<Gdiplus::Bitmap> picture;
    {
        Gdiplus::Bitmap source(stream);
        if (source.GetLastStatus() == Gdiplus::Ok && source.GetWidth() > 0 && source.GetHeight() > 0 &&
            std::max(source.GetWidth(), source.GetHeight()) <= SkinPicture::kLongestSide) {
            picture = CopyPixels(source);
        }
    }
    stream->Release();
    return picture;
}

} // namespace

std::size_t SkinPicture::s_decodeCount = 0;

bool SkinPicture::Take(const std::wstring& path) {
    const varnhold::FileStamp stamp = varnhold::StampOf(path);
    if (m_isTaken && path == m_path && stamp == m_stamp) {
        return false;
    }
    m_path = path;
    m_stamp = stamp;
    m_isTaken = varnhold::IsSettled(stamp);
    m_bitmap.reset();
    if (stamp.IsFile()) {
        ++s_decodeCount;
        m_bitmap = Decode(path);
    }
    return true;
}

#include "elements/icon_header.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::size_t kDirectoryHeaderBytes = 6;
constexpr std::size_t kEntryBytes = 16;
/// As much of a picture as its size stands in: a PNG file ends its header there.
constexpr std::size_t kPictureHeaderBytes = 24;

constexpr std::uint16_t kIconType = 1;
constexpr std::uint16_t kCursorType = 2;

/// What the oldest bitmap header takes; its sizes are of 16 bits.
constexpr std::uint32_t kCoreHeaderBytes = 12;

constexpr std::array<std::uint8_t, 8> kPngSignature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};

using Bytes = std::span<const std::uint8_t>;

std::uint16_t Little16(Bytes bytes, std::size_t at) {
    return static_cast<std::uint16_t>(bytes[at] | bytes[at + 1] << 8);
}

std::uint32_t Little32(Bytes bytes, std::size_t at) {
    return Little16(bytes, at) | static_cast<std::uint32_t>(Little16(bytes, at + 2)) << 16;
}

std::uint32_t Big32(Bytes bytes, std::size_t at) {
    return static_cast<std::uint32_t>(bytes[at]) << 24 | static_cast<std::uint32_t>(bytes[at + 1]) << 16 |
           static_cast<std::uint32_t>(bytes[at + 2]) << 8 | bytes[at + 3];
}

/// Rows that go downwards are counted below zero.
std::uint32_t Magnitude(std::uint32_t signedValue) {
    return signedValue & 0x80000000u ? 0u - signedValue : signedValue;
}

struct Extent {
    std::uint32_t width;
    std::uint32_t height;
};

Extent ExtentOfPng(Bytes header) { return {Big32(header, 16), Big32(header, 20)}; }

/// The height of an icon's bitmap counts the rows of colours and those of the mask.
Extent ExtentOfBitmap(Bytes header) {
    if (Little32(header, 0) == kCoreHeaderBytes) {
        return {Little16(header, 4), Little16(header, 6) / 2u};
    }
    return {Magnitude(Little32(header, 4)), Magnitude(Little32(header, 8)) / 2};
}

Extent ExtentOf(Bytes header) {
    const bool isPng = std::equal(kPngSignature.begin(), kPngSignature.end(), header.begin());
    return isPng ? ExtentOfPng(header) : ExtentOfBitmap(header);
}

template <std::size_t count>
bool ReadWhole(const IconFileReader& read, std::uint64_t offset, std::array<std::uint8_t, count>& bytes) {
    return read(offset, bytes) == count;
}

} // namespace

std::optional<std::vector<IconPicture>> ReadIconHeaders(const IconFileReader& read) {
    std::array<std::uint8_t, kDirectoryHeaderBytes> directory;
    if (!ReadWhole(read, 0, directory)) {
        return std::nullopt;
    }
    const std::uint16_t type = Little16(directory, 2);
    const std::size_t count = Little16(directory, 4);
    if (Little16(directory, 0) != 0 || (type != kIconType && type != kCursorType) || count > kMostIconPictures) {
        return std::nullopt;
    }
    std::vector<IconPicture> pictures;
    for (std::size_t i = 0; i < count; ++i) {
        std::array<std::uint8_t, kEntryBytes> entry;
        std::array<std::uint8_t, kPictureHeaderBytes> header;
        if (!ReadWhole(read, kDirectoryHeaderBytes + i * kEntryBytes, entry) ||
            !ReadWhole(read, Little32(entry, 12), header)) {
            continue;
        }
        const Extent extent = ExtentOf(header);
        if (extent.width != 0 && extent.height != 0) {
            pictures.push_back({extent.width, extent.height, Little32(entry, 12), Little32(entry, 8)});
        }
    }
    return pictures;
}

bool MayDecode(const std::optional<std::vector<IconPicture>>& pictures) {
    return pictures && !pictures->empty() &&
           std::all_of(pictures->begin(), pictures->end(), [](const IconPicture& picture) {
               return picture.width <= kLongestIconSide && picture.height <= kLongestIconSide;
           });
}

int SideToLoad(const std::vector<IconPicture>& pictures, int usual, int drawn) {
    if (drawn == usual) {
        return usual;
    }
    int fitting = 0;
    int largest = usual;
    for (const IconPicture& picture : pictures) {
        const int side = static_cast<int>(std::max(picture.width, picture.height));
        if (side >= drawn && (fitting == 0 || side < fitting)) {
            fitting = side;
        }
        largest = std::max(largest, side);
    }
    return fitting != 0 ? fitting : largest;
}

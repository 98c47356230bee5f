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

/// The usual bitmap header.
constexpr std::size_t kBitmapHeaderBytes = 40;

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

bool IsPng(Bytes header) { return std::equal(kPngSignature.begin(), kPngSignature.end(), header.begin()); }

Extent ExtentOf(Bytes header) { return IsPng(header) ? ExtentOfPng(header) : ExtentOfBitmap(header); }

/// One line of a file's directory.
struct Entry {
    std::uint8_t width; // 0 says 256
    std::uint8_t height;
    PictureBytes bytes;
};

template <std::size_t count>
bool ReadWhole(const IconFileReader& read, std::uint64_t offset, std::array<std::uint8_t, count>& bytes) {
    return read(offset, bytes) == count;
}

struct Directory {
    std::uint16_t type;
    std::size_t count;
};

/// No value: not a directory of an icon file, or one of too many pictures.
std::optional<Directory> ReadDirectory(const IconFileReader& read) {
    std::array<std::uint8_t, kDirectoryHeaderBytes> bytes;
    if (!ReadWhole(read, 0, bytes)) {
        return std::nullopt;
    }
    const Directory directory{Little16(bytes, 2), Little16(bytes, 4)};
    if (Little16(bytes, 0) != 0 || (directory.type != kIconType && directory.type != kCursorType) ||
        directory.count > kMostIconPictures) {
        return std::nullopt;
    }
    return directory;
}

std::optional<Entry> ReadEntry(const IconFileReader& read, std::size_t index) {
    std::array<std::uint8_t, kEntryBytes> entry;
    if (!ReadWhole(read, kDirectoryHeaderBytes + index * kEntryBytes, entry)) {
        return std::nullopt;
    }
    return Entry{entry[0], entry[1], {Little32(entry, 12), Little32(entry, 8)}};
}

/// What a bitmap of that side takes with its header and the mask behind it, whose rows are whole 32 bits.
std::uint64_t PlainBitmapBytes(std::uint64_t side) {
    return kBitmapHeaderBytes + side * side * 4 + (side + 31) / 32 * 4 * side;
}

/// Whether a picture of so many bytes that begins so is one of that side that needs no conversion.
bool IsPlain(const std::array<std::uint8_t, kBitmapHeaderBytes>& header, std::uint32_t byteCount, std::uint32_t side) {
    const Extent extent = ExtentOf(header);
    if (extent.width != side || extent.height != side || byteCount > kMostPlainBytes) {
        return false;
    }
    if (IsPng(header)) {
        return true;
    }
    constexpr std::uint32_t uncompressed = 0;
    const bool goesUpwards = (Little32(header, 8) & 0x80000000u) == 0;
    return Little32(header, 0) == kBitmapHeaderBytes && goesUpwards && Little16(header, 12) == 1 &&
           Little16(header, 14) == 32 && Little32(header, 16) == uncompressed && byteCount >= PlainBitmapBytes(side);
}

bool IsPlainAt(const IconFileReader& read, const PictureBytes& place, std::uint32_t side) {
    std::array<std::uint8_t, kBitmapHeaderBytes> header;
    return ReadWhole(read, place.offset, header) && IsPlain(header, place.count, side);
}

} // namespace

std::optional<std::vector<IconPicture>> ReadIconHeaders(const IconFileReader& read) {
    const auto directory = ReadDirectory(read);
    if (!directory) {
        return std::nullopt;
    }
    std::vector<IconPicture> pictures;
    for (std::size_t i = 0; i < directory->count; ++i) {
        const auto entry = ReadEntry(read, i);
        std::array<std::uint8_t, kPictureHeaderBytes> header;
        if (!entry || !ReadWhole(read, entry->bytes.offset, header)) {
            continue;
        }
        const Extent extent = ExtentOf(header);
        if (extent.width != 0 && extent.height != 0) {
            pictures.push_back(
                {extent.width, extent.height, static_cast<std::uint32_t>(entry->bytes.offset), entry->bytes.count});
        }
    }
    return pictures;
}

std::optional<PictureBytes> FindPlainPicture(const IconFileReader& read, int side) {
    const auto directory = ReadDirectory(read);
    if (!directory || directory->type != kIconType || side <= 0 || side > 256) {
        return std::nullopt;
    }
    std::optional<PictureBytes> found;
    for (std::size_t i = 0; i < directory->count; ++i) {
        const auto entry = ReadEntry(read, i);
        if (!entry) {
            return std::nullopt;
        }
        const auto listed = static_cast<std::uint8_t>(side);
        if (entry->width == listed && entry->height == listed) {
            if (found) {
                return std::nullopt;
            }
            found = entry->bytes;
        }
    }
    if (!found || !IsPlainAt(read, *found, static_cast<std::uint32_t>(side))) {
        return std::nullopt;
    }
    return found;
}

std::optional<PictureBytes> FindOnlyPlainPicture(const IconFileReader& read) {
    const auto directory = ReadDirectory(read);
    if (!directory || directory->type != kIconType || directory->count != 1) {
        return std::nullopt;
    }
    const auto entry = ReadEntry(read, 0);
    constexpr std::uint32_t sideOfNone = 256;
    const std::uint32_t side = entry && entry->width != 0 ? entry->width : sideOfNone;
    if (!entry || entry->width != entry->height || !IsPlainAt(read, entry->bytes, side)) {
        return std::nullopt;
    }
    return entry->bytes;
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

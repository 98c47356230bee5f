#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

/// One picture of an icon file, measured by its own header: what the file's directory says of it may be wrong and ends
/// at 256. Sizes are pixels, `offset` and `byteCount` where its bytes stand in the file.
struct IconPicture {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t offset = 0;
    std::uint32_t byteCount = 0;
};

/// Fills `bytes` from `offset` of a file and returns how many there were, fewer at its end.
using IconFileReader = std::function<std::size_t(std::uint64_t offset, std::span<std::uint8_t> bytes)>;

/// The pictures of an icon file in the order of its directory, looked up without decoding any. A picture whose header
/// is missing or makes no sense is left out. No value: there is no directory of an icon file, or one that claims more
/// than kMostIconPictures.
std::optional<std::vector<IconPicture>> ReadIconHeaders(const IconFileReader& read);

/// A file that holds a picture with a longer side is not loaded: decoding a large one takes seconds, at every paint.
inline constexpr std::uint32_t kLongestIconSide = 1024;
inline constexpr std::size_t kMostIconPictures = 256;

/// Whether the file's pictures may be decoded: there is one, and none is larger than kLongestIconSide.
bool MayDecode(const std::optional<std::vector<IconPicture>>& pictures);

/// The side, in pixels, at which to load a file for a picture that is drawn `drawn` pixels wide: that of its smallest
/// picture that need not be enlarged, otherwise of its largest. On a display of 100 %, where the picture is drawn
/// `usual` pixels wide, and for a file that has nothing larger it is `usual`.
int SideToLoad(const std::vector<IconPicture>& pictures, int usual, int drawn);

/// Where the bytes of one picture stand in an icon file.
struct PictureBytes {
    std::uint64_t offset = 0;
    std::uint32_t count = 0;
};

/// A file that leaves no choice: exactly one of its pictures has `side` x `side` pixels, in 32 bits or as a PNG file,
/// its header agrees with the directory and the directory leaves room for all of it. Whoever is given these bytes draws
/// what the system draws from the file. No value: let the system choose, convert, resize or refuse.
std::optional<PictureBytes> FindPlainPicture(const IconFileReader& read, int side);

/// The same for a file with one picture alone, whatever side it is loaded at: the system has nothing else to resize.
std::optional<PictureBytes> FindOnlyPlainPicture(const IconFileReader& read);

/// A plain picture is not longer; what claims to be is left to the system.
inline constexpr std::uint32_t kMostPlainBytes = 1 << 20;

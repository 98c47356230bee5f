#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

/// How the files of a skin's pictures are named and measured.

namespace tovasque {

/// Scales in percent for which a picture may have a file of its own beside the one for 100 %, the largest first.
inline constexpr std::array<int, 3> kFilePercents{200, 150, 125};

/// NAME.png for 100 %, NAME.150.png for 150 %; a name without an extension stays as it is.
inline std::wstring FileForPercent(const std::wstring& path, int percent) {
    const std::size_t dot = path.rfind(L'.');
    if (percent == 100 || dot == std::wstring::npos) {
        return path;
    }
    return path.substr(0, dot) + L'.' + std::to_wstring(percent) + path.substr(dot);
}

/// In pixels.
struct PngSize {
    std::uint32_t width = 0, height = 0;
};

/// The size that a PNG file claims in its first bytes, whatever follows them; nothing for other files. A decoder takes
/// memory for that many pixels before it finds out whether they are there, so ask before it is let at the file.
inline std::optional<PngSize> ClaimedPngSize(std::span<const unsigned char> file) {
    constexpr std::array<unsigned char, 8> signature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    constexpr std::size_t widthAt = 16, heightAt = 20, end = 24;
    if (file.size() < end || !std::equal(signature.begin(), signature.end(), file.begin())) {
        return std::nullopt;
    }
    const auto bigEndian = [file](std::size_t at) {
        return std::uint32_t{file[at]} << 24 | std::uint32_t{file[at + 1]} << 16 | std::uint32_t{file[at + 2]} << 8 |
               file[at + 3];
    };
    return PngSize{bigEndian(widthAt), bigEndian(heightAt)};
}

/// A PNG file with the chunk that closes one at its end. A decoder makes a picture of one that is cut off, too: the
/// part that is there, with nothing or anything below it.
inline bool IsWholePng(std::span<const unsigned char> file) {
    constexpr std::array<unsigned char, 4> closing{'I', 'E', 'N', 'D'};
    constexpr std::size_t headerEnd = 33, chunkSize = 12, nameAt = 4; // length, name, checksum
    return ClaimedPngSize(file) && file.size() >= headerEnd + chunkSize &&
           std::ranges::equal(file.last(chunkSize).subspan(nameAt, closing.size()), closing);
}

} // namespace tovasque

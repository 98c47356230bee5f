#include "config/text_arena.h"

#include <varnhold/strings.h>

#include <algorithm>
#include <array>

namespace {

/// By the number of blocks that there are. The first is enough for a small file, the second for a usual one; asking the
/// system for more takes as long as reading a hundred elements. The others are so large that the heap takes them from
/// the system and gives them back at once: what smaller blocks leave behind would stay with the process when all
/// records are long gone.
constexpr std::array<std::size_t, 3> kBlockSizes = {std::size_t(16) << 10, std::size_t(64) << 10, std::size_t(1) << 20};

} // namespace

void* TextArena::TakeFromNewBlock(std::size_t bytes) {
    m_size = std::max(bytes, kBlockSizes[std::min(m_blocks.size(), kBlockSizes.size() - 1)]);
    m_blocks.push_back(std::make_unique_for_overwrite<std::byte[]>(m_size));
    m_block = m_blocks.back().get();
    m_used = bytes;
    return m_block;
}

std::wstring_view TextArena::Widen(std::string_view utf8) {
    if (utf8.empty()) {
        return L"";
    }
    auto* const letters = static_cast<wchar_t*>(Take((utf8.size() + 1) * sizeof(wchar_t), alignof(wchar_t)));
    const std::size_t length = string2wstring(utf8, letters);
    letters[length] = L'\0';
    m_used -= (utf8.size() - length) * sizeof(wchar_t);
    return {letters, length};
}

std::wstring_view TextArena::Join(std::wstring_view first, std::wstring_view second) {
    const std::size_t length = first.size() + second.size();
    auto* const letters = static_cast<wchar_t*>(Take((length + 1) * sizeof(wchar_t), alignof(wchar_t)));
    std::copy(second.begin(), second.end(), std::copy(first.begin(), first.end(), letters));
    letters[length] = L'\0';
    return {letters, length};
}

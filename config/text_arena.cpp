#include "config/text_arena.h"

#include <varnhold/strings.h>

#include <algorithm>

namespace {

constexpr std::size_t firstBlockSize = std::size_t(16) << 10;
constexpr std::size_t largestBlockSize = std::size_t(256) << 10;

} // namespace

void* TextArena::TakeFromNewBlock(std::size_t bytes) {
    const std::size_t next = std::clamp(2 * m_size, firstBlockSize, largestBlockSize);
    m_size = std::max(bytes, next);
    m_blocks.push_back(std::make_unique_for_overwrite<std::byte[]>(m_size));
    m_block = m_blocks.back().get();
    m_used = bytes;
    return m_block;
}

std::wstring_view TextArena::Widen(std::string_view utf8) {
    if (utf8.empty()) {
        return {L"", 0};
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

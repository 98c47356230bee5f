#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

/// Memory for the many small texts and lists of one file, which are made together and go together. What was taken from
/// it stays where it is, also when the arena is moved, and is never destroyed, only given back as a whole.
class TextArena {
public:
    TextArena() = default;
    TextArena(TextArena&& other) noexcept { Swap(other); }
    TextArena& operator=(TextArena&& other) noexcept {
        TextArena taken(std::move(other));
        Swap(taken);
        return *this;
    }

    /// `count` new objects side by side.
    template <class T>
    std::span<T> MakeArray(std::size_t count) {
        static_assert(std::is_trivially_destructible_v<T>);
        T* const first = static_cast<T*>(Take(count * sizeof(T), alignof(T)));
        static constexpr T kNew{}; // copying it takes fewer steps than making each
        std::uninitialized_fill_n(first, count, kNew);
        return {first, count};
    }

    /// Wide texts with a NUL behind them that their length does not count.
    std::wstring_view Widen(std::string_view utf8);
    std::wstring_view Join(std::wstring_view first, std::wstring_view second);

private:
    /// `alignment`: a power of two, no more than that of any scalar.
    void* Take(std::size_t bytes, std::size_t alignment) {
        const std::size_t from = (m_used + alignment - 1) & ~(alignment - 1);
        if (from > m_size || bytes > m_size - from) {
            return TakeFromNewBlock(bytes);
        }
        m_used = from + bytes;
        return m_block + from;
    }
    void Swap(TextArena& other) noexcept {
        m_blocks.swap(other.m_blocks);
        std::swap(m_block, other.m_block);
        std::swap(m_size, other.m_size);
        std::swap(m_used, other.m_used);
    }
    void* TakeFromNewBlock(std::size_t bytes);

    std::vector<std::unique_ptr<std::byte[]>> m_blocks;
    std::byte* m_block = nullptr; // the one that is being filled
    std::size_t m_size = 0;
    std::size_t m_used = 0;
};

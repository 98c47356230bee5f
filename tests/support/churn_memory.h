#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <vector>

/// Freed memory is overwritten by the next allocation of its size: a touch of it shows.
inline void ChurnMemory() {
    std::vector<std::unique_ptr<char[]>> blocks;
    for (std::size_t size = 16; size < 3000; size += 8) {
        for (int i = 0; i < 4; ++i) {
            blocks.push_back(std::make_unique<char[]>(size));
            std::memset(blocks.back().get(), 0xDD, size);
        }
    }
}

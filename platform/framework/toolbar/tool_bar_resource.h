#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace toolbar {

/// A "TOOLBAR" resource: the size of an image in pixels, and the commands, 0 for a separator.
struct ToolBarResource {
    int imageWidth = 0;
    int imageHeight = 0;
    std::vector<unsigned> commands;
};

/// Both forms that resource compilers write: version 1 and numbers of 16 bits, or no version and numbers of 32 bits. No
/// value: the bytes are neither, or fewer than they say.
std::optional<ToolBarResource> ReadToolBarResource(std::span<const std::uint8_t> bytes);

} // namespace toolbar

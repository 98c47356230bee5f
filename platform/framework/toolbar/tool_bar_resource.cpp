#include "toolbar/tool_bar_resource.h"

#include <cstring>

namespace {

constexpr std::size_t kHeadNumbers = 3; // width, height, count
constexpr std::uint16_t kVersion = 1;

template <typename Number>
Number NumberAt(std::span<const std::uint8_t> bytes, std::size_t index) {
    Number number;
    std::memcpy(&number, bytes.data() + index * sizeof(Number), sizeof(Number));
    return number;
}

/// Width, height and count in front of the commands, all of one size.
template <typename Number>
std::optional<toolbar::ToolBarResource> ReadNumbers(std::span<const std::uint8_t> bytes) {
    const std::size_t available = bytes.size() / sizeof(Number);
    if (available < kHeadNumbers || NumberAt<Number>(bytes, 2) > available - kHeadNumbers) {
        return std::nullopt;
    }
    toolbar::ToolBarResource resource;
    resource.imageWidth = static_cast<int>(NumberAt<Number>(bytes, 0));
    resource.imageHeight = static_cast<int>(NumberAt<Number>(bytes, 1));
    for (std::size_t index = 0; index < NumberAt<Number>(bytes, 2); ++index) {
        resource.commands.push_back(NumberAt<Number>(bytes, kHeadNumbers + index));
    }
    return resource;
}

bool IsSound(const std::optional<toolbar::ToolBarResource>& resource) {
    constexpr int kLongestSide = 1024;
    return resource && resource->imageWidth > 0 && resource->imageWidth <= kLongestSide && resource->imageHeight > 0 &&
           resource->imageHeight <= kLongestSide;
}

} // namespace

// A width of one pixel in 32 bits looks like the version: then the height behind it reads as a width of 0.
std::optional<toolbar::ToolBarResource> toolbar::ReadToolBarResource(std::span<const std::uint8_t> bytes) {
    if (bytes.size() >= sizeof(kVersion) && NumberAt<std::uint16_t>(bytes, 0) == kVersion) {
        if (auto resource = ReadNumbers<std::uint16_t>(bytes.subspan(sizeof(kVersion))); IsSound(resource)) {
            return resource;
        }
    }
    auto resource = ReadNumbers<std::uint32_t>(bytes);
    return IsSound(resource) ? resource : std::nullopt;
}

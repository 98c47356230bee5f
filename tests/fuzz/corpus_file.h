#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

/// The inputs that were kept for a target: one behind the other, each after its length in four bytes, the lowest first.
/// `scripts/fuzz` writes the file. Nothing for one that is missing or cut off.
inline std::optional<std::vector<std::string>> ReadCorpus(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        return std::nullopt;
    }
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    std::vector<std::string> inputs;
    constexpr std::size_t lengthBytes = 4;
    for (std::size_t at = 0; at < bytes.size();) {
        if (bytes.size() - at < lengthBytes) {
            return std::nullopt;
        }
        std::uint32_t length = 0;
        for (std::size_t i = 0; i < lengthBytes; ++i) {
            length |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + i])) << (8 * i);
        }
        at += lengthBytes;
        if (bytes.size() - at < length) {
            return std::nullopt;
        }
        inputs.push_back(bytes.substr(at, length));
        at += length;
    }
    return inputs;
}

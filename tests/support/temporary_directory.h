#pragma once

#include <varnhold/strings.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

/// A directory of its own for one test; gone with the object.
class TemporaryDirectory {
public:
    TemporaryDirectory() {
        std::random_device random;
        const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
        m_path = std::filesystem::temp_directory_path() /
                 ("barwright-" + std::to_string(now) + "-" + std::to_string(random()));
        std::filesystem::create_directories(m_path);
    }
    ~TemporaryDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    const std::filesystem::path& Path() const { return m_path; }
    /// With the closing separator, as an installation directory has it.
    std::wstring Prefix() const { return (m_path / "").wstring(); }
    /// Writes the bytes as they are; folders are made.
    std::wstring Write(const std::string& name, std::string_view bytes) const {
        const std::filesystem::path file = m_path / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return file.wstring();
    }

private:
    std::filesystem::path m_path;
};

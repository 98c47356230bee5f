#pragma once

#include "varnhold/strings.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

/// A folder of the test's own, removed with everything in it at the end.
class TempFolder {
public:
    TempFolder() : m_path(std::filesystem::temp_directory_path() / ("varnhold-" + std::to_string(MakeNumber()))) {
        std::filesystem::create_directories(m_path);
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /// Writes a file (folders on the way are made) and returns its path.
    std::wstring Write(const std::filesystem::path& name, std::string_view content) const {
        const std::filesystem::path path = m_path / name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary).write(content.data(), static_cast<std::streamsize>(content.size()));
        return ToWide(path);
    }

    /// Not path::wstring, which depends on the locale on Linux.
    static std::wstring ToWide(const std::filesystem::path& path) {
        const std::u8string text = path.u8string();
        return string2wstring(std::string(text.begin(), text.end()));
    }

    const std::filesystem::path& GetPath() const { return m_path; }

    /// The folder as an installation directory.
    std::wstring GetAppPath() const { return ToWide(m_path / ""); }

private:
    static unsigned MakeNumber() { return std::random_device{}(); }

    std::filesystem::path m_path;
};

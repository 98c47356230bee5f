#include "kept_file.h"

#include <fstream>
#include <iterator>
#include <optional>

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t kLargest = std::uintmax_t{16} << 20;

std::optional<std::string> TextOf(const fs::path& path) {
    std::error_code error;
    const std::uintmax_t size = fs::file_size(path, error);
    std::ifstream file(path, std::ios::binary);
    if (error || size > kLargest || !file) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(file), {});
}

} // namespace

fs::path KeptFile::Beside(const char* ending) const {
    fs::path path = m_path;
    path += ending;
    return path;
}

KeptFile::Source KeptFile::Read(const Reader& reader) const {
    const auto isRead = [&reader](const fs::path& path) {
        const std::optional<std::string> text = TextOf(path);
        return text && reader(*text);
    };
    std::error_code error;
    const fs::path last = Beside(".last");
    const bool isThere = fs::exists(m_path, error);
    if (isThere && isRead(m_path)) {
        return Source::File;
    }
    if (isThere) {
        fs::rename(m_path, Beside(".damaged"), error);
    }
    if (isRead(last)) {
        return Source::LastGood;
    }
    return isThere || fs::exists(last, error) ? Source::Damaged : Source::Nowhere;
}

// A file that could not be read was put aside: what lies here is good and becomes the last good one.
bool KeptFile::Write(const std::string& text) const {
    std::error_code error;
    fs::create_directories(m_path.parent_path(), error);
    const fs::path fresh = Beside(".new");
    bool isWritten = false;
    {
        std::ofstream file(fresh, std::ios::binary);
        file << text;
        isWritten = static_cast<bool>(file.flush());
    }
    if (!isWritten) {
        fs::remove(fresh, error);
        return false;
    }
    // Renamed, not copied: copy_file does not overwrite on Windows, where the standard library of GCC takes any two
    // files for the same one.
    const fs::path lastGood = Beside(".last");
    const bool isReplaced = fs::exists(m_path, error);
    if (isReplaced) {
        fs::rename(m_path, lastGood, error);
    }
    fs::rename(fresh, m_path, error);
    if (error) {
        std::error_code ignored;
        if (isReplaced) {
            fs::rename(lastGood, m_path, ignored);
        }
        fs::remove(fresh, ignored);
        return false;
    }
    return true;
}

#include "src/file_system.h"

#include "varnhold/strings.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace varnhold {

namespace fs = std::filesystem;

NativePath ToNativePath(const std::wstring& path) { return wstring2String(path); }
NativePath ToNativePath(std::string_view utf8Path) { return std::string(utf8Path); }

FileContent ReadWholeFile(const NativePath& path, std::size_t maxSize) {
    if (path.find('\0') != NativePath::npos)
        return {false, {}, L"the path holds a NUL character"};
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status))
        return {false, {}, error ? string2wstring(error.message()) : L"the file does not exist"};
    if (!fs::is_regular_file(status))
        return {false, {}, L"this is not a file"};
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return {false, {}, string2wstring(std::generic_category().message(errno))};
    std::string content;
    char block[65536];
    while (file.read(block, sizeof block), file.gcount() > 0) {
        content.append(block, static_cast<std::size_t>(file.gcount()));
        if (content.size() > maxSize)
            return {false, {}, L"the file is longer than " + std::to_wstring(maxSize) + L" bytes"};
    }
    if (file.bad())
        return {false, {}, L"the file could not be read"};
    return {true, std::move(content), {}};
}

bool IsFile(const NativePath& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    return fs::exists(status) && !fs::is_directory(status);
}

std::vector<std::wstring> ListFolder(const std::wstring& path, EntryKind kind) {
    std::vector<std::wstring> names;
    std::error_code error;
    for (fs::directory_iterator entry(ToNativePath(path), error), end; !error && entry != end; entry.increment(error)) {
        std::error_code statusError;
        const bool folder = entry->is_directory(statusError);
        if (!statusError && folder == (kind == EntryKind::Folders))
            names.push_back(string2wstring(entry->path().filename().native()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

bool GetProgramFolder(std::wstring& path) {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    if (error)
        return false;
    path = string2wstring(program.parent_path().native() + '/');
    return true;
}

} // namespace varnhold

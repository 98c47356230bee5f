#include "src/file_system.h"

#include "varnhold/strings.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

namespace varnhold {

namespace fs = std::filesystem;

namespace {

class FileDescriptor {
public:
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
    ~FileDescriptor() {
        if (IsOpen()) {
            ::close(m_descriptor);
        }
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    bool IsOpen() const { return m_descriptor >= 0; }
    int Get() const { return m_descriptor; }

private:
    int m_descriptor;
};

std::wstring DescribeError(int error) { return string2wstring(std::generic_category().message(error)); }

} // namespace

NativePath ToNativePath(const std::wstring& path) { return wstring2String(path); }
NativePath ToNativePath(std::string_view utf8Path) { return std::string(utf8Path); }

FileContent ReadWholeFile(const NativePath& path, std::size_t maxSize) {
    if (path.find('\0') != NativePath::npos) {
        return {false, {}, L"the path holds a NUL character"};
    }
    // Without blocking, or opening a pipe would wait for its writer.
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (!file.IsOpen() || ::fstat(file.Get(), &status) != 0) {
        return {false, {}, DescribeError(errno)};
    }
    if (!S_ISREG(status.st_mode)) {
        return {false, {}, L"this is not a file"};
    }
    // One byte more than the file should have: where it stays unused, the end was reached in one read.
    std::string content(std::min(static_cast<std::size_t>(status.st_size), maxSize) + 1, '\0');
    std::size_t length = 0;
    while (true) {
        const ssize_t count = ::read(file.Get(), content.data() + length, content.size() - length);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return {false, {}, DescribeError(errno)};
        }
        length += static_cast<std::size_t>(count);
        if (length > maxSize) {
            return {false, {}, L"the file is longer than " + std::to_wstring(maxSize) + L" bytes"};
        }
        if (count == 0) {
            break;
        }
        if (length == content.size()) {
            content.resize(std::min(2 * length, maxSize + 1));
        }
    }
    content.resize(length);
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
        if (!statusError && folder == (kind == EntryKind::Folders)) {
            names.push_back(string2wstring(entry->path().filename().native()));
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

bool GetProgramFolder(std::wstring& path) {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    if (error) {
        return false;
    }
    path = string2wstring(program.parent_path().native() + '/');
    return true;
}

} // namespace varnhold

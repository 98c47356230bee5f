#include "src/file_system.h"

#include "varnhold/strings.h"

#include <windows.h>

#include <algorithm>

namespace varnhold {

namespace {

class FileHandle {
public:
    explicit FileHandle(HANDLE handle) : m_handle(handle) {}
    ~FileHandle() {
        if (IsOpen()) {
            CloseHandle(m_handle);
        }
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return m_handle; }

private:
    HANDLE m_handle;
};

std::wstring DescribeError(DWORD error) {
    wchar_t text[512];
    DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0, text,
                                  static_cast<DWORD>(std::size(text)), nullptr);
    while (length > 0 && (text[length - 1] <= L' ' || text[length - 1] == L'.')) {
        --length;
    }
    return length > 0 ? std::wstring(text, length) : L"system error " + std::to_wstring(error);
}

constexpr std::size_t kLongestRead = std::size_t(1) << 30;

bool IsFolder(const NativePath& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool Contains(const std::wstring& text, wchar_t c) { return text.find(c) != std::wstring::npos; }

std::wstring MakeFullPath(const std::wstring& path) {
    std::wstring full(MAX_PATH, L'\0');
    while (true) {
        const DWORD length = GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
        if (length == 0) {
            return path;
        }
        const bool fits = length < full.size();
        full.resize(length);
        if (fits) {
            return full;
        }
    }
}

} // namespace

NativePath ToNativePath(const std::wstring& path) {
    // Room is left for a file name behind a folder, as the system itself does for folders.
    constexpr std::size_t longest = MAX_PATH - 12;
    if (path.size() < longest || path.starts_with(L"\\\\?\\") || Contains(path, L'\0')) {
        return path;
    }
    const std::wstring full = MakeFullPath(path);
    if (full.starts_with(L"\\\\")) {
        return L"\\\\?\\UNC\\" + full.substr(2);
    }
    return L"\\\\?\\" + full;
}

NativePath ToNativePath(std::string_view utf8Path) { return ToNativePath(string2wstring(utf8Path)); }

FileContent ReadWholeFile(const NativePath& path, std::size_t maxSize) {
    if (Contains(path, L'\0')) {
        return {false, {}, L"the path holds a NUL character"};
    }
    const FileHandle file(CreateFileW(path.c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!file.IsOpen()) {
        const DWORD error = GetLastError();
        return {false, {}, IsFolder(path) ? L"this is not a file" : DescribeError(error)};
    }
    if (GetFileType(file.Get()) != FILE_TYPE_DISK) {
        return {false, {}, L"this is not a file"};
    }
    LARGE_INTEGER size;
    if (!GetFileSizeEx(file.Get(), &size)) {
        return {false, {}, DescribeError(GetLastError())};
    }
    // One byte more than the file should have: where it stays unused, the end was reached in one read.
    std::string content(std::min(static_cast<std::size_t>(size.QuadPart), maxSize) + 1, '\0');
    std::size_t length = 0;
    while (true) {
        const std::size_t room = content.size() - length;
        const DWORD asked = static_cast<DWORD>(std::min(room, kLongestRead));
        DWORD count = 0;
        if (!ReadFile(file.Get(), content.data() + length, asked, &count, nullptr)) {
            return {false, {}, DescribeError(GetLastError())};
        }
        length += count;
        if (length > maxSize) {
            return {false, {}, L"the file is longer than " + std::to_wstring(maxSize) + L" bytes"};
        }
        if (count < asked) {
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
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::vector<std::wstring> ListFolder(const std::wstring& path, EntryKind kind) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW(ToNativePath(path + L"\\*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) {
        return names;
    }
    do {
        const std::wstring name = entry.cFileName;
        const bool folder = (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        if (folder == (kind == EntryKind::Folders) && name != L"." && name != L"..") {
            names.push_back(name);
        }
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    std::sort(names.begin(), names.end());
    return names;
}

bool GetProgramFolder(std::wstring& path) {
    std::wstring program(MAX_PATH, L'\0');
    DWORD length = 0;
    while ((length = GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()))) ==
           program.size()) {
        program.resize(program.size() * 2);
    }
    program.resize(length);
    const std::size_t separator = program.find_last_of(L"\\/");
    if (separator == std::wstring::npos) {
        return false;
    }
    path = program.substr(0, separator + 1);
    return true;
}

} // namespace varnhold

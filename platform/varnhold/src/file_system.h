#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace varnhold {

// Paths as the system takes them: wide (and prefixed where they are long) on Windows, bytes elsewhere.
#ifdef _WIN32
typedef std::wstring NativePath;
constexpr wchar_t kSeparator = L'\\';
#else
typedef std::string NativePath;
constexpr wchar_t kSeparator = L'/';
#endif

NativePath ToNativePath(const std::wstring& path);
NativePath ToNativePath(std::string_view utf8Path);

struct FileContent {
    bool read = false;
    std::string bytes;
    std::wstring reason; // why it was not read
};

/// Reads a plain file of at most `maxSize` bytes.
FileContent ReadWholeFile(const NativePath& path, std::size_t maxSize);

/// True for an existing file that is not a folder.
bool IsFile(const NativePath& path);

enum class EntryKind { Files, Folders };
/// Names of the files or folders in a folder, sorted; empty when it cannot be read.
std::vector<std::wstring> ListFolder(const std::wstring& path, EntryKind kind);

/// The folder of the running program with its closing separator. False when it is unknown.
bool GetProgramFolder(std::wstring& path);

} // namespace varnhold

#pragma once

#include <nlohmann/json.hpp>

#include <optional>
#include <string>
#include <vector>

// Many installation directories in one process, one after the other.

/// An installation directory, with its closing backslash, and the file that its dump goes to.
struct BatchEntry {
    std::wstring directory;
    std::wstring dump;
};

/// The lines of a UTF-8 file: directory, tab, file. Empty lines do not count. Nothing, with a line in `error`, when the
/// file cannot be read or a line is not made so.
std::optional<std::vector<BatchEntry>> ReadBatch(const std::wstring& path, std::wstring& error);

/// A process as it was before the first configuration: empty registry, ids from the beginning, no images, no status
/// extras. No bar of a configuration may be alive.
void ForgetConfiguration();

/// Where all directories of a batch are: it becomes the current directory, and the installation directory is always
/// this one, because the library asks for it once in the process.
inline constexpr wchar_t kCurrentDirectory[] = L".\\";
bool EnterDirectory(const std::wstring& directory);
/// The dump as if the directory had been asked for by its own name.
void NameDirectory(nlohmann::ordered_json& dump, const std::wstring& directory);

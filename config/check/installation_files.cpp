#include "config/check/installation_files.h"

#include <varnhold/letter_case.h>
#include <varnhold/strings.h>

#include <algorithm>
#include <filesystem>

namespace {

namespace fs = std::filesystem;

std::wstring Folded(std::wstring_view name) {
    std::wstring folded(name);
    std::ranges::transform(folded, folded.begin(), [](wchar_t c) { return varnhold::LowerAscii(c); });
    return folded;
}

fs::path NativePath(const std::wstring& path) {
#ifdef _WIN32
    return fs::path(path);
#else
    return fs::path(wstring2String(path));
#endif
}

std::wstring NameOf(const fs::path& path) {
#ifdef _WIN32
    return path.filename().native();
#else
    return string2wstring(path.filename().native());
#endif
}

#ifdef _WIN32
constexpr wchar_t kSeparator = L'\\';
#else
constexpr wchar_t kSeparator = L'/';
#endif

std::vector<std::wstring> Values(const std::map<std::wstring, std::wstring>& names) {
    std::vector<std::wstring> values;
    values.reserve(names.size());
    for (const auto& [folded, name] : names) {
        values.push_back(name);
    }
    return values;
}

} // namespace

std::wstring FoldedPath(std::wstring_view path) {
    std::wstring folded = Folded(path);
    std::ranges::replace(folded, L'\\', L'/');
    return folded;
}

std::optional<std::vector<std::wstring>> PathParts(std::wstring_view path) {
    std::vector<std::wstring> parts;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of(L"\\/"), path.size());
        const std::wstring_view part = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (part == L"..") {
            if (parts.empty()) {
                return std::nullopt;
            }
            parts.pop_back();
        } else if (!part.empty() && part != L".") {
            parts.emplace_back(part);
        }
    }
    return parts;
}

InstallationFiles::InstallationFiles(std::wstring directory) : m_directory(std::move(directory)) {}

const InstallationFiles::Folder* InstallationFiles::Open(const std::vector<std::wstring>& parts) const {
    std::wstring path = m_directory;
    std::wstring key;
    const Folder* folder = nullptr;
    for (std::size_t i = 0;; ++i) {
        const auto [found, isNew] = m_folders.try_emplace(key);
        if (isNew) {
            found->second.path = path;
            std::error_code error;
            for (fs::directory_iterator entry(NativePath(path), error), end; !error && entry != end;
                 entry.increment(error)) {
                std::error_code ignored;
                const std::wstring name = NameOf(entry->path());
                auto& names = entry->is_directory(ignored) ? found->second.folders : found->second.files;
                names.emplace(Folded(name), name);
            }
        }
        folder = &found->second;
        if (i == parts.size()) {
            return folder;
        }
        const auto next = folder->folders.find(Folded(parts[i]));
        if (next == folder->folders.end()) {
            return nullptr;
        }
        key += next->first + L'/';
        path += next->second + kSeparator;
    }
}

std::optional<std::wstring> InstallationFiles::Find(std::wstring_view path) const {
    auto parts = PathParts(path);
    if (!parts || parts->empty()) {
        return std::nullopt;
    }
    const std::wstring name = std::move(parts->back());
    parts->pop_back();
    const Folder* const folder = Open(*parts);
    if (!folder) {
        return std::nullopt;
    }
    const auto found = folder->files.find(Folded(name));
    return found == folder->files.end() ? std::nullopt : std::optional(folder->path + found->second);
}

std::wstring InstallationFiles::FullPath(std::wstring_view path) const {
    std::wstring full(path);
    std::ranges::replace_if(
        full, [](wchar_t c) { return c == L'\\' || c == L'/'; }, kSeparator);
    return m_directory + full;
}

std::vector<std::wstring> InstallationFiles::FilesIn(std::wstring_view folder) const {
    const auto parts = PathParts(folder);
    const Folder* const found = parts ? Open(*parts) : nullptr;
    return found ? Values(found->files) : std::vector<std::wstring>();
}

std::vector<std::wstring> InstallationFiles::FoldersIn(std::wstring_view folder) const {
    const auto parts = PathParts(folder);
    const Folder* const found = parts ? Open(*parts) : nullptr;
    return found ? Values(found->folders) : std::vector<std::wstring>();
}

bool InstallationFiles::LeadsOut(std::wstring_view path) { return !PathParts(path); }

std::wstring InstallationFiles::RelativeName(const std::wstring& fullPath) const {
    std::wstring name = fullPath.starts_with(m_directory) ? fullPath.substr(m_directory.size()) : fullPath;
    std::ranges::replace(name, L'\\', L'/');
    return name;
}

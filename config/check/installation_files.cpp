#include "config/check/installation_files.h"

#include <algorithm>
#include <utility>

namespace {

#ifdef _WIN32
constexpr wchar_t kSeparator = L'\\';
#else
constexpr wchar_t kSeparator = L'/';
#endif

} // namespace

std::wstring FoldedPath(std::wstring_view path) {
    std::wstring folded = FoldedName(path);
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
    for (std::size_t i = 0;; ++i) {
        const auto [found, isNew] = m_folders.try_emplace(key);
        Folder& folder = found->second;
        if (isNew) {
            folder = {path, ListFolder(path)};
        }
        if (i == parts.size()) {
            return &folder;
        }
        const auto next = folder.listing.folders.find(FoldedName(parts[i]));
        if (next == folder.listing.folders.end()) {
            return nullptr;
        }
        key += next->first + L'/';
        path += next->second + kSeparator;
    }
}

std::pair<const InstallationFiles::Folder*, const ListedFile*>
InstallationFiles::FindListed(std::wstring_view path) const {
    auto parts = PathParts(path);
    if (!parts || parts->empty()) {
        return {};
    }
    const std::wstring name = std::move(parts->back());
    parts->pop_back();
    const Folder* const folder = Open(*parts);
    if (!folder) {
        return {};
    }
    const auto found = folder->listing.files.find(FoldedName(name));
    return {folder, found == folder->listing.files.end() ? nullptr : &found->second};
}

std::optional<std::wstring> InstallationFiles::Find(std::wstring_view path) const {
    const auto [folder, file] = FindListed(path);
    return file ? std::optional(folder->path + file->name) : std::nullopt;
}

std::optional<FileStamp> InstallationFiles::StampOf(std::wstring_view path) const {
    const ListedFile* const file = FindListed(path).second;
    return file ? file->stamp : std::nullopt;
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
    std::vector<std::wstring> names;
    if (found) {
        for (const auto& [folded, file] : found->listing.files) {
            names.push_back(file.name);
        }
    }
    return names;
}

std::vector<std::wstring> InstallationFiles::FoldersIn(std::wstring_view folder) const {
    const auto parts = PathParts(folder);
    const Folder* const found = parts ? Open(*parts) : nullptr;
    std::vector<std::wstring> names;
    if (found) {
        for (const auto& [folded, name] : found->listing.folders) {
            names.push_back(name);
        }
    }
    return names;
}

bool InstallationFiles::LeadsOut(std::wstring_view path) { return !PathParts(path); }

std::wstring InstallationFiles::RelativeName(const std::wstring& fullPath) const {
    std::wstring name = fullPath.starts_with(m_directory) ? fullPath.substr(m_directory.size()) : fullPath;
    std::ranges::replace(name, L'\\', L'/');
    return name;
}

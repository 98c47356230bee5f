#include "commands/resource_paths.h"

std::wstring IconFileBelow(const std::wstring& appDirectory, const std::wstring& path, int size) {
    const std::size_t backslash = path.rfind(L'\\');
    const std::size_t split = backslash == std::wstring::npos ? 0 : backslash;
    return appDirectory + path.substr(0, split) + L'\\' + std::to_wstring(size) + path.substr(split);
}

std::wstring MediaFolderOf(const std::wstring& recordedFolder) {
    std::wstring folder = recordedFolder;
    if (folder.size() >= 2 && folder.back() != L'\\') {
        folder += L'\\';
    }
    if (!folder.empty()) {
        folder += L"Media\\";
    }
    return folder;
}

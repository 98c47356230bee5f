#pragma once

#include <string>

/// Where icon files lie, below the installation directory: `path` with a folder named by `size` put before its file
/// name.
std::wstring IconFileBelow(const std::wstring& appDirectory, const std::wstring& path, int size);

/// The folder of the help videos, made from the folder that the installation recorded; empty when that is empty. A
/// recorded text of one character gets no backslash before "Media\".
std::wstring MediaFolderOf(const std::wstring& recordedFolder);

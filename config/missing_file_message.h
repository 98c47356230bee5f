#pragma once

#include <string>

/// Asks the user to make sure that a configuration file exists; the application's main window owns the message box.
void ShowMissingFileMessage(const std::wstring& fullPath);

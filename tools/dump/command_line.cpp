#include "command_line.h"

#include <windows.h>

#include <shellapi.h>

std::vector<std::wstring> CommandLineWords() {
    int count = 0;
    LPWSTR* const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::wstring> arguments;
    for (int i = 1; i < count; ++i) {
        arguments.emplace_back(words[i]);
    }
    ::LocalFree(words);
    return arguments;
}

#include "command_line.h"

#include <windows.h>

#include <shellapi.h>

#include <cwchar>

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

bool ParseInteger(const std::wstring& text, int low, int high, int& number) {
    wchar_t* end = nullptr;
    const long value = std::wcstol(text.c_str(), &end, 10);
    if (text.empty() || *end != 0 || value < low || value > high) {
        return false;
    }
    number = static_cast<int>(value);
    return true;
}

bool ParseSize(const std::wstring& text, int largest, int& width, int& height) {
    const std::size_t cross = text.find(L'x');
    return cross != std::wstring::npos && ParseInteger(text.substr(0, cross), 1, largest, width) &&
           ParseInteger(text.substr(cross + 1), 1, largest, height);
}

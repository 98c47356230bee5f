#include "options.h"

#include <cwchar>
#include <functional>
#include <map>

namespace {

bool ParseInt(const std::wstring& text, int& number) {
    wchar_t* end = nullptr;
    const long value = std::wcstol(text.c_str(), &end, 10);
    if (text.empty() || *end != 0 || value < 0 || value > 100000)
        return false;
    number = static_cast<int>(value);
    return true;
}

bool ParseSize(const std::wstring& text, int& width, int& height) {
    const std::size_t cross = text.find(L'x');
    return cross != std::wstring::npos && ParseInt(text.substr(0, cross), width) &&
           ParseInt(text.substr(cross + 1), height) && width > 0 && height > 0;
}

} // namespace

std::optional<DemoOptions> ParseDemoOptions(const std::vector<std::wstring>& arguments, std::wstring& error) {
    DemoOptions options;
    typedef std::function<bool(const std::wstring&)> Setter;
    const auto text = [](std::wstring& target) {
        return Setter([&target](const std::wstring& v) {
            target = v;
            return true;
        });
    };
    const std::map<std::wstring, Setter> setters = {
        {L"--lang", text(options.language)},
        {L"--skin", text(options.skin)},
        {L"--screenshot", text(options.screenshot)},
        {L"--record", text(options.record)},
        {L"--size", [&](const std::wstring& v) { return ParseSize(v, options.width, options.height); }},
        {L"--scale", [&](const std::wstring& v) { return ParseInt(v, options.scalePercent); }},
        {L"--category", [&](const std::wstring& v) { return ParseInt(v, options.category); }},
    };
    for (std::size_t i = 0; i < arguments.size(); i += 2) {
        const auto setter = setters.find(arguments[i]);
        if (setter == setters.end()) {
            error = L"unknown option " + arguments[i];
            return std::nullopt;
        }
        if (i + 1 == arguments.size() || !setter->second(arguments[i + 1])) {
            error = arguments[i] + L" needs a proper value";
            return std::nullopt;
        }
    }
    return options;
}

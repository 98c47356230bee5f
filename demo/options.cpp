#include "options.h"

#include "command_line.h"

#include <functional>
#include <map>

namespace {

constexpr int kLargest = 100000;

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
        {L"--skin",
         [&](const std::wstring& v) {
             options.skin = v;
             return v == L"black" || v == L"silver";
         }},
        {L"--mode",
         [&](const std::wstring& v) {
             options.mode = v;
             return v == L"browse" || v == L"edit" || v == L"print";
         }},
        {L"--screenshot", text(options.screenshot)},
        {L"--record", text(options.record)},
        {L"--direction",
         [&](const std::wstring& v) {
             options.isRightToLeft = v == L"rtl";
             return v == L"rtl" || v == L"ltr";
         }},
        {L"--size", [&](const std::wstring& v) { return ParseSize(v, kLargest, options.width, options.height); }},
        {L"--scale", [&](const std::wstring& v) { return ParseInteger(v, 0, kLargest, options.scalePercent); }},
        {L"--category", [&](const std::wstring& v) { return ParseInteger(v, 0, kLargest, options.category); }},
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

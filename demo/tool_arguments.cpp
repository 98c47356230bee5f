#include "tool_arguments.h"

#include <array>
#include <cwchar>

std::wstring FillArguments(const std::wstring& arguments,
                           const std::function<std::wstring(const std::wstring&)>& valueOf) {
    constexpr wchar_t open[] = L"$(";
    std::wstring filled;
    std::size_t at = 0;
    while (true) {
        const std::size_t begin = arguments.find(open, at);
        const std::size_t end = begin != std::wstring::npos ? arguments.find(L')', begin) : begin;
        filled += arguments.substr(at, end != std::wstring::npos ? begin - at : end);
        if (end == std::wstring::npos) {
            return filled;
        }
        filled += valueOf ? valueOf(arguments.substr(begin + 2, end - begin - 2)) : std::wstring();
        at = end + 1;
    }
}

std::wstring PlaceArgument(GeoPoint place) {
    std::array<wchar_t, 64> text{};
    std::swprintf(text.data(), text.size(), L"%.4f,%.4f", place.latitude, place.longitude);
    return text.data();
}

#include "system_language.h"

#include <algorithm>
#include <array>

namespace {

constexpr wchar_t kFallback[] = L"en";

std::wstring LanguageAlone(const std::wstring& code) { return code.substr(0, code.find(L'-')); }

constexpr std::array<const wchar_t*, 6> kFromRight = {L"ar", L"fa", L"he", L"ps", L"ur", L"yi"};

} // namespace

std::wstring ChooseLanguage(const std::wstring& wanted, const std::vector<std::wstring>& installed) {
    const auto find = [&installed](const auto& isWanted) {
        return std::find_if(installed.begin(), installed.end(), isWanted);
    };
    auto found = find([&](const std::wstring& code) { return code == wanted; });
    if (found == installed.end() && !wanted.empty()) {
        found = find([&](const std::wstring& code) { return LanguageAlone(code) == LanguageAlone(wanted); });
    }
    if (found == installed.end()) {
        found = find([](const std::wstring& code) { return code == kFallback; });
    }
    if (found == installed.end()) {
        found = installed.begin();
    }
    return found == installed.end() ? std::wstring() : *found;
}

bool IsWrittenFromRight(const std::wstring& code) {
    return std::find(kFromRight.begin(), kFromRight.end(), LanguageAlone(code)) != kFromRight.end();
}

// Letters as the system's own tables know them, in no user's locale.
#include "core/letters.h"

#include <windows.h>

namespace {

WORD TypeOf(wchar_t character, DWORD kind) {
    WORD type = 0;
    return ::GetStringTypeW(kind, &character, 1, &type) ? type : 0;
}

} // namespace

std::wstring fx::UpperCase(std::wstring_view text) {
    std::wstring capitals(text);
    const auto length = static_cast<int>(text.size());
    // One letter for one: the sharp s stays itself.
    ::LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, text.data(), length, capitals.data(), length, nullptr,
                    nullptr, 0);
    return capitals;
}

wchar_t fx::UpperCase(wchar_t character) { return UpperCase(std::wstring_view(&character, 1)).front(); }

bool fx::IsLetter(wchar_t character) {
    constexpr WORD kByInputMethod = C3_IDEOGRAPH | C3_HIRAGANA | C3_KATAKANA;
    return (TypeOf(character, CT_CTYPE1) & C1_ALPHA) != 0 && (TypeOf(character, CT_CTYPE3) & kByInputMethod) == 0;
}

bool fx::IsLetterOrDigit(wchar_t character) {
    return IsLetter(character) || (TypeOf(character, CT_CTYPE1) & C1_DIGIT) != 0;
}

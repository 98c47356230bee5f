// Letters as the C library's Unicode locale knows them, whatever locale the program runs in.
#include "core/letters.h"

#include <algorithm>
#include <cwchar>
#include <locale.h>
#include <stdexcept>
#include <wctype.h>

namespace {

class UnicodeLocale {
public:
    UnicodeLocale() : m_locale(::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {
        if (m_locale == nullptr) {
            throw std::runtime_error("the C library has no locale C.UTF-8");
        }
    }
    ~UnicodeLocale() { ::freelocale(m_locale); }
    UnicodeLocale(const UnicodeLocale&) = delete;
    UnicodeLocale& operator=(const UnicodeLocale&) = delete;

    locale_t Get() const { return m_locale; }

private:
    locale_t m_locale;
};

locale_t Unicode() {
    static const UnicodeLocale s_locale;
    return s_locale.Get();
}

int ColumnsOf(wchar_t character) {
    const locale_t former = ::uselocale(Unicode());
    const int columns = ::wcwidth(character);
    ::uselocale(former);
    return columns;
}

} // namespace

wchar_t fx::UpperCase(wchar_t character) {
    return static_cast<wchar_t>(::towupper_l(static_cast<wint_t>(character), Unicode()));
}

std::wstring fx::UpperCase(std::wstring_view text) {
    std::wstring capitals(text);
    std::transform(text.begin(), text.end(), capitals.begin(), [](wchar_t character) { return UpperCase(character); });
    return capitals;
}

// What takes two columns of a terminal is written by an input method, not by a key.
bool fx::IsLetter(wchar_t character) {
    return ::iswalpha_l(static_cast<wint_t>(character), Unicode()) != 0 && ColumnsOf(character) == 1;
}

bool fx::IsLetterOrDigit(wchar_t character) {
    return IsLetter(character) || ::iswdigit_l(static_cast<wint_t>(character), Unicode()) != 0;
}

#include "popups/row_text.h"

#include <windows.h>

namespace {

constexpr int mostCharacters = 400; // wider than any screen

bool IsControl(wchar_t character) { return character < L' ' || character == 0x7F; }

} // namespace

CString toolbar::ShownText(const CString& text) {
    CString shown = text.GetLength() > mostCharacters ? text.Left(mostCharacters) : text;
    for (int i = 0; i < shown.GetLength(); ++i) {
        if (IsControl(shown[i])) {
            shown.SetAt(i, L' ');
        }
    }
    return shown;
}

bool toolbar::StartsWith(const CString& text, std::wstring_view beginning) {
    const auto length = static_cast<int>(beginning.size());
    return text.GetLength() >= length &&
           ::CompareStringOrdinal(text, length, beginning.data(), length, TRUE) == CSTR_EQUAL;
}

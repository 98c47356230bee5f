#include "toolbar/metrics.h"

#include <cwctype>

CString toolbar::WithoutPrefix(const CString& text) {
    CString shown;
    for (int i = 0; i < text.GetLength(); ++i) {
        if (text[i] == L'&' && ++i >= text.GetLength()) {
            break;
        }
        shown += text[i];
    }
    return shown;
}

wchar_t toolbar::MnemonicOf(const CString& text) {
    for (int i = 0; i + 1 < text.GetLength(); ++i) {
        if (text[i] != L'&') {
            continue;
        }
        ++i;
        if (text[i] != L'&') {
            return static_cast<wchar_t>(std::towupper(text[i]));
        }
    }
    return 0;
}

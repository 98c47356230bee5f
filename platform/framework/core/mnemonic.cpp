#include "core/mnemonic.h"

#include "core/letters.h"

std::wstring fx::WithoutMnemonic(std::wstring_view text) {
    std::wstring shown;
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (text[place] == L'&' && ++place == text.size()) {
            break;
        }
        shown += text[place];
    }
    return shown;
}

wchar_t fx::MnemonicOf(std::wstring_view text) {
    for (std::size_t place = 0; place + 1 < text.size(); ++place) {
        if (text[place] != L'&') {
            continue;
        }
        ++place;
        if (text[place] != L'&') {
            return UpperCase(text[place]);
        }
    }
    return 0;
}

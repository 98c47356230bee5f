#include "config/shortcut_fault.h"

#include "config/shortcut_text.h"
#include "config/suggestion.h"
#include "varnhold/letter_case.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <vector>

namespace {

constexpr wchar_t kLastTypedSign = L'~';

std::optional<ShortcutText> Read(std::wstring_view shortcut) {
    try {
        return ReadShortcutText(shortcut);
    } catch (const std::out_of_range&) {
        return std::nullopt;
    }
}

std::vector<std::wstring> Pieces(std::wstring_view shortcut) {
    std::vector<std::wstring> pieces;
    for (;;) {
        const std::size_t end = std::min(shortcut.find(L'+'), shortcut.size());
        pieces.emplace_back(shortcut.substr(0, end));
        if (end == shortcut.size()) {
            return pieces;
        }
        shortcut.remove_prefix(end + 1);
    }
}

std::wstring Trimmed(const std::wstring& text) {
    constexpr const wchar_t* blanks = L" \t";
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::wstring::npos ? std::wstring() : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool IsModifier(const std::wstring& piece) {
    const auto read = Read(piece + L"+A");
    return read && read->flags != ShortcutVirtualKey;
}

std::wstring WithoutBlanks(std::wstring_view shortcut) {
    std::wstring text;
    for (const std::wstring& piece : Pieces(shortcut)) {
        text += (text.empty() ? L"" : L"+") + Trimmed(piece);
    }
    return text;
}

struct OtherName {
    std::wstring_view name;
    std::wstring_view modifier;
};
/// As other systems, and keyboards of other languages, call them.
constexpr OtherName kOtherNames[] = {
    {L"Control", L"Ctrl"}, {L"Ctl", L"Ctrl"},   {L"Strg", L"Ctrl"}, {L"Umschalt", L"Shift"},
    {L"Maj", L"Shift"},    {L"Option", L"Alt"}, {L"Opt", L"Alt"},
};

/// What the system calls a modifier; empty for any other word.
std::wstring ModifierMeantBy(const std::wstring& piece) {
    for (const OtherName& other : kOtherNames) {
        if (varnhold::EqualsIgnoringCase(other.name, piece)) {
            return std::wstring(other.modifier);
        }
    }
    return ClosestWord(piece, {L"Ctrl", L"Shift", L"Alt"});
}

/// The modifier that stands there twice; empty when none does.
std::wstring TwiceIn(const std::vector<std::wstring>& pieces) {
    for (auto piece = pieces.begin(); piece != pieces.end(); ++piece) {
        const auto isSame = [piece](const std::wstring& other) { return varnhold::EqualsIgnoringCase(*piece, other); };
        if (IsModifier(*piece) && std::find_if(std::next(piece), pieces.end(), isSame) != pieces.end()) {
            return *piece;
        }
    }
    return {};
}

/// The first piece that is no modifier.
std::vector<std::wstring>::const_iterator KeyOf(const std::vector<std::wstring>& pieces) {
    return std::ranges::find_if(pieces, [](const std::wstring& piece) { return !IsModifier(piece); });
}

} // namespace

ShortcutFault FindShortcutFault(std::wstring_view shortcut) {
    if (shortcut.size() > 2 && IsTypographicQuote(shortcut.front()) && IsTypographicQuote(shortcut.back())) {
        return {Quoted(shortcut) + L" has typographic quotation marks, which belong to the value",
                L"write \"" + std::wstring(shortcut.substr(1, shortcut.size() - 2)) + L"\""};
    }
    const auto read = Read(shortcut);
    if (!read) {
        return {L"nothing stands where the shortcut's key belongs; the loading of the file ends here",
                shortcut.ends_with(L"++") ? L"\"+\" cannot be the key: take another one"
                                          : L"write the key, or remove HOTKEY"};
    }
    const std::vector<std::wstring> pieces = Pieces(shortcut);
    const auto key = KeyOf(pieces);
    const std::wstring readAs = L" is read as the key " + std::wstring(1, read->character);
    if (pieces.size() == 1 && shortcut.size() > 1) {
        std::wstring joined(shortcut);
        std::ranges::replace(joined, L'-', L'+');
        std::ranges::replace(joined, L'\uFF0B', L'+'); // as Chinese and Japanese keyboards write it
        if (joined != shortcut && FindShortcutFault(joined).text.empty()) {
            return {Quoted(shortcut) + L" is read as the character " + std::wstring(1, read->character) +
                        L": \"+\" alone joins keys",
                    L"write \"" + joined + L"\""};
        }
        return {Quoted(shortcut) + L" is read as the character " + std::wstring(1, read->character) +
                    L": only one letter, digit or sign counts",
                L"take another shortcut; keys with a name cannot be written here"};
    }
    if (read->character == 0 || key == pieces.end()) {
        return {L"the shortcut names no key and is left out", L"write a key behind the modifiers"};
    }
    if (const std::wstring plain = WithoutBlanks(shortcut);
        plain != shortcut && FindShortcutFault(plain).text.empty()) {
        return {Quoted(*key) + readAs + L": blanks count", L"write \"" + plain + L"\""};
    }
    if (std::next(key) != pieces.end()) {
        const std::wstring meant = ModifierMeantBy(*key);
        return {Quoted(*key) + L" is no modifier, and" + readAs + L"; nothing behind it is read",
                meant.empty() ? L"the modifiers are Ctrl, Shift and Alt" : DidYouMean(meant)};
    }
    if (const std::wstring twice = TwiceIn(pieces); !twice.empty()) {
        return {Quoted(twice) + L" stands there twice, and counts once", L"the modifiers are Ctrl, Shift and Alt"};
    }
    if (key->size() > 1) {
        return {Quoted(*key) + readAs + L": only one letter, digit or sign counts",
                L"take another shortcut; keys with a name cannot be written here"};
    }
    if (read->character > kLastTypedSign) {
        return {L"not every keyboard has a key for " + std::wstring(1, read->character),
                L"take a letter, digit or sign of the keyboard"};
    }
    return {};
}

std::wstring CanonicalShortcut(std::wstring_view shortcut) {
    const auto read = Read(shortcut);
    if (!read || read->character == 0) {
        return {};
    }
    std::wstring text;
    for (const auto& [flag, name] :
         {std::pair(ShortcutControl, L"Ctrl+"), std::pair(ShortcutShift, L"Shift+"), std::pair(ShortcutAlt, L"Alt+")}) {
        text += read->flags & flag ? name : L"";
    }
    const bool isKey = (read->flags & ShortcutVirtualKey) != 0;
    // A lone letter is typed as it is written; with a modifier it stands for its key.
    return text + (isKey ? varnhold::LowerAscii(read->character) : read->character);
}

#include "settings/shortcut_keys.h"

#include "config/shortcut_text.h"

#include <varnhold/letter_case.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>

namespace {

struct NamedModifier {
    std::wstring_view name;
    std::uint8_t flag;
};
// In the order in which they are written.
constexpr std::array<NamedModifier, 3> kModifiers{
    {{L"Ctrl", ShortcutControl}, {L"Alt", ShortcutAlt}, {L"Shift", ShortcutShift}}};

struct NamedKey {
    std::wstring_view name;
    std::uint16_t code;
};
// Virtual-key codes. Function keys, letters and digits are computed.
constexpr std::array<NamedKey, 22> kKeys{
    {{L"Backspace", 0x08}, {L"Tab", 0x09},   {L"Enter", 0x0D}, {L"Pause", 0x13}, {L"Esc", 0x1B},  {L"Space", 0x20},
     {L"PgUp", 0x21},      {L"PgDn", 0x22},  {L"End", 0x23},   {L"Home", 0x24},  {L"Left", 0x25}, {L"Up", 0x26},
     {L"Right", 0x27},     {L"Down", 0x28},  {L"Ins", 0x2D},   {L"Del", 0x2E},   {L"Num+", 0x6B}, {L"Num-", 0x6D},
     {L"Plus", 0xBB},      {L"Comma", 0xBC}, {L"Minus", 0xBD}, {L"Period", 0xBE}}};
constexpr std::uint16_t kF1 = 0x70;
constexpr int kFunctionKeys = 24;
constexpr int kLastCode = 254;

bool IsLetterOrDigit(wchar_t character) {
    return (character >= L'A' && character <= L'Z') || (character >= L'0' && character <= L'9');
}

/// The number behind the first character; nothing for anything but plain digits without a leading 0.
std::optional<int> NumberBehindFirst(std::wstring_view text) {
    constexpr std::size_t mostDigits = 3;
    if (text.size() < 2 || text.size() > 1 + mostDigits || text[1] == L'0') {
        return std::nullopt;
    }
    int number = 0;
    for (const wchar_t digit : text.substr(1)) {
        if (digit < L'0' || digit > L'9') {
            return std::nullopt;
        }
        number = number * 10 + (digit - L'0');
    }
    return number;
}

std::wstring KeyName(std::uint16_t code) {
    if (const auto letter = static_cast<wchar_t>(code); code < 0x80 && IsLetterOrDigit(letter)) {
        return {letter};
    }
    if (code >= kF1 && code < kF1 + kFunctionKeys) {
        return L"F" + std::to_wstring(code - kF1 + 1);
    }
    const auto* const found =
        std::find_if(kKeys.begin(), kKeys.end(), [code](const NamedKey& key) { return key.code == code; });
    return found != kKeys.end() ? std::wstring(found->name) : L"#" + std::to_wstring(code);
}

std::optional<std::uint16_t> KeyCode(std::wstring_view name) {
    const auto* const found = std::find_if(kKeys.begin(), kKeys.end(), [name](const NamedKey& key) {
        return varnhold::EqualsIgnoringCase(key.name, name);
    });
    if (found != kKeys.end()) {
        return found->code;
    }
    const std::optional<int> number = NumberBehindFirst(name);
    if (number && name[0] == L'#' && *number <= kLastCode) {
        return static_cast<std::uint16_t>(*number);
    }
    if (number && (name[0] == L'F' || name[0] == L'f') && *number <= kFunctionKeys) {
        return static_cast<std::uint16_t>(kF1 + *number - 1);
    }
    if (name.size() == 1) {
        const wchar_t letter =
            name[0] >= L'a' && name[0] <= L'z' ? static_cast<wchar_t>(name[0] - L'a' + L'A') : name[0];
        return IsLetterOrDigit(letter) ? std::optional(static_cast<std::uint16_t>(letter)) : std::nullopt;
    }
    return std::nullopt;
}

} // namespace

std::wstring ShortcutKeyText(ShortcutKey key) {
    std::wstring text;
    for (const NamedModifier& modifier : kModifiers) {
        if ((key.modifiers & modifier.flag) != 0) {
            text.append(modifier.name).append(L"+");
        }
    }
    return text + KeyName(key.key);
}

std::optional<ShortcutKey> ReadShortcutKey(std::wstring_view text) {
    ShortcutKey key;
    for (bool isModifier = true; isModifier;) {
        isModifier = false;
        for (const NamedModifier& modifier : kModifiers) {
            const std::size_t length = modifier.name.size();
            if (text.size() > length + 1 && text[length] == L'+' && (key.modifiers & modifier.flag) == 0 &&
                varnhold::EqualsIgnoringCase(text.substr(0, length), modifier.name)) {
                key.modifiers |= modifier.flag;
                text.remove_prefix(length + 1);
                isModifier = true;
            }
        }
    }
    const std::optional<std::uint16_t> code = KeyCode(text);
    if (!code) {
        return std::nullopt;
    }
    key.key = *code;
    return key;
}

std::vector<ShortcutRow> MergeShortcuts(const std::vector<ShortcutRow>& configured,
                                        const std::vector<UserKeys>& users) {
    std::set<std::uint16_t> changed;
    std::map<std::pair<std::uint8_t, std::uint16_t>, std::uint16_t> given;
    for (const UserKeys& user : users) {
        changed.insert(user.id);
        for (const ShortcutKey key : user.keys) {
            given[{key.modifiers, key.key}] = user.id;
        }
    }
    std::vector<ShortcutRow> rows;
    std::copy_if(configured.begin(), configured.end(), std::back_inserter(rows), [&](const ShortcutRow& row) {
        return !changed.contains(row.id) && (!row.isVirtualKey || !given.contains({row.key.modifiers, row.key.key}));
    });
    for (const auto& [key, id] : given) {
        rows.push_back({{key.first, key.second}, true, id});
    }
    return rows;
}

#include "config/shortcut_text.h"
#include "settings/shortcut_keys.h"

#include <gtest/gtest.h>

namespace {

constexpr std::uint16_t kF5 = 0x74, kDel = 0x2E;

TEST(ShortcutKeys, TextsNameKeysWithTheirModifiers) {
    EXPECT_EQ(ReadShortcutKey(L"Ctrl+Shift+S"), (ShortcutKey{ShortcutControl | ShortcutShift, 'S'}));
    EXPECT_EQ(ReadShortcutKey(L"F5"), (ShortcutKey{0, kF5}));
    EXPECT_EQ(ReadShortcutKey(L"alt+DEL"), (ShortcutKey{ShortcutAlt, kDel}));
    EXPECT_EQ(ReadShortcutKey(L"Ctrl+Num+"), (ShortcutKey{ShortcutControl, 0x6B}));
    EXPECT_EQ(ReadShortcutKey(L"#223"), (ShortcutKey{0, 223}));
    EXPECT_EQ(ReadShortcutKey(L"Shift+Ctrl+1"), (ShortcutKey{ShortcutControl | ShortcutShift, '1'}));
}

TEST(ShortcutKeys, TextsThatNameNoKeyAreRefused) {
    for (const wchar_t* text : {L"", L"Ctrl", L"Ctrl+", L"+", L"Ctrl+Ctrl+A", L"F0", L"F25", L"F05", L"#0", L"#255",
                                L"#1000", L"AB", L" A", L"A ", L"Ctrl + A", L"Meta+A", L"\x00E4", L"#", L"F"}) {
        const bool isLetter = std::wstring(text) == L"F"; // the key of F, not a function key
        EXPECT_EQ(ReadShortcutKey(text).has_value(), isLetter) << std::wstring(text).size();
    }
}

TEST(ShortcutKeys, EveryKeyComesBackFromItsText) {
    for (std::uint16_t code = 1; code <= 254; ++code) {
        for (int modifiers = 0; modifiers < 8; ++modifiers) {
            const ShortcutKey key{static_cast<std::uint8_t>(modifiers << 2), code};
            EXPECT_EQ(ReadShortcutKey(ShortcutKeyText(key)), key) << code << " " << modifiers;
        }
    }
}

TEST(MergedShortcuts, WithoutUsersKeysTheTableIsAsConfigured) {
    const std::vector<ShortcutRow> table{{{ShortcutControl, 'A'}, true, 1}, {{0, 'x'}, false, 2}};
    EXPECT_EQ(MergeShortcuts(table, {}), table);
}

TEST(MergedShortcuts, AUsersKeysReplaceTheCommandsOwn) {
    const std::vector<ShortcutRow> table{{{ShortcutControl, 'A'}, true, 1}, {{0, kF5}, true, 1}, {{0, kDel}, true, 2}};
    EXPECT_EQ(MergeShortcuts(table, {{1, {{ShortcutAlt, 'B'}}}}),
              (std::vector<ShortcutRow>{{{0, kDel}, true, 2}, {{ShortcutAlt, 'B'}, true, 1}}));
}

TEST(MergedShortcuts, NoKeysTakeTheCommandsAway) {
    EXPECT_TRUE(MergeShortcuts({{{0, kF5}, true, 1}}, {{1, {}}}).empty());
}

TEST(MergedShortcuts, AKeyOfAnotherCommandGoesToTheUsers) {
    EXPECT_EQ(MergeShortcuts({{{0, kF5}, true, 1}}, {{2, {{0, kF5}}}}),
              (std::vector<ShortcutRow>{{{0, kF5}, true, 2}}));
}

TEST(MergedShortcuts, AKeyGivenTwiceIsTheLastCommands) {
    EXPECT_EQ(MergeShortcuts({}, {{2, {{0, kF5}}}, {3, {{0, kF5}}}}), (std::vector<ShortcutRow>{{{0, kF5}, true, 3}}));
}

TEST(MergedShortcuts, ACharacterIsNotTheKeyOfThatNumber) {
    const std::vector<ShortcutRow> table{{{0, kF5}, false, 1}}; // 't'
    EXPECT_EQ(MergeShortcuts(table, {{2, {{0, kF5}}}}).size(), 2u);
}

} // namespace

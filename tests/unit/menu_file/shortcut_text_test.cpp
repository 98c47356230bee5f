#include "config/shortcut_text.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

struct Written {
    const wchar_t* text;
    int flags;
    wchar_t character; // 0: no key
};

class ShortcutTexts : public testing::TestWithParam<Written> {};

TEST_P(ShortcutTexts, AreTakenApartAtEachPlus) {
    const ShortcutText shortcut = ReadShortcutText(GetParam().text);
    EXPECT_EQ(shortcut.flags, GetParam().flags);
    EXPECT_EQ(shortcut.character, GetParam().character);
}

constexpr int kVirtual = ShortcutVirtualKey;
constexpr int kControl = ShortcutControl | kVirtual;
constexpr int kShift = ShortcutShift | kVirtual;
constexpr int kAlt = ShortcutAlt | kVirtual;

INSTANTIATE_TEST_SUITE_P(LoneCharacterHasNoFlags, ShortcutTexts,
                         testing::Values(Written{L"S", 0, L'S'}, Written{L"s", 0, L's'}, Written{L"F5", 0, L'F'},
                                         Written{L"Ctrl", 0, L'C'}, Written{L" ", 0, L' '}, Written{L"键", 0, L'键'}));

INSTANTIATE_TEST_SUITE_P(ModifiersInAnyLetterCase, ShortcutTexts,
                         testing::Values(Written{L"Ctrl+S", kControl, L'S'}, Written{L"CTRL+s", kControl, L's'},
                                         Written{L"shift+A", kShift, L'A'}, Written{L"aLt+F4", kAlt, L'F'},
                                         Written{L"Ctrl+Shift+Alt+Z", kControl | kShift | kAlt, L'Z'},
                                         Written{L"Alt+Alt+Z", kAlt, L'Z'}));

INSTANTIATE_TEST_SUITE_P(FirstOtherPieceIsTheKeyAndWhatFollowsIsIgnored, ShortcutTexts,
                         testing::Values(Written{L"A+Ctrl", kVirtual, L'A'}, Written{L"Ctrl+S+", kControl, L'S'},
                                         Written{L"Ctrl+S+Shift", kControl, L'S'}, Written{L"Ctrl+Del", kControl, L'D'},
                                         Written{L"Strg+S", kVirtual, L'S'}));

INSTANTIATE_TEST_SUITE_P(BlanksBelongToThePiece, ShortcutTexts,
                         testing::Values(Written{L"Ctrl +S", kVirtual, L'C'}, Written{L"Ctrl+ S", kControl, L' '},
                                         Written{L" Ctrl+S", kVirtual, L' '}));

INSTANTIATE_TEST_SUITE_P(WithoutAKeyPieceThereIsNone, ShortcutTexts,
                         testing::Values(Written{L"Ctrl+Shift", kControl | kShift, 0}, Written{L"Alt+Alt", kAlt, 0}));

TEST(ShortcutText, EmptyPieceInPlaceOfTheKeyIsOutOfRange) {
    for (const wchar_t* text : {L"", L"+", L"Ctrl+", L"Ctrl++", L"+S", L"Ctrl+Shift+"}) {
        try {
            ReadShortcutText(text);
            ADD_FAILURE() << "nothing thrown for \"" << std::string(text, text + std::wstring(text).size()) << "\"";
        } catch (const std::out_of_range& error) {
            EXPECT_STREQ(error.what(), "invalid string position");
        }
    }
}

} // namespace

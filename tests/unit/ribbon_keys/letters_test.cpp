#include "core/letters.h"

#include <gtest/gtest.h>

#include "core/mnemonic.h"

namespace {

struct Capital {
    wchar_t letter;
    wchar_t capital;
};

TEST(Letters, HaveTheirCapitalsInEveryScriptWithoutALocale) {
    constexpr Capital kCapitals[] = {
        {L'a', L'A'},           {L'Z', L'Z'},           {L'\x00F6', L'\x00D6'}, {L'\x00E9', L'\x00C9'},
        {L'\x0161', L'\x0160'}, {L'\x0142', L'\x0141'}, {L'\x0444', L'\x0424'}, {L'\x0451', L'\x0401'},
        {L'\x03C9', L'\x03A9'}, {L'\x03AC', L'\x0386'}, {L'\x03C3', L'\x03A3'}, {L'\x0561', L'\x0531'},
    };
    for (const Capital& expected : kCapitals) {
        EXPECT_EQ(fx::UpperCase(expected.letter), expected.capital) << std::hex << static_cast<int>(expected.letter);
        EXPECT_EQ(fx::UpperCase(expected.capital), expected.capital) << std::hex << static_cast<int>(expected.capital);
    }
}

TEST(Letters, WhatHasNoCapitalStaysAsItIs) {
    for (const wchar_t character : {L'1', L'&', L' ', L'\x00DF', L'\x05E7', L'\x5730', L'\0'}) {
        EXPECT_EQ(fx::UpperCase(character), character) << std::hex << static_cast<int>(character);
    }
}

TEST(Letters, ATextKeepsItsLength) {
    EXPECT_EQ(fx::UpperCase(L"Stra\x00DF"
                            L"e \x0444 1"),
              L"STRA\x00DF"
              L"E \x0424 1");
    EXPECT_EQ(fx::UpperCase(std::wstring_view()), L"");
}

TEST(Letters, AreWhatAKeyboardWritesInAnyScript) {
    for (const wchar_t letter : {L'a', L'Z', L'\x00F6', L'\x00DF', L'\x0424', L'\x03C9', L'\x05E7', L'\x0627'}) {
        EXPECT_TRUE(fx::IsLetter(letter)) << std::hex << static_cast<int>(letter);
        EXPECT_TRUE(fx::IsLetterOrDigit(letter)) << std::hex << static_cast<int>(letter);
    }
    for (const wchar_t other : {L'1', L'&', L' ', L'\x5730', L'\x3042', L'\0'}) {
        EXPECT_FALSE(fx::IsLetter(other)) << std::hex << static_cast<int>(other);
    }
    EXPECT_TRUE(fx::IsLetterOrDigit(L'7'));
    EXPECT_FALSE(fx::IsLetterOrDigit(L'_'));
}

TEST(Mnemonics, AreTakenOutOfATextOnceAndDoubledOnesStay) {
    EXPECT_EQ(fx::WithoutMnemonic(L"&Save && close"), L"Save & close");
    EXPECT_EQ(fx::WithoutMnemonic(L"plain"), L"plain");
    EXPECT_EQ(fx::WithoutMnemonic(L"end&"), L"end");
}

TEST(Mnemonics, AreTheMarkedCharacterAsACapital) {
    EXPECT_EQ(fx::MnemonicOf(L"&\x00F6"
                             L"ffnen"),
              L'\x00D6');
    EXPECT_EQ(fx::MnemonicOf(L"Save && &close"), L'C');
    EXPECT_EQ(fx::MnemonicOf(L"Save && close"), L'\0');
    EXPECT_EQ(fx::MnemonicOf(L"end&"), L'\0');
}

} // namespace

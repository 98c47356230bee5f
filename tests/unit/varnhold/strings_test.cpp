#include "varnhold/strings.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace std::string_literals;

struct Pair {
    std::string narrow;
    std::wstring wide;
};

const Pair kPairs[] = {
    {"", L""},
    {"plain", L"plain"},
    {"a\0b"s, L"a\0b"s},
    {"\x7F", L"\x7F"},
    {"\xC2\x80", L"\x80"},
    {"\xDF\xBF", L"\x7FF"},
    {"\xE0\xA0\x80", L"\x800"},
    {"\xE5\x9B\xBE\xE5\xB1\x82", L"\x56FE\x5C42"},
    {"\xED\x9F\xBF", L"\xD7FF"},
    {"\xEE\x80\x80", L"\xE000"},
    {"\xEF\xBF\xBD", L"\xFFFD"},
    {"\xEF\xBF\xBF", L"\xFFFF"},
    {"\xF0\x90\x80\x80", L"\U00010000"},
    {"\xF0\x9F\x98\x80", L"\U0001F600"},
    {"\xF4\x8F\xBF\xBF", L"\U0010FFFF"},
};

TEST(Strings, EveryLengthWithEveryPlaceOfALongLetterIsConverted) {
    for (std::size_t length = 0; length < 90; ++length) {
        EXPECT_EQ(string2wstring(std::string(length, 'a')), std::wstring(length, L'a'));
        for (std::size_t place = 0; place < length; ++place) {
            std::string text(length, 'a');
            std::wstring expected(length, L'a');
            text.replace(place, 1, "\xE5\x9B\xBE");
            expected[place] = L'\x56FE';
            ASSERT_EQ(string2wstring(text), expected) << length << " " << place;
        }
    }
}

TEST(Strings, ConvertsValidTextBothWaysWithoutLoss) {
    for (const Pair& pair : kPairs) {
        EXPECT_EQ(string2wstring(pair.narrow), pair.wide) << pair.narrow;
        EXPECT_EQ(wstring2String(pair.wide), pair.narrow) << pair.narrow;
    }
}

TEST(Strings, EveryCodePointSurvivesTheRoundTrip) {
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        if (c >= 0xD800 && c <= 0xDFFF) {
            continue;
        }
        std::wstring wide;
        if (sizeof(wchar_t) == 2 && c > 0xFFFF) {
            wide += static_cast<wchar_t>(0xD800 | (c - 0x10000) >> 10);
            wide += static_cast<wchar_t>(0xDC00 | (c & 0x3FF));
        } else {
            wide += static_cast<wchar_t>(c);
        }
        ASSERT_EQ(string2wstring(wstring2String(wide)), wide) << std::hex << static_cast<unsigned>(c);
    }
}

TEST(Strings, BrokenUtf8BecomesOneReplacementForEachBrokenPiece) {
    const Pair pairs[] = {
        {"\x80", L"\xFFFD"}, // a follower alone
        {"a\xBF\xBF"
         "b",
         L"a\xFFFD\xFFFD"
         L"b"},                                            // two of them
        {"\xC0\xAF", L"\xFFFD\xFFFD"},                     // overlong in two bytes
        {"\xE0\x80\xAF", L"\xFFFD\xFFFD\xFFFD"},           // overlong in three
        {"\xF0\x80\x80\xAF", L"\xFFFD\xFFFD\xFFFD\xFFFD"}, // overlong in four
        {"\xED\xA0\x80", L"\xFFFD\xFFFD\xFFFD"},           // a surrogate
        {"\xF4\x90\x80\x80", L"\xFFFD\xFFFD\xFFFD\xFFFD"}, // above U+10FFFF
        {"\xF5\x80\x80\x80", L"\xFFFD\xFFFD\xFFFD\xFFFD"},
        {"\xFE\xFF", L"\xFFFD\xFFFD"},
        {"\xE5\x9B", L"\xFFFD"}, // cut short at the end
        {"\xE5\x9B"
         "x",
         L"\xFFFD"
         L"x"}, // cut short before a letter
        {"\xF0\x9F\x98"
         "x",
         L"\xFFFD"
         L"x"},
        {"\xE5\xE5\x9B\xBE", L"\xFFFD\x56FE"}, // cut short before a whole one
        {"\xC3", L"\xFFFD"},
    };
    for (const Pair& pair : pairs) {
        EXPECT_EQ(string2wstring(pair.narrow), pair.wide) << ::testing::PrintToString(pair.narrow);
    }
}

TEST(Strings, TheFirstWideCharacterMayStandAnywhere) {
    for (std::size_t before = 0; before < 20; ++before) {
        const std::string ascii(before, 'a');
        const std::wstring wideAscii(before, L'a');
        EXPECT_EQ(string2wstring(ascii + "\xE5\x9B\xBE" + ascii), wideAscii + L"\x56FE" + wideAscii);
        EXPECT_EQ(wstring2String(wideAscii + L"\x56FE" + wideAscii), ascii + "\xE5\x9B\xBE" + ascii);
        EXPECT_EQ(string2wstring(ascii + "\xFF" + ascii), wideAscii + L"\xFFFD" + wideAscii);
    }
}

TEST(Strings, AConversionIntoATextReplacesAllOfItAtEveryLength) {
    for (const std::size_t length : {0u, 3u, 7u, 15u, 63u, 64u, 65u, 300u}) {
        for (const std::size_t before : {0u, 5u, 64u, 400u}) {
            std::wstring wide(before, L'z');
            string2wstring(std::string(length, 'a'), wide);
            EXPECT_EQ(wide, std::wstring(length, L'a')) << length << " over " << before;
            string2wstring(std::string(length, 'a') + "\xE5\x9B\xBE", wide);
            EXPECT_EQ(wide, std::wstring(length, L'a') + L"\x56FE") << length << " over " << before;
        }
    }
}

TEST(Strings, LoneSurrogatesBecomeReplacements) {
    const std::string replacement = "\xEF\xBF\xBD";
    const auto high = static_cast<wchar_t>(0xD83D);
    const auto low = static_cast<wchar_t>(0xDE00);
    EXPECT_EQ(wstring2String(std::wstring{high}), replacement);
    EXPECT_EQ(wstring2String(std::wstring{low}), replacement);
    EXPECT_EQ(wstring2String(std::wstring{L'a', high, L'b'}), "a" + replacement + "b");
    EXPECT_EQ(wstring2String(std::wstring{low, high}), replacement + replacement);
    EXPECT_EQ(wstring2String(std::wstring{high, high, L'x'}), replacement + replacement + "x");
}

#ifndef _WIN32
TEST(Strings, ValuesBeyondUnicodeBecomeReplacements) {
    EXPECT_EQ(wstring2String(std::wstring{static_cast<wchar_t>(0x110000)}), "\xEF\xBF\xBD");
    EXPECT_EQ(wstring2String(std::wstring{static_cast<wchar_t>(-1)}), "\xEF\xBF\xBD");
}
#endif

} // namespace

#include "ribbon/text_break.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

using ribbon::BreakInTwo;
using ribbon::CanBreakBefore;
using ribbon::TextBreak;

// A font whose ideographs are 12 pixels wide, spaces 3 and everything else 6.
int Width(std::wstring_view text) {
    int width = 0;
    for (const wchar_t character : text) {
        width += character >= L'\x2E80' ? 12 : character == L' ' ? 3 : 6;
    }
    return width;
}

struct BreakCase {
    const wchar_t* text;
    const wchar_t* first;
    const wchar_t* second; // empty: one line
    int singleLineWidth = 34;
    int arrow = 0;
};

void PrintTo(const BreakCase& value, std::ostream* out) { *out << ::testing::PrintToString(std::wstring(value.text)); }

class BreakTable : public ::testing::TestWithParam<BreakCase> {};

TEST_P(BreakTable, MakesTheWiderLineNarrowest) {
    const BreakCase& row = GetParam();
    const std::wstring_view text = row.text;
    const TextBreak lines = BreakInTwo(text, Width, row.singleLineWidth, row.arrow);
    EXPECT_EQ(std::wstring(text.substr(0, lines.firstLength)), row.first);
    EXPECT_EQ(std::wstring(text.substr(lines.secondStart)), row.second);
    EXPECT_EQ(lines.firstWidth, Width(row.first));
    EXPECT_EQ(lines.secondWidth, Width(row.second));
    EXPECT_EQ(lines.HasSecondLine(text), *row.second != 0);
}

INSTANTIATE_TEST_SUITE_P(English, BreakTable,
                         ::testing::Values(BreakCase{L"", L"", L""}, BreakCase{L"Paste", L"Paste", L""},
                                           BreakCase{L"Unbreakable", L"Unbreakable", L""},
                                           BreakCase{L"Page Setup", L"Page", L"Setup"},
                                           BreakCase{L"Insert a new page", L"Insert a", L"new page"},
                                           BreakCase{L"aaaa bbbb cccc", L"aaaa bbbb", L"cccc"},
                                           BreakCase{L"Import/Export", L"Import/", L"Export"},
                                           BreakCase{L"Zoom  to   fit", L"Zoom", L"to   fit"},
                                           BreakCase{L"Page Setup", L"Page Setup", L"", 63},
                                           BreakCase{L"Trailing ", L"Trailing ", L""}));

// With the arrow behind it the second line is kept shorter.
INSTANTIATE_TEST_SUITE_P(Arrow, BreakTable,
                         ::testing::Values(BreakCase{L"aaa bbb ccc", L"aaa bbb", L"ccc", 20, 9},
                                           BreakCase{L"aaaa bb cccc", L"aaaa bb", L"cccc", 20, 20},
                                           BreakCase{L"aa bb cccccc", L"aa bb", L"cccccc", 20, 0}));

INSTANTIATE_TEST_SUITE_P(
    Chinese, BreakTable,
    ::testing::Values(BreakCase{L"\x6253\x5F00", L"\x6253\x5F00", L""},
                      BreakCase{L"\x6253\x5F00\x6587\x4EF6", L"\x6253\x5F00", L"\x6587\x4EF6"},
                      BreakCase{L"\x53E6\x5B58\x4E3A\x56FE\x7247", L"\x53E6\x5B58\x4E3A", L"\x56FE\x7247"},
                      // No line begins with a closing bracket or a comma, none ends with an opening bracket.
                      BreakCase{L"\x6D4B\x8BD5\xFF0C\x6587\x4EF6", L"\x6D4B\x8BD5\xFF0C", L"\x6587\x4EF6"},
                      BreakCase{L"\x56FE\x50CF\xFF08\x5927\xFF09", L"\x56FE\x50CF", L"\xFF08\x5927\xFF09"},
                      BreakCase{L"\x5BFC\x51FA"
                                L"PDF",
                                L"\x5BFC\x51FA", L"PDF"},
                      BreakCase{L"\x56FE\x5C42 \x7BA1\x7406\x5668", L"\x56FE\x5C42", L"\x7BA1\x7406\x5668"}));

// A short text grows by one ideograph rather than leave one alone on a line; four stand in two even lines.
INSTANTIATE_TEST_SUITE_P(NoIdeographAlone, BreakTable,
                         ::testing::Values(BreakCase{L"\x6700\x5C0F\x5316", L"\x6700\x5C0F\x5316", L""},
                                           BreakCase{L"\x6700\x5C0F\x5316", L"\x6700\x5C0F\x5316", L"", 34, 9},
                                           BreakCase{L"\xFF08\x5927\xFF09\x56FE", L"\xFF08\x5927\xFF09\x56FE", L""},
                                           BreakCase{L"\x6253\x5F00\x6587\x4EF6", L"\x6253\x5F00", L"\x6587\x4EF6"},
                                           BreakCase{L"\x6253\x5F00\xFF08\x5927\xFF09\x56FE", L"\x6253\x5F00",
                                                     L"\xFF08\x5927\xFF09\x56FE"},
                                           BreakCase{L"Export\x56FE", L"Export", L"\x56FE"}));

TEST(LineBreak, StandsNeitherAtTheStartNorAtTheEnd) {
    EXPECT_FALSE(CanBreakBefore(L"\x6253\x5F00", 0));
    EXPECT_TRUE(CanBreakBefore(L"\x6253\x5F00", 1));
    EXPECT_FALSE(CanBreakBefore(L"\x6253\x5F00", 2));
}

TEST(LineBreak, DoesNotSplitAWordOfLetters) {
    EXPECT_FALSE(CanBreakBefore(L"word", 2));
    EXPECT_FALSE(CanBreakBefore(L"a b", 1));
    EXPECT_TRUE(CanBreakBefore(L"a b", 2));
}

} // namespace

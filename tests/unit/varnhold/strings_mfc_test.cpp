#include "varnhold/strings_mfc.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace std::string_literals;

constexpr wchar_t high = 0xD83D;
constexpr wchar_t low = 0xDE00;

CString Of(const std::wstring& text) { return CString(text.data(), static_cast<int>(text.size())); }

const std::wstring wideTexts[] = {
    L"", L"plain", L"a\0b"s, L"\0"s, L"a\0"s, L"\x5730\x56FE", L"a\U0001F600z", std::wstring{high}, {low, high},
};

TEST(MfcStrings, WideTextsAreExactBothWays) {
    for (const std::wstring& text : wideTexts) {
        const CString converted = wstring2CString(text);
        ASSERT_EQ(converted.GetLength(), static_cast<int>(text.size()));
        EXPECT_EQ(std::wstring(converted.GetString(), text.size()), text);
        EXPECT_EQ(converted.GetString()[text.size()], L'\0');
        EXPECT_EQ(CString2wstring(Of(text)), text);
    }
}

struct NarrowText {
    std::wstring wide;
    std::string utf8;
};

const NarrowText narrowTexts[] = {
    {L"", ""},
    {L"plain", "plain"},
    {L"a\0b"s, "a\0b"s},
    {L"\xE4\x5730", "\xC3\xA4\xE5\x9C\xB0"},
    {L"a\U0001F600z", "a\xF0\x9F\x98\x80z"},
    {L"\U0010FFFF", "\xF4\x8F\xBF\xBF"},
};

TEST(MfcStrings, NarrowTextsAreUtf8BothWays) {
    for (const NarrowText& text : narrowTexts) {
        EXPECT_EQ(CString2string(Of(text.wide)), text.utf8);
        const CString converted = string2CString(text.utf8);
        ASSERT_EQ(converted.GetLength(), static_cast<int>(text.wide.size())) << text.utf8;
        EXPECT_EQ(CString2wstring(converted), text.wide);
    }
}

TEST(MfcStrings, WhatIsNotValidBecomesReplacements) {
    EXPECT_EQ(CString2string(Of({L'a', high, L'b'})), "a\xEF\xBF\xBD"
                                                      "b");
    EXPECT_EQ(CString2string(Of({low, high})), "\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(CString2wstring(string2CString("a\xFFz")), L"a\xFFFDz");
}

} // namespace

#include "varnhold/strings_mfc.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(StringsCString, WideConversionsAreExact) {
    const std::wstring texts[] = {L"",
                                  L"plain",
                                  L"\x56FE\x5C42 \U0001F600",
                                  std::wstring(L"a\0b", 3),
                                  std::wstring(100000, L'x'),
                                  std::wstring(1, static_cast<wchar_t>(0xD800))};
    for (const std::wstring& text : texts) {
        EXPECT_EQ(wstring2CString(text).GetLength(), static_cast<int>(text.size()));
        EXPECT_EQ(CString2wstring(wstring2CString(text)), text);
    }
}

TEST(StringsCString, NarrowConversionsAreUtf8) {
    EXPECT_EQ(CString2string(CString(L"\x56FE\U0001F600")), "\xE5\x9B\xBE\xF0\x9F\x98\x80");
    EXPECT_EQ(string2CString("\xE5\x9B\xBE\xF0\x9F\x98\x80"), CString(L"\x56FE\U0001F600"));
    EXPECT_EQ(CString2string(wstring2CString(std::wstring(1, static_cast<wchar_t>(0xD800)))), "\xEF\xBF\xBD");
    EXPECT_EQ(CString2string(CString()), "");
    EXPECT_TRUE(string2CString("").IsEmpty());
}

} // namespace

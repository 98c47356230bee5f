#include "afx.h"

#include <gtest/gtest.h>

namespace {

template <typename... Args>
std::wstring Wide(const wchar_t* format, const Args&... args) {
    CString text;
    text.Format(format, args...);
    return text.GetString();
}
template <typename... Args>
std::string Narrow(const char* format, const Args&... args) {
    CStringA text;
    text.Format(format, args...);
    return text.GetString();
}

TEST(Format, Integers) {
    EXPECT_EQ(Wide(L"%d %i %u", -5, 6, 7u), L"-5 6 7");
    EXPECT_EQ(Wide(L"%5d|%-5d|%05d|%+d|% d", 42, 42, 42, 42, 42), L"   42|42   |00042|+42| 42");
    EXPECT_EQ(Wide(L"%.3d|%6.3d|%.0d|", 7, 7, 0), L"007|   007||");
    EXPECT_EQ(Wide(L"%x %X %#x %#X %o %#o", 255, 255, 255, 255, 8, 8), L"ff FF 0xff 0XFF 10 010");
    EXPECT_EQ(Wide(L"%08X", 0xBEEFu), L"0000BEEF");
}

TEST(Format, IntegerSizesComeFromTheArgument) {
    EXPECT_EQ(Wide(L"%I64d %lld %Id", INT64_MIN, INT64_MAX, INT64_C(-1)),
              L"-9223372036854775808 9223372036854775807 -1");
    EXPECT_EQ(Wide(L"%zu %I64u %llu", sizeof(int), UINT64_MAX, UINT64_MAX),
              L"4 18446744073709551615 18446744073709551615");
    EXPECT_EQ(Wide(L"%d %ld", INT64_C(5000000000), 5L), L"5000000000 5");
    EXPECT_EQ(Wide(L"%x %x", -1, short(-1)), L"ffffffff ffffffff");
    EXPECT_EQ(Wide(L"%hx %hhx %hd", -1, -1, 65535), L"ffff ff -1");
    EXPECT_EQ(Wide(L"%u", -1), L"4294967295");
    EXPECT_EQ(Wide(L"%I32d", 7), L"7");
}

TEST(Format, WidthAndPrecisionFromArguments) {
    EXPECT_EQ(Wide(L"%*d|%-*d|%*d", 5, 42, 5, 42, -5, 42), L"   42|42   |42   ");
    EXPECT_EQ(Wide(L"%.*f %.*s", 2, 3.14159, 2, L"abc"), L"3.14 ab");
}

TEST(Format, FloatingPoint) {
    EXPECT_EQ(Wide(L"%f %.2f %8.3f|%-8.1f|%08.2f", 1.5, 2.345, 3.14159, 2.5, -1.5),
              L"1.500000 2.35    3.142|2.5     |-0001.50");
    EXPECT_EQ(Wide(L"%g %g %G", 0.0001, 1e20, 1e-10), L"0.0001 1e+20 1E-10");
    EXPECT_EQ(Wide(L"%e %.1E %+.1f", 12345.678, 12345.678, 1.0f), L"1.234568e+04 1.2E+04 +1.0");
}

TEST(Format, TextsOfEveryKind) {
    const CString text(L"cstring");
    EXPECT_EQ(Wide(L"%s %s %s", L"literal", text, std::wstring(L"standard")), L"literal cstring standard");
    EXPECT_EQ(Wide(L"%S %hs %s", "narrow", "narrow", CStringA("narrow")), L"narrow narrow narrow");
    EXPECT_EQ(Wide(L"%ls %ws", L"wide", L"wide"), L"wide wide");
    EXPECT_EQ(Narrow("%s %S %s", "narrow", L"wide", CString(L"wide")), "narrow wide wide");
    EXPECT_EQ(Wide(L"%6s|%-6s|%.2s|%6.2s", L"abc", L"abc", L"abc", L"abc"), L"   abc|abc   |ab|    ab");
    EXPECT_EQ(Wide(L"%s", static_cast<const wchar_t*>(nullptr)), L"(null)");
    EXPECT_EQ(Wide(L"%s", nullptr), L"(null)");
}

TEST(Format, PrecisionDoesNotReadPastUnterminatedText) {
    const wchar_t letters[] = {L'a', L'b', L'c'};
    EXPECT_EQ(Wide(L"%.3s", static_cast<const wchar_t*>(letters)), L"abc");
}

TEST(Format, Characters) {
    EXPECT_EQ(Wide(L"%c%c%C%c", L'a', 'b', 'c', 65), L"abcA");
    EXPECT_EQ(Wide(L"%3c|%-3c|", L'a', L'b'), L"  a|b  |");
    EXPECT_EQ(Narrow("%c%C%c", 'a', L'b', 67), "abC");
    EXPECT_EQ(Wide(L"%d", L'A'), L"65");
}

TEST(Format, Pointers) {
    EXPECT_EQ(Wide(L"%p", reinterpret_cast<void*>(0xABCD)), L"000000000000ABCD");
    EXPECT_EQ(Wide(L"%p", reinterpret_cast<HWND>(0x10)), L"0000000000000010");
}

TEST(Format, PercentSignsAndUnknownConversions) {
    EXPECT_EQ(Wide(L"100%% of %d%%", 5), L"100% of 5%");
    EXPECT_EQ(Wide(L"%y", 5), L"y");
    EXPECT_EQ(Wide(L"ends with %"), L"ends with ");
    EXPECT_EQ(Wide(L"%-5"), L"");
}

TEST(Format, ATypeThatDoesNotFitIsPrintedAsWhatItIs) {
    EXPECT_EQ(Wide(L"%s", 42), L"42");
    EXPECT_EQ(Wide(L"%s", 42u), L"42");
    EXPECT_EQ(Wide(L"%s", 2.5), L"2.5");
    EXPECT_EQ(Wide(L"%s", L'x'), L"x");
    EXPECT_EQ(Wide(L"%d", L"text"), L"text");
    EXPECT_EQ(Wide(L"%d", 2.5), L"2.5");
    EXPECT_EQ(Wide(L"%f", 3), L"3.000000");
    EXPECT_EQ(Wide(L"%f", L"text"), L"text");
    EXPECT_EQ(Wide(L"%c", L"text"), L"text");
    EXPECT_EQ(Wide(L"%*d", L"text", 5), L"5");
    EXPECT_EQ(Wide(L"%s", true), L"1");
    EXPECT_EQ(Wide(L"%d", reinterpret_cast<void*>(16)), L"16");
    enum class Colour : short { Red = 3 };
    EXPECT_EQ(Wide(L"%d", Colour::Red), L"3");
}

TEST(Format, MissingArgumentsPrintNothingAndSparesAreIgnored) {
    EXPECT_EQ(Wide(L"[%d][%s][%*d]"), L"[][][]");
    EXPECT_EQ(Wide(L"%d", 1, 2, 3), L"1");
    int written = 77;
    EXPECT_EQ(Wide(L"a%nb", &written), L"ab");
    EXPECT_EQ(written, 77);
}

TEST(Format, TheStringItselfMayBeAnArgument) {
    CString text(L"x");
    for (int round = 0; round < 3; ++round) {
        text.Format(L"%s%s", text, text);
    }
    EXPECT_STREQ(text, L"xxxxxxxx");
    text.AppendFormat(L"-%s", text);
    EXPECT_STREQ(text, L"xxxxxxxx-xxxxxxxx");
}

TEST(Format, FormatFromAResource) {
    CString text;
    text.Format(1002u, 3, L"pears");
    EXPECT_STREQ(text, L"3 apples and pears");
    text.AppendFormat(1002u, 4, L"figs");
    EXPECT_STREQ(text, L"3 apples and pears4 apples and figs");
    text.FormatMessage(1001u, L"one", L"two");
    EXPECT_STREQ(text, L"one of two");
    AfxFormatString2(text, 1001, L"1", L"2");
    EXPECT_STREQ(text, L"1 of 2");
    AfxFormatString1(text, 1001, L"%2");
    EXPECT_STREQ(text, L"%2 of ");
}

TEST(Format, MessagesInsertByNumber) {
    CString text;
    text.FormatMessage(L"%2!s! before %1, %3!05d!%n%%", L"first", L"second", 42);
    EXPECT_STREQ(text, L"second before first, 00042\r\n%");
    text.FormatMessage(L"%1!*.*f!%0 never", 8, 2, 3.14159);
    EXPECT_STREQ(text, L"    3.14");
    text.FormatMessage(L"[%4]", L"only one");
    EXPECT_STREQ(text, L"[]");
}

std::wstring ByList(const wchar_t* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    CString text;
    text.FormatV(format, arguments);
    va_end(arguments);
    return text.GetString();
}

TEST(Format, ArgumentListsOfTheLanguage) { EXPECT_EQ(ByList(L"%d %s %5.1f", 7, L"seven", 7.5), L"7 seven   7.5"); }

} // namespace

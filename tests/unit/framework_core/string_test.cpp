#include "afx.h"

#include <gtest/gtest.h>

namespace {

TEST(CString, CopiesShareUntilOneIsChanged) {
    CString first(L"shared");
    CString second(first);
    EXPECT_EQ(first.GetString(), second.GetString());
    second.SetAt(0, L'S');
    EXPECT_STREQ(first, L"shared");
    EXPECT_STREQ(second, L"Shared");
}

TEST(CString, AssignmentSharesAndReleasesTheOldText) {
    CString first(L"one");
    CString second(L"two");
    second = first;
    EXPECT_EQ(first.GetString(), second.GetString());
    first = L"three";
    EXPECT_STREQ(second, L"one");
}

TEST(CString, SelfAssignmentKeepsTheText) {
    CString text(L"same");
    const CString& alias = text;
    text = alias;
    EXPECT_STREQ(text, L"same");
    text = text.GetString();
    EXPECT_STREQ(text, L"same");
    text = text.GetString() + 2;
    EXPECT_STREQ(text, L"me");
}

TEST(CString, SelfAssignmentOfASharedTextsTailLeavesTheOtherAlone) {
    CString text(L"abcdef");
    const CString other(text);
    text.SetString(text.GetString() + 3, 2);
    EXPECT_STREQ(text, L"de");
    EXPECT_STREQ(other, L"abcdef");
}

TEST(CString, SelfAppendDoublesEvenWhenTheBufferMoves) {
    CString text(L"ab");
    for (int round = 0; round < 10; ++round) {
        text += text;
    }
    EXPECT_EQ(text.GetLength(), 2048);
    EXPECT_EQ(text.Right(4), L"abab");
    CString tail(L"xyz");
    tail.Append(tail.GetString() + 1, 2);
    EXPECT_STREQ(tail, L"xyzyz");
}

TEST(CString, LockedTextIsNeverShared) {
    CString locked(L"locked");
    locked.LockBuffer();
    const CString copy(locked);
    EXPECT_NE(copy.GetString(), locked.GetString());
    EXPECT_STREQ(copy, L"locked");
    locked.UnlockBuffer();
    const CString shared(locked);
    EXPECT_EQ(shared.GetString(), locked.GetString());
}

TEST(CString, BufferTakesTheWrittenTextsLength) {
    CString text;
    wcscpy(text.GetBuffer(20), L"written");
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), 7);
    text.GetBufferSetLength(3);
    EXPECT_STREQ(text, L"wri");
    text.GetBuffer(100);
    EXPECT_GE(text.GetAllocLength(), 100);
    text.ReleaseBuffer();
    text.FreeExtra();
    EXPECT_LT(text.GetAllocLength(), 20);
}

TEST(CString, TheEmptyTextIsNeverWritten) {
    CString empty;
    empty.GetBuffer(0)[0] = 0;
    empty.ReleaseBuffer(0);
    CString other;
    other.Truncate(0);
    EXPECT_TRUE(CString().IsEmpty());
    EXPECT_EQ(CString().GetAllocLength(), 0);
}

TEST(CString, NullPointersAreEmptyTexts) {
    const wchar_t* const none = nullptr;
    CString text(none);
    EXPECT_TRUE(text.IsEmpty());
    text = L"x";
    text = none;
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_TRUE(text == none);
    text += none;
    EXPECT_EQ(text.Compare(none), 0);
}

TEST(CString, IndexOutOfRangeThrows) {
    CString text(L"abc");
    EXPECT_EQ(text[3], L'\0');
    EXPECT_THROW(text[4], CInvalidArgException*);
    EXPECT_THROW(text.GetAt(-1), CInvalidArgException*);
    EXPECT_THROW(text.SetAt(3, L'x'), CInvalidArgException*);
    EXPECT_THROW(text.Truncate(4), CInvalidArgException*);
}

TEST(CString, CutsAreLimitedToTheText) {
    const CString text(L"framework");
    EXPECT_STREQ(text.Left(5), L"frame");
    EXPECT_STREQ(text.Left(-1), L"");
    EXPECT_STREQ(text.Left(99), L"framework");
    EXPECT_STREQ(text.Right(4), L"work");
    EXPECT_STREQ(text.Right(99), L"framework");
    EXPECT_STREQ(text.Mid(5), L"work");
    EXPECT_STREQ(text.Mid(2, 3), L"ame");
    EXPECT_STREQ(text.Mid(-3, 2), L"fr");
    EXPECT_STREQ(text.Mid(20, 2), L"");
    EXPECT_STREQ(text.Mid(7, INT_MAX), L"rk");
}

TEST(CString, FindGivesMinusOneWhenThereIsNothing) {
    const CString text(L"banana");
    EXPECT_EQ(text.Find(L"an"), 1);
    EXPECT_EQ(text.Find(L"an", 2), 3);
    EXPECT_EQ(text.Find(L'n', 3), 4);
    EXPECT_EQ(text.Find(L'x'), -1);
    EXPECT_EQ(text.Find(L"an", 7), -1);
    EXPECT_EQ(text.Find(L"an", -1), -1);
    EXPECT_EQ(text.FindOneOf(L"xyn"), 2);
    EXPECT_EQ(text.FindOneOf(L"xyz"), -1);
    EXPECT_EQ(text.ReverseFind(L'a'), 5);
    EXPECT_EQ(text.ReverseFind(L'x'), -1);
}

TEST(CString, TokenizeSkipsLeadingSeparatorsAndEndsWithMinusOne) {
    const CString text(L"%First Second#Third");
    int place = 0;
    EXPECT_STREQ(text.Tokenize(L"% #", place), L"First");
    EXPECT_STREQ(text.Tokenize(L"% #", place), L"Second");
    EXPECT_STREQ(text.Tokenize(L"% #", place), L"Third");
    EXPECT_NE(place, -1);
    EXPECT_STREQ(text.Tokenize(L"% #", place), L"");
    EXPECT_EQ(place, -1);
}

TEST(CString, ReplaceCountsAndDoesNotReplaceItsOwnResult) {
    CString text(L"aXaXa");
    EXPECT_EQ(text.Replace(L"X", L"XX"), 2);
    EXPECT_STREQ(text, L"aXXaXXa");
    EXPECT_EQ(text.Replace(L"XX", nullptr), 2);
    EXPECT_STREQ(text, L"aaa");
    EXPECT_EQ(text.Replace(L"", L"y"), 0);
    EXPECT_EQ(text.Replace(L'a', L'b'), 3);
    EXPECT_EQ(text.Replace(text, text + text), 1);
    EXPECT_STREQ(text, L"bbbbbb");
}

TEST(CString, InsertDeleteAndRemoveAnswerAsDocumented) {
    CString text(L"HelloWorld");
    EXPECT_EQ(text.Insert(5, L", "), 12);
    EXPECT_EQ(text.Insert(99, L'!'), 13);
    EXPECT_STREQ(text, L"Hello, World!");
    EXPECT_EQ(text.Delete(5, 2), 11);
    EXPECT_EQ(text.Delete(10, 50), 10);
    EXPECT_EQ(text.Delete(50), 10);
    EXPECT_EQ(text.Remove(L'l'), 3);
    EXPECT_STREQ(text, L"HeoWord");
    text.Insert(0, text);
    EXPECT_STREQ(text, L"HeoWordHeoWord");
}

TEST(CString, TrimTakesSpaceCharactersOrSets) {
    EXPECT_STREQ(CString(L" \t\r\n x y \n").Trim(), L"x y");
    EXPECT_STREQ(CString(L"**x*").TrimLeft(L'*'), L"x*");
    EXPECT_STREQ(CString(L"**x*").TrimRight(L'*'), L"**x");
    EXPECT_STREQ(CString(L"+-x-+").Trim(L"-+"), L"x");
    EXPECT_STREQ(CString(L"   ").Trim(), L"");
    EXPECT_STREQ(CString(L"xx").TrimRight(L"x"), L"");
}

TEST(CString, SpansAreLeadingRuns) {
    const CString text(L"cabinet");
    EXPECT_STREQ(text.SpanIncluding(L"abc"), L"cab");
    EXPECT_STREQ(text.SpanIncluding(L"xyz"), L"");
    EXPECT_STREQ(text.SpanExcluding(L"in"), L"cab");
    EXPECT_STREQ(text.SpanExcluding(L"xyz"), L"cabinet");
}

TEST(CString, ComparisonsOrderByCodeAndIgnoreCaseOnRequest) {
    const CString text(L"abc");
    EXPECT_EQ(text.Compare(L"abd"), -1);
    EXPECT_EQ(text.Compare(L"ABC"), 1);
    EXPECT_EQ(text.CompareNoCase(L"ABC"), 0);
    EXPECT_EQ(CString(L"\x00C4rger").CompareNoCase(L"\x00E4RGER"), 0);
    EXPECT_TRUE(text == L"abc" && L"abc" == text && text == "abc" && text != "abd");
    EXPECT_TRUE(CString(L"c") == L'c' && text != L'a');
    EXPECT_TRUE(text < L"b" && L"a" < text && text >= L"abc" && L"abc" <= text);
}

TEST(CString, CaseAndReversal) {
    EXPECT_STREQ(CString(L"m\x00FCll").MakeUpper(), L"M\x00DCLL");
    EXPECT_STREQ(CString(L"M\x00DCLL").MakeLower(), L"m\x00FCll");
    EXPECT_STREQ(CString(L"abc").MakeReverse(), L"cba");
}

TEST(CString, NarrowTextsAreConverted) {
    const CStringA narrow("narrow");
    CString wide(narrow);
    EXPECT_STREQ(wide, L"narrow");
    wide += " and wide";
    EXPECT_STREQ(wide, L"narrow and wide");
    EXPECT_STREQ(CStringA(wide), "narrow and wide");
    EXPECT_STREQ(CString('x', 3), L"xxx");
    EXPECT_STREQ(CString("abcdef", 3), L"abc");
}

TEST(CString, ConcatenationTakesTextsAndCharacters) {
    const CString text(L"b");
    EXPECT_STREQ(L"a" + text + L"c" + L'd' + 'e', L"abcde");
    EXPECT_STREQ(L'a' + text, L"ab");
    EXPECT_STREQ(text, L"b");
}

TEST(CString, ManyAppendsStayLinear) {
    CString text;
    int moves = 0;
    const wchar_t* place = text.GetString();
    for (int index = 0; index < 100000; ++index) {
        text.AppendChar(L'x');
        moves += text.GetAllocLength() != 0 && text.GetString() != place;
        place = text.GetString();
    }
    EXPECT_EQ(text.GetLength(), 100000);
    EXPECT_LT(moves, 40);
}

TEST(CString, LoadsResourcesByNumber) {
    CString text(L"before");
    EXPECT_TRUE(text.LoadString(1000));
    EXPECT_STREQ(text, L"A text of the resources");
    EXPECT_FALSE(text.LoadString(1003));
    EXPECT_FALSE(text.LoadString(60000));
    EXPECT_STREQ(text, L"A text of the resources");
    EXPECT_TRUE(text.LoadString(AfxGetInstanceHandle(), 1016));
    EXPECT_STREQ(text, L"First of the next block");
    EXPECT_STREQ(CString(MAKEINTRESOURCE(1016)), L"First of the next block");
    CStringA narrow;
    EXPECT_TRUE(narrow.LoadString(1000));
    EXPECT_STREQ(narrow, "A text of the resources");
}

TEST(CString, SystemStringsCarryTheWholeText) {
    const CString text(L"bstr");
    BSTR copy = text.AllocSysString();
    EXPECT_EQ(::SysStringLen(copy), 4u);
    CString(L"longer text").SetSysString(&copy);
    EXPECT_STREQ(copy, L"longer text");
    ::SysFreeString(copy);
    VARIANT number;
    number.vt = VT_I4;
    number.lVal = 42;
    EXPECT_STREQ(CString(number), L"42");
}

TEST(CString, EnvironmentVariables) {
    ::SetEnvironmentVariableW(L"BARWRIGHT_TEST_VALUE", L"value");
    CString text;
    EXPECT_TRUE(text.GetEnvironmentVariable(L"BARWRIGHT_TEST_VALUE"));
    EXPECT_STREQ(text, L"value");
    EXPECT_FALSE(text.GetEnvironmentVariable(L"BARWRIGHT_NO_SUCH_VALUE"));
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CString, PiecesBySeparator) {
    CString piece;
    EXPECT_TRUE(AfxExtractSubString(piece, L"one\ntwo\n\nfour", 1));
    EXPECT_STREQ(piece, L"two");
    EXPECT_TRUE(AfxExtractSubString(piece, L"one\ntwo\n\nfour", 2));
    EXPECT_TRUE(piece.IsEmpty());
    EXPECT_TRUE(AfxExtractSubString(piece, L"a;b", 1, L';'));
    EXPECT_STREQ(piece, L"b");
    EXPECT_FALSE(AfxExtractSubString(piece, L"a;b", 2, L';'));
}

TEST(CString, StringMovesWithoutCopy) {
    CString source(L"moved text");
    const wchar_t* const place = source.GetString();
    const CString target(std::move(source));
    EXPECT_EQ(target.GetString(), place);
}

} // namespace

#include "interface.h"

#include "atlsimpstr.h"
#include "atlstr.h"
#include "cstringt.h"

using SimpleString = CSimpleStringT<wchar_t>;

INTERFACE_OF(SimpleString) {
    MADE_FROM(const wchar_t*, int, IAtlStringMgr*);
    MADE_FROM(LPCWSTR, IAtlStringMgr*);
    MADE_FROM(const SimpleString&);
    MADE_FROM(IAtlStringMgr*);
    MEMBER(void, Append, (const SimpleString&));
    MEMBER(void, Append, (LPCWSTR, int));
    MEMBER(void, Append, (LPCWSTR));
    MEMBER(void, AppendChar, (wchar_t));
    STATIC(void, CopyChars, (wchar_t*, const wchar_t*, int));
    STATIC(void, CopyChars, (wchar_t*, size_t, const wchar_t*, int));
    STATIC(void, CopyCharsOverlapped, (wchar_t*, const wchar_t*, int));
    MEMBER(void, Empty, ());
    MEMBER(void, FreeExtra, ());
    MEMBER(int, GetAllocLength, () const);
    MEMBER(wchar_t, GetAt, (int) const);
    MEMBER(LPWSTR, GetBuffer, (int));
    MEMBER(LPWSTR, GetBuffer, ());
    MEMBER(LPWSTR, GetBufferSetLength, (int));
    MEMBER(int, GetLength, () const);
    MEMBER(IAtlStringMgr*, GetManager, () const);
    MEMBER(LPCWSTR, GetString, () const);
    MEMBER(bool, IsEmpty, () const);
    MEMBER(LPWSTR, LockBuffer, ());
    MEMBER(void, Preallocate, (int));
    MEMBER(void, ReleaseBuffer, (int));
    CALL(ReleaseBuffer);
    MEMBER(void, ReleaseBufferSetLength, (int));
    MEMBER(void, SetAt, (int, wchar_t));
    MEMBER(void, SetManager, (IAtlStringMgr*));
    MEMBER(void, SetString, (LPCWSTR, int));
    MEMBER(void, SetString, (LPCWSTR));
    STATIC(int, StringLength, (LPCWSTR));
    MEMBER(void, Truncate, (int));
    MEMBER(void, UnlockBuffer, ());
    MEMBER(LPCWSTR, operator LPCWSTR, () const);
    MEMBER(wchar_t, operator[], (int) const);
    MEMBER(SimpleString&, operator+=, (LPCWSTR));
    MEMBER(SimpleString&, operator+=, (const SimpleString&));
    MEMBER(SimpleString&, operator+=, (char));
    MEMBER(SimpleString&, operator+=, (unsigned char));
    MEMBER(SimpleString&, operator+=, (wchar_t));
    MEMBER(SimpleString&, operator=, (LPCWSTR));
    MEMBER(SimpleString&, operator=, (const SimpleString&));
}

INTERFACE_OF(CString) {
    BASE(SimpleString);
    MADE_FROM();
    MADE_FROM(IAtlStringMgr*);
    MADE_FROM(const VARIANT&);
    MADE_FROM(const VARIANT&, IAtlStringMgr*);
    MADE_FROM(const CString&);
    MADE_FROM(const SimpleString&);
    MADE_FROM(const wchar_t*);
    MADE_FROM(const char*);
    MADE_FROM(const unsigned char*);
    MADE_FROM(char*);
    MADE_FROM(unsigned char*);
    MADE_FROM(wchar_t*);
    MADE_FROM(LPCSTR, IAtlStringMgr*);
    MADE_FROM(LPCWSTR, IAtlStringMgr*);
    MADE_FROM(const unsigned char*, IAtlStringMgr*);
    MADE_FROM(char);
    MADE_FROM(char, int);
    MADE_FROM(wchar_t);
    MADE_FROM(wchar_t, int);
    MADE_FROM(const wchar_t*, int);
    MADE_FROM(const char*, int);
    MADE_FROM(const wchar_t*, int, IAtlStringMgr*);
    MADE_FROM(const char*, int, IAtlStringMgr*);

    MEMBER(BSTR, AllocSysString, () const);
    CALL(AppendFormat, LPCWSTR, int, LPCWSTR);
    CALL(AppendFormat, UINT, int, LPCWSTR);
    MEMBER(int, Collate, (LPCWSTR) const);
    MEMBER(int, CollateNoCase, (LPCWSTR) const);
    MEMBER(int, Compare, (LPCWSTR) const);
    MEMBER(int, CompareNoCase, (LPCWSTR) const);
    MEMBER(int, Delete, (int, int));
    CALL(Delete, int);
    MEMBER(int, Find, (LPCWSTR, int) const);
    CALL(Find, LPCWSTR);
    MEMBER(int, Find, (wchar_t, int) const);
    CALL(Find, wchar_t);
    MEMBER(int, FindOneOf, (LPCWSTR) const);
    CALL(Format, UINT, int, LPCWSTR);
    CALL(Format, LPCWSTR, int, LPCWSTR);
    CALL(FormatMessage, UINT, int, LPCWSTR);
    CALL(FormatMessage, LPCWSTR, int, LPCWSTR);
    MEMBER(void, FormatMessageV, (LPCWSTR, va_list*));
    MEMBER(void, FormatV, (LPCWSTR, va_list));
    MEMBER(BOOL, GetEnvironmentVariable, (LPCWSTR));
    MEMBER(int, Insert, (int, LPCWSTR));
    MEMBER(int, Insert, (int, wchar_t));
    MEMBER(CString, Left, (int) const);
    MEMBER(BOOL, LoadString, (HINSTANCE, UINT, WORD));
    MEMBER(BOOL, LoadString, (HINSTANCE, UINT));
    MEMBER(BOOL, LoadString, (UINT));
    MEMBER(CString&, MakeLower, ());
    MEMBER(CString&, MakeReverse, ());
    MEMBER(CString&, MakeUpper, ());
    MEMBER(CString, Mid, (int, int) const);
    MEMBER(CString, Mid, (int) const);
    MEMBER(int, Remove, (wchar_t));
    MEMBER(int, Replace, (LPCWSTR, LPCWSTR));
    MEMBER(int, Replace, (wchar_t, wchar_t));
    MEMBER(int, ReverseFind, (wchar_t) const);
    MEMBER(CString, Right, (int) const);
    MEMBER(BSTR, SetSysString, (BSTR*) const);
    MEMBER(CString, SpanExcluding, (LPCWSTR) const);
    MEMBER(CString, SpanIncluding, (LPCWSTR) const);
    MEMBER(CString, Tokenize, (LPCWSTR, int&) const);
    MEMBER(CString&, Trim, (wchar_t));
    MEMBER(CString&, Trim, (LPCWSTR));
    MEMBER(CString&, Trim, ());
    MEMBER(CString&, TrimLeft, (wchar_t));
    MEMBER(CString&, TrimLeft, (LPCWSTR));
    MEMBER(CString&, TrimLeft, ());
    MEMBER(CString&, TrimRight, (wchar_t));
    MEMBER(CString&, TrimRight, (LPCWSTR));
    MEMBER(CString&, TrimRight, ());

    ANSWERS(CString&, operator=, const CString&);
    ANSWERS(CString&, operator=, const SimpleString&);
    ANSWERS(CString&, operator=, LPCWSTR);
    ANSWERS(CString&, operator=, LPCSTR);
    ANSWERS(CString&, operator=, const unsigned char*);
    ANSWERS(CString&, operator=, wchar_t);
    ANSWERS(CString&, operator=, char);
    ANSWERS(CString&, operator=, const VARIANT&);
    ANSWERS(CString&, operator+=, const SimpleString&);
    ANSWERS(CString&, operator+=, LPCWSTR);
    ANSWERS(CString&, operator+=, LPCSTR);
    ANSWERS(CString&, operator+=, char);
    ANSWERS(CString&, operator+=, unsigned char);
    ANSWERS(CString&, operator+=, wchar_t);
    ANSWERS(CString&, operator+=, const VARIANT&);
}

namespace {

template <typename Left, typename Right>
constexpr bool isSum = std::is_same_v<decltype(std::declval<Left>() + std::declval<Right>()), CString>;
template <typename Left, typename Right>
constexpr bool isEqualComparable = requires(Left left, Right right) {
    { left == right } -> std::same_as<bool>;
    { left != right } -> std::same_as<bool>;
};
template <typename Left, typename Right>
constexpr bool isOrdered = requires(Left left, Right right) {
    { left < right } -> std::same_as<bool>;
    { left > right } -> std::same_as<bool>;
    { left <= right } -> std::same_as<bool>;
    { left >= right } -> std::same_as<bool>;
};
using Text = const CString&;

static_assert(isSum<Text, Text> && isSum<Text, LPCWSTR> && isSum<LPCWSTR, Text> && isSum<char, Text> &&
              isSum<Text, char> && isSum<Text, wchar_t> && isSum<wchar_t, Text>);
static_assert(isEqualComparable<Text, Text> && isEqualComparable<Text, LPCWSTR> && isEqualComparable<Text, LPCSTR> &&
              isEqualComparable<Text, wchar_t> && isEqualComparable<LPCWSTR, Text> && isEqualComparable<LPCSTR, Text> &&
              isEqualComparable<wchar_t, Text>);
static_assert(isOrdered<Text, Text> && isOrdered<Text, LPCWSTR> && isOrdered<LPCWSTR, Text>);

TEST(PublicInterface, NarrowStringsConvertToTheOemCharacterSet) {
    CStringA text("\xE4");
    text.AnsiToOem();
    text.OemToAnsi();
    EXPECT_EQ(text.GetLength(), 1);
}

} // namespace

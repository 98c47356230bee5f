#pragma once

// CStringT and its two forms CStringW and CStringA; CString is CStringW.

#include "fx/simple_string.h"
#include "fx/string_support.h"

#ifdef _ATL_CSTRING_EXPLICIT_CONSTRUCTORS
#define CSTRING_EXPLICIT explicit
#else
#define CSTRING_EXPLICIT
#endif

template <typename BaseType>
struct StrTraitMFC_DLL {
    static IAtlStringMgr* GetDefaultManager() noexcept { return AfxGetStringManager(); }
};
template <typename BaseType>
using StrTraitMFC = StrTraitMFC_DLL<BaseType>;

/// A string with text functions. Indexes count characters of BaseType from 0; "not found" is -1. Converting between
/// wchar_t and char goes by the system's ANSI code page.
template <typename BaseType, class StringTraits = StrTraitMFC_DLL<BaseType>>
class CStringT : public CSimpleStringT<BaseType> {
public:
    typedef CSimpleStringT<BaseType> CThisSimpleString;
    using XCHAR = typename CThisSimpleString::XCHAR;
    using PXSTR = typename CThisSimpleString::PXSTR;
    using PCXSTR = typename CThisSimpleString::PCXSTR;
    using YCHAR = typename CThisSimpleString::YCHAR;
    using PYSTR = typename CThisSimpleString::PYSTR;
    using PCYSTR = typename CThisSimpleString::PCYSTR;

    CStringT() noexcept : CThisSimpleString(StringTraits::GetDefaultManager()) {}
    explicit CStringT(IAtlStringMgr* pStringMgr) noexcept : CThisSimpleString(pStringMgr) {}
    CStringT(std::nullptr_t) noexcept : CStringT() {}
    CStringT(const CStringT& strSrc) = default;
    CStringT(CStringT&& strSrc) noexcept = default;
    CStringT(const CThisSimpleString& strSrc) : CThisSimpleString(strSrc) {}
    CStringT(const VARIANT& varSrc) : CStringT(varSrc, StringTraits::GetDefaultManager()) {}
    CStringT(const VARIANT& varSrc, IAtlStringMgr* pStringMgr);
    /// Null gives an empty string, MAKEINTRESOURCE of a string resource's id the resource's text.
    CStringT(const XCHAR* pszSrc) : CStringT(pszSrc, StringTraits::GetDefaultManager()) {}
    CSTRING_EXPLICIT CStringT(const YCHAR* pszSrc) : CStringT(pszSrc, StringTraits::GetDefaultManager()) {}
    CSTRING_EXPLICIT CStringT(const unsigned char* pszSrc) : CStringT(reinterpret_cast<LPCSTR>(pszSrc)) {}
    CStringT(LPCSTR pszSrc, IAtlStringMgr* pStringMgr) : CThisSimpleString(pStringMgr) { Assign(pszSrc); }
    CStringT(LPCWSTR pszSrc, IAtlStringMgr* pStringMgr) : CThisSimpleString(pStringMgr) { Assign(pszSrc); }
    CStringT(const unsigned char* pszSrc, IAtlStringMgr* pStringMgr)
        : CStringT(reinterpret_cast<LPCSTR>(pszSrc), pStringMgr) {}
    CSTRING_EXPLICIT CStringT(char ch, int nLength = 1) : CStringT() { Fill(ToXChar(ch), nLength); }
    CSTRING_EXPLICIT CStringT(wchar_t ch, int nLength = 1) : CStringT() { Fill(ToXChar(ch), nLength); }
    CStringT(const XCHAR* pch, int nLength) : CThisSimpleString(pch, nLength, StringTraits::GetDefaultManager()) {}
    CStringT(const YCHAR* pch, int nLength) : CStringT(pch, nLength, StringTraits::GetDefaultManager()) {}
    CStringT(const XCHAR* pch, int nLength, IAtlStringMgr* pStringMgr) : CThisSimpleString(pch, nLength, pStringMgr) {}
    CStringT(const YCHAR* pch, int nLength, IAtlStringMgr* pStringMgr) : CThisSimpleString(pStringMgr) {
        SetText(fx::ToWidth(pch, nLength, PCXSTR()));
    }
    ~CStringT() noexcept = default;

    CStringT& operator=(const CStringT& strSrc) = default;
    CStringT& operator=(CStringT&& strSrc) = default;
    CStringT& operator=(const CThisSimpleString& str) { return CThisSimpleString::operator=(str), *this; }
    CStringT& operator=(PCXSTR pszSrc) { return CThisSimpleString::operator=(pszSrc), *this; }
    CStringT& operator=(PCYSTR pszSrc) { return SetText(fx::ToWidth(pszSrc, -1, PCXSTR())); }
    CStringT& operator=(const unsigned char* pszSrc) { return *this = reinterpret_cast<LPCSTR>(pszSrc); }
    CStringT& operator=(std::nullptr_t) { return this->Empty(), *this; }
    CStringT& operator=(XCHAR ch) { return this->SetString(&ch, 1), *this; }
    CStringT& operator=(YCHAR ch) { return *this = ToXChar(ch); }
    CStringT& operator=(const VARIANT& var) { return *this = CStringT(var); }

    CStringT& operator+=(const CThisSimpleString& str) { return CThisSimpleString::operator+=(str), *this; }
    CStringT& operator+=(PCXSTR pszSrc) { return CThisSimpleString::operator+=(pszSrc), *this; }
    CStringT& operator+=(PCYSTR pszSrc) { return AppendText(fx::ToWidth(pszSrc, -1, PCXSTR())); }
    CStringT& operator+=(char ch) { return this->AppendChar(ToXChar(ch)), *this; }
    CStringT& operator+=(unsigned char ch) { return *this += static_cast<char>(ch); }
    CStringT& operator+=(wchar_t ch) { return this->AppendChar(ToXChar(ch)), *this; }
    CStringT& operator+=(const VARIANT& var) { return *this += CStringT(var); }

    int Compare(PCXSTR psz) const;
    int CompareNoCase(PCXSTR psz) const noexcept { return fx::CompareIgnoringCase(this->GetString(), psz); }
    int Collate(PCXSTR psz) const noexcept { return fx::CompareByLanguage(this->GetString(), psz, false); }
    int CollateNoCase(PCXSTR psz) const noexcept { return fx::CompareByLanguage(this->GetString(), psz, true); }

    /// Removes up to nCount characters; returns the new length.
    int Delete(int iIndex, int nCount = 1);
    /// An index past the end appends; returns the new length.
    int Insert(int iIndex, PCXSTR psz);
    int Insert(int iIndex, XCHAR ch);
    /// Both return how many replacements were made; an empty pszOld makes none.
    int Replace(XCHAR chOld, XCHAR chNew);
    int Replace(PCXSTR pszOld, PCXSTR pszNew);
    /// Returns how many characters were removed.
    int Remove(XCHAR chRemove);

    /// The next piece between characters of pszTokens, from iStart on; iStart becomes -1 when there is none.
    CStringT Tokenize(PCXSTR pszTokens, int& iStart) const;

    int Find(PCXSTR pszSub, int iStart = 0) const noexcept;
    int Find(XCHAR ch, int iStart = 0) const noexcept;
    int FindOneOf(PCXSTR pszCharSet) const noexcept;
    int ReverseFind(XCHAR ch) const noexcept;

    CStringT& MakeUpper();
    CStringT& MakeLower();
    CStringT& MakeReverse();
    CStringT& Trim() { return TrimRight().TrimLeft(); }
    CStringT& Trim(XCHAR chTarget) { return TrimRight(chTarget).TrimLeft(chTarget); }
    CStringT& Trim(PCXSTR pszTargets) { return TrimRight(pszTargets).TrimLeft(pszTargets); }
    CStringT& TrimLeft();
    CStringT& TrimLeft(XCHAR chTarget);
    CStringT& TrimLeft(PCXSTR pszTargets);
    CStringT& TrimRight();
    CStringT& TrimRight(XCHAR chTarget);
    CStringT& TrimRight(PCXSTR pszTargets);
    void AnsiToOem() requires std::is_same_v<BaseType, char>;
    void OemToAnsi() requires std::is_same_v<BaseType, char>;

    /// Counts and indexes out of range are cut to the text.
    CStringT Mid(int iFirst) const { return Mid(iFirst, this->GetLength()); }
    CStringT Mid(int iFirst, int nCount) const;
    CStringT Left(int nCount) const { return Mid(0, nCount); }
    CStringT Right(int nCount) const;
    CStringT SpanIncluding(PCXSTR pszCharSet) const;
    CStringT SpanExcluding(PCXSTR pszCharSet) const;

    /// See fx::AppendFormatted for the syntax. An argument may be this string itself.
    template <typename... Args>
    void Format(PCXSTR pszFormat, const Args&... args);
    template <typename... Args>
    void Format(UINT nFormatID, const Args&... args);
    template <typename... Args>
    void AppendFormat(PCXSTR pszFormat, const Args&... args);
    template <typename... Args>
    void AppendFormat(UINT nFormatID, const Args&... args);
    template <typename... Args>
    void FormatMessage(PCXSTR pszFormat, const Args&... args);
    template <typename... Args>
    void FormatMessage(UINT nFormatID, const Args&... args);
    void FormatV(PCXSTR pszFormat, va_list args) { SetText(fx::FormatByList(pszFormat, args)); }
    void AppendFormatV(PCXSTR pszFormat, va_list args) { AppendText(fx::FormatByList(pszFormat, args)); }
    void FormatMessageV(PCXSTR pszFormat, va_list* pArgList) { SetText(fx::MessageByList(pszFormat, pArgList)); }

    /// FALSE and an unchanged string when there is no such resource.
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID);
    /// FALSE and an empty string when there is no such variable.
    BOOL GetEnvironmentVariable(PCXSTR pszVar);

    /// The caller frees it with SysFreeString.
    BSTR AllocSysString() const;
    /// Replaces *pbstr, which must be a BSTR or null; returns the new one.
    BSTR SetSysString(BSTR* pbstr) const;

    friend CStringT operator+(const CStringT& str1, const CStringT& str2) { return CStringT(str1) += str2; }
    friend CStringT operator+(const CStringT& str1, PCXSTR psz2) { return CStringT(str1) += psz2; }
    friend CStringT operator+(PCXSTR psz1, const CStringT& str2) { return CStringT(psz1) += str2; }
    friend CStringT operator+(char ch1, const CStringT& str2) { return CStringT(ch1) += str2; }
    friend CStringT operator+(const CStringT& str1, char ch2) { return CStringT(str1) += ch2; }
    friend CStringT operator+(wchar_t ch1, const CStringT& str2) { return CStringT(ch1) += str2; }
    friend CStringT operator+(const CStringT& str1, wchar_t ch2) { return CStringT(str1) += ch2; }
    friend CStringT operator+(CStringT&& str1, const CStringT& str2) { return std::move(str1 += str2); }
    friend CStringT operator+(CStringT&& str1, PCXSTR psz2) { return std::move(str1 += psz2); }
    friend CStringT operator+(CStringT&& str1, char ch2) { return std::move(str1 += ch2); }
    friend CStringT operator+(CStringT&& str1, wchar_t ch2) { return std::move(str1 += ch2); }

    friend bool operator==(const CStringT& str1, const CStringT& str2) noexcept { return str1.IsSameText(str2); }
    friend bool operator==(const CStringT& str1, PCXSTR psz2) noexcept { return str1.Compare(psz2) == 0; }
    friend bool operator==(const CStringT& str1, PCYSTR psz2) noexcept { return str1.IsSameText(CStringT(psz2)); }
    friend bool operator==(const CStringT& str1, XCHAR ch2) noexcept {
        return str1.GetLength() == 1 && str1.GetString()[0] == ch2;
    }
    friend bool operator==(PCXSTR psz1, const CStringT& str2) noexcept { return str2 == psz1; }
    friend bool operator==(PCYSTR psz1, const CStringT& str2) noexcept { return str2 == psz1; }
    friend bool operator==(XCHAR ch1, const CStringT& str2) noexcept { return str2 == ch1; }
    friend bool operator!=(const CStringT& str1, const CStringT& str2) noexcept { return !(str1 == str2); }
    friend bool operator!=(const CStringT& str1, PCXSTR psz2) noexcept { return !(str1 == psz2); }
    friend bool operator!=(const CStringT& str1, PCYSTR psz2) noexcept { return !(str1 == psz2); }
    friend bool operator!=(const CStringT& str1, XCHAR ch2) noexcept { return !(str1 == ch2); }
    friend bool operator!=(PCXSTR psz1, const CStringT& str2) noexcept { return !(str2 == psz1); }
    friend bool operator!=(PCYSTR psz1, const CStringT& str2) noexcept { return !(str2 == psz1); }
    friend bool operator!=(XCHAR ch1, const CStringT& str2) noexcept { return !(str2 == ch1); }
    friend bool operator<(const CStringT& str1, const CStringT& str2) noexcept { return str1.Compare(str2) < 0; }
    friend bool operator<(const CStringT& str1, PCXSTR psz2) noexcept { return str1.Compare(psz2) < 0; }
    friend bool operator<(PCXSTR psz1, const CStringT& str2) noexcept { return str2.Compare(psz1) > 0; }
    friend bool operator>(const CStringT& str1, const CStringT& str2) noexcept { return str1.Compare(str2) > 0; }
    friend bool operator>(const CStringT& str1, PCXSTR psz2) noexcept { return str1.Compare(psz2) > 0; }
    friend bool operator>(PCXSTR psz1, const CStringT& str2) noexcept { return str2.Compare(psz1) < 0; }
    friend bool operator<=(const CStringT& str1, const CStringT& str2) noexcept { return str1.Compare(str2) <= 0; }
    friend bool operator<=(const CStringT& str1, PCXSTR psz2) noexcept { return str1.Compare(psz2) <= 0; }
    friend bool operator<=(PCXSTR psz1, const CStringT& str2) noexcept { return str2.Compare(psz1) >= 0; }
    friend bool operator>=(const CStringT& str1, const CStringT& str2) noexcept { return str1.Compare(str2) >= 0; }
    friend bool operator>=(const CStringT& str1, PCXSTR psz2) noexcept { return str1.Compare(psz2) >= 0; }
    friend bool operator>=(PCXSTR psz1, const CStringT& str2) noexcept { return str2.Compare(psz1) <= 0; }

private:
    typedef std::basic_string_view<XCHAR> View;
    View AsView() const noexcept { return View(this->GetString(), static_cast<std::size_t>(this->GetLength())); }
    bool IsSameText(const CStringT& other) const noexcept { return AsView() == other.AsView(); }

    static XCHAR ToXChar(char ch);
    static XCHAR ToXChar(wchar_t ch);
    template <typename Char>
    void Assign(const Char* text);
    CStringT& SetText(const std::basic_string<XCHAR>& text) {
        return this->SetString(text.data(), static_cast<int>(text.size())), *this;
    }
    CStringT& AppendText(const std::basic_string<XCHAR>& text) {
        return this->AppendExactly(text.data(), static_cast<int>(text.size())), *this;
    }
    void Fill(XCHAR ch, int count);
    void KeepRange(int first, int count);
};

typedef CStringT<wchar_t, StrTraitMFC_DLL<wchar_t>> CStringW;
typedef CStringT<char, StrTraitMFC_DLL<char>> CStringA;
typedef CStringT<TCHAR, StrTraitMFC_DLL<TCHAR>> CString;
typedef CStringW CAtlStringW;
typedef CStringA CAtlStringA;
typedef CString CAtlString;

namespace ATL {
using ::CString;
using ::CStringA;
using ::CStringT;
using ::CStringW;
} // namespace ATL

/// The iSubString-th piece (from 0) of a text whose pieces chSep separates. FALSE and "" when there are fewer.
FRAMEWORK_API BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString,
                                              TCHAR chSep = '\n');
/// The string resource with %1, %2 replaced. An unknown id gives "".
FRAMEWORK_API void AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1);
FRAMEWORK_API void AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2);

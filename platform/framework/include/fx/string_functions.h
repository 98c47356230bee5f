#pragma once

// Bodies of CStringT's members; fx/string.h is what one includes.

#include "fx/string_class.h"

#include <algorithm>

template <typename BaseType, class StringTraits>
CStringT<BaseType, StringTraits>::CStringT(const VARIANT& varSrc, IAtlStringMgr* pStringMgr)
    : CThisSimpleString(pStringMgr) {
    const std::wstring text = fx::TextOfVariant(varSrc);
    SetText(fx::ToWidth(text.data(), static_cast<int>(text.size()), PCXSTR()));
}

template <typename BaseType, class StringTraits>
template <typename Char>
void CStringT<BaseType, StringTraits>::Assign(const Char* text) {
    if (text != nullptr && IS_INTRESOURCE(text)) {
        LoadString(static_cast<UINT>(reinterpret_cast<ULONG_PTR>(text)));
    } else if constexpr (std::is_same_v<Char, XCHAR>) {
        this->SetString(text);
    } else {
        SetText(fx::ToWidth(text, -1, PCXSTR()));
    }
}

template <typename BaseType, class StringTraits>
typename CStringT<BaseType, StringTraits>::XCHAR CStringT<BaseType, StringTraits>::ToXChar(char ch) {
    if (std::is_same_v<XCHAR, char> || static_cast<unsigned char>(ch) < 0x80) {
        return static_cast<XCHAR>(ch);
    }
    return static_cast<XCHAR>(fx::WidenText(&ch, 1)[0]);
}

template <typename BaseType, class StringTraits>
typename CStringT<BaseType, StringTraits>::XCHAR CStringT<BaseType, StringTraits>::ToXChar(wchar_t ch) {
    if (std::is_same_v<XCHAR, wchar_t> || ch < 0x80) {
        return static_cast<XCHAR>(ch);
    }
    return static_cast<XCHAR>(fx::NarrowText(&ch, 1)[0]);
}

template <typename BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::Fill(XCHAR ch, int count) {
    if (count > 0) {
        std::fill_n(this->GetBufferSetLength(count), count, ch);
    }
}

template <typename BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Compare(PCXSTR psz) const {
    PCXSTR const other = psz == nullptr ? this->GetString() + this->GetLength() : psz;
    const int order =
        std::is_same_v<XCHAR, char>
            ? std::strcmp(reinterpret_cast<const char*>(this->GetString()), reinterpret_cast<const char*>(other))
            : std::wcscmp(reinterpret_cast<const wchar_t*>(this->GetString()), reinterpret_cast<const wchar_t*>(other));
    return (order > 0) - (order < 0);
}

template <typename BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Delete(int iIndex, int nCount) {
    const int length = this->GetLength();
    const int first = std::max(iIndex, 0);
    const int count = std::min(std::max(nCount, 0), length - first);
    if (count > 0) {
        PXSTR const buffer = this->GetBuffer();
        this->CopyCharsOverlapped(buffer + first, buffer + first + count, length - first - count);
        this->ReleaseBufferSetLength(length - count);
    }
    return this->GetLength();
}

template <typename BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Insert(int iIndex, XCHAR ch) {
    const XCHAR text[] = {ch, 0};
    return Insert(iIndex, text);
}

template <typename BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Insert(int iIndex, PCXSTR psz) {
    const int length = this->GetLength();
    const int place = std::min(std::max(iIndex, 0), length);
    // A copy first: psz may point into this string.
    const std::basic_string<XCHAR> text(psz == nullptr ? View() : View(psz));
    const int added = static_cast<int>(text.size());
    if (added > 0) {
        PXSTR const buffer = this->GetBuffer(length + added);
        this->CopyCharsOverlapped(buffer + place + added, buffer + place, length - place);
        this->CopyChars(buffer + place, text.data(), added);
        this->ReleaseBufferSetLength(length + added);
    }
    return this->GetLength();
}

template <typename BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Replace(XCHAR chOld, XCHAR chNew) {
    const View text = AsView();
    const int count = chOld == chNew ? 0 : static_cast<int>(std::count(text.begin(), text.end(), chOld));
    if (count > 0) {
        const int length = this->GetLength();
        PXSTR const buffer = this->GetBuffer();
        std::replace(buffer, buffer + length, chOld, chNew);
        this->ReleaseBufferSetLength(length);
    }
    return count;
}

template <typename BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Replace(PCXSTR pszOld, PCXSTR pszNew) {
    const View pattern = pszOld == nullptr ? View() : View(pszOld);
    if (pattern.empty()) {
        return 0;
    }
    const View replacement = pszNew == nullptr ? View() : View(pszNew);
    const View text = AsView();
    std::basic_string<XCHAR> result;
    int count = 0;
    std::size_t place = 0;
    for (std::size_t found; (found = text.find(pattern, place)) != View::npos; place = found + pattern.size()) {
        result.append(text, place, found - place).append(replacement);
        ++count;
    }
    if (count > 0) {
        result.append(text, place);
        SetText(result);
    }
    return count;
}

template <typename BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Remove(XCHAR chRemove) {
    const View text = AsView();
    const int count = static_cast<int>(std::count(text.begin(), text.end(), chRemove));
    if (count > 0) {
        const int length = this->GetLength();
        PXSTR const buffer = this->GetBuffer();
        std::remove(buffer, buffer + length, chRemove);
        this->ReleaseBufferSetLength(length - count);
    }
    return count;
}

template <typename BaseType, class StringTraits>
CStringT<BaseType, StringTraits> CStringT<BaseType, StringTraits>::Tokenize(PCXSTR pszTokens, int& iStart) const {
    ENSURE(iStart >= 0);
    const View text = AsView();
    const View separators = pszTokens == nullptr ? View() : View(pszTokens);
    const std::size_t first = text.find_first_not_of(separators, static_cast<std::size_t>(iStart));
    if (first == View::npos) {
        iStart = -1;
        return CStringT(this->GetManager());
    }
    const std::size_t end = std::min(text.find_first_of(separators, first), text.size());
    iStart = static_cast<int>(end) + 1;
    return CStringT(text.data() + first, static_cast<int>(end - first), this->GetManager());
}

template <typename BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Find(PCXSTR pszSub, int iStart) const noexcept {
    if (pszSub == nullptr || iStart < 0 || iStart > this->GetLength()) {
        return -1;
    }
    return static_cast<int>(AsView().find(View(pszSub), static_cast<std::size_t>(iStart)));
}

template <typename BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Find(XCHAR ch, int iStart) const noexcept {
    return iStart < 0 ? -1 : static_cast<int>(AsView().find(ch, static_cast<std::size_t>(iStart)));
}

template <typename BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::FindOneOf(PCXSTR pszCharSet) const noexcept {
    return pszCharSet == nullptr ? -1 : static_cast<int>(AsView().find_first_of(View(pszCharSet)));
}

template <typename BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::ReverseFind(XCHAR ch) const noexcept {
    return static_cast<int>(AsView().rfind(ch));
}

template <typename BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::MakeUpper() {
    const int length = this->GetLength();
    fx::MakeUpperCase(this->GetBuffer(), length);
    this->ReleaseBufferSetLength(length);
    return *this;
}

template <typename BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::MakeLower() {
    const int length = this->GetLength();
    fx::MakeLowerCase(this->GetBuffer(), length);
    this->ReleaseBufferSetLength(length);
    return *this;
}

template <typename BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::MakeReverse() {
    const int length = this->GetLength();
    PXSTR const buffer = this->GetBuffer();
    std::reverse(buffer, buffer + length);
    this->ReleaseBufferSetLength(length);
    return *this;
}

template <typename BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::KeepRange(int first, int count) {
    if (count == this->GetLength()) {
        return;
    }
    PXSTR const buffer = this->GetBuffer();
    this->CopyCharsOverlapped(buffer, buffer + first, count);
    this->ReleaseBufferSetLength(count);
}

template <typename BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::TrimLeft() {
    int first = 0;
    while (first < this->GetLength() && fx::IsSpace(this->GetString()[first])) {
        ++first;
    }
    KeepRange(first, this->GetLength() - first);
    return *this;
}

template <typename BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::TrimLeft(XCHAR chTarget) {
    const int first = static_cast<int>(std::min(AsView().find_first_not_of(chTarget), AsView().size()));
    KeepRange(first, this->GetLength() - first);
    return *this;
}

template <typename BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::TrimLeft(PCXSTR pszTargets) {
    if (pszTargets != nullptr) {
        const int first = static_cast<int>(std::min(AsView().find_first_not_of(View(pszTargets)), AsView().size()));
        KeepRange(first, this->GetLength() - first);
    }
    return *this;
}

template <typename BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::TrimRight() {
    int end = this->GetLength();
    while (end > 0 && fx::IsSpace(this->GetString()[end - 1])) {
        --end;
    }
    KeepRange(0, end);
    return *this;
}

// "Not found" is the greatest number, so that adding 1 gives the empty range.
template <typename BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::TrimRight(XCHAR chTarget) {
    KeepRange(0, static_cast<int>(AsView().find_last_not_of(chTarget) + 1));
    return *this;
}

template <typename BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::TrimRight(PCXSTR pszTargets) {
    if (pszTargets != nullptr) {
        KeepRange(0, static_cast<int>(AsView().find_last_not_of(View(pszTargets)) + 1));
    }
    return *this;
}

template <typename BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::AnsiToOem() requires std::is_same_v<BaseType, char> {
    const int length = this->GetLength();
    PXSTR const buffer = this->GetBuffer();
    ::CharToOemBuffA(buffer, buffer, static_cast<DWORD>(length));
    this->ReleaseBufferSetLength(length);
}

template <typename BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::OemToAnsi() requires std::is_same_v<BaseType, char> {
    const int length = this->GetLength();
    PXSTR const buffer = this->GetBuffer();
    ::OemToCharBuffA(buffer, buffer, static_cast<DWORD>(length));
    this->ReleaseBufferSetLength(length);
}

template <typename BaseType, class StringTraits>
CStringT<BaseType, StringTraits> CStringT<BaseType, StringTraits>::Mid(int iFirst, int nCount) const {
    const int length = this->GetLength();
    const int first = std::min(std::max(iFirst, 0), length);
    const int count = std::min(std::max(nCount, 0), length - first);
    if (count == length) {
        return *this;
    }
    return CStringT(this->GetString() + first, count, this->GetManager());
}

template <typename BaseType, class StringTraits>
CStringT<BaseType, StringTraits> CStringT<BaseType, StringTraits>::Right(int nCount) const {
    const int count = std::min(std::max(nCount, 0), this->GetLength());
    return Mid(this->GetLength() - count, count);
}

template <typename BaseType, class StringTraits>
CStringT<BaseType, StringTraits> CStringT<BaseType, StringTraits>::SpanIncluding(PCXSTR pszCharSet) const {
    ENSURE(pszCharSet != nullptr);
    return Left(static_cast<int>(std::min(AsView().find_first_not_of(View(pszCharSet)), AsView().size())));
}

template <typename BaseType, class StringTraits>
CStringT<BaseType, StringTraits> CStringT<BaseType, StringTraits>::SpanExcluding(PCXSTR pszCharSet) const {
    ENSURE(pszCharSet != nullptr);
    return Left(static_cast<int>(std::min(AsView().find_first_of(View(pszCharSet)), AsView().size())));
}

template <typename BaseType, class StringTraits>
template <typename... Args>
void CStringT<BaseType, StringTraits>::Format(PCXSTR pszFormat, const Args&... args) {
    ENSURE(pszFormat != nullptr);
    SetText(fx::FormatText(pszFormat, args...));
}

template <typename BaseType, class StringTraits>
template <typename... Args>
void CStringT<BaseType, StringTraits>::Format(UINT nFormatID, const Args&... args) {
    CStringT format;
    ENSURE(format.LoadString(nFormatID));
    SetText(fx::FormatText(format.GetString(), args...));
}

template <typename BaseType, class StringTraits>
template <typename... Args>
void CStringT<BaseType, StringTraits>::AppendFormat(PCXSTR pszFormat, const Args&... args) {
    ENSURE(pszFormat != nullptr);
    AppendText(fx::FormatText(pszFormat, args...));
}

template <typename BaseType, class StringTraits>
template <typename... Args>
void CStringT<BaseType, StringTraits>::AppendFormat(UINT nFormatID, const Args&... args) {
    CStringT format;
    ENSURE(format.LoadString(nFormatID));
    AppendText(fx::FormatText(format.GetString(), args...));
}

template <typename BaseType, class StringTraits>
template <typename... Args>
void CStringT<BaseType, StringTraits>::FormatMessage(PCXSTR pszFormat, const Args&... args) {
    ENSURE(pszFormat != nullptr);
    SetText(fx::MessageText(pszFormat, args...));
}

template <typename BaseType, class StringTraits>
template <typename... Args>
void CStringT<BaseType, StringTraits>::FormatMessage(UINT nFormatID, const Args&... args) {
    CStringT format;
    ENSURE(format.LoadString(nFormatID));
    SetText(fx::MessageText(format.GetString(), args...));
}

template <typename BaseType, class StringTraits>
BOOL CStringT<BaseType, StringTraits>::LoadString(UINT nID) {
    std::basic_string<XCHAR> text;
    const bool found = fx::LoadStringResource(nID, text);
    if (found) {
        SetText(text);
    }
    return found;
}

template <typename BaseType, class StringTraits>
BOOL CStringT<BaseType, StringTraits>::LoadString(HINSTANCE hInstance, UINT nID) {
    std::basic_string<XCHAR> text;
    const bool found = fx::LoadStringResource(hInstance, nID, nullptr, text);
    if (found) {
        SetText(text);
    }
    return found;
}

template <typename BaseType, class StringTraits>
BOOL CStringT<BaseType, StringTraits>::LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID) {
    std::basic_string<XCHAR> text;
    const bool found = fx::LoadStringResource(hInstance, nID, &wLanguageID, text);
    if (found) {
        SetText(text);
    }
    return found;
}

template <typename BaseType, class StringTraits>
BOOL CStringT<BaseType, StringTraits>::GetEnvironmentVariable(PCXSTR pszVar) {
    std::basic_string<XCHAR> text;
    const bool found = fx::ReadEnvironment(pszVar, text);
    SetText(text);
    return found;
}

template <typename BaseType, class StringTraits>
BSTR CStringT<BaseType, StringTraits>::AllocSysString() const {
    const std::wstring text = fx::ToWidth(this->GetString(), this->GetLength(), LPCWSTR());
    const BSTR result = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (result == nullptr) {
        AfxThrowMemoryException();
    }
    return result;
}

template <typename BaseType, class StringTraits>
BSTR CStringT<BaseType, StringTraits>::SetSysString(BSTR* pbstr) const {
    const std::wstring text = fx::ToWidth(this->GetString(), this->GetLength(), LPCWSTR());
    if (!::SysReAllocStringLen(pbstr, text.data(), static_cast<UINT>(text.size()))) {
        AfxThrowMemoryException();
    }
    return *pbstr;
}

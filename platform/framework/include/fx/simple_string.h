#pragma once

// CSimpleStringT: a shared, copy-on-write string of one character type, without text functions.

#include "fx/diagnostics.h"
#include "fx/string_data.h"

#include <cstring>
#include <cwchar>
#include <string>
#include <utility>

template <typename BaseType>
struct ChTraitsBase;
template <>
struct ChTraitsBase<char> {
    typedef char XCHAR;
    typedef LPSTR PXSTR;
    typedef LPCSTR PCXSTR;
    typedef wchar_t YCHAR;
    typedef LPWSTR PYSTR;
    typedef LPCWSTR PCYSTR;
};
template <>
struct ChTraitsBase<wchar_t> {
    typedef wchar_t XCHAR;
    typedef LPWSTR PXSTR;
    typedef LPCWSTR PCXSTR;
    typedef char YCHAR;
    typedef LPSTR PYSTR;
    typedef LPCSTR PCYSTR;
};

/// Copies share one block until one of them is changed. Out-of-memory throws CMemoryException, a bad index or length
/// CInvalidArgException. Distinct objects may be used on distinct threads even while they share a block.
template <typename BaseType>
class CSimpleStringT {
public:
    typedef typename ChTraitsBase<BaseType>::XCHAR XCHAR;
    typedef typename ChTraitsBase<BaseType>::PXSTR PXSTR;
    typedef typename ChTraitsBase<BaseType>::PCXSTR PCXSTR;
    typedef typename ChTraitsBase<BaseType>::YCHAR YCHAR;
    typedef typename ChTraitsBase<BaseType>::PYSTR PYSTR;
    typedef typename ChTraitsBase<BaseType>::PCYSTR PCYSTR;

    explicit CSimpleStringT(IAtlStringMgr* pStringMgr) noexcept { Attach(pStringMgr->GetNilString()); }
    CSimpleStringT(const CSimpleStringT& strSrc) { Attach(CloneData(strSrc.GetData())); }
    CSimpleStringT(CSimpleStringT&& strSrc) noexcept : m_pszData(strSrc.m_pszData) {
        strSrc.Attach(GetManager()->GetNilString());
    }
    CSimpleStringT(PCXSTR pszSrc, IAtlStringMgr* pStringMgr)
        : CSimpleStringT(pszSrc, StringLength(pszSrc), pStringMgr) {}
    CSimpleStringT(const XCHAR* pchSrc, int nLength, IAtlStringMgr* pStringMgr) : CSimpleStringT(pStringMgr) {
        SetString(pchSrc, nLength);
    }
    ~CSimpleStringT() noexcept { GetData()->Release(); }

    CSimpleStringT& operator=(const CSimpleStringT& strSrc) {
        CStringData* const source = strSrc.GetData();
        CStringData* const old = GetData();
        if (source == old) {
            return *this;
        }
        if (old->IsLocked() || source->pStringMgr != old->pStringMgr) {
            SetString(strSrc.GetString(), strSrc.GetLength());
        } else {
            Attach(CloneData(source));
            old->Release();
        }
        return *this;
    }
    CSimpleStringT& operator=(CSimpleStringT&& strSrc) {
        if (GetData()->IsLocked() || strSrc.GetData()->IsLocked() || GetManager() != strSrc.GetManager()) {
            return *this = static_cast<const CSimpleStringT&>(strSrc);
        }
        std::swap(m_pszData, strSrc.m_pszData);
        return *this;
    }
    CSimpleStringT& operator=(PCXSTR pszSrc) {
        SetString(pszSrc);
        return *this;
    }

    CSimpleStringT& operator+=(const CSimpleStringT& strSrc) {
        Append(strSrc);
        return *this;
    }
    CSimpleStringT& operator+=(PCXSTR pszSrc) {
        Append(pszSrc);
        return *this;
    }
    CSimpleStringT& operator+=(char ch) {
        AppendChar(static_cast<XCHAR>(ch));
        return *this;
    }
    CSimpleStringT& operator+=(unsigned char ch) {
        AppendChar(static_cast<XCHAR>(ch));
        return *this;
    }
    CSimpleStringT& operator+=(wchar_t ch) {
        AppendChar(static_cast<XCHAR>(ch));
        return *this;
    }

    /// Index from 0 to the length, which gives the terminating zero.
    XCHAR operator[](int iChar) const { return GetAt(iChar); }
    operator PCXSTR() const noexcept { return m_pszData; }

    void Append(PCXSTR pszSrc) { Append(pszSrc, StringLength(pszSrc)); }
    /// Stops at a zero before nLength; the source may lie in this string.
    void Append(PCXSTR pszSrc, int nLength) {
        ENSURE(nLength >= 0 && (nLength == 0 || pszSrc != nullptr));
        AppendExactly(pszSrc, BoundedLength(pszSrc, nLength));
    }
    void Append(const CSimpleStringT& strSrc) {
        if (IsEmpty() && GetManager() == strSrc.GetManager() && !GetData()->IsLocked()) {
            *this = strSrc;
        } else {
            AppendExactly(strSrc.GetString(), strSrc.GetLength());
        }
    }
    void AppendChar(XCHAR ch) { AppendExactly(&ch, 1); }

    void Empty() noexcept {
        CStringData* const old = GetData();
        if (old->nDataLength == 0) {
            return;
        }
        if (old->IsLocked()) {
            SetLength(0);
        } else {
            Attach(old->pStringMgr->GetNilString());
            old->Release();
        }
    }
    bool IsEmpty() const noexcept { return GetLength() == 0; }
    int GetLength() const noexcept { return GetData()->nDataLength; }
    int GetAllocLength() const noexcept { return GetData()->nAllocLength; }
    PCXSTR GetString() const noexcept { return m_pszData; }
    XCHAR GetAt(int iChar) const {
        ENSURE(iChar >= 0 && iChar <= GetLength());
        return m_pszData[iChar];
    }
    void SetAt(int iChar, XCHAR ch) {
        ENSURE(iChar >= 0 && iChar < GetLength());
        const int length = GetLength();
        PrepareWrite(length)[iChar] = ch;
        SetLength(length);
    }
    void SetString(PCXSTR pszSrc) { SetString(pszSrc, StringLength(pszSrc)); }
    /// The source may lie in this string.
    void SetString(PCXSTR pszSrc, int nLength) {
        ENSURE(nLength >= 0 && (nLength == 0 || pszSrc != nullptr));
        if (nLength == 0) {
            Empty();
            return;
        }
        const bool isInside = IsInside(pszSrc);
        const std::ptrdiff_t offset = isInside ? pszSrc - m_pszData : 0;
        if (isInside && GetData()->IsShared()) {
            CSimpleStringT copy(pszSrc, nLength, GetManager());
            *this = copy;
            return;
        }
        PXSTR const buffer = PrepareWrite(nLength);
        CopyCharsOverlapped(buffer, isInside ? buffer + offset : pszSrc, nLength);
        SetLength(nLength);
    }
    void Truncate(int nNewLength) {
        ENSURE(nNewLength >= 0 && nNewLength <= GetLength());
        PrepareWrite(GetLength());
        SetLength(nNewLength);
    }

    /// A buffer of at least that many characters beside the zero; call ReleaseBuffer after writing to it.
    PXSTR GetBuffer(int nMinBufferLength) {
        ENSURE(nMinBufferLength >= 0);
        return PrepareWrite(nMinBufferLength > GetLength() ? nMinBufferLength : GetLength());
    }
    PXSTR GetBuffer() { return PrepareWrite(GetLength()); }
    PXSTR GetBufferSetLength(int nLength) {
        PXSTR const buffer = GetBuffer(nLength);
        SetLength(nLength);
        return buffer;
    }
    /// -1: the text in the buffer ends with a zero.
    void ReleaseBuffer(int nNewLength = -1) {
        SetLength(nNewLength == -1 ? BoundedLength(m_pszData, GetAllocLength()) : nNewLength);
    }
    void ReleaseBufferSetLength(int nNewLength) { SetLength(nNewLength); }
    /// No sharing of this buffer until UnlockBuffer.
    PXSTR LockBuffer() {
        PXSTR const buffer = PrepareWrite(GetLength());
        GetData()->Lock();
        return buffer;
    }
    void UnlockBuffer() noexcept { GetData()->Unlock(); }
    void Preallocate(int nLength) {
        const int length = GetLength();
        PrepareWrite(nLength > length ? nLength : length);
    }
    void FreeExtra() {
        const int length = GetLength();
        if (GetAllocLength() == length || GetData()->IsLocked()) {
            return;
        }
        CSimpleStringT exact(GetManager());
        exact.SetString(GetString(), length);
        std::swap(m_pszData, exact.m_pszData);
    }

    IAtlStringMgr* GetManager() const noexcept { return GetData()->pStringMgr->Clone(); }
    /// Only an empty string may change its manager.
    void SetManager(IAtlStringMgr* pStringMgr) {
        ENSURE(IsEmpty());
        CStringData* const old = GetData();
        Attach(pStringMgr->GetNilString());
        old->Release();
    }

    static void CopyChars(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept {
        if (nChars > 0) {
            std::memcpy(pchDest, pchSrc, static_cast<std::size_t>(nChars) * sizeof(XCHAR));
        }
    }
    static void CopyChars(XCHAR* pchDest, std::size_t nDestLen, const XCHAR* pchSrc, int nChars) noexcept {
        CopyChars(pchDest, pchSrc, static_cast<std::size_t>(nChars) < nDestLen ? nChars : static_cast<int>(nDestLen));
    }
    static void CopyCharsOverlapped(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept {
        if (nChars > 0) {
            std::memmove(pchDest, pchSrc, static_cast<std::size_t>(nChars) * sizeof(XCHAR));
        }
    }
    /// 0 for null.
    static int StringLength(PCXSTR psz) noexcept {
        return psz == nullptr ? 0 : static_cast<int>(std::char_traits<XCHAR>::length(psz));
    }

protected:
    static int BoundedLength(PCXSTR text, int limit) noexcept {
        int length = 0;
        while (length < limit && text[length] != 0) {
            ++length;
        }
        return length;
    }
    bool IsInside(PCXSTR place) const noexcept { return place >= m_pszData && place <= m_pszData + GetLength(); }

    void AppendExactly(PCXSTR source, int count) {
        if (count == 0) {
            return;
        }
        const int length = GetLength();
        if (count > INT_MAX - 1 - length) {
            AfxThrowMemoryException();
        }
        const bool isInside = IsInside(source);
        const std::ptrdiff_t offset = isInside ? source - m_pszData : 0;
        PXSTR const buffer = PrepareWrite(length + count);
        CopyChars(buffer + length, isInside ? buffer + offset : source, count);
        SetLength(length + count);
    }

    /// A buffer of this object alone, with room for at least that many characters; the text is kept.
    PXSTR PrepareWrite(int capacity) {
        CStringData* const data = GetData();
        if (data->IsShared() || data->nAllocLength < capacity) {
            Grow(capacity);
        }
        return m_pszData;
    }

    void SetLength(int length) {
        ENSURE(length >= 0 && length <= GetAllocLength());
        // The block of the empty string is common to all threads and must not be written.
        if (GetData()->nAllocLength == 0) {
            return;
        }
        GetData()->nDataLength = length;
        m_pszData[length] = 0;
    }

private:
    CStringData* GetData() const noexcept { return reinterpret_cast<CStringData*>(m_pszData) - 1; }
    void Attach(CStringData* data) noexcept { m_pszData = static_cast<PXSTR>(data->data()); }

    static CStringData* CloneData(CStringData* data) {
        if (!data->IsLocked()) {
            data->AddRef();
            return data;
        }
        CStringData* const copy = data->pStringMgr->Clone()->Allocate(data->nDataLength, sizeof(XCHAR));
        if (copy == nullptr) {
            AfxThrowMemoryException();
        }
        copy->nDataLength = data->nDataLength;
        CopyChars(static_cast<PXSTR>(copy->data()), static_cast<PXSTR>(data->data()), data->nDataLength + 1);
        return copy;
    }

    void Grow(int capacity) {
        CStringData* const old = GetData();
        // Room for half as much again, so that appending in a loop stays linear.
        const int length = old->nDataLength;
        int wanted = capacity;
        if (length > 0 && capacity > old->nAllocLength && capacity < INT_MAX / 2) {
            const int generous = old->nAllocLength + old->nAllocLength / 2;
            wanted = generous > capacity ? generous : capacity;
        }
        if (!old->IsShared() && old->nAllocLength > 0) {
            CStringData* const same = old->pStringMgr->Reallocate(old, wanted, sizeof(XCHAR));
            if (same == nullptr) {
                AfxThrowMemoryException();
            }
            Attach(same);
            return;
        }
        CStringData* const fresh = old->pStringMgr->Clone()->Allocate(wanted, sizeof(XCHAR));
        if (fresh == nullptr) {
            AfxThrowMemoryException();
        }
        const int kept = length < wanted ? length : wanted;
        CopyChars(static_cast<PXSTR>(fresh->data()), m_pszData, kept);
        static_cast<PXSTR>(fresh->data())[kept] = 0;
        fresh->nDataLength = kept;
        Attach(fresh);
        old->Release();
    }

    PXSTR m_pszData;
};

namespace ATL {
using ::CSimpleStringT;
using ::CStringData;
using ::IAtlStringMgr;
} // namespace ATL

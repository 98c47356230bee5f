#pragma once

// The helper functions that the collection templates call and that a host may specialise for its own types.

#include "fx/archive.h"
#include "fx/dump_context.h"

#include <concepts>
#include <functional>
#include <type_traits>

template <class TYPE, class ARG_TYPE>
BOOL AFXAPI CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2) {
    return *pElement1 == *pElement2;
}

template <class TYPE>
void AFXAPI CopyElements(TYPE* pDest, const TYPE* pSrc, INT_PTR nCount) {
    for (INT_PTR index = 0; index < nCount; ++index) {
        pDest[index] = pSrc[index];
    }
}

template <class TYPE>
void AFXAPI DumpElements(CDumpContext& dc, const TYPE* pElements, INT_PTR nCount) {
    for (INT_PTR index = 0; index < nCount; ++index) {
        if constexpr (requires { dc << pElements[index]; }) {
            dc << L"\n\t" << pElements[index];
        }
    }
}

namespace fx {
FRAMEWORK_API UINT HashText(const wchar_t* text, std::size_t length) noexcept;
FRAMEWORK_API UINT HashText(const char* text, std::size_t length) noexcept;

inline UINT HashNumber(ULONGLONG number) noexcept {
    number *= 0x9E3779B97F4A7C15ull;
    return static_cast<UINT>(number >> 32);
}

// Values have meaning in another process only when they are plain and hold no address.
template <typename T>
concept StorableBytes = std::is_arithmetic_v<T> || std::is_enum_v<T> ||
    (std::is_class_v<T>&& std::is_trivially_copyable_v<T>);
} // namespace fx

/// Texts hash by content (null like ""), numbers and pointers by value, other types by std::hash.
template <class ARG_KEY>
AFX_INLINE UINT AFXAPI HashKey(ARG_KEY key) {
    using Plain = std::remove_cvref_t<ARG_KEY>;
    if constexpr (std::is_base_of_v<CSimpleStringT<wchar_t>, Plain> || std::is_base_of_v<CSimpleStringT<char>, Plain>) {
        return fx::HashText(key.GetString(), static_cast<std::size_t>(key.GetLength()));
    } else if constexpr (std::is_convertible_v<Plain, LPCWSTR>) {
        const LPCWSTR text = key;
        return text == nullptr ? fx::HashText(L"", 0) : fx::HashText(text, std::wcslen(text));
    } else if constexpr (std::is_convertible_v<Plain, LPCSTR>) {
        const LPCSTR text = key;
        return text == nullptr ? fx::HashText("", 0) : fx::HashText(text, std::strlen(text));
    } else if constexpr (std::is_pointer_v<Plain>) {
        return fx::HashNumber(reinterpret_cast<ULONG_PTR>(key));
    } else if constexpr (std::is_integral_v<Plain> || std::is_enum_v<Plain>) {
        return fx::HashNumber(static_cast<ULONGLONG>(key));
    } else {
        return fx::HashNumber(std::hash<Plain>()(key));
    }
}

/// Types with archive operators go through them; other plain values go as their bytes. Anything else throws
/// CNotSupportedException.
template <class TYPE>
void AFXAPI SerializeElements(CArchive& ar, TYPE* pElements, INT_PTR nCount) {
    for (INT_PTR index = 0; index < nCount; ++index) {
        TYPE& element = pElements[index];
        if constexpr (requires {
                          ar << element;
                          ar >> element;
                      }) {
            if (ar.IsStoring()) {
                ar << element;
            } else {
                ar >> element;
            }
        } else if constexpr (fx::StorableBytes<TYPE>) {
            if (ar.IsStoring()) {
                ar.Write(&element, sizeof(TYPE));
            } else if (ar.Read(&element, sizeof(TYPE)) != sizeof(TYPE)) {
                AfxThrowArchiveException(CArchiveException::endOfFile);
            }
        } else {
            AfxThrowNotSupportedException();
        }
    }
}

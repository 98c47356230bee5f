#include "window/dialog_data_failure.h"

#include "fx/ddx.h"

#include <type_traits>

// Checks of what was read from a control.

namespace {

template <class Number>
CString RangeText(Number least, Number most) {
    CString text;
    if constexpr (std::is_floating_point_v<Number>) {
        text.Format(L"Please enter a number between %g and %g.", static_cast<double>(least), static_cast<double>(most));
    } else if constexpr (std::is_signed_v<Number>) {
        text.Format(L"Please enter an integer between %lld and %lld.", static_cast<long long>(least),
                    static_cast<long long>(most));
    } else {
        text.Format(L"Please enter an integer between %llu and %llu.", static_cast<unsigned long long>(least),
                    static_cast<unsigned long long>(most));
    }
    return text;
}

/// Values are checked on their way out of the control only.
template <class Number>
void CheckRange(CDataExchange& exchange, Number value, Number least, Number most) {
    if (exchange.m_bSaveAndValidate && (value < least || value > most)) {
        FailDataExchange(exchange,
                         std::is_floating_point_v<Number> ? AFX_IDP_PARSE_REAL_RANGE : AFX_IDP_PARSE_INT_RANGE,
                         RangeText(least, most));
    }
}

} // namespace

void FailDataExchange(CDataExchange& exchange, UINT messageId, LPCTSTR otherwise) {
    CString text;
    if (!text.LoadString(messageId)) {
        text = otherwise;
    }
    AfxMessageBox(text, MB_OK | MB_ICONEXCLAMATION, messageId);
    exchange.Fail();
}

void AFXAPI DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars) {
    if (!pDX->m_bSaveAndValidate || value.GetLength() <= nChars) {
        return;
    }
    CString text;
    text.Format(L"Please enter no more than %d characters.", nChars);
    FailDataExchange(*pDX, AFX_IDP_PARSE_STRING_SIZE, text);
}

void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal) {
    CheckRange<BYTE>(*pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal) {
    CheckRange<short>(*pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal) {
    CheckRange<int>(*pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal) {
    CheckRange<long>(*pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal) {
    CheckRange<UINT>(*pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD const& value, DWORD minVal, DWORD maxVal) {
    CheckRange<DWORD>(*pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxUnsigned(CDataExchange* pDX, unsigned value, unsigned minVal, unsigned maxVal) {
    CheckRange<unsigned>(*pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal, LONGLONG maxVal) {
    CheckRange<LONGLONG>(*pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal, ULONGLONG maxVal) {
    CheckRange<ULONGLONG>(*pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, float value, float minVal, float maxVal) {
    CheckRange<float>(*pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal, double maxVal) {
    CheckRange<double>(*pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal) {
    CheckRange<DWORD>(*pDX, value, minVal, maxVal);
}

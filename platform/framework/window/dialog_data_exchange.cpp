#include "afxcmn.h"
#include "afxwin.h"
#include "fx/ddx.h"
#include "window/dialog_data_failure.h"

#include <cerrno>
#include <cfloat>
#include <climits>
#include <cstdlib>
#include <limits>

// Exchange of a control's content with a variable.

namespace {

CString TextOf(HWND control) {
    CString text;
    CWnd::FromHandle(control)->GetWindowText(text);
    return text;
}

/// An equal text is not set again: the control would notify and flicker.
void SetText(HWND control, const CString& text) {
    if (TextOf(control) != text) {
        ::SetWindowTextW(control, text);
    }
}

/// The whole text must be the number; blanks around it are allowed.
bool IsRestBlank(const wchar_t* rest) {
    while (*rest == L' ' || *rest == L'\t') {
        ++rest;
    }
    return *rest == L'\0';
}

template <class Number>
bool ParseInteger(const CString& text, Number& value) {
    wchar_t* rest = nullptr;
    errno = 0;
    const LPCTSTR start = text;
    const long long parsed = std::wcstoll(start, &rest, 10);
    const bool isInRange = parsed >= static_cast<long long>(std::numeric_limits<Number>::min()) &&
                           parsed <= static_cast<long long>(std::numeric_limits<Number>::max());
    if (rest == start || errno != 0 || !isInRange || !IsRestBlank(rest)) {
        return false;
    }
    value = static_cast<Number>(parsed);
    return true;
}

template <class Number>
void ExchangeInteger(CDataExchange* exchange, int control, Number& value) {
    const HWND window = exchange->PrepareEditCtrl(control);
    if (!exchange->m_bSaveAndValidate) {
        CString text;
        text.Format(L"%lld", static_cast<long long>(value));
        SetText(window, text);
        return;
    }
    if (!ParseInteger(TextOf(window), value)) {
        const bool isSigned = std::numeric_limits<Number>::is_signed;
        FailDataExchange(*exchange, isSigned ? AFX_IDP_PARSE_INT : AFX_IDP_PARSE_UINT,
                         isSigned ? L"Please enter an integer." : L"Please enter a positive integer.");
    }
}

template <class Number>
void ExchangeReal(CDataExchange* exchange, int control, Number& value, int digits) {
    const HWND window = exchange->PrepareEditCtrl(control);
    if (!exchange->m_bSaveAndValidate) {
        CString text;
        text.Format(L"%.*g", digits, static_cast<double>(value));
        SetText(window, text);
        return;
    }
    const CString text = TextOf(window);
    const LPCTSTR start = text;
    wchar_t* rest = nullptr;
    const double parsed = std::wcstod(start, &rest);
    if (rest == start || !IsRestBlank(rest)) {
        FailDataExchange(*exchange, AFX_IDP_PARSE_REAL, L"Please enter a number.");
    }
    value = static_cast<Number>(parsed);
}

/// An index that the control keeps: one message to read it, one to set it.
void ExchangeIndex(CDataExchange* exchange, int control, UINT getMessage, UINT setMessage, int& index) {
    const HWND window = exchange->PrepareCtrl(control);
    if (exchange->m_bSaveAndValidate) {
        index = static_cast<int>(::SendMessageW(window, getMessage, 0, 0));
    } else {
        ::SendMessageW(window, setMessage, static_cast<WPARAM>(index), 0);
    }
}

/// Chooses the item whose text is exactly the value, whatever the case.
void SelectExact(HWND window, UINT findMessage, UINT setMessage, const CString& value) {
    const LRESULT found = ::SendMessageW(window, findMessage, static_cast<WPARAM>(-1),
                                         reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(value)));
    ::SendMessageW(window, setMessage, static_cast<WPARAM>(found), 0);
}

} // namespace

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value) { ExchangeInteger(pDX, nIDC, value); }

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value) { ExchangeInteger(pDX, nIDC, value); }

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value) { ExchangeInteger(pDX, nIDC, value); }

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value) { ExchangeInteger(pDX, nIDC, value); }

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value) { ExchangeInteger(pDX, nIDC, value); }

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value) { ExchangeInteger(pDX, nIDC, value); }

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value) { ExchangeReal(pDX, nIDC, value, FLT_DIG); }

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value) { ExchangeReal(pDX, nIDC, value, DBL_DIG); }

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND window = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = TextOf(window);
    } else {
        SetText(window, value);
    }
}

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
    const HWND window = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = static_cast<int>(::SendMessageW(window, BM_GETCHECK, 0, 0));
        return;
    }
    if (value < BST_UNCHECKED || value > BST_INDETERMINATE) {
        value = BST_UNCHECKED;
    }
    ::SendMessageW(window, BM_SETCHECK, static_cast<WPARAM>(value), 0);
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value) {
    HWND button = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = -1;
    }
    int position = 0;
    do {
        const LONG type = ::GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK;
        if (type == BS_RADIOBUTTON || type == BS_AUTORADIOBUTTON) {
            if (!pDX->m_bSaveAndValidate) {
                ::SendMessageW(button, BM_SETCHECK, position == value ? BST_CHECKED : BST_UNCHECKED, 0);
            } else if (::SendMessageW(button, BM_GETCHECK, 0, 0) == BST_CHECKED) {
                value = position;
            }
            ++position;
        }
        button = ::GetWindow(button, GW_HWNDNEXT);
    } while (button && (::GetWindowLongW(button, GWL_STYLE) & WS_GROUP) == 0);
}

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
    if (rControl.m_hWnd) {
        return;
    }
    const HWND window = pDX->PrepareCtrl(nIDC);
    if (!rControl.SubclassWindow(window)) {
        AfxThrowNotSupportedException();
    }
}

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index) {
    ExchangeIndex(pDX, nIDC, CB_GETCURSEL, CB_SETCURSEL, index);
}

void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index) {
    ExchangeIndex(pDX, nIDC, LB_GETCURSEL, LB_SETCURSEL, index);
}

void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND window = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = TextOf(window);
    } else if (::SendMessageW(window, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                              reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(value))) == CB_ERR) {
        SetText(window, value);
    }
}

void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND window = pDX->PrepareCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        ::SendMessageW(window, LB_SELECTSTRING, static_cast<WPARAM>(-1),
                       reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(value)));
        return;
    }
    const LRESULT chosen = ::SendMessageW(window, LB_GETCURSEL, 0, 0);
    value.Empty();
    if (chosen != LB_ERR) {
        const LRESULT length = ::SendMessageW(window, LB_GETTEXTLEN, static_cast<WPARAM>(chosen), 0);
        ::SendMessageW(window, LB_GETTEXT, static_cast<WPARAM>(chosen),
                       reinterpret_cast<LPARAM>(value.GetBuffer(static_cast<int>(length) + 1)));
        value.ReleaseBuffer();
    }
}

void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND window = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = TextOf(window);
        return;
    }
    SelectExact(window, CB_FINDSTRINGEXACT, CB_SETCURSEL, value);
    if (::SendMessageW(window, CB_GETCURSEL, 0, 0) == CB_ERR) {
        SetText(window, value);
    }
}

void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    if (pDX->m_bSaveAndValidate) {
        DDX_LBString(pDX, nIDC, value);
    } else {
        SelectExact(pDX->PrepareCtrl(nIDC), LB_FINDSTRINGEXACT, LB_SETCURSEL, value);
    }
}

void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value) {
    const HWND window = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = ::GetScrollPos(window, SB_CTL);
    } else {
        ::SetScrollPos(window, SB_CTL, value, TRUE);
    }
}

void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value) {
    const HWND window = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = static_cast<int>(::SendMessageW(window, TBM_GETPOS, 0, 0));
    } else {
        ::SendMessageW(window, TBM_SETPOS, TRUE, value);
    }
}

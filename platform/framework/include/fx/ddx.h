#pragma once

#include "fx/data_exchange.h"
#include "fx/wnd.h"

/// Exchange of one control's content with one variable. Text that is no number, or a number outside the type, is
/// reported by a message box and fails.
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);
FRAMEWORK_API void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
/// The group starts at nIDC; value is the position of the chosen button, -1 when none is.
FRAMEWORK_API void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
/// Subclasses the control with rControl the first time.
FRAMEWORK_API void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);
FRAMEWORK_API void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
FRAMEWORK_API void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
/// A text of another case is the same; one that only begins with the value is not.
FRAMEWORK_API void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value);
FRAMEWORK_API void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
FRAMEWORK_API void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
FRAMEWORK_API void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value);
FRAMEWORK_API void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);
FRAMEWORK_API void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value);

/// Values are checked when the dialog is read; one that is wrong is reported by a message box and fails.
FRAMEWORK_API void AFXAPI DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars);
FRAMEWORK_API void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal);
FRAMEWORK_API void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal);
FRAMEWORK_API void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
FRAMEWORK_API void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal);
FRAMEWORK_API void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
FRAMEWORK_API void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD const& value, DWORD minVal, DWORD maxVal);
FRAMEWORK_API void AFXAPI DDV_MinMaxUnsigned(CDataExchange* pDX, unsigned value, unsigned minVal, unsigned maxVal);
FRAMEWORK_API void AFXAPI DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal, LONGLONG maxVal);
FRAMEWORK_API void AFXAPI DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal, ULONGLONG maxVal);
FRAMEWORK_API void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, float value, float minVal, float maxVal);
FRAMEWORK_API void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal, double maxVal);
FRAMEWORK_API void AFXAPI DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);

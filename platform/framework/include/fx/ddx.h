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
FRAMEWORK_API void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
FRAMEWORK_API void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
FRAMEWORK_API void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);
FRAMEWORK_API void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value);

FRAMEWORK_API void AFXAPI DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars);
FRAMEWORK_API void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
FRAMEWORK_API void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
FRAMEWORK_API void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal, double maxVal);

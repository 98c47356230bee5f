#include "interface.h"

#include "afxcview.h"
#include "afxdlgs.h"
#include "afxext.h"

INTERFACE_OF(CScrollView) {
    BASE(CView);
    MEMBER(void, CheckScrollBars, (BOOL&, BOOL&) const);
    MEMBER(void, FillOutsideRect, (CDC*, CBrush*));
    MEMBER(CPoint, GetDeviceScrollPosition, () const);
    MEMBER(void, GetDeviceScrollSizes, (int&, SIZE&, SIZE&, SIZE&) const);
    MEMBER(CPoint, GetScrollPosition, () const);
    MEMBER(CSize, GetTotalSize, () const);
    MEMBER(void, ResizeParentToFit, (BOOL));
    CALL(ResizeParentToFit);
    MEMBER(void, ScrollToPosition, (POINT));
    MEMBER(void, SetScaleToFitSize, (SIZE));
    MEMBER(void, SetScrollSizes, (int, SIZE, const SIZE&, const SIZE&));
    CALL(SetScrollSizes, int, SIZE);
}

INTERFACE_OF(CFormView) {
    BASE(CScrollView);
    MEMBER(BOOL, IsInitDlgCompleted, () const);
}

INTERFACE_OF(CEditView) {
    BASE(CCtrlView);
    MADE_FROM();
    MEMBER(BOOL, FindText, (LPCTSTR, BOOL, BOOL));
    CALL(FindText, LPCTSTR);
    MEMBER(UINT, GetBufferLength, () const);
    MEMBER(CEdit&, GetEditCtrl, () const);
    MEMBER(void, GetSelectedText, (CString&) const);
    MEMBER(LPCTSTR, LockBuffer, () const);
    MEMBER(void, SerializeRaw, (CArchive&));
    MEMBER(void, SetTabStops, (int));
    MEMBER(void, UnlockBuffer, () const);
    STATIC_DATA(const DWORD, dwStyleDefault);
}

INTERFACE_OF(CListView) {
    BASE(CCtrlView);
    MADE_FROM();
    MEMBER(CListCtrl&, GetListCtrl, () const);
}

PROTECTED_INTERFACE_OF(CListView) { MEMBER(void, RemoveImageList, (int)); }

INTERFACE_OF(CTreeView) {
    BASE(CCtrlView);
    MADE_FROM();
    MEMBER(CTreeCtrl&, GetTreeCtrl, () const);
}

INTERFACE_OF(CFileDialog) {
    BASE(CCommonDialog);
    MADE_FROM(BOOL);
    MADE_FROM(BOOL, LPCTSTR, LPCTSTR, DWORD, LPCTSTR, CWnd*, DWORD, BOOL);
    static_assert(!std::is_convertible_v<BOOL, CFileDialog>, "the constructor is explicit");
    VIRTUAL(INT_PTR, DoModal, ());
    MEMBER(CString, GetFileExt, () const);
    MEMBER(CString, GetFileName, () const);
    MEMBER(CString, GetFileTitle, () const);
    MEMBER(CString, GetFolderPath, () const);
    MEMBER(CString, GetNextPathName, (POSITION&) const);
    MEMBER(const OPENFILENAME&, GetOFN, () const);
    MEMBER(OPENFILENAME&, GetOFN, ());
    MEMBER(CString, GetPathName, () const);
    MEMBER(BOOL, GetReadOnlyPref, () const);
    MEMBER(POSITION, GetStartPosition, () const);
    MEMBER(void, HideControl, (int));
    MEMBER(void, SetControlText, (int, LPCSTR));
    MEMBER(void, SetControlText, (int, const wchar_t*));
    MEMBER(void, SetDefExt, (LPCSTR));
    MEMBER(void, SetTemplate, (UINT, UINT));
    MEMBER(void, SetTemplate, (LPCTSTR, LPCTSTR));
    NAMED(m_ofn);
}

PROTECTED_INTERFACE_OF(CFileDialog) {
    VIRTUAL(void, OnFileNameChange, ());
    VIRTUAL(BOOL, OnFileNameOK, ());
    VIRTUAL(void, OnFolderChange, ());
    VIRTUAL(void, OnInitDone, ());
    VIRTUAL(UINT, OnShareViolation, (LPCTSTR));
    VIRTUAL(void, OnTypeChange, ());
}

INTERFACE_OF(CColorDialog) {
    BASE(CCommonDialog);
    MADE_FROM();
    MADE_FROM(COLORREF, DWORD, CWnd*);
    VIRTUAL(INT_PTR, DoModal, ());
    MEMBER(COLORREF, GetColor, () const);
    STATIC(COLORREF*, GetSavedCustomColors, ());
    MEMBER(void, SetCurrentColor, (COLORREF));
    DATA(CHOOSECOLOR, m_cc);
}

PROTECTED_INTERFACE_OF(CColorDialog) { VIRTUAL(BOOL, OnColorOK, ()); }

INTERFACE_OF(CFontDialog) {
    BASE(CCommonDialog);
    MADE_FROM();
    MADE_FROM(LPLOGFONT, DWORD, CDC*, CWnd*);
    VIRTUAL(INT_PTR, DoModal, ());
    MEMBER(COLORREF, GetColor, () const);
    MEMBER(void, GetCurrentFont, (LPLOGFONT) const);
    MEMBER(CString, GetFaceName, () const);
    MEMBER(int, GetSize, () const);
    MEMBER(CString, GetStyleName, () const);
    MEMBER(int, GetWeight, () const);
    MEMBER(BOOL, IsBold, () const);
    MEMBER(BOOL, IsItalic, () const);
    MEMBER(BOOL, IsStrikeOut, () const);
    MEMBER(BOOL, IsUnderline, () const);
    DATA(CHOOSEFONT, m_cf);
}

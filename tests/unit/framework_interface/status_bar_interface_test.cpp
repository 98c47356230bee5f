#include "interface.h"

#include "afxRibbonProgressBar.h"
#include "afxribbonstatusbar.h"
#include "afxribbonstatusbarpane.h"

INTERFACE_OF(CMFCRibbonStatusBar) {
    BASE(CMFCRibbonBar);
    MEMBER(void, AddDynamicElement, (CMFCRibbonBaseElement*));
    MEMBER(void, AddElement, (CMFCRibbonBaseElement*, LPCTSTR, BOOL));
    CALL(AddElement, CMFCRibbonBaseElement*, LPCTSTR);
    MEMBER(void, AddExtendedElement, (CMFCRibbonBaseElement*, LPCTSTR, BOOL));
    CALL(AddExtendedElement, CMFCRibbonBaseElement*, LPCTSTR);
    MEMBER(void, AddSeparator, ());
    MEMBER(BOOL, Create, (CWnd*, DWORD, UINT));
    CALL(Create, CWnd*);
    MEMBER(BOOL, CreateEx, (CWnd*, DWORD, DWORD, UINT));
    CALL(CreateEx, CWnd*);
    MEMBER(CMFCRibbonBaseElement*, FindByID, (UINT, BOOL));
    CALL(FindByID, UINT);
    MEMBER(CMFCRibbonBaseElement*, FindElement, (UINT));
    MEMBER(int, GetCount, () const);
    MEMBER(CMFCRibbonBaseElement*, GetElement, (int));
    MEMBER(int, GetExCount, () const);
    MEMBER(CMFCRibbonBaseElement*, GetExElement, (int));
    VIRTUAL(BOOL, GetExtendedArea, (CRect&) const);
    MEMBER(int, GetSpace, () const);
    MEMBER(BOOL, IsBottomFrame, () const);
    MEMBER(BOOL, IsExtendedElement, (CMFCRibbonBaseElement*) const);
    MEMBER(BOOL, IsInformationMode, () const);
    VIRTUAL(void, RecalcLayout, ());
    MEMBER(void, RemoveAll, ());
    MEMBER(BOOL, RemoveElement, (UINT));
    MEMBER(void, SetInformation, (LPCTSTR));
}

PROTECTED_INTERFACE_OF(CMFCRibbonStatusBar) { VIRTUAL(void, OnDrawInformation, (CDC*, CString&, CRect)); }

INTERFACE_OF(CMFCRibbonStatusBarPane) {
    BASE(CMFCRibbonButton);
    MADE_FROM(UINT, LPCTSTR);
    MADE_FROM(UINT, LPCTSTR, BOOL, HICON, LPCTSTR);
    MADE_FROM(UINT, LPCTSTR, HBITMAP);
    MADE_FROM(UINT, LPCTSTR, HBITMAP, int, COLORREF, HICON, BOOL);
    MADE_FROM(UINT, LPCTSTR, UINT, int, COLORREF, HICON, BOOL);
    MEMBER(LPCTSTR, GetAlmostLargeText, () const);
    MEMBER(int, GetTextAlign, () const);
    MEMBER(BOOL, IsAnimation, () const);
    MEMBER(BOOL, IsExtended, () const);
    VIRTUAL(void, OnDrawBorder, (CDC*));
    VIRTUAL(COLORREF, OnFillBackground, (CDC*));
    MEMBER(void, SetAlmostLargeText, (LPCTSTR));
    MEMBER(void, SetAnimationList, (HBITMAP, int, COLORREF));
    MEMBER(BOOL, SetAnimationList, (UINT, int, COLORREF));
    MEMBER(void, SetTextAlign, (int));
    MEMBER(void, StartAnimation, (UINT, UINT));
    CALL(StartAnimation);
    MEMBER(void, StopAnimation, ());
}

PROTECTED_INTERFACE_OF(CMFCRibbonStatusBarPane) { VIRTUAL(void, OnFinishAnimation, ()); }

INTERFACE_OF(CMFCRibbonProgressBar) {
    BASE(CMFCRibbonBaseElement);
    MADE_FROM();
    MADE_FROM(UINT);
    MADE_FROM(UINT, int, int);
    MEMBER(int, GetPos, () const);
    MEMBER(int, GetRangeMax, () const);
    MEMBER(int, GetRangeMin, () const);
    VIRTUAL(CSize, GetRegularSize, (CDC*));
    MEMBER(BOOL, IsInfiniteMode, () const);
    VIRTUAL(void, OnDraw, (CDC*));
    MEMBER(void, SetInfiniteMode, (BOOL));
    CALL(SetInfiniteMode);
    MEMBER(void, SetPos, (int, BOOL));
    CALL(SetPos, int);
    MEMBER(void, SetRange, (int, int));
}

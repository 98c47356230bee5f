#include "interface.h"

#include "afxRibbonProgressBar.h"
#include "afxribbonstatusbar.h"
#include "afxribbonstatusbarpane.h"
#include "afxstatusbar.h"

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

INTERFACE_OF(CMFCStatusBar) {
    BASE(CPane);
    VIRTUAL(CSize, CalcFixedLayout, (BOOL, BOOL));
    MEMBER(int, CommandToIndex, (UINT) const);
    MEMBER(BOOL, Create, (CWnd*, DWORD, UINT));
    CALL(Create, CWnd*);
    MEMBER(BOOL, CreateEx, (CWnd*, DWORD, DWORD, UINT));
    CALL(CreateEx, CWnd*);
    VIRTUAL(BOOL, DoesAllowDynInsertBefore, () const);
    MEMBER(void, EnablePaneDoubleClick, (BOOL));
    CALL(EnablePaneDoubleClick);
    MEMBER(void, EnablePaneProgressBar, (int, long, BOOL, COLORREF, COLORREF, COLORREF));
    CALL(EnablePaneProgressBar, int);
    MEMBER(int, GetCount, () const);
    MEMBER(BOOL, GetDrawExtendedArea, () const);
    VIRTUAL(BOOL, GetExtendedArea, (CRect&) const);
    MEMBER(UINT, GetItemID, (int) const);
    MEMBER(void, GetItemRect, (int, LPRECT) const);
    MEMBER(void, GetPaneInfo, (int, UINT&, UINT&, int&) const);
    MEMBER(long, GetPaneProgress, (int) const);
    MEMBER(UINT, GetPaneStyle, (int) const);
    MEMBER(void, GetPaneText, (int, CString&) const);
    MEMBER(CString, GetPaneText, (int) const);
    MEMBER(int, GetPaneWidth, (int) const);
    MEMBER(CString, GetTipText, (int) const);
    MEMBER(void, InvalidatePaneContent, (int));
    VIRTUAL(BOOL, PreCreateWindow, (CREATESTRUCT&));
    MEMBER(void, SetDrawExtendedArea, (BOOL));
    CALL(SetDrawExtendedArea);
    MEMBER(BOOL, SetIndicators, (const UINT*, int));
    MEMBER(void, SetPaneAnimation, (int, HIMAGELIST, UINT, BOOL));
    CALL(SetPaneAnimation, int, HIMAGELIST);
    MEMBER(void, SetPaneBackgroundColor, (int, COLORREF, BOOL));
    CALL(SetPaneBackgroundColor, int);
    MEMBER(void, SetPaneIcon, (int, HICON, BOOL));
    CALL(SetPaneIcon, int, HICON);
    MEMBER(void, SetPaneIcon, (int, HBITMAP, COLORREF, BOOL));
    CALL(SetPaneIcon, int, HBITMAP);
    MEMBER(void, SetPaneInfo, (int, UINT, UINT, int));
    MEMBER(void, SetPaneProgress, (int, long, BOOL));
    CALL(SetPaneProgress, int, long);
    MEMBER(void, SetPaneStyle, (int, UINT));
    VIRTUAL(BOOL, SetPaneText, (int, LPCTSTR, BOOL));
    CALL(SetPaneText, int, LPCTSTR);
    MEMBER(void, SetPaneTextColor, (int, COLORREF, BOOL));
    CALL(SetPaneTextColor, int);
    MEMBER(void, SetPaneWidth, (int, int));
    MEMBER(void, SetTipText, (int, LPCTSTR));
}

PROTECTED_INTERFACE_OF(CMFCStatusBar) { VIRTUAL(void, OnDrawPane, (CDC*, CMFCStatusBarPaneInfo*)); }

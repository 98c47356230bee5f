#pragma once

#include "fx/wnd.h"

/// An edit window, one line or many. Every member is one message or call of the control; results are the control's own.
class FRAMEWORK_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)

public:
    CEdit();
    ~CEdit() override;

    BOOL CanUndo() const;
    int CharFromPos(CPoint pt) const;
    void Clear();
    void Copy();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    void Cut();
    void EmptyUndoBuffer();
    BOOL FmtLines(BOOL bAddEOL);
    BOOL GetCueBanner(LPWSTR lpszText, int cchText) const;
    CString GetCueBanner() const;
    int GetFirstVisibleLine() const;
    HLOCAL GetHandle() const;
    BOOL GetHighlight(int* pichStart, int* pichEnd) const;
    UINT GetLimitText() const;
    int GetLine(int nIndex, LPTSTR lpszBuffer) const;
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    int GetLineCount() const;
    DWORD GetMargins() const;
    BOOL GetModify() const;
    TCHAR GetPasswordChar() const;
    void GetRect(LPRECT lpRect) const;
    DWORD GetSel() const;
    void GetSel(int& nStartChar, int& nEndChar) const;
    BOOL HideBalloonTip();
    void LimitText(int nChars = 0);
    int LineFromChar(int nIndex = -1) const;
    int LineIndex(int nLine = -1) const;
    int LineLength(int nLine = -1) const;
    void LineScroll(int nLines, int nChars = 0);
    void Paste();
    CPoint PosFromChar(UINT nChar) const;
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);
    BOOL SetCueBanner(LPCWSTR lpszText);
    BOOL SetCueBanner(LPCWSTR lpszText, BOOL fDrawWhenFocused = FALSE);
    void SetHandle(HLOCAL hBuffer);
    void SetHighlight(int ichStart, int ichEnd);
    void SetLimitText(UINT nMax);
    void SetMargins(UINT nLeft, UINT nRight);
    void SetModify(BOOL bModified = TRUE);
    void SetPasswordChar(TCHAR ch);
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);
    void SetRect(LPCRECT lpRect);
    void SetRectNP(LPCRECT lpRect);
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void SetTabStops();
    BOOL SetTabStops(const int& cxEachStop);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);
    BOOL ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip);
    BOOL ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon = TTI_NONE);
    BOOL Undo();
};

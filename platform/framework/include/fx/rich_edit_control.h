#pragma once

#include "fx/wnd.h"

#include <richedit.h>

/// The system's rich edit window. Every member is one message of the control.
class FRAMEWORK_API CRichEditCtrl : public CWnd {
    DECLARE_DYNAMIC(CRichEditCtrl)

public:
    CRichEditCtrl();
    ~CRichEditCtrl() override;

    /// FALSE also when the system has no rich edit library.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL CanUndo() const;
    BOOL Undo();
    void EmptyUndoBuffer();
    void Clear();
    void Copy();
    void Cut();
    void Paste();
    BOOL CanPaste(UINT nFormat = 0) const;
    BOOL GetModify() const;
    void SetModify(BOOL bModified = TRUE);
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);
    void LimitText(long nChars = 0);
    long GetLimitText() const;
    long GetTextLength() const;
    int GetLineCount() const;
    int LineIndex(int nLine = -1) const;
    int LineLength(int nLine = -1) const;
    long LineFromChar(long nIndex) const;
    void GetSel(CHARRANGE& cr) const;
    void GetSel(long& nStartChar, long& nEndChar) const;
    void SetSel(long nStartChar, long nEndChar);
    void SetSel(CHARRANGE& cr);
    CString GetSelText() const;
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);
    void HideSelection(BOOL bHide, BOOL bPerm);
    void GetRect(LPRECT lpRect) const;
    void SetRect(LPCRECT lpRect);
    COLORREF SetBackgroundColor(BOOL bSysColor, COLORREF cr);
    DWORD GetDefaultCharFormat(CHARFORMAT& cf) const;
    BOOL SetDefaultCharFormat(CHARFORMAT& cf);
    DWORD GetSelectionCharFormat(CHARFORMAT& cf) const;
    BOOL SetSelectionCharFormat(CHARFORMAT& cf);
    DWORD GetParaFormat(PARAFORMAT& pf) const;
    BOOL SetParaFormat(PARAFORMAT& pf);
    long GetEventMask() const;
    DWORD SetEventMask(DWORD dwEventMask);
    long StreamIn(int nFormat, EDITSTREAM& es);
    long StreamOut(int nFormat, EDITSTREAM& es);
    CPoint GetCharPos(long lChar) const;
    int CharFromPos(CPoint pt) const;
};

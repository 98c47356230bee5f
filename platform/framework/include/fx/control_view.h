#pragma once

#include "fx/view.h"

#include <memory>

class CEdit;
class CListCtrl;
class CTreeCtrl;

/// A view whose window is a control of the system's, which draws itself.
class FRAMEWORK_API CCtrlView : public CView {
    DECLARE_DYNCREATE(CCtrlView)

public:
    CCtrlView(LPCTSTR lpszClass, DWORD dwStyle);
    ~CCtrlView() override;

protected:
    CCtrlView();

    void OnDraw(CDC* pDC) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

    CString m_strClass;
    DWORD m_dwDefaultStyle = 0; ///< beside what the frame asks for
};

/// Text of many lines. What the user types marks the document as changed. ID_EDIT_CUT, _COPY, _PASTE, _CLEAR, _UNDO
/// and _SELECT_ALL work.
class FRAMEWORK_API CEditView : public CCtrlView {
    DECLARE_DYNCREATE(CEditView)

public:
    CEditView();
    ~CEditView() override;

    static const DWORD dwStyleDefault;

    /// Valid as long as the view's window.
    CEdit& GetEditCtrl() const;
    /// In characters.
    UINT GetBufferLength() const;
    void GetSelectedText(CString& strResult) const;
    /// The text as it is now, valid until UnlockBuffer.
    LPCTSTR LockBuffer() const;
    void UnlockBuffer() const;
    /// Text alone, without its length: as a loaded archive it reads all that is left. UTF-16.
    void SerializeRaw(CArchive& ar);
    /// The text behind its length.
    void Serialize(CArchive& ar) override;
    /// In quarters of the average width of a character, for all tabs.
    void SetTabStops(int nTabStops);
    /// Behind the selection, or before it without bNext; selects what it finds. FALSE: there is none.
    BOOL FindText(LPCTSTR lpszFind, BOOL bNext = TRUE, BOOL bCase = TRUE);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnEditChange();
    afx_msg BOOL OnEditCommand(UINT nID);
    afx_msg void OnUpdateNeedSel(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNeedText(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNeedClip(CCmdUI* pCmdUI);
    afx_msg void OnUpdateEditUndo(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    void Show(LPCTSTR text);

    std::unique_ptr<CEdit> m_control; ///< sees the view's window through the control's members
    mutable CString m_locked;
    bool m_isReading = false; ///< the change is not the user's
};

/// A list control as a view.
class FRAMEWORK_API CListView : public CCtrlView {
    DECLARE_DYNCREATE(CListView)

public:
    CListView();
    ~CListView() override;

    /// Valid as long as the view's window.
    CListCtrl& GetListCtrl() const;

protected:
    /// LVSIL_NORMAL, LVSIL_SMALL or LVSIL_STATE; the images stay their owner's.
    void RemoveImageList(int nImageList);

private:
    std::unique_ptr<CListCtrl> m_control;
};

/// A tree control as a view.
class FRAMEWORK_API CTreeView : public CCtrlView {
    DECLARE_DYNCREATE(CTreeView)

public:
    CTreeView();
    ~CTreeView() override;

    /// Valid as long as the view's window.
    CTreeCtrl& GetTreeCtrl() const;

private:
    std::unique_ptr<CTreeCtrl> m_control;
};

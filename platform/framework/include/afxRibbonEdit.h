#pragma once

#include <afxcmn.h>
#include <afxribbonbutton.h>

class CMFCRibbonEdit;

namespace ribbon {
struct EditContent;
}

// The edit window inside a ribbon edit. Its element owns it.
class FRAMEWORK_API CMFCRibbonRichEditCtrl : public CRichEditCtrl {
    DECLARE_DYNAMIC(CMFCRibbonRichEditCtrl)

public:
    explicit CMFCRibbonRichEditCtrl(CMFCRibbonEdit& edit);

    CMFCRibbonEdit& GetOwnerRibbonEdit() const { return m_edit; }
    BOOL IsHighlighted() const { return m_bIsHighlighted; }
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg LRESULT OnMouseLeave(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnChange();
    DECLARE_MESSAGE_MAP()

    void TellParent(CPoint point);

    CMFCRibbonEdit& m_edit;
    BOOL m_bIsHighlighted = FALSE;
};

// A text field with an optional label and image. The element keeps the text; the edit window is made when the element
// gets its place in a shown category and is hidden or destroyed with it. Enter and the loss of the focus send the
// command when the text has changed since it was last sent; Escape takes the change back.
class FRAMEWORK_API CMFCRibbonEdit : public CMFCRibbonButton {
    DECLARE_DYNCREATE(CMFCRibbonEdit)

public:
    CMFCRibbonEdit();
    // nWidth: of the edit area in pixels at 96 DPI.
    CMFCRibbonEdit(UINT nID, int nWidth, LPCTSTR lpszLabel = nullptr, int nImage = -1);
    ~CMFCRibbonEdit() override;

    void SetEditText(CString strText);
    CString GetEditText() const { return m_strEdit; }
    void SetWidth(int nWidth, BOOL bInFloatyMode = FALSE);
    int GetWidth(BOOL bInFloatyMode = FALSE) const;
    // ES_LEFT, ES_CENTER or ES_RIGHT.
    void SetTextAlign(int nAlign);
    int GetTextAlign() const { return m_nAlign; }

    // Makes the edit window, or null; the element owns it.
    virtual CMFCRibbonRichEditCtrl* CreateEdit(CWnd* pWndParent, DWORD dwEditStyle);
    // Null while there is no window.
    CMFCRibbonRichEditCtrl* GetEditWnd() const { return m_pWndEdit; }
    // The edit area is also the command rectangle, the drop button of a combo box the menu rectangle.
    CRect GetEditRect() const { return m_rectCommand; }
    void DestroyCtrl() override;
    // Opens the list of an element that has one.
    virtual void DropDownList();
    // The keyboard's focus goes to an edit window.
    BOOL TakesTyping() const { return HasEditWindow(); }

    CSize GetRegularSize(CDC* pDC) override;
    CSize GetCompactSize(CDC* pDC) override;
    CSize GetIntermediateSize(CDC* pDC) override;
    int GetNarrowestWidth(CDC* pDC) override;
    BOOL CanBeStretched() override { return FALSE; }
    BOOL HasCompactMode() const override;
    BOOL HasIntermediateMode() const override;
    BOOL HasLargeMode() const override { return FALSE; }
    BOOL HasFocus() const override;
    BOOL IsHighlighted() const override;
    BOOL IsWholeRowHeight() const override { return FALSE; }
    BOOL CanBeAddedToQuickAccessToolBar() const override { return FALSE; }
    void CopyFrom(const CMFCRibbonBaseElement& src) override;

    BOOL SetACCData(CWnd* pParent, CAccessibilityData& data) override;
    BOOL PutACCValue(LPCTSTR lpszValue) override;

    void OnAfterChangeRect(CDC* pDC) override;
    void OnDraw(CDC* pDC) override;
    virtual void OnDrawLabelAndImage(CDC* pDC);
    void OnEnable(BOOL bEnable) override;
    void OnHighlight(BOOL bHighlight) override;
    BOOL OnKey(BOOL bIsMenuKey) override;
    void OnLButtonDown(CPoint point) override;
    void OnLButtonUp(CPoint point) override;
    void OnMouseMove(CPoint point) override;
    void OnRTLChanged(BOOL bIsRTL) override;
    void OnShow(BOOL bShow) override;
    void Redraw() override;

protected:
    friend class CMFCRibbonRichEditCtrl;

    void OnSetFocus(BOOL bSet) override;
    BOOL OnProcessKey(UINT nChar) override;
    // From the edit window.
    virtual void OnEditChange();
    virtual void OnEditFocus(BOOL bSet);
    // Enter, Escape, arrows; with Alt the arrows and function keys only. TRUE: done.
    virtual BOOL OnEditKey(UINT nChar);
    // The text is about to be sent: the command follows.
    virtual void OnTextCommitted() {}
    // The host's window has the focus again.
    void LeaveEditWindow();
    // Sends the command when the text differs from the one last sent or set.
    void CommitText();
    void RevertText();
    // Width of what stands right of the edit area (the drop button of a combo box); scaled.
    virtual int GetDropButtonWidth() const { return 0; }
    // Width to which a panel that lacks room may narrow the edit area, at 96 DPI; what is narrower stays as it is.
    virtual int GetLeastEditWidth() const;
    virtual BOOL HasEditWindow() const { return TRUE; }
    BOOL ShouldShowWindow() const;
    void PlaceEditWindow();
    void UpdateWindowColors();
    struct Layout;
    Layout CollectLayout(CDC* pDC) const;
    ribbon::EditContent CollectContent(CDC* pDC, BOOL bWithLabel) const;
    void ShowTextInWindow();

    CMFCRibbonRichEditCtrl* m_pWndEdit = nullptr;
    CString m_strEdit;
    CString m_strCommitted; // the text that was last set or sent
    int m_nWidth = 0;       // configured, of the edit area at 96 DPI; 0 or less: the usual one
    int m_nWidthFloaty = 0;
    int m_nAlign = ES_LEFT;
    BOOL m_bSettingText = FALSE;
    int m_nWindowTextHeight = 0; // of the font that the window has
    CRect m_rectText;            // where the text stands inside the edit area: the edit window's place
};

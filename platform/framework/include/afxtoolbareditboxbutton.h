#pragma once

#include "afxtoolbarbutton.h"

#include <memory>

/// A toolbar button that is an edit of one line. It keeps the text, so that copies of the button have it too, and gives
/// it to an edit of its own that is a child of the toolbar while the bar lies horizontally; in a vertical bar an
/// ordinary button stands in its place. The edits with one command in all toolbars hold the same text.
///
/// Enter sends the command to the toolbar's owner, Esc gives back what stood in the edit before and the focus to the
/// frame; every notification of the edit goes to the owner as well, as WM_COMMAND with its code. No accelerator of the
/// frame takes what is typed. In the flat mode the visual manager draws the border. Lengths given and answered are
/// pixels at 96 DPI.
class FRAMEWORK_API CMFCToolBarEditBoxButton : public CMFCToolBarButton {
    DECLARE_SERIAL(CMFCToolBarEditBoxButton)

public:
    CMFCToolBarEditBoxButton();
    /// dwStyle: styles of the edit. iWidth: 0 for the default width.
    CMFCToolBarEditBoxButton(UINT uiID, int iImage, DWORD dwStyle = ES_AUTOHSCROLL, int iWidth = 0);
    ~CMFCToolBarEditBoxButton() override;

    /// Makes the edit as a child of the toolbar; NULL when it cannot. The button takes the object over when its toolbar
    /// asks for one.
    virtual CEdit* CreateEdit(CWnd* pWndParent, const CRect& rect);
    /// NULL while the button lies in no toolbar that has a window.
    CEdit* GetEditBox() const { return m_pWndEdit.get(); }
    /// What the edit holds.
    virtual void SetContents(const CString& sContents);
    const CString& GetContents() const { return m_strContents; }

    // The buttons with the command in all toolbars: the first of them, and its text (empty: there is none).
    static CMFCToolBarEditBoxButton* __stdcall GetByCmd(UINT uiCmd);
    static CString __stdcall GetContentsAll(UINT uiCmd);
    /// Sets the text of all of them without a command. FALSE: there is none.
    static BOOL SetContentsAll(UINT uiCmd, const CString& strContents);

    /// For all of them: the visual manager draws the border; else the edit has the system's.
    static void __stdcall SetFlatMode(BOOL bFlat = TRUE);
    static BOOL __stdcall IsFlatMode();
    /// The menu resource that a right click in the edit shows (by the context menu manager); 0: none.
    void SetContextMenuID(UINT uiResID) { m_uiMenuResID = uiResID; }
    UINT GetContextMenuID() { return m_uiMenuResID; }
    /// The edit, the margin around its text and the line of one pixel around both, in the toolbar; empty without an
    /// edit.
    virtual void GetEditBorder(CRect& rectBorder);

    void SetStyle(UINT nStyle) override;
    HWND GetHwnd() override;
    BOOL HasFocus() const override;
    BOOL IsOwnerOf(HWND hwnd) override;
    BOOL IsWindowVisible() override;
    void EnableWindow(BOOL bEnable = TRUE) override;
    BOOL CanBeStretched() const override { return TRUE; }
    BOOL HaveHotBorder() const override;
    const CRect GetInvalidateRect() const override;

    void CopyFrom(const CMFCToolBarButton& src) override;
    void Serialize(CArchive& ar) override;
    SIZE OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz) override;
    void OnChangeParentWnd(CWnd* pWndParent) override;
    void OnMove() override;
    void OnSize(int iSize) override;
    void OnShow(BOOL bShow) override;
    void OnGlobalFontsChanged() override;
    void OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHorz = TRUE, BOOL bCustomizeMode = FALSE,
                BOOL bHighlight = FALSE, BOOL bDrawBorder = TRUE, BOOL bGrayDisabledButtons = TRUE) override;
    HBRUSH OnCtlColor(CDC* pDC, UINT nCtlColor) override;
    /// TRUE: the edit has the focus by then.
    BOOL OnClick(CWnd* pWnd, BOOL bDelay = TRUE) override;
    BOOL OnClickUp() override { return ShowsEdit(); }
    /// On EN_UPDATE the other edits with the command take the text.
    BOOL NotifyCommand(int iNotifyCode) override;
    BOOL OnUpdateToolTip(CWnd* pWndParent, int iButtonIndex, CToolTipCtrl& wndToolTip, CString& str) override;

protected:
    DWORD m_dwStyle = WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL;
    int m_iWidth = 0;
    CString m_strContents;
    UINT m_uiMenuResID = 0;

private:
    void CloseEdit();
    void PlaceEdit();
    void ShowEdit();
    CRect GetEditRect() const;
    int GetTextHeight() const;
    bool ShowsEdit() const { return m_pWndEdit && m_bHorz; }

    std::unique_ptr<CEdit> m_pWndEdit;
};

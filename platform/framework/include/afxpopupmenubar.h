#pragma once

#include "afxtoolbar.h"
#include "afxtoolbarmenubutton.h"
#include "fx/wheel_rest.h"

#include <cstdint>
#include <memory>

class CMFCPopupMenu;

namespace toolbar {
class PopupRows;
class RowStack;
enum class RowStep : std::uint8_t;
struct MenuRowMetrics;
struct RowGeometry;
} // namespace toolbar

/// The items of a pop-up menu: child window of a CMFCPopupMenu, which owns it. It imports a menu's items, tracks the
/// mouse and keys over them, and opens the pop-ups of its items.
///
/// With SetRows it is a list instead (IsDropDownListMode): it has no buttons then (GetCount answers 0), and rows,
/// rectangles, hit test, scrolling and painting are computed, so that the number of rows costs nothing. Derived bars of
/// a list override the message handlers and use HitTest, GetRowRect and InvalidateRow. What a handler tells the host
/// may close the list, which ends this object: look at the window's handle again before going on.
class FRAMEWORK_API CMFCPopupMenuBar : public CMFCToolBar {
    DECLARE_DYNCREATE(CMFCPopupMenuBar)

public:
    CMFCPopupMenuBar();
    ~CMFCPopupMenuBar() override;

    BOOL Create(CWnd* pParentWnd, DWORD dwStyle = AFX_DEFAULT_TOOLBAR_STYLE, UINT nID = AFX_IDW_TOOLBAR) override;
    using CMFCToolBar::Create;

    // Items
    /// Items of the menu, with texts, states and default item as they are now; hMenu stays the caller's. FALSE: hMenu
    /// is no menu.
    virtual BOOL ImportFromMenu(HMENU hMenu, BOOL bShowAllCommands = FALSE);
    /// A new menu of the items, destroyed by the caller.
    virtual HMENU ExportToMenu() const;
    UINT GetDefaultMenuId() const { return m_uiDefMenuCmd; }
    void SetDefaultMenuId(UINT uiCmd) { m_uiDefMenuCmd = uiCmd; }
    void SetButtonStyle(int nIndex, UINT nStyle) override;
    /// Index of the item chosen last in any menu, -1 when none was.
    static int __stdcall GetLastCommandIndex() { return m_nLastCommandIndex; }

    // Size and layout. CMFCPopupMenu::RecalcLayout asks CalcSize for the size of the whole list of items (pixels),
    // gives the bar the room it has, and calls AdjustLocations, which places the items from -GetOffset() on.
    CSize CalcSize(BOOL bVertDock) override;
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void AdjustLayout() override;
    void AdjustLocations() override;
    void AdjustSizeImmediate(BOOL bRecalcLayout = TRUE) override;
    int GetRowHeight() const override;
    /// Size of an image as it is drawn (scaled pixels).
    virtual CSize GetCurrentMenuImageSize() const;
    /// Pixels by which the items are scrolled up.
    int GetOffset() const { return m_iOffset; }
    void SetOffset(int iOffset);
    /// Height of all items (pixels).
    int GetContentHeight() const { return m_nContentHeight; }
    /// Right edge of the column of images and check marks; 0 when there is none.
    int GetGutterWidth() const;
    toolbar::MenuRowMetrics GetRowMetrics() const;
    /// Mnemonics are underlined: the menu was opened by a key, or the user always wants them.
    BOOL ShowsMnemonics() const override { return m_bShowsMnemonics; }

    // What kind of pop-up this is
    BOOL IsDropDownListMode() const { return m_bDropDownListMode; }
    BOOL IsPaletteMode() const { return FALSE; }

    // A list. Its rows begin at the upper edge of the client area and are GetRowHeight() high each; it scrolls by whole
    // rows.
    /// Before the window is made. NULL: back to buttons. The rows stay the caller's and outlive the window.
    void SetRows(toolbar::PopupRows* pRows);
    BOOL HasRows() const { return m_rows != NULL; }
    int GetRowCount() const;
    /// Client pixels, also of a row that is scrolled out of view; empty when there is no such row.
    CRect GetRowRect(int nRow) const;
    void InvalidateRow(int nRow);
    /// The hot row, under the mouse or chosen by keys; -1 when none is.
    int GetHotRow() const { return HasRows() ? m_iHighlighted : -1; }
    /// Scrolls to the row and makes it hot; -1: none is. The host is told and may close the list.
    void SetHotRow(int nRow);
    /// Rows were added or removed, or have another text.
    void OnRowsChanged();
    /// The last row is new. Costs the same however many there are: a list that scrolls looks at all that were added
    /// when it comes back to its messages.
    void OnRowAdded();
    /// Row under the point (client pixels) or, with buttons, the index of the button; -1 when there is none.
    int HitTest(CPoint point) override;
    void GetItemRect(int nIndex, LPRECT lpRect) const override;
    void GetInvalidateItemRect(int nIndex, LPRECT lpRect) const override;
    /// What of a height is moved by a page: in a list whole rows.
    int GetPageHeight(int nHeight) const;
    /// The largest offset that makes sense in a bar of that height.
    int GetLowestOffset(int nHeight);

    virtual BOOL IsRibbonPanel() const { return FALSE; }
    virtual BOOL IsRibbonPanelInRegularMode() const { return FALSE; }

    // Pop-ups of the items
    void StartPopupMenuTimer(CMFCToolBarMenuButton* pMenuButton, int nDelayFactor = 1);
    /// The open pop-up will close unless RestoreDelayedSubMenu comes in time.
    virtual void CloseDelayedSubMenu();
    virtual void RestoreDelayedSubMenu();

    // Input, called for the active menu. TRUE: the key or character is used.
    virtual BOOL OnKey(UINT nChar);
    BOOL TranslateChar(UINT nChar) override;
    /// TRUE: the wheel has scrolled or changed something. Otherwise the menu swallows it.
    virtual BOOL OnWheel(short zDelta);
    /// Makes the first item hot when no other is, as after opening by a key.
    virtual void SelectFirstItem();

    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    /// The menu around this bar; NULL while the bar has none.
    CMFCPopupMenu* GetParentPopup() const;

    BOOL m_bDisableSideBarInXPMode = FALSE; ///< no column for images

protected:
    void DoPaint(CDC* pDC) override;
    void DrawSeparator(CDC* pDC, const CRect& rect, BOOL bHorz) override;
    void OnChangeHot(int iHot) override;
    BOOL OnSendCommand(const CMFCToolBarButton* pButton) override;
    CWnd* GetCommandTarget() const override;
    BOOL OnUserToolTip(CMFCToolBarButton*, CString&) const override { return FALSE; }
    INT_PTR OnToolHitTest(CPoint, TOOLINFO*) const override { return -1; }
    /// Fills the client area behind the items.
    void OnFillBackground(CDC* pDC) override;
    /// Hides the items that the menu does not show at once; the last row then shows them.
    void HideRareItems();
    void ShowRareItems();
    /// The item at the index is chosen, by mouse or key; `this` may be gone afterwards.
    virtual void ChooseItem(int iIndex);
    /// The item that a step of the keyboard leads to; -1 when no item can be hot.
    int FindSelectable(toolbar::RowStep step) const;
    virtual void MakeVisible(int iIndex);
    /// The space bar on a list's hot row. TRUE: it was used; the list stays open and draws the row anew, if it is still
    /// there. FALSE: it is a character like any other.
    virtual BOOL OnToggleRow(int nRow);
    BOOL OpenSubMenu(int iIndex, BOOL bSelectFirst);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    DECLARE_MESSAGE_MAP()

private:
    struct Rows;
    toolbar::RowGeometry GetRowGeometry() const;
    /// The buttons as rows; asked anew each time, for they change.
    toolbar::RowStack GetStack() const;
    /// The offset that shows the row wholly, by the shortest way, and the one that lies so many rows on.
    int GetOffsetToShow(int nRow) const;
    int GetOffsetAfter(int nRows) const;
    void StepTo(int nIndex);
    CSize CalcRows();
    void LayOutAddedRows();
    void PaintRows(CDC* pDC);
    void PaintRow(CDC* pDC, int nRow);
    BOOL OnRowKey(UINT nChar);
    BOOL OnRowChar(UINT nChar);
    BOOL ToggleHotRow();
    void ChooseRow(int nRow);
    std::unique_ptr<Rows> m_rows; ///< of a list; NULL: there are buttons
    fx::WheelRest m_wheel;

protected:
    UINT m_uiDefMenuCmd = 0;
    int m_iOffset = 0;
    int m_nContentHeight = 0;
    BOOL m_bAcceptsRelease = FALSE; ///< the button that opened the menu has been let go, or the mouse has moved
    BOOL m_bShowsMnemonics = FALSE;
    CPoint m_ptOpened{-1, -1};                                    ///< where the mouse was when the menu opened (screen)
    BOOL m_bDropDownListMode = FALSE;                             ///< plain rows without gutter and mnemonics
    CMFCToolBarMenuButton* m_pDelayedPopupMenuButton = NULL;      ///< to open when the timer ends
    CMFCToolBarMenuButton* m_pDelayedClosePopupMenuButton = NULL; ///< to close when the timer ends

    static int m_nLastCommandIndex;

    friend class CMFCPopupMenu;
    friend class CMFCToolBarMenuButton;
};

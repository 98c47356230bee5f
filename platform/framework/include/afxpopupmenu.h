#pragma once

#include "afxpopupmenubar.h"
#include "fx/mini_frame.h"

#include <memory>

class CMFCRibbonBaseElement;
class CMFCToolBarsMenuPropertyPage;

namespace toolbar {
class MenuShadow;
struct PopupPlacement;
} // namespace toolbar

/// A pop-up menu: a window without activation that shows the items of a CMFCPopupMenuBar. Made with new; from Create on
/// the window owns the object, which deletes itself after WM_NCDESTROY. Open pop-ups form a chain from the first to the
/// active one. A click outside, Esc in the first one, Alt, a change of activation or of the frame's size, and the end
/// of the window that it was opened for close the chain.
class FRAMEWORK_API CMFCPopupMenu : public CMiniFrameWnd {
    DECLARE_DYNCREATE(CMFCPopupMenu)

public:
    enum DROP_DIRECTION {
        DROP_DIRECTION_NONE,
        DROP_DIRECTION_TOP,
        DROP_DIRECTION_BOTTOM,
        DROP_DIRECTION_LEFT,
        DROP_DIRECTION_RIGHT
    };
    enum ANIMATION_TYPE { SYSTEM_DEFAULT_ANIMATION = -1, NO_ANIMATION = 0, UNFOLD, SLIDE, FADE };
    enum MENUAREA_TYPE { OUTSIDE, LOGO, TEAROFF_CAPTION, SHADOW_RIGHT, SHADOW_BOTTOM, MENU };
    /// What a message of the queue is for while the chain is open: the menu has used it, has no use for it (a key is
    /// lost then, unless it becomes a character), or it is the addressed window's.
    enum class ChainInput { Used, Unused, ForWindow };

    CMFCPopupMenu();
    ~CMFCPopupMenu() override;

    // Life cycle
    /// x, y: upper left corner on the screen (upper right with SetRightAlign); CPoint(-1, -1): at the cursor. hMenu:
    /// its items are shown, and it is destroyed with this object unless SetAutoDestroy(FALSE) was called; NULL: the bar
    /// is filled by the caller or by a derived class. bOwnMessage: commands go to pWndParent, otherwise to the message
    /// window of the menu before this one, or to the frame of pWndParent. FALSE: nothing is shown, and the object is
    /// already deleted when it had a window.
    virtual BOOL Create(CWnd* pWndParent, int x, int y, HMENU hMenu, BOOL bLocked = FALSE, BOOL bOwnMessage = FALSE);
    using CMiniFrameWnd::Create;
    /// Closes this menu and those opened from it. bSetFocusToBar: the bar that opened it keeps its button hot.
    void CloseMenu(BOOL bSetFocusToBar = FALSE);
    /// Closes every open pop-up.
    static void CloseAll();
    /// The innermost open pop-up; NULL when none is open.
    static CMFCPopupMenu* GetActiveMenu();
    static BOOL __stdcall ActivatePopupMenu(CFrameWnd* pTopFrame, CMFCPopupMenu* pPopupMenu);
    void SetAutoDestroy(BOOL bAutoDestroy = TRUE) { m_bAutoDestroy = bAutoDestroy; }
    HMENU GetHMenu() { return m_hMenu; }
    BOOL IsShown() const { return m_life == Life::Shown; }

    // The chain and what opened it
    CMFCPopupMenu* GetParentPopupMenu() const { return m_pParentPopup; }
    CMFCPopupMenu* GetChildPopupMenu() const { return m_pChildPopup; }
    /// The first pop-up of the chain.
    CMFCPopupMenu* GetRootPopupMenu();
    void SetParentButton(CMFCToolBarMenuButton* pButton) { m_pParentBtn = pButton; }
    CMFCToolBarMenuButton* GetParentButton() const { return m_pParentBtn; }
    CMFCToolBar* GetParentToolBar() const;
    /// Before Create. The element is told when the pop-up opens and closes (SetDroppedDown); its end closes the pop-up.
    void SetParentRibbonElement(CMFCRibbonBaseElement* pElem) { m_pParentRibbonElement = pElem; }
    CMFCRibbonBaseElement* GetParentRibbonElement() const { return m_pParentRibbonElement; }
    /// The window and the rectangle (its client co-ordinates) that opened the pop-up: it opens beside that area and not
    /// over it, and a click there closes the chain and does nothing else. NULL when there is none.
    virtual CWnd* GetParentArea(CRect& rectParentBtn);

    // Items. The bar may be another one in a derived class: everything here goes through GetMenuBar.
    virtual CMFCPopupMenuBar* GetMenuBar() { return &m_wndMenuBar; }
    CMFCToolBarMenuButton* GetMenuItem(int iIndex) const;
    int GetMenuItemCount() const;
    CMFCToolBarMenuButton* GetSelItem();
    CMFCToolBarMenuButton* FindSubItemByCommand(UINT uiCmd) const;
    int InsertItem(const CMFCToolBarMenuButton& button, int iInsertA = -1);
    int InsertSeparator(int iInsertAt = -1);
    BOOL RemoveItem(int iIndex);
    void RemoveAllItems();
    void SetDefaultItem(UINT uiCmd);
    /// A menu of a menu bar may hide what is seldom used (CMFCMenuBar::SetRecentlyUsedMenus), until the user has asked
    /// for all of it.
    BOOL HideRarelyUsedCommands() const;
    BOOL AreAllCommandsShown() const { return !m_bHidesSome; }
    /// Shows what is hidden; the menus opened from this one from now on hide nothing.
    void ShowAllCommands();

    // Commands
    CWnd* GetMessageWnd() const;
    void SetMessageWnd(CWnd* pMsgWnd) { m_hMessageWnd = pMsgWnd->GetSafeHwnd(); }
    /// Queues WM_COMMAND for the message window. FALSE: there is none, or the id is 0.
    BOOL PostCommand(UINT uiCommandID);
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    // Place and size (screen pixels)
    void RecalcLayout(BOOL bNotify = TRUE) override;
    void MoveTo(const CPoint& pt);
    void SetRightAlign(BOOL bRightAlign = TRUE) { m_bRightAlign = bRightAlign; }
    BOOL IsRightAlign() const { return m_bRightAlign; }
    DROP_DIRECTION GetDropDirection() const { return m_DropDirection; }
    void SetMaxWidth(int iMaxWidth) { m_iMaxWidth = iMaxWidth; }
    /// 0: as high as the screen allows. With EnableVertResize the height at which the menu opens.
    void SetMaxHeight(int nMaxHeight) { m_nMaxHeight = nMaxHeight; }
    void SetMinWidth(int nMinWidth) { m_nMinWidth = nMinWidth; }
    void EnableScrolling(BOOL = TRUE);
    BOOL IsScrollable() const { return m_bScrollable; }
    /// Items beyond the height are reached through a scroll bar instead of arrows.
    void EnableScrollBar(BOOL bEnable = TRUE) { m_bScrollBar = bEnable; }
    void EnableResize(CSize sizeMinResize);
    void EnableVertResize(int nMinResize);
    BOOL IsResizeble() const { return m_bIsResizeable; }
    BOOL HasBeenResized() const { return m_bHasBeenResized; }
    /// It is giving itself another size (RecalcLayout): the WM_SIZE that it hears now is nobody's wish.
    BOOL IsInLayout() const { return m_isInLayout; }
    MENUAREA_TYPE CheckArea(const CPoint& ptScreen) const;

    // Looks and rules
    /// TRUE: a click on a disabled item closes the menu, too.
    virtual BOOL IsAlwaysClose() const { return FALSE; }
    /// A click on an outside window closes the chain. TRUE: the window gets the click then.
    virtual BOOL DefaultMouseClickOnClose() const { return TRUE; }
    BOOL IsEscClose() { return m_bEscClose; }
    static void SetForceMenuFocus(BOOL bValue) { m_bForceMenuFocus = bValue; }
    static BOOL GetForceMenuFocus() { return m_bForceMenuFocus; }
    static void SetForceShadow(BOOL bValue) { m_bForceShadow = bValue; }
    static BOOL __stdcall GetForceShadow() { return m_bForceShadow; }
    static void SetSendMenuSelectMsg(BOOL bSet = TRUE) { m_bSendMenuSelectMsg = bSet; }
    static BOOL IsSendMenuSelectMsg() { return m_bSendMenuSelectMsg; }
    /// How menus appear, and for how many milliseconds; none unless set.
    static void SetAnimationType(ANIMATION_TYPE type) { m_AnimationType = type; }
    static ANIMATION_TYPE GetAnimationType(BOOL bNoSystem = FALSE);
    static void SetAnimationSpeed(UINT nElapse) { m_nAnimationSpeed = nElapse; }
    static UINT GetAnimationSpeed() { return m_nAnimationSpeed; }
    void UpdateShadow(LPRECT lprectScreen = NULL);
    static void UpdateAllShadows(LPRECT lprectScreen = NULL);

    BOOL PreTranslateMessage(MSG* pMsg) override;

    // The framework's own.
    /// A key (WM_KEYDOWN, WM_SYSKEYDOWN) or character (WM_CHAR, WM_SYSCHAR) while the chain is open, given to the
    /// active menu before any window sees it. TRUE: used. Whatever is not used goes nowhere, unless IsEditFocused.
    virtual BOOL OnChainKey(UINT nMessage, UINT nChar);
    /// TRUE while keys that the menu does not use go to the window with the focus (a list under an edit field).
    virtual BOOL IsEditFocused() const { return FALSE; }
    /// A key, character or turn of the wheel while the chain is open, given to the active menu before any window sees
    /// it. By default keys and characters go to OnChainKey, and the wheel to the bar.
    virtual ChainInput OnChainMessage(const MSG& message);
    /// A press on the parent area of the chain's first menu: TRUE leaves closing to what lies there, which gets it.
    virtual BOOL IsClosedByOpener(const MSG&) const { return FALSE; }
    /// The element that opened the menu goes away.
    void OnParentElementDestroyed();
    /// The window that owns the chain, outside of it.
    HWND GetOwnerWindow() const;
    /// The same, where it is a frame; NULL otherwise.
    CFrameWnd* GetOwnerFrame() const;
    /// It has left the chain or is on its way out.
    BOOL IsClosing() const { return m_life >= Life::Closing; }
    /// The window is the one that the pop-up was opened for, or gets its commands.
    BOOL IsOpenedFor(HWND window) const { return window && (window == m_hParentWnd || window == m_hMessageWnd); }
    /// Width of the border on each side (pixels).
    virtual int GetBorderSize() const;
    /// Client area without border, scroll buttons and resize bar: the bar's place.
    CRect GetBarRect() const;
    /// The chosen command, when the menu runs for TrackPopupMenu.
    void SetTrackMode(UINT* pResult) { m_pTrackResult = pResult; }
    void SetChildPopupMenu(CMFCPopupMenu* pChild) { m_pChildPopup = pChild; }
    BOOL IsCreatedByKey() const { return m_bOpenedByKey; }
    void SetOpenedByKey(BOOL bByKey = TRUE) { m_bOpenedByKey = bByKey; }

protected:
    CMFCPopupMenu(CMFCToolBarsMenuPropertyPage* pCustPage, LPCTSTR lpszTitle);
    /// Makes the bar's window and fills it; FALSE ends Create.
    virtual BOOL InitMenuBar();
    /// Told when chain and frame know the menu, before it has its size and is shown; it may close the menu.
    virtual void OnOpened() {}
    /// Gives the window its size and place.
    virtual void Place();
    /// Gives the bar its place in the window.
    virtual void PlaceBar();
    virtual void OnChangeHot(int) {}
    /// Told before the command is queued and the chain closed; it may close the menu itself.
    virtual void OnChooseItem(UINT) {}
    /// Size of the window for the bar's items (pixels), border and limits included.
    virtual CSize CalcWindowSize(int nMaxHeight);
    /// What the menu does not open over, screen; empty: nothing.
    virtual CRect GetAvoidedArea();
    virtual void DrawFrame(CDC* pDC);
    void PostNcDestroy() override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    DECLARE_MESSAGE_MAP()

    /// Closes what was opened from it and takes it out of the chain. FALSE: the end of what was opened has ended it.
    BOOL LeaveChain();
    /// Tells the frame that it has closed. Once; the host may do anything.
    void TellClosed();
    /// Tells what opened it that it has closed.
    void ForgetParents();
    /// Takes window and shadow from the screen.
    void HideWindow();

    CMFCPopupMenuBar m_wndMenuBar;
    DROP_DIRECTION m_DropDirection = DROP_DIRECTION_NONE;
    BOOL m_bEscClose = FALSE;

private:
    struct Parts;
    /// In this order; a step may be left out, none comes back.
    enum class Life {
        New,        ///< before Create has made the window
        Open,       ///< a link of the chain, not on the screen yet
        Shown,      ///< on the screen
        Closing,    ///< what was opened from it closes
        OutOfChain, ///< its parent is the active one again
        Notified    ///< the frame knows of its end
    };
    bool IsOver() const { return m_life >= Life::Closing; }
    void FindParents(CWnd* pWndParent, BOOL bOwnMessage);
    void ShowAnimated();
    void ScrollTo(int nOffset);
    void ScrollBy(int nPixels);
    /// What was opened from a row closes, as the row moves away. Up: less than 0.
    void ScrollRows(int nRows);
    void InvalidateStrips();
    void LightStripAt(CPoint point);
    void UpdateScrollRange(int nHeight);
    void DragResize(CPoint point);
    void TellOpened();

    Life m_life = Life::New;
    bool m_hasBeenShown = false; ///< some time in its life
    HMENU m_hMenu = NULL;
    CMFCToolBarMenuButton* m_pParentBtn = NULL;
    CMFCRibbonBaseElement* m_pParentRibbonElement = NULL;
    HWND m_hParentWnd = NULL;
    HWND m_hMessageWnd = NULL;
    CMFCPopupMenu* m_pParentPopup = NULL;
    CMFCPopupMenu* m_pChildPopup = NULL;
    UINT* m_pTrackResult = NULL;
    std::unique_ptr<Parts> m_parts;
    CPoint m_ptWanted{0, 0};
    CRect m_rectBar{0, 0, 0, 0};
    int m_iMaxWidth = 0;
    int m_nMaxHeight = 0;
    int m_nMinWidth = 0;
    CSize m_sizeMinResize{0, 0};
    BOOL m_bAutoDestroy = TRUE;
    BOOL m_bLocked = FALSE;
    BOOL m_bRightAlign = FALSE;
    BOOL m_bScrollable = FALSE;
    BOOL m_bScrollBar = FALSE;
    BOOL m_bIsResizeable = FALSE;
    BOOL m_bVertResizeOnly = FALSE;
    BOOL m_bHasBeenResized = FALSE;
    BOOL m_bOpenedByKey = FALSE;
    BOOL m_bHidesSome = FALSE;
    BOOL m_bAskedForAll = FALSE;
    bool m_isInLayout = false;

    static BOOL m_bForceMenuFocus;
    static BOOL m_bForceShadow;
    static BOOL m_bSendMenuSelectMsg;
    static ANIMATION_TYPE m_AnimationType;
    static UINT m_nAnimationSpeed;

    friend class CMFCPopupMenuBar;
};

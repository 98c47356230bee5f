#pragma once

#include "afxtoolbarbutton.h"

class CMFCPopupMenu;
class CMFCPopupMenuBar;

/// An item of a menu, or a toolbar button that opens one. Its own items, if it has any, are kept as
/// CMFCToolBarMenuButton objects that it owns.
class FRAMEWORK_API CMFCToolBarMenuButton : public CMFCToolBarButton {
    DECLARE_SERIAL(CMFCToolBarMenuButton)

public:
    CMFCToolBarMenuButton();
    CMFCToolBarMenuButton(const CMFCToolBarMenuButton& src);
    /// The items are read from hMenu, which stays the caller's; NULL: a plain item.
    CMFCToolBarMenuButton(UINT uiID, HMENU hMenu, int iImage, LPCTSTR lpszText = NULL, BOOL bUserButton = FALSE);
    ~CMFCToolBarMenuButton() override;

    void CopyFrom(const CMFCToolBarButton& src) override;
    BOOL CompareWith(const CMFCToolBarButton& other) const override;
    void Serialize(CArchive& ar) override;

    // Items
    virtual void CreateFromMenu(HMENU hMenu);
    /// A new menu of the items, destroyed by the caller; NULL when the button has none.
    virtual HMENU CreateMenu() const;
    const CObList& GetCommands() const { return m_listCommands; }
    virtual BOOL HasButton() const { return FALSE; }
    virtual BOOL IsEmptyMenuAllowed() const { return FALSE; }
    virtual BOOL IsTearOffMenu() const { return FALSE; }

    // The pop-up
    CMFCPopupMenu* GetPopupMenu() const { return m_pPopupMenu; }
    BOOL IsDroppedDown() const override { return m_pPopupMenu != NULL; }
    /// The class of menu to open; owned by its window.
    virtual CMFCPopupMenu* CreatePopupMenu();
    /// FALSE: there is nothing to open. pWnd: receiver of the commands, NULL: the toolbar's owner.
    virtual BOOL OpenPopupMenu(CWnd* pWnd = NULL);
    virtual void OnAfterCreatePopupMenu() {}
    void SetMessageWnd(CWnd* pWndMessage) { m_pWndMessage = pWndMessage; }
    virtual BOOL IsExclusive() const { return FALSE; }
    BOOL IsClickedOnMenu() const { return m_bClickedOnMenu; }

    // Drawing and size
    SIZE OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz) override;
    void OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHorz = TRUE, BOOL bCustomizeMode = FALSE,
                BOOL bHighlight = FALSE, BOOL bDrawBorder = TRUE, BOOL bGrayDisabledButtons = TRUE) override;
    /// In the toolbar's client co-ordinates; empty when no image is shown.
    void GetImageRect(CRect& rectImage);
    BOOL HaveHotBorder() const override;
    virtual BOOL IsBorder() const { return TRUE; }
    void SetRadio() override { m_bIsRadio = TRUE; }
    void ResetImageToDefault() override;

    // Input
    BOOL OnClick(CWnd* pWnd, BOOL bDelay = TRUE) override;
    /// The item of a menu was chosen. TRUE: done, no command is sent.
    virtual BOOL OnClickMenuItem() { return FALSE; }
    void OnCancelMode() override;
    void OnChangeParentWnd(CWnd* pWndParent) override;

    static BOOL m_bAlwaysCallOwnerDraw;

protected:
    void ClearCommands();
    void TakeCommandImage();
    /// The menu that the item lies in; NULL in a toolbar.
    CMFCPopupMenuBar* GetMenuBar() const;
    /// Has a command of its own beside the menu: only the arrow opens the menu.
    BOOL IsSplit() const;
    BOOL HasPopup() const { return !m_listCommands.IsEmpty() || IsEmptyMenuAllowed(); }
    void DrawMenuItem(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHighlight, BOOL bGrayDisabled);
    void DrawBarItem(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHorz, BOOL bHighlight,
                     BOOL bDrawBorder, BOOL bGrayDisabled);
    void DrawMenuItemImage(CDC* pDC, const CRect& rectImage, CMFCToolBarImages* pImages, BOOL bHighlight,
                           BOOL bGrayDisabled);
    void DrawDocumentIcon(CDC* pDC, const CRect& rectImage, HICON hIcon);
    CRect GetArrowRect(const CRect& rect, BOOL bHorz) const;
    /// Called by the pop-up when it closes.
    void OnPopupClosed();

    CObList m_listCommands;
    CMFCPopupMenu* m_pPopupMenu = NULL; ///< clears itself when it closes
    CWnd* m_pWndMessage = NULL;
    BOOL m_bIsRadio = FALSE;
    BOOL m_bDrawDownArrow = TRUE; ///< in a toolbar
    BOOL m_bClickedOnMenu = FALSE;

    friend class CMFCToolBar;
    friend class CMFCMenuBar;
    friend class CMFCPopupMenu;
    friend class CMFCPopupMenuBar;
};

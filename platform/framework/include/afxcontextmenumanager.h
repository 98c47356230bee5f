#pragma once

#include <afxwin.h>

class CMFCPopupMenu;

/// The application's context menus: kept by name or resource id, shown as CMFCPopupMenu. CWinAppEx owns it.
class FRAMEWORK_API CContextMenuManager : public CObject {
public:
    CContextMenuManager();
    ~CContextMenuManager() override;

    /// FALSE when the menu resource is missing or the name is taken.
    BOOL AddMenu(UINT uiMenuNameResId, UINT uiMenuResId);
    BOOL AddMenu(LPCTSTR lpszName, UINT uiMenuResId);
    /// NULL when there is none. The manager owns the menu.
    HMENU GetMenuById(UINT nMenuResId) const;
    HMENU GetMenuByName(LPCTSTR lpszName, UINT* puiOrigResID = NULL) const;
    void GetMenuNames(CStringList& listOfNames) const;

    /// Screen co-ordinates; (-1, -1): below the window's top left corner, as for the menu key. bOwnMessage: commands go
    /// to pWndOwner, otherwise to its frame.
    virtual BOOL ShowPopupMenu(UINT uiMenuResId, int x, int y, CWnd* pWndOwner, BOOL bOwnMessage = FALSE,
                               BOOL bRightAlign = FALSE);
    /// bAutoDestroy: the menu goes with the pop-up; NULL when nothing could be shown (hmenuPopup is the caller's then).
    virtual CMFCPopupMenu* ShowPopupMenu(HMENU hmenuPopup, int x, int y, CWnd* pWndOwner, BOOL bOwnMessage = FALSE,
                                         BOOL bAutoDestroy = TRUE, BOOL bRightAlign = FALSE);
    /// Modal. The chosen command, 0 when the menu was left; no command is sent. hmenuPopup stays the caller's.
    virtual UINT TrackPopupMenu(HMENU hmenuPopup, int x, int y, CWnd* pWndOwner, BOOL bRightAlign = FALSE);
    /// The menus as they are now, below the application's registry section: a menu that the program or the user has
    /// changed is kept with its changes.
    virtual BOOL SaveState(LPCTSTR lpszProfileName = NULL);
    /// Menus that were kept take the place of those with the same resource. FALSE: nothing was kept, or it is damaged;
    /// then all menus stay.
    virtual BOOL LoadState(LPCTSTR lpszProfileName = NULL);
    /// All menus from the resources again; the main frame hears AFX_WM_RESETCONTEXTMENU of each (resource id, menu) and
    /// may change it. FALSE: one of the resources is missing; that menu stays as it is.
    virtual BOOL ResetState();
    /// A further menu does not close the one that is open.
    void SetDontCloseActiveMenu(BOOL bSet = TRUE) { m_bDontCloseActiveMenu = bSet; }

private:
    struct NamedMenu {
        CString name;
        UINT resourceId;
        HMENU menu;
    };
    const NamedMenu* Find(LPCTSTR lpszName) const;

    std::vector<NamedMenu> m_menus;
    BOOL m_bDontCloseActiveMenu = FALSE;
};

/// The manager of the running application; NULL until it has one.
FRAMEWORK_API extern CContextMenuManager* afxContextMenuManager;

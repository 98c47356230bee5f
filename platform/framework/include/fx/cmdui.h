#pragma once

#include "fx/cmdtarget.h"

class CMenu;

/// Passed to update handlers: the one user-interface item (menu item, button, pane) whose state is being asked for.
/// Made on the stack by whoever updates items; classes with items of their own derive from it.
class FRAMEWORK_API CCmdUI {
public:
    CCmdUI();
    virtual ~CCmdUI() = default;

    virtual void Enable(BOOL bOn = TRUE);
    /// 0 off, 1 on, 2 indeterminate (menus show it as on).
    virtual void SetCheck(int nCheck = 1);
    /// Like SetCheck with a radio dot where the item can show one.
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);

    /// Called in an update handler: go on looking for another handler as if this one were not there.
    void ContinueRouting();

    /// Asks pTarget's route for the item's update handler. Without one, and with bDisableIfNoHndler, the item is
    /// enabled exactly when somebody handles its command. FALSE: no update handler was called.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);

    UINT m_nID = 0;              ///< command id of the item
    UINT m_nIndex = 0;           ///< index of the item in its menu or bar
    CMenu* m_pMenu = nullptr;    ///< set when the item belongs to a menu
    CMenu* m_pSubMenu = nullptr; ///< set when the item opens a submenu
    CWnd* m_pOther = nullptr;    ///< the window that shows the item when it is no menu item

    // The framework's own: what an update loop shares with its items.
    BOOL m_bEnableChanged = FALSE; ///< an update handler called Enable
    BOOL m_bContinueRouting = FALSE;
    UINT m_nIndexMax = 0;           ///< number of items
    CMenu* m_pParentMenu = nullptr; ///< menu that holds m_pSubMenu's item, for a menu bar's popups
};

namespace fx {

/// Asks the state of every plain item of a menu that is about to open. With disableIfNoHandler, items whose command
/// nobody handles are disabled.
FRAMEWORK_API void UpdateMenuItems(CMenu* popup, CCmdTarget* target, BOOL disableIfNoHandler);

} // namespace fx

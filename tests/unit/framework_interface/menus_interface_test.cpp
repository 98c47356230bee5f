#include "interface.h"

#include "afxcontextmenumanager.h"
#include "afxpopupmenu.h"
#include "afxpopupmenubar.h"

INTERFACE_OF(CMFCPopupMenu) {
    BASE(CMiniFrameWnd);
    MEMBER(BOOL, HideRarelyUsedCommands, () const);
    MEMBER(void, ShowAllCommands, ());
    STATIC(BOOL, ActivatePopupMenu, (CFrameWnd*, CMFCPopupMenu*));
    MEMBER(BOOL, AreAllCommandsShown, () const);
    MEMBER(CMFCPopupMenu::MENUAREA_TYPE, CheckArea, (const CPoint&) const);
    MEMBER(void, CloseMenu, (BOOL));
    CALL(CloseMenu);
    VIRTUAL(BOOL, Create, (CWnd*, int, int, HMENU, BOOL, BOOL));
    CALL(Create, CWnd*, int, int, HMENU);
    VIRTUAL(BOOL, DefaultMouseClickOnClose, () const);
    MEMBER(void, EnableResize, (CSize));
    MEMBER(void, EnableScrolling, (BOOL));
    CALL(EnableScrolling);
    MEMBER(void, EnableVertResize, (int));
    MEMBER(CMFCToolBarMenuButton*, FindSubItemByCommand, (UINT) const);
    STATIC(CMFCPopupMenu*, GetActiveMenu, ());
    STATIC(UINT, GetAnimationSpeed, ());
    STATIC(CMFCPopupMenu::ANIMATION_TYPE, GetAnimationType, (BOOL));
    CALL(GetAnimationType);
    MEMBER(CMFCPopupMenu::DROP_DIRECTION, GetDropDirection, () const);
    STATIC(BOOL, GetForceMenuFocus, ());
    STATIC(BOOL, GetForceShadow, ());
    MEMBER(HMENU, GetHMenu, ());
    VIRTUAL(CMFCPopupMenuBar*, GetMenuBar, ());
    MEMBER(CMFCToolBarMenuButton*, GetMenuItem, (int) const);
    MEMBER(int, GetMenuItemCount, () const);
    MEMBER(CWnd*, GetMessageWnd, () const);
    VIRTUAL(CWnd*, GetParentArea, (CRect&));
    MEMBER(CMFCToolBarMenuButton*, GetParentButton, () const);
    MEMBER(CMFCPopupMenu*, GetParentPopupMenu, () const);
    MEMBER(CMFCRibbonBaseElement*, GetParentRibbonElement, () const);
    MEMBER(CMFCToolBar*, GetParentToolBar, () const);
    MEMBER(CMFCToolBarMenuButton*, GetSelItem, ());
    MEMBER(BOOL, HasBeenResized, () const);
    MEMBER(int, InsertItem, (const CMFCToolBarMenuButton&, int));
    CALL(InsertItem, const CMFCToolBarMenuButton&);
    MEMBER(int, InsertSeparator, (int));
    CALL(InsertSeparator);
    VIRTUAL(BOOL, IsAlwaysClose, () const);
    MEMBER(BOOL, IsEscClose, ());
    MEMBER(BOOL, IsResizeble, () const);
    MEMBER(BOOL, IsRightAlign, () const);
    MEMBER(BOOL, IsScrollable, () const);
    STATIC(BOOL, IsSendMenuSelectMsg, ());
    MEMBER(BOOL, IsShown, () const);
    MEMBER(void, MoveTo, (const CPoint&));
    VIRTUAL(BOOL, OnCmdMsg, (UINT, int, void*, AFX_CMDHANDLERINFO*));
    MEMBER(BOOL, PostCommand, (UINT));
    VIRTUAL(BOOL, PreTranslateMessage, (MSG*));
    VIRTUAL(void, RecalcLayout, (BOOL));
    CALL(RecalcLayout);
    MEMBER(void, RemoveAllItems, ());
    MEMBER(BOOL, RemoveItem, (int));
    STATIC(void, SetAnimationSpeed, (UINT));
    STATIC(void, SetAnimationType, (CMFCPopupMenu::ANIMATION_TYPE));
    MEMBER(void, SetAutoDestroy, (BOOL));
    CALL(SetAutoDestroy);
    MEMBER(void, SetDefaultItem, (UINT));
    STATIC(void, SetForceMenuFocus, (BOOL));
    STATIC(void, SetForceShadow, (BOOL));
    MEMBER(void, SetMaxWidth, (int));
    MEMBER(void, SetMessageWnd, (CWnd*));
    MEMBER(void, SetParentRibbonElement, (CMFCRibbonBaseElement*));
    MEMBER(void, SetRightAlign, (BOOL));
    CALL(SetRightAlign);
    STATIC(void, SetSendMenuSelectMsg, (BOOL));
    CALL(SetSendMenuSelectMsg);
    STATIC(void, UpdateAllShadows, (LPRECT));
    CALL(UpdateAllShadows);
    MEMBER(void, UpdateShadow, (LPRECT));
    CALL(UpdateShadow);
}

PROTECTED_INTERFACE_OF(CMFCPopupMenu) {
    VIRTUAL(void, OnChangeHot, (int));
    VIRTUAL(void, OnChooseItem, (UINT));
}

INTERFACE_OF(CMFCPopupMenuBar) {
    BASE(CMFCToolBar);
    VIRTUAL(void, AdjustSizeImmediate, (BOOL));
    VIRTUAL(void, CloseDelayedSubMenu, ());
    VIRTUAL(HMENU, ExportToMenu, () const);
    VIRTUAL(CSize, GetCurrentMenuImageSize, () const);
    MEMBER(UINT, GetDefaultMenuId, () const);
    STATIC(int, GetLastCommandIndex, ());
    MEMBER(int, GetOffset, () const);
    VIRTUAL(BOOL, ImportFromMenu, (HMENU, BOOL));
    CALL(ImportFromMenu, HMENU);
    MEMBER(BOOL, IsDropDownListMode, () const);
    MEMBER(BOOL, IsPaletteMode, () const);
    VIRTUAL(BOOL, IsRibbonPanel, () const);
    VIRTUAL(BOOL, IsRibbonPanelInRegularMode, () const);
    VIRTUAL(void, RestoreDelayedSubMenu, ());
    VIRTUAL(void, SetButtonStyle, (int, UINT));
    MEMBER(void, SetOffset, (int));
    MEMBER(void, StartPopupMenuTimer, (CMFCToolBarMenuButton*, int));
    CALL(StartPopupMenuTimer, CMFCToolBarMenuButton*);
    DATA(BOOL, m_bDisableSideBarInXPMode);
}

INTERFACE_OF(CContextMenuManager) {
    BASE(CObject);
    MADE_FROM();
    MEMBER(BOOL, AddMenu, (UINT, UINT));
    MEMBER(BOOL, AddMenu, (LPCTSTR, UINT));
    MEMBER(HMENU, GetMenuById, (UINT) const);
    MEMBER(HMENU, GetMenuByName, (LPCTSTR, UINT*) const);
    CALL(GetMenuByName, LPCTSTR);
    MEMBER(void, GetMenuNames, (CStringList&) const);
    VIRTUAL(BOOL, LoadState, (LPCTSTR));
    CALL(LoadState);
    VIRTUAL(BOOL, ResetState, ());
    VIRTUAL(BOOL, SaveState, (LPCTSTR));
    CALL(SaveState);
    MEMBER(void, SetDontCloseActiveMenu, (BOOL));
    CALL(SetDontCloseActiveMenu);
    VIRTUAL(BOOL, ShowPopupMenu, (UINT, int, int, CWnd*, BOOL, BOOL));
    CALL(ShowPopupMenu, UINT, int, int, CWnd*);
    VIRTUAL(CMFCPopupMenu*, ShowPopupMenu, (HMENU, int, int, CWnd*, BOOL, BOOL, BOOL));
    CALL(ShowPopupMenu, HMENU, int, int, CWnd*);
    VIRTUAL(UINT, TrackPopupMenu, (HMENU, int, int, CWnd*, BOOL));
    CALL(TrackPopupMenu, HMENU, int, int, CWnd*);
}

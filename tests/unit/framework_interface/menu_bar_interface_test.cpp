#include "interface.h"

#include "afxmenubar.h"
#include "afxtoolbarcomboboxbutton.h"
#include "afxtoolbareditboxbutton.h"

INTERFACE_OF(CMFCMenuBar) {
    BASE(CMFCToolBar);
    VIRTUAL(void, AdjustLocations, ());
    VIRTUAL(BOOL, AllowChangeTextLabels, () const);
    VIRTUAL(BOOL, AllowShowOnPaneMenu, () const);
    VIRTUAL(CSize, CalcFixedLayout, (BOOL, BOOL));
    VIRTUAL(CSize, CalcLayout, (DWORD, int));
    CALL(CalcLayout, DWORD);
    VIRTUAL(BOOL, CanBeClosed, () const);
    VIRTUAL(BOOL, CanBeRestored, () const);
    VIRTUAL(BOOL, Create, (CWnd*, DWORD, UINT));
    CALL(Create, CWnd*);
    VIRTUAL(BOOL, CreateEx, (CWnd*, DWORD, DWORD, CRect, UINT));
    CALL(CreateEx, CWnd*);
    VIRTUAL(void, CreateFromMenu, (HMENU, BOOL, BOOL));
    CALL(CreateFromMenu, HMENU);
    MEMBER(void, EnableHelpCombobox, (UINT, LPCTSTR, int));
    CALL(EnableHelpCombobox, UINT);
    STATIC(void, EnableMenuShadows, (BOOL));
    CALL(EnableMenuShadows);
    VIRTUAL(int, GetAvailableExpandSize, () const);
    VIRTUAL(int, GetColumnWidth, () const);
    MEMBER(HMENU, GetDefaultMenu, () const);
    MEMBER(UINT, GetDefaultMenuResId, () const);
    MEMBER(BOOL, GetForceDownArrows, ());
    MEMBER(CMFCToolBarComboBoxButton*, GetHelpCombobox, ());
    STATIC(void, HighlightDisabledItems, (BOOL));
    CALL(HighlightDisabledItems);
    STATIC(BOOL, IsHighlightDisabledItems, ());
    MEMBER(HMENU, GetHMenu, () const);
    STATIC(const CFont&, GetMenuFont, (BOOL));
    CALL(GetMenuFont);
    MEMBER(CMFCToolBarButton*, GetMenuItem, (int) const);
    VIRTUAL(int, GetRowHeight, () const);
    MEMBER(CMFCToolBarMenuButtonsButton*, GetSystemButton, (UINT, BOOL) const);
    CALL(GetSystemButton, UINT);
    MEMBER(int, GetSystemButtonsCount, () const);
    MEMBER(CMFCToolBarSystemMenuButton*, GetSystemMenu, () const);
    VIRTUAL(BOOL, IsButtonExtraSizeAvailable, () const);
    STATIC(BOOL, IsMenuShadows, ());
    STATIC(BOOL, IsRecentlyUsedMenus, ());
    STATIC(BOOL, IsShowAllCommands, ());
    STATIC(BOOL, IsShowAllCommandsDelay, ());
    VIRTUAL(BOOL, LoadState, (LPCTSTR, int, UINT));
    CALL(LoadState);
    VIRTUAL(void, OnChangeHot, (int));
    VIRTUAL(void, OnDefaultMenuLoaded, (HMENU));
    VIRTUAL(BOOL, OnSetDefaultButtonText, (CMFCToolBarButton*));
    VIRTUAL(INT_PTR, OnToolHitTest, (CPoint, TOOLINFO*) const);
    VIRTUAL(BOOL, PreTranslateMessage, (MSG*));
    VIRTUAL(BOOL, RestoreOriginalstate, ());
    VIRTUAL(BOOL, SaveState, (LPCTSTR, int, UINT));
    CALL(SaveState);
    MEMBER(void, SetDefaultMenuResId, (UINT));
    MEMBER(void, SetForceDownArrows, (BOOL));
    MEMBER(void, SetMaximizeMode, (BOOL, CWnd*, BOOL));
    CALL(SetMaximizeMode, BOOL);
    MEMBER(void, SetMenuButtonRTC, (CRuntimeClass*));
    STATIC(BOOL, SetMenuFont, (LPLOGFONT, BOOL));
    CALL(SetMenuFont, LPLOGFONT);
    STATIC(void, SetRecentlyUsedMenus, (BOOL));
    CALL(SetRecentlyUsedMenus);
    STATIC(void, SetShowAllCommands, (BOOL));
    CALL(SetShowAllCommands);
}

PROTECTED_INTERFACE_OF(CMFCMenuBar) {
    VIRTUAL(int, CalcMaxButtonHeight, ());
    VIRTUAL(BOOL, OnSendCommand, (const CMFCToolBarButton*));
}

INTERFACE_OF(CMFCToolBarComboBoxButton) {
    BASE(CMFCToolBarButton);
    VIRTUAL(INT_PTR, AddItem, (LPCTSTR, DWORD_PTR));
    CALL(AddItem, LPCTSTR);
    VIRTUAL(INT_PTR, AddSortedItem, (LPCTSTR, DWORD_PTR));
    VIRTUAL(int, Compare, (LPCTSTR, LPCTSTR));
    MEMBER(BOOL, DeleteItem, (int));
    MEMBER(BOOL, DeleteItem, (DWORD_PTR));
    MEMBER(BOOL, DeleteItem, (LPCTSTR));
    MEMBER(int, FindItem, (LPCTSTR) const);
    STATIC(CMFCToolBarComboBoxButton*, GetByCmd, (UINT, BOOL));
    CALL(GetByCmd, UINT);
    MEMBER(CComboBox*, GetComboBox, () const);
    MEMBER(INT_PTR, GetCount, () const);
    MEMBER(int, GetCurSel, () const);
    VIRTUAL(CMFCToolBarComboBoxEdit*, CreateEdit, (CWnd*, const CRect&, DWORD));
    VIRTUAL(CEdit*, GetEditCtrl, ());
    VIRTUAL(CString, GetPrompt, () const);
    STATIC(int, GetCountAll, (UINT));
    STATIC(int, GetCurSelAll, (UINT));
    STATIC(LPCTSTR, GetItemAll, (UINT, int));
    CALL(GetItemAll, UINT);
    STATIC(DWORD_PTR, GetItemDataAll, (UINT, int));
    CALL(GetItemDataAll, UINT);
    STATIC(void*, GetItemDataPtrAll, (UINT, int));
    CALL(GetItemDataPtrAll, UINT);
    STATIC(LPCTSTR, GetTextAll, (UINT));
    STATIC(BOOL, IsCenterVert, ());
    STATIC(void, SetCenterVert, (BOOL));
    CALL(SetCenterVert);
    VIRTUAL(BOOL, ExportToMenuButton, (CMFCToolBarMenuButton&) const);
    MEMBER(UINT, GetContextMenuID, ());
    MEMBER(void, SetContextMenuID, (UINT));
    MEMBER(void, SetText, (LPCTSTR));
    MEMBER(LPCTSTR, GetItem, (int) const);
    MEMBER(DWORD_PTR, GetItemData, (int) const);
    MEMBER(LPCTSTR, GetText, () const);
    STATIC(BOOL, IsFlatMode, ());
    MEMBER(void, RemoveAllItems, ());
    MEMBER(BOOL, SelectItem, (int, BOOL));
    CALL(SelectItem, int);
    MEMBER(BOOL, SelectItem, (DWORD_PTR));
    MEMBER(BOOL, SelectItem, (LPCTSTR));
    MEMBER(void, SetDropDownHeight, (int));
    STATIC(void, SetFlatMode, (BOOL));
    VIRTUAL(BOOL, CanBeStretched, () const);
    VIRTUAL(void, CopyFrom, (const CMFCToolBarButton&));
    VIRTUAL(void, EnableWindow, (BOOL));
    VIRTUAL(HWND, GetHwnd, ());
    VIRTUAL(BOOL, HasFocus, () const);
    VIRTUAL(BOOL, IsOwnerOf, (HWND));
    MEMBER(BOOL, IsRibbonButton, () const);
    VIRTUAL(BOOL, IsWindowVisible, ());
    VIRTUAL(BOOL, NotifyCommand, (int));
    VIRTUAL(void, OnChangeParentWnd, (CWnd*));
    VIRTUAL(BOOL, OnClick, (CWnd*, BOOL));
    VIRTUAL(HBRUSH, OnCtlColor, (CDC*, UINT));
    VIRTUAL(void, OnMove, ());
    VIRTUAL(void, OnShow, (BOOL));
    VIRTUAL(void, OnSize, (int));
    VIRTUAL(void, SetStyle, (UINT));
    MEMBER(void, SetText, (LPCTSTR));
}

INTERFACE_OF(CMFCToolBarComboBoxEdit) {
    BASE(CEdit);
    MADE_FROM(CMFCToolBarComboBoxButton&);
    VIRTUAL(BOOL, PreTranslateMessage, (MSG*));
}

INTERFACE_OF(CMFCToolBarEditBoxButton) {
    BASE(CMFCToolBarButton);
    MADE_FROM(UINT, int);
    MADE_FROM(UINT, int, DWORD, int);
    VIRTUAL(BOOL, CanBeStretched, () const);
    VIRTUAL(void, CopyFrom, (const CMFCToolBarButton&));
    VIRTUAL(CEdit*, CreateEdit, (CWnd*, const CRect&));
    STATIC(CMFCToolBarEditBoxButton*, GetByCmd, (UINT));
    STATIC(CString, GetContentsAll, (UINT));
    MEMBER(UINT, GetContextMenuID, ());
    VIRTUAL(void, GetEditBorder, (CRect&));
    MEMBER(CEdit*, GetEditBox, () const);
    VIRTUAL(HWND, GetHwnd, ());
    VIRTUAL(const CRect, GetInvalidateRect, () const);
    VIRTUAL(BOOL, HaveHotBorder, () const);
    STATIC(BOOL, IsFlatMode, ());
    VIRTUAL(BOOL, NotifyCommand, (int));
    VIRTUAL(void, OnChangeParentWnd, (CWnd*));
    VIRTUAL(BOOL, OnClick, (CWnd*, BOOL));
    CALL(OnClick, CWnd*);
    VIRTUAL(HBRUSH, OnCtlColor, (CDC*, UINT));
    VIRTUAL(void, OnGlobalFontsChanged, ());
    VIRTUAL(void, OnMove, ());
    VIRTUAL(void, OnShow, (BOOL));
    VIRTUAL(void, OnSize, (int));
    VIRTUAL(BOOL, OnUpdateToolTip, (CWnd*, int, CToolTipCtrl&, CString&));
    VIRTUAL(void, SetContents, (const CString&));
    STATIC(BOOL, SetContentsAll, (UINT, const CString&));
    MEMBER(void, SetContextMenuID, (UINT));
    STATIC(void, SetFlatMode, (BOOL));
    CALL(SetFlatMode);
    VIRTUAL(void, SetStyle, (UINT));
}

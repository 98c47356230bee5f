#include "interface.h"

#include "afxbaseribbonelement.h"
#include "afxribbonbar.h"
#include "afxribbonbuttonsgroup.h"
#include "afxribboncategory.h"
#include "afxribboncheckbox.h"
#include "afxribboncombobox.h"
#include "afxRibbonEdit.h"
#include "afxRibbonLabel.h"
#include "afxRibbonMainPanel.h"
#include "afxRibbonPanel.h"
#include "afxribbonquickaccesstoolbar.h"
#include "afxribbonslider.h"

INTERFACE_OF(CMFCRibbonApplicationButton) {
    BASE(CMFCRibbonButton);
    MADE_FROM();
    MADE_FROM(UINT);
    MADE_FROM(HBITMAP);
    NAMED(CreateObject);
    NAMED(GetThisClass);
    MEMBER(void, SetImage, (UINT));
    MEMBER(void, SetImage, (HBITMAP));
}

INTERFACE_OF(CMFCRibbonBar) {
    BASE(CPane);
    MADE_FROM(BOOL);
    MEMBER(BOOL, ActivateContextCategory, (UINT));
    MEMBER(CMFCRibbonCategory*, AddCategory, (LPCTSTR, UINT, UINT, CSize, CSize, int, CRuntimeClass*));
    CALL(AddCategory, LPCTSTR, UINT, UINT);
    MEMBER(CMFCRibbonCategory*, AddContextCategory,
           (LPCTSTR, LPCTSTR, UINT, AFX_RibbonCategoryColor, UINT, UINT, CSize, CSize, CRuntimeClass*));
    CALL(AddContextCategory, LPCTSTR, LPCTSTR, UINT, AFX_RibbonCategoryColor, UINT, UINT);
    MEMBER(CMFCRibbonMainPanel*, AddMainCategory, (LPCTSTR, UINT, UINT, CSize, CSize));
    CALL(AddMainCategory, LPCTSTR, UINT, UINT);
    MEMBER(void, AddToTabs, (CMFCRibbonBaseElement*));
    MEMBER(BOOL, CreateEx, (CWnd*, DWORD, DWORD, UINT));
    CALL(CreateEx, CWnd*);
    MEMBER(BOOL, Create, (CWnd*, DWORD, UINT));
    CALL(Create, CWnd*);
    MEMBER(void, DeactivateKeyboardFocus, (BOOL));
    CALL(DeactivateKeyboardFocus);
    MEMBER(void, EnableKeyTips, (BOOL));
    CALL(EnableKeyTips);
    MEMBER(void, EnableToolTips, (BOOL, BOOL));
    CALL(EnableToolTips);
    MEMBER(CMFCRibbonBaseElement*, FindByData, (DWORD_PTR, BOOL) const);
    CALL(FindByData, DWORD_PTR);
    MEMBER(CMFCRibbonBaseElement*, FindByID, (UINT, BOOL, BOOL) const);
    CALL(FindByID, UINT);
    MEMBER(int, FindCategoryIndexByData, (DWORD) const);
    MEMBER(void, ForceRecalcLayout, ());
    MEMBER(CMFCRibbonCategory*, GetActiveCategory, () const);
    MEMBER(int, GetCaptionHeight, () const);
    MEMBER(CMFCRibbonCategory*, GetCategory, (int) const);
    MEMBER(int, GetCategoryCount, () const);
    MEMBER(int, GetCategoryHeight, () const);
    MEMBER(int, GetCategoryIndex, (CMFCRibbonCategory*) const);
    MEMBER(BOOL, GetContextName, (UINT, CString&) const);
    VIRTUAL(CMFCRibbonBaseElement*, GetDroppedDown, ());
    MEMBER(void, GetElementsByID, (UINT, CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>&));
    MEMBER(CMFCRibbonApplicationButton*, GetApplicationButton, () const);
    VIRTUAL(CMFCRibbonBaseElement*, GetFocused, ());
    MEMBER(DWORD, GetHideFlags, () const);
    MEMBER(void, GetItemIDsList, (CList<UINT, UINT>&, BOOL) const);
    CALL(GetItemIDsList, CList<UINT, UINT>&);
    MEMBER(int, GetKeyboardNavigationLevel, () const);
    MEMBER(CObject*, GetKeyboardNavLevelCurrent, () const);
    MEMBER(CObject*, GetKeyboardNavLevelParent, () const);
    MEMBER(CMFCRibbonCategory*, GetMainCategory, () const);
    MEMBER(CRect, GetQATCommandsLocation, () const);
    MEMBER(CMFCRibbonBaseElement*, GetQATDroppedDown, ());
    MEMBER(void, GetQuickAccessCommands, (CList<UINT, UINT>&));
    MEMBER(CRect, GetQuickAccessToolbarLocation, () const);
    MEMBER(int, GetTabTrancateRatio, () const);
    MEMBER(int, GetTooltipFixedWidthLargeImage, () const);
    MEMBER(int, GetTooltipFixedWidthRegular, () const);
    MEMBER(int, GetVisibleCategoryCount, () const);
    MEMBER(BOOL, HideAllContextCategories, ());
    MEMBER(void, HideKeyTips, ());
    VIRTUAL(CMFCRibbonBaseElement*, HitTest, (CPoint, BOOL, BOOL));
    CALL(HitTest, CPoint);
    MEMBER(BOOL, IsKeyTipEnabled, () const);
    VIRTUAL(BOOL, IsMainRibbonBar, () const);
    MEMBER(BOOL, IsQATEmpty, () const);
    MEMBER(BOOL, IsQuickAccessToolbarOnTop, () const);
    MEMBER(BOOL, IsReplaceFrameCaption, () const);
    VIRTUAL(BOOL, IsShowGroupBorder, (CMFCRibbonButtonsGroup*) const);
    MEMBER(BOOL, IsToolTipDescrEnabled, () const);
    MEMBER(BOOL, IsToolTipEnabled, () const);
    MEMBER(BOOL, IsTransparentCaption, () const);
    MEMBER(BOOL, IsWindows7Look, () const);
    VIRTUAL(void, OnClickButton, (CMFCRibbonButton*, CPoint));
    MEMBER(BOOL, OnSetAccData, (long));
    VIRTUAL(BOOL, OnShowRibbonContextMenu, (CWnd*, int, int, CMFCRibbonBaseElement*));
    VIRTUAL(BOOL, OnShowRibbonQATMenu, (CWnd*, int, int, CMFCRibbonBaseElement*));
    MEMBER(BOOL, OnSysKeyDown, (CFrameWnd*, WPARAM, LPARAM));
    MEMBER(BOOL, OnSysKeyUp, (CFrameWnd*, WPARAM, LPARAM));
    MEMBER(void, PopTooltip, ());
    VIRTUAL(BOOL, PreTranslateMessage, (MSG*));
    VIRTUAL(void, RecalcLayout, ());
    MEMBER(void, RemoveAllCategories, ());
    MEMBER(void, RemoveAllFromTabs, ());
    MEMBER(BOOL, RemoveCategory, (int));
    MEMBER(BOOL, SetActiveCategory, (CMFCRibbonCategory*, BOOL));
    CALL(SetActiveCategory, CMFCRibbonCategory*);
    MEMBER(void, SetActiveMDIChild, (CWnd*));
    MEMBER(BOOL, SetElementKeys, (UINT, LPCTSTR, LPCTSTR));
    CALL(SetElementKeys, UINT, LPCTSTR);
    MEMBER(void, SetApplicationButton, (CMFCRibbonApplicationButton*, CSize));
    MEMBER(void, SetKeyboardNavigationLevel, (CObject*, BOOL));
    CALL(SetKeyboardNavigationLevel, CObject*);
    MEMBER(void, SetMaximizeMode, (BOOL, CWnd*));
    CALL(SetMaximizeMode, BOOL);
    MEMBER(void, SetQuickAccessCommands, (const CList<UINT, UINT>&, BOOL));
    CALL(SetQuickAccessCommands, const CList<UINT, UINT>&);
    MEMBER(void, SetQuickAccessDefaultState, (const CMFCRibbonQuickAccessToolBarDefaultState&));
    MEMBER(void, SetQuickAccessToolbarOnTop, (BOOL));
    MEMBER(void, SetTooltipFixedWidth, (int, int));
    MEMBER(void, SetWindows7Look, (BOOL, BOOL));
    CALL(SetWindows7Look, BOOL);
    MEMBER(void, ShowCategory, (int, BOOL));
    CALL(ShowCategory, int);
    MEMBER(void, ShowContextCategories, (UINT, BOOL));
    CALL(ShowContextCategories, UINT);
    MEMBER(void, ShowKeyTips, ());
    MEMBER(void, ToggleMimimizeState, ());
    VIRTUAL(BOOL, TranslateChar, (UINT));
}

INTERFACE_OF(CMFCRibbonButtonsGroup) {
    BASE(CMFCRibbonBaseElement);
    MADE_FROM();
    MADE_FROM(CMFCRibbonBaseElement*);
    MEMBER(void, AddButton, (CMFCRibbonBaseElement*));
    MEMBER(void, AddButtons, (const CList<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>&));
    MEMBER(CMFCRibbonBaseElement*, GetButton, (int) const);
    MEMBER(int, GetCount, () const);
    MEMBER(const CSize, GetImageSize, () const);
    VIRTUAL(CSize, GetRegularSize, (CDC*));
    MEMBER(BOOL, HasImages, () const);
    VIRTUAL(void, OnDrawImage, (CDC*, CRect, CMFCRibbonBaseElement*, int));
    MEMBER(void, RemoveAll, ());
    MEMBER(void, SetImages, (CMFCToolBarImages*, CMFCToolBarImages*, CMFCToolBarImages*));
    VIRTUAL(void, SetParentCategory, (CMFCRibbonCategory*));
}

INTERFACE_OF(CMFCRibbonCategory) {
    BASE(CObject);
    MEMBER(void, AddHidden, (CMFCRibbonBaseElement*));
    MEMBER(CMFCRibbonPanel*, AddPanel, (LPCTSTR, HICON, CRuntimeClass*));
    CALL(AddPanel, LPCTSTR);
    MEMBER(CMFCRibbonBaseElement*, FindByData, (DWORD_PTR, BOOL) const);
    CALL(FindByData, DWORD_PTR);
    MEMBER(CMFCRibbonBaseElement*, FindByID, (UINT, BOOL) const);
    CALL(FindByID, UINT);
    MEMBER(CMFCRibbonPanel*, FindPanelWithElem, (const CMFCRibbonBaseElement*));
    MEMBER(UINT, GetContextID, () const);
    MEMBER(DWORD_PTR, GetData, () const);
    MEMBER(CMFCRibbonBaseElement*, GetDroppedDown, ());
    MEMBER(void, GetElements, (CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>&));
    MEMBER(void, GetElementsByID, (UINT, CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>&));
    MEMBER(CMFCRibbonBaseElement*, GetFirstVisibleElement, () const);
    MEMBER(CMFCRibbonBaseElement*, GetFocused, ());
    MEMBER(CMFCRibbonBaseElement*, GetHighlighted, ());
    MEMBER(int, GetImageCount, (BOOL) const);
    MEMBER(CSize, GetImageSize, (BOOL) const);
    MEMBER(void, GetItemIDsList, (CList<UINT, UINT>&, BOOL) const);
    CALL(GetItemIDsList, CList<UINT, UINT>&);
    MEMBER(CMFCRibbonBaseElement*, GetLastVisibleElement, () const);
    MEMBER(CMFCToolBarImages&, GetLargeImages, ());
    MEMBER(int, GetMaxHeight, (CDC*));
    MEMBER(LPCTSTR, GetName, () const);
    MEMBER(CMFCRibbonPanel*, GetPanel, (int));
    MEMBER(int, GetPanelCount, () const);
    MEMBER(CMFCRibbonPanel*, GetPanelFromPoint, (CPoint) const);
    MEMBER(int, GetPanelIndex, (const CMFCRibbonPanel*) const);
    MEMBER(CMFCRibbonBaseElement*, GetParentButton, () const);
    MEMBER(CMFCRibbonPanelMenuBar*, GetParentMenuBar, () const);
    MEMBER(CMFCRibbonBar*, GetParentRibbonBar, () const);
    MEMBER(CRect, GetRect, () const);
    MEMBER(CMFCToolBarImages&, GetSmallImages, ());
    MEMBER(AFX_RibbonCategoryColor, GetTabColor, () const);
    MEMBER(CRect, GetTabRect, () const);
    MEMBER(int, GetTextTopLine, () const);
    MEMBER(void, GetVisibleElements, (CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>&));
    MEMBER(CMFCRibbonPanel*, HighlightPanel, (CMFCRibbonPanel*, CPoint));
    MEMBER(CMFCRibbonBaseElement*, HitTest, (CPoint, BOOL) const);
    CALL(HitTest, CPoint);
    MEMBER(int, HitTestEx, (CPoint) const);
    MEMBER(CMFCRibbonBaseElement*, HitTestScrollButtons, (CPoint) const);
    MEMBER(BOOL, IsActive, () const);
    MEMBER(BOOL, IsVisible, () const);
    MEMBER(BOOL, IsWindows7Look, () const);
    VIRTUAL(void, OnCancelMode, ());
    VIRTUAL(void, OnDraw, (CDC*));
    VIRTUAL(BOOL, OnDrawImage, (CDC*, CRect, CMFCRibbonBaseElement*, BOOL, BOOL, BOOL));
    VIRTUAL(CMFCRibbonBaseElement*, OnLButtonDown, (CPoint));
    VIRTUAL(void, OnLButtonUp, (CPoint));
    VIRTUAL(BOOL, OnKey, (UINT));
    VIRTUAL(void, OnMouseMove, (CPoint));
    VIRTUAL(BOOL, OnScrollHorz, (BOOL, int));
    CALL(OnScrollHorz, BOOL);
    VIRTUAL(void, OnUpdateCmdUI, (CMFCRibbonCmdUI*, CFrameWnd*, BOOL));
    VIRTUAL(void, RecalcLayout, (CDC*));
    MEMBER(BOOL, RemovePanel, (int, BOOL));
    CALL(RemovePanel, int);
    VIRTUAL(void, ReposPanels, (CDC*));
    MEMBER(void, SetCollapseOrder, (const CArray<int, int>&));
    MEMBER(void, SetData, (DWORD_PTR));
    MEMBER(void, SetKeys, (LPCTSTR));
    MEMBER(void, SetName, (LPCTSTR));
    MEMBER(void, SetTabColor, (AFX_RibbonCategoryColor));
}

INTERFACE_OF(CMFCRibbonCheckBox) {
    BASE(CMFCRibbonButton);
    MADE_FROM(UINT, LPCTSTR);
    VIRTUAL(CSize, GetCompactSize, (CDC*));
    VIRTUAL(CSize, GetIntermediateSize, (CDC*));
    VIRTUAL(CSize, GetRegularSize, (CDC*));
    VIRTUAL(BOOL, IsDrawTooltipImage, () const);
    VIRTUAL(void, OnDraw, (CDC*));
    VIRTUAL(BOOL, OnDrawMenuImage, (CDC*, CRect));
    VIRTUAL(BOOL, SetACCData, (CWnd*, CAccessibilityData&));
}

INTERFACE_OF(CMFCRibbonComboBox) {
    BASE(CMFCRibbonEdit);
    MADE_FROM(UINT, BOOL, int, LPCTSTR, int);
    MADE_FROM(UINT);
    VIRTUAL(INT_PTR, AddItem, (LPCTSTR, DWORD_PTR));
    CALL(AddItem, LPCTSTR);
    NAMED(CreateObject);
    MEMBER(BOOL, DeleteItem, (int));
    MEMBER(BOOL, DeleteItem, (DWORD_PTR));
    MEMBER(BOOL, DeleteItem, (LPCTSTR));
    MEMBER(void, EnableDropDownListResize, (BOOL));
    CALL(EnableDropDownListResize);
    MEMBER(int, FindItem, (LPCTSTR) const);
    MEMBER(INT_PTR, GetCount, () const);
    MEMBER(int, GetCurSel, () const);
    MEMBER(int, GetDropDownHeight, ());
    VIRTUAL(CSize, GetIntermediateSize, (CDC*));
    MEMBER(LPCTSTR, GetItem, (int) const);
    MEMBER(DWORD_PTR, GetItemData, (int) const);
    NAMED(GetThisClass);
    MEMBER(BOOL, HasEditBox, () const);
    MEMBER(BOOL, IsResizeDropDownList, () const);
    VIRTUAL(void, OnSelectItem, (int));
    MEMBER(void, RemoveAllItems, ());
    MEMBER(BOOL, SelectItem, (int));
    MEMBER(BOOL, SelectItem, (DWORD_PTR));
    MEMBER(BOOL, SelectItem, (LPCTSTR));
    MEMBER(void, SetDropDownHeight, (int));
}

INTERFACE_OF(CMFCRibbonFontComboBox) {
    BASE(CMFCRibbonComboBox);
    MADE_FROM(UINT, int, BYTE, BYTE, int);
    MADE_FROM(UINT);
    MEMBER(void, BuildFonts, (int, BYTE, BYTE));
    CALL(BuildFonts);
    NAMED(CreateObject);
    MEMBER(BYTE, GetCharSet, () const);
    MEMBER(const CMFCFontInfo*, GetFontDesc, (int) const);
    CALL(GetFontDesc);
    MEMBER(int, GetFontType, () const);
    MEMBER(BYTE, GetPitchAndFamily, () const);
    NAMED(GetThisClass);
    MEMBER(void, RebuildFonts, ());
    MEMBER(BOOL, SetFont, (LPCTSTR, BYTE, BOOL));
    CALL(SetFont, LPCTSTR);
}

INTERFACE_OF(CMFCRibbonContextCaption) {
    BASE(CMFCRibbonButton);
    NAMED(CreateObject);
    MEMBER(AFX_RibbonCategoryColor, GetColor, () const);
    MEMBER(int, GetRightTabX, () const);
    NAMED(GetThisClass);
}

INTERFACE_OF(CMFCRibbonEdit) {
    BASE(CMFCRibbonButton);
    MADE_FROM(UINT, int, LPCTSTR, int);
    MADE_FROM();
    VIRTUAL(BOOL, CanBeStretched, ());
    VIRTUAL(void, CopyFrom, (const CMFCRibbonBaseElement&));
    VIRTUAL(CMFCRibbonRichEditCtrl*, CreateEdit, (CWnd*, DWORD));
    VIRTUAL(void, DestroyCtrl, ());
    VIRTUAL(void, DropDownList, ());
    VIRTUAL(CSize, GetCompactSize, (CDC*));
    MEMBER(CString, GetEditText, () const);
    VIRTUAL(CSize, GetIntermediateSize, (CDC*));
    MEMBER(int, GetTextAlign, () const);
    MEMBER(int, GetWidth, (BOOL) const);
    CALL(GetWidth);
    VIRTUAL(BOOL, HasCompactMode, () const);
    VIRTUAL(BOOL, HasFocus, () const);
    VIRTUAL(BOOL, HasLargeMode, () const);
    VIRTUAL(BOOL, IsHighlighted, () const);
    VIRTUAL(void, OnAfterChangeRect, (CDC*));
    VIRTUAL(void, OnDraw, (CDC*));
    VIRTUAL(void, OnDrawLabelAndImage, (CDC*));
    VIRTUAL(void, OnEnable, (BOOL));
    VIRTUAL(void, OnHighlight, (BOOL));
    VIRTUAL(BOOL, OnKey, (BOOL));
    VIRTUAL(void, OnLButtonDown, (CPoint));
    VIRTUAL(void, OnLButtonUp, (CPoint));
    VIRTUAL(void, OnRTLChanged, (BOOL));
    VIRTUAL(void, OnShow, (BOOL));
    VIRTUAL(void, Redraw, ());
    VIRTUAL(BOOL, SetACCData, (CWnd*, CAccessibilityData&));
    MEMBER(void, SetEditText, (CString));
    MEMBER(void, SetTextAlign, (int));
    MEMBER(void, SetWidth, (int, BOOL));
    CALL(SetWidth, int);
}

INTERFACE_OF(CMFCRibbonLabel) {
    BASE(CMFCRibbonButton);
    MADE_FROM(LPCTSTR, BOOL);
    NAMED(CreateObject);
    NAMED(GetThisClass);
    VIRTUAL(BOOL, SetACCData, (CWnd*, CAccessibilityData&));
}

INTERFACE_OF(CMFCRibbonLaunchButton) {
    BASE(CMFCRibbonButton);
    MADE_FROM();
    NAMED(CreateObject);
    NAMED(GetThisClass);
    VIRTUAL(CRect, GetKeyTipRect, (CDC*, BOOL));
    VIRTUAL(CSize, GetRegularSize, (CDC*));
    VIRTUAL(void, OnDraw, (CDC*));
}

INTERFACE_OF(CMFCRibbonMainPanel) {
    BASE(CMFCRibbonPanel);
    VIRTUAL(void, Add, (CMFCRibbonBaseElement*));
    MEMBER(void, AddRecentFilesList, (LPCTSTR, int));
    CALL(AddRecentFilesList, LPCTSTR);
    MEMBER(void, AddToBottom, (CMFCRibbonMainPanelButton*));
    MEMBER(void, AddToRight, (CMFCRibbonBaseElement*, int));
    CALL(AddToRight, CMFCRibbonBaseElement*);
    NAMED(CreateObject);
    MEMBER(CRect, GetCommandsFrame, () const);
    NAMED(GetThisClass);
}

INTERFACE_OF(CMFCRibbonPanel) {
    BASE(CObject);
    VIRTUAL(void, Add, (CMFCRibbonBaseElement*));
    VIRTUAL(void, AddSeparator, ());
    MEMBER(void, EnableLaunchButton, (UINT, int, LPCTSTR));
    CALL(EnableLaunchButton, UINT);
    MEMBER(CMFCRibbonBaseElement*, FindByData, (DWORD_PTR) const);
    MEMBER(CMFCRibbonBaseElement*, FindByID, (UINT) const);
    MEMBER(int, GetCaptionHeight, () const);
    MEMBER(int, GetCount, () const);
    MEMBER(DWORD_PTR, GetData, () const);
    MEMBER(CMFCRibbonButton&, GetDefaultButton, ());
    MEMBER(CMFCRibbonBaseElement*, GetDroppedDown, () const);
    MEMBER(CMFCRibbonBaseElement*, GetElement, (int) const);
    MEMBER(void, GetElements, (CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>&));
    MEMBER(void, GetElementsByID, (UINT, CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>&));
    MEMBER(CMFCRibbonBaseElement*, GetFocused, () const);
    MEMBER(CMFCRibbonBaseElement*, GetHighlighted, () const);
    VIRTUAL(int, GetIndex, (CMFCRibbonBaseElement*) const);
    MEMBER(void, GetItemIDsList, (CList<UINT, UINT>&) const);
    MEMBER(CMFCRibbonButton&, GetLaunchButton, ());
    MEMBER(LPCTSTR, GetName, () const);
    MEMBER(CMFCRibbonBaseElement*, GetParentButton, () const);
    MEMBER(CMFCRibbonCategory*, GetParentCategory, () const);
    MEMBER(CMFCRibbonPanelMenuBar*, GetParentMenuBar, () const);
    MEMBER(CMFCRibbonBaseElement*, GetPressed, () const);
    MEMBER(const CRect&, GetRect, () const);
    MEMBER(void, GetVisibleElements, (CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>&));
    MEMBER(BOOL, HasElement, (const CMFCRibbonBaseElement*) const);
    VIRTUAL(CMFCRibbonBaseElement*, HitTest, (CPoint, BOOL));
    CALL(HitTest, CPoint);
    VIRTUAL(int, HitTestEx, (CPoint) const);
    VIRTUAL(BOOL, Insert, (CMFCRibbonBaseElement*, int));
    VIRTUAL(BOOL, InsertSeparator, (int));
    MEMBER(BOOL, IsCenterColumnVert, () const);
    MEMBER(BOOL, IsCollapsed, () const);
    MEMBER(BOOL, IsHighlighted, () const);
    MEMBER(BOOL, IsJustifyColumns, () const);
    VIRTUAL(BOOL, IsMainPanel, () const);
    MEMBER(BOOL, IsMenuMode, () const);
    VIRTUAL(BOOL, OnKey, (UINT));
    MEMBER(BOOL, Remove, (int, BOOL));
    CALL(Remove, int);
    MEMBER(void, RemoveAll, ());
    MEMBER(BOOL, Replace, (int, CMFCRibbonBaseElement*));
    MEMBER(BOOL, ReplaceByID, (UINT, CMFCRibbonBaseElement*));
    MEMBER(void, SetCenterColumnVert, (BOOL));
    CALL(SetCenterColumnVert);
    MEMBER(void, SetData, (DWORD_PTR));
    MEMBER(BOOL, SetElementMenu, (UINT, HMENU, BOOL, BOOL));
    CALL(SetElementMenu, UINT, HMENU);
    MEMBER(BOOL, SetElementMenu, (UINT, UINT, BOOL, BOOL));
    CALL(SetElementMenu, UINT, UINT);
    MEMBER(CMFCRibbonBaseElement*, SetElementRTC, (int, CRuntimeClass*));
    MEMBER(CMFCRibbonBaseElement*, SetElementRTCByID, (UINT, CRuntimeClass*));
    MEMBER(void, SetFocused, (CMFCRibbonBaseElement*));
    MEMBER(void, SetJustifyColumns, (BOOL));
    CALL(SetJustifyColumns);
    MEMBER(void, SetKeys, (LPCTSTR));
    MEMBER(CMFCRibbonPanelMenu*, ShowPopup, (CMFCRibbonDefaultPanelButton*));
    CALL(ShowPopup);
    VIRTUAL(void, Highlight, (BOOL, CPoint));
    MEMBER(BOOL, IsWindows7Look, () const);
}

INTERFACE_OF(CMFCRibbonQuickAccessToolBarDefaultState) {
    MADE_FROM();
    MEMBER(void, AddCommand, (UINT, BOOL));
    CALL(AddCommand, UINT);
    MEMBER(void, CopyFrom, (const CMFCRibbonQuickAccessToolBarDefaultState&));
    MEMBER(void, RemoveAll, ());
}

INTERFACE_OF(CMFCRibbonSeparator) {
    BASE(CMFCRibbonBaseElement);
    MADE_FROM(BOOL);
    NAMED(CreateObject);
    NAMED(GetThisClass);
}

PROTECTED_INTERFACE_OF(CMFCRibbonSeparator) {
    VIRTUAL(void, CopyFrom, (const CMFCRibbonBaseElement&));
    VIRTUAL(CSize, GetRegularSize, (CDC*));
    VIRTUAL(BOOL, IsSeparator, () const);
    VIRTUAL(BOOL, IsTabStop, () const);
    VIRTUAL(void, OnDraw, (CDC*));
}

INTERFACE_OF(CMFCRibbonSlider) {
    BASE(CMFCRibbonBaseElement);
    MADE_FROM(UINT, int);
    MEMBER(int, GetPos, () const);
    MEMBER(int, GetRangeMax, () const);
    MEMBER(int, GetRangeMin, () const);
    VIRTUAL(CSize, GetRegularSize, (CDC*));
    MEMBER(int, GetZoomIncrement, () const);
    MEMBER(BOOL, HasZoomButtons, () const);
    VIRTUAL(void, OnDraw, (CDC*));
    MEMBER(void, SetPos, (int, BOOL));
    CALL(SetPos, int);
    MEMBER(void, SetRange, (int, int));
    MEMBER(void, SetZoomButtons, (BOOL));
    CALL(SetZoomButtons);
    MEMBER(void, SetZoomIncrement, (int));
}

// Property sheets, and the dialog that changes toolbars.
#include "interface.h"

#include "afxcontrolbars.h"
#include "afxdlgs.h"

INTERFACE_OF(CPropertyPage) {
    BASE(CDialog);
    MADE_FROM();
    MADE_FROM(UINT);
    MADE_FROM(UINT, UINT, DWORD);
    MADE_FROM(LPCTSTR, UINT, DWORD);
    MADE_FROM(UINT, UINT, UINT, UINT, DWORD);
    MADE_FROM(LPCTSTR, UINT, UINT, UINT, DWORD);
    MEMBER(void, CancelToClose, ());
    MEMBER(void, Construct, (UINT, UINT));
    MEMBER(void, Construct, (LPCTSTR, UINT));
    MEMBER(void, Construct, (UINT, UINT, UINT, UINT));
    MEMBER(void, Construct, (LPCTSTR, UINT, UINT, UINT));
    CALL(Construct, UINT);
    MEMBER(const PROPSHEETPAGE&, GetPSP, () const);
    MEMBER(PROPSHEETPAGE&, GetPSP, ());
    VIRTUAL(BOOL, OnApply, ());
    VIRTUAL(void, OnCancel, ());
    VIRTUAL(BOOL, OnKillActive, ());
    VIRTUAL(void, OnOK, ());
    VIRTUAL(BOOL, OnQueryCancel, ());
    VIRTUAL(void, OnReset, ());
    VIRTUAL(BOOL, OnSetActive, ());
    VIRTUAL(LRESULT, OnWizardBack, ());
    VIRTUAL(BOOL, OnWizardFinish, ());
    VIRTUAL(LRESULT, OnWizardNext, ());
    MEMBER(LRESULT, QuerySiblings, (WPARAM, LPARAM));
    MEMBER(void, SetModified, (BOOL));
    CALL(SetModified);
}

INTERFACE_OF(CPropertySheet) {
    BASE(CWnd);
    MADE_FROM();
    MADE_FROM(UINT);
    MADE_FROM(UINT, CWnd*, UINT);
    MADE_FROM(LPCTSTR, CWnd*, UINT);
    MADE_FROM(UINT, CWnd*, UINT, HBITMAP, HPALETTE, HBITMAP);
    MADE_FROM(LPCTSTR, CWnd*, UINT, HBITMAP, HPALETTE, HBITMAP);
    MEMBER(void, AddPage, (CPropertyPage*));
    MEMBER(void, Construct, (UINT, CWnd*, UINT));
    MEMBER(void, Construct, (LPCTSTR, CWnd*, UINT));
    MEMBER(void, Construct, (UINT, CWnd*, UINT, HBITMAP, HPALETTE, HBITMAP));
    MEMBER(void, Construct, (LPCTSTR, CWnd*, UINT, HBITMAP, HPALETTE, HBITMAP));
    CALL(Construct, UINT);
    VIRTUAL(BOOL, Create, (CWnd*, DWORD, DWORD));
    CALL(Create);
    VIRTUAL(INT_PTR, DoModal, ());
    MEMBER(void, EnableStackedTabs, (BOOL));
    MEMBER(void, EndDialog, (int));
    MEMBER(int, GetActiveIndex, () const);
    MEMBER(CPropertyPage*, GetActivePage, () const);
    MEMBER(CPropertyPage*, GetPage, (int) const);
    MEMBER(int, GetPageCount, () const);
    MEMBER(int, GetPageIndex, (CPropertyPage*));
    MEMBER(CTabCtrl*, GetTabControl, () const);
    MEMBER(void, MapDialogRect, (LPRECT) const);
    VIRTUAL(BOOL, OnInitDialog, ());
    MEMBER(void, PressButton, (int));
    MEMBER(void, RemovePage, (CPropertyPage*));
    MEMBER(void, RemovePage, (int));
    MEMBER(BOOL, SetActivePage, (int));
    MEMBER(BOOL, SetActivePage, (CPropertyPage*));
    MEMBER(void, SetFinishText, (LPCTSTR));
    MEMBER(void, SetTitle, (LPCTSTR, UINT));
    CALL(SetTitle, LPCTSTR);
    MEMBER(void, SetWizardButtons, (DWORD));
    MEMBER(void, SetWizardMode, ());
}

INTERFACE_OF(CMFCToolBarsCustomizeDialog) {
    BASE(CPropertySheet);
    using Classes = CList<CRuntimeClass*, CRuntimeClass*>*;
    MADE_FROM(CFrameWnd*);
    MADE_FROM(CFrameWnd*, BOOL, UINT, Classes);
    MEMBER(void, AddButton, (UINT, const CMFCToolBarButton&, int));
    MEMBER(void, AddButton, (LPCTSTR, const CMFCToolBarButton&, int));
    CALL(AddButton, LPCTSTR, const CMFCToolBarButton&);
    MEMBER(BOOL, AddMenu, (UINT));
    MEMBER(void, AddMenuCommands, (const CMenu*, BOOL, LPCTSTR, LPCTSTR));
    CALL(AddMenuCommands, const CMenu*, BOOL);
    MEMBER(BOOL, AddToolBar, (UINT, UINT));
    MEMBER(BOOL, AddToolBar, (LPCTSTR, UINT));
    VIRTUAL(BOOL, Create, ());
    MEMBER(void, EnableUserDefinedToolbars, (BOOL));
    CALL(EnableUserDefinedToolbars);
    VIRTUAL(void, FillAllCommandsList, (CListBox&) const);
    MEMBER(void, FillCategoriesComboBox, (CComboBox&, BOOL) const);
    CALL(FillCategoriesComboBox, CComboBox&);
    MEMBER(void, FillCategoriesListBox, (CListBox&, BOOL) const);
    CALL(FillCategoriesListBox, CListBox&);
    MEMBER(LPCTSTR, GetCommandName, (UINT) const);
    MEMBER(int, GetCountInCategory, (LPCTSTR, const CObList&) const);
    MEMBER(UINT, GetFlags, () const);
    VIRTUAL(BOOL, OnEditToolbarMenuImage, (CWnd*, CBitmap&, int));
    VIRTUAL(BOOL, OnInitDialog, ());
    VIRTUAL(void, PostNcDestroy, ());
    MEMBER(int, RemoveButton, (UINT, UINT));
    MEMBER(int, RemoveButton, (LPCTSTR, UINT));
    MEMBER(BOOL, RenameCategory, (LPCTSTR, LPCTSTR));
    MEMBER(void, ReplaceButton, (UINT, const CMFCToolBarButton&));
    MEMBER(BOOL, SetUserCategory, (LPCTSTR));
}

PROTECTED_INTERFACE_OF(CMFCToolBarsCustomizeDialog) {
    VIRTUAL(BOOL, CheckToolsValidity, (const CObList&));
    VIRTUAL(void, OnAfterChangeTool, (CUserTool*));
    VIRTUAL(BOOL, OnAssignKey, (ACCEL*));
    VIRTUAL(void, OnBeforeChangeTool, (CUserTool*));
    VIRTUAL(void, OnInitToolsPage, ());
}

INTERFACE_OF(CUserTool) {
    BASE(CObject);
    MADE_FROM();
    MEMBER(void, DrawToolIcon, (CDC*, const CRect&));
    MEMBER(const CString&, GetCommand, () const);
    MEMBER(UINT, GetCommandId, () const);
    VIRTUAL(BOOL, Invoke, ());
    VIRTUAL(void, Serialize, (CArchive&));
    MEMBER(void, SetCommand, (LPCTSTR));
    VIRTUAL(HICON, SetToolIcon, ());
    DATA(CString, m_strArguments);
    DATA(CString, m_strInitialDirectory);
    DATA(CString, m_strLabel);
}

PROTECTED_INTERFACE_OF(CUserTool) { VIRTUAL(HICON, LoadDefaultIcon, ()); }

INTERFACE_OF(CUserToolsManager) {
    BASE(CObject);
    MADE_FROM();
    MADE_FROM(UINT, UINT, UINT, CRuntimeClass*, UINT, UINT);
    MEMBER(CUserTool*, CreateNewTool, ());
    MEMBER(CUserTool*, FindTool, (UINT) const);
    MEMBER(UINT, GetArgumentsMenuID, () const);
    MEMBER(const CString&, GetDefExt, () const);
    MEMBER(const CString&, GetFilter, () const);
    MEMBER(UINT, GetInitialDirMenuID, () const);
    MEMBER(int, GetMaxTools, () const);
    MEMBER(UINT, GetToolsEntryCmd, () const);
    MEMBER(const CObList&, GetUserTools, () const);
    MEMBER(BOOL, InvokeTool, (UINT));
    MEMBER(BOOL, IsUserToolCmd, (UINT) const);
    MEMBER(BOOL, LoadState, (LPCTSTR));
    MEMBER(BOOL, MoveToolDown, (CUserTool*));
    MEMBER(BOOL, MoveToolUp, (CUserTool*));
    MEMBER(BOOL, RemoveTool, (CUserTool*));
    MEMBER(BOOL, SaveState, (LPCTSTR));
    MEMBER(void, SetDefExt, (const CString&));
    MEMBER(void, SetFilter, (const CString&));
}

INTERFACE_OF(CMFCAcceleratorKey) {
    BASE(CObject);
    MADE_FROM();
    MADE_FROM(LPACCEL);
    MEMBER(void, Format, (CString&) const);
    MEMBER(void, SetAccelerator, (LPACCEL));
}

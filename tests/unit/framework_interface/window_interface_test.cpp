#include "interface.h"

#include "afxadv.h"
#include "afxkeyboardmanager.h"
#include "afxwin.h"
#include "afxwinappex.h"

INTERFACE_OF(CCmdTarget) {
    BASE(CObject);
    MADE_FROM();
    MEMBER(void, BeginWaitCursor, ());
    MEMBER(void, EndWaitCursor, ());
    VIRTUAL(BOOL, OnCmdMsg, (UINT, int, void*, AFX_CMDHANDLERINFO*));
    MEMBER(void, RestoreWaitCursor, ());
}

INTERFACE_OF(CCmdUI) {
    MEMBER(void, ContinueRouting, ());
    VIRTUAL(void, Enable, (BOOL));
    CALL(Enable);
    VIRTUAL(void, SetCheck, (int));
    CALL(SetCheck);
    VIRTUAL(void, SetRadio, (BOOL));
    CALL(SetRadio);
    VIRTUAL(void, SetText, (LPCTSTR));
    DATA(UINT, m_nID);
    DATA(UINT, m_nIndex);
    DATA(CMenu*, m_pMenu);
    DATA(CWnd*, m_pOther);
    DATA(CMenu*, m_pSubMenu);
}

INTERFACE_OF(CWinThread) {
    BASE(CCmdTarget);
    MADE_FROM();
    MEMBER(BOOL, CreateThread, (DWORD, UINT, LPSECURITY_ATTRIBUTES));
    CALL(CreateThread);
    VIRTUAL(int, ExitInstance, ());
    VIRTUAL(CWnd*, GetMainWnd, ());
    MEMBER(int, GetThreadPriority, ());
    VIRTUAL(BOOL, InitInstance, ());
    VIRTUAL(BOOL, IsIdleMessage, (MSG*));
    VIRTUAL(BOOL, OnIdle, (LONG));
    MEMBER(BOOL, PostThreadMessage, (UINT, WPARAM, LPARAM));
    VIRTUAL(BOOL, PreTranslateMessage, (MSG*));
    VIRTUAL(BOOL, ProcessMessageFilter, (int, LPMSG));
    VIRTUAL(LRESULT, ProcessWndProcException, (CException*, const MSG*));
    VIRTUAL(BOOL, PumpMessage, ());
    MEMBER(DWORD, ResumeThread, ());
    VIRTUAL(int, Run, ());
    MEMBER(BOOL, SetThreadPriority, (int));
    MEMBER(DWORD, SuspendThread, ());
    MEMBER(HANDLE, operator HANDLE, () const);
    DATA(BOOL, m_bAutoDelete);
    DATA(HANDLE, m_hThread);
    DATA(DWORD, m_nThreadID);
    DATA(CWnd*, m_pActiveWnd);
    DATA(CWnd*, m_pMainWnd);
}

INTERFACE_OF(CWinApp) {
    BASE(CWinThread);
    MADE_FROM(LPCTSTR);
    MEMBER(void, AddDocTemplate, (CDocTemplate*));
    VIRTUAL(void, AddToRecentFileList, (LPCTSTR));
    MEMBER(void, CloseAllDocuments, (BOOL));
    MEMBER(LONG, DelRegTree, (HKEY, const CString&));
    CALL(DelRegTree, HKEY, const CString&);
    MEMBER(POSITION, GetFirstDocTemplatePosition, () const);
    MEMBER(CDocTemplate*, GetNextDocTemplate, (POSITION&) const);
    VIRTUAL(CDocument*, OpenDocumentFile, (LPCTSTR, BOOL));
    CALL(OpenDocumentFile, LPCTSTR);
    MEMBER(BOOL, ProcessShellCommand, (CCommandLineInfo&));
    VIRTUAL(int, DoMessageBox, (LPCTSTR, UINT, UINT));
    VIRTUAL(void, DoWaitCursor, (int));
    VIRTUAL(int, ExitInstance, ());
    CALL(GetAppRegistryKey);
    MEMBER(BOOL, GetProfileBinary, (LPCTSTR, LPCTSTR, LPBYTE*, UINT*));
    MEMBER(UINT, GetProfileInt, (LPCTSTR, LPCTSTR, int));
    MEMBER(CString, GetProfileString, (LPCTSTR, LPCTSTR, LPCTSTR));
    CALL(GetProfileString, LPCTSTR, LPCTSTR);
    CALL(GetSectionKey, LPCTSTR);
    MEMBER(void, HideApplication, ());
    VIRTUAL(BOOL, InitInstance, ());
    MEMBER(HCURSOR, LoadCursor, (LPCTSTR) const);
    MEMBER(HCURSOR, LoadCursor, (UINT) const);
    MEMBER(HICON, LoadIcon, (LPCTSTR) const);
    MEMBER(HICON, LoadIcon, (UINT) const);
    MEMBER(HCURSOR, LoadOEMCursor, (UINT) const);
    MEMBER(HICON, LoadOEMIcon, (UINT) const);
    MEMBER(HCURSOR, LoadStandardCursor, (LPCTSTR) const);
    MEMBER(HICON, LoadStandardIcon, (LPCTSTR) const);
    VIRTUAL(BOOL, OnIdle, (LONG));
    MEMBER(void, ParseCommandLine, (CCommandLineInfo&));
    VIRTUAL(BOOL, PreTranslateMessage, (MSG*));
    VIRTUAL(BOOL, ProcessMessageFilter, (int, LPMSG));
    VIRTUAL(LRESULT, ProcessWndProcException, (CException*, const MSG*));
    VIRTUAL(int, Run, ());
    VIRTUAL(BOOL, SaveAllModified, ());
    VIRTUAL(void, WinHelp, (DWORD_PTR, UINT));
    CALL(WinHelp, DWORD_PTR);
    MEMBER(BOOL, WriteProfileBinary, (LPCTSTR, LPCTSTR, LPBYTE, UINT));
    MEMBER(BOOL, WriteProfileInt, (LPCTSTR, LPCTSTR, int));
    MEMBER(BOOL, WriteProfileString, (LPCTSTR, LPCTSTR, LPCTSTR));
    DATA(BOOL, m_bHelpMode);
    DATA(HINSTANCE, m_hInstance);
    DATA(LPTSTR, m_lpCmdLine);
    DATA(int, m_nCmdShow);
    NAMED(m_pActiveWnd);
    DATA(LPCTSTR, m_pszAppID);
    DATA(LPCTSTR, m_pszAppName);
    DATA(LPCTSTR, m_pszExeName);
    DATA(LPCTSTR, m_pszHelpFilePath);
    DATA(LPCTSTR, m_pszProfileName);
    DATA(LPCTSTR, m_pszRegistryKey);
    MEMBER(BOOL, CreatePrinterDC, (CDC&));
    MEMBER(BOOL, EnableTaskbarInteraction, (BOOL));
    CALL(EnableTaskbarInteraction);
    MEMBER(BOOL, GetPrinterDeviceDefaults, (PRINTDLGW*));
    VIRTUAL(BOOL, IsTaskbarInteractionEnabled, ());
    MEMBER(void, SelectPrinter, (HANDLE, HANDLE, BOOL));
    CALL(SelectPrinter, HANDLE, HANDLE);
    MEMBER(void, OnFilePrintSetup, ());
}

PROTECTED_INTERFACE_OF(CWinApp) {
    MEMBER(void, LoadStdProfileSettings, (UINT));
    MEMBER(void, OnFileNew, ());
    MEMBER(void, OnFileOpen, ());
    MEMBER(void, OnHelp, ());
    MEMBER(void, OnHelpFinder, ());
    MEMBER(void, OnHelpIndex, ());
    MEMBER(void, OnHelpUsing, ());
    MEMBER(void, SetAppID, (LPCTSTR));
    MEMBER(void, SetRegistryKey, (LPCTSTR));
    MEMBER(void, SetRegistryKey, (UINT));
}

INTERFACE_OF(CRecentFileList) {
    MADE_FROM(UINT, LPCTSTR, LPCTSTR, int);
    MADE_FROM(UINT, LPCTSTR, LPCTSTR, int, int);
    VIRTUAL(void, Add, (LPCTSTR));
    VIRTUAL(BOOL, GetDisplayName, (CString&, int, LPCTSTR, int, BOOL) const);
    CALL(GetDisplayName, CString&, int, LPCTSTR, int);
    MEMBER(int, GetSize, () const);
    VIRTUAL(void, ReadList, ());
    VIRTUAL(void, Remove, (int));
    VIRTUAL(void, UpdateMenu, (CCmdUI*));
    VIRTUAL(void, WriteList, ());
    MEMBER(CString&, operator[], (int));
}

INTERFACE_OF(CWinAppEx) {
    BASE(CWinApp);
    MADE_FROM(BOOL);
    VIRTUAL(BOOL, CleanState, (LPCTSTR));
    CALL(CleanState);
    MEMBER(void, EnableLoadWindowPlacement, (BOOL));
    CALL(EnableLoadWindowPlacement);
    VIRTUAL(int, ExitInstance, ());
    MEMBER(BOOL, LoadState, (CMDIFrameWndEx*, LPCTSTR));
    MEMBER(BOOL, LoadState, (CFrameWndEx*, LPCTSTR));
    VIRTUAL(BOOL, LoadState, (LPCTSTR, CFrameImpl*));
    CALL(LoadState);
    VIRTUAL(BOOL, SaveState, (LPCTSTR, CFrameImpl*));
    CALL(SaveState);
    MEMBER(BOOL, SaveState, (CMDIFrameWndEx*, LPCTSTR));
    MEMBER(BOOL, SaveState, (CFrameWndEx*, LPCTSTR));
    MEMBER(BOOL, GetBinary, (LPCTSTR, LPBYTE*, UINT*));
    MEMBER(int, GetDataVersion, () const);
    MEMBER(int, GetDataVersionMajor, () const);
    MEMBER(int, GetDataVersionMinor, () const);
    MEMBER(int, GetInt, (LPCTSTR, int));
    CALL(GetInt, LPCTSTR);
    MEMBER(BOOL, EnableUserTools, (UINT, UINT, UINT, CRuntimeClass*, UINT, UINT));
    MEMBER(CContextMenuManager*, GetContextMenuManager, ());
    MEMBER(CUserToolsManager*, GetUserToolsManager, ());
    MEMBER(CKeyboardManager*, GetKeyboardManager, ());
    MEMBER(BOOL, GetObject, (LPCTSTR, CObject&));
    MEMBER(CString, GetRegSectionPath, (LPCTSTR));
    CALL(GetRegSectionPath);
    MEMBER(LPCTSTR, GetRegistryBase, ());
    MEMBER(BOOL, GetSectionBinary, (LPCTSTR, LPCTSTR, LPBYTE*, UINT*));
    MEMBER(int, GetSectionInt, (LPCTSTR, LPCTSTR, int));
    CALL(GetSectionInt, LPCTSTR, LPCTSTR);
    MEMBER(BOOL, GetSectionObject, (LPCTSTR, LPCTSTR, CObject&));
    MEMBER(CString, GetSectionString, (LPCTSTR, LPCTSTR, LPCTSTR));
    CALL(GetSectionString, LPCTSTR, LPCTSTR);
    MEMBER(CString, GetString, (LPCTSTR, LPCTSTR));
    CALL(GetString, LPCTSTR);
    MEMBER(CTooltipManager*, GetTooltipManager, ());
    MEMBER(BOOL, InitContextMenuManager, ());
    MEMBER(BOOL, InitKeyboardManager, ());
    MEMBER(BOOL, InitTooltipManager, ());
    MEMBER(BOOL, IsResourceSmartUpdate, () const);
    MEMBER(BOOL, IsStateExists, (LPCTSTR));
    VIRTUAL(BOOL, OnViewDoubleClick, (CWnd*, int));
    VIRTUAL(BOOL, OnWorkspaceIdle, (CWnd*));
    VIRTUAL(BOOL, ShowPopupMenu, (UINT, const CPoint&, CWnd*));
    MEMBER(LPCTSTR, SetRegistryBase, (LPCTSTR));
    CALL(SetRegistryBase);
    MEMBER(BOOL, WriteBinary, (LPCTSTR, LPBYTE, UINT));
    MEMBER(BOOL, WriteInt, (LPCTSTR, int));
    MEMBER(BOOL, WriteObject, (LPCTSTR, CObject&));
    MEMBER(BOOL, WriteSectionBinary, (LPCTSTR, LPCTSTR, LPBYTE, UINT));
    MEMBER(BOOL, WriteSectionInt, (LPCTSTR, LPCTSTR, int));
    MEMBER(BOOL, WriteSectionObject, (LPCTSTR, LPCTSTR, CObject&));
    MEMBER(BOOL, WriteSectionString, (LPCTSTR, LPCTSTR, LPCTSTR));
    MEMBER(BOOL, WriteString, (LPCTSTR, LPCTSTR));
    DATA(BOOL, m_bForceImageReset);
}

PROTECTED_INTERFACE_OF(CWinAppEx) {
    VIRTUAL(void, LoadCustomState, ());
    VIRTUAL(BOOL, LoadWindowPlacement, (CRect&, int&, int&));
    VIRTUAL(void, OnClosingMainFrame, (CFrameImpl*));
    VIRTUAL(void, PreLoadState, ());
    VIRTUAL(void, PreSaveState, ());
    VIRTUAL(BOOL, ReloadWindowPlacement, (CFrameWnd*));
    VIRTUAL(void, SaveCustomState, ());
    VIRTUAL(BOOL, StoreWindowPlacement, (const CRect&, int, int));
}

INTERFACE_OF(CCommandLineInfo) {
    BASE(CObject);
    MADE_FROM();
    VIRTUAL(void, ParseParam, (const TCHAR*, BOOL, BOOL));
    DATA(BOOL, m_bRunAutomated);
    DATA(BOOL, m_bRunEmbedded);
    DATA(BOOL, m_bShowSplash);
    DATA(CString, m_strDriverName);
    DATA(CString, m_strFileName);
    DATA(CString, m_strPortName);
    DATA(CString, m_strPrinterName);
    DATA(CString, m_strRestartIdentifier);
}

INTERFACE_OF(CMenu) {
    BASE(CObject);
    MADE_FROM();
    MEMBER(BOOL, AppendMenu, (UINT, UINT_PTR, LPCTSTR));
    CALL(AppendMenu, UINT);
    MEMBER(BOOL, AppendMenu, (UINT, UINT_PTR, const CBitmap*));
    MEMBER(BOOL, Attach, (HMENU));
    MEMBER(UINT, CheckMenuItem, (UINT, UINT));
    MEMBER(BOOL, CheckMenuRadioItem, (UINT, UINT, UINT, UINT));
    MEMBER(BOOL, CreateMenu, ());
    MEMBER(BOOL, CreatePopupMenu, ());
    MEMBER(BOOL, DeleteMenu, (UINT, UINT));
    STATIC(void, DeleteTempMap, ());
    MEMBER(BOOL, DestroyMenu, ());
    MEMBER(HMENU, Detach, ());
    VIRTUAL(void, DrawItem, (LPDRAWITEMSTRUCT));
    MEMBER(UINT, EnableMenuItem, (UINT, UINT));
    STATIC(CMenu*, FromHandle, (HMENU));
    MEMBER(UINT, GetDefaultItem, (UINT, BOOL));
    CALL(GetDefaultItem, UINT);
    MEMBER(DWORD, GetMenuContextHelpId, () const);
    MEMBER(BOOL, GetMenuInfo, (LPMENUINFO) const);
    MEMBER(UINT, GetMenuItemCount, () const);
    MEMBER(UINT, GetMenuItemID, (int) const);
    MEMBER(BOOL, GetMenuItemInfo, (UINT, LPMENUITEMINFO, BOOL));
    CALL(GetMenuItemInfo, UINT, LPMENUITEMINFO);
    MEMBER(UINT, GetMenuState, (UINT, UINT) const);
    MEMBER(int, GetMenuString, (UINT, LPTSTR, int, UINT) const);
    MEMBER(int, GetMenuString, (UINT, CString&, UINT) const);
    MEMBER(HMENU, GetSafeHmenu, () const);
    MEMBER(CMenu*, GetSubMenu, (int) const);
    MEMBER(BOOL, InsertMenu, (UINT, UINT, UINT_PTR, LPCTSTR));
    CALL(InsertMenu, UINT, UINT);
    MEMBER(BOOL, InsertMenu, (UINT, UINT, UINT_PTR, const CBitmap*));
    MEMBER(BOOL, InsertMenuItem, (UINT, LPMENUITEMINFO, BOOL));
    CALL(InsertMenuItem, UINT, LPMENUITEMINFO);
    MEMBER(BOOL, LoadMenu, (LPCTSTR));
    MEMBER(BOOL, LoadMenu, (UINT));
    MEMBER(BOOL, LoadMenuIndirect, (const void*));
    VIRTUAL(void, MeasureItem, (LPMEASUREITEMSTRUCT));
    MEMBER(BOOL, ModifyMenu, (UINT, UINT, UINT_PTR, LPCTSTR));
    CALL(ModifyMenu, UINT, UINT);
    MEMBER(BOOL, ModifyMenu, (UINT, UINT, UINT_PTR, const CBitmap*));
    MEMBER(BOOL, RemoveMenu, (UINT, UINT));
    MEMBER(BOOL, SetDefaultItem, (UINT, BOOL));
    CALL(SetDefaultItem, UINT);
    MEMBER(BOOL, SetMenuContextHelpId, (DWORD));
    MEMBER(BOOL, SetMenuInfo, (LPCMENUINFO));
    MEMBER(BOOL, SetMenuItemBitmaps, (UINT, UINT, const CBitmap*, const CBitmap*));
    MEMBER(BOOL, SetMenuItemInfo, (UINT, LPMENUITEMINFO, BOOL));
    CALL(SetMenuItemInfo, UINT, LPMENUITEMINFO);
    MEMBER(BOOL, TrackPopupMenu, (UINT, int, int, CWnd*, LPCRECT));
    CALL(TrackPopupMenu, UINT, int, int, CWnd*);
    MEMBER(BOOL, TrackPopupMenuEx, (UINT, int, int, CWnd*, LPTPMPARAMS));
    MEMBER(HMENU, operator HMENU, () const);
    MEMBER(BOOL, operator!=, (const CMenu&) const);
    MEMBER(BOOL, operator==, (const CMenu&) const);
    DATA(HMENU, m_hMenu);
}

INTERFACE_OF(CWaitCursor) {
    MADE_FROM();
    MEMBER(void, Restore, ());
}

INTERFACE_OF(CDataExchange) {
    MADE_FROM(CWnd*, BOOL);
    MEMBER(void, Fail, ());
    MEMBER(HWND, PrepareCtrl, (int));
    MEMBER(HWND, PrepareEditCtrl, (int));
    DATA(BOOL, m_bSaveAndValidate);
    DATA(CWnd*, m_pDlgWnd);
}

INTERFACE_OF(CKeyboardManager) {
    BASE(CObject);
    MADE_FROM();
    STATIC(void, CleanUp, ());
    STATIC(BOOL, FindDefaultAccelerator, (UINT, CString&, CFrameWnd*, BOOL));
    STATIC(BOOL, IsKeyHandled, (WORD, BYTE, CFrameWnd*, BOOL));
    STATIC(BOOL, IsKeyPrintable, (const UINT));
    STATIC(BOOL, IsShowAllAccelerators, ());
    MEMBER(BOOL, LoadState, (LPCTSTR, CFrameWnd*));
    CALL(LoadState);
    MEMBER(void, ResetAll, ());
    MEMBER(BOOL, SaveState, (LPCTSTR, CFrameWnd*));
    CALL(SaveState);
    STATIC(void, ShowAllAccelerators, (BOOL, LPCTSTR));
    CALL(ShowAllAccelerators);
    STATIC(UINT, TranslateCharToUpper, (const UINT));
    MEMBER(BOOL, UpdateAccelTable, (CMultiDocTemplate*, LPACCEL, int, CFrameWnd*));
    CALL(UpdateAccelTable, CMultiDocTemplate*, LPACCEL, int);
    MEMBER(BOOL, UpdateAccelTable, (CMultiDocTemplate*, HACCEL, CFrameWnd*));
    CALL(UpdateAccelTable, CMultiDocTemplate*, HACCEL);
}

INTERFACE_OF(CView) {
    BASE(CWnd);
    MEMBER(CDocument*, GetDocument, () const);
    MEMBER(BOOL, DoPreparePrinting, (CPrintInfo*));
    VIRTUAL(BOOL, IsSelected, (const CObject*) const);
    VIRTUAL(void, OnInitialUpdate, ());
    VIRTUAL(void, OnPrepareDC, (CDC*, CPrintInfo*));
    CALL(OnPrepareDC, CDC*);
}

PROTECTED_INTERFACE_OF(CView) {
    VIRTUAL(void, OnBeginPrinting, (CDC*, CPrintInfo*));
    VIRTUAL(void, OnEndPrinting, (CDC*, CPrintInfo*));
    VIRTUAL(void, OnEndPrintPreview, (CDC*, CPrintInfo*, POINT, CPreviewView*));
    VIRTUAL(BOOL, OnPreparePrinting, (CPrintInfo*));
    VIRTUAL(void, OnPrint, (CDC*, CPrintInfo*));
    VIRTUAL(void, OnActivateFrame, (UINT, CFrameWnd*));
    VIRTUAL(void, OnActivateView, (BOOL, CView*, CView*));
    VIRTUAL(void, OnDraw, (CDC*));
    VIRTUAL(void, OnUpdate, (CView*, LPARAM, CObject*));
}

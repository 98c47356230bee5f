#pragma once

#include "fx/module_state.h"
#include "fx/thread.h"
#include "fx/wnd.h"

#include <commdlg.h>

#include <afxcoll.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class CCmdUI;
class CDocTemplate;
class CDocument;
class CRecentFileList;
class CWinApp;

namespace fx {
class StateStore;
}

/// How many recent files an application keeps unless it asks for another number.
#define _AFX_MRU_COUNT 4

/// What the command line asked for; CWinApp::ParseCommandLine fills it.
class FRAMEWORK_API CCommandLineInfo : public CObject {
public:
    enum ShellCommand {
        FileNew,
        FileOpen,
        FilePrint,
        FilePrintTo,
        FileDDE,
        AppRegister,
        AppUnregister,
        FileNothing = -1
    };

    CCommandLineInfo() = default;
    /// One argument without its leading "-" or "/" (then bFlag is TRUE).
    virtual void ParseParam(const TCHAR* pszParam, BOOL bFlag, BOOL bLast);

    BOOL m_bShowSplash = TRUE;
    BOOL m_bRunEmbedded = FALSE;
    BOOL m_bRunAutomated = FALSE;
    ShellCommand m_nShellCommand = FileNew;
    CString m_strFileName;
    CString m_strPrinterName;
    CString m_strDriverName;
    CString m_strPortName;
    CString m_strRestartIdentifier;
};

/// The application: one object of a derived class, made before main starts and never deleted by the framework.
class FRAMEWORK_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
public:
    explicit CWinApp(LPCTSTR lpszAppName = NULL);
    ~CWinApp() override;

    /// Once per program, before InitInstance. FALSE ends the program.
    virtual BOOL InitApplication();
    BOOL InitInstance() override;
    int ExitInstance() override;
    int Run() override;
    BOOL OnIdle(LONG lCount) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL ProcessMessageFilter(int code, LPMSG lpMsg) override;
    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;

    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const;
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const;
    HCURSOR LoadOEMCursor(UINT nIDCursor) const;
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const;
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const;
    HICON LoadOEMIcon(UINT nIDIcon) const;

    // Settings: in the registry below HKEY_CURRENT_USER\Software once SetRegistryKey was called, else in the .ini file.
    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = NULL);
    /// A null entry deletes the section, a null value the entry.
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    /// The caller deletes *ppData with delete[].
    BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);
    /// The caller closes the key; null on failure.
    HKEY GetAppRegistryKey();
    HKEY GetSectionKey(LPCTSTR lpszSection);
    LONG DelRegTree(HKEY hParentKey, const CString& strKeyName);

    void ParseCommandLine(CCommandLineInfo& rCmdInfo);
    void HideApplication();

    /// A kind of documents, made with new; the application owns it from here.
    void AddDocTemplate(CDocTemplate* pTemplate);
    POSITION GetFirstDocTemplatePosition() const { return m_templates.GetHeadPosition(); }
    CDocTemplate* GetNextDocTemplate(POSITION& pos) const;
    /// Opens the file as a document of the kind that suits it best; one that is open already comes to the front. NULL
    /// on failure, of which the user has been told.
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU = TRUE);
    /// Asks for each changed document whether to save it. FALSE as soon as the user wants to go on.
    virtual BOOL SaveAllModified();
    /// Without asking.
    void CloseAllDocuments(BOOL bEndSession);
    /// What the command line asked for: a new document, a file, printing. FALSE: the program is to end.
    BOOL ProcessShellCommand(CCommandLineInfo& rCmdInfo);
    /// The path becomes the first of the recent files; nothing happens before LoadStdProfileSettings.
    virtual void AddToRecentFileList(LPCTSTR lpszPathName);
    /// Null before LoadStdProfileSettings, and where the application keeps no recent files.
    CRecentFileList* GetRecentFileList() const { return m_recentFiles.get(); }
    /// Where bars keep their state. Null: this application keeps none.
    virtual fx::StateStore* GetStateStore() { return nullptr; }

    /// Shows AfxMessageBox's box. Goes through fx::RunMessageBox.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    /// nCode 1 shows the hour-glass, -1 takes it away when it was called as often, 0 shows it again if it should show.
    virtual void DoWaitCursor(int nCode);
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);

    /// The printer of the next jobs: movable memory blocks, which the application owns from here on; NULL: the system's
    /// own printer. bFreeOld FALSE: those that it had before are the caller's.
    void SelectPrinter(HANDLE hDevNames, HANDLE hDevMode, BOOL bFreeOld = TRUE);
    /// The user or the program has chosen one.
    BOOL IsPrinterSelected() const { return m_hDevNames != nullptr; }
    /// FALSE: there is no printer.
    BOOL CreatePrinterDC(CDC& dc);
    /// hDevNames and hDevMode of the chosen printer, else of the system's own one; they stay the application's. FALSE:
    /// there is no printer.
    BOOL GetPrinterDeviceDefaults(PRINTDLGW* pPrintDlg);
    /// FALSE for TRUE: the framework shows nothing in the task bar but the window.
    BOOL EnableTaskbarInteraction(BOOL bEnable = TRUE) { return !bEnable; }
    virtual BOOL IsTaskbarInteractionEnabled() { return FALSE; }
    /// Controls look like that anyway; older programs ask for it.
    BOOL Enable3dControls() { return TRUE; }
    BOOL Enable3dControlsStatic() { return TRUE; }

    // Handlers for maps of derived classes, which name them as the base's: ON_COMMAND(ID_FILE_NEW,
    // &CWinApp::OnFileNew).
    /// A new document; where there are several kinds with names for that, the user chooses one.
    afx_msg void OnFileNew();
    /// Asks for a file and opens it.
    afx_msg void OnFileOpen();
    /// Asks for the printer of the next jobs and previews. The system's own one until then.
    afx_msg void OnFilePrintSetup();
    /// Asks the main window to close. In the map of every application for ID_APP_EXIT.
    afx_msg void OnAppExit();
    /// Offers WM_COMMANDHELP to the active window, then to its parents and owners; where none answers TRUE, the main
    /// window gets the command ID_DEFAULT_HELP.
    afx_msg void OnHelp();
    // The index, the finder, help on help: by WinHelp.
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpUsing();

    HINSTANCE m_hInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    LPCTSTR m_pszAppName = nullptr; ///< shown to the user
    LPCTSTR m_pszExeName = nullptr; ///< the program file's name without extension
    LPCTSTR m_pszHelpFilePath = nullptr;
    LPCTSTR m_pszProfileName = nullptr; ///< the .ini file, or the program's part of the registry key
    LPCTSTR m_pszRegistryKey = nullptr; ///< the maker's part of the registry key
    LPCTSTR m_pszAppID = nullptr;
    BOOL m_bHelpMode = FALSE;

protected:
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);
    void SetAppID(LPCTSTR lpcszAppID);
    /// Reads the recent files, nMaxMRU at most, from the application's settings; 0: it keeps none. ExitInstance writes
    /// them.
    void LoadStdProfileSettings(UINT nMaxMRU = _AFX_MRU_COUNT);
    afx_msg void OnUpdateRecentFileMenu(CCmdUI* pCmdUI);
    /// Opens one of the recent files where the application has kinds of documents; one that fails leaves the list.
    afx_msg BOOL OnOpenRecentFile(UINT nID);
    DECLARE_MESSAGE_MAP()

    HGLOBAL m_hDevMode = nullptr; ///< of the chosen printer, owned; null: the system's own one
    HGLOBAL m_hDevNames = nullptr;

private:
    friend BOOL AFXAPI AfxWinInit(HINSTANCE, HINSTANCE, LPTSTR, int);
    /// Fills the names that the constructor of the derived class left null.
    void SetCurrentHandles(HINSTANCE instance, LPTSTR commandLine, int showCommand);
    LPCTSTR Keep(std::wstring text);
    void DeleteTemplates();

    std::vector<std::unique_ptr<std::wstring>> m_texts; ///< what the m_psz members point to unless the host set them
    std::unique_ptr<CRecentFileList> m_recentFiles;
    CPtrList m_templates; ///< CDocTemplate, owned
    int m_waitCursorCount = 0;
    HCURSOR m_waitCursorRestore = nullptr;
};

/// The application object; null when the program has none (yet).
FRAMEWORK_API CWinApp* AFXAPI AfxGetApp();
/// The calling thread's main window, else null.
FRAMEWORK_API CWnd* AFXAPI AfxGetMainWnd();
FRAMEWORK_API LPCTSTR AFXAPI AfxGetAppName();
/// Rich edit controls in dialog templates need it: of the class "RichEdit20W", and of the older "RICHEDIT". FALSE: the
/// system has none.
FRAMEWORK_API BOOL AFXAPI AfxInitRichEdit2();
FRAMEWORK_API BOOL AFXAPI AfxInitRichEdit();

/// Prepares the calling thread and the application object. Programs with their own main call it before anything else.
FRAMEWORK_API BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// The whole program: AfxWinInit, InitApplication, InitInstance, Run. Its result is the program's exit code. A program
/// with a global CWinApp object links the CMake target framework_main, whose WinMain calls it.
FRAMEWORK_API int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// Frees what the framework keeps for the calling thread; AfxWinMain calls it last.
FRAMEWORK_API void AFXAPI AfxWinTerm();

/// Copies a string resource, cut to nMaxBuf characters with the zero. Returns its length, 0 (and "") when there is
/// none.
FRAMEWORK_API int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf = 256);

FRAMEWORK_API int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
FRAMEWORK_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = (UINT)-1);

namespace fx {

/// Answers a message box instead of the user. Parameters and result as those of the system's MessageBox.
using MessageBoxRunner = std::function<int(HWND owner, LPCTSTR text, LPCTSTR caption, UINT type)>;
/// Installs a runner for the process and returns the one that was there; an empty one restores the system's.
FRAMEWORK_API MessageBoxRunner SetMessageBoxRunner(MessageBoxRunner runner);
/// Every message box of the framework comes through here. Any thread.
FRAMEWORK_API int RunMessageBox(HWND owner, LPCTSTR text, LPCTSTR caption, UINT type);

} // namespace fx

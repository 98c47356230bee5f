#include "fx/app.h"

#include "afxadv.h"
#include "afxmsg_.h"
#include "afxpriv.h"
#include "afxres.h"
#include "window/thread_state.h"

#include <clocale>
#include <utility>

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
ON_UPDATE_COMMAND_UI(ID_FILE_MRU_FILE1, &CWinApp::OnUpdateRecentFileMenu)
ON_COMMAND_EX_RANGE(ID_FILE_MRU_FILE1, ID_FILE_MRU_FILE16, &CWinApp::OnOpenRecentFile)
END_MESSAGE_MAP()

namespace {

CWinApp* g_application = nullptr;

std::wstring ProgramPath() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = ::GetModuleFileName(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

} // namespace

CWinApp::CWinApp(LPCTSTR lpszAppName) {
    ASSERT(g_application == nullptr);
    g_application = this;
    fx::CurrentThread().thread = this;
    // The framework did not start this thread: the pseudo handle needs no closing.
    m_hThread = ::GetCurrentThread();
    m_nThreadID = ::GetCurrentThreadId();
    m_bAutoDelete = FALSE;
    if (lpszAppName != nullptr) {
        m_pszAppName = Keep(lpszAppName);
    }
}

CWinApp::~CWinApp() {
    SelectPrinter(nullptr, nullptr);
    DeleteTemplates();
    if (g_application == this) {
        g_application = nullptr;
    }
}

LPCTSTR CWinApp::Keep(std::wstring text) {
    m_texts.push_back(std::make_unique<std::wstring>(std::move(text)));
    return m_texts.back()->c_str();
}

void CWinApp::SetCurrentHandles(HINSTANCE instance, LPTSTR commandLine, int showCommand) {
    m_hInstance = instance;
    m_lpCmdLine = commandLine;
    m_nCmdShow = showCommand;
    const std::wstring path = ProgramPath();
    const std::size_t folderEnd = path.find_last_of(L"\\/");
    const std::wstring file = folderEnd == std::wstring::npos ? path : path.substr(folderEnd + 1);
    const std::wstring name = file.substr(0, file.find_last_of(L'.'));
    const std::wstring folder = folderEnd == std::wstring::npos ? std::wstring() : path.substr(0, folderEnd + 1);
    if (m_pszExeName == nullptr) {
        m_pszExeName = Keep(name);
    }
    if (m_pszAppName == nullptr) {
        CString title;
        m_pszAppName = title.LoadString(AFX_IDS_APP_TITLE) && !title.IsEmpty() ? Keep(title.GetString()) : m_pszExeName;
    }
    if (m_pszHelpFilePath == nullptr) {
        m_pszHelpFilePath = Keep(folder + name + L".hlp");
    }
    if (m_pszProfileName == nullptr) {
        m_pszProfileName = m_pszRegistryKey != nullptr ? m_pszAppName : Keep(name + L".ini");
    }
}

BOOL CWinApp::InitApplication() { return TRUE; }
BOOL CWinApp::InitInstance() { return TRUE; }

int CWinApp::Run() {
    if (m_pMainWnd == nullptr) {
        // Without a window nobody would ever end the loop.
        ::PostQuitMessage(0);
    }
    return CWinThread::Run();
}

int CWinApp::ExitInstance() {
    if (m_recentFiles) {
        m_recentFiles->WriteList();
    }
    return CWinThread::ExitInstance();
}

BOOL CWinApp::OnIdle(LONG lCount) { return CWinThread::OnIdle(lCount); }
BOOL CWinApp::PreTranslateMessage(MSG* pMsg) { return CWinThread::PreTranslateMessage(pMsg); }
BOOL CWinApp::ProcessMessageFilter(int code, LPMSG lpMsg) { return CWinThread::ProcessMessageFilter(code, lpMsg); }
LRESULT CWinApp::ProcessWndProcException(CException* e, const MSG* pMsg) {
    return CWinThread::ProcessWndProcException(e, pMsg);
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const {
    return ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}
HCURSOR CWinApp::LoadCursor(UINT nIDResource) const { return LoadCursor(MAKEINTRESOURCE(nIDResource)); }
HCURSOR CWinApp::LoadStandardCursor(LPCTSTR lpszCursorName) const { return ::LoadCursor(nullptr, lpszCursorName); }
HCURSOR CWinApp::LoadOEMCursor(UINT nIDCursor) const { return ::LoadCursor(nullptr, MAKEINTRESOURCE(nIDCursor)); }
HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const {
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}
HICON CWinApp::LoadIcon(UINT nIDResource) const { return LoadIcon(MAKEINTRESOURCE(nIDResource)); }
HICON CWinApp::LoadStandardIcon(LPCTSTR lpszIconName) const { return ::LoadIcon(nullptr, lpszIconName); }
HICON CWinApp::LoadOEMIcon(UINT nIDIcon) const { return ::LoadIcon(nullptr, MAKEINTRESOURCE(nIDIcon)); }

void CWinApp::ParseCommandLine(CCommandLineInfo& rCmdInfo) {
    int count = 0;
    LPWSTR* arguments = ::CommandLineToArgvW(::GetCommandLine(), &count);
    if (arguments == nullptr) {
        return;
    }
    for (int index = 1; index < count; ++index) {
        const bool isFlag = arguments[index][0] == L'-' || arguments[index][0] == L'/';
        rCmdInfo.ParseParam(arguments[index] + (isFlag ? 1 : 0), isFlag, index == count - 1);
    }
    ::LocalFree(arguments);
}

void CCommandLineInfo::ParseParam(const TCHAR* pszParam, BOOL bFlag, BOOL bLast) {
    if (!bFlag) {
        // File to print, printer, driver and port follow "pt" in this order.
        CString* const places[] = {&m_strFileName, &m_strPrinterName, &m_strDriverName, &m_strPortName};
        for (CString* place : places) {
            if (place->IsEmpty()) {
                *place = pszParam;
                break;
            }
            if (m_nShellCommand != FilePrintTo) {
                break;
            }
        }
    } else {
        struct Flag {
            LPCTSTR name;
            ShellCommand command;
        };
        static constexpr Flag flags[] = {
            {L"pt", FilePrintTo},           {L"p", FilePrint},           {L"dde", FileDDE},
            {L"Register", AppRegister},     {L"Regserver", AppRegister}, {L"Unregister", AppUnregister},
            {L"Unregserver", AppUnregister}};
        for (const Flag& flag : flags) {
            if (::lstrcmpi(pszParam, flag.name) == 0) {
                m_nShellCommand = flag.command;
                m_bShowSplash = FALSE;
            }
        }
        if (::lstrcmpi(pszParam, L"Embedding") == 0) {
            m_bRunEmbedded = TRUE;
            m_bShowSplash = FALSE;
        } else if (::lstrcmpi(pszParam, L"Automation") == 0) {
            m_bRunAutomated = TRUE;
            m_bShowSplash = FALSE;
        }
    }
    if (bLast && m_nShellCommand == FileNew && !m_strFileName.IsEmpty()) {
        m_nShellCommand = FileOpen;
    }
}

void CWinApp::HideApplication() {
    if (m_pMainWnd != nullptr) {
        m_pMainWnd->ShowWindow(SW_HIDE);
        m_pMainWnd->ShowOwnedPopups(FALSE);
        // Not the next in line to be activated by the system.
        m_pMainWnd->SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT) {
    HWND top = nullptr;
    CWnd* owner = CWnd::GetSafeOwner(nullptr, &top);
    const int answer = fx::RunMessageBox(owner->GetSafeHwnd(), lpszPrompt, m_pszAppName, nType);
    if (top != nullptr) {
        ::EnableWindow(top, TRUE);
    }
    return answer;
}

void CWinApp::DoWaitCursor(int nCode) {
    const bool wasWaiting = m_waitCursorCount > 0;
    m_waitCursorCount = std::max(0, m_waitCursorCount + nCode);
    if (m_waitCursorCount > 0) {
        const HCURSOR before = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        if (nCode > 0 && m_waitCursorCount == 1) {
            m_waitCursorRestore = before;
        }
    } else if (wasWaiting) {
        ::SetCursor(m_waitCursorRestore);
    }
}

void CWinApp::WinHelp(DWORD_PTR dwData, UINT nCmd) {
    if (m_pMainWnd != nullptr && m_pszHelpFilePath != nullptr) {
        ::WinHelp(m_pMainWnd->m_hWnd, m_pszHelpFilePath, nCmd, dwData);
    }
}

void CWinApp::OnHelp() {
    const CWnd* const main = AfxGetMainWnd();
    HWND window = ::GetActiveWindow();
    if (window == nullptr) {
        window = main->GetSafeHwnd();
    }
    // A child's parent, a pop-up's owner.
    for (; window != nullptr; window = ::GetParent(window)) {
        if (::SendMessage(window, WM_COMMANDHELP, 0, 0) != 0) {
            return;
        }
    }
    if (main->GetSafeHwnd() != nullptr) {
        ::SendMessage(main->m_hWnd, WM_COMMAND, ID_DEFAULT_HELP, 0);
    }
}

void CWinApp::OnHelpIndex() { WinHelp(0, HELP_INDEX); }
void CWinApp::OnHelpFinder() { WinHelp(0, HELP_FINDER); }
void CWinApp::OnHelpUsing() { WinHelp(0, HELP_HELPONHELP); }

void CWinApp::OnAppExit() {
    if (m_pMainWnd != nullptr) {
        // The same way as the system menu: the window may refuse.
        m_pMainWnd->SendMessage(WM_CLOSE);
    }
}

CWinApp* AFXAPI AfxGetApp() { return g_application; }

CWnd* AFXAPI AfxGetMainWnd() {
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? thread->GetMainWnd() : nullptr;
}

LPCTSTR AFXAPI AfxGetAppName() { return g_application != nullptr ? g_application->m_pszAppName : nullptr; }

int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf) {
    // Strings lie in blocks of 16.
    const LPCTSTR block = MAKEINTRESOURCE((nIDS >> 4) + 1);
    const int length = ::LoadString(AfxFindResourceHandle(block, RT_STRING), nIDS, lpszBuf, static_cast<int>(nMaxBuf));
    if (length == 0 && nMaxBuf > 0) {
        lpszBuf[0] = 0;
    }
    return length;
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow) {
    // A missing disk is an error code, not a box of the system.
    ::SetErrorMode(::SetErrorMode(0) | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    if (CWinApp* app = AfxGetApp()) {
        app->SetCurrentHandles(hInstance, lpCmdLine, nCmdShow);
        fx::CurrentThread().thread = app;
    }
    fx::CurrentThread().messageFilter = std::make_unique<fx::MessageFilterHook>();
    return TRUE;
}

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
    int result = -1;
    CWinApp* app = AfxGetApp();
    if (AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow) && app != nullptr && app->InitApplication()) {
        if (app->InitInstance()) {
            result = app->Run();
        } else {
            if (app->m_pMainWnd != nullptr) {
                app->m_pMainWnd->DestroyWindow();
            }
            result = app->ExitInstance();
        }
    }
    AfxWinTerm();
    return result;
}

void AFXAPI AfxWinTerm() {
    fx::CurrentThread().messageFilter.reset();
    CWnd::DeleteTempMap();
    CMenu::DeleteTempMap();
    fx::EndOle(fx::CurrentThread());
}

void CWinApp::SelectPrinter(HANDLE hDevNames, HANDLE hDevMode, BOOL bFreeOld) {
    const HGLOBAL names = std::exchange(m_hDevNames, hDevNames), settings = std::exchange(m_hDevMode, hDevMode);
    if (bFreeOld) {
        for (const auto& [before, now] : {std::pair(names, m_hDevNames), std::pair(settings, m_hDevMode)}) {
            if (before != nullptr && before != now) {
                ::GlobalFree(before);
            }
        }
    }
}

BOOL AFXAPI AfxInitRichEdit2() {
    static const HMODULE s_library = ::LoadLibraryW(L"riched20.dll");
    return s_library != nullptr;
}

BOOL AFXAPI AfxInitRichEdit() {
    static const HMODULE s_library = ::LoadLibraryW(L"riched32.dll");
    return s_library != nullptr;
}

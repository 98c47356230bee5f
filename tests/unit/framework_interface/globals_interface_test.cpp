#include "interface.h"

#include "afx.h"
#include "afxcontrolbars.h"
#include "afxdd_.h"
#include "afxpriv.h"
#include "afxtempl.h"
#include "afxtooltipmanager.h"
#include "afxwin.h"

#include <concepts>
#include <memory>
#include <set>

namespace interface_check {
/// A class that a library of a host's exports.
class AFX_EXT_CLASS Exported {};
} // namespace interface_check

namespace {

/// A free function with its type.
#define FUNCTION(Type, Name) EXPECT_NE(static_cast<std::add_pointer_t<Type>>(&Name), nullptr) << #Name
#define FUNCTION_CALL(Result, ...) static_assert(std::is_same_v<decltype(__VA_ARGS__), Result>)

TEST(Globals, ApplicationAndResources) {
    FUNCTION(HINSTANCE(LPCTSTR, LPCTSTR), AfxFindResourceHandle);
    FUNCTION(CWinApp * (), AfxGetApp);
    FUNCTION(LPCTSTR(), AfxGetAppName);
    FUNCTION(HINSTANCE(), AfxGetInstanceHandle);
    FUNCTION(CWnd * (), AfxGetMainWnd);
    FUNCTION(HINSTANCE(), AfxGetResourceHandle);
    FUNCTION(CWinThread * (), AfxGetThread);
    FUNCTION(BOOL(WNDCLASS*), AfxRegisterClass);
    FUNCTION(LPCTSTR(UINT, HCURSOR, HBRUSH, HICON), AfxRegisterWndClass);
    FUNCTION_CALL(LPCTSTR, AfxRegisterWndClass(0u));
    FUNCTION(void(HINSTANCE), AfxSetResourceHandle);
    FUNCTION(BOOL(HINSTANCE, HINSTANCE, LPTSTR, int), AfxWinInit);
    FUNCTION(int(LPCTSTR, UINT, UINT), AfxMessageBox);
    FUNCTION(int(UINT, UINT, UINT), AfxMessageBox);
    FUNCTION_CALL(int, AfxMessageBox(L""));
    FUNCTION_CALL(int, AfxMessageBox(1u));
    FUNCTION(BOOL(CString&, LPCTSTR, int, TCHAR), AfxExtractSubString);
    FUNCTION(void(CString&, UINT, LPCTSTR), AfxFormatString1);
    FUNCTION(void(CString&, UINT, LPCTSTR, LPCTSTR), AfxFormatString2);
    FUNCTION(AFX_MODULE_STATE * (), AfxGetStaticModuleState);
    FUNCTION(BOOL(AFX_EXTENSION_MODULE&, HMODULE), AfxInitExtensionModule);
    FUNCTION(void(AFX_EXTENSION_MODULE&, BOOL), AfxTermExtensionModule);
    FUNCTION(void(UINT, BOOL), AfxEndThread);
    FUNCTION_CALL(CWinThread*, AfxBeginThread(static_cast<AFX_THREADPROC>(nullptr), static_cast<void*>(nullptr)));
    FUNCTION_CALL(CWinThread*, AfxBeginThread(RUNTIME_CLASS(CWinThread)));
    static_assert(std::is_same_v<decltype(afxContextMenuManager), CContextMenuManager*>);
    static_assert(std::is_same_v<decltype(afxKeyboardManager), CKeyboardManager*>);
}

TEST(Globals, ExceptionsAndDiagnostics) {
    FUNCTION(void(int, LPCTSTR), AfxThrowArchiveException);
    FUNCTION(void(int, LONG, LPCTSTR), AfxThrowFileException);
    FUNCTION(void(), AfxThrowInvalidArgException);
    FUNCTION(void(), AfxThrowMemoryException);
    FUNCTION(void(), AfxThrowNotSupportedException);
    FUNCTION(void(), AfxThrowResourceException);
    FUNCTION(void(), AfxThrowUserException);
    FUNCTION(void(), AfxAbort);
    FUNCTION(void(const CObject*), AfxDump);
    FUNCTION(BOOL(const void*, UINT_PTR, BOOL), AfxIsValidAddress);
    FUNCTION(void(void (*)(const CRuntimeClass*, void*), void*), AfxDoForAllClasses);
    static_assert(std::is_same_v<decltype(afxDump), CDumpContext>);
}

TEST(Globals, DialogDataExchange) {
    FUNCTION(void(CDataExchange*, int, int&), DDX_CBIndex);
    FUNCTION(void(CDataExchange*, int, CString&), DDX_CBString);
    FUNCTION(void(CDataExchange*, int, int&), DDX_Check);
    FUNCTION(void(CDataExchange*, int, CWnd&), DDX_Control);
    FUNCTION(void(CDataExchange*, int, int&), DDX_LBIndex);
    FUNCTION(void(CDataExchange*, int, CString&), DDX_LBString);
    FUNCTION(void(CDataExchange*, int, int&), DDX_Radio);
    FUNCTION(void(CDataExchange*, int, int&), DDX_Scroll);
    FUNCTION(void(CDataExchange*, int, int&), DDX_Slider);
    FUNCTION(void(CDataExchange*, int, int&), DDX_Text);
    FUNCTION(void(CDataExchange*, int, CString&), DDX_Text);
    FUNCTION(void(CDataExchange*, const CString&, int), DDV_MaxChars);
    FUNCTION(void(CDataExchange*, int, int, int), DDV_MinMaxInt);
    FUNCTION(void(CDataExchange*, UINT, UINT, UINT), DDV_MinMaxUInt);
    FUNCTION(void(CDataExchange*, const double&, double, double), DDV_MinMaxDouble);
}

TEST(Globals, CollectionHelpersCanBeSpecialised) {
    FUNCTION(BOOL(const int*, const long*), (CompareElements<int, long>));
    FUNCTION(void(int*, const int*, INT_PTR), CopyElements<int>);
    FUNCTION(void(CDumpContext&, const int*, INT_PTR), DumpElements<int>);
    FUNCTION(void(CArchive&, int*, INT_PTR), SerializeElements<int>);
    FUNCTION(UINT(int), HashKey<int>);
}

// Every macro of classes and message maps in one class.
class Described : public CWnd {
    DECLARE_DYNCREATE(Described)
public:
    afx_msg void OnCommand1() {}
    afx_msg BOOL OnCommandEx(UINT) { return TRUE; }
    afx_msg void OnRange(UINT) {}
    afx_msg void OnUpdate(CCmdUI*) {}
    afx_msg LRESULT OnMessage(WPARAM, LPARAM) { return 0; }
    afx_msg void OnNotify1(NMHDR*, LRESULT*) {}
    afx_msg BOOL OnNotifyEx(UINT, NMHDR*, LRESULT*) { return TRUE; }
    afx_msg void OnNotifyRange(UINT, NMHDR*, LRESULT*) {}
    DECLARE_MESSAGE_MAP()
};
class Stored : public CObject {
    DECLARE_SERIAL(Stored)
};
class Named : public CObject {
    DECLARE_DYNAMIC(Named)
};
class OwnThread : public CWinThread {
public:
    afx_msg void OnThread(WPARAM, LPARAM) {}
    DECLARE_MESSAGE_MAP()
};
template <class Base>
class Templated : public Base {
public:
    afx_msg void OnTemplated() {}
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(Described, CWnd)
IMPLEMENT_SERIAL(Stored, CObject, 1)
IMPLEMENT_DYNAMIC(Named, CObject)

const UINT g_registered = ::RegisterWindowMessage(L"interface check");

BEGIN_MESSAGE_MAP(Described, CWnd)
ON_COMMAND(1, &Described::OnCommand1)
ON_COMMAND_EX(2, &Described::OnCommandEx)
ON_COMMAND_RANGE(3, 4, &Described::OnRange)
ON_CONTROL(BN_CLICKED, 5, &Described::OnCommand1)
ON_CONTROL_RANGE(BN_CLICKED, 6, 7, &Described::OnRange)
ON_CBN_DROPDOWN(8, &Described::OnCommand1)
ON_UPDATE_COMMAND_UI(9, &Described::OnUpdate)
ON_UPDATE_COMMAND_UI_RANGE(10, 11, &Described::OnUpdate)
ON_MESSAGE(WM_USER, &Described::OnMessage)
ON_REGISTERED_MESSAGE(g_registered, &Described::OnMessage)
ON_NOTIFY(NM_CLICK, 12, &Described::OnNotify1)
ON_NOTIFY_EX(NM_CLICK, 13, &Described::OnNotifyEx)
ON_NOTIFY_RANGE(NM_CLICK, 14, 15, &Described::OnNotifyRange)
ON_NOTIFY_EX_RANGE(NM_CLICK, 16, 17, &Described::OnNotifyEx)
ON_CONTROL_REFLECT(BN_CLICKED, &Described::OnCommand1)
ON_NOTIFY_REFLECT(NM_CLICK, &Described::OnNotify1)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(OwnThread, CWinThread)
ON_THREAD_MESSAGE(WM_USER, &OwnThread::OnThread)
ON_REGISTERED_THREAD_MESSAGE(g_registered, &OwnThread::OnThread)
END_MESSAGE_MAP()

BEGIN_TEMPLATE_MESSAGE_MAP(Templated, Base, Base)
ON_COMMAND(1, &Templated::OnTemplated)
END_MESSAGE_MAP()

TEST(Globals, ALibraryMayUseItsOwnResourcesForATime) {
    const HINSTANCE before = AfxGetResourceHandle();
    const HINSTANCE other = ::GetModuleHandle(L"kernel32");
    AfxSetResourceHandle(other);
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState())
        EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandle(nullptr));
    }
    EXPECT_EQ(AfxGetResourceHandle(), other);
    AfxSetResourceHandle(before);
    const std::unique_ptr<interface_check::Exported> made(DEBUG_NEW interface_check::Exported);
    EXPECT_NE(made, nullptr);
}

TEST(Globals, ClassMacrosDescribeTheClass) {
    EXPECT_STREQ(RUNTIME_CLASS(Described)->m_lpszClassName, "Described");
    Named named;
    CObject* const object = &named;
    EXPECT_EQ(DYNAMIC_DOWNCAST(Named, object), &named);
    EXPECT_EQ(DYNAMIC_DOWNCAST(Stored, object), nullptr);
    EXPECT_EQ(STATIC_DOWNCAST(Named, object), &named);
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(Stored)->CreateObject());
    EXPECT_TRUE(made->IsSerializable());
    Templated<CWnd> window;
    EXPECT_TRUE(window.IsKindOf(RUNTIME_CLASS(CWnd)));
    OwnThread thread;
    EXPECT_TRUE(thread.IsKindOf(RUNTIME_CLASS(CWinThread)));
}

/// An archive takes the value and gives it back.
template <typename T>
constexpr bool isArchived = requires(CArchive& archive, T value) {
    { archive << value } -> std::same_as<CArchive&>;
    { archive >> value } -> std::same_as<CArchive&>;
};

TEST(Globals, ArchivesTakeTheDocumentedTypes) {
    static_assert(isArchived<BYTE> && isArchived<WORD> && isArchived<LONG> && isArchived<DWORD>);
    static_assert(isArchived<float> && isArchived<double> && isArchived<int> && isArchived<short>);
    static_assert(isArchived<char> && isArchived<wchar_t> && isArchived<unsigned> && isArchived<bool>);
    static_assert(isArchived<ULONGLONG> && isArchived<LONGLONG> && isArchived<CString>);
    static_assert(isArchived<POINT> && isArchived<SIZE> && isArchived<RECT> && isArchived<CObject*>);
}

TEST(Globals, SerialClassesComeBackAsTheirClass) {
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        Stored stored;
        archive << &stored;
    }
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    Stored* read = nullptr;
    archive >> read;
    const std::unique_ptr<Stored> owner(read);
    EXPECT_NE(read, nullptr);
}

TEST(Globals, CheckMacrosTakeAnExpression) {
    ASSERT(true);
    VERIFY(1 + 1 == 2);
    Named named;
    ASSERT_VALID(&named);
    ASSERT_KINDOF(Named, &named);
    ENSURE(true);
    ENSURE_VALID(&named);
    TRACE("%d\n", 1);
    int runs = 0;
    DEBUG_ONLY(++runs);
    EXPECT_LE(runs, 1);
}

TEST(Globals, ExceptionMacrosCatchByClass) {
    int caught = 0;
    TRY { AfxThrowUserException(); }
    CATCH(CMemoryException, memory) { caught = 1; }
    AND_CATCH(CUserException, user) { caught = 2; }
    AND_CATCH_ALL(other) { caught = 3; }
    END_CATCH_ALL
    EXPECT_EQ(caught, 2);
    TRY { AfxThrowResourceException(); }
    CATCH_ALL(any) { caught = 4; }
    END_CATCH_ALL
    EXPECT_EQ(caught, 4);
}

TEST(Globals, TooltipTypesAreBits) {
    EXPECT_EQ(AFX_TOOLTIP_TYPE_DEFAULT, 0x0001);
    EXPECT_EQ(AFX_TOOLTIP_TYPE_TOOLBAR, 0x0002);
    EXPECT_EQ(AFX_TOOLTIP_TYPE_TAB, 0x0004);
    EXPECT_EQ(AFX_TOOLTIP_TYPE_MINIFRAME, 0x0008);
    EXPECT_EQ(AFX_TOOLTIP_TYPE_DOCKBAR, 0x0010);
    EXPECT_EQ(AFX_TOOLTIP_TYPE_EDIT, 0x0020);
    EXPECT_EQ(AFX_TOOLTIP_TYPE_BUTTON, 0x0040);
    EXPECT_EQ(AFX_TOOLTIP_TYPE_TOOLBOX, 0x0080);
    EXPECT_EQ(AFX_TOOLTIP_TYPE_ALL, 0xFFFF);
}

TEST(Globals, FrameworkMessagesAreRegisteredAndDistinct) {
    const UINT messages[] = {AFX_WM_ACCGETOBJECT,
                             AFX_WM_ACCGETSTATE,
                             AFX_WM_CHANGE_ACTIVE_TAB,
                             AFX_WM_CHANGE_CURRENT_FOLDER,
                             AFX_WM_CHANGEVISUALMANAGER,
                             AFX_WM_CHANGING_ACTIVE_TAB,
                             AFX_WM_CHECKEMPTYMINIFRAME,
                             AFX_WM_CREATETOOLBAR,
                             AFX_WM_CUSTOMIZEHELP,
                             AFX_WM_CUSTOMIZETOOLBAR,
                             AFX_WM_DELETETOOLBAR,
                             AFX_WM_GETDOCUMENTCOLORS,
                             AFX_WM_GETDRAGBOUNDS,
                             AFX_WM_HIGHLIGHT_RIBBON_LIST_ITEM,
                             AFX_WM_ON_AFTER_SHELL_COMMAND,
                             AFX_WM_ON_BEFORE_SHOW_RIBBON_ITEM_MENU,
                             AFX_WM_ON_CANCELTABMOVE,
                             AFX_WM_ON_CHANGE_RIBBON_CATEGORY,
                             AFX_WM_ON_CLOSEPOPUPWINDOW,
                             AFX_WM_ON_DRAGCOMPLETE,
                             AFX_WM_ON_GET_TAB_TOOLTIP,
                             AFX_WM_ON_HSCROLL,
                             AFX_WM_ON_MOVE_TAB,
                             AFX_WM_ON_MOVETABCOMPLETE,
                             AFX_WM_ON_MOVETOTABGROUP,
                             AFX_WM_ON_PRESS_CLOSE_BUTTON,
                             AFX_WM_ON_RENAME_TAB,
                             AFX_WM_ON_RIBBON_CUSTOMIZE,
                             AFX_WM_POSTSETPREVIEWFRAME,
                             AFX_WM_PROPERTY_CHANGED,
                             AFX_WM_RESETCONTEXTMENU,
                             AFX_WM_RESETKEYBOARD,
                             AFX_WM_RESETMENU,
                             AFX_WM_RESETPROMPT,
                             AFX_WM_RESETTOOLBAR,
                             AFX_WM_SHOWREGULARMENU,
                             AFX_WM_TOOLBARMENU,
                             AFX_WM_UPDATETOOLTIPS,
                             AFX_WM_WINDOW_HELP};
    std::set<UINT> seen;
    for (const UINT message : messages) {
        // The range of registered messages.
        EXPECT_GE(message, 0xC000u);
        EXPECT_LE(message, 0xFFFFu);
        EXPECT_TRUE(seen.insert(message).second);
    }
}

} // namespace

// The application's commands for files.
#include "plans.h"

#include <shlobj.h>

using namespace std::string_view_literals;

namespace {

class Opening : public DocumentTest {
protected:
    std::wstring Written(const char* name) {
        Plan plan;
        plan.m_bAutoDelete = FALSE;
        plan.m_text = name;
        const std::wstring path = (m_folder.Path() / name).wstring();
        EXPECT_TRUE(plan.OnSaveDocument(path.c_str()));
        return path;
    }
};

TEST_F(Opening, TheExtensionChoosesTheKind) {
    MakeMain();
    const CDocument* const note = g_application.OpenDocumentFile(Written("a.note").c_str());
    ASSERT_NE(note, nullptr);
    EXPECT_EQ(note->GetDocTemplate(), &Multi());
    const CDocument* const plan = g_application.OpenDocumentFile(Written("b.PLAN").c_str());
    ASSERT_NE(plan, nullptr);
    EXPECT_EQ(plan->GetDocTemplate(), &Single());
}

TEST_F(Opening, AnUnknownExtensionIsTriedWithTheFirstKind) {
    const CDocument* const document = g_application.OpenDocumentFile(Written("a.txt").c_str());
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->GetDocTemplate(), &Single());
}

TEST_F(Opening, AFileThatIsOpenComesToTheFront) {
    MakeMain();
    const std::wstring first = Written("a.note");
    CDocument* const document = g_application.OpenDocumentFile(first.c_str());
    g_application.OpenDocumentFile(Written("b.note").c_str());
    EXPECT_EQ(g_application.OpenDocumentFile(first.c_str()), document);
    EXPECT_EQ(m_main->MDIGetActive(), ViewOf(*document)->GetParentFrame());
    EXPECT_EQ(Plan::s_count, 2);
}

TEST_F(Opening, AnOpenedFileIsTheFirstOfTheRecentOnesUnlessItIsNotWanted) {
    MakeMain();
    g_application.LoadRecentFiles();
    const std::wstring first = Written("a.note");
    g_application.OpenDocumentFile(first.c_str());
    g_application.OpenDocumentFile(Written("b.note").c_str(), FALSE);
    const CString recent = (*g_application.GetRecentFileList())[0];
    EXPECT_EQ(recent.Right(6), L"a.note");
}

TEST_F(Opening, ARecentFileOpensByItsCommandAndOneThatIsGoneLeavesTheList) {
    MakeMain();
    g_application.LoadRecentFiles();
    CRecentFileList& recent = *g_application.GetRecentFileList();
    while (!recent[0].IsEmpty()) {
        recent.Remove(0);
    }
    recent.Add((m_folder.Path() / "gone.note").c_str());
    recent.Add(Written("a.note").c_str());
    m_main->SendMessage(WM_COMMAND, ID_FILE_MRU_FILE1);
    EXPECT_EQ(Plan::s_count, 1);
    CountingMessageBox box;
    m_main->SendMessage(WM_COMMAND, ID_FILE_MRU_FILE2);
    EXPECT_EQ(box.Count(), 1);
    EXPECT_EQ(Plan::s_count, 1);
    EXPECT_TRUE(recent[1].IsEmpty());
}

TEST_F(Opening, OpenAsksForAFileOfAnyKind) {
    MakeMain();
    const AnsweredPrompt prompt(Written("a.note"));
    m_main->SendMessage(WM_COMMAND, ID_FILE_OPEN);
    EXPECT_TRUE(prompt.m_isOpening);
    EXPECT_EQ(prompt.m_filter,
              std::wstring(L"Plans (*.plan)\0*.plan\0Notes (*.note)\0*.note\0All Files (*.*)\0*.*\0"sv));
    EXPECT_EQ(Plan::s_count, 1);
}

TEST_F(Opening, TheCommandLinesFileIsOpened) {
    CCommandLineInfo line;
    line.m_nShellCommand = CCommandLineInfo::FileOpen;
    line.m_strFileName = Written("a.plan").c_str();
    EXPECT_TRUE(g_application.ProcessShellCommand(line));
    EXPECT_EQ(Plan::s_count, 1);
    ASSERT_NE(g_application.m_pMainWnd, nullptr);
}

TEST_F(Opening, TheCommandLinesFileThatIsNotThereEndsTheStart) {
    CCommandLineInfo line;
    line.m_nShellCommand = CCommandLineInfo::FileOpen;
    line.m_strFileName = L"Z:\\no\\such.plan";
    CountingMessageBox box;
    EXPECT_FALSE(g_application.ProcessShellCommand(line));
    EXPECT_EQ(box.Count(), 1);
}

TEST_F(Opening, WithSeveralKindsTheUserChoosesAndMayLeaveIt) {
    // The dialog is modal: a timer answers it.
    static int s_answer = IDCANCEL;
    static CString s_title, s_ok;
    const auto answer = [](HWND, UINT, UINT_PTR timer, DWORD) {
        const HWND dialog = ::GetLastActivePopup(::GetActiveWindow());
        if (dialog != nullptr && ::GetDlgItem(dialog, IDOK) != nullptr) {
            ::KillTimer(nullptr, timer);
            CWnd::FromHandle(dialog)->GetWindowText(s_title);
            CWnd::FromHandle(dialog)->GetDlgItemText(IDOK, s_ok);
            ::SendMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(s_answer), 0);
        }
    };
    MakeMain();
    m_main->ShowWindow(SW_SHOW);
    m_main->SetActiveWindow();
    for (const auto& [button, documents] : {std::pair{IDCANCEL, 0}, std::pair{IDOK, 1}}) {
        s_answer = button;
        ::SetTimer(nullptr, 0, 20, answer);
        m_main->SendMessage(WM_COMMAND, ID_FILE_NEW);
        EXPECT_EQ(Plan::s_count, documents);
        EXPECT_EQ(s_title, L"New");
        EXPECT_EQ(s_ok, L"OK");
    }
}

TEST_F(Opening, ACommandLineForTheShellHasNothingToDo) {
    for (const auto& [command, goesOn] :
         {std::pair{CCommandLineInfo::FileNothing, TRUE}, std::pair{CCommandLineInfo::FileDDE, TRUE},
          std::pair{CCommandLineInfo::AppRegister, FALSE}, std::pair{CCommandLineInfo::AppUnregister, FALSE}}) {
        CCommandLineInfo line;
        line.m_nShellCommand = command;
        const int show = g_application.m_nCmdShow;
        EXPECT_EQ(g_application.ProcessShellCommand(line), goesOn) << command;
        g_application.m_nCmdShow = show;
    }
    EXPECT_EQ(Plan::s_count, 0);
}

// As the shell hands them over.
HDROP Dropped(const std::vector<std::wstring>& paths) {
    std::wstring list;
    for (const std::wstring& path : paths) {
        list += path + L'\0';
    }
    list += L'\0';
    const HGLOBAL block =
        ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(DROPFILES) + list.size() * sizeof(wchar_t));
    auto* const files = static_cast<DROPFILES*>(::GlobalLock(block));
    files->pFiles = sizeof(DROPFILES);
    files->fWide = TRUE;
    list.copy(reinterpret_cast<wchar_t*>(files + 1), list.size());
    ::GlobalUnlock(block);
    return static_cast<HDROP>(block);
}

TEST_F(Opening, EachFileThatIsDroppedOnAFrameIsOpened) {
    MakeMain();
    const HDROP files = Dropped({Written("a.note"), Written("b.note")});
    m_main->SendMessage(WM_DROPFILES, reinterpret_cast<WPARAM>(files));
    EXPECT_EQ(Plan::s_count, 2);
    EXPECT_EQ(::GlobalSize(files), 0u) << "the frame frees what it was given";
}

} // namespace

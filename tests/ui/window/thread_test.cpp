#include "tests/support/message_pump.h"
#include "tests/support/ui_test.h"
#include <fx/scoped_change.h>

#include <atomic>

namespace {

constexpr UINT Add = WM_APP + 1;

std::atomic<int> g_sum = 0;
std::atomic<int> g_exits = 0;

class Adder : public CWinThread {
    DECLARE_DYNCREATE(Adder)
public:
    BOOL InitInstance() override {
        // Makes the thread's queue before anybody posts to it.
        MSG message;
        ::PeekMessage(&message, nullptr, WM_USER, WM_USER, PM_NOREMOVE);
        s_isReady = true;
        return TRUE;
    }
    int ExitInstance() override {
        ++g_exits;
        return CWinThread::ExitInstance();
    }
    static inline std::atomic<bool> s_isReady = false;

protected:
    afx_msg void OnAdd(WPARAM wParam, LPARAM lParam) { g_sum += static_cast<int>(wParam) + static_cast<int>(lParam); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(Adder, CWinThread)
BEGIN_MESSAGE_MAP(Adder, CWinThread)
ON_THREAD_MESSAGE(Add, &Adder::OnAdd)
END_MESSAGE_MAP()

TEST(Threads, AUserInterfaceThreadHandlesThreadMessagesUntilItQuits) {
    CWinThread* thread = AfxBeginThread(RUNTIME_CLASS(Adder), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    thread->m_bAutoDelete = FALSE;
    thread->ResumeThread();
    ASSERT_TRUE(PumpUntil([] { return Adder::s_isReady.load(); }));
    EXPECT_TRUE(thread->PostThreadMessage(Add, 3, 4));
    EXPECT_TRUE(thread->PostThreadMessage(Add, 10, 0));
    EXPECT_TRUE(thread->PostThreadMessage(WM_QUIT, 6, 0));
    ::WaitForSingleObject(thread->m_hThread, INFINITE);
    DWORD code = 0;
    ::GetExitCodeThread(thread->m_hThread, &code);
    EXPECT_EQ(code, 6u);
    EXPECT_EQ(g_sum, 17);
    EXPECT_EQ(g_exits, 1);
    delete thread;
}

TEST(Threads, AWorkerGetsItsParameterAndItsOwnThreadObject) {
    struct Result {
        CWinThread* thread = nullptr;
        std::atomic<bool> isDone = false;
    } result;
    CWinThread* worker = AfxBeginThread(
        [](LPVOID data) -> UINT {
            auto* found = static_cast<Result*>(data);
            found->thread = AfxGetThread();
            found->isDone = true;
            return 0;
        },
        &result);
    EXPECT_NE(worker, nullptr);
    ASSERT_TRUE(PumpUntil([&] { return result.isDone.load(); }));
    EXPECT_EQ(result.thread, worker);
    EXPECT_EQ(AfxGetThread(), AfxGetApp());
}

TEST(Threads, DestroyingTheMainWindowEndsTheLoop) {
    fx::ScopedChange<CWnd*> keep(AfxGetApp()->m_pMainWnd, nullptr);
    TestWindow window;
    AfxGetApp()->m_pMainWnd = &window;
    EXPECT_EQ(AfxGetMainWnd(), &window);
    window.PostMessage(WM_CLOSE);
    EXPECT_EQ(AfxGetApp()->Run(), 0);
    EXPECT_EQ(AfxGetApp()->m_pMainWnd, nullptr);
    EXPECT_EQ(window.m_hWnd, nullptr);
}

TEST(Threads, AnApplicationWithoutAWindowEndsAtOnce) { EXPECT_EQ(AfxGetApp()->Run(), 0); }

TEST(Threads, TheQuitCodeIsTheProgramsResult) {
    TestWindow window;
    fx::ScopedChange<CWnd*> main(AfxGetApp()->m_pMainWnd, &window);
    ::PostQuitMessage(23);
    EXPECT_EQ(AfxGetApp()->Run(), 23);
}

} // namespace

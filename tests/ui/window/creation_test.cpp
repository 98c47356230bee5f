#include "tests/support/ui_test.h"

namespace {

/// Keeps the messages that it gets from the first one on.
class Recorder : public CWnd {
public:
    explicit Recorder(int createResult = 0) : m_createResult(createResult) {}
    ~Recorder() override { DestroyWindow(); }

    BOOL Make(CWnd* parent, DWORD style) {
        return CreateEx(0, nullptr, L"recorder", style, 10, 10, 100, 80, parent->GetSafeHwnd(), nullptr);
    }

    std::vector<UINT> m_messages;
    std::vector<HWND> m_handles;
    int m_postNcDestroyCount = 0;
    HWND m_handleAtTheEnd = reinterpret_cast<HWND>(1);
    bool m_refusesBefore = false;
    int m_createResult;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override { return !m_refusesBefore && CWnd::PreCreateWindow(cs); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        m_messages.push_back(message);
        m_handles.push_back(m_hWnd);
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override {
        ++m_postNcDestroyCount;
        m_handleAtTheEnd = m_hWnd;
    }
    afx_msg int OnCreate(LPCREATESTRUCT create) {
        return m_createResult != 0 ? m_createResult : CWnd::OnCreate(create);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Recorder, CWnd)
ON_WM_CREATE()
END_MESSAGE_MAP()

TEST(WindowCreation, TheObjectGetsTheVeryFirstMessagesWithItsHandleSet) {
    Recorder window;
    ASSERT_TRUE(window.Make(nullptr, WS_OVERLAPPEDWINDOW));
    ASSERT_GE(window.m_messages.size(), 3u);
    EXPECT_EQ(window.m_messages[0], static_cast<UINT>(WM_GETMINMAXINFO));
    EXPECT_EQ(window.m_messages[1], static_cast<UINT>(WM_NCCREATE));
    for (const HWND handle : window.m_handles) {
        EXPECT_EQ(handle, window.m_hWnd);
    }
}

TEST(WindowCreation, AWindowMadeInsideOnCreateDoesNotTakeTheOuterObject) {
    class Outer : public Recorder {
    public:
        Recorder m_inner;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_NCCREATE) {
                EXPECT_TRUE(m_inner.Make(nullptr, WS_POPUP));
            }
            return Recorder::WindowProc(message, wParam, lParam);
        }
    };
    Outer outer;
    ASSERT_TRUE(outer.Make(nullptr, WS_OVERLAPPEDWINDOW));
    EXPECT_NE(outer.m_hWnd, outer.m_inner.m_hWnd);
    EXPECT_EQ(CWnd::FromHandlePermanent(outer.m_hWnd), &outer);
    EXPECT_EQ(CWnd::FromHandlePermanent(outer.m_inner.m_hWnd), &outer.m_inner);
}

TEST(WindowCreation, ARefusingPreCreateWindowEndsWithPostNcDestroy) {
    Recorder window;
    window.m_refusesBefore = true;
    EXPECT_FALSE(window.Make(nullptr, WS_OVERLAPPEDWINDOW));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.m_postNcDestroyCount, 1);
}

TEST(WindowCreation, AFailingOnCreateEndsWithPostNcDestroyOnce) {
    Recorder window(-1);
    EXPECT_FALSE(window.Make(nullptr, WS_OVERLAPPEDWINDOW));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.m_postNcDestroyCount, 1);
}

TEST(WindowCreation, PostNcDestroyComesWhenTheHandleIsGone) {
    Recorder window;
    ASSERT_TRUE(window.Make(nullptr, WS_OVERLAPPEDWINDOW));
    const HWND handle = window.m_hWnd;
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(window.m_postNcDestroyCount, 1);
    EXPECT_EQ(window.m_handleAtTheEnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    EXPECT_FALSE(window.DestroyWindow());
}

TEST(WindowCreation, AnObjectMayDeleteItselfInPostNcDestroy) {
    static bool s_isDeleted = false;
    class Heap : public CWnd {
    public:
        ~Heap() override { s_isDeleted = true; }

    protected:
        void PostNcDestroy() override { delete this; }
    };
    auto* window = new Heap;
    ASSERT_TRUE(window->CreateEx(0, nullptr, L"heap", WS_OVERLAPPEDWINDOW, 0, 0, 50, 50, nullptr, nullptr));
    const HWND handle = window->m_hWnd;
    EXPECT_TRUE(window->DestroyWindow());
    EXPECT_TRUE(s_isDeleted);
    EXPECT_FALSE(::IsWindow(handle));
}

TEST(WindowCreation, DestroyingTheParentEndsTheChildrensObjects) {
    Recorder child;
    HWND childHandle = nullptr;
    {
        TestWindow parent;
        ASSERT_TRUE(child.Make(&parent, WS_CHILD));
        childHandle = child.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(childHandle));
    EXPECT_EQ(child.m_hWnd, nullptr);
    EXPECT_EQ(child.m_postNcDestroyCount, 1);
}

TEST(WindowCreation, TheDestructorDestroysTheWindow) {
    HWND handle = nullptr;
    {
        CWnd window;
        ASSERT_TRUE(window.CreateEx(0, nullptr, L"w", WS_OVERLAPPEDWINDOW, 0, 0, 50, 50, nullptr, nullptr));
        handle = window.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(handle));
}

TEST(WindowCreation, CreateMakesAChildWithTheId) {
    TestWindow parent;
    CWnd child;
    ASSERT_TRUE(child.Create(L"BUTTON", L"press", WS_VISIBLE, CRect(5, 6, 55, 26), &parent, 77));
    EXPECT_EQ(child.GetDlgCtrlID(), 77);
    EXPECT_EQ(child.GetParent(), &parent);
    EXPECT_TRUE(child.GetStyle() & WS_CHILD);
    EXPECT_EQ(parent.GetDlgItem(77), &child);
    CRect rect;
    child.GetWindowRect(&rect);
    parent.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(5, 6, 55, 26));
}

TEST(WindowClasses, EqualPropertiesShareAClassAndOthersDoNot) {
    const HCURSOR arrow = ::LoadCursor(nullptr, IDC_ARROW);
    const std::wstring first = AfxRegisterWndClass(CS_DBLCLKS, arrow);
    EXPECT_EQ(first, AfxRegisterWndClass(CS_DBLCLKS, arrow));
    EXPECT_NE(first, AfxRegisterWndClass(CS_HREDRAW, arrow));
    EXPECT_NE(first, AfxRegisterWndClass(CS_DBLCLKS, arrow, reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1)));
    WNDCLASS found = {};
    EXPECT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), first.c_str(), &found));
    EXPECT_EQ(found.hCursor, arrow);
}

TEST(Creation, AWindowThatCannotBeDestroyedKeepsItsHandle) {
    CWnd* const desktop = CWnd::GetDesktopWindow();
    EXPECT_FALSE(desktop->DestroyWindow());
    EXPECT_EQ(desktop->m_hWnd, ::GetDesktopWindow());
}

} // namespace

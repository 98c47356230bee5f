#include "tests/support/message_pump.h"
#include "tests/support/pointer.h"
#include "tests/support/ui_test.h"

#include "fx/dc.h"

namespace {

const UINT g_registeredMessage = ::RegisterWindowMessage(L"barwright-test-message");
constexpr UINT OwnMessage = WM_APP + 5;
constexpr UINT CommandDone = 100;
constexpr UINT CommandDisabled = 101;
constexpr UINT CommandThrows = 102;
constexpr UINT CommandCancels = 103;

class Window : public TestWindow {
public:
    int m_done = 0;
    int m_disabled = 0;
    std::vector<LPARAM> m_own;
    CPoint m_move;
    CSize m_size;
    bool m_paintThrows = false;
    int m_paints = 0;
    BOOL m_wheelAnswer = TRUE;
    int m_wheels = 0;
    int m_otherXButtons = 0;

protected:
    afx_msg LRESULT OnOwnMessage(WPARAM wParam, LPARAM lParam) {
        m_own.push_back(lParam);
        return static_cast<LRESULT>(wParam) + 1;
    }
    afx_msg void OnMove(int x, int y) { m_move = CPoint(x, y); }
    afx_msg void OnSize(UINT, int cx, int cy) { m_size = CSize(cx, cy); }
    afx_msg void OnPaint() {
        ++m_paints;
        if (m_paintThrows) {
            AfxThrowNotSupportedException();
        }
        CWnd::OnPaint();
    }
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint) {
        ++m_wheels;
        return m_wheelAnswer;
    }
    afx_msg void OnXButtonDown(UINT, UINT button, CPoint) { m_otherXButtons += static_cast<int>(button); }
    afx_msg void OnDone() { ++m_done; }
    afx_msg void OnDisabled() { ++m_disabled; }
    afx_msg void OnUpdateDisabled(CCmdUI* item) { item->Enable(FALSE); }
    afx_msg void OnThrows() { AfxThrowNotSupportedException(); }
    afx_msg void OnCancels() { AfxThrowUserException(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Window, CWnd)
ON_MESSAGE(OwnMessage, &Window::OnOwnMessage)
ON_REGISTERED_MESSAGE(g_registeredMessage, &Window::OnOwnMessage)
ON_WM_MOVE()
ON_WM_SIZE()
ON_WM_PAINT()
ON_WM_MOUSEWHEEL()
ON_WM_XBUTTONDOWN()
ON_COMMAND(CommandDone, &Window::OnDone)
ON_COMMAND(CommandDisabled, &Window::OnDisabled)
ON_UPDATE_COMMAND_UI(CommandDisabled, &Window::OnUpdateDisabled)
ON_COMMAND(CommandThrows, &Window::OnThrows)
ON_COMMAND(CommandCancels, &Window::OnCancels)
END_MESSAGE_MAP()

TEST(Dispatch, MessagesByNumberReachTheirHandlerAndCarryItsResult) {
    Window window;
    EXPECT_EQ(window.SendMessage(OwnMessage, 41, 7), 42);
    EXPECT_EQ(window.SendMessage(g_registeredMessage, 1, 8), 2);
    EXPECT_EQ(window.m_own, (std::vector<LPARAM>{7, 8}));
}

TEST(Dispatch, CoordinatesKeepTheirSign) {
    Window window;
    window.SendMessage(WM_MOVE, 0, MAKELPARAM(-5, -6));
    EXPECT_EQ(window.m_move, CPoint(-5, -6));
    window.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(40000, 50));
    EXPECT_EQ(window.m_size, CSize(40000, 50));
}

TEST(Dispatch, AProcessedXButtonIsAnsweredWithTrue) {
    Window window;
    EXPECT_EQ(window.SendMessage(WM_XBUTTONDOWN, MAKEWPARAM(0, XBUTTON2), 0), TRUE);
    EXPECT_EQ(window.m_otherXButtons, XBUTTON2);
}

TEST(Dispatch, AnUnhandledWheelGoesToTheParent) {
    Window parent;
    Window child;
    child.ModifyStyle(WS_OVERLAPPEDWINDOW, WS_CHILD);
    child.SetParent(&parent);
    child.m_wheelAnswer = FALSE;
    child.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    EXPECT_EQ(child.m_wheels, 1);
    EXPECT_EQ(parent.m_wheels, 1);
    child.m_wheelAnswer = TRUE;
    child.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    EXPECT_EQ(child.m_wheels, 2);
    EXPECT_EQ(parent.m_wheels, 1);
}

TEST(Dispatch, ACommandOfAMenuRunsItsHandler) {
    Window window;
    window.SendMessage(WM_COMMAND, CommandDone, 0);
    EXPECT_EQ(window.m_done, 1);
}

TEST(Dispatch, ADisabledCommandOfAnAcceleratorStaysUndone) {
    Window window;
    window.SendMessage(WM_COMMAND, MAKEWPARAM(CommandDisabled, 1), 0);
    EXPECT_EQ(window.m_disabled, 0);
}

TEST(Dispatch, AnExceptionInACommandIsReportedAndEndsThere) {
    CountingMessageBox boxes;
    Window window;
    window.SendMessage(WM_COMMAND, CommandThrows, 0);
    EXPECT_EQ(boxes.Count(), 1);
    window.SendMessage(WM_COMMAND, CommandDone, 0);
    EXPECT_EQ(window.m_done, 1);
}

TEST(Dispatch, MemoryThatCannotBeHadEndsTheCommandNotTheProgram) {
    class Greedy : public Window {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_COMMAND && wParam == CommandThrows) {
                throw std::bad_alloc();
            }
            return Window::WindowProc(message, wParam, lParam);
        }
    };
    CountingMessageBox boxes;
    Greedy window;
    window.SendMessage(WM_COMMAND, CommandThrows, 0);
    EXPECT_EQ(boxes.Count(), 1);
    window.SendMessage(WM_COMMAND, CommandDone, 0);
    EXPECT_EQ(window.m_done, 1);
}

TEST(Dispatch, AUserExceptionIsNotReported) {
    CountingMessageBox boxes;
    Window window;
    window.SendMessage(WM_COMMAND, CommandCancels, 0);
    EXPECT_EQ(boxes.Count(), 0);
}

TEST(Dispatch, AnExceptionInPaintValidatesTheWindow) {
    CountingMessageBox boxes;
    Window window;
    window.UpdateWindow();
    window.m_paintThrows = true;
    window.m_paints = 0;
    window.Invalidate();
    window.UpdateWindow();
    EXPECT_EQ(window.m_paints, 1);
    EXPECT_FALSE(window.GetUpdateRect(nullptr));
    window.UpdateWindow();
    EXPECT_EQ(window.m_paints, 1);
}

TEST(Dispatch, AnExceptionInOnCreateFailsTheCreation) {
    class Failing : public CWnd {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_CREATE) {
                AfxThrowNotSupportedException();
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    CountingMessageBox boxes;
    Failing window;
    EXPECT_FALSE(window.CreateEx(0, nullptr, L"", WS_OVERLAPPEDWINDOW, 0, 0, 10, 10, nullptr, nullptr));
    EXPECT_EQ(window.m_hWnd, nullptr);
}

/// An edit control that tries to write another character than the one typed.
class Forger : public CWnd {
protected:
    afx_msg void OnChar(UINT, UINT repeat, UINT flags) { CWnd::OnChar(L'X', repeat, flags); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Forger, CWnd)
ON_WM_CHAR()
END_MESSAGE_MAP()

TEST(Dispatch, ABaseHandlerUsesTheMessagesOriginalParameters) {
    TestWindow parent;
    Forger edit;
    ASSERT_TRUE(edit.Create(L"EDIT", L"", WS_VISIBLE, CRect(0, 0, 100, 20), &parent, 1));
    edit.SendMessage(WM_CHAR, L'a', 1);
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ(text, L"a");
}

TEST(Dispatch, ANestedMessageDoesNotChangeWhatDefaultRepeats) {
    class Nested : public CWnd {
    public:
        LRESULT m_default = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_GETTEXTLENGTH) {
                SendMessage(WM_NULL);
                return Default();
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Nested window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, L"eight888", WS_OVERLAPPEDWINDOW, 0, 0, 10, 10, nullptr, nullptr));
    EXPECT_EQ(window.SendMessage(WM_GETTEXTLENGTH), 8);
}

/// Destroys itself, object and all, in the handler of a click.
class Suicidal : public CWnd {
public:
    static inline bool s_isDeleted = false;
    ~Suicidal() override { s_isDeleted = true; }

protected:
    void PostNcDestroy() override { delete this; }
    afx_msg void OnLButtonDown(UINT, CPoint) { DestroyWindow(); }
    afx_msg void OnLButtonUp(UINT, CPoint) { ADD_FAILURE() << "a message after the end"; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Suicidal, CWnd)
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

TEST(Dispatch, AWindowMayDestroyItselfInItsOwnHandler) {
    TestWindow parent;
    auto* child = new Suicidal;
    ASSERT_TRUE(child->Create(nullptr, L"", WS_VISIBLE, CRect(0, 0, 50, 50), &parent, 1));
    const HWND handle = child->m_hWnd;
    Pointer pointer;
    pointer.Click(handle, {10, 10});
    EXPECT_TRUE(Suicidal::s_isDeleted);
    EXPECT_FALSE(::IsWindow(handle));
}

/// Counts one message.
class Counter : public CWnd {
public:
    int m_count = 0;

protected:
    afx_msg LRESULT OnOwnMessage(WPARAM, LPARAM) {
        ++m_count;
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Counter, CWnd)
ON_MESSAGE(OwnMessage, &Counter::OnOwnMessage)
END_MESSAGE_MAP()

TEST(Dispatch, SendMessageToDescendantsGoesDeepUnlessToldNotTo) {
    TestWindow top;
    Counter child;
    Counter grandchild;
    ASSERT_TRUE(child.Create(nullptr, L"", 0, CRect(0, 0, 50, 50), &top, 1));
    ASSERT_TRUE(grandchild.Create(nullptr, L"", 0, CRect(0, 0, 5, 5), &child, 2));
    top.SendMessageToDescendants(OwnMessage);
    EXPECT_EQ(child.m_count, 1);
    EXPECT_EQ(grandchild.m_count, 1);
    top.SendMessageToDescendants(OwnMessage, 0, 0, FALSE);
    EXPECT_EQ(child.m_count, 2);
    EXPECT_EQ(grandchild.m_count, 1);
    top.SendMessageToDescendants(OwnMessage, 0, 0, TRUE, TRUE);
    EXPECT_EQ(grandchild.m_count, 2);
}

TEST(Dispatch, UpdateDialogControlsDisablesPushButtonsNobodyHandles) {
    Window window;
    CWnd done;
    CWnd unknown;
    CWnd edit;
    ASSERT_TRUE(done.Create(L"BUTTON", L"", WS_VISIBLE, CRect(0, 0, 20, 20), &window, CommandDone));
    ASSERT_TRUE(unknown.Create(L"BUTTON", L"", WS_VISIBLE, CRect(0, 20, 20, 40), &window, 900));
    ASSERT_TRUE(edit.Create(L"EDIT", L"", WS_VISIBLE, CRect(0, 40, 20, 60), &window, 901));
    window.UpdateDialogControls(&window, TRUE);
    EXPECT_TRUE(done.IsWindowEnabled());
    EXPECT_FALSE(unknown.IsWindowEnabled());
    EXPECT_TRUE(edit.IsWindowEnabled());
}

} // namespace

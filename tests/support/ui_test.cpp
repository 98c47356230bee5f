#include "tests/support/ui_test.h"

#include "tests/support/fault_watch.h"
#include "tests/support/message_pump.h"

CountingMessageBox::CountingMessageBox(int answer) : m_answer(answer) {
    m_before = fx::SetMessageBoxRunner([this](HWND owner, LPCTSTR text, LPCTSTR caption, UINT type) {
        m_shown.push_back({text != nullptr ? text : L"", caption != nullptr ? caption : L"", type, owner});
        return m_answer;
    });
}

CountingMessageBox::~CountingMessageBox() { fx::SetMessageBoxRunner(std::move(m_before)); }

CountingPopupMenu::CountingPopupMenu(UINT command) : m_command(command) {
    m_before = fx::SetPopupMenuRunner([this](HMENU menu, UINT, int x, int y, HWND, LPTPMPARAMS) -> BOOL {
        ++m_count;
        m_lastItemCount = ::GetMenuItemCount(menu);
        m_lastPoint = {x, y};
        return static_cast<BOOL>(m_command);
    });
}

CountingPopupMenu::~CountingPopupMenu() { fx::SetPopupMenuRunner(std::move(m_before)); }

void UiTestEnvironment::SetUp() {
    WatchFaults();
    ASSERT_TRUE(AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL));
    ASSERT_NE(AfxGetApp(), nullptr);
}

void UiTestEnvironment::TearDown() { AfxWinTerm(); }

TestWindow::TestWindow(int width, int height, DWORD style) {
    constexpr int Left = 60;
    constexpr int Top = 60;
    RECT frame = {0, 0, width, height};
    ::AdjustWindowRectEx(&frame, style, FALSE, 0);
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    EXPECT_TRUE(CreateEx(0, windowClass, L"test", style, Left, Top, frame.right - frame.left, frame.bottom - frame.top,
                         nullptr, nullptr));
}

TestWindow::~TestWindow() { DestroyWindow(); }

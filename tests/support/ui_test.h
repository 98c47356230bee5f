#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "afxwin.h"

/// Answers message boxes with a fixed button and keeps what they said. While it lives no box is shown.
class CountingMessageBox {
public:
    explicit CountingMessageBox(int answer = IDOK);
    ~CountingMessageBox();
    CountingMessageBox(const CountingMessageBox&) = delete;
    CountingMessageBox& operator=(const CountingMessageBox&) = delete;

    struct Shown {
        std::wstring text;
        std::wstring caption;
        UINT type;
        HWND owner;
    };
    int Count() const { return static_cast<int>(m_shown.size()); }
    const std::vector<Shown>& All() const { return m_shown; }
    const Shown& Last() const { return m_shown.back(); }
    void Answer(int answer) { m_answer = answer; }

private:
    int m_answer;
    std::vector<Shown> m_shown;
    fx::MessageBoxRunner m_before;
};

/// Answers popup menus with a fixed command (0: dismissed) and keeps their handles' item counts. No menu is shown.
class CountingPopupMenu {
public:
    explicit CountingPopupMenu(UINT command = 0);
    ~CountingPopupMenu();
    CountingPopupMenu(const CountingPopupMenu&) = delete;
    CountingPopupMenu& operator=(const CountingPopupMenu&) = delete;

    int Count() const { return m_count; }
    int LastItemCount() const { return m_lastItemCount; }
    POINT LastPoint() const { return m_lastPoint; }

private:
    UINT m_command;
    int m_count = 0;
    int m_lastItemCount = 0;
    POINT m_lastPoint = {};
    fx::PopupMenuRunner m_before;
};

/// Initialises the framework for the thread that runs the tests. Programs that link test_support_app get it together
/// with an application object (a CWinAppEx with settings below "Barwright tests" in the registry); a program with an
/// application object of its own links test_support and adds the environment itself.
class UiTestEnvironment : public ::testing::Environment {
public:
    void SetUp() override;
    void TearDown() override;
};

/// A visible window of the given size at a fixed place, destroyed at the end of the test. Client size in pixels.
class TestWindow : public CWnd {
public:
    TestWindow(int width = 400, int height = 300, DWORD style = WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    ~TestWindow() override;
};

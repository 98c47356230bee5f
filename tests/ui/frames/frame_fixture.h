#pragma once

#include "resource.h"

#include "afxext.h"
#include "afxwin.h"
#include "tests/support/message_pump.h"
#include "tests/support/ui_test.h"

#include <set>
#include <string>
#include <vector>

/// Who was asked for a command, in order, and who says that it is done.
struct Route {
    std::vector<std::string> asked;
    std::set<std::string> handlers;

    BOOL Ask(const std::string& who) {
        asked.push_back(who);
        return handlers.count(who) != 0;
    }
};
extern Route g_route;

/// The program's application object; its main window is set by the tests that need one.
class FrameTestApplication : public CWinApp {
public:
    BOOL OnTestCommand(UINT) { return g_route.Ask("application"); }
    BOOL SaveAllModified() override {
        ++saves;
        return canSave;
    }
    int ExitInstance() override {
        ++exits;
        return CWinApp::ExitInstance();
    }
    BOOL ProcessMessageFilter(int code, LPMSG message) override {
        filtered.push_back(code);
        return CWinApp::ProcessMessageFilter(code, message);
    }

    int saves = 0;
    int exits = 0;
    BOOL canSave = TRUE;
    std::vector<int> filtered; ///< the codes that ProcessMessageFilter got
    DECLARE_MESSAGE_MAP()
};
extern FrameTestApplication g_application;

/// Any frame class with the test's menu, table and title, hidden unless shown; it belongs to the test.
template <class Frame>
class Owned : public Frame {
public:
    Owned() = default;
    ~Owned() override { this->DestroyWindow(); }
    bool Load() { return Frame::LoadFrame(IDR_TEST_FRAME) != FALSE; }

protected:
    void PostNcDestroy() override {}
};

/// Makes a frame the application's main window for a scope.
class MainWindowScope {
public:
    explicit MainWindowScope(CWnd* window) : m_before(g_application.m_pMainWnd) { g_application.m_pMainWnd = window; }
    ~MainWindowScope() { g_application.m_pMainWnd = m_before; }
    MainWindowScope(const MainWindowScope&) = delete;
    MainWindowScope& operator=(const MainWindowScope&) = delete;

private:
    CWnd* m_before;
};

inline CRect PlaceInParent(const CWnd& window) {
    CRect place;
    window.GetWindowRect(&place);
    ::MapWindowPoints(nullptr, ::GetParent(window.m_hWnd), reinterpret_cast<LPPOINT>(&place), 2);
    return place;
}

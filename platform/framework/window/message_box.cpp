#include "fx/app.h"
#include "fx/exceptions.h"

#include <mutex>

namespace {

std::mutex g_runnerLock;
fx::MessageBoxRunner g_runner;

/// What CException::ReportError tells the user takes the same way as every other box.
[[maybe_unused]] const auto g_plainReport =
    fx::SetReportErrorHandler([](LPCTSTR text, UINT type, UINT helpId) { return AfxMessageBox(text, type, helpId); });

} // namespace

namespace fx {

MessageBoxRunner SetMessageBoxRunner(MessageBoxRunner runner) {
    std::lock_guard<std::mutex> lock(g_runnerLock);
    return std::exchange(g_runner, std::move(runner));
}

int RunMessageBox(HWND owner, LPCTSTR text, LPCTSTR caption, UINT type) {
    MessageBoxRunner runner;
    {
        std::lock_guard<std::mutex> lock(g_runnerLock);
        runner = g_runner;
    }
    return runner ? runner(owner, text, caption, type) : ::MessageBox(owner, text, caption, type);
}

} // namespace fx

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    if (CWinApp* app = AfxGetApp()) {
        return app->DoMessageBox(lpszText, nType, nIDHelp);
    }
    return fx::RunMessageBox(nullptr, lpszText, nullptr, nType);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
    CString text;
    VERIFY(text.LoadString(nIDPrompt));
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}

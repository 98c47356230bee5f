// A whole program: nothing but a global application object. Its exit code says what it found, 0 when all was right.
#include "afxwin.h"

namespace {

class EntryApplication : public CWinApp {
public:
    BOOL InitApplication() override {
        m_isApplicationInitialised = true;
        return TRUE;
    }
    BOOL InitInstance() override {
        m_isInstanceAfterApplication = m_isApplicationInitialised;
        return FALSE;
    }
    int ExitInstance() override {
        constexpr int WrongOrder = 1;
        constexpr int WrongCommandLine = 2;
        constexpr int WrongName = 3;
        if (!m_isInstanceAfterApplication) {
            return WrongOrder;
        }
        if (::lstrcmp(m_lpCmdLine, L"two words") != 0) {
            return WrongCommandLine;
        }
        return ::lstrcmp(m_pszExeName, L"window_entry_program") == 0 ? 0 : WrongName;
    }

private:
    bool m_isApplicationInitialised = false;
    bool m_isInstanceAfterApplication = false;
};

EntryApplication g_application;

} // namespace

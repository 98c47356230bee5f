// Compiled into each program of UI tests: its application object and the environment that prepares the framework.
#include "afxwinappex.h"
#include "tests/support/ui_test.h"

namespace {

class TestApplication : public CWinAppEx {
public:
    TestApplication() : CWinAppEx(FALSE) { SetRegistryKey(L"Barwright tests"); }
    // Settings of parallel tests do not meet: the program's name is part of the key.
};

TestApplication g_application;
::testing::Environment* const g_environment = ::testing::AddGlobalTestEnvironment(new UiTestEnvironment);

} // namespace

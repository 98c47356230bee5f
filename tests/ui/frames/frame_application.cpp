#include "frame_fixture.h"

Route g_route;
FrameTestApplication g_application;

BEGIN_MESSAGE_MAP(FrameTestApplication, CWinApp)
ON_COMMAND_EX(ID_TEST_COMMAND, &FrameTestApplication::OnTestCommand)
END_MESSAGE_MAP()

namespace {

const ::testing::Environment* const g_environment = ::testing::AddGlobalTestEnvironment(new UiTestEnvironment);

} // namespace

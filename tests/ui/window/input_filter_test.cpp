// Who looks at the messages of a thread before its windows.
#include "window/input_filter.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string g_asked;

BOOL First(MSG* message) {
    g_asked += '1';
    return message->message == WM_KEYDOWN;
}
BOOL Second(MSG*) {
    g_asked += '2';
    return FALSE;
}

BOOL Ask(UINT message) {
    g_asked.clear();
    MSG asked{nullptr, message, 0, 0, 0, {}};
    return fx::FilterInput(&asked);
}

// One test: a filter stays as long as the program.
TEST(InputFilters, AreAskedInTheirOrderUntilOneIsDoneWithTheMessage) {
    EXPECT_FALSE(Ask(WM_KEYDOWN)) << "without any filter every message goes on";
    fx::AddInputFilter(&First);
    fx::AddInputFilter(&Second);
    EXPECT_FALSE(Ask(WM_CHAR));
    EXPECT_EQ(g_asked, "12");
    EXPECT_TRUE(Ask(WM_KEYDOWN));
    EXPECT_EQ(g_asked, "1");
}

} // namespace

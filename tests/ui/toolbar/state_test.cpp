#include "tests/ui/toolbar/bar_frame.h"

TEST_F(ToolBarTest, SettingsKeepTheButtons) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 3010, L"Ten");
    Bar().InsertButton(CMFCToolBarMenuButton(static_cast<UINT>(-1), menu, -1, L"Menu"));
    ASSERT_TRUE(Bar().SaveState(L"Test"));
    Bar().RemoveAllButtons();
    ASSERT_TRUE(Bar().LoadState(L"Test"));
    EXPECT_EQ(Contents(), L"3001 3002 | 3003 4294967295");
    EXPECT_EQ(Bar().GetButtonText(1), L"T&wo");
    EXPECT_EQ(Bar().GetButton(1)->GetImage(), 1);
    const auto* kept = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, Bar().GetButton(4));
    ASSERT_NE(kept, nullptr);
    EXPECT_EQ(kept->GetCommands().GetCount(), 1);
    EXPECT_TRUE(Bar().RemoveStateFromRegistry(L"Test"));
}

TEST_F(ToolBarTest, ABarFromAFileDoesNotKeepItsButtons) {
    Bar().m_bFromConfig = TRUE;
    Bar().SaveState(L"Test");
    Bar().RemoveButton(0);
    Bar().LoadState(L"Test");
    EXPECT_EQ(Contents(), L"3002 | 3003");
    Bar().RemoveStateFromRegistry(L"Test");
}

TEST_F(ToolBarTest, TheOriginalButtonsComeBack) {
    EXPECT_FALSE(Bar().RestoreOriginalState());
    Bar().SetOrigButtons(Bar().GetAllButtons());
    Bar().RemoveAllButtons();
    EXPECT_TRUE(Bar().RestoreOriginalState());
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
}

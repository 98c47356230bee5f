#include "tests/ui/toolbar/bar_frame.h"

TEST_F(ToolBarTest, UserImagesMustHaveTheBarsImageSize) {
    CMFCToolBarImages images;
    images.SetImageSize(CSize(16, 16));
    EXPECT_FALSE(CMFCToolBar::SetUserImages(&images));
    EXPECT_EQ(CMFCToolBar::GetUserImages(), nullptr);
    CMFCToolBar::SetSizes(CSize(23, 22), CSize(16, 16));
    EXPECT_TRUE(CMFCToolBar::SetUserImages(&images));
    EXPECT_EQ(CMFCToolBar::GetUserImages(), &images);
    CMFCToolBar::SetUserImages(nullptr);
}

TEST_F(ToolBarTest, AnUnlockedButtonsImageIsTheCommandsImage) {
    EXPECT_EQ(GetCmdMgr()->GetCmdImage(3002), 1);
    EXPECT_EQ(GetCmdMgr()->GetCmdImage(3002, TRUE), -1);
    CMFCToolBarButton user(3040, 5, nullptr, TRUE);
    EXPECT_EQ(GetCmdMgr()->GetCmdImage(3040, TRUE), 5);
    EXPECT_EQ(user.GetImage(), 5);
    CMFCToolBarButton locked(3041, 5, nullptr, FALSE, TRUE);
    EXPECT_EQ(GetCmdMgr()->GetCmdImage(3041), -1);
}

TEST_F(ToolBarTest, TheCommandManagerKeepsMinusOneAndForgets) {
    GetCmdMgr()->SetCmdImage(3050, -1, FALSE);
    EXPECT_EQ(GetCmdMgr()->GetCmdImage(3050), -1);
    GetCmdMgr()->SetCmdImage(3050, 2, FALSE);
    EXPECT_EQ(GetCmdMgr()->GetCmdImage(3050), 2);
    GetCmdMgr()->ClearCmdImage(3050);
    EXPECT_EQ(GetCmdMgr()->GetCmdImage(3050), -1);
    GetCmdMgr()->SetCmdImage(0, 3, FALSE);
    EXPECT_EQ(GetCmdMgr()->GetCmdImage(0), -1);
}

TEST_F(ToolBarTest, MenuItemsTakeTheCommandsImage) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 3002, L"Two");
    menu.AppendMenu(MF_STRING, 3077, L"None");
    CMFCToolBarMenuButton button(static_cast<UINT>(-1), menu, -1, L"Menu");
    const auto* first = static_cast<const CMFCToolBarMenuButton*>(button.GetCommands().GetHead());
    const auto* last = static_cast<const CMFCToolBarMenuButton*>(button.GetCommands().GetTail());
    EXPECT_EQ(first->GetImage(), 1);
    EXPECT_EQ(last->GetImage(), -1);
}

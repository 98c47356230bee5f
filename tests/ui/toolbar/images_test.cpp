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

TEST_F(ToolBarTest, AnotherLookGivesTheSharedImagesTheSystemsColours) {
    CMFCToolBarImages& images = *CMFCToolBar::GetImages();
    images.Clear();
    images.SetTransparentColor(RGB(1, 1, 1));
    const HBITMAP bitmap = ::CreateBitmap(16, 15, 1, 32, std::vector<DWORD>(16 * 15, 0x00808080).data());
    ASSERT_EQ(images.AddImage(bitmap), 0);
    ::DeleteObject(bitmap);
    ASSERT_TRUE(images.MapTo3dColors());
    const int index = COLOR_BTNSHADOW;
    const COLORREF before = ::GetSysColor(index);
    const COLORREF other = RGB(10, 120, 30);
    ASSERT_TRUE(::SetSysColors(1, &index, &other));
    Bar().UpdateWindow();
    Bar().OnChangeVisualManager();
    EXPECT_TRUE(::GetUpdateRect(Bar().m_hWnd, nullptr, FALSE)) << "the buttons show the images";
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap target;
    target.Attach(::CreateBitmap(16, 15, 1, 32, nullptr));
    CBitmap* const former = dc.SelectObject(&target);
    images.DrawEx(&dc, CRect(0, 0, 16, 15), 0);
    EXPECT_EQ(dc.GetPixel(8, 8), other);
    dc.SelectObject(former);
    ::SetSysColors(1, &index, &before);
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

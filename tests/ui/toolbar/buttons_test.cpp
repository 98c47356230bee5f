#include "tests/ui/toolbar/bar_frame.h"

TEST_F(ToolBarTest, InsertAnswersThePositionAndMinusOneAppends) {
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
    EXPECT_EQ(Bar().InsertButton(CMFCToolBarButton(3004, -1)), 4);
    EXPECT_EQ(Bar().InsertButton(CMFCToolBarButton(3005, -1), 1), 1);
    EXPECT_EQ(Bar().InsertButton(new CMFCToolBarButton(3006, -1), 99), 6);
    EXPECT_EQ(Contents(), L"3001 3005 3002 | 3003 3004 3006");
}

TEST_F(ToolBarTest, ACopyOfTheButtonIsKept) {
    CMFCToolBarButton button(3004, 3, L"Four", FALSE, TRUE);
    button.m_bText = TRUE;
    const int index = Bar().InsertButton(button);
    button.m_strText = L"changed";
    const CMFCToolBarButton* kept = Bar().GetButton(index);
    EXPECT_NE(kept, &button);
    EXPECT_EQ(kept->m_strText, L"Four");
    EXPECT_EQ(kept->GetImage(), 3);
    EXPECT_TRUE(kept->m_bText);
    EXPECT_TRUE(kept->IsLocked());
    EXPECT_EQ(kept->GetParentWnd(), &Bar());
}

TEST_F(ToolBarTest, ADerivedButtonIsCopiedAsWhatItIs) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 3010, L"Ten");
    const int index = Bar().InsertButton(CMFCToolBarMenuButton(static_cast<UINT>(-1), menu, -1, L"Menu"));
    const auto* kept = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, Bar().GetButton(index));
    ASSERT_NE(kept, nullptr);
    EXPECT_EQ(kept->GetCommands().GetCount(), 1);
    EXPECT_EQ(static_cast<const CMFCToolBarMenuButton*>(kept->GetCommands().GetHead())->m_nID, 3010u);
}

TEST_F(ToolBarTest, ASeparatorMayBeginABar) {
    Bar().RemoveAllButtons();
    EXPECT_EQ(Bar().InsertSeparator(), 0);
    EXPECT_EQ(Bar().InsertButton(CMFCToolBarButton(3001, 0)), 1);
    EXPECT_EQ(Contents(), L"| 3001");
}

TEST_F(ToolBarTest, RemovingTheLastOfAGroupTakesTheSeparatorAway) {
    EXPECT_TRUE(Bar().RemoveButton(3));
    EXPECT_EQ(Contents(), L"3001 3002");
}

TEST_F(ToolBarTest, RemovingBetweenSeparatorsLeavesOne) {
    Bar().InsertSeparator();
    Bar().InsertButton(CMFCToolBarButton(3004, -1));
    ASSERT_EQ(Contents(), L"3001 3002 | 3003 | 3004");
    EXPECT_TRUE(Bar().RemoveButton(3));
    EXPECT_EQ(Contents(), L"3001 3002 | 3004");
}

TEST_F(ToolBarTest, RemovingTheFirstOfAGroupLeavesNoSeparatorInFront) {
    EXPECT_TRUE(Bar().RemoveButton(0));
    EXPECT_TRUE(Bar().RemoveButton(0));
    EXPECT_EQ(Contents(), L"3003");
    EXPECT_FALSE(Bar().RemoveButton(5));
    EXPECT_FALSE(Bar().RemoveButton(-1));
}

TEST_F(ToolBarTest, ReplaceTakesACopyAndSaysHowMany) {
    Bar().InsertButton(CMFCToolBarButton(3001, 0));
    EXPECT_EQ(Bar().ReplaceButton(3001, CMFCToolBarMenuButton(3050, nullptr, -1, L"New")), 1);
    EXPECT_EQ(Contents(), L"3050 3002 | 3003 3001");
    EXPECT_TRUE(Bar().GetButton(0)->IsKindOf(RUNTIME_CLASS(CMFCToolBarMenuButton)));
    Bar().InsertButton(CMFCToolBarButton(3001, 0));
    EXPECT_EQ(Bar().ReplaceButton(3001, CMFCToolBarButton(3001, 1), TRUE), 2);
    EXPECT_EQ(Bar().ReplaceButton(4711, CMFCToolBarButton(3001, 1)), 0);
}

TEST_F(ToolBarTest, SearchFindsCommandsAndButtons) {
    EXPECT_EQ(Bar().CommandToIndex(3003), 3);
    EXPECT_EQ(Bar().CommandToIndex(3001, 1), -1);
    EXPECT_EQ(Bar().CommandToIndex(4711), -1);
    EXPECT_EQ(Bar().ButtonToIndex(Bar().GetButton(1)), 1);
    EXPECT_EQ(Bar().GetButton(4), nullptr);
    EXPECT_EQ(Bar().GetItemID(1), 3002u);
    CObList found;
    EXPECT_EQ(CMFCToolBar::GetCommandButtons(3002, found), 1);
    EXPECT_EQ(found.GetHead(), Bar().GetButton(1));
    EXPECT_EQ(CMFCToolBar::GetCommandButtons(0, found), 0);
}

TEST_F(ToolBarTest, ButtonInfoIsSetAndRead) {
    Bar().SetButtonInfo(1, 3020, TBBS_CHECKBOX, 3);
    UINT id = 0, style = 0;
    int image = 0;
    Bar().GetButtonInfo(1, id, style, image);
    EXPECT_EQ(id, 3020u);
    EXPECT_EQ(style, static_cast<UINT>(TBBS_CHECKBOX));
    EXPECT_EQ(image, 3);
    EXPECT_TRUE(Bar().SetButtonText(1, L"Text"));
    EXPECT_EQ(Bar().GetButtonText(1), L"Text");
    EXPECT_FALSE(Bar().SetButtonText(9, L"Text"));
}

TEST_F(ToolBarTest, SetButtonsMakesButtonsAndSeparators) {
    const UINT ids[] = {3001, 0, 3002, 3003};
    EXPECT_TRUE(Bar().SetButtons(ids, 4));
    EXPECT_EQ(Contents(), L"3001 | 3002 3003");
    EXPECT_EQ(Bar().GetButton(3)->GetImage(), 2);
    EXPECT_EQ(CMFCToolBar::GetDefaultImage(3003), 2);
}

TEST_F(ToolBarTest, EveryBarWithAWindowIsListed) {
    EXPECT_NE(CMFCToolBar::GetAllToolbars().Find(&Bar()), nullptr);
    EXPECT_EQ(CMFCToolBar::FromHandlePermanent(Bar().m_hWnd), &Bar());
    EXPECT_EQ(CMFCToolBar::FromHandlePermanent(m_window), nullptr);
    ::DestroyWindow(m_window);
    EXPECT_EQ(CMFCToolBar::GetAllToolbars().GetCount(), 0);
}

TEST_F(ToolBarTest, ButtonsOfEveryClassCompareEqualToTheirCopy) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 3010, L"Ten");
    const CMFCToolBarButton plain(3001, 1, L"One");
    const CMFCToolBarMenuButton opens(static_cast<UINT>(-1), menu, -1, L"Menu");
    for (const CMFCToolBarButton* button : {&plain, static_cast<const CMFCToolBarButton*>(&opens)}) {
        std::unique_ptr<CMFCToolBarButton> copy(
            static_cast<CMFCToolBarButton*>(button->GetRuntimeClass()->CreateObject()));
        copy->CopyFrom(*button);
        EXPECT_TRUE(copy->CompareWith(*button));
        EXPECT_TRUE(button->CompareWith(*copy));
        copy->m_nID = 3099;
        EXPECT_FALSE(copy->CompareWith(*button));
    }
    EXPECT_FALSE(plain.CompareWith(opens));
}

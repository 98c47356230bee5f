#include "afxglobals.h"
#include "tests/ui/toolbar/bar_frame.h"

TEST_F(ToolBarTest, DefaultSizesAre23x22And16x15) {
    EXPECT_EQ(Bar().GetButtonSize(), CSize(23, 22));
    EXPECT_EQ(Bar().GetImageSize(), CSize(16, 15));
    EXPECT_EQ(CMFCToolBar::GetMenuImageSize(), CSize(16, 15));
}

TEST_F(ToolBarTest, ButtonsLieBesideEachOtherInsideTheBar) {
    CRect client, before;
    Bar().GetClientRect(client);
    int right = 0;
    for (int i = 0; i < Bar().GetCount(); ++i) {
        CRect rect;
        Bar().GetItemRect(i, rect);
        if (i > 0) {
            EXPECT_EQ(rect.left, right);
        }
        EXPECT_EQ(rect.Height(), 22);
        EXPECT_GE(rect.top, client.top);
        EXPECT_LE(rect.bottom, client.bottom);
        right = rect.right;
    }
    Bar().GetItemRect(0, before);
    EXPECT_EQ(before.Width(), 23);
}

TEST_F(ToolBarTest, AHiddenButtonTakesNoRoomAndIsNotHit) {
    CRect rect;
    Bar().GetItemRect(1, rect);
    Bar().GetButton(0)->Show(FALSE);
    LayOut();
    CRect moved;
    Bar().GetItemRect(1, moved);
    EXPECT_EQ(moved.left, rect.left - 23);
    EXPECT_EQ(Bar().HitTest(moved.CenterPoint()), 1);
}

TEST_F(ToolBarTest, HitTestIsMinusOneOnSeparatorsAndOutside) {
    EXPECT_EQ(Bar().HitTest(CenterOf(0)), 0);
    EXPECT_EQ(Bar().HitTest(CenterOf(3)), 3);
    EXPECT_EQ(Bar().HitTest(CenterOf(2)), -1);
    EXPECT_EQ(Bar().HitTest(CPoint(-5, 5)), -1);
}

TEST_F(ToolBarTest, AStretchedBarAsksForAllThereIs) {
    const CSize wanted = Bar().CalcFixedLayout(FALSE, TRUE);
    EXPECT_EQ(Bar().CalcFixedLayout(TRUE, TRUE), CSize(32767, wanted.cy));
    const CSize upright = Bar().CalcFixedLayout(FALSE, FALSE);
    EXPECT_GT(upright.cy, upright.cx);
}

TEST_F(ToolBarTest, TextMakesAButtonWider) {
    CRect before, after;
    Bar().GetItemRect(3, before);
    Bar().SetToolBarBtnText(3, L"Three", TRUE, TRUE);
    LayOut();
    Bar().GetItemRect(3, after);
    EXPECT_GT(after.Width(), before.Width());
    Bar().SetToolBarBtnText(3, nullptr, FALSE, TRUE);
    LayOut();
    Bar().GetItemRect(3, after);
    EXPECT_EQ(after.Width(), before.Width());
}

TEST_F(ToolBarTest, AButtonWithoutAnImageShowsItsText) {
    const int index = Bar().InsertButton(CMFCToolBarButton(3030, -1, L"A rather long text"));
    LayOut();
    CRect rect;
    Bar().GetItemRect(index, rect);
    EXPECT_GT(rect.Width(), 60);
}

TEST_F(ToolBarTest, WrappingBreaksIntoRowsThatFit) {
    EXPECT_EQ(Bar().WrapToolBar(1000), 1);
    EXPECT_EQ(Bar().WrapToolBar(50), 2);
    EXPECT_TRUE(Bar().GetButton(1)->m_bWrap);
    EXPECT_EQ(Bar().WrapToolBar(23), 4);
}

TEST_F(ToolBarTest, TheBarGrowsWithTheScale) {
    const CSize before = Bar().CalcFixedLayout(FALSE, TRUE);
    afxGlobalData.SetRibbonImageScale(1.5);
    const CSize after = Bar().CalcFixedLayout(FALSE, TRUE);
    afxGlobalData.SetRibbonImageScale(0);
    EXPECT_EQ(after.cy - 2, (before.cy - 2) * 3 / 2);
    EXPECT_GT(after.cx, before.cx * 4 / 3);
}

TEST_F(ToolBarTest, ButtonsAreLargerThanTheirImages) {
    CMFCToolBar::SetSizes(CSize(10, 10), CSize(24, 24));
    EXPECT_EQ(Bar().GetButtonSize(), CSize(31, 30));
}

#include "tests/ui/ribbon_bar/ribbon_frame.h"

namespace {

CRect RectInParent(CWnd& window) {
    CRect rect;
    window.GetWindowRect(rect);
    window.GetParent()->ScreenToClient(rect);
    return rect;
}

TEST_F(RibbonBarTest, LiesAtTheTopOverTheFramesWholeWidth) {
    CRect client;
    m_frame->GetClientRect(client);
    const CRect bar = RectInParent(Bar());
    EXPECT_EQ(bar.TopLeft(), CPoint(0, 0));
    EXPECT_EQ(bar.Width(), client.Width());
    EXPECT_EQ(bar.Height(), Bar().CalcFixedLayout(TRUE, TRUE).cy);
    EXPECT_GT(bar.Height(), 80);
    EXPECT_EQ(Bar().GetHideFlags(), 0u);
}

TEST_F(RibbonBarTest, FollowsTheFramesWidth) {
    const int height = RectInParent(Bar()).Height();
    SetClientWidth(640);
    EXPECT_EQ(RectInParent(Bar()).Width(), 640);
    EXPECT_EQ(RectInParent(Bar()).Height(), height);
    EXPECT_EQ(Bar().GetActiveCategory()->GetRect().Width(), 640);
}

TEST_F(RibbonBarTest, PanelsGiveUpWidthInANarrowFrameAndTakeItBack) {
    CMFCRibbonPanel* panel = Bar().GetCategory(0)->GetPanel(0);
    const CRect wide = panel->GetRect();
    EXPECT_TRUE(Element(commands::paste).IsLargeMode());
    SetClientWidth(320);
    EXPECT_LT(panel->GetRect().Width(), wide.Width());
    SetClientWidth(1000);
    EXPECT_EQ(panel->GetRect(), wide);
    EXPECT_TRUE(Element(commands::paste).IsLargeMode());
}

TEST_F(RibbonBarTest, MinimizingLeavesTheTabs) {
    const int height = RectInParent(Bar()).Height();
    Bar().ToggleMimimizeState();
    EXPECT_LT(RectInParent(Bar()).Height(), height / 2);
    EXPECT_EQ(Bar().GetHideFlags(), AFX_RIBBONBAR_HIDE_ELEMENTS);
    EXPECT_FALSE(Bar().GetCategory(0)->GetTabRect().IsRectEmpty());
    EXPECT_TRUE(Element(commands::paste).GetRect().IsRectEmpty());
    Bar().SetActiveCategory(Bar().GetCategory(0), TRUE);
    PumpPending();
    EXPECT_EQ(RectInParent(Bar()).Height(), height);
}

TEST(RibbonBarCaption, AReplacedCaptionIsARowAboveTheTabs) {
    auto* frame = new RibbonFrame(TRUE);
    ASSERT_TRUE(frame->Create(nullptr, L"Ribbon", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 800, 600)));
    frame->bar.AddCategory(L"Home", 0, 0);
    frame->bar.RecalcLayout();
    PumpPending();
    EXPECT_TRUE(frame->bar.IsReplaceFrameCaption());
    EXPECT_GT(frame->bar.GetCaptionHeight(), 0);
    EXPECT_EQ(frame->bar.GetCategory(0)->GetTabRect().top, frame->bar.GetCaptionHeight());
    frame->DestroyWindow();
}

TEST(RibbonBarCaption, ABarWithoutWindowKeepsCategoriesAndDies) {
    CMFCRibbonBar bar(FALSE);
    CMFCRibbonCategory* category = bar.AddCategory(L"Home", 0, 0);
    category->AddPanel(L"Panel")->Add(new CMFCRibbonButton(commands::paste, L"Paste"));
    bar.RecalcLayout();
    EXPECT_EQ(bar.GetActiveCategory(), category);
    EXPECT_NE(bar.FindByID(commands::paste), nullptr);
}

} // namespace

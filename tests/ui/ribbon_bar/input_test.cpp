#include <gmock/gmock.h>

#include "afxribbonslider.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(RibbonBarTest, AClickOnATabShowsItsCategoryAndTellsTheFrame) {
    m_pointer.Click(Bar(), Center(Bar().GetCategory(1)->GetTabRect()));
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(1));
    EXPECT_EQ(m_frame->categoryChanges, 1);
    m_pointer.Click(Bar(), Center(Bar().GetCategory(1)->GetTabRect()));
    EXPECT_EQ(m_frame->categoryChanges, 1) << "it is active already";
}

TEST_F(RibbonBarTest, TheWheelWalksThroughTheShownCategories) {
    Bar().AddCategory(L"Last", 0, 0);
    Bar().ShowCategory(1, FALSE);
    CRect area;
    Bar().GetWindowRect(area);
    const auto turn = [&](int notches) {
        const CPoint point = area.CenterPoint();
        Bar().SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(notches * WHEEL_DELTA)),
                          MAKELPARAM(point.x, point.y));
    };
    turn(-1);
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(2));
    turn(-1);
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(2)) << "it stops at the end";
    turn(1);
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(0));
    EXPECT_EQ(m_frame->categoryChanges, 2);
}

TEST_F(RibbonBarTest, ANotchInManySmallTurnsMovesOneCategory) {
    Bar().AddCategory(L"Last", 0, 0);
    CRect area;
    Bar().GetWindowRect(area);
    const auto turn = [&](int delta) {
        const CPoint point = area.CenterPoint();
        Bar().SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(delta)), MAKELPARAM(point.x, point.y));
        return Bar().GetCategoryIndex(Bar().GetActiveCategory());
    };
    for (const int delta : {-30, -30, -30}) {
        EXPECT_EQ(turn(delta), 0);
    }
    EXPECT_EQ(turn(-30), 1);
    EXPECT_EQ(m_frame->categoryChanges, 1);
    for (const int delta : {-30, -30, -30, 30, 30, 30}) {
        EXPECT_EQ(turn(delta), 1) << "the other way starts anew";
    }
    EXPECT_EQ(turn(30), 0);
    EXPECT_EQ(turn(-90), 0);
    m_pointer.MoveTo(Bar(), CenterOf(commands::paste));
    m_pointer.SendLeave();
    EXPECT_EQ(turn(-30), 0) << "what was left goes with the pointer";
    EXPECT_EQ(turn(-2 * WHEEL_DELTA), 2) << "a quick turn counts all of its notches";
}

TEST_F(RibbonBarTest, OneElementIsHotAtATimeAndNoneAfterLeaving) {
    m_pointer.MoveTo(Bar(), CenterOf(commands::paste));
    EXPECT_TRUE(Element(commands::paste).IsHighlighted());
    m_pointer.MoveTo(Bar(), CenterOf(commands::cut));
    EXPECT_FALSE(Element(commands::paste).IsHighlighted());
    EXPECT_TRUE(Element(commands::cut).IsHighlighted());
    EXPECT_TRUE(Bar().GetCategory(0)->GetPanel(0)->IsHighlighted());
    m_pointer.MoveTo(Bar(), CenterOf(commands::bold));
    EXPECT_FALSE(Bar().GetCategory(0)->GetPanel(0)->IsHighlighted());
    EXPECT_TRUE(Element(commands::bold).IsHighlighted());
    m_pointer.SendLeave();
    EXPECT_FALSE(Element(commands::bold).IsHighlighted());
    EXPECT_FALSE(Bar().GetCategory(0)->GetPanel(1)->IsHighlighted());
}

TEST_F(RibbonBarTest, AnElementOfACategoryThatIsLeftIsNotHot) {
    m_pointer.MoveTo(Bar(), CenterOf(commands::paste));
    Bar().SetActiveCategory(Bar().GetCategory(1));
    Bar().SetActiveCategory(Bar().GetCategory(0));
    Bar().RecalcLayout();
    EXPECT_FALSE(Element(commands::paste).IsHighlighted());
    EXPECT_FALSE(Bar().GetCategory(0)->GetPanel(0)->IsHighlighted());
}

TEST_F(RibbonBarTest, HoveringInvalidatesNoMoreThanThePanel) {
    m_pointer.MoveTo(Bar(), CenterOf(commands::paste));
    Bar().UpdateWindow();
    m_pointer.MoveTo(Bar(), CenterOf(commands::cut));
    CRect update;
    ASSERT_TRUE(Bar().GetUpdateRect(update));
    CRect changed;
    changed.UnionRect(Element(commands::paste).GetRect(), Element(commands::cut).GetRect());
    EXPECT_EQ(update, changed);
    Bar().UpdateWindow();
    m_pointer.MoveTo(Bar(), CenterOf(commands::cut));
    EXPECT_FALSE(Bar().GetUpdateRect(update)) << "nothing changed";
}

TEST_F(RibbonBarTest, AClickSendsTheCommandOnceOnRelease) {
    m_pointer.MoveTo(Bar(), CenterOf(commands::paste));
    m_pointer.Press();
    EXPECT_TRUE(Element(commands::paste).IsPressed());
    EXPECT_EQ(CWnd::GetCapture(), &Bar());
    EXPECT_THAT(m_frame->commands, IsEmpty());
    m_pointer.Release();
    EXPECT_FALSE(Element(commands::paste).IsPressed());
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    PumpPending();
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
}

TEST_F(RibbonBarTest, AClickOnAButtonInsideAGroupSendsItsCommand) {
    m_pointer.Click(Bar(), CenterOf(commands::italic));
    PumpPending();
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::italic));
}

TEST_F(RibbonBarTest, ReleasedOutsideNothingIsSent) {
    m_pointer.Drag(Bar(), CenterOf(commands::paste), CenterOf(commands::cut));
    EXPECT_TRUE(Element(commands::cut).IsHighlighted());
    PumpPending();
    EXPECT_THAT(m_frame->commands, IsEmpty());
    EXPECT_FALSE(Element(commands::paste).IsPressed());
}

TEST_F(RibbonBarTest, APressThatComesBackStillClicks) {
    m_pointer.MoveTo(Bar(), CenterOf(commands::paste));
    m_pointer.Press();
    m_pointer.MoveTo(Bar(), CenterOf(commands::cut));
    EXPECT_FALSE(Element(commands::cut).IsHighlighted());
    EXPECT_FALSE(Element(commands::paste).IsHighlighted());
    m_pointer.MoveTo(Bar(), CenterOf(commands::paste));
    m_pointer.Release();
    PumpPending();
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
}

TEST_F(RibbonBarTest, ADisabledElementSendsNothing) {
    m_frame->disabledCommand = commands::paste;
    RunIdle();
    ASSERT_TRUE(Element(commands::paste).IsDisabled());
    m_pointer.Click(Bar(), CenterOf(commands::paste));
    PumpPending();
    EXPECT_THAT(m_frame->commands, IsEmpty());
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
}

TEST_F(RibbonBarTest, CancelModeEndsThePressWithoutACommand) {
    m_pointer.MoveTo(Bar(), CenterOf(commands::paste));
    m_pointer.Press();
    Bar().SendMessage(WM_CANCELMODE);
    EXPECT_FALSE(Element(commands::paste).IsPressed());
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    m_pointer.Release();
    PumpPending();
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(RibbonBarTest, LosingTheCaptureEndsThePressWithoutACommand) {
    m_pointer.MoveTo(Bar(), CenterOf(commands::paste));
    m_pointer.Press();
    m_frame->SetCapture();
    EXPECT_FALSE(Element(commands::paste).IsPressed());
    ::ReleaseCapture();
    m_pointer.Release();
    PumpPending();
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(RibbonBarTest, CancelModeStopsASliderThatIsBeingDragged) {
    auto& slider = static_cast<CMFCRibbonSlider&>(Element(commands::zoom));
    const int before = slider.GetPos();
    // The thumb stands at 40 percent of the channel: somewhere on the way a press takes hold of it.
    const CRect rect = slider.GetRect();
    int x = rect.left;
    while (x < rect.right && slider.GetPos() == before) {
        m_pointer.MoveTo(Bar(), CPoint(x, rect.CenterPoint().y));
        m_pointer.Press();
        m_pointer.MoveTo(Bar(), CPoint(rect.CenterPoint().x + 20, rect.CenterPoint().y));
        Bar().SendMessage(WM_CANCELMODE);
        m_pointer.Release();
        ++x;
    }
    ASSERT_NE(slider.GetPos(), before);
    const int cancelled = slider.GetPos();
    m_pointer.MoveTo(Bar(), CPoint(rect.left + rect.Width() / 4, rect.CenterPoint().y));
    EXPECT_EQ(slider.GetPos(), cancelled);
}

TEST_F(RibbonBarTest, AHandlerMayDestroyTheFrameDuringTheClick) {
    Bar().GetCategory(0)->GetPanel(0)->Add(new CMFCRibbonButton(commands::closesFrame, L"Close"));
    Bar().RecalcLayout();
    m_pointer.Click(Bar(), CenterOf(commands::closesFrame));
    PumpPending();
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(RibbonBarTest, APressedElementMayBeRemoved) {
    m_pointer.MoveTo(Bar(), CenterOf(commands::paste));
    m_pointer.Press();
    Bar().GetCategory(0)->GetPanel(0)->Remove(0);
    m_pointer.Release();
    PumpPending();
    EXPECT_THAT(m_frame->commands, IsEmpty());
    EXPECT_EQ(Bar().FindByID(commands::paste), nullptr);
}

TEST_F(RibbonBarTest, ADoubleClickOnATabMinimizesAndRestores) {
    m_pointer.DoubleClick(Bar(), Center(Bar().GetCategory(0)->GetTabRect()));
    EXPECT_EQ(Bar().GetHideFlags(), AFX_RIBBONBAR_HIDE_ELEMENTS);
    m_pointer.DoubleClick(Bar(), Center(Bar().GetCategory(0)->GetTabRect()));
    EXPECT_EQ(Bar().GetHideFlags(), 0u);
}

} // namespace

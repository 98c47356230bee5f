#include "status_frame.h"

#include <afxglobals.h>

namespace {

class StatusBarPlace : public StatusBarTest {};

class StatusBarWithoutBorder : public StatusBarTest {
protected:
    StatusBarWithoutBorder() : StatusBarTest(WS_OVERLAPPED | WS_CAPTION | WS_VISIBLE) {}
};

TEST_F(StatusBarPlace, IsAlongTheLowerEdgeOfItsFrame) {
    CRect frame;
    m_frame->GetClientRect(frame);
    CRect bar;
    Bar().GetWindowRect(bar);
    m_frame->ScreenToClient(bar);
    EXPECT_EQ(bar.left, 0);
    EXPECT_EQ(bar.right, frame.right);
    EXPECT_EQ(bar.bottom, frame.bottom);
    EXPECT_EQ(bar.Height(), Bar().CalcFixedLayout(FALSE, TRUE).cy);
    EXPECT_GT(bar.Height(), 0);
}

TEST_F(StatusBarPlace, ElementsLieInTheMiddleOfTheBar) {
    const CRect rect = AddButton(1, L"One").GetRect();
    const int below = Client().bottom - rect.bottom;
    EXPECT_GE(rect.top, 0);
    EXPECT_LE(std::abs(rect.top - below), 1);
}

TEST_F(StatusBarPlace, GetSpaceIsWhatIsFreeBetweenTheAreas) {
    const int before = (LayOut(), Bar().GetSpace());
    const CRect main = AddButton(1, L"One").GetRect();
    EXPECT_EQ(Bar().GetSpace(), before - main.Width());
    const CRect extended = AddExtendedButton(2, L"Extended").GetRect();
    EXPECT_EQ(Bar().GetSpace(), before - main.Width() - extended.Width());
}

TEST_F(StatusBarPlace, GetExtendedAreaReachesFromTheFirstExtendedElementToTheEnd) {
    CRect area;
    AddButton(1, L"One");
    EXPECT_FALSE(Bar().GetExtendedArea(area));
    const CRect first = AddExtendedButton(2, L"Two").GetRect();
    ASSERT_TRUE(Bar().GetExtendedArea(area));
    EXPECT_EQ(area, CRect(first.left, 0, Client().right, Client().bottom));
}

TEST_F(StatusBarPlace, ATextThatGrowsMovesWhatFollows) {
    CMFCRibbonButton& first = AddButton(1, L"One");
    const CMFCRibbonButton& second = AddButton(2, L"Two");
    const int before = second.GetRect().left;
    first.SetText(L"One and a little more");
    Bar().EnsureLayout();
    EXPECT_EQ(second.GetRect().left, first.GetRect().right);
    EXPECT_GT(second.GetRect().left, before);
}

TEST_F(StatusBarPlace, ALayoutThatChangesNothingIsNotMadeAgain) {
    AddButton(1, L"One");
    const int layouts = Bar().layouts;
    Bar().EnsureLayout();
    Bar().HitTest(CPoint(1, 1));
    EXPECT_EQ(Bar().layouts, layouts);
}

TEST_F(StatusBarPlace, TheSizeGripIsAsWideAsTheBarIsHighAtMost) {
    const int grip = std::min(::GetSystemMetrics(SM_CXVSCROLL) + 1, Client().Height());
    EXPECT_EQ(Bar().GetSizeGripWidth(), grip);
    EXPECT_EQ(Bar().m_rectSizeGrip, CRect(Client().right - grip, 0, Client().right, Client().bottom));
}

TEST_F(StatusBarPlace, InAMaximisedFrameThereIsNoSizeGrip) {
    m_frame->ShowWindow(SW_MAXIMIZE);
    LayOut();
    EXPECT_EQ(Bar().GetSizeGripWidth(), 0);
    EXPECT_TRUE(Bar().m_rectSizeGrip.IsRectEmpty());
    m_frame->ShowWindow(SW_RESTORE);
    LayOut();
    EXPECT_FALSE(Bar().m_rectSizeGrip.IsRectEmpty());
}

TEST_F(StatusBarWithoutBorder, InAFrameThatCannotBeResizedThereIsNoSizeGrip) { EXPECT_EQ(Bar().GetSizeGripWidth(), 0); }

TEST_F(StatusBarWithoutBorder, TheStyleAsksForASizeGripInEveryFrame) {
    OpenStatusBar bar;
    ASSERT_TRUE(bar.CreateEx(m_frame, SBARS_SIZEGRIP, WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, 901));
    m_frame->RecalcLayout();
    EXPECT_GT(bar.GetSizeGripWidth(), 0);
    bar.DestroyWindow();
}

TEST_F(StatusBarPlace, OverTheFramesBorderTheBarIsHigherAndTheGripStandsAboveIt) {
    EXPECT_FALSE(Bar().IsBottomFrame());
    const int height = Client().Height();
    Bar().m_bIsBottomFrame = TRUE;
    Bar().MarkLayoutDirty();
    LayOut();
    const int border = ::GetSystemMetrics(SM_CYSIZEFRAME);
    EXPECT_TRUE(Bar().IsBottomFrame());
    EXPECT_EQ(Client().Height(), height + border);
    EXPECT_EQ(Bar().m_rectBottomResize, CRect(0, Client().bottom - border, Client().right, Client().bottom));
    EXPECT_EQ(Bar().m_rectSizeGrip.bottom, Client().bottom - border);
}

TEST_F(StatusBarPlace, InformationStandsInThePlaceOfTheMainArea) {
    const CMFCRibbonButton& main = AddButton(1, L"One");
    const CMFCRibbonButton& extended = AddExtendedButton(2, L"Two");
    EXPECT_FALSE(Bar().IsInformationMode());
    Bar().SetInformation(L"Loading");
    EXPECT_TRUE(Bar().IsInformationMode());
    EXPECT_TRUE(main.GetRect().IsRectEmpty());
    EXPECT_FALSE(extended.GetRect().IsRectEmpty());
    EXPECT_FALSE(Bar().m_rectInformation.IsRectEmpty());
    EXPECT_LT(Bar().m_rectInformation.right, extended.GetRect().left);
    ASSERT_FALSE(Bar().drawnInformation.empty());
    EXPECT_EQ(Bar().drawnInformation.back(), L"Loading");
}

TEST_F(StatusBarPlace, NullOrAnEmptyTextEndsInformationMode) {
    const CMFCRibbonButton& main = AddButton(1, L"One");
    for (const LPCTSTR end : {static_cast<LPCTSTR>(nullptr), L""}) {
        Bar().SetInformation(L"Loading");
        Bar().SetInformation(end);
        EXPECT_FALSE(Bar().IsInformationMode());
        EXPECT_FALSE(main.GetRect().IsRectEmpty());
        EXPECT_TRUE(Bar().m_rectInformation.IsRectEmpty());
    }
}

TEST_F(StatusBarPlace, TheSameInformationIsNotLaidOutAgain) {
    Bar().SetInformation(L"Loading");
    const int layouts = Bar().layouts;
    Bar().SetInformation(L"Loading");
    EXPECT_EQ(Bar().layouts, layouts);
}

TEST_F(StatusBarPlace, ItsFontIsTheRibbons) {
    EXPECT_EQ(Bar().GetFont()->GetSafeHandle(), afxGlobalData.fontRegular.GetSafeHandle());
}

TEST_F(StatusBarPlace, AtAHigherScaleTheBarIsHigher) {
    const int height = Client().Height();
    const double scale = afxGlobalData.GetRibbonImageScale();
    afxGlobalData.SetRibbonImageScale(2.0 * scale);
    Bar().ForceRecalcLayout();
    LayOut();
    const int larger = Client().Height();
    afxGlobalData.SetRibbonImageScale(scale);
    Bar().ForceRecalcLayout();
    LayOut();
    EXPECT_GT(larger, height);
    EXPECT_EQ(Client().Height(), height);
}

} // namespace

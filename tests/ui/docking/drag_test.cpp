// Docking by the mouse: within a row, to another row and side, off and back.
#include "tests/ui/docking/docking_fixture.h"

namespace {

class DockDragTest : public DockingTest {
protected:
    DockDragTest() {
        for (TestPane& pane : m_panes) {
            Dock(pane);
            pane.told.clear();
        }
    }
};

TEST_F(DockDragTest, APaneMovesAlongItsRowWithTheMouseAndPushesItsNeighbour) {
    Drag(m_panes[0], GripOf(m_panes[0]) + CSize(40, 0));
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1 2 3");
    EXPECT_EQ(PlaceOf(m_panes[0]), CRect(40, 0, 140, 24));
    EXPECT_EQ(PlaceOf(m_panes[1]), CRect(140, 0, 240, 24));
    EXPECT_EQ(PlaceOf(m_panes[2]), CRect(240, 0, 340, 24));
    EXPECT_TRUE(m_panes[0].told.empty()) << "it has not changed its site";
}

TEST_F(DockDragTest, APaneThatPassesTheMiddleOfItsNeighbourComesBehindIt) {
    Drag(m_panes[0], GripOf(m_panes[0]) + CSize(120, 0));
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "2 1 3");
    EXPECT_EQ(PlaceOf(m_panes[0]).left, 120);
    EXPECT_EQ(PlaceOf(m_panes[1]).left, 20);
}

TEST_F(DockDragTest, ThePressAloneMovesNothing) {
    m_pointer.MoveTo(GripOf(m_panes[1]));
    m_pointer.Press();
    EXPECT_TRUE(m_panes[1].IsDragMode());
    m_pointer.MoveTo(GripOf(m_panes[1]) + CSize(1, 1));
    EXPECT_EQ(PlaceOf(m_panes[1]), CRect(100, 0, 200, 24));
    m_pointer.Release();
    EXPECT_FALSE(m_panes[1].IsDragMode());
    EXPECT_EQ(PlaceOf(m_panes[1]), CRect(100, 0, 200, 24));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(DockDragTest, UnderTheRowsAPaneGetsARowOfItsOwn) {
    Drag(m_panes[1], OnScreen(150, 27));
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1 3 | 2");
    EXPECT_EQ(PlaceOf(m_panes[1]), CRect(147, 24, 247, 48));
    EXPECT_EQ(PlaceOf(m_client).top, 48);
    Drag(m_panes[2], OnScreen(303, 27));
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1 | 2 3") << "into the second row";
    Drag(m_panes[2], OnScreen(303, -9));
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "3 | 1 | 2") << "before the first";
    Drag(m_panes[2], OnScreen(303, 39));
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1 | 3 | 2") << "between the two others";
}

TEST_F(DockDragTest, APaneIsTakenToEachOtherSide) {
    Drag(m_panes[0], OnScreen(3, 200));
    EXPECT_EQ(Rows(CBRS_ALIGN_LEFT), "1");
    EXPECT_FALSE(m_panes[0].IsHorizontal());
    EXPECT_EQ(PlaceOf(m_panes[0]).Size(), CSize(24, 100));
    EXPECT_EQ(m_panes[0].told.back(), "docked");
    Drag(m_panes[0], OnScreen(598, 200));
    EXPECT_EQ(Rows(CBRS_ALIGN_RIGHT), "1");
    Drag(m_panes[0], OnScreen(300, 398));
    EXPECT_EQ(Rows(CBRS_ALIGN_BOTTOM), "1");
    EXPECT_TRUE(m_panes[0].IsHorizontal());
    EXPECT_EQ(PlaceOf(m_panes[0]), CRect(297, 376, 397, 400));
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "2 3");
}

TEST_F(DockDragTest, OffTheSidesAPaneFloatsUnderTheMouse) {
    Take(m_panes[0], OnScreen(300, 200));
    EXPECT_TRUE(m_panes[0].IsFloating());
    EXPECT_FALSE(m_panes[0].IsDocked());
    CPaneFrameWnd* const miniFrame = m_panes[0].GetParentMiniFrame();
    ASSERT_NE(miniFrame, nullptr);
    EXPECT_TRUE(miniFrame->IsWindowVisible());
    EXPECT_TRUE(miniFrame->IsCaptured());
    CRect window;
    miniFrame->GetWindowRect(&window);
    EXPECT_TRUE(window.PtInRect(OnScreen(300, 200)));
    EXPECT_EQ(miniFrame->HitTest(OnScreen(300, 200), TRUE), HTCAPTION) << window.top - OnScreen(300, 200).y;
    m_pointer.MoveTo(OnScreen(310, 220));
    CRect moved;
    miniFrame->GetWindowRect(&moved);
    EXPECT_EQ(moved, window + CSize(10, 20));
    m_pointer.Release();
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "2 3");
    EXPECT_EQ(m_frame->GetDockingManager()->GetMiniFrames().GetCount(), 1);
    EXPECT_EQ(m_panes[0].GetDockSiteFrameWnd(), m_frame);
}

TEST_F(DockDragTest, AFloatingPaneIsTakenByItsCaptionAndDockedAgain) {
    Drag(m_panes[0], OnScreen(300, 200));
    Drag(m_panes[0], OnScreen(200, 150));
    EXPECT_TRUE(m_panes[0].IsFloating());
    Drag(m_panes[0], OnScreen(400, 10));
    EXPECT_TRUE(m_panes[0].IsDocked());
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "2 3 1");
    EXPECT_TRUE(m_frame->GetDockingManager()->GetMiniFrames().IsEmpty()) << "the empty mini frame is gone";
}

TEST_F(DockDragTest, EscapePutsADockedPaneBackWithItsNeighbours) {
    Take(m_panes[1], OnScreen(300, 200));
    ASSERT_TRUE(m_panes[1].IsFloating());
    Keys(m_window).Press(VK_ESCAPE);
    EXPECT_FALSE(m_panes[1].IsDragMode());
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1 2 3");
    EXPECT_EQ(PlaceOf(m_panes[1]), CRect(100, 0, 200, 24));
    EXPECT_EQ(PlaceOf(m_panes[2]), CRect(200, 0, 300, 24));
    EXPECT_EQ(::GetCapture(), nullptr);
    m_pointer.Release();
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1 2 3");
}

TEST_F(DockDragTest, EscapePutsAFloatingPaneBack) {
    Drag(m_panes[0], OnScreen(300, 200));
    CRect before;
    m_panes[0].GetParentMiniFrame()->GetWindowRect(&before);
    Take(m_panes[0], OnScreen(3, 200));
    ASSERT_TRUE(m_panes[0].IsDocked());
    Keys(m_window).Press(VK_ESCAPE);
    ASSERT_TRUE(m_panes[0].IsFloating());
    CRect after;
    m_panes[0].GetParentMiniFrame()->GetWindowRect(&after);
    EXPECT_EQ(after, before);
}

TEST_F(DockDragTest, TheLossOfTheMousePutsThePaneBack) {
    Take(m_panes[1], OnScreen(300, 200));
    ::SetCapture(m_window);
    EXPECT_FALSE(m_panes[1].IsDragMode());
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1 2 3");
    ::ReleaseCapture();
}

TEST_F(DockDragTest, WithControlAPaneDoesNotDock) {
    Drag(m_panes[0], OnScreen(300, 200));
    Keys keys(m_window);
    keys.Hold(VK_CONTROL);
    Drag(m_panes[0], OnScreen(300, 10));
    EXPECT_TRUE(m_panes[0].IsFloating());
    keys.Let(VK_CONTROL);
    Drag(m_panes[0], OnScreen(305, 10));
    EXPECT_TRUE(m_panes[0].IsDocked());
}

TEST_F(DockDragTest, APaneGoesOnlyToTheSidesThatItAllows) {
    m_panes[0].EnableDocking(CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM);
    Drag(m_panes[0], OnScreen(3, 200));
    EXPECT_TRUE(m_panes[0].IsFloating());
    Drag(m_panes[0], OnScreen(200, 398));
    EXPECT_EQ(Rows(CBRS_ALIGN_BOTTOM), "1");
}

TEST_F(DockDragTest, APaneThatMayNotFloatStaysWhereItWasLast) {
    m_panes[0].SetControlBarStyle(AFX_CBRS_CLOSE);
    Drag(m_panes[0], OnScreen(300, 200));
    EXPECT_TRUE(m_panes[0].IsDocked());
    EXPECT_EQ(m_panes[0].GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_TOP));
}

TEST_F(DockDragTest, APaneThatRefusesToFloatOrToDockStays) {
    m_panes[0].refusesToFloat = true;
    Drag(m_panes[0], OnScreen(300, 200));
    EXPECT_TRUE(m_panes[0].IsDocked());
    m_panes[0].refusesToFloat = false;
    Drag(m_panes[0], OnScreen(300, 200));
    ASSERT_TRUE(m_panes[0].IsFloating());
    m_panes[0].refusesToDock = true;
    Drag(m_panes[0], OnScreen(3, 200));
    EXPECT_TRUE(m_panes[0].IsFloating());
}

TEST_F(DockDragTest, APaneOfTheStandardModeMovesWhenTheButtonIsLetGo) {
    m_panes[0].mode = DT_STANDARD;
    Take(m_panes[0], OnScreen(3, 200));
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1 2 3");
    m_pointer.Release();
    EXPECT_EQ(Rows(CBRS_ALIGN_LEFT), "1");
    Take(m_panes[0], OnScreen(300, 200));
    EXPECT_TRUE(m_panes[0].IsDocked());
    Keys(m_window).Press(VK_ESCAPE);
    EXPECT_TRUE(m_panes[0].IsDocked());
    EXPECT_EQ(Rows(CBRS_ALIGN_LEFT), "1");
}

TEST_F(DockDragTest, ADoubleClickOnTheGripperFloatsAndOneOnTheCaptionDocksBack) {
    Drag(m_panes[1], OnScreen(200, 27));
    ASSERT_EQ(Rows(CBRS_ALIGN_TOP), "1 3 | 2");
    const CRect docked = PlaceOf(m_panes[1]);
    CPoint grip = GripOf(m_panes[1]);
    m_panes[1].ScreenToClient(&grip);
    m_pointer.DoubleClick(m_panes[1].m_hWnd, grip);
    PumpPending();
    ASSERT_TRUE(m_panes[1].IsFloating());
    CPaneFrameWnd* const miniFrame = m_panes[1].GetParentMiniFrame();
    CRect caption;
    miniFrame->GetCaptionRect(caption);
    m_pointer.DoubleClick(miniFrame->m_hWnd, {caption.left + 10, caption.CenterPoint().y});
    PumpPending();
    EXPECT_TRUE(m_panes[1].IsDocked());
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1 3 | 2");
    EXPECT_EQ(PlaceOf(m_panes[1]), docked);
}

TEST_F(DockDragTest, ADoubleClickFloatsThePaneWhereItFloatedBefore) {
    Drag(m_panes[0], OnScreen(300, 200));
    CRect before;
    m_panes[0].GetParentMiniFrame()->GetWindowRect(&before);
    m_panes[0].OnProcessDblClk();
    ASSERT_TRUE(m_panes[0].IsDocked());
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1 2 3");
    m_panes[0].OnProcessDblClk();
    CRect after;
    m_panes[0].GetParentMiniFrame()->GetWindowRect(&after);
    EXPECT_EQ(after, before);
}

TEST_F(DockDragTest, APaneThatIsDestroyedWhileItIsDraggedEndsTheDrag) {
    Take(m_panes[0], OnScreen(300, 200));
    m_panes[0].DestroyWindow();
    EXPECT_EQ(::GetCapture(), nullptr);
    m_pointer.MoveTo(OnScreen(3, 200));
    m_pointer.Release();
    PumpPending();
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "2 3");
    EXPECT_TRUE(m_frame->GetDockingManager()->GetMiniFrames().IsEmpty());
}

TEST_F(DockDragTest, AFrameThatIsDestroyedWhileAPaneIsDraggedEndsTheDrag) {
    Take(m_panes[0], OnScreen(300, 200));
    ::DestroyWindow(m_window);
    EXPECT_EQ(::GetCapture(), nullptr);
    m_pointer.Release();
    PumpPending();
    m_frame = nullptr;
}

} // namespace

// Dock sites and their rows as windows.
#include "tests/ui/docking/docking_fixture.h"

namespace {

class DockRowsTest : public DockingTest {};

TEST_F(DockRowsTest, EnablingDockingMakesASiteOnEachSideThatTakesNoRoom) {
    for (const DWORD side : {CBRS_ALIGN_TOP, CBRS_ALIGN_BOTTOM, CBRS_ALIGN_LEFT, CBRS_ALIGN_RIGHT}) {
        const CDockSite* const site = m_frame->GetDockingManager()->FindDockSite(side, TRUE);
        ASSERT_NE(site, nullptr);
        EXPECT_EQ(site->GetCurrentAlignment(), static_cast<DWORD>(side));
        EXPECT_EQ(site->GetParent(), m_frame);
        EXPECT_TRUE(PlaceOf(*site).IsRectEmpty());
    }
    EXPECT_EQ(Site(CBRS_ALIGN_LEFT).GetDockSiteID(), static_cast<UINT>(AFX_IDW_DOCKBAR_LEFT));
    CObList panes;
    m_frame->GetDockingManager()->GetPaneList(panes);
    EXPECT_EQ(panes.GetCount(), 3) << "a site is no pane";
}

TEST_F(DockRowsTest, ADockedPaneLiesInItsSiteAndTheClientGetsTheRest) {
    Dock(m_panes[0]);
    EXPECT_TRUE(m_panes[0].IsDocked());
    EXPECT_EQ(m_panes[0].GetParentDockSite(), &Site(CBRS_ALIGN_TOP));
    EXPECT_EQ(m_panes[0].GetDockSiteFrameWnd(), m_frame);
    EXPECT_EQ(m_panes[0].GetParentFrame(), m_frame);
    EXPECT_EQ(m_panes[0].GetOwner(), m_frame) << "who gets its commands";
    EXPECT_EQ(PlaceOf(m_panes[0]).Size(), CSize(100, 24));
    EXPECT_EQ(PlaceOf(m_client).top, PlaceOf(Site(CBRS_ALIGN_TOP)).bottom);
}

TEST_F(DockRowsTest, EachSideTakesItsPanesTheUprightOnesStandingOnEnd) {
    const UINT sides[] = {AFX_IDW_DOCKBAR_LEFT, AFX_IDW_DOCKBAR_RIGHT, AFX_IDW_DOCKBAR_BOTTOM};
    for (int index = 0; index < 3; ++index) {
        Dock(m_panes[index], sides[index]);
    }
    EXPECT_EQ(PlaceOf(m_panes[0]), CRect(0, 0, 24, 100));
    EXPECT_FALSE(m_panes[0].IsHorizontal());
    EXPECT_EQ(PlaceOf(m_panes[1]), CRect(576, 0, 600, 100));
    EXPECT_EQ(PlaceOf(m_panes[2]), CRect(0, 376, 100, 400));
    EXPECT_TRUE(m_panes[2].IsHorizontal());
    EXPECT_EQ(PlaceOf(m_client), CRect(24, 0, 576, 376));
}

TEST_F(DockRowsTest, PanesShareARowWhileTheyFitAndStartAnotherThen) {
    m_panes[1].size.cx = 480;
    m_panes[2].size.cx = 300;
    for (TestPane& pane : m_panes) {
        Dock(pane);
    }
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1 2 | 3");
    EXPECT_EQ(PlaceOf(m_panes[1]), CRect(100, 0, 580, 24));
    EXPECT_EQ(PlaceOf(m_panes[2]), CRect(0, 24, 300, 48));
    EXPECT_EQ(PlaceOf(m_client).top, 48);
}

TEST_F(DockRowsTest, ARowIsAsThickAsItsThickestPane) {
    m_panes[1].size.cy = 40;
    Dock(m_panes[0]);
    Dock(m_panes[1]);
    EXPECT_EQ(PlaceOf(m_panes[0]).Height(), 40);
    EXPECT_EQ(PlaceOf(m_client).top, 40);
    m_frame->ShowPane(&m_panes[1], FALSE, FALSE, FALSE);
    EXPECT_EQ(PlaceOf(m_client).top, 24);
}

TEST_F(DockRowsTest, APaneIsDockedLeftOfAnother) {
    Dock(m_panes[0]);
    m_frame->ShowPane(&m_panes[1], TRUE, TRUE, FALSE);
    EXPECT_TRUE(m_frame->DockPaneLeftOf(&m_panes[1], &m_panes[0]));
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "2 1");
    EXPECT_EQ(PlaceOf(m_panes[1]), CRect(0, 0, 100, 24));
    EXPECT_EQ(PlaceOf(m_panes[0]), CRect(100, 0, 200, 24));
    EXPECT_FALSE(m_frame->DockPaneLeftOf(&m_panes[1], &m_panes[2])) << "which is not docked";
    EXPECT_FALSE(m_frame->DockPaneLeftOf(&m_panes[1], &m_panes[1]));
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "2 1");
}

TEST_F(DockRowsTest, ARectangleSaysWhereAPaneIsDocked) {
    Dock(m_panes[0]);
    DockAt(m_panes[1], AFX_IDW_DOCKBAR_TOP, {250, 2});
    EXPECT_EQ(PlaceOf(m_panes[1]), CRect(250, 0, 350, 24));
    DockAt(m_panes[2], AFX_IDW_DOCKBAR_TOP, {70, 40});
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1 2 | 3");
    EXPECT_EQ(PlaceOf(m_panes[2]), CRect(70, 24, 170, 48));
}

TEST_F(DockRowsTest, APaneThatWantsItsRowAloneFillsIt) {
    m_panes[0].SetExclusiveRowMode();
    Dock(m_panes[0]);
    Dock(m_panes[1]);
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1 | 2");
    EXPECT_EQ(PlaceOf(m_panes[0]), CRect(0, 0, 600, 24));
    EXPECT_FALSE(m_frame->DockPaneLeftOf(&m_panes[1], &m_panes[0]));
    EXPECT_TRUE(m_panes[0].GetDockSiteRow()->IsExclusiveRow());
}

TEST_F(DockRowsTest, ANarrowFramePushesPanesTogetherAndAWideOneLetsThemBack) {
    Dock(m_panes[0]);
    DockAt(m_panes[1], AFX_IDW_DOCKBAR_TOP, {400, 2});
    Resize(300, 400);
    EXPECT_EQ(PlaceOf(m_panes[1]), CRect(200, 0, 300, 24));
    Resize(150, 400);
    EXPECT_EQ(PlaceOf(m_panes[0]), CRect(0, 0, 100, 24));
    EXPECT_EQ(PlaceOf(m_panes[1]), CRect(100, 0, 150, 24));
    Resize(600, 400);
    EXPECT_EQ(PlaceOf(m_panes[1]), CRect(400, 0, 500, 24));
}

TEST_F(DockRowsTest, APaneIsDockedAtAnotherSideAndBack) {
    Dock(m_panes[0]);
    Dock(m_panes[0], AFX_IDW_DOCKBAR_BOTTOM);
    EXPECT_EQ(PlaceOf(m_panes[0]), CRect(0, 376, 100, 400));
    EXPECT_TRUE(Site(CBRS_ALIGN_TOP).GetPaneList().IsEmpty());
    EXPECT_EQ(PlaceOf(m_client), CRect(0, 0, 600, 376));
}

TEST_F(DockRowsTest, APaneThatRefusesIsNotDocked) {
    m_panes[0].refusesToDock = true;
    Dock(m_panes[0]);
    EXPECT_FALSE(m_panes[0].IsDocked());
    EXPECT_EQ(m_panes[0].told, (std::vector<std::string>{"before docking"}));
    m_panes[0].refusesToDock = false;
    Dock(m_panes[0]);
    EXPECT_EQ(m_panes[0].told, (std::vector<std::string>{"before docking", "before docking", "docked"}));
}

TEST_F(DockRowsTest, AnUndockedPaneKeepsToTheEdgeOfTheFrame) {
    Dock(m_panes[0]);
    m_panes[0].UndockPane();
    EXPECT_FALSE(m_panes[0].IsDocked());
    EXPECT_EQ(m_panes[0].GetParent(), m_frame);
    EXPECT_EQ(m_panes[0].GetPaneRow(), nullptr);
}

TEST_F(DockRowsTest, ADestroyedPaneLeavesItsRow) {
    Dock(m_panes[0]);
    Dock(m_panes[1]);
    m_panes[0].DestroyWindow();
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "2");
    m_frame->RecalcLayout();
    EXPECT_EQ(m_frame->GetPane(1), nullptr);
}

TEST_F(DockRowsTest, ARowKnowsItsPanesAndItsPlace) {
    Dock(m_panes[0], AFX_IDW_DOCKBAR_LEFT);
    DockAt(m_panes[1], AFX_IDW_DOCKBAR_LEFT, {40, 100});
    CDockingPanesRow* const row = m_panes[1].GetPaneRow();
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(Rows(CBRS_ALIGN_LEFT), "1 | 2");
    EXPECT_TRUE(row->HasPane(&m_panes[1]));
    EXPECT_EQ(row->GetPaneCount(), 1);
    EXPECT_EQ(row->GetRowOffset(), 24);
    EXPECT_EQ(row->GetRowHeight(), 24);
    EXPECT_FALSE(row->IsHorizontal());
    EXPECT_EQ(row->GetAvailableLength(), PlaceOf(Site(CBRS_ALIGN_LEFT)).Height() - 100);
    EXPECT_EQ(Site(CBRS_ALIGN_LEFT).FindRowIndex(row), 1);
    EXPECT_TRUE(Site(CBRS_ALIGN_LEFT).IsLastRow(row));
    EXPECT_TRUE(row->IsVisible());
    m_frame->ShowPane(&m_panes[1], FALSE, FALSE, FALSE);
    EXPECT_FALSE(row->IsVisible());
    EXPECT_EQ(row->GetVisibleCount(), 0);
}

TEST_F(DockRowsTest, ALayoutThatChangesNothingMovesAndPaintsNothing) {
    for (TestPane& pane : m_panes) {
        Dock(pane);
    }
    PumpPending();
    for (TestPane& pane : m_panes) {
        pane.moves = 0;
        pane.paints = 0;
    }
    m_frame->RecalcLayout();
    PumpPending();
    for (const TestPane& pane : m_panes) {
        EXPECT_EQ(pane.moves, 0);
        EXPECT_EQ(pane.paints, 0);
    }
}

TEST_F(DockRowsTest, MovingOnePaneMovesItAndThoseThatGiveWay) {
    for (TestPane& pane : m_panes) {
        Dock(pane);
    }
    EXPECT_TRUE(m_panes[2].MoveByAlignment(CBRS_ALIGN_TOP, 150));
    EXPECT_EQ(PlaceOf(m_panes[2]), CRect(350, 0, 450, 24));
    m_panes[0].moves = 0;
    EXPECT_TRUE(m_panes[1].MoveByAlignment(CBRS_ALIGN_TOP, 30));
    EXPECT_EQ(PlaceOf(m_panes[1]), CRect(130, 0, 230, 24));
    EXPECT_EQ(m_panes[0].moves, 0);
}

TEST_F(DockRowsTest, APaneThatWasPushedMovesFromWhereItLies) {
    DockAt(m_panes[0], AFX_IDW_DOCKBAR_TOP, {100, 2});
    DockAt(m_panes[1], AFX_IDW_DOCKBAR_TOP, {120, 2});
    ASSERT_EQ(PlaceOf(m_panes[1]).left, 200);
    EXPECT_TRUE(m_panes[1].MoveByAlignment(CBRS_ALIGN_TOP, 50));
    EXPECT_EQ(PlaceOf(m_panes[1]).left, 250);
    EXPECT_EQ(PlaceOf(m_panes[0]).left, 100);
}

TEST_F(DockRowsTest, RectangleSidesAreNamedLeftRightTopBottom) {
    const CRect rect(0, 0, 200, 100);
    EXPECT_EQ(CDockSite::RectSideFromPoint(rect, {5, 50}), 1);
    EXPECT_EQ(CDockSite::RectSideFromPoint(rect, {195, 50}), 2);
    EXPECT_EQ(CDockSite::RectSideFromPoint(rect, {100, 5}), 3);
    EXPECT_EQ(CDockSite::RectSideFromPoint(rect, {100, 95}), 4);
    EXPECT_EQ(CDockSite::RectSideFromPoint(rect, {300, 50}), 0);
}

TEST(DockBeforeShow, PanesThatGrowBeforeTheFrameIsShownGetTheRowsThatTheyNeed) {
    auto* const frame = new CFrameWndEx;
    ASSERT_TRUE(frame->Create(nullptr, L"Docking", WS_OVERLAPPEDWINDOW, CRect(100, 80, 500, 480)));
    frame->EnableDocking(CBRS_ALIGN_ANY);
    TestPane panes[2];
    UINT id = 0;
    for (TestPane& pane : panes) {
        ASSERT_TRUE(pane.Make(frame, ++id, CSize(10, 24)));
        pane.ShowPane(TRUE, TRUE, FALSE);
        frame->DockPane(&pane);
    }
    EXPECT_EQ(panes[0].GetDockSiteRow(), panes[1].GetDockSiteRow());
    for (TestPane& pane : panes) {
        pane.size.cx = 300;
    }
    frame->ShowWindow(SW_SHOWNOACTIVATE);
    frame->RecalcLayout();
    EXPECT_NE(panes[0].GetDockSiteRow(), panes[1].GetDockSiteRow());
    frame->DestroyWindow();
}

} // namespace

// Thousands of random steps with real windows: after each, every visible pane lies inside its site or its mini frame,
// none on another one, and none is lost.
#include "tests/ui/docking/docking_fixture.h"

#include <random>

namespace {

constexpr int kSteps = 10000;
constexpr UINT kSides[] = {AFX_IDW_DOCKBAR_TOP, AFX_IDW_DOCKBAR_BOTTOM, AFX_IDW_DOCKBAR_LEFT, AFX_IDW_DOCKBAR_RIGHT};

class RandomDockingTest : public DockingTest {
protected:
    int Number(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }
    TestPane& Any() { return m_panes[Number(3)]; }

    void Step() {
        TestPane& pane = Any();
        switch (Number(9)) {
        case 0:
            Dock(pane, kSides[Number(4)]);
            break;
        case 1:
            DockAt(pane, kSides[Number(4)], {Number(700) - 50, Number(500) - 50});
            break;
        case 2:
            m_frame->DockPaneLeftOf(&pane, &Any());
            break;
        case 3:
            pane.FloatPane(CRect(OnScreen(Number(500), Number(300)), CSize(0, 0)), DM_UNKNOWN, Number(4) != 0);
            break;
        case 4:
            m_frame->ShowPane(&pane, Number(3) != 0, Number(2) == 0, FALSE);
            break;
        case 5:
            Resize(400 + Number(400), 400 + Number(200));
            break;
        case 6:
            pane.OnProcessDblClk();
            break;
        case 7:
            pane.size = CSize(1 + Number(400), 1 + Number(60));
            break;
        default:
            pane.MoveByAlignment(pane.IsHorizontal() ? CBRS_ALIGN_TOP : CBRS_ALIGN_LEFT, Number(200) - 100);
            break;
        }
        m_frame->RecalcLayout();
    }

    void Check(int step) {
        std::vector<std::pair<HWND, CRect>> docked;
        for (TestPane& pane : m_panes) {
            const CWnd* const parent = pane.GetParent();
            CRect place;
            pane.GetWindowRect(&place);
            CRect room;
            parent->GetWindowRect(&room);
            CDockSite* const site = pane.GetParentDockSite();
            ASSERT_EQ(pane.IsDocked() != FALSE, site != nullptr) << step;
            ASSERT_EQ(site != nullptr && site->GetPaneList().Find(&pane) != nullptr, site != nullptr) << step;
            ASSERT_EQ(pane.GetPaneRow() != nullptr, site != nullptr) << step;
            if (CPaneFrameWnd* const miniFrame = pane.GetParentMiniFrame(TRUE)) {
                ASSERT_EQ(miniFrame->GetPane(), &pane) << step;
                ASSERT_EQ(miniFrame->IsWindowVisible(), pane.IsVisible()) << step;
            }
            if (!pane.IsVisible() || place.IsRectEmpty()) {
                continue;
            }
            CRect inside;
            inside.IntersectRect(place, room);
            ASSERT_EQ(inside, place) << step << ": pane " << pane.GetDlgCtrlID();
            for (const auto& [window, other] : docked) {
                CRect common;
                ASSERT_FALSE(window == parent->m_hWnd && common.IntersectRect(place, other)) << step;
            }
            docked.emplace_back(parent->m_hWnd, place);
        }
    }

    std::mt19937 m_random{7};
};

TEST_F(RandomDockingTest, NoPaneIsLostOverlapsAnotherOrLeavesItsSite) {
    for (int step = 0; step < kSteps && !HasFatalFailure(); ++step) {
        Step();
        Check(step);
        if (step % 200 == 0) {
            PumpPending();
        }
    }
    PumpPending();
    int floating = 0;
    for (const TestPane& pane : m_panes) {
        floating += pane.IsFloating() ? 1 : 0;
    }
    EXPECT_EQ(m_frame->GetDockingManager()->GetMiniFrames().GetCount(), floating) << "no empty one is left";
}

} // namespace

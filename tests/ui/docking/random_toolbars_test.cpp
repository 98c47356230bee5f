// Thousands of random steps with toolbars, one of them with a combo box, in a frame that is also maximised and
// restored: after each, no bar is lost or lies on another one, every button is in sight or in the menu of the rest, and
// the combo box stands in its button's place.
#include "tests/ui/docking/docking_fixture.h"

#include <random>

namespace {

constexpr int kSteps = 10000;
constexpr UINT kCombo = 3900;
constexpr UINT kSides[] = {AFX_IDW_DOCKBAR_TOP, AFX_IDW_DOCKBAR_BOTTOM, AFX_IDW_DOCKBAR_LEFT, AFX_IDW_DOCKBAR_RIGHT};

bool IsInside(const CRect& inner, const CRect& outer) {
    CRect common;
    common.IntersectRect(inner, outer);
    return common == inner;
}

CRect PlaceOnScreen(const CWnd& window) {
    CRect place;
    window.GetWindowRect(&place);
    return place;
}

class RandomToolBarsTest : public ::testing::Test {
protected:
    RandomToolBarsTest() : m_frame(new CFrameWndEx) {
        m_frame->Create(nullptr, L"Bars", WS_OVERLAPPEDWINDOW, CRect(100, 80, 800, 580));
        m_client.Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 5, 5), m_frame, AFX_IDW_PANE_FIRST);
        m_frame->EnableDocking(CBRS_ALIGN_ANY);
        UINT id = 70;
        for (CMFCToolBar& bar : m_bars) {
            bar.Create(m_frame, AFX_DEFAULT_TOOLBAR_STYLE, ++id);
            for (UINT command = 1; command <= 6; ++command) {
                bar.InsertButton(CMFCToolBarButton(100 * id + command, -1, L"Text"));
            }
            bar.EnableDocking(CBRS_ALIGN_ANY);
            m_frame->DockPane(&bar);
        }
        CMFCToolBarComboBoxButton combo(kCombo, -1, CBS_DROPDOWNLIST, 90);
        combo.AddItem(L"item");
        m_bars[1].InsertButton(combo, 2);
        m_frame->ShowWindow(SW_SHOWNOACTIVATE);
        m_frame->RecalcLayout();
        PumpPending();
    }
    ~RandomToolBarsTest() override {
        m_frame->DestroyWindow();
        PumpPending();
    }

    int Number(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }
    CMFCToolBar& Any() { return m_bars[Number(3)]; }
    CPoint Somewhere() {
        CPoint point(Number(700) - 50, Number(500) - 50);
        m_frame->ClientToScreen(&point);
        return point;
    }

    void ChangeButtons(CMFCToolBar& bar) {
        const int count = bar.GetCount();
        if (count < 12 && Number(2) == 0) {
            const CString text(L't', 1 + Number(12));
            bar.InsertButton(CMFCToolBarButton(4000 + static_cast<UINT>(Number(90)), -1, text), Number(count + 1));
        } else if (count > 3) {
            const int index = Number(count);
            if (bar.GetItemID(index) != kCombo) {
                bar.RemoveButton(index);
            }
        }
        bar.AdjustLayout();
    }

    void Step() {
        CMFCToolBar& bar = Any();
        switch (Number(9)) {
        case 0:
            m_frame->DockPane(&bar, kSides[Number(4)]);
            break;
        case 1:
            m_frame->DockPane(&bar, kSides[Number(4)], CRect(Somewhere(), CSize(20, 20)));
            break;
        case 2:
            m_frame->DockPaneLeftOf(&bar, &Any());
            break;
        case 3:
            bar.FloatPane(CRect(Somewhere(), CSize(Number(300), 0)), DM_UNKNOWN, Number(4) != 0);
            break;
        case 4:
            m_frame->ShowPane(&bar, Number(3) != 0, Number(2) == 0, FALSE);
            break;
        case 5:
            m_frame->SetWindowPos(nullptr, 0, 0, 300 + Number(600), 350 + Number(250),
                                  SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
            break;
        case 6:
            bar.OnProcessDblClk();
            break;
        case 7:
            m_frame->ShowWindow(m_frame->IsZoomed() ? SW_RESTORE : SW_MAXIMIZE);
            break;
        default:
            ChangeButtons(bar);
            break;
        }
        m_frame->RecalcLayout();
    }

    void CheckCombo(CMFCToolBar& bar, CMFCToolBarComboBoxButton& button, const CRect& place, int step) {
        const bool isShown = button.IsHorizontal() && !place.IsRectEmpty();
        CComboBox& combo = *button.GetComboBox();
        ASSERT_EQ((combo.GetStyle() & WS_VISIBLE) != 0, isShown) << step;
        CRect window = PlaceOnScreen(combo);
        bar.ScreenToClient(&window);
        ASSERT_TRUE(!isShown || IsInside(window, place)) << step;
    }

    void CheckButtons(CMFCToolBar& bar, int step) {
        CRect client;
        bar.GetClientRect(&client);
        int missing = 0;
        for (int i = 0; i < bar.GetCount(); ++i) {
            CRect place;
            bar.GetItemRect(i, place);
            missing += place.IsRectEmpty() ? 1 : 0;
            ASSERT_TRUE(place.IsRectEmpty() || IsInside(place, client)) << step << ": button " << i;
            if (bar.GetItemID(i) == kCombo) {
                CheckCombo(bar, static_cast<CMFCToolBarComboBoxButton&>(*bar.GetButton(i)), place, step);
            }
        }
        const CRect more = bar.GetOverflowRect();
        ASSERT_EQ(missing > 0, !more.IsRectEmpty()) << step << ": " << missing << " without room";
        ASSERT_TRUE(more.IsRectEmpty() || IsInside(more, client)) << step;
        ASSERT_TRUE(missing == 0 || !bar.IsFloating()) << step;
    }

    void Check(int step) {
        std::vector<std::pair<HWND, CRect>> shown;
        for (CMFCToolBar& bar : m_bars) {
            ASSERT_NE(bar.IsDocked(), bar.IsFloating()) << step;
            ASSERT_EQ(bar.IsDocked() != FALSE, bar.GetParentDockSite() != nullptr) << step;
            const CRect place = PlaceOnScreen(bar);
            if (!bar.IsVisible() || place.IsRectEmpty()) {
                continue;
            }
            const CWnd* const parent = bar.GetParent();
            ASSERT_TRUE(IsInside(place, PlaceOnScreen(*parent))) << step << ": bar " << bar.GetDlgCtrlID();
            for (const auto& [window, other] : shown) {
                CRect common;
                ASSERT_FALSE(window == parent->m_hWnd && common.IntersectRect(place, other)) << step;
            }
            shown.emplace_back(parent->m_hWnd, place);
            CheckButtons(bar, step);
        }
    }

    std::mt19937 m_random{11};
    CFrameWndEx* m_frame;
    CWnd m_client;
    CMFCToolBar m_bars[3];
};

TEST_F(RandomToolBarsTest, NoBarIsLostNoButtonOutOfReachAndTheComboInItsPlace) {
    for (int step = 0; step < kSteps && !HasFatalFailure(); ++step) {
        Step();
        Check(step);
        if (step % 100 == 0) {
            PumpPending();
        }
    }
}

} // namespace

// Lists keep inside of the monitor's work area.
#include "tests/ui/marked_combos/combo_fixture.h"

#include <ostream>

namespace {

enum class Edge { Left, Right, Bottom, BottomRight };

struct Corner {
    Edge edge;
    bool isMirrored;
};

class WorkArea : public RibbonCombos, public testing::WithParamInterface<Corner> {
protected:
    static CRect MonitorWork() {
        MONITORINFO monitor{};
        monitor.cbSize = sizeof(monitor);
        ::GetMonitorInfo(::MonitorFromPoint(POINT{}, MONITOR_DEFAULTTOPRIMARY), &monitor);
        return monitor.rcWork;
    }
    CRect EditOnScreen(const CMFCRibbonComboBox& combo) {
        CRect edit = combo.GetEditRect();
        m_host.Bar().ClientToScreen(&edit);
        edit.NormalizeRect();
        return edit;
    }
    /// Moves the frame until most of the combo is beyond the edges.
    void MoveBeyond(const CMFCRibbonComboBox& combo) {
        const CRect work = MonitorWork();
        const CRect edit = EditOnScreen(combo);
        CSize by(0, 0);
        if (GetParam().edge == Edge::Left) {
            by.cx = work.left - edit.right + 10;
        }
        if (GetParam().edge == Edge::Right || GetParam().edge == Edge::BottomRight) {
            by.cx = work.right - edit.left - 10;
        }
        if (GetParam().edge == Edge::Bottom || GetParam().edge == Edge::BottomRight) {
            by.cy = work.bottom - edit.bottom - 5;
        }
        CRect frame;
        m_host.Frame().GetWindowRect(&frame);
        m_host.Frame().SetWindowPos(nullptr, frame.left + by.cx, frame.top + by.cy, 0, 0,
                                    SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        PumpPending();
    }
};

TEST_P(WorkArea, AListStaysInsideWhereItsComboDoesNot) {
    auto& combo = Add<CMFCRibbonMultiCombo>(comboId, 0);
    for (int i = 0; i < 60; ++i) {
        combo.AddItem(L"An item whose text is longer than the combo is wide");
    }
    if (GetParam().isMirrored) {
        m_host.Bar().ModifyStyleEx(0, WS_EX_LAYOUTRTL);
        m_host.LayOut();
    }
    MoveBeyond(combo);
    combo.DropDownList();
    ASSERT_NE(Rows(), nullptr);
    CRect list;
    CMFCPopupMenu::GetActiveMenu()->GetWindowRect(&list);
    const CRect work = MonitorWork();
    EXPECT_GE(list.left, work.left);
    EXPECT_GE(list.top, work.top);
    EXPECT_LE(list.right, work.right);
    EXPECT_LE(list.bottom, work.bottom);
    EXPECT_GE(list.Height(), 10 * afxGlobalData.GetTextHeight()) << "with room for some rows";
    const CRect edit = EditOnScreen(combo);
    EXPECT_TRUE(list.top >= edit.bottom || list.bottom <= edit.top) << "nor does it cover the combo";
}

std::string NameOf(const testing::TestParamInfo<Corner>& info) {
    const char* const names[] = {"Left", "Right", "Bottom", "BottomRight"};
    return std::string(names[static_cast<int>(info.param.edge)]) + (info.param.isMirrored ? "Mirrored" : "");
}

INSTANTIATE_TEST_SUITE_P(Corners, WorkArea,
                         testing::Values(Corner{Edge::Left, false}, Corner{Edge::Right, false},
                                         Corner{Edge::Bottom, false}, Corner{Edge::BottomRight, false},
                                         Corner{Edge::Left, true}, Corner{Edge::Right, true},
                                         Corner{Edge::Bottom, true}, Corner{Edge::BottomRight, true}),
                         NameOf);

} // namespace

// Bars of a file are docked together: one layout for all of them, with the places that each would find alone.
#include "tests/ui/toolbar_builder/builder_fixture.h"

#include <utility>
#include <vector>

namespace {

/// Three bars of a file beside bars made alike that are docked one by one: 640 pixels wide, each takes half of a row.
constexpr char kThreeBars[] = "<g KEYWORD='A'><b PROMPT='1'/><b PROMPT='2'/><b PROMPT='3'/></g>";

/// A frame that counts how often its document area changes its place.
class CountingFrame : public BarsFrame {
public:
    int changes = 0;

protected:
    void OnSizeMDIClient(const CRect&, const CRect&) override { ++changes; }
};

void FillAndAllow(CDynToolBarCreater& creater, CMDIFrameWndEx& frame) {
    for (CMFCToolBar* const bar : creater.GetAllToolBar()) {
        for (UINT id = 1; id <= 14; ++id) {
            bar->InsertButton(CMFCToolBarButton(id, -1, L"Text"));
        }
    }
    frame.EnableDocking(CBRS_ALIGN_ANY);
    creater.EnableDocking(CBRS_ALIGN_ANY, &frame);
}

std::vector<CRect> PlacesIn(const CWnd& frame, const CDynToolBarCreater& creater) {
    std::vector<CRect> places;
    for (const CMFCToolBar* const bar : creater.GetAllToolBar()) {
        CRect place;
        bar->GetWindowRect(&place);
        frame.ScreenToClient(&place);
        places.push_back(place);
    }
    return places;
}

TEST_F(ToolBarBuilder, BarsAreLaidOutOnceWhenTheyAreDockedTogether) {
    ASSERT_TRUE(Load(kThreeBars));
    CountingFrame counting;
    ASSERT_TRUE(counting.Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(50, 50, 750, 450)));
    CDynToolBarCreater bars;
    ASSERT_TRUE(bars.Load(L"toolbar.xml", &counting));
    FillAndAllow(bars, counting);
    for (CMFCToolBar* const bar : bars.GetAllToolBar()) {
        bar->ShowPane(FALSE, TRUE, FALSE);
    }
    counting.RecalcLayout();
    for (CMFCToolBar* const bar : bars.GetAllToolBar()) {
        bar->ShowPane(TRUE, TRUE, FALSE);
    }
    counting.changes = 0;
    bars.DockPane(&counting);
    counting.RecalcLayout();
    EXPECT_EQ(counting.changes, 1);
    counting.DestroyWindow();
}

TEST_F(ToolBarBuilder, BarsThatAreDockedTogetherLieWhereTheyLieWhenTheyAreDockedOneByOne) {
    ASSERT_TRUE(Load(kThreeBars));
    FillAndAllow(creater, frame);
    creater.DockPane(&frame);
    BarsFrame other;
    ASSERT_TRUE(other.Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(50, 50, 750, 450)));
    other.ShowWindow(SW_SHOWNOACTIVATE);
    CDynToolBarCreater oneByOne;
    ASSERT_TRUE(oneByOne.Load(L"toolbar.xml", &other));
    FillAndAllow(oneByOne, other);
    for (CMFCToolBar* const bar : oneByOne.GetAllToolBar()) {
        other.DockPane(bar);
    }
    EXPECT_EQ(PlacesIn(frame, creater), PlacesIn(other, oneByOne));
    EXPECT_FALSE(PlacesIn(frame, creater).back().IsRectEmpty());
    for (CMFCToolBar* const bar : creater.GetAllToolBar()) {
        bar->FloatPane(CRect(0, 0, 0, 0), DM_DBL_CLICK);
        bar->DockPane(nullptr, nullptr, DM_DBL_CLICK);
    }
    EXPECT_EQ(PlacesIn(frame, creater), PlacesIn(other, oneByOne)) << "each finds its place again";
    other.DestroyWindow();
}

TEST_F(ToolBarBuilder, WhoHearsOfADockedBarMayEndTheFrame) {
    class EndingBar : public CMFCToolBar {
    public:
        CMDIFrameWndEx* ended = nullptr;

    protected:
        void OnAfterDock(CBasePane*, LPCRECT, AFX_DOCK_METHOD) override {
            if (ended != nullptr) {
                std::exchange(ended, nullptr)->DestroyWindow();
            }
        }
    };
    BarsFrame ending;
    ASSERT_TRUE(ending.Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(50, 50, 750, 450)));
    CDynToolBarCreater bars;
    ASSERT_TRUE(Load("<g KEYWORD='A'><b PROMPT='1'/></g>"));
    ASSERT_TRUE(bars.Load(L"toolbar.xml", &ending));
    EndingBar last;
    ASSERT_TRUE(last.Create(&ending, AFX_DEFAULT_TOOLBAR_STYLE, 999));
    last.ended = &ending;
    ASSERT_TRUE(bars.AddCustomBar(L"A", &last, L"last"));
    FillAndAllow(bars, ending);
    bars.DockPane(&ending);
    EXPECT_EQ(ending.GetSafeHwnd(), nullptr);
}

} // namespace

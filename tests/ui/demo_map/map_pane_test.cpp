// The list, the map and its scroll bars at the start of the viewer and afterwards.
#include "map_host.h"

#include "map_pane.h"

namespace {

class MapPaneStart : public MapHost {
protected:
    MapPaneStart() { EXPECT_TRUE(pane.Create(&parent, 1)); }
    ~MapPaneStart() override { pane.DestroyWindow(); }

    void Resize(int width, int height) {
        pane.MoveWindow(0, 0, width, height);
        PumpPending();
    }
    CRect Pane() const {
        CRect rect;
        pane.GetWindowRect(rect);
        return rect;
    }
    /// The map has the room of both bars.
    bool HasNoBars() const {
        const CRect place = pane.PlaceOf(CMapPane::Part::Map);
        return place.right == Pane().right && place.bottom == Pane().bottom;
    }
    double WholeMapsScale() const { return std::min(state.WindowWidth() / 360.0, state.WindowHeight() / 180.0); }

    CMapWindow window{state, data};
    CMapPane pane{state, data, window};
};

TEST_F(MapPaneStart, UntilItTheMapHasNoSizeWhateverThePaneHas) {
    Resize(1000, 560);
    Resize(1000, 534);
    EXPECT_EQ(state.WindowWidth(), 1);
    EXPECT_EQ(state.WindowHeight(), 1);
}

TEST_F(MapPaneStart, TheWholeMapFillsWhatThenIsThere) {
    Resize(1000, 560);
    Resize(1000, 330); // a bar came
    pane.Start();
    EXPECT_TRUE(HasNoBars());
    EXPECT_DOUBLE_EQ(state.View().pixelsPerDegree, WholeMapsScale());
    EXPECT_FALSE(state.CanStep(-1)) << "it is the first view";
}

TEST_F(MapPaneStart, TheWholeMapFillsAWidePaneAndAHighOne) {
    for (const CSize size : {CSize(1000, 200), CSize(400, 650)}) {
        MapState own;
        CMapWindow ownWindow(own, data);
        CMapPane ownPane(own, data, ownWindow);
        ASSERT_TRUE(ownPane.Create(&parent, 2));
        ownPane.MoveWindow(0, 0, size.cx, size.cy);
        ownPane.Start();
        EXPECT_DOUBLE_EQ(own.View().pixelsPerDegree,
                         std::max(1.0, std::min(own.WindowWidth() / 360.0, own.WindowHeight() / 180.0)))
            << size.cx;
        ownPane.DestroyWindow();
    }
}

TEST_F(MapPaneStart, AfterItThePartsFollowThePane) {
    Resize(1000, 560);
    pane.Start();
    const double scale = state.View().pixelsPerDegree;
    Resize(1000, 600);
    EXPECT_TRUE(HasNoBars());
    EXPECT_EQ(state.WindowHeight(), 600);
    EXPECT_DOUBLE_EQ(state.View().pixelsPerDegree, scale) << "the view is the user's from now on";
    Resize(500, 300);
    EXPECT_FALSE(HasNoBars()) << "a map that is not seen whole has bars";
}

TEST_F(MapPaneStart, AFirstViewThatWasKeptStays) {
    state.SetFirstView({{10, 20}, 24});
    Resize(1000, 560);
    pane.Start();
    EXPECT_DOUBLE_EQ(state.View().pixelsPerDegree, 24);
    EXPECT_FALSE(HasNoBars());
}

} // namespace

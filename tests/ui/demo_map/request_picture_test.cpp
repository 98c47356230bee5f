// Pictures of the map for the clipboard, files and pages: handed over when they are drawn.
#include "map_host.h"

#include "map_painter.h"
#include "map_window.h"

#include <memory>
#include <vector>

namespace {

constexpr int kWidth = 160;
constexpr int kHeight = 90;

COLORREF GroundOf(const MapState& state) {
    const std::uint32_t color = ShownColor(state, MapLayer::Relief);
    return RGB(color >> 16 & 0xFF, color >> 8 & 0xFF, color & 0xFF);
}

COLORREF MiddleOf(CBitmap& picture) {
    CClientDC screen(nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap* const before = dc.SelectObject(&picture);
    const COLORREF color = dc.GetPixel(kWidth / 2 + 3, kHeight / 2 + 3);
    dc.SelectObject(before);
    return color;
}

class RequestedPicture : public MapHost {
protected:
    RequestedPicture() {
        // Nothing but the ground is drawn.
        for (int layer = 0; layer < static_cast<int>(MapLayer::Count); ++layer) {
            state.SetShown(static_cast<MapLayer>(layer), false);
        }
        EXPECT_TRUE(map->Create(&parent, 1));
        map->MoveWindow(0, 0, kWidth, kHeight);
        map->Finish();
    }

    ~RequestedPicture() override {
        if (map != nullptr && map->GetSafeHwnd() != nullptr) {
            map->DestroyWindow();
        }
    }

    /// Changes what is seen, so that the picture of before is no longer the present one.
    void Show(MapPalette palette) {
        state.SetPalette(palette);
        map->ShowState();
    }
    /// Keeps the middle of the picture, or magenta where there is none.
    CMapWindow::PictureTaker Keep() {
        return [this](CBitmap* picture) { kept.push_back(picture != nullptr ? MiddleOf(*picture) : RGB(255, 0, 255)); };
    }
    static COLORREF GroundIn(MapPalette palette) {
        MapState other;
        other.SetPalette(palette);
        return GroundOf(other);
    }

    std::unique_ptr<CMapWindow> map = std::make_unique<CMapWindow>(state, data);
    std::vector<COLORREF> kept;
};

TEST_F(RequestedPicture, IsHandedOverAtOnceWhereTheMapIsDrawn) {
    ASSERT_TRUE(map->IsFinished());
    map->RequestPicture(Keep());
    EXPECT_EQ(kept, std::vector<COLORREF>{GroundOf(state)});
    PumpPending();
    EXPECT_EQ(kept.size(), 1u) << "and not once more";
}

TEST_F(RequestedPicture, HasTheSizeOfTheMapAndIsWhollyDrawn) {
    BITMAP measured{};
    COLORREF corner = 0;
    map->RequestPicture([&](CBitmap* picture) {
        ASSERT_NE(picture, nullptr);
        picture->GetBitmap(&measured);
        CClientDC screen(nullptr);
        CDC dc;
        dc.CreateCompatibleDC(&screen);
        CBitmap* const before = dc.SelectObject(picture);
        corner = dc.GetPixel(kWidth - 1, kHeight - 1);
        dc.SelectObject(before);
    });
    EXPECT_EQ(CSize(measured.bmWidth, measured.bmHeight), CSize(kWidth, kHeight));
    EXPECT_EQ(corner, GroundOf(state));
}

TEST_F(RequestedPicture, WaitsAsLongAsTheFrameTakesNoInput) {
    Show(MapPalette::Night);
    map->RequestPicture(Keep());
    map->RequestPicture(Keep());
    ::EnableWindow(parent.GetSafeHwnd(), FALSE); // another window waits over it for an answer
    map->Finish();
    PumpPending();
    EXPECT_TRUE(kept.empty());
    ::EnableWindow(parent.GetSafeHwnd(), TRUE);
    map->ResumeRequests();
    EXPECT_TRUE(kept.empty()) << "whoever enables the frame may not have finished yet";
    PumpPending();
    EXPECT_EQ(kept, std::vector<COLORREF>(2, GroundIn(MapPalette::Night)));
}

TEST_F(RequestedPicture, WaitsWhileTheTakerOfAnotherOneKeepsTheFrameFromInput) {
    Show(MapPalette::Night);
    std::size_t meanwhile = 1;
    map->RequestPicture([&](CBitmap*) {
        ::EnableWindow(parent.GetSafeHwnd(), FALSE);
        map->Finish();
        PumpPending();
        meanwhile = kept.size();
        ::EnableWindow(parent.GetSafeHwnd(), TRUE);
    });
    map->RequestPicture(Keep());
    map->Finish();
    PumpPending();
    EXPECT_EQ(meanwhile, 0u);
    EXPECT_EQ(kept.size(), 1u);
}

/// What a picture is, and whether its left lower part, where the scale bar stands, has anything but the ground.
struct SeenPicture {
    CSize size;
    bool hasScaleBar = false;
};

SeenPicture Look(CBitmap& picture, COLORREF ground) {
    BITMAP measured{};
    picture.GetBitmap(&measured);
    SeenPicture seen{{measured.bmWidth, measured.bmHeight}};
    CClientDC screen(nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap* const before = dc.SelectObject(&picture);
    for (int y = measured.bmHeight / 2; y < measured.bmHeight; ++y) {
        for (int x = 0; x < measured.bmWidth / 2; ++x) {
            seen.hasScaleBar = seen.hasScaleBar || dc.GetPixel(x, y) != ground;
        }
    }
    dc.SelectObject(before);
    return seen;
}

TEST_F(RequestedPicture, OfAPageHasItsScaleBarOnIt) {
    map->MoveWindow(0, 0, 4 * kWidth, 4 * kHeight); // the bar takes some room
    state.SetShown(MapLayer::ScaleBar, true);
    state.SetMode(MapMode::Print);
    map->ShowState();
    const WindowBox box = state.PageBox();
    for (const int fineness : {1, 2}) {
        SeenPicture seen;
        map->RequestPage(fineness, [&](CBitmap* picture) { seen = Look(*picture, GroundOf(state)); });
        ASSERT_TRUE(PumpUntil([&] { return seen.size.cx > 0; }));
        EXPECT_EQ(seen.size, CSize(fineness * (box.right - box.left), fineness * (box.bottom - box.top)));
        EXPECT_TRUE(seen.hasScaleBar);
    }
}

TEST_F(RequestedPicture, OfAPageHasNoCrossOfTheMarks) {
    state.SetMode(MapMode::Edit);
    map->ShowState();
    bool isTaken = false;
    map->RequestPage(1, [&](CBitmap* picture) {
        isTaken = true;
        CClientDC screen(nullptr);
        CDC dc;
        dc.CreateCompatibleDC(&screen);
        CBitmap* const before = dc.SelectObject(picture);
        BITMAP measured{};
        picture->GetBitmap(&measured);
        EXPECT_EQ(dc.GetPixel(measured.bmWidth / 2 + 8, measured.bmHeight / 2), GroundOf(state));
        dc.SelectObject(before);
    });
    ASSERT_TRUE(PumpUntil([&] { return isTaken; }));
}

TEST_F(RequestedPicture, OfAMapThatIsBeingDrawnComesWhenItIs) {
    Show(MapPalette::Night);
    ASSERT_FALSE(map->IsFinished());
    map->RequestPicture(Keep());
    EXPECT_TRUE(kept.empty()) << "nobody waits for it";
    ASSERT_TRUE(PumpUntil([this] { return !kept.empty(); }));
    EXPECT_EQ(kept, std::vector<COLORREF>{GroundIn(MapPalette::Night)});
}

TEST_F(RequestedPicture, ShowsTheMapAsItWasWhenItWasAskedFor) {
    ASSERT_NE(GroundIn(MapPalette::Night), GroundIn(MapPalette::Plain));
    Show(MapPalette::Night);
    map->RequestPicture(Keep());
    Show(MapPalette::Plain);
    ASSERT_TRUE(PumpUntil([this] { return !kept.empty() && map->IsFinished(); }));
    EXPECT_EQ(kept, std::vector<COLORREF>{GroundIn(MapPalette::Night)});
}

TEST_F(RequestedPicture, ComesForEachWhoAskedInTheirOrder) {
    Show(MapPalette::Night);
    map->RequestPicture(Keep());
    Show(MapPalette::Plain);
    map->RequestPicture(Keep());
    Show(MapPalette::Natural);
    map->RequestPicture(Keep());
    ASSERT_TRUE(PumpUntil([this] { return kept.size() == 3; }));
    EXPECT_EQ(kept, (std::vector<COLORREF>{GroundIn(MapPalette::Night), GroundIn(MapPalette::Plain),
                                           GroundIn(MapPalette::Natural)}));
}

TEST_F(RequestedPicture, IsTheTakersOnlyForTheCall) {
    HGDIOBJ handle = nullptr;
    map->RequestPicture([&handle](CBitmap* picture) { handle = picture->GetSafeHandle(); });
    ASSERT_NE(handle, nullptr);
    BITMAP bitmap{};
    EXPECT_EQ(::GetObjectW(handle, sizeof bitmap, &bitmap), 0);
}

TEST_F(RequestedPicture, ATakerMayWaitForTheNextOne) {
    Show(MapPalette::Night);
    map->RequestPicture([this](CBitmap*) {
        // As behind a question to the user.
        Show(MapPalette::Plain);
        map->RequestPicture(Keep());
        EXPECT_TRUE(PumpUntil([this] { return !kept.empty(); }));
    });
    ASSERT_TRUE(PumpUntil([this] { return !kept.empty(); }));
    PumpPending();
    EXPECT_EQ(kept, std::vector<COLORREF>{GroundIn(MapPalette::Plain)});
}

TEST_F(RequestedPicture, ATakerMayEndTheWindowAndThenNobodyElseGetsOne) {
    Show(MapPalette::Night);
    int taken = 0;
    for (int index = 0; index < 3; ++index) {
        map->RequestPicture([this, &taken](CBitmap*) {
            ++taken;
            map->DestroyWindow();
        });
    }
    // All three are drawn before the first is handed over.
    map->Finish();
    PumpPending();
    EXPECT_EQ(taken, 1);
    EXPECT_EQ(map->GetSafeHwnd(), nullptr);
}

TEST_F(RequestedPicture, WhoeverAskedIsForgottenWithTheWindow) {
    Show(MapPalette::Night);
    const auto owned = std::make_shared<int>(0);
    map->RequestPicture([owned](CBitmap*) { FAIL() << "the window is gone"; });
    EXPECT_EQ(owned.use_count(), 2);
    map->DestroyWindow();
    map.reset();
    PumpPending();
    EXPECT_EQ(owned.use_count(), 1);
}

} // namespace

#include "frames/maximized_place.h"
#include "tests/ui/frame_caption/caption_frame.h"

namespace {

constexpr RECT kPrimary{0, 0, 1920, 1080};

struct Case {
    const char* name;
    MaximizedSurroundings around;
    RECT frame;
};

const Case g_cases[] = {
    {"primary with task bar", {kPrimary, {0, 0, 1920, 1040}, kPrimary, 0}, {0, 0, 1920, 1040}},
    {"primary with task bar at the left", {kPrimary, {60, 0, 1920, 1080}, kPrimary, 0}, {60, 0, 1920, 1080}},
    {"second larger", {{1920, 0, 4480, 1440}, {1920, 0, 4480, 1440}, kPrimary, 0}, {1920, 0, 4480, 1440}},
    {"second larger with task bar", {{1920, 0, 4480, 1440}, {1920, 0, 4480, 1400}, kPrimary, 0}, {1920, 0, 4480, 1400}},
    {"second smaller", {{1920, 0, 3200, 1024}, {1920, 0, 3200, 984}, kPrimary, 0}, {1920, 0, 3200, 984}},
    {"second wider but lower", {{1920, 0, 4480, 1000}, {1920, 0, 4480, 960}, kPrimary, 0}, {1920, 0, 4480, 960}},
    {"second at the left", {{-2560, -360, 0, 1080}, {-2560, -360, 0, 1040}, kPrimary, 0}, {-2560, -360, 0, 1040}},
    {"second above", {{320, -1024, 1600, 0}, {320, -984, 1600, 0}, kPrimary, 0}, {320, -984, 1600, 0}},
    {"bar hides below", {kPrimary, kPrimary, kPrimary, 1U << ABE_BOTTOM}, {0, 0, 1920, 1079}},
    {"bar hides at the left", {kPrimary, kPrimary, kPrimary, 1U << ABE_LEFT}, {1, 0, 1920, 1080}},
    {"bars hide above and at the right of the second",
     {{-1280, 0, 0, 1024}, {-1280, 0, 0, 1024}, kPrimary, 1U << ABE_TOP | 1U << ABE_RIGHT},
     {-1280, 1, -1, 1024}},
    {"bar hides behind a docked one", {kPrimary, {0, 0, 1920, 1040}, kPrimary, 1U << ABE_BOTTOM}, {0, 0, 1920, 1040}},
    {"bar hides below the larger second",
     {{1920, 0, 4480, 1440}, {1920, 0, 4480, 1440}, kPrimary, 1U << ABE_BOTTOM},
     {1920, 0, 4480, 1439}},
};

/// What the system makes of an answer to WM_GETMINMAXINFO, as it is documented.
CRect PlacedBySystem(const MaximizedRequest& request, const MaximizedSurroundings& around) {
    const CRect monitor(around.monitor);
    const CRect primary(around.primary);
    CSize size(request.size);
    if (size.cx >= primary.Width() && size.cy >= primary.Height()) {
        size += monitor.Size() - primary.Size();
    }
    return {monitor.TopLeft() + CSize(request.position.x, request.position.y), size};
}

TEST(MaximizedPlace, TheFrameCoversTheWorkAreaOfItsMonitorAndLeavesHiddenBarsAPixel) {
    for (const Case& row : g_cases) {
        EXPECT_EQ(CRect(MaximizedFrameRect(row.around)), CRect(row.frame)) << row.name;
    }
}

TEST(MaximizedPlace, TheSystemPlacesTheFrameRightUnlessItFitsItToALargerMonitor) {
    for (const Case& row : g_cases) {
        const CRect placed = PlacedBySystem(RequestMaximized(row.around), row.around);
        const CRect frame(row.frame);
        const bool isLarger = frame.Width() >= 1920 && frame.Height() >= 1080 && row.around.primary.left == 0;
        if (isLarger) {
            EXPECT_EQ(placed.Size(), CRect(row.around.monitor).Size()) << row.name;
        } else {
            EXPECT_EQ(placed, frame) << row.name;
        }
    }
}

class MaximizedFrame : public ::testing::Test {
protected:
    MaximizedFrame() { frame.Show(); }

    WINDOWPOS Ask(const CRect& proposed, UINT flags = SWP_NOZORDER) {
        WINDOWPOS place{frame.m_hWnd, nullptr, proposed.left, proposed.top, proposed.Width(), proposed.Height(), flags};
        frame.SendMessage(WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&place));
        return place;
    }
    static CRect RectOf(const WINDOWPOS& place) { return {CPoint(place.x, place.y), CSize(place.cx, place.cy)}; }

    RibbonFrameWithCaption frame;
};

TEST_F(MaximizedFrame, APlaceThatTheSystemScaledTooLargeIsCorrected) {
    frame.ShowWindow(SW_MAXIMIZE);
    const CRect maximized = frame.WindowRect();
    CRect proposed = maximized;
    proposed.InflateRect(8, 8, 640, 400);
    EXPECT_EQ(RectOf(Ask(proposed)), maximized);
    frame.SetWindowPos(nullptr, proposed.left, proposed.top, proposed.Width(), proposed.Height(), SWP_NOZORDER);
    EXPECT_EQ(frame.WindowRect(), maximized);
}

TEST_F(MaximizedFrame, AnOrderThatNeitherMovesNorSizesIsLeftAlone) {
    frame.ShowWindow(SW_MAXIMIZE);
    const CRect unused(7, 8, 20, 30);
    EXPECT_EQ(RectOf(Ask(unused, SWP_NOMOVE | SWP_NOSIZE)), unused);
}

TEST_F(MaximizedFrame, AFrameThatIsNotMaximizedMayLieAnywhere) {
    const CRect proposed(CPoint(-300, -200), CSize(700, 500));
    EXPECT_EQ(RectOf(Ask(proposed)), proposed);
}

} // namespace

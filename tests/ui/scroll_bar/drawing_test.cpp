// The scroll bar's pixels.
#include "skins/skin_picture.h"

#include "tests/support/gui_objects.h"
#include "tests/ui/scroll_bar/bar_fixture.h"

#include <afxglobals.h>

#include <utility>

namespace {

constexpr COLORREF kGround = RGB(75, 80, 90);
constexpr COLORREF kSide = RGB(172, 183, 188);

class ScrollBarDrawing : public ScrollBarTest {
protected:
    /// Row of the image that is shown in a row of the bar.
    int ImageRow(int y) const { return GetRValue(Shown(m_bar).At(9, y)); }
};

TEST_F(ScrollBarDrawing, WithATotalLengthOf0ItShowsItsGroundAlone) {
    Open(CSize(20, 200), 0);
    EXPECT_EQ(Shown(m_bar).Colours(CRect(0, 0, 20, 200)), (std::set<COLORREF>{kGround}));
}

TEST_F(ScrollBarDrawing, WithALimitOf0ItShowsItsGroundAlone) {
    Open();
    ASSERT_GT(Shown(m_bar).Colours(CRect(0, 0, 20, 200)).size(), 1U);
    m_bar.limit = 0;
    m_bar.OnMouseWheelScroll();
    EXPECT_EQ(Shown(m_bar).Colours(CRect(0, 0, 20, 200)), (std::set<COLORREF>{kGround}))
        << "without waiting for a paint";
    m_bar.RedrawWindow();
    EXPECT_EQ(Shown(m_bar).Colours(CRect(0, 0, 20, 200)), (std::set<COLORREF>{kGround}));
}

TEST_F(ScrollBarDrawing, PartsWithoutASizeAreNotDrawn) {
    Open();
    for (const int width : {2, 1, 0}) {
        m_bar.SetScrollWidth(width);
        m_bar.SetTotalLength(1000);
        m_bar.RedrawWindow();
        EXPECT_EQ(Shown(m_bar).Colours(CRect(0, 0, 20, 200)), (std::set<COLORREF>{kGround})) << width;
    }
}

TEST_F(ScrollBarDrawing, ArrowsStandInTheMiddleInTheirOwnSize) {
    Open();
    const Shown shown(m_bar);
    const CRect up(CPoint(1 + 6, 7), kArrowSize);
    EXPECT_EQ(shown.Colours(up), (std::set<COLORREF>{ArrowColour(0, Up)}));
    EXPECT_EQ(shown.At(up.left - 1, up.top), kGround);
    EXPECT_EQ(shown.At(up.right, up.top), kGround);
    EXPECT_EQ(shown.At(up.left, up.bottom), kGround);
    EXPECT_EQ(shown.At(1, 0), kGround) << "no frame without a pointer";
    EXPECT_EQ(shown.Colours(CRect(CPoint(7, 189), kArrowSize)), (std::set<COLORREF>{ArrowColour(0, Down)}));
}

TEST_F(ScrollBarDrawing, UnderThePointerArrowsHaveAFrameOfOnePixel) {
    Open();
    for (const CPoint point : {CPoint(10, 150), m_bar.ThumbMiddle()}) {
        Leave();
        Move(point);
        const Shown shown(m_bar);
        for (const CRect& arrow : {m_bar.m_firstArrow, m_bar.m_secondArrow}) {
            EXPECT_EQ(shown.At(arrow.left, arrow.top), kSide);
            EXPECT_EQ(shown.At(arrow.right - 1, arrow.bottom - 1), kSide);
            EXPECT_EQ(shown.At(arrow.left, arrow.CenterPoint().y), kSide);
            EXPECT_EQ(shown.At(arrow.left + 1, arrow.top + 1), kGround);
        }
        EXPECT_EQ(shown.At(0, 0), kGround) << "outside the arrow";
    }
    Leave();
    EXPECT_EQ(Shown(m_bar).At(1, 0), kGround);
}

TEST_F(ScrollBarDrawing, TheThumbIsPressedUnderThePointerAndInTheHandAlone) {
    Open();
    const CPoint middle = m_bar.ThumbMiddle();
    const auto kind = [&] { return GetBValue(Shown(m_bar).At(middle)) - 50; };
    EXPECT_EQ(kind(), Vertical);
    Move(CPoint(10, 150));
    EXPECT_EQ(kind(), Vertical) << "over the bar";
    Move(middle);
    EXPECT_EQ(kind(), VerticalClick);
    Leave();
    EXPECT_EQ(kind(), Vertical);
    Press(middle);
    Move(middle);
    EXPECT_EQ(kind(), VerticalClick);
    Release();
}

TEST_F(ScrollBarDrawing, AThumbLongerThanItsImageIsTheWholeImageStretched) {
    Open(); // 82 pixels out of 60
    const int top = m_bar.m_thumb.top, bottom = m_bar.m_thumb.bottom;
    EXPECT_NEAR(ImageRow(top), 0, 1);
    EXPECT_NEAR(ImageRow((top + bottom) / 2), 30, 1);
    EXPECT_NEAR(ImageRow(bottom - 1), 59, 1);
    EXPECT_EQ(Shown(m_bar).At(9, bottom), kGround);
}

TEST_F(ScrollBarDrawing, AShorterThumbHasBothEndsAndTheMiddleOfItsImage) {
    Open(CSize(20, 200), 820); // 164 * 200 / 820
    const int top = m_bar.m_thumb.top;
    ASSERT_EQ(m_bar.m_thumb.Height(), 40);
    for (int y = 0; y < 40; ++y) {
        EXPECT_EQ(ImageRow(top + y), y < 2 ? y : y < 38 ? y - 2 + 12 : y + 20) << y;
    }
    EXPECT_EQ(Shown(m_bar).At(9, top + 40), kGround);
}

TEST_F(ScrollBarDrawing, AThumbOf19PixelsTakesItsMiddleFromTheTopOfItsImage) {
    Open(CSize(20, 200), 1726); // 164 * 200 / 1726 = 19.003
    ASSERT_EQ(m_bar.m_thumb.Height(), 19);
    EXPECT_EQ(ImageRow(m_bar.m_thumb.top + 2), 2);
    EXPECT_EQ(ImageRow(m_bar.m_thumb.top + 16), 16);
    EXPECT_EQ(ImageRow(m_bar.m_thumb.top + 17), 58);
}

TEST_F(ScrollBarDrawing, AThumbOf20PixelsTakesItsMiddleFromTheCentreOfItsImage) {
    Open(CSize(20, 200), 1640);
    ASSERT_EQ(m_bar.m_thumb.Height(), 20);
    EXPECT_EQ(ImageRow(m_bar.m_thumb.top + 1), 1);
    EXPECT_EQ(ImageRow(m_bar.m_thumb.top + 2), 22);
    EXPECT_EQ(ImageRow(m_bar.m_thumb.top + 17), 37);
    EXPECT_EQ(ImageRow(m_bar.m_thumb.top + 18), 58);
}

TEST_F(ScrollBarDrawing, AHorizontalThumbOf19PixelsTakesItsMiddleFromTheCentre) {
    Open(CSize(200, 20), 1726);
    ASSERT_EQ(m_bar.m_thumb.Width(), 19);
    const Shown shown(m_bar);
    EXPECT_EQ(GetRValue(shown.At(m_bar.m_thumb.left + 1, 9)), 1);
    EXPECT_EQ(GetRValue(shown.At(m_bar.m_thumb.left + 2, 9)), 22);
    EXPECT_EQ(GetRValue(shown.At(m_bar.m_thumb.right - 2, 9)), 58);
    EXPECT_EQ(GetBValue(shown.At(m_bar.m_thumb.left + 2, 9)) - 50, Horizon);
}

TEST_F(ScrollBarDrawing, TheThumbStandsInTheTracksOwnColumns) {
    Open();
    const Shown shown(m_bar);
    const int y = m_bar.m_thumb.CenterPoint().y;
    EXPECT_EQ(shown.At(0, y), kGround);
    EXPECT_NE(shown.At(1, y), kGround);
    EXPECT_NE(shown.At(18, y), kGround);
    EXPECT_EQ(shown.At(19, y), kGround);
}

TEST_F(ScrollBarDrawing, AChangedSkinShowsAtTheNextPaint) {
    Open();
    m_bar.SetSkin(1);
    m_bar.UpdateWindow();
    const Shown shown(m_bar);
    EXPECT_EQ(shown.At(0, 0), RGB(235, 240, 244));
    EXPECT_EQ(shown.At(9, 9), ArrowColour(100, Up));
    EXPECT_EQ(GetGValue(shown.At(m_bar.ThumbMiddle())), 100);
}

TEST_F(ScrollBarDrawing, AMissingImageIsLeftOut) {
    std::filesystem::remove(m_folder.Path() / "pic/skin/black/verticalNormal.png");
    std::filesystem::remove(m_folder.Path() / "pic/skin/black/upArrow.png");
    Open();
    const Shown shown(m_bar);
    EXPECT_EQ(shown.Colours(m_bar.m_track), (std::set<COLORREF>{kGround}));
    EXPECT_EQ(shown.Colours(m_bar.m_firstArrow), (std::set<COLORREF>{kGround}));
    EXPECT_EQ(shown.At(9, 190), ArrowColour(0, Down)) << "the others are drawn";
}

TEST_F(ScrollBarDrawing, AnUnchangedImageIsDecodedOnceNotPerPaint) {
    Open();
    const auto showAll = [this] {
        m_bar.RedrawWindow();
        Move(m_bar.ThumbMiddle());
        Leave();
    };
    showAll();
    const std::size_t before = SkinPicture::GetDecodeCount();
    for (int i = 0; i < 20; ++i) {
        showAll();
    }
    m_bar.SetSkin(0);
    showAll();
    EXPECT_EQ(SkinPicture::GetDecodeCount(), before);
    m_bar.SetSkin(1);
    showAll();
    EXPECT_EQ(SkinPicture::GetDecodeCount(), before + 4);
}

TEST_F(ScrollBarDrawing, OnALargerDisplayTheFileForItsScaleIsTakenWhereThereIsOne) {
    WriteSkinPicture(m_folder, "pic/skin/black/upArrow.150.png", CSize(9, 6), [](int, int) { return RGB(1, 150, 1); });
    WriteSkinPicture(m_folder, "pic/skin/black/upArrow.200.png", CSize(12, 8), [](int, int) { return RGB(1, 200, 1); });
    Open();
    for (const auto& [scale, green] : {std::pair(1.5, 150), std::pair(1.75, 150), std::pair(2.0, 200)}) {
        afxGlobalData.SetRibbonImageScale(scale);
        m_bar.SetSkin(0);
        m_bar.UpdateWindow();
        EXPECT_EQ(Shown(m_bar).At(9, 9), RGB(1, green, 1)) << scale;
        EXPECT_EQ(Shown(m_bar).At(9, 190), ArrowColour(0, Down)) << "which has none";
    }
    afxGlobalData.SetRibbonImageScale(1);
    m_bar.SetSkin(0);
    m_bar.UpdateWindow();
    EXPECT_EQ(Shown(m_bar).At(9, 9), ArrowColour(0, Up));
    afxGlobalData.SetRibbonImageScale(0);
}

TEST_F(ScrollBarDrawing, AReplacedADeletedAndARestoredFileEachShowAtTheVeryNextPaint) {
    Open();
    const char* const arrow = "pic/skin/black/upArrow.png";
    const char* const thumb = "pic/skin/black/verticalNormal.png";
    const auto replace = [this](const char* name, CSize size, COLORREF colour) {
        WriteSkinPicture(m_folder, name, size, [colour](int, int) { return colour; });
        SetWritten(m_folder.Path() / name, std::chrono::seconds(0));
    };
    const auto arrowAndThumb = [this] {
        m_bar.RedrawWindow();
        const Shown shown(m_bar);
        return std::pair(shown.At(9, 9), shown.At(m_bar.ThumbMiddle()));
    };
    const auto first = arrowAndThumb();
    ASSERT_EQ(first.first, ArrowColour(0, Up));
    replace(arrow, CSize(8, 8), RGB(9, 8, 7));
    replace(thumb, CSize(18, 61), RGB(6, 5, 4));
    EXPECT_EQ(arrowAndThumb(), std::pair(RGB(9, 8, 7), RGB(6, 5, 4)));
    std::filesystem::remove(m_folder.Path() / arrow);
    std::filesystem::remove(m_folder.Path() / thumb);
    EXPECT_EQ(arrowAndThumb(), std::pair(kGround, kGround));
    replace(arrow, kArrowSize, ArrowColour(0, Up));
    replace(thumb, kThumbSize, first.second);
    EXPECT_EQ(arrowAndThumb(), first);
}

// Drawn for every move of the pointer.
TEST_F(ScrollBarDrawing, AThumbInTheHandStaysAsItWasUntilItIsReleased) {
    Open();
    Move(m_bar.ThumbMiddle());
    Press(m_bar.ThumbMiddle());
    const COLORREF before = Shown(m_bar).At(m_bar.ThumbMiddle());
    WriteSkinPicture(m_folder, "pic/skin/black/verticalClick.png", CSize(18, 61),
                     [](int, int) { return RGB(6, 5, 4); });
    m_bar.RedrawWindow();
    EXPECT_EQ(Shown(m_bar).At(m_bar.ThumbMiddle()), before);
    Release();
    m_bar.RedrawWindow();
    EXPECT_EQ(Shown(m_bar).At(m_bar.ThumbMiddle()), RGB(6, 5, 4));
}

TEST_F(ScrollBarDrawing, AThumbInTheHandTakesAnotherSkinAtOnce) {
    Open();
    Move(m_bar.ThumbMiddle());
    Press(m_bar.ThumbMiddle());
    m_bar.SetSkin(1);
    m_bar.UpdateWindow();
    EXPECT_EQ(GetGValue(Shown(m_bar).At(m_bar.ThumbMiddle())), 100);
    Release();
}

TEST_F(ScrollBarDrawing, AReplacedThumbShowsWhenTheTrackAloneIsDrawn) {
    Open();
    WriteSkinPicture(m_folder, "pic/skin/black/verticalNormal.png", CSize(18, 61),
                     [](int, int) { return RGB(6, 5, 4); });
    m_bar.OnMouseWheelScroll();
    EXPECT_EQ(Shown(m_bar).At(m_bar.ThumbMiddle()), RGB(6, 5, 4));
}

TEST_F(ScrollBarDrawing, PaintingAndSkinsLeaveNothingBehind) {
    Open();
    EXPECT_TRUE(RepeatedLeavesNothingBehind(2, 30, [this](int round) {
        m_bar.SetSkin(static_cast<UINT>(round % 2));
        Move(m_bar.ThumbMiddle());
        m_bar.RedrawWindow();
        Leave();
    }));
}

} // namespace

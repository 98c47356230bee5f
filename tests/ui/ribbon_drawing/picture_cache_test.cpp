#include "visual/canvas.h"
#include "visual/paint_ribbon.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using visual::PictureCache;
using visual::Recipe;

/// A memory context of 64 x 64 pixels over one colour.
class Target {
public:
    Target() : m_dc(::CreateCompatibleDC(nullptr)), m_bitmap(visual::MakeBitmap32(side, side, &m_bits)) {
        m_previous = ::SelectObject(m_dc, m_bitmap);
        std::fill_n(m_bits, side * side, 0x00808040u);
    }
    ~Target() {
        ::SelectObject(m_dc, m_previous);
        ::DeleteObject(m_bitmap);
        ::DeleteDC(m_dc);
    }
    Target(const Target&) = delete;
    Target& operator=(const Target&) = delete;

    HDC Dc() const { return m_dc; }
    std::vector<std::uint32_t> Pixels() const {
        ::GdiFlush();
        return {m_bits, m_bits + side * side};
    }
    static constexpr int side = 64;

private:
    HDC m_dc;
    std::uint32_t* m_bits = nullptr;
    HBITMAP m_bitmap;
    HGDIOBJ m_previous = nullptr;
};

class KeptPictures : public testing::Test {
protected:
    KeptPictures() { PictureCache::Instance().Clear(); }
    ~KeptPictures() override { PictureCache::Instance().Clear(); }

    /// Paints twice, the second time from the kept picture, and once more elsewhere.
    template <class Paint>
    static void ExpectSameAgain(Paint paint) {
        const Target first, second;
        paint(first.Dc());
        const std::size_t count = PictureCache::Instance().Count();
        EXPECT_GT(count, 0u);
        paint(second.Dc());
        EXPECT_EQ(PictureCache::Instance().Count(), count);
        EXPECT_EQ(second.Pixels(), first.Pixels());
        EXPECT_NE(first.Pixels(), Target().Pixels());
    }
    static void Fill(HDC dc, const RECT& rect, const Recipe& recipe, std::uint32_t color) {
        const visual::Canvas canvas(dc, rect, recipe);
        if (!canvas.IsEmpty()) {
            std::fill_n(canvas.View().bits, canvas.View().width * canvas.View().height, color);
        }
    }
    static constexpr RECT place{4, 4, 60, 40};
    const visual::Skin& m_skin = visual::StyleSkin(0);
};

TEST_F(KeptPictures, EveryKindOfFaceLooksTheSameWhenItIsPaintedAgain) {
    for (const double scale : {1.0, 1.5, 2.0}) {
        const visual::Look look{m_skin, scale};
        const visual::Face& face = m_skin[visual::FaceSlot::ButtonHot];
        const RECT caption{4, 30, 60, 40};
        ExpectSameAgain([&](HDC dc) { visual::PaintFace(dc, place, face, visual::Corners::All(3), look); });
        ExpectSameAgain([&](HDC dc) { visual::PaintFill(dc, place, face, look); });
        ExpectSameAgain([&](HDC dc) { visual::PaintRibbonBackground(dc, place, look); });
        ExpectSameAgain([&](HDC dc) { visual::PaintTab(dc, place, {true, false, false, 0}, look); });
        ExpectSameAgain([&](HDC dc) { visual::PaintTab(dc, place, {false, true, false, 0xFF20A040}, look); });
        ExpectSameAgain([&](HDC dc) { visual::PaintCategory(dc, place, 10, 30, look); });
        ExpectSameAgain([&](HDC dc) { visual::PaintPanel(dc, place, caption, true, look); });
        ExpectSameAgain([&](HDC dc) { visual::PaintPanel(dc, place, {}, false, look); });
        ExpectSameAgain(
            [&](HDC dc) { visual::PaintArrow(dc, place, visual::ArrowDirection::Left, 0xFF202020, 0x80FFFFFF, look); });
        ExpectSameAgain([&](HDC dc) { visual::PaintCheckMark(dc, place, 0xFF202020, look); });
        ExpectSameAgain([&](HDC dc) { visual::PaintRadioMark(dc, place, 0xFF202020, look); });
        ExpectSameAgain([&](HDC dc) { visual::PaintZoomButton(dc, place, true, {}, look); });
    }
}

TEST_F(KeptPictures, OtherColoursSizesAndKindsAreOtherPictures) {
    const Target target;
    Fill(target.Dc(), place, Recipe("a", 1), 0xFF111111);
    Fill(target.Dc(), place, Recipe("a", 2), 0xFF222222);
    Fill(target.Dc(), place, Recipe("b", 1), 0xFF333333);
    Fill(target.Dc(), {0, 0, 10, 10}, Recipe("a", 1), 0xFF444444);
    EXPECT_EQ(PictureCache::Instance().Count(), 4u);
    const std::vector<std::uint32_t> pixels = target.Pixels();
    EXPECT_EQ(pixels[20 * Target::side + 20] & 0xFFFFFF, 0x333333u);
    EXPECT_EQ(pixels[0] & 0xFFFFFF, 0x444444u);
}

TEST_F(KeptPictures, ChangedColoursOfASkinShowAtOnce) {
    visual::Skin skin = m_skin;
    const Target before, after;
    visual::PaintGroup(before.Dc(), place, {skin});
    skin[visual::FaceSlot::Group].top1 = skin[visual::FaceSlot::Group].bottom2 = 0xFF00FF00;
    visual::PaintGroup(after.Dc(), place, {skin});
    EXPECT_NE(after.Pixels(), before.Pixels());
}

TEST_F(KeptPictures, APictureWithoutARecipeIsNotKept) {
    const Target target;
    Fill(target.Dc(), place, Recipe(), 0xFF111111);
    EXPECT_EQ(PictureCache::Instance().Count(), 0u);
}

TEST_F(KeptPictures, TheirNumberAndTheirPixelsAreLimited) {
    const Target target;
    for (int i = 0; i < 1000; ++i) {
        Fill(target.Dc(), {0, 0, 4, 4}, Recipe("small", i), 0xFF111111);
    }
    EXPECT_EQ(PictureCache::Instance().Count(), PictureCache::kMostPictures);
    for (int i = 0; i < 20; ++i) {
        Fill(target.Dc(), {0, 0, 1000, 1000}, Recipe("large", i), 0xFF111111);
    }
    EXPECT_LE(PictureCache::Instance().Count(), PictureCache::kMostPixels / 1000000);
    Fill(target.Dc(), {0, 0, 4000, 4000}, Recipe("too large"), 0xFF111111);
    EXPECT_LE(PictureCache::Instance().Count(), PictureCache::kMostPixels / 1000000);
}

TEST_F(KeptPictures, TheOneUsedLongestAgoGoesFirst) {
    const Target target;
    Fill(target.Dc(), place, Recipe("first"), 0xFF111111);
    for (int i = 0; i < 500; ++i) {
        Fill(target.Dc(), {0, 0, 4, 4}, Recipe("other", i), 0xFF222222);
        EXPECT_TRUE(PictureCache::Instance().Draw(target.Dc(), place, Recipe("first"))) << i;
    }
    EXPECT_FALSE(PictureCache::Instance().Draw(target.Dc(), {0, 0, 4, 4}, Recipe("other", 0)));
}

} // namespace

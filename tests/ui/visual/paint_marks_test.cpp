// The painters' small signs: arrows of two strokes, and the ring around what has the keyboard's focus.
#include "visual/paint_ribbon.h"
#include "visual/skin.h"

#include <gtest/gtest.h>

#include "tests/support/canvas.h"

using namespace visual;

namespace {

constexpr RECT kPlace{10, 10, 40, 40};
constexpr int kMiddle = 25;

TEST(Chevron, IsTwoStrokesWithNothingBetweenThem) {
    for (const double scale : {1.0, 1.5, 2.0}) {
        ::Canvas canvas;
        const Look look{StyleSkin(0), scale};
        PaintChevron(*canvas.Dc(), kPlace, ArrowDirection::Right, 0xFF000000, look);
        // Down through the end of the strokes: one of them, a gap, the other.
        const int column = kMiddle - look.Px(1);
        int strokes = 0;
        bool isIn = false;
        for (int y = kPlace.top; y < kPlace.bottom; ++y) {
            const bool isInk = canvas.At(column, y) != ::Canvas::background;
            strokes += isInk && !isIn ? 1 : 0;
            isIn = isInk;
        }
        EXPECT_EQ(strokes, 2) << scale;
    }
}

TEST(CollapsedPanel, HasTheLineBesideItThatOthersHave) {
    Skin skin = StyleSkin(0);
    skin.isFlat = true;
    for (const double scale : {1.0, 1.5, 2.0}) {
        const Look look{skin, scale};
        ::Canvas open, collapsed;
        PaintPanel(*open.Dc(), kPlace, {}, false, look);
        PaintDefaultPane(*collapsed.Dc(), kPlace, {}, look);
        for (int x = kPlace.right; x < kPlace.right + 2 * look.Line(); ++x) {
            EXPECT_NE(collapsed.At(x, kMiddle), ::Canvas::background) << scale;
            EXPECT_EQ(collapsed.At(x, kMiddle), open.At(x, kMiddle)) << scale;
        }
    }
}

TEST(FocusRing, CanBeToldFromEveryGround) {
    for (std::size_t style = 0; style < g_styleCount; ++style) {
        for (const Argb ground : {0xFF000000u, 0xFFFFFFFFu, 0xFF51575Eu, 0xFF32343Eu, 0xFF1C64C8u, 0xFF6EA8FEu}) {
            for (const double scale : {1.0, 1.5, 2.0}) {
                ::Canvas canvas;
                const Look look{StyleSkin(style), scale};
                PaintSolid(*canvas.Dc(), {0, 0, 64, 64}, ground);
                PaintFocus(*canvas.Dc(), kPlace, ground, look);
                for (int i = 0; i < 2 * look.Line(); ++i) {
                    const Argb ring = 0xFF000000u | canvas.At(kMiddle, kPlace.top + i);
                    EXPECT_GE(Contrast(ring, ground), g_leastContrast) << style << ' ' << std::hex << ground;
                }
                EXPECT_EQ(0xFF000000u | canvas.At(kMiddle, kMiddle), ground) << "what it surrounds is seen";
                EXPECT_EQ(0xFF000000u | canvas.At(kMiddle, kPlace.top - 1), ground);
            }
        }
    }
}

} // namespace

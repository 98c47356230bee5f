#include "visual/canvas.h"
#include "visual/paint.h"
#include "visual/skin_table.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr int kSide = 64;
constexpr std::uint32_t kGround = 0x00FFFFFF;

/// How far the mark's outermost pixels are from the sides of a square into which it is painted.
RECT MarginsOfCheckMark(int side, DWORD layout) {
    const HDC dc = ::CreateCompatibleDC(nullptr);
    std::uint32_t* bits = nullptr;
    const HBITMAP bitmap = visual::MakeBitmap32(kSide, kSide, &bits);
    const HGDIOBJ previous = ::SelectObject(dc, bitmap);
    std::fill_n(bits, kSide * kSide, kGround);
    ::SetLayout(dc, layout);
    visual::PaintCheckMark(dc, {0, 0, side, side}, 0xFF000000, {visual::StyleSkin(0), 1.0});
    ::GdiFlush();
    const int first = layout == LAYOUT_RTL ? kSide - side : 0;
    RECT margins{side, side, side, side};
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            // Half covered pixels and darker ones.
            if ((bits[y * kSide + first + x] & 0xFF) < 0x80) {
                margins.left = std::min<LONG>(margins.left, x);
                margins.right = std::min<LONG>(margins.right, side - 1 - x);
                margins.top = std::min<LONG>(margins.top, y);
                margins.bottom = std::min<LONG>(margins.bottom, side - 1 - y);
            }
        }
    }
    ::SelectObject(dc, previous);
    ::DeleteObject(bitmap);
    ::DeleteDC(dc);
    return margins;
}

TEST(CheckMark, StandsInTheMiddleOfItsSquare) {
    for (const int side : {13, 16, 20, 24, 32, 48, 60}) {
        for (const DWORD layout : {DWORD{0}, DWORD{LAYOUT_RTL}}) {
            const RECT margins = MarginsOfCheckMark(side, layout);
            ASSERT_LT(margins.left, side / 2);
            EXPECT_NEAR(margins.left, margins.right, 1) << side << ' ' << layout;
            EXPECT_NEAR(margins.top, margins.bottom, 1) << side << ' ' << layout;
        }
    }
}

} // namespace

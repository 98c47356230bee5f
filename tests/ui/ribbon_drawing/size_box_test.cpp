// The dots in the corner by which a window is dragged.
#include "visual/canvas.h"
#include "visual/paint.h"
#include "visual/skin_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

constexpr int kSide = 64;
constexpr std::uint32_t kGround = 0x00FFFFFF;

/// Lengths of the runs of dots in the lowest row that has any, from the left.
std::vector<int> LowestRow(int box, double scale) {
    const HDC dc = ::CreateCompatibleDC(nullptr);
    std::uint32_t* bits = nullptr;
    const HBITMAP bitmap = visual::MakeBitmap32(kSide, kSide, &bits);
    const HGDIOBJ previous = ::SelectObject(dc, bitmap);
    std::fill_n(bits, kSide * kSide, kGround);
    visual::Skin skin = visual::StyleSkin(0);
    skin[visual::ColorSlot::GripperLight] = 0;
    skin[visual::ColorSlot::GripperDark] = 0xFF000000;
    visual::PaintSizeBox(dc, {kSide - box, kSide - box, kSide, kSide}, {skin, scale});
    ::GdiFlush();
    std::vector<int> runs;
    for (int y = kSide - 1; y >= 0 && runs.empty(); --y) {
        bool isInside = false;
        for (int x = 0; x < kSide; ++x) {
            const bool isDot = (bits[y * kSide + x] & 0xFFFFFF) == 0;
            if (isDot && !isInside) {
                runs.push_back(0);
            }
            isInside = isDot;
            if (isDot) {
                ++runs.back();
            }
        }
    }
    ::SelectObject(dc, previous);
    ::DeleteObject(bitmap);
    ::DeleteDC(dc);
    return runs;
}

TEST(SizeBox, ShowsThreeWholeDotsWhereItIsSmallerThanTheScaleAsksFor) {
    for (const int box : {16, 17, 18, 24, 34}) {
        for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
            const int dot = static_cast<int>(2 * scale + 0.5);
            EXPECT_EQ(LowestRow(box, scale), std::vector<int>(3, dot)) << box << " at " << scale;
        }
    }
}

} // namespace

// The bitmap behind a paint: made once for many paints, and clipped to what is to be painted.
#include "ribbon/paint_buffer.h"
#include "tests/support/import_spy.h"
#include "visual/canvas.h"

#include <gtest/gtest.h>

extern "C" {
extern void* __imp_CreateDIBSection;
}

namespace {

int g_made = 0;
decltype(&::CreateDIBSection) g_createDIBSection = nullptr;

HBITMAP WINAPI CountMade(HDC dc, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section, DWORD offset) {
    ++g_made;
    return g_createDIBSection(dc, info, usage, bits, section, offset);
}

enum class Direction { LeftToRight, RightToLeft };

/// A bitmap's context to paint to.
class Target {
public:
    static constexpr int kWidth = 400, kHeight = 200;

    explicit Target(Direction direction = Direction::LeftToRight) {
        std::uint32_t* bits = nullptr;
        m_dc.CreateCompatibleDC(nullptr);
        m_bitmap = visual::MakeBitmap32(kWidth, kHeight, &bits);
        m_previous = ::SelectObject(m_dc, m_bitmap);
        if (direction == Direction::RightToLeft) {
            ::SetLayout(m_dc, LAYOUT_RTL);
        }
    }
    ~Target() {
        ::SelectObject(m_dc, m_previous);
        ::DeleteObject(m_bitmap);
    }
    Target(const Target&) = delete;
    Target& operator=(const Target&) = delete;

    CDC& Dc() { return m_dc; }
    void Paint(int width, int height) { const RibbonPaintBuffer buffer(m_dc, CRect(0, 0, width, height)); }

private:
    CDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_previous = nullptr;
};

class PaintBuffer : public testing::Test {
protected:
    PaintBuffer() {
        g_made = 0;
        g_createDIBSection = m_spy.GetOriginal();
    }

private:
    const ImportSpy<decltype(::CreateDIBSection)> m_spy{__imp_CreateDIBSection, &CountMade};
};

TEST_F(PaintBuffer, PaintsOfChangingShapesSoonShareOneBitmap) {
    Target target;
    target.Paint(400, 20);
    target.Paint(100, 200);
    g_made = 0;
    for (int round = 0; round < 10; ++round) {
        target.Paint(400, 20);
        target.Paint(100, 200);
        target.Paint(400, 200);
        target.Paint(1, 1);
    }
    EXPECT_EQ(g_made, 0);
}

TEST_F(PaintBuffer, APictureThatIsTooLargeToKeepLeavesTheKeptOne) {
    Target target;
    target.Paint(400, 200);
    g_made = 0;
    target.Paint(4000, 2000);
    EXPECT_EQ(g_made, 1);
    target.Paint(400, 200);
    EXPECT_EQ(g_made, 1);
    target.Paint(4000, 2000);
    EXPECT_EQ(g_made, 2) << "it was too large to keep";
}

TEST_F(PaintBuffer, APaintWithinAPaintHasABitmapOfItsOwn) {
    Target one, other;
    const RibbonPaintBuffer outer(one.Dc(), CRect(0, 0, 50, 50));
    g_made = 0;
    other.Paint(50, 50);
    EXPECT_EQ(g_made, 1);
}

class ClippedPaintBuffer : public testing::TestWithParam<Direction> {};

TEST_P(ClippedPaintBuffer, WhatLiesBetweenTwoFarPlacesCanBeLeftOut) {
    Target target(GetParam());
    const CRect left(10, 5, 30, 15), right(200, 100, 230, 120);
    CRgn shown, second;
    shown.CreateRectRgnIndirect(left);
    second.CreateRectRgnIndirect(right);
    shown.CombineRgn(&shown, &second, RGN_OR);
    // From a larger paint a larger bitmap is at hand.
    target.Paint(400, 200);
    RibbonPaintBuffer buffer(target.Dc(), CRect(10, 5, 230, 120), shown);
    CDC& dc = buffer.GetDC();
    for (const CRect& place : {left, right}) {
        for (int x = place.left; x < place.right; ++x) {
            EXPECT_TRUE(dc.RectVisible(CRect(x, place.top, x + 1, place.bottom))) << x;
        }
        EXPECT_FALSE(dc.RectVisible(CRect(place.left - 9, place.top, place.left - 1, place.bottom)));
        EXPECT_FALSE(dc.RectVisible(CRect(place.right + 1, place.top, place.right + 9, place.bottom)));
        EXPECT_FALSE(dc.RectVisible(CRect(place.left, place.bottom, place.right, place.bottom + 9)));
    }
    EXPECT_FALSE(dc.RectVisible(CRect(40, 5, 190, 120)));
    EXPECT_FALSE(dc.RectVisible(CRect(260, 0, 400, 200))) << "outside of the area";
}

INSTANTIATE_TEST_SUITE_P(Both, ClippedPaintBuffer, testing::Values(Direction::LeftToRight, Direction::RightToLeft),
                         [](const auto& test) {
                             return test.param == Direction::RightToLeft ? "RightToLeft" : "LeftToRight";
                         });

} // namespace

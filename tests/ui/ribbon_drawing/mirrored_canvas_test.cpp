// Pictures in a mirrored device context lie where the same context puts what it fills itself.
#include "gdi/device_pixels.h"
#include "visual/canvas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace {

constexpr int kWidth = 40;
constexpr int kHeight = 12;
constexpr RECT kPlace{5, 2, 15, 10};
constexpr std::uint32_t kMarked = 0xFFFF0000;

/// A mirrored context on a black bitmap.
class MirroredBitmap {
public:
    MirroredBitmap() : m_dc(::CreateCompatibleDC(nullptr)), m_bitmap(visual::MakeBitmap32(kWidth, kHeight, &m_bits)) {
        m_earlier = ::SelectObject(m_dc, m_bitmap);
        ::SetLayout(m_dc, LAYOUT_RTL);
    }
    ~MirroredBitmap() {
        ::SelectObject(m_dc, m_earlier);
        ::DeleteObject(m_bitmap);
        ::DeleteDC(m_dc);
    }
    MirroredBitmap(const MirroredBitmap&) = delete;
    MirroredBitmap& operator=(const MirroredBitmap&) = delete;

    HDC Dc() const { return m_dc; }
    /// Columns of a row, counted from the left of the bitmap, that are red.
    std::vector<int> RedColumns(int row) const {
        ::GdiFlush();
        std::vector<int> columns;
        for (int x = 0; x < kWidth; ++x) {
            if ((m_bits[row * kWidth + x] & 0xFFFFFF) == 0xFF0000) {
                columns.push_back(x);
            }
        }
        return columns;
    }

private:
    HDC m_dc;
    std::uint32_t* m_bits = nullptr;
    HBITMAP m_bitmap;
    HGDIOBJ m_earlier = nullptr;
};

} // namespace

TEST(MirroredCanvas, PictureLiesWhereTheContextFillsTheSameRectangle) {
    const MirroredBitmap filled;
    const HBRUSH red = ::CreateSolidBrush(RGB(255, 0, 0));
    ::FillRect(filled.Dc(), &kPlace, red);
    ::DeleteObject(red);
    const std::vector<int> expected = filled.RedColumns(5);
    ASSERT_EQ(expected.size(), 10u);

    const MirroredBitmap drawn;
    {
        const visual::Canvas canvas(drawn.Dc(), kPlace);
        ASSERT_FALSE(canvas.IsEmpty());
        std::fill_n(canvas.View().bits, canvas.View().width * canvas.View().height, kMarked);
    }
    EXPECT_EQ(drawn.RedColumns(5), expected);
}

TEST(MirroredCanvas, PictureIsTurnedRound) {
    const MirroredBitmap drawn;
    {
        const visual::Canvas canvas(drawn.Dc(), kPlace);
        ASSERT_FALSE(canvas.IsEmpty());
        for (int y = 0; y < canvas.View().height; ++y) {
            canvas.View().bits[y * canvas.View().width] = kMarked; // the first column
        }
    }
    EXPECT_EQ(drawn.RedColumns(5), std::vector<int>{kWidth - 1 - static_cast<int>(kPlace.left)});
}

TEST(MirroredCanvas, ContextIsMirroredAsBeforeAfterThePicture) {
    const MirroredBitmap drawn;
    ::SetViewportOrgEx(drawn.Dc(), 3, 1, nullptr);
    POINT before{7, 4};
    ::LPtoDP(drawn.Dc(), &before, 1);
    { const gdi::ScopedDevicePixels pixels(drawn.Dc()); }
    POINT after{7, 4};
    ::LPtoDP(drawn.Dc(), &after, 1);
    EXPECT_EQ(after.x, before.x);
    EXPECT_EQ(after.y, before.y);
    EXPECT_TRUE(gdi::IsMirrored(drawn.Dc()));
}

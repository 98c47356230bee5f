#include "images_fixture.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace {

/// An icon of one colour with alpha; the caller destroys it.
HICON MakeTranslucentIcon(int side, std::uint32_t argb) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), side, -side, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP color = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    std::fill_n(static_cast<std::uint32_t*>(bits), side * side, argb);
    const std::vector<BYTE> clear(static_cast<std::size_t>(side) * 2);
    const HBITMAP mask = ::CreateBitmap(side, side, 1, 1, clear.data());
    ICONINFO parts{TRUE, 0, 0, mask, color};
    const HICON icon = ::CreateIconIndirect(&parts);
    ::DeleteObject(mask);
    ::DeleteObject(color);
    return icon;
}

TEST_F(Images, CountsAndDrawsByIndex) {
    EXPECT_EQ(m_images.GetCount(), 3);
    CAfxDrawState state;
    ASSERT_TRUE(m_images.PrepareDrawImage(state));
    EXPECT_TRUE(m_images.Draw(&m_dc, 1, 1, 1));
    EXPECT_FALSE(m_images.Draw(&m_dc, 1, 1, 3));
    m_images.EndDrawImage(state);
    EXPECT_EQ(m_dc.GetPixel(1, 1), RGB(0, 0xC0, 0));
    EXPECT_EQ(m_dc.GetPixel(5, 5), RGB(255, 255, 255));
}

TEST_F(Images, ClearPixelsLeaveTheGroundAlone) {
    EXPECT_TRUE(m_images.DrawEx(&m_dc, CRect(0, 0, 4, 4), 2));
    EXPECT_EQ(m_dc.GetPixel(2, 2), RGB(255, 255, 255));
}

TEST_F(Images, DisabledIsGreyWithLessContrast) {
    m_images.Draw(&m_dc, 0, 0, 0, FALSE, TRUE);
    const COLORREF color = m_dc.GetPixel(1, 1);
    EXPECT_EQ(GetRValue(color), GetGValue(color));
    EXPECT_EQ(GetGValue(color), GetBValue(color));
    EXPECT_GT(GetRValue(color), 0x40);
    EXPECT_LT(GetRValue(color), 0xF0);
}

TEST_F(Images, APreparedListDrawsAnyNumberOfTimesAndInEachState) {
    const auto at = [this](int x) { return m_dc.GetPixel(x + 2, 1); };
    CAfxDrawState state;
    ASSERT_TRUE(m_images.PrepareDrawImage(state, CSize(0, 0), TRUE));
    EXPECT_TRUE(m_images.Draw(&m_dc, 0, 0, 0));
    EXPECT_TRUE(m_images.Draw(&m_dc, 4, 0, 0, FALSE, TRUE));
    EXPECT_TRUE(m_images.Draw(&m_dc, 8, 0, 0, FALSE, FALSE, TRUE));
    EXPECT_TRUE(m_images.Draw(&m_dc, 12, 0, 0, FALSE, FALSE, FALSE, TRUE));
    EXPECT_TRUE(m_images.Draw(&m_dc, 16, 0, 0, FALSE, FALSE, FALSE, FALSE, TRUE));
    EXPECT_TRUE(m_images.Draw(&m_dc, 20, 0, 0, FALSE, FALSE, FALSE, FALSE, FALSE, 128));
    m_images.EndDrawImage(state);
    const COLORREF plain = RGB(0xC0, 0, 0);
    EXPECT_EQ(at(0), plain);
    EXPECT_EQ(GetRValue(at(4)), GetGValue(at(4))) << "disabled: grey";
    int drawn = 0;
    for (int x = 8; x < 12; ++x) {
        for (int y = 0; y < 4; ++y) {
            const COLORREF pixel = m_dc.GetPixel(x, y);
            EXPECT_TRUE(pixel == plain || pixel == RGB(255, 255, 255)) << "indeterminate: every other pixel";
            drawn += pixel == plain ? 1 : 0;
        }
    }
    EXPECT_EQ(drawn, 8);
    EXPECT_EQ(at(12), RGB(170, 170, 170)) << "shadow: a third of black";
    EXPECT_GT(GetGValue(at(16)), 0) << "inactive: the ground shows through";
    EXPECT_GT(GetRValue(at(16)), 0xC0);
    EXPECT_NEAR(GetGValue(at(20)), 127, 2) << "half of it";
}

TEST_F(Images, OnlyAListThatIsPreparedToFadeDoes) {
    CAfxDrawState state;
    ASSERT_TRUE(m_images.PrepareDrawImage(state));
    m_images.Draw(&m_dc, 0, 0, 0, FALSE, FALSE, FALSE, FALSE, TRUE);
    m_images.EndDrawImage(state);
    EXPECT_EQ(m_dc.GetPixel(1, 1), RGB(0xC0, 0, 0));
    CMFCToolBarImages empty;
    EXPECT_FALSE(empty.PrepareDrawImage(state)) << "there is nothing to draw";
}

TEST_F(Images, EndDrawImagePutsTheSizeBack) {
    CAfxDrawState state;
    ASSERT_TRUE(m_images.PrepareDrawImage(state, CSize(8, 8)));
    EXPECT_EQ(CSize(m_images.GetImageSize(TRUE)), CSize(8, 8));
    m_images.Draw(&m_dc, 0, 0, 0);
    m_images.EndDrawImage(state);
    EXPECT_EQ(CSize(m_images.GetImageSize(TRUE)), CSize(4, 4));
    EXPECT_EQ(m_dc.GetPixel(6, 6), RGB(0xC0, 0, 0));
}

TEST_F(Images, ResizingKeepsImagesApart) {
    ASSERT_TRUE(m_images.SmoothResize(1.5));
    EXPECT_EQ(m_images.GetScale(), 1.5);
    EXPECT_TRUE(m_images.IsScaled());
    EXPECT_EQ(CSize(m_images.GetImageSize()), CSize(6, 6));
    EXPECT_EQ(m_images.GetCount(), 3);
    m_images.DrawEx(&m_dc, CRect(0, 0, 6, 6), 0);
    EXPECT_EQ(m_dc.GetPixel(5, 5), RGB(0xC0, 0, 0));
}

TEST_F(Images, DeletingMovesTheLaterOnesUp) {
    ASSERT_TRUE(m_images.DeleteImage(0));
    EXPECT_EQ(m_images.GetCount(), 2);
    m_images.DrawEx(&m_dc, CRect(0, 0, 4, 4), 0);
    EXPECT_EQ(m_dc.GetPixel(0, 0), RGB(0, 0xC0, 0));
}

TEST_F(Images, CopyIsIndependent) {
    CMFCToolBarImages copy;
    ASSERT_TRUE(m_images.CopyTo(copy));
    m_images.Clear();
    EXPECT_FALSE(m_images.IsValid());
    EXPECT_EQ(copy.GetCount(), 3);
    copy.DrawEx(&m_dc, CRect(0, 0, 4, 4), 1);
    EXPECT_EQ(m_dc.GetPixel(0, 0), RGB(0, 0xC0, 0));
}

TEST_F(Images, IconsAreAddedAtTheListsSize) {
    const HICON icon = m_images.ExtractIcon(1);
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(m_images.AddIcon(icon, TRUE), 3);
    ::DestroyIcon(icon);
    m_images.DrawEx(&m_dc, CRect(0, 0, 4, 4), 3);
    EXPECT_EQ(m_dc.GetPixel(2, 2), RGB(0, 0xC0, 0));
    EXPECT_EQ(m_images.AddIcon(nullptr), -1);
}

/// A list of images of 4 x 4 pixels, the first of which, red, is blue in a picture of 8 x 8.
class ImagesWithALarger : public Images {
protected:
    void SetUp() override {
        Images::SetUp();
        const HICON icon = MakeTranslucentIcon(8, 0xFF0000C0);
        ASSERT_TRUE(m_images.SetLargerIcon(0, icon, CSize(8, 8)));
        ::DestroyIcon(icon);
    }
    COLORREF DrawnAt(CMFCToolBarImages& images, int index, int side) {
        m_dc.FillSolidRect(0, 0, 32, 32, RGB(255, 255, 255));
        CAfxDrawState state;
        EXPECT_TRUE(images.PrepareDrawImage(state, CSize(side, side)));
        EXPECT_TRUE(images.Draw(&m_dc, 0, 0, index));
        images.EndDrawImage(state);
        return m_dc.GetPixel(side / 2, side / 2);
    }
    static constexpr COLORREF kRed = RGB(0xC0, 0, 0), kGreen = RGB(0, 0xC0, 0), kBlue = RGB(0, 0, 0xC0);
};

TEST_F(ImagesWithALarger, TheLargerPictureIsDrawnWhereTheImageIsEnlarged) {
    EXPECT_EQ(DrawnAt(m_images, 0, 4), kRed);
    EXPECT_EQ(DrawnAt(m_images, 0, 3), kRed) << "made smaller";
    for (const int side : {6, 8, 12}) {
        EXPECT_EQ(DrawnAt(m_images, 0, side), kBlue) << side;
    }
    EXPECT_EQ(DrawnAt(m_images, 1, 8), kGreen) << "one that has none";
    EXPECT_TRUE(m_images.DrawEx(&m_dc, CRect(0, 0, 8, 8), 0, CMFCToolBarImages::ImageAlignHorzStretch,
                                CMFCToolBarImages::ImageAlignVertStretch));
    EXPECT_EQ(m_dc.GetPixel(4, 4), kBlue);
    EXPECT_TRUE(m_images.DrawEx(&m_dc, CRect(0, 0, 8, 8), 0, CMFCToolBarImages::ImageAlignHorzStretch,
                                CMFCToolBarImages::ImageAlignVertStretch, CRect(0, 0, 2, 2)));
    EXPECT_EQ(m_dc.GetPixel(4, 4), kRed) << "a part of the image is one of the list's own";
}

TEST_F(ImagesWithALarger, TheLargerPictureFollowsItsImage) {
    CMFCToolBarImages copy;
    ASSERT_TRUE(m_images.CopyTo(copy));
    EXPECT_EQ(DrawnAt(copy, 0, 8), kBlue);
    EXPECT_EQ(m_images.AddImage(m_images, 0), 3);
    EXPECT_EQ(DrawnAt(m_images, 3, 8), kBlue) << "a copy";
    ASSERT_TRUE(m_images.DeleteImage(0));
    EXPECT_EQ(DrawnAt(m_images, 0, 8), kGreen);
    EXPECT_EQ(DrawnAt(m_images, 2, 8), kBlue) << "it has moved up with its image";
    ASSERT_TRUE(m_images.GrayImages(100));
    const COLORREF grey = DrawnAt(m_images, 2, 8);
    EXPECT_EQ(GetRValue(grey), GetBValue(grey));
    m_images.Clear();
    m_images.SetImageSize(CSize(4, 4));
    const HBITMAP strip = Strip({0xFFC00000});
    m_images.AddImage(strip);
    ::DeleteObject(strip);
    EXPECT_EQ(DrawnAt(m_images, 0, 8), kRed) << "gone with the images";
}

TEST_F(ImagesWithALarger, ResizingTakesTheLargerPicture) {
    ASSERT_TRUE(m_images.SmoothResize(2));
    EXPECT_EQ(DrawnAt(m_images, 0, 8), kBlue);
    EXPECT_EQ(DrawnAt(m_images, 1, 8), kGreen);
}

TEST_F(ImagesWithALarger, OnlyALargerPictureOfAnImageThatIsThereIsTaken) {
    const HICON icon = MakeTranslucentIcon(8, 0xFF0000C0);
    EXPECT_FALSE(m_images.SetLargerIcon(3, icon, CSize(8, 8))) << "no such image";
    EXPECT_FALSE(m_images.SetLargerIcon(-1, icon, CSize(8, 8)));
    EXPECT_FALSE(m_images.SetLargerIcon(1, icon, CSize(4, 4))) << "not larger";
    EXPECT_FALSE(m_images.SetLargerIcon(1, nullptr, CSize(8, 8)));
    EXPECT_EQ(DrawnAt(m_images, 1, 8), kGreen);
    ::DestroyIcon(icon);
}

TEST_F(Images, AnIconsSoftEdgesAreKeptWithoutBlendingToo) {
    for (const BOOL blends : {FALSE, TRUE}) {
        const HICON icon = MakeTranslucentIcon(4, 0x80000000);
        CMFCToolBarImages images;
        images.SetImageSize(CSize(4, 4));
        EXPECT_EQ(images.AddIcon(icon, blends), 0);
        ::DestroyIcon(icon);
        m_dc.FillSolidRect(0, 0, 4, 4, RGB(255, 255, 255));
        images.DrawEx(&m_dc, CRect(0, 0, 4, 4), 0);
        EXPECT_NEAR(GetRValue(m_dc.GetPixel(2, 2)), 127, 2) << blends;
    }
}

/// Of 4 x 4 pixels. Each row of the mask is two bytes; the colours may be null.
HICON MaskedIcon(const std::vector<BYTE>& mask, const std::uint32_t* colors) {
    constexpr int side = 4;
    ICONINFO info{};
    info.fIcon = TRUE;
    info.hbmMask = ::CreateBitmap(side, static_cast<int>(mask.size() / 2), 1, 1, mask.data());
    info.hbmColor = colors != nullptr ? ::CreateBitmap(side, side, 1, 32, colors) : nullptr;
    const HICON icon = ::CreateIconIndirect(&info);
    ::DeleteObject(info.hbmMask);
    if (info.hbmColor != nullptr) {
        ::DeleteObject(info.hbmColor);
    }
    return icon;
}

TEST_F(Images, AnIconWithoutAlphaIsCutByItsMask) {
    std::array<std::uint32_t, 16> colors;
    colors.fill(0x00C00000);
    const HICON icon = MaskedIcon({0xF0, 0, 0xF0, 0, 0, 0, 0, 0}, colors.data());
    EXPECT_EQ(m_images.AddIcon(icon), 3);
    ::DestroyIcon(icon);
    m_images.DrawEx(&m_dc, CRect(0, 0, 4, 4), 3);
    EXPECT_EQ(m_dc.GetPixel(1, 1), RGB(255, 255, 255));
    EXPECT_EQ(m_dc.GetPixel(1, 2), RGB(0xC0, 0, 0));
}

TEST_F(Images, AnIconWithoutColoursHasItsPictureBelowItsMask) {
    m_dc.FillSolidRect(0, 0, 4, 4, RGB(0, 255, 0));
    const HICON icon = MaskedIcon({0xF0, 0, 0xF0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xF0, 0, 0, 0}, nullptr);
    EXPECT_EQ(m_images.AddIcon(icon), 3);
    ::DestroyIcon(icon);
    m_images.DrawEx(&m_dc, CRect(0, 0, 4, 4), 3);
    EXPECT_EQ(m_dc.GetPixel(1, 1), RGB(0, 255, 0));
    EXPECT_EQ(m_dc.GetPixel(1, 2), RGB(255, 255, 255));
    EXPECT_EQ(m_dc.GetPixel(1, 3), RGB(0, 0, 0));
}

TEST_F(Images, MirroringRightToLeftTurnsEachImage) {
    ASSERT_TRUE(m_images.Mirror());
    m_images.DrawEx(&m_dc, CRect(0, 0, 4, 4), 0);
    EXPECT_EQ(m_dc.GetPixel(0, 0), RGB(0xC0, 0, 0));
}

TEST_F(Images, AnImageIsNotTurnedRoundInAMirroredWindow) {
    const HBITMAP halves = Strip({0xFFC00000, 0xFF00C000});
    CMFCToolBarImages images;
    images.SetImageSize(CSize(8, 4));
    ASSERT_EQ(images.AddImage(halves), 0);
    ::DeleteObject(halves);
    ::SetLayout(m_dc, LAYOUT_RTL);
    EXPECT_TRUE(images.Draw(&m_dc, 2, 1, 0));
    EXPECT_TRUE(images.DrawEx(&m_dc, CRect(2, 11, 18, 19), 0, CMFCToolBarImages::ImageAlignHorzStretch,
                              CMFCToolBarImages::ImageAlignVertStretch));
    ::SetLayout(m_dc, 0);
    const COLORREF white = RGB(255, 255, 255), red = RGB(0xC0, 0, 0), green = RGB(0, 0xC0, 0);
    // Of 32 pixels the rectangle from 2 to 10 has those from 22 on.
    EXPECT_EQ(m_dc.GetPixel(21, 2), white);
    EXPECT_EQ(m_dc.GetPixel(22, 2), red);
    EXPECT_EQ(m_dc.GetPixel(25, 2), red);
    EXPECT_EQ(m_dc.GetPixel(26, 2), green);
    EXPECT_EQ(m_dc.GetPixel(29, 2), green);
    EXPECT_EQ(m_dc.GetPixel(30, 2), white);
    EXPECT_EQ(m_dc.GetPixel(13, 12), white);
    EXPECT_EQ(m_dc.GetPixel(14, 12), red) << "enlarged";
    EXPECT_EQ(m_dc.GetPixel(29, 12), green);
    EXPECT_EQ(m_dc.GetPixel(30, 12), white);
}

TEST_F(Images, AListThatGrowsImageByImageKeepsEachAndShowsNoRoomForMore) {
    CMFCToolBarImages grown;
    grown.SetImageSize(CSize(4, 4));
    const auto colorOf = [](int index) { return RGB(index % 200 + 20, 40, 255 - index % 200); };
    for (int index = 0; index < 100; ++index) {
        CBitmap bitmap;
        CClientDC screen(CWnd::GetDesktopWindow());
        bitmap.CreateCompatibleBitmap(&screen, 4, 4);
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        CBitmap* const before = memory.SelectObject(&bitmap);
        memory.FillSolidRect(0, 0, 4, 4, colorOf(index));
        memory.SelectObject(before);
        ASSERT_EQ(grown.AddImage(bitmap), index);
    }
    EXPECT_EQ(grown.GetCount(), 100);
    CMFCToolBarImages copy;
    ASSERT_TRUE(grown.CopyTo(copy));
    BITMAP well{};
    ::GetObjectW(grown.GetImageWell(), sizeof(well), &well);
    EXPECT_EQ(well.bmWidth, 400);
    grown.SetImageSize(CSize(4, 4), TRUE);
    EXPECT_EQ(grown.GetCount(), 100);
    copy.SetImageSize(CSize(4, 4), TRUE);
    EXPECT_EQ(copy.GetCount(), 100);
    for (const int index : {0, 1, 2, 63, 64, 99}) {
        for (CMFCToolBarImages* const images : {&grown, &copy}) {
            m_dc.FillSolidRect(0, 0, 8, 8, RGB(255, 255, 255));
            images->DrawEx(&m_dc, CRect(0, 0, 4, 4), index);
            EXPECT_EQ(m_dc.GetPixel(1, 1), colorOf(index)) << index;
        }
    }
    EXPECT_EQ(copy.AddImage(grown, 7), 100) << "the copy has room for more, too";
    EXPECT_TRUE(copy.DeleteImage(50));
    EXPECT_EQ(copy.GetCount(), 100);
}

} // namespace

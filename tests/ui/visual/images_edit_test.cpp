#include "images_fixture.h"

#include "tests/support/temporary_directory.h"

#include <afxcmn.h>

#include <utility>

namespace {

constexpr std::uint32_t red = 0xFFC00000;
constexpr std::uint32_t green = 0xFF00C000;

/// A list that a user made: it came from a file.
class UserImages : public Images {
protected:
    void SetUp() override {
        Images::SetUp();
        m_path = (m_folder.Path() / "images.bmp").wstring();
        WriteStrip();
        m_user.SetImageSize(CSize(4, 4));
        ASSERT_TRUE(m_user.Load(m_path.c_str()));
    }
    void WriteStrip() const {
        CFile file(m_path.c_str(), CFile::modeCreate | CFile::modeWrite);
        BITMAPFILEHEADER header = {0x4D42, 0, 0, 0, sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER)};
        BITMAPINFOHEADER info = {};
        info.biSize = sizeof(info);
        info.biWidth = 8;
        info.biHeight = 4;
        info.biPlanes = 1;
        info.biBitCount = 32;
        file.Write(&header, sizeof(header));
        file.Write(&info, sizeof(info));
        for (int pixel = 0; pixel < 32; ++pixel) {
            const std::uint32_t color = pixel % 8 < 4 ? red : green;
            file.Write(&color, sizeof(color));
        }
    }
    COLORREF Drawn(CMFCToolBarImages& images, int index) {
        m_dc.FillSolidRect(0, 0, 32, 32, RGB(255, 255, 255));
        images.DrawEx(&m_dc, CRect(0, 0, 4, 4), index);
        return m_dc.GetPixel(1, 1);
    }

    TemporaryDirectory m_folder;
    std::wstring m_path;
    CMFCToolBarImages m_user;
};

TEST_F(UserImages, AreSavedToTheFileTheyCameFrom) {
    ASSERT_EQ(m_user.GetCount(), 2);
    ASSERT_TRUE(m_user.DeleteImage(0));
    ASSERT_TRUE(m_user.Save());
    CMFCToolBarImages again;
    again.SetImageSize(CSize(4, 4));
    ASSERT_TRUE(again.Load(m_path.c_str()));
    EXPECT_EQ(again.GetCount(), 1);
    EXPECT_EQ(Drawn(again, 0), RGB(0, 0xC0, 0));
}

TEST_F(UserImages, AreSavedUnderAnotherName) {
    const std::wstring other = (m_folder.Path() / "other.bmp").wstring();
    ASSERT_TRUE(m_user.Save(other.c_str()));
    CMFCToolBarImages again;
    again.SetImageSize(CSize(4, 4));
    ASSERT_TRUE(again.Load(other.c_str()));
    EXPECT_EQ(again.GetCount(), 2);
    EXPECT_EQ(Drawn(again, 0), RGB(0xC0, 0, 0));
    EXPECT_FALSE(m_user.Save((m_folder.Path() / "no folder" / "x.bmp").wstring().c_str()));
}

TEST_F(UserImages, OthersAreNotSaved) {
    EXPECT_FALSE(m_images.Save((m_folder.Path() / "mine.bmp").wstring().c_str())) << "not loaded from a file";
}

TEST_F(UserImages, OneIsReplacedByABitmapOfItsSize) {
    const HBITMAP blue = Strip({0xFF0000C0});
    EXPECT_TRUE(m_user.UpdateImage(0, blue));
    EXPECT_EQ(Drawn(m_user, 0), RGB(0, 0, 0xC0));
    EXPECT_EQ(Drawn(m_user, 1), RGB(0, 0xC0, 0));
    EXPECT_FALSE(m_user.UpdateImage(2, blue));
    EXPECT_FALSE(m_images.UpdateImage(0, blue)) << "not the user's own";
    ::DeleteObject(blue);
    const HBITMAP wide = Strip({red, red});
    EXPECT_FALSE(m_user.UpdateImage(0, wide));
    ::DeleteObject(wide);
}

TEST_F(UserImages, OneGoesToTheClipboardAsABitmap) {
    ASSERT_TRUE(m_user.CopyImageToClipboard(1));
    EXPECT_FALSE(m_user.CopyImageToClipboard(2));
    ASSERT_TRUE(::OpenClipboard(nullptr));
    const HANDLE block = ::GetClipboardData(CF_DIB);
    ASSERT_NE(block, nullptr);
    const auto* const info = static_cast<const BITMAPINFOHEADER*>(::GlobalLock(block));
    EXPECT_EQ(info->biWidth, 4);
    EXPECT_EQ(info->biHeight, 4);
    EXPECT_EQ(*reinterpret_cast<const std::uint32_t*>(info + 1), green);
    ::GlobalUnlock(block);
    ::EmptyClipboard();
    ::CloseClipboard();
}

TEST_F(Images, MaskIsSetWhereTheImageIsClear) {
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    for (const auto& [image, expected] : {std::pair(0, RGB(0, 0, 0)), std::pair(2, RGB(255, 255, 255))}) {
        const HBITMAP mask = m_images.GetMask(image);
        ASSERT_NE(mask, nullptr);
        BITMAP info = {};
        ::GetObject(mask, sizeof(info), &info);
        EXPECT_EQ(info.bmBitsPixel, 1);
        EXPECT_EQ(CSize(info.bmWidth, info.bmHeight), CSize(4, 4));
        const HGDIOBJ before = ::SelectObject(memory, mask);
        EXPECT_EQ(memory.GetPixel(3, 3), expected);
        ::SelectObject(memory, before);
        ::DeleteObject(mask);
    }
    EXPECT_EQ(m_images.GetMask(3), nullptr);
}

TEST_F(Images, AnImageListGivesItsImagesAndTheirSize) {
    CImageList list;
    ASSERT_TRUE(list.Create(4, 4, ILC_COLOR32 | ILC_MASK, 0, 2));
    for (const int image : {1, 0}) {
        const HICON icon = m_images.ExtractIcon(image);
        list.Add(icon);
        ::DestroyIcon(icon);
    }
    CMFCToolBarImages images;
    ASSERT_TRUE(images.CreateFromImageList(list));
    EXPECT_EQ(images.GetCount(), 2);
    EXPECT_EQ(CSize(images.GetImageSize()), CSize(4, 4));
    images.DrawEx(&m_dc, CRect(0, 0, 4, 4), 0);
    EXPECT_EQ(m_dc.GetPixel(2, 2), RGB(0, 0xC0, 0));
    CImageList empty;
    empty.Create(4, 4, ILC_COLOR32, 0, 1);
    EXPECT_FALSE(images.CreateFromImageList(empty));
    EXPECT_EQ(images.GetCount(), 2) << "nothing was changed";
}

TEST_F(Images, AdaptedColoursKeepTheirDistanceToTheBase) {
    m_images.AdaptColors(RGB(0xC0, 0, 0), RGB(0x20, 0x10, 0x40));
    m_images.DrawEx(&m_dc, CRect(0, 0, 4, 4), 0);
    EXPECT_EQ(m_dc.GetPixel(1, 1), RGB(0x20, 0x10, 0x40)) << "the base becomes the tone";
    m_images.DrawEx(&m_dc, CRect(8, 0, 12, 4), 1);
    EXPECT_EQ(m_dc.GetPixel(9, 1), RGB(0, 0xD0, 0x40));
    m_images.DrawEx(&m_dc, CRect(16, 0, 20, 4), 2);
    EXPECT_EQ(m_dc.GetPixel(17, 1), RGB(255, 255, 255)) << "clear stays clear";
}

TEST_F(Images, GreysStandForTheSystemsButtonColours) {
    EXPECT_EQ(CMFCToolBarImages::MapToSysColor(RGB(0, 0, 0), FALSE), ::GetSysColor(COLOR_BTNTEXT));
    EXPECT_EQ(CMFCToolBarImages::MapToSysColor(RGB(128, 128, 128), FALSE), ::GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(CMFCToolBarImages::MapToSysColor(RGB(192, 192, 192), FALSE), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(CMFCToolBarImages::MapToSysColor(RGB(255, 255, 255), FALSE), ::GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(CMFCToolBarImages::MapToSysColor(RGB(1, 2, 3), FALSE), RGB(1, 2, 3));
    EXPECT_EQ(CMFCToolBarImages::MapFromSysColor(::GetSysColor(COLOR_BTNSHADOW), FALSE), RGB(128, 128, 128));
    EXPECT_EQ(CMFCToolBarImages::MapFromSysColor(RGB(1, 2, 3)), RGB(1, 2, 3));
}

TEST_F(Images, OneColourOrTheButtonColoursAreReplaced) {
    CMFCToolBarImages plain;
    plain.SetImageSize(CSize(4, 4));
    plain.SetTransparentColor(RGB(1, 1, 1));
    // Without alpha: every pixel's is 0.
    const HBITMAP strip = Strip({0x00808080, 0x00C00000});
    ASSERT_EQ(plain.AddImage(strip), 0);
    ::DeleteObject(strip);
    EXPECT_TRUE(plain.MapTo3dColors(TRUE, RGB(0xC0, 0, 0), RGB(0, 0, 0xC0)));
    plain.DrawEx(&m_dc, CRect(0, 0, 4, 4), 1);
    EXPECT_EQ(m_dc.GetPixel(1, 1), RGB(0, 0, 0xC0));
    EXPECT_TRUE(plain.MapTo3dColors());
    plain.DrawEx(&m_dc, CRect(0, 0, 4, 4), 0);
    EXPECT_EQ(m_dc.GetPixel(1, 1), ::GetSysColor(COLOR_BTNSHADOW));
    plain.SetMapTo3DColors(FALSE);
    EXPECT_FALSE(plain.MapTo3dColors());
    EXPECT_FALSE(m_images.MapTo3dColors()) << "colours with alpha stay";
}

/// Another system colour for a scope.
class ScopedSysColor {
public:
    ScopedSysColor(int index, COLORREF color) : m_index(index), m_before(::GetSysColor(index)) {
        ::SetSysColors(1, &m_index, &color);
    }
    ~ScopedSysColor() { ::SetSysColors(1, &m_index, &m_before); }
    ScopedSysColor(const ScopedSysColor&) = delete;
    ScopedSysColor& operator=(const ScopedSysColor&) = delete;

private:
    const int m_index;
    const COLORREF m_before;
};

TEST_F(Images, ColoursThatWereMappedToTheSystemsFollowThem) {
    CMFCToolBarImages mapped;
    mapped.SetImageSize(CSize(4, 4));
    mapped.SetTransparentColor(RGB(1, 1, 1));
    const HBITMAP strip = Strip({0x00808080, 0x00C00000});
    ASSERT_EQ(mapped.AddImage(strip), 0);
    CMFCToolBarImages plain;
    ASSERT_TRUE(mapped.CopyTo(plain));
    ::DeleteObject(strip);
    ASSERT_TRUE(mapped.MapTo3dColors());
    CMFCToolBarImages copy;
    ASSERT_TRUE(mapped.CopyTo(copy));
    const ScopedSysColor shadow(COLOR_BTNSHADOW, RGB(10, 120, 30));
    for (CMFCToolBarImages* images : {&mapped, &copy}) {
        images->OnSysColorChange();
        images->DrawEx(&m_dc, CRect(0, 0, 4, 4), 0);
        EXPECT_EQ(m_dc.GetPixel(1, 1), RGB(10, 120, 30));
        images->DrawEx(&m_dc, CRect(0, 0, 4, 4), 1);
        EXPECT_EQ(m_dc.GetPixel(1, 1), RGB(0xC0, 0, 0)) << "no colour of the system";
    }
    plain.OnSysColorChange();
    plain.DrawEx(&m_dc, CRect(0, 0, 4, 4), 0);
    EXPECT_EQ(m_dc.GetPixel(1, 1), RGB(0x80, 0x80, 0x80)) << "was not mapped";
}

TEST_F(Images, RegionHasThePixelsOfOtherColours) {
    const HBITMAP strip = Strip({0x00C00000, 0x0000C000, 0x00C00000});
    const HRGN region = CMFCToolBarImages::CreateRegionFromImage(strip, RGB(0xC0, 0, 0));
    ASSERT_NE(region, nullptr);
    CRect box;
    ::GetRgnBox(region, box);
    EXPECT_EQ(box, CRect(4, 0, 8, 4));
    ::DeleteObject(region);
    ::DeleteObject(strip);
    const HBITMAP plain = Strip({0x00C00000});
    EXPECT_EQ(CMFCToolBarImages::CreateRegionFromImage(plain, RGB(0xC0, 0, 0)), nullptr);
    ::DeleteObject(plain);
}

TEST_F(Images, BitmapsOfStripsAreTurnedImageByImage) {
    HBITMAP strip = Strip({red, green});
    const HBITMAP before = strip;
    EXPECT_FALSE(CMFCToolBarImages::MirrorBitmap(strip, 3));
    EXPECT_EQ(strip, before);
    ASSERT_TRUE(CMFCToolBarImages::MirrorBitmap(strip, 8));
    DIBSECTION section = {};
    ::GetObject(strip, sizeof(section), &section);
    const auto* pixels = static_cast<const std::uint32_t*>(section.dsBm.bmBits);
    EXPECT_EQ(pixels[0], green);
    EXPECT_EQ(pixels[7], red);
    ASSERT_TRUE(CMFCToolBarImages::MirrorBitmap(strip, 4));
    ::GetObject(strip, sizeof(section), &section);
    pixels = static_cast<const std::uint32_t*>(section.dsBm.bmBits);
    EXPECT_EQ(pixels[0], green) << "images of one colour look the same when turned";
    // The upper row differs.
    for (int x = 0; x < 8; ++x) {
        const_cast<std::uint32_t*>(pixels)[x] = 0xFF123456;
    }
    ASSERT_TRUE(CMFCToolBarImages::MirrorBitmapVert(strip, 2));
    ::GetObject(strip, sizeof(section), &section);
    pixels = static_cast<const std::uint32_t*>(section.dsBm.bmBits);
    EXPECT_EQ(pixels[0], green);
    EXPECT_EQ(pixels[8], 0xFF123456u);
    ::DeleteObject(strip);
}

struct OpenImages : CMFCToolBarImages {
    using CMFCToolBarImages::PreMultiplyAlpha;
};

TEST_F(Images, AlphaIsMultipliedOnce) {
    const HBITMAP strip = Strip({0x80FF8000});
    DIBSECTION section = {};
    ::GetObject(strip, sizeof(section), &section);
    const auto* const pixels = static_cast<const std::uint32_t*>(section.dsBm.bmBits);
    ASSERT_TRUE(OpenImages::PreMultiplyAlpha(strip, TRUE));
    EXPECT_EQ(pixels[0], 0x80804000u);
    ASSERT_TRUE(OpenImages::PreMultiplyAlpha(strip, TRUE));
    EXPECT_EQ(pixels[0], 0x80804000u) << "it was multiplied before";
    ::DeleteObject(strip);
    const HBITMAP one = ::CreateBitmap(4, 4, 1, 1, nullptr);
    EXPECT_FALSE(OpenImages::PreMultiplyAlpha(one, TRUE));
    ::DeleteObject(one);
}

} // namespace

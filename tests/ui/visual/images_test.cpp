#include "images_fixture.h"

namespace {

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

TEST_F(Images, MirroringRightToLeftTurnsEachImage) {
    ASSERT_TRUE(m_images.Mirror());
    m_images.DrawEx(&m_dc, CRect(0, 0, 4, 4), 0);
    EXPECT_EQ(m_dc.GetPixel(0, 0), RGB(0xC0, 0, 0));
}

} // namespace

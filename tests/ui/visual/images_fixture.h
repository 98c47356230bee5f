#pragma once

#include <afxdrawmanager.h>
#include <afxtoolbarimages.h>

#include <gtest/gtest.h>

#include <cstdint>

/// A strip of count images of 4 x 4 pixels, image i filled with colours[i].
inline HBITMAP Strip(std::initializer_list<std::uint32_t> colors) {
    void* memory = nullptr;
    const int width = static_cast<int>(colors.size()) * 4;
    const HBITMAP bitmap = CDrawingManager::CreateBitmap_32(CSize(width, 4), &memory);
    int image = 0;
    for (const std::uint32_t color : colors) {
        for (int y = 0; y < 4; ++y) {
            for (int x = 0; x < 4; ++x) {
                static_cast<std::uint32_t*>(memory)[y * width + image * 4 + x] = color;
            }
        }
        ++image;
    }
    return bitmap;
}

class Images : public testing::Test {
protected:
    void SetUp() override {
        m_dc.CreateCompatibleDC(nullptr);
        void* bits = nullptr;
        m_bitmap.Attach(CDrawingManager::CreateBitmap_32(CSize(32, 32), &bits));
        m_previous = m_dc.SelectObject(&m_bitmap);
        m_dc.FillSolidRect(0, 0, 32, 32, RGB(255, 255, 255));
        m_images.SetImageSize(CSize(4, 4));
        const HBITMAP strip = Strip({0xFFC00000, 0xFF00C000, 0x00000000});
        ASSERT_EQ(m_images.AddImage(strip), 0);
        ::DeleteObject(strip);
    }
    void TearDown() override { m_dc.SelectObject(m_previous); }

    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_previous = nullptr;
    CMFCToolBarImages m_images;
};

#include "fx/window_dc.h"
#include "tests/ui/toolbar/bar_frame.h"

namespace {

/// The bar as it draws itself, in memory.
class Picture {
public:
    explicit Picture(TestBar& bar) {
        CRect client;
        bar.GetClientRect(client);
        CClientDC screen(&bar);
        m_dc.CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, client.Width(), client.Height());
        m_before = m_dc.SelectObject(&m_bitmap);
        bar.DoPaint(&m_dc);
    }
    ~Picture() { m_dc.SelectObject(m_before); }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;
    COLORREF At(CPoint point) const { return ::GetPixel(m_dc, point.x, point.y); }

private:
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_before = nullptr;
};

} // namespace

TEST_F(ToolBarTest, ImagesAreDrawnInTheMiddleOfTheirButtons) {
    const Picture picture(Bar());
    EXPECT_EQ(picture.At(CenterOf(0)), RGB(200, 0, 90));
    EXPECT_EQ(picture.At(CenterOf(1)), RGB(160, 40, 90));
    EXPECT_EQ(picture.At(CenterOf(3)), RGB(120, 80, 90));
}

TEST_F(ToolBarTest, ADisabledButtonIsGrayUnlessToldOtherwise) {
    m_frame->disabled = 3001;
    RunIdle();
    EXPECT_NE(Picture(Bar()).At(CenterOf(0)), RGB(200, 0, 90));
    Bar().SetGrayDisabledButtons(FALSE);
    EXPECT_EQ(Picture(Bar()).At(CenterOf(0)), RGB(200, 0, 90));
}

TEST_F(ToolBarTest, AHotButtonGetsAnotherFace) {
    CRect rect;
    Bar().GetItemRect(1, rect);
    const CPoint corner(rect.left + 2, rect.CenterPoint().y);
    const COLORREF plain = Picture(Bar()).At(corner);
    m_pointer.MoveTo(Bar().m_hWnd, CenterOf(1));
    const COLORREF hot = Picture(Bar()).At(corner);
    EXPECT_NE(hot, plain);
    m_pointer.Press();
    EXPECT_NE(Picture(Bar()).At(corner), hot);
    m_pointer.Release();
}

TEST_F(ToolBarTest, UserImagesAreDrawnFromTheUsersList) {
    CMFCToolBarImages images;
    images.SetImageSize(CSize(16, 15));
    AddImages(images, 4);
    ASSERT_TRUE(CMFCToolBar::SetUserImages(&images));
    const int index = Bar().InsertButton(CMFCToolBarButton(3040, 3, nullptr, TRUE));
    LayOut();
    EXPECT_EQ(Picture(Bar()).At(CenterOf(index)), RGB(80, 120, 90));
    CMFCToolBar::SetUserImages(nullptr);
    EXPECT_NE(Picture(Bar()).At(CenterOf(index)), RGB(80, 120, 90));
}

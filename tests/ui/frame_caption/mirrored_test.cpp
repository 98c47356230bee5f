// Windows that run from right to left.
#include "tests/ui/frame_caption/caption_frame.h"

#include "fx/window_dc.h"

#include <vector>

namespace {

class MirroredFrame : public CaptionFrame<CFrameWndEx> {
public:
    void ShowMirrored() {
        ASSERT_TRUE(Create(nullptr, L"Atlas", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CRect(40, 30, 680, 430), nullptr,
                           nullptr, WS_EX_LAYOUTRTL));
        ASSERT_TRUE(bar.Create(this));
        const HICON icon = MakeTwoColouredIcon();
        bar.AddCategory(L"Map", 0, 0)->AddPanel(L"Zoom")->Add(new CMFCRibbonButton(1001, L"In", icon, FALSE, icon));
        bar.AddCategory(L"Layers", 0, 0)->AddPanel(L"Show")->Add(new CMFCRibbonButton(1002, L"Rivers"));
        ShowWindow(SW_SHOW);
        RecalcLayout();
        PumpPending();
    }
    ~MirroredFrame() override {
        DestroyWindow();
        ::DestroyIcon(m_icon);
    }
    CRect BarOnScreen() const {
        CRect rect;
        bar.GetWindowRect(&rect);
        return rect;
    }
    CRect OnScreen(CRect inBar) const {
        bar.ClientToScreen(&inBar);
        return inBar;
    }

private:
    // Red on its left half, blue on its right one.
    HICON MakeTwoColouredIcon() {
        std::vector<DWORD> pixels(32 * 32, 0xFFFF0000u);
        for (std::size_t index = 0; index < pixels.size(); ++index) {
            if (index % 32 >= 16) {
                pixels[index] = 0xFF0000FFu;
            }
        }
        ICONINFO info{};
        info.fIcon = TRUE;
        info.hbmColor = ::CreateBitmap(32, 32, 1, 32, pixels.data());
        info.hbmMask = ::CreateBitmap(32, 32, 1, 1, nullptr);
        m_icon = ::CreateIconIndirect(&info);
        ::DeleteObject(info.hbmColor);
        ::DeleteObject(info.hbmMask);
        return m_icon;
    }
    HICON m_icon = nullptr;
};

class Mirrored : public ::testing::Test {
protected:
    void SetUp() override { frame.ShowMirrored(); }
    MirroredFrame frame;
    Pointer pointer;
};

TEST_F(Mirrored, TabsBeginAtTheRightAndTheCloseButtonIsAtTheLeft) {
    const CRect bar = frame.BarOnScreen();
    const CRect first = frame.OnScreen(frame.bar.GetCategory(0)->GetTabRect());
    const CRect second = frame.OnScreen(frame.bar.GetCategory(1)->GetTabRect());
    EXPECT_LT(bar.right - first.right, 20);
    EXPECT_LT(second.right, first.left + 1);
    EXPECT_EQ(frame.OnScreen(frame.Button(SC_CLOSE)->GetRect()).left, bar.left);
}

TEST_F(Mirrored, AClickHitsWhatIsShownThere) {
    const CRect second = frame.OnScreen(frame.bar.GetCategory(1)->GetTabRect());
    pointer.MoveTo(second.CenterPoint());
    pointer.Press();
    pointer.Release();
    EXPECT_EQ(frame.bar.GetActiveCategory(), frame.bar.GetCategory(1));
}

TEST_F(Mirrored, TheFreePartOfTheRowIsStillCaption) {
    const CRect row = frame.OnScreen(frame.bar.GetCaptionRect());
    EXPECT_EQ(frame.HitAt(row.CenterPoint()), HTCAPTION);
}

TEST_F(Mirrored, IconsKeepTheirDirection) {
    CMFCRibbonBaseElement* button = frame.bar.FindByID(1001);
    ASSERT_NE(button, nullptr);
    button->SetDisabled(FALSE); // nobody handles its command
    frame.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    const CRect place = frame.OnScreen(button->GetRect());
    CWindowDC dc(&frame.bar);
    ::SetLayout(dc.GetSafeHdc(), 0);
    const CRect bar = frame.BarOnScreen();
    int firstRed = -1;
    int firstBlue = -1;
    for (int x = place.left; x < place.right; ++x) {
        const COLORREF color = ::GetPixel(dc.GetSafeHdc(), x - bar.left, place.top - bar.top + 18);
        if (color == RGB(255, 0, 0) && firstRed < 0) {
            firstRed = x;
        }
        if (color == RGB(0, 0, 255) && firstBlue < 0) {
            firstBlue = x;
        }
    }
    ASSERT_GE(firstRed, 0);
    ASSERT_GE(firstBlue, 0);
    EXPECT_EQ(firstBlue - firstRed, 16);
}

} // namespace

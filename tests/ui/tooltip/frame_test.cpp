// A tooltip pixel by pixel: its frame, and the room that it leaves around the text.
#include <tuple>
#include <vector>

#include "afxglobals.h"
#include "afxtooltipctrl.h"
#include "afxvisualmanageroffice2007.h"
#include "tests/support/ui_test.h"

namespace {

using Office = CMFCVisualManagerOffice2007;

/// What a window looks like, with its non-client area.
class Picture {
public:
    explicit Picture(const CWnd& window) {
        CRect rect;
        window.GetWindowRect(rect);
        m_size = rect.Size();
        BITMAPINFO info{};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), m_size.cx, -m_size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        const HDC source = ::GetWindowDC(window.m_hWnd);
        const HDC memory = ::CreateCompatibleDC(source);
        void* bits = nullptr;
        const HBITMAP bitmap = ::CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        const HGDIOBJ previous = ::SelectObject(memory, bitmap);
        ::BitBlt(memory, 0, 0, m_size.cx, m_size.cy, source, 0, 0, SRCCOPY);
        ::GdiFlush();
        const auto* pixels = static_cast<const DWORD*>(bits);
        m_pixels.assign(pixels, pixels + static_cast<std::size_t>(m_size.cx) * m_size.cy);
        ::SelectObject(memory, previous);
        ::DeleteObject(bitmap);
        ::DeleteDC(memory);
        ::ReleaseDC(window.m_hWnd, source);

        m_shape = ::CreateRectRgn(0, 0, m_size.cx, m_size.cy);
        const HRGN region = ::CreateRectRgn(0, 0, 0, 0);
        if (::GetWindowRgn(window.m_hWnd, region) != ERROR) {
            ::CombineRgn(m_shape, m_shape, region, RGN_AND);
        }
        ::DeleteObject(region);
    }
    ~Picture() { ::DeleteObject(m_shape); }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    int Width() const { return static_cast<int>(m_size.cx); }
    int Height() const { return static_cast<int>(m_size.cy); }
    bool IsShown(int x, int y) const { return ::PtInRegion(m_shape, x, y) != FALSE; }
    bool IsEdge(int x, int y) const {
        return IsShown(x, y) && !(IsShown(x - 1, y) && IsShown(x + 1, y) && IsShown(x, y - 1) && IsShown(x, y + 1));
    }
    COLORREF At(int x, int y) const {
        const DWORD pixel = m_pixels[static_cast<std::size_t>(y) * Width() + x];
        return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
    }

private:
    CSize m_size;
    std::vector<DWORD> m_pixels;
    HRGN m_shape = nullptr;
};

int Distance(COLORREF a, COLORREF b) {
    return std::abs(GetRValue(a) - GetRValue(b)) + std::abs(GetGValue(a) - GetGValue(b)) +
           std::abs(GetBValue(a) - GetBValue(b));
}

class TooltipFrame : public testing::TestWithParam<std::tuple<Office::Style, double>> {
protected:
    TooltipFrame() {
        Office::SetStyle(std::get<0>(GetParam()));
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
        EXPECT_TRUE(afxGlobalData.SetRibbonImageScale(std::get<1>(GetParam())));
        CMFCToolTipInfo look;
        look.m_bVislManagerTheme = TRUE;
        m_tooltip.SetParams(&look);
        m_tooltip.Create(&m_window, TTS_ALWAYSTIP | TTS_NOPREFIX);
    }
    ~TooltipFrame() override {
        m_tooltip.DestroyWindow();
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManager::DestroyInstance();
        Office::CleanStyle();
        afxGlobalData.SetRibbonImageScale(0);
    }
    void Show(const wchar_t* description) {
        CRect client;
        m_window.GetClientRect(client);
        const wchar_t* label = L"Ticks the layers that are drawn; a double click ticks all";
        m_tooltip.AddTool(&m_window, label, client, 1);
        m_tooltip.SetDescription(description);
        m_tooltip.SetLocation(CPoint(60, 60));
        TOOLINFO info{};
        info.cbSize = sizeof info;
        info.hwnd = m_window.m_hWnd;
        info.uId = 1;
        info.uFlags = TTF_TRACK; // no cursor moves here
        info.rect = client;
        info.lpszText = const_cast<wchar_t*>(label);
        m_tooltip.SetToolInfo(&info);
        m_tooltip.SendMessage(TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&info));
        m_tooltip.UpdateWindow();
    }

    TestWindow m_window;
    CMFCToolTipCtrl m_tooltip;
};

TEST_P(TooltipFrame, OneLineRunsRoundAllFourSides) {
    for (const wchar_t* description : {L"", L"The layers that have no tick are left out."}) {
        Show(description);
        const Picture picture(m_tooltip);
        const COLORREF line = m_tooltip.GetParams().m_clrBorder;
        const int width = picture.Width(), height = picture.Height();
        const CPoint middles[] = {{0, height / 2}, {width - 1, height / 2}, {width / 2, 0}, {width / 2, height - 1}};
        for (const CPoint& at : middles) {
            EXPECT_TRUE(picture.IsShown(at.x, at.y)) << at.x << ' ' << at.y << " is cut off";
        }
        int wrong = 0;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                wrong += picture.IsEdge(x, y) && picture.At(x, y) != line ? 1 : 0;
            }
        }
        EXPECT_EQ(wrong, 0) << "pixels of the edge are not of the line";
        const CPoint inner[] = {{1, height / 2}, {width - 2, height / 2}, {width / 2, 1}, {width / 2, height - 2}};
        for (const CPoint& at : inner) {
            EXPECT_NE(picture.At(at.x, at.y), line) << at.x << ' ' << at.y << ": a second line";
        }
    }
}

TEST_P(TooltipFrame, TheTextIsAsFarFromTheRightAsFromTheLeft) {
    Show(L"");
    const Picture picture(m_tooltip);
    int last = picture.Width() - 1, lowest = picture.Height() - 1;
    while (last > 0 && !picture.IsShown(last, picture.Height() / 2)) {
        --last;
    }
    while (lowest > 0 && !picture.IsShown(picture.Width() / 2, lowest)) {
        --lowest;
    }
    int left = picture.Width(), right = picture.Width(), top = picture.Height(), bottom = picture.Height();
    for (int y = 3; y < picture.Height() - 3; ++y) {
        for (int x = 3; x < picture.Width() - 3; ++x) {
            if (Distance(picture.At(x, y), picture.At(2, y)) > 150) {
                left = std::min(left, x);
                right = std::min(right, last - x);
                top = std::min(top, y);
                bottom = std::min(bottom, lowest - y);
            }
        }
    }
    EXPECT_NEAR(left, right, 2);
    EXPECT_GE(right, afxGlobalData.ScalePixels(5));
    EXPECT_NEAR(top, bottom, 4) << "a line has room for accents above, less below";
}

INSTANTIATE_TEST_SUITE_P(Looks, TooltipFrame,
                         testing::Combine(testing::Values(Office::Office2007_Silver, Office::Office2007_ObsidianBlack),
                                          testing::Values(1.0, 1.5)));

TEST(TooltipSquareFrame, OneLineRunsRoundAllFourSides) {
    TestWindow window;
    CMFCToolTipInfo look;
    look.m_clrFill = RGB(10, 20, 30);
    look.m_clrText = RGB(10, 20, 30);
    look.m_clrBorder = RGB(200, 100, 50);
    CMFCToolTipCtrl tooltip(&look);
    tooltip.Create(&window, TTS_ALWAYSTIP | TTS_NOPREFIX);
    tooltip.SetWindowPos(&CWnd::wndTop, 40, 40, 90, 30, SWP_NOACTIVATE | SWP_SHOWWINDOW);
    tooltip.UpdateWindow();
    const Picture picture(tooltip);
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            ASSERT_EQ(picture.At(x, y), picture.IsEdge(x, y) ? look.m_clrBorder : look.m_clrFill) << x << ' ' << y;
        }
    }
    tooltip.DestroyWindow();
}

} // namespace

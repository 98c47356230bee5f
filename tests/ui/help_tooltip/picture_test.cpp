// The tooltip's pixels: both icons, the texts between them.
#include "tests/support/gui_objects.h"
#include "tests/ui/help_tooltip/tooltip_fixture.h"

#include <set>

namespace {

class HelpPicture : public HelpTooltip {
protected:
    void SetUp() override {
        HelpTooltip::SetUp();
        m_large = MakeIcon(32, RGB(0, 200, 0), [](int, int) { return true; });
        m_small = MakeIcon(16, RGB(200, 0, 0), [](int, int) { return true; });
        CToolTipCtrlEx::m_hIconLargeBottom = m_large;
        CToolTipCtrlEx::m_hIconSmallBottom = m_small;
    }
    void TearDown() override {
        ::DestroyIcon(m_large);
        ::DestroyIcon(m_small);
    }
    /// Where a colour is shown; empty: nowhere.
    CRect BoundsOf(COLORREF colour) {
        const HDC dc = ::GetWindowDC(m_tip.m_hWnd);
        CRect window, bounds(0, 0, 0, 0);
        m_tip.GetWindowRect(window);
        for (int y = 0; y < window.Height(); ++y) {
            for (int x = 0; x < window.Width(); ++x) {
                if (::GetPixel(dc, x, y) == colour) {
                    bounds.UnionRect(bounds, CRect(x, y, x + 1, y + 1));
                }
            }
        }
        ::ReleaseDC(m_tip.m_hWnd, dc);
        return bounds;
    }

    HICON m_large = nullptr;
    HICON m_small = nullptr;
};

TEST_F(HelpPicture, WithHelpTheIconIsInTheUpperHalfAndTheBottomIconInTheLower) {
    AddHelp();
    const int height = Show().Height();
    const CRect icon = BoundsOf(kIconColour), bottom = BoundsOf(RGB(0, 200, 0));
    EXPECT_EQ(icon, CRect(CPoint(6, (height / 2 - 32) / 2), CSize(32, 32)));
    EXPECT_EQ(bottom, CRect(CPoint(6, height / 2 + (height / 2 - 32) / 2), CSize(32, 32)));
}

TEST_F(HelpPicture, ASmallIconHasTheSmallBottomIcon) {
    UseSmallIcon();
    AddHelp();
    const int height = Show().Height();
    EXPECT_EQ(BoundsOf(RGB(200, 0, 0)), CRect(CPoint(6, height / 2 + (height / 2 - 16) / 2), CSize(16, 16)));
    EXPECT_TRUE(BoundsOf(RGB(0, 200, 0)).IsRectEmpty());
}

TEST_F(HelpPicture, WithoutAHelpFileThereIsNoBottomIconAndTheIconStandsInTheMiddle) {
    const int height = Show().Height();
    EXPECT_TRUE(BoundsOf(RGB(0, 200, 0)).IsRectEmpty());
    EXPECT_EQ(BoundsOf(kIconColour), CRect(CPoint(6, (height - 32) / 2), CSize(32, 32)));
}

TEST_F(HelpPicture, AnotherDescriptionHasNoBottomIcon) {
    AddHelp();
    m_tip.SetDescription(L"Reads a drawing.");
    Show();
    EXPECT_TRUE(BoundsOf(RGB(0, 200, 0)).IsRectEmpty());
    EXPECT_FALSE(BoundsOf(kIconColour).IsRectEmpty());
}

TEST_F(HelpPicture, WithoutABottomIconNothingIsDrawnThere) {
    AddHelp();
    CToolTipCtrlEx::m_hIconLargeBottom = nullptr;
    Show();
    EXPECT_FALSE(BoundsOf(kIconColour).IsRectEmpty());
}

TEST_F(HelpPicture, AtScaleBothIconsGrow) {
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.5));
    AddHelp();
    Show();
    EXPECT_EQ(BoundsOf(RGB(0, 200, 0)).Size(), CSize(48, 48));
    EXPECT_EQ(BoundsOf(kIconColour).Size(), CSize(48, 48));
}

TEST_F(HelpPicture, TheReplacementIsRedAndTheTitleIsNot) {
    AddHelp();
    CToolTipCtrlEx::m_hIconLargeBottom = nullptr;
    CToolTipCtrlEx::m_sStrGlobleDesciption = L"HELP";
    const int height = Show().Height();
    const CRect red = BoundsOf(RGB(255, 0, 0));
    ASSERT_FALSE(red.IsRectEmpty());
    EXPECT_GT(red.top, height / 2) << "below the separator";
}

TEST_F(HelpPicture, TheSeparatorRunsBetweenTitleAndDescriptionUnlessItIsSwitchedOff) {
    AddHelp();
    Show();
    const HDC dc = ::GetWindowDC(m_tip.m_hWnd);
    const int y = 14 + static_cast<int>(LabelSize().cy) + 14;
    const COLORREF line = ::GetPixel(dc, 60, y);
    EXPECT_NE(line, RGB(250, 250, 250));
    EXPECT_EQ(::GetPixel(dc, 60, y - 1), RGB(250, 250, 250));
    EXPECT_EQ(::GetPixel(dc, 60, y + 1), RGB(250, 250, 250));
    ::ReleaseDC(m_tip.m_hWnd, dc);
    m_tip.m_Params.m_bDrawSeparator = FALSE;
    Show();
    EXPECT_TRUE(BoundsOf(line).IsRectEmpty());
}

TEST_F(HelpPicture, ShowingItLeavesNothingBehind) {
    AddHelp();
    EXPECT_TRUE(RepeatedLeavesNothingBehind(3, 30, [this](int) {
        Show();
        m_tip.Pop();
    }));
}

} // namespace

#include "afxglobals.h"
#include "tests/support/scoped_value.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"

namespace {

class RibbonTooltipTest : public RibbonBarTest {
protected:
    CString TipTextAt(CPoint client) {
        m_pointer.MoveTo(Bar(), client);
        NMTTDISPINFO info{};
        info.hdr.hwndFrom = Bar().GetToolTipCtrl()->GetSafeHwnd();
        info.hdr.code = TTN_NEEDTEXT;
        Bar().SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&info));
        return info.lpszText != nullptr ? CString(info.lpszText) : CString();
    }
};

TEST_F(RibbonTooltipTest, TheTooltipIsTheElementsTipOrItsText) {
    ASSERT_NE(Bar().GetToolTipCtrl(), nullptr);
    EXPECT_STREQ(TipTextAt(CenterOf(commands::paste)), L"Paste");
    Element(commands::cut).SetToolTipText(L"Cuts the selection");
    EXPECT_STREQ(TipTextAt(CenterOf(commands::cut)), L"Cuts the selection");
    EXPECT_STREQ(TipTextAt(CPoint(900, 5)), L"");
}

TEST_F(RibbonTooltipTest, WithoutTooltipsThereIsNoControl) {
    Bar().EnableToolTips(FALSE);
    EXPECT_FALSE(Bar().IsToolTipEnabled());
    EXPECT_EQ(Bar().GetToolTipCtrl(), nullptr);
    Bar().EnableToolTips(TRUE, FALSE);
    EXPECT_TRUE(Bar().IsToolTipEnabled());
    EXPECT_FALSE(Bar().IsToolTipDescrEnabled());
    EXPECT_NE(Bar().GetToolTipCtrl(), nullptr);
}

TEST_F(RibbonTooltipTest, TheHostSaysHowWideTheTextMayGet) {
    EXPECT_EQ(Bar().GetToolTipCtrl()->GetMaxTipWidth(), afxGlobalData.ScalePixels(640));
    const ScopedValue<int> widest(afxGlobalData.m_nMaxToolTipWidth, 120);
    Bar().EnableToolTips(TRUE);
    EXPECT_EQ(Bar().GetToolTipCtrl()->GetMaxTipWidth(), 120);
}

TEST_F(RibbonTooltipTest, TheToolFollowsTheElementUnderThePointer) {
    m_pointer.MoveTo(Bar(), CenterOf(commands::cut));
    TOOLINFO tool{};
    tool.cbSize = sizeof(tool);
    tool.hwnd = Bar();
    tool.uId = 1;
    ASSERT_TRUE(Bar().GetToolTipCtrl()->SendMessage(TTM_GETTOOLINFO, 0, reinterpret_cast<LPARAM>(&tool)));
    EXPECT_EQ(CRect(tool.rect), Element(commands::cut).GetRect());
}

TEST_F(RibbonTooltipTest, TheQuickAccessMenuButtonHasTheFrameworksText) {
    Bar().SetQuickAccessCommands(CommandList{commands::cut});
    const CRect all = Bar().GetQuickAccessToolbarLocation();
    const CRect copies = Bar().GetQATCommandsLocation();
    EXPECT_STREQ(TipTextAt(CPoint((copies.right + all.right) / 2, all.CenterPoint().y)),
                 L"Customize Quick Access Toolbar");
}

} // namespace

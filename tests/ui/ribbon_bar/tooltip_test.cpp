#include "afxglobals.h"
#include "afxtooltipmanager.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"
#include <fx/scoped_change.h>

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
    /// What stands below the text.
    static CString DescriptionOf(CToolTipCtrl* tooltip) {
        class Opened : public CMFCToolTipCtrl {
        public:
            static const CString& DescriptionOf(const CMFCToolTipCtrl& control) {
                return control.*(&Opened::m_strDescription);
            }
        };
        const auto* own = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, tooltip);
        return own != nullptr ? Opened::DescriptionOf(*own) : CString(L"none");
    }
};

TEST_F(RibbonTooltipTest, TheTooltipIsTheElementsTipOrItsText) {
    ASSERT_NE(Bar().GetToolTipCtrl(), nullptr);
    EXPECT_STREQ(TipTextAt(CenterOf(commands::paste)), L"Paste");
    Element(commands::cut).SetToolTipText(L"Cuts the selection");
    EXPECT_STREQ(TipTextAt(CenterOf(commands::cut)), L"Cuts the selection");
    EXPECT_STREQ(TipTextAt(CPoint(900, 5)), L"");
}

/// With tooltips that have descriptions, whatever the visual manager says.
class DescribedTooltip : public RibbonTooltipTest {
protected:
    DescribedTooltip() { CTooltipManager().SetTooltipParams(AFX_TOOLTIP_TYPE_RIBBON, RUNTIME_CLASS(CMFCToolTipCtrl)); }
    ~DescribedTooltip() override { CTooltipManager().SetTooltipParams(AFX_TOOLTIP_TYPE_RIBBON, nullptr); }

    void SetUp() override {
        RibbonTooltipTest::SetUp();
        Bar().EnableToolTips(TRUE);
    }
    CString Description() { return DescriptionOf(Bar().GetToolTipCtrl()); }
};

TEST_F(DescribedTooltip, TheNameIsTheTitleAndTheTipStandsBelow) {
    Element(commands::cut).SetToolTipText(L"Cuts the selection");
    EXPECT_STREQ(TipTextAt(CenterOf(commands::cut)), L"Cut");
    EXPECT_STREQ(Description(), L"Cuts the selection");
}

TEST_F(DescribedTooltip, WhatElseThereIsToSayStandsBelowTheTip) {
    Element(commands::cut).SetToolTipText(L"Cuts the selection");
    Element(commands::cut).SetDescription(L"Press F1 for more");
    EXPECT_STREQ(TipTextAt(CenterOf(commands::cut)), L"Cut");
    EXPECT_STREQ(Description(), L"Cuts the selection\nPress F1 for more");
}

TEST_F(DescribedTooltip, WithoutATipTheNameStandsAlone) {
    EXPECT_STREQ(TipTextAt(CenterOf(commands::paste)), L"Paste");
    EXPECT_STREQ(Description(), L"");
}

TEST_F(DescribedTooltip, TheMarkOfAMnemonicIsNoPartOfTheName) {
    Element(commands::cut).SetText(L"C&ut");
    EXPECT_STREQ(TipTextAt(CenterOf(commands::cut)), L"Cut");
    EXPECT_STREQ(Description(), L"") << "the name is not repeated";
}

TEST_F(DescribedTooltip, TheKeysOfTheCommandStandBehindTheName) {
    ACCEL keys{FCONTROL | FVIRTKEY, 'X', static_cast<WORD>(commands::cut)};
    CFrameWnd* const frame = DYNAMIC_DOWNCAST(CFrameWnd, Bar().GetTopLevelFrame());
    ASSERT_NE(frame, nullptr);
    frame->ReplaceAccelTable(::CreateAcceleratorTableW(&keys, 1));
    Element(commands::cut).SetToolTipText(L"Cuts the selection");
    EXPECT_STREQ(TipTextAt(CenterOf(commands::cut)), L"Cut (Ctrl+X)");
    EXPECT_STREQ(TipTextAt(CenterOf(commands::paste)), L"Paste");
    frame->ReplaceAccelTable(nullptr);
}

TEST_F(DescribedTooltip, WithoutDescriptionsTheTipStandsAlone) {
    Bar().EnableToolTips(TRUE, FALSE);
    Element(commands::cut).SetToolTipText(L"Cuts the selection");
    EXPECT_STREQ(TipTextAt(CenterOf(commands::cut)), L"Cuts the selection");
    EXPECT_STREQ(Description(), L"");
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
    const fx::ScopedChange<int> widest(afxGlobalData.m_nMaxToolTipWidth, 120);
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

TEST_F(RibbonTooltipTest, TheQuickAccessMenuButtonTakesAnotherText) {
    Bar().SetQuickAccessCommands(CommandList{commands::cut});
    const CRect all = Bar().GetQuickAccessToolbarLocation();
    const CPoint onButton((Bar().GetQATCommandsLocation().right + all.right) / 2, all.CenterPoint().y);
    CMFCRibbonBaseElement* const button = Bar().HitTest(onButton);
    ASSERT_NE(button, nullptr);
    button->SetToolTipText(L"Another");
    EXPECT_STREQ(TipTextAt(onButton), L"Another");
    button->SetToolTipText(L"");
    EXPECT_STREQ(TipTextAt(onButton), L"Customize Quick Access Toolbar");
}

} // namespace

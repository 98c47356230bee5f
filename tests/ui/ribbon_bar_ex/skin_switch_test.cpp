// What a switch of the skin sets, and the colours of the black skin's tooltips.
#include "skin_visual_managers.h"
#include "tests/ui/ribbon_bar_ex/extended_bar.h"

#include <afxDockingManager.h>
#include <afxtooltipctrl.h>
#include <afxtooltipmanager.h>
#include <fx/registered_messages.h>

namespace {

class SkinSwitch : public ExtendedBarTest {
protected:
    SkinSwitch() {
        CDockingManager::SetDockingMode(DT_STANDARD);
        Bar().SetWindows7Look(TRUE, FALSE);
    }
    ~SkinSwitch() override {
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManager::DestroyInstance();
        CMFCVisualManagerOffice2007::CleanStyle();
    }
    static CMFCVisualManagerOffice20072& Skin() {
        return dynamic_cast<CMFCVisualManagerOffice20072&>(*CMFCVisualManager::GetInstance());
    }
    static CRuntimeClass* InUse() { return CMFCVisualManager::GetInstance()->GetRuntimeClass(); }
};

TEST_F(SkinSwitch, StyleOneIsSilver) {
    Bar().ChangeSkinColor(1, true);
    EXPECT_EQ(InUse(), RUNTIME_CLASS(CQKVisualManagerOffice2007Silver));
    EXPECT_TRUE(Skin().m_bIsSkin);
    EXPECT_TRUE(Skin().m_bSkinFlag);
    EXPECT_EQ(Bar().GetTextColor(), 0x111111u);
    EXPECT_EQ(Bar().GetSkinStyle(), 1);
    EXPECT_TRUE(Bar().GetSkinFlag());
}

TEST_F(SkinSwitch, EveryOtherStyleIsBlack) {
    for (const int style : {0, 2, 7, -1, INT_MIN, INT_MAX}) {
        Bar().ChangeSkinColor(1, false);
        Bar().ChangeSkinColor(style, false);
        EXPECT_EQ(InUse(), RUNTIME_CLASS(CQKVisualManagerOffice2007Black)) << style;
        EXPECT_TRUE(Skin().m_bIsSkin);
        EXPECT_EQ(Bar().GetTextColor(), 0xFFFFFFu);
        EXPECT_EQ(Bar().GetSkinStyle(), style) << "as it was given";
    }
}

TEST_F(SkinSwitch, TheFlagIsKeptWithTheSkinsManager) {
    for (const int style : {0, 1}) {
        for (const bool flag : {true, false}) {
            Bar().ChangeSkinColor(style, flag);
            EXPECT_EQ(Skin().m_bSkinFlag, flag ? TRUE : FALSE) << style;
            EXPECT_TRUE(Skin().m_bIsSkin) << style;
        }
    }
}

TEST_F(SkinSwitch, BothSkinsDockSmartlyAndTurnTheWindowsSevenLookOff) {
    for (const int style : {0, 1}) {
        CDockingManager::SetDockingMode(DT_STANDARD);
        Bar().SetWindows7Look(TRUE);
        Bar().ChangeSkinColor(style, false);
        EXPECT_EQ(CDockingManager::GetDockingMode(), DT_SMART) << style;
        EXPECT_FALSE(Bar().IsWindows7Look()) << style;
    }
}

TEST_F(SkinSwitch, TheBlackSkinsTooltipsHaveTheirFourColours) {
    Bar().ChangeSkinColor(0, false);
    const CMFCToolTipInfo& info = Skin().GetToolTipInfo();
    EXPECT_EQ(info.m_clrFill, 0x8D7C74u);
    EXPECT_EQ(info.m_clrFillGradient, 0x8C786Eu);
    EXPECT_EQ(info.m_clrText, 0xF1F1F1u);
    EXPECT_EQ(info.m_clrBorder, 0xA89997u);
}

TEST_F(SkinSwitch, TheSilverSkinsTooltipsKeepTheirOwnColours) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CQKVisualManagerOffice2007Silver));
    const CMFCToolTipInfo own = Skin().GetToolTipInfo();
    Bar().ChangeSkinColor(0, false);
    Bar().ChangeSkinColor(1, false);
    const CMFCToolTipInfo& info = Skin().GetToolTipInfo();
    EXPECT_EQ(info.m_clrFill, own.m_clrFill);
    EXPECT_EQ(info.m_clrText, own.m_clrText);
    EXPECT_EQ(info.m_clrBorder, own.m_clrBorder);
}

TEST_F(SkinSwitch, ABarWithoutAWindowSwitchesTheSkinToo) {
    CMFCRibbonBarEx bar;
    bar.ChangeSkinColor(1, true);
    EXPECT_EQ(InUse(), RUNTIME_CLASS(CQKVisualManagerOffice2007Silver));
    bar.ChangeSkinColor(0, true);
    EXPECT_EQ(InUse(), RUNTIME_CLASS(CQKVisualManagerOffice2007Black));
    EXPECT_EQ(bar.GetTextColor(), 0xFFFFFFu);
}

TEST_F(SkinSwitch, AHostThatEndsItsWindowWhenItHearsOfTheNewManagerMayDoSo) {
    m_frame->onManagerChanged = [this] { m_frame->DestroyWindow(); };
    Bar().ChangeSkinColor(1, true); // and then touches nothing of the bar
    EXPECT_FALSE(IsAlive());
    EXPECT_EQ(InUse(), RUNTIME_CLASS(CQKVisualManagerOffice2007Silver));
    EXPECT_TRUE(Skin().m_bSkinFlag);
}

TEST_F(SkinSwitch, AHostThatChoosesAnotherManagerMeanwhileKeepsIt) {
    m_frame->onManagerChanged = [] { CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManager)); };
    Bar().ChangeSkinColor(1, true);
    EXPECT_EQ(InUse(), RUNTIME_CLASS(CMFCVisualManager));
}

// ---- colours that something else has changed

class SkinTooltip : public SkinSwitch {
protected:
    SkinTooltip() {
        Button(0, 1).SetToolTipText(L"Shows more");
        PutCursor(OnScreen(Button(0, 1).GetRect()));
    }
    ~SkinTooltip() override { CTooltipManager().SetTooltipParams(AFX_TOOLTIP_TYPE_RIBBON, nullptr); }
    static void Spoil(COLORREF border) {
        CMFCToolTipInfo& info = Skin().GetToolTipInfo();
        info.m_clrFill = info.m_clrFillGradient = info.m_clrText = RGB(1, 2, 3);
        info.m_clrBorder = border;
    }
    void Ask() {
        ASSERT_NE(Bar().GetToolTipCtrl(), nullptr);
        NMTTDISPINFO info{};
        info.hdr.hwndFrom = Bar().GetToolTipCtrl()->GetSafeHwnd();
        info.hdr.code = TTN_NEEDTEXT;
        Bar().SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&info));
        ASSERT_STREQ(info.lpszText, L"Shows more");
    }
};

TEST_F(SkinTooltip, AnotherFourthColourBringsAllFourBack) {
    Bar().ChangeSkinColor(0, false);
    Spoil(RGB(9, 9, 9));
    Ask();
    const CMFCToolTipInfo& info = Skin().GetToolTipInfo();
    EXPECT_EQ(info.m_clrFill, 0x8D7C74u);
    EXPECT_EQ(info.m_clrFillGradient, 0x8C786Eu);
    EXPECT_EQ(info.m_clrText, 0xF1F1F1u);
    EXPECT_EQ(info.m_clrBorder, 0xA89997u);
}

TEST_F(SkinTooltip, WithTheFourthColourInPlaceTheOthersStay) {
    Bar().ChangeSkinColor(0, false);
    Spoil(0xA89997);
    Ask();
    EXPECT_EQ(Skin().GetToolTipInfo().m_clrFill, RGB(1, 2, 3));
}

TEST_F(SkinTooltip, OfAnotherSkinNumberTheColoursStay) {
    for (const int style : {1, 7}) {
        Bar().ChangeSkinColor(style, false);
        Spoil(RGB(9, 9, 9));
        Ask();
        EXPECT_EQ(Skin().GetToolTipInfo().m_clrBorder, RGB(9, 9, 9)) << style;
    }
}

TEST_F(SkinTooltip, OfAnotherManagerTheColoursStay) {
    Bar().ChangeSkinColor(0, false);
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CQKVisualManagerOffice2007Silver));
    Spoil(RGB(9, 9, 9));
    Ask();
    EXPECT_EQ(Skin().GetToolTipInfo().m_clrBorder, RGB(9, 9, 9));
}

TEST_F(SkinTooltip, WithoutATextTheColoursStay) {
    Bar().ChangeSkinColor(0, false);
    Spoil(RGB(9, 9, 9));
    PutCursor(CPoint(700, 550));
    NMTTDISPINFO info{};
    info.hdr.hwndFrom = Bar().GetToolTipCtrl()->GetSafeHwnd();
    info.hdr.code = TTN_NEEDTEXT;
    Bar().SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(Skin().GetToolTipInfo().m_clrBorder, RGB(9, 9, 9));
}

} // namespace

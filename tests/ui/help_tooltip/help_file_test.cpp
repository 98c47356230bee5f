// The help file decides about the hint, the icon about the margins.
#include "tests/ui/help_tooltip/tooltip_fixture.h"

#include "afxtoolbar.h"
#include "afxtoolbarbutton.h"
#include "afxvisualmanager.h"

namespace {

TEST_F(HelpTooltip, WithoutAHelpFileThereIsNoHint) {
    const CRect rect = Show();
    EXPECT_EQ(m_tip.m_margin, CPoint(6, 4));
    EXPECT_EQ(DescriptionSize(), CSize(0, 0));
    EXPECT_EQ(rect.Size(), CSize(LabelSize().cx + 32 + 6 + 12, 32 + 8));
}

TEST_F(HelpTooltip, WithAHelpFileItGrowsByTheDescriptionAndWideMargins) {
    AddHelp();
    const CRect rect = Show();
    EXPECT_EQ(m_tip.m_margin, CPoint(6, 14));
    const CSize label = LabelSize(), description = DescriptionSize();
    EXPECT_GT(description.cx, 0);
    EXPECT_EQ(rect.Width(), std::max(label.cx, description.cx) + 32 + 6 + 12);
    EXPECT_EQ(rect.Height(), label.cy + 28 + description.cy + 28);
}

TEST_F(HelpTooltip, ASmallIconHasSmallerMargins) {
    UseSmallIcon();
    AddHelp();
    Show();
    EXPECT_EQ(m_tip.m_iconSize, CSize(16, 16));
    EXPECT_EQ(m_tip.m_margin, CPoint(6, 8));
}

TEST_F(HelpTooltip, WithoutRoundedCornersMarginsAreSmall) {
    m_tip.m_Params.m_bRoundedCorners = FALSE;
    AddHelp();
    Show();
    EXPECT_EQ(m_tip.m_margin, CPoint(4, 2));
}

TEST_F(HelpTooltip, MarginsAndIconGrowWithTheScale) {
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.5));
    AddHelp();
    Show();
    EXPECT_EQ(m_tip.m_iconSize, CSize(48, 48));
    EXPECT_EQ(m_tip.m_margin, CPoint(9, 21));
}

TEST_F(HelpTooltip, AHelpFileThatComesOrGoesCountsAtTheNextShow) {
    Show();
    EXPECT_EQ(m_tip.m_margin.y, 4);
    AddHelp();
    Show();
    EXPECT_EQ(m_tip.m_margin.y, 14);
    m_help.Remove("open.swf");
    Show();
    EXPECT_EQ(m_tip.m_margin.y, 4);
}

TEST_F(HelpTooltip, AFolderOfThatNameIsNoHelpFile) {
    m_help.Write("open.swf/inside");
    Show();
    EXPECT_EQ(m_tip.m_margin.y, 4);
}

TEST_F(HelpTooltip, ACommandWithoutARegisteredHelpFileHasNone) {
    AddHelp();
    UseButton(std::make_unique<CMFCRibbonUNIcoButton>(kCommand + 1, L"Open", m_icon32));
    Show();
    EXPECT_EQ(m_tip.m_margin.y, 4);
}

TEST_F(HelpTooltip, AnyDescriptionOfAnElementNeedsTheHelpFile) {
    m_tip.SetDescription(L"Reads a drawing.");
    Show();
    EXPECT_EQ(DescriptionSize(), CSize(0, 0));
    AddHelp();
    Show();
    EXPECT_GT(DescriptionSize().cx, 0);
}

TEST_F(HelpTooltip, WithoutAHotElementADescriptionNeedsNoFile) {
    m_tip.SetHotRibbonButton(nullptr);
    m_tip.SetDescription(L"Reads a drawing.");
    Show();
    EXPECT_GT(DescriptionSize().cx, 0);
    EXPECT_EQ(m_tip.m_margin, CPoint(6, 4)) << "no icon to make room below";
}

TEST_F(HelpTooltip, WithoutADescriptionThereIsNoHint) {
    AddHelp();
    m_tip.SetDescription(L"");
    const CRect rect = Show();
    EXPECT_EQ(m_tip.m_margin, CPoint(6, 4));
    EXPECT_EQ(rect.Height(), 32 + 8);
}

TEST_F(HelpTooltip, IconsThatAreNotShownTakeNoRoom) {
    m_tip.m_Params.m_bDrawIcon = FALSE;
    const CRect rect = Show();
    EXPECT_EQ(m_tip.m_iconSize, CSize(0, 0));
    EXPECT_EQ(rect.Size(), LabelSize() + CSize(12, 8));
}

TEST_F(HelpTooltip, AnElementWithoutAnImageHasNoIcon) {
    UseButton(std::make_unique<CMFCRibbonUNIcoButton>(kCommand, L"Open", -1, -1));
    EXPECT_EQ(m_tip.GetIconSize(), CSize(0, 0));
}

class ImagelessButton : public CMFCRibbonUNIcoButton {
public:
    using CMFCRibbonUNIcoButton::CMFCRibbonUNIcoButton;
    BOOL IsDrawTooltipImage() const override { return FALSE; }
};

TEST_F(HelpTooltip, AnElementThatShowsNoImageInItsTooltipHasNoIcon) {
    UseButton(std::make_unique<ImagelessButton>(kCommand, L"Open", m_icon32));
    EXPECT_EQ(m_tip.GetIconSize(), CSize(0, 0));
}

TEST_F(HelpTooltip, AnElementThatShowsNoImageNeedsItsHelpFileToo) {
    UseButton(std::make_unique<ImagelessButton>(kCommand, L"Open", m_icon32));
    Show();
    EXPECT_EQ(DescriptionSize(), CSize(0, 0));
    AddHelp();
    Show();
    EXPECT_GT(DescriptionSize().cx, 0);
}

TEST_F(HelpTooltip, AnIconFileButtonsIconIsOfItsShownSizeAtScale) {
    EXPECT_EQ(m_tip.GetIconSize(), CSize(32, 32));
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.5));
    EXPECT_EQ(m_tip.GetIconSize(), CSize(48, 48));
    UseSmallIcon();
    EXPECT_EQ(m_tip.GetIconSize(), CSize(24, 24));
}

TEST_F(HelpTooltip, AToolbarButtonsIconIsOfTheToolbarImagesSize) {
    m_tip.SetHotRibbonButton(nullptr);
    CMFCToolBarButton with(kCommand, 0, L"Open"), without(kCommand, -1, L"Open");
    m_tip.m_pHotButton = &without;
    EXPECT_EQ(m_tip.GetIconSize(), CSize(0, 0));
    m_tip.m_pHotButton = &with;
    EXPECT_EQ(m_tip.GetIconSize(), CSize(CMFCToolBar::GetImages()->GetImageSize(TRUE)));
    EXPECT_GT(m_tip.GetIconSize().cx, 0);
    m_tip.m_pHotButton = nullptr;
    EXPECT_EQ(m_tip.GetIconSize(), CSize(0, 0));
}

/// A look of its own for tooltips that ask.
class LookingManager : public CMFCVisualManager {
    DECLARE_DYNCREATE(LookingManager)

public:
    BOOL GetToolTipInfo(CMFCToolTipInfo& params, UINT /*nType*/) override {
        params.m_clrFill = RGB(1, 2, 3);
        params.m_bVislManagerTheme = TRUE;
        return TRUE;
    }
};
IMPLEMENT_DYNCREATE(LookingManager, CMFCVisualManager)

TEST_F(HelpTooltip, TheVisualManagersLookIsTakenWhereTheTooltipFollowsIt) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(LookingManager));
    Show();
    EXPECT_EQ(m_tip.m_Params.m_clrFill, RGB(250, 250, 250));
    m_tip.m_Params.m_bVislManagerTheme = TRUE;
    Show();
    EXPECT_EQ(m_tip.m_Params.m_clrFill, RGB(1, 2, 3));
    CMFCVisualManager::SetDefaultManager(nullptr);
    CMFCVisualManager::DestroyInstance();
}

TEST_F(HelpTooltip, IsMadeByTheTooltipManagerWhenTheHostChoosesItsClass) {
    CTooltipManager manager;
    CMFCToolTipInfo look;
    manager.SetTooltipParams(AFX_TOOLTIP_TYPE_RIBBON, RUNTIME_CLASS(CToolTipCtrlEx), &look);
    CToolTipCtrl* made = nullptr;
    ASSERT_TRUE(CTooltipManager::CreateToolTip(made, &m_host.Bar(), AFX_TOOLTIP_TYPE_RIBBON));
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CToolTipCtrlEx)));
    CTooltipManager::DeleteToolTip(made);
    manager.SetTooltipParams(AFX_TOOLTIP_TYPE_RIBBON, nullptr);
}

TEST_F(HelpTooltip, TheHelpFolderIsAskedForOnceInAProcess) {
    constexpr const wchar_t* key = L"Software\\HALVORN\\Tessaly";
    const HANDLE turn = ::CreateMutexW(nullptr, FALSE, L"barwright-media-folder-test");
    ::WaitForSingleObject(turn, INFINITE);
    const std::wstring elsewhere = L"C:\\elsewhere";
    ::RegSetKeyValueW(HKEY_LOCAL_MACHINE, key, L"FlashPath", REG_SZ, elsewhere.c_str(),
                      static_cast<DWORD>((elsewhere.size() + 1) * sizeof(wchar_t)));
    const CToolTipCtrlEx another;
    ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, key);
    ::ReleaseMutex(turn);
    ::CloseHandle(turn);
    AddHelp();
    Show();
    EXPECT_EQ(m_tip.m_margin.y, 14) << "the file of the first folder is still found";
}

} // namespace

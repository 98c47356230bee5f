#include "tests/ui/skins/skin_fixture.h"

#include "check_drop_down.h"
#include "skins/menu_rules.h"

#include <afxpopupmenu.h>
#include <afxribbonbar.h>
#include <afxribbonstatusbar.h>
#include <afxtoolbar.h>
#include <afxtoolbarmenubutton.h>
#include <fx/popup_rows.h>
#include <fx/scoped_change.h>

namespace {

constexpr COLORREF kMenuText = RGB(217, 223, 251);
constexpr COLORREF kMenuBorder = RGB(75, 80, 92);
constexpr COLORREF kMenuSeparator = RGB(61, 66, 78);
constexpr COLORREF kBlackStatusLine = RGB(50, 55, 62);

class SkinRules : public SkinTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_frame.Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200)));
    }
    void TearDown() override { m_frame.DestroyWindow(); }

    class Frame : public CWnd {
    public:
        BOOL Create(LPCTSTR, LPCTSTR title, DWORD style, const CRect& rect) {
            return CreateEx(0, AfxRegisterWndClass(0), title, style, rect, nullptr, 0);
        }
    };
    Frame m_frame;
};

TEST_F(SkinRules, TextOfMenuItemsOfTheBlackSkinIsTheSameWhetherLitOrNot) {
    auto& skin = Use<OpenBlackSkin>();
    CMFCToolBarMenuButton button;
    EXPECT_EQ(skin.GetMenuItemTextColor(&button, FALSE, FALSE), kMenuText);
    EXPECT_EQ(skin.GetMenuItemTextColor(&button, TRUE, FALSE), kMenuText);
    EXPECT_EQ(skin.GetMenuItemTextColor(nullptr, FALSE, TRUE), kMenuText);
}

TEST_F(SkinRules, TextInACombosDropListIsBlackInTheBlackSkinEvenWhenLit) {
    auto& skin = Use<OpenBlackSkin>();
    CMFCPopupMenuBarEx rows;
    ASSERT_TRUE(rows.Create(&m_frame));
    CMFCToolBarMenuButton button;
    button.OnChangeParentWnd(&rows);
    EXPECT_EQ(skin.GetMenuItemTextColor(&button, FALSE, FALSE), RGB(0, 0, 0));
    EXPECT_EQ(skin.GetMenuItemTextColor(&button, TRUE, FALSE), RGB(0, 0, 0));
}

TEST_F(SkinRules, TextOfMenuItemsOfTheSilverSkinIsThePlatforms) {
    auto& skin = Use<OpenSilverSkin>();
    CMFCToolBarMenuButton button;
    for (const BOOL isLit : {FALSE, TRUE}) {
        for (const BOOL isDisabled : {FALSE, TRUE}) {
            EXPECT_EQ(skin.GetMenuItemTextColor(&button, isLit, isDisabled),
                      skin.CMFCVisualManagerOffice2007::GetMenuItemTextColor(&button, isLit, isDisabled));
        }
    }
    EXPECT_NE(skin.GetMenuItemTextColor(&button, FALSE, FALSE), kMenuText);
}

TEST_F(SkinRules, TheTitleIsCentredAtOnceInASkinThatIsInUse) {
    auto& skin = Use<OpenBlackSkin>();
    EXPECT_FALSE(skin.m_BCaptionCenter);
    CQKVisualManagerOffice2007Black::SetCaptionCenter(TRUE);
    EXPECT_TRUE(skin.m_BCaptionCenter);
}

TEST_F(SkinRules, TheTitleIsCentredInTheSilverSkinToo) {
    auto& skin = Use<OpenSilverSkin>();
    CQKVisualManagerOffice2007Black::SetCaptionCenter(TRUE);
    EXPECT_TRUE(skin.m_BCaptionCenter);
}

TEST_F(SkinRules, ACentredTitleStaysSoInTheNextSkinAndAfterTheSystemsColoursChange) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    CQKVisualManagerOffice2007Black::SetCaptionCenter(TRUE);
    auto& skin = Use<OpenBlackSkin>();
    EXPECT_TRUE(skin.m_BCaptionCenter);
    skin.m_BCaptionCenter = FALSE;
    skin.OnUpdateSystemColors();
    EXPECT_TRUE(skin.m_BCaptionCenter);
}

TEST_F(SkinRules, TooltipParametersAreOneObjectThatTooltipsFollow) {
    auto& skin = Use<OpenBlackSkin>();
    skin.GetToolTipInfo().m_clrBorder = 0xA89997;
    EXPECT_EQ(&skin.GetToolTipInfo(), &skin.GetToolTipInfo());
    CMFCToolTipInfo info;
    ASSERT_TRUE(CMFCVisualManager::GetInstance()->GetToolTipInfo(info));
    EXPECT_EQ(info.m_clrBorder, 0xA89997u);
    skin.OnUpdateSystemColors();
    EXPECT_EQ(skin.GetToolTipInfo().m_clrBorder, 0xA89997u);
}

// ---- borders of menus

TEST_F(SkinRules, AMenuThatHangsFromNothingHasABorderOfTwoPixelsInTheMenusOwnColour) {
    auto& skin = Use<OpenBlackSkin>();
    CMFCPopupMenu menu;
    Canvas canvas(CSize(40, 30));
    skin.OnDrawMenuBorder(canvas.Dc(), &menu, CRect(0, 0, 40, 30));
    for (const CPoint place : {CPoint(0, 0), CPoint(1, 1), CPoint(39, 29), CPoint(38, 15), CPoint(20, 28)}) {
        EXPECT_EQ(canvas.At(place.x, place.y), Pixel(kMenuBorder)) << place.x << ", " << place.y;
    }
    EXPECT_EQ(canvas.At(2, 2), Canvas::background);
    EXPECT_EQ(canvas.At(37, 27), Canvas::background);
}

/// The border is what the platform's older manager draws.
void ExpectOlderBorder(OpenBlackSkin& skin) {
    CMFCPopupMenu menu;
    Canvas got(CSize(40, 30)), want(CSize(40, 30));
    skin.OnDrawMenuBorder(got.Dc(), &menu, CRect(0, 0, 40, 30));
    skin.CMFCVisualManagerOffice2003::OnDrawMenuBorder(want.Dc(), &menu, CRect(0, 0, 40, 30));
    EXPECT_EQ(got.At(0, 0), want.At(0, 0));
    EXPECT_EQ(got.Colours(), want.Colours());
    EXPECT_NE(got.At(0, 0), Pixel(kMenuBorder));
}

TEST_F(SkinRules, WithoutPicturesTheMenusBorderIsThePlatformsOlderOne) {
    auto& skin = Use<OpenBlackSkin>();
    skin.SetImageMode(FALSE);
    ExpectOlderBorder(skin);
}

TEST_F(SkinRules, InHighContrastTheMenusBorderIsThePlatformsOlderOne) {
    auto& skin = Use<OpenBlackSkin>();
    {
        const fx::ScopedChange black(afxGlobalData.m_bIsBlackHighContrast, TRUE);
        ExpectOlderBorder(skin);
    }
    const fx::ScopedChange white(afxGlobalData.m_bIsWhiteHighContrast, TRUE);
    ExpectOlderBorder(skin);
}

TEST_F(SkinRules, OnADisplayOfFewColoursTheMenusBorderIsThePlatformsOlderOne) {
    auto& skin = Use<OpenBlackSkin>();
    const fx::ScopedChange bits(afxGlobalData.m_nBitsPerPixel, 8);
    ExpectOlderBorder(skin);
}

TEST_F(SkinRules, InHighContrastTheSystemsColoursAreDrawn) {
    auto& skin = Use<OpenBlackSkin>();
    const fx::ScopedChange black(afxGlobalData.m_bIsBlackHighContrast, TRUE);
    Canvas canvas;
    skin.OnDrawRibbonTabsFrame(canvas.Dc(), nullptr, CRect(0, 0, 40, 40));
    EXPECT_NE(canvas.At(20, 20), Pixel(RGB(50, 52, 62)));
    CMFCToolTipInfo info;
    EXPECT_FALSE(CMFCVisualManager::GetInstance()->GetToolTipInfo(info));
}

TEST_F(SkinRules, TheSilverSkinsMenuBorderIsThePlatforms) {
    auto& skin = Use<OpenSilverSkin>();
    CMFCPopupMenu menu;
    Canvas got(CSize(40, 30)), want(CSize(40, 30));
    skin.OnDrawMenuBorder(got.Dc(), &menu, CRect(0, 0, 40, 30));
    skin.CMFCVisualManagerOffice2007::OnDrawMenuBorder(want.Dc(), &menu, CRect(0, 0, 40, 30));
    EXPECT_EQ(got.Colours(), want.Colours());
    EXPECT_EQ(got.At(0, 0), want.At(0, 0));
}

// ---- separators

TEST(MenuSeparatorRule, BeginsBehindTheColumnOfImages) {
    skins::MenuSeparatorPlace place{CRect(10, 20, 90, 40), 300, 16, 2, true, false};
    EXPECT_EQ(skins::MenuSeparatorRect(place), CRect(10 + 16 + 2 + 1, 23, 90, 36));
    place.isInPopup = true;
    EXPECT_EQ(skins::MenuSeparatorRect(place), CRect(10 + 3 * 2 + 2 * 16 + 2, 23, 90, 36));
    place.hasImageColumn = false;
    EXPECT_EQ(skins::MenuSeparatorRect(place), CRect(0, 23, 90, 36));
}

TEST(MenuSeparatorRule, GoesToTheEdgeWhenLessThanFiftyPixelsAreLeft) {
    const auto right = [](int edge) {
        return skins::MenuSeparatorRect({CRect(0, 0, 100, 10), edge, 16, 2, true, true}).right;
    };
    EXPECT_EQ(right(149), 149);
    EXPECT_EQ(right(150), 100);
    EXPECT_EQ(right(90), 90);
}

TEST(ToolBarSeparatorRule, IsShorterByAFifthAtEachEnd) {
    EXPECT_EQ(skins::ToolBarSeparatorRect(CRect(0, 0, 52, 9), FALSE), CRect(10, 0, 42, 9));
    EXPECT_EQ(skins::ToolBarSeparatorRect(CRect(0, 0, 9, 52), TRUE), CRect(0, 10, 9, 42));
    EXPECT_EQ(skins::ToolBarSeparatorRect(CRect(5, 5, 9, 8), TRUE), CRect(5, 5, 9, 8));
}

TEST(RibbonSeparatorRule, IsWidenedToTheLeftToAtLeastTheSeparator) {
    EXPECT_EQ(skins::RibbonSeparatorRect(CRect(10, 0, 11, 20), 4), CRect(7, 0, 11, 20));
    EXPECT_EQ(skins::RibbonSeparatorRect(CRect(10, 0, 30, 20), 4), CRect(10, 0, 30, 20));
}

TEST(StatusSeparatorRule, ReachesOverTheBarsEdgesWithItsLineInTheMiddle) {
    EXPECT_EQ(skins::StatusSeparatorRect(CRect(20, 2, 28, 26), FALSE, 2), CRect(23, -3, 25, 31));
    EXPECT_EQ(skins::StatusSeparatorRect(CRect(20, 2, 28, 26), TRUE, 2), CRect(23, -3, 25, 28));
    EXPECT_EQ(skins::StatusSeparatorRect(CRect(20, 2, 27, 26), FALSE, 1), CRect(23, -3, 24, 31));
    EXPECT_EQ(skins::StatusSeparatorRect(CRect(20, 2, 22, 26), FALSE, 10), CRect(19, -3, 23, 31));
}

TEST_F(SkinRules, SeparatorsOfTheStatusBarAreLinesOverItsHeightInTheirOwnColour) {
    auto& skin = Use<OpenBlackSkin>();
    CMFCRibbonStatusBar bar;
    Canvas canvas(CSize(40, 28));
    skin.OnDrawSeparator(canvas.Dc(), &bar, CRect(10, 2, 17, 26), TRUE);
    EXPECT_EQ(canvas.BoundsOf(Pixel(kBlackStatusLine)), CRect(13, 0, 14, 28));
}

TEST_F(SkinRules, TheLineOfAPanelLiesBehindItAsFarFromItsElementsAsFromTheNext) {
    const CRect panel(4, 2, 30, 60), caption(4, 46, 30, 60);
    const auto expect = [&](CMFCVisualManager& skin) {
        Canvas canvas(CSize(40, 64));
        skin.OnDrawRibbonPanel(canvas.Dc(), nullptr, panel, caption);
        EXPECT_EQ(canvas.Colours(panel), std::set<std::uint32_t>{Canvas::background}) << "inside of the panel";
        EXPECT_GT(canvas.Colours(CRect(panel.right, 20, panel.right + 2, 21)).size(), 1U) << "in the gap";
        EXPECT_EQ(canvas.At(panel.right + 2, 20), Canvas::background) << "at the next panel";
    };
    expect(Use<OpenSilverSkin>());
    expect(Use<OpenBlackSkin>());
}

TEST_F(SkinRules, TheSilverSkinsStatusBarHasThePlatformsSeparators) {
    auto& skin = Use<OpenSilverSkin>();
    CMFCRibbonStatusBar bar;
    Canvas got(CSize(20, 28)), want(CSize(20, 28));
    skin.OnDrawSeparator(got.Dc(), &bar, CRect(5, 2, 13, 26), TRUE);
    skin.CMFCVisualManagerOffice2007::OnDrawSeparator(want.Dc(), &bar, CRect(5, 2, 13, 26), TRUE);
    EXPECT_GT(got.Colours().size(), 1u) << "nothing was drawn";
    for (int x = 0; x < 20; ++x) {
        EXPECT_EQ(got.At(x, 14), want.At(x, 14)) << x;
    }
}

TEST_F(SkinRules, SeparatorsOfMenusAreFilledInTheMenusOwnColour) {
    auto& skin = Use<OpenBlackSkin>();
    CMFCPopupMenuBar bar;
    ASSERT_TRUE(bar.Create(&m_frame));
    bar.MoveWindow(0, 0, 120, 100);
    Canvas canvas(CSize(120, 40));
    const CRect rect(0, 10, 100, 22);
    skin.OnDrawSeparator(canvas.Dc(), &bar, rect, FALSE);
    const int left = bar.GetCurrentMenuImageSize().cx + skin.GetMenuImageMargin() + 1;
    EXPECT_EQ(canvas.BoundsOf(Pixel(kMenuSeparator)), CRect(left, 13, 120, 18));
}

TEST_F(SkinRules, AMenuWithoutColumnOfImagesHasSeparatorsFromItsEdge) {
    auto& skin = Use<OpenBlackSkin>();
    CMFCPopupMenuBar bar;
    ASSERT_TRUE(bar.Create(&m_frame));
    bar.MoveWindow(0, 0, 120, 100);
    bar.m_bDisableSideBarInXPMode = TRUE;
    Canvas canvas(CSize(120, 40));
    skin.OnDrawSeparator(canvas.Dc(), &bar, CRect(30, 10, 100, 22), FALSE);
    EXPECT_EQ(canvas.BoundsOf(Pixel(kMenuSeparator)).left, 0);
}

TEST_F(SkinRules, ADropListHasNoColumnOfImagesBesideItsSeparators) {
    struct NoRows final : toolbar::PopupRows {
        int GetRowCount() const override { return 0; }
        CString GetRowText(int) const override { return {}; }
        int MeasureRows(CDC&) override { return 0; }
        int MeasureRow(CDC&, int) override { return 0; }
        BOOL DrawRow(CDC&, int, CMFCToolBarMenuButton&, BOOL) override { return FALSE; }
        void ChooseRow(int) override {}
        BOOL ToggleRow(int) override { return FALSE; }
    };
    NoRows rows;
    auto& skin = Use<OpenBlackSkin>();
    CMFCPopupMenuBar bar;
    ASSERT_TRUE(bar.Create(&m_frame));
    bar.MoveWindow(0, 0, 120, 100);
    bar.SetRows(&rows);
    Canvas canvas(CSize(120, 40));
    skin.OnDrawSeparator(canvas.Dc(), &bar, CRect(30, 10, 100, 22), FALSE);
    EXPECT_EQ(canvas.BoundsOf(Pixel(kMenuSeparator)).left, 0);
}

TEST_F(SkinRules, SeparatorsOfToolBarsAreLinesInTheMiddle) {
    auto& skin = Use<OpenBlackSkin>();
    CMFCToolBar bar;
    Canvas upright(CSize(20, 50)), lying(CSize(50, 20));
    skin.OnDrawSeparator(upright.Dc(), &bar, CRect(0, 0, 20, 50), TRUE);
    EXPECT_NE(upright.At(10, 25), Canvas::background);
    EXPECT_EQ(upright.At(10, 9), Canvas::background);
    EXPECT_NE(upright.At(10, 10), Canvas::background);
    EXPECT_EQ(upright.At(10, 40), Canvas::background);
    skin.OnDrawSeparator(lying.Dc(), &bar, CRect(0, 0, 50, 20), FALSE);
    EXPECT_NE(lying.At(25, 10), Canvas::background);
    EXPECT_EQ(lying.At(9, 10), Canvas::background);
    EXPECT_EQ(lying.At(40, 10), Canvas::background);
}

TEST_F(SkinRules, SeparatorsOfTheRibbonLieInTheMiddleOfTheirPlace) {
    auto& skin = Use<OpenBlackSkin>();
    CMFCRibbonBar bar;
    Canvas canvas(CSize(21, 30));
    skin.OnDrawSeparator(canvas.Dc(), &bar, CRect(0, 0, 21, 30), TRUE);
    EXPECT_NE(canvas.At(10, 0), Canvas::background);
    EXPECT_NE(canvas.At(10, 29), Canvas::background);
    EXPECT_EQ(canvas.At(9, 15), Canvas::background);
    EXPECT_EQ(canvas.At(11, 15), Canvas::background);
}

TEST_F(SkinRules, TheSilverSkinsSeparatorsAreThePlatforms) {
    auto& skin = Use<OpenSilverSkin>();
    CMFCToolBar bar;
    Canvas got(CSize(20, 50)), want(CSize(20, 50));
    skin.OnDrawSeparator(got.Dc(), &bar, CRect(0, 0, 20, 50), TRUE);
    skin.CMFCVisualManagerOffice2007::OnDrawSeparator(want.Dc(), &bar, CRect(0, 0, 20, 50), TRUE);
    for (int x = 0; x < 20; ++x) {
        EXPECT_EQ(got.At(x, 25), want.At(x, 25)) << x;
        EXPECT_EQ(got.At(x, 2), want.At(x, 2)) << x;
    }
}

} // namespace

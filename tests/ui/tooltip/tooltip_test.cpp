#include "tests/support/ui_test.h"
#include <fx/scoped_change.h>

#include "afxglobals.h"
#include "afxribbonbutton.h"
#include "afxtooltipctrl.h"
#include "afxtooltipmanager.h"
#include "popups/tooltip_layout.h"
#include "popups/tooltip_text.h"

namespace {

constexpr UINT_PTR g_tool = 1;

/// Opens what the tests look at.
class ShownTooltip : public CMFCToolTipCtrl {
public:
    using CMFCToolTipCtrl::CMFCToolTipCtrl;
    using CMFCToolTipCtrl::GetIconSize;
    using CMFCToolTipCtrl::GetLabel;
    using CMFCToolTipCtrl::m_ptMargin;
};

/// A tooltip over the whole client area of a window, shown at a place.
struct Stage {
    explicit Stage(CMFCToolTipInfo params = {}) : tooltip(&params) {
        tooltip.Create(&window, TTS_ALWAYSTIP | TTS_NOPREFIX);
    }
    CRect Show(const wchar_t* label, const wchar_t* description, CPoint place = CPoint(60, 60)) {
        CRect client;
        window.GetClientRect(client);
        tooltip.AddTool(&window, label, client, g_tool);
        tooltip.SetDescription(description);
        tooltip.SetLocation(place);
        TOOLINFO info{};
        info.cbSize = sizeof info;
        info.hwnd = window.m_hWnd;
        info.uId = g_tool;
        // Tracked, because no cursor moves here.
        info.uFlags = TTF_TRACK;
        info.rect = client;
        info.lpszText = const_cast<wchar_t*>(label);
        tooltip.SetToolInfo(&info);
        tooltip.SendMessage(TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&info));
        CRect rect;
        tooltip.GetWindowRect(rect);
        return rect;
    }

    TestWindow window;
    ShownTooltip tooltip;
};

CRect WorkArea() {
    CRect area;
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

std::size_t FourFit(std::wstring_view text) { return std::min<std::size_t>(4, text.size()); }

using Lines = std::vector<std::wstring>;

TEST(TooltipText, EnglishBreaksAtSpaces) {
    EXPECT_EQ(tooltip::WrapText(L"one two six", FourFit), (Lines{L"one", L"two", L"six"}));
}

TEST(TooltipText, ChineseBreaksBetweenCharacters) {
    EXPECT_EQ(tooltip::WrapText(L"\u6309\u952E\u83B7\u5F97\u89C6\u9891", FourFit),
              (Lines{L"\u6309\u952E\u83B7\u5F97", L"\u89C6\u9891"}));
}

TEST(TooltipText, ClosingMarksNeverBeginALine) {
    EXPECT_EQ(tooltip::WrapText(L"\u6309\u952E\u83B7\u5F97\u3002\u89C6\u9891", FourFit),
              (Lines{L"\u6309\u952E\u83B7", L"\u5F97\u3002\u89C6\u9891"}));
}

TEST(TooltipText, AWordWiderThanTheLineIsCut) {
    EXPECT_EQ(tooltip::WrapText(L"abcdefgh", FourFit), (Lines{L"abcd", L"efgh"}));
}

TEST(TooltipText, LineBreaksOfTheTextStay) {
    EXPECT_EQ(tooltip::WrapText(L"a\r\n\nb", FourFit), (Lines{L"a", L"", L"b"}));
}

TEST(TooltipText, KeyMarksGoAndDoubledOnesStayOnce) {
    EXPECT_EQ(tooltip::WithoutKeyMarks(L"&Cut && paste"), L"Cut & paste");
}

TEST(TooltipLayout, DescriptionStandsBelowTheLabelAndBesideTheIcon) {
    const tooltip::Layout layout = tooltip::Arrange({CSize(32, 32), CSize(80, 14), CSize(120, 40)}, CSize(6, 4));
    EXPECT_EQ(layout.label.left, layout.description.left);
    EXPECT_EQ(layout.label.left, 6 + 32 + 6);
    EXPECT_GT(layout.description.top, layout.label.bottom);
    EXPECT_GT(layout.separatorY, layout.label.bottom - 1);
    EXPECT_LT(layout.separatorY, layout.description.top);
    EXPECT_EQ(layout.window, CSize(44 + 120 + 6, 4 + 14 + 8 + 40 + 4));
}

TEST(TooltipLayout, LabelAloneStandsInTheMiddleOfTheIcon) {
    const tooltip::Layout layout = tooltip::Arrange({CSize(32, 32), CSize(80, 14), CSize(0, 0)}, CSize(6, 4));
    EXPECT_EQ(layout.label.CenterPoint().y, layout.icon.CenterPoint().y);
    EXPECT_EQ(layout.separatorY, -1);
}

TEST(TooltipLayout, AtTheBottomItGoesAboveWhatItMustNotCover) {
    const CPoint corner = tooltip::KeepInside(CPoint(10, 90), CSize(50, 30), CRect(0, 0, 200, 100), 70);
    EXPECT_EQ(corner, CPoint(10, 40));
}

TEST(Tooltip, IsShownWhereItsOwnerPutsIt) {
    Stage stage;
    EXPECT_EQ(stage.Show(L"Open", L"").TopLeft(), CPoint(60, 60));
    EXPECT_TRUE(stage.tooltip.IsWindowVisible());
}

TEST(Tooltip, AnAmpersandIsShownWhereItIsNoMark) {
    Stage literal;
    literal.Show(L"Cut & paste && go", L"");
    EXPECT_EQ(literal.tooltip.GetLabel(), L"Cut & paste && go");
    Stage marked;
    marked.tooltip.ModifyStyle(TTS_NOPREFIX, 0);
    marked.Show(L"&Cut && paste", L"");
    EXPECT_EQ(marked.tooltip.GetLabel(), L"Cut & paste");
}

TEST(Tooltip, TextsOfBarsAreLiteralInTooltipsOfEveryKind) {
    TestWindow window;
    for (const UINT type : {AFX_TOOLTIP_TYPE_TOOLBAR, AFX_TOOLTIP_TYPE_RIBBON, AFX_TOOLTIP_TYPE_DOCKBAR}) {
        CToolTipCtrl* tooltip = nullptr;
        ASSERT_TRUE(CTooltipManager::CreateToolTip(tooltip, &window, type));
        EXPECT_TRUE(tooltip->GetStyle() & TTS_NOPREFIX) << type;
        CTooltipManager::DeleteToolTip(tooltip);
    }
}

TEST(Tooltip, GrowsByItsDescription) {
    Stage bare, full;
    const CRect small = bare.Show(L"Open", L"");
    const CRect large = full.Show(L"Open", L"Reads a drawing from a file.");
    EXPECT_GT(large.Height(), small.Height() * 3 / 2);
}

TEST(Tooltip, IsAsWideAsToldAndWrapsInside) {
    Stage stage;
    stage.tooltip.SetFixedWidth(150, 0);
    const CRect rect = stage.Show(L"Open", L"Reads a drawing from a file and shows it in a window of its own, with "
                                           L"everything that it needs.");
    EXPECT_LE(rect.Width(), afxGlobalData.ScalePixels(150));
    EXPECT_GT(rect.Width(), afxGlobalData.ScalePixels(100));
    EXPECT_GT(rect.Height(), 4 * afxGlobalData.GetTextHeight());
}

TEST(Tooltip, ChineseWithoutSpacesIsWrappedToo) {
    Stage stage;
    stage.tooltip.SetFixedWidth(150, 0);
    const CRect rect = stage.Show(L"\u6253\u5F00", std::wstring(60, L'\u56FE').c_str());
    EXPECT_LE(rect.Width(), afxGlobalData.ScalePixels(150));
}

TEST(Tooltip, TheHostsWidestWidthWrapsTheTextOfEveryKind) {
    TestWindow window;
    const fx::ScopedChange<int> widest(afxGlobalData.m_nMaxToolTipWidth, 90);
    for (const UINT type : {AFX_TOOLTIP_TYPE_TOOLBAR, AFX_TOOLTIP_TYPE_RIBBON, AFX_TOOLTIP_TYPE_DOCKBAR}) {
        CToolTipCtrl* tooltip = nullptr;
        ASSERT_TRUE(CTooltipManager::CreateToolTip(tooltip, &window, type));
        EXPECT_EQ(tooltip->GetMaxTipWidth(), 90) << type;
        TOOLINFO info{};
        CTooltipManager::SetTooltipText(&info, tooltip, type, L"first\nsecond");
        free(info.lpszText);
        EXPECT_EQ(tooltip->GetMaxTipWidth(), 90) << "a second line changes nothing";
        CTooltipManager::DeleteToolTip(tooltip);
    }
}

TEST(Tooltip, WithoutAWidestWidthALineStaysOne) {
    TestWindow window;
    CToolTipCtrl* tooltip = nullptr;
    ASSERT_TRUE(CTooltipManager::CreateToolTip(tooltip, &window, AFX_TOOLTIP_TYPE_TOOLBAR));
    EXPECT_EQ(tooltip->GetMaxTipWidth(), -1);
    CTooltipManager::DeleteToolTip(tooltip);
}

TEST(Tooltip, StaysInsideTheWorkArea) {
    Stage stage;
    const CRect area = WorkArea();
    const CRect rect = stage.Show(L"Open", L"Reads a drawing from a file.", CPoint(area.right - 5, area.top + 40));
    EXPECT_LE(rect.right, area.right);
    EXPECT_GE(rect.left, area.left);
}

TEST(Tooltip, RoundedOnesHaveARegion) {
    CMFCToolTipInfo params;
    params.m_bRoundedCorners = TRUE;
    Stage stage(params);
    const CRect rect = stage.Show(L"Open", L"");
    const HRGN region = ::CreateRectRgn(0, 0, 0, 0);
    EXPECT_NE(stage.tooltip.GetSafeHwnd() != nullptr ? ::GetWindowRgn(stage.tooltip.m_hWnd, region) : ERROR, ERROR);
    EXPECT_FALSE(::PtInRegion(region, 0, 0));
    EXPECT_TRUE(::PtInRegion(region, rect.Width() / 2, 0));
    ::DeleteObject(region);
}

TEST(Tooltip, IsFilledInTheColourOfItsParameters) {
    CMFCToolTipInfo params;
    params.m_clrFill = RGB(10, 20, 30);
    params.m_clrBorder = RGB(200, 100, 50);
    Stage stage(params);
    stage.Show(L"Open", L"");
    stage.tooltip.UpdateWindow();
    CClientDC dc(&stage.tooltip);
    EXPECT_EQ(dc.GetPixel(0, 0), RGB(200, 100, 50));
    EXPECT_EQ(dc.GetPixel(1, 1), RGB(10, 20, 30));
}

/// Shows its image in the tooltip or not.
class PicturedButton : public CMFCRibbonButton {
public:
    explicit PicturedButton(BOOL isDrawn)
        : CMFCRibbonButton(1, L"Button", ::LoadIcon(nullptr, IDI_INFORMATION)), m_isDrawn(isDrawn) {}
    BOOL IsDrawTooltipImage() const override { return m_isDrawn; }

private:
    BOOL m_isDrawn;
};

TEST(Tooltip, HasNoIconOfAnElementThatWantsNone) {
    PicturedButton with(TRUE), without(FALSE);
    ShownTooltip tooltip;
    tooltip.SetHotRibbonButton(&with);
    EXPECT_GT(tooltip.GetIconSize().cx, 0);
    tooltip.SetHotRibbonButton(&without);
    EXPECT_EQ(tooltip.GetIconSize(), CSize(0, 0));
}

} // namespace

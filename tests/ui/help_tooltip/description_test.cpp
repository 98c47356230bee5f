// The description: its font, width and replacement.
#include "tests/support/canvas.h"
#include "tests/ui/help_tooltip/tooltip_fixture.h"

namespace {

class HelpDescription : public HelpTooltip {
protected:
    void SetUp() override {
        HelpTooltip::SetUp();
        AddHelp();
    }
    static CSize Measured(const CString& text, CFont& font) {
        CClientDC dc(nullptr);
        CFont* const earlier = dc.SelectObject(&font);
        CRect rect(0, 0, 0, 0);
        dc.DrawText(text, rect, DT_CALCRECT | DT_NOPREFIX);
        dc.SelectObject(earlier);
        return rect.Size();
    }
    /// Colours of what the description draws on white with black text.
    std::set<std::uint32_t> Drawn() {
        Canvas canvas(CSize(400, 100), 0xFFFFFF);
        canvas.Dc()->SetTextColor(RGB(0, 0, 0));
        m_tip.OnDrawDescription(canvas.Dc(), CRect(0, 0, 400, 100), FALSE);
        m_textColour = canvas.Dc()->GetTextColor();
        return canvas.Colours();
    }
    static bool HasRed(const std::set<std::uint32_t>& colours) { return colours.count(0xFF0000) != 0; }

    COLORREF m_textColour = 0;
};

TEST_F(HelpDescription, TheTitleIsBoldAndTheDescriptionPlain) {
    m_tip.SetDescription(L"Reads a drawing.");
    Show(CPoint(60, 200), L"Open (Ctrl+O)");
    EXPECT_EQ(LabelSize().cx, Measured(L"Open (Ctrl+O)", afxGlobalData.fontBold).cx);
    EXPECT_NE(LabelSize().cx, Measured(L"Open (Ctrl+O)", afxGlobalData.fontTooltip).cx);
    EXPECT_EQ(DescriptionSize(), Measured(L"Reads a drawing.", afxGlobalData.fontTooltip));
}

TEST_F(HelpDescription, ADescriptionAloneIsBoldWhereTheParametersSaySo) {
    m_tip.SetDescription(L"Reads a drawing.");
    EXPECT_EQ(DescriptionSize(), Measured(L"Reads a drawing.", afxGlobalData.fontBold)) << "no title was shown";
    m_tip.m_Params.m_bBoldLabel = FALSE;
    EXPECT_EQ(DescriptionSize(), Measured(L"Reads a drawing.", afxGlobalData.fontTooltip));
}

TEST_F(HelpDescription, TheF1HintItselfIsShownInTheNormalColour) {
    Show();
    const auto colours = Drawn();
    EXPECT_FALSE(HasRed(colours));
    EXPECT_EQ(colours.count(0x000000), 1U);
    EXPECT_EQ(DescriptionSize(), Measured(CAddRibbonBar::m_strHelpF1, afxGlobalData.fontTooltip));
}

TEST_F(HelpDescription, ItsReplacementIsShownInRed) {
    CToolTipCtrlEx::m_sStrGlobleDesciption = L"HELP";
    Show();
    EXPECT_TRUE(HasRed(Drawn()));
    EXPECT_EQ(m_textColour, RGB(0, 0, 0)) << "the colour before is given back";
    EXPECT_EQ(DescriptionSize(), Measured(L"HELP", afxGlobalData.fontTooltip));
}

TEST_F(HelpDescription, AnyOtherDescriptionIsNotReplaced) {
    CToolTipCtrlEx::m_sStrGlobleDesciption = L"HELP";
    m_tip.SetDescription(L"Reads a drawing.");
    Show();
    EXPECT_FALSE(HasRed(Drawn()));
    EXPECT_EQ(DescriptionSize(), Measured(L"Reads a drawing.", afxGlobalData.fontTooltip));
}

TEST_F(HelpDescription, AFixedWidthLessTheIconWrapsIt) {
    m_tip.SetDescription(L"Reads a drawing from a file and shows it in a window of its own.");
    m_tip.SetFixedWidth(150, 0);
    Show();
    const CSize size = DescriptionSize();
    EXPECT_LE(size.cx, 150 - 32 - 6);
    EXPECT_GE(size.cy, 3 * Measured(L"X", afxGlobalData.fontTooltip).cy);
    m_tip.m_Params.m_bDrawIcon = FALSE;
    Show();
    EXPECT_GT(DescriptionSize().cx, 150 - 32 - 6);
    EXPECT_LE(DescriptionSize().cx, 150);
}

TEST_F(HelpDescription, WithoutAFixedWidthItIsAsWideAsItsLineButNoWiderThanTheParametersSay) {
    m_tip.SetDescription(L"Short.");
    Show();
    EXPECT_EQ(DescriptionSize(), Measured(L"Short.", afxGlobalData.fontTooltip));
    m_tip.SetDescription(L"Reads a drawing from a file and shows it in a window of its own.");
    m_tip.m_Params.m_nMaxDescrWidth = 120;
    Show();
    EXPECT_LE(DescriptionSize().cx, 120);
}

TEST_F(HelpDescription, ChineseWithoutSpacesIsWrappedToo) {
    m_tip.SetFixedWidth(150, 0);
    m_tip.SetDescription(std::wstring(40, L'\u56FE').c_str());
    const CRect rect = Show();
    EXPECT_LE(DescriptionSize().cx, 150 - 32 - 6);
    EXPECT_LE(rect.Width(), 150 + 12);
}

TEST_F(HelpDescription, AnAmpersandIsShown) {
    m_tip.SetDescription(L"Cut & paste");
    Show();
    EXPECT_EQ(DescriptionSize(), Measured(L"Cut & paste", afxGlobalData.fontTooltip));
}

} // namespace

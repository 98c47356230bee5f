// Which room a label takes, and what is laid out and drawn anew when its text changes.
#include "ribbon_label_ex.h"
#include "tests/support/canvas.h"
#include "tests/support/ribbon_host.h"

#include <afxvisualmanager.h>

namespace {

constexpr std::uint32_t pureRed = 0xFF0000;

class LabelRoom : public testing::Test {
protected:
    ~LabelRoom() override { afxGlobalData.SetRibbonImageScale(0); }
    void SetUp() override {
        ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.0));
        m_label = &m_host.Add(std::make_unique<CMFCRibbonLabelEx>(L"12345"));
        m_other = &m_host.Add(std::make_unique<CMFCRibbonButton>(900u, L"Button"));
        ASSERT_FALSE(m_label->GetRect().IsRectEmpty());
        PumpPending();
        m_host.Bar().ValidateRect(nullptr);
    }
    CRect Update() {
        CRect update;
        m_host.Bar().GetUpdateRect(update);
        return update;
    }
    /// Where pixels of the colour are, as the label is laid out; empty when none are.
    static CRect BoundsDrawn(CMFCRibbonLabelEx& label, std::uint32_t color) {
        Canvas canvas(CSize(label.GetRect().right + 100, label.GetRect().bottom + 10));
        label.OnDraw(canvas.Dc());
        return canvas.BoundsOf(color);
    }

    RibbonHost m_host;
    CMFCRibbonLabelEx* m_label = nullptr;
    CMFCRibbonButton* m_other = nullptr;
};

TEST_F(LabelRoom, ATextOfTheSameSizeDrawsTheLabelAloneAnew) {
    m_label->SetText(L"54321");
    EXPECT_STREQ(m_label->GetText(), L"54321");
    EXPECT_EQ(Update(), m_label->GetRect());
}

TEST_F(LabelRoom, TheSameTextDrawsNothingAnew) {
    m_label->SetText(L"12345");
    EXPECT_TRUE(Update().IsRectEmpty());
}

TEST_F(LabelRoom, ALongerTextLaysTheBarOutAnew) {
    const CRect former = m_label->GetRect();
    m_label->SetText(L"123456");
    EXPECT_EQ(Update().Size(), ClientSize(m_host.Bar()));
    PumpPending();
    EXPECT_GT(m_label->GetRect().Width(), former.Width());
}

TEST_F(LabelRoom, AShorterTextAfterALongerOneIsLaidOutToo) {
    const CRect former = m_label->GetRect();
    m_label->SetText(L"1234567890");
    m_label->SetText(L"54321");
    PumpPending();
    EXPECT_EQ(m_label->GetRect(), former);
}

TEST_F(LabelRoom, AButtonsTextOfTheSameSizeDrawsTheButtonAloneAnewAndComplete) {
    m_other->SetText(L"12345");
    PumpPending();
    m_host.Bar().ValidateRect(nullptr);
    const CRect place = m_other->GetRect();
    m_other->SetText(L"54321");
    EXPECT_EQ(Update(), place);
    m_host.LayOut();
    EXPECT_EQ(m_other->GetRect(), place);
}

TEST_F(LabelRoom, AnOffsetIsAddedToTheWidthSoThatTheTextStaysWhole) {
    m_label->SetTextColor(RGB(255, 0, 0));
    const int width = m_label->GetRect().Width();
    const CRect text = BoundsDrawn(*m_label, pureRed);
    ASSERT_FALSE(text.IsRectEmpty());
    for (const int offset : {3, 40}) {
        m_label->SetLeftOffset(offset);
        PumpPending();
        EXPECT_EQ(m_label->GetRect().Width(), width + offset);
        EXPECT_EQ(BoundsDrawn(*m_label, pureRed), text + CPoint(offset, 0)) << "nothing is cut off";
    }
    m_label->SetLeftOffset(-3);
    PumpPending();
    EXPECT_EQ(m_label->GetRect().Width(), width);
}

TEST_F(LabelRoom, ADisabledLabelHasTheColourOfDisabledTexts) {
    const COLORREF grey = CMFCVisualManager::GetInstance()->GetToolbarDisabledTextColor();
    const std::uint32_t color = GetRValue(grey) << 16 | GetGValue(grey) << 8 | GetBValue(grey);
    EXPECT_TRUE(BoundsDrawn(*m_label, color).IsRectEmpty());
    m_label->SetDisabled(TRUE);
    EXPECT_FALSE(BoundsDrawn(*m_label, color).IsRectEmpty());
    m_label->SetTextColor(RGB(255, 0, 0));
    EXPECT_TRUE(BoundsDrawn(*m_label, color).IsRectEmpty()) << "a colour of its own counts more";
    EXPECT_FALSE(BoundsDrawn(*m_label, pureRed).IsRectEmpty());
}

} // namespace

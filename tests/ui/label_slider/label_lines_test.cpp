// Where the lines of a label stand, and what of its text is drawn.
#include "ribbon_label_ex.h"
#include "tests/support/canvas.h"
#include "tests/support/ui_test.h"

#include <afxglobals.h>

#include <algorithm>
#include <ostream>

namespace {

enum class Form { SingleLine, SeveralLines, Menu };

std::ostream& operator<<(std::ostream& out, Form form) { return out << static_cast<int>(form); }

/// A red label in one of its forms.
class RedLabel : public CMFCRibbonLabelEx {
public:
    RedLabel(const wchar_t* text, Form form) : CMFCRibbonLabelEx(text, form == Form::SeveralLines) {
        SetMenuMode(form == Form::Menu);
        SetTextColor(RGB(255, 0, 0));
    }
    void SetMargin(int margin) { m_szMargin.cx = margin; }
};

class LabelLines : public testing::TestWithParam<Form> {
protected:
    ~LabelLines() override { afxGlobalData.SetRibbonImageScale(0); }
    void SetUp() override { ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.0)); }

    /// The smallest rectangle with all of the drawn text; empty without any.
    CRect Drawn(CMFCRibbonLabelEx& label, const CRect& rect) {
        m_canvas.Clear();
        label.SetRect(rect);
        label.OnDraw(m_canvas.Dc());
        CRect drawn(side, side, 0, 0);
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                if (m_canvas.At(x, y) != red) {
                    continue;
                }
                drawn = CRect(std::min<LONG>(drawn.left, x), std::min<LONG>(drawn.top, y),
                              std::max<LONG>(drawn.right, x + 1), std::max<LONG>(drawn.bottom, y + 1));
            }
        }
        return drawn.right == 0 ? CRect(0, 0, 0, 0) : drawn;
    }
    CRect DrawnText(const wchar_t* text) {
        RedLabel label(text, GetParam());
        return Drawn(label, CRect(10, 10, 190, 60));
    }

    static constexpr int side = 200;
    static constexpr std::uint32_t red = 0xFF0000;
    Canvas m_canvas{side};
};

TEST_P(LabelLines, ALineStandsInTheMiddleOfTheHeight) {
    RedLabel label(L"\x2588\x2588", GetParam()); // full blocks
    const CRect low = Drawn(label, CRect(10, 10, 190, 40));
    ASSERT_FALSE(low.IsRectEmpty());
    for (const int height : {60, 100, 180}) {
        const CRect high = Drawn(label, CRect(10, 10, 190, 10 + height));
        EXPECT_EQ(high.top, low.top + (height - 30) / 2) << height;
        EXPECT_EQ(high.bottom, low.bottom + (height - 30) / 2) << height;
    }
    EXPECT_NEAR(low.CenterPoint().y, GetParam() == Form::Menu ? 24 : 25, 1) << "a menu leaves two rows free below";
}

TEST_P(LabelLines, ALineInAMenuStandsOnePixelHigher) {
    RedLabel label(L"\x2588\x2588", GetParam());
    label.SetMenuMode(FALSE);
    const CRect plain = Drawn(label, CRect(10, 10, 190, 60));
    label.SetMenuMode(TRUE);
    const CRect inMenu = Drawn(label, CRect(10, 10, 190, 60));
    // Several lines are centred by whole pixels of the font's height, a menu's one line in the menu's bold font.
    const int rounding = GetParam() == Form::SeveralLines ? 1 : 0;
    EXPECT_NEAR(inMenu.CenterPoint().y, plain.CenterPoint().y - 1, rounding);
}

TEST_P(LabelLines, AnAmpersandIsACharacterLikeAnother) {
    const CRect one = DrawnText(L"&");
    ASSERT_FALSE(one.IsRectEmpty()) << "not swallowed";
    const CRect two = DrawnText(L"&&");
    EXPECT_GT(two.Width(), 3 * one.Width() / 2) << "not one for two";
    EXPECT_EQ(DrawnText(L"&x").Height(), DrawnText(L"&W").Height()) << "nor is a line drawn below the next";
    EXPECT_LE(DrawnText(L"&x").bottom, one.bottom);
}

TEST_P(LabelLines, ATextThatIsTooLongEndsBeforeTheMarginAtTheRight) {
    RedLabel label(L"\x2588\x2588\x2588\x2588\x2588\x2588\x2588\x2588\x2588\x2588\x2588\x2588"
                   L"\x2588\x2588\x2588\x2588\x2588\x2588\x2588\x2588\x2588\x2588\x2588\x2588",
                   GetParam());
    for (const int margin : {0, 9}) {
        label.SetMargin(margin);
        EXPECT_EQ(Drawn(label, CRect(10, 10, 110, 60)).left, 10 + margin);
        EXPECT_EQ(Drawn(label, CRect(10, 10, 110, 60)).right, 110 - margin);
    }
}

TEST_P(LabelLines, TheOffsetMovesTheTextByItsPixels) {
    RedLabel label(L"\x2588\x2588", GetParam());
    const CRect without = Drawn(label, CRect(10, 10, 190, 60));
    for (const int offset : {6, 40, -3}) {
        label.SetLeftOffset(offset);
        EXPECT_EQ(Drawn(label, CRect(10, 10, 190, 60)), without + CPoint(offset, 0)) << offset;
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, LabelLines, testing::Values(Form::SingleLine, Form::SeveralLines, Form::Menu),
                         [](const auto& info) {
                             return info.param == Form::SingleLine     ? "SingleLine"
                                    : info.param == Form::SeveralLines ? "SeveralLines"
                                                                       : "Menu";
                         });

} // namespace

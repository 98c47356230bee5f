// The marks of a single row, pixel by pixel, for rows of other heights than the list's own.
#include "combos/light_images.h"
#include "tests/ui/marked_combos/combo_picture.h"

namespace {

constexpr COLORREF orange = RGB(0xFF, 0x80, 0x20);

using ComboRows = RibbonCombos;

/// One row of any height and 100 pixels wide, as its combo draws it.
class DrawnRow {
public:
    DrawnRow(CMFCRibbonComboBox& combo, int index, int height)
        : m_height(height), m_picture(CSize(120, height + 40), [&](CDC& dc) {
              Button button;
              button.SetRect(CRect(0, top, 100, top + height));
              EXPECT_TRUE(combo.OnDrawDropListItem(&dc, index, &button, FALSE));
          }) {}
    /// Co-ordinates of the row.
    std::uint32_t At(int x, int y) const { return m_picture.At(x, top + y); }
    /// Drawn squares of a swatch: framed in black, filled with the colour.
    void ExpectSwatch(const CRect& place, COLORREF color) const {
        for (int y = -top; y < m_height + 20; ++y) {
            for (int x = 0; x < place.right + 3; ++x) {
                const CRect inner(place.left + 1, place.top + 1, place.right - 1, place.bottom - 1);
                const std::uint32_t wanted = inner.PtInRect(CPoint(x, y))   ? ToPixel(color)
                                             : place.PtInRect(CPoint(x, y)) ? ToPixel(RGB(0, 0, 0))
                                                                            : ComboPicture::background;
                ASSERT_EQ(At(x, y), wanted) << x << ' ' << y;
            }
        }
    }
    /// The smallest rectangle that differs from the other row.
    CRect DifferenceTo(const DrawnRow& other) const {
        CRect changed = m_picture.DifferenceTo(other.m_picture);
        if (!changed.IsRectEmpty()) {
            changed.OffsetRect(0, -top);
        }
        return changed;
    }

private:
    struct Button : CMFCToolBarMenuButton {};
    static constexpr int top = 20;
    int m_height;
    ComboPicture m_picture;
};

TEST_F(ComboRows, ARowOfTwentyPixelsHasItsSwatchFromThreeToSixteenAndItsLightFromNineteenToThirtyTwo) {
    auto& combo = Add<CMFCRibbonMultiCombo>(comboId, 0);
    combo.AddItem(L"");
    combo.SetItemInfo(0, orange, false, false);
    const DrawnRow off(combo, 0, 20);
    off.ExpectSwatch(CRect(3, 3, 16, 16), orange);
    combo.SetItemLight(0, true, false);
    const DrawnRow on(combo, 0, 20);
    const CRect light = on.DifferenceTo(off);
    EXPECT_FALSE(light.IsRectEmpty());
    EXPECT_GE(light.left, 19);
    EXPECT_GE(light.top, 3);
    EXPECT_LE(light.right, 32);
    EXPECT_LE(light.bottom, 16);
    const ComboPicture own(CSize(13, 13), [](CDC& dc) { DrawLight(dc, {0, 0, 13, 13}, LightState::On); });
    for (int y = 0; y < 13; ++y) {
        for (int x = 0; x < 13; ++x) {
            ASSERT_EQ(on.At(19 + x, 3 + y), own.At(x, y)) << x << ' ' << y;
        }
    }
}

TEST_F(ComboRows, ARowThatIsLowerThanTheIconCutsItsSwatchWhichStaysSquare) {
    auto& combo = Add<CMFCRibbonMultiCombo>(comboId, 0);
    combo.AddItem(L"");
    combo.SetItemInfo(0, orange, false, false);
    for (const int height : {12, 10, 3}) {
        SCOPED_TRACE(height);
        DrawnRow(combo, 0, height).ExpectSwatch(CRect(3, 0, 3 + height, height), orange);
    }
}

TEST_F(ComboRows, AScaledRowsSwatchIsAsLargeAsTheScaledIconWhereTheRowHasRoomForIt) {
    struct Case {
        double scale;
        int icon;
    };
    for (const Case& one : {Case{1.5, 24}, Case{2.0, 32}}) {
        SCOPED_TRACE(one.scale);
        ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(one.scale));
        MarkSizes::Current() = MarkSizes();
        auto& combo = Add<CMFCRibbonMultiCombo>(comboId, 0); // fixes the icon's size
        combo.AddItem(L"");
        combo.SetItemInfo(0, orange, false, false);
        for (const int height : {40, one.icon, one.icon - 1, 18, 5}) {
            SCOPED_TRACE(height);
            const int middle = height / 2;
            const int top = std::max(0, static_cast<int>(middle - one.icon * 0.5));
            const int side = std::min(top + one.icon, height) - top;
            const DrawnRow off(combo, 0, height);
            off.ExpectSwatch(CRect(3, top, 3 + side, top + side), orange);
            combo.SetItemLight(0, true, false);
            const CRect light = DrawnRow(combo, 0, height).DifferenceTo(off);
            EXPECT_FALSE(light.IsRectEmpty());
            EXPECT_GE(light.left, side + 6);
            EXPECT_GE(light.top, top);
            EXPECT_LE(light.right, 2 * side + 6);
            EXPECT_LE(light.bottom, top + side);
            combo.SetItemLight(0, false, false);
        }
    }
}

template <class Combo>
class RowText : public RibbonCombos {};
using Kinds = testing::Types<CMFCRibbonCheckComb, CMFCRibbonMultiCombo, CMFCRibbonVesMultiCombo>;
TYPED_TEST_SUITE(RowText, Kinds);

TYPED_TEST(RowText, StandsInTheMiddleOfTheRowAndEndsWithIt) {
    auto& combo = this->template Add<TypeParam>(comboId, 0);
    combo.AddItem(L"");
    combo.AddItem(L"\x2588\x2588"); // full blocks
    combo.AddItem(std::wstring(60, L'\x2588').c_str());
    const DrawnRow empty(combo, 0, 20);
    const CRect low = DrawnRow(combo, 1, 20).DifferenceTo(empty);
    ASSERT_FALSE(low.IsRectEmpty());
    for (const int height : {40, 60}) {
        const CRect high = DrawnRow(combo, 1, height).DifferenceTo(DrawnRow(combo, 0, height));
        EXPECT_EQ(high.top, low.top + (height - 20) / 2) << height;
        EXPECT_EQ(high.bottom, low.bottom + (height - 20) / 2) << height;
    }
    // The check combo's margin is one pixel.
    const int right = std::is_same_v<TypeParam, CMFCRibbonCheckComb> ? 99 : 100;
    EXPECT_EQ(DrawnRow(combo, 2, 20).DifferenceTo(empty).right, right);
}

TEST_F(ComboRows, ARowWithoutARecordHasABlackSwatch) {
    auto& combo = Add<CMFCRibbonMultiCombo>(comboId, 0);
    combo.AddItem(L"");
    DrawnRow(combo, 0, 20).ExpectSwatch(CRect(3, 3, 16, 16), RGB(0, 0, 0));
}

} // namespace

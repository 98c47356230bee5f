// Where a click in a list counts, at its edges, on displays of every scale.
#include "tests/ui/marked_combos/combo_fixture.h"

#include <ostream>

namespace {

constexpr LRESULT allowed = 1;

struct Scale {
    double factor;
    int checkBox; // of combos made by name
    int icon;     // of multi combos
};

std::ostream& operator<<(std::ostream& out, const Scale& scale) { return out << scale.factor; }

class ZoneEdges : public RibbonCombos, public testing::WithParamInterface<Scale> {
protected:
    void SetUp() override {
        ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(GetParam().factor));
        Answer(allowed);
        m_host.LayOut();
    }
    /// What a click at the place of the list told; the list is opened anew and closed again.
    Told ToldByClick(CMFCRibbonComboBox& combo, int row, int x, int yInRow) {
        Open(combo);
        ClickRow(row, x, yInRow);
        CMFCPopupMenu::CloseAll();
        return TakeTold();
    }
};

const Told chosen{"sent COMMAND 700"};

TEST_P(ZoneEdges, TheCheckColumnReachesFromTheFirstPixelToOneBehindTheBoxInEveryRow) {
    const CMFCRibbonCheckComb madeByName; // scales the box
    ASSERT_EQ(MarkSizes::Current().checkBox, GetParam().checkBox);
    auto& combo = Add<CMFCRibbonCheckComb>();
    const int side = GetParam().checkBox;
    const int bottom = afxGlobalData.GetTextHeight() - 1;
    for (int row = 0; row < 3; ++row) {
        for (const int y : {0, bottom}) {
            EXPECT_EQ(ToldByClick(combo, row, 0, y), chosen);
            EXPECT_EQ(ToldByClick(combo, row, 1, y).size(), 1u);
            EXPECT_EQ(ToldByClick(combo, row, side + 1, y).size(), 1u);
            EXPECT_EQ(ToldByClick(combo, row, side + 2, y), chosen);
        }
    }
    EXPECT_EQ(ChecksOf(combo), "000") << "four clicks on each";
}

TEST_P(ZoneEdges, TheCheckColumnOfTheFaceIsThatOfTheRows) {
    const CMFCRibbonCheckComb madeByName;
    auto& combo = Add<CMFCRibbonCheckComb>();
    combo.SelectItem(1);
    const int side = GetParam().checkBox;
    for (const auto& [x, isZone] : {std::pair{0, false}, {1, true}, {side + 1, true}, {side + 2, false}}) {
        ClickFace(combo, x);
        EXPECT_EQ(Rows() == nullptr, isZone) << x;
        EXPECT_EQ(TakeTold().size(), isZone ? 1u : 0u) << x;
        CMFCPopupMenu::CloseAll();
    }
}

TEST_P(ZoneEdges, TheSquaresOfAMultiCombosRowsAreThoseOfAnEditAreasHeight) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    const int icon = GetParam().icon;
    ASSERT_EQ(ScaledIconSize(), icon);
    const int editHeight = combo.GetEditRect().Height();
    const int middle = editHeight / 2;
    const int top = std::max(0, static_cast<int>(middle - icon * 0.5));
    const int bottom = std::min(top + icon, editHeight);
    const int side = bottom - top;
    const int rowHeight = afxGlobalData.GetTextHeight();
    const Told swatch{"sent COMMAND 700", "posted COLOUR #1 0"};
    const auto expectAt = [&](int x, int y, const Told& wanted) {
        if (y >= 0 && y < rowHeight) {
            EXPECT_EQ(ToldByClick(combo, 1, x, y), wanted) << x << ' ' << y;
        }
    };
    for (const int y : {top - 1, bottom}) {
        expectAt(3, y, chosen);
        expectAt(side + 6, y, chosen);
    }
    for (const int y : {top, std::min(bottom, rowHeight) - 1}) {
        expectAt(2, y, chosen);
        expectAt(3, y, swatch);
        expectAt(side + 2, y, swatch);
        expectAt(side + 3, y, chosen);
        expectAt(side + 5, y, chosen);
        expectAt(side + 6, y, {"sent LIGHT 'two' 1"});
        expectAt(2 * side + 5, y, {"sent LIGHT 'two' 0"});
        expectAt(2 * side + 6, y, chosen);
    }
}

TEST_P(ZoneEdges, ALightOnlyCombosZonesKeepTheIconsSizeWhateverTheScale) {
    auto& combo = Add<CMFCRibbonVesMultiCombo>();
    for (const int icon : {13, 16}) {
        MarkSizes::Current().icon = icon;
        const int rowHeight = afxGlobalData.GetTextHeight();
        const int lastLine = std::min(icon + 4, rowHeight) - 1;
        EXPECT_EQ(ToldByClick(combo, 1, 3, 3), chosen) << "above";
        for (const int y : {4, lastLine}) {
            EXPECT_EQ(ToldByClick(combo, 1, 2, y), chosen);
            EXPECT_EQ(ToldByClick(combo, 1, 3, y).size(), 1u);
            EXPECT_EQ(ToldByClick(combo, 1, icon + 2, y).size(), 1u);
            EXPECT_EQ(ToldByClick(combo, 1, icon + 3, y), chosen);
        }
        if (icon + 4 < rowHeight) {
            EXPECT_EQ(ToldByClick(combo, 1, 3, icon + 4), chosen) << "below";
        }
        for (const int x : {icon + 6, 2 * icon + 5}) {
            EXPECT_EQ(ToldByClick(combo, 1, x, 6), chosen) << "the second zone switches nothing";
        }
    }
    EXPECT_EQ(LightsOf(combo), "?0?") << "eight clicks";
}

INSTANTIATE_TEST_SUITE_P(Scales, ZoneEdges, testing::Values(Scale{1.0, 15, 13}, Scale{1.5, 23, 24}, Scale{2.0, 30, 32}),
                         [](const auto& info) {
                             return "Percent" + std::to_string(static_cast<int>(info.param.factor * 100));
                         });

} // namespace

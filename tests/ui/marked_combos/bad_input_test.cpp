// Indexes and texts that no item has.
#include "tests/ui/marked_combos/combo_fixture.h"

#include <climits>

namespace {

constexpr int noItems[] = {-1, 3, INT_MAX, INT_MIN};

class BadInput : public RibbonCombos {};

TEST_F(BadInput, ACheckWithoutAnItemIsToldAndNotKept) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    combo.SelectItem(0);
    for (const int index : noItems) {
        EXPECT_TRUE(combo.NotifyChangeData(index, 0, false)) << index;
        EXPECT_EQ(TakeTold(), Told{"sent CHECK '' 1"}) << index;
        bool check = true;
        EXPECT_FALSE(combo.GetItemCheck(index, check)) << index;
    }
    EXPECT_EQ(combo.GetCurSel(), 0);
    EXPECT_EQ(ChecksOf(combo), "???");
}

TEST_F(BadInput, AnExclusiveClickWithoutAnItemUnchecksAll) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    for (const int index : noItems) {
        combo.SetItemCheck(1, true);
        EXPECT_TRUE(combo.NotifyChangeData(index, 0, true)) << index;
        EXPECT_EQ(ChecksOf(combo), "000") << index;
    }
}

TEST_F(BadInput, ALightOnlyCombosLightWithoutAnItemIsToldAndNotKept) {
    auto& combo = Add<CMFCRibbonVesMultiCombo>();
    combo.SelectItem(0);
    for (const int index : noItems) {
        EXPECT_TRUE(combo.NotifyChangeData(index, 0, false)) << index;
        EXPECT_EQ(TakeTold(), Told{"sent LIGHT-ONLY '' 1"}) << index;
        bool light = false;
        EXPECT_FALSE(combo.GetItemLight(index, light)) << index;
    }
    EXPECT_EQ(combo.GetCurSel(), 0);
}

TEST_F(BadInput, AColourIsAskedForUnderTheNumberThatWasGiven) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    for (const int index : noItems) {
        EXPECT_FALSE(combo.NotifyChangeData(index, 0, false)) << index;
        EXPECT_EQ(TakeTold(), Told{"posted COLOUR #" + std::to_string(index) + " 0"});
        CMFCRibbonMultiCombo::rowInfo info;
        EXPECT_FALSE(combo.GetItemInfo(index, info)) << index;
    }
}

TEST_F(BadInput, AnActionMakesARecordWhateverTheIndex) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    for (const int index : noItems) {
        EXPECT_TRUE(combo.NotifyChangeData(index, 2, false)) << index;
        EXPECT_EQ(TakeTold(), Told{"sent ACTION '' 1"});
        CMFCRibbonMultiCombo::rowInfo info{1, true};
        EXPECT_TRUE(combo.GetItemInfo(index, info)) << index;
        EXPECT_EQ(info.clr, 0u);
        EXPECT_FALSE(info.light);
    }
}

TEST_F(BadInput, SettersRefuseWhatIsNoItemAndGettersKnowNothingOfIt) {
    auto& check = Add<CMFCRibbonCheckComb>();
    auto& multi = Add<CMFCRibbonMultiCombo>(comboId + 1);
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 2);
    const COLORREF color = RGB(1, 2, 3);
    for (const int index : noItems) {
        EXPECT_FALSE(check.SetItemCheck(index, true)) << index;
        EXPECT_FALSE(multi.SetItemClr(index, color, true)) << index;
        EXPECT_FALSE(multi.SetItemLight(index, true, true)) << index;
        EXPECT_FALSE(multi.SetItemInfo(index, color, true, false)) << index;
        EXPECT_FALSE(light.SetItemLight(index, true, true)) << index;
        CMFCRibbonMultiCombo::rowInfo info{color, true};
        EXPECT_FALSE(multi.GetItemInfo(index, info)) << index;
        EXPECT_EQ(info.clr, color) << index;
        EXPECT_TRUE(info.light) << index;
    }
    for (const wchar_t* const text : {L"none", L"", static_cast<const wchar_t*>(nullptr)}) {
        EXPECT_FALSE(multi.SetItemClr(text, color, true));
        EXPECT_FALSE(multi.SetItemLight(text, true, true));
        EXPECT_FALSE(light.SetItemLight(text, true, true));
    }
}

TEST_F(BadInput, ATextThatOccursTwiceIsTheFirstItems) {
    auto& multi = Add<CMFCRibbonMultiCombo>();
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 1);
    for (CMFCRibbonComboBox* const combo :
         {static_cast<CMFCRibbonComboBox*>(&multi), static_cast<CMFCRibbonComboBox*>(&light)}) {
        combo->AddItem(L"two");
    }
    EXPECT_TRUE(multi.SetItemLight(L"two", true, true));
    EXPECT_TRUE(light.SetItemLight(L"two", true, true));
    EXPECT_EQ(LightsOf(multi), "?1??");
    EXPECT_EQ(LightsOf(light), "?1??");
}

} // namespace

// What the keys do in an open list.
#include "tests/support/keys.h"
#include "tests/ui/marked_combos/combo_fixture.h"

#include <afxribbonpanelmenu.h>

namespace {

constexpr COLORREF color = RGB(0x11, 0x22, 0x33);

class MarkKeys : public RibbonCombos {
protected:
    static void ShiftSpace() {
        Keys keys;
        keys.Hold(VK_SHIFT);
        Key(VK_SPACE);
    }
};

TEST_F(MarkKeys, SpaceSwitchesTheHotRowsMarkAndLeavesTheListOpen) {
    auto& check = Add<CMFCRibbonCheckComb>();
    check.SelectItem(0);
    Open(check);
    Key(VK_DOWN);
    Key(VK_SPACE);
    EXPECT_EQ(TakeTold(), Told{"sent CHECK 'two' 1"});
    Key(VK_SPACE);
    EXPECT_EQ(TakeTold(), Told{"sent CHECK 'two' 0"});
    EXPECT_NE(Rows(), nullptr);
    CMFCPopupMenu::CloseAll();

    auto& multi = Add<CMFCRibbonMultiCombo>(comboId + 1);
    multi.SelectItem(2);
    Open(multi);
    Key(VK_SPACE);
    EXPECT_EQ(TakeTold(), Told{"sent LIGHT 'three' 1"});
    CMFCPopupMenu::CloseAll();

    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 2);
    light.SelectItem(0);
    Open(light);
    Key(VK_SPACE);
    EXPECT_EQ(TakeTold(), Told{"sent LIGHT-ONLY 'one' 1"});
    EXPECT_NE(Rows(), nullptr);
}

TEST_F(MarkKeys, ShiftAndSpaceDoWhatAClickOnTheHotRowsSwatchDoes) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SetItemClr(1, color, false);
    Open(combo);
    ClickRow(1, 5);
    const Told byClick = TakeTold();
    EXPECT_EQ(byClick, (Told{"sent COMMAND 700", "posted COLOUR #1 " + std::to_string(color)}));

    combo.SelectItem(0);
    Open(combo);
    Key(VK_DOWN);
    bool wasOpen = true;
    m_host.Frame().onMessage = [&](const HostMessage& one) {
        if (one.message == WM_COMBO_COLOR_PICK) {
            wasOpen = Rows() != nullptr;
        }
        return 0;
    };
    ShiftSpace();
    EXPECT_EQ(Rows(), nullptr);
    EXPECT_EQ(TakeTold(), byClick);
    EXPECT_FALSE(wasOpen) << "the dialog comes after the list";
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(LightsOf(combo), "?0?");
}

TEST_F(MarkKeys, ShiftChangesNothingWhereThereIsNoSwatch) {
    auto& check = Add<CMFCRibbonCheckComb>();
    check.SelectItem(1);
    Open(check);
    ShiftSpace();
    EXPECT_EQ(TakeTold(), Told{"sent CHECK 'two' 1"});
    EXPECT_NE(Rows(), nullptr);
    CMFCPopupMenu::CloseAll();
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 1);
    light.SelectItem(1);
    Open(light);
    ShiftSpace();
    EXPECT_EQ(TakeTold(), Told{"sent LIGHT-ONLY 'two' 1"});
    EXPECT_NE(Rows(), nullptr);
}

template <class Combo>
class EveryKey : public MarkKeys {};
using AnyCombo = testing::Types<CMFCRibbonCheckComb, CMFCRibbonMultiCombo, CMFCRibbonVesMultiCombo>;
TYPED_TEST_SUITE(EveryKey, AnyCombo);

TYPED_TEST(EveryKey, EnterChoosesTheHotRowClosesTheListAndSwitchesNothing) {
    TypeParam& combo = this->template Add<TypeParam>();
    combo.SelectItem(0);
    this->Open(combo);
    this->Key(VK_DOWN);
    this->Key(VK_DOWN);
    this->Key(VK_RETURN);
    EXPECT_EQ(this->Rows(), nullptr);
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(this->TakeTold(), Told{"sent COMMAND 700"});
    if constexpr (std::is_same_v<TypeParam, CMFCRibbonCheckComb>) {
        EXPECT_EQ(this->ChecksOf(combo), "???");
    } else {
        EXPECT_EQ(this->LightsOf(combo), "???");
    }
}

TYPED_TEST(EveryKey, EscapeClosesTheListAndLeavesSelectionAndMarksAlone) {
    TypeParam& combo = this->template Add<TypeParam>();
    combo.SelectItem(0);
    this->Answer(1);
    this->Open(combo);
    this->Key(VK_DOWN);
    this->Key(VK_SPACE);
    const std::string kept = std::is_same_v<TypeParam, CMFCRibbonCheckComb>    ? "sent CHECK 'two' 1"
                             : std::is_same_v<TypeParam, CMFCRibbonMultiCombo> ? "sent LIGHT 'two' 1"
                                                                               : "sent LIGHT-ONLY 'two' 1";
    EXPECT_EQ(this->TakeTold(), Told{kept});
    this->Key(VK_DOWN);
    this->Key(VK_ESCAPE);
    EXPECT_EQ(this->Rows(), nullptr);
    EXPECT_EQ(this->TakeTold(), Told{});
    EXPECT_EQ(combo.GetCurSel(), 1) << "the row whose mark was switched, not the hot one";
    if constexpr (std::is_same_v<TypeParam, CMFCRibbonCheckComb>) {
        EXPECT_EQ(this->ChecksOf(combo), "?1?") << "what was switched stays so";
    } else {
        EXPECT_EQ(this->LightsOf(combo), "?1?") << "what was switched stays so";
    }
}

TEST_F(MarkKeys, WithoutAHotRowNoKeyAsksForAColour) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    Open(combo);
    ASSERT_EQ(Rows()->GetHotRow(), -1);
    ShiftSpace();
    EXPECT_EQ(TakeTold(), Told{});
    EXPECT_NE(Rows(), nullptr);
}

TEST_F(MarkKeys, TheComboMayGoInTheCommandThatShiftAndSpaceSend) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SelectItem(1);
    Open(combo);
    m_host.Frame().onMessage = [&](const HostMessage& one) {
        if (one.message == WM_COMMAND) {
            m_host.Bar().RemoveAllCategories();
        }
        return 0;
    };
    ShiftSpace();
    EXPECT_EQ(TakeTold(), (Told{"sent COMMAND 700", "posted COLOUR #1 0"})) << "asked for before the command";
    EXPECT_EQ(Rows(), nullptr);
}

} // namespace

// Hosts that change the combo in the message that asks them.
#include "tests/ui/marked_combos/combo_fixture.h"

namespace {

constexpr LRESULT allowed = 1;
constexpr COLORREF color = RGB(0x11, 0x22, 0x33);

/// A multi combo with three items; the host does the deed in each message, and allows it.
class Answers : public RibbonCombos {
protected:
    template <class Deed>
    void AllowAfter(Deed deed) {
        m_host.Frame().onMessage = [deed](const HostMessage&) {
            deed();
            return allowed;
        };
    }
    static bool HasRecord(const CMFCRibbonMultiCombo& combo, int index) {
        CMFCRibbonMultiCombo::rowInfo info;
        return combo.GetItemInfo(index, info);
    }
};

TEST_F(Answers, ALightThatIsAllowedForAnItemThatIsGoneIsNotStored) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    AllowAfter([&] { combo.RemoveAll(); });
    EXPECT_TRUE(combo.NotifyChangeData(2, 1, false)) << "handled all the same";
    EXPECT_EQ(TakeTold(), Told{"sent LIGHT 'three' 1"});
    EXPECT_FALSE(HasRecord(combo, 2));
}

TEST_F(Answers, ALightThatIsAllowedInAListWhoseItemIsGoneIsNotStored) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    Open(combo);
    AllowAfter([&] { combo.RemoveAll(); });
    ClickRow(2, 25);
    EXPECT_EQ(TakeTold(), Told{"sent LIGHT 'three' 1"});
    EXPECT_FALSE(HasRecord(combo, 2));
}

TEST_F(Answers, ALightThatIsAllowedOnTheFaceOfAnItemThatIsGoneIsNotStored) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SelectItem(2);
    AllowAfter([&] { combo.RemoveAll(); });
    ClickFace(combo, 25);
    EXPECT_EQ(TakeTold(), Told{"sent LIGHT 'three' 1"});
    EXPECT_FALSE(HasRecord(combo, 2));
}

TEST_F(Answers, ALightThatIsAllowedForAnotherItemAtTheSamePlaceIsStoredThere) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    AllowAfter([&] {
        combo.RemoveAll();
        for (int i = 0; i < 3; ++i)
            combo.AddItem(L"other");
    });
    combo.NotifyChangeData(2, 1, false);
    EXPECT_EQ(LightsOf(combo), "??1") << "states belong to positions";
}

TEST_F(Answers, ALightGoesToTheItemThatWasClickedThoughTheHostSelectsAnotherOne) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SetItemClr(0, color, false);
    combo.SelectItem(0);
    AllowAfter([&] { combo.SelectItem(2); });
    ClickFace(combo, 25);
    EXPECT_EQ(TakeTold(), Told{"sent LIGHT 'one' 1"});
    EXPECT_EQ(LightsOf(combo), "1??");
    EXPECT_EQ(combo.GetCurSel(), 2);
    COLORREF kept = 0;
    EXPECT_TRUE(combo.GetItemClr(0, kept));
    EXPECT_EQ(kept, color);
}

TEST_F(Answers, ACheckHasChangedBeforeTheHostSelectsAnotherItem) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    combo.SelectItem(0);
    AllowAfter([&] { combo.SelectItem(2); });
    ClickFace(combo, 8);
    EXPECT_EQ(TakeTold(), Told{"sent CHECK 'one' 1"});
    EXPECT_EQ(ChecksOf(combo), "1??");
    ClickFace(combo, 8);
    EXPECT_EQ(TakeTold(), Told{"sent CHECK 'three' 1"});
    EXPECT_EQ(ChecksOf(combo), "1?1");
}

TEST_F(Answers, ALightOnlyCombosLightHasChangedBeforeTheHostSelectsAnotherItem) {
    auto& combo = Add<CMFCRibbonVesMultiCombo>();
    combo.SelectItem(0);
    AllowAfter([&] { combo.SelectItem(1); });
    ClickFace(combo, 8);
    EXPECT_EQ(TakeTold(), Told{"sent LIGHT-ONLY 'one' 1"});
    EXPECT_EQ(LightsOf(combo), "1??");
}

// ---- what happens in which order

/// Notes each redraw with the light and the selection that it would show.
class NotingLight : public CMFCRibbonVesMultiCombo {
public:
    using CMFCRibbonVesMultiCombo::CMFCRibbonVesMultiCombo;
    void Redraw() override {
        bool isOn = false;
        GetItemLight(1, isOn);
        shown.push_back((isOn ? "on " : "off ") + std::to_string(GetCurSel()));
        CMFCRibbonVesMultiCombo::Redraw();
    }
    Told shown;
};

TEST_F(Answers, ALightOnlyCombosLightIsShownBeforeItsItemIsSelectedAndAfterwards) {
    auto& combo = Add<NotingLight>();
    combo.SelectItem(0);
    combo.shown.clear();
    combo.NotifyChangeData(1, 0, false);
    ASSERT_GE(combo.shown.size(), 2u);
    EXPECT_EQ(combo.shown.front(), "on 0");
    EXPECT_EQ(combo.shown.back(), "on 1");
}

} // namespace

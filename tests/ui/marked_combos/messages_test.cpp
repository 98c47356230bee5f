// What the host is told, in which order, and what it decides: by the operation itself, by clicks in the open list, by
// clicks on the face.
#include "tests/ui/marked_combos/combo_fixture.h"

#include <climits>

// What hosts that were built before count on.
static_assert(WM_COMBO_CHECK_CHANGED == 0x0470 && WM_COMBO_COLOR_PICK == 0x0471 && WM_COMBO_LIGHT_CHANGED == 0x0472 &&
              WM_COMBO_ITEM_ACTION == 0x0473 && WM_VESCOMBO_LIGHT_CHANGED == 0x0464);

namespace {

constexpr bool ordinary = false;
constexpr bool exclusive = true;
constexpr COLORREF color = RGB(0x11, 0x22, 0x33);
const std::string colorNumber = std::to_string(color);

// ---- NotifyChangeData

TEST_F(RibbonCombos, ACheckIsInvertedTheItemSelectedAndTheHostTold) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    for (const int zone : {0, 1, 77, -1}) {
        combo.RemoveAll();
        combo.AddItem(L"one");
        combo.AddItem(L"two");
        combo.SetItemCheck(1, false);
        EXPECT_TRUE(combo.NotifyChangeData(1, zone, ordinary)) << "whatever the zone: " << zone;
        EXPECT_EQ(combo.GetCurSel(), 1);
        EXPECT_EQ(TakeTold(), Told{"sent CHECK 'two' 1"});
        EXPECT_TRUE(combo.NotifyChangeData(1, zone, ordinary));
        EXPECT_EQ(TakeTold(), Told{"sent CHECK 'two' 0"});
    }
}

TEST_F(RibbonCombos, TheHostSeesTheNewCheckAlready) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    std::string seen;
    m_host.Frame().onMessage = [&](const HostMessage&) {
        seen += ChecksOf(combo) + " " + std::to_string(combo.GetCurSel());
        return 0;
    };
    combo.NotifyChangeData(2, 0, ordinary);
    EXPECT_EQ(seen, "??1 2");
}

TEST_F(RibbonCombos, AnExclusiveClickOnACheckedItemUnchecksItAndChecksAllOthers) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    combo.SetItemCheck(0, true);
    combo.SetItemCheck(1, false);
    EXPECT_TRUE(combo.NotifyChangeData(0, 0, exclusive));
    EXPECT_EQ(ChecksOf(combo), "011");
    EXPECT_EQ(TakeTold(), (Told{"sent CHECK 'two' 3", "sent CHECK 'three' 3"}));
}

TEST_F(RibbonCombos, AnExclusiveClickOnAnUncheckedItemChecksItAlone) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    combo.SetItemCheck(0, true);
    combo.SetItemCheck(2, true);
    combo.SelectItem(2);
    EXPECT_TRUE(combo.NotifyChangeData(1, 0, exclusive));
    EXPECT_EQ(ChecksOf(combo), "010");
    EXPECT_EQ(TakeTold(), (Told{"sent CHECK 'one' 4", "sent CHECK 'three' 4"}));
    EXPECT_EQ(combo.GetCurSel(), 2) << "it selects nothing";
}

TEST_F(RibbonCombos, AnExclusiveClickBelowTheItemsUnchecksAll) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    combo.SetItemCheck(0, true);
    combo.SelectItem(2);
    EXPECT_TRUE(combo.NotifyChangeData(-1, 0, exclusive));
    EXPECT_EQ(ChecksOf(combo), "000");
    EXPECT_EQ(TakeTold(), (Told{"sent CHECK 'one' 4", "sent CHECK 'two' 4", "sent CHECK 'three' 4"}));
    EXPECT_EQ(combo.GetCurSel(), 2);
}

TEST_F(RibbonCombos, TheSwatchAsksForAColourByAPostedMessageAndChoosesTheItem) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SetItemClr(1, color, false);
    for (const bool mode : {ordinary, exclusive}) {
        combo.SelectItem(0);
        EXPECT_FALSE(combo.NotifyChangeData(1, 0, mode)) << "so that the list closes";
        EXPECT_TRUE(m_host.Frame().received.empty()) << "not before the list has closed";
        EXPECT_EQ(combo.GetCurSel(), 1);
        EXPECT_EQ(TakeTold(), Told{"posted COLOUR #1 " + colorNumber});
    }
    combo.NotifyChangeData(2, 0, ordinary);
    EXPECT_EQ(TakeTold(), Told{"posted COLOUR #2 0"}) << "without a record";
}

TEST_F(RibbonCombos, TheHostDecidesWhetherALightIsSwitched) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SetItemClr(1, color, false);
    struct Case {
        LRESULT answer;
        const char* lights;
    };
    for (const Case& one :
         {Case{0, "?0?"}, Case{1, "?1?"}, Case{0, "?1?"}, Case{-1, "?0?"}, Case{0x100000000LL, "?1?"}}) {
        const bool before = LightsOf(combo) == "?1?";
        Answer(one.answer);
        combo.SelectItem(0);
        EXPECT_TRUE(combo.NotifyChangeData(1, 1, ordinary)) << "the list stays open either way";
        EXPECT_EQ(LightsOf(combo), one.lights) << "answer " << one.answer;
        EXPECT_EQ(TakeTold(), Told{std::string("sent LIGHT 'two' ") + (before ? "0" : "1")});
        EXPECT_EQ(combo.GetCurSel(), 1);
    }
    COLORREF kept = 0;
    combo.GetItemClr(1, kept);
    EXPECT_EQ(kept, color);
}

TEST_F(RibbonCombos, TheHostIsAskedBeforeTheMultiCombosLightChangesAndToldAfterTheLightOnlyCombosHas) {
    auto& multi = Add<CMFCRibbonMultiCombo>();
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 1);
    std::string seen;
    m_host.Frame().onMessage = [&](const HostMessage& one) {
        seen += one.message == WM_COMBO_LIGHT_CHANGED ? LightsOf(multi) : LightsOf(light);
        return 1;
    };
    multi.NotifyChangeData(0, 1, ordinary);
    light.NotifyChangeData(0, 0, ordinary);
    EXPECT_EQ(seen, "???1??");
    EXPECT_EQ(LightsOf(multi), "1??");
}

TEST_F(RibbonCombos, ALightThatTheHostAllowedIsNotBroughtToTheCopies) {
    auto& twin = Add<CMFCRibbonMultiCombo>(comboId, 0);
    auto& combo = Add<CMFCRibbonMultiCombo>();
    Answer(1);
    combo.NotifyChangeData(0, 1, ordinary);
    EXPECT_EQ(LightsOf(combo), "1??");
    EXPECT_EQ(LightsOf(twin), "???");
}

TEST_F(RibbonCombos, AColourThatTheHostSetsWhileItIsAskedStays) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    m_host.Frame().onMessage = [&](const HostMessage&) {
        combo.SetItemClr(0, color, false);
        return 1;
    };
    combo.NotifyChangeData(0, 1, ordinary);
    CMFCRibbonMultiCombo::rowInfo info;
    EXPECT_TRUE(combo.GetItemInfo(0, info));
    EXPECT_EQ(info.clr, color);
    EXPECT_TRUE(info.light);
}

TEST_F(RibbonCombos, AllowingALightWithoutAnItemChangesNothing) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    Answer(1);
    bool light = false;
    for (const int index : {-1, 3, INT_MAX}) {
        EXPECT_TRUE(combo.NotifyChangeData(index, 1, ordinary));
        EXPECT_EQ(TakeTold(), Told{"sent LIGHT '' 1"});
        EXPECT_FALSE(combo.GetItemLight(index, light));
    }
}

TEST_F(RibbonCombos, TheThirdZoneIsAnActionAndMakesARecord) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SetItemInfo(0, color, true, false);
    EXPECT_TRUE(combo.NotifyChangeData(0, 2, ordinary));
    EXPECT_TRUE(combo.NotifyChangeData(2, 2, exclusive));
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(TakeTold(), (Told{"sent ACTION 'one' 1", "sent ACTION 'three' 1"}));
    CMFCRibbonMultiCombo::rowInfo info{1, true};
    EXPECT_TRUE(combo.GetItemInfo(2, info));
    EXPECT_EQ(info.clr, 0u);
    EXPECT_FALSE(info.light);
    EXPECT_TRUE(combo.GetItemInfo(0, info));
    EXPECT_EQ(info.clr, color);
    EXPECT_TRUE(info.light);
    EXPECT_FALSE(combo.GetItemInfo(1, info));
}

TEST_F(RibbonCombos, OtherZonesAreNotHandled) {
    auto& multi = Add<CMFCRibbonMultiCombo>();
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 1);
    multi.SelectItem(0);
    light.SelectItem(0);
    for (const int zone : {3, 4, -1, INT_MAX, INT_MIN}) {
        EXPECT_FALSE(multi.NotifyChangeData(1, zone, ordinary)) << zone;
    }
    for (const int zone : {1, 2, 3, -1, INT_MAX}) {
        EXPECT_FALSE(light.NotifyChangeData(1, zone, ordinary)) << zone;
    }
    EXPECT_EQ(multi.GetCurSel(), 0);
    EXPECT_EQ(light.GetCurSel(), 0);
    EXPECT_EQ(TakeTold(), Told{});
}

TEST_F(RibbonCombos, ALightOnlyCombosLightIsSwitchedInAllCopiesAndTheHostTold) {
    auto& twin = Add<CMFCRibbonVesMultiCombo>(comboId, 0);
    auto& combo = Add<CMFCRibbonVesMultiCombo>();
    EXPECT_TRUE(combo.NotifyChangeData(1, 0, ordinary));
    EXPECT_EQ(LightsOf(combo), "?1?");
    EXPECT_EQ(LightsOf(twin), "?1?");
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_TRUE(combo.NotifyChangeData(1, 0, exclusive));
    EXPECT_EQ(LightsOf(twin), "?0?");
    EXPECT_EQ(TakeTold(), (Told{"sent LIGHT-ONLY 'two' 1", "sent LIGHT-ONLY 'two' 0"}));
}

TEST_F(RibbonCombos, WithoutAHostNothingIsHandledAndNothingChanges) {
    CMFCRibbonCheckComb check(1, FALSE);
    CMFCRibbonMultiCombo multi(2, FALSE);
    CMFCRibbonVesMultiCombo light(3, FALSE);
    for (CMFCRibbonComboBox* const combo :
         {static_cast<CMFCRibbonComboBox*>(&check), static_cast<CMFCRibbonComboBox*>(&multi),
          static_cast<CMFCRibbonComboBox*>(&light)}) {
        combo->AddItem(L"one");
        auto* const receiver = dynamic_cast<CRibbonNotifyCombox*>(combo);
        for (int zone = 0; zone < 4; ++zone) {
            EXPECT_FALSE(receiver->NotifyChangeData(0, zone, ordinary));
            EXPECT_FALSE(receiver->NotifyChangeData(0, zone, exclusive));
        }
        EXPECT_EQ(combo->GetCurSel(), -1);
    }
    EXPECT_EQ(ChecksOf(check), "?");
    EXPECT_EQ(LightsOf(multi), "?");
    EXPECT_EQ(LightsOf(light), "?");
}

// ---- clicks in the open list

TEST_F(RibbonCombos, AClickInTheCheckColumnChangesTheCheckAndLeavesTheListOpen) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    Open(combo);
    std::string expected = "???";
    for (const auto& [row, x] : {std::pair{0, 1}, {1, 8}, {2, 16}}) {
        ClickRow(row, x);
        ASSERT_NE(Rows(), nullptr) << "x " << x;
        expected[static_cast<std::size_t>(row)] = '1';
        EXPECT_EQ(ChecksOf(combo), expected);
        EXPECT_EQ(TakeTold(), Told{"sent CHECK '" +
                                   std::string(row == 0   ? "one"
                                               : row == 1 ? "two"
                                                          : "three") +
                                   "' 1"});
        EXPECT_EQ(combo.GetCurSel(), row);
    }
    ClickRow(1, 8);
    EXPECT_EQ(ChecksOf(combo), "101");
    EXPECT_EQ(TakeTold(), Told{"sent CHECK 'two' 0"});
}

TEST_F(RibbonCombos, AClickBesideTheCheckColumnChoosesTheRowAndClosesTheList) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    for (const int x : {0, 17, 60}) {
        combo.SelectItem(0);
        Open(combo);
        ClickRow(1, x);
        EXPECT_EQ(Rows(), nullptr) << x;
        EXPECT_EQ(combo.GetCurSel(), 1) << x;
        EXPECT_EQ(ChecksOf(combo), "???");
        EXPECT_EQ(TakeTold(), Told{"sent COMMAND 700"});
    }
}

TEST_F(RibbonCombos, ADoubleClickOnAnUncheckedBoxChecksAll) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    Open(combo);
    DoubleClickRow(1, 8);
    EXPECT_NE(Rows(), nullptr);
    EXPECT_EQ(ChecksOf(combo), "111");
    EXPECT_EQ(TakeTold(),
              (Told{"sent CHECK 'two' 1", "sent CHECK 'one' 3", "sent CHECK 'three' 3", "sent CHECK 'two' 1"}));
}

TEST_F(RibbonCombos, ADoubleClickOnACheckedBoxUnchecksAll) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    for (int i = 0; i < 3; ++i) {
        combo.SetItemCheck(i, true);
    }
    Open(combo);
    DoubleClickRow(0, 8);
    EXPECT_EQ(ChecksOf(combo), "000");
    EXPECT_EQ(TakeTold(),
              (Told{"sent CHECK 'one' 0", "sent CHECK 'two' 4", "sent CHECK 'three' 4", "sent CHECK 'one' 0"}));
}

TEST_F(RibbonCombos, ADoubleClickBesideTheBoxChoosesOnce) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    Open(combo);
    DoubleClickRow(2, 60);
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(TakeTold(), Told{"sent COMMAND 700"});
}

TEST_F(RibbonCombos, APressInTheCheckColumnAloneDoesNothing) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    CMFCPopupMenuBarEx& rows = Open(combo);
    m_pointer.MoveTo(rows.GetSafeHwnd(), CPoint(8, 4));
    m_pointer.Press();
    EXPECT_EQ(ChecksOf(combo), "???");
    EXPECT_EQ(TakeTold(), Told{});
    m_pointer.Release();
    EXPECT_EQ(TakeTold(), Told{"sent CHECK 'one' 1"});
}

TEST_F(RibbonCombos, ASwatchClickClosesTheListAndThenTheHostIsAsked) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SetItemClr(1, color, false);
    Open(combo);
    bool wasOpen = true;
    m_host.Frame().onMessage = [&](const HostMessage& one) {
        if (one.message == WM_COMBO_COLOR_PICK) {
            wasOpen = Rows() != nullptr;
        }
        return 0;
    };
    ClickRow(1, 5);
    EXPECT_EQ(Rows(), nullptr);
    EXPECT_EQ(TakeTold(), (Told{"sent COMMAND 700", "posted COLOUR #1 " + colorNumber}));
    EXPECT_FALSE(wasOpen);
    EXPECT_EQ(combo.GetCurSel(), 1);
}

TEST_F(RibbonCombos, ALightClickAsksTheHostAndLeavesTheListOpen) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    Open(combo);
    Answer(1);
    ClickRow(2, 25);
    EXPECT_NE(Rows(), nullptr);
    EXPECT_EQ(LightsOf(combo), "??1");
    Answer(0);
    ClickRow(2, 25);
    EXPECT_NE(Rows(), nullptr);
    EXPECT_EQ(LightsOf(combo), "??1") << "refused";
    EXPECT_EQ(TakeTold(), (Told{"sent LIGHT 'three' 1", "sent LIGHT 'three' 0"}));
}

TEST_F(RibbonCombos, BetweenTheSquaresAClickChooses) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    for (const int x : {0, 2, 17, 33, 80}) {
        Open(combo);
        ClickRow(1, x);
        EXPECT_EQ(Rows(), nullptr) << x;
        EXPECT_EQ(TakeTold(), Told{"sent COMMAND 700"}) << x;
    }
}

TEST_F(RibbonCombos, InTheLightOnlyListTheLeftZoneSwitchesAndTheRightOneChooses) {
    auto& combo = Add<CMFCRibbonVesMultiCombo>();
    Open(combo);
    ClickRow(1, 5, 8);
    EXPECT_NE(Rows(), nullptr);
    EXPECT_EQ(LightsOf(combo), "?1?");
    EXPECT_EQ(TakeTold(), Told{"sent LIGHT-ONLY 'two' 1"});
    ClickRow(2, 22, 8);
    EXPECT_EQ(Rows(), nullptr);
    EXPECT_EQ(LightsOf(combo), "?1?");
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(TakeTold(), Told{"sent COMMAND 700"});
    Open(combo);
    ClickRow(0, 5, 2);
    EXPECT_EQ(Rows(), nullptr) << "above the zone";
}

TEST_F(RibbonCombos, InALongListEveryRowsZoneIsHitAlsoWhenItIsScrolled) {
    auto& combo = Add<CMFCRibbonCheckComb>(comboId, 0);
    for (int i = 0; i < 500; ++i) {
        combo.AddItem(L"item");
    }
    Open(combo);
    Rows()->SetHotRow(321);
    PumpPending();
    ClickRow(320, 8);
    bool isChecked = false;
    EXPECT_TRUE(combo.GetItemCheck(320, isChecked));
    EXPECT_TRUE(isChecked);
    EXPECT_NE(Rows(), nullptr);
}

TEST_F(RibbonCombos, WithoutANotifyChildEveryClickChooses) {
    class PlainCombo : public CMFCRibbonComboBox {
    public:
        using CMFCRibbonComboBox::CMFCRibbonComboBox;

    protected:
        std::unique_ptr<CMFCDropDownListBox> MakeDropDownList() override {
            auto list = std::make_unique<CMFCCheckDropDown>(this);
            list->SetSpRects({CRect(0, 0, 30, 100)});
            return list;
        }
    };
    auto& combo = Add<PlainCombo>();
    Open(combo);
    ClickRow(1, 8);
    EXPECT_EQ(Rows(), nullptr);
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(TakeTold(), Told{"sent COMMAND 700"});
}

// ---- clicks on the face

TEST_F(RibbonCombos, AClickInTheFacesCheckColumnChangesTheSelectedItemAndOpensNothing) {
    auto& twin = Add<CMFCRibbonCheckComb>(comboId, 0);
    auto& combo = Add<CMFCRibbonCheckComb>();
    combo.SelectItem(1);
    for (const int x : {1, 8, 16}) {
        ClickFace(combo, x);
        EXPECT_EQ(Rows(), nullptr) << x;
    }
    EXPECT_EQ(ChecksOf(combo), "?1?");
    EXPECT_EQ(ChecksOf(twin), "?1?");
    EXPECT_EQ(TakeTold(), (Told{"sent CHECK 'two' 1", "sent CHECK 'two' 0", "sent CHECK 'two' 1"}));
}

TEST_F(RibbonCombos, AClickElsewhereOnTheFaceOpensTheList) {
    auto& check = Add<CMFCRibbonCheckComb>();
    auto& multi = Add<CMFCRibbonMultiCombo>(comboId + 1);
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 2);
    struct Case {
        CMFCRibbonComboBox& combo;
        int x;
    };
    const Case cases[] = {{check, 0},  {check, 17},  {check, 60}, {multi, 2},  {multi, 17},
                          {multi, 33}, {multi, 100}, {light, 2},  {light, 17}, {light, 60}};
    for (const Case& one : cases) {
        ClickFace(one.combo, one.x);
        EXPECT_NE(Rows(), nullptr) << one.combo.GetID() << " at " << one.x;
        CMFCPopupMenu::CloseAll();
        EXPECT_EQ(TakeTold(), Told{});
    }
}

TEST_F(RibbonCombos, AFaceClickOnTheLightAsksAndOneOnTheSwatchPosts) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SetItemClr(2, color, false);
    combo.SelectItem(2);
    Answer(0);
    ClickFace(combo, 20);
    EXPECT_EQ(LightsOf(combo), "??0");
    Answer(5);
    ClickFace(combo, 31);
    EXPECT_EQ(LightsOf(combo), "??1");
    ClickFace(combo, 3);
    ClickFace(combo, 15);
    EXPECT_EQ(Rows(), nullptr);
    EXPECT_EQ(TakeTold(), (Told{"sent LIGHT 'three' 1", "sent LIGHT 'three' 1", "posted COLOUR #2 " + colorNumber,
                                "posted COLOUR #2 " + colorNumber}));
    COLORREF kept = 0;
    combo.GetItemClr(2, kept);
    EXPECT_EQ(kept, color);
}

TEST_F(RibbonCombos, AFaceClickOnALightOnlyCombosLightSwitchesIt) {
    auto& combo = Add<CMFCRibbonVesMultiCombo>();
    combo.SelectItem(0);
    ClickFace(combo, 3);
    EXPECT_EQ(LightsOf(combo), "1??");
    ClickFace(combo, 15);
    EXPECT_EQ(LightsOf(combo), "0??");
    EXPECT_EQ(Rows(), nullptr);
    EXPECT_EQ(TakeTold(), (Told{"sent LIGHT-ONLY 'one' 1", "sent LIGHT-ONLY 'one' 0"}));
}

TEST_F(RibbonCombos, AFaceClickWithoutASelectionTellsAndChangesNothing) {
    auto& check = Add<CMFCRibbonCheckComb>();
    auto& multi = Add<CMFCRibbonMultiCombo>(comboId + 1);
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 2);
    Answer(1);
    ClickFace(check, 8);
    ClickFace(multi, 25);
    ClickFace(multi, 8);
    ClickFace(light, 8);
    EXPECT_EQ(ChecksOf(check), "???");
    EXPECT_EQ(LightsOf(multi), "???");
    EXPECT_EQ(LightsOf(light), "???");
    EXPECT_EQ(TakeTold(), (Told{"sent CHECK '' 1", "sent LIGHT '' 1", "posted COLOUR #-1 0", "sent LIGHT-ONLY '' 1"}));
}

TEST_F(RibbonCombos, ADisabledFaceTakesNoClick) {
    auto& check = Add<CMFCRibbonCheckComb>();
    auto& multi = Add<CMFCRibbonMultiCombo>(comboId + 1);
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 2);
    for (CMFCRibbonComboBox* const combo :
         {static_cast<CMFCRibbonComboBox*>(&check), static_cast<CMFCRibbonComboBox*>(&multi),
          static_cast<CMFCRibbonComboBox*>(&light)}) {
        combo->SelectItem(0);
        combo->SetDisabled(TRUE);
        for (const int x : {8, 25, 80}) {
            combo->OnLButtonDown(CPoint(combo->GetEditRect().left + x, combo->GetEditRect().CenterPoint().y));
        }
        combo->DropDownList();
        EXPECT_EQ(Rows(), nullptr);
    }
    EXPECT_EQ(ChecksOf(check) + LightsOf(multi) + LightsOf(light), "?????????");
    EXPECT_EQ(TakeTold(), Told{});
}

TEST_F(RibbonCombos, ACopyOnTheQuickAccessToolbarTakesFaceClicks) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    combo.SelectItem(2);
    auto& quick = AddToQuickAccess<CMFCRibbonCheckComb>();
    const CRect edit = quick.GetEditRect();
    ASSERT_FALSE(edit.IsRectEmpty());
    m_pointer.Click(m_host.BarWindow(), CPoint(edit.left + 8, edit.CenterPoint().y));
    EXPECT_EQ(ChecksOf(combo), "??1");
    EXPECT_EQ(ChecksOf(quick), "??1");
    EXPECT_EQ(TakeTold(), Told{"sent CHECK 'three' 1"});
}

} // namespace

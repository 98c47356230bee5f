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
        for (int i = 0; i < 3; ++i) {
            combo.AddItem(L"other");
        }
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

TEST_F(Answers, TheHostThatIsAskedForALightSeesTheItemSelectedAndTheOldLight) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SetItemLight(2, true, false);
    std::string seen;
    AllowAfter([&] { seen += LightsOf(combo) + ' ' + std::to_string(combo.GetCurSel()); });
    combo.NotifyChangeData(2, 1, false);
    EXPECT_EQ(seen, "??1 2");
    EXPECT_EQ(LightsOf(combo), "??0");
}

TEST_F(Answers, TheHostOfAnActionSeesTheRecordAndTheSelectionAlready) {
    auto& twin = Add<CMFCRibbonMultiCombo>(comboId, 0);
    auto& combo = Add<CMFCRibbonMultiCombo>();
    for (int i = 0; i < 3; ++i) {
        twin.CMFCRibbonComboBox::AddItem(someItems[i]);
    }
    std::string seen;
    AllowAfter([&] { seen += LightsOf(combo) + ' ' + std::to_string(combo.GetCurSel()); });
    combo.NotifyChangeData(1, 2, false);
    EXPECT_EQ(seen, "?0? 1");
    EXPECT_FALSE(HasRecord(twin, 1)) << "no matter of the copies";
}

TEST_F(Answers, SwatchAndActionDrawTheFaceAnewThoughTheirItemIsSelectedAlready) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SelectItem(1);
    for (const int zone : {0, 2}) {
        PumpPending();
        m_host.Bar().ValidateRect(nullptr);
        combo.NotifyChangeData(1, zone, false);
        CRect rect(0, 0, 0, 0);
        ::GetUpdateRect(m_host.BarWindow(), &rect, FALSE);
        EXPECT_EQ(rect, combo.GetRect()) << zone;
    }
}

TEST_F(Answers, AnExclusiveCallDrawsEveryRowOfAnOpenListAnewAndTheFace) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    CMFCPopupMenuBarEx& rows = Open(combo);
    PumpPending();
    rows.ValidateRect(nullptr);
    m_host.Bar().ValidateRect(nullptr);
    combo.NotifyChangeData(1, 0, true);
    CRect face(0, 0, 0, 0);
    ::GetUpdateRect(m_host.BarWindow(), &face, FALSE);
    EXPECT_EQ(face, combo.GetRect());
    CRgn region;
    region.CreateRectRgn(0, 0, 0, 0);
    ::GetUpdateRgn(rows.GetSafeHwnd(), static_cast<HRGN>(region.GetSafeHandle()), FALSE);
    for (int row = 0; row < 3; ++row) {
        EXPECT_TRUE(region.RectInRegion(rows.GetRowRect(row))) << row;
    }
}

TEST_F(Answers, ARefusedLightsRowIsDrawnAnewAlsoWhenNoClickAskedForIt) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    CMFCPopupMenuBarEx& rows = Open(combo);
    PumpPending();
    rows.ValidateRect(nullptr);
    combo.NotifyChangeData(1, 1, false);
    CRect rect(0, 0, 0, 0);
    ::GetUpdateRect(rows.GetSafeHwnd(), &rect, FALSE);
    EXPECT_EQ(rect, rows.GetRowRect(1));
}

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

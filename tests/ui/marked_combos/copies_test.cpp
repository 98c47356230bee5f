// Elements with one command id show the same.
#include "tests/ui/marked_combos/combo_fixture.h"

namespace {

/// Counts how often each operation reaches the element, its own call included.
class CountingCombo : public CMFCRibbonMultiCombo {
    DECLARE_DYNCREATE(CountingCombo)
public:
    using CMFCRibbonMultiCombo::CMFCRibbonMultiCombo;
    CountingCombo() = default;
    INT_PTR AddItem(LPCTSTR text, DWORD_PTR data = 0) override {
        ++adds;
        return CMFCRibbonMultiCombo::AddItem(text, data);
    }
    void Redraw() override {
        ++redraws;
        CMFCRibbonMultiCombo::Redraw();
    }
    int adds = 0;
    int redraws = 0;
};
IMPLEMENT_DYNCREATE(CountingCombo, CMFCRibbonMultiCombo)

template <class Combo>
class Counting : public Combo {
public:
    using Combo::Combo;
    void Redraw() override {
        ++redraws;
        Combo::Redraw();
    }
    int redraws = 0;
};

class Copies : public RibbonCombos {
protected:
    void SetUp() override {
        m_panel = &Add<CMFCRibbonMultiCombo>(comboId, 0);
        m_quick = &AddToQuickAccess<CMFCRibbonMultiCombo>();
        m_twin = &Add<CMFCRibbonMultiCombo>(comboId, 0);
        ASSERT_NE(m_panel, m_quick);
        for (const wchar_t* const text : {L"one", L"two", L"three"}) {
            m_panel->AddItem(text);
        }
    }
    std::vector<CMFCRibbonMultiCombo*> All() const { return {m_panel, m_quick, m_twin}; }

    CMFCRibbonMultiCombo* m_panel = nullptr;
    CMFCRibbonMultiCombo* m_quick = nullptr;
    CMFCRibbonMultiCombo* m_twin = nullptr; // made by the host with the same id
};

TEST_F(Copies, TheQuickAccessToolbarsCopyHasItemsAndStates) {
    EXPECT_STREQ(m_quick->GetItem(2), L"three");
    auto& combo = Add<CMFCRibbonCheckComb>(comboId + 1);
    combo.SetItemCheck(1, true);
    EXPECT_EQ(ChecksOf(AddToQuickAccess<CMFCRibbonCheckComb>(comboId + 1)), "?1?");
}

TEST_F(Copies, TheQuickAccessToolbarsCopyHasSelectionHeightAndSettings) {
    auto& combo = Add<CMFCRibbonVesMultiCombo>(comboId + 1, 2);
    combo.AddItem(L"three", 77);
    combo.SelectItem(1);
    combo.SetDropDownHeight(123);
    combo.EnableDropDownListResize(TRUE);
    auto& quick = AddToQuickAccess<CMFCRibbonVesMultiCombo>(comboId + 1);
    EXPECT_EQ(quick.GetCurSel(), 1);
    EXPECT_EQ(quick.GetEditText(), L"two");
    EXPECT_EQ(quick.GetDropDownHeight(), 123);
    EXPECT_TRUE(quick.IsResizeDropDownList());
    EXPECT_EQ(quick.GetItemData(2), 77u);
}

TEST_F(Copies, TheQuickAccessToolbarsCopyOfAComboWithTheStaticHeightDropsInThat) {
    auto& combo = Add<CMFCRibbonCheckComb>(comboId + 1, 0);
    for (int i = 0; i < 200; ++i) {
        combo.AddItem(L"item");
    }
    combo.UserStaticDropDownHeight(true);
    combo.SetStaticDropDownHeight(250);
    auto& quick = AddToQuickAccess<CMFCRibbonCheckComb>(comboId + 1);
    EXPECT_EQ(quick.GetDropDownHeight(), 250);
    Open(quick);
    CRect list;
    CMFCPopupMenu::GetActiveMenu()->GetWindowRect(&list);
    EXPECT_LE(list.Height(), 250);
    EXPECT_GT(list.Height(), 250 - afxGlobalData.GetTextHeight());
}

TEST_F(Copies, ASelectionMadeLaterIsSeenOnTheQuickAccessToolbar) {
    m_panel->SelectItem(2);
    EXPECT_EQ(m_quick->GetCurSel(), 2);
    m_quick->SelectItem(0);
    EXPECT_EQ(m_panel->GetCurSel(), 0);
}

TEST_F(Copies, AColourSetOnAnyOneIsSetOnAll) {
    int index = 0;
    for (CMFCRibbonMultiCombo* const one : All()) {
        const COLORREF color = RGB(10, 20, index);
        EXPECT_TRUE(one->SetItemClr(index, color, true));
        for (const CMFCRibbonMultiCombo* const other : All()) {
            COLORREF shown = 0;
            EXPECT_TRUE(other->GetItemClr(index, shown));
            EXPECT_EQ(shown, color);
        }
        ++index;
    }
}

TEST_F(Copies, ALightSetOnAnyOneIsSetOnAll) {
    int index = 0;
    for (CMFCRibbonMultiCombo* const one : All()) {
        one->SetItemLight(index++, true, false);
        for (const CMFCRibbonMultiCombo* const other : All()) {
            EXPECT_EQ(LightsOf(*other), LightsOf(*m_panel));
        }
    }
    EXPECT_EQ(LightsOf(*m_panel), "111");
    m_quick->SetItemLight(L"two", false, true);
    EXPECT_EQ(LightsOf(*m_twin), "101") << "by text, too";
}

TEST_F(Copies, ItemsAddedToOneAreAddedToAllAndSoIsTheEndOfAll) {
    m_panel->RemoveAll();
    for (const CMFCRibbonMultiCombo* const one : All()) {
        EXPECT_EQ(one->GetCount(), 0);
    }
    m_quick->AddItem(L"new", 42);
    m_twin->AddItem(L"newer", 43);
    for (const CMFCRibbonMultiCombo* const one : All()) {
        ASSERT_EQ(one->GetCount(), 2);
        EXPECT_STREQ(one->GetItem(0), L"new");
        EXPECT_EQ(one->GetItemData(1), 43u);
    }
}

TEST_F(Copies, ARecordSetAsAWholeStaysOneElements) {
    CMFCRibbonMultiCombo::rowInfo info{RGB(1, 2, 3), true};
    m_panel->SetItemInfo(0, RGB(9, 9, 9), true, false);
    m_panel->SetItemInfo(1, info);
    EXPECT_EQ(LightsOf(*m_panel), "11?");
    EXPECT_EQ(LightsOf(*m_quick), "???");
    EXPECT_EQ(LightsOf(*m_twin), "???");
}

TEST_F(Copies, ARefusedSetterReachesNobody) {
    m_twin->RemoveAllItems();
    m_twin->AddItem(L"one");
    EXPECT_FALSE(m_twin->SetItemLight(3, true, true));
    EXPECT_EQ(LightsOf(*m_panel), "????");
}

TEST_F(Copies, ACopyWithFewerItemsRefusesForItselfOnly) {
    m_twin->RemoveAllItems();
    EXPECT_TRUE(m_panel->SetItemLight(0, true, true));
    bool light = false;
    EXPECT_FALSE(m_twin->GetItemLight(0, light));
    EXPECT_TRUE(m_quick->GetItemLight(0, light));
    EXPECT_TRUE(light);
}

TEST_F(Copies, AnElementOfAnotherClassWithTheIdIsPassedOver) {
    auto& other = Add<CMFCRibbonVesMultiCombo>(comboId, 0);
    const INT_PTR before = other.GetCount();
    m_panel->AddItem(L"new");
    m_panel->SetItemLight(0, true, true);
    EXPECT_EQ(other.GetCount(), before);
    EXPECT_EQ(LightsOf(*m_quick), "1???");
}

TEST_F(Copies, AnElementOfAnotherIdIsPassedOver) {
    auto& other = Add<CMFCRibbonMultiCombo>(comboId + 5);
    m_panel->SetItemLight(0, true, true);
    m_panel->RemoveAll();
    EXPECT_EQ(LightsOf(other), "???");
}

TEST_F(RibbonCombos, EachCopysOperationRunsOnce) {
    auto& panel = Add<CountingCombo>(comboId, 0);
    auto& quick = AddToQuickAccess<CountingCombo>();
    auto& twin = Add<CountingCombo>(comboId, 0);
    panel.AddItem(L"one");
    for (CountingCombo* const one : {&panel, &quick, &twin}) {
        EXPECT_EQ(one->adds, 1);
        one->redraws = 0;
    }
    quick.SetItemClr(0, RGB(1, 2, 3), true);
    for (const CountingCombo* const one : {&panel, &quick, &twin}) {
        EXPECT_EQ(one->redraws, 1);
    }
    twin.SetItemLight(0, true, false);
    for (const CountingCombo* const one : {&panel, &quick, &twin}) {
        EXPECT_EQ(one->redraws, 1) << "none was asked for";
    }
    panel.SetItemInfo(0, RGB(4, 5, 6), true, false);
    EXPECT_EQ(panel.redraws, 1);
}

TEST_F(RibbonCombos, ACheckIsRedrawnWhenAUserChangesItAndNotWhenTheHostDoes) {
    auto& twin = Add<Counting<CMFCRibbonCheckComb>>(comboId, 0);
    auto& combo = Add<Counting<CMFCRibbonCheckComb>>();
    combo.SelectItem(0);
    twin.redraws = combo.redraws = 0;
    combo.SetItemCheck(0, true);
    EXPECT_EQ(combo.redraws + twin.redraws, 0);
    ClickFace(combo, 8);
    EXPECT_GE(combo.redraws, 1);
    EXPECT_GE(twin.redraws, 1);
    twin.redraws = combo.redraws = 0;
    combo.NotifyChangeData(0, 0, false);
    EXPECT_GE(combo.redraws, 1);
    EXPECT_GE(twin.redraws, 1);
}

template <class Combo>
class Redraws : public RibbonCombos {};
using LitKinds = testing::Types<CMFCRibbonMultiCombo, CMFCRibbonVesMultiCombo>;
TYPED_TEST_SUITE(Redraws, LitKinds);

TYPED_TEST(Redraws, AreMadeInEveryCopyWhenTheyAreAskedForAndElseInNone) {
    auto& twin = this->template Add<Counting<TypeParam>>(comboId, 0);
    auto& combo = this->template Add<Counting<TypeParam>>();
    const auto count = [&](auto set) {
        twin.redraws = combo.redraws = 0;
        set();
        EXPECT_EQ(twin.redraws, combo.redraws);
        return combo.redraws;
    };
    for (const bool redraw : {false, true}) {
        const int wanted = redraw ? 1 : 0;
        EXPECT_EQ(count([&] { combo.SetItemLight(1, true, redraw); }), wanted);
        EXPECT_EQ(count([&] { combo.SetItemLight(L"two", false, redraw); }), wanted);
        if constexpr (std::is_same_v<TypeParam, CMFCRibbonMultiCombo>) {
            EXPECT_EQ(count([&] { combo.SetItemClr(1, RGB(1, 2, 3), redraw); }), wanted);
            EXPECT_EQ(count([&] { combo.SetItemClr(L"two", RGB(3, 2, 1), redraw); }), wanted);
            EXPECT_EQ(count([&] { combo.SetItemLock(1, true, redraw); }), 0);
            EXPECT_EQ(count([&] { combo.SetItemLock(L"two", true, redraw); }), 0);
            CMFCRibbonMultiCombo::rowInfo info{RGB(7, 8, 9), true};
            EXPECT_EQ(count([&] { combo.SetItemInfo(1, info); }), 0);
        }
    }
}

TEST_F(RibbonCombos, AComboOutsideOfARibbonIsChangedAlone) {
    CMFCRibbonCheckComb combo(comboId, FALSE);
    auto& onBar = Add<CMFCRibbonCheckComb>();
    combo.AddItem(L"one");
    EXPECT_TRUE(combo.SetItemCheck(0, true));
    EXPECT_EQ(ChecksOf(onBar), "???");
    onBar.SetItemCheck(0, false);
    EXPECT_EQ(ChecksOf(combo), "1");
}

TEST_F(RibbonCombos, ChecksAndLightsOfCopiesGoTogether) {
    auto& checkTwin = Add<CMFCRibbonCheckComb>(comboId, 0);
    auto& check = Add<CMFCRibbonCheckComb>();
    check.SetItemCheck(2, true);
    checkTwin.SetItemCheck(0, false);
    EXPECT_EQ(ChecksOf(check), "0?1");
    EXPECT_EQ(ChecksOf(checkTwin), "0?1");
    auto& lightTwin = Add<CMFCRibbonVesMultiCombo>(comboId + 1, 0);
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 1);
    light.SetItemLight(1, true, true);
    EXPECT_EQ(LightsOf(lightTwin), "?1?");
}

} // namespace

// What the combos keep for each item.
#include "tests/ui/marked_combos/combo_fixture.h"

#include <climits>

namespace {

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

/// What all three kinds answer alike.
template <class Combo>
class EveryCombo : public RibbonCombos {};
using Kinds = testing::Types<CMFCRibbonCheckComb, CMFCRibbonMultiCombo, CMFCRibbonVesMultiCombo>;
TYPED_TEST_SUITE(EveryCombo, Kinds);

bool SetMark(CMFCRibbonCheckComb& combo, int index, bool value) { return combo.SetItemCheck(index, value); }
bool SetMark(CMFCRibbonMultiCombo& combo, int index, bool value) { return combo.SetItemLight(index, value, false); }
bool SetMark(CMFCRibbonVesMultiCombo& combo, int index, bool value) { return combo.SetItemLight(index, value, false); }
bool GetMark(const CMFCRibbonCheckComb& combo, int index, bool& value) { return combo.GetItemCheck(index, value); }
bool GetMark(const CMFCRibbonMultiCombo& combo, int index, bool& value) { return combo.GetItemLight(index, value); }
bool GetMark(const CMFCRibbonVesMultiCombo& combo, int index, bool& value) { return combo.GetItemLight(index, value); }

TYPED_TEST(EveryCombo, AddItemAnswersOneForEveryItem) {
    TypeParam combo(comboId, FALSE);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(combo.AddItem(L"item"), 1) << i;
    }
    EXPECT_EQ(combo.GetCount(), 10);
}

TYPED_TEST(EveryCombo, ANewItemHasItsTextAndDataAndNoState) {
    TypeParam combo(comboId, FALSE);
    combo.AddItem(L"first", 5);
    combo.AddItem(L"second", 0x123456789AULL);
    EXPECT_STREQ(combo.GetItem(1), L"second");
    EXPECT_EQ(combo.GetItemData(1), 0x123456789AULL);
    bool value = true;
    EXPECT_FALSE(GetMark(combo, 0, value));
    EXPECT_FALSE(GetMark(combo, 1, value));
    EXPECT_TRUE(value);
}

TYPED_TEST(EveryCombo, ASetterNeedsAnItem) {
    TypeParam combo(comboId, FALSE);
    EXPECT_FALSE(SetMark(combo, 0, true)) << "no items";
    for (const wchar_t* const item : someItems) {
        combo.AddItem(item);
    }
    EXPECT_TRUE(SetMark(combo, 0, true));
    EXPECT_TRUE(SetMark(combo, 3, true));
    for (const int index : {-1, 4, 5, INT_MAX, INT_MIN}) {
        EXPECT_FALSE(SetMark(combo, index, true)) << index;
        bool value = false;
        EXPECT_FALSE(GetMark(combo, index, value)) << "a refused setter leaves no entry: " << index;
    }
}

TYPED_TEST(EveryCombo, AGetterOfAPositionThatWasNeverSetLeavesTheVariableAlone) {
    TypeParam combo(comboId, FALSE);
    for (const wchar_t* const item : someItems) {
        combo.AddItem(item);
    }
    SetMark(combo, 1, false);
    for (const int index : {-1, 0, 2, 4, INT_MAX}) {
        for (const bool before : {false, true}) {
            bool value = before;
            EXPECT_FALSE(GetMark(combo, index, value)) << index;
            EXPECT_EQ(value, before);
        }
    }
    bool value = true;
    EXPECT_TRUE(GetMark(combo, 1, value));
    EXPECT_FALSE(value);
}

TYPED_TEST(EveryCombo, StatesOutliveTheItems) {
    TypeParam combo(comboId, FALSE);
    for (int i = 0; i < 3; ++i) {
        combo.AddItem(someItems[i]);
    }
    SetMark(combo, 1, true);
    SetMark(combo, 2, false);
    combo.RemoveAll();
    EXPECT_EQ(combo.GetCount(), 0);
    bool value = false;
    EXPECT_TRUE(GetMark(combo, 1, value)) << "read without a look at the items";
    EXPECT_FALSE(SetMark(combo, 1, false)) << "but not set without one";
    for (int i = 0; i < 3; ++i) {
        combo.AddItem(L"another");
    }
    EXPECT_TRUE(GetMark(combo, 1, value));
    EXPECT_TRUE(value);
    EXPECT_TRUE(GetMark(combo, 2, value));
    EXPECT_FALSE(value);
    EXPECT_FALSE(GetMark(combo, 0, value));
}

TYPED_TEST(EveryCombo, StatesDoNotMoveWithTheItems) {
    TypeParam combo(comboId, FALSE);
    for (const wchar_t* const item : someItems) {
        combo.AddItem(item);
    }
    SetMark(combo, 2, true);
    combo.DeleteItem(0);
    bool value = false;
    EXPECT_FALSE(GetMark(combo, 1, value)) << "the third item is the second now";
    EXPECT_TRUE(GetMark(combo, 2, value));
}

TYPED_TEST(EveryCombo, TypeKeysLeadToIndexesAndBack) {
    TypeParam combo(comboId, FALSE);
    EXPECT_EQ(combo.findIndexByTypeKeyName(L"sea"), -1);
    combo.setTypeKeyName2Index({{L"sea", 2}, {L"land", 0}, {L"", 1}, {L"air", 2}, {L"far", 999}, {L"gone", -1}});
    EXPECT_EQ(combo.findIndexByTypeKeyName(L"sea"), 2);
    EXPECT_EQ(combo.findIndexByTypeKeyName(L"land"), 0);
    EXPECT_EQ(combo.findIndexByTypeKeyName(L"far"), 999) << "not checked against the items";
    EXPECT_EQ(combo.findIndexByTypeKeyName(L""), -1) << "also when the map has it";
    EXPECT_EQ(combo.findIndexByTypeKeyName(L"Sea"), -1) << "letter case counts";
    EXPECT_EQ(combo.findTypeKeyNameByIndex(2), L"air") << "the smaller of two keys";
    EXPECT_EQ(combo.findTypeKeyNameByIndex(999), L"far");
    EXPECT_EQ(combo.findTypeKeyNameByIndex(-1), L"");
    EXPECT_EQ(combo.findTypeKeyNameByIndex(5), L"");
}

TYPED_TEST(EveryCombo, ANewMapOfTypeKeysReplacesTheOldOne) {
    TypeParam combo(comboId, FALSE);
    std::map<std::wstring, int> map{{L"a", 1}};
    combo.setTypeKeyName2Index(map);
    map[L"b"] = 2;
    EXPECT_EQ(combo.findIndexByTypeKeyName(L"b"), -1) << "it is a copy";
    combo.setTypeKeyName2Index({{L"b", 2}});
    EXPECT_EQ(combo.findIndexByTypeKeyName(L"a"), -1);
    EXPECT_EQ(combo.findIndexByTypeKeyName(L"b"), 2);
    combo.setTypeKeyName2Index({});
    EXPECT_EQ(combo.findTypeKeyNameByIndex(2), L"");
}

TYPED_TEST(EveryCombo, ACopyTakesItemsStatesAndTypeKeys) {
    TypeParam combo(comboId, FALSE, 90, L"Label");
    for (int i = 0; i < 3; ++i) {
        combo.AddItem(someItems[i], 10 + static_cast<DWORD_PTR>(i));
    }
    SetMark(combo, 1, true);
    combo.setTypeKeyName2Index({{L"k", 1}});
    combo.SelectItem(2);
    combo.SetDropDownHeight(123);
    combo.EnableDropDownListResize(TRUE);

    const std::unique_ptr<CObject> made(combo.GetRuntimeClass()->CreateObject());
    auto* const copy = dynamic_cast<TypeParam*>(made.get());
    ASSERT_NE(copy, nullptr);
    copy->CopyFrom(combo);
    ASSERT_EQ(copy->GetCount(), 3);
    EXPECT_STREQ(copy->GetItem(2), L"three");
    EXPECT_EQ(copy->GetItemData(2), 12u);
    EXPECT_EQ(copy->GetCurSel(), 2);
    EXPECT_EQ(copy->GetDropDownHeight(), 123);
    EXPECT_TRUE(copy->IsResizeDropDownList());
    EXPECT_FALSE(copy->HasEditBox());
    EXPECT_EQ(copy->findIndexByTypeKeyName(L"k"), 1);
    EXPECT_EQ(copy->findTypeKeyNameByIndex(1), L"k");
    bool value = false;
    EXPECT_TRUE(GetMark(*copy, 1, value));
    EXPECT_TRUE(value);
    EXPECT_FALSE(GetMark(*copy, 0, value));
    SetMark(*copy, 1, false);
    EXPECT_TRUE(GetMark(combo, 1, value));
    EXPECT_TRUE(value) << "each has its own";
}

TYPED_TEST(EveryCombo, ACopyOfItselfOrOfAnotherKindKeepsItsStates) {
    TypeParam combo(comboId, FALSE);
    combo.AddItem(L"one");
    SetMark(combo, 0, true);
    combo.CopyFrom(combo);
    bool value = false;
    EXPECT_TRUE(GetMark(combo, 0, value));
    const CMFCRibbonComboBox plain(5, FALSE);
    combo.CopyFrom(plain);
    EXPECT_TRUE(GetMark(combo, 0, value));
    EXPECT_EQ(combo.GetCount(), 0) << "the items are the source's";
}

TYPED_TEST(EveryCombo, IsMadeByItsNameAndIsBothAComboAndAReceiverOfClicks) {
    TypeParam combo(comboId, FALSE);
    EXPECT_NE(dynamic_cast<CRibbonNotifyCombox*>(static_cast<CMFCRibbonComboBox*>(&combo)), nullptr);
    EXPECT_EQ(static_cast<const void*>(static_cast<CMFCRibbonComboBox*>(&combo)), static_cast<const void*>(&combo))
        << "a combo first";
    CRuntimeClass* const found = CRuntimeClass::FromName(combo.GetRuntimeClass()->m_lpszClassName);
    EXPECT_EQ(found, combo.GetRuntimeClass());
    EXPECT_TRUE(combo.IsKindOf(RUNTIME_CLASS(CMFCRibbonComboBox)));
}

TYPED_TEST(EveryCombo, OutrageousTextsAreItemsLikeAnyOther) {
    TypeParam& combo = this->template Add<TypeParam>(comboId, 0);
    const CString longText(L'x', 100000);
    for (const wchar_t* const text :
         {L"", longText.GetString(), L"two\nlines", L"two\nlines", L"tab\there", L"a & b"}) {
        EXPECT_EQ(combo.AddItem(text), 1);
    }
    EXPECT_EQ(combo.AddItem(nullptr), 1);
    EXPECT_EQ(combo.GetCount(), 6) << "null is no text";
    EXPECT_EQ(CString(combo.GetItem(1)).GetLength(), 100000);
    EXPECT_EQ(combo.FindItem(L"two\nlines"), 2) << "the first of two";
    EXPECT_TRUE(SetMark(combo, 3, true));
    combo.SelectItem(1);
    this->m_host.LayOut();
    this->Open(combo);
    PumpPending();
    EXPECT_NE(this->Rows(), nullptr);
}

TYPED_TEST(EveryCombo, NothingIsToldByAnythingTheHostDoes) {
    TypeParam& combo = this->template Add<TypeParam>();
    combo.AddItem(L"more");
    SetMark(combo, 0, true);
    combo.SelectItem(1);
    combo.RemoveAll();
    EXPECT_EQ(this->TakeTold(), Told{});
}

// ---- the multi combo

TEST_F(RibbonCombos, AColourKeepsTheLightAndALightTheColour) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    COLORREF color = 77;
    bool light = true;
    EXPECT_TRUE(combo.SetItemClr(0, red, false));
    EXPECT_TRUE(combo.GetItemLight(0, light));
    EXPECT_FALSE(light) << "a new record is off";
    EXPECT_TRUE(combo.SetItemLight(0, true, false));
    EXPECT_TRUE(combo.GetItemClr(0, color));
    EXPECT_EQ(color, red);
    EXPECT_TRUE(combo.SetItemClr(0, blue, true));
    EXPECT_TRUE(combo.GetItemLight(0, light));
    EXPECT_TRUE(light);
    EXPECT_TRUE(combo.SetItemLight(1, true, true));
    EXPECT_TRUE(combo.GetItemClr(1, color));
    EXPECT_EQ(color, 0u) << "a new record is black";
}

TEST_F(RibbonCombos, AColourGetterWithoutARecordLeavesTheVariableAlone) {
    const auto& combo = Add<CMFCRibbonMultiCombo>();
    COLORREF color = 0x123456;
    CMFCRibbonMultiCombo::rowInfo info{0x123456, true};
    EXPECT_FALSE(combo.GetItemClr(0, color));
    EXPECT_FALSE(combo.GetItemInfo(0, info));
    EXPECT_EQ(color, 0x123456u);
    EXPECT_EQ(info.clr, 0x123456u);
    EXPECT_TRUE(info.light);
}

TEST_F(RibbonCombos, TheSettersByTextTakeTheFirstItemWithIt) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.AddItem(L"two");
    bool light = false;
    COLORREF color = 0;
    EXPECT_TRUE(combo.SetItemLight(L"two", true, false));
    EXPECT_TRUE(combo.SetItemClr(L"two", red, true));
    EXPECT_TRUE(combo.GetItemLight(1, light));
    EXPECT_TRUE(light);
    EXPECT_TRUE(combo.GetItemClr(1, color));
    EXPECT_EQ(color, red);
    EXPECT_FALSE(combo.GetItemLight(3, light));
    for (const wchar_t* const text : {L"five", L"", L"TWO", static_cast<const wchar_t*>(nullptr)}) {
        EXPECT_FALSE(combo.SetItemLight(text, true, true));
        EXPECT_FALSE(combo.SetItemClr(text, red, true));
    }
    auto& lights = Add<CMFCRibbonVesMultiCombo>(comboId + 1);
    EXPECT_TRUE(lights.SetItemLight(L"three", true, true));
    EXPECT_EQ(LightsOf(lights), "??1");
    EXPECT_FALSE(lights.SetItemLight(L"nowhere", true, true));
    EXPECT_FALSE(lights.SetItemLight(nullptr, true, true));
}

TEST_F(RibbonCombos, AWholeRecordIsStoredForAnItemAndByReferenceForAnyIndex) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    CMFCRibbonMultiCombo::rowInfo info;
    EXPECT_TRUE(combo.SetItemInfo(2, red, true, true));
    EXPECT_TRUE(combo.GetItemInfo(2, info));
    EXPECT_EQ(info.clr, red);
    EXPECT_TRUE(info.light);
    EXPECT_FALSE(combo.SetItemInfo(3, red, true, false));
    EXPECT_FALSE(combo.SetItemInfo(-1, red, true, false));
    EXPECT_FALSE(combo.GetItemInfo(3, info));
    for (const int index : {3, 4000, INT_MAX, -1}) {
        CMFCRibbonMultiCombo::rowInfo other{blue, true};
        EXPECT_TRUE(combo.SetItemInfo(index, other)) << index;
        CMFCRibbonMultiCombo::rowInfo stored;
        EXPECT_TRUE(combo.GetItemInfo(index, stored)) << index;
        EXPECT_EQ(stored.clr, blue);
    }
}

TEST_F(RibbonCombos, LocksDoNothingAndSayYes) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SetItemInfo(0, red, true, false);
    for (const int index : {0, 1, -1, 99}) {
        EXPECT_TRUE(combo.SetItemLock(index, true, true));
        for (const bool before : {false, true}) {
            bool lock = before;
            EXPECT_TRUE(combo.GetItemLock(index, lock));
            EXPECT_EQ(lock, before);
        }
    }
    EXPECT_TRUE(combo.SetItemLock(L"one", true, true));
    EXPECT_TRUE(combo.SetItemLock(L"nowhere", true, true));
    EXPECT_TRUE(combo.SetItemLock(static_cast<const wchar_t*>(nullptr), true, true));
    CMFCRibbonMultiCombo::rowInfo info;
    EXPECT_TRUE(combo.GetItemInfo(0, info));
    EXPECT_EQ(info.clr, red);
    EXPECT_TRUE(info.light);
    EXPECT_EQ(LightsOf(combo), "1??");
}

} // namespace

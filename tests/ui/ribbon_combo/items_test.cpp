#include <afxribboncombobox.h>

#include <climits>
#include <string>

#include "tests/support/message_pump.h"
#include "tests/ui/ribbon_combo/combo_fixture.h"

namespace {

/// A combo box outside any ribbon: A, B, C, B.
class ComboItems : public ::testing::Test {
protected:
    ComboItems() {
        combo.AddItem(L"A", 10);
        combo.AddItem(L"B", 20);
        combo.AddItem(L"C", 30);
        combo.AddItem(L"B", 20);
    }
    std::wstring Texts() const {
        std::wstring texts;
        for (int i = 0; i < combo.GetCount(); ++i) {
            texts += combo.GetItem(i);
        }
        return texts;
    }
    CMFCRibbonComboBox combo{1, FALSE};
};

TEST_F(ComboItems, AreAppendedInOrderAndMayBeEqual) {
    EXPECT_EQ(combo.GetCount(), 4);
    EXPECT_EQ(Texts(), L"ABCB");
    EXPECT_EQ(combo.AddItem(L"", 40), 4);
    EXPECT_EQ(combo.AddItem(L"A"), 5);
    EXPECT_EQ(combo.GetItemData(4), 40u);
    EXPECT_EQ(combo.GetItemData(5), 0u);
    EXPECT_STREQ(combo.GetItem(4), L"");
}

TEST_F(ComboItems, ANullTextAddsNothing) {
    EXPECT_EQ(combo.AddItem(nullptr, 1), -1);
    EXPECT_EQ(combo.GetCount(), 4);
}

TEST_F(ComboItems, AnIndexWithoutAnItemHasNoTextAndNoData) {
    for (const int index : {-1, 4, INT_MAX, INT_MIN}) {
        EXPECT_EQ(combo.GetItem(index), nullptr) << index;
        EXPECT_EQ(combo.GetItemData(index), 0u) << index;
    }
}

TEST_F(ComboItems, AreFoundByTheirExactTextTheFirstOne) {
    EXPECT_EQ(combo.FindItem(L"A"), 0);
    EXPECT_EQ(combo.FindItem(L"B"), 1);
    EXPECT_EQ(combo.FindItem(L"b"), -1);
    EXPECT_EQ(combo.FindItem(L"AB"), -1);
    EXPECT_EQ(combo.FindItem(L""), -1);
    EXPECT_EQ(combo.FindItem(nullptr), -1);
    combo.AddItem(L"");
    EXPECT_EQ(combo.FindItem(L""), 4);
}

TEST_F(ComboItems, AreDeletedByIndexDataAndText) {
    EXPECT_TRUE(combo.DeleteItem(0));
    EXPECT_EQ(Texts(), L"BCB");
    EXPECT_TRUE(combo.DeleteItem(L"B"));
    EXPECT_EQ(Texts(), L"CB");
    EXPECT_TRUE(combo.DeleteItem(DWORD_PTR{20}));
    EXPECT_EQ(Texts(), L"C");
}

TEST_F(ComboItems, WhatIsNotThereIsNotDeleted) {
    for (const int index : {-1, 4, INT_MAX, INT_MIN}) {
        EXPECT_FALSE(combo.DeleteItem(index)) << index;
    }
    EXPECT_FALSE(combo.DeleteItem(L"D"));
    EXPECT_FALSE(combo.DeleteItem(static_cast<LPCTSTR>(nullptr)));
    EXPECT_FALSE(combo.DeleteItem(DWORD_PTR{99}));
    EXPECT_EQ(Texts(), L"ABCB");
}

TEST_F(ComboItems, NothingIsSelectedAtFirst) {
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_EQ(combo.GetEditText(), L"");
}

TEST_F(ComboItems, AreSelectedByIndexDataAndTextAndTheTextFollows) {
    EXPECT_TRUE(combo.SelectItem(2));
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(combo.GetEditText(), L"C");
    EXPECT_TRUE(combo.SelectItem(DWORD_PTR{20}));
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_TRUE(combo.SelectItem(3));
    EXPECT_EQ(combo.GetCurSel(), 3);
    EXPECT_TRUE(combo.SelectItem(L"A"));
    EXPECT_EQ(combo.GetCurSel(), 0);
    EXPECT_EQ(combo.GetEditText(), L"A");
}

TEST_F(ComboItems, WhatIsNotThereIsNotSelectedAndTheSelectionStays) {
    combo.SelectItem(2);
    for (const int index : {-2, 4, INT_MAX, INT_MIN}) {
        EXPECT_FALSE(combo.SelectItem(index)) << index;
    }
    EXPECT_FALSE(combo.SelectItem(L"c"));
    EXPECT_FALSE(combo.SelectItem(static_cast<LPCTSTR>(nullptr)));
    EXPECT_FALSE(combo.SelectItem(DWORD_PTR{99}));
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(combo.GetEditText(), L"C");
}

TEST_F(ComboItems, MinusOneSelectsNone) {
    combo.SelectItem(2);
    EXPECT_TRUE(combo.SelectItem(-1));
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_EQ(combo.GetEditText(), L"");
}

TEST_F(ComboItems, TheSelectionStaysOnItsItemWhenOthersGo) {
    combo.SelectItem(2);
    combo.DeleteItem(3);
    EXPECT_EQ(combo.GetCurSel(), 2);
    combo.DeleteItem(0);
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(combo.GetEditText(), L"C");
    combo.DeleteItem(1);
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_EQ(combo.GetEditText(), L"");
}

TEST_F(ComboItems, TypedTextStaysWhenItsItemGoes) {
    CMFCRibbonComboBox edit(1, TRUE);
    edit.AddItem(L"A");
    edit.SelectItem(0);
    edit.DeleteItem(0);
    EXPECT_EQ(edit.GetCurSel(), -1);
    EXPECT_EQ(edit.GetEditText(), L"A");
}

TEST_F(ComboItems, RemovingAllClearsTextAndSelection) {
    combo.SelectItem(2);
    combo.RemoveAllItems();
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_EQ(combo.GetEditText(), L"");
    EXPECT_FALSE(combo.SelectItem(0));
    EXPECT_TRUE(combo.SelectItem(-1));
    EXPECT_EQ(combo.AddItem(L"new"), 0);
}

TEST_F(ComboItems, LongAndBrokenTextsAreKeptWhole) {
    const std::wstring longText(100000, L'x');
    const std::wstring broken = L"first\r\nsecond\tthird";
    combo.AddItem(longText.c_str());
    combo.AddItem(broken.c_str());
    EXPECT_TRUE(combo.SelectItem(longText.c_str()));
    EXPECT_EQ(combo.GetEditText(), longText.c_str());
    EXPECT_TRUE(combo.SelectItem(5));
    EXPECT_EQ(combo.GetEditText(), broken.c_str());
}

TEST_F(ComboItems, TheConstructorsArgumentsCount) {
    EXPECT_FALSE(combo.HasEditBox());
    EXPECT_EQ(combo.GetID(), 1u);
    CMFCRibbonComboBox usual(7);
    EXPECT_TRUE(usual.HasEditBox());
    EXPECT_GT(usual.GetWidth(), 50);
    CMFCRibbonComboBox wide(7, TRUE, 200, L"Label");
    EXPECT_EQ(wide.GetWidth(), 200);
    EXPECT_STREQ(wide.GetText(), L"Label");
    EXPECT_FALSE(wide.IsResizeDropDownList());
    wide.EnableDropDownListResize(TRUE);
    EXPECT_TRUE(wide.IsResizeDropDownList());
    wide.EnableDropDownListResize();
    EXPECT_FALSE(wide.IsResizeDropDownList());
}

TEST_F(ComboItems, TheListHasAUsualHeightUntilOneIsSet) {
    const int usual = combo.GetDropDownHeight();
    EXPECT_GT(usual, 100);
    combo.SetDropDownHeight(560);
    EXPECT_EQ(combo.GetDropDownHeight(), 560);
    combo.SetDropDownHeight(0);
    EXPECT_EQ(combo.GetDropDownHeight(), usual);
}

TEST_F(ComboItems, ACopyMadeByNameHasEverything) {
    combo.SelectItem(3);
    combo.SetDropDownHeight(321);
    combo.EnableDropDownListResize(TRUE);
    combo.SetWidth(77);
    std::unique_ptr<CObject> object(combo.GetRuntimeClass()->CreateObject());
    auto* copy = DYNAMIC_DOWNCAST(CMFCRibbonComboBox, object.get());
    ASSERT_NE(copy, nullptr);
    EXPECT_TRUE(copy->HasEditBox());
    copy->AddItem(L"goes");
    copy->CopyFrom(combo);
    ASSERT_EQ(copy->GetCount(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_STREQ(copy->GetItem(i), combo.GetItem(i));
        EXPECT_EQ(copy->GetItemData(i), combo.GetItemData(i));
    }
    EXPECT_EQ(copy->GetCurSel(), 3);
    EXPECT_EQ(copy->GetEditText(), L"B");
    EXPECT_EQ(copy->GetDropDownHeight(), 321);
    EXPECT_EQ(copy->GetWidth(), 77);
    EXPECT_FALSE(copy->HasEditBox());
    EXPECT_TRUE(copy->IsResizeDropDownList());
    copy->CopyFrom(*copy);
    EXPECT_EQ(copy->GetCount(), 4);
}

TEST_F(RibbonComboTest, CopyingDestroysTheTargetsEditWindow) {
    SpyCombo& edit = Edit();
    ASSERT_NE(edit.GetEditWnd(), nullptr);
    edit.CopyFrom(Plain());
    EXPECT_EQ(edit.GetEditWnd(), nullptr);
    EXPECT_FALSE(edit.HasEditBox());
}

TEST_F(RibbonComboTest, ASelectionShowsInEveryCopy) {
    AddToQuickAccess(kPlain);
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> copies;
    Bar().GetElementsByID(kPlain, copies);
    ASSERT_EQ(copies.GetSize(), 2);
    Plain().SelectItem(4);
    for (INT_PTR i = 0; i < copies.GetSize(); ++i) {
        auto& copy = static_cast<CMFCRibbonComboBox&>(*copies[i]);
        EXPECT_EQ(copy.GetCurSel(), 4);
        EXPECT_EQ(copy.GetEditText(), L"Item 4");
    }
    static_cast<CMFCRibbonComboBox&>(*copies[1]).SelectItem(L"Item 7");
    EXPECT_EQ(Plain().GetCurSel(), 7);
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(RibbonComboTest, ACopyWithoutTheItemShowsItsText) {
    AddToQuickAccess(kPlain);
    Plain().AddItem(L"Later");
    Plain().SelectItem(10);
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> copies;
    Bar().GetElementsByID(kPlain, copies);
    for (INT_PTR i = 0; i < copies.GetSize(); ++i) {
        EXPECT_EQ(static_cast<CMFCRibbonComboBox&>(*copies[i]).GetEditText(), L"Later");
    }
}

} // namespace

// What the window combos keep for their items.
#include "tests/ui/window_combos/combo_host.h"

namespace {

bool HasWork(const CWnd& window) { return ::GetUpdateRect(window.m_hWnd, nullptr, FALSE) != FALSE; }

class CheckStates : public testing::Test {
protected:
    void SetUp() override {
        host.Place(combo);
        AddColours(combo);
    }
    std::vector<int> Checks() const {
        std::vector<int> checks;
        for (int i = 0; i < combo.GetCount(); ++i) {
            checks.push_back(combo.GetCheck(i));
        }
        return checks;
    }
    ComboHost host;
    CCheckComboBox combo;
};

using Checks_ = std::vector<int>;

TEST_F(CheckStates, NewItemsAreUnchecked) { EXPECT_EQ(Checks(), (Checks_{0, 0, 0, 0, 0})); }

TEST_F(CheckStates, SetCheckAnswersTheStateBefore) {
    EXPECT_EQ(combo.SetCheck(1, 1, 0), 0);
    EXPECT_EQ(combo.SetCheck(1, 0, 0), 1);
    EXPECT_EQ(combo.GetCheck(1), 0);
}

TEST_F(CheckStates, AnyOtherValueThanZeroChecks) {
    combo.SetCheck(1, 7, 0);
    EXPECT_EQ(combo.GetCheck(1), 1);
    EXPECT_EQ(combo.SetCheck(1, -1, 0), 1);
}

TEST_F(CheckStates, AnIndexOutsideTheListIsIgnoredAndReadAsZero) {
    EXPECT_EQ(combo.SetCheck(5, 1, 1), 0);
    EXPECT_EQ(combo.SetCheck(-1, 1, 1), 0);
    EXPECT_EQ(combo.GetCheck(5), 0);
    EXPECT_EQ(combo.GetCheck(-1), 0);
    EXPECT_EQ(Checks(), (Checks_{0, 0, 0, 0, 0}));
}

TEST_F(CheckStates, CheckingACheckedItemAnswersOneAndDoesNotInvalidate) {
    combo.SetCheck(0, 1, 1);
    combo.UpdateWindow();
    ASSERT_FALSE(HasWork(combo));
    EXPECT_EQ(combo.SetCheck(0, 1, 1), 1);
    EXPECT_FALSE(HasWork(combo));
}

TEST_F(CheckStates, AChangeInvalidatesTheComboOnlyWhenARedrawIsAskedFor) {
    combo.UpdateWindow();
    ASSERT_FALSE(HasWork(combo));
    combo.SetCheck(0, 1, 0);
    EXPECT_FALSE(HasWork(combo));
    combo.SetCheck(0, 0, 1);
    EXPECT_TRUE(HasWork(combo));
}

TEST_F(CheckStates, CheckAllSetsEveryItem) {
    combo.SetCheck(2, 1, 0);
    combo.CheckAll(1);
    EXPECT_EQ(Checks(), (Checks_{1, 1, 1, 1, 1}));
    combo.CheckAll(0);
    EXPECT_EQ(Checks(), (Checks_{0, 0, 0, 0, 0}));
}

TEST_F(CheckStates, CheckAllInvalidatesTheComboForAChangeOnly) {
    combo.CheckAll(1);
    combo.UpdateWindow();
    ASSERT_FALSE(HasWork(combo));
    combo.CheckAll(1);
    EXPECT_FALSE(HasWork(combo));
    combo.CheckAll(0);
    RECT work{};
    RECT client{};
    ::GetUpdateRect(combo.m_hWnd, &work, FALSE);
    combo.GetClientRect(&client);
    EXPECT_TRUE(::EqualRect(&work, &client)) << "the whole combo";
}

TEST_F(CheckStates, DeletingItemTwoMovesTheStatesOfThreeAndFourDown) {
    combo.SetCheck(2, 1, 0);
    combo.SetCheck(4, 1, 0);
    combo.DeleteString(2);
    EXPECT_EQ(Checks(), (Checks_{0, 0, 0, 1}));
}

TEST_F(CheckStates, DeletingWithoutSuchAnItemMovesNothing) {
    combo.SetCheck(4, 1, 0);
    combo.DeleteString(5);
    EXPECT_EQ(Checks(), (Checks_{0, 0, 0, 0, 1}));
}

TEST_F(CheckStates, AnInsertedItemMovesTheStatesBehindIt) {
    combo.SetCheck(1, 1, 0);
    combo.InsertString(1, L"grey");
    EXPECT_EQ(Checks(), (Checks_{0, 0, 1, 0, 0, 0}));
}

TEST_F(CheckStates, MessagesAndMembersKeepTheStatesAlike) {
    combo.SetCheck(4, 1, 0);
    combo.SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"grey"));
    combo.SendMessage(CB_DELETESTRING, 0, 0);
    EXPECT_EQ(Checks(), (Checks_{0, 0, 0, 1, 0}));
    combo.SendMessage(CB_RESETCONTENT, 0, 0);
    combo.SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"red"));
    EXPECT_EQ(Checks(), (Checks_{0}));
}

TEST_F(CheckStates, EmptyingTheListForgetsTheStates) {
    combo.CheckAll(1);
    combo.ResetContent();
    EXPECT_EQ(combo.GetCheck(0), 0);
    AddColours(combo);
    EXPECT_EQ(Checks(), (Checks_{0, 0, 0, 0, 0}));
}

TEST(SortedCheckStates, AnItemThatSortsInBetweenTakesItsOwnPlace) {
    ComboHost host;
    CCheckComboBox combo;
    host.Place(combo, CBS_DROPDOWNLIST | CBS_SORT);
    combo.AddString(L"b");
    combo.SetCheck(0, 1, 0);
    combo.AddString(L"a");
    EXPECT_EQ(combo.GetCheck(0), 0);
    EXPECT_EQ(combo.GetCheck(1), 1);
}

TEST(CheckComboOfATemplate, HasAStateForEachItemThatItHadBefore) {
    ComboHost host;
    const HWND made =
        ::CreateWindowExW(0, L"ComboBox", L"", WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, 10,
                          10, 200, 190, host.m_hWnd, nullptr, nullptr, nullptr);
    for (const wchar_t* text : {L"red", L"green", L"blue", L"white", L"black"}) {
        ::SendMessageW(made, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    }
    CCheckComboBox combo;
    ASSERT_TRUE(combo.SubclassWindow(made));
    EXPECT_EQ(combo.GetCheck(4), 0);
    EXPECT_EQ(combo.SetCheck(4, 1, 1), 0);
    combo.DeleteString(0);
    EXPECT_EQ(combo.GetCheck(3), 1);
    combo.InsertString(0, L"grey");
    EXPECT_EQ(combo.GetCheck(4), 1);
    combo.CheckAll(1);
    EXPECT_EQ(combo.GetCheck(0), 1);
}

TEST(CheckComboWithoutWindow, HasNoItemsAndNoStates) {
    CCheckComboBox combo;
    EXPECT_EQ(combo.SetCheck(0, 1, 1), 0);
    EXPECT_EQ(combo.GetCheck(0), 0);
    combo.CheckAll(1);
}

template <class Combo>
class ItemColours : public testing::Test {};
using Coloured = testing::Types<CMultiCombo, CVesMultiCombo>;
TYPED_TEST_SUITE(ItemColours, Coloured);

TYPED_TEST(ItemColours, AnIndexWithoutAnEntryHasNone) {
    TypeParam combo;
    COLORREF color = 77;
    EXPECT_EQ(combo.GetItemColor(3, color), 0);
    EXPECT_EQ(color, 77u);
}

TYPED_TEST(ItemColours, AnyIndexFromZeroCanHaveOne) {
    TypeParam combo;
    combo.SetItemColor(0, RGB(1, 2, 3));
    combo.SetItemColor(5000, RGB(4, 5, 6));
    combo.SetItemColor(-1, RGB(7, 8, 9));
    COLORREF color = 0;
    EXPECT_EQ(combo.GetItemColor(0, color), 1);
    EXPECT_EQ(color, static_cast<COLORREF>(RGB(1, 2, 3)));
    EXPECT_EQ(combo.GetItemColor(5000, color), 1);
    EXPECT_EQ(color, static_cast<COLORREF>(RGB(4, 5, 6)));
    EXPECT_EQ(combo.GetItemColor(-1, color), 0);
}

TEST(MultiComboColours, ClearingForgetsAll) {
    CMultiCombo combo;
    combo.SetItemColor(2, RGB(1, 2, 3));
    combo.ClearItemColor();
    COLORREF color = 0;
    EXPECT_EQ(combo.GetItemColor(2, color), 0);
}

TEST(WindowComboClasses, AreMadeByNameAndOwnerDrawnWithStrings) {
    for (CRuntimeClass* kind :
         {RUNTIME_CLASS(CCheckComboBox), RUNTIME_CLASS(CMultiCombo), RUNTIME_CLASS(CVesMultiCombo)}) {
        ComboHost host;
        const std::unique_ptr<CComboBox> combo(static_cast<CComboBox*>(kind->CreateObject()));
        ASSERT_TRUE(combo->Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 100, 100), &host, 1));
        EXPECT_EQ(combo->GetStyle() & (CBS_OWNERDRAWFIXED | CBS_HASSTRINGS),
                  static_cast<DWORD>(CBS_OWNERDRAWFIXED | CBS_HASSTRINGS))
            << kind->m_lpszClassName;
    }
}

} // namespace

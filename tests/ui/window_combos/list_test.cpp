// The drop-down list of the check combo.
#include "tests/ui/window_combos/combo_host.h"

namespace {

class OpenList : public testing::Test {
protected:
    void SetUp() override {
        host.Place(combo);
        AddColours(combo);
        combo.SetCurSel(1);
        combo.SetFocus();
        Open();
    }
    void Open() {
        combo.ShowDropDown(TRUE);
        list = ListOf(combo);
        ::UpdateWindow(list);
        // The list asks for its colours when it is painted; a driver without a screen may paint nothing by itself.
        ::RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        ASSERT_TRUE(combo.GetDroppedState());
        host.heard.clear();
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
    HWND list = nullptr;
    Pointer mouse;
};

TEST_F(OpenList, AClickOnABoxTogglesKeepsTheListOpenAndTells) {
    mouse.Click(list, InRow(list, 2, 5));
    EXPECT_EQ(combo.GetCheck(2), 1);
    EXPECT_TRUE(combo.GetDroppedState());
    EXPECT_EQ(host.heard, (Heard{Command(CBN_SELCHANGE), L"check blue 1", Command(0), Command(CBN_SELCHANGE)}));
}

TEST_F(OpenList, SeveralBoxesAreTickedInOneOpening) {
    mouse.Click(list, InRow(list, 0, 5));
    mouse.Click(list, InRow(list, 3, 5));
    mouse.Click(list, InRow(list, 4, 5));
    EXPECT_EQ(Checks(), (std::vector<int>{1, 0, 0, 1, 1}));
    EXPECT_TRUE(combo.GetDroppedState());
}

TEST_F(OpenList, AClickOnATextChoosesAndCloses) {
    mouse.Click(list, InRow(list, 3, 80));
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(combo.GetCurSel(), 3);
    EXPECT_EQ(Checks(), (std::vector<int>{0, 0, 0, 0, 0}));
    ASSERT_FALSE(host.heard.empty());
    EXPECT_EQ(host.heard.front(), Command(CBN_SELCHANGE));
}

TEST_F(OpenList, SpaceTogglesTheCurrentItem) {
    combo.SendMessage(WM_CHAR, L' ', MAKELPARAM(1, 0));
    EXPECT_EQ(combo.GetCheck(1), 1);
    EXPECT_TRUE(combo.GetDroppedState());
    EXPECT_EQ(host.heard, (Heard{L"check green 1", Command(0)}));
}

TEST_F(OpenList, ARepeatedSpaceDoesNothing) {
    combo.SendMessage(WM_CHAR, L' ', MAKELPARAM(1, KF_REPEAT));
    EXPECT_EQ(combo.GetCheck(1), 0);
    EXPECT_EQ(host.heard, Heard());
}

TEST_F(OpenList, ADoubleClickOnAnUncheckedBoxChecksAll) {
    mouse.DoubleClick(list, InRow(list, 2, 5));
    EXPECT_EQ(Checks(), (std::vector<int>{1, 1, 1, 1, 1}));
    EXPECT_EQ(combo.GetCurSel(), 2) << "the clicked item";
    EXPECT_TRUE(combo.GetDroppedState());
    const Heard all(host.heard.end() - 6, host.heard.end());
    EXPECT_EQ(all, (Heard{Command(0), L"check red 1", L"check green 1", L"check blue 1", L"check white 1",
                          L"check black 1"}));
}

TEST_F(OpenList, ADoubleClickOnACheckedBoxUnchecksAll) {
    combo.CheckAll(1);
    mouse.DoubleClick(list, InRow(list, 2, 5));
    EXPECT_EQ(Checks(), (std::vector<int>{0, 0, 0, 0, 0}));
}

TEST_F(OpenList, TheItemUnderThePointCountsFromTheTopOfAScrolledList) {
    combo.ShowDropDown(FALSE);
    for (int i = 0; i < 60; ++i) {
        combo.AddString(L"more");
    }
    Open();
    ::SendMessageW(list, LB_SETTOPINDEX, 40, 0);
    const auto top = static_cast<int>(::SendMessageW(list, LB_GETTOPINDEX, 0, 0));
    ASSERT_GT(top, 0);
    mouse.Click(list, InRow(list, top + 1, 5));
    EXPECT_EQ(combo.GetCheck(top + 1), 1);
}

TEST_F(OpenList, AHostsChangePaintsTheListAnew) {
    ::RedrawWindow(list, nullptr, nullptr, RDW_VALIDATE | RDW_NOERASE);
    ASSERT_FALSE(::GetUpdateRect(list, nullptr, FALSE));
    combo.SetCheck(3, 1, 1);
    EXPECT_TRUE(::GetUpdateRect(list, nullptr, FALSE));
}

TEST_F(OpenList, TheListOfASecondComboWorksAfterTheFirstOne) {
    mouse.Click(list, InRow(list, 2, 5));
    combo.ShowDropDown(FALSE);
    CCheckComboBox other;
    ASSERT_TRUE(other.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(220, 10, 380, 200), &host, 701));
    AddColours(other);
    other.ShowDropDown(TRUE);
    const HWND second = ListOf(other);
    ::RedrawWindow(second, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    mouse.Click(second, InRow(second, 4, 5));
    EXPECT_EQ(other.GetCheck(4), 1);
    EXPECT_EQ(combo.GetCheck(4), 0);
    EXPECT_EQ(combo.GetCheck(2), 1);
}

TEST_F(OpenList, AnotherKindOfComboIsLeftAlone) {
    CMultiCombo plain;
    ASSERT_TRUE(plain.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(220, 10, 380, 200), &host, 701));
    AddColours(plain);
    plain.ShowDropDown(TRUE);
    const HWND second = ListOf(plain);
    mouse.Click(second, InRow(second, 4, 5));
    EXPECT_FALSE(plain.GetDroppedState());
    EXPECT_EQ(plain.GetCurSel(), 4);
    EXPECT_EQ(combo.GetCheck(4), 0);
}

TEST(LightLists, AreAtLeastAsWideAsTheirWidestItem) {
    ComboHost host;
    CMultiCombo combo;
    host.Place(combo);
    combo.AddString(L"an item whose text is by far longer than the closed combo is wide, with all its marks");
    combo.ShowDropDown(TRUE);
    EXPECT_GT(combo.GetDroppedWidth(), 300);
}

} // namespace

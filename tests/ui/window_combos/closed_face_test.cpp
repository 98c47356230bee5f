// Mouse and keyboard on a combo whose list is closed.
#include "tests/ui/window_combos/combo_host.h"

#include "combos/item_bits.h"

namespace {

template <class Combo>
class Face : public testing::Test {
protected:
    void SetUp() override {
        host.Place(combo);
        AddColours(combo);
        combo.SetCurSel(1);
        host.heard.clear();
    }
    void ClickAt(int x) { mouse.Click(combo.m_hWnd, {x, 10}); }
    void PressAt(int x) { combo.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, 10)); }
    int ZoneWidth() const {
        TEXTMETRIC metrics{};
        HDC dc = ::GetDC(combo.m_hWnd);
        const auto font = reinterpret_cast<HFONT>(::SendMessageW(combo.m_hWnd, WM_GETFONT, 0, 0));
        const HGDIOBJ before = ::SelectObject(dc, font ? font : ::GetStockObject(SYSTEM_FONT));
        ::GetTextMetricsW(dc, &metrics);
        ::SelectObject(dc, before);
        ::ReleaseDC(combo.m_hWnd, dc);
        return static_cast<int>(metrics.tmHeight + metrics.tmExternalLeading) + 6;
    }
    ComboHost host;
    Combo combo;
    Pointer mouse;
};

using CheckFace = Face<CCheckComboBox>;

TEST_F(CheckFace, APressOnTheBoxTogglesAndTellsOwnerThenParent) {
    ClickAt(5);
    EXPECT_EQ(combo.GetCheck(1), 1);
    EXPECT_FALSE(combo.GetDroppedState());
    ClickAt(5);
    EXPECT_EQ(combo.GetCheck(1), 0);
    EXPECT_EQ(host.heard, (Heard{L"check green 1", Command(0), L"check green 0", Command(0)}));
}

TEST_F(CheckFace, TheZoneEndsSixPixelsBehindTheHeightOfTheFont) {
    PressAt(ZoneWidth() - 1);
    EXPECT_EQ(combo.GetCheck(1), 1);
    EXPECT_FALSE(combo.GetDroppedState());
    PressAt(ZoneWidth());
    EXPECT_EQ(combo.GetCheck(1), 1);
    EXPECT_TRUE(combo.GetDroppedState());
}

TEST_F(CheckFace, TheSecondClickOfADoubleClickTogglesBack) {
    mouse.DoubleClick(combo.m_hWnd, {5, 10});
    EXPECT_EQ(combo.GetCheck(1), 0);
    EXPECT_EQ(host.heard, (Heard{L"check green 1", Command(0), L"check green 0", Command(0)}));
}

TEST_F(CheckFace, NothingHappensWithoutASelection) {
    combo.SetCurSel(-1);
    ClickAt(5);
    EXPECT_EQ(host.heard, Heard());
    EXPECT_FALSE(combo.GetDroppedState());
}

TEST_F(CheckFace, SpaceTogglesTheSelectedItem) {
    combo.SetFocus();
    host.heard.clear();
    Keys keys(combo.m_hWnd);
    keys.Type(L" ");
    EXPECT_EQ(combo.GetCheck(1), 1);
    EXPECT_EQ(host.heard, (Heard{L"check green 1", Command(0)}));
}

TEST_F(CheckFace, ARepeatedSpaceDoesNothing) {
    combo.SendMessage(WM_CHAR, L' ', MAKELPARAM(1, KF_REPEAT));
    EXPECT_EQ(combo.GetCheck(1), 0);
    EXPECT_EQ(host.heard, Heard());
}

TEST_F(CheckFace, AnotherCharacterStillFindsAnItem) {
    combo.SendMessage(WM_CHAR, L'w', MAKELPARAM(1, 0));
    EXPECT_EQ(combo.GetCurSel(), 3);
}

TEST_F(CheckFace, TheOwnerHearsOfChecksAndTheParentOfTheCommand) {
    ComboHost owner;
    combo.SetOwner(&owner);
    PressAt(5); // the owner may lie over the combo
    EXPECT_EQ(owner.heard, (Heard{L"check green 1"}));
    EXPECT_EQ(host.heard, (Heard{Command(0)}));
}

using MultiFace = Face<CMultiCombo>;

int LightLeft(const CComboBox& combo) {
    COMBOBOXINFO info{};
    combo.GetComboBoxInfo(&info);
    return static_cast<int>(info.rcItem.left) + 3 + 15 + 3;
}

TEST_F(MultiFace, APressOnTheSwatchSendsIndexAndColour) {
    combo.SetItemColor(1, RGB(10, 20, 30));
    ClickAt(8);
    EXPECT_EQ(host.heard, (Heard{L"colour 1 " + std::to_wstring(RGB(10, 20, 30))}));
    EXPECT_FALSE(combo.GetDroppedState());
}

TEST_F(MultiFace, TheColourOfAnItemWithoutOneIsZero) {
    ClickAt(8);
    EXPECT_EQ(host.heard, (Heard{L"colour 1 0"}));
}

TEST_F(MultiFace, TheComboIsPaintedAnewAfterThePick) {
    combo.UpdateWindow();
    ASSERT_FALSE(::GetUpdateRect(combo.m_hWnd, nullptr, FALSE));
    PressAt(8);
    EXPECT_TRUE(::GetUpdateRect(combo.m_hWnd, nullptr, FALSE));
}

TEST_F(MultiFace, APressOnTheLightAsksForTheOppositeAndChangesNothing) {
    host.answer = 1;
    ClickAt(LightLeft(combo));
    combo.SetItemData(1, 0xf4);
    ClickAt(LightLeft(combo) + 5);
    EXPECT_EQ(host.heard, (Heard{L"light green 1", L"light green 0"}));
    EXPECT_EQ(combo.GetItemData(1), 0xf4u);
}

TEST_F(MultiFace, TheSwatchReachesUpToTheLight) {
    PressAt(LightLeft(combo) - 1);
    EXPECT_EQ(host.heard, (Heard{L"colour 1 0"}));
}

TEST_F(MultiFace, TheMarksAreTheFirstFortySixPixels) {
    PressAt(45);
    EXPECT_EQ(host.heard, (Heard{L"light green 1"}));
    EXPECT_FALSE(combo.GetDroppedState());
    PressAt(46);
    EXPECT_TRUE(combo.GetDroppedState());
}

TEST_F(MultiFace, NothingHappensWithoutASelection) {
    combo.SetCurSel(-1);
    ClickAt(8);
    ClickAt(30);
    EXPECT_EQ(host.heard, Heard());
    EXPECT_FALSE(combo.GetDroppedState());
}

using LightFace = Face<CVesMultiCombo>;

TEST_F(LightFace, APressFlipsTheLightFirstAndTellsAfterwards) {
    DWORD_PTR dataWhenTold = 0;
    host.onMessage = [&] { dataWhenTold = combo.GetItemData(1); };
    ClickAt(10);
    EXPECT_EQ(dataWhenTold, 0x4u);
    ClickAt(10);
    EXPECT_EQ(combo.GetItemData(1), 0u);
    EXPECT_EQ(host.heard, (Heard{L"ves green 1", L"ves green 0"}));
}

TEST_F(LightFace, TheLightReachesFromThreeToTwentySeven) {
    PressAt(3);
    PressAt(26);
    EXPECT_EQ(host.heard, (Heard{L"ves green 1", L"ves green 0"}));
    EXPECT_FALSE(combo.GetDroppedState());
    PressAt(27);
    EXPECT_TRUE(combo.GetDroppedState());
}

TEST_F(LightFace, LeftOfTheLightTheListOpens) {
    PressAt(2);
    EXPECT_TRUE(combo.GetDroppedState());
}

TEST_F(LightFace, NothingHappensWithoutASelection) {
    combo.SetCurSel(-1);
    ClickAt(10);
    EXPECT_EQ(host.heard, Heard());
    EXPECT_FALSE(combo.GetDroppedState());
}

} // namespace

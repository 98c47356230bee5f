// What a host compiles against: names, access, argument types. Nearly all of it fails when this file is compiled.
#include "toolbar_combos.h"
#include "window_combos.h"

#include <gtest/gtest.h>

#include <concepts>
#include <type_traits>

namespace {

using Text = const wchar_t*;

// ---- in windows

using Check = CCheckComboBox;
static_assert(std::is_same_v<decltype(&Check::SetCheck), int (Check::*)(int, int, int)>);
static_assert(std::is_same_v<decltype(&Check::GetCheck), int (Check::*)(int) const>);
static_assert(std::is_same_v<decltype(&Check::CheckAll), void (Check::*)(int)>);

template <class Combo>
concept WindowCombo = std::is_base_of_v<CComboBox, Combo> && std::is_default_constructible_v<Combo> &&
    std::is_same_v<decltype(&Combo::Create), BOOL (Combo::*)(DWORD, const RECT&, CWnd*, UINT)> &&
    std::is_same_v<decltype(&Combo::DrawItem), void (Combo::*)(LPDRAWITEMSTRUCT)> &&
    std::is_same_v<decltype(&Combo::MeasureItem), void (Combo::*)(LPMEASUREITEMSTRUCT)> &&
    std::is_same_v<decltype(&Combo::OnLButtonDown), void (Combo::*)(UINT, CPoint)>;
static_assert(WindowCombo<CCheckComboBox> && WindowCombo<CMultiCombo> && WindowCombo<CVesMultiCombo>);

template <class Combo>
concept ColouredCombo = std::is_same_v<decltype(&Combo::SetItemColor), void (Combo::*)(int, COLORREF)> &&
    std::is_same_v<decltype(&Combo::GetItemColor), int (Combo::*)(int, COLORREF&) const>;
static_assert(ColouredCombo<CMultiCombo> && ColouredCombo<CVesMultiCombo> && !ColouredCombo<CCheckComboBox>);
static_assert(std::is_same_v<decltype(&CMultiCombo::ClearItemColor), void (CMultiCombo::*)()>);

/// The handlers that a derived combo may call.
struct DerivedCheck : CCheckComboBox {
    using CCheckComboBox::OnAddString;
    using CCheckComboBox::OnChar;
    using CCheckComboBox::OnCtlColorListBox;
    using CCheckComboBox::OnDeleteString;
    using CCheckComboBox::OnDropDown;
    using CCheckComboBox::OnKeyDown;
    using CCheckComboBox::OnLButtonDblClk;
    using CCheckComboBox::OnResetContent;
};
template <class Combo>
struct DerivedMulti : Combo {
    using Combo::OnCtlColorListBox;
    using Combo::OnDropdown;
};
static_assert(std::is_default_constructible_v<DerivedCheck> &&
              std::is_default_constructible_v<DerivedMulti<CMultiCombo>> &&
              std::is_default_constructible_v<DerivedMulti<CVesMultiCombo>>);

// ---- on toolbars

template <class Button>
concept ToolBarCombo = std::is_base_of_v<CMFCToolBarComboBoxButton, Button> &&
    std::is_default_constructible_v<Button> && std::is_constructible_v<Button, UINT, int, DWORD, int>;
template <class Button>
concept MarkedButton =
    ToolBarCombo<Button> && std::is_same_v<decltype(&Button::OnClick), BOOL (Button::*)(CWnd*, BOOL)> &&
    std::is_same_v<decltype(&Button::CopyFrom), void (Button::*)(const CMFCToolBarButton&)>;
static_assert(MarkedButton<CMFCCheckCombo> && MarkedButton<CMFCMultiCombo> && MarkedButton<CMFCMultiCombo2>);
static_assert(ToolBarCombo<CMFCToolBarComboBoxButtonEx>);
static_assert(std::is_same_v<decltype(&CMFCToolBarComboBoxButtonEx::SetIsRibbonButton),
                             void (CMFCToolBarComboBoxButtonEx::*)(int)>);

template <class Button>
concept CheckedButton = requires(Button& button, const Button& constant, int index, Text text) {
    { button.SetCheck(index, 1, 1) } -> std::same_as<int>;
    { button.SetCheck(text, 1, 1) } -> std::same_as<int>;
    constant.GetCheck(index);
    constant.GetCheck(text);
};
template <class Button>
concept LitButton = requires(Button& button, const Button& constant, int index, Text text, COLORREF color) {
    { button.SetLightOn(index, true, true) } -> std::same_as<void>;
    { button.SetLightOn(text, true, true) } -> std::same_as<void>;
    { constant.GetLightOn(index) } -> std::same_as<bool>;
    { constant.GetLightOn(text) } -> std::same_as<bool>;
    { button.SetItemColor(index, color, true) } -> std::same_as<void>;
    { button.SetItemColor(text, color, true) } -> std::same_as<void>;
};
template <class Button>
concept LockedButton = requires(Button& button, const Button& constant, int index, Text text) {
    { button.SetItemLock(index, true, true) } -> std::same_as<void>;
    { button.SetItemLock(text, true, true) } -> std::same_as<void>;
    { constant.GetItemLock(index) } -> std::same_as<bool>;
    { constant.GetItemLock(text) } -> std::same_as<bool>;
};
static_assert(CheckedButton<CMFCCheckCombo> && !LitButton<CMFCCheckCombo>);
static_assert(LitButton<CMFCMultiCombo> && LockedButton<CMFCMultiCombo> && !CheckedButton<CMFCMultiCombo>);
static_assert(LitButton<CMFCMultiCombo2> && !LockedButton<CMFCMultiCombo2> && !CheckedButton<CMFCMultiCombo2>);

TEST(ToolbarComboShape, ACopyHasTheItemsAndNoMarks) {
    CMFCMultiCombo one(5100, 3);
    one.AddItem(L"red", 0x4);
    CMFCMultiCombo other;
    other.CopyFrom(one);
    EXPECT_EQ(other.m_nID, 5100u);
    ASSERT_EQ(other.GetCount(), 1);
    EXPECT_STREQ(other.GetItem(0), L"red");
    EXPECT_EQ(other.GetItemData(0), 0x4u);
    EXPECT_FALSE(other.GetLightOn(0)) << "it has no combo box";
}

} // namespace

// What a host compiles against: names, access, argument types, what is static. Nearly all of it fails when this file is
// compiled.

#include "add_ribbon_bar.h"
#include "check_drop_down.h"
#include "library_context.h"
#include "ribbon_category_ex.h"
#include "ribbon_check_combo.h"
#include "ribbon_icon_button.h"
#include "ribbon_label_ex.h"
#include "ribbon_multi_combo.h"
#include "ribbon_slider_sync.h"

#include <gtest/gtest.h>

#include <concepts>
#include <cstddef>
#include <map>
#include <type_traits>

namespace {

using Builder = CAddRibbonBar;
using Record = CAddRibbonBar::_RibbonInfo;
using Text = std::wstring;
using Ids = std::vector<unsigned int>;

static_assert(std::is_same_v<decltype(Builder::m_sAppPath), CString>);
static_assert(std::is_same_v<decltype(Builder::m_strHelpF1), CString>);
static_assert(
    std::is_same_v<decltype(Builder::m_smStatusExBtns), std::map<Text, std::pair<Text, std::vector<Record>>>>);
static_assert(std::is_same_v<decltype(&Builder::m_cfgPath), Text Builder::*>);
static_assert(std::is_same_v<decltype(&Builder::m_cmdList), std::vector<Text> Builder::*>);
static_assert(std::is_same_v<decltype(&Builder::Load), bool (Builder::*)(const Text&, CMFCRibbonBar*, int)>);
static_assert(std::is_same_v<decltype(&Builder::CreateBtnFromKey),
                             CMFCRibbonUNIcoButton* (*)(CMFCRibbonBar*, const Text&, int, int&, int)>);
static_assert(std::is_same_v<decltype(&Builder::GetAddIndex), int (Builder::*)(int&, int&) const>);
static_assert(std::is_same_v<decltype(&Builder::vector2List), void (*)(const Ids&, CList<UINT, UINT>&)>);
static_assert(std::is_same_v<decltype(&Builder::SetCreateF1Tip), void (Builder::*)(bool)>);
static_assert(std::is_same_v<decltype(&Builder::getAcceptF1), bool (Builder::*)() const>);
static_assert(std::is_same_v<decltype(std::declval<const Builder>().GetQAToolBar()), const std::vector<Text>&>);
static_assert(std::is_same_v<decltype(std::declval<const Builder>().GetQAToolBar(std::declval<Ids&>())), int>);
static_assert(std::is_copy_constructible_v<Builder> && std::is_copy_assignable_v<Builder>);
static_assert(std::is_default_constructible_v<Record> && std::is_copy_assignable_v<Record>);

template <class T>
concept TakesElements = requires(T& builder, const T& constant, CXmlNodeWrapper& node, Record& info, Builder* owner,
                                 CMFCRibbonPanel* panel) {
    { constant.GetRowInfo(node, info) } -> std::same_as<bool>;
    { builder.AddList(node, panel) } -> std::same_as<void>;
    { T::CreateACtrl(1u, info, owner) } -> std::same_as<CMFCRibbonBaseElement*>;
};
static_assert(TakesElements<Builder>);

static_assert(std::is_same_v<decltype(&CQkMfc::Ins), CQkMfc* (*)()>);
static_assert(!std::is_default_constructible_v<CQkMfc> && !std::is_destructible_v<CQkMfc>);
static_assert(std::is_same_v<decltype(CQkMfc::m_imageList), CImageList> && sizeof(CQkMfc) == sizeof(CImageList));
template <class T>
concept CanBeInitialised = requires(T& context) {
    context.Init();
};
static_assert(!CanBeInitialised<CQkMfc>);
static_assert(std::is_same_v<decltype(&GetIconPathStr), CString (*)(const Text&, int)>);
static_assert(std::is_same_v<decltype(&GetHelpFileName), CString (*)(int, const CString&)>);
static_assert(std::is_same_v<decltype(&GetHaveMedias_Brevant), bool (*)(CString&)>);
static_assert(std::is_same_v<decltype(g_layCtrlBmp), std::vector<CBitmap*>>);

using Button = CMFCRibbonUNIcoButton;
static_assert(std::is_base_of_v<CMFCRibbonButton, Button> && std::is_base_of_v<Button, CMFCRibbonSmallButton>);
static_assert(std::is_same_v<decltype(&Button::SetSkinStyle), void (*)(CString)>);
static_assert(std::is_same_v<decltype(std::declval<Button&>().GetIconPath(BOOL())), CString>);
static_assert(!std::is_constructible_v<CMFCRibbonSmallButton, UINT, LPCTSTR, CString, BOOL, CString, BOOL, BOOL, BOOL>,
              "the small button has no flag that keeps the large path");
static_assert(std::is_constructible_v<Button, UINT, LPCTSTR, CString, BOOL, CString, BOOL, BOOL, BOOL>);
static_assert(std::is_base_of_v<CMFCRibbonCategory, CMFCRibbonCategoryEx>);

using Check = CMFCRibbonCheckComb;
using Multi = CMFCRibbonMultiCombo;
using LightOnly = CMFCRibbonVesMultiCombo;
using TypeKeys = std::map<Text, int>;
static_assert(
    std::is_same_v<decltype(&CRibbonNotifyCombox::NotifyChangeData), bool (CRibbonNotifyCombox::*)(int, int, bool)>);
template <class Combo>
concept MarkedCombo = std::is_base_of_v<CMFCRibbonComboBox, Combo> && std::is_base_of_v<CRibbonNotifyCombox, Combo> &&
    std::is_constructible_v<Combo, UINT, BOOL, int, LPCTSTR, int> &&
    std::is_same_v<decltype(&Combo::AddItem), INT_PTR (Combo::*)(LPCTSTR, DWORD_PTR)> &&
    std::is_same_v<decltype(&Combo::RemoveAll), void (Combo::*)()> &&
    std::is_same_v<decltype(&Combo::setTypeKeyName2Index), void (Combo::*)(const TypeKeys&)> &&
    std::is_same_v<decltype(&Combo::findIndexByTypeKeyName), int (Combo::*)(const Text&) const> &&
    std::is_same_v<decltype(&Combo::findTypeKeyNameByIndex), Text (Combo::*)(int) const>;
static_assert(MarkedCombo<Check> && MarkedCombo<Multi> && MarkedCombo<LightOnly>);
template <class Combo>
concept StaticHeight = std::is_same_v<decltype(Combo::m_nStaticDropDownHeight), int> &&
    std::is_same_v<decltype(&Combo::UserStaticDropDownHeight), void (Combo::*)(bool)> &&
    std::is_same_v<decltype(&Combo::SetStaticDropDownHeight), void (Combo::*)(int)>;
static_assert(StaticHeight<Check> && StaticHeight<Multi> && !StaticHeight<LightOnly>);
static_assert(std::is_same_v<decltype(&Check::SetItemCheck), bool (Check::*)(int, bool)>);
static_assert(std::is_same_v<decltype(&Check::GetItemCheck), bool (Check::*)(int, bool&) const>);
static_assert(std::is_default_constructible_v<Check> && !std::is_default_constructible_v<Multi> &&
              !std::is_default_constructible_v<LightOnly>);
static_assert(sizeof(Multi::rowInfo) == 8 && offsetof(Multi::rowInfo, clr) == 0 &&
              offsetof(Multi::rowInfo, light) == 4);
static_assert(std::is_trivially_copyable_v<Multi::rowInfo>);
template <class Combo>
concept LitCombo = requires(Combo& combo, const Combo& constant, int index, const wchar_t* text, bool& light) {
    { combo.SetItemLight(index, true, true) } -> std::same_as<bool>;
    { combo.SetItemLight(text, true, true) } -> std::same_as<bool>;
    { constant.GetItemLight(index, light) } -> std::same_as<bool>;
};
static_assert(LitCombo<Multi> && LitCombo<LightOnly> && !LitCombo<Check>);
template <class Combo>
concept ColouredCombo = requires(Combo& combo, const Combo& constant, int index, const wchar_t* text, COLORREF& color,
                                 typename Combo::rowInfo& info, bool& lock) {
    { combo.SetItemClr(index, color, true) } -> std::same_as<bool>;
    { combo.SetItemClr(text, color, true) } -> std::same_as<bool>;
    { constant.GetItemClr(index, color) } -> std::same_as<bool>;
    { combo.SetItemInfo(index, color, true, true) } -> std::same_as<bool>;
    { combo.SetItemInfo(index, info) } -> std::same_as<bool>;
    { constant.GetItemInfo(index, info) } -> std::same_as<bool>;
    { combo.SetItemLock(index, true, true) } -> std::same_as<bool>;
    { combo.SetItemLock(text, true, true) } -> std::same_as<bool>;
    { constant.GetItemLock(index, lock) } -> std::same_as<bool>;
};
static_assert(ColouredCombo<Multi> && !ColouredCombo<LightOnly>);
static_assert(std::is_base_of_v<CMFCDropDownListBox, CMFCCheckDropDown> &&
              std::is_constructible_v<CMFCCheckDropDown, CMFCRibbonComboBox*>);
static_assert(
    std::is_same_v<decltype(&CMFCCheckDropDown::SetSpRects), void (CMFCCheckDropDown::*)(const std::vector<CRect>&)>);
static_assert(
    std::is_same_v<decltype(&CMFCPopupMenuBarEx::SetSpRects), void (CMFCPopupMenuBarEx::*)(const std::vector<CRect>&)>);
static_assert(
    std::is_same_v<decltype(&CMFCPopupMenuBarEx::SetNotifyChild), void (CMFCPopupMenuBarEx::*)(CRibbonNotifyCombox*)>);

using LabelEx = CMFCRibbonLabelEx;
static_assert(std::is_base_of_v<CMFCRibbonLabel, LabelEx> && std::is_constructible_v<LabelEx, LPCTSTR, BOOL> &&
              !std::is_default_constructible_v<LabelEx>);
static_assert(std::is_same_v<decltype(&LabelEx::SetRight), void (LabelEx::*)(bool)>);
static_assert(std::is_same_v<decltype(&LabelEx::IsRight), bool (LabelEx::*)() const>);
static_assert(std::is_same_v<decltype(&LabelEx::SetLeftOffset), void (LabelEx::*)(int)>);
static_assert(std::is_same_v<decltype(&LabelEx::SetTextColor), void (LabelEx::*)(COLORREF)>);
static_assert(std::is_same_v<decltype(&LabelEx::OnDraw), void (LabelEx::*)(CDC*)>);
static_assert(std::is_same_v<decltype(&LabelEx::OnLButtonDown), void (LabelEx::*)(CPoint)>);

using SliderSync = CMFCRibbonSliderSync;
static_assert(std::is_base_of_v<CMFCRibbonSlider, SliderSync> && std::is_constructible_v<SliderSync, UINT, int> &&
              std::is_default_constructible_v<SliderSync>);
static_assert(std::is_same_v<decltype(&SliderSync::SetPosSync), void (SliderSync::*)(int, int)>);
static_assert(std::is_same_v<decltype(&SliderSync::NotifyCommandSync), void (SliderSync::*)()>);
static_assert(std::is_same_v<decltype(&SliderSync::setTooltipFromPos), void (SliderSync::*)()>);
static_assert(std::is_same_v<decltype(&SliderSync::OnMouseMove), void (SliderSync::*)(CPoint)>);
static_assert(std::is_same_v<decltype(&SliderSync::OnLButtonUp), void (SliderSync::*)(CPoint)>);
static_assert(std::is_same_v<decltype(&SliderSync::OnAutoRepeat), BOOL (SliderSync::*)()>);

TEST(HostInterface, EveryClassThatTheFrameworkMakesIsKnownByItsName) {
    EXPECT_STREQ(RUNTIME_CLASS(CMFCRibbonUNIcoButton)->m_lpszClassName, "CMFCRibbonUNIcoButton");
    EXPECT_STREQ(RUNTIME_CLASS(CMFCRibbonSmallButton)->m_lpszClassName, "CMFCRibbonSmallButton");
    EXPECT_STREQ(RUNTIME_CLASS(CMFCRibbonCategoryEx)->m_lpszClassName, "CMFCRibbonCategoryEx");
    EXPECT_STREQ(RUNTIME_CLASS(Check)->m_lpszClassName, "CMFCRibbonCheckComb");
    EXPECT_STREQ(RUNTIME_CLASS(Multi)->m_lpszClassName, "CMFCRibbonMultiCombo");
    EXPECT_STREQ(RUNTIME_CLASS(LightOnly)->m_lpszClassName, "CMFCRibbonVesMultiCombo");
    for (const char* name : {"CMFCRibbonUNIcoButton", "CMFCRibbonSmallButton", "CMFCRibbonCategoryEx",
                             "CMFCRibbonCheckComb", "CMFCRibbonMultiCombo", "CMFCRibbonVesMultiCombo",
                             "CMFCCheckDropDown", "CMFCPopupMenuBarEx", "CMFCRibbonLabelEx", "CMFCRibbonSliderSync"}) {
        EXPECT_NE(CRuntimeClass::FromName(name), nullptr) << name;
    }
}

} // namespace

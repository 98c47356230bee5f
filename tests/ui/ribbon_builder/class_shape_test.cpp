// What a host compiles against: names, access, argument types, what is static. Nearly all of it fails when this file is
// compiled.

#include "add_ribbon_bar.h"
#include "library_context.h"
#include "ribbon_category_ex.h"
#include "ribbon_icon_button.h"

#include <gtest/gtest.h>

#include <concepts>
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

TEST(HostInterface, EveryClassThatTheFrameworkMakesIsKnownByItsName) {
    EXPECT_STREQ(RUNTIME_CLASS(CMFCRibbonUNIcoButton)->m_lpszClassName, "CMFCRibbonUNIcoButton");
    EXPECT_STREQ(RUNTIME_CLASS(CMFCRibbonSmallButton)->m_lpszClassName, "CMFCRibbonSmallButton");
    EXPECT_STREQ(RUNTIME_CLASS(CMFCRibbonCategoryEx)->m_lpszClassName, "CMFCRibbonCategoryEx");
    for (const char* name : {"CMFCRibbonUNIcoButton", "CMFCRibbonSmallButton", "CMFCRibbonCategoryEx"})
        EXPECT_NE(CRuntimeClass::FromName(name), nullptr) << name;
}

} // namespace

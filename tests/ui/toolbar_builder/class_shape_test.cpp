// What a host compiles against: names, access, argument types. Nearly all of it fails when this file is compiled.
#include "dyn_toolbar_creater.h"

#include <gtest/gtest.h>

#include <concepts>
#include <type_traits>

namespace {

using Creater = CDynToolBarCreater;
using Text = std::wstring;

static_assert(std::is_default_constructible_v<Creater> && std::is_copy_constructible_v<Creater> &&
              std::is_copy_assignable_v<Creater>);
static_assert(std::is_same_v<decltype(Creater::s_ToolbarIndex), std::uint32_t>);
static_assert(
    std::is_same_v<decltype(&Creater::GetToolBar), CMFCToolBar* (Creater::*)(const Text&, const CString&) const>);
static_assert(std::is_same_v<decltype(&Creater::GetAllToolBar), std::list<CMFCToolBar*> (Creater::*)() const>);
static_assert(
    std::is_same_v<decltype(&Creater::AddCustomBar), bool (Creater::*)(const Text&, CMFCToolBar*, const Text&)>);
static_assert(std::is_same_v<decltype(&Creater::DockPane), void (Creater::*)(CMDIFrameWndEx*) const>);
static_assert(
    std::is_same_v<decltype(&Creater::EnableDocking), void (Creater::*)(std::uint32_t, CMDIFrameWndEx*) const>);

template <class T>
concept LoadsAndShows = requires(T& creater, const T& constant, Text text, CWnd* parent, CMDIFrameWndEx* frame) {
    { creater.Load(text, parent) } -> std::same_as<bool>;
    { constant.empty() } -> std::same_as<bool>;
    constant.ShowBars(1, frame);
    constant.ShowBars(text, 1, frame);
};
static_assert(LoadsAndShows<Creater>);

using Info = Creater::ToolBarInfo;
static_assert(std::is_same_v<decltype(&Info::strType), Text Info::*> &&
              std::is_same_v<decltype(&Info::strPrompt), Text Info::*> &&
              std::is_same_v<decltype(&Info::strPicPath), Text Info::*> &&
              std::is_same_v<decltype(&Info::strKeyword), Text Info::*> &&
              std::is_same_v<decltype(&Info::strToolTip), Text Info::*>);

TEST(ToolBarBuilderShape, TheRecordOfAnElementHasItsAttributesInThisOrder) {
    const Info info{L"type", L"prompt", L"path", L"keyword", L"tip"};
    EXPECT_EQ(info.strType, L"type");
    EXPECT_EQ(info.strPrompt, L"prompt");
    EXPECT_EQ(info.strPicPath, L"path");
    EXPECT_EQ(info.strKeyword, L"keyword");
    EXPECT_EQ(info.strToolTip, L"tip");
}

} // namespace

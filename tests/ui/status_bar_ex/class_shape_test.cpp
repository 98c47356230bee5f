// What a host compiles against: names, access, argument types. Nearly all of it fails when this file is compiled.
#include "ribbon_status_bar_ex.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace {

using Bar = CMFCRibbonStatusBarEx;

static_assert(std::is_base_of_v<CMFCRibbonStatusBar, Bar> && std::is_default_constructible_v<Bar>);
static_assert(std::is_same_v<decltype(&Bar::CreateAllExBtns), void (Bar::*)()>);
static_assert(std::is_same_v<decltype(&Bar::SetExEleApp), void (Bar::*)(const CString&)>);
static_assert(std::is_same_v<decltype(&Bar::SetEleWidth), void (Bar::*)(int, int)>);
static_assert(std::is_same_v<decltype(&Bar::RecalcLayout), void (Bar::*)()>);
static_assert(std::is_same_v<decltype(&Bar::HitTest), CMFCRibbonBaseElement* (Bar::*)(CPoint, int, int)>);
static_assert(std::is_same_v<decltype(&Bar::OnPaneContextMenu), void (Bar::*)(CWnd*, CPoint)>);

template <class T>
concept RemovesAllFromOutside = requires(T& bar) {
    bar.RemoveAllEx();
};
static_assert(!RemovesAllFromOutside<Bar>);

TEST(StatusBarExClass, IsMadeByItsName) {
    EXPECT_STREQ(RUNTIME_CLASS(Bar)->m_lpszClassName, "CMFCRibbonStatusBarEx");
    ASSERT_NE(CRuntimeClass::FromName("CMFCRibbonStatusBarEx"), nullptr);
    const std::unique_ptr<CObject> bar(RUNTIME_CLASS(Bar)->CreateObject());
    EXPECT_NE(DYNAMIC_DOWNCAST(CMFCRibbonStatusBar, bar.get()), nullptr);
}

} // namespace

// What a host compiles against: names, access, argument types. Most of it fails when this file is compiled.

#include "menu_event.h"
#include "menu_id_mgr.h"

#include <gtest/gtest.h>

#include <bit>
#include <string>
#include <type_traits>

class CCmdUI {};

namespace {

using Text = std::wstring;
using Registry = CMenuIdMgr;

static_assert(std::is_same_v<decltype(Registry::s_AddBeginID), std::uint32_t>);
static_assert(std::is_same_v<decltype(Registry::s_pMenuMgr), Registry*>);
static_assert(std::is_same_v<decltype(Registry::m_mutex), xrecursive_mutex>);
static_assert(std::is_same_v<decltype(&Registry::Ins), Registry* (*)()>);
static_assert(std::is_same_v<decltype(&Registry::Destroy), void (*)()>);
static_assert(std::is_same_v<decltype(&Registry::Add), void (Registry::*)(const Text&, int, const Text&, const Text&,
                                                                          const Text&, const Text&, const Text&)>);
static_assert(std::is_same_v<decltype(&Registry::GetMenuId), bool (Registry::*)(const Text&, int&) const>);
static_assert(std::is_same_v<decltype(&Registry::GetMenuName), bool (Registry::*)(const Text&, Text&) const>);
static_assert(std::is_same_v<decltype(&Registry::GetMenuMark), bool (Registry::*)(const int&, Text&) const>);
static_assert(std::is_same_v<decltype(&Registry::GetToolTip), bool (Registry::*)(const int&, Text&) const>);
static_assert(std::is_same_v<decltype(&Registry::GetCmd), bool (Registry::*)(int, Text&) const>);
static_assert(std::is_same_v<decltype(&Registry::GetCmdParam), bool (Registry::*)(int, Text&) const>);
static_assert(std::is_same_v<decltype(&Registry::GetHelpFile), bool (Registry::*)(const int&, Text&) const>);
static_assert(std::is_same_v<decltype(&Registry::SetHelpFile), void (Registry::*)(int, const Text&)>);
static_assert(!std::is_default_constructible_v<Registry> && !std::is_destructible_v<Registry>);
static_assert(std::is_copy_assignable_v<Registry>);
static_assert(!std::is_polymorphic_v<Registry>);

template <class T>
concept CanBeCopied = requires(const T& object) {
    new T(object);
};
static_assert(CanBeCopied<Registry>);

using Dispatcher = CMenuEvtHandleMgr;
using Reactors = std::vector<boost::shared_ptr<CMenuReactor>>;

static_assert(std::is_same_v<decltype(&Dispatcher::Ins), Dispatcher* (*)()>);
static_assert(std::is_same_v<decltype(&Dispatcher::addReactor), void (Dispatcher::*)(boost::shared_ptr<CMenuReactor>)>);
static_assert(std::is_same_v<decltype(&Dispatcher::getReactors), Reactors (Dispatcher::*)()>);
static_assert(std::is_same_v<decltype(&Dispatcher::MenuClick), bool (Dispatcher::*)(unsigned int) const>);
static_assert(std::is_same_v<decltype(&Dispatcher::Update), bool (Dispatcher::*)(CCmdUI*) const>);
static_assert(std::is_same_v<decltype(&Dispatcher::DisableMain), bool (Dispatcher::*)() const>);
static_assert(!std::is_default_constructible_v<Dispatcher> && !std::is_destructible_v<Dispatcher>);

static_assert(std::is_default_constructible_v<CMenuReactor> && std::is_copy_constructible_v<CMenuReactor>);
static_assert(std::is_copy_assignable_v<CMenuReactor> && std::is_destructible_v<CMenuReactor>);
static_assert(std::is_polymorphic_v<CMenuReactor> && !std::has_virtual_destructor_v<CMenuReactor>);
static_assert(sizeof(CMenuReactor) == sizeof(void*), "no data members");

template <class T>
concept CanBeClicked = requires(const T& reactor) {
    reactor.MenuClick(1u);
};
template <class T>
concept CanBeUpdated = requires(const T& reactor, CCmdUI* cmdUI) {
    reactor.Update(cmdUI);
};
template <class T>
concept CanBeAskedToDisable = requires(const T& reactor) {
    reactor.DisableMain();
};
static_assert(!CanBeClicked<CMenuReactor> && !CanBeUpdated<CMenuReactor> && !CanBeAskedToDisable<CMenuReactor>);

/// Opens the protected operations, so that their addresses can be taken.
struct OpenReactor : CMenuReactor {
    using CMenuReactor::DisableMain;
    using CMenuReactor::MenuClick;
    using CMenuReactor::Update;
};
static_assert(std::is_same_v<decltype(&OpenReactor::DisableMain), bool (CMenuReactor::*)() const>);
static_assert(std::is_same_v<decltype(&OpenReactor::MenuClick), bool (CMenuReactor::*)(unsigned int) const>);
static_assert(std::is_same_v<decltype(&OpenReactor::Update), bool (CMenuReactor::*)(CCmdUI*) const>);

/// The place of a virtual operation in its class's table; -1 when it is not virtual. The pointer to a virtual member
/// holds one more than the operation's offset in the table.
template <class Member>
std::ptrdiff_t SlotOf(Member member) {
    struct Representation {
        std::ptrdiff_t offsetPlusOne;
        std::ptrdiff_t adjustment;
    };
    const auto representation = std::bit_cast<Representation>(member);
    if (representation.offsetPlusOne % 2 == 0) {
        return -1;
    }
    return representation.offsetPlusOne / static_cast<std::ptrdiff_t>(sizeof(void*));
}

TEST(MenuReactorShape, VirtualOperationsStandInTheirOrder) {
    EXPECT_EQ(SlotOf(&OpenReactor::DisableMain), 0);
    EXPECT_EQ(SlotOf(&OpenReactor::MenuClick), 1);
    EXPECT_EQ(SlotOf(&OpenReactor::Update), 2);
}

TEST(MenuReactorShape, BaseHandlesNothing) {
    const OpenReactor reactor;
    EXPECT_FALSE(reactor.DisableMain());
    EXPECT_FALSE(reactor.MenuClick(41000));
    EXPECT_FALSE(reactor.Update(nullptr));
}

} // namespace

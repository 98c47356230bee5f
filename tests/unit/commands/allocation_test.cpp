// What happens when there is no memory. The program's own operator new fails when told to.

#include "menu_event.h"
#include "menu_id_mgr.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <new>
#include <thread>

namespace {

/// Allocations of this thread until the one that fails; negative: none fails.
thread_local int t_allocationsUntilFailure = -1;

void* Allocate(std::size_t size) {
    if (t_allocationsUntilFailure >= 0 && t_allocationsUntilFailure-- == 0) {
        throw std::bad_alloc();
    }
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

constexpr int noFailure = -1;

/// Runs the work with its first allocation failing, then with its second, until it gets through; `prepare` comes before
/// each attempt and lacks nothing. Returns how often the work failed; after each failure the lock must be free for
/// another thread.
int FailAtEveryAllocation(const std::function<void()>& prepare, const std::function<void()>& work,
                          const std::function<void()>& takeLockAndLeave) {
    constexpr int tooMany = 100;
    for (int failures = 0; failures < tooMany; ++failures) {
        prepare();
        t_allocationsUntilFailure = failures;
        bool failed = false;
        try {
            work();
        } catch (const std::bad_alloc&) {
            failed = true;
        }
        t_allocationsUntilFailure = noFailure;
        // Hangs where a lock was left behind.
        std::thread(takeLockAndLeave).join();
        if (!failed) {
            return failures;
        }
    }
    return tooMany;
}

TEST(OutOfMemory, PassesOutOfTheRegistryAndReleasesTheLock) {
    const std::wstring keyword = L"K";
    const std::wstring text = L"text";
    CMenuIdMgr* registry = nullptr;
    const auto makeAnew = [&registry] {
        CMenuIdMgr::Destroy();
        registry = CMenuIdMgr::Ins();
    };
    const auto takeLock = [] { const xrecursive_mutex::scoped_lock lock(CMenuIdMgr::m_mutex); };
    const int failures = FailAtEveryAllocation(
        makeAnew, [&] { registry->Add(keyword, 41000, text, text, text, text, text); }, takeLock);
    // An entry of each of the two tables and a record's texts at the least.
    EXPECT_GE(failures, 3);
    std::wstring mark;
    EXPECT_TRUE(registry->GetMenuMark(41000, mark));
    EXPECT_EQ(mark, keyword);
    CMenuIdMgr::Destroy();
}

TEST(OutOfMemory, PassesOutOfTheDispatcherAndReleasesTheLock) {
    CMenuEvtHandleMgr* const dispatcher = CMenuEvtHandleMgr::Ins();
    const std::size_t before = dispatcher->getReactors().size();
    const auto reactor = boost::make_shared<CMenuReactor>();
    const auto ask = [dispatcher] { dispatcher->MenuClick(1); };
    const auto nothing = [] {};
    EXPECT_GE(FailAtEveryAllocation(
                  nothing, [&] { dispatcher->addReactor(reactor); }, ask),
              1);
    EXPECT_EQ(dispatcher->getReactors().size(), before + 1);
    EXPECT_GE(FailAtEveryAllocation(
                  nothing, [&] { dispatcher->getReactors(); }, ask),
              1);
}

} // namespace

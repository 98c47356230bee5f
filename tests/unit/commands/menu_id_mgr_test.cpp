#include "menu_id_mgr.h"
#include "tests/support/watched_thread.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

namespace {

/// Each test starts without a registry and leaves the id counter as it found it.
class CommandRegistry : public testing::Test {
protected:
    CommandRegistry() { CMenuIdMgr::Destroy(); }
    ~CommandRegistry() override {
        CMenuIdMgr::Destroy();
        CMenuIdMgr::s_AddBeginID = m_savedNextId;
    }

    static CMenuIdMgr& Registry() { return *CMenuIdMgr::Ins(); }
    static void AddNamed(const std::wstring& keyword, int id) { Registry().Add(keyword, id, L"", L"", L"", L"", L""); }

    static int IdOf(const std::wstring& keyword) {
        int id = -7;
        return Registry().GetMenuId(keyword, id) ? id : -7;
    }
    static std::wstring MarkOf(int id) {
        std::wstring mark = L"(none)";
        Registry().GetMenuMark(id, mark);
        return mark;
    }

    /// How often to look whether another thread has finished: a while for what must not, long for what must.
    static constexpr int briefly = 2000;
    static constexpr int patiently = 5'000'000;

    /// Whether another thread gets through the operation while this one holds the lock.
    template <class Operation>
    static bool FinishesWhileTheLockIsHeld(Operation operation, int looks) {
        std::optional<WatchedThread> other; // its end waits for the lock's
        xrecursive_mutex::scoped_lock lock(CMenuIdMgr::m_mutex);
        return other.emplace(operation).FinishesWithin(looks);
    }

private:
    std::uint32_t m_savedNextId = CMenuIdMgr::s_AddBeginID;
};

struct Query {
    const char* what;
    bool (*ask)(const CMenuIdMgr&, int id, std::wstring& text);
};

const Query textQueries[] = {
    {"GetToolTip", [](const CMenuIdMgr& r, int id, std::wstring& text) { return r.GetToolTip(id, text); }},
    {"GetCmd", [](const CMenuIdMgr& r, int id, std::wstring& text) { return r.GetCmd(id, text); }},
    {"GetCmdParam", [](const CMenuIdMgr& r, int id, std::wstring& text) { return r.GetCmdParam(id, text); }},
    {"GetHelpFile", [](const CMenuIdMgr& r, int id, std::wstring& text) { return r.GetHelpFile(id, text); }},
};

TEST_F(CommandRegistry, CounterStartsAt41000) { EXPECT_EQ(CMenuIdMgr::s_AddBeginID, 41000u); }

TEST_F(CommandRegistry, MutexCarriesItsName) { EXPECT_EQ(CMenuIdMgr::m_mutex.getPrompt(), "CMenuIdMgr::m_mutex"); }

TEST_F(CommandRegistry, InstanceExistsFromTheFirstInsUntilDestroy) {
    EXPECT_EQ(CMenuIdMgr::s_pMenuMgr, nullptr);
    CMenuIdMgr* const first = CMenuIdMgr::Ins();
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(CMenuIdMgr::s_pMenuMgr, first);
    EXPECT_EQ(CMenuIdMgr::Ins(), first);
    CMenuIdMgr::Destroy();
    EXPECT_EQ(CMenuIdMgr::s_pMenuMgr, nullptr);
    CMenuIdMgr::Destroy();
    EXPECT_EQ(CMenuIdMgr::s_pMenuMgr, nullptr);
}

TEST_F(CommandRegistry, EmptyKeywordEntersNothing) {
    Registry().Add(L"", 41000, L"name", L"cmd", L"tip", L"param", L"help");
    std::wstring text = L"before";
    EXPECT_FALSE(Registry().GetMenuMark(41000, text));
    EXPECT_FALSE(Registry().GetMenuName(L"", text));
    for (const Query& query : textQueries) {
        EXPECT_FALSE(query.ask(Registry(), 41000, text)) << query.what;
    }
    int id = 5;
    EXPECT_FALSE(Registry().GetMenuId(L"", id));
    EXPECT_EQ(text, L"before");
    EXPECT_EQ(id, 5);
}

TEST_F(CommandRegistry, EveryTextComesBackFromItsOwnQuery) {
    Registry().Add(L"K", 41000, L"name", L"cmd", L"tip", L"param", L"help");
    std::wstring text;
    EXPECT_EQ(IdOf(L"K"), 41000);
    EXPECT_TRUE(Registry().GetMenuName(L"K", text));
    EXPECT_EQ(text, L"name");
    EXPECT_TRUE(Registry().GetMenuMark(41000, text));
    EXPECT_EQ(text, L"K");
    const wchar_t* const expected[] = {L"tip", L"cmd", L"param", L"help"};
    for (std::size_t i = 0; i < std::size(textQueries); ++i) {
        EXPECT_TRUE(textQueries[i].ask(Registry(), 41000, text)) << textQueries[i].what;
        EXPECT_EQ(text, expected[i]) << textQueries[i].what;
    }
}

TEST_F(CommandRegistry, EmptyTextsAreNotFoundAndLeaveTheOutputAsItWas) {
    Registry().Add(L"K", 41000, L"N", L"", L"T", L"", L"");
    std::wstring text = L"before";
    EXPECT_FALSE(Registry().GetCmd(41000, text));
    EXPECT_FALSE(Registry().GetCmdParam(41000, text));
    EXPECT_FALSE(Registry().GetHelpFile(41000, text));
    EXPECT_EQ(text, L"before");
    EXPECT_TRUE(Registry().GetToolTip(41000, text));
    EXPECT_EQ(text, L"T");
}

TEST_F(CommandRegistry, EmptyToolTipIsNotFound) {
    AddNamed(L"K", 41000);
    std::wstring text = L"before";
    EXPECT_FALSE(Registry().GetToolTip(41000, text));
    EXPECT_EQ(text, L"before");
}

TEST_F(CommandRegistry, EmptyNameIsFound) {
    AddNamed(L"K", 41000);
    std::wstring name = L"before";
    EXPECT_TRUE(Registry().GetMenuName(L"K", name));
    EXPECT_EQ(name, L"");
}

TEST_F(CommandRegistry, UnknownKeysLeaveTheOutputAsItWas) {
    AddNamed(L"K", 41000);
    std::wstring text = L"before";
    int id = 5;
    EXPECT_FALSE(Registry().GetMenuId(L"other", id));
    EXPECT_FALSE(Registry().GetMenuName(L"other", text));
    EXPECT_FALSE(Registry().GetMenuMark(41001, text));
    for (const Query& query : textQueries) {
        EXPECT_FALSE(query.ask(Registry(), 41001, text)) << query.what;
    }
    EXPECT_EQ(text, L"before");
    EXPECT_EQ(id, 5);
}

TEST_F(CommandRegistry, KeywordsDifferByLetterCase) {
    AddNamed(L"Save", 41000);
    int id = 5;
    EXPECT_FALSE(Registry().GetMenuId(L"save", id));
    AddNamed(L"save", 41001);
    EXPECT_EQ(IdOf(L"Save"), 41000);
    EXPECT_EQ(IdOf(L"save"), 41001);
}

TEST_F(CommandRegistry, KeywordThatIsAPrefixOfAnotherIsAnotherKeyword) {
    AddNamed(L"Save", 41000);
    AddNamed(L"SaveAs", 41001);
    AddNamed(L"", 41002);
    EXPECT_EQ(IdOf(L"Save"), 41000);
    EXPECT_EQ(IdOf(L"SaveAs"), 41001);
    EXPECT_EQ(IdOf(L"Sav"), -7);
}

TEST_F(CommandRegistry, IdsMayBeZeroAndNegative) {
    AddNamed(L"popup", 0);
    AddNamed(L"below", -3);
    EXPECT_EQ(MarkOf(0), L"popup");
    EXPECT_EQ(MarkOf(-3), L"below");
    EXPECT_EQ(IdOf(L"below"), -3);
}

TEST_F(CommandRegistry, KeywordEnteredAgainUnderAnotherIdLeavesTheOldIdsRecord) {
    Registry().Add(L"K", 41000, L"old", L"cmd", L"", L"", L"");
    Registry().Add(L"K", 41001, L"new", L"", L"", L"", L"");
    std::wstring text;
    EXPECT_EQ(IdOf(L"K"), 41001);
    EXPECT_TRUE(Registry().GetMenuName(L"K", text));
    EXPECT_EQ(text, L"new");
    EXPECT_EQ(MarkOf(41000), L"K");
    EXPECT_EQ(MarkOf(41001), L"K");
    EXPECT_TRUE(Registry().GetCmd(41000, text));
    EXPECT_EQ(text, L"cmd");
}

TEST_F(CommandRegistry, IdEnteredAgainUnderAnotherKeywordLeavesTheOldKeywordPointingAtIt) {
    AddNamed(L"first", 41000);
    AddNamed(L"second", 41000);
    EXPECT_EQ(IdOf(L"first"), 41000);
    EXPECT_EQ(IdOf(L"second"), 41000);
    EXPECT_EQ(MarkOf(41000), L"second");
}

TEST_F(CommandRegistry, EmptyArgumentsOverwriteStoredTexts) {
    Registry().Add(L"K", 41000, L"name", L"cmd", L"tip", L"param", L"help");
    AddNamed(L"K", 41000);
    std::wstring text = L"before";
    for (const Query& query : textQueries) {
        EXPECT_FALSE(query.ask(Registry(), 41000, text)) << query.what;
    }
    EXPECT_EQ(text, L"before");
}

TEST_F(CommandRegistry, AddNeverMovesTheCounter) {
    const std::uint32_t before = CMenuIdMgr::s_AddBeginID;
    AddNamed(L"K", static_cast<int>(before));
    EXPECT_EQ(CMenuIdMgr::s_AddBeginID, before);
}

TEST_F(CommandRegistry, HelpFileOnceSetIsNeverReplaced) {
    AddNamed(L"K", 41000);
    Registry().SetHelpFile(41000, L"A");
    Registry().SetHelpFile(41000, L"B");
    std::wstring help;
    EXPECT_TRUE(Registry().GetHelpFile(41000, help));
    EXPECT_EQ(help, L"A");
}

TEST_F(CommandRegistry, EmptyHelpFileLeavesTheIdOpenForALaterOne) {
    AddNamed(L"K", 41000);
    Registry().SetHelpFile(41000, L"");
    std::wstring help = L"before";
    EXPECT_FALSE(Registry().GetHelpFile(41000, help));
    EXPECT_EQ(help, L"before");
    Registry().SetHelpFile(41000, L"A");
    EXPECT_TRUE(Registry().GetHelpFile(41000, help));
    EXPECT_EQ(help, L"A");
    Registry().SetHelpFile(41000, L"");
    EXPECT_TRUE(Registry().GetHelpFile(41000, help));
    EXPECT_EQ(help, L"A");
}

TEST_F(CommandRegistry, HelpFileGivenAtRegistrationIsNotReplaced) {
    Registry().Add(L"K", 41000, L"", L"", L"", L"", L"given");
    Registry().SetHelpFile(41000, L"later");
    std::wstring help;
    EXPECT_TRUE(Registry().GetHelpFile(41000, help));
    EXPECT_EQ(help, L"given");
}

TEST_F(CommandRegistry, HelpFileOfAnUnknownIdDoesNotRegisterTheId) {
    Registry().SetHelpFile(41000, L"A");
    std::wstring text = L"before";
    EXPECT_FALSE(Registry().GetHelpFile(41000, text));
    EXPECT_FALSE(Registry().GetMenuMark(41000, text));
    EXPECT_EQ(text, L"before");
}

TEST_F(CommandRegistry, SetHelpFileTakesNoLock) {
    AddNamed(L"K", 41000);
    CMenuIdMgr* const registry = CMenuIdMgr::Ins();
    EXPECT_TRUE(FinishesWhileTheLockIsHeld([registry] { registry->SetHelpFile(41000, L"A"); }, patiently));
    std::wstring help;
    EXPECT_TRUE(registry->GetHelpFile(41000, help));
}

TEST_F(CommandRegistry, EmptyKeywordIsRefusedBeforeTheLockIsTaken) {
    CMenuIdMgr* const registry = CMenuIdMgr::Ins();
    EXPECT_TRUE(
        FinishesWhileTheLockIsHeld([registry] { registry->Add(L"", 41000, L"", L"", L"", L"", L""); }, patiently));
}

TEST_F(CommandRegistry, DestroyForgetsEveryEntryAndKeepsTheCounter) {
    CMenuIdMgr::s_AddBeginID = 41007;
    Registry().Add(L"K", 41006, L"name", L"cmd", L"tip", L"param", L"help");
    CMenuIdMgr::Destroy();
    EXPECT_EQ(IdOf(L"K"), -7);
    EXPECT_EQ(MarkOf(41006), L"(none)");
    std::wstring text = L"before";
    EXPECT_FALSE(Registry().GetMenuName(L"K", text));
    for (const Query& query : textQueries) {
        EXPECT_FALSE(query.ask(Registry(), 41006, text)) << query.what;
    }
    EXPECT_EQ(text, L"before");
    EXPECT_EQ(CMenuIdMgr::s_AddBeginID, 41007u);
}

TEST_F(CommandRegistry, CopyHoldsTheSameEntriesAndIsIndependent) {
    Registry().Add(L"K", 41000, L"name", L"cmd", L"tip", L"param", L"help");
    // A copy can be made by anyone but destroyed by the class alone; this one becomes the instance, so that Destroy
    // ends it.
    auto* const copy = new CMenuIdMgr(Registry());
    AddNamed(L"later", 41001);
    CMenuIdMgr::Destroy();
    CMenuIdMgr::s_pMenuMgr = copy;
    EXPECT_EQ(IdOf(L"K"), 41000);
    std::wstring text;
    EXPECT_TRUE(Registry().GetMenuName(L"K", text));
    EXPECT_EQ(text, L"name");
    EXPECT_TRUE(Registry().GetCmd(41000, text));
    EXPECT_EQ(text, L"cmd");
    EXPECT_EQ(IdOf(L"later"), -7);
}

TEST_F(CommandRegistry, AssignmentReplacesEveryEntry) {
    Registry().Add(L"K", 41000, L"name", L"cmd", L"tip", L"param", L"help");
    auto* const other = new CMenuIdMgr(Registry());
    AddNamed(L"later", 41001);
    Registry() = *other;
    EXPECT_EQ(IdOf(L"K"), 41000);
    EXPECT_EQ(IdOf(L"later"), -7);
    EXPECT_EQ(MarkOf(41001), L"(none)");
    CMenuIdMgr::Destroy();
    CMenuIdMgr::s_pMenuMgr = other;
}

TEST_F(CommandRegistry, HolderOfTheLockMayCallEveryOperation) {
    xrecursive_mutex::scoped_lock lock(CMenuIdMgr::m_mutex);
    AddNamed(L"K", 41000);
    EXPECT_EQ(IdOf(L"K"), 41000);
    EXPECT_EQ(MarkOf(41000), L"K");
    CMenuIdMgr::Destroy();
    EXPECT_EQ(IdOf(L"K"), -7);
}

struct LockedOperation {
    const char* what;
    void (*run)(CMenuIdMgr& registry);
};

/// Each on an instance that is at hand already: asking Ins() for it would wait as well.
const LockedOperation lockedOperations[] = {
    {"Add", [](CMenuIdMgr& r) { r.Add(L"L", 41001, L"", L"", L"", L"", L""); }},
    {"GetMenuId",
     [](CMenuIdMgr& r) {
         int id = 0;
         r.GetMenuId(L"K", id);
     }},
    {"GetMenuName",
     [](CMenuIdMgr& r) {
         std::wstring text;
         r.GetMenuName(L"K", text);
     }},
    {"GetMenuMark",
     [](CMenuIdMgr& r) {
         std::wstring text;
         r.GetMenuMark(41000, text);
     }},
    {"Ins", [](CMenuIdMgr&) { CMenuIdMgr::Ins(); }},
    {"Destroy", [](CMenuIdMgr&) { CMenuIdMgr::Destroy(); }},
};

TEST_F(CommandRegistry, EveryOperationWaitsForTheHolderOfTheLock) {
    for (const LockedOperation& operation : lockedOperations) {
        AddNamed(L"K", 41000);
        CMenuIdMgr* const registry = CMenuIdMgr::Ins();
        EXPECT_FALSE(FinishesWhileTheLockIsHeld([&] { operation.run(*registry); }, briefly)) << operation.what;
    }
    AddNamed(L"K", 41000);
    CMenuIdMgr* const registry = CMenuIdMgr::Ins();
    for (const Query& query : textQueries) {
        std::wstring text;
        EXPECT_FALSE(FinishesWhileTheLockIsHeld([&] { query.ask(*registry, 41000, text); }, briefly)) << query.what;
    }
}

/// The instance, looked at without waiting for the thread that may be making it.
#if defined(__SANITIZE_THREAD__)
[[gnu::no_sanitize("thread")]]
#endif
CMenuIdMgr*
InstanceSeenWithoutTheLock() {
    return *const_cast<CMenuIdMgr* volatile*>(&CMenuIdMgr::s_pMenuMgr);
}

TEST_F(CommandRegistry, InsMakesTheInstanceBeforeItTakesTheLock) {
    std::optional<WatchedThread> first;
    {
        xrecursive_mutex::scoped_lock lock(CMenuIdMgr::m_mutex);
        first.emplace([] { CMenuIdMgr::Ins(); });
        for (int i = 0; i < patiently && !InstanceSeenWithoutTheLock(); ++i) {
            std::this_thread::yield();
        }
        EXPECT_NE(InstanceSeenWithoutTheLock(), nullptr);
        EXPECT_FALSE(first->HasFinished());
    }
    first->Join();
    EXPECT_TRUE(first->HasFinished());
}

TEST_F(CommandRegistry, AHelpFileThatComesLaterLeavesTheOtherTextsAsTheyAre) {
    CMenuIdMgr* const registry = CMenuIdMgr::Ins();
    registry->Add(L"Keyword", 41000, L"name", L"command", L"", L"parameter", L"");
    registry->SetHelpFile(41000, L"help.swf");
    std::wstring text = L"before";
    EXPECT_FALSE(registry->GetToolTip(41000, text));
    EXPECT_EQ(text, L"before");
    EXPECT_TRUE(registry->GetMenuMark(41000, text));
    EXPECT_EQ(text, L"Keyword");
    EXPECT_TRUE(registry->GetCmd(41000, text));
    EXPECT_EQ(text, L"command");
    EXPECT_TRUE(registry->GetCmdParam(41000, text));
    EXPECT_EQ(text, L"parameter");
    EXPECT_TRUE(registry->GetHelpFile(41000, text));
    EXPECT_EQ(text, L"help.swf");
}

TEST_F(CommandRegistry, ThreadsMayAddAndAskAtOnce) {
    constexpr int threadCount = 4;
    constexpr int perThread = 400;
    CMenuIdMgr* const registry = CMenuIdMgr::Ins();
    std::vector<std::thread> threads;
    std::atomic<int> wrong = 0;
    for (int t = 0; t < threadCount; ++t) {
        threads.emplace_back([registry, t, &wrong] {
            for (int i = 0; i < perThread; ++i) {
                const int id = 41000 + t * perThread + i;
                const std::wstring keyword = L"K" + std::to_wstring(id);
                registry->Add(keyword, id, keyword, keyword, keyword, keyword, keyword);
                // Another thread's command: either not there yet or whole.
                const int other = 41000 + ((t + 1) % threadCount) * perThread + i;
                std::wstring mark;
                std::wstring tip;
                if (registry->GetMenuMark(other, mark) && (!registry->GetToolTip(other, tip) || tip != mark)) {
                    ++wrong;
                }
                int found = 0;
                if (!registry->GetMenuId(keyword, found) || found != id) {
                    ++wrong;
                }
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(wrong, 0);
    for (int id = 41000; id < 41000 + threadCount * perThread; ++id) {
        ASSERT_EQ(IdOf(L"K" + std::to_wstring(id)), id);
    }
}

} // namespace

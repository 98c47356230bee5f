#include "menu_event.h"
#include "tests/support/watched_thread.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>

// The framework's class is not needed here: the dispatcher passes the pointer on and never looks at it.
class CCmdUI {};

namespace {

/// Writes down what it is asked and answers as told. Reactors cannot be removed, so the fixture silences those of a
/// finished test.
class ScriptedReactor : public CMenuReactor {
public:
    ScriptedReactor(std::string name, std::string& journal) : m_name(std::move(name)), m_journal(&journal) {}

    bool answer = false;
    std::function<bool()> instead;
    const CCmdUI* LastCmdUI() const { return m_lastCmdUI; }
    void Silence() {
        m_journal = nullptr;
        instead = nullptr;
    }

protected:
    bool DisableMain() const override { return Take("disable"); }
    bool MenuClick(unsigned int id) const override { return Take("click " + std::to_string(id)); }
    bool Update(CCmdUI* cmdUI) const override {
        m_lastCmdUI = cmdUI;
        return Take("update");
    }

private:
    bool Take(const std::string& what) const {
        if (!m_journal) {
            return false;
        }
        *m_journal += m_name + " " + what + ";";
        return instead ? instead() : answer;
    }

    std::string m_name;
    std::string* m_journal;
    mutable const CCmdUI* m_lastCmdUI = nullptr;
};

class CommandDispatch : public testing::Test {
protected:
    ~CommandDispatch() override {
        for (const auto& reactor : m_added) {
            reactor->Silence();
        }
    }

    boost::shared_ptr<ScriptedReactor> Make(const std::string& name, bool answer = false) {
        auto reactor = boost::make_shared<ScriptedReactor>(name, m_journal);
        reactor->answer = answer;
        m_added.push_back(reactor);
        return reactor;
    }
    boost::shared_ptr<ScriptedReactor> Add(const std::string& name, bool answer = false) {
        auto reactor = Make(name, answer);
        Dispatcher().addReactor(reactor);
        return reactor;
    }
    void SilenceAllBut(const boost::shared_ptr<ScriptedReactor>& kept) {
        for (const auto& reactor : m_added) {
            if (reactor != kept) {
                reactor->Silence();
            }
        }
    }
    static CMenuEvtHandleMgr& Dispatcher() { return *CMenuEvtHandleMgr::Ins(); }

    std::string m_journal;

private:
    std::vector<boost::shared_ptr<ScriptedReactor>> m_added;
};

TEST_F(CommandDispatch, WithoutReactorsNothingIsHandled) {
    CCmdUI cmdUI;
    EXPECT_FALSE(Dispatcher().MenuClick(41000));
    EXPECT_FALSE(Dispatcher().Update(&cmdUI));
    EXPECT_FALSE(Dispatcher().DisableMain());
}

TEST_F(CommandDispatch, InsIsAlwaysTheSameInstance) { EXPECT_EQ(CMenuEvtHandleMgr::Ins(), CMenuEvtHandleMgr::Ins()); }

TEST_F(CommandDispatch, ReactorsAreAskedInOrderOfRegistrationUntilOneHandles) {
    Add("A", false);
    Add("B", true);
    Add("C", true);
    EXPECT_TRUE(Dispatcher().MenuClick(41000));
    EXPECT_EQ(m_journal, "A click 41000;B click 41000;");
}

TEST_F(CommandDispatch, EarliestReactorHidesTheEventFromTheRest) {
    Add("B", true);
    Add("A", false);
    EXPECT_TRUE(Dispatcher().MenuClick(41000));
    EXPECT_EQ(m_journal, "B click 41000;");
}

TEST_F(CommandDispatch, EveryReactorIsAskedWhenNoneHandles) {
    Add("A");
    Add("B");
    EXPECT_FALSE(Dispatcher().MenuClick(7));
    EXPECT_EQ(m_journal, "A click 7;B click 7;");
}

TEST_F(CommandDispatch, UpdateAndDisableMainTakeTheSameRoad) {
    Add("A", false);
    Add("B", true);
    Add("C", true);
    CCmdUI cmdUI;
    EXPECT_TRUE(Dispatcher().Update(&cmdUI));
    EXPECT_TRUE(Dispatcher().DisableMain());
    EXPECT_EQ(m_journal, "A update;B update;A disable;B disable;");
}

TEST_F(CommandDispatch, ArgumentsArePassedUnchanged) {
    const auto first = Add("A");
    const auto second = Add("B");
    CCmdUI one;
    CCmdUI other;
    Dispatcher().MenuClick(0xFFFFFFFFu);
    for (CCmdUI* const cmdUI : {&one, &other, static_cast<CCmdUI*>(nullptr)}) {
        Dispatcher().Update(cmdUI);
        EXPECT_EQ(first->LastCmdUI(), cmdUI);
        EXPECT_EQ(second->LastCmdUI(), cmdUI);
    }
    EXPECT_EQ(m_journal,
              "A click 4294967295;B click 4294967295;A update;B update;A update;B update;A update;B update;");
}

TEST_F(CommandDispatch, ReactorThatDoesNotOverrideAnEventLetsItThrough) {
    Dispatcher().addReactor(boost::make_shared<CMenuReactor>());
    Add("A", true);
    CCmdUI cmdUI;
    EXPECT_TRUE(Dispatcher().Update(&cmdUI));
    EXPECT_TRUE(Dispatcher().MenuClick(1));
    EXPECT_TRUE(Dispatcher().DisableMain());
    EXPECT_EQ(m_journal, "A update;A click 1;A disable;");
}

TEST_F(CommandDispatch, ReactorAddedTwiceIsAskedTwice) {
    Dispatcher().addReactor(Add("A"));
    EXPECT_FALSE(Dispatcher().MenuClick(1));
    EXPECT_EQ(m_journal, "A click 1;A click 1;");
}

TEST_F(CommandDispatch, ReactorAddedTwiceThatHandlesIsAskedOnce) {
    Dispatcher().addReactor(Add("A", true));
    EXPECT_TRUE(Dispatcher().MenuClick(1));
    EXPECT_EQ(m_journal, "A click 1;");
}

TEST_F(CommandDispatch, GetReactorsGivesACopyInOrderOfRegistration) {
    const std::size_t before = Dispatcher().getReactors().size();
    const auto first = Add("A");
    const auto second = Add("B");
    const long uses = first.use_count();
    auto copy = Dispatcher().getReactors();
    ASSERT_EQ(copy.size(), before + 2);
    EXPECT_EQ(copy[before], first);
    EXPECT_EQ(copy[before + 1], second);
    EXPECT_EQ(first.use_count(), uses + 1);
    copy.clear();
    EXPECT_EQ(Dispatcher().getReactors().size(), before + 2);
}

struct Dispatch {
    const char* what;
    bool (*run)();
};

const Dispatch dispatches[] = {
    {"click 1", [] { return CMenuEvtHandleMgr::Ins()->MenuClick(1); }},
    {"update", [] { return CMenuEvtHandleMgr::Ins()->Update(nullptr); }},
    {"disable", [] { return CMenuEvtHandleMgr::Ins()->DisableMain(); }},
};

TEST_F(CommandDispatch, ReactorAddedDuringADispatchIsAskedInTheSameDispatch) {
    const auto first = Add("A");
    for (const Dispatch& dispatch : dispatches) {
        SilenceAllBut(first);
        m_journal.clear();
        first->instead = [this] {
            // Enough to make the list move in memory while the first reactor is running.
            for (int i = 0; i < 50; ++i) {
                Add("n");
            }
            Add("last", true);
            return false;
        };
        EXPECT_TRUE(dispatch.run()) << dispatch.what;
        const std::string asked = dispatch.what;
        EXPECT_TRUE(m_journal.starts_with("A " + asked + ";n " + asked + ";")) << m_journal;
        EXPECT_TRUE(m_journal.ends_with("n " + asked + ";last " + asked + ";")) << m_journal;
    }
}

TEST_F(CommandDispatch, ReactorMayDispatchAgain) {
    const auto first = Add("A");
    first->instead = [again = false]() mutable {
        if (again) {
            return false;
        }
        again = true;
        return Dispatcher().DisableMain();
    };
    Add("B", true);
    EXPECT_TRUE(Dispatcher().MenuClick(1));
    EXPECT_EQ(m_journal, "A click 1;A disable;B disable;");
}

TEST_F(CommandDispatch, ExceptionOfAReactorPassesOutAndReleasesTheLock) {
    const auto first = Add("A");
    Add("B", true);
    first->instead = []() -> bool { throw std::runtime_error("no"); };
    EXPECT_THROW(Dispatcher().MenuClick(1), std::runtime_error);
    EXPECT_EQ(m_journal, "A click 1;");
    first->instead = nullptr;
    bool handled = false;
    std::thread([&] { handled = Dispatcher().MenuClick(2); }).join();
    EXPECT_TRUE(handled);
}

TEST_F(CommandDispatch, ThreadsNeverDispatchAtOnce) {
    constexpr int threadCount = 4;
    constexpr int perThread = 500;
    // Not atomic on purpose: only the dispatcher's lock keeps this count right.
    int asked = 0;
    const auto counter = Add("A");
    counter->instead = [&asked] {
        ++asked;
        return true;
    };
    std::vector<std::thread> threads;
    for (int t = 0; t < threadCount; ++t) {
        threads.emplace_back([] {
            for (int i = 0; i < perThread; ++i) {
                Dispatcher().MenuClick(static_cast<unsigned int>(i));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(asked, threadCount * perThread);
}

TEST_F(CommandDispatch, EveryOperationWaitsForADispatchOfAnotherThread) {
    const auto first = Add("A");
    const auto late = Make("late");
    const std::function<void()> operations[] = {
        [&late] { Dispatcher().addReactor(late); }, [] { Dispatcher().getReactors(); },
        [] { Dispatcher().MenuClick(1); },          [] { Dispatcher().Update(nullptr); },
        [] { Dispatcher().DisableMain(); },
    };
    for (const auto& operation : operations) {
        for (const Dispatch& dispatch : dispatches) {
            std::optional<WatchedThread> other;
            first->instead = [&] {
                if (!other) {
                    EXPECT_FALSE(other.emplace(operation).FinishesWithin(1000));
                }
                return false;
            };
            EXPECT_FALSE(dispatch.run()) << dispatch.what;
            ASSERT_TRUE(other.has_value());
            other->Join();
            EXPECT_TRUE(other->HasFinished());
        }
    }
}

TEST_F(CommandDispatch, LockCarriesItsName) {
    // The lock is the dispatcher's first member.
    EXPECT_EQ(reinterpret_cast<const xrecursive_mutex*>(CMenuEvtHandleMgr::Ins())->getPrompt(),
              "CMenuEvtHandleMgr::m_mutex");
}

} // namespace

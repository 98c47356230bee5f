#include "combos/item_states.h"
#include "combos/synchronise.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <new>
#include <vector>

namespace {

/// An element whose setter tells its copies.
struct Element {
    std::vector<Element*>* all = nullptr;
    ItemStates<bool> states;
    SynchronisedFlag flag;
    int calls = 0;
    int searches = 0;

    bool Set(int index, bool state) {
        ++calls;
        if (!states.Set(index, 3, state)) {
            return false;
        }
        SynchroniseCopies(
            *this, [](Element& one) -> SynchronisedFlag& { return one.flag; },
            [this] {
                ++searches;
                return *all;
            },
            [&](Element& copy) { copy.Set(index, state); });
        return true;
    }
};

class Synchronise : public testing::Test {
protected:
    Synchronise() {
        for (Element* element : {&m_first, &m_second, &m_third}) {
            element->all = &m_all;
        }
    }
    Element m_first;
    Element m_second;
    Element m_third;
    std::vector<Element*> m_all{&m_first, nullptr, &m_second, &m_third};
};

TEST_F(Synchronise, EachCopyIsChangedOnceWhicheverOneWasSet) {
    for (Element* changed : {&m_first, &m_second, &m_third}) {
        for (Element* element : {&m_first, &m_second, &m_third}) {
            element->calls = element->searches = 0;
        }
        changed->Set(1, true);
        for (Element* element : {&m_first, &m_second, &m_third}) {
            EXPECT_EQ(element->calls, 1);
            EXPECT_EQ(element->searches, element == changed ? 1 : 0) << "only the changed one looks for copies";
            EXPECT_TRUE(element->states.GetOrEmpty(1));
            EXPECT_FALSE(element->flag.IsSet());
        }
    }
}

TEST_F(Synchronise, ARefusedChangeReachesNoCopy) {
    EXPECT_FALSE(m_first.Set(3, true));
    EXPECT_EQ(m_second.calls, 0);
}

TEST_F(Synchronise, AnElementWithoutCopiesIsAlone) {
    m_all.clear();
    EXPECT_TRUE(m_first.Set(0, true));
    EXPECT_EQ(m_first.calls, 1);
}

/// An element that does something when it is changed.
struct Acting {
    SynchronisedFlag flag;
    std::function<void()> act = [] {};
};

void ChangeAll(Acting& self, const std::vector<Acting*>& all) {
    SynchroniseCopies(
        self, [](Acting& one) -> SynchronisedFlag& { return one.flag; }, [&all] { return all; },
        [](Acting& copy) {
            const std::function<void()> act = copy.act;
            act();
        });
}

TEST(SynchroniseEnds, ACopyThatGoesWithAnothersChangeIsPassedOver) {
    Acting self;
    auto first = std::make_unique<Acting>();
    auto second = std::make_unique<Acting>();
    int changes = 0;
    first->act = [&] {
        ++changes;
        second.reset();
    };
    second->act = [&] { ++changes; };
    ChangeAll(self, {first.get(), second.get()});
    EXPECT_EQ(changes, 1);
    EXPECT_FALSE(first->flag.IsSet());
}

TEST(SynchroniseEnds, TheOneThatWasChangedAndTheCopyMayGoWithTheChange) {
    auto self = std::make_unique<Acting>();
    auto first = std::make_unique<Acting>();
    auto second = std::make_unique<Acting>();
    int changes = 0;
    first->act = [&] {
        ++changes;
        self.reset();
        first.reset();
    };
    second->act = [&] { ++changes; };
    ChangeAll(*self, {first.get(), second.get()});
    EXPECT_EQ(changes, 2);
}

TEST(SynchroniseEnds, AChangeThatFailsLeavesNoFlagSet) {
    Acting self;
    Acting copy;
    copy.act = [] { throw std::bad_alloc(); };
    EXPECT_THROW(ChangeAll(self, {&copy}), std::bad_alloc);
    EXPECT_FALSE(copy.flag.IsSet());
}

} // namespace

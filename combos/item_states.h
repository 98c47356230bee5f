#pragma once

#include <map>

/// What a combo keeps for its items beside them: a state for each position that was ever given one. The states belong
/// to positions, so they outlive the items and do not move with them.
template <class State>
class ItemStates {
public:
    /// False, and nothing changed, when the index is not that of an item.
    bool Set(int index, int itemCount, const State& state) {
        if (!IsItem(index, itemCount)) {
            return false;
        }
        m_states[index] = state;
        return true;
    }
    /// Changes a part of the state; a position without one starts with an empty one. False as for Set.
    template <class Change>
    bool Modify(int index, int itemCount, Change change) {
        if (!IsItem(index, itemCount)) {
            return false;
        }
        change(m_states[index]);
        return true;
    }
    /// Any index, also one without an item.
    void SetUnchecked(int index, const State& state) { m_states[index] = state; }

    /// False, and `state` untouched, when the position has none; whether there is an item plays no part.
    bool Get(int index, State& state) const {
        const auto found = m_states.find(index);
        if (found == m_states.end()) {
            return false;
        }
        state = found->second;
        return true;
    }
    /// What is drawn: an empty state where there is none.
    State GetOrEmpty(int index) const {
        State state{};
        Get(index, state);
        return state;
    }

    static bool IsItem(int index, int itemCount) { return index >= 0 && index < itemCount; }

private:
    std::map<int, State> m_states;
};

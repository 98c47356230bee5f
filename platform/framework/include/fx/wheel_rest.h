#pragma once

#include <windows.h>

namespace fx {

/// Counts the steps of a mouse wheel. Touchpads and fine wheels send a notch in many small turns.
class WheelRest {
public:
    /// The steps that this turn (WM_MOUSEWHEEL's) completes, with its sign. What is left waits for the next turn; a
    /// turn the other way starts anew.
    int Add(int turn, int stepsPerNotch = 1) {
        if ((turn < 0) != (m_rest < 0)) {
            m_rest = 0;
        }
        m_rest += turn * stepsPerNotch;
        const int steps = m_rest / WHEEL_DELTA;
        m_rest -= steps * WHEEL_DELTA;
        return steps;
    }
    /// The pointer has left.
    void Reset() { m_rest = 0; }

private:
    int m_rest = 0;
};

} // namespace fx

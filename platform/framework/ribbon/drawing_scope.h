#pragma once

#include "fx/scoped_change.h"

// Sets a ribbon bar's flag while that bar draws. Of the thread that has the windows.
class DrawingScope {
public:
    explicit DrawingScope(bool& flag) : m_flag(flag, true) {}

    // Some ribbon bar is drawing.
    static bool IsActive() { return s_depth > 0; }

private:
    inline static int s_depth = 0;
    fx::ScopedChange<bool> m_flag;
    fx::ScopedChange<int> m_depth{s_depth, s_depth + 1};
};

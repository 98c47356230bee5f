#pragma once

#include <utility>

// Sets a ribbon bar's flag while that bar draws. Of the thread that has the windows.
class DrawingScope {
public:
    explicit DrawingScope(bool& flag) : m_flag(flag), m_previous(std::exchange(flag, true)) { ++s_depth; }
    ~DrawingScope() {
        m_flag = m_previous;
        --s_depth;
    }
    DrawingScope(const DrawingScope&) = delete;
    DrawingScope& operator=(const DrawingScope&) = delete;

    // Some ribbon bar is drawing.
    static bool IsActive() { return s_depth > 0; }

private:
    inline static int s_depth = 0;
    bool& m_flag;
    const bool m_previous;
};

#pragma once

// What is seen while much changes at once.

#include "framework_api.h"

#include <memory>
#include <vector>

namespace fx {

/// While it lives, the screen shows the frames of this thread as they were when it was made: pictures of them lie over
/// them, through which input goes. At the end what is still to be painted below is painted, and then all of it is seen
/// at once. For changes that repaint many windows one after the other, such as another look or another language.
///
/// Frames are the visible top-level windows with children and a caption or a sizing border, floating panes among them;
/// pop-ups are not. One inside another does nothing, nor does one in the middle of a painting. Where the system has no
/// room for a picture, the window is seen changing. Windows may be moved, hidden and destroyed meanwhile. It belongs to
/// the thread that made it, and is for fractions of a second: who waits for input in it shows old pictures.
class FRAMEWORK_API WindowFreeze {
public:
    WindowFreeze();
    ~WindowFreeze();
    WindowFreeze(const WindowFreeze&) = delete;
    WindowFreeze& operator=(const WindowFreeze&) = delete;

private:
    class Cover;
    std::vector<std::unique_ptr<Cover>> m_covers;
};

} // namespace fx

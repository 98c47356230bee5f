#pragma once

#include <windows.h>

namespace fx {

/// A dialog uses up every key: the accelerators of the enabled frames that own it, and of the main window, come before.
/// TRUE: the key was one, or a frame's own. A character that the control under the caret types is nobody's.
BOOL TranslateFrameKey(HWND dialog, MSG& message);

} // namespace fx

#pragma once

#include <windows.h>

namespace fx {

/// A dialog uses up every key: the accelerators of the enabled frames that own it, and of the main window, come before.
/// TRUE: the key was one, or a frame's own. A character that the control under the caret types is nobody's.
BOOL TranslateFrameKey(HWND dialog, MSG& message);

/// What a window of controls does with a key or the mouse before it is dispatched: the frames' keys come first, then
/// `takeInput`, as IsDialogMessage. TRUE: one of them has used the message up; other messages are nobody's.
BOOL TranslateDialogInput(HWND dialog, MSG& message, BOOL(WINAPI* takeInput)(HWND dialog, MSG* message));

} // namespace fx

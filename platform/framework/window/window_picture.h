#pragma once

#include <windows.h>

/// Draws what a window shows, its frame and children included, whatever lies over it on the screen. dx, dy: where its
/// upper left corner comes on the target, in pixels. A mirrored window is drawn as it stands on the screen.
void DrawWindowPicture(HDC target, HWND window, int dx, int dy);

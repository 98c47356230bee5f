#pragma once

#include <windows.h>

#include <vector>

/// The dialogs of the viewer and of the system that are shown over a frame and over each other, the uppermost first.
/// Bars that float are none. The frame is one of the calling thread's.
std::vector<HWND> DialogsOver(HWND frame);

#pragma once

#include <windows.h>

#include <vector>

class CFrameWnd;

/// The main frame of the thread when it has accelerators, else null.
CFrameWnd* FrameWithAccelerators();
/// The entries of a frame's table.
std::vector<ACCEL> AcceleratorsOf(const CFrameWnd& frame);
/// Whether the application has a keyboard manager that takes accelerators.
bool TakesAccelerators();
/// Makes the entries the application's accelerators. Does nothing without entries, or without a main frame.
void InstallAccelerators(const ACCEL* entries, int count);

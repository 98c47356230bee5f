#pragma once

#include <windows.h>

#include <string>

/// Keeps GDI+ up for as long as it lives.
class GdiPlusSession {
public:
    GdiPlusSession();
    ~GdiPlusSession();
    GdiPlusSession(const GdiPlusSession&) = delete;
    GdiPlusSession& operator=(const GdiPlusSession&) = delete;

private:
    ULONG_PTR m_token = 0;
};

/// Writes a bitmap into a PNG file. Needs a GdiPlusSession. False when the file cannot be written.
bool WritePng(HBITMAP bitmap, const std::wstring& path);

/// Writes what a shown window looks like now, frame and children included, into a PNG file. Needs a display and a
/// GdiPlusSession. False when the window has no area or the file cannot be written.
bool WriteScreenshot(HWND window, const std::wstring& path);

/// Dispatches messages until the queue is empty and everything is painted, so that a picture shows the final state.
void SettleWindow(HWND window);

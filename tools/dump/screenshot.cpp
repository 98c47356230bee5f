#include "screenshot.h"

#include <afxwin.h>

#include <algorithm>

#include <gdiplus.h>

#include <memory>
#include <vector>

namespace {

bool FindPngEncoder(CLSID& id) {
    UINT count = 0;
    UINT bytes = 0;
    Gdiplus::GetImageEncodersSize(&count, &bytes);
    std::vector<BYTE> buffer(bytes);
    auto* const encoders = reinterpret_cast<Gdiplus::ImageCodecInfo*>(buffer.data());
    if (count == 0 || Gdiplus::GetImageEncoders(count, bytes, encoders) != Gdiplus::Ok) {
        return false;
    }
    const auto found = std::find_if(encoders, encoders + count,
                                    [](const auto& codec) { return codec.FormatID == Gdiplus::ImageFormatPNG; });
    if (found == encoders + count) {
        return false;
    }
    id = found->Clsid;
    return true;
}

} // namespace

GdiPlusSession::GdiPlusSession() {
    Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
}

GdiPlusSession::~GdiPlusSession() { Gdiplus::GdiplusShutdown(m_token); }

bool WritePng(HBITMAP bitmap, const std::wstring& path) {
    CLSID encoder;
    Gdiplus::Bitmap picture(bitmap, nullptr);
    return FindPngEncoder(encoder) && picture.Save(path.c_str(), &encoder, nullptr) == Gdiplus::Ok;
}

bool WriteScreenshot(HWND window, const std::wstring& path) {
    CRect rect;
    if (!::GetWindowRect(window, rect) || rect.IsRectEmpty()) {
        return false;
    }
    CBitmap bitmap;
    {
        CWindowDC source(CWnd::FromHandle(window));
        // A mirrored window is copied as it stands on the screen.
        ::SetLayout(source.GetSafeHdc(), 0);
        CDC memory;
        memory.CreateCompatibleDC(&source);
        bitmap.CreateCompatibleBitmap(&source, rect.Width(), rect.Height());
        CBitmap* const earlier = memory.SelectObject(&bitmap);
        memory.BitBlt(0, 0, rect.Width(), rect.Height(), &source, 0, 0, SRCCOPY);
        memory.SelectObject(earlier);
    }
    return WritePng(bitmap, path);
}

void SettleWindow(HWND window) {
    // Idle work may invalidate and painting may post: a few rounds settle both.
    for (int round = 0; round < 5; ++round) {
        MSG message;
        while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE)) {
            if (!AfxGetThread()->PumpMessage()) {
                return;
            }
        }
        for (LONG count = 0; AfxGetThread()->OnIdle(count); ++count) {
        }
        ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
}

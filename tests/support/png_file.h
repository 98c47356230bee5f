#pragma once

#include <windows.h>

#include <objidl.h>
#include <propidl.h>

#include <gdiplus.h>

#include <string>

/// Started for as long as it lives; the program links gdiplus.
class ScopedGdiplus {
public:
    ScopedGdiplus() {
        const Gdiplus::GdiplusStartupInput input;
        m_isStarted = Gdiplus::GdiplusStartup(&m_token, &input, nullptr) == Gdiplus::Ok;
    }
    ~ScopedGdiplus() {
        if (m_isStarted) {
            Gdiplus::GdiplusShutdown(m_token);
        }
    }
    ScopedGdiplus(const ScopedGdiplus&) = delete;
    ScopedGdiplus& operator=(const ScopedGdiplus&) = delete;

    bool IsStarted() const { return m_isStarted; }

private:
    ULONG_PTR m_token = 0;
    bool m_isStarted = false;
};

inline constexpr CLSID kPngEncoder{0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

/// Writes the bitmap, which must not be selected into a context that still draws, as a PNG. GDI+ must have been
/// started.
inline bool WritePng(HBITMAP bitmap, const std::wstring& path) {
    Gdiplus::Bitmap picture(bitmap, nullptr);
    return picture.Save(path.c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
}

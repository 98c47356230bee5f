#pragma once

#include <windows.h>

#include <objidl.h>
#include <propidl.h>

#include <gdiplus.h>

#include <gtest/gtest.h>

#include <string>

/// Writes the bitmap as a PNG for people to look at, when BARWRIGHT_PICTURES names a folder; does nothing otherwise.
/// The program links gdiplus.
inline void SavePicture(HBITMAP bitmap, const std::wstring& name) {
    wchar_t folder[MAX_PATH];
    if (::GetEnvironmentVariableW(L"BARWRIGHT_PICTURES", folder, MAX_PATH) == 0) {
        return;
    }
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    ASSERT_EQ(Gdiplus::GdiplusStartup(&token, &input, nullptr), Gdiplus::Ok);
    {
        Gdiplus::Bitmap picture(bitmap, nullptr);
        const CLSID png{0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
        EXPECT_EQ(picture.Save((std::wstring(folder) + L"\\" + name).c_str(), &png, nullptr), Gdiplus::Ok);
    }
    Gdiplus::GdiplusShutdown(token);
}

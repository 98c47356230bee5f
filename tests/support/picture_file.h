#pragma once

#include "tests/support/png_file.h"

#include <gtest/gtest.h>

/// Writes the bitmap as a PNG for people to look at, when BARWRIGHT_PICTURES names a folder; does nothing otherwise.
/// The program links gdiplus.
inline void SavePicture(HBITMAP bitmap, const std::wstring& name) {
    wchar_t folder[MAX_PATH];
    if (::GetEnvironmentVariableW(L"BARWRIGHT_PICTURES", folder, MAX_PATH) == 0) {
        return;
    }
    const ScopedGdiplus gdiplus;
    ASSERT_TRUE(gdiplus.IsStarted());
    EXPECT_TRUE(WritePng(bitmap, std::wstring(folder) + L"\\" + name));
}

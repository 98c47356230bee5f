// visual_gallery DIR: writes STYLE-PERCENT.png of all ribbon parts for each style, for people to look at.
#include "gallery_sheet.h"

#include "tests/support/png_file.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace {

bool WriteSheet(const std::wstring& path, std::size_t style, int percent) {
    const visual::Look look{visual::StyleSkin(style), percent / 100.0};
    const int width = look.Px(g_sheetSize.cx), height = look.Px(g_sheetSize.cy);
    std::uint32_t* bits = nullptr;
    const HBITMAP bitmap = visual::MakeBitmap32(width, height, &bits);
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ previousBitmap = SelectObject(dc, bitmap);
    const HFONT font = CreateFontW(-look.Px(12), 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, CLEARTYPE_QUALITY,
                                   0, L"Segoe UI");
    const HGDIOBJ previousFont = SelectObject(dc, font);
    DrawSheet(dc, look);
    SelectObject(dc, previousFont);
    DeleteObject(font);
    SelectObject(dc, previousBitmap);
    DeleteDC(dc);
    const bool isSaved = WritePng(bitmap, path);
    DeleteObject(bitmap);
    return isSaved;
}

} // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 2) {
        std::fputs("usage: visual_gallery DIR\n", stderr);
        return 2;
    }
    const ScopedGdiplus gdiplus;
    if (!gdiplus.IsStarted()) {
        return 1;
    }
    const wchar_t* styles[] = {L"blue", L"black", L"aqua", L"silver"};
    int failures = 0;
    for (std::size_t style = 0; style < visual::g_styleCount; ++style) {
        for (const int percent : {100, 150, 200}) {
            const std::wstring path =
                std::wstring(arguments[1]) + L"\\" + styles[style] + L"-" + std::to_wstring(percent) + L".png";
            if (!WriteSheet(path, style, percent)) {
                ++failures;
            }
        }
    }
    return failures == 0 ? 0 : 1;
}

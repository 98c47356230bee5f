// visual_gallery DIR: writes STYLE-PERCENT.png of all ribbon parts for each style, for people to look at.
#include "gallery_sheet.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <objidl.h>
#include <gdiplus.h>

namespace {

constexpr CLSID g_pngEncoder{0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

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
    Gdiplus::Bitmap picture(width, height, width * 4, PixelFormat32bppRGB, reinterpret_cast<BYTE*>(bits));
    const bool isSaved = picture.Save(path.c_str(), &g_pngEncoder, nullptr) == Gdiplus::Ok;
    DeleteObject(bitmap);
    return isSaved;
}

} // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 2) {
        std::fputs("usage: visual_gallery DIR\n", stderr);
        return 2;
    }
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok)
        return 1;
    const wchar_t* styles[] = {L"blue", L"black", L"aqua", L"silver"};
    int failures = 0;
    for (std::size_t style = 0; style < visual::g_styleCount; ++style)
        for (const int percent : {100, 150, 200}) {
            const std::wstring path =
                std::wstring(arguments[1]) + L"\\" + styles[style] + L"-" + std::to_wstring(percent) + L".png";
            if (!WriteSheet(path, style, percent))
                ++failures;
        }
    Gdiplus::GdiplusShutdown(token);
    return failures == 0 ? 0 : 1;
}

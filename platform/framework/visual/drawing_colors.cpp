#include "afxdrawmanager.h"

#include "visual/color_math.h"

#include <algorithm>

COLORREF __stdcall CDrawingManager::PixelAlpha(COLORREF srcPixel, int percent) {
    return visual::Percent(srcPixel, percent, percent, percent);
}

COLORREF __stdcall CDrawingManager::PixelAlpha(COLORREF srcPixel, double percentR, double percentG, double percentB) {
    return visual::Percent(srcPixel, percentR, percentG, percentB);
}

COLORREF __stdcall CDrawingManager::PixelAlpha(COLORREF srcPixel, COLORREF dstPixel, int percent) {
    const auto mixed = [percent](int source, int target) {
        return static_cast<BYTE>(std::clamp((source * percent + target * (100 - percent) + 50) / 100, 0, 255));
    };
    return RGB(mixed(GetRValue(srcPixel), GetRValue(dstPixel)), mixed(GetGValue(srcPixel), GetGValue(dstPixel)),
               mixed(GetBValue(srcPixel), GetBValue(dstPixel)));
}

COLORREF __stdcall CDrawingManager::SmartMixColors(COLORREF color1, COLORREF color2, double dblLumRatio, int k1,
                                                   int k2) {
    if (k1 + k2 <= 0) {
        return color1;
    }
    const auto mixed = [&](int first, int second) { return static_cast<BYTE>((first * k1 + second * k2) / (k1 + k2)); };
    visual::Hsl color =
        visual::ToHsl(RGB(mixed(GetRValue(color1), GetRValue(color2)), mixed(GetGValue(color1), GetGValue(color2)),
                          mixed(GetBValue(color1), GetBValue(color2))));
    // The mixture keeps the brightness of its second part, so that mixing never washes a dark scheme out.
    color.lightness = dblLumRatio * visual::ToHsl(color2).lightness;
    return visual::FromHsl(color);
}

COLORREF __stdcall CDrawingManager::HLStoRGB_ONE(double H, double L, double S) { return visual::FromHsl({H, S, L}); }

COLORREF __stdcall CDrawingManager::HLStoRGB_TWO(double H, double L, double S) {
    return visual::FromHsl({H / 360, S, L});
}

COLORREF __stdcall CDrawingManager::HSVtoRGB(double H, double S, double V) { return visual::FromHsv({H, S, V}); }

double __stdcall CDrawingManager::HuetoRGB(double m1, double m2, double h) {
    h += h < 0 ? 1.0 : h > 1 ? -1.0 : 0.0;
    if (6 * h < 1) {
        return m1 + (m2 - m1) * h * 6;
    }
    if (2 * h < 1) {
        return m2;
    }
    return 3 * h < 2 ? m1 + (m2 - m1) * (2.0 / 3 - h) * 6 : m1;
}

BYTE __stdcall CDrawingManager::HueToRGB(float rm1, float rm2, float rh) {
    return static_cast<BYTE>(std::clamp(HuetoRGB(rm1, rm2, rh / 360.0) * 255 + 0.5, 0.0, 255.0));
}

void __stdcall CDrawingManager::RGBtoHSL(COLORREF rgb, double* H, double* S, double* L) {
    const visual::Hsl color = visual::ToHsl(rgb);
    *H = color.hue;
    *S = color.saturation;
    *L = color.lightness;
}

void __stdcall CDrawingManager::RGBtoHSV(COLORREF rgb, double* H, double* S, double* V) {
    const visual::Hsv color = visual::ToHsv(rgb);
    *H = color.hue;
    *S = color.saturation;
    *V = color.value;
}

void __stdcall CDrawingManager::SetPixel(COLORREF* pBits, int cx, int cy, int x, int y, COLORREF color) {
    if (x >= 0 && x < cx && y >= 0 && y < cy) {
        pBits[static_cast<size_t>(y) * cx + x] = RGB(GetBValue(color), GetGValue(color), GetRValue(color));
    }
}

void __stdcall CDrawingManager::SetAlphaPixel(COLORREF* pBits, CRect rect, int x, int y, int percent, int iShadowSize,
                                              COLORREF clrBase, BOOL bIsRight) {
    const int pitch = rect.Width() + iShadowSize;
    const int column = bIsRight ? x : rect.right - x;
    COLORREF& pixel = pBits[static_cast<size_t>(rect.bottom - y + iShadowSize) * pitch + column];
    pixel = clrBase == static_cast<COLORREF>(-1) ? PixelAlpha(pixel, percent) : PixelAlpha(pixel, clrBase, percent);
}

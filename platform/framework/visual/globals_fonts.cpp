#include "afxglobals.h"

#include "fx/dc_scope.h"
#include "visual/text_size.h"

#include <cstddef>
#include <cstring>
#include <cwchar>

namespace {

int CALLBACK Found(const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM found) {
    *reinterpret_cast<bool*>(found) = true;
    return 0;
}

bool FontExists(HDC dc, const wchar_t* name) {
    LOGFONTW wanted{};
    wanted.lfCharSet = DEFAULT_CHARSET;
    std::wcsncpy(wanted.lfFaceName, name, LF_FACESIZE - 1);
    bool found = false;
    EnumFontFamiliesExW(dc, &wanted, &Found, reinterpret_cast<LPARAM>(&found), 0);
    return found;
}

/// A user who works in Chinese gets the font made for it; both fonts show the other's characters by font linking.
const wchar_t* InterfaceFont(HDC dc, const wchar_t* fallback) {
    static constexpr const wchar_t* western[] = {L"Segoe UI", L"Microsoft YaHei UI", L"Tahoma"};
    static constexpr const wchar_t* chinese[] = {L"Microsoft YaHei UI", L"Segoe UI", L"Tahoma"};
    const bool isChinese = PRIMARYLANGID(GetUserDefaultUILanguage()) == LANG_CHINESE;
    for (const wchar_t* name : isChinese ? chinese : western) {
        if (FontExists(dc, name)) {
            return name;
        }
    }
    return fallback;
}

bool IsSame(const LOGFONTW& left, const LOGFONTW& right) {
    return std::memcmp(&left, &right, offsetof(LOGFONTW, lfFaceName)) == 0 &&
           std::wcscmp(left.lfFaceName, right.lfFaceName) == 0;
}

/// Leaves a font alone that is so already: controls may show it.
void Recreate(CFont& font, const LOGFONTW& description) {
    LOGFONTW present{};
    if (font.GetSafeHandle() && font.GetLogFont(&present) && IsSame(present, description)) {
        return;
    }
    font.DeleteObject();
    font.CreateFontIndirect(&description);
}

int TextHeight(HDC dc, const CFont& font) {
    const fx::DcSelection selected(dc, font);
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    return metrics.tmHeight;
}

/// Three tenths of the characters' height between two lines: rows of lists are read easily, and their marks stand
/// apart.
int WithLeading(int characterHeight) { return characterHeight + (3 * characterHeight + 5) / 10; }

} // namespace

BOOL AFX_GLOBAL_DATA::GetNonClientMetrics(NONCLIENTMETRICS& info) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof(metrics);
    if (!SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0)) {
        return FALSE;
    }
    info = metrics;
    return TRUE;
}

void AFX_GLOBAL_DATA::UpdateFonts() {
    m_dblRibbonImageScale = m_dblScaleSetByHost != 0.0 ? m_dblScaleSetByHost : ScreenScale();
    NONCLIENTMETRICSW metrics{};
    if (GetNonClientMetrics(metrics)) {
        CreateFonts(metrics);
    }
    UpdateTextHeights();
}

void AFX_GLOBAL_DATA::CreateFonts(const NONCLIENTMETRICS& metrics) {
    LOGFONTW font = metrics.lfMenuFont;
    const HDC screen = GetDC(nullptr);
    const double systemScale = GetDeviceCaps(screen, LOGPIXELSY) / 96.0;
    if (!m_bUseSystemFont) {
        std::wcsncpy(font.lfFaceName, InterfaceFont(screen, metrics.lfMenuFont.lfFaceName), LF_FACESIZE - 1);
    }
    ReleaseDC(nullptr, screen);
    font.lfHeight = -visual::FontPixels(metrics.lfMenuFont.lfHeight, systemScale, GetRibbonImageScale());
    font.lfWidth = 0;
    font.lfWeight = FW_NORMAL;
    font.lfItalic = FALSE;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfQuality = CLEARTYPE_QUALITY;
    Recreate(fontRegular, font);
    Recreate(fontTooltip, font);

    LOGFONTW variant = font;
    variant.lfWeight = FW_BOLD;
    Recreate(fontBold, variant);
    Recreate(fontDefaultGUIBold, variant);

    variant = font;
    variant.lfUnderline = TRUE;
    Recreate(fontUnderline, variant);

    variant = font;
    variant.lfHeight = font.lfHeight * 9 / 10;
    Recreate(fontSmall, variant);

    // A quarter turn counter-clockwise and clockwise.
    variant = font;
    variant.lfEscapement = variant.lfOrientation = 2700;
    Recreate(fontVert, variant);
    variant.lfEscapement = variant.lfOrientation = 900;
    Recreate(fontVertCaption, variant);
}

void AFX_GLOBAL_DATA::UpdateTextHeights() {
    const HDC screen = GetDC(nullptr);
    m_nCharacterHeight = TextHeight(screen, fontRegular);
    m_nTextHeightHorz = WithLeading(m_nCharacterHeight);
    m_nTextHeightVert = WithLeading(TextHeight(screen, fontVert));
    ReleaseDC(nullptr, screen);
}

int AFX_GLOBAL_DATA::GetTextHeight(BOOL bHorz) { return bHorz ? m_nTextHeightHorz : m_nTextHeightVert; }

BOOL AFX_GLOBAL_DATA::SetMenuFont(LPLOGFONT lpLogFont, BOOL bHorz) {
    const HFONT made = lpLogFont != nullptr ? CreateFontIndirectW(lpLogFont) : nullptr;
    if (made == nullptr) {
        return FALSE;
    }
    CFont& font = bHorz ? fontRegular : fontVert;
    font.DeleteObject();
    font.Attach(made);
    if (bHorz) {
        LOGFONTW bold = *lpLogFont;
        bold.lfWeight = FW_BOLD;
        Recreate(fontBold, bold);
    }
    UpdateTextHeights();
    return TRUE;
}

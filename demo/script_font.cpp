#include "script_font.h"

#include <afxglobals.h>

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr std::array<const wchar_t*, 5> kFamilies = {L"Segoe UI", L"Noto Sans Hebrew", L"Noto Sans Arabic",
                                                     L"DejaVu Sans", L"Arial"};

bool HasLetters(CFont& font, const std::wstring& sample) {
    CClientDC dc(nullptr);
    CFont* const before = dc.SelectObject(&font);
    std::vector<WORD> glyphs(sample.size());
    const DWORD count = ::GetGlyphIndicesW(dc.GetSafeHdc(), sample.c_str(), static_cast<int>(sample.size()),
                                           glyphs.data(), GGI_MARK_NONEXISTING_GLYPHS);
    dc.SelectObject(before);
    constexpr WORD none = 0xFFFF;
    return count != GDI_ERROR && std::find(glyphs.begin(), glyphs.end(), none) == glyphs.end();
}

void ChangeFamily(CFont& font, const wchar_t* family) {
    LOGFONT description = {};
    if (font.GetLogFont(&description) != 0) {
        ::lstrcpynW(description.lfFaceName, family, LF_FACESIZE);
        description.lfCharSet = DEFAULT_CHARSET;
        font.DeleteObject();
        font.CreateFontIndirect(&description);
    }
}

} // namespace

void TakeScriptFonts(const std::wstring& sample) {
    afxGlobalData.UpdateFonts();
    if (HasLetters(afxGlobalData.fontRegular, sample)) {
        return;
    }
    for (const wchar_t* const family : kFamilies) {
        LOGFONT description = {};
        afxGlobalData.fontRegular.GetLogFont(&description);
        ::lstrcpynW(description.lfFaceName, family, LF_FACESIZE);
        description.lfCharSet = DEFAULT_CHARSET;
        CFont font;
        if (font.CreateFontIndirect(&description) && HasLetters(font, sample)) {
            afxGlobalData.SetMenuFont(&description, TRUE);
            for (CFont* const other : {&afxGlobalData.fontTooltip, &afxGlobalData.fontSmall,
                                       &afxGlobalData.fontUnderline, &afxGlobalData.fontDefaultGUIBold}) {
                ChangeFamily(*other, family);
            }
            return;
        }
    }
}

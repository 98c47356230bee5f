#include "toolbar/field_look.h"

#include "afxvisualmanager.h"
#include "fx/dc_scope.h"
#include "fx/window_dc.h"

namespace toolbar {

namespace {

/// The field's text colour. It looks the same under the pointer: the control on it is not asked again then.
COLORREF FillField(CDC& dc, const CRect& rect, bool isDisabled) {
    COLORREF text = 0, selection = 0, selectedText = 0;
    CMFCVisualManager::GetInstance()->OnFillRibbonEdit(&dc, nullptr, rect, FALSE, FALSE, isDisabled ? TRUE : FALSE,
                                                       text, selection, selectedText);
    return text;
}

struct FieldColors {
    COLORREF ground;
    COLORREF text;
};

FieldColors SystemColors(bool isDisabled) {
    return {::GetSysColor(isDisabled ? COLOR_BTNFACE : COLOR_WINDOW),
            ::GetSysColor(isDisabled ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT)};
}

/// Of the middle of a field, where it has no border.
FieldColors ColorsOfField(bool isDisabled) {
    constexpr int kSide = 32;
    CClientDC screen(nullptr);
    CDC memory;
    CBitmap bitmap;
    if (!memory.CreateCompatibleDC(&screen) || !bitmap.CreateCompatibleBitmap(&screen, kSide, kSide)) {
        return SystemColors(isDisabled);
    }
    const fx::DcSelection selected(memory.m_hDC, bitmap.m_hObject);
    const COLORREF text = FillField(memory, CRect(0, 0, kSide, kSide), isDisabled);
    return {memory.GetPixel(kSide / 2, kSide / 2), text};
}

HBRUSH GiveColors(CDC& dc, const FieldColors& colors) {
    dc.SetTextColor(colors.text);
    dc.SetBkColor(colors.ground);
    ::SetDCBrushColor(dc.m_hDC, colors.ground);
    return static_cast<HBRUSH>(::GetStockObject(DC_BRUSH));
}

} // namespace

void DrawField(CDC& dc, const CRect& rect, bool isDisabled) { FillField(dc, rect, isDisabled); }

HBRUSH ColorField(CDC& dc, bool isDisabled) { return GiveColors(dc, ColorsOfField(isDisabled)); }

HBRUSH ColorList(CDC& dc) { return GiveColors(dc, SystemColors(false)); }

COLORREF HintColor(const CDC& dc) {
    const COLORREF ground = dc.GetBkColor(), text = dc.GetTextColor();
    const auto mix = [](int a, int b) { return a + (b - a) * 6 / 10; };
    return RGB(mix(GetRValue(ground), GetRValue(text)), mix(GetGValue(ground), GetGValue(text)),
               mix(GetBValue(ground), GetBValue(text)));
}

} // namespace toolbar

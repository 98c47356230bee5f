#include "combos/combo_parts.h"

#include "check_drop_down.h"

#include <afxRibbonPanel.h>
#include <fx/item_marks.h>
#include <varnhold/language.h>

#include <algorithm>

namespace {

constexpr int mostCharacters = 400; // wider than any screen

/// As much of a text as can be seen in one line.
CString InOneLine(CString text) {
    text.Truncate(std::min(text.GetLength(), mostCharacters));
    for (int i = 0; i < text.GetLength(); ++i) {
        if (text[i] < L' ') {
            text.SetAt(i, L' ');
        }
    }
    return text;
}

} // namespace

HWND HostOf(const CMFCRibbonBaseElement& combo) {
    const CMFCRibbonBar* const bar = combo.GetTopLevelRibbonBar();
    if (!bar || !bar->GetSafeHwnd()) {
        return nullptr;
    }
    const CWnd* const owner = bar->GetOwner();
    const HWND window = owner ? owner->GetSafeHwnd() : nullptr;
    return ::IsWindow(window) ? window : nullptr;
}

LRESULT TellHost(HWND host, UINT message, const CString& text, LPARAM lParam) {
    return ::IsWindow(host) ? ::SendMessageW(host, message, reinterpret_cast<WPARAM>(&text), lParam) : 0;
}

void SelectRow(CMFCRibbonComboBox& combo, int index) {
    if (index >= 0) {
        combo.SelectItem(index);
    }
}

CString TextOf(const CMFCRibbonComboBox& combo, int index) {
    return index >= 0 && index < CountOf(combo) ? CString(combo.GetItem(index)) : CString();
}

CString Displayed(const wchar_t* word) { return CMultiLanguageMgr::translation(word, "Common", -1).c_str(); }

CString DisplayedTextOf(const CMFCRibbonComboBox& combo, int index) { return Displayed(TextOf(combo, index)); }

void DrawTextOf(const CMFCRibbonComboBox& combo, CDC& dc, int index, const fx::Rect& place) {
    CRect rect = fx::ToRect(place);
    if (rect.IsRectEmpty()) {
        return;
    }
    const int mode = dc.SetBkMode(TRANSPARENT);
    dc.DrawText(InOneLine(DisplayedTextOf(combo, index)), &rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    dc.SetBkMode(mode);
}

std::unique_ptr<CMFCDropDownListBox> MakeMarkedList(CMFCRibbonComboBox& combo, const std::vector<fx::Rect>& zones) {
    auto list = std::make_unique<CMFCCheckDropDown>(&combo);
    std::vector<CRect> rects(zones.size());
    std::ranges::transform(zones, rects.begin(), fx::ToRect);
    list->SetSpRects(rects);
    return list;
}

void CoolPanelOf(const CMFCRibbonComboBox& combo) {
    if (CMFCRibbonPanel* const panel = combo.GetParentPanel()) {
        panel->Highlight(FALSE, CPoint(-1, -1));
    }
}

int RowWidthOf(const CMFCRibbonComboBox& combo, CDC& dc, int index, int marksWidth) {
    return marksWidth + static_cast<int>(dc.GetTextExtent(InOneLine(DisplayedTextOf(combo, index))).cx) + marks::gap;
}

bool ShowMarkChange(CMFCRibbonComboBox& combo, int index) { return fx::ShowItemMark(combo, index); }

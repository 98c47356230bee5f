#include "search_field.h"

#include "library_context.h"
#include "scaled.h"
#include "soft_canvas.h"

#include <afxglobals.h>
#include <afxribbonbar.h>

IMPLEMENT_DYNCREATE(CSearchField, CMFCRibbonUNIcoButton)

namespace {

constexpr wchar_t kIcon[] = L"pic\\skin\\icon\\modle\\search.ico";
// Pixels at 96 DPI.
constexpr int kWidth = 210;
constexpr int kNarrowWidth = 32;
constexpr int kHeight = 24;
constexpr int kNarrowBar = 700; // the tabs of all modes and the field fit in
constexpr int kIconSide = 16;
constexpr int kIndent = 8;
constexpr int kCorner = 4;
constexpr COLORREF kInk = RGB(255, 255, 255);
constexpr COLORREF kPrompt = RGB(222, 226, 234);
constexpr double kRest = 0.12; // of the ink over the ground
constexpr double kHot = 0.2;
constexpr double kPressed = 0.28;

} // namespace

CSearchField::CSearchField(UINT id, const std::wstring& prompt, const std::wstring& style)
    : CMFCRibbonUNIcoButton(id, L"", GetIconPathStr(kIcon, 32), FALSE, GetIconPathStr(kIcon, 16), TRUE),
      m_prompt(prompt),
      m_style(&style) {}

bool CSearchField::IsNarrow() const {
    const CMFCRibbonBar* const bar = GetTopLevelRibbonBar();
    CRect client;
    if (bar != nullptr && bar->GetSafeHwnd() != nullptr) {
        bar->GetClientRect(client);
    }
    return client.Width() < Scaled(kNarrowBar);
}

CSize CSearchField::GetRegularSize(CDC* /*dc*/) {
    return {Scaled(IsNarrow() ? kNarrowWidth : kWidth), Scaled(kHeight)};
}

void CSearchField::OnDraw(CDC* dc) {
    CRect rect = GetRect();
    rect.DeflateRect(0, std::max(0, (rect.Height() - Scaled(kHeight)) / 2));
    if (rect.IsRectEmpty()) {
        return;
    }
    const bool isNarrow = rect.Width() < Scaled(kWidth) / 2;
    {
        SoftCanvas canvas(*dc, rect);
        const double strength = IsPressed() ? kPressed : IsHighlighted() || IsFocused() ? kHot : isNarrow ? 0 : kRest;
        canvas.FillRounded(CRect(CPoint(0, 0), canvas.Size()), Scaled(kCorner), kInk, strength);
    }
    const int side = Scaled(kIconSide);
    const int left = isNarrow ? rect.left + (rect.Width() - side) / 2 : rect.left + Scaled(kIndent);
    SetSkinStyle(L"0");
    DrawImage(dc, RibbonImageSmall, CRect(CPoint(left, rect.top + (rect.Height() - side) / 2), CSize(side, side)));
    SetSkinStyle(m_style != nullptr ? m_style->c_str() : L"");
    if (!isNarrow) {
        CRect text = rect;
        text.left = left + side + Scaled(kIndent);
        text.right -= Scaled(kIndent);
        CFont* const font = dc->SelectObject(&afxGlobalData.fontRegular);
        const COLORREF color = dc->SetTextColor(kPrompt);
        const int mode = dc->SetBkMode(TRANSPARENT);
        dc->DrawText(m_prompt.c_str(), text, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
        dc->SetBkMode(mode);
        dc->SetTextColor(color);
        dc->SelectObject(font);
    }
}

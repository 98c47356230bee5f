#include "combos/window_combo_parts.h"

#include "commands/sent_commands.h"

#include <afxtoolbar.h>
#include <afxtoolbarcomboboxbutton.h>
#include <afxwin.h>
#include <fx/dc_scope.h>
#include <fx/to_rect.h>

#include <algorithm>

namespace window_combo {
namespace {

constexpr int textMargin = 4;

CString FaceName(Face face) { return face == Face::SimSun ? L"\u5b8b\u4f53" : L"Arial"; }

void CreateRowFont(CFont& font, Face face) {
    constexpr int height = 15;
    constexpr int weight = 300;
    constexpr DWORD pitchAndFamily = 32;
    font.CreateFont(height, 0, 0, 0, weight, FALSE, FALSE, 0, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                    DEFAULT_QUALITY, pitchAndFamily, FaceName(face));
}

struct RowColors {
    int text;
    int ground;
};

RowColors ColorsOf(const DRAWITEMSTRUCT& item, bool isEnabled) {
    if (item.itemState & ODS_SELECTED) {
        return {COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT};
    }
    return isEnabled ? RowColors{COLOR_WINDOWTEXT, COLOR_WINDOW} : RowColors{COLOR_GRAYTEXT, COLOR_BTNFACE};
}

/// The closed face on a bar that draws its combos flat is one of the bar's fields, in its colours and its font.
bool IsFieldOfBar(const CComboBox& combo, const DRAWITEMSTRUCT& item) {
    return (item.itemState & ODS_COMBOBOXEDIT) != 0 && CMFCToolBarComboBoxButton::IsFlatMode() &&
           DYNAMIC_DOWNCAST(CMFCToolBar, combo.GetParent()) != nullptr;
}

/// Fills the ground and gives the context the text's colour.
void FillGround(const CComboBox& combo, CDC& dc, const DRAWITEMSTRUCT& item, const CRect& ground) {
    const HDC handle = dc.GetSafeHdc();
    if (IsFieldOfBar(combo, item) && (item.itemState & ODS_SELECTED) == 0) {
        const LRESULT brush = ::SendMessageW(::GetParent(combo.m_hWnd), WM_CTLCOLOREDIT,
                                             reinterpret_cast<WPARAM>(handle), reinterpret_cast<LPARAM>(combo.m_hWnd));
        ::FillRect(handle, ground, reinterpret_cast<HBRUSH>(brush));
        return;
    }
    const RowColors colors = ColorsOf(item, ::IsWindowEnabled(combo.m_hWnd) != FALSE);
    ::FillRect(handle, ground, ::GetSysColorBrush(colors.ground));
    dc.SetTextColor(::GetSysColor(colors.text));
}

} // namespace

void DrawRow(const CComboBox& combo, const DRAWITEMSTRUCT& item, const marks::Rect& row, Face face,
             MarkPainter paintMarks) {
    CDC* const dc = item.hDC ? CDC::FromHandle(item.hDC) : nullptr;
    if (!dc) {
        return;
    }
    CFont font;
    CreateRowFont(font, face);
    const fx::DcState state(*dc);
    dc->SelectObject(IsFieldOfBar(combo, item) ? combo.GetFont() : &font);
    const CRect ground = fx::ToRect(row);
    FillGround(combo, *dc, item, ground);
    const auto index = static_cast<int>(item.itemID);
    if (index >= 0) {
        CRect text = ground;
        const COLORREF textColor = dc->GetTextColor();
        text.left = paintMarks(combo, *dc, item, row);
        dc->SetTextColor(textColor);
        dc->SetBkMode(TRANSPARENT);
        dc->DrawText(L" " + TextOf(combo, index), text, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    }
    if ((item.itemState & ODS_FOCUS) && item.itemAction != ODA_SELECT) {
        dc->SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
        dc->SetBkColor(::GetSysColor(COLOR_WINDOW));
        dc->DrawFocusRect(ground);
    }
}

CString TextOf(const CComboBox& combo, int index) {
    CString text;
    if (index >= 0 && index < combo.GetCount()) {
        combo.GetLBText(index, text);
    }
    return text;
}

item_bits::Data DataOf(const CComboBox& combo, int index) {
    return static_cast<item_bits::Data>(combo.GetItemData(index));
}

HWND HostOf(const CComboBox& combo) {
    const CWnd* const owner = combo.GetSafeHwnd() ? combo.GetOwner() : nullptr;
    return owner ? owner->GetSafeHwnd() : nullptr;
}

void TellParent(const CComboBox& combo, UINT code) {
    const HWND parent = ::GetParent(combo.m_hWnd);
    const auto id = static_cast<UINT>(combo.GetDlgCtrlID());
    if (parent && CanBeSent(id)) {
        ::SendMessageW(parent, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(combo.m_hWnd));
    }
}

void FitDroppedWidth(CComboBox& combo, int marksWidth) {
    CClientDC dc(&combo);
    CFont font;
    CreateRowFont(font, Face::Arial);
    const fx::DcSelection selected(dc.GetSafeHdc(), font.GetSafeHandle());
    int width = 0;
    for (int i = 0; i < combo.GetCount(); ++i) {
        width = std::max(width, static_cast<int>(dc.GetTextExtent(L" " + TextOf(combo, i)).cx));
    }
    const int wanted = marksWidth + width + textMargin + ::GetSystemMetrics(SM_CXVSCROLL);
    CRect window;
    combo.GetWindowRect(&window);
    combo.SetDroppedWidth(static_cast<UINT>(std::max<int>(wanted, window.Width())));
}

marks::Rect FaceRow(const CComboBox& combo) {
    COMBOBOXINFO info{};
    return combo.GetComboBoxInfo(&info) ? fx::FromRect(info.rcItem) : marks::Rect{};
}

} // namespace window_combo

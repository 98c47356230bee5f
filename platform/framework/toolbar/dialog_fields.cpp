#include "toolbar/dialog_fields.h"

#include "afxvisualmanager.h"
#include "fx/dc_scope.h"
#include "toolbar/metrics.h"
#include "visual/manager_instance.h"
#include "visual/paint_ribbon.h"

#include <algorithm>

namespace toolbar {

namespace {

// At 96 DPI.
constexpr int kTextMargin = 3;
constexpr int kUsualSide = 13;
constexpr int kChevronSide = 16;

void PaintFocusOn(CDC& dc, const CRect& rect) {
    visual::PaintFocus(dc, rect, visual::FromColorRef(dc.GetPixel(rect.TopLeft())), visual::CurrentLook());
}

/// A box whose tick stands as it does in a window that runs from the left.
void PaintMark(CDC& dc, const CRect& place, const visual::ElementState& state, bool isMixed) {
    const DWORD layout = ::GetLayout(dc);
    if ((layout & LAYOUT_RTL) != 0) {
        ::SetLayout(dc, layout | LAYOUT_BITMAPORIENTATIONPRESERVED);
    }
    const visual::Look look{visual::CurrentLook().skin, static_cast<double>(place.Width()) / kUsualSide};
    visual::PaintCheckBox(dc, place, state, isMixed, look);
    ::SetLayout(dc, layout);
}

/// A box beside texts in the font that is selected: dialogs are as large as the system's font, whatever scale the
/// ribbon has.
int BoxSide(const CDC& dc) {
    constexpr int kUsualHeight = 15;
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    return std::max(::MulDiv(static_cast<int>(metrics.tmHeight), kUsualSide, kUsualHeight), 9);
}

CRect BoxAt(int left, int middle, int side) { return CRect(CPoint(left, middle - side / 2), CSize(side, side)); }

} // namespace

bool HidesCue(HWND window, UINT cue) { return (::SendMessageW(window, WM_QUERYUISTATE, 0, 0) & cue) != 0; }

HGDIOBJ FontOf(HWND window) { return reinterpret_cast<HGDIOBJ>(::SendMessageW(window, WM_GETFONT, 0, 0)); }

CString TextOf(HWND window) {
    CString text;
    CWnd::FromHandle(window)->GetWindowText(text);
    return text;
}

bool RunsFromTheRight(HWND window) { return (::GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0; }

void PaintBox(HWND box, CDC& dc) {
    CRect client;
    ::GetClientRect(box, &client);
    const auto style = static_cast<DWORD>(::GetWindowLongW(box, GWL_STYLE));
    const auto ground = reinterpret_cast<HBRUSH>(::SendMessageW(
        ::GetParent(box), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.m_hDC), reinterpret_cast<LPARAM>(box)));
    ::FillRect(dc, &client, ground != nullptr ? ground : ::GetSysColorBrush(COLOR_BTNFACE));
    const fx::DcSelection font(dc.m_hDC, FontOf(box));
    const bool isEnabled = ::IsWindowEnabled(box) != FALSE;
    const bool isMultiline = (style & BS_MULTILINE) != 0;
    const int side = BoxSide(dc);
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    CRect text(client.left + side + side / 3, client.top, client.right, client.bottom);
    const UINT lines =
        (isMultiline ? DT_WORDBREAK : DT_SINGLELINE) | (HidesCue(box, UISF_HIDEACCEL) ? DT_HIDEPREFIX : 0u);
    CRect measured(text);
    dc.DrawText(TextOf(box), measured, lines | DT_CALCRECT);
    const bool isAtTop = (style & BS_VCENTER) == BS_TOP;
    text.OffsetRect(0, isAtTop ? 0 : std::max((client.Height() - measured.Height()) / 2, 0));
    text.right = std::min(measured.right, client.right);
    text.bottom = text.top + measured.Height();
    const auto pressed = static_cast<UINT>(::SendMessageW(box, BM_GETSTATE, 0, 0));
    const auto checked = ::SendMessageW(box, BM_GETCHECK, 0, 0);
    visual::ElementState state;
    state.isPressed = (pressed & BST_PUSHED) != 0;
    state.isChecked = checked == BST_CHECKED;
    state.isDisabled = !isEnabled;
    const int middle =
        std::max(static_cast<int>(text.top + metrics.tmHeight / 2), static_cast<int>(client.top) + side / 2);
    PaintMark(dc, BoxAt(client.left, middle, side), state, checked == BST_INDETERMINATE);
    const COLORREF asked = dc.GetTextColor(); // by the dialog
    const bool isSystems = asked == ::GetSysColor(COLOR_WINDOWTEXT);
    const fx::TextColour colour(dc, isSystems && !isEnabled ? ::GetSysColor(COLOR_GRAYTEXT) : asked);
    dc.DrawText(TextOf(box), text, lines);
    if (::GetFocus() == box && !HidesCue(box, UISF_HIDEFOCUS)) {
        CRect ring(text);
        ring.InflateRect(Scaled(2), 0);
        ring.IntersectRect(ring, client);
        PaintFocusOn(dc, ring);
    }
}

void PaintDropList(HWND combo, CDC& dc, const FieldColors& colors) {
    CRect client;
    ::GetClientRect(combo, &client);
    const bool isEnabled = ::IsWindowEnabled(combo) != FALSE;
    const COLORREF text = isEnabled ? colors.text : colors.dimmedText;
    const bool isDropped = ::SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) != 0;
    dc.FillSolidRect(client, isDropped ? colors.face : colors.ground);
    dc.Draw3dRect(client, colors.border, colors.border);
    CRect arrow(client);
    arrow.left = std::max(arrow.right - Scaled(kChevronSide), client.left);
    visual::PaintChevron(dc, arrow, visual::ArrowDirection::Down, visual::FromColorRef(text), visual::CurrentLook());
    const fx::DcSelection font(dc.m_hDC, FontOf(combo));
    const fx::TextColour colour(dc, text);
    CRect place(client.left + Scaled(kTextMargin) + 1, client.top, arrow.left, client.bottom);
    dc.DrawText(TextOf(combo), place, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if (::GetFocus() == combo && !isDropped && !HidesCue(combo, UISF_HIDEFOCUS)) {
        CRect ring(client.left + 2, client.top + 2, arrow.left, client.bottom - 2);
        PaintFocusOn(dc, ring);
    }
}

void PaintFieldBorder(HWND field, const FieldColors& colors) {
    CRect window;
    CRect client;
    ::GetWindowRect(field, &window);
    ::GetClientRect(field, &client);
    ::MapWindowPoints(field, nullptr, reinterpret_cast<POINT*>(&client), 2);
    const int width = std::max<int>(client.top - window.top, 0);
    CWindowDC dc(CWnd::FromHandle(field));
    CRect ring(CPoint(0, 0), window.Size());
    for (int line = 0; line < width; ++line) {
        const COLORREF color = line == 0 ? colors.border : colors.ground;
        dc.Draw3dRect(ring, color, color);
        ring.DeflateRect(1, 1);
    }
}

void PaintListRow(const NMLVCUSTOMDRAW& row) {
    const HWND list = row.nmcd.hdr.hwndFrom;
    const auto index = static_cast<int>(row.nmcd.dwItemSpec);
    CDC& dc = *CDC::FromHandle(row.nmcd.hdc);
    CRect bounds;
    CRect label;
    bounds.left = LVIR_BOUNDS;
    label.left = LVIR_LABEL;
    if (!::SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&bounds)) ||
        !::SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&label))) {
        return;
    }
    const auto state = static_cast<UINT>(
        ::SendMessageW(list, LVM_GETITEMSTATE, static_cast<WPARAM>(index), LVIS_SELECTED | LVIS_STATEIMAGEMASK));
    const bool isSelected = (state & LVIS_SELECTED) != 0;
    COLORREF color = CMFCVisualManager::GetInstance()->OnFillCommandsListBackground(&dc, bounds, isSelected);
    if (!isSelected) {
        dc.FillSolidRect(bounds, static_cast<COLORREF>(::SendMessageW(list, LVM_GETBKCOLOR, 0, 0)));
        color = static_cast<COLORREF>(::SendMessageW(list, LVM_GETTEXTCOLOR, 0, 0));
    }
    if (const UINT image = (state & LVIS_STATEIMAGEMASK) >> 12; image != 0) {
        visual::ElementState box;
        box.isChecked = image == 2;
        const int side = std::min(BoxSide(dc), bounds.Height());
        const int room = (static_cast<int>(label.left - bounds.left) - side) / 2;
        PaintMark(dc, BoxAt(bounds.left + std::max(room, 0), bounds.CenterPoint().y, side), box, false);
    }
    wchar_t text[260] = {};
    LVITEMW item{};
    item.pszText = text;
    item.cchTextMax = static_cast<int>(std::size(text));
    ::SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
    const fx::TextColour colour(dc, color);
    label.DeflateRect(Scaled(kTextMargin), 0);
    dc.DrawText(text, -1, label, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if ((row.nmcd.uItemState & CDIS_FOCUS) != 0 && !HidesCue(list, UISF_HIDEFOCUS)) {
        PaintFocusOn(dc, bounds);
    }
}

} // namespace toolbar

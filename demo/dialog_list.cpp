#include "dialog_list.h"

#include "scaled.h"
#include "soft_canvas.h"

#include <algorithm>
#include <array>
#include <string>

namespace {

// Pixels at 96 DPI.
constexpr int kCorner = 4;
constexpr int kMargin = 7;
constexpr int kArrowZone = 20;
constexpr int kArrow = 4; // half of its width
constexpr double kArrowLine = 1.4;
constexpr double kEdge = 0.45;
constexpr double kField = 0.06; // of the text's colour over the ground

// After these the system paints a part of the face by itself.
constexpr std::array<UINT, 9> kPaintedAfter = {WM_SETFOCUS, WM_KILLFOCUS, WM_LBUTTONDOWN,    WM_LBUTTONUP, WM_KEYDOWN,
                                               WM_ENABLE,   CB_SETCURSEL, WM_CAPTURECHANGED, WM_COMMAND};

std::wstring ChosenText(const CComboBox& list) {
    const int chosen = list.GetCurSel();
    if (chosen < 0) {
        return {};
    }
    CString text;
    list.GetLBText(chosen, text);
    return text.GetString();
}

} // namespace

BEGIN_MESSAGE_MAP(CDialogList, CComboBox)
ON_WM_PAINT()
END_MESSAGE_MAP()

LRESULT CDialogList::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) {
        return TRUE; // all of it is painted
    }
    const LRESULT result = CComboBox::WindowProc(message, wParam, lParam);
    if (std::ranges::find(kPaintedAfter, message) != kPaintedAfter.end() && GetSafeHwnd() != nullptr) {
        Invalidate(FALSE);
    }
    return result;
}

void CDialogList::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    SoftCanvas canvas(dc, client);
    if (canvas.IsEmpty()) {
        return;
    }
    const CRect all(CPoint(0, 0), canvas.Size());
    const bool isMirrored = (GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    const bool isLit = ::GetFocus() == GetSafeHwnd() || GetDroppedState() != FALSE;
    canvas.Fill(all, m_colors.ground);
    canvas.FillRounded(all, Scaled(kCorner), isLit ? m_colors.accent : m_colors.text, isLit ? 1 : kEdge);
    CRect field = all;
    const int edge = std::max(1, Scaled(2) / 2); // one pixel up to 150 %
    field.DeflateRect(edge, edge);
    canvas.FillRounded(field, Scaled(kCorner) - edge, m_colors.ground);
    canvas.FillRounded(field, Scaled(kCorner) - edge, m_colors.text, kField);

    const int half = Scaled(kArrow), zone = Scaled(kArrowZone);
    const double x = isMirrored ? zone / 2.0 : all.right - zone / 2.0;
    const double top = all.Height() / 2.0 - half / 2.0;
    const double line = kArrowLine * Scaled(100) / 100;
    canvas.DrawLine(x - half, top, x, top + half, line, m_colors.text);
    canvas.DrawLine(x, top + half, x + half, top, line, m_colors.text);

    CRect text = all;
    text.DeflateRect(Scaled(kMargin), 0);
    (isMirrored ? text.left : text.right) += isMirrored ? zone : -zone;
    CDC& memory = canvas.Dc();
    memory.SetTextColor(IsWindowEnabled() ? m_colors.text : m_colors.secondary);
    memory.DrawText(ChosenText(*this).c_str(), text,
                    DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS |
                        (isMirrored ? DT_RIGHT | DT_RTLREADING : DT_LEFT));
}

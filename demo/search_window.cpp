#include "search_window.h"

#include "command_index.h"
#include "installed_icon.h"
#include "scaled.h"
#include "soft_canvas.h"
#include "viewer_text.h"

#include <afxglobals.h>

#include <algorithm>
#include <memory>
#include <type_traits>

namespace {

// Pixels at 96 DPI.
constexpr int kWidth = 420;
constexpr int kFieldHeight = 40;
constexpr int kRowHeight = 44;
constexpr int kMostRows = 8;
constexpr int kMargin = 4;
constexpr int kIndent = 12;
constexpr int kIconSide = 16;
constexpr int kGap = 10;
constexpr int kCorner = 4;
constexpr int kWindowCorner = 8;
constexpr int kTopOfFrame = 60; // from the frame's upper edge, without a field to hang from
constexpr int kWheelRows = 2;
constexpr double kMarkStrength = 0.1;  // of the text's colour over the ground
constexpr double kLineStrength = 0.35; // of the secondary colour: in pop-ups lines are lighter than a dark ground
constexpr UINT kEditId = 1;
constexpr UINT kCloseLater = WM_APP + 1;

struct IconDestroyer {
    void operator()(HICON icon) const { ::DestroyIcon(icon); }
};

} // namespace

BEGIN_MESSAGE_MAP(CSearchWindow, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_ACTIVATE()
ON_WM_CLOSE()
ON_WM_SETFOCUS()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONUP()
ON_WM_MOUSEWHEEL()
ON_WM_CTLCOLOR()
ON_EN_CHANGE(kEditId, OnQueryChanged)
ON_MESSAGE(kCloseLater, OnCloseLater)
END_MESSAGE_MAP()

bool CSearchWindow::MakeWindow(CFrameWnd* frame) {
    m_isMirrored = (frame->GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DROPSHADOW, ::LoadCursor(nullptr, IDC_ARROW));
    const DWORD mirrored = m_isMirrored ? WS_EX_LAYOUTRTL : 0;
    if (!CreateEx(WS_EX_TOOLWINDOW | mirrored, windowClass, nullptr, WS_POPUP | WS_CLIPCHILDREN, CRect(0, 0, 0, 0),
                  frame, 0)) {
        return false;
    }
    const DWORD written = m_isMirrored ? ES_RIGHT : 0;
    if (!m_edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | written, CRect(0, 0, 0, 0), this, kEditId)) {
        DestroyWindow();
        return false;
    }
    m_edit.SetFont(&afxGlobalData.fontRegular);
    return true;
}

void CSearchWindow::Open(CFrameWnd* frame, const CRect& anchor, const ViewerColors& colors, Texts texts,
                         std::vector<SearchCommand> commands) {
    const bool isMirrored = (frame->GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    if (GetSafeHwnd() != nullptr && isMirrored != m_isMirrored) {
        DestroyWindow();
    }
    if (GetSafeHwnd() == nullptr && !MakeWindow(frame)) {
        return;
    }
    m_anchor = anchor;
    m_colors = colors;
    m_texts = std::move(texts);
    m_commands = std::move(commands);
    m_ground.DeleteObject();
    m_ground.CreateSolidBrush(m_colors.ground);
    m_edit.SetWindowText(L"");
    SetWindowText(m_texts.prompt.c_str()); // for screen readers
    m_query.clear();
    Find();
    ShowWindow(SW_SHOW);
    m_edit.SetFocus();
    ::GetCursorPos(&m_pointer); // a pointer that happens to lie there chooses nothing
}

void CSearchWindow::Close() {
    if (IsOpen()) {
        CWnd* const owner = GetOwner();
        const bool isActive = GetActiveWindow() == this;
        ShowWindow(SW_HIDE);
        if (isActive && owner != nullptr) {
            owner->SetFocus();
        }
    }
}

void CSearchWindow::Find() {
    m_hits = FindCommands(m_commands, m_query, FoldForSearch);
    m_mark = m_hits.empty() ? -1 : 0;
    m_first = 0;
    Place();
}

int CSearchWindow::ShownRows() const {
    return std::clamp(static_cast<int>(m_hits.size()), 1, kMostRows); // one says that there is nothing
}

void CSearchWindow::Place() {
    const CSize size(Scaled(kWidth), Scaled(kFieldHeight) + ShownRows() * Scaled(kRowHeight) + Scaled(kMargin));
    CRect frame;
    GetOwner()->GetWindowRect(frame);
    CPoint corner((frame.left + frame.right - size.cx) / 2, frame.top + Scaled(kTopOfFrame));
    if (!m_anchor.IsRectEmpty()) {
        const int raised = (Scaled(kFieldHeight) - m_anchor.Height()) / 2; // the texts stay where they are
        corner = CPoint(m_isMirrored ? m_anchor.left : m_anchor.right - size.cx, m_anchor.top - raised);
    }
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromRect(CRect(corner, size), MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& room = monitor.rcWork;
    corner.x = std::max(room.left, std::min(corner.x, room.right - size.cx));
    corner.y = std::max(room.top, std::min(corner.y, room.bottom - size.cy));
    SetWindowPos(&CWnd::wndTop, corner.x, corner.y, size.cx, size.cy, SWP_NOACTIVATE);
    const int corners = 2 * Scaled(kWindowCorner);
    SetWindowRgn(::CreateRoundRectRgn(0, 0, size.cx + 1, size.cy + 1, corners, corners), TRUE);

    const int height = afxGlobalData.GetTextHeight();
    const int left = Scaled(kIndent + kIconSide + kGap);
    m_edit.MoveWindow(left, (Scaled(kFieldHeight) - height + 1) / 2, size.cx - left - Scaled(kIndent), height);
    Invalidate(FALSE);
}

std::vector<const SearchCommand*> CSearchWindow::Shown() const {
    std::vector<const SearchCommand*> shown;
    for (const SearchHit& hit : m_hits) {
        shown.push_back(&m_commands[hit.command]);
    }
    return shown;
}

CRect CSearchWindow::PlaceOf(int row) const {
    CRect rect = RowRect(row);
    ClientToScreen(&rect);
    return rect;
}

CRect CSearchWindow::RowRect(int row) const {
    CRect client;
    GetClientRect(client);
    const int top = Scaled(kFieldHeight) + (row - m_first) * Scaled(kRowHeight);
    return {Scaled(kMargin), top, client.right - Scaled(kMargin), top + Scaled(kRowHeight)};
}

int CSearchWindow::RowAt(CPoint point) const {
    const int below = point.y - Scaled(kFieldHeight);
    const int row = below < 0 ? -1 : m_first + below / Scaled(kRowHeight);
    return row >= 0 && row < m_first + kMostRows && row < static_cast<int>(m_hits.size()) ? row : -1;
}

void CSearchWindow::ScrollTo(int first) {
    m_first = std::clamp(first, 0, std::max(0, static_cast<int>(m_hits.size()) - kMostRows));
    Invalidate(FALSE);
}

void CSearchWindow::MoveMark(int rows) {
    if (m_hits.empty()) {
        return;
    }
    m_mark = std::clamp(m_mark + rows, 0, static_cast<int>(m_hits.size()) - 1);
    ScrollTo(std::clamp(m_first, m_mark - kMostRows + 1, m_mark));
}

// What cannot be run now stays where it is: the list says why nothing happens.
void CSearchWindow::RunMarked() {
    if (m_mark < 0) {
        return;
    }
    const SearchCommand& chosen = m_commands[m_hits[m_mark].command];
    if (chosen.isEnabled) {
        const UINT id = chosen.id;
        Close();
        m_run(id);
    }
}

BOOL CSearchWindow::PreTranslateMessage(MSG* message) {
    if (message->message == WM_KEYDOWN) {
        switch (message->wParam) {
        case VK_DOWN:
            MoveMark(1);
            return TRUE;
        case VK_UP:
            MoveMark(-1);
            return TRUE;
        case VK_NEXT:
            MoveMark(kMostRows);
            return TRUE;
        case VK_PRIOR:
            MoveMark(-kMostRows);
            return TRUE;
        case VK_RETURN:
            RunMarked();
            return TRUE;
        case VK_ESCAPE:
            Close();
            return TRUE;
        case VK_TAB:
            return TRUE;
        default:
            break;
        }
    }
    return CWnd::PreTranslateMessage(message);
}

void CSearchWindow::OnQueryChanged() {
    CString text;
    m_edit.GetWindowText(text);
    if (m_query != text.GetString()) {
        m_query = text.GetString();
        Find();
    }
}

void CSearchWindow::OnActivate(UINT state, CWnd* other, BOOL isMinimized) {
    CWnd::OnActivate(state, other, isMinimized);
    if (state == WA_INACTIVE) {
        PostMessage(kCloseLater); // the system is in the middle of giving the focus away
    }
}

LRESULT CSearchWindow::OnCloseLater(WPARAM, LPARAM) {
    if (GetActiveWindow() != this) {
        Close();
    }
    return 0;
}

void CSearchWindow::OnClose() { Close(); }

void CSearchWindow::OnSetFocus(CWnd* /*earlier*/) { m_edit.SetFocus(); }

void CSearchWindow::OnMouseMove(UINT /*flags*/, CPoint point) {
    CPoint onScreen;
    ::GetCursorPos(&onScreen);
    const int row = RowAt(point);
    if (row >= 0 && row != m_mark && onScreen != m_pointer) {
        m_mark = row;
        Invalidate(FALSE);
    }
    m_pointer = onScreen;
}

void CSearchWindow::OnLButtonUp(UINT /*flags*/, CPoint point) {
    const int row = RowAt(point);
    if (row >= 0) {
        m_mark = row;
        RunMarked();
    }
}

BOOL CSearchWindow::OnMouseWheel(UINT /*flags*/, short delta, CPoint /*point*/) {
    ScrollTo(m_first - kWheelRows * delta / WHEEL_DELTA);
    return TRUE;
}

HBRUSH CSearchWindow::OnCtlColor(CDC* dc, CWnd* /*control*/, UINT /*kind*/) {
    dc->SetTextColor(m_colors.text);
    dc->SetBkColor(m_colors.ground);
    return static_cast<HBRUSH>(m_ground.GetSafeHandle());
}

// ---- drawing

BOOL CSearchWindow::OnEraseBkgnd(CDC* /*dc*/) { return TRUE; }

CRect CSearchWindow::Mirrored(CRect rect) const {
    if (m_isMirrored) {
        CRect client;
        GetClientRect(client);
        rect = CRect(client.right - rect.right, rect.top, client.right - rect.left, rect.bottom);
    }
    return rect;
}

void CSearchWindow::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    SoftCanvas canvas(dc, client);
    if (canvas.IsEmpty()) {
        return;
    }
    const CRect all(CPoint(0, 0), canvas.Size());
    canvas.Fill(all, m_colors.ground);
    canvas.FillRounded(all, Scaled(kWindowCorner), m_colors.secondary, kLineStrength);
    CRect inside = all;
    inside.DeflateRect(1, 1);
    canvas.FillRounded(inside, Scaled(kWindowCorner) - 1, m_colors.ground);
    DrawField(canvas);
    const int end = std::min(m_first + kMostRows, static_cast<int>(m_hits.size()));
    for (int row = m_first; row < end; ++row) {
        DrawRow(canvas, row);
    }
    if (m_hits.empty()) {
        CRect rect = RowRect(0);
        rect.DeflateRect(Scaled(kIndent), 0);
        DrawText(canvas.Dc(), WithName(m_texts.nothing, m_query), rect, m_colors.secondary);
    }
}

void CSearchWindow::DrawField(SoftCanvas& canvas) {
    const int height = Scaled(kFieldHeight), side = Scaled(kIconSide);
    const CRect sign = Mirrored(CRect(CPoint(Scaled(kIndent), (height - side) / 2), CSize(side, side)));
    const double unit = side / static_cast<double>(kIconSide), width = 1.5 * unit;
    canvas.DrawRing(sign.left + 6.5 * unit, sign.top + 6.5 * unit, 5 * unit, width, m_colors.secondary);
    canvas.DrawLine(sign.left + 10.5 * unit, sign.top + 10.5 * unit, sign.left + 14.5 * unit, sign.top + 14.5 * unit,
                    width, m_colors.accent);
    canvas.FillRounded(CRect(1, height - 2, canvas.Size().cx - 1, height - 1), 0, m_colors.secondary, kLineStrength);
}

void CSearchWindow::DrawRow(SoftCanvas& canvas, int row) {
    const SearchHit& hit = m_hits[row];
    const SearchCommand& command = m_commands[hit.command];
    CRect rect = RowRect(row);
    if (row == m_mark) {
        CRect plate = rect;
        plate.DeflateRect(0, Scaled(1));
        canvas.FillRounded(plate, Scaled(kCorner), m_colors.text, kMarkStrength);
    }
    CDC& dc = canvas.Dc();
    rect.DeflateRect(Scaled(kIndent - kMargin), Scaled(kMargin));
    const int side = Scaled(kIconSide);
    DrawIcon(dc, command, CRect(CPoint(rect.left, rect.top + (rect.Height() - side) / 2), CSize(side, side)));
    rect.left += side + Scaled(kGap);
    CRect upper(rect.left, rect.top, rect.right, rect.CenterPoint().y),
        lower(rect.left, upper.bottom, rect.right, rect.bottom);

    if (!command.keys.empty()) {
        DrawText(dc, command.keys, upper, m_colors.secondary, true);
        upper.right -= dc.GetTextExtent(command.keys.c_str()).cx + Scaled(kGap);
    }
    DrawText(dc, command.name, upper, command.isEnabled ? m_colors.text : m_colors.secondary);
    if (!hit.otherName.empty()) {
        upper.left +=
            std::min(static_cast<int>(dc.GetTextExtent(command.name.c_str()).cx) + Scaled(kGap), upper.Width());
        DrawText(dc, hit.otherName, upper, m_colors.accent);
    }
    const std::wstring place = command.isEnabled ? command.place : command.place + L" \u00B7 " + m_texts.unavailable;
    DrawText(dc, place, lower, m_colors.secondary);
}

void CSearchWindow::DrawIcon(CDC& dc, const SearchCommand& command, const CRect& place) {
    if (command.icon.empty()) {
        return;
    }
    const std::unique_ptr<std::remove_pointer_t<HICON>, IconDestroyer> icon(
        LoadInstalledIcon(command.icon.c_str(), place.Width()));
    const CRect shown = Mirrored(place);
    if (icon) {
        ::DrawIconEx(dc.GetSafeHdc(), shown.left, shown.top, icon.get(), shown.Width(), shown.Height(), 0, nullptr,
                     DI_NORMAL);
    }
}

void CSearchWindow::DrawText(CDC& dc, const std::wstring& text, CRect rect, COLORREF color, bool isAtEnd) {
    rect = Mirrored(rect);
    dc.SetTextColor(color);
    const UINT side = isAtEnd != m_isMirrored ? DT_RIGHT : DT_LEFT;
    const UINT reading = m_isMirrored ? DT_RTLREADING : 0;
    dc.DrawText(text.c_str(), rect, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX | side | reading);
}

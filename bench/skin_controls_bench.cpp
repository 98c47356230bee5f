// A frame of a dragged scroll bar, and a tooltip with icon, title and description that appears: each beside the floor
// of the same pictures and texts, drawn by plain calls of the system. The pictures lie beside the program.
#include "scroll_bar_base.h"
#include "tooltip_ctrl_ex.h"

#include "bench_frame.h"
#include "run_benchmarks.h"

#include <afxglobals.h>
#include <benchmark/benchmark.h>
#include <gdiplus.h>

#include <algorithm>

namespace {

constexpr int kBreadth = 20, kLength = 700, kArrow = 18;
constexpr int kSteps = 300, kTotalLength = 4000;

/// Goes between two positions and back.
class CBenchBar : public CScrollBarBase {
public:
    int GetBaseScrollPos() override { return m_position; }
    int GetBaseScrollLimit() override { return kSteps; }
    void ScrollBaseMove(int steps) override {
        m_position = std::clamp(m_position + steps, 0, kSteps);
        ++m_moves;
    }
    CRect Thumb() const { return m_thumb; }
    CRect Track() const { return m_track; }
    CPoint Origin() const { return m_dragOrigin; }
    CString ThumbFile() const { return m_currentPaths[PressedThumb]; }
    COLORREF Ground() const { return m_bkColor; }
    int Moves() const { return m_moves; }

private:
    int m_position = kSteps / 2;
    int m_moves = 0;
};

/// Answers what a toolbar button would: an icon.
class CBenchTip : public CToolTipCtrlEx {
public:
    explicit CBenchTip(HICON icon) : m_icon(icon) {}

protected:
    CSize GetIconSize() override { return CSize(32, 32); }
    BOOL OnDrawIcon(CDC* dc, CRect rect) override {
        return ::DrawIconEx(dc->GetSafeHdc(), rect.left, rect.top, m_icon, rect.Width(), rect.Height(), 0, nullptr,
                            DI_NORMAL);
    }

private:
    HICON m_icon;
};

constexpr const wchar_t* kTitle = L"Zoom in (Ctrl++)";
constexpr const wchar_t* kDescription = L"Shows a smaller part of the map, twice as large.";
const CPoint kTipPlace(300, 400);

/// The plain window that shows what the tooltip does.
class CPlainTip : public CWnd {
public:
    explicit CPlainTip(HICON icon) : m_icon(icon) {}
    void Paint() {
        CPaintDC paint(this);
        CRect client;
        GetClientRect(client);
        CDC dc;
        dc.CreateCompatibleDC(&paint);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&paint, client.Width(), client.Height());
        CBitmap* const earlier = dc.SelectObject(&bitmap);
        dc.FillSolidRect(client, RGB(250, 250, 250));
        CBrush line(RGB(120, 120, 120));
        ::FrameRect(dc.GetSafeHdc(), client, static_cast<HBRUSH>(line.GetSafeHandle()));
        ::DrawIconEx(dc.GetSafeHdc(), 6, 6, m_icon, 32, 32, 0, nullptr, DI_NORMAL);
        dc.SetBkMode(TRANSPARENT);
        CFont* const font = dc.SelectObject(&afxGlobalData.fontBold);
        CRect title(44, 14, client.right - 6, 40);
        dc.DrawText(kTitle, title, DT_WORDBREAK | DT_NOPREFIX);
        dc.SelectObject(&afxGlobalData.fontTooltip);
        dc.FillSolidRect(CRect(44, 42, client.right - 6, 43), RGB(180, 180, 180));
        CRect description(44, 56, client.right - 6, client.bottom);
        dc.DrawText(kDescription, description, DT_WORDBREAK | DT_NOPREFIX);
        dc.SelectObject(font);
        paint.BitBlt(0, 0, client.Width(), client.Height(), &dc, 0, 0, SRCCOPY);
        dc.SelectObject(earlier);
    }
    /// As large as the texts in it.
    CSize Measure() {
        CClientDC dc(this);
        CFont* const font = dc.SelectObject(&afxGlobalData.fontBold);
        CRect title(0, 0, 200, 0), description(0, 0, 200, 0);
        dc.DrawText(kTitle, title, DT_WORDBREAK | DT_CALCRECT | DT_NOPREFIX);
        dc.SelectObject(&afxGlobalData.fontTooltip);
        dc.DrawText(kDescription, description, DT_WORDBREAK | DT_CALCRECT | DT_NOPREFIX);
        dc.SelectObject(font);
        return CSize(std::max(title.Width(), description.Width()) + 50, title.Height() + description.Height() + 56);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_PAINT) {
            Paint();
            return 0;
        }
        return message == WM_ERASEBKGND ? 1 : CWnd::WindowProc(message, wParam, lParam);
    }

private:
    HICON m_icon;
};

class CControlsFrame : public CBenchFrame {
public:
    bool Make() override {
        if (!CBenchFrame::Make()) {
            return false;
        }
        ShowWindow(SW_SHOW);
        UpdateWindow();
        const LPCTSTR barClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
        CRect place(CPoint(1400, 180), CSize(kBreadth, kLength));
        if (!m_bar.Create(barClass, nullptr, WS_CHILD | WS_VISIBLE, place, this, 7)) {
            return false;
        }
        m_bar.SetSkin(1);
        m_bar.SetTotalLength(kTotalLength);
        m_bar.InitThumb();
        m_bar.UpdateWindow();
        return true;
    }

    CBenchBar m_bar;
};

CControlsFrame* g_frame = nullptr;

CBenchBar& Bar() { return g_frame->m_bar; }

void Send(UINT message, CPoint point) { Bar().SendMessage(message, 0, MAKELPARAM(point.x, point.y)); }

void Drag(benchmark::State& state) {
    const CPoint grip = Bar().Thumb().CenterPoint();
    Send(WM_LBUTTONDOWN, grip);
    Send(WM_MOUSEMOVE, grip + CPoint(0, 40));
    int way = 3;
    const int before = Bar().Moves();
    int frames = 0;
    for (auto _ : state) {
        way = -way;
        Send(WM_MOUSEMOVE, Bar().Origin() + CPoint(0, way));
        ::GdiFlush();
        ++frames;
    }
    if (Bar().Moves() - before != frames) {
        state.SkipWithError("not every frame moved the content");
    }
    Send(WM_LBUTTONUP, grip);
}

void DragFloor(benchmark::State& state) {
    const CRect track = Bar().Track(), thumb = Bar().Thumb();
    Gdiplus::Bitmap file(Bar().ThumbFile());
    if (file.GetLastStatus() != Gdiplus::Ok) {
        state.SkipWithError("the thumb's picture does not lie beside the program");
        return;
    }
    // As large as the thumb, in memory.
    Gdiplus::Bitmap image(thumb.Width(), thumb.Height(), PixelFormat32bppPARGB);
    {
        Gdiplus::Graphics graphics(&image);
        graphics.DrawImage(&file, 0, 0, thumb.Width(), thumb.Height());
    }
    int top = 100;
    for (auto _ : state) {
        CClientDC window(&Bar());
        CDC dc;
        dc.CreateCompatibleDC(&window);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&window, track.Width(), track.Height());
        CBitmap* const earlier = dc.SelectObject(&bitmap);
        dc.FillSolidRect(CRect(CPoint(0, 0), track.Size()), Bar().Ground());
        top = 203 - top;
        {
            Gdiplus::Graphics graphics(dc.GetSafeHdc());
            graphics.DrawImage(&image, Gdiplus::Rect(0, top, thumb.Width(), thumb.Height()), 0, 0, thumb.Width(),
                               thumb.Height(), Gdiplus::UnitPixel);
        }
        window.BitBlt(track.left, track.top, track.Width(), track.Height(), &dc, 0, 0, SRCCOPY);
        dc.SelectObject(earlier);
        ::GdiFlush();
    }
}

void ShowTip(benchmark::State& state) {
    CBenchTip tip(::LoadIcon(nullptr, IDI_INFORMATION));
    CMFCToolTipInfo look;
    look.m_bRoundedCorners = FALSE;
    look.m_clrFill = RGB(250, 250, 250);
    look.m_clrText = RGB(0, 0, 0);
    look.m_clrBorder = RGB(120, 120, 120);
    tip.SetParams(&look);
    tip.Create(g_frame, TTS_ALWAYSTIP | TTS_NOPREFIX);
    tip.SetDescription(kDescription);
    tip.SetLocation(kTipPlace);
    TOOLINFO tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = g_frame->m_hWnd;
    tool.uId = 1;
    tool.uFlags = TTF_TRACK;
    tool.lpszText = const_cast<wchar_t*>(kTitle);
    tip.SendMessage(TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&tool));
    for (auto _ : state) {
        tip.SendMessage(TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&tool));
        tip.UpdateWindow();
        ::GdiFlush();
        if (!tip.IsWindowVisible()) {
            state.SkipWithError("no tooltip is shown");
        }
        tip.SendMessage(TTM_TRACKACTIVATE, FALSE, reinterpret_cast<LPARAM>(&tool));
    }
    tip.DestroyWindow();
}

/// The system's own tooltip, which nobody can do without who shows one through it, and a plain paint of the same parts.
void ShowTipFloor(benchmark::State& state) {
    CPlainTip tip(::LoadIcon(nullptr, IDI_INFORMATION));
    tip.CreateEx(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, AfxRegisterWndClass(CS_SAVEBITS), L"", WS_POPUP,
                 CRect(kTipPlace, CSize(10, 10)), g_frame, 0);
    for (auto _ : state) {
        const CSize size = tip.Measure();
        tip.SetWindowPos(&CWnd::wndTopMost, kTipPlace.x, kTipPlace.y, size.cx, size.cy,
                         SWP_NOACTIVATE | SWP_SHOWWINDOW);
        tip.UpdateWindow();
        ::GdiFlush();
        tip.ShowWindow(SW_HIDE);
    }
    tip.DestroyWindow();
}

BENCHMARK(Drag)->Name("scroll-bar drag frame")->Unit(benchmark::kMicrosecond);
BENCHMARK(DragFloor)->Name("scroll-bar drag frame/floor: its picture")->Unit(benchmark::kMicrosecond);
BENCHMARK(ShowTip)->Name("tooltip show")->Unit(benchmark::kMicrosecond);
BENCHMARK(ShowTipFloor)->Name("tooltip show/floor: a window with its icon and texts")->Unit(benchmark::kMicrosecond);

class CControlsApp : public CBenchApp<CControlsFrame> {
protected:
    void Measure(CControlsFrame& frame) override {
        g_frame = &frame;
        ULONG_PTR token = 0;
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&token, &input, nullptr);
        RunBenchmarks();
        Gdiplus::GdiplusShutdown(token);
    }
};

CControlsApp s_app;

} // namespace

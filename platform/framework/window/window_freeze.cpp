#include "fx/window_freeze.h"

#include "afxwin.h"
#include "fx/paint_round.h"
#include "fx/window_dc.h"
#include "window/thread_windows.h"
#include "window/window_picture.h"

namespace {

thread_local int t_depth = 0;

bool IsShownFrame(HWND window) {
    const LONG style = ::GetWindowLongW(window, GWL_STYLE);
    return (style & (WS_CAPTION | WS_THICKFRAME)) != 0 && ::IsWindowVisible(window) && !::IsIconic(window) &&
           ::GetWindow(window, GW_CHILD) != nullptr;
}

std::vector<HWND> ShownFrames() {
    std::vector<HWND> windows = fx::ThreadWindows();
    std::erase_if(windows, [](HWND window) { return !IsShownFrame(window); });
    return windows;
}

// What is drawn reaches the screen by another way than what comes and goes on it, and may be overtaken there when the
// machine has much to do. A pixel of the screen is read when all that was asked for before has been done; the first
// one may come before a window does, which the second one does not.
void WaitForScreen() {
    ::GdiFlush();
    const HDC screen = ::GetDC(nullptr);
    ::GetPixel(screen, 0, 0);
    ::GetPixel(screen, 0, 0);
    ::ReleaseDC(nullptr, screen);
}

} // namespace

namespace fx {

/// The picture of one frame over it. The frame owns its window, and takes it along when it is destroyed.
class WindowFreeze::Cover : public CWnd {
public:
    explicit Cover(HWND frame);
    ~Cover() override;

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg LRESULT OnNcHitTest(CPoint) { return HTTRANSPARENT; }
    DECLARE_MESSAGE_MAP()

private:
    void ShowFrameAsItIs();
    void TakePicture();

    HWND m_frame;
    bool m_isTaken = false; ///< The frame's picture, which the window's pixels are the only copy of.
};

BEGIN_MESSAGE_MAP(WindowFreeze::Cover, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_NCHITTEST()
END_MESSAGE_MAP()

WindowFreeze::Cover::Cover(HWND frame) : m_frame(frame) {
    CRect rect;
    ::GetWindowRect(frame, rect);
    constexpr DWORD through = WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_TRANSPARENT;
    if (!CreateEx(through, AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW)), nullptr, WS_POPUP | WS_DISABLED,
                  rect.left, rect.top, rect.Width(), rect.Height(), frame, nullptr)) {
        return;
    }
    // Just above the frame: what lies over it, an open pop-up, stays there.
    const HWND above = ::GetWindow(frame, GW_HWNDPREV);
    const UINT keep = above == m_hWnd ? SWP_NOZORDER : 0;
    ::SetWindowPos(m_hWnd, above, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_SHOWWINDOW | keep);
    TakePicture();
    WaitForScreen();
}

WindowFreeze::Cover::~Cover() {
    if (::IsWindow(m_frame)) {
        ::RedrawWindow(m_frame, nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
        ShowFrameAsItIs();
    }
    WaitForScreen();
    DestroyWindow();
}

// What a window uncovers comes to the screen piece by piece where the system keeps no picture of it: the new frame is
// seen first as the picture over it, all at once.
void WindowFreeze::Cover::ShowFrameAsItIs() {
    CRect frame;
    CRect own(0, 0, 0, 0);
    ::GetWindowRect(m_frame, frame);
    if (GetSafeHwnd() != nullptr) {
        GetWindowRect(own);
    }
    if (!own.IsRectEmpty() && frame == own) {
        TakePicture();
    }
}

void WindowFreeze::Cover::TakePicture() {
    m_isTaken = false;
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    m_isTaken = true;
}

// Painted once as it comes and once before it goes, from the frame's own pixels: a picture kept in between would cost
// as much again as the window does. Who has all windows painted anew meanwhile has this one painted, too, when the
// frame is half done: then it stays as it is.
void WindowFreeze::Cover::OnPaint() {
    CPaintDC dc(this);
    if (m_isTaken) {
        return;
    }
    ::SetLayout(dc, 0);
    DrawWindowPicture(dc, m_frame, 0, 0);
}

WindowFreeze::WindowFreeze() {
    if (t_depth++ == 0 && !IsPainting()) {
        for (const HWND frame : ShownFrames()) {
            m_covers.push_back(std::make_unique<Cover>(frame));
        }
    }
}

WindowFreeze::~WindowFreeze() {
    --t_depth;
    m_covers.clear();
}

} // namespace fx

// What is seen of frames while much in them changes at once.
#include "tests/support/gui_objects.h"
#include "tests/support/message_pump.h"
#include "tests/support/ui_test.h"

#include <fx/window_dc.h>
#include <fx/window_freeze.h>

#include <memory>

namespace {

constexpr COLORREF kOld = RGB(200, 30, 30);
constexpr COLORREF kNew = RGB(30, 30, 200);

/// A window in one colour.
class Coloured : public CWnd {
public:
    void SetColour(COLORREF colour) {
        m_colour = colour;
        Invalidate();
    }

protected:
    afx_msg void OnPaint() {
        CPaintDC dc(this);
        CRect client;
        GetClientRect(client);
        dc.FillSolidRect(client, m_colour);
    }
    DECLARE_MESSAGE_MAP()

private:
    COLORREF m_colour = kOld;
};

BEGIN_MESSAGE_MAP(Coloured, CWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

/// A frame that a coloured child fills.
class Frame {
public:
    explicit Frame(DWORD style = WS_OVERLAPPEDWINDOW, DWORD exStyle = 0) {
        m_frame.CreateEx(exStyle, AfxRegisterWndClass(0), L"", style | WS_CLIPCHILDREN, CRect(40, 30, 340, 230),
                         nullptr, 0);
        CRect client;
        m_frame.GetClientRect(client);
        m_child.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, client, &m_frame, 1);
        m_frame.ShowWindow(SW_SHOWNA);
        m_frame.UpdateWindow();
        m_child.UpdateWindow();
        PumpPending();
    }

    Coloured m_frame;
    Coloured m_child;
};

/// The windows that lie over the frame and belong to it.
std::vector<HWND> OwnedBy(const CWnd& frame) {
    std::vector<HWND> owned;
    for (HWND window = ::GetWindow(frame.m_hWnd, GW_HWNDFIRST); window != nullptr && window != frame.m_hWnd;
         window = ::GetWindow(window, GW_HWNDNEXT)) {
        if (::GetWindow(window, GW_OWNER) == frame.m_hWnd && ::IsWindowVisible(window)) {
            owned.push_back(window);
        }
    }
    return owned;
}

/// What the middle of a window shows.
COLORREF MiddleOf(HWND window) {
    CRect rect;
    ::GetWindowRect(window, rect);
    const HDC dc = ::GetWindowDC(window);
    const COLORREF colour = ::GetPixel(dc, rect.Width() / 2, rect.Height() / 2);
    ::ReleaseDC(window, dc);
    return colour;
}

COLORREF g_lastOfCover = 0;

LRESULT CALLBACK LookAtCover(int code, WPARAM window, LPARAM data) {
    if (code == HCBT_DESTROYWND) {
        g_lastOfCover = MiddleOf(reinterpret_cast<HWND>(window));
    }
    return ::CallNextHookEx(nullptr, code, window, data);
}

TEST(WindowFreezing, ACoverThatIsPaintedAnewInTheMiddleShowsTheOldPicture) {
    Frame frame;
    const fx::WindowFreeze freeze;
    const HWND cover = OwnedBy(frame.m_frame).front();
    frame.m_child.SetColour(kNew);
    frame.m_child.UpdateWindow();
    ::RedrawWindow(cover, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
    EXPECT_EQ(MiddleOf(cover), kOld);
}

TEST(WindowFreezing, TheCoverShowsTheNewPictureBeforeItGoes) {
    Frame frame;
    HHOOK hook = nullptr;
    {
        const fx::WindowFreeze freeze;
        frame.m_child.SetColour(kNew);
        EXPECT_EQ(MiddleOf(OwnedBy(frame.m_frame).front()), kOld);
        hook = ::SetWindowsHookExW(WH_CBT, &LookAtCover, nullptr, ::GetCurrentThreadId());
    }
    ::UnhookWindowsHookEx(hook);
    EXPECT_EQ(g_lastOfCover, kNew);
}

TEST(WindowFreezing, AFrameThatHasMovedIsNotShownInTheOldPlace) {
    Frame frame;
    HHOOK hook = nullptr;
    {
        const fx::WindowFreeze freeze;
        frame.m_child.SetColour(kNew);
        frame.m_frame.SetWindowPos(nullptr, 80, 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        hook = ::SetWindowsHookExW(WH_CBT, &LookAtCover, nullptr, ::GetCurrentThreadId());
    }
    ::UnhookWindowsHookEx(hook);
    EXPECT_EQ(g_lastOfCover, kOld);
}

TEST(WindowFreezing, TheOldPictureLiesOverTheFrameUntilTheEnd) {
    Frame frame;
    CRect place, coverPlace;
    frame.m_frame.GetWindowRect(place);
    {
        const fx::WindowFreeze freeze;
        const std::vector<HWND> covers = OwnedBy(frame.m_frame);
        ASSERT_EQ(covers.size(), 1u);
        ::GetWindowRect(covers[0], coverPlace);
        EXPECT_EQ(coverPlace, place);
        EXPECT_EQ(MiddleOf(covers[0]), kOld);
        frame.m_child.SetColour(kNew);
        frame.m_child.UpdateWindow();
        EXPECT_EQ(MiddleOf(frame.m_child), kNew);
        EXPECT_EQ(MiddleOf(covers[0]), kOld);
    }
    EXPECT_TRUE(OwnedBy(frame.m_frame).empty());
}

TEST(WindowFreezing, WhatIsStillToBePaintedIsPaintedBeforeTheEnd) {
    Frame frame;
    {
        const fx::WindowFreeze freeze;
        frame.m_child.SetColour(kNew);
    }
    EXPECT_EQ(MiddleOf(frame.m_child), kNew);
}

TEST(WindowFreezing, OneInsideAnotherDoesNothing) {
    Frame frame;
    const fx::WindowFreeze freeze;
    {
        const fx::WindowFreeze inner;
        EXPECT_EQ(OwnedBy(frame.m_frame).size(), 1u);
    }
    EXPECT_EQ(OwnedBy(frame.m_frame).size(), 1u);
}

TEST(WindowFreezing, OneInTheMiddleOfAPaintingDoesNothing) {
    Frame frame;
    const CPaintDC painting(&frame.m_child);
    const fx::WindowFreeze freeze;
    EXPECT_TRUE(OwnedBy(frame.m_frame).empty());
}

TEST(WindowFreezing, PopUpsStayAboveThePicture) {
    Frame frame;
    CWnd popup;
    popup.CreateEx(WS_EX_NOACTIVATE, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(60, 60, 120, 120), &frame.m_frame, 0);
    popup.ShowWindow(SW_SHOWNA);
    PumpPending();
    const fx::WindowFreeze freeze;
    const std::vector<HWND> owned = OwnedBy(frame.m_frame);
    ASSERT_EQ(owned.size(), 2u);
    EXPECT_EQ(owned[0], popup.m_hWnd);
}

TEST(WindowFreezing, TheInputStaysWithTheFrame) {
    Frame frame;
    frame.m_frame.SetActiveWindow();
    frame.m_child.SetFocus();
    const fx::WindowFreeze freeze;
    const HWND cover = OwnedBy(frame.m_frame).at(0);
    EXPECT_EQ(::GetFocus(), frame.m_child.m_hWnd);
    EXPECT_EQ(::SendMessageW(cover, WM_NCHITTEST, 0, MAKELPARAM(100, 100)), HTTRANSPARENT);
}

TEST(WindowFreezing, HiddenAndEmptyWindowsAreLeftAlone) {
    Frame hidden;
    hidden.m_frame.ShowWindow(SW_HIDE);
    Frame empty;
    empty.m_child.DestroyWindow();
    const Frame borderless(WS_POPUP);
    const fx::WindowFreeze freeze;
    EXPECT_TRUE(OwnedBy(hidden.m_frame).empty());
    EXPECT_TRUE(OwnedBy(empty.m_frame).empty());
    EXPECT_TRUE(OwnedBy(borderless.m_frame).empty());
}

TEST(WindowFreezing, AMirroredFrameIsCoveredAsItStands) {
    Frame frame(WS_OVERLAPPEDWINDOW, WS_EX_LAYOUTRTL);
    CRect client;
    frame.m_frame.GetClientRect(client);
    // The child's left half, which lies on the right.
    frame.m_frame.SetColour(kNew);
    frame.m_child.SetWindowPos(nullptr, 0, 0, client.Width() / 4, client.Height(), SWP_NOZORDER);
    frame.m_frame.UpdateWindow();
    PumpPending();
    const fx::WindowFreeze freeze;
    const HWND cover = OwnedBy(frame.m_frame).at(0);
    CRect rect;
    ::GetWindowRect(cover, rect);
    const HDC dc = ::GetWindowDC(cover);
    EXPECT_EQ(::GetPixel(dc, rect.Width() - 20, rect.Height() / 2), kOld);
    EXPECT_EQ(::GetPixel(dc, 20, rect.Height() / 2), kNew);
    ::ReleaseDC(cover, dc);
}

TEST(WindowFreezing, AFrameMayGoMeanwhile) {
    auto frame = std::make_unique<Frame>();
    const fx::WindowFreeze freeze;
    const HWND cover = OwnedBy(frame->m_frame).at(0);
    frame.reset();
    EXPECT_FALSE(::IsWindow(cover));
}

TEST(WindowFreezing, NothingIsLeft) {
    Frame frame;
    { const fx::WindowFreeze first; }
    const GuiObjects before = CountGuiObjects();
    for (int i = 0; i < 20; ++i) {
        const fx::WindowFreeze freeze;
    }
    EXPECT_EQ(CountGuiObjects(), before);
}

} // namespace

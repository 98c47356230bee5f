// What is drawn, and how often, while the user sizes a frame with a ribbon: nothing twice, nothing without need.
#include "caption_frame.h"

#include "tests/support/canvas.h"

#include <map>

namespace {

struct Painted {
    int times = 0;
    int erased = 0;
    LONG pixels = 0; // of the update rectangles
};

/// Counts the paint messages of windows while it lives.
class PaintCounter {
public:
    explicit PaintCounter(std::initializer_list<HWND> windows) {
        for (const HWND window : windows) {
            const auto former = ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Count));
            s_counted[window].procedure = reinterpret_cast<WNDPROC>(former);
        }
    }
    ~PaintCounter() {
        for (const auto& [window, counted] : s_counted) {
            ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(counted.procedure));
        }
        s_counted.clear();
    }
    PaintCounter(const PaintCounter&) = delete;
    PaintCounter& operator=(const PaintCounter&) = delete;

    const Painted& Of(HWND window) const { return s_counted.at(window).painted; }
    void Reset() {
        for (auto& [window, counted] : s_counted) {
            counted.painted = {};
        }
    }

private:
    struct Counted {
        WNDPROC procedure;
        Painted painted;
    };

    static LRESULT CALLBACK Count(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        Counted& counted = s_counted.at(window);
        RECT update{};
        if (message == WM_PAINT && ::GetUpdateRect(window, &update, FALSE)) {
            ++counted.painted.times;
            counted.painted.pixels += (update.right - update.left) * (update.bottom - update.top);
        }
        counted.painted.erased += message == WM_ERASEBKGND ? 1 : 0;
        return ::CallWindowProcW(counted.procedure, window, message, wParam, lParam);
    }

    static inline std::map<HWND, Counted> s_counted;
};

template <class Frame>
class NoFlash : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(m_frame.Show());
        if (!m_document.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 9, 9), &m_frame,
                               AFX_IDW_PANE_FIRST)) {
            FAIL();
        }
        m_frame.RecalcLayout();
        PumpPending();
    }
    void Grow(int width, int height) {
        const CRect window = m_frame.WindowRect();
        m_frame.SetWindowPos(nullptr, 0, 0, window.Width() + width, window.Height() + height,
                             SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        PumpPending();
    }
    HWND Ribbon() { return m_frame.bar.GetSafeHwnd(); }

    CaptionFrame<Frame> m_frame;
    CWnd m_document;
};

using Frames = ::testing::Types<CFrameWndEx, CMDIFrameWndEx>;
TYPED_TEST_SUITE(NoFlash, Frames);

TYPED_TEST(NoFlash, AStepInWidthPaintsEveryWindowAtMostOnce) {
    const HWND document = this->m_document.GetSafeHwnd();
    const HWND frame = this->m_frame.GetSafeHwnd();
    PaintCounter counter{this->Ribbon(), document, frame};
    for (const int step : {7, 1, -3, 40, -60}) {
        counter.Reset();
        this->Grow(step, 0);
        EXPECT_EQ(counter.Of(this->Ribbon()).times, 1) << step;
        EXPECT_LE(counter.Of(document).times, 1) << step;
        EXPECT_LE(counter.Of(frame).times, 1) << step;
    }
}

TYPED_TEST(NoFlash, AStepInHeightLeavesTheRibbonAsItIs) {
    PaintCounter counter{this->Ribbon()};
    for (const int step : {5, 1, -9, 30}) {
        this->Grow(0, step);
    }
    EXPECT_EQ(counter.Of(this->Ribbon()).times, 0);
}

TYPED_TEST(NoFlash, AMoveLeavesEverythingAsItIs) {
    const HWND document = this->m_document.GetSafeHwnd();
    PaintCounter counter{this->Ribbon(), document};
    const CRect window = this->m_frame.WindowRect();
    this->m_frame.SetWindowPos(nullptr, window.left + 3, window.top + 2, 0, 0,
                               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    PumpPending();
    EXPECT_EQ(counter.Of(this->Ribbon()).times, 0);
    EXPECT_EQ(counter.Of(document).times, 0);
}

TYPED_TEST(NoFlash, ALossOfActivationPaintsTheCaptionAndNoPanels) {
    PaintCounter counter{this->Ribbon()};
    ::SendMessageW(this->m_frame.GetSafeHwnd(), WM_NCACTIVATE, FALSE, 0);
    PumpPending();
    CRect bar;
    this->m_frame.bar.GetClientRect(bar);
    const CRect caption = this->m_frame.bar.GetCaptionRect();
    EXPECT_EQ(counter.Of(this->Ribbon()).times, 1);
    EXPECT_LE(counter.Of(this->Ribbon()).pixels, static_cast<LONG>(bar.Width()) * caption.bottom);
}

TYPED_TEST(NoFlash, TheFrameErasesNeitherTheRibbonNorItsDocument) {
    CRect client;
    this->m_frame.GetClientRect(client);
    CRect rows;
    this->m_frame.bar.GetWindowRect(rows);
    this->m_frame.ScreenToClient(rows);
    Canvas canvas(client.Width());
    ::SendMessageW(this->m_frame.GetSafeHwnd(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc()->GetSafeHdc()), 0);
    for (int y = rows.top; y < rows.bottom; y += 3) {
        ASSERT_EQ(canvas.At(client.Width() / 2, y), Canvas::background) << y;
    }
    EXPECT_NE(canvas.At(client.Width() / 2, rows.bottom + 2), Canvas::background) << "it does erase the rest";
    // The rest is the document's, which the frame's own context leaves out.
    CClientDC dc(&this->m_frame);
    CRect document;
    this->m_document.GetWindowRect(document);
    this->m_frame.ScreenToClient(document);
    document.DeflateRect(1, 1);
    EXPECT_FALSE(dc.RectVisible(document));
}

TYPED_TEST(NoFlash, TheRibbonIsNotErasedBeforeItIsPainted) {
    CRect client;
    this->m_frame.bar.GetClientRect(client);
    Canvas canvas(client.Width());
    EXPECT_TRUE(::SendMessageW(this->Ribbon(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc()->GetSafeHdc()), 0));
    EXPECT_EQ(canvas.Extent(), CSize(0, 0));
}

} // namespace

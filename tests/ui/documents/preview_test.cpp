// What is seen of a view's pages before they are printed.
#include "plans.h"

#include "fx/print_preview.h"

#include <functional>

namespace {

using Job = std::vector<std::string>;

constexpr COLORREF kInk = RGB(200, 30, 60);
constexpr UINT kNext = 1001, kPrevious = 1002, kTwoPages = 1003, kIn = 1004, kOut = 1005;

/// Does what it is told once the thread has nothing else to do, and closes the preview.
class Hand {
public:
    explicit Hand(std::function<void(CWnd& window, CPreviewView& view)> act) {
        s_act = std::move(act);
        m_timer = ::SetTimer(nullptr, 0, 50, &Hand::OnTime);
    }
    ~Hand() {
        ::KillTimer(nullptr, m_timer);
        EXPECT_EQ(s_act, nullptr) << "no preview was shown";
        s_act = nullptr;
    }
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;

private:
    static void CALLBACK OnTime(HWND, UINT, UINT_PTR, DWORD) {
        CWnd* const window = CWnd::GetActiveWindow();
        auto* const view = window ? DYNAMIC_DOWNCAST(CPreviewView, window->GetDlgItem(AFX_IDW_PANE_FIRST)) : nullptr;
        if (view == nullptr || !s_act) {
            return;
        }
        std::exchange(s_act, nullptr)(*window, *view);
        if (window->GetSafeHwnd() != nullptr) {
            window->PostMessage(WM_COMMAND, IDCANCEL);
        }
    }
    static inline std::function<void(CWnd&, CPreviewView&)> s_act;
    UINT_PTR m_timer;
};

void Press(CWnd& window, UINT button) { window.SendMessage(WM_COMMAND, button); }
bool IsEnabled(CWnd& window, int button) { return window.GetDlgItem(button)->IsWindowEnabled(); }

class Preview : public DocumentTest {
protected:
    void SetUp() override {
        PlanView::s_job.clear();
        m_view = ViewOf(*NewSingle());
        m_view->GetDocument()->SetTitle(L"Garden");
    }
    void TearDown() override {
        PlanView::s_paint = nullptr;
        DocumentTest::TearDown();
    }
    const Job& Show() {
        m_view->GetParentFrame()->SendMessage(WM_COMMAND, ID_FILE_PRINT_PREVIEW);
        return PlanView::s_job;
    }
    PlanView* m_view = nullptr;
};

TEST_F(Preview, RunsFromThePreparationToTheEndWithoutAPrintJob) {
    m_view->m_length = 1;
    const Hand hand([this](CWnd& window, CPreviewView&) {
        CString title;
        window.GetWindowText(title);
        EXPECT_STREQ(title, L"Garden - Print Preview");
        EXPECT_FALSE(m_view->GetParentFrame()->IsWindowEnabled());
    });
    EXPECT_EQ(Show(), (Job{"prepare", "begin", "page 1", "end"}));
    EXPECT_TRUE(m_view->m_isPreview);
    EXPECT_TRUE(m_view->GetParentFrame()->IsWindowEnabled());
}

TEST_F(Preview, WhatIsNotToBePrintedIsNotShown) {
    m_view->m_isPrintable = FALSE;
    EXPECT_EQ(Show(), Job{"prepare"});
}

TEST_F(Preview, PagesAreTurnedAndAskedForOnce) {
    m_view->m_length = 3;
    const Hand hand([](CWnd& window, CPreviewView& view) {
        EXPECT_EQ(view.GetCurrentPage(), 1u);
        EXPECT_FALSE(IsEnabled(window, kPrevious));
        Press(window, kNext);
        Press(window, kNext);
        EXPECT_EQ(view.GetCurrentPage(), 3u);
        EXPECT_STREQ(view.GetPageText(), L"Page 3");
        EXPECT_FALSE(IsEnabled(window, kNext));
        Press(window, kPrevious);
        EXPECT_EQ(view.GetCurrentPage(), 2u);
        view.RedrawWindow();
    });
    const Job& job = Show();
    for (const char* const page : {"page 1", "page 2", "page 3"}) {
        EXPECT_EQ(std::count(job.begin(), job.end(), page), 1) << page;
    }
}

TEST_F(Preview, ADocumentOfUnknownLengthHasOnePage) {
    const Hand hand([](CWnd& window, CPreviewView& view) {
        EXPECT_FALSE(IsEnabled(window, kNext));
        view.SetCurrentPage(7);
        EXPECT_EQ(view.GetCurrentPage(), 1u);
    });
    EXPECT_EQ(Show(), (Job{"prepare", "begin", "page 1", "end"}));
}

TEST_F(Preview, TwoPagesLieBesideEachOther) {
    m_view->m_length = 3;
    const Hand hand([](CWnd& window, CPreviewView& view) {
        EXPECT_EQ(view.GetSheets().size(), 1u);
        Press(window, kTwoPages);
        const std::vector<CRect> sheets = view.GetSheets();
        ASSERT_EQ(sheets.size(), 2u);
        EXPECT_LT(sheets[0].right, sheets[1].left);
        EXPECT_EQ(sheets[0].Size(), sheets[1].Size());
        EXPECT_STREQ(view.GetPageText(), L"Pages 1-2");
        Press(window, kNext);
        EXPECT_EQ(view.GetSheets().size(), 1u) << "there is no fourth page";
    });
    Show();
}

TEST_F(Preview, TheWholeSheetFitsUntilItIsEnlarged) {
    m_view->m_length = 1;
    const Hand hand([](CWnd& window, CPreviewView& view) {
        CRect room;
        view.GetClientRect(room);
        CRect both;
        const CRect whole = view.GetSheets().front();
        EXPECT_TRUE(both.IntersectRect(room, whole) && both == whole);
        EXPECT_FALSE(IsEnabled(window, kOut));
        Press(window, kIn);
        EXPECT_GT(view.GetSheets().front().Width(), whole.Width());
        Press(window, kOut);
        EXPECT_EQ(view.GetSheets().front(), whole);
        while (IsEnabled(window, kIn)) {
            Press(window, kIn);
        }
        EXPECT_EQ(view.GetZoom(), 400);
        view.ScrollToPosition(CPoint(50, 60));
        EXPECT_EQ(view.GetDeviceScrollPosition(), CPoint(50, 60));
    });
    Show();
}

// The view's own measures are the printer's: a quarter of what can be printed is a quarter of the sheet.
TEST_F(Preview, APageIsDrawnAsOnThePrinterAndScaled) {
    m_view->m_length = 1;
    PlanView::s_paint = [](CDC& dc, const CRect& page) {
        EXPECT_TRUE(dc.IsPrinting());
        EXPECT_EQ(dc.GetDeviceCaps(HORZRES), page.Width());
        dc.FillSolidRect(CRect(0, 0, page.Width() / 2, page.Height() / 2), kInk);
    };
    const Hand hand([](CWnd&, CPreviewView& view) {
        view.RedrawWindow();
        CClientDC dc(&view);
        const CRect sheet = view.GetSheets().front();
        const auto at = [&](int across, int down) {
            return dc.GetPixel(sheet.left + sheet.Width() * across / 100, sheet.top + sheet.Height() * down / 100);
        };
        EXPECT_EQ(at(10, 10), kInk);
        EXPECT_EQ(at(48, 48), kInk);
        EXPECT_EQ(at(52, 48), RGB(255, 255, 255));
        EXPECT_EQ(at(48, 52), RGB(255, 255, 255));
        EXPECT_NE(dc.GetPixel(sheet.left - 4, sheet.top + 4), RGB(255, 255, 255)) << "the ground beside it";
    });
    Show();
}

TEST_F(Preview, PrintingFromItAsksTheFrame) {
    m_view->m_length = 1;
    const Hand hand([](CWnd& window, CPreviewView&) { window.PostMessage(WM_COMMAND, IDOK); });
    Show();
    MSG message;
    ASSERT_TRUE(::PeekMessageW(&message, m_view->GetParentFrame()->m_hWnd, WM_COMMAND, WM_COMMAND, PM_REMOVE));
    EXPECT_EQ(message.wParam, static_cast<WPARAM>(ID_FILE_PRINT));
}

TEST_F(Preview, TheKeysTurnPagesAndClose) {
    m_view->m_length = 2;
    const Hand hand([](CWnd& window, CPreviewView& view) {
        const auto press = [&window](UINT key) {
            ::PostMessageW(window.GetDlgItem(IDCANCEL)->m_hWnd, WM_KEYDOWN, key, 1);
            PumpPending();
        };
        press(VK_NEXT);
        EXPECT_EQ(view.GetCurrentPage(), 2u);
        press(VK_PRIOR);
        EXPECT_EQ(view.GetCurrentPage(), 1u);
        ::PostMessageW(window.GetDlgItem(IDCANCEL)->m_hWnd, WM_KEYDOWN, VK_ESCAPE, 1);
    });
    EXPECT_EQ(Show().back(), "end");
}

// Programs call it from a handler of their own.
TEST_F(Preview, TheFunctionForProgramsDoesTheSame) {
    m_view->m_length = 1;
    {
        const Hand hand([](CWnd&, CPreviewView&) {});
        AFXPrintPreview(m_view);
    }
    EXPECT_EQ(PlanView::s_job, (Job{"prepare", "begin", "page 1", "end"}));
    AFXPrintPreview(nullptr);
}

} // namespace

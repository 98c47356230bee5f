// A status bar of texts, icons and progress in a frame.
#include "afxcontrolbars.h"
#include "tests/support/icon_handle.h"
#include "tests/support/message_pump.h"
#include "tests/support/pointer.h"
#include "tests/support/ui_test.h"

#include <string>
#include <vector>

namespace {

constexpr UINT kLine = 4001;
constexpr UINT kInsert = 4002;

class TestStatusBar : public CMFCStatusBar {
public:
    using CMFCStatusBar::DoPaint;
    std::vector<UINT> drawn;

protected:
    void OnDrawPane(CDC* dc, CMFCStatusBarPaneInfo* pane) override {
        drawn.push_back(pane->nID);
        CMFCStatusBar::OnDrawPane(dc, pane);
    }
};

class StatusFrame : public CFrameWndEx {
public:
    TestStatusBar bar;
    std::vector<UINT> commands;
    bool isInsertOn = true;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create) {
        return CFrameWndEx::OnCreate(create) == -1 || !bar.Create(this) ? -1 : 0;
    }
    afx_msg void OnPane(UINT id) { commands.push_back(id); }
    afx_msg void OnUpdateInsert(CCmdUI* state) { state->Enable(isInsertOn); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(StatusFrame, CFrameWndEx)
ON_WM_CREATE()
ON_COMMAND_RANGE(4000, 4099, OnPane)
ON_UPDATE_COMMAND_UI(kInsert, OnUpdateInsert)
END_MESSAGE_MAP()

class StatusBarTest : public ::testing::Test {
protected:
    StatusBarTest() : m_frame(new StatusFrame) {
        m_frame->Create(nullptr, L"Status", WS_OVERLAPPEDWINDOW, CRect(100, 80, 700, 480));
        m_window = m_frame->m_hWnd;
        const UINT ids[] = {0, kLine, kInsert};
        EXPECT_TRUE(Bar().SetIndicators(ids, 3));
        m_frame->ShowWindow(SW_SHOWNOACTIVATE);
        m_frame->RecalcLayout();
        PumpPending();
    }
    ~StatusBarTest() override {
        if (::IsWindow(m_window)) {
            ::DestroyWindow(m_window);
        }
        PumpPending();
    }
    TestStatusBar& Bar() { return m_frame->bar; }
    CRect RectOf(int index) {
        CRect rect;
        Bar().GetItemRect(index, &rect);
        return rect;
    }
    /// The colours of the pane's pixels that are its own, not the bar's ground.
    int PixelsOf(int index, COLORREF color) {
        CRect client;
        Bar().GetClientRect(&client);
        CClientDC screen(&Bar());
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, client.Width(), client.Height());
        CBitmap* const before = memory.SelectObject(&bitmap);
        Bar().DoPaint(&memory);
        int count = 0;
        const CRect pane = RectOf(index);
        for (int y = pane.top; y < pane.bottom; ++y) {
            for (int x = pane.left; x < pane.right; ++x) {
                count += memory.GetPixel(x, y) == color ? 1 : 0;
            }
        }
        memory.SelectObject(before);
        return count;
    }

    StatusFrame* m_frame = nullptr;
    HWND m_window = nullptr;
    Pointer m_pointer;
};

TEST_F(StatusBarTest, ItLiesAtTheBottomOfTheFrameOverItsWholeWidth) {
    CRect frame;
    m_frame->GetClientRect(&frame);
    CRect bar;
    Bar().GetWindowRect(&bar);
    m_frame->ScreenToClient(&bar);
    EXPECT_EQ(bar.bottom, frame.bottom);
    EXPECT_EQ(bar.left, frame.left);
    EXPECT_EQ(bar.right, frame.right);
    EXPECT_GT(bar.Height(), 10);
    EXPECT_LT(bar.Height(), 60);
}

TEST_F(StatusBarTest, IndicatorsTakeTextAndWidthFromTheirStringsAndTheFirstStretches) {
    EXPECT_EQ(Bar().GetCount(), 3);
    EXPECT_EQ(Bar().GetPaneText(1), L"Line 1234");
    EXPECT_GT(Bar().GetPaneWidth(1), Bar().GetPaneWidth(2));
    EXPECT_EQ(Bar().CommandToIndex(kInsert), 2);
    EXPECT_EQ(Bar().CommandToIndex(77), -1);
    EXPECT_TRUE(Bar().GetPaneStyle(0) & SBPS_STRETCH);
    EXPECT_GT(RectOf(0).Width(), 300);
    EXPECT_GT(RectOf(1).left, RectOf(0).right - 1);
    EXPECT_GT(RectOf(2).left, RectOf(1).right - 1);
}

TEST_F(StatusBarTest, AMissingStringChangesNothing) {
    const UINT ids[] = {0, 999};
    EXPECT_FALSE(Bar().SetIndicators(ids, 2));
    EXPECT_EQ(Bar().GetCount(), 3);
    EXPECT_TRUE(Bar().SetIndicators(nullptr, 2));
    EXPECT_EQ(Bar().GetCount(), 2);
}

TEST_F(StatusBarTest, AnIndexBeyondThePanesChangesNothingAndAnswersEmptyValues) {
    for (const int index : {-1, 3, 1000}) {
        EXPECT_FALSE(Bar().SetPaneText(index, L"x"));
        Bar().SetPaneWidth(index, 5);
        Bar().SetPaneStyle(index, SBPS_STRETCH);
        Bar().SetPaneInfo(index, 1, 2, 3);
        Bar().SetPaneIcon(index, static_cast<HICON>(nullptr));
        Bar().SetPaneAnimation(index, nullptr);
        Bar().EnablePaneProgressBar(index);
        Bar().SetPaneProgress(index, 5);
        Bar().SetTipText(index, L"x");
        Bar().SetPaneTextColor(index, 0);
        Bar().SetPaneBackgroundColor(index, 0);
        Bar().InvalidatePaneContent(index);
        EXPECT_EQ(Bar().GetItemID(index), 0u);
        EXPECT_EQ(Bar().GetPaneText(index), L"");
        EXPECT_EQ(Bar().GetPaneProgress(index), -1);
        EXPECT_EQ(RectOf(index), CRect(0, 0, 0, 0));
    }
}

TEST_F(StatusBarTest, TheFramesMessagesStandInTheFirstPane) {
    m_frame->SetMessageText(L"Ready for it");
    EXPECT_EQ(Bar().GetPaneText(0), L"Ready for it");
    CString text;
    Bar().GetWindowText(text);
    EXPECT_EQ(text, L"Ready for it");
}

TEST_F(StatusBarTest, UpdateHandlersEnableAndDisablePanes) {
    m_frame->isInsertOn = false;
    Bar().OnUpdateCmdUI(m_frame, TRUE);
    EXPECT_TRUE(Bar().GetPaneStyle(2) & SBPS_DISABLED);
    EXPECT_FALSE(Bar().GetPaneStyle(1) & SBPS_DISABLED) << "a pane that nobody updates stays as it is";
    m_frame->isInsertOn = true;
    Bar().OnUpdateCmdUI(m_frame, TRUE);
    EXPECT_FALSE(Bar().GetPaneStyle(2) & SBPS_DISABLED);
}

TEST_F(StatusBarTest, ADisabledPaneShowsNoText) {
    Bar().SetPaneTextColor(2, RGB(250, 1, 2));
    EXPECT_GT(PixelsOf(2, RGB(250, 1, 2)), 5);
    Bar().SetPaneStyle(2, SBPS_DISABLED);
    EXPECT_EQ(PixelsOf(2, RGB(250, 1, 2)), 0);
}

TEST_F(StatusBarTest, APaneHasTheBackgroundThatItIsGiven) {
    EXPECT_EQ(PixelsOf(1, RGB(1, 250, 2)), 0);
    Bar().SetPaneBackgroundColor(1, RGB(1, 250, 2));
    EXPECT_GT(PixelsOf(1, RGB(1, 250, 2)), 200);
    Bar().SetPaneBackgroundColor(1);
    EXPECT_EQ(PixelsOf(1, RGB(1, 250, 2)), 0);
}

TEST_F(StatusBarTest, AnIconMakesThePaneWiderAndIsCopied) {
    const int before = RectOf(1).Width();
    const HICON icon = MakeIcon(16, RGB(3, 4, 251), [](int, int) { return true; });
    Bar().SetPaneIcon(1, icon);
    ::DestroyIcon(icon);
    EXPECT_GE(RectOf(1).Width(), before + 16);
    EXPECT_GT(PixelsOf(1, RGB(3, 4, 251)), 150);
    Bar().SetPaneIcon(1, static_cast<HICON>(nullptr));
    EXPECT_EQ(RectOf(1).Width(), before);
    EXPECT_EQ(PixelsOf(1, RGB(3, 4, 251)), 0);
}

TEST_F(StatusBarTest, AnAnimationShowsOneImageAfterTheOther) {
    const HIMAGELIST images = ::ImageList_Create(16, 16, ILC_COLOR32 | ILC_MASK, 2, 0);
    for (const COLORREF color : {RGB(200, 1, 1), RGB(1, 200, 1)}) {
        const HICON icon = MakeIcon(16, color, [](int, int) { return true; });
        ::ImageList_ReplaceIcon(images, -1, icon);
        ::DestroyIcon(icon);
    }
    Bar().SetPaneAnimation(1, images, 100000);
    ::ImageList_Destroy(images);
    EXPECT_GT(PixelsOf(1, RGB(200, 1, 1)), 150);
    Bar().SendMessage(WM_TIMER, 2);
    EXPECT_GT(PixelsOf(1, RGB(1, 200, 1)), 150);
    Bar().SendMessage(WM_TIMER, 2);
    EXPECT_GT(PixelsOf(1, RGB(200, 1, 1)), 150);
    Bar().SetPaneAnimation(1, nullptr);
    EXPECT_EQ(PixelsOf(1, RGB(200, 1, 1)), 0);
}

TEST_F(StatusBarTest, ProgressStaysBetweenNothingAndAll) {
    EXPECT_EQ(Bar().GetPaneProgress(1), -1);
    Bar().SetPaneProgress(1, 5);
    EXPECT_EQ(Bar().GetPaneProgress(1), -1) << "it shows none";
    Bar().EnablePaneProgressBar(1, 200);
    Bar().SetPaneProgress(1, 50);
    EXPECT_EQ(Bar().GetPaneProgress(1), 50);
    Bar().SetPaneProgress(1, 500);
    EXPECT_EQ(Bar().GetPaneProgress(1), 200);
    Bar().SetPaneProgress(1, -3);
    EXPECT_EQ(Bar().GetPaneProgress(1), 0);
    Bar().EnablePaneProgressBar(1, -1);
    EXPECT_EQ(Bar().GetPaneProgress(1), -1);
}

TEST_F(StatusBarTest, WhileItShowsProgressThePaneShowsNoText) {
    Bar().SetPaneTextColor(1, RGB(250, 1, 2));
    ASSERT_GT(PixelsOf(1, RGB(250, 1, 2)), 5);
    Bar().EnablePaneProgressBar(1);
    EXPECT_EQ(PixelsOf(1, RGB(250, 1, 2)), 0);
    Bar().EnablePaneProgressBar(1, -1);
    EXPECT_GT(PixelsOf(1, RGB(250, 1, 2)), 5);
}

TEST_F(StatusBarTest, ADoubleClickSendsThePanesCommandIfItIsAllowed) {
    m_pointer.DoubleClick(Bar().m_hWnd, RectOf(2).CenterPoint());
    PumpPending();
    EXPECT_TRUE(m_frame->commands.empty());
    Bar().EnablePaneDoubleClick();
    m_pointer.DoubleClick(Bar().m_hWnd, RectOf(2).CenterPoint());
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{kInsert});
    m_pointer.DoubleClick(Bar().m_hWnd, RectOf(0).CenterPoint());
    PumpPending();
    EXPECT_EQ(m_frame->commands.size(), 1u) << "the message pane has no command";
}

TEST_F(StatusBarTest, TheCornerIsTheFramesGripUntilTheFrameIsMaximized) {
    CRect client;
    Bar().GetClientRect(&client);
    const auto hit = [this](CPoint point) {
        Bar().ClientToScreen(&point);
        return Bar().SendMessage(WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y));
    };
    const CPoint corner(client.right - 3, client.bottom - 3);
    EXPECT_EQ(hit(corner), HTBOTTOMRIGHT);
    EXPECT_EQ(hit(RectOf(1).CenterPoint()), HTCLIENT);
    EXPECT_LE(RectOf(2).right, client.right - 8) << "no pane lies under it";
    m_frame->ShowWindow(SW_SHOWMAXIMIZED);
    Bar().GetClientRect(&client);
    EXPECT_EQ(hit(CPoint(client.right - 3, client.bottom - 3)), HTCLIENT);
}

TEST_F(StatusBarTest, AHostMayDrawPanesItself) {
    Bar().drawn.clear();
    PixelsOf(0, 0);
    EXPECT_EQ(Bar().drawn, (std::vector<UINT>{0, kLine, kInsert}));
}

TEST_F(StatusBarTest, AnotherWidthMovesThePanesBehind) {
    const int before = RectOf(2).left;
    Bar().SetPaneWidth(2, Bar().GetPaneWidth(2) + 40);
    EXPECT_EQ(RectOf(2).left, before - 40);
    UINT id = 0;
    UINT style = 0;
    int width = 0;
    Bar().GetPaneInfo(2, id, style, width);
    EXPECT_EQ(id, kInsert);
    Bar().SetPaneInfo(1, 4050, SBPS_NOBORDERS, 20);
    EXPECT_EQ(Bar().GetItemID(1), 4050u);
    EXPECT_EQ(Bar().GetPaneWidth(1), 20);
}

TEST_F(StatusBarTest, TheExtendedAreaBeginsWithTheFirstBorderedPane) {
    CRect area;
    EXPECT_FALSE(Bar().GetExtendedArea(area));
    Bar().SetDrawExtendedArea();
    EXPECT_TRUE(Bar().GetDrawExtendedArea());
    ASSERT_TRUE(Bar().GetExtendedArea(area));
    EXPECT_GT(area.left, RectOf(0).CenterPoint().x);
    EXPECT_LE(area.left, RectOf(1).left);
}

TEST_F(StatusBarTest, TooltipsStayWithTheirPanes) {
    Bar().SetTipText(1, L"Where you are");
    EXPECT_EQ(Bar().GetTipText(1), L"Where you are");
    EXPECT_EQ(Bar().GetTipText(2), L"");
    m_frame->SetWindowPos(nullptr, 0, 0, 500, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Bar().GetTipText(1), L"Where you are");
}

} // namespace

#include "tests/ui/frame_caption/caption_frame.h"

#include "afxvisualmanageroffice2007.h"
#include "tests/support/gui_objects.h"

namespace {

template <class Frame>
class FrameCaption : public ::testing::Test {
protected:
    CaptionFrame<Frame> frame;
    Pointer pointer;
};

using RibbonFrames = ::testing::Types<CFrameWndEx, CMDIFrameWndEx>;
TYPED_TEST_SUITE(FrameCaption, RibbonFrames);

TYPED_TEST(FrameCaption, TheFrameGivesUpTheSystemsAndKeepsItsBorders) {
    auto& frame = this->frame;
    frame.Show();
    EXPECT_FALSE(frame.HasCaptionStyle());
    const CRect window = frame.WindowRect();
    const CRect client = frame.ClientOnScreen();
    const int border = client.left - window.left;
    EXPECT_GT(border, 0);
    EXPECT_EQ(client.top - window.top, border);
    EXPECT_EQ(window.right - client.right, border);
    EXPECT_EQ(window.bottom - client.bottom, border);
    EXPECT_GT(frame.bar.GetCaptionHeight(), 0);
    CRect bar;
    frame.bar.GetWindowRect(&bar);
    EXPECT_EQ(bar.TopLeft(), client.TopLeft());
}

TYPED_TEST(FrameCaption, ABarThatLeavesItAloneLeavesTheStyleAlone) {
    CaptionFrame<TypeParam> frame(FALSE);
    frame.Show();
    EXPECT_TRUE(frame.HasCaptionStyle());
    EXPECT_EQ(frame.bar.GetCaptionHeight(), 0);
    EXPECT_GT(frame.ClientOnScreen().top - frame.WindowRect().top,
              frame.ClientOnScreen().left - frame.WindowRect().left);
}

TYPED_TEST(FrameCaption, IsTheSystemsAgainWhileTheRibbonIsHidden) {
    auto& frame = this->frame;
    frame.Show();
    frame.ShowPane(&frame.bar, FALSE, FALSE, FALSE);
    frame.RecalcLayout();
    EXPECT_TRUE(frame.HasCaptionStyle());
    frame.ShowPane(&frame.bar, TRUE, FALSE, FALSE);
    frame.RecalcLayout();
    EXPECT_FALSE(frame.HasCaptionStyle());
}

TYPED_TEST(FrameCaption, TheBordersStillResize) {
    auto& frame = this->frame;
    frame.Show();
    const CRect window = frame.WindowRect();
    const CPoint middle = window.CenterPoint();
    EXPECT_EQ(frame.HitAt({window.left + 1, middle.y}), HTLEFT);
    EXPECT_EQ(frame.HitAt({window.right - 2, middle.y}), HTRIGHT);
    EXPECT_EQ(frame.HitAt({middle.x, window.top + 1}), HTTOP);
    EXPECT_EQ(frame.HitAt({middle.x, window.bottom - 2}), HTBOTTOM);
    EXPECT_EQ(frame.HitAt({window.right - 2, window.bottom - 2}), HTBOTTOMRIGHT);
    EXPECT_EQ(frame.HitAt({middle.x, middle.y + 50}), HTCLIENT);
}

TYPED_TEST(FrameCaption, TheFreePartOfTheRowIsCaptionAndTheRibbonLetsItThrough) {
    auto& frame = this->frame;
    frame.Show();
    const CPoint caption = frame.CaptionPoint();
    ASSERT_NE(caption, CPoint(-1, -1));
    EXPECT_EQ(frame.HitAt(caption), HTCAPTION);
    const LPARAM place = MAKELPARAM(caption.x, caption.y);
    EXPECT_EQ(frame.bar.SendMessage(WM_NCHITTEST, 0, place), HTTRANSPARENT);
    CRect icon = frame.bar.GetCaptionIconRect();
    ASSERT_FALSE(icon.IsRectEmpty());
    EXPECT_EQ(frame.HitAt(frame.OnScreen(icon.CenterPoint())), HTSYSMENU);
}

TYPED_TEST(FrameCaption, ButtonsTabsAndPanelsAreTheRibbons) {
    auto& frame = this->frame;
    frame.Show();
    for (const UINT command : {SC_MINIMIZE, SC_MAXIMIZE, SC_CLOSE}) {
        CMFCRibbonCaptionButton* button = frame.Button(command);
        ASSERT_NE(button, nullptr) << command;
        const CPoint center = frame.OnScreen(button->GetRect().CenterPoint());
        EXPECT_EQ(frame.HitAt(center), HTCLIENT);
        EXPECT_EQ(frame.bar.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(center.x, center.y)), HTCLIENT);
    }
    const CPoint tab = frame.OnScreen(frame.bar.GetCategory(0)->GetTabRect().CenterPoint());
    EXPECT_EQ(frame.bar.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(tab.x, tab.y)), HTCLIENT);
}

TYPED_TEST(FrameCaption, ButtonsFollowTheStylesOfTheFrame) {
    auto& frame = this->frame;
    frame.Show(WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MAXIMIZEBOX);
    ASSERT_NE(frame.Button(SC_MINIMIZE), nullptr);
    EXPECT_TRUE(frame.Button(SC_MINIMIZE)->IsDisabled());
    EXPECT_FALSE(frame.Button(SC_MAXIMIZE)->IsDisabled());
    CaptionFrame<TypeParam> closeOnly;
    closeOnly.Show(WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU);
    EXPECT_EQ(closeOnly.Button(SC_MINIMIZE), nullptr);
    EXPECT_EQ(closeOnly.Button(SC_MAXIMIZE), nullptr);
    EXPECT_NE(closeOnly.Button(SC_CLOSE), nullptr);
}

TYPED_TEST(FrameCaption, AClickOnMaximizeFillsTheWorkAreaAndAnotherRestores) {
    auto& frame = this->frame;
    frame.Show();
    const CRect before = frame.WindowRect();
    this->pointer.Click(frame.bar.m_hWnd, frame.Button(SC_MAXIMIZE)->GetRect().CenterPoint());
    PumpPending();
    ASSERT_TRUE(frame.IsZoomed());
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    ::GetMonitorInfoW(::MonitorFromWindow(frame.m_hWnd, MONITOR_DEFAULTTONEAREST), &monitor);
    EXPECT_EQ(frame.ClientOnScreen(), frame.WindowRect()) << "a maximised frame has no borders";
    CRect within;
    within.IntersectRect(frame.WindowRect(), &monitor.rcWork);
    EXPECT_EQ(within, frame.WindowRect());
    EXPECT_GE(frame.WindowRect().Width(), CRect(monitor.rcWork).Width() - 2);
    // The corner belongs to the close button.
    CMFCRibbonBaseElement* corner = frame.bar.HitTest(CPoint(frame.WindowRect().Width() - 1, 0));
    EXPECT_EQ(corner, frame.Button(SC_CLOSE));
    ASSERT_NE(frame.Button(SC_RESTORE), nullptr);
    this->pointer.Click(frame.bar.m_hWnd, frame.Button(SC_RESTORE)->GetRect().CenterPoint());
    PumpPending();
    EXPECT_FALSE(frame.IsZoomed());
    EXPECT_EQ(frame.WindowRect(), before);
}

TYPED_TEST(FrameCaption, AClickOnMinimizeMakesTheFrameAnIconThatComesBack) {
    auto& frame = this->frame;
    frame.Show();
    const CRect before = frame.WindowRect();
    this->pointer.Click(frame.bar.m_hWnd, frame.Button(SC_MINIMIZE)->GetRect().CenterPoint());
    PumpPending();
    ASSERT_TRUE(frame.IsIconic());
    frame.ShowWindow(SW_RESTORE);
    PumpPending();
    EXPECT_EQ(frame.WindowRect(), before);
    EXPECT_EQ(frame.bar.GetHideFlags(), 0u);
}

TYPED_TEST(FrameCaption, AClickOnCloseClosesAndAReleaseElsewhereDoesNot) {
    auto& frame = this->frame;
    frame.Show();
    const CPoint close = frame.Button(SC_CLOSE)->GetRect().CenterPoint();
    this->pointer.Drag(frame.bar.m_hWnd, close, frame.bar.GetCaptionRect().CenterPoint());
    PumpPending();
    EXPECT_TRUE(::IsWindow(frame.m_hWnd));
    const HWND window = frame.m_hWnd;
    this->pointer.Click(frame.bar.m_hWnd, close);
    PumpPending();
    EXPECT_FALSE(::IsWindow(window));
}

TYPED_TEST(FrameCaption, ADoubleClickMaximizesAndRestores) {
    auto& frame = this->frame;
    frame.Show();
    for (const bool isZoomed : {true, false}) {
        const CPoint point = frame.CaptionPoint();
        frame.SendMessage(WM_NCLBUTTONDBLCLK, HTCAPTION, MAKELPARAM(point.x, point.y));
        PumpPending();
        EXPECT_EQ(frame.IsZoomed() != FALSE, isZoomed);
    }
}

TYPED_TEST(FrameCaption, ARightClickOpensTheSystemMenuWhereItWas) {
    auto& frame = this->frame;
    frame.Show();
    const CountingPopupMenu menus;
    const CPoint point = frame.CaptionPoint();
    this->pointer.MoveTo(point);
    this->pointer.Press(VK_RBUTTON);
    EXPECT_EQ(menus.Count(), 0);
    this->pointer.Release(VK_RBUTTON);
    EXPECT_EQ(menus.Count(), 1);
    EXPECT_GE(menus.LastItemCount(), 6);
    EXPECT_EQ(CPoint(menus.LastPoint()), point);
}

TYPED_TEST(FrameCaption, APressOnTheIconAndAltSpaceOpenTheSystemMenuToo) {
    auto& frame = this->frame;
    frame.Show();
    const CountingPopupMenu menus;
    const CPoint icon = frame.OnScreen(frame.bar.GetCaptionIconRect().CenterPoint());
    this->pointer.MoveTo(icon);
    this->pointer.Press();
    this->pointer.Release();
    EXPECT_EQ(menus.Count(), 1);
    frame.SendMessage(WM_SYSCOMMAND, SC_KEYMENU, ' ');
    EXPECT_EQ(menus.Count(), 2);
}

TYPED_TEST(FrameCaption, WhatIsChosenInTheSystemMenuIsDone) {
    auto& frame = this->frame;
    frame.Show();
    const CountingPopupMenu menus(SC_MAXIMIZE);
    frame.SendMessage(WM_SYSCOMMAND, SC_KEYMENU, ' ');
    PumpPending();
    EXPECT_TRUE(frame.IsZoomed());
    const HMENU menu = ::GetSystemMenu(frame.m_hWnd, FALSE);
    frame.SendMessage(WM_SYSCOMMAND, SC_KEYMENU, ' ');
    EXPECT_EQ(::GetMenuState(menu, SC_MAXIMIZE, MF_BYCOMMAND) & MF_GRAYED, static_cast<UINT>(MF_GRAYED));
    EXPECT_EQ(::GetMenuState(menu, SC_RESTORE, MF_BYCOMMAND) & MF_GRAYED, 0u);
}

TYPED_TEST(FrameCaption, AnotherTitleAndAnotherActivationDrawOnlyTheRow) {
    auto& frame = this->frame;
    frame.Show();
    frame.bar.UpdateWindow();
    frame.SetWindowText(L"Another");
    CRect dirty;
    ASSERT_TRUE(frame.bar.GetUpdateRect(&dirty));
    EXPECT_EQ(dirty, frame.bar.GetCaptionRect());
    frame.bar.UpdateWindow();
    EXPECT_TRUE(frame.bar.IsCaptionActive());
    frame.SendMessage(WM_NCACTIVATE, FALSE);
    EXPECT_FALSE(frame.bar.IsCaptionActive());
    ASSERT_TRUE(frame.bar.GetUpdateRect(&dirty));
    EXPECT_EQ(dirty, frame.bar.GetCaptionRect());
}

TYPED_TEST(FrameCaption, ASmallFrameKeepsTheCaptionAndHidesTheRest) {
    auto& frame = this->frame;
    frame.Show();
    frame.SetWindowPos(nullptr, 0, 0, 190, 300, SWP_NOMOVE | SWP_NOZORDER);
    PumpPending();
    EXPECT_EQ(frame.bar.GetHideFlags() & AFX_RIBBONBAR_HIDE_ALL, AFX_RIBBONBAR_HIDE_ALL);
    CRect bar;
    frame.bar.GetClientRect(&bar);
    EXPECT_EQ(bar.Height(), frame.bar.GetCaptionHeight());
    EXPECT_NE(frame.Button(SC_CLOSE), nullptr);
    EXPECT_TRUE(frame.bar.GetCategory(0)->GetTabRect().IsRectEmpty());
    frame.SetWindowPos(nullptr, 0, 0, 640, 400, SWP_NOMOVE | SWP_NOZORDER);
    PumpPending();
    EXPECT_EQ(frame.bar.GetHideFlags(), 0u);
    EXPECT_FALSE(frame.bar.GetCategory(0)->GetTabRect().IsRectEmpty());
}

TYPED_TEST(FrameCaption, RoundStylesShapeTheWindowUnlessItIsMaximized) {
    auto& frame = this->frame;
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    frame.Show();
    const HRGN region = ::CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(::GetWindowRgn(frame.m_hWnd, region), COMPLEXREGION);
    const CRect window = frame.WindowRect();
    EXPECT_FALSE(::PtInRegion(region, 0, 0));
    EXPECT_TRUE(::PtInRegion(region, 0, window.Height() - 1));
    EXPECT_TRUE(::PtInRegion(region, window.Width() - 1, window.Height() - 1));
    frame.ShowWindow(SW_MAXIMIZE);
    PumpPending();
    EXPECT_EQ(::GetWindowRgn(frame.m_hWnd, region), ERROR);
    frame.ShowWindow(SW_RESTORE);
    PumpPending();
    EXPECT_EQ(::GetWindowRgn(frame.m_hWnd, region), COMPLEXREGION);
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManager));
    PumpPending();
    EXPECT_EQ(::GetWindowRgn(frame.m_hWnd, region), ERROR) << "a square style takes the shape away";
    ::DeleteObject(region);
}

TYPED_TEST(FrameCaption, DrawingBordersAndRowLeavesNothingBehind) {
    auto& frame = this->frame;
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    frame.Show();
    const auto drawAll = [&frame](int times) {
        for (int round = 0; round < times; ++round) {
            frame.SendMessage(WM_NCACTIVATE, round % 2);
            frame.SetWindowPos(nullptr, 0, 0, 600 + round % 3, 400, SWP_NOMOVE | SWP_NOZORDER);
            frame.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
        }
        PumpPending();
    };
    drawAll(5);
    EXPECT_TRUE(LeavesNothingBehind([&] { drawAll(40); }));
}

} // namespace

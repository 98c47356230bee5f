#include "frame_fixture.h"

#include "afxframewndex.h"
#include "afxMDIFrameWndEx.h"
#include "afxPane.h"
#include "afxpopupmenu.h"
#include "afxvisualmanager.h"

namespace {

/// A pane of a fixed thickness that counts what it is told.
class Strip : public CPane {
public:
    bool Make(CWnd* parent, UINT id, DWORD style, CSize wanted) {
        size = wanted;
        return Create(nullptr, WS_CHILD | WS_VISIBLE | style, CRect(0, 0, 1, 1), parent, id) != FALSE;
    }
    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override {
        if (throws) {
            AfxThrowUserException();
        }
        CSize answer = size;
        if (stretch) {
            (horizontal ? answer.cx : answer.cy) = 32767;
        }
        return answer;
    }
    void OnUpdateCmdUI(CFrameWnd* target, BOOL) override {
        ++updates;
        updateTarget = target;
    }
    using CPane::DoPaint;
    CSize size{0, 0};
    bool throws = false;
    int updates = 0;
    CFrameWnd* updateTarget = nullptr;
};

class ClientWindow : public CWnd {};

/// A look of which a test sees where it was asked to fill.
class FillingLook : public CMFCVisualManager {
    DECLARE_DYNCREATE(FillingLook)
public:
    void OnFillBarBackground(CDC* dc, CBasePane*, CRect client, CRect, BOOL) override {
        dc->FillSolidRect(client, colour);
    }
    static constexpr COLORREF colour = RGB(12, 34, 56);
};
IMPLEMENT_DYNCREATE(FillingLook, CMFCVisualManager)

template <class Frame>
class LayoutFixture : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(frame.Load());
        ASSERT_TRUE(
            client.Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 5, 5), &frame, AFX_IDW_PANE_FIRST));
        ASSERT_TRUE(top.Make(&frame, 1, CBRS_TOP, CSize(100, 30)));
        ASSERT_TRUE(bottom.Make(&frame, 2, CBRS_BOTTOM, CSize(100, 20)));
        Resize(400, 300);
    }
    void Resize(int width, int height) {
        CRect rect(0, 0, width, height);
        ::AdjustWindowRectEx(&rect, frame.GetStyle(), ::GetMenu(frame.m_hWnd) != nullptr, frame.GetExStyle());
        frame.SetWindowPos(nullptr, 0, 0, rect.Width(), rect.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        CRect client_rect;
        frame.GetClientRect(&client_rect);
        m_width = client_rect.Width();
        m_height = client_rect.Height();
    }
    CRect PlaceInFrame(const CWnd& window) const {
        CRect place;
        window.GetWindowRect(&place);
        frame.ScreenToClient(&place);
        return place;
    }
    Owned<Frame> frame;
    ClientWindow client;
    Strip top;
    Strip bottom;
    int m_width = 0;
    int m_height = 0;
};

using PlainLayout = LayoutFixture<CFrameWnd>;
using DockLayout = LayoutFixture<CFrameWndEx>;

TEST_F(PlainLayout, PanesTakeTheirStripsAndTheClientTheRest) {
    EXPECT_EQ(PlaceInParent(top), CRect(0, 0, m_width, 30));
    EXPECT_EQ(PlaceInParent(bottom), CRect(0, m_height - 20, m_width, m_height));
    EXPECT_EQ(PlaceInParent(client), CRect(0, 30, m_width, m_height - 20));
}

TEST_F(DockLayout, PanesTakeTheirStripsAndTheClientTheRest) {
    EXPECT_EQ(PlaceInParent(top), CRect(0, 0, m_width, 30));
    EXPECT_EQ(PlaceInParent(bottom), CRect(0, m_height - 20, m_width, m_height));
    EXPECT_EQ(PlaceInParent(client), CRect(0, 30, m_width, m_height - 20));
    EXPECT_EQ(frame.GetDockingManager()->GetClientAreaBounds(), PlaceInParent(client));
}

TEST_F(DockLayout, AResizedFrameKeepsTheOrder) {
    Resize(640, 200);
    EXPECT_EQ(PlaceInParent(top), CRect(0, 0, m_width, 30));
    EXPECT_EQ(PlaceInParent(bottom), CRect(0, m_height - 20, m_width, m_height));
    EXPECT_EQ(PlaceInParent(client), CRect(0, 30, m_width, m_height - 20));
}

TEST_F(DockLayout, AHiddenPaneGivesItsRoomBackAndAShownOneTakesIt) {
    frame.ShowPane(&top, FALSE, FALSE, FALSE);
    EXPECT_FALSE(top.IsVisible());
    EXPECT_EQ(PlaceInParent(client), CRect(0, 0, m_width, m_height - 20));
    frame.ShowPane(&top, TRUE, FALSE, FALSE);
    EXPECT_TRUE(top.IsVisible());
    EXPECT_EQ(PlaceInParent(client), CRect(0, 30, m_width, m_height - 20));
}

TEST_F(DockLayout, ADelayedChangeIsLaidOutAtIdleTime) {
    frame.ShowPane(&top, FALSE, TRUE, FALSE);
    EXPECT_EQ(PlaceInParent(client).top, 30);
    frame.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(PlaceInParent(client).top, 0);
}

TEST_F(DockLayout, ALayoutThatFailedIsNotTheLast) {
    top.throws = true;
    try {
        frame.RecalcLayout();
        ADD_FAILURE() << "the pane was not asked";
    } catch (CUserException* exception) {
        exception->Delete();
    }
    top.throws = false;
    top.size.cy = 44;
    frame.RecalcLayout();
    EXPECT_EQ(PlaceInParent(client).top, 44);
}

TEST_F(DockLayout, WhatALayoutAsksForIsDoneAtTheNextIdleTime) {
    class Asking : public Strip {
    public:
        CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override {
            if (++m_asked == 1) {
                size.cy = 50;
                static_cast<CFrameWnd*>(GetParent())->DelayRecalcLayout();
                return Strip::CalcFixedLayout(stretch, horizontal) - CSize(0, 20);
            }
            return Strip::CalcFixedLayout(stretch, horizontal);
        }

    private:
        int m_asked = 0;
    };
    Asking asking;
    ASSERT_TRUE(asking.Make(&frame, 7, CBRS_TOP, CSize(10, 10)));
    frame.DelayRecalcLayout();
    frame.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(PlaceInParent(client).top, 30 + 30);
    frame.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(PlaceInParent(client).top, 30 + 50);
}

TEST_F(DockLayout, ADestroyedPaneLeavesTheManager) {
    bottom.DestroyWindow();
    CObList panes;
    frame.GetDockingManager()->GetPaneList(panes);
    EXPECT_EQ(panes.GetCount(), 1);
    EXPECT_EQ(frame.GetPane(2), nullptr);
    frame.RecalcLayout();
    EXPECT_EQ(PlaceInParent(client), CRect(0, 30, m_width, m_height));
}

TEST_F(DockLayout, APaneIsFoundByIdAndPlace) {
    EXPECT_EQ(frame.GetPane(1), &top);
    CRect place;
    bottom.GetWindowRect(&place);
    EXPECT_EQ(frame.GetDockingManager()->PaneFromPoint(place.CenterPoint(), 0), &bottom);
    EXPECT_EQ(frame.GetDockingManager()->PaneFromPoint(place.CenterPoint(), 0, false, nullptr, FALSE, &bottom),
              nullptr);
}

TEST_F(DockLayout, DockedPanesShareARow) {
    Strip first;
    Strip second;
    ASSERT_TRUE(first.Make(&frame, 3, CBRS_TOP, CSize(120, 24)));
    ASSERT_TRUE(second.Make(&frame, 4, CBRS_TOP, CSize(80, 22)));
    first.EnableDocking(CBRS_ALIGN_ANY);
    second.EnableDocking(CBRS_ALIGN_ANY);
    frame.EnableDocking(CBRS_ALIGN_ANY);
    frame.DockPane(&first);
    frame.DockPane(&second);
    EXPECT_EQ(PlaceInFrame(first), CRect(0, 30, 120, 54));
    EXPECT_EQ(PlaceInFrame(second), CRect(120, 30, 200, 54));
    EXPECT_TRUE(first.IsDocked());
    frame.DockPaneLeftOf(&second, &first);
    EXPECT_EQ(PlaceInFrame(second), CRect(0, 30, 80, 54));
}

TEST_F(DockLayout, DockingAtASideThatIsNotAllowedIsRefused) {
    Strip pane;
    ASSERT_TRUE(pane.Make(&frame, 3, CBRS_TOP, CSize(40, 24)));
    pane.EnableDocking(CBRS_ALIGN_TOP);
    frame.DockPane(&pane);
    EXPECT_FALSE(pane.IsDocked()) << "the frame allows nothing yet";
    frame.EnableDocking(CBRS_ALIGN_TOP | CBRS_ALIGN_LEFT);
    frame.DockPane(&pane, AFX_IDW_DOCKBAR_LEFT);
    EXPECT_FALSE(pane.IsDocked()) << "the pane does not allow the left";
    pane.EnableDocking(CBRS_ALIGN_ANY);
    frame.DockPane(&pane, AFX_IDW_DOCKBAR_LEFT);
    EXPECT_TRUE(pane.IsDocked());
    EXPECT_FALSE(pane.IsHorizontal());
    EXPECT_EQ(PlaceInFrame(pane), CRect(0, 30, 40, 54));
    EXPECT_EQ(PlaceInParent(client), CRect(40, 30, m_width, m_height - 20));
}

TEST_F(DockLayout, AllPanesHideAndComeBackTogether) {
    frame.ShowPane(&bottom, FALSE, FALSE, FALSE);
    EXPECT_TRUE(frame.OnShowPanes(FALSE));
    EXPECT_EQ(PlaceInParent(client), CRect(0, 0, m_width, m_height));
    EXPECT_TRUE(frame.OnShowPanes(TRUE));
    EXPECT_TRUE(top.IsVisible());
    EXPECT_FALSE(bottom.IsVisible()) << "it was hidden before";
}

TEST_F(DockLayout, ALockedManagerLaysOutOnceAtTheUnlock) {
    frame.GetDockingManager()->LockUpdate(TRUE);
    frame.ShowPane(&top, FALSE, FALSE, FALSE);
    EXPECT_EQ(PlaceInParent(client).top, 30);
    frame.GetDockingManager()->LockUpdate(FALSE);
    EXPECT_EQ(PlaceInParent(client).top, 0);
}

TEST_F(DockLayout, AVisiblePaneIsUpdatedAtIdleTimeForItsFrame) {
    top.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(top.updates, 1);
    EXPECT_EQ(top.updateTarget, &frame);
    frame.ShowPane(&top, FALSE, FALSE, FALSE);
    top.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(top.updates, 1);
}

TEST_F(DockLayout, AStatusBarOfTheSystemLiesUnderThePanes) {
    CStatusBar status;
    ASSERT_TRUE(status.Create(&frame));
    const UINT panes[] = {ID_SEPARATOR};
    ASSERT_TRUE(status.SetIndicators(panes, 1));
    frame.RecalcLayout();
    const CRect place = PlaceInParent(status);
    EXPECT_GT(place.Height(), 5);
    EXPECT_EQ(place.bottom, m_height);
    EXPECT_EQ(PlaceInParent(bottom).bottom, place.top);
}

TEST_F(DockLayout, APaneIsFilledByTheVisualManager) {
    CDC memory;
    ASSERT_TRUE(memory.CreateCompatibleDC(nullptr));
    const HBITMAP bitmap = ::CreateBitmap(m_width, 30, 1, 32, nullptr);
    const HGDIOBJ former = ::SelectObject(memory.m_hDC, bitmap);
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(FillingLook));
    top.DoPaint(&memory);
    EXPECT_EQ(memory.GetPixel(0, 0), FillingLook::colour);
    EXPECT_EQ(memory.GetPixel(m_width - 1, 29), FillingLook::colour);
    CMFCVisualManager::SetDefaultManager(nullptr);
    top.DoPaint(&memory);
    EXPECT_NE(memory.GetPixel(0, 0), FillingLook::colour) << "the look has changed";
    ::SelectObject(memory.m_hDC, former);
    ::DeleteObject(bitmap);
}

TEST_F(DockLayout, TheMenuOfPanesShowsAndHides) {
    top.SetWindowText(L"Top pane");
    frame.EnablePaneMenu(TRUE, 0, CString(), 0);
    top.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(top.m_hWnd), MAKELPARAM(3, 4));
    CMFCPopupMenu* const menu = CMFCPopupMenu::GetActiveMenu();
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->GetMenuItemCount(), 1) << "a pane without a name is not offered";
    menu->GetMenuItem(0)->OnClickMenuItem();
    EXPECT_FALSE(top.IsVisible());
}

TEST(MdiLayout, TheClientGetsWhatThePanesLeaveOver) {
    Owned<CMDIFrameWndEx> frame;
    ASSERT_TRUE(frame.Load());
    Strip top;
    ASSERT_TRUE(top.Make(&frame, 1, CBRS_TOP, CSize(10, 44)));
    frame.RecalcLayout();
    CRect inside;
    frame.GetClientRect(&inside);
    CRect client;
    ::GetWindowRect(frame.m_hWndMDIClient, &client);
    frame.ScreenToClient(&client);
    EXPECT_EQ(client, CRect(0, 44, inside.right, inside.bottom));
}

TEST(PaneInAWindow, IsAControlThatNobodyLaysOut) {
    TestWindow window;
    Strip pane;
    ASSERT_TRUE(pane.Make(&window, 1, CBRS_TOP, CSize(10, 10)));
    EXPECT_TRUE(pane.IsDialogControl());
    EXPECT_EQ(pane.GetDockSiteFrameWnd(), nullptr);
    pane.AdjustDockingLayout();
    EXPECT_EQ(PlaceInParent(pane), CRect(0, 0, 1, 1));
}

} // namespace

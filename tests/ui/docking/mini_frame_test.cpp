// Panes that float: their mini frames, how they are shown, closed, moved and resized; toolbars in them.
#include "tests/ui/docking/docking_fixture.h"

#include "afxglobalutils.h"

namespace {

class MiniFrameTest : public DockingTest {
protected:
    CPaneFrameWnd& Float(TestPane& pane, CRect rect = CRect(0, 0, 0, 0)) {
        EXPECT_TRUE(pane.FloatPane(rect.IsRectEmpty() ? CRect(OnScreen(200, 150), CSize(0, 0)) : rect));
        return *pane.GetParentMiniFrame();
    }
    static CRect WindowOf(const CWnd& window) {
        CRect rect;
        window.GetWindowRect(&rect);
        return rect;
    }
};

TEST_F(MiniFrameTest, AFloatingPaneLiesUnderACaptionInsideABorder) {
    CPaneFrameWnd& miniFrame = Float(m_panes[0]);
    EXPECT_EQ(WindowOf(miniFrame).TopLeft(), OnScreen(200, 150));
    CRect caption;
    miniFrame.GetCaptionRect(caption);
    CRect border;
    miniFrame.CalcBorderSize(border);
    const CRect pane = WindowOf(m_panes[0]);
    EXPECT_EQ(pane.Size(), CSize(100, 24));
    EXPECT_EQ(pane.left, WindowOf(miniFrame).left + border.left);
    EXPECT_EQ(pane.top, WindowOf(miniFrame).top + border.top + miniFrame.GetCaptionHeight());
    EXPECT_EQ(caption.Height(), miniFrame.GetCaptionHeight());
    EXPECT_EQ(WindowOf(miniFrame).Size(), miniFrame.SizeAround(CSize(100, 24)));
    EXPECT_EQ(miniFrame.GetCaptionText(), L"Pane 1");
    EXPECT_EQ(miniFrame.GetPane(), &m_panes[0]);
    EXPECT_EQ(m_panes[0].told, (std::vector<std::string>{"before floating", "floats"}));
}

TEST_F(MiniFrameTest, TheFrameAndItsMiniFramesHaveOneDockingManager) {
    CGlobalUtils utilities;
    CDockingManager* const manager = m_frame->GetDockingManager();
    EXPECT_EQ(utilities.GetDockingManager(m_frame), manager);
    EXPECT_EQ(utilities.GetDockingManager(&Float(m_panes[0])), manager);
    EXPECT_EQ(utilities.GetDockingManager(&m_client), nullptr);
    EXPECT_EQ(utilities.GetDockingManager(nullptr), nullptr);
}

TEST_F(MiniFrameTest, TheFrameOwnsTheMiniFrameAndItTakesNoActivation) {
    CPaneFrameWnd& miniFrame = Float(m_panes[0]);
    EXPECT_EQ(::GetWindow(miniFrame.m_hWnd, GW_OWNER), m_window);
    EXPECT_EQ(miniFrame.SendMessage(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(miniFrame.m_hWnd), HTCLIENT),
              MA_NOACTIVATE);
    EXPECT_EQ(m_panes[0].GetParentFrame(), m_frame);
    const HWND window = miniFrame.m_hWnd;
    ::DestroyWindow(m_window);
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(MiniFrameTest, PartsAreFoundByTheirPlace) {
    CPaneFrameWnd& miniFrame = Float(m_panes[0]);
    const CRect window = WindowOf(miniFrame);
    EXPECT_EQ(miniFrame.HitTest({window.left + 30, window.top + 10}, TRUE), HTCAPTION);
    EXPECT_EQ(miniFrame.HitTest({window.left + 30, window.top + 10}, FALSE), HTCLIENT);
    EXPECT_EQ(miniFrame.HitTest({window.right - 10, window.top + 10}, TRUE), HTCLOSE);
    EXPECT_EQ(miniFrame.HitTest({window.left, window.top + 30}, TRUE), HTBORDER) << "the pane has one size";
    EXPECT_EQ(miniFrame.HitTest({window.left - 5, window.top}, TRUE), HTNOWHERE);
    EXPECT_EQ(miniFrame.HitTest({window.left + 30, window.bottom - 10}, TRUE), HTCLIENT);
    EXPECT_EQ(CPaneFrameWnd::FrameFromPoint(window.CenterPoint(), 0), &miniFrame);
    EXPECT_EQ(CPaneFrameWnd::FrameFromPoint(window.CenterPoint(), 0, &miniFrame), nullptr);
    EXPECT_EQ(CPaneFrameWnd::FindFloatingPaneByID(1), &m_panes[0]);
    EXPECT_EQ(CPaneFrameWnd::FindFloatingPaneByID(2), nullptr);
}

TEST_F(MiniFrameTest, TheCloseButtonHidesThePaneAndShowingItShowsTheMiniFrame) {
    CPaneFrameWnd& miniFrame = Float(m_panes[0]);
    CRect client;
    miniFrame.GetClientRect(&client);
    m_pointer.Click(miniFrame.m_hWnd, {client.right - 10, 10});
    EXPECT_FALSE(m_panes[0].IsVisible());
    EXPECT_FALSE(miniFrame.IsWindowVisible());
    EXPECT_TRUE(m_panes[0].IsFloating());
    m_frame->ShowPane(&m_panes[0], TRUE, FALSE, FALSE);
    EXPECT_TRUE(miniFrame.IsWindowVisible());
}

TEST_F(MiniFrameTest, ACloseButtonThatIsLeftAgainDoesNothing) {
    CPaneFrameWnd& miniFrame = Float(m_panes[0]);
    CRect client;
    miniFrame.GetClientRect(&client);
    m_pointer.Drag(miniFrame.m_hWnd, {client.right - 10, 10}, {20, 10});
    EXPECT_TRUE(m_panes[0].IsVisible());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(MiniFrameTest, APaneThatCannotBeClosedHasNoCloseButton) {
    m_panes[0].SetControlBarStyle(AFX_CBRS_FLOAT);
    CPaneFrameWnd& miniFrame = Float(m_panes[0]);
    const CRect window = WindowOf(miniFrame);
    EXPECT_EQ(miniFrame.HitTest({window.right - 10, window.top + 10}, TRUE), HTCAPTION);
}

TEST_F(MiniFrameTest, AHiddenPaneFloatsWithoutAMiniFrameOnTheScreen) {
    m_frame->ShowPane(&m_panes[0], FALSE, FALSE, FALSE);
    EXPECT_TRUE(m_panes[0].FloatPane(CRect(OnScreen(200, 150), CSize(0, 0)), DM_UNKNOWN, false));
    EXPECT_FALSE(m_panes[0].GetParentMiniFrame()->IsWindowVisible());
    m_panes[0].ShowPane(TRUE, FALSE, FALSE);
    EXPECT_TRUE(m_panes[0].GetParentMiniFrame()->IsWindowVisible());
}

TEST_F(MiniFrameTest, APaneThatMayNotFloatDoesNot) {
    m_panes[0].SetControlBarStyle(AFX_CBRS_CLOSE);
    EXPECT_FALSE(m_panes[0].FloatPane(CRect(10, 10, 100, 100)));
    EXPECT_FALSE(m_panes[0].IsFloating());
}

TEST_F(MiniFrameTest, ADestroyedPaneTakesItsMiniFrameAlong) {
    const HWND window = Float(m_panes[0]).m_hWnd;
    m_panes[0].DestroyWindow();
    EXPECT_FALSE(::IsWindowVisible(window));
    PumpPending();
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(MiniFrameTest, AFloatingPaneIsDockedByTheFrameWhereItWasOrAtASide) {
    Dock(m_panes[0], AFX_IDW_DOCKBAR_BOTTOM);
    Float(m_panes[0]);
    m_frame->DockPane(&m_panes[0]);
    EXPECT_EQ(Rows(CBRS_ALIGN_BOTTOM), "1");
    Float(m_panes[0]);
    m_frame->DockPane(&m_panes[0], AFX_IDW_DOCKBAR_LEFT);
    EXPECT_EQ(Rows(CBRS_ALIGN_LEFT), "1");
    PumpPending();
    EXPECT_TRUE(m_frame->GetDockingManager()->GetMiniFrames().IsEmpty());
}

TEST_F(MiniFrameTest, ANewPlaceOnTheScreenIsTakenByTheSameMiniFrame) {
    CPaneFrameWnd& miniFrame = Float(m_panes[0]);
    EXPECT_TRUE(m_panes[0].FloatPane(CRect(OnScreen(50, 60), CSize(300, 200))));
    EXPECT_EQ(m_panes[0].GetParentMiniFrame(), &miniFrame);
    EXPECT_EQ(WindowOf(miniFrame).TopLeft(), OnScreen(50, 60));
    EXPECT_EQ(WindowOf(m_panes[0]).Size(), CSize(100, 24)) << "its one size";
}

TEST_F(MiniFrameTest, AFloatingPaneIsUpdatedWhenTheApplicationIsIdle) {
    class Updated : public TestPane {
    public:
        void OnUpdateCmdUI(CFrameWnd* target, BOOL) override { updateTarget = target; }
        CFrameWnd* updateTarget = nullptr;
    };
    Updated pane;
    ASSERT_TRUE(pane.Make(m_frame, 9, CSize(40, 20)));
    Float(pane);
    m_frame->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(pane.updateTarget, m_frame);
}

TEST_F(MiniFrameTest, ADifferentClassOfMiniFrameIsMadeWhenThePaneWantsIt) {
    m_panes[0].SetMiniFrameRTC(RUNTIME_CLASS(CPane));
    EXPECT_FALSE(m_panes[0].FloatPane(CRect(OnScreen(50, 60), CSize(0, 0)))) << "that is none";
    m_panes[0].SetMiniFrameRTC(RUNTIME_CLASS(CPaneFrameWnd));
    EXPECT_TRUE(m_panes[0].FloatPane(CRect(OnScreen(50, 60), CSize(0, 0))));
}

} // namespace

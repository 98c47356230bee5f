// Views in a frame: who makes them, who is active, where commands go, what they draw.
#include "frame_fixture.h"

#include <algorithm>

namespace {

/// Notes what happens to it; keeps no state but for the test that runs.
class NotedView : public CView {
    DECLARE_DYNCREATE(NotedView)
public:
    using CView::OnInitialUpdate;
    ~NotedView() override { Note("gone"); }

    static std::vector<std::string>& Notes() {
        static std::vector<std::string> notes;
        return notes;
    }
    static void Note(const char* what) { Notes().emplace_back(what); }

    void OnInitialUpdate() override {
        Note("initial update");
        CView::OnInitialUpdate();
    }
    BOOL OnTestCommand(UINT) { return g_route.Ask("view"); }

protected:
    void OnDraw(CDC* pDC) override {
        Note("draw");
        pDC->FillSolidRect(CRect(0, 0, 10, 10), RGB(1, 200, 3));
    }
    void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint) override {
        Note("update");
        CView::OnUpdate(pSender, lHint, pHint);
    }
    void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) override {
        Note(bActivate ? "activate" : "deactivate");
        CView::OnActivateView(bActivate, pActivateView, pDeactiveView);
    }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(NotedView, CView)
BEGIN_MESSAGE_MAP(NotedView, CView)
ON_COMMAND_EX(ID_TEST_COMMAND, &NotedView::OnTestCommand)
END_MESSAGE_MAP()

class ViewTest : public testing::Test {
protected:
    void SetUp() override {
        NotedView::Notes().clear();
        m_context.m_pNewViewClass = RUNTIME_CLASS(NotedView);
        ASSERT_TRUE(m_frame.Create(nullptr, L"views", WS_OVERLAPPEDWINDOW, CRect(10, 10, 300, 200), nullptr, nullptr, 0,
                                   &m_context));
        NotedView::Notes().clear();
    }
    NotedView* Primary() { return DYNAMIC_DOWNCAST(NotedView, m_frame.GetDlgItem(AFX_IDW_PANE_FIRST)); }
    static int Count(const std::string& note) {
        return static_cast<int>(std::count(NotedView::Notes().begin(), NotedView::Notes().end(), note));
    }

    CCreateContext m_context;
    Owned<CFrameWnd> m_frame;
};

TEST_F(ViewTest, TheFrameMakesTheViewOfItsContext) {
    ASSERT_NE(Primary(), nullptr);
    EXPECT_EQ(m_frame.GetActiveView(), nullptr) << "until the first update";
    EXPECT_NE(Primary()->GetExStyle() & WS_EX_CLIENTEDGE, 0u);
    EXPECT_EQ(m_frame.CreateView(nullptr), nullptr);
    CCreateContext other;
    other.m_pNewViewClass = RUNTIME_CLASS(CWinThread);
    EXPECT_EQ(m_frame.CreateView(&other, 5), nullptr) << "no window class";
}

TEST_F(ViewTest, TheFirstUpdateActivatesThePrimaryView) {
    m_frame.InitialUpdateFrame(nullptr, TRUE);
    EXPECT_EQ(m_frame.GetActiveView(), Primary());
    EXPECT_TRUE(m_frame.IsWindowVisible());
    EXPECT_EQ(Count("initial update"), 1);
    EXPECT_EQ(Count("update"), 1);
    EXPECT_EQ(Count("activate"), 1);
    EXPECT_LT(std::find(NotedView::Notes().begin(), NotedView::Notes().end(), "initial update"),
              std::find(NotedView::Notes().begin(), NotedView::Notes().end(), "activate"));
}

TEST_F(ViewTest, WithoutShowingFocusAndVisibilityStay) {
    const HWND focus = ::GetFocus();
    m_frame.InitialUpdateFrame(nullptr, FALSE);
    EXPECT_EQ(Count("initial update"), 1);
    EXPECT_FALSE(m_frame.IsWindowVisible());
    EXPECT_EQ(::GetFocus(), focus);
    EXPECT_EQ(m_frame.GetActiveView(), Primary());
}

TEST_F(ViewTest, OnlyAChangeOfTheActiveViewIsTold) {
    auto* const second = static_cast<NotedView*>(m_frame.CreateView(&m_context, AFX_IDW_PANE_FIRST + 1));
    ASSERT_NE(second, nullptr);
    m_frame.SetActiveView(Primary());
    m_frame.SetActiveView(Primary());
    EXPECT_EQ(Count("activate"), 1);
    m_frame.SetActiveView(second);
    EXPECT_EQ(Count("deactivate"), 1);
    EXPECT_EQ(Count("activate"), 2);
    m_frame.SetActiveView(nullptr);
    EXPECT_EQ(Count("deactivate"), 2);
    m_frame.SetActiveView(second, FALSE);
    EXPECT_EQ(Count("activate"), 2);
    EXPECT_EQ(m_frame.GetActiveView(), second);
}

TEST_F(ViewTest, CommandsGoToTheActiveViewFirst) {
    g_route = {};
    m_frame.OnCmdMsg(ID_TEST_COMMAND, CN_COMMAND, nullptr, nullptr);
    EXPECT_EQ(g_route.asked, (std::vector<std::string>{"application"}));
    g_route = {};
    m_frame.SetActiveView(Primary());
    m_frame.OnCmdMsg(ID_TEST_COMMAND, CN_COMMAND, nullptr, nullptr);
    EXPECT_EQ(g_route.asked, (std::vector<std::string>{"view", "application"}));
    g_route = {};
    g_route.handlers = {"view"};
    m_frame.OnCmdMsg(ID_TEST_COMMAND, CN_COMMAND, nullptr, nullptr);
    EXPECT_EQ(g_route.asked, (std::vector<std::string>{"view"}));
    g_route = {};
}

TEST_F(ViewTest, AClickMakesTheViewActive) {
    auto* const second = static_cast<NotedView*>(m_frame.CreateView(&m_context, AFX_IDW_PANE_FIRST + 1));
    m_frame.SetActiveView(Primary());
    second->SendMessage(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(m_frame.m_hWnd),
                        MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
    EXPECT_EQ(m_frame.GetActiveView(), second);
}

TEST_F(ViewTest, TheFrameGivesItsFocusToTheActiveView) {
    m_frame.InitialUpdateFrame(nullptr, TRUE);
    m_frame.SetFocus();
    EXPECT_EQ(::GetFocus(), Primary()->m_hWnd);
}

TEST_F(ViewTest, AViewThatGoesIsNoLongerActive) {
    m_frame.SetActiveView(Primary());
    Primary()->DestroyWindow();
    EXPECT_EQ(m_frame.GetActiveView(), nullptr);
    EXPECT_EQ(Count("gone"), 1);
}

TEST_F(ViewTest, PaintingDraws) {
    m_frame.InitialUpdateFrame(nullptr, TRUE);
    Primary()->Invalidate();
    Primary()->UpdateWindow();
    EXPECT_GE(Count("draw"), 1);
    CClientDC dc(Primary());
    EXPECT_EQ(dc.GetPixel(5, 5), RGB(1, 200, 3));
}

} // namespace

#include "tests/ui/docking/docking_fixture.h"

BEGIN_MESSAGE_MAP(TestPane, CPane)
ON_WM_WINDOWPOSCHANGED()
END_MESSAGE_MAP()

bool TestPane::Make(CWnd* parent, UINT id, CSize wanted, DWORD side) {
    size = wanted;
    const bool isMade = Create(nullptr, WS_CHILD | CBRS_GRIPPER | side, CRect(0, 0, 1, 1), parent, id);
    SetWindowText(CString(L"Pane ") + std::to_wstring(id).c_str());
    EnableDocking(CBRS_ALIGN_ANY);
    return isMade;
}

CSize TestPane::CalcFixedLayout(BOOL stretch, BOOL horizontal) {
    CSize answer = horizontal ? size : CSize(size.cy, size.cx);
    if (stretch) {
        (horizontal ? answer.cx : answer.cy) = 32767;
    }
    return answer;
}

BOOL TestPane::OnBeforeDock(CBasePane**, LPCRECT, AFX_DOCK_METHOD) {
    told.emplace_back("before docking");
    return !refusesToDock;
}

void TestPane::OnAfterDock(CBasePane*, LPCRECT, AFX_DOCK_METHOD) { told.emplace_back("docked"); }

BOOL TestPane::OnBeforeFloat(CRect&, AFX_DOCK_METHOD) {
    told.emplace_back("before floating");
    return !refusesToFloat;
}

void TestPane::DoPaint(CDC* dc) {
    ++paints;
    CPane::DoPaint(dc);
}

void TestPane::OnWindowPosChanged(WINDOWPOS* position) {
    moves += (position->flags & SWP_NOMOVE) == 0 || (position->flags & SWP_NOSIZE) == 0 ? 1 : 0;
    CPane::OnWindowPosChanged(position);
}

DockingTest::DockingTest() : m_frame(new CFrameWndEx) {
    m_frame->Create(nullptr, L"Docking", WS_OVERLAPPEDWINDOW, CRect(100, 80, 700, 480));
    m_window = m_frame->m_hWnd;
    m_client.Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 5, 5), m_frame, AFX_IDW_PANE_FIRST);
    m_frame->EnableDocking(CBRS_ALIGN_ANY);
    UINT id = 0;
    for (TestPane& pane : m_panes) {
        pane.Make(m_frame, ++id, CSize(100, 24));
    }
    Resize(600, 400);
    m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    PumpPending();
}

DockingTest::~DockingTest() {
    CMFCPopupMenu::CloseAll();
    if (::IsWindow(m_window)) {
        m_frame->GetDockingManager()->CancelDrag();
        ::DestroyWindow(m_window);
    }
    PumpPending();
}

void DockingTest::Resize(int width, int height) {
    CRect rect(0, 0, width, height);
    ::AdjustWindowRectEx(&rect, m_frame->GetStyle(), FALSE, m_frame->GetExStyle());
    m_frame->SetWindowPos(nullptr, 0, 0, rect.Width(), rect.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    CRect client;
    m_frame->GetClientRect(&client);
    ASSERT_EQ(client.Size(), CSize(width, height));
}

void DockingTest::Dock(TestPane& pane, UINT side) {
    m_frame->ShowPane(&pane, TRUE, TRUE, FALSE);
    m_frame->DockPane(&pane, side);
}

void DockingTest::DockAt(TestPane& pane, UINT side, CPoint topLeft) {
    m_frame->ShowPane(&pane, TRUE, TRUE, FALSE);
    m_frame->DockPane(&pane, side, CRect(OnScreen(topLeft.x, topLeft.y), CSize(20, 20)));
}

CRect DockingTest::PlaceOf(const CWnd& window) const {
    CRect place;
    window.GetWindowRect(&place);
    m_frame->ScreenToClient(&place);
    return place;
}

CPoint DockingTest::GripOf(const CWnd& pane) const {
    CRect window;
    const auto* const miniFrame = DYNAMIC_DOWNCAST(CPaneFrameWnd, pane.GetParent());
    if (miniFrame != nullptr) {
        miniFrame->GetCaptionRect(window);
        miniFrame->ClientToScreen(&window);
        return {window.left + 20, window.CenterPoint().y};
    }
    pane.GetWindowRect(&window);
    return window.TopLeft() + CSize(3, 3);
}

CPoint DockingTest::OnScreen(int x, int y) const {
    CPoint point(x, y);
    m_frame->ClientToScreen(&point);
    return point;
}

void DockingTest::Take(const CWnd& pane, CPoint to) {
    const CPoint from = GripOf(pane);
    m_pointer.MoveTo(from);
    m_pointer.Press();
    constexpr int steps = 10;
    for (int step = 1; step <= steps; ++step) {
        m_pointer.MoveTo({from.x + (to.x - from.x) * step / steps, from.y + (to.y - from.y) * step / steps});
    }
}

void DockingTest::Drag(const CWnd& pane, CPoint to) {
    Take(pane, to);
    m_pointer.Release();
    PumpPending();
}

std::string DockingTest::Rows(DWORD side) {
    std::string text;
    const CObList& rows = Site(side).GetDockSiteRowsList();
    for (POSITION position = rows.GetHeadPosition(); position != nullptr;) {
        text += text.empty() ? "" : " |";
        const auto* const row = static_cast<const CDockingPanesRow*>(rows.GetNext(position));
        for (POSITION pane = row->GetPaneList().GetHeadPosition(); pane != nullptr;) {
            const auto* const window = static_cast<const CPane*>(row->GetPaneList().GetNext(pane));
            text += (text.empty() ? "" : " ") + std::to_string(window->GetDlgCtrlID());
        }
    }
    return text;
}

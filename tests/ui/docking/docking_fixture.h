#pragma once

#include "afxcontrolbars.h"
#include "tests/support/keys.h"
#include "tests/support/message_pump.h"
#include "tests/support/pointer.h"
#include "tests/support/ui_test.h"

#include <string>
#include <vector>

/// A pane of a fixed size that writes down what it is told.
class TestPane : public CPane {
public:
    bool Make(CWnd* parent, UINT id, CSize wanted, DWORD side = CBRS_TOP);

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    /// Lying upright a pane is as wide as it is high otherwise.
    CSize size{0, 0};
    bool refusesToDock = false;
    bool refusesToFloat = false;
    AFX_DOCK_TYPE mode = DT_IMMEDIATE;
    std::vector<std::string> told;
    int moves = 0;
    int paints = 0;

    AFX_DOCK_TYPE GetDockingMode() const override { return mode; }

protected:
    BOOL OnBeforeDock(CBasePane** site, LPCRECT rect, AFX_DOCK_METHOD method) override;
    void OnAfterDock(CBasePane* site, LPCRECT rect, AFX_DOCK_METHOD method) override;
    BOOL OnBeforeFloat(CRect& rect, AFX_DOCK_METHOD method) override;
    void OnAfterFloat() override { told.emplace_back("floats"); }
    void DoPaint(CDC* dc) override;
    afx_msg void OnWindowPosChanged(WINDOWPOS* position);
    DECLARE_MESSAGE_MAP()
};

/// A frame on the screen, 600 by 400 inside, that allows docking on all sides, with three panes of 100 by 24, which may
/// be docked everywhere, are hidden and not docked yet, and a client window.
class DockingTest : public ::testing::Test {
protected:
    DockingTest();
    ~DockingTest() override;

    CDockSite& Site(DWORD side) { return *m_frame->GetDockingManager()->FindDockSite(side, TRUE); }
    void Dock(TestPane& pane, UINT side = AFX_IDW_DOCKBAR_TOP);
    /// Shows the pane and docks it at a place of the frame's client area.
    void DockAt(TestPane& pane, UINT side, CPoint topLeft);
    /// In the frame's client area.
    CRect PlaceOf(const CWnd& window) const;
    /// The middle of the pane's gripper, on the screen.
    CPoint GripOf(const CWnd& pane) const;
    /// A point of the frame's client area, on the screen.
    CPoint OnScreen(int x, int y) const;
    /// Press on the gripper (or the caption of its mini frame), move in steps, let go.
    void Drag(const CWnd& pane, CPoint to);
    void Take(const CWnd& pane, CPoint to);
    void Resize(int width, int height);
    /// "1 2 | 3": the ids of the panes in the rows of a side.
    std::string Rows(DWORD side);

    CFrameWndEx* m_frame = nullptr;
    HWND m_window = nullptr;
    CWnd m_client;
    TestPane m_panes[3];
    Pointer m_pointer;
};

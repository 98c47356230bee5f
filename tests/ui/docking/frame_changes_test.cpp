// Docked panes when their frame changes: maximised and restored, mirrored, loaded with what the last one left.
#include "tests/ui/docking/docking_fixture.h"

namespace {

// ---- maximise and restore

class MaximizedDockingTest : public DockingTest {
protected:
    MaximizedDockingTest() {
        Dock(m_panes[0]);
        Dock(m_panes[1], AFX_IDW_DOCKBAR_RIGHT);
        Dock(m_panes[2], AFX_IDW_DOCKBAR_BOTTOM);
        PumpPending();
    }
    void Show(int command) {
        m_frame->ShowWindow(command);
        PumpPending();
    }
    CRect Client() const {
        CRect client;
        m_frame->GetClientRect(&client);
        return client;
    }
    std::vector<CRect> Places() const {
        std::vector<CRect> places{PlaceOf(m_client)};
        for (const TestPane& pane : m_panes) {
            places.push_back(PlaceOf(pane));
        }
        return places;
    }
};

TEST_F(MaximizedDockingTest, BarsKeepToTheirEdgesWhenTheFrameIsMaximizedAndTheDocumentGetsTheRest) {
    Show(SW_MAXIMIZE);
    ASSERT_TRUE(m_frame->IsZoomed());
    const CRect client = Client();
    ASSERT_GT(client.Width(), 600);
    EXPECT_EQ(PlaceOf(m_panes[0]), CRect(0, 0, 100, 24));
    EXPECT_EQ(PlaceOf(m_panes[1]).right, client.right);
    EXPECT_EQ(PlaceOf(m_panes[2]).bottom, client.bottom);
    EXPECT_EQ(PlaceOf(m_client), CRect(0, 24, client.right - 24, client.bottom - 24));
}

TEST_F(MaximizedDockingTest, RestoredTheyAreWhereTheyWere) {
    const std::vector<CRect> before = Places();
    for (int round = 0; round < 3; ++round) {
        Show(SW_MAXIMIZE);
        Show(SW_RESTORE);
        EXPECT_EQ(Places(), before);
    }
    Show(SW_MAXIMIZE);
    Show(SW_MINIMIZE);
    Show(SW_RESTORE);
    EXPECT_TRUE(m_frame->IsZoomed());
    Show(SW_RESTORE);
    EXPECT_EQ(Places(), before);
    EXPECT_EQ(Rows(CBRS_ALIGN_RIGHT), "2");
}

TEST_F(MaximizedDockingTest, ABarThatMovedInAMaximizedFrameIsThereInTheRestoredOne) {
    Show(SW_MAXIMIZE);
    Drag(m_panes[2], OnScreen(3, 300));
    ASSERT_EQ(Rows(CBRS_ALIGN_LEFT), "3");
    Show(SW_RESTORE);
    EXPECT_EQ(Rows(CBRS_ALIGN_LEFT), "3");
    EXPECT_EQ(PlaceOf(m_panes[2]).left, 0);
    EXPECT_LE(PlaceOf(m_panes[2]).bottom, 400) << "it is in the frame";
}

// ---- from right to left

/// Before the fixture makes its frame.
class Mirrored {
public:
    Mirrored() { ::SetProcessDefaultLayout(LAYOUT_RTL); }
    ~Mirrored() { ::SetProcessDefaultLayout(0); }
    Mirrored(const Mirrored&) = delete;
    Mirrored& operator=(const Mirrored&) = delete;
};

class MirroredDockingTest : public Mirrored, public DockingTest {
protected:
    /// In the frame's client area, whose origin is at the right.
    CRect LogicalPlaceOf(const CWnd& window) const {
        CRect place;
        window.GetWindowRect(&place);
        ::MapWindowPoints(nullptr, m_window, reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    CRect ScreenPlaceOf(const CWnd& window) const {
        CRect place;
        window.GetWindowRect(&place);
        return place;
    }
    /// A docked pane has its grip at its right end.
    void DragMirrored(const TestPane& pane, CPoint to) {
        const CRect place = ScreenPlaceOf(pane);
        const CPoint from(place.right - 4, place.top + 3);
        m_pointer.MoveTo(from);
        m_pointer.Press();
        for (int step = 1; step <= 10; ++step) {
            m_pointer.MoveTo({from.x + (to.x - from.x) * step / 10, from.y + (to.y - from.y) * step / 10});
        }
        m_pointer.Release();
        PumpPending();
    }
};

TEST_F(MirroredDockingTest, TheFirstPaneOfARowLiesAtTheRight) {
    ASSERT_NE(m_frame->GetExStyle() & WS_EX_LAYOUTRTL, 0u);
    Dock(m_panes[0]);
    Dock(m_panes[1]);
    PumpPending();
    EXPECT_EQ(LogicalPlaceOf(m_panes[0]), CRect(0, 0, 100, 24));
    EXPECT_EQ(LogicalPlaceOf(m_panes[1]), CRect(100, 0, 200, 24));
    EXPECT_GT(ScreenPlaceOf(m_panes[0]).left, ScreenPlaceOf(m_panes[1]).left);
}

TEST_F(MirroredDockingTest, TheSitesOfLeftAndRightChangeSides) {
    Dock(m_panes[0], AFX_IDW_DOCKBAR_LEFT);
    Dock(m_panes[1], AFX_IDW_DOCKBAR_RIGHT);
    PumpPending();
    EXPECT_EQ(LogicalPlaceOf(m_panes[0]).left, 0);
    EXPECT_EQ(LogicalPlaceOf(m_panes[1]).right, 600);
    EXPECT_GT(ScreenPlaceOf(m_panes[0]).left, ScreenPlaceOf(m_panes[1]).left);
}

TEST_F(MirroredDockingTest, TheMouseTakesAPaneAlongItsRowTheWayItMoves) {
    for (TestPane& pane : m_panes) {
        Dock(pane);
    }
    PumpPending();
    const CRect before = ScreenPlaceOf(m_panes[0]);
    DragMirrored(m_panes[0], CPoint(before.right - 4 - 120, before.top + 3));
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "2 1 3") << "to the left: behind its neighbour";
    EXPECT_LT(ScreenPlaceOf(m_panes[0]).left, before.left);
}

TEST_F(MirroredDockingTest, AtTheRightEdgeOfTheScreenAPaneComesIntoTheSiteThatLiesThere) {
    for (TestPane& pane : m_panes) {
        Dock(pane);
    }
    PumpPending();
    const CRect frame = ScreenPlaceOf(m_client);
    DragMirrored(m_panes[0], CPoint(frame.right - 3, frame.CenterPoint().y));
    EXPECT_EQ(Rows(CBRS_ALIGN_LEFT), "1");
    EXPECT_EQ(ScreenPlaceOf(m_panes[0]).right, frame.right);
}

TEST_F(MirroredDockingTest, APaneFloatsUnderThePointerAndComesBackByADoubleClick) {
    Dock(m_panes[0]);
    PumpPending();
    const CRect frame = ScreenPlaceOf(m_client);
    DragMirrored(m_panes[0], frame.CenterPoint());
    ASSERT_TRUE(m_panes[0].IsFloating());
    const CRect floating = ScreenPlaceOf(*m_panes[0].GetParent());
    EXPECT_TRUE(floating.PtInRect(frame.CenterPoint()));
    m_panes[0].OnProcessDblClk();
    PumpPending();
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1");
    EXPECT_EQ(LogicalPlaceOf(m_panes[0]), CRect(0, 0, 100, 24));
}

// ---- from one LoadFrame to the next

class LoadedFrame : public CFrameWndEx {
public:
    CMFCToolBar bar;
    int created = 0;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create) {
        ++created;
        if (CFrameWndEx::OnCreate(create) == -1 || !bar.Create(this, AFX_DEFAULT_TOOLBAR_STYLE, 0x9001)) {
            return -1;
        }
        bar.SetWindowText(L"Bar");
        bar.InsertButton(CMFCToolBarButton(3001, -1, L"One"));
        bar.InsertButton(CMFCToolBarButton(3002, -1, L"Two"));
        bar.EnableDocking(CBRS_ALIGN_ANY);
        EnableDocking(CBRS_ALIGN_ANY);
        DockPane(&bar);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(LoadedFrame, CFrameWndEx)
ON_WM_CREATE()
END_MESSAGE_MAP()

class LoadedFrameTest : public ::testing::Test {
protected:
    static constexpr UINT kNoResource = 999;

    ~LoadedFrameTest() override {
        End();
        App().CleanState();
        App().m_pMainWnd = m_before;
    }
    static CWinAppEx& App() { return *static_cast<CWinAppEx*>(AfxGetApp()); }
    /// As InitInstance does: the frame's own state is loaded with it.
    LoadedFrame& Load() {
        m_frame = new LoadedFrame;
        EXPECT_TRUE(m_frame->LoadFrame(kNoResource));
        m_window = m_frame->m_hWnd;
        App().m_pMainWnd = m_frame;
        m_frame->ShowWindow(SW_SHOWNOACTIVATE);
        PumpPending();
        return *m_frame;
    }
    void End() {
        if (::IsWindow(m_window)) {
            App().m_pMainWnd = m_before; // its end is not the program's
            ::DestroyWindow(m_window);
        }
        PumpPending();
    }

    CWnd* m_before = App().m_pMainWnd;
    LoadedFrame* m_frame = nullptr;
    HWND m_window = nullptr;
};

TEST_F(LoadedFrameTest, BarsThatItMakesInOnCreateAreDockedWhenItIsLoaded) {
    LoadedFrame& frame = Load();
    EXPECT_EQ(frame.created, 1);
    EXPECT_TRUE(frame.bar.IsDocked());
    EXPECT_EQ(frame.bar.GetParentDockSite(), frame.GetDockingManager()->FindDockSite(CBRS_ALIGN_TOP, TRUE));
    EXPECT_EQ(frame.GetDefaultResId(), kNoResource);
}

TEST_F(LoadedFrameTest, TheNextOneFindsItsBarsAsTheyWereLeft) {
    LoadedFrame& first = Load();
    first.DockPane(&first.bar, AFX_IDW_DOCKBAR_BOTTOM);
    first.bar.RemoveButton(0);
    PumpPending();
    ASSERT_TRUE(App().SaveState(&first));
    End();
    LoadedFrame& second = Load();
    EXPECT_EQ(second.bar.GetParentDockSite(), second.GetDockingManager()->FindDockSite(CBRS_ALIGN_BOTTOM, TRUE));
    EXPECT_EQ(second.bar.GetCount(), 1);
    EXPECT_EQ(second.bar.GetItemID(0), 3002u);
}

TEST_F(LoadedFrameTest, AToolbarOfTheUsersComesBackWithItsButtons) {
    LoadedFrame& first = Load();
    auto* const mine =
        reinterpret_cast<CMFCToolBar*>(first.SendMessage(AFX_WM_CREATETOOLBAR, 0, reinterpret_cast<LPARAM>(L"Mine")));
    ASSERT_NE(mine, nullptr);
    mine->InsertButton(CMFCToolBarButton(3005, -1, L"Five"));
    first.DockPane(mine, AFX_IDW_DOCKBAR_LEFT);
    const auto id = static_cast<UINT>(mine->GetDlgCtrlID());
    ASSERT_TRUE(App().SaveState(&first));
    End();
    LoadedFrame& second = Load();
    const auto* const back = DYNAMIC_DOWNCAST(CMFCToolBar, second.GetPane(id));
    ASSERT_NE(back, nullptr);
    CString name;
    back->GetPaneName(name);
    EXPECT_STREQ(name, L"Mine");
    ASSERT_EQ(back->GetCount(), 1);
    EXPECT_EQ(back->GetItemID(0), 3005u);
    EXPECT_EQ(const_cast<CMFCToolBar*>(back)->GetParentDockSite(),
              second.GetDockingManager()->FindDockSite(CBRS_ALIGN_LEFT, TRUE));
}

TEST_F(LoadedFrameTest, ADeletedToolbarOfTheUsersStaysAway) {
    LoadedFrame& first = Load();
    const LRESULT mine = first.SendMessage(AFX_WM_CREATETOOLBAR, 0, reinterpret_cast<LPARAM>(L"Mine"));
    ASSERT_TRUE(App().SaveState(&first));
    EXPECT_FALSE(first.SendMessage(AFX_WM_DELETETOOLBAR, 0, reinterpret_cast<LPARAM>(&first.bar))) << "the program's";
    EXPECT_TRUE(first.SendMessage(AFX_WM_DELETETOOLBAR, 0, mine));
    EXPECT_FALSE(first.SendMessage(AFX_WM_DELETETOOLBAR, 0, mine)) << "it is gone";
    ASSERT_TRUE(App().SaveState(&first));
    End();
    Load();
    CObList panes;
    m_frame->GetDockingManager()->GetPaneList(panes);
    EXPECT_EQ(panes.GetCount(), 1);
}

TEST_F(LoadedFrameTest, ThereAreNoMoreToolbarsOfTheUsersThanIdsForThem) {
    LoadedFrame& frame = Load();
    int made = 0;
    while (made < 100 && frame.SendMessage(AFX_WM_CREATETOOLBAR, 0, reinterpret_cast<LPARAM>(L"Mine")) != 0) {
        ++made;
    }
    EXPECT_EQ(made, 32);
}

TEST_F(LoadedFrameTest, ADamagedListOfThemIsPassedOver) {
    LoadedFrame& first = Load();
    first.SendMessage(AFX_WM_CREATETOOLBAR, 0, reinterpret_cast<LPARAM>(L"Mine"));
    ASSERT_TRUE(App().SaveState(&first));
    End();
    BYTE damaged[] = {0xFF, 0xFF, 0xFF, 0x7F, 1, 2, 3};
    App().WriteSectionBinary(L"UserToolbars", L"Names", damaged, sizeof(damaged));
    LoadedFrame& second = Load();
    EXPECT_TRUE(second.bar.IsDocked());
    CObList panes;
    second.GetDockingManager()->GetPaneList(panes);
    EXPECT_EQ(panes.GetCount(), 1);
}

} // namespace

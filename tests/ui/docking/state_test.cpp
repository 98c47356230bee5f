// Where panes were comes back at the next start; what is damaged leaves the panes where they are.
#include "tests/ui/docking/docking_fixture.h"

namespace {

constexpr LPCTSTR kBase = L"Docking";
constexpr LPCTSTR kPlaces = L"DockingManager";

class DockStateTest : public DockingTest {
protected:
    DockStateTest() { App().SetRegistryBase(kBase); }
    ~DockStateTest() override {
        App().CleanState();
        App().SetRegistryBase(L"Workspace");
    }
    static CWinAppEx& App() { return *static_cast<CWinAppEx*>(AfxGetApp()); }

    void ArrangeForSaving() {
        Dock(m_panes[0]);
        DockAt(m_panes[1], AFX_IDW_DOCKBAR_TOP, {250, 2});
        m_frame->ShowPane(&m_panes[2], TRUE, TRUE, FALSE);
        m_panes[2].FloatPane(CRect(OnScreen(120, 130), CSize(0, 0)));
        m_frame->ShowPane(&m_panes[0], FALSE, FALSE, FALSE);
    }
    void ArrangeOtherwise() {
        m_frame->ShowPane(&m_panes[0], TRUE, FALSE, FALSE);
        Dock(m_panes[0], AFX_IDW_DOCKBAR_LEFT);
        Dock(m_panes[1], AFX_IDW_DOCKBAR_BOTTOM);
        Dock(m_panes[2], AFX_IDW_DOCKBAR_BOTTOM);
    }
    void ExpectTheOtherArrangement() {
        EXPECT_EQ(Rows(CBRS_ALIGN_LEFT), "1");
        EXPECT_EQ(Rows(CBRS_ALIGN_BOTTOM), "2 3");
        EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "");
    }
    /// Replaces what was saved about the places by `change` of it.
    template <typename Change>
    static void Damage(Change change) {
        LPBYTE data = nullptr;
        UINT size = 0;
        ASSERT_TRUE(App().GetSectionBinary(kPlaces, L"Places", &data, &size));
        const std::unique_ptr<BYTE[]> kept(data);
        std::vector<BYTE> bytes(data, data + size);
        change(bytes);
        ASSERT_TRUE(App().WriteSectionBinary(kPlaces, L"Places", bytes.data(), static_cast<UINT>(bytes.size())));
    }
};

TEST_F(DockStateTest, RowsOffsetsMiniFramesAndVisibilityComeBack) {
    ArrangeForSaving();
    CRect floating;
    m_panes[2].GetParentMiniFrame()->GetWindowRect(&floating);
    ASSERT_TRUE(App().SaveState(m_frame));
    ArrangeOtherwise();
    EXPECT_TRUE(App().LoadState(m_frame));
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1 2");
    EXPECT_EQ(PlaceOf(m_panes[1]), CRect(250, 0, 350, 24));
    EXPECT_FALSE(m_panes[0].IsVisible());
    ASSERT_TRUE(m_panes[2].IsFloating());
    CRect restored;
    m_panes[2].GetParentMiniFrame()->GetWindowRect(&restored);
    EXPECT_EQ(restored, floating);
    EXPECT_EQ(PlaceOf(m_client), CRect(0, 24, 600, 400));
}

TEST_F(DockStateTest, APaneThatWasShownFromItsCreationOnComesBackShown) {
    CPane pane;
    ASSERT_TRUE(pane.Create(nullptr, WS_CHILD | WS_VISIBLE | CBRS_TOP, CRect(0, 0, 40, 20), m_frame, 9));
    EXPECT_TRUE(pane.GetRecentVisibleState());
    pane.EnableDocking(CBRS_ALIGN_ANY);
    m_frame->DockPane(&pane);
    ASSERT_TRUE(App().SaveState(m_frame));
    ASSERT_TRUE(App().LoadState(m_frame));
    EXPECT_TRUE(pane.IsVisible());
}

TEST_F(DockStateTest, AFloatingPaneStillKnowsWhereItWasDocked) {
    Dock(m_panes[0]);
    Dock(m_panes[1], AFX_IDW_DOCKBAR_RIGHT);
    ASSERT_TRUE(m_panes[1].FloatPane(CRect(OnScreen(120, 130), CSize(0, 0))));
    ASSERT_TRUE(App().SaveState(m_frame));
    m_frame->DockPane(&m_panes[1], AFX_IDW_DOCKBAR_BOTTOM);
    ASSERT_TRUE(App().LoadState(m_frame));
    ASSERT_TRUE(m_panes[1].IsFloating());
    m_panes[1].OnProcessDblClk();
    EXPECT_EQ(Rows(CBRS_ALIGN_RIGHT), "2");
}

TEST_F(DockStateTest, ManyRowsComeBackInTheirOrder) {
    Dock(m_panes[0]);
    DockAt(m_panes[1], AFX_IDW_DOCKBAR_TOP, {30, 60});
    DockAt(m_panes[2], AFX_IDW_DOCKBAR_TOP, {70, -12});
    ASSERT_EQ(Rows(CBRS_ALIGN_TOP), "3 | 1 | 2");
    ASSERT_TRUE(App().SaveState(m_frame));
    ArrangeOtherwise();
    ASSERT_TRUE(App().LoadState(m_frame));
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "3 | 1 | 2");
}

TEST_F(DockStateTest, WithoutAStateThePanesStay) {
    ArrangeOtherwise();
    EXPECT_FALSE(App().LoadState(m_frame));
    ExpectTheOtherArrangement();
}

TEST_F(DockStateTest, ADamagedStateLeavesThePanesWhereTheyAre) {
    ArrangeForSaving();
    const auto damages = std::vector<std::function<void(std::vector<BYTE>&)>>{
        [](std::vector<BYTE>& bytes) { bytes.pop_back(); },
        [](std::vector<BYTE>& bytes) { bytes.resize(3); },
        [](std::vector<BYTE>& bytes) { bytes[20] = static_cast<BYTE>(bytes[20] ^ 1); },
        [](std::vector<BYTE>& bytes) { std::fill_n(bytes.begin(), 4, BYTE{0xFF}); },
    };
    ArrangeOtherwise();
    for (const auto& damage : damages) {
        ASSERT_TRUE(App().SaveState(m_frame));
        Damage(damage);
        EXPECT_FALSE(App().LoadState(m_frame));
        ExpectTheOtherArrangement();
    }
}

TEST_F(DockStateTest, ADamagedStateOfThePlacesLosesNothingElse) {
    ArrangeForSaving();
    ASSERT_TRUE(App().SaveState(m_frame));
    ArrangeOtherwise();
    Damage([](std::vector<BYTE>& bytes) { bytes.pop_back(); });
    EXPECT_FALSE(App().LoadState(m_frame));
    EXPECT_FALSE(m_panes[0].IsVisible()) << "which the pane keeps itself";
}

TEST_F(DockStateTest, AStateOfPanesThatAreGoneOrForbiddenIsTakenAsFarAsItGoes) {
    ArrangeForSaving();
    ASSERT_TRUE(App().SaveState(m_frame));
    ArrangeOtherwise();
    m_panes[0].DestroyWindow();
    m_panes[1].EnableDocking(CBRS_ALIGN_BOTTOM);
    EXPECT_TRUE(App().LoadState(m_frame));
    EXPECT_EQ(Rows(CBRS_ALIGN_BOTTOM), "2") << "it may not go to the top";
    EXPECT_TRUE(m_panes[2].IsFloating());
}

TEST_F(DockStateTest, APaneThatTheStateDoesNotKnowKeepsItsRow) {
    Dock(m_panes[0]);
    ASSERT_TRUE(App().SaveState(m_frame));
    Dock(m_panes[1]);
    Dock(m_panes[0], AFX_IDW_DOCKBAR_BOTTOM);
    ASSERT_TRUE(App().LoadState(m_frame));
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "2 | 1");
}

TEST_F(DockStateTest, AMiniFrameThatWasOnAnotherScreenComesBackOnToThisOne) {
    ArrangeForSaving();
    m_panes[2].FloatPane(CRect(CPoint(30000, 20000), CSize(200, 100)));
    ASSERT_TRUE(App().SaveState(m_frame));
    ASSERT_TRUE(App().LoadState(m_frame));
    CRect window;
    m_panes[2].GetParentMiniFrame()->GetWindowRect(&window);
    EXPECT_NE(::MonitorFromRect(window, MONITOR_DEFAULTTONULL), nullptr);
}

TEST_F(DockStateTest, AFrameThatDoesNotWantItLeavesThePanesWhereTheyAre) {
    ArrangeForSaving();
    ASSERT_TRUE(App().SaveState(m_frame));
    ArrangeOtherwise();
    m_frame->EnableLoadDockState(FALSE);
    App().LoadState(m_frame);
    ExpectTheOtherArrangement();
    m_frame->EnableLoadDockState();
    App().LoadState(m_frame);
    EXPECT_EQ(Rows(CBRS_ALIGN_TOP), "1 2");
}

// ---- what frames do themselves

/// The main frame of a run of the program, with one toolbar.
class KeptFrame : public CFrameWndEx {
public:
    CMFCToolBar bar;

    void Make() {
        Create(nullptr, L"Kept", WS_OVERLAPPEDWINDOW, CRect(60, 50, 560, 350));
        EnableDocking(CBRS_ALIGN_ANY);
        bar.Create(this, AFX_DEFAULT_TOOLBAR_STYLE, 21);
        bar.InsertButton(CMFCToolBarButton(3001, -1, L"One"));
        bar.InsertButton(CMFCToolBarButton(3002, -1, L"Two"));
        bar.EnableDocking(CBRS_ALIGN_ANY);
        DockPane(&bar);
        AfxGetApp()->m_pMainWnd = this;
    }
};

class KeptFrameTest : public ::testing::Test {
protected:
    KeptFrameTest() { App().SetRegistryBase(L"KeptFrame"); }
    ~KeptFrameTest() override {
        if (m_frame != nullptr) {
            m_frame->DestroyWindow();
        }
        AfxGetApp()->m_pMainWnd = nullptr;
        ForgetTheEnd();
        App().CleanState();
        App().SetRegistryBase(L"Workspace");
    }
    static CWinAppEx& App() { return *static_cast<CWinAppEx*>(AfxGetApp()); }
    static void ForgetTheEnd() {
        MSG message{};
        while (::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
        }
    }
    void Start() {
        m_frame = new KeptFrame;
        m_frame->Make();
    }
    void Close() {
        m_frame->SendMessage(WM_CLOSE);
        m_frame = nullptr;
        ForgetTheEnd();
    }
    CRect Place() const {
        WINDOWPLACEMENT placement{};
        placement.length = sizeof(placement);
        ::GetWindowPlacement(m_frame->m_hWnd, &placement);
        return placement.rcNormalPosition;
    }

    KeptFrame* m_frame = nullptr;
};

TEST_F(KeptFrameTest, ClosingTheMainFrameKeepsWhereItsBarsAreAndWhatTheyShow) {
    Start();
    m_frame->DockPane(&m_frame->bar, AFX_IDW_DOCKBAR_LEFT);
    m_frame->bar.GetButton(1)->Show(FALSE);
    Close();
    Start();
    ASSERT_EQ(m_frame->bar.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_TOP));
    EXPECT_TRUE(App().LoadState(m_frame));
    EXPECT_EQ(m_frame->bar.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_LEFT));
    EXPECT_TRUE(m_frame->bar.GetButton(1)->IsHidden());
}

TEST_F(KeptFrameTest, ItsPlaceAndSizeComeBackWithoutShowingIt) {
    Start();
    m_frame->SetWindowPos(nullptr, 90, 70, 420, 260, SWP_NOZORDER);
    const CRect before = Place();
    Close();
    Start();
    ASSERT_NE(Place(), before);
    App().LoadState(m_frame);
    EXPECT_EQ(Place(), before);
    EXPECT_FALSE(m_frame->IsWindowVisible());
    EXPECT_EQ(App().m_nCmdShow, SW_SHOWNORMAL);
}

TEST_F(KeptFrameTest, OneThatWasMaximizedSaysSoToTheNextStart) {
    Start();
    m_frame->ShowWindow(SW_SHOWMAXIMIZED);
    Close();
    App().m_nCmdShow = SW_SHOWNORMAL;
    Start();
    App().LoadState(m_frame);
    EXPECT_EQ(App().m_nCmdShow, SW_SHOWMAXIMIZED);
    EXPECT_FALSE(m_frame->IsWindowVisible());
    App().m_nCmdShow = SW_SHOWNORMAL;
}

TEST_F(KeptFrameTest, APlaceOnNoMonitorIsBroughtOntoOne) {
    Start();
    Close();
    RECT distant{90000, 90000, 90400, 90300};
    ASSERT_TRUE(
        App().WriteSectionBinary(L"WindowPlacement", L"Rect", reinterpret_cast<LPBYTE>(&distant), sizeof(distant)));
    Start();
    App().LoadState(m_frame);
    CRect shown;
    m_frame->GetWindowRect(&shown);
    EXPECT_NE(::MonitorFromRect(&shown, MONITOR_DEFAULTTONULL), nullptr);
    EXPECT_EQ(shown.Size(), CSize(400, 300));
}

TEST_F(KeptFrameTest, ADamagedPlaceLeavesTheFrameAndLosesNothingElse) {
    Start();
    m_frame->DockPane(&m_frame->bar, AFX_IDW_DOCKBAR_LEFT);
    Close();
    BYTE bytes[] = {1, 2, 3};
    ASSERT_TRUE(App().WriteSectionBinary(L"WindowPlacement", L"Rect", bytes, sizeof(bytes)));
    Start();
    const CRect before = Place();
    App().LoadState(m_frame);
    EXPECT_EQ(Place(), before);
    EXPECT_EQ(m_frame->bar.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_LEFT));
}

TEST_F(KeptFrameTest, WithoutTheWishThePlaceIsTheProgramsOwn) {
    Start();
    m_frame->SetWindowPos(nullptr, 90, 70, 420, 260, SWP_NOZORDER);
    Close();
    Start();
    const CRect before = Place();
    App().EnableLoadWindowPlacement(FALSE);
    App().LoadState(m_frame);
    App().EnableLoadWindowPlacement();
    EXPECT_EQ(Place(), before);
}

TEST_F(KeptFrameTest, AnotherFrameThatClosesKeepsNothing) {
    Start();
    AfxGetApp()->m_pMainWnd = nullptr;
    Close();
    EXPECT_FALSE(App().IsStateExists(L"DockingManager"));
}

} // namespace

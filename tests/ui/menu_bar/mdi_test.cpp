// The menu bar of an MDI frame: menus of the children, the buttons of a maximised one.
#include "tests/ui/menu_bar/bar_menu_frame.h"

namespace {

class MdiFrame : public CMDIFrameWndEx {
public:
    CMFCMenuBar bar;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create) {
        return CMDIFrameWndEx::OnCreate(create) == -1 || !bar.Create(this) ? -1 : 0;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(MdiFrame, CMDIFrameWndEx)
ON_WM_CREATE()
END_MESSAGE_MAP()

class MdiMenuBarTest : public ::testing::Test {
protected:
    MdiMenuBarTest() {
        ::AppendMenuW(m_childMenu, MF_STRING, bar_ids::zoom, L"Child");
        ::AppendMenuW(m_frameMenu, MF_STRING, bar_ids::run, L"Frame");
        m_frame->Create(nullptr, L"MDI", WS_OVERLAPPEDWINDOW, CRect(60, 60, 660, 460));
        m_frame->bar.CreateFromMenu(m_frameMenu, TRUE);
        m_frame->ShowWindow(SW_SHOW);
        PumpPending();
    }
    ~MdiMenuBarTest() override {
        m_frame->DestroyWindow();
        PumpPending();
        ::DestroyMenu(m_childMenu);
        ::DestroyMenu(m_frameMenu);
    }
    CMDIChildWndEx* MakeChild() {
        auto* child = new CMDIChildWndEx;
        child->SetHandles(m_childMenu, nullptr);
        child->Create(nullptr, L"Child", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, CFrameWnd::rectDefault, m_frame);
        PumpPending();
        return child;
    }
    CMFCMenuBar& Bar() { return m_frame->bar; }

    MdiFrame* m_frame = new MdiFrame;
    HMENU m_childMenu = ::CreateMenu();
    HMENU m_frameMenu = ::CreateMenu();
};

} // namespace

TEST_F(MdiMenuBarTest, TheBarShowsTheMenuOfTheActiveChild) {
    EXPECT_EQ(Bar().GetButtonText(0), L"Frame");
    MakeChild();
    EXPECT_EQ(Bar().GetButtonText(0), L"Child");
    EXPECT_EQ(::GetMenu(m_frame->m_hWnd), nullptr);
}

TEST_F(MdiMenuBarTest, AMaximisedChildHasItsMenuAndButtonsInTheBar) {
    CMDIChildWndEx* child = MakeChild();
    EXPECT_EQ(Bar().GetSystemButtonsCount(), 0);
    child->MDIMaximize();
    PumpPending();
    m_frame->RecalcLayout();
    EXPECT_TRUE(Bar().IsMaximizeMode());
    EXPECT_EQ(Bar().GetSystemButtonsCount(), 3);
    ASSERT_NE(Bar().GetSystemMenu(), nullptr);
    ASSERT_NE(Bar().GetSystemButton(SC_CLOSE), nullptr);
    EXPECT_EQ(Bar().GetSystemButton(2, FALSE), Bar().GetSystemButton(SC_CLOSE));
    CRect client;
    Bar().GetClientRect(&client);
    const CRect close = Bar().GetSystemButton(SC_CLOSE)->Rect();
    EXPECT_LE(close.right, client.right);
    EXPECT_GT(close.right, client.right - 8);
    EXPECT_LT(Bar().GetSystemMenu()->Rect().left, Bar().GetButton(0)->Rect().left);
    child->MDIRestore();
    PumpPending();
    m_frame->RecalcLayout();
    EXPECT_EQ(Bar().GetSystemButtonsCount(), 0);
    EXPECT_EQ(Bar().GetSystemMenu(), nullptr);
}

TEST_F(MdiMenuBarTest, TheButtonsOfAMaximisedChildGoToIt) {
    CMDIChildWndEx* child = MakeChild();
    child->MDIMaximize();
    PumpPending();
    m_frame->RecalcLayout();
    const HWND window = child->m_hWnd;
    Pointer pointer;
    pointer.Click(Bar().m_hWnd, Bar().GetSystemButton(SC_RESTORE)->Rect().CenterPoint());
    PumpPending();
    EXPECT_FALSE(::IsZoomed(window));
    child->MDIMaximize();
    PumpPending();
    m_frame->RecalcLayout();
    pointer.Click(Bar().m_hWnd, Bar().GetSystemButton(SC_CLOSE)->Rect().CenterPoint());
    PumpPending();
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(MdiMenuBarTest, TheIconShowsTheChildsSystemMenuAndSendsWhatIsChosen) {
    CMDIChildWndEx* child = MakeChild();
    child->MDIMaximize();
    PumpPending();
    m_frame->RecalcLayout();
    const HWND window = child->m_hWnd;
    const CountingPopupMenu menu(SC_RESTORE);
    Pointer pointer;
    pointer.Click(Bar().m_hWnd, Bar().GetSystemMenu()->Rect().CenterPoint());
    PumpPending();
    EXPECT_EQ(menu.Count(), 1);
    EXPECT_FALSE(::IsZoomed(window));
}

TEST_F(MdiMenuBarTest, BuildingAnewKeepsTheButtonsOfTheMaximisedChild) {
    CMDIChildWndEx* child = MakeChild();
    child->MDIMaximize();
    PumpPending();
    m_frame->RecalcLayout();
    Bar().CreateFromMenu(m_childMenu, FALSE, TRUE);
    EXPECT_EQ(Bar().GetSystemButtonsCount(), 3);
    EXPECT_EQ(Bar().GetCount(), 5);
}

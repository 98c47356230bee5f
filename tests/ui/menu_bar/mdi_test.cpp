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

// ---- the list of the children in the window menu

class WindowListTest : public MdiMenuBarTest {
protected:
    WindowListTest() {
        const HMENU popup = ::CreatePopupMenu();
        ::AppendMenuW(popup, MF_STRING, ID_WINDOW_CASCADE, L"Cascade");
        ::AppendMenuW(m_childMenu, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), L"Window");
        const HMENU other = ::CreatePopupMenu();
        ::AppendMenuW(other, MF_STRING, bar_ids::run, L"Run");
        ::AppendMenuW(m_childMenu, MF_POPUP, reinterpret_cast<UINT_PTR>(other), L"Other");
    }
    ~WindowListTest() override { CMFCPopupMenu::CloseAll(); }
    CMDIChildWndEx* MakeNamed(LPCTSTR name) {
        CMDIChildWndEx* const child = MakeChild();
        child->SetWindowText(name);
        return child;
    }
    CMFCPopupMenu* Open(LPCTSTR text) {
        CMFCPopupMenu::CloseAll();
        for (int index = 0; index < Bar().GetCount(); ++index) {
            auto* const button = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, Bar().GetButton(index));
            if (button != nullptr && button->m_strText == text) {
                button->OpenPopupMenu();
            }
        }
        return CMFCPopupMenu::GetActiveMenu();
    }
    static std::wstring Describe(CMFCPopupMenu* menu) {
        std::wstring text;
        for (int index = 0; menu != nullptr && index < menu->GetMenuItemCount(); ++index) {
            const CMFCToolBarMenuButton* const item = menu->GetMenuItem(index);
            const bool isChecked = item != nullptr && (item->m_nStyle & TBBS_CHECKED) != 0;
            text += (text.empty() ? L"" : L" ") + std::wstring(isChecked ? L"*" : L"");
            text += item == nullptr || item->m_strText.IsEmpty() ? L"|" : item->m_strText.GetString();
        }
        return text;
    }
    void Choose(CMFCPopupMenu& menu, int row) {
        CRect rect;
        menu.GetMenuBar()->GetItemRect(row, rect);
        Pointer pointer;
        pointer.Click(menu.GetMenuBar()->m_hWnd, rect.CenterPoint());
        PumpPending();
    }
};

TEST_F(WindowListTest, TheMenuThatArrangesWindowsEndsWithTheChildrenTheActiveOneChecked) {
    MakeNamed(L"First");
    MakeNamed(L"Second & last");
    EXPECT_EQ(Describe(Open(L"Window")), L"Cascade | &1 First *&2 Second && last");
    EXPECT_EQ(Describe(Open(L"Window")), L"Cascade | &1 First *&2 Second && last") << "once, however often it opens";
    EXPECT_EQ(Describe(Open(L"Other")), L"Run");
}

TEST_F(WindowListTest, AChoiceBringsTheChildToTheFrontAndAMinimisedOneBack) {
    CMDIChildWndEx* const first = MakeNamed(L"First");
    MakeNamed(L"Second");
    CMFCPopupMenu* menu = Open(L"Window");
    ASSERT_NE(menu, nullptr);
    Choose(*menu, 2);
    EXPECT_EQ(m_frame->MDIGetActive(), first);
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
    first->ShowWindow(SW_MINIMIZE);
    PumpPending();
    menu = Open(L"Window");
    ASSERT_NE(menu, nullptr);
    Choose(*menu, 2);
    EXPECT_FALSE(first->IsIconic());
    EXPECT_EQ(m_frame->MDIGetActive(), first);
}

TEST_F(WindowListTest, NineAreListedAndTheRestIsNot) {
    for (int number = 1; number <= 11; ++number) {
        MakeNamed(L"Child");
    }
    CMFCPopupMenu* const menu = Open(L"Window");
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->GetMenuItemCount(), 2 + 9);
}

TEST_F(WindowListTest, AChildThatIsClosedMeanwhileIsLeftAlone) {
    CMDIChildWndEx* const first = MakeNamed(L"First");
    CMDIChildWndEx* const second = MakeNamed(L"Second");
    CMFCPopupMenu* const menu = Open(L"Window");
    ASSERT_NE(menu, nullptr);
    first->MDIDestroy();
    Choose(*menu, 2);
    EXPECT_EQ(m_frame->MDIGetActive(), second);
}

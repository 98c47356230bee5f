#include "menubar_ex.h"

#include <afxcontrolbars.h>

#include "tests/support/message_pump.h"
#include "tests/support/pointer.h"
#include "tests/support/ui_test.h"

namespace {

constexpr int kHelpMenu = 500, kMenuWithoutPopup = 501, kNoMenu = 599;
constexpr UINT kAbout = 2301;

class OwnMenuButton : public CMFCToolBarMenuButton {
    DECLARE_SERIAL(OwnMenuButton)
};
IMPLEMENT_SERIAL(OwnMenuButton, CMFCToolBarMenuButton, 1)

/// Notes how often it is painted.
class Bar : public CMfcMenubarEx {
public:
    int painted = 0;

protected:
    void DoPaint(CDC* dc) override {
        ++painted;
        CMfcMenubarEx::DoPaint(dc);
    }
};

class Frame : public CFrameWndEx {
public:
    Bar bar;
    std::vector<UINT> commands;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create) {
        return CFrameWndEx::OnCreate(create) == -1 || !bar.Create(this) ? -1 : 0;
    }
    afx_msg void OnMenuCommand(UINT id) { commands.push_back(id); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Frame, CFrameWndEx)
ON_WM_CREATE()
ON_COMMAND_RANGE(2000, 2999, OnMenuCommand)
END_MESSAGE_MAP()

class ChildsFrame : public CMDIFrameWndEx {
public:
    Bar bar;
};

HMENU MenuWith(std::initializer_list<LPCWSTR> popups) {
    const HMENU menu = ::CreateMenu();
    UINT id = 2100;
    for (const LPCWSTR text : popups) {
        const HMENU popup = ::CreatePopupMenu();
        ::AppendMenuW(popup, MF_STRING, id++, L"Item");
        ::AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), text);
    }
    return menu;
}

class MenubarEx : public ::testing::Test {
protected:
    MenubarEx() {
        CMfcMenubarEx::s_nRightBtnIndex = -1;
        m_frame->Create(nullptr, L"Menu bar", WS_OVERLAPPEDWINDOW, CRect(80, 60, 680, 460));
        m_frame->ShowWindow(SW_SHOWNOACTIVATE);
        PumpPending();
    }
    ~MenubarEx() override {
        CMFCPopupMenu::CloseAll();
        m_frame->DestroyWindow();
        PumpPending();
        ::DestroyMenu(m_menu);
        ::DestroyMenu(m_rightMenu);
        CMfcMenubarEx::s_nRightBtnIndex = -1;
    }
    Bar& TheBar() { return m_frame->bar; }
    void Build() { TheBar().CreateFromMenu(m_menu, TRUE, TRUE); }
    void BuildWithRightMenu() {
        TheBar().SetRightHMenu(m_rightMenu);
        Build();
        PumpPending();
    }
    CString TextAt(int index) { return TheBar().GetButtonText(index); }
    CRect PlaceOf(int index) {
        CRect place;
        TheBar().GetItemRect(index, place);
        return place;
    }
    CRect Client() {
        CRect client;
        TheBar().GetClientRect(&client);
        return client;
    }
    void SetWidth(int width) {
        m_frame->SetWindowPos(nullptr, 0, 0, width, 400, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        PumpPending();
    }

    Frame* m_frame = new Frame;
    HMENU m_menu = MenuWith({L"&File", L"&Edit"});
    HMENU m_rightMenu = MenuWith({L"&Help", L"Never shown"});
};

} // namespace

TEST_F(MenubarEx, WithoutARightHandMenuTheBarIsTheFrameworks) {
    EXPECT_EQ(TheBar().m_hRightMenu, nullptr);
    Build();
    EXPECT_EQ(TheBar().GetCount(), 2);
    EXPECT_EQ(CMfcMenubarEx::s_nRightBtnIndex, -1);
    CMFCMenuBar plain;
    ASSERT_TRUE(plain.Create(m_frame));
    plain.CreateFromMenu(m_menu, FALSE, TRUE);
    m_frame->RecalcLayout();
    for (int i = 0; i < 2; ++i) {
        CRect place;
        plain.GetItemRect(i, place);
        EXPECT_EQ(place, PlaceOf(i)) << i;
    }
}

TEST_F(MenubarEx, TheFirstPopupOfTheRightHandMenuIsTheLastButton) {
    BuildWithRightMenu();
    ASSERT_EQ(TheBar().GetCount(), 3);
    EXPECT_EQ(CMfcMenubarEx::s_nRightBtnIndex, 2);
    EXPECT_EQ(TextAt(2), L"&Help");
    const auto* button = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, TheBar().GetButton(2));
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(button->m_bText);
    EXPECT_EQ(button->GetCommands().GetCount(), 1);
}

TEST_F(MenubarEx, TheRightHandButtonIsOfTheBarsMenuButtonClass) {
    TheBar().SetMenuButtonRTC(RUNTIME_CLASS(OwnMenuButton));
    BuildWithRightMenu();
    EXPECT_TRUE(TheBar().GetButton(2)->IsKindOf(RUNTIME_CLASS(OwnMenuButton)));
}

TEST_F(MenubarEx, TheRightHandButtonLiesAtTheRightEdgeWithItsWidthAndHeight) {
    BuildWithRightMenu();
    const CRect place = PlaceOf(2);
    EXPECT_EQ(place.right, Client().right);
    EXPECT_EQ(place.top, PlaceOf(0).top);
    EXPECT_EQ(place.bottom, PlaceOf(0).bottom);
    EXPECT_GT(place.Width(), 10);
    EXPECT_LT(place.Width(), 80);
}

TEST_F(MenubarEx, ResizingKeepsTheRightHandButtonAtTheRightEdgeAndTheOthersAtTheLeft) {
    BuildWithRightMenu();
    const CRect first = PlaceOf(0), second = PlaceOf(1);
    const int width = PlaceOf(2).Width();
    for (const int wanted : {900, 500, 300}) {
        SetWidth(wanted);
        EXPECT_EQ(PlaceOf(2).right, Client().right) << wanted;
        EXPECT_EQ(PlaceOf(2).Width(), width) << wanted;
        EXPECT_EQ(PlaceOf(0), first) << wanted;
        EXPECT_EQ(PlaceOf(1), second) << wanted;
    }
}

TEST_F(MenubarEx, TwoRebuildsLeaveOneRightHandButtonAtTheEnd) {
    BuildWithRightMenu();
    Build();
    EXPECT_EQ(TheBar().GetCount(), 3);
    EXPECT_EQ(CMfcMenubarEx::s_nRightBtnIndex, 2);
    EXPECT_EQ(TextAt(2), L"&Help");
    EXPECT_EQ(PlaceOf(2).right, Client().right);
}

TEST_F(MenubarEx, ARebuildThatReadsNothingAgainLeavesOneRightHandButtonToo) {
    BuildWithRightMenu();
    TheBar().CreateFromMenu(m_menu, FALSE, FALSE);
    EXPECT_EQ(TheBar().GetCount(), 3);
    EXPECT_EQ(TextAt(2), L"&Help");
}

TEST_F(MenubarEx, ARebuildWithFewerButtonsMovesTheRightHandButtonsIndex) {
    BuildWithRightMenu();
    const HMENU shorter = MenuWith({L"Only"});
    TheBar().CreateFromMenu(shorter);
    EXPECT_EQ(CMfcMenubarEx::s_nRightBtnIndex, 1);
    EXPECT_EQ(TextAt(1), L"&Help");
    ::DestroyMenu(shorter);
}

TEST_F(MenubarEx, AnIndexOfZeroIsNotRemoved) {
    TheBar().SetRightHMenu(m_rightMenu);
    const HMENU empty = ::CreateMenu();
    TheBar().CreateFromMenu(empty, FALSE, TRUE);
    EXPECT_EQ(CMfcMenubarEx::s_nRightBtnIndex, 0);
    // The base class does not read the same menu again, and so the first one stays.
    TheBar().CreateFromMenu(empty, FALSE, FALSE);
    EXPECT_EQ(TheBar().GetCount(), 2);
    EXPECT_EQ(CMfcMenubarEx::s_nRightBtnIndex, 1);
    ::DestroyMenu(empty);
}

TEST_F(MenubarEx, TheIndexIsSharedByAllBars) {
    BuildWithRightMenu();
    Bar other;
    ASSERT_TRUE(other.Create(m_frame));
    other.CreateFromMenu(m_menu);
    EXPECT_EQ(CMfcMenubarEx::s_nRightBtnIndex, -1) << "the next rebuild of any bar takes it away";
}

TEST_F(MenubarEx, AHandleThatIsNoMenuLeavesTheFormerRightHandMenu) {
    TheBar().SetRightHMenu(m_rightMenu);
    TheBar().SetRightHMenu(static_cast<HMENU>(nullptr));
    EXPECT_EQ(TheBar().m_hRightMenu, m_rightMenu);
    const HMENU gone = ::CreateMenu();
    ::DestroyMenu(gone);
    TheBar().SetRightHMenu(gone);
    EXPECT_EQ(TheBar().m_hRightMenu, m_rightMenu);
}

TEST_F(MenubarEx, AResourceIsLoadedAndStays) {
    TheBar().SetRightHMenu(kHelpMenu);
    const HMENU loaded = TheBar().m_hRightMenu;
    ASSERT_TRUE(::IsMenu(loaded));
    Build();
    EXPECT_EQ(TextAt(2), L"&Help");
    TheBar().SetRightHMenu(m_rightMenu);
    EXPECT_TRUE(::IsMenu(loaded));
}

TEST_F(MenubarEx, AResourceThatDoesNotLoadLeavesTheFormerRightHandMenu) {
    TheBar().SetRightHMenu(m_rightMenu);
    TheBar().SetRightHMenu(kNoMenu);
    EXPECT_EQ(TheBar().m_hRightMenu, m_rightMenu);
}

TEST_F(MenubarEx, ARightHandMenuWithoutAPopupThrowsAfterTheBarWasBuilt) {
    TheBar().SetRightHMenu(kMenuWithoutPopup);
    CInvalidArgException* thrown = nullptr;
    try {
        Build();
    } catch (CInvalidArgException* caught) {
        thrown = caught;
    }
    ASSERT_NE(thrown, nullptr);
    thrown->Delete();
    EXPECT_EQ(TheBar().GetCount(), 2);
    EXPECT_EQ(CMfcMenubarEx::s_nRightBtnIndex, -1);
}

TEST_F(MenubarEx, ARightHandMenuThatIsGoneIsLeftOut) {
    const HMENU gone = MenuWith({L"Gone"});
    TheBar().SetRightHMenu(gone);
    ::DestroyMenu(gone);
    Build();
    EXPECT_EQ(TheBar().GetCount(), 2);
}

TEST_F(MenubarEx, TheRightHandMenuStaysTheHosts) {
    BuildWithRightMenu();
    Build();
    EXPECT_TRUE(::IsMenu(m_rightMenu));
    EXPECT_EQ(::GetMenuItemCount(m_rightMenu), 2);
}

TEST_F(MenubarEx, ARebuildDrawsTheBarAtOnce) {
    TheBar().SetRightHMenu(m_rightMenu);
    const int before = TheBar().painted;
    Build();
    EXPECT_GT(TheBar().painted, before);
}

TEST_F(MenubarEx, ItsStateIsNeitherStoredNorRestored) {
    BuildWithRightMenu();
    EXPECT_FALSE(TheBar().SaveState(L"Menubar test"));
    EXPECT_FALSE(TheBar().LoadState(L"Menubar test"));
    EXPECT_EQ(TheBar().GetCount(), 3);
}

TEST_F(MenubarEx, ItsMenusOpenBelowTheirButtonsAndSendTheirCommands) {
    TheBar().SetRightHMenu(kHelpMenu);
    Build();
    PumpPending();
    Pointer pointer;
    pointer.Click(TheBar().m_hWnd, PlaceOf(2).CenterPoint());
    CMFCPopupMenu* const menu = CMFCPopupMenu::GetActiveMenu();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->GetMenuItemCount(), 2);
    CRect item, window, work;
    menu->GetMenuBar()->GetItemRect(0, item);
    pointer.Click(menu->GetMenuBar()->m_hWnd, item.CenterPoint());
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{kAbout});
}

TEST_F(MenubarEx, ABarWithoutAWindowMayBeBuilt) {
    Bar bar;
    bar.SetRightHMenu(m_rightMenu);
    bar.CreateFromMenu(m_menu);
    EXPECT_EQ(bar.GetCount(), 3);
}

namespace {

/// The bar of an MDI frame with one child, beside whose buttons the right-hand one has to find its place.
class MenubarExOverAChild : public ::testing::Test {
protected:
    MenubarExOverAChild() {
        CMfcMenubarEx::s_nRightBtnIndex = -1;
        m_frame->Create(nullptr, L"Menu bar", WS_OVERLAPPEDWINDOW, CRect(80, 60, 680, 460));
        TheBar().Create(m_frame);
        m_frame->EnableDocking(CBRS_ALIGN_ANY);
        m_frame->DockPane(&TheBar());
        m_frame->ShowWindow(SW_SHOWNOACTIVATE);
        m_child->Create(nullptr, L"Child", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, CRect(0, 0, 200, 200), m_frame);
        TheBar().SetRightHMenu(m_rightMenu);
        Build();
    }
    ~MenubarExOverAChild() override {
        m_frame->DestroyWindow();
        PumpPending();
        ::DestroyMenu(m_menu);
        ::DestroyMenu(m_rightMenu);
        CMfcMenubarEx::s_nRightBtnIndex = -1;
    }
    Bar& TheBar() { return m_frame->bar; }
    void Build() {
        TheBar().CreateFromMenu(m_menu, TRUE, TRUE);
        PumpPending();
    }
    void Maximize() {
        m_child->MDIMaximize();
        PumpPending();
    }
    void Restore() {
        m_child->MDIRestore();
        PumpPending();
    }
    void ExpectHelpAtTheRightEdge() {
        const CMFCToolBarButton* const help = TheBar().GetButton(CMfcMenubarEx::s_nRightBtnIndex);
        ASSERT_NE(help, nullptr);
        EXPECT_EQ(help->m_strText, L"&Help");
        CRect client;
        TheBar().GetClientRect(&client);
        EXPECT_EQ(help->Rect().right, client.right);
    }

    ChildsFrame* m_frame = new ChildsFrame;
    CMDIChildWndEx* m_child = new CMDIChildWndEx;
    HMENU m_menu = MenuWith({L"&File", L"&Edit"});
    HMENU m_rightMenu = MenuWith({L"&Help"});
};

} // namespace

TEST_F(MenubarExOverAChild, TheRightHandButtonAndThoseOfAMaximisedChildLieBesideEachOther) {
    Maximize();
    ASSERT_EQ(TheBar().GetSystemButtonsCount(), 3);
    ExpectHelpAtTheRightEdge();
    const CRect help = TheBar().GetButton(CMfcMenubarEx::s_nRightBtnIndex)->Rect();
    for (UINT i = 0; i < 3; ++i) {
        CMFCToolBarButton* const button = TheBar().GetSystemButton(i, FALSE);
        EXPECT_LE(button->Rect().right, help.left) << i;
        EXPECT_GT(button->Rect().left, help.left - 100) << i;
        EXPECT_EQ(TheBar().HitTest(button->Rect().CenterPoint()), TheBar().ButtonToIndex(button)) << i;
    }
}

TEST_F(MenubarExOverAChild, ARebuildOverAMaximisedChildKeepsTheRightHandButtonAtTheRightEdgeWhenTheChildIsRestored) {
    Maximize();
    Build();
    EXPECT_EQ(CMfcMenubarEx::s_nRightBtnIndex, 2);
    ExpectHelpAtTheRightEdge();
    Restore();
    ASSERT_EQ(TheBar().GetSystemButtonsCount(), 0);
    EXPECT_EQ(TheBar().GetCount(), 3);
    ExpectHelpAtTheRightEdge();
    Maximize();
    ExpectHelpAtTheRightEdge();
}

TEST_F(MenubarExOverAChild, TheFieldForHelpHasItsRoomBesideBoth) {
    TheBar().EnableHelpCombobox(2401, L"Ask", 120);
    PumpPending();
    for (const char* when : {"the field last", "the button behind it"}) {
        Maximize();
        ASSERT_EQ(TheBar().GetSystemButtonsCount(), 3);
        const CRect field = TheBar().GetHelpCombobox()->Rect();
        const CRect help = TheBar().GetButton(CMfcMenubarEx::s_nRightBtnIndex)->Rect();
        CRect shared;
        EXPECT_FALSE(shared.IntersectRect(field, help)) << when;
        for (UINT i = 0; i < 3; ++i) {
            EXPECT_FALSE(shared.IntersectRect(field, TheBar().GetSystemButton(i, FALSE)->Rect())) << when << i;
        }
        Restore();
        Build();
    }
}

namespace {

constexpr UINT kAsk = 2401;

class MenubarExWithHelpField : public MenubarEx {
protected:
    /// Both have their room in the bar, and the field's windows lie where it says.
    void ExpectRoomForBoth(const char* when) {
        CMFCToolBarComboBoxButton* const help = TheBar().GetHelpCombobox();
        ASSERT_NE(help, nullptr) << when;
        const CRect right = PlaceOf(CMfcMenubarEx::s_nRightBtnIndex);
        EXPECT_EQ(right.right, Client().right) << when;
        const CRect field = help->Rect();
        CRect shared;
        EXPECT_FALSE(shared.IntersectRect(field, right)) << when;
        EXPECT_GE(field.left, PlaceOf(1).right) << when;
        EXPECT_NEAR(field.right, right.left, 4) << when;
        CRect edit;
        help->GetEditCtrl()->GetWindowRect(&edit);
        TheBar().ScreenToClient(&edit);
        EXPECT_GE(edit.left, field.left) << when;
        EXPECT_LE(edit.right, field.right) << when;
    }
};

} // namespace

TEST_F(MenubarExWithHelpField, LeavesTheRightHandButtonItsRoomWhicheverCameFirst) {
    BuildWithRightMenu();
    TheBar().EnableHelpCombobox(kAsk, L"Ask", 120);
    PumpPending();
    ExpectRoomForBoth("the field last");
    SetWidth(480);
    ExpectRoomForBoth("narrower");
    Build();
    PumpPending();
    ExpectRoomForBoth("the button last");
    EXPECT_EQ(CMfcMenubarEx::s_nRightBtnIndex, TheBar().GetCount() - 1);
    SetWidth(640);
    ExpectRoomForBoth("wider");
}

TEST_F(MenubarExWithHelpField, TheIndexOfTheRightHandButtonFollowsWhenTheFieldBeforeItGoes) {
    TheBar().EnableHelpCombobox(kAsk, L"Ask", 120);
    BuildWithRightMenu();
    ASSERT_EQ(CMfcMenubarEx::s_nRightBtnIndex, 3) << "behind two menus and the field";
    TheBar().EnableHelpCombobox(0);
    PumpPending();
    EXPECT_EQ(CMfcMenubarEx::s_nRightBtnIndex, 2);
    EXPECT_EQ(TextAt(2), L"&Help");
    EXPECT_EQ(PlaceOf(2).right, Client().right);
    SetWidth(640);
    EXPECT_EQ(PlaceOf(2).right, Client().right) << "wider";
    Build();
    PumpPending();
    EXPECT_EQ(TheBar().GetCount(), 3) << "the one button is built anew";
    EXPECT_EQ(CMfcMenubarEx::s_nRightBtnIndex, 2);
}

TEST_F(MenubarExWithHelpField, AnIndexThatAnotherBarHasSetStays) {
    TheBar().EnableHelpCombobox(kAsk, L"Ask", 120);
    BuildWithRightMenu();
    CMfcMenubarEx::s_nRightBtnIndex = 1;
    TheBar().EnableHelpCombobox(0);
    EXPECT_EQ(CMfcMenubarEx::s_nRightBtnIndex, 1);
}

TEST_F(MenubarExWithHelpField, AndInAMirroredBar) {
    m_frame->ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    TheBar().ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    TheBar().EnableHelpCombobox(kAsk, L"Ask", 120);
    BuildWithRightMenu();
    ExpectRoomForBoth("mirrored");
    CRect edit, bar;
    TheBar().GetHelpCombobox()->GetEditCtrl()->GetWindowRect(&edit);
    TheBar().GetWindowRect(&bar);
    EXPECT_LT(edit.left - bar.left, bar.right - edit.right) << "at the other end of the screen's bar";
}

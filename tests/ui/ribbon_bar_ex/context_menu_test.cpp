// The host's menu on a right click and on the menu key.
#include "tests/ui/ribbon_bar_ex/extended_bar.h"

#include <afxcontextmenumanager.h>

namespace {

constexpr UINT kFirstRow = 8001;
constexpr UINT kSecondRow = 8002;

class RibbonContextMenu : public ExtendedBarTest {
protected:
    RibbonContextMenu() : m_menu(::CreatePopupMenu()) {
        ::AppendMenuW(m_menu, MF_STRING, kFirstRow, L"First");
        ::AppendMenuW(m_menu, MF_STRING, kSecondRow, L"Second");
        Bar().setHMenu(m_menu);
    }
    ~RibbonContextMenu() override { ::DestroyMenu(m_menu); }

    BOOL Show(CMFCRibbonBaseElement* hit) {
        CPoint at = OnScreen(Bar().GetCategory(0)->GetPanel(0)->GetRect());
        return Bar().OnShowRibbonContextMenu(&Bar(), at.x, at.y, hit);
    }
    int CountCommands(UINT id) const {
        return static_cast<int>(std::count_if(m_frame->commands.begin(), m_frame->commands.end(),
                                              [id](const SentCommand& command) { return command.id == id; }));
    }

    CContextMenuManager m_manager; // the application's, while it has none of its own
    HMENU m_menu;
};

TEST_F(RibbonContextMenu, TheChosenCommandIsPostedToTheMainWindow) {
    Choose(2);
    EXPECT_FALSE(Show(nullptr));
    EXPECT_TRUE(m_frame->commands.empty()) << "posted, not sent";
    PumpPending();
    EXPECT_EQ(m_frame->commands, (std::vector<SentCommand>{{kSecondRow, 0, nullptr, true}}));
    EXPECT_TRUE(::IsMenu(m_menu)) << "it stays the host's";
}

TEST_F(RibbonContextMenu, AMenuThatIsLeftPostsZero) {
    Choose(0);
    EXPECT_FALSE(Show(nullptr));
    PumpPending();
    EXPECT_EQ(m_frame->commands, (std::vector<SentCommand>{{0, 0, nullptr, true}}));
}

TEST_F(RibbonContextMenu, TheMenuOpensAtThePoint) {
    CRect shown;
    WhileOpen([&] {
        CMFCPopupMenu::GetActiveMenu()->GetWindowRect(shown);
        Choose(0);
    });
    Bar().OnShowRibbonContextMenu(&Bar(), 200, 180, nullptr);
    EXPECT_EQ(shown.TopLeft(), CPoint(200, 180));
}

TEST_F(RibbonContextMenu, TheElementGetsTheHookAndGivesNoticeOfItsCommand) {
    Choose(1);
    EXPECT_FALSE(Show(&Button(0, 1)));
    EXPECT_EQ(Button(0, 1).hooks, std::vector<int>{-11});
    EXPECT_EQ(m_frame->commands, (std::vector<SentCommand>{{ButtonId(0, 1), 0, nullptr, false}})) << "sent at once";
    PumpPending();
    EXPECT_EQ(CountCommands(kFirstRow), 1);
    EXPECT_EQ(CountCommands(ButtonId(0, 1)), 1);
}

TEST_F(RibbonContextMenu, TheElementGivesNoticeWhenNothingWasChosenToo) {
    Choose(0);
    Show(&Button(0, 1));
    EXPECT_EQ(Button(0, 1).hooks, std::vector<int>{-11});
    EXPECT_EQ(CountCommands(ButtonId(0, 1)), 1);
}

TEST_F(RibbonContextMenu, ADisabledElementGetsTheHookAlone) {
    Choose(0);
    WatchedButton& button = Button(0, 1);
    // The idle update of the frame would enable it again.
    button.onHook = [&button] { button.SetDisabled(TRUE); };
    Show(&button);
    EXPECT_EQ(button.hooks, std::vector<int>{-11});
    EXPECT_EQ(CountCommands(ButtonId(0, 1)), 0);
}

TEST_F(RibbonContextMenu, AMenuOnAnotherWindowLeavesTheElementAlone) {
    Choose(1);
    EXPECT_FALSE(Bar().OnShowRibbonContextMenu(m_frame, 200, 180, &Button(0, 1)));
    PumpPending();
    EXPECT_TRUE(Button(0, 1).hooks.empty());
    EXPECT_EQ(m_frame->commands, (std::vector<SentCommand>{{kFirstRow, 0, nullptr, true}}));
}

// ---- when there is none

TEST_F(RibbonContextMenu, WithTheSwitchOffThereIsNoMenu) {
    Bar().EnableContextMenu(FALSE);
    EXPECT_FALSE(Show(&Button(0, 1)));
    PumpPending();
    EXPECT_TRUE(m_frame->commands.empty());
    EXPECT_TRUE(Button(0, 1).hooks.empty());
}

TEST_F(RibbonContextMenu, WithoutAManagerThereIsNoMenu) {
    const fx::ScopedChange none(afxContextMenuManager, nullptr);
    EXPECT_FALSE(Show(&Button(0, 1)));
    PumpPending();
    EXPECT_TRUE(m_frame->commands.empty());
    EXPECT_TRUE(Button(0, 1).hooks.empty());
}

TEST_F(RibbonContextMenu, WithoutAMenuThereIsNone) {
    Bar().setHMenu(nullptr);
    EXPECT_FALSE(Show(&Button(0, 1)));
    PumpPending();
    EXPECT_TRUE(m_frame->commands.empty());
    EXPECT_TRUE(Button(0, 1).hooks.empty());
}

TEST_F(RibbonContextMenu, AMenuThatWasDestroyedIsNone) {
    const HMENU gone = ::CreatePopupMenu();
    Bar().setHMenu(gone);
    ::DestroyMenu(gone);
    EXPECT_FALSE(Show(&Button(0, 1)));
    PumpPending();
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(RibbonContextMenu, ANumberThatNeverWasAMenuIsNone) {
    for (const std::uintptr_t number : {std::uintptr_t{1}, std::uintptr_t{0x12345678}, ~std::uintptr_t{0}}) {
        Bar().setHMenu(reinterpret_cast<HMENU>(number));
        EXPECT_FALSE(Show(&Button(0, 1))) << number;
    }
    PumpPending();
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(RibbonContextMenu, WithoutAMainWindowThereIsNoMenu) {
    const fx::ScopedChange none(AfxGetApp()->m_pMainWnd, nullptr);
    const fx::ScopedChange threads(AfxGetThread()->m_pMainWnd, nullptr);
    EXPECT_FALSE(Show(&Button(0, 1)));
    EXPECT_TRUE(Button(0, 1).hooks.empty());
}

// ---- hosts that end things

TEST_F(RibbonContextMenu, AWindowThatIsDestroyedWhileTheMenuIsOpenIsNotTouched) {
    WhileOpen([this] { m_frame->DestroyWindow(); });
    EXPECT_FALSE(Show(&Button(0, 1)));
    EXPECT_FALSE(IsAlive());
}

TEST_F(RibbonContextMenu, AnElementThatGoesWhileTheMenuIsOpenIsNotTouched) {
    WhileOpen([this] {
        Bar().RemoveAllCategories();
        Choose(1);
    });
    EXPECT_FALSE(Show(&Button(0, 1)));
    PumpPending();
    EXPECT_EQ(m_frame->commands, (std::vector<SentCommand>{{kFirstRow, 0, nullptr, true}}));
}

TEST_F(RibbonContextMenu, AnElementThatGoesInItsHookSendsNothing) {
    Button(0, 1).onHook = [this] { Bar().RemoveCategory(0); };
    Choose(0);
    EXPECT_FALSE(Show(&Button(0, 1)));
    PumpPending();
    EXPECT_EQ(CountCommands(ButtonId(0, 1)), 0);
    EXPECT_EQ(CountCommands(0), 1);
}

TEST_F(RibbonContextMenu, AWindowThatTheElementsCommandDestroysIsNotTouched) {
    m_frame->onCommand = [this](const SentCommand& command) {
        if (command.id == ButtonId(0, 1)) {
            m_frame->DestroyWindow();
        }
    };
    Choose(0);
    EXPECT_FALSE(Show(&Button(0, 1)));
    EXPECT_FALSE(IsAlive());
}

TEST_F(RibbonContextMenu, AnElementThatItsCommandRemovesIsNotTouched) {
    m_frame->onCommand = [this](const SentCommand& command) {
        if (command.id == ButtonId(0, 1)) {
            Bar().RemoveCategory(0);
        }
    };
    Choose(0);
    EXPECT_FALSE(Show(&Button(0, 1)));
    EXPECT_EQ(CountCommands(ButtonId(0, 1)), 1);
}

// ---- by the mouse and by the key

/// Notes what is asked for instead of showing it.
class AskedBar : public CMFCRibbonBarEx {
public:
    AskedBar() : CMFCRibbonBarEx(TRUE) {}
    struct Asked {
        CWnd* window;
        CPoint at;
        CMFCRibbonBaseElement* hit;
    };
    std::vector<Asked> asked;
    std::function<void()> onAsked;

    BOOL OnShowRibbonContextMenu(CWnd* pWnd, int x, int y, CMFCRibbonBaseElement* pHit) override {
        asked.push_back({pWnd, CPoint(x, y), pHit});
        if (onAsked) {
            const auto heard = onAsked;
            heard();
        }
        return FALSE;
    }
    CRect Caption() const { return m_rectCaption; }
};

class AskedFrame : public CFrameWndEx {
public:
    AskedBar bar;
};

class PaneContextMenu : public testing::Test {
protected:
    PaneContextMenu() : m_frame(new AskedFrame) {
        EXPECT_TRUE(m_frame->Create(nullptr, L"Asked", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 900, 500)));
        m_window = m_frame->GetSafeHwnd();
        EXPECT_TRUE(Bar().Create(m_frame));
        m_button = new WatchedButton(1000, L"Button");
        m_panel = Bar().AddCategory(L"Home", 0, 0)->AddPanel(L"Panel");
        m_panel->Add(m_button);
        m_frame->RecalcLayout();
        Bar().ForceRecalcLayout();
        PumpPending();
    }
    ~PaneContextMenu() override {
        if (::IsWindow(m_window)) {
            m_frame->DestroyWindow();
        }
        PumpPending();
    }
    AskedBar& Bar() { return m_frame->bar; }
    void AskAt(CPoint client) {
        Bar().ClientToScreen(&client);
        Bar().OnPaneContextMenu(m_frame, client);
    }
    AskedFrame* m_frame;
    HWND m_window = nullptr;
    CMFCRibbonPanel* m_panel = nullptr;
    WatchedButton* m_button = nullptr;
};

TEST_F(PaneContextMenu, TheMouseAsksForTheMenuOfTheElementUnderIt) {
    const CPoint at = CRect(m_button->GetRect()).CenterPoint();
    AskAt(at);
    ASSERT_EQ(Bar().asked.size(), 1u);
    CPoint screen = at;
    Bar().ClientToScreen(&screen);
    EXPECT_EQ(Bar().asked[0].window, &Bar());
    EXPECT_EQ(Bar().asked[0].at, screen);
    EXPECT_EQ(Bar().asked[0].hit, m_button);
}

TEST_F(PaneContextMenu, OnTheCaptionBesideEverythingThereIsNoMenu) {
    const CRect caption = Bar().Caption();
    ASSERT_FALSE(caption.IsRectEmpty());
    const CPoint inTitle = caption.CenterPoint();
    ASSERT_EQ(Bar().HitTest(inTitle, TRUE, TRUE), nullptr);
    AskAt(inTitle);
    EXPECT_TRUE(Bar().asked.empty());
}

TEST_F(PaneContextMenu, AnElementOnTheCaptionHasTheMenu) {
    Bar().setPath(L"all", 0, 5, {1000});
    Bar().ShowPath(L"all");
    const CPoint tab = CRect(Bar().GetCategory(0)->GetTabRect()).CenterPoint();
    ASSERT_NE(Bar().HitTest(tab), nullptr); // lays the bar out
    const CPoint at = Bar().GetQATCommandsLocation().CenterPoint();
    CMFCRibbonBaseElement* const hit = Bar().HitTest(at, TRUE, TRUE);
    ASSERT_NE(hit, nullptr);
    ASSERT_TRUE(Bar().Caption().PtInRect(at));
    AskAt(at);
    ASSERT_EQ(Bar().asked.size(), 1u);
    EXPECT_EQ(Bar().asked[0].hit, hit);
}

TEST_F(PaneContextMenu, BesideTheCaptionTheBarItselfHasTheMenu) {
    const CRect tab = Bar().GetCategory(0)->GetTabRect();
    const CPoint beside(tab.right + 200, tab.CenterPoint().y);
    ASSERT_EQ(Bar().HitTest(beside, TRUE, TRUE), nullptr);
    AskAt(beside);
    ASSERT_EQ(Bar().asked.size(), 1u);
    EXPECT_EQ(Bar().asked[0].hit, nullptr);
}

TEST_F(PaneContextMenu, TheMouseEndsTheKeyboardsWay) {
    Bar().SetKeyboardNavigationLevel(nullptr);
    Bar().ShowKeyTips();
    ASSERT_EQ(Bar().GetKeyboardNavigationLevel(), 0);
    AskAt(CRect(m_button->GetRect()).CenterPoint());
    EXPECT_EQ(Bar().GetKeyboardNavigationLevel(), -1);
}

TEST_F(PaneContextMenu, TheKeyAsksForTheMenuOfTheFocusedElement) {
    m_button->SetFocused(TRUE);
    ASSERT_EQ(Bar().GetFocused(), m_button);
    ::SetFocus(Bar().GetSafeHwnd());
    Bar().OnPaneContextMenu(m_frame, CPoint(-1, -1));
    ASSERT_EQ(Bar().asked.size(), 1u);
    CRect rect = m_button->GetRect();
    Bar().ClientToScreen(rect);
    EXPECT_EQ(Bar().asked[0].window, &Bar());
    EXPECT_EQ(Bar().asked[0].at, CPoint(rect.left, rect.bottom));
    EXPECT_EQ(Bar().asked[0].hit, m_button);
    EXPECT_EQ(::GetFocus(), m_frame->GetSafeHwnd()) << "the focus is the frame's again";
}

TEST_F(PaneContextMenu, TheKeyWithoutAFocusedElementDoesNothing) {
    ASSERT_EQ(Bar().GetFocused(), nullptr);
    ::SetFocus(Bar().GetSafeHwnd());
    Bar().OnPaneContextMenu(m_frame, CPoint(-1, -1));
    EXPECT_TRUE(Bar().asked.empty());
    EXPECT_EQ(::GetFocus(), Bar().GetSafeHwnd());
}

TEST_F(PaneContextMenu, AFrameThatIsDestroyedMeanwhileGetsNoFocus) {
    m_button->SetFocused(TRUE);
    Bar().onAsked = [this] { m_frame->DestroyWindow(); };
    Bar().OnPaneContextMenu(m_frame, CPoint(-1, -1));
    EXPECT_FALSE(::IsWindow(m_window));
}

} // namespace

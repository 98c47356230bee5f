// Items, menus, bars and frames that go while pop-ups show them.
#include "tests/support/churn_memory.h"
#include "tests/ui/popup_menu/menu_frame.h"

namespace {

class PopupMenuReloadTest : public PopupMenuTest {
protected:
    /// A menu with a pop-up and that one's pop-up open.
    CMFCPopupMenu* OpenThree() {
        CMFCPopupMenu* menu = Open();
        CMFCPopupMenu* child = menu ? OpenChild(menu, L"&Recent") : nullptr;
        return child && OpenChild(child, L"&More") ? menu : nullptr;
    }
    /// The menu still works: its first item is chosen by the keyboard.
    void ExpectFirstItemWorks() {
        Keys keys(m_window);
        keys.Press(VK_HOME);
        keys.Press(VK_RETURN);
        PumpPending();
        EXPECT_EQ(m_frame->commands, std::vector<UINT>{menu_ids::open});
    }
};

/// What the frame may do, each while something of the menu is running.
struct Deed {
    const char* name;
    void (*act)(CWnd& frame);
};

const Deed deeds[] = {
    {"closes all", [](CWnd&) { CMFCPopupMenu::CloseAll(); }},
    {"empties the menu",
     [](CWnd&) {
         if (CMFCPopupMenu* menu = CMFCPopupMenu::GetActiveMenu()) {
             menu->RemoveAllItems();
         }
     }},
    {"ends", [](CWnd& frame) { frame.DestroyWindow(); }},
};

class HostilePopupMenuTest : public PopupMenuTest, public ::testing::WithParamInterface<Deed> {
protected:
    std::function<void()> Host() {
        return [this] {
            GetParam().act(*m_frame);
            ChurnMemory();
        };
    }
};

} // namespace

TEST_F(PopupMenuReloadTest, AMenuThatIsFilledAnewClosesWhatItsItemsHadOpened) {
    CMFCPopupMenu* menu = OpenThree();
    ASSERT_NE(menu, nullptr);
    const HMENU other = MakeMenu();
    EXPECT_TRUE(menu->GetMenuBar()->ImportFromMenu(other));
    ::DestroyMenu(other);
    ChurnMemory();
    EXPECT_EQ(Active(), menu);
    EXPECT_EQ(menu->GetChildPopupMenu(), nullptr);
    ExpectFirstItemWorks();
}

TEST_F(PopupMenuReloadTest, AnEmptiedMenuClosesWhatItsItemsHadOpened) {
    CMFCPopupMenu* menu = OpenThree();
    ASSERT_NE(menu, nullptr);
    menu->RemoveAllItems();
    ChurnMemory();
    EXPECT_EQ(Active(), menu);
    Keys keys(m_window);
    for (const UINT key : {VK_DOWN, VK_RIGHT, VK_RETURN, VK_END}) {
        keys.Press(key);
    }
    EXPECT_EQ(Active(), menu);
}

TEST_F(PopupMenuReloadTest, TheSystemsMenuMayGoWhileItIsShown) {
    const HMENU handle = MakeMenu();
    auto* menu = new CMFCPopupMenu;
    menu->SetAutoDestroy(FALSE);
    ASSERT_TRUE(menu->Create(m_frame, 200, 150, handle));
    ASSERT_NE(OpenChild(menu, L"&Recent"), nullptr);
    ::DestroyMenu(handle);
    menu->GetChildPopupMenu()->CloseMenu();
    ASSERT_NE(OpenChild(menu, L"&Recent"), nullptr) << "the items are the bar's own";
    Active()->CloseMenu();
    ExpectFirstItemWorks();
}

TEST_P(HostilePopupMenuTest, WhenAnItemIsAskedForItsState) {
    CMFCPopupMenu* menu = Open();
    ASSERT_NE(menu, nullptr);
    m_frame->onUpdate = Host();
    menu->GetMenuBar()->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    PumpPending();
}

TEST_P(HostilePopupMenuTest, WhenAnItemBecomesHotUnderThePointer) {
    CMFCPopupMenu* menu = Open();
    ASSERT_NE(menu, nullptr);
    m_frame->onSelect = Host();
    m_pointer.MoveTo(menu->GetMenuBar()->m_hWnd, CenterOf(menu, 2));
    PumpPending();
}

TEST_P(HostilePopupMenuTest, WhenALetterChoosesAnItem) {
    CMFCPopupMenu* menu = Open();
    ASSERT_NE(menu, nullptr);
    m_frame->onSelect = Host();
    menu->OnChainKey(WM_CHAR, L'r');
    PumpPending();
}

TEST_P(HostilePopupMenuTest, WhenAPopupOpens) {
    CMFCPopupMenu* menu = Open();
    ASSERT_NE(menu, nullptr);
    m_frame->onShow = Host();
    m_pointer.MoveTo(menu->GetMenuBar()->m_hWnd, CenterOf(menu, 2));
    m_pointer.Press();
    PumpPending();
}

TEST_P(HostilePopupMenuTest, WhenAPopupCloses) {
    CMFCPopupMenu* menu = Open();
    ASSERT_NE(menu, nullptr);
    ASSERT_NE(OpenChild(menu, L"&Recent"), nullptr);
    m_frame->onClose = Host();
    Keys(m_window).Press(VK_LEFT);
    PumpPending();
}

INSTANTIATE_TEST_SUITE_P(Frame, HostilePopupMenuTest, ::testing::ValuesIn(deeds), [](const auto& info) {
    std::string name = info.param.name;
    std::erase(name, ' ');
    return name;
});

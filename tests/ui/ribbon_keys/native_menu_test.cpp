// A frame whose resource has a menu: the ribbon stands for it.
#include "tests/ui/ribbon_keys/keyboard_fixture.h"

#include "afxMDIChildWndEx.h"
#include "afxMDIFrameWndEx.h"
#include "tests/ui/ribbon_keys/resource.h"

namespace {

/// A frame with the menu of its resource and a ribbon bar of one tab.
template <class Base>
class FrameWithMenu : public Base {
public:
    CMFCRibbonBar bar;
    HMENU menu = nullptr;

    static FrameWithMenu* Make() {
        auto* frame = new FrameWithMenu;
        EXPECT_TRUE(frame->LoadFrame(IDR_FRAME_MENU, WS_OVERLAPPEDWINDOW));
        frame->ShowWindow(SW_SHOW);
        frame->SetForegroundWindow();
        frame->SetFocus();
        PumpPending();
        return frame;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT result = Base::WindowProc(message, wParam, lParam);
        if (message == WM_CREATE) {
            menu = ::GetMenu(this->m_hWnd);
            bar.Create(this);
            bar.AddCategory(L"Home", 0, 0)->AddPanel(L"Panel")->Add(new CMFCRibbonButton(commands::find, L"Find"));
        }
        return result;
    }
};

class NativeMenuTest : public KeyboardTest {};

TEST_F(NativeMenuTest, IsNotShownAndAltBringsKeyTips) {
    auto* frame = FrameWithMenu<CFrameWndEx>::Make();
    ASSERT_NE(frame->menu, nullptr);
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
    Press(VK_MENU);
    EXPECT_EQ(frame->bar.GetKeyboardNavigationLevel(), 0);
    EXPECT_EQ(ShownTips(), std::vector<std::wstring>{L"H"});
    Press(VK_ESCAPE);
    frame->OnUpdateFrameMenu(nullptr);
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr) << "a document's frame menu does not bring it back";
    const HMENU menu = frame->menu;
    frame->DestroyWindow();
    EXPECT_FALSE(::IsMenu(menu)) << "the frame's menu goes with the frame";
}

TEST_F(NativeMenuTest, ComesBackWhereTheHostShowsItAndHasAltThen) {
    auto* frame = FrameWithMenu<CFrameWndEx>::Make();
    EXPECT_TRUE(frame->SetMenuBarState(AFX_MBS_VISIBLE));
    EXPECT_EQ(::GetMenu(frame->m_hWnd), frame->menu);
    EXPECT_FALSE(frame->bar.OnSysKeyDown(frame, VK_F10, 1));
    frame->DestroyWindow();
}

TEST_F(NativeMenuTest, DoesNotComeWithAChildOfAnMdiFrame) {
    auto* frame = FrameWithMenu<CMDIFrameWndEx>::Make();
    ASSERT_NE(frame->menu, nullptr);
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
    auto* child = new CMDIChildWndEx;
    ASSERT_TRUE(
        child->Create(nullptr, L"Child", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, CRect(0, 0, 200, 100), frame));
    PumpPending();
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
    child->OnUpdateFrameMenu(nullptr);
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
    child->DestroyWindow();
    PumpPending();
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
    Press(VK_MENU);
    EXPECT_EQ(frame->bar.GetKeyboardNavigationLevel(), 0);
    Press(VK_ESCAPE);
    const HMENU menu = frame->menu;
    frame->DestroyWindow();
    EXPECT_FALSE(::IsMenu(menu));
}

} // namespace

// The keyboard inside pop-ups.
#include <gmock/gmock.h>

#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PopupKeys : public RibbonPopupTest {
protected:
    CMFCRibbonBaseElement* Hot() { return PopupBar().GetHighlighted(); }
};

TEST_F(PopupKeys, ArrowsWalkThroughRowsAndGoRound) {
    Click(Shapes());
    Press(VK_DOWN);
    EXPECT_EQ(Hot(), &SubItem(0));
    Press(VK_DOWN);
    Press(VK_DOWN);
    EXPECT_EQ(Hot(), &SubItem(3)) << "not the separator";
    Press(VK_DOWN);
    Press(VK_DOWN);
    EXPECT_EQ(Hot(), &SubItem(0)) << "not the hidden row";
    Press(VK_UP);
    EXPECT_EQ(Hot(), &SubItem(4));
    Press(VK_HOME);
    EXPECT_EQ(Hot(), &SubItem(0));
    Press(VK_END);
    EXPECT_EQ(Hot(), &SubItem(4));
    Press(VK_TAB);
    EXPECT_EQ(Hot(), &SubItem(0));
}

TEST_F(PopupKeys, EnterAndSpaceChooseOnce) {
    Click(Shapes());
    Press(VK_DOWN);
    Press(VK_RETURN);
    EXPECT_THAT(m_frame->commands, ElementsAre(kLine));
    EXPECT_EQ(OpenCount(), 0);
    Click(Shapes());
    Press(VK_DOWN);
    Press(VK_DOWN);
    Press(VK_SPACE);
    EXPECT_THAT(m_frame->commands, ElementsAre(kLine, kStar));
}

TEST_F(PopupKeys, EnterOnADisabledRowDoesNothing) {
    Click(Shapes());
    Press(VK_END);
    Press(VK_RETURN);
    EXPECT_THAT(m_frame->commands, IsEmpty());
    EXPECT_EQ(OpenCount(), 1);
}

TEST_F(PopupKeys, RightOpensANestedMenuAndLeftAndEscapeCloseOneLevel) {
    Click(Shapes());
    SubItem(3).SetDefaultCommand(); // the arrow opens a split row as well
    PopupBar().Highlight(&SubItem(3));
    Press(VK_RIGHT);
    ASSERT_EQ(OpenCount(), 2);
    EXPECT_EQ(Hot(), SubItem(3).GetSubItems()[0]) << "the first row is chosen";
    Press(VK_LEFT);
    EXPECT_EQ(OpenCount(), 1);
    EXPECT_EQ(Hot(), &SubItem(3));
    Press(VK_RIGHT);
    Press(VK_ESCAPE);
    EXPECT_EQ(OpenCount(), 1);
    Press(VK_ESCAPE);
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(PopupKeys, AMnemonicChoosesAndAFirstLetterChoosesWhenItIsTheOnlyOne) {
    SubItem(1).SetKeys(L"", L"X");
    Click(Shapes());
    Keys(m_window).Type(L"x");
    EXPECT_THAT(m_frame->commands, ElementsAre(kStar));
    Click(Shapes());
    Keys(m_window).Type(L"l");
    EXPECT_THAT(m_frame->commands, ElementsAre(kStar, kLine));
}

TEST_F(PopupKeys, ALetterThatSeveralRowsShareWalksThroughThem) {
    SubItem(0).SetText(L"Spline");
    Click(Shapes());
    Keys(m_window).Type(L"s");
    EXPECT_EQ(Hot(), &SubItem(0));
    Keys(m_window).Type(L"s");
    EXPECT_EQ(Hot(), &SubItem(1));
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(PopupKeys, AKeyThatSeveralRowsShareWalksThroughThem) {
    SubItem(0).SetKeys(L"", L"X");
    SubItem(1).SetKeys(L"", L"X");
    Click(Shapes());
    Keys(m_window).Type(L"x");
    EXPECT_EQ(Hot(), &SubItem(0));
    Keys(m_window).Type(L"x");
    EXPECT_EQ(Hot(), &SubItem(1));
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(PopupKeys, AltClosesEverything) {
    Click(Shapes());
    PopupBar().Highlight(&SubItem(3));
    Press(VK_RIGHT);
    Press(VK_MENU);
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(PopupKeys, KeysDoNotReachTheHostWhileAPopupIsOpen) {
    struct Listener : CWnd {
        int keys = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            keys += message == WM_KEYDOWN || message == WM_CHAR ? 1 : 0;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } listener;
    ASSERT_TRUE(
        listener.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 300, 10, 310), m_frame, 77));
    Click(Shapes());
    Keys keys(listener);
    keys.Press(VK_DOWN);
    keys.Press('Q');
    keys.Type(L"q");
    EXPECT_EQ(listener.keys, 0);
    CMFCRibbonPanelMenu::DismissAll();
    keys.Press(VK_DOWN);
    EXPECT_EQ(listener.keys, 1);
}

TEST_F(PopupKeys, ArrowsInACollapsedPanelGoToTheNearestElement) {
    CMFCRibbonPanel& panel = OpenCollapsedPanel();
    Press(VK_RIGHT);
    EXPECT_EQ(Hot(), panel.GetElement(0)) << "the first key shows where the keyboard is";
    Press(VK_RIGHT);
    EXPECT_GE(Hot()->GetRect().left, panel.GetElement(0)->GetRect().right);
    Press(VK_LEFT);
    EXPECT_EQ(Hot(), panel.GetElement(0));
    Press(VK_RETURN);
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
}

} // namespace

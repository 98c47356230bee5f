// A click on the tab of an extended category is a command; every other click is the framework's.
#include "tests/ui/ribbon_bar_ex/extended_bar.h"

namespace {

class TabClicks : public ExtendedBarTest {
protected:
    void Press(CPoint client) {
        m_pointer.MoveTo(Bar(), client);
        m_pointer.Press();
        m_pointer.Release();
    }
};

TEST_F(TabClicks, AClickOnAnExtendedTabPostsItsCommandToTheOwner) {
    Press(TabOf(2));
    EXPECT_TRUE(m_frame->commands.empty()) << "posted, not sent";
    PumpPending();
    EXPECT_EQ(m_frame->commands, (std::vector<SentCommand>{{7002, 0, nullptr, true}}));
}

TEST_F(TabClicks, AClickOnAnExtendedTabDoesNotActivateIt) {
    Press(TabOf(4));
    PumpPending();
    EXPECT_EQ(Shown(), "[0]12345");
    EXPECT_NE(::GetCapture(), Bar().GetSafeHwnd()) << "the press is not the framework's";
}

TEST_F(TabClicks, AClickOnAnOrdinaryTabActivatesItAndSendsNothing) {
    Press(TabOf(3));
    PumpPending();
    EXPECT_EQ(Shown(), "012[3]45");
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(TabClicks, AClickOnTheActiveExtendedTabIsACommandToo) {
    Bar().SetActiveCategory(Bar().GetCategory(2));
    LayOut();
    Press(TabOf(2));
    PumpPending();
    EXPECT_EQ(m_frame->commands, (std::vector<SentCommand>{{7002, 0, nullptr, true}}));
}

TEST_F(TabClicks, AnExtendedTabWithoutAnIdPostsZero) {
    static_cast<CMFCRibbonCategoryEx*>(Bar().GetCategory(2))->SetID(0);
    Press(TabOf(2));
    PumpPending();
    EXPECT_EQ(m_frame->commands, (std::vector<SentCommand>{{0, 0, nullptr, true}}));
}

TEST_F(TabClicks, AnExtendedTabWhoseIdNoMessageCanCarryPostsNothing) {
    static_cast<CMFCRibbonCategoryEx*>(Bar().GetCategory(2))->SetID(0x10000 + 7003);
    Press(TabOf(2));
    PumpPending();
    EXPECT_TRUE(m_frame->commands.empty()) << "least of all the command of the low 16 bits";
}

TEST_F(TabClicks, TheOwnerThatWasSetGetsTheCommandInsteadOfTheParent) {
    auto* const other = new ExtendedBarFrame;
    ASSERT_TRUE(other->Create(nullptr, L"Other", WS_OVERLAPPEDWINDOW, CRect(0, 0, 100, 100)));
    Bar().SetOwner(other);
    Press(TabOf(2));
    PumpPending();
    EXPECT_EQ(other->commands, (std::vector<SentCommand>{{7002, 0, nullptr, true}}));
    EXPECT_TRUE(m_frame->commands.empty());
    Bar().SetOwner(m_frame);
    other->DestroyWindow();
}

TEST_F(TabClicks, WithoutAnOwnerTheParentGetsTheCommand) {
    Bar().SetOwner(nullptr);
    Press(TabOf(2));
    PumpPending();
    EXPECT_EQ(m_frame->commands, (std::vector<SentCommand>{{7002, 0, nullptr, true}}));
}

TEST_F(TabClicks, ButtonsOfAnExtendedCategorySendTheirOwnCommand) {
    Bar().SetActiveCategory(Bar().GetCategory(2));
    LayOut();
    Press(CRect(Button(2, 1).GetRect()).CenterPoint());
    PumpPending();
    ASSERT_EQ(m_frame->commands.size(), 1u);
    EXPECT_EQ(m_frame->commands[0].id, ButtonId(2, 1));
}

TEST_F(TabClicks, ACopyOfItsButtonOnTheQuickAccessToolbarSendsTheButtonsCommand) {
    Bar().setPath(L"all", 0, 5, {ButtonId(2, 0)});
    Bar().ShowPath(L"all");
    LayOut();
    const CRect copies = Bar().GetQATCommandsLocation();
    ASSERT_FALSE(copies.IsRectEmpty());
    Press(CPoint(copies.left + copies.Width() / 2, copies.CenterPoint().y));
    PumpPending();
    ASSERT_EQ(m_frame->commands.size(), 1u);
    EXPECT_EQ(m_frame->commands[0].id, ButtonId(2, 0));
}

TEST_F(TabClicks, AHostThatEndsItsWindowOnTheCommandMayDoSo) {
    m_frame->onCommand = [this](const SentCommand&) { m_frame->DestroyWindow(); };
    Press(TabOf(2));
    PumpPending();
    EXPECT_FALSE(IsAlive());
}

TEST_F(TabClicks, AHostSwitchesThePathOnTheCommand) {
    Bar().setPath(L"edit", 2, 4, {});
    const std::set<std::wstring> names = {L"C2"};
    m_frame->onCommand = [&](const SentCommand& command) {
        EXPECT_TRUE(command.id == 7002 && Bar().ShowPath(L"edit", &names));
    };
    Press(TabOf(2));
    PumpPending();
    EXPECT_EQ(Shown(), "[2]34");
}

} // namespace

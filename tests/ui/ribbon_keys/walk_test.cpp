#include "tests/ui/ribbon_keys/keyboard_fixture.h"

#include <gmock/gmock.h>

#include <deque>
#include <set>
#include <utility>

#include "afxRibbonEdit.h"
#include "afxribbonpanelmenu.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class FocusWalkTest : public KeyboardTest {
protected:
    void Start() { Press({VK_MENU}); }
};

TEST_F(FocusWalkTest, AltGivesTheFocusToTheActiveTabAndAnArrowHidesTheTips) {
    Start();
    EXPECT_EQ(FocusedText(), L"Home");
    Press(VK_RIGHT);
    EXPECT_THAT(ShownTips(), IsEmpty());
    EXPECT_EQ(FocusedText(), L"View");
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(1));
    EXPECT_EQ(m_frame->categoryChanges, 1);
    Press(VK_LEFT);
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(0));
}

TEST_F(FocusWalkTest, AStepToAnotherTabTakesTheFocusFromTheFormerOne) {
    Start();
    Press(VK_RIGHT);
    EXPECT_FALSE(Bar().GetCategory(0)->GetTab().IsFocused());
    EXPECT_TRUE(Bar().GetCategory(1)->GetTab().IsFocused());
    Press({VK_DOWN, VK_ESCAPE, VK_ESCAPE, VK_ESCAPE});
    for (int index = 0; index < Bar().GetCategoryCount(); ++index) {
        EXPECT_FALSE(Bar().GetCategory(index)->GetTab().IsFocused()) << index;
    }
    EXPECT_EQ(FocusedText(), L"");
}

TEST_F(FocusWalkTest, ACategoryThatIsChangedMeanwhileKeepsNoFocus) {
    Start();
    Press(VK_DOWN);
    ASSERT_TRUE(Element(commands::paste).IsFocused());
    Bar().SetActiveCategory(Bar().GetCategory(1));
    Press({VK_ESCAPE, VK_ESCAPE});
    EXPECT_FALSE(Element(commands::paste).IsFocused());
    EXPECT_FALSE(Bar().GetCategory(0)->GetTab().IsFocused());
}

TEST_F(FocusWalkTest, HomeAndEndGoToTheFirstAndLastTab) {
    Start();
    Press(VK_END);
    EXPECT_EQ(FocusedText(), L"View");
    Press(VK_HOME);
    EXPECT_EQ(FocusedText(), L"Home");
}

TEST_F(FocusWalkTest, DownGoesIntoThePanelsAndUpBackToTheTab) {
    Start();
    Press(VK_DOWN);
    EXPECT_EQ(FocusedText(), L"Paste");
    EXPECT_TRUE(Element(commands::paste).IsFocused());
    Press(VK_UP);
    EXPECT_EQ(FocusedText(), L"Home");
}

TEST_F(FocusWalkTest, EnterAndSpaceSendTheCommandAndGiveTheFocusBack) {
    Start();
    Press({VK_DOWN, VK_RETURN});
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
    EXPECT_EQ(::GetFocus(), Document());
    EXPECT_EQ(FocusedText(), L"");
    Start();
    Press({VK_DOWN, VK_SPACE});
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste, commands::paste));
}

TEST_F(FocusWalkTest, EscapeLeaves) {
    Start();
    Press({VK_DOWN, VK_ESCAPE});
    EXPECT_EQ(::GetFocus(), Document());
    EXPECT_EQ(FocusedText(), L"");
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(FocusWalkTest, TabGoesThroughTheBarAndShiftTabBack) {
    Start();
    std::vector<std::wstring> forward{FocusedText()};
    for (int step = 0; step < 12; ++step) {
        Press(VK_TAB);
        forward.push_back(FocusedText());
    }
    EXPECT_THAT(forward, ElementsAre(L"Home", L"Paste", L"Cut", L"Copy", L"Format Painter", L"", L"", L"Size:", L"",
                                     L"Options", L"Home", L"Paste", L"Cut"));
    for (auto expected = forward.rbegin() + 1; expected != forward.rend(); ++expected) {
        Chord(VK_SHIFT, VK_TAB);
        EXPECT_EQ(FocusedText(), *expected);
    }
}

TEST_F(FocusWalkTest, TheMoreButtonIsAStopAndEnterOpensTheRest) {
    FillQuickAccess(40);
    Start();
    Chord(VK_SHIFT, VK_TAB);
    ASSERT_TRUE(Bar().GetFocused()->IsKindOf(RUNTIME_CLASS(CMFCRibbonQuickAccessCustomizeButton)));
    Chord(VK_SHIFT, VK_TAB);
    ASSERT_TRUE(Bar().GetFocused()->IsKindOf(RUNTIME_CLASS(CMFCRibbonQuickAccessMoreButton)));
    Press(VK_RETURN);
    ASSERT_NE(CMFCRibbonPanelMenu::GetDeepest(), nullptr);
    EXPECT_TRUE(
        CMFCRibbonPanelMenu::GetDeepest()->GetOpener()->IsKindOf(RUNTIME_CLASS(CMFCRibbonQuickAccessMoreButton)));
    CMFCRibbonPanelMenu::DismissAll();
    PumpPending();
}

TEST_F(FocusWalkTest, AnEditKeepsItsArrowsAcrossAndTabLeadsOn) {
    Start();
    Press(VK_DOWN);
    while (Bar().GetFocused() != &Element(commands::size)) {
        ASSERT_NE(FocusedText(), L"Home") << "went round";
        Press(VK_TAB);
    }
    auto& edit = static_cast<CMFCRibbonEdit&>(Element(commands::size));
    ASSERT_EQ(::GetFocus(), edit.GetEditWnd()->GetSafeHwnd());
    Press({VK_END, '7', VK_LEFT, VK_HOME, '5'});
    EXPECT_EQ(edit.GetEditText(), L"5127");
    EXPECT_THAT(m_frame->commands, IsEmpty());
    Press(VK_TAB);
    EXPECT_EQ(Bar().GetFocused(), &Element(commands::zoom));
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::size)) << "a text that is left is sent";
    EXPECT_EQ(::GetFocus(), Bar().GetSafeHwnd());
}

TEST_F(FocusWalkTest, F6LeavesForTheNextPane) {
    Start();
    Press({VK_DOWN, VK_F6});
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(FocusWalkTest, WhatHasTheFocusLooksDifferent) {
    Start();
    Press(VK_DOWN);
    const auto paint = [this] {
        CRect client;
        Bar().GetClientRect(client);
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        CBitmap bitmap;
        bitmap.CreateBitmap(client.Width(), client.Height(), 1, 32, nullptr);
        CBitmap* former = dc.SelectObject(&bitmap);
        Bar().DoPaint(&dc);
        const CRect paste = Element(commands::paste).GetRect();
        std::vector<COLORREF> pixels;
        for (int x = paste.left; x < paste.right; ++x) {
            pixels.push_back(dc.GetPixel(x, paste.top + 2));
        }
        dc.SelectObject(former);
        return pixels;
    };
    const std::vector<COLORREF> focused = paint();
    Press(VK_ESCAPE);
    EXPECT_NE(paint(), focused);
}

TEST_F(FocusWalkTest, AMinimisedBarLetsTheArrowsChangeTheCategory) {
    Bar().ToggleMimimizeState();
    Start();
    Press({VK_RIGHT});
    EXPECT_EQ(FocusedText(), L"View");
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(1));
    Press(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(FocusWalkTest, TheHandlerOfATextThatIsLeftMayDestroyTheFrame) {
    auto* edit = new CMFCRibbonEdit(commands::closesFrame, 60, L"Name:");
    Bar().GetCategory(1)->GetPanel(0)->Insert(edit, 0);
    Start();
    Press({VK_RIGHT, VK_DOWN, 'X'});
    ASSERT_EQ(edit->GetEditText(), L"x");
    Press(VK_TAB);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(FocusWalkTest, EveryCommandOfABigRandomRibbonIsReachedByArrowsAlone) {
    using Position = std::pair<CMFCRibbonCategory*, CMFCRibbonBaseElement*>;
    for (const unsigned seed : {3u, 4u}) {
        const std::set<UINT> ids = FillAtRandom(seed, 5);
        Start();
        const auto here = [this] { return Position(Bar().GetActiveCategory(), Bar().GetFocused()); };
        std::set<Position> found{here()};
        std::deque<Position> open{here()};
        std::set<UINT> reached;
        while (!open.empty()) {
            const Position from = open.front();
            open.pop_front();
            for (const UINT arrow : {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN}) {
                // Back to where an arrow led before; the step from there is a real key.
                Bar().GetFocused()->SetFocused(FALSE);
                Bar().SetActiveCategory(from.first);
                Bar().EnsureLayout();
                from.second->SetFocused(TRUE);
                Press(arrow);
                ASSERT_NE(Bar().GetFocused(), nullptr);
                if (found.insert(here()).second) {
                    open.push_back(here());
                    reached.insert(Bar().GetFocused()->GetID());
                }
            }
        }
        reached.erase(0); // the tabs
        EXPECT_EQ(reached, ids);
        Press(VK_ESCAPE);
        EXPECT_EQ(::GetFocus(), Document());
    }
}

} // namespace

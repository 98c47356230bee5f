// F6 through ribbon, panes and document.
#include "tests/ui/ribbon_keys/keyboard_fixture.h"

#include <gmock/gmock.h>

#include "afxPane.h"
#include "afxRibbonEdit.h"

using ::testing::ElementsAre;

namespace {

/// A strip at the bottom with one edit in it.
class EditPane : public CPane {
public:
    bool Make(CWnd* frame, UINT id) {
        return Create(nullptr, WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, CRect(0, 0, 1, 1), frame, id) &&
               edit.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(2, 2, 90, 20), this, 1);
    }
    CSize CalcFixedLayout(BOOL, BOOL) override { return {32767, 24}; }

    CEdit edit;
};

class PaneRingTest : public KeyboardTest {
protected:
    void Back() { Chord(VK_SHIFT, VK_F6); }
    bool IsInRibbon() { return ::GetFocus() == Bar().GetSafeHwnd(); }
};

TEST_F(PaneRingTest, F6GoesFromTheDocumentToTheActiveTabAndBack) {
    Bar().SetActiveCategory(Bar().GetCategory(1));
    Press(VK_F6);
    EXPECT_TRUE(IsInRibbon());
    EXPECT_EQ(FocusedText(), L"View");
    EXPECT_FALSE(AreTipsShown());
    Press({VK_DOWN, VK_RETURN});
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::find)) << "the arrows lead on from there";
    EXPECT_EQ(::GetFocus(), Document());
    Press({VK_F6, VK_F6});
    EXPECT_EQ(::GetFocus(), Document());
    EXPECT_EQ(FocusedText(), L"");
}

TEST_F(PaneRingTest, EscapeReturnsToWhereF6CameFrom) {
    Press({VK_F6, VK_ESCAPE});
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(PaneRingTest, F6GoesRoundThroughThePanesAndShiftF6TheOtherWay) {
    EditPane first;
    EditPane second;
    ASSERT_TRUE(first.Make(m_frame, 901) && second.Make(m_frame, 902));
    PumpPending();
    const HWND ring[] = {Bar().GetSafeHwnd(), first.edit.GetSafeHwnd(), second.edit.GetSafeHwnd(), Document()};
    for (int round = 0; round < 2; ++round) {
        for (const HWND stop : ring) {
            Press(VK_F6);
            EXPECT_EQ(::GetFocus(), stop);
        }
    }
    for (int round = 0; round < 2; ++round) {
        for (const HWND stop : {ring[2], ring[1], ring[0], ring[3]}) {
            Back();
            EXPECT_EQ(::GetFocus(), stop);
        }
    }
}

TEST_F(PaneRingTest, APaneWithoutAnythingToFocusIsNoStop) {
    EditPane hidden;
    EditPane empty;
    ASSERT_TRUE(hidden.Make(m_frame, 901) && empty.Make(m_frame, 902));
    hidden.ShowPane(FALSE, FALSE, FALSE);
    empty.edit.ModifyStyle(WS_TABSTOP, 0);
    PumpPending();
    Press({VK_F6, VK_F6});
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(PaneRingTest, TheDocumentIsTheWindowThatWasLeftLast) {
    CEdit other;
    ASSERT_TRUE(other.Create(WS_CHILD | WS_VISIBLE, CRect(310, 300, 400, 320), m_frame, 5001));
    EditPane pane;
    ASSERT_TRUE(pane.Make(m_frame, 901));
    PumpPending();
    Press({VK_F6, VK_F6, VK_F6});
    ASSERT_EQ(::GetFocus(), Document());
    other.SetFocus();
    Press({VK_MENU, VK_DOWN, VK_F6, VK_F6});
    EXPECT_EQ(::GetFocus(), other.GetSafeHwnd()) << "Alt left it, not F6";
    Press({VK_F6, VK_F6});
    other.DestroyWindow();
    Press(VK_F6);
    EXPECT_EQ(::GetFocus(), m_frame->GetSafeHwnd());
}

TEST_F(PaneRingTest, AnEditInTheRibbonLetsF6Out) {
    auto& edit = static_cast<CMFCRibbonEdit&>(Element(commands::size));
    Press({VK_MENU, 'H'});
    Type(edit.GetKeyTipText(FALSE));
    ASSERT_EQ(::GetFocus(), edit.GetEditWnd()->GetSafeHwnd());
    Press(VK_F6);
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(PaneRingTest, AMinimisedRibbonIsAStopToo) {
    Bar().ToggleMimimizeState();
    Press(VK_F6);
    EXPECT_EQ(FocusedText(), L"Home");
    Press(VK_F6);
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(PaneRingTest, AHiddenRibbonIsNone) {
    Bar().ShowPane(FALSE, FALSE, FALSE);
    PumpPending();
    Press(VK_F6);
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(PaneRingTest, AnAcceleratorComesBeforeIt) {
    ACCEL entry{FVIRTKEY, VK_F6, commands::find};
    m_frame->ReplaceAccelTable(::CreateAcceleratorTable(&entry, 1));
    Press(VK_F6);
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::find));
    EXPECT_EQ(::GetFocus(), Document());
}

} // namespace

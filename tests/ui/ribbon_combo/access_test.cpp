#include <gmock/gmock.h>

#include <oleacc.h>

#include "fx/accessibility_data.h"
#include "tests/ui/ribbon_combo/combo_fixture.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ComboAccess : public RibbonComboTest {
protected:
    CAccessibilityData Describe(CMFCRibbonComboBox& combo) {
        CAccessibilityData data;
        EXPECT_TRUE(combo.SetACCData(&Bar(), data));
        return data;
    }
    CAccessibilityData Row(int row) {
        CAccessibilityData data;
        EXPECT_TRUE(Plain().SetACCRowData(row, data));
        return data;
    }
};

TEST_F(ComboAccess, AComboTellsItsTextAndWhetherItsListIsOpen) {
    Plain().SelectItem(3);
    CAccessibilityData data = Describe(Plain());
    EXPECT_EQ(data.m_nRole, ROLE_SYSTEM_COMBOBOX);
    EXPECT_EQ(data.m_strName, L"Combo:");
    EXPECT_EQ(data.m_strValue, L"Item 3");
    EXPECT_NE(data.m_nState & STATE_SYSTEM_HASPOPUP, 0);
    EXPECT_NE(data.m_nState & STATE_SYSTEM_COLLAPSED, 0);
    EXPECT_FALSE(data.m_strDefaultAction.IsEmpty());
    EXPECT_NE(data.m_strDefaultAction, Describe(Edit()).m_strDefaultAction) << "one is opened, the other typed into";
    ClickButton(Plain());
    data = Describe(Plain());
    EXPECT_NE(data.m_nState & STATE_SYSTEM_EXPANDED, 0);
    EXPECT_EQ(data.m_nState & STATE_SYSTEM_COLLAPSED, 0);
}

TEST_F(ComboAccess, WhoeverWalksThroughTheOpenListHearsTheHotRow) {
    ClickButton(Plain());
    Press(VK_DOWN);
    Press(VK_DOWN);
    EXPECT_EQ(Describe(Plain()).m_strValue, L"Item 1");
    Press(VK_ESCAPE);
    EXPECT_EQ(Describe(Plain()).m_strValue, L"");
}

TEST_F(ComboAccess, EachItemIsARow) {
    EXPECT_EQ(Plain().GetACCRowCount(), 10);
    Plain().SelectItem(4);
    CAccessibilityData data = Row(4);
    EXPECT_EQ(data.m_strName, L"Item 4");
    EXPECT_EQ(data.m_nRole, ROLE_SYSTEM_LISTITEM);
    EXPECT_NE(data.m_nState & STATE_SYSTEM_SELECTED, 0);
    EXPECT_NE(data.m_nState & STATE_SYSTEM_INVISIBLE, 0);
    EXPECT_TRUE(data.m_rect.IsRectEmpty());
    EXPECT_EQ(Row(5).m_nState & STATE_SYSTEM_SELECTED, 0);
    EXPECT_FALSE(Plain().SetACCRowData(-1, data));
    EXPECT_FALSE(Plain().SetACCRowData(10, data));
}

TEST_F(ComboAccess, RowsOfAnOpenListLieOnTheScreenAndThoseOutOfViewDoNot) {
    for (int item = 10; item < 100; ++item) {
        Plain().AddItem(L"More");
    }
    ClickButton(Plain());
    Press(VK_DOWN);
    const CAccessibilityData first = Row(0);
    CRect expected = ListBar().GetRowRect(0);
    ListBar().ClientToScreen(expected);
    EXPECT_EQ(first.m_rect, expected);
    EXPECT_EQ(first.m_nState & (STATE_SYSTEM_OFFSCREEN | STATE_SYSTEM_INVISIBLE), 0);
    EXPECT_NE(first.m_nState & STATE_SYSTEM_FOCUSED, 0);
    const CAccessibilityData last = Row(99);
    EXPECT_NE(last.m_nState & STATE_SYSTEM_OFFSCREEN, 0);
    EXPECT_EQ(last.m_nState & STATE_SYSTEM_INVISIBLE, 0);
    EXPECT_TRUE(last.m_rect.IsRectEmpty());
}

TEST_F(ComboAccess, ARowsActionChoosesItAndTheCommandFollowsLater) {
    ClickButton(Plain());
    EXPECT_TRUE(Plain().OnACCRowDefaultAction(6));
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Plain().GetCurSel(), 6);
    EXPECT_THAT(m_frame->commands, IsEmpty()) << "the program that asked does not wait for the command";
    PumpPending();
    EXPECT_THAT(m_frame->commands, ElementsAre(kPlain));
    EXPECT_FALSE(Plain().OnACCRowDefaultAction(-1));
    EXPECT_FALSE(Plain().OnACCRowDefaultAction(10));
}

TEST_F(ComboAccess, AValueChoosesItsItemOrIsTyped) {
    EXPECT_TRUE(Plain().PutACCValue(L"Item 8"));
    EXPECT_FALSE(Plain().PutACCValue(L"Nothing"));
    EXPECT_FALSE(Plain().PutACCValue(nullptr));
    EXPECT_EQ(Plain().GetCurSel(), 8);
    EXPECT_TRUE(Edit().PutACCValue(L"Typed"));
    EXPECT_EQ(Edit().GetEditText(), L"Typed");
    EXPECT_EQ(Edit().GetCurSel(), -1);
    EXPECT_TRUE(Edit().PutACCValue(L"Item 2"));
    EXPECT_EQ(Edit().GetCurSel(), 2);
    PumpPending();
    EXPECT_THAT(m_frame->commands, ElementsAre(kEdit, kEdit, kPlain));
}

TEST_F(ComboAccess, ADisabledComboTakesNothing) {
    Plain().SetDisabled(TRUE);
    EXPECT_FALSE(Plain().OnACCRowDefaultAction(1));
    EXPECT_FALSE(Plain().PutACCValue(L"Item 1"));
    EXPECT_NE(Row(1).m_nState & STATE_SYSTEM_UNAVAILABLE, 0);
    EXPECT_EQ(Plain().GetCurSel(), -1);
}

} // namespace

#include "tests/ui/ribbon_bar/ribbon_frame.h"

namespace {

TEST_F(RibbonBarTest, IdleTimeEnablesAndChecksWhatTheHandlersSay) {
    m_frame->disabledCommand = commands::cut;
    m_frame->checkedCommand = commands::options;
    RunIdle();
    EXPECT_TRUE(Element(commands::cut).IsDisabled());
    EXPECT_FALSE(Element(commands::paste).IsDisabled());
    EXPECT_TRUE(Element(commands::options).IsChecked());
    EXPECT_FALSE(Element(commands::bold).IsChecked());
    m_frame->disabledCommand = 0;
    m_frame->checkedCommand = commands::bold;
    RunIdle();
    EXPECT_FALSE(Element(commands::cut).IsDisabled());
    EXPECT_TRUE(Element(commands::bold).IsChecked()) << "buttons inside groups are updated too";
    EXPECT_FALSE(Element(commands::options).IsChecked());
}

TEST_F(RibbonBarTest, ACommandWithoutHandlerIsDisabled) {
    Bar().SetActiveCategory(Bar().GetCategory(1));
    PumpPending();
    RunIdle();
    EXPECT_TRUE(Element(commands::noHandler).IsDisabled());
    EXPECT_FALSE(Element(commands::find).IsDisabled());
}

TEST_F(RibbonBarTest, ElementsOfOtherCategoriesAreNotUpdated) {
    m_frame->disabledCommand = commands::find;
    RunIdle();
    EXPECT_FALSE(Element(commands::find).IsDisabled());
    Bar().SetActiveCategory(Bar().GetCategory(1));
    RunIdle();
    EXPECT_TRUE(Element(commands::find).IsDisabled());
}

TEST_F(RibbonBarTest, QuickAccessCopiesAreUpdatedWithoutTheirCategory) {
    CList<UINT, UINT> list;
    list.AddTail(commands::find);
    Bar().SetQuickAccessCommands(list);
    m_frame->disabledCommand = commands::find;
    RunIdle();
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
    Bar().GetElementsByID(commands::find, elements);
    ASSERT_EQ(elements.GetSize(), 2);
    EXPECT_FALSE(elements[0]->IsDisabled());
    EXPECT_TRUE(elements[1]->IsDisabled());
}

TEST_F(RibbonBarTest, AnUpdateThatChangesNothingDrawsNothing) {
    RunIdle();
    Bar().UpdateWindow();
    RunIdle();
    CRect update;
    EXPECT_FALSE(Bar().GetUpdateRect(update));
}

} // namespace

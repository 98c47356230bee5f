#include "status_frame.h"

#include <gmock/gmock.h>

namespace {

class StatusBarElements : public StatusBarTest {};

int g_alive = 0;

class CountedButton : public CMFCRibbonButton {
public:
    explicit CountedButton(UINT id) : CMFCRibbonButton(id, L"Counted") { ++g_alive; }
    ~CountedButton() override { --g_alive; }
};

TEST_F(StatusBarElements, AreFoundByIndexInTheirArea) {
    CMFCRibbonButton& first = AddButton(1, L"One");
    CMFCRibbonButton& second = AddButton(2, L"Two");
    CMFCRibbonButton& extended = AddExtendedButton(3, L"Three");
    EXPECT_EQ(Bar().GetCount(), 2);
    EXPECT_EQ(Bar().GetExCount(), 1);
    EXPECT_EQ(Bar().GetElement(0), &first);
    EXPECT_EQ(Bar().GetElement(1), &second);
    EXPECT_EQ(Bar().GetExElement(0), &extended);
}

TEST_F(StatusBarElements, AnIndexOutsideHasNone) {
    AddButton(1, L"One");
    for (const int index : {-1, 1, 1000}) {
        EXPECT_EQ(Bar().GetElement(index), nullptr);
        EXPECT_EQ(Bar().GetExElement(index), nullptr);
    }
}

TEST_F(StatusBarElements, FindElementLooksInTheMainAreaFirstAndAtHiddenOnesToo) {
    CMFCRibbonButton& extended = AddExtendedButton(1, L"Extended");
    EXPECT_EQ(Bar().FindElement(1), &extended);
    CMFCRibbonButton& main = AddButton(1, L"Main");
    main.SetVisible(FALSE);
    EXPECT_EQ(Bar().FindElement(1), &main);
    EXPECT_EQ(Bar().FindElement(9), nullptr);
}

TEST_F(StatusBarElements, FindByIDLooksIntoGroupsAndSkipsHiddenOnesUnlessAsked) {
    auto* const group = new CMFCRibbonButtonsGroup;
    auto* const inner = new CMFCRibbonButton(7, L"Inner");
    group->AddButton(inner);
    Bar().AddElement(group, L"");
    EXPECT_EQ(Bar().FindByID(7), inner);
    inner->SetVisible(FALSE);
    EXPECT_EQ(Bar().FindByID(7), nullptr);
    EXPECT_EQ(Bar().FindByID(7, FALSE), inner);
}

TEST_F(StatusBarElements, IsExtendedElementKnowsTheAreaOfEach) {
    EXPECT_FALSE(Bar().IsExtendedElement(&AddButton(1, L"One")));
    EXPECT_TRUE(Bar().IsExtendedElement(&AddExtendedButton(2, L"Two")));
    EXPECT_FALSE(Bar().IsExtendedElement(nullptr));
}

TEST_F(StatusBarElements, CanBeAddedHidden) {
    auto* const button = new CMFCRibbonButton(1, L"One");
    Bar().AddElement(button, L"", FALSE);
    LayOut();
    EXPECT_FALSE(button->IsVisible());
    EXPECT_TRUE(button->GetRect().IsRectEmpty());
}

TEST_F(StatusBarElements, ANullElementIsNotAdded) {
    Bar().AddElement(nullptr, L"");
    Bar().AddExtendedElement(nullptr, L"");
    Bar().AddDynamicElement(nullptr);
    EXPECT_EQ(Bar().GetCount(), 0);
    EXPECT_EQ(Bar().GetExCount(), 0);
}

TEST_F(StatusBarElements, AddDynamicElementAndAddSeparatorEnlargeTheMainArea) {
    Bar().AddDynamicElement(new CMFCRibbonButton(1, L"One"));
    Bar().AddSeparator();
    ASSERT_EQ(Bar().GetCount(), 2);
    EXPECT_NE(DYNAMIC_DOWNCAST(CMFCRibbonSeparator, Bar().GetElement(1)), nullptr);
}

TEST_F(StatusBarElements, RemoveElementDeletesIt) {
    Bar().AddElement(new CountedButton(1), L"");
    Bar().AddExtendedElement(new CountedButton(2), L"");
    EXPECT_EQ(g_alive, 2);
    EXPECT_TRUE(Bar().RemoveElement(2));
    EXPECT_EQ(Bar().GetExCount(), 0);
    EXPECT_EQ(g_alive, 1);
    EXPECT_FALSE(Bar().RemoveElement(2));
    EXPECT_TRUE(Bar().RemoveElement(1));
    EXPECT_EQ(g_alive, 0);
}

TEST_F(StatusBarElements, RemoveAllDeletesBothAreas) {
    Bar().AddElement(new CountedButton(1), L"");
    Bar().AddExtendedElement(new CountedButton(2), L"");
    Bar().RemoveAll();
    EXPECT_EQ(g_alive, 0);
    EXPECT_EQ(Bar().GetCount() + Bar().GetExCount(), 0);
}

TEST_F(StatusBarElements, TheBarDeletesItsElementsWithItself) {
    {
        CMFCRibbonStatusBar bar;
        bar.AddElement(new CountedButton(1), L"One");
        bar.AddExtendedElement(new CountedButton(2), L"Two");
    }
    EXPECT_EQ(g_alive, 0);
}

TEST_F(StatusBarElements, TheirCommandsAreAskedForTheirStates) {
    CMFCRibbonButton& main = AddButton(1, L"One");
    CMFCRibbonButton& extended = AddExtendedButton(2, L"Two");
    m_frame->disabledCommand = 2;
    Bar().OnUpdateCmdUI(m_frame, TRUE);
    EXPECT_FALSE(main.IsDisabled());
    EXPECT_TRUE(extended.IsDisabled());
}

TEST_F(StatusBarElements, TheFramesRibbonIsAnotherBar) {
    EXPECT_FALSE(Bar().IsFrameRibbon());
    EXPECT_FALSE(Bar().IsMainRibbonBar());
    EXPECT_EQ(m_frame->GetRibbonBar(), nullptr);
}

TEST_F(StatusBarElements, AreMadeByTheNameOfTheClass) {
    const std::unique_ptr<CObject> bar(RUNTIME_CLASS(CMFCRibbonStatusBar)->CreateObject());
    const std::unique_ptr<CObject> pane(RUNTIME_CLASS(CMFCRibbonStatusBarPane)->CreateObject());
    const std::unique_ptr<CObject> progress(RUNTIME_CLASS(CMFCRibbonProgressBar)->CreateObject());
    EXPECT_NE(DYNAMIC_DOWNCAST(CMFCRibbonBar, bar.get()), nullptr);
    EXPECT_NE(DYNAMIC_DOWNCAST(CMFCRibbonButton, pane.get()), nullptr);
    EXPECT_NE(DYNAMIC_DOWNCAST(CMFCRibbonBaseElement, progress.get()), nullptr);
}

TEST_F(StatusBarElements, AssistiveProgramsSeeAStatusBarOfThem) {
    AddButton(1, L"One");
    AddExtendedButton(2, L"Two");
    EXPECT_TRUE(Bar().OnSetAccData(0));
    EXPECT_TRUE(Bar().OnSetAccData(2));
    EXPECT_FALSE(Bar().OnSetAccData(3));
}

} // namespace

// Pop-ups of collapsed panels.
#include <gmock/gmock.h>

#include <afxRibbonEdit.h>
#include <afxRibbonLabel.h>

#include "tests/support/canvas.h"
#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

using testing::Contains;
using testing::ElementsAre;

class CollapsedPanel : public RibbonPopupTest {};

TEST_F(CollapsedPanel, ShowsItsOwnElementsAsInTheRibbon) {
    CMFCRibbonPanel& panel = OpenCollapsedPanel();
    ASSERT_EQ(OpenCount(), 1);
    EXPECT_TRUE(panel.GetDefaultButton().IsDroppedDown());
    EXPECT_TRUE(PopupBar().IsRibbonPanelInRegularMode());
    EXPECT_FALSE(PopupBar().IsMenuMode());
    EXPECT_EQ(PopupBar().GetPanel(), &panel);
    EXPECT_EQ(panel.GetParentMenuBar(), &PopupBar());
    for (int index = 0; index < panel.GetCount(); ++index) {
        CMFCRibbonBaseElement& element = *panel.GetElement(index);
        EXPECT_FALSE(element.GetRect().IsRectEmpty()) << index;
        EXPECT_EQ(element.GetParentWnd(), &PopupBar());
        EXPECT_EQ(PopupBar().HitTest(element.GetRect().CenterPoint()), &element);
        EXPECT_EQ(PopupBar().FindByOrigin(&element), &element);
    }
    EXPECT_TRUE(panel.GetElement(0)->IsLargeMode());
}

TEST_F(CollapsedPanel, SendsTheCommandAndGivesTheElementsBack) {
    CMFCRibbonPanel& panel = OpenCollapsedPanel();
    Click(*panel.GetElement(0));
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_EQ(panel.GetParentMenuBar(), nullptr);
    EXPECT_TRUE(panel.GetElement(0)->GetRect().IsRectEmpty());
    SetClientWidth(1000);
    EXPECT_FALSE(panel.IsCollapsed());
    Click(*panel.GetElement(0));
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste, commands::paste)) << "they work in the bar again";
}

TEST_F(CollapsedPanel, ItsColumnsAreJustifiedAndCentredAsInTheRibbon) {
    CMFCRibbonPanel& panel = *Bar().GetCategory(0)->GetPanel(0);
    panel.RemoveAll();
    panel.Add(new CMFCRibbonEdit(kLine, 300, L"Short"));
    panel.Add(new CMFCRibbonEdit(kStar, 300, L"A longer label"));
    panel.AddSeparator();
    for (UINT i = 0; i < 9; ++i) { // what does not narrow as edits do: the panel would never collapse
        panel.Add(new CMFCRibbonButton(950 + i, L"Button"));
    }
    const auto places = [&panel] {
        const CRect first = panel.GetElement(0)->GetRect();
        return std::pair{first.Width() - panel.GetElement(1)->GetRect().Width(), first.top};
    };
    OpenCollapsedPanel();
    const auto [plainDifference, plainTop] = places();
    EXPECT_LT(plainDifference, 0);
    CMFCRibbonPanelMenu::DismissAll();
    PumpPending();
    panel.SetJustifyColumns();
    panel.SetCenterColumnVert();
    OpenCollapsedPanel();
    const auto [difference, top] = places();
    EXPECT_EQ(difference, 0) << "the boxes stand at one left edge";
    EXPECT_GT(top, plainTop);
}

TEST_F(CollapsedPanel, ItsButtonHasNoEmptyFrameWherePanelAndElementsHaveNoPicture) {
    CMFCRibbonPanel& panel = *Bar().GetCategory(0)->GetPanel(0);
    const auto hasDrawn = [&panel] {
        Canvas canvas(40);
        panel.GetDefaultButton().DrawImage(canvas.Dc(), CMFCRibbonBaseElement::RibbonImageLarge, CRect(4, 4, 36, 36));
        return canvas.Extent() != CSize(0, 0);
    };
    panel.RemoveAll();
    EXPECT_FALSE(hasDrawn());
    panel.Add(new CMFCRibbonLabel(L"A text alone"));
    EXPECT_FALSE(hasDrawn());
    panel.Add(new CMFCRibbonButton(kLine, L"Line", ::LoadIconW(nullptr, IDI_APPLICATION)));
    EXPECT_TRUE(hasDrawn());
}

TEST_F(CollapsedPanel, TheBarsLayoutLeavesLentElementsAlone) {
    CMFCRibbonPanel& panel = OpenCollapsedPanel();
    const CRect place = panel.GetElement(0)->GetRect();
    Bar().RecalcLayout();
    EXPECT_EQ(panel.GetElement(0)->GetRect(), place);
    EXPECT_EQ(panel.GetElement(0)->GetParentWnd(), &PopupBar());
}

TEST_F(CollapsedPanel, IsUpdatedWhileItIsOpen) {
    m_frame->disabledCommand = commands::paste;
    CMFCRibbonPanel& panel = OpenCollapsedPanel();
    EXPECT_TRUE(panel.GetElement(0)->IsDisabled());
    m_frame->disabledCommand = 0;
    RunIdle();
    EXPECT_FALSE(panel.GetElement(0)->IsDisabled());
}

TEST_F(CollapsedPanel, ASubItemOpensFromThereAndClosesBoth) {
    OpenCollapsedPanel();
    Click(Shapes());
    ASSERT_EQ(OpenCount(), 2);
    Click(SubItem(0));
    EXPECT_THAT(m_frame->commands, ElementsAre(kLine));
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(CollapsedPanel, ASplitButtonWorksInIt) {
    OpenCollapsedPanel();
    Click(Split(), Split().GetCommandRect().CenterPoint());
    EXPECT_THAT(m_frame->commands, ElementsAre(kSplit));
}

TEST_F(CollapsedPanel, EditSliderCheckBoxAndGroupWorkInIt) {
    CMFCRibbonPanel& panel = Collapse(1);
    Click(panel.GetDefaultButton());
    auto& edit = static_cast<CMFCRibbonEdit&>(Element(commands::size));
    HWND window = ::GetWindow(PopupBar(), GW_CHILD);
    ASSERT_NE(window, nullptr) << "the edit window lives in the pop-up";
    edit.SetEditText(L"24");
    wchar_t text[10] = {};
    ::GetWindowTextW(window, text, 10);
    EXPECT_STREQ(text, L"24");

    const CRect slider = Element(commands::zoom).GetRect();
    Click(Element(commands::zoom), CPoint(slider.right - 4, slider.CenterPoint().y));
    EXPECT_THAT(m_frame->commands, Contains(commands::zoom));
    EXPECT_EQ(OpenCount(), 1) << "a slider is moved more than once";

    Click(Element(commands::bold));
    EXPECT_THAT(m_frame->commands, Contains(commands::bold));
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_STREQ(edit.GetEditText(), L"24");
    Click(panel.GetDefaultButton());
    Click(Element(commands::options));
    EXPECT_THAT(m_frame->commands, Contains(commands::options));
}

TEST_F(CollapsedPanel, ClosesWhenTheFrameIsGone) {
    OpenCollapsedPanel();
    m_frame->DestroyWindow();
    PumpPending();
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(CollapsedPanel, ItsLaunchButtonWorksInThePopUpAndGoesBack) {
    constexpr UINT launch = commands::firstHandled + 300;
    Bar().GetCategory(0)->GetPanel(0)->EnableLaunchButton(launch);
    CMFCRibbonPanel& panel = OpenCollapsedPanel();
    CMFCRibbonButton& button = panel.GetLaunchButton();
    ASSERT_FALSE(button.GetRect().IsRectEmpty());
    EXPECT_EQ(button.GetParentWnd(), &PopupBar());
    EXPECT_EQ(PopupBar().HitTest(button.GetRect().CenterPoint()), &button);
    EXPECT_EQ(PopupBar().HitTestEx(button.GetRect().CenterPoint()), -1) << "it is none of the panel's elements";
    EXPECT_GT(button.GetRect().top, panel.GetElement(0)->GetRect().bottom);
    Click(button);
    EXPECT_THAT(m_frame->commands, ElementsAre(launch));
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_TRUE(button.GetRect().IsRectEmpty());
    SetClientWidth(1000);
    Click(button);
    EXPECT_THAT(m_frame->commands, ElementsAre(launch, launch)) << "it works in the bar again";
}

TEST_F(CollapsedPanel, ALaunchButtonThatIsTakenAwayWhileThePopUpIsOpenIsGone) {
    constexpr UINT launch = commands::firstHandled + 300;
    Bar().GetCategory(0)->GetPanel(0)->EnableLaunchButton(launch);
    CMFCRibbonPanel& panel = OpenCollapsedPanel();
    const CPoint at = panel.GetLaunchButton().GetRect().CenterPoint();
    panel.EnableLaunchButton(0);
    PumpPending();
    ASSERT_EQ(OpenCount(), 1);
    m_pointer.Click(PopupBar(), at);
    PumpPending();
    EXPECT_THAT(m_frame->commands, testing::IsEmpty());
}

} // namespace

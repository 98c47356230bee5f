// The application menu.
#include <gmock/gmock.h>

#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

using testing::ElementsAre;

class MainPanel : public RibbonPopupTest {
protected:
    static constexpr UINT kNew = 1200;
    static constexpr UINT kOpen = 1201;
    static constexpr UINT kPrint = 1202;
    static constexpr UINT kQuickPrint = 1203;
    static constexpr UINT kRecent = 1204;
    static constexpr UINT kOptions = 1205;
    static constexpr UINT kExit = 1206;

    MainPanel() {
        Bar().SetApplicationButton(&m_button, CSize(44, 24));
        m_button.SetText(L"File");
        m_panel = Bar().AddMainCategory(L"Main", 0, 0);
        m_panel->Add(new CMFCRibbonButton(kNew, L"New"));
        m_panel->Add(new CMFCRibbonButton(kOpen, L"Open"));
        auto* print = new CMFCRibbonButton(kPrint, L"Print");
        print->AddSubItem(new CMFCRibbonButton(kQuickPrint, L"Quick Print"));
        m_panel->Add(print);
        m_panel->AddToRight(new CMFCRibbonButton(kRecent, L"Letter"), 200);
        m_panel->AddToBottom(new CMFCRibbonMainPanelButton(kOptions, L"Options", -1));
        m_panel->AddToBottom(new CMFCRibbonMainPanelButton(kExit, L"Exit", -1));
        Bar().RecalcLayout();
        PumpPending();
    }
    ~MainPanel() override {
        CMFCRibbonPanelMenu::DismissAll();
        if (::IsWindow(m_window)) {
            Bar().SetApplicationButton(nullptr, CSize(0, 0));
        }
    }
    CRect RectOf(UINT id) { return m_panel->FindByID(id)->GetRect(); }

    CMFCRibbonApplicationButton m_button;
    CMFCRibbonMainPanel* m_panel = nullptr;
};

TEST_F(MainPanel, OpensFromTheApplicationButtonAndIsNoTab) {
    EXPECT_EQ(Bar().GetCategoryCount(), 2);
    EXPECT_EQ(Bar().GetMainCategory()->GetPanel(0), m_panel);
    EXPECT_EQ(Bar().FindByID(kOpen), m_panel->GetElement(1));
    Click(m_button);
    ASSERT_EQ(OpenCount(), 1);
    EXPECT_TRUE(PopupBar().IsMainPanel());
    EXPECT_EQ(PopupBar().GetPanel(), m_panel);
    EXPECT_TRUE(m_button.IsDroppedDown());
    Click(m_button);
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_TRUE(m_panel->GetCommandsFrame().IsRectEmpty());
}

TEST_F(MainPanel, CommandsLieLeftRecentOnesRightButtonsBelow) {
    Click(m_button);
    const CRect frame = m_panel->GetCommandsFrame();
    EXPECT_EQ(RectOf(kOpen).top, RectOf(kNew).bottom);
    EXPECT_EQ(RectOf(kNew).left, frame.left);
    EXPECT_GT(RectOf(kRecent).left, RectOf(kNew).right - 1);
    EXPECT_EQ(RectOf(kRecent).right, frame.right);
    EXPECT_GE(RectOf(kRecent).Width(), 199);
    EXPECT_GE(RectOf(kOptions).top, frame.bottom);
    EXPECT_GT(RectOf(kExit).left, RectOf(kOptions).right);
    EXPECT_EQ(RectOf(kExit).right, frame.right);
    for (const UINT id : {kNew, kOpen, kPrint, kRecent, kOptions, kExit}) {
        EXPECT_EQ(PopupBar().HitTest(RectOf(id).CenterPoint()), m_panel->FindByID(id));
    }
}

TEST_F(MainPanel, EachKindOfElementSendsItsCommandAndCloses) {
    for (const UINT id : {kOpen, kRecent, kExit}) {
        Click(m_button);
        Click(*m_panel->FindByID(id));
        EXPECT_EQ(OpenCount(), 0);
    }
    EXPECT_THAT(m_frame->commands, ElementsAre(kOpen, kRecent, kExit));
}

TEST_F(MainPanel, SubItemsOpenBesideTheirRow) {
    Click(m_button);
    Click(*m_panel->FindByID(kPrint));
    ASSERT_EQ(OpenCount(), 2);
    Click(*m_panel->FindByID(kQuickPrint));
    EXPECT_THAT(m_frame->commands, ElementsAre(kQuickPrint));
}

TEST_F(MainPanel, RowsThatTheScreenHasNoRoomForAreScrolledToAndWork) {
    for (UINT index = 0; index < 100; ++index) {
        m_panel->Add(new CMFCRibbonButton(2000 + index, L"Row"));
        m_panel->AddToRight(new CMFCRibbonButton(2200 + index, L"Recent"), 200);
    }
    Click(m_button);
    CRect window;
    Popup().GetWindowRect(window);
    EXPECT_LE(window.Height(), ::GetSystemMetrics(SM_CYSCREEN));
    EXPECT_TRUE(RectOf(2099).IsRectEmpty());
    EXPECT_TRUE(RectOf(2299).IsRectEmpty());
    EXPECT_FALSE(RectOf(kExit).IsRectEmpty()) << "the buttons below stay";
    EXPECT_FALSE(PopupBar().Scroll(-1));
    while (PopupBar().Scroll(1)) {
    }
    const CRect frame = m_panel->GetCommandsFrame();
    for (const UINT id : {2099u, 2299u}) {
        EXPECT_FALSE(RectOf(id).IsRectEmpty());
        EXPECT_LE(RectOf(id).bottom, frame.bottom);
    }
    Click(*m_panel->FindByID(2299));
    Click(m_button);
    Press(VK_UP); // goes round to the last
    PopupBar().Highlight(m_panel->FindByID(2099));
    EXPECT_FALSE(RectOf(2099).IsRectEmpty()) << "the keyboard brings it into view";
    Press(VK_RETURN);
    EXPECT_THAT(m_frame->commands, ElementsAre(2299u, 2099u));
}

TEST_F(MainPanel, AnElementStandsWhereItWasAddedLast) {
    CMFCRibbonBaseElement* recent = m_panel->FindByID(kRecent);
    for (int index = 0; index < m_panel->GetCount(); ++index) {
        if (m_panel->GetElement(index) == recent) {
            m_panel->Remove(index, FALSE);
        }
    }
    m_panel->Add(recent);
    m_panel->AddToRight(new CMFCRibbonButton(kShapes + 500, L"Other"), 200);
    Click(m_button);
    EXPECT_EQ(RectOf(kRecent).left, m_panel->GetCommandsFrame().left);
    EXPECT_GT(RectOf(kShapes + 500).left, RectOf(kRecent).right - 1);
}

TEST_F(MainPanel, AnotherMainCategoryReplacesTheFormerEvenWhileItIsOpen) {
    Click(m_button);
    m_panel = Bar().AddMainCategory(L"Other", 0, 0);
    PumpPending();
    EXPECT_EQ(OpenCount(), 0);
    m_panel->Add(new CMFCRibbonButton(kNew, L"New"));
    Click(m_button);
    Click(*m_panel->FindByID(kNew));
    EXPECT_THAT(m_frame->commands, ElementsAre(kNew));
}

} // namespace

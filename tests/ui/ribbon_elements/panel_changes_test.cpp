// Elements that are replaced or get a menu after their panel was filled.
#include <afxRibbonLabel.h>
#include <afxRibbonPanel.h>

#include "element_fixture.h"

namespace {

constexpr UINT g_popupMenu = 300;
constexpr UINT g_barMenu = 301;

struct OpenPanel : CMFCRibbonPanel {
    OpenPanel() = default;
};

/// A button class that a host brings.
class HostButton : public CMFCRibbonButton {
    DECLARE_DYNCREATE(HostButton)
};
IMPLEMENT_DYNCREATE(HostButton, CMFCRibbonButton)

class PanelChanges : public testing::Test {
protected:
    void SetUp() override {
        m_panel.Add(new CMFCRibbonLabel(L"Label"));
        auto* const button = new CMFCRibbonButton(7, L"Text\nk", 3, 5);
        button->SetToolTipText(L"Tip");
        button->SetDescription(L"Description");
        m_panel.Add(button);
    }
    CMFCRibbonButton& Button() { return *static_cast<CMFCRibbonButton*>(m_panel.GetElement(1)); }

    OpenPanel m_panel;
};

TEST_F(PanelChanges, AnElementOfAnotherClassTakesOverWhatIsSeen) {
    CMFCRibbonBaseElement* const made = m_panel.SetElementRTCByID(7, RUNTIME_CLASS(HostButton));
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made, m_panel.GetElement(1));
    EXPECT_EQ(m_panel.GetCount(), 2);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(HostButton)));
    EXPECT_EQ(made->GetID(), 7u);
    EXPECT_STREQ(made->GetText(), L"Text");
    EXPECT_STREQ(made->GetKeys(), L"k");
    EXPECT_STREQ(made->GetToolTipText(), L"Tip");
    EXPECT_STREQ(made->GetDescription(), L"Description");
    EXPECT_EQ(Button().GetImageIndex(FALSE), 3);
    EXPECT_EQ(Button().GetImageIndex(TRUE), 5);
    EXPECT_EQ(made->GetParentPanel(), &m_panel);
}

TEST_F(PanelChanges, WhatCannotBeReplacedStays) {
    const CMFCRibbonBaseElement* const former = m_panel.GetElement(1);
    EXPECT_EQ(m_panel.SetElementRTC(2, RUNTIME_CLASS(HostButton)), nullptr);
    EXPECT_EQ(m_panel.SetElementRTCByID(8, RUNTIME_CLASS(HostButton)), nullptr);
    EXPECT_EQ(m_panel.SetElementRTC(1, RUNTIME_CLASS(CWinThread)), nullptr) << "no ribbon element";
    EXPECT_EQ(m_panel.GetElement(1), former);
}

TEST_F(PanelChanges, AMenuMakesAMenuButton) {
    CMenu menu;
    menu.CreatePopupMenu();
    EXPECT_FALSE(m_panel.SetElementMenu(8, menu.m_hMenu));
    EXPECT_TRUE(m_panel.SetElementMenu(7, menu.m_hMenu, TRUE, TRUE));
    EXPECT_EQ(Button().GetMenu(), menu.m_hMenu);
    EXPECT_TRUE(Button().IsDefaultCommand());
    EXPECT_TRUE(Button().IsRightAlignMenu());
}

TEST_F(PanelChanges, AMenuOfTheResourcesBelongsToTheButtonAndItsCopies) {
    HMENU menu = nullptr;
    {
        CMFCRibbonButton copy;
        {
            CMFCRibbonButton button(9, L"Menu");
            button.SetMenu(g_popupMenu, TRUE);
            menu = button.GetMenu();
            ASSERT_TRUE(::IsMenu(menu));
            EXPECT_EQ(::GetMenuItemCount(menu), 2) << "the one popup of the resource";
            EXPECT_EQ(::GetMenuItemID(menu, 1), 42u);
            copy.CopyFrom(button);
        }
        EXPECT_EQ(copy.GetMenu(), menu);
        EXPECT_TRUE(::IsMenu(menu));
    }
    EXPECT_FALSE(::IsMenu(menu));
}

TEST_F(PanelChanges, AMenuWithSeveralPopupsOpensAsItIs) {
    EXPECT_TRUE(m_panel.SetElementMenu(7, g_barMenu));
    EXPECT_EQ(::GetMenuItemCount(Button().GetMenu()), 2);
    EXPECT_FALSE(m_panel.SetElementMenu(7, 999u)) << "there is no such resource";
    EXPECT_FALSE(Button().HasMenu());
}

/// Keeps what it is told of hot rows.
class ListWindow : public TestWindow {
public:
    std::vector<std::pair<int, LPARAM>> hot;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == AFX_WM_HIGHLIGHT_RIBBON_LIST_ITEM) {
            hot.emplace_back(static_cast<int>(wParam), lParam);
        }
        return TestWindow::WindowProc(message, wParam, lParam);
    }
};

TEST(RibbonList, TheHostIsToldOfTheHotRow) {
    ListWindow window;
    CMFCRibbonButton button(7, L"List");
    button.NotifyHighlightListItem(1);
    EXPECT_TRUE(window.hot.empty()) << "an element without a window";
    button.SetParentWnd(&window);
    button.NotifyHighlightListItem(2);
    button.NotifyHighlightListItem(-1);
    const LPARAM element = reinterpret_cast<LPARAM>(static_cast<CMFCRibbonBaseElement*>(&button));
    EXPECT_EQ(window.hot, (std::vector<std::pair<int, LPARAM>>{{2, element}, {-1, element}}));
}

} // namespace

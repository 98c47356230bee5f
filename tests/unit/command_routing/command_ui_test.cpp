#include <gtest/gtest.h>

#include "afxwin.h"

namespace {

constexpr UINT Updated = 100;
constexpr UINT Handled = 101;
constexpr UINT Unknown = 102;
constexpr UINT Passed = 103;
constexpr UINT Silent = 104;

class Host : public CCmdTarget {
public:
    int m_baseUpdates = 0;

protected:
    afx_msg void OnHandled() {}
    afx_msg void OnUpdate(CCmdUI* item) {
        item->Enable(FALSE);
        item->SetCheck(1);
        item->SetText(L"renamed");
    }
    afx_msg void OnUpdatePassed(CCmdUI* item) {
        ++m_baseUpdates;
        item->Enable(TRUE);
    }
    afx_msg void OnUpdateSilent(CCmdUI* item) { item->SetCheck(0); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Host, CCmdTarget)
ON_COMMAND(Handled, &Host::OnHandled)
ON_COMMAND(Updated, &Host::OnHandled)
ON_UPDATE_COMMAND_UI(Updated, &Host::OnUpdate)
ON_UPDATE_COMMAND_UI_RANGE(Passed, Passed, &Host::OnUpdatePassed)
ON_UPDATE_COMMAND_UI(Silent, &Host::OnUpdateSilent)
END_MESSAGE_MAP()

class PassingHost : public Host {
protected:
    afx_msg void OnUpdatePassedOn(CCmdUI* item) { item->ContinueRouting(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PassingHost, Host)
ON_UPDATE_COMMAND_UI(Passed, &PassingHost::OnUpdatePassedOn)
END_MESSAGE_MAP()

/// A menu with one item of each kind, and the states that an update left in it.
class MenuUpdate : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_menu.CreatePopupMenu());
        for (const UINT id : {Updated, Handled, Unknown, Silent}) {
            m_menu.AppendMenu(MF_STRING, id, L"item");
        }
        m_menu.AppendMenu(MF_SEPARATOR);
        CMenu popup;
        popup.CreatePopupMenu();
        m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.Detach()), L"more");
    }
    bool IsGray(int position) const { return (m_menu.GetMenuState(position, MF_BYPOSITION) & MF_GRAYED) != 0; }

    CMenu m_menu;
    Host m_host;
};

TEST_F(MenuUpdate, AnUpdateHandlerSetsStateCheckAndText) {
    fx::UpdateMenuItems(&m_menu, &m_host, TRUE);
    EXPECT_TRUE(IsGray(0));
    EXPECT_TRUE(m_menu.GetMenuState(0, MF_BYPOSITION) & MF_CHECKED);
    CString text;
    m_menu.GetMenuString(0, text, MF_BYPOSITION);
    EXPECT_STREQ(text, L"renamed");
    EXPECT_EQ(m_menu.GetMenuItemID(0), Updated);
}

TEST_F(MenuUpdate, ACommandWithoutAHandlerIsDisabled) {
    fx::UpdateMenuItems(&m_menu, &m_host, TRUE);
    EXPECT_FALSE(IsGray(1));
    EXPECT_TRUE(IsGray(2));
}

TEST_F(MenuUpdate, WithoutAutomaticDisablingItStaysEnabled) {
    fx::UpdateMenuItems(&m_menu, &m_host, FALSE);
    EXPECT_FALSE(IsGray(2));
}

TEST_F(MenuUpdate, AnUpdateHandlerThatSaysNothingOfEnabledDoesNotEnableAnUnhandledCommand) {
    fx::UpdateMenuItems(&m_menu, &m_host, TRUE);
    EXPECT_TRUE(IsGray(3));
}

TEST_F(MenuUpdate, SeparatorsAndPopupsKeepTheirState) {
    fx::UpdateMenuItems(&m_menu, &m_host, TRUE);
    EXPECT_FALSE(IsGray(5));
    EXPECT_NE(m_menu.GetSubMenu(5), nullptr);
}

TEST_F(MenuUpdate, ARadioItemIsMarkedAsSuch) {
    CCmdUI item;
    item.m_pMenu = &m_menu;
    item.m_nIndex = 1;
    item.SetRadio(TRUE);
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE | MIIM_STATE;
    ASSERT_TRUE(m_menu.GetMenuItemInfo(1, &info, TRUE));
    EXPECT_TRUE(info.fType & MFT_RADIOCHECK);
    EXPECT_TRUE(info.fState & MFS_CHECKED);
}

TEST(CommandUi, ContinueRoutingCallsTheNextHandler) {
    PassingHost host;
    CCmdUI item;
    item.m_nID = Passed;
    EXPECT_TRUE(item.DoUpdate(&host, FALSE));
    EXPECT_EQ(host.m_baseUpdates, 1);
}

TEST(CommandUi, DoUpdateAnswersWhetherAnUpdateHandlerWasThere) {
    Host host;
    CCmdUI item;
    item.m_nID = Handled;
    EXPECT_FALSE(item.DoUpdate(&host, FALSE));
    item.m_nID = Silent;
    EXPECT_TRUE(item.DoUpdate(&host, FALSE));
}

} // namespace

// Combos with marks in the pop-up of a collapsed panel.
#include "tests/support/collapsed_panel.h"
#include "tests/support/keys.h"
#include "tests/ui/marked_combos/combo_fixture.h"

#include <afxribbonpanelmenu.h>

namespace {

class CollapsedPanel : public RibbonCombos {
protected:
    void SetUp() override {
        m_check = &Add<CMFCRibbonCheckComb>();
        m_twin = &AddToQuickAccess<CMFCRibbonCheckComb>();
        m_multi = &Add<CMFCRibbonMultiCombo>(comboId + 1);
        m_check->SelectItem(1);
        m_multi->SelectItem(1);
        OpenCollapsedPanel(m_host, m_pointer);
        ASSERT_NE(CMFCRibbonPanelMenu::GetDeepest(), nullptr);
        ASSERT_NE(m_check->GetParentWnd(), &m_host.Bar());
        TakeTold();
    }
    static bool IsPanelOpen() { return CMFCRibbonPanelMenu::GetDeepest() != nullptr; }

    CMFCRibbonCheckComb* m_check = nullptr;
    CMFCRibbonCheckComb* m_twin = nullptr; // on the quick access toolbar
    CMFCRibbonMultiCombo* m_multi = nullptr;
};

TEST_F(CollapsedPanel, AFaceClickChangesAllAndThePopupStays) {
    ClickFace(*m_check, 8);
    EXPECT_EQ(TakeTold(), Told{"sent CHECK 'two' 1"});
    EXPECT_EQ(ChecksOf(*m_check), "?1?");
    EXPECT_EQ(ChecksOf(*m_twin), "?1?");
    EXPECT_TRUE(IsPanelOpen());
    EXPECT_EQ(Rows(), nullptr);
}

TEST_F(CollapsedPanel, AMarkInTheListIsSwitchedAndBothStayOpen) {
    Open(*m_check);
    EXPECT_TRUE(IsPanelOpen());
    ClickRow(2, 8);
    EXPECT_EQ(TakeTold(), Told{"sent CHECK 'three' 1"});
    EXPECT_EQ(ChecksOf(*m_twin), "??1");
    EXPECT_NE(Rows(), nullptr);
    EXPECT_TRUE(IsPanelOpen());
}

TEST_F(CollapsedPanel, ASwatchClickClosesBothBeforeTheHostIsAsked) {
    Open(*m_multi);
    bool wasOpen = true;
    m_host.Frame().onMessage = [&](const HostMessage& one) {
        if (one.message == WM_COMBO_COLOR_PICK) {
            wasOpen = Rows() != nullptr || IsPanelOpen();
        }
        return 0;
    };
    ClickRow(0, 5);
    EXPECT_EQ(TakeTold(), (Told{"sent COMMAND 701", "posted COLOUR #0 0"}));
    EXPECT_FALSE(wasOpen);
}

TEST_F(CollapsedPanel, ShiftAndSpaceCloseBothBeforeTheHostIsAsked) {
    Open(*m_multi);
    Keys keys;
    keys.Hold(VK_SHIFT);
    Key(VK_SPACE);
    EXPECT_EQ(Rows(), nullptr);
    EXPECT_FALSE(IsPanelOpen());
    EXPECT_EQ(TakeTold(), (Told{"sent COMMAND 701", "posted COLOUR #1 0"}));
}

TEST_F(CollapsedPanel, SettersReachTheElementWhileThePopupShowsIt) {
    m_twin->SetItemCheck(0, true);
    EXPECT_EQ(ChecksOf(*m_check), "1??");
    m_check->AddItem(L"new");
    EXPECT_EQ(m_twin->GetCount(), 4);
}

TEST_F(CollapsedPanel, AHostMayEndTheFrameFromAListInThePopup) {
    m_host.Frame().onMessage = [&](const HostMessage&) {
        m_host.Destroy();
        return 0;
    };
    Open(*m_check);
    ClickRow(1, 8);
    PumpPending();
    EXPECT_FALSE(m_host.IsAlive());
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
}

} // namespace

// Pop-ups give back all that they took from the system: hundreds of each kind, opened, painted and closed.
#include "tests/support/gui_objects.h"
#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

class RibbonPopupLeaks : public RibbonPopupTest {
protected:
    static constexpr int kFirstRound = 30;
    static constexpr int kPopups = 500;

    /// `open` opens `levels` pop-ups one above the other.
    template <class Open>
    void ExpectNoGrowth(int levels, Open open) {
        EXPECT_TRUE(RepeatedLeavesNothingBehind(kFirstRound, kPopups, [&](int round) {
            open();
            if (OpenCount() != levels) { // another program's window became active and closed them
                CMFCRibbonPanelMenu::DismissAll();
                open();
            }
            EXPECT_EQ(OpenCount(), levels) << "round " << round;
            for (CMFCRibbonPanelMenu* menu = CMFCRibbonPanelMenu::GetDeepest(); menu; menu = menu->GetParentMenu()) {
                menu->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
            }
            CMFCRibbonPanelMenu::DismissAll();
            PumpPending();
        }));
    }
};

TEST_F(RibbonPopupLeaks, SubItems) {
    ExpectNoGrowth(1, [this] { Click(Shapes()); });
}

TEST_F(RibbonPopupLeaks, SubItemsOfSubItems) {
    ExpectNoGrowth(2, [this] {
        Click(Shapes());
        if (OpenCount() == 1) {
            SubItem(3).OnShowPopupMenu(); // as when the pointer rests there; a click may come after that and close it
        }
    });
}

TEST_F(RibbonPopupLeaks, CollapsedPanel) {
    CMFCRibbonPanel& panel = Collapse(0);
    ExpectNoGrowth(1, [&] { Click(panel.GetDefaultButton()); });
}

TEST_F(RibbonPopupLeaks, PanelsOfAMinimisedBar) {
    Bar().ToggleMimimizeState();
    PumpPending();
    ExpectNoGrowth(1, [this] {
        m_pointer.Click(Bar(), Bar().GetCategory(0)->GetTabRect().CenterPoint());
        PumpPending();
    });
}

TEST_F(RibbonPopupLeaks, ApplicationMenu) {
    CMFCRibbonApplicationButton button;
    Bar().SetApplicationButton(&button, CSize(44, 24));
    button.SetText(L"File");
    CMFCRibbonMainPanel* panel = Bar().AddMainCategory(L"Main", 0, 0);
    panel->Add(new CMFCRibbonButton(kLine, L"New"));
    panel->AddToRight(new CMFCRibbonButton(kStar, L"Letter"), 200);
    panel->AddToBottom(new CMFCRibbonMainPanelButton(kCircle, L"Exit", -1));
    Bar().RecalcLayout();
    PumpPending();
    ExpectNoGrowth(1, [&] { Click(button); });
    Bar().SetApplicationButton(nullptr, CSize(0, 0));
}

TEST_F(RibbonPopupLeaks, CustomizeMenuOfTheQuickAccessToolbar) {
    SetQuickAccessDefault({commands::paste}, {commands::cut});
    ExpectNoGrowth(1, [this] {
        if (CMFCRibbonBaseElement* button = FindInQuickAccess(RUNTIME_CLASS(CMFCRibbonQuickAccessCustomizeButton))) {
            Click(*button);
        }
    });
}

TEST_F(RibbonPopupLeaks, RestOfTheQuickAccessToolbar) {
    FillQuickAccess(30);
    ExpectNoGrowth(1, [this] {
        if (CMFCRibbonBaseElement* button = FindInQuickAccess(RUNTIME_CLASS(CMFCRibbonQuickAccessMoreButton))) {
            Click(*button);
        }
    });
}

TEST_F(RibbonPopupLeaks, ContextMenu) {
    CPoint at = CenterOf(commands::paste);
    Bar().ClientToScreen(&at);
    ExpectNoGrowth(1, [&] {
        Bar().OnShowRibbonContextMenu(&Bar(), at.x, at.y, &Element(commands::paste));
        PumpPending();
    });
}

} // namespace

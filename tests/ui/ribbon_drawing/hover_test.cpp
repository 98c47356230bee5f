// The pointer draws again what it leaves and what it comes to, in the bar and in a pop-up, mirrored or not.
#include "tests/ui/ribbon_drawing/probes.h"

#include <afxribbonpanelmenu.h>

#include <vector>

namespace {

using ProbeButton = Probe<CMFCRibbonButton>;

enum class Direction { LeftToRight, RightToLeft };

class RibbonHover : public RibbonBarTest, public testing::WithParamInterface<Direction> {
protected:
    static constexpr UINT kFirst = commands::firstHandled + 2000;
    static constexpr int kButtons = 9;

    ~RibbonHover() override {
        CMFCRibbonPanelMenu::DismissAll();
        PumpPending();
    }
    void Turn(CWnd& window) const {
        if (GetParam() == Direction::RightToLeft) {
            window.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
        }
        window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
    ProbeButton* MakeButton() { return new ProbeButton(m_log, m_nextId++, L"Button"); }
    void MoveTo(CWnd& window, const CMFCRibbonBaseElement& element) {
        const CPoint point = element.GetRect().CenterPoint();
        window.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
        window.UpdateWindow();
    }
    /// From the first to the last and back to the middle: far from each other, with all the others between.
    void ExpectTwoDrawnEachTime(CWnd& window, const std::vector<CMFCRibbonBaseElement*>& elements) {
        const CMFCRibbonBaseElement* former = elements.front();
        MoveTo(window, *former);
        for (const CMFCRibbonBaseElement* next : {elements.back(), elements.front(), elements[elements.size() / 2]}) {
            m_log = {};
            MoveTo(window, *next);
            EXPECT_TRUE(next->IsHighlighted());
            EXPECT_EQ(m_log.draws, 2);
            EXPECT_TRUE(m_log.places.contains(former) && m_log.places.contains(next));
            former = next;
        }
    }

    DrawingLog m_log;
    UINT m_nextId = kFirst;
};

TEST_P(RibbonHover, FromButtonToButtonOfThePanelDrawsThoseTwoAndNothingMore) {
    CMFCRibbonCategory* category = Bar().AddCategory(L"Probes", 0, 0);
    CMFCRibbonPanel* panel = category->AddPanel(L"Panel");
    std::vector<CMFCRibbonBaseElement*> elements;
    for (int index = 0; index < kButtons; ++index) {
        panel->Add(elements.emplace_back(MakeButton()));
    }
    Bar().SetActiveCategory(category);
    Bar().RecalcLayout();
    Turn(Bar());
    ASSERT_FALSE(panel->IsCollapsed());
    ExpectTwoDrawnEachTime(Bar(), elements);
}

TEST_P(RibbonHover, FromRowToRowOfAPopUpDrawsThoseTwoAndNothingMore) {
    auto* opener = new CMFCRibbonButton(kFirst - 1, L"Opener");
    std::vector<CMFCRibbonBaseElement*> rows;
    for (int index = 0; index < kButtons; ++index) {
        opener->AddSubItem(static_cast<CMFCRibbonBaseElement*>(rows.emplace_back(MakeButton())));
    }
    Bar().GetCategory(0)->GetPanel(0)->Add(opener);
    Bar().RecalcLayout();
    opener->OnShowPopupMenu();
    PumpPending();
    CMFCRibbonPanelMenu* menu = CMFCRibbonPanelMenu::GetDeepest();
    ASSERT_NE(menu, nullptr);
    CMFCRibbonPanelMenuBar& bar = menu->GetRibbonMenuBar();
    Turn(bar);
    ExpectTwoDrawnEachTime(bar, rows);
}

INSTANTIATE_TEST_SUITE_P(Both, RibbonHover, testing::Values(Direction::LeftToRight, Direction::RightToLeft),
                         [](const auto& test) {
                             return test.param == Direction::RightToLeft ? "RightToLeft" : "LeftToRight";
                         });

} // namespace

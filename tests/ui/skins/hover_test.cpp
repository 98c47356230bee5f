// The pointer on its way over a ribbon in a skin: two elements are drawn, wherever they are, and nothing is left of
// where it was.
#include "tests/ui/ribbon_drawing/probes.h"
#include "tests/ui/skins/skin_fixture.h"

#include <array>

namespace {

using ProbeButton = Probe<CMFCRibbonButton>;

/// A host's skin in which the panel under the pointer has a ground of its own.
class LitPanelSkin : public OpenBlackSkin {
    DECLARE_DYNCREATE(LitPanelSkin)

public:
    COLORREF OnDrawRibbonPanel(CDC* dc, CMFCRibbonPanel* panel, CRect rect, CRect caption) override {
        if (panel != nullptr && panel->IsHighlighted()) {
            dc->FillSolidRect(rect, RGB(90, 70, 60));
        }
        return OpenBlackSkin::OnDrawRibbonPanel(dc, panel, rect, caption);
    }
};
IMPLEMENT_DYNCREATE(LitPanelSkin, OpenBlackSkin)

/// And one in which its labels have.
class LitLabelSkin : public OpenBlackSkin {
    DECLARE_DYNCREATE(LitLabelSkin)

public:
    COLORREF OnDrawRibbonPanel(CDC* dc, CMFCRibbonPanel* panel, CRect rect, CRect caption) override {
        const COLORREF color = OpenBlackSkin::OnDrawRibbonPanel(dc, panel, rect, caption);
        return panel != nullptr && panel->IsHighlighted() ? RGB(255, 240, 120) : color;
    }
};
IMPLEMENT_DYNCREATE(LitLabelSkin, OpenBlackSkin)

class SkinHover : public RibbonBarTest {
protected:
    static constexpr int kPanels = 4;
    static constexpr int kButtons = 5;

    SkinHover() {
        CMFCRibbonCategory* const category = Bar().AddCategory(L"Probes", 0, 0);
        for (int panel = 0; panel < kPanels; ++panel) {
            CMFCRibbonPanel* const added = category->AddPanel(L"Panel");
            added->EnableLaunchButton(commands::firstHandled + 2100 + static_cast<UINT>(panel));
            for (int button = 0; button < kButtons; ++button) {
                added->Add(new ProbeButton(m_log, m_nextId++, L"Button"));
            }
        }
        Bar().SetActiveCategory(category);
    }
    ~SkinHover() override {
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManager::DestroyInstance();
        CMFCVisualManagerOffice2007::CleanStyle();
    }

    void Use(CRuntimeClass* skin) {
        CMFCVisualManager::SetDefaultManager(skin);
        Bar().RecalcLayout();
        Repaint();
    }
    void Repaint() { Bar().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }
    CMFCRibbonPanel& Panel(int panel) { return *Bar().GetActiveCategory()->GetPanel(panel); }
    CMFCRibbonBaseElement& Button(int panel, int button) { return *Panel(panel).GetElement(button); }
    void MoveTo(CPoint point) {
        Bar().SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
        Bar().UpdateWindow();
    }
    /// How many elements the move from panel to panel draws.
    int DrawsFromPanelToPanel(int from, int to) {
        MoveTo(Button(from, 0).GetRect().CenterPoint());
        m_log = {};
        MoveTo(Button(to, kButtons - 1).GetRect().CenterPoint());
        EXPECT_TRUE(m_log.places.contains(&Button(from, 0)) && m_log.places.contains(&Button(to, kButtons - 1)));
        return m_log.draws;
    }
    void ExpectNothingStale() {
        const std::vector<COLORREF> shown = ShownPixels();
        Repaint();
        EXPECT_EQ(shown, ShownPixels());
    }

    DrawingLog m_log;

private:
    UINT m_nextId = commands::firstHandled + 2000;
};

TEST_F(SkinHover, FromPanelToPanelTheTwoElementsAloneAreDrawnInBothSkins) {
    for (CRuntimeClass* const skin : {RUNTIME_CLASS(OpenBlackSkin), RUNTIME_CLASS(OpenSilverSkin)}) {
        Use(skin);
        for (const auto& [from, to] : {std::pair(0, 3), {3, 1}, {1, 2}, {2, 0}}) {
            EXPECT_EQ(DrawsFromPanelToPanel(from, to), 2) << skin->m_lpszClassName << ", " << from << " to " << to;
            ExpectNothingStale();
        }
    }
}

// Captions and launch buttons are the panel's own.
TEST_F(SkinHover, OverCaptionsAndLaunchButtonsNoElementOfAPanelIsDrawn) {
    for (CRuntimeClass* const skin : {RUNTIME_CLASS(OpenBlackSkin), RUNTIME_CLASS(OpenSilverSkin)}) {
        Use(skin);
        MoveTo(Panel(0).GetCaptionRect().CenterPoint());
        m_log = {};
        for (const int panel : {3, 1, 2, 0}) {
            MoveTo(Panel(panel).GetCaptionRect().CenterPoint());
            ExpectNothingStale();
            m_log = {};
            MoveTo(Panel(panel).GetLaunchButton().GetRect().CenterPoint());
            EXPECT_TRUE(Panel(panel).GetLaunchButton().IsHighlighted());
            EXPECT_EQ(m_log.draws, 0) << skin->m_lpszClassName << ", panel " << panel;
            ExpectNothingStale();
            m_log = {};
            MoveTo(Panel((panel + 2) % kPanels).GetCaptionRect().CenterPoint());
            EXPECT_EQ(m_log.draws, 0) << skin->m_lpszClassName << ", panel " << panel;
        }
    }
}

TEST_F(SkinHover, AHostsSkinThatDrawsThePanelUnderThePointerOtherwiseGetsBothRepainted) {
    for (CRuntimeClass* const skin : {RUNTIME_CLASS(LitPanelSkin), RUNTIME_CLASS(LitLabelSkin)}) {
        Use(skin);
        EXPECT_EQ(DrawsFromPanelToPanel(0, 3), 2 * kButtons) << skin->m_lpszClassName;
        ExpectNothingStale();
    }
}

} // namespace

// What a paint draws, and that the pointer finds what was drawn.
#include "tests/ui/ribbon_drawing/probes.h"

#include <set>

namespace {

using ProbeButton = Probe<CMFCRibbonButton>;

class RibbonDrawing : public RibbonBarTest {
protected:
    static constexpr int panels = 4;
    static constexpr int buttonsInAPanel = 7;

    RibbonDrawing() {
        m_category = Bar().AddCategory(L"Probes", 0, 0);
        for (int panel = 0; panel < panels; ++panel) {
            CMFCRibbonPanel* added = m_category->AddPanel(L"Panel");
            for (int button = 0; button < buttonsInAPanel; ++button) {
                const int index = panel * buttonsInAPanel + button;
                added->Add(new ProbeButton(m_log, commands::firstHandled + 2000 + static_cast<UINT>(index), L"Button"));
            }
        }
        Bar().SetActiveCategory(m_category);
        Bar().RecalcLayout();
        Repaint();
    }
    void Repaint() {
        m_log = {};
        Bar().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
    void MoveTo(CMFCRibbonBaseElement& element) {
        const CPoint point = element.GetRect().CenterPoint();
        Bar().SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
        Bar().UpdateWindow();
    }
    CMFCRibbonBaseElement& Button(int panel, int button) { return *m_category->GetPanel(panel)->GetElement(button); }

    CMFCRibbonCategory* m_category = nullptr;
    DrawingLog m_log;
};

TEST_F(RibbonDrawing, AFullRepaintDrawsEveryShownButtonOnce) {
    EXPECT_EQ(m_log.draws, panels * buttonsInAPanel);
    EXPECT_EQ(m_log.places.size(), static_cast<size_t>(panels * buttonsInAPanel));
}

TEST_F(RibbonDrawing, ThePointerFromButtonToButtonRepaintsThoseTwoAndNothingMore) {
    const std::pair<int, int> pairs[] = {{0, 1}, {0, buttonsInAPanel - 1}, {buttonsInAPanel - 1, 3}};
    for (const auto& [from, to] : pairs) {
        MoveTo(Button(1, from));
        m_log = {};
        MoveTo(Button(1, to));
        EXPECT_EQ(m_log.draws, 2) << from << " to " << to;
        EXPECT_TRUE(m_log.places.contains(&Button(1, from)) && m_log.places.contains(&Button(1, to)));
    }
}

TEST_F(RibbonDrawing, ThePointerFromPanelToPanelRepaintsThoseTwoPanels) {
    MoveTo(Button(0, 0));
    m_log = {};
    MoveTo(Button(3, 0));
    EXPECT_EQ(m_log.draws, 2 * buttonsInAPanel);
    for (int button = 0; button < buttonsInAPanel; ++button) {
        EXPECT_FALSE(m_log.places.contains(&Button(1, button)) || m_log.places.contains(&Button(2, button)));
    }
}

TEST_F(RibbonDrawing, ThePointerAtRestRepaintsNothing) {
    MoveTo(Button(2, 2));
    m_log = {};
    MoveTo(Button(2, 2));
    EXPECT_EQ(m_log.draws, 0);
}

TEST_F(RibbonDrawing, EveryPixelBelongsToTheElementThatWasDrawnThere) {
    std::set<int> modes;
    for (const int width : {1000, 800, 700, 620, 540, 470, 400, 330}) {
        SetClientWidth(width);
        Repaint();
        const CRect area = m_category->GetRect();
        for (int y = area.top; y < area.bottom; ++y) {
            for (int x = area.left; x < area.right; ++x) {
                const CMFCRibbonBaseElement* drawn = nullptr;
                for (const auto& [element, rect] : m_log.places) {
                    if (rect.PtInRect(CPoint(x, y))) {
                        drawn = element;
                    }
                }
                CMFCRibbonBaseElement* hit = Bar().HitTest(CPoint(x, y), TRUE);
                // A collapsed panel's button stands for the panel and is no probe.
                if (dynamic_cast<ProbeButton*>(hit) == nullptr) {
                    hit = nullptr;
                }
                ASSERT_EQ(hit, drawn) << "width " << width << " at " << x << ", " << y;
            }
        }
        modes.insert(static_cast<int>(m_log.places.size()));
    }
    EXPECT_GT(modes.size(), 2u); // the widths did show different layouts
}

TEST_F(RibbonDrawing, TheSameWidthGivesTheSamePlacesWhicheverWayItWasReached) {
    std::map<int, std::map<const CMFCRibbonBaseElement*, CRect>> seen;
    for (const int width : {1000, 900, 800, 700, 600, 500, 400, 800, 300, 900, 600, 1000, 500, 300, 700, 400}) {
        SetClientWidth(width);
        Repaint();
        const auto [first, isNew] = seen.try_emplace(width, m_log.places);
        EXPECT_TRUE(isNew || first->second == m_log.places) << width;
    }
}

TEST_F(RibbonDrawing, ARepaintFromKeptPicturesGivesTheSamePixels) {
    const auto pixels = [this] {
        Repaint();
        return ShownPixels();
    };
    SetClientWidth(777); // a width that nothing was painted in yet
    const std::vector<COLORREF> first = pixels();
    EXPECT_NE(first, std::vector<COLORREF>(first.size(), first[0]));
    EXPECT_EQ(pixels(), first);
}

/// Notes for which buttons it is asked to draw the arrow of a menu.
class ArrowNotingManager : public CMFCVisualManager {
    DECLARE_DYNCREATE(ArrowNotingManager)

public:
    static inline std::set<CMFCRibbonButton*> s_buttons;
    void OnDrawRibbonDefaultPaneButtonIndicator(CDC* /*dc*/, CMFCRibbonButton* button, CRect /*rect*/,
                                                BOOL /*isSelected*/, BOOL /*isHot*/) override {
        s_buttons.insert(button);
    }
};
IMPLEMENT_DYNCREATE(ArrowNotingManager, CMFCVisualManager)

TEST_F(RibbonDrawing, TheManagerDrawsTheArrowOfSmallButtonsAsOfLargeOnes) {
    auto* const small = new CMFCRibbonButton(commands::firstHandled + 2500, L"Small");
    small->AddSubItem(new CMFCRibbonButton(commands::firstHandled + 2501, L"One"));
    m_category->GetPanel(0)->Add(small);
    Bar().RecalcLayout();
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(ArrowNotingManager));
    ArrowNotingManager::s_buttons.clear();
    Repaint();
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManager));
    EXPECT_EQ(ArrowNotingManager::s_buttons, std::set<CMFCRibbonButton*>{small});
}

} // namespace

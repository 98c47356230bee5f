// How the bar looks minimised, and with the quick access toolbar below it.
#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include "afxribbonpanelmenu.h"
#include "afxvisualmanager.h"
#include "afxvisualmanageroffice2007.h"
#include "tests/support/canvas.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"

using ::testing::Each;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;

namespace {

std::map<std::wstring, bool> g_tabsDrawnOpen;

/// Notes which tabs are drawn as those of the page below.
class NotingLook : public CMFCVisualManager {
    DECLARE_DYNCREATE(NotingLook)
public:
    COLORREF OnDrawRibbonCategoryTab(CDC* dc, CMFCRibbonTab* tab, BOOL isActive) override {
        g_tabsDrawnOpen[static_cast<LPCTSTR>(tab->GetParentCategory()->GetName())] = isActive != FALSE;
        return CMFCVisualManager::OnDrawRibbonCategoryTab(dc, tab, isActive);
    }
};
IMPLEMENT_DYNCREATE(NotingLook, CMFCVisualManager)

class MinimizedLook : public RibbonBarTest {
protected:
    ~MinimizedLook() override {
        CMFCRibbonPanelMenu::DismissAll();
        PumpPending();
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManager));
    }

    std::map<std::wstring, bool> DrawTabs() {
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(NotingLook));
        g_tabsDrawnOpen.clear();
        Draw();
        return g_tabsDrawnOpen;
    }
    void Draw() {
        CRect client;
        Bar().GetClientRect(client);
        m_canvas = std::make_unique<Canvas>(client.Width());
        Bar().DoPaint(m_canvas->Dc());
    }
    /// The brightest minus the darkest point, 0 to 255.
    int Contrast(const CRect& rect) const {
        int low = 255;
        int high = 0;
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x) {
                const std::uint32_t color = m_canvas->At(x, y);
                const int light = static_cast<int>(
                    (299 * (color >> 16 & 0xFF) + 587 * (color >> 8 & 0xFF) + 114 * (color & 0xFF)) / 1000);
                low = std::min(low, light);
                high = std::max(high, light);
            }
        }
        return high - low;
    }

    std::unique_ptr<Canvas> m_canvas;
};

TEST_F(MinimizedLook, NoTabLooksOpenUntilItHasOpenedItsPanels) {
    EXPECT_THAT(DrawTabs(), UnorderedElementsAre(Pair(L"Home", true), Pair(L"View", false)));
    Bar().ToggleMimimizeState();
    PumpPending();
    EXPECT_THAT(DrawTabs(), UnorderedElementsAre(Pair(L"Home", false), Pair(L"View", false)));
    m_pointer.Click(Bar(), Bar().GetCategory(1)->GetTabRect().CenterPoint());
    PumpPending();
    ASSERT_TRUE(CMFCRibbonPanelMenu::IsAnyOpen());
    EXPECT_THAT(DrawTabs(), UnorderedElementsAre(Pair(L"Home", false), Pair(L"View", true)));
    CMFCRibbonPanelMenu::DismissAll();
    PumpPending();
    EXPECT_THAT(DrawTabs(), Each(Pair(testing::_, false)));
    Bar().ToggleMimimizeState();
    PumpPending();
    EXPECT_THAT(DrawTabs(), UnorderedElementsAre(Pair(L"Home", false), Pair(L"View", true)));
}

TEST_F(MinimizedLook, TheQuickAccessMenusArrowStandsOutAboveAndBelowTheRibbon) {
    Bar().SetQuickAccessCommands(CommandList{commands::paste});
    using Manager = CMFCVisualManagerOffice2007;
    for (const Manager::Style style : {Manager::Office2007_LunaBlue, Manager::Office2007_ObsidianBlack,
                                       Manager::Office2007_Aqua, Manager::Office2007_Silver}) {
        Manager::SetStyle(style);
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
        for (const BOOL isOnTop : {TRUE, FALSE}) {
            for (const bool isHot : {false, true}) {
                SCOPED_TRACE(std::to_string(style) + (isOnTop ? " above" : " below") + (isHot ? " hot" : ""));
                Bar().SetQuickAccessToolbarOnTop(isOnTop);
                Bar().ForceRecalcLayout();
                PumpPending();
                CRect arrow = Bar().GetQuickAccessToolbarLocation();
                arrow.left = Bar().GetQATCommandsLocation().right;
                m_pointer.MoveTo(Bar(), isHot ? arrow.CenterPoint() : CPoint(500, 60));
                Draw();
                arrow.DeflateRect(3, 3);
                EXPECT_GT(Contrast(arrow), 80);
            }
        }
    }
}

} // namespace

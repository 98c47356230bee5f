// A narrow bar at every scale: all tabs and panels can be scrolled to, however long their names are.
#include "tests/support/canvas.h"
#include "tests/ui/ribbon_drawing/random_ribbon.h"

#include <set>

namespace {

constexpr int kNarrowest = 300;

class NarrowBar : public RandomRibbon, public testing::WithParamInterface<int> {
protected:
    NarrowBar() : RandomRibbon(GetParam() / 100.0) {
        Bar().SetApplicationButton(&m_application, CSize(44, 24));
        for (const LPCTSTR name : {L"One", L"Another", L"The third", L"The last"}) {
            Bar().AddCategory(name, 0, 0);
        }
        Fill(static_cast<unsigned>(GetParam()));
        m_category->AddPanel(CString(L'w', 40))->Add(new CMFCRibbonButton(commands::paste, L"Button"));
        m_category->AddPanel(L"Wide content")->Add(new CMFCRibbonEdit(commands::size, 500));
        Bar().RecalcLayout();
    }
    ~NarrowBar() override { Bar().SetApplicationButton(nullptr, CSize(0, 0)); }

    bool IsInsideBar(const CRect& rect) {
        CRect client;
        Bar().GetClientRect(client);
        return !rect.IsRectEmpty() && CRect(client & rect) == rect;
    }
    bool IsHit(const CMFCRibbonBaseElement& element) {
        return IsInsideBar(element.GetRect()) && Bar().HitTest(element.GetRect().CenterPoint(), TRUE) == &element;
    }
    /// The panels whose content or button can be hit, from one end of the category to the other.
    std::set<const CMFCRibbonPanel*> PanelsInReach() {
        std::set<const CMFCRibbonPanel*> found;
        while (m_category->OnScrollHorz(TRUE)) {
        }
        do {
            for (CMFCRibbonPanel* panel : Panels()) {
                const bool isHit = panel->IsCollapsed() ? IsHit(panel->GetDefaultButton()) : AllAreHit(*panel);
                if (IsInsideBar(panel->GetRect()) && isHit) {
                    found.insert(panel);
                }
            }
        } while (m_category->OnScrollHorz(FALSE));
        return found;
    }
    bool AllAreHit(const CMFCRibbonPanel& panel) {
        const auto elements = ElementsOf(panel);
        return std::all_of(elements.begin(), elements.end(), [this](CMFCRibbonBaseElement* element) {
            return !element->IsVisible() || IsInsideBar(element->GetRect());
        });
    }
    int TabsInReach() {
        std::set<int> found;
        const int count = Bar().GetCategoryCount();
        for (int turn = 0; turn < count; ++turn) {
            Bar().ScrollTabs(TRUE);
        }
        for (int turn = 0; turn < count; ++turn) {
            for (int index = 0; index < count; ++index) {
                if (IsHit(Bar().GetCategory(index)->GetTab())) {
                    found.insert(index);
                }
            }
            Bar().ScrollTabs(FALSE);
        }
        return static_cast<int>(found.size());
    }

    CMFCRibbonApplicationButton m_application;
};

TEST_P(NarrowBar, EveryTabAndEveryPanelCanBeReached) {
    for (int width = kNarrowest; width <= 400; width += 9) {
        SCOPED_TRACE(testing::Message() << "width " << width);
        SetWidth(width);
        ASSERT_EQ(Bar().GetHideFlags(), 0u);
        EXPECT_GT(Bar().GetCategoryHeight(), 0);
        EXPECT_EQ(PanelsInReach().size(), Panels().size());
        EXPECT_EQ(TabsInReach(), Bar().GetCategoryCount());
    }
}

// A fault in painting fails every test of this program.
TEST_P(NarrowBar, HoweverNarrowTheBarIsPainted) {
    for (int width = 1; width < 800; width += width < 60 ? 1 : 37) {
        SCOPED_TRACE(testing::Message() << "width " << width);
        SetWidth(width);
        const CSize size = ClientSize(Bar());
        if (size.cx <= 0 || size.cy <= 0) {
            continue;
        }
        Canvas picture(size);
        Bar().DoPaint(picture.Dc());
        picture.Close();
        EXPECT_NE(picture.At(0, 0), Canvas::background);
    }
}

TEST_P(NarrowBar, AScrolledRowOfTabsDependsOnTheWidthAloneUntilEverythingFits) {
    const auto places = [this] {
        std::vector<CRect> rects;
        for (int index = 0; index < Bar().GetCategoryCount(); ++index) {
            rects.push_back(Bar().GetCategory(index)->GetTabRect());
        }
        return rects;
    };
    SetWidth(kNarrowest);
    const auto fresh = places();
    for (int turn = 0; turn < Bar().GetCategoryCount(); ++turn) {
        Bar().ScrollTabs(FALSE);
    }
    const auto scrolled = places();
    const bool doesScroll = scrolled != fresh;
    EXPECT_EQ(doesScroll, GetParam() > 100) << "at the larger scales the tabs have no room";
    SetWidth(kNarrowest + 30);
    SetWidth(kNarrowest);
    EXPECT_EQ(places(), scrolled) << "a little wider and back";
    SetWidth(1500);
    SetWidth(kNarrowest);
    EXPECT_EQ(places(), fresh) << "everything did fit";
}

INSTANTIATE_TEST_SUITE_P(Scales, NarrowBar, testing::Values(100, 125, 150, 175, 200));

} // namespace

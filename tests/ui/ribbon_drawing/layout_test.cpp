// The layout of real bars with panels by chance, at every width that a screen may give them.
#include "tests/ui/ribbon_drawing/random_ribbon.h"

#include <algorithm>
#include <set>

namespace {

constexpr int kNarrowest = 300, kWidest = 2000;

/// Where everything of a category lies.
struct Places {
    std::vector<CRect> rects;
    std::vector<bool> collapsed;
    bool operator==(const Places&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Places& places) {
        for (const CRect& rect : places.rects) {
            out << rect.left << ',' << rect.top << '-' << rect.right << ',' << rect.bottom << ' ';
        }
        return out;
    }
};

class RibbonLayout : public RandomRibbon, public testing::WithParamInterface<unsigned> {
protected:
    explicit RibbonLayout(double scale = 1.0, Direction direction = Direction::LeftToRight)
        : RandomRibbon(scale, direction) {
        Fill(GetParam());
    }

    Places CurrentPlaces() const {
        Places places;
        for (const CMFCRibbonPanel* panel : Panels()) {
            places.rects.push_back(panel->GetRect());
            places.collapsed.push_back(panel->IsCollapsed() != FALSE && !panel->GetRect().IsRectEmpty());
            for (const CMFCRibbonBaseElement* element : ElementsOf(*panel)) {
                places.rects.push_back(element->GetRect());
            }
        }
        return places;
    }
    /// All non-empty ones apart from each other and inside the area.
    static void ExpectApartAndInside(std::vector<CRect> rects, const CRect& area) {
        std::erase_if(rects, [](const CRect& rect) { return rect.IsRectEmpty(); });
        for (std::size_t one = 0; one < rects.size(); ++one) {
            ASSERT_TRUE(CRect(area & rects[one]) == rects[one]) << "outside";
            for (std::size_t other = one + 1; other < rects.size(); ++other) {
                ASSERT_TRUE(CRect(rects[one] & rects[other]).IsRectEmpty()) << one << " over " << other;
            }
        }
    }
    void ExpectInOrder() const {
        std::vector<CRect> rects;
        for (const CMFCRibbonPanel* panel : Panels()) {
            rects.push_back(panel->GetRect());
            CRect content = panel->GetRect();
            content.bottom = panel->GetCaptionRect().top;
            std::vector<CRect> elements;
            for (const CMFCRibbonBaseElement* element : ElementsOf(*panel)) {
                elements.push_back(element->GetRect());
            }
            ASSERT_NO_FATAL_FAILURE(ExpectApartAndInside(elements, content));
        }
        rects.push_back(m_category->ScrollLeftRect());
        rects.push_back(m_category->ScrollRightRect());
        ASSERT_NO_FATAL_FAILURE(ExpectApartAndInside(rects, m_category->GetRect()));
    }
    /// In the bar, or behind the button of its collapsed panel, or in a panel that can be scrolled to.
    void ExpectReachable() const {
        const bool scrolls = !m_category->ScrollRightRect().IsRectEmpty();
        for (const CMFCRibbonPanel* panel : Panels()) {
            const bool isShown = !panel->GetRect().IsRectEmpty();
            ASSERT_TRUE(isShown || scrolls);
            for (const CMFCRibbonBaseElement* element : ElementsOf(*panel)) {
                const bool belongsIntoBar = isShown && !panel->IsCollapsed() && element->IsVisible();
                ASSERT_EQ(!element->GetRect().IsRectEmpty(), belongsIntoBar);
            }
        }
    }
    void ExpectVisibleOnesToHavePlaces() const {
        CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
        m_category->GetVisibleElements(elements);
        for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
            ASSERT_FALSE(elements[index]->GetRect().IsRectEmpty()) << CString(elements[index]->GetText()).GetString();
        }
    }
    void CheckEveryWidth(int step) {
        std::vector<int> narrower(Panels().size(), 0);
        for (int width = kNarrowest; width <= kWidest; width += step) {
            SCOPED_TRACE(testing::Message() << "width " << width);
            SetWidth(width);
            ASSERT_EQ(m_category->GetRect().Width(), width);
            ASSERT_NO_FATAL_FAILURE(ExpectInOrder());
            ASSERT_NO_FATAL_FAILURE(ExpectReachable());
            ASSERT_NO_FATAL_FAILURE(ExpectVisibleOnesToHavePlaces());
            const std::vector<int> widths = PanelWidths();
            for (std::size_t panel = 0; panel < widths.size(); ++panel) {
                ASSERT_GE(widths[panel], narrower[panel]) << panel;
            }
            narrower = widths;
        }
    }
    void CheckPixels(std::initializer_list<int> clientWidths);
    void ScrollToTheEnd() {
        while (m_category->OnScrollHorz(FALSE)) {
        }
    }
    std::vector<int> PanelWidths() const {
        std::vector<int> widths;
        for (const CMFCRibbonPanel* panel : Panels()) {
            widths.push_back(panel->GetRect().Width());
        }
        return widths;
    }
};

TEST_P(RibbonLayout, AtEveryWidthAllIsApartInsideAndReachableAndGrowsWithTheBar) { CheckEveryWidth(1); }

TEST_P(RibbonLayout, AWidthGivesTheSamePlacesWhicheverWayItWasReached) {
    std::vector<Places> upwards;
    for (int width = kNarrowest; width <= kWidest; ++width) {
        SetWidth(width);
        upwards.push_back(CurrentPlaces());
    }
    const auto expectSame = [&](int width) {
        SetWidth(width);
        ASSERT_EQ(CurrentPlaces(), upwards[static_cast<std::size_t>(width - kNarrowest)]) << width;
    };
    for (int width = kWidest; width >= kNarrowest; --width) {
        ASSERT_NO_FATAL_FAILURE(expectSame(width));
    }
    std::mt19937 random(GetParam());
    for (int jump = 0; jump < 500; ++jump) {
        ASSERT_NO_FATAL_FAILURE(expectSame(kNarrowest + static_cast<int>(random() % (kWidest - kNarrowest + 1))));
    }
    std::set<std::vector<bool>> states;
    for (const Places& places : upwards) {
        states.insert(places.collapsed);
    }
    EXPECT_GT(states.size(), 2u) << "the widths did not change much";
}

/// In larger windows and mirrored ones; a coarser sample.
class EnlargedRibbonLayout : public RibbonLayout {
protected:
    EnlargedRibbonLayout() : RibbonLayout(1.5, GetParam() % 2 == 0 ? Direction::RightToLeft : Direction::LeftToRight) {}
};

class MirroredRibbonLayout : public RibbonLayout {
protected:
    MirroredRibbonLayout() : RibbonLayout(1.0, Direction::RightToLeft) {}
};

TEST_P(EnlargedRibbonLayout, AllIsApartInsideAndReachableAndGrowsWithTheBar) { CheckEveryWidth(13); }
TEST_P(MirroredRibbonLayout, AllIsApartInsideAndReachableAndGrowsWithTheBar) { CheckEveryWidth(17); }

TEST_P(RibbonLayout, EveryPixelBelongsToTheElementThatWasDrawnThere) { CheckPixels({1900, 1200, 800, 560, 380}); }
TEST_P(EnlargedRibbonLayout, EveryPixelBelongsToTheElementThatWasDrawnThere) { CheckPixels({1300, 700, 380}); }
TEST_P(MirroredRibbonLayout, EveryPixelBelongsToTheElementThatWasDrawnThere) { CheckPixels({1200, 560}); }

void RibbonLayout::CheckPixels(std::initializer_list<int> clientWidths) {
    for (const int width : clientWidths) {
        SetWidth(width);
        m_log = {};
        Bar().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        // What is drawn at each pixel; probes may not draw over each other.
        const CRect area = m_category->GetRect();
        std::vector<const CMFCRibbonBaseElement*> drawn(static_cast<std::size_t>(area.Width()) * area.Height());
        const auto at = [&](int x, int y) -> const CMFCRibbonBaseElement*& {
            return drawn[static_cast<std::size_t>(y - area.top) * area.Width() + (x - area.left)];
        };
        for (const auto& [element, rect] : m_log.places) {
            for (int y = rect.top; y < rect.bottom; ++y) {
                for (int x = rect.left; x < rect.right; ++x) {
                    ASSERT_EQ(at(x, y), nullptr) << width;
                    at(x, y) = element;
                }
            }
        }
        for (int y = area.top; y < area.bottom; ++y) {
            for (int x = area.left; x < area.right; ++x) {
                const CMFCRibbonBaseElement* hit = Bar().HitTest(CPoint(x, y), TRUE);
                // What is no probe: groups around their buttons, separators, buttons of collapsed panels.
                const bool isProbe = m_log.places.contains(hit);
                ASSERT_EQ(isProbe ? hit : nullptr, at(x, y)) << "width " << width << " at " << x << ", " << y;
            }
        }
    }
}

TEST_P(RibbonLayout, TheRowOfTabsAndTheQuickAccessToolbarAreHitWhereTheyAreDrawn) {
    Bar().SetQuickAccessCommands(CommandList{commands::paste, commands::cut, commands::find});
    for (const int width : {1000, 420}) {
        SetWidth(width);
        std::map<const CMFCRibbonBaseElement*, CRect> places;
        for (int index = 0; index < Bar().GetCategoryCount(); ++index) {
            places[&Bar().GetCategory(index)->GetTab()] = Bar().GetCategory(index)->GetTabRect();
        }
        const int bottom = m_category->GetRect().top;
        for (int y = 0; y < bottom; ++y) {
            for (int x = 0; x < width; ++x) {
                const CPoint point(x, y);
                const CMFCRibbonBaseElement* hit = Bar().HitTest(point, TRUE);
                const auto place = std::find_if(places.begin(), places.end(),
                                                [&](const auto& tab) { return tab.second.PtInRect(point) != FALSE; });
                const bool isTab = places.contains(hit);
                ASSERT_EQ(isTab ? hit : nullptr, place == places.end() ? nullptr : place->first) << x << ", " << y;
                ASSERT_TRUE(hit == nullptr || hit->GetRect().PtInRect(point)) << x << ", " << y;
            }
        }
    }
}

TEST_P(RibbonLayout, AScrolledCategoryDependsOnTheWidthAloneUntilEverythingFits) {
    // Panels enough to scroll at several widths.
    for (int more = 0; more < 12; ++more) {
        m_category->AddPanel(L"Another")->Add(new Probe<CMFCRibbonLabel>(m_log, L"A label that takes some room"));
    }
    Bar().RecalcLayout();
    const auto scrolls = [this] {
        return !m_category->ScrollLeftRect().IsRectEmpty() || !m_category->ScrollRightRect().IsRectEmpty();
    };
    std::map<int, Places> fresh;
    int widest = kNarrowest;
    for (int width = kNarrowest; width <= kWidest; width += 20) {
        SetWidth(width);
        fresh[width] = CurrentPlaces();
        widest = scrolls() ? width : widest;
    }
    ASSERT_GT(widest, kNarrowest + 200);

    SetWidth(kNarrowest);
    ScrollToTheEnd();
    std::map<int, Places> scrolled;
    for (int width = kNarrowest; width <= widest; width += 20) {
        SetWidth(width);
        ASSERT_TRUE(scrolls());
        scrolled[width] = CurrentPlaces();
    }
    EXPECT_NE(scrolled[kNarrowest], fresh[kNarrowest]);
    for (int width = widest; width >= kNarrowest; width -= 20) {
        SetWidth(width);
        EXPECT_EQ(CurrentPlaces(), scrolled[width]) << width;
    }
    SetWidth(kWidest);
    ASSERT_FALSE(scrolls());
    for (int width = kWidest; width >= kNarrowest; width -= 20) {
        SetWidth(width);
        EXPECT_EQ(CurrentPlaces(), fresh[width]) << width << ", after everything did fit";
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RibbonLayout, testing::Range(1u, 5u));
INSTANTIATE_TEST_SUITE_P(Seeds, EnlargedRibbonLayout, testing::Range(5u, 7u));
INSTANTIATE_TEST_SUITE_P(Seeds, MirroredRibbonLayout, testing::Range(7u, 8u));

} // namespace

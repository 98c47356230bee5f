#include "tests/ui/ribbon_bar/ribbon_frame.h"

namespace {

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;

bool IsContainer(const CMFCRibbonBaseElement& element) {
    return element.IsKindOf(RUNTIME_CLASS(CMFCRibbonButtonsGroup));
}

TEST_F(RibbonBarTest, TheHitTestFindsEveryElementAtTheCornersOfItsRectangle) {
    for (const int width : {1000, 700, 500, 400, 320}) {
        SetClientWidth(width);
        ElementArray elements;
        Bar().GetActiveCategory()->GetVisibleElements(elements);
        ASSERT_GT(elements.GetSize(), 0);
        int looked = 0;
        for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
            CMFCRibbonBaseElement& element = *elements[index];
            const CRect rect = element.GetRect();
            if (rect.IsRectEmpty() || IsContainer(element)) {
                continue;
            }
            ++looked;
            for (const CPoint& point : {rect.TopLeft(), CPoint(rect.right - 1, rect.bottom - 1), rect.CenterPoint()}) {
                EXPECT_EQ(Bar().HitTest(point, TRUE), &element) << width << ' ' << element.GetID();
            }
            EXPECT_NE(Bar().HitTest(CPoint(rect.right, rect.top), TRUE), &element);
            EXPECT_NE(Bar().HitTest(CPoint(rect.left, rect.bottom), TRUE), &element);
            EXPECT_EQ(Bar().HitTest(rect.CenterPoint()), nullptr) << "the category was not asked for";
        }
        EXPECT_GT(looked, 1) << width;
    }
}

TEST_F(RibbonBarTest, ElementsLieInsideTheirPanelsAndPanelsInsideTheBar) {
    for (int width = 1200; width >= 300; width -= 45) {
        SetClientWidth(width);
        CRect client;
        Bar().GetClientRect(client);
        CMFCRibbonCategory* category = Bar().GetActiveCategory();
        int right = 0;
        for (int position = 0; position < category->GetPanelCount(); ++position) {
            CMFCRibbonPanel* panel = category->GetPanel(position);
            CRect inside;
            inside.IntersectRect(client, panel->GetRect());
            EXPECT_EQ(inside, panel->GetRect()) << width;
            EXPECT_GE(panel->GetRect().left, right) << width;
            right = panel->GetRect().right;
            for (int index = 0; index < panel->GetCount(); ++index) {
                const CRect rect = panel->GetElement(index)->GetRect();
                inside.IntersectRect(rect, panel->GetRect());
                EXPECT_TRUE(rect.IsRectEmpty() || inside == rect) << width << ' ' << index;
            }
        }
    }
}

TEST_F(RibbonBarTest, ElementsHaveAtLeastTheSizeThatTheyAskFor) {
    CClientDC dc(&Bar());
    for (const int width : {1000, 500, 400}) {
        SetClientWidth(width);
        ElementArray elements;
        Bar().GetActiveCategory()->GetVisibleElements(elements);
        for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
            const CSize wanted = elements[index]->GetSize(&dc);
            if (!elements[index]->IsSeparator()) {
                // Edits and sliders give way where there is no room for them, down to their narrowest.
                const int narrowest = elements[index]->GetNarrowestWidth(&dc);
                const int least = narrowest > 0 && width < 1000 ? narrowest : static_cast<int>(wanted.cx);
                EXPECT_GE(elements[index]->GetRect().Width(), least) << width << ' ' << elements[index]->GetID();
                EXPECT_GE(elements[index]->GetRect().Height(), wanted.cy) << width << ' ' << elements[index]->GetID();
            }
        }
    }
}

TEST_F(RibbonBarTest, TheSameWidthGivesTheSamePlaces) {
    SetClientWidth(430);
    std::vector<CRect> before;
    before.reserve(4);
    for (int index = 0; index < 4; ++index) {
        before.push_back(Bar().GetCategory(0)->GetPanel(0)->GetElement(index)->GetRect());
    }
    SetClientWidth(900);
    SetClientWidth(430);
    for (int index = 0; index < 4; ++index) {
        EXPECT_EQ(Bar().GetCategory(0)->GetPanel(0)->GetElement(index)->GetRect(), before[static_cast<size_t>(index)]);
    }
}

TEST_F(RibbonBarTest, OverATabTheHitTestGivesTheTabOfItsCategory) {
    CMFCRibbonBaseElement* hit = Bar().HitTest(Center(Bar().GetCategory(1)->GetTabRect()));
    ASSERT_NE(hit, nullptr);
    EXPECT_TRUE(hit->IsKindOf(RUNTIME_CLASS(CMFCRibbonTab)));
    EXPECT_EQ(hit->GetParentCategory(), Bar().GetCategory(1));
}

TEST_F(RibbonBarTest, PanelCaptionsAreHitOnlyWhenAskedFor) {
    CMFCRibbonPanel* panel = Bar().GetCategory(0)->GetPanel(0);
    const CPoint caption = panel->GetCaptionRect().CenterPoint();
    EXPECT_EQ(Bar().HitTest(caption, TRUE, FALSE), nullptr);
    EXPECT_EQ(Bar().HitTest(caption, TRUE, TRUE), &panel->GetDefaultButton());
}

TEST_F(RibbonBarTest, ACollapsedPanelIsOneButton) {
    AddManyButtons(60, 6);
    Bar().SetActiveCategory(Bar().GetCategory(2));
    SetClientWidth(400);
    CMFCRibbonPanel* last = Bar().GetCategory(2)->GetPanel(0);
    ASSERT_TRUE(last->IsCollapsed());
    EXPECT_EQ(Bar().HitTest(last->GetRect().CenterPoint(), TRUE), &last->GetDefaultButton());
    EXPECT_TRUE(last->GetElement(0)->GetRect().IsRectEmpty());
}

TEST_F(RibbonBarTest, PanelsWithoutRoomScrollIntoView) {
    AddManyButtons(120, 6);
    CMFCRibbonCategory* category = Bar().GetCategory(2);
    Bar().SetActiveCategory(category);
    SetClientWidth(400);
    ASSERT_TRUE(category->GetPanel(19)->GetRect().IsRectEmpty());
    CMFCRibbonBaseElement* right = category->GetLastVisibleElement();
    ASSERT_TRUE(right->IsKindOf(RUNTIME_CLASS(CRibbonCategoryScroll)));
    for (int click = 0; click < 20 && category->GetPanel(19)->GetRect().IsRectEmpty(); ++click) {
        m_pointer.Click(Bar(), Center(right->GetRect()));
    }
    EXPECT_FALSE(category->GetPanel(19)->GetRect().IsRectEmpty());
    EXPECT_TRUE(category->GetPanel(0)->GetRect().IsRectEmpty());
}

TEST_F(RibbonBarTest, ScrollingRightAfterAPanelWasAddedMeasuresItFirst) {
    CMFCRibbonCategory* category = Bar().GetActiveCategory();
    CMFCRibbonPanel* panel = category->AddPanel(L"Added");
    panel->Add(new CMFCRibbonButton(commands::closesFrame, L"Close"));
    EXPECT_FALSE(category->OnScrollHorz(FALSE)) << "everything is in view";
    EXPECT_FALSE(panel->GetRect().IsRectEmpty());
}

TEST_F(RibbonBarTest, TabsAreShortenedWhenTheyDoNotFit) {
    for (int index = 0; index < 12; ++index) {
        Bar().AddCategory(L"A category with a long name", 0, 0);
    }
    Bar().RecalcLayout();
    EXPECT_GT(Bar().GetTabTrancateRatio(), 0);
    CRect client;
    Bar().GetClientRect(client);
    EXPECT_LE(Bar().GetCategory(13)->GetTabRect().right, client.right);
    CMFCRibbonBaseElement* tab = Bar().HitTest(Center(Bar().GetCategory(13)->GetTabRect()));
    ASSERT_NE(tab, nullptr);
    EXPECT_STREQ(tab->GetToolTipText(), L"A category with a long name");
    EXPECT_STREQ(Bar().HitTest(Center(Bar().GetCategory(0)->GetTabRect()))->GetToolTipText(), L"");
}

TEST_F(RibbonBarTest, EverythingGrowsWithTheImageScale) {
    const CRect before = Element(commands::paste).GetRect();
    const int height = Bar().CalcFixedLayout(TRUE, TRUE).cy;
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(2.0));
    Bar().ForceRecalcLayout();
    EXPECT_GE(Element(commands::paste).GetRect().Height(), before.Height() * 18 / 10);
    EXPECT_GE(Bar().CalcFixedLayout(TRUE, TRUE).cy, height * 18 / 10);
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(0));
    Bar().ForceRecalcLayout();
    EXPECT_EQ(Element(commands::paste).GetRect(), before);
}

} // namespace

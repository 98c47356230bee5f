// Where the lines between the elements of a status bar are seen.
#include "extended_status.h"

#include "tests/support/canvas.h"

#include <afxvisualmanager.h>

#include <algorithm>

namespace {

/// Notes where it is to draw separators.
class SeparatorNotingManager : public CMFCVisualManagerOffice2007 {
    DECLARE_DYNCREATE(SeparatorNotingManager)

public:
    static inline std::vector<CRect> s_places;
    void OnDrawSeparator(CDC* /*dc*/, CBasePane* /*bar*/, CRect rect, BOOL /*isHorizontal*/) override {
        s_places.push_back(rect);
    }
};
IMPLEMENT_DYNCREATE(SeparatorNotingManager, CMFCVisualManagerOffice2007)

class StatusBarExSeparators : public ExtendedStatus {
protected:
    StatusBarExSeparators() { CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(SeparatorNotingManager)); }
    ~StatusBarExSeparators() override { CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManager)); }

    CRect AddEx(CMFCRibbonBaseElement* element) {
        bar.AddExtendedElement(element, L"", TRUE);
        bar.EnsureLayout();
        return element->GetRect();
    }
};

TEST_F(StatusBarExSeparators, StandMidwayBetweenTheirNeighbours) {
    auto* const before = new CMFCRibbonLabelEx(L"13.9 N");
    auto* const middle = new CMFCRibbonButton(1, L"light");
    auto* const behind = new CMFCRibbonLabelEx(L"1 : 20");
    AddEx(before);
    AddEx(new CMFCRibbonSeparator(FALSE));
    AddEx(middle);
    AddEx(new CMFCRibbonSeparator(FALSE));
    AddEx(behind);
    SeparatorNotingManager::s_places.clear();
    Canvas canvas(ClientSize(bar));
    bar.DoPaint(canvas.Dc());
    ASSERT_EQ(SeparatorNotingManager::s_places.size(), 2U);
    const auto roomsAround = [](const CRect& line, const CMFCRibbonBaseElement& left,
                                const CMFCRibbonBaseElement& right) {
        return std::pair(line.left - left.GetRect().right, right.GetRect().left - line.right);
    };
    const auto [first, second] = roomsAround(SeparatorNotingManager::s_places[0], *before, *middle);
    EXPECT_NEAR(first, second, 1);
    const auto [third, fourth] = roomsAround(SeparatorNotingManager::s_places[1], *middle, *behind);
    EXPECT_NEAR(third, fourth, 1);
}

TEST_F(StatusBarExSeparators, AtAnEndStandInTheirOwnPlace) {
    AddEx(new CMFCRibbonSeparator(FALSE));
    AddEx(new CMFCRibbonButton(1, L"light"));
    SeparatorNotingManager::s_places.clear();
    Canvas canvas(ClientSize(bar));
    bar.DoPaint(canvas.Dc());
    ASSERT_EQ(SeparatorNotingManager::s_places.size(), 1U);
    EXPECT_EQ(SeparatorNotingManager::s_places[0], bar.GetExElement(0)->GetRect());
}

} // namespace

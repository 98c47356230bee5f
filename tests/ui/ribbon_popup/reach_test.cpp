// Whatever the width: everything can be reached, in the bar or through one pop-up.
#include <gmock/gmock.h>

#include <random>
#include <set>

#include <afxribboncheckbox.h>
#include <afxRibbonEdit.h>
#include <afxRibbonLabel.h>
#include <afxribbonslider.h>

#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

class Reach : public RibbonPopupTest {
protected:
    CMFCRibbonCategory& AddRandomPanels(unsigned seed) {
        std::mt19937 random(seed);
        CMFCRibbonCategory* category = Bar().AddCategory(L"Random", 0, 0);
        const int panels = 1 + static_cast<int>(random() % 8);
        UINT id = 3000;
        for (int index = 0; index < panels; ++index) {
            CMFCRibbonPanel* panel = category->AddPanel(CString(L'A', 1 + static_cast<int>(random() % 20)));
            const int elements = 1 + static_cast<int>(random() % 9);
            for (int position = 0; position < elements; ++position) {
                panel->Add(MakeElement(random() % 7, id++));
            }
        }
        Bar().SetActiveCategory(category);
        return *category;
    }
    CMFCRibbonBaseElement* MakeElement(unsigned kind, UINT id) {
        switch (kind) {
        case 0:
            return new CMFCRibbonButton(id, L"Large button", ::LoadIcon(nullptr, IDI_APPLICATION));
        case 1:
            return new CMFCRibbonEdit(id, 80, L"Edit:");
        case 2:
            return new CMFCRibbonSlider(id, 90);
        case 3:
            return new CMFCRibbonCheckBox(id, L"Check");
        case 4: {
            auto* group = new CMFCRibbonButtonsGroup;
            group->AddButton(new CMFCRibbonButton(id, L"", ::LoadIcon(nullptr, IDI_APPLICATION)));
            return group;
        }
        case 5: {
            auto* button = new CMFCRibbonButton(id, L"With menu");
            button->AddSubItem(new CMFCRibbonButton(id + 1000, L"Item"));
            return button;
        }
        default:
            return new CMFCRibbonButton(id, L"Small");
        }
    }
    /// What the bar hits in the middle of each element, and what pop-ups of collapsed panels hit; scrolls the category
    /// to its end.
    std::set<CMFCRibbonBaseElement*> Reachable(CMFCRibbonCategory& category) {
        std::set<CMFCRibbonBaseElement*> found;
        while (category.OnScrollHorz(TRUE)) {
        }
        do {
            for (int index = 0; index < category.GetPanelCount(); ++index) {
                CollectFrom(*category.GetPanel(index), found);
            }
        } while (category.OnScrollHorz(FALSE));
        return found;
    }
    void CollectFrom(CMFCRibbonPanel& panel, std::set<CMFCRibbonBaseElement*>& found) {
        if (panel.GetRect().IsRectEmpty()) {
            return;
        }
        CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
        panel.GetElements(elements);
        if (panel.IsCollapsed()) {
            const CPoint middle = panel.GetDefaultButton().GetRect().CenterPoint();
            ASSERT_EQ(Bar().HitTest(middle, TRUE), &panel.GetDefaultButton());
            Click(panel.GetDefaultButton());
            ASSERT_EQ(OpenCount(), 1);
            CRect client;
            PopupBar().GetClientRect(client);
            for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
                const CPoint at = elements[index]->GetRect().CenterPoint();
                if (PopupBar().HitTest(at) == elements[index] && client.PtInRect(at)) {
                    found.insert(elements[index]);
                }
            }
            CMFCRibbonPanelMenu::DismissAll();
            PumpPending();
            return;
        }
        CRect client;
        Bar().GetClientRect(client);
        for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
            const CPoint at = elements[index]->GetRect().CenterPoint();
            if (Bar().HitTest(at, TRUE) == elements[index] && client.PtInRect(at)) {
                found.insert(elements[index]);
            }
        }
    }
};

TEST_F(Reach, EveryElementOfRandomPanelsAtEveryWidth) {
    int collapsed = 0;
    for (unsigned seed = 1; seed <= 4; ++seed) {
        CMFCRibbonCategory& category = AddRandomPanels(seed);
        for (int width = 300 + static_cast<int>(seed); width <= 3840; width += 59) {
            SetClientWidth(width);
            CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> all;
            category.GetElements(all);
            const std::set<CMFCRibbonBaseElement*> reachable = Reachable(category);
            EXPECT_EQ(reachable.size(), static_cast<size_t>(all.GetSize())) << "seed " << seed << ", width " << width;
            for (int index = 0; index < category.GetPanelCount(); ++index) {
                collapsed += category.GetPanel(index)->IsCollapsed() ? 1 : 0;
            }
        }
        Bar().RemoveCategory(Bar().GetCategoryIndex(&category));
    }
    EXPECT_GT(collapsed, 20) << "the widths collapse panels, else nothing was shown";
}

} // namespace

#include <algorithm>

#include "afxRibbonLabel.h"
#include "afxvisualmanager.h"
#include "tests/support/canvas.h"
#include "tests/support/picture_file.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"

namespace {

constexpr std::uint32_t g_unpainted = 0xFF00FF;

/// A picture of the bar in memory.
class Picture : public Canvas {
public:
    explicit Picture(CMFCRibbonBar& bar) : Canvas(ClientSize(bar), g_unpainted) {
        bar.DoPaint(Dc());
        Close();
    }

    /// Written beside the test program for people to look at, when BARWRIGHT_PICTURES names a folder.
    void Save(const std::wstring& name) const { SavePicture(Bitmap(), name); }
};

TEST_F(RibbonBarTest, EveryPixelIsPainted) {
    const Picture picture(Bar());
    picture.Save(L"ribbon.png");
    EXPECT_EQ(picture.Colours().count(g_unpainted), 0u);
}

TEST_F(RibbonBarTest, EveryElementShowsSomething) {
    const Picture picture(Bar());
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
    Bar().GetActiveCategory()->GetVisibleElements(elements);
    for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
        EXPECT_GT(picture.Colours(elements[index]->GetRect()).size(), 1u)
            << elements[index]->GetID() << ' ' << elements[index]->GetRuntimeClass()->m_lpszClassName;
    }
    for (int index = 0; index < Bar().GetCategoryCount(); ++index) {
        EXPECT_GT(picture.Colours(Bar().GetCategory(index)->GetTabRect()).size(), 1u) << index;
    }
}

TEST_F(RibbonBarTest, AHotElementLooksDifferentAndNothingElseDoes) {
    const Picture before(Bar());
    m_pointer.MoveTo(Bar(), CenterOf(commands::cut));
    const Picture hot(Bar());
    hot.Save(L"ribbon_hot.png");
    const CRect panel = Bar().GetCategory(0)->GetPanel(0)->GetRect();
    const CRect cut = Element(commands::cut).GetRect();
    int inside = 0;
    int outside = 0;
    for (int y = 0; y < before.Size().cy; ++y) {
        for (int x = 0; x < before.Size().cx; ++x) {
            if (before.At(x, y) != hot.At(x, y)) {
                cut.PtInRect(CPoint(x, y)) ? ++inside : ++outside;
                EXPECT_TRUE(panel.PtInRect(CPoint(x, y)));
            }
        }
    }
    EXPECT_GT(inside, 0);
}

TEST_F(RibbonBarTest, ADisabledElementLooksDifferent) {
    const Picture before(Bar());
    Element(commands::paste).SetDisabled(TRUE);
    const Picture after(Bar());
    EXPECT_NE(before.Colours(Element(commands::paste).GetRect()), after.Colours(Element(commands::paste).GetRect()));
}

/// The framework's own look with red text in panels.
class RedTextLook : public CMFCVisualManager {
    DECLARE_DYNCREATE(RedTextLook)
public:
    COLORREF OnDrawRibbonPanel(CDC* dc, CMFCRibbonPanel* panel, CRect rect, CRect caption) override {
        CMFCVisualManager::OnDrawRibbonPanel(dc, panel, rect, caption);
        return RGB(255, 0, 0);
    }
};
IMPLEMENT_DYNCREATE(RedTextLook, CMFCVisualManager)

TEST_F(RibbonBarTest, LabelsOfAllKindsHaveTheTextColourOfTheirPanel) {
    const auto reddish = [](const std::set<std::uint32_t>& colours) {
        return std::any_of(colours.begin(), colours.end(), [](std::uint32_t colour) {
            return (colour >> 16) > 180 && (colour >> 8 & 0xFF) < 80 && (colour & 0xFF) < 80;
        });
    };
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
    Bar().GetActiveCategory()->GetVisibleElements(elements);
    CMFCRibbonBaseElement* label = nullptr;
    for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
        if (elements[index]->IsKindOf(RUNTIME_CLASS(CMFCRibbonLabel))) {
            label = elements[index];
        }
    }
    ASSERT_NE(label, nullptr);
    const std::vector<CMFCRibbonBaseElement*> labelled{label, &Element(commands::options), &Element(commands::size)};
    const Picture before(Bar());
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(RedTextLook));
    const Picture after(Bar());
    CMFCVisualManager::SetDefaultManager(nullptr);
    for (CMFCRibbonBaseElement* element : labelled) {
        EXPECT_FALSE(reddish(before.Colours(element->GetRect()))) << element->GetRuntimeClass()->m_lpszClassName;
        EXPECT_TRUE(reddish(after.Colours(element->GetRect()))) << element->GetRuntimeClass()->m_lpszClassName;
    }
}

// Pictures for people at several widths and scales; the rules above hold in all of them.
TEST_F(RibbonBarTest, AtEveryWidthAndScaleEveryPixelIsPainted) {
    Bar().AddContextCategory(L"Tools", L"Picture Tools", 3, AFX_CategoryColor_Red, 0, 0);
    Bar().SetQuickAccessCommands(CommandList{commands::paste, commands::cut, 0u, commands::find});
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(scale));
        Bar().ForceRecalcLayout();
        for (const int width : {1000, 560, 480, 380, 300}) {
            SetClientWidth(width);
            RunIdle();
            const Picture picture(Bar());
            picture.Save(L"ribbon_" + std::to_wstring(width) + L"_" + std::to_wstring(static_cast<int>(scale * 100)) +
                         L".png");
            EXPECT_EQ(picture.Colours().count(g_unpainted), 0u) << width;
        }
    }
    afxGlobalData.SetRibbonImageScale(0);
}

} // namespace

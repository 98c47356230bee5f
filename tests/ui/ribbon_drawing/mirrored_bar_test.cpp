// A mirrored bar is the mirror image of the bar, to the pixel.
#include <afxvisualmanageroffice2007.h>

#include "tests/support/canvas.h"
#include "tests/support/picture_file.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"

#include <map>
#include <memory>
#include <string>

namespace {

/// Percent of the usual size.
class MirroredBar : public RibbonBarTest, public testing::WithParamInterface<int> {
protected:
    MirroredBar() {
        CMFCVisualManagerOffice2007::SetStyle(CMFCVisualManagerOffice2007::Office2007_Silver);
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
        EXPECT_TRUE(afxGlobalData.SetRibbonImageScale(GetParam() / 100.0));
        RemoveTexts();
        SetQuickAccessDefault({commands::paste, commands::cut, commands::find});
        Bar().ForceRecalcLayout();
        RunIdle();
    }
    ~MirroredBar() override {
        CMFCVisualManager::SetDefaultManager(nullptr);
        afxGlobalData.SetRibbonImageScale(0);
    }
    /// They are the only thing that keeps its direction: the pictures of this bar are their own mirror images.
    void RemoveTexts() {
        for (int category = 0; category < Bar().GetCategoryCount(); ++category) {
            Bar().GetCategory(category)->SetName(L"");
            for (int panel = 0; panel < Bar().GetCategory(category)->GetPanelCount(); ++panel) {
                CMFCRibbonPanel& shown = *Bar().GetCategory(category)->GetPanel(panel);
                for (int index = 0; index < shown.GetCount(); ++index) {
                    shown.GetElement(index)->SetText(L"");
                }
            }
        }
    }
    std::unique_ptr<Canvas> Paint(DWORD layout) {
        CRect client;
        Bar().GetClientRect(client);
        auto picture = std::make_unique<Canvas>(client.Size());
        ::SetLayout(*picture->Dc(), layout);
        Bar().DoPaint(picture->Dc());
        ::SetLayout(*picture->Dc(), 0);
        picture->Close();
        return picture;
    }
    std::string ElementAt(CPoint point) {
        const CMFCRibbonBaseElement* const hit = Bar().HitTest(point, TRUE);
        return hit != nullptr ? std::to_string(hit->GetID()) + ' ' + hit->GetRuntimeClass()->m_lpszClassName
                              : "the bar";
    }
};

TEST_P(MirroredBar, EveryPixelButThoseOfTextsIsTheMirrorImages) {
    const std::unique_ptr<Canvas> straight = Paint(0);
    const std::unique_ptr<Canvas> mirrored = Paint(LAYOUT_RTL | LAYOUT_BITMAPORIENTATIONPRESERVED);
    const std::wstring scale = std::to_wstring(GetParam()) + L".png";
    SavePicture(straight->Bitmap(), L"straight_" + scale);
    SavePicture(mirrored->Bitmap(), L"mirrored_" + scale);
    const int captions = Bar().GetActiveCategory()->GetPanel(0)->GetCaptionRect().top;
    std::map<std::string, CRect> wrong; // what of each element differs
    const CSize size = straight->Size();
    for (int y = 0; y < captions; ++y) {
        for (int x = 0; x < size.cx; ++x) {
            if (straight->At(x, y) != mirrored->At(size.cx - 1 - x, y)) {
                wrong[ElementAt(CPoint(x, y))] |= CRect(x, y, x + 1, y + 1);
            }
        }
    }
    for (const auto& [element, rect] : wrong) {
        ADD_FAILURE() << element << ": " << rect.left << ", " << rect.top << " to " << rect.right << ", "
                      << rect.bottom;
    }
}

// Where pictures are stretched to whole multiples of half their size they stay their own mirror images.
INSTANTIATE_TEST_SUITE_P(Percent, MirroredBar, testing::Values(100, 150, 200));

} // namespace

// How faces and open lists look, in pictures for people when BARWRIGHT_PICTURES names a folder, and that no pixel of a
// list is left unpainted.
#include <algorithm>
#include <string>

#include "tests/support/canvas.h"
#include "tests/support/office_look.h"
#include "tests/support/picture_file.h"
#include "tests/ui/ribbon_combo/combo_fixture.h"

namespace {

class DrawnListBar : public CMFCPopupMenuBar {
public:
    using CMFCPopupMenuBar::DoPaint;
};

class DrawnList : public CMFCDropDownListBox {
public:
    using CMFCDropDownListBox::CMFCDropDownListBox;
    CMFCPopupMenuBar* GetMenuBar() override { return &bar; }
    using CMFCDropDownListBox::DrawFrame;
    DrawnListBar bar;
};

class DrawnCombo : public CMFCRibbonComboBox {
public:
    using CMFCRibbonComboBox::CMFCRibbonComboBox;

protected:
    std::unique_ptr<CMFCDropDownListBox> MakeDropDownList() override { return std::make_unique<DrawnList>(this); }
};

constexpr std::uint32_t kUnpainted = 0xFF00FF;

class Picture : public Canvas {
public:
    explicit Picture(CSize size) : Canvas(size, kUnpainted) {}

    long CountUnpainted(const CRect& rect) const {
        long count = 0;
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x) {
                count += At(x, y) == kUnpainted ? 1 : 0;
            }
        }
        return count;
    }
};

using Style = CMFCVisualManagerOffice2007::Style;

class ComboLookTest : public RibbonComboTest, public ::testing::WithParamInterface<OfficeLook> {
protected:
    ComboLookTest() : combo(*new DrawnCombo(1210, FALSE, 110, L"Layer:")) {
        for (const wchar_t* text : {L"Coastlines", L"Lakes and rivers", L"Borders", L"Relief", L"Roads", L"Railways",
                                    L"Towns with more than 100,000 people", L"Grid"}) {
            combo.AddItem(text);
        }
        for (int i = 0; i < 30; ++i) {
            combo.AddItem(L"Another layer");
        }
        Bar().GetCategory(0)->GetPanel(1)->Add(&combo);
        Plain().SelectItem(2);
        Edit().SelectItem(3);
        combo.SelectItem(1);
        m_frame->disabledCommand = kEdit;
        LayOut();
        RunIdle();
    }
    ~ComboLookTest() override { CMFCPopupMenu::CloseAll(); }

    DrawnCombo& combo;
    const ScopedOfficeLook m_look{GetParam()};
};

TEST_P(ComboLookTest, EveryPixelOfTheListIsPainted) {
    m_pointer.Click(Bar().GetSafeHwnd(), combo.GetMenuRect().CenterPoint());
    auto* list = dynamic_cast<DrawnList*>(CMFCPopupMenu::GetActiveMenu());
    ASSERT_NE(list, nullptr);
    Press(VK_DOWN);
    CRect bar;
    Bar().GetClientRect(bar);
    const CRect window = ScreenRect(*list);
    const CPoint origin(combo.GetCommandRect().left, bar.Height() + 5);
    Picture picture(
        CSize(std::max(bar.Width(), static_cast<int>(origin.x) + window.Width()), bar.Height() + window.Height() + 10));
    Bar().DoPaint(picture.Dc());
    EXPECT_EQ(picture.CountUnpainted(combo.GetRect()), 0);
    picture.Dc()->SetViewportOrg(origin);
    list->DrawFrame(picture.Dc());
    const CRect inside = list->GetBarRect();
    picture.Dc()->SetViewportOrg(origin + inside.TopLeft());
    picture.Dc()->IntersectClipRect(CRect(CPoint(0, 0), inside.Size()));
    list->bar.DoPaint(picture.Dc());
    EXPECT_EQ(picture.CountUnpainted(CRect(origin + inside.TopLeft(), inside.Size())), 0);
    const CPoint hot = origin + inside.TopLeft() + CPoint(inside.Width() - 6, list->bar.GetRowRect(2).CenterPoint().y);
    const CPoint cold = origin + inside.TopLeft() + CPoint(inside.Width() - 6, list->bar.GetRowRect(4).CenterPoint().y);
    EXPECT_NE(picture.At(hot.x, hot.y), picture.At(cold.x, cold.y)) << "the hot row stands out";
    SavePicture(picture.Bitmap(), std::wstring(L"combo-") + GetParam().name + L".png");
}

INSTANTIATE_TEST_SUITE_P(All, ComboLookTest,
                         ::testing::Values(OfficeLook{Style::Office2007_ObsidianBlack, L"black-100", 1.0},
                                           OfficeLook{Style::Office2007_ObsidianBlack, L"black-150", 1.5},
                                           OfficeLook{Style::Office2007_Silver, L"silver-100", 1.0},
                                           OfficeLook{Style::Office2007_Silver, L"silver-150", 1.5}));

} // namespace

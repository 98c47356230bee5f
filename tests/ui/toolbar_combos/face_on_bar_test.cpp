// The closed face of a combo with marks is one of its toolbar's fields: the skin's colours, the bar's font and scale.
#include "tests/ui/toolbar_combos/told_bar.h"

#include "skin_visual_managers.h"

#include <afxglobals.h>

#include <commctrl.h>

namespace {

constexpr COLORREF kBlackField = RGB(167, 170, 180);
constexpr COLORREF kSilverField = RGB(242, 242, 246);

template <class Button>
class FaceOnBar : public testing::Test {
protected:
    ~FaceOnBar() override {
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManager::DestroyInstance();
        CMFCVisualManagerOffice2007::CleanStyle();
        afxGlobalData.SetScreenDpi(0);
        afxGlobalData.UpdateFonts();
    }
    template <class Skin>
    void Use() {
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(Skin));
    }
    CRect PlaceInBar() {
        CRect place;
        made.Combo().GetWindowRect(&place);
        made.bar.ScreenToClient(&place);
        return place;
    }
    /// How many pixels of the button have the colour.
    int Count(COLORREF color) {
        made.bar.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_ERASE);
        const CClientDC dc(&made.bar);
        const CRect place = PlaceInBar();
        int count = 0;
        for (int y = place.top; y < place.bottom; ++y) {
            for (int x = place.left; x < place.right; ++x) {
                count += dc.GetPixel(x, y) == color ? 1 : 0;
            }
        }
        return count;
    }
    int Area() {
        const CRect place = PlaceInBar();
        return place.Width() * place.Height();
    }
    ToldBar made;
};

using Combos = testing::Types<CMFCCheckCombo, CMFCMultiCombo, CMFCMultiCombo2>;
TYPED_TEST_SUITE(FaceOnBar, Combos);

TYPED_TEST(FaceOnBar, HasTheFieldsColourOfTheSkin) {
    this->template Use<CQKVisualManagerOffice2007Black>();
    this->made.template Make<TypeParam>(BarPlace::Docked);
    EXPECT_GT(this->Count(kBlackField), this->Area() / 2);
    EXPECT_LT(this->Count(RGB(255, 255, 255)), this->Area() / 6) << "a check box at most";
    this->template Use<CQKVisualManagerOffice2007Silver>();
    EXPECT_GT(this->Count(kSilverField), this->Area() / 2);
}

/// The height that a combo was last given for its face.
LRESULT CALLBACK NoteFaceHeight(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
    if (message == CB_SETITEMHEIGHT && static_cast<int>(wParam) == -1) {
        *reinterpret_cast<int*>(data) = static_cast<int>(lParam);
    }
    return ::DefSubclassProc(window, message, wParam, lParam);
}

TYPED_TEST(FaceOnBar, IsAsHighAsTheScaleOfTheBarAsks) {
    this->made.template Make<TypeParam>(BarPlace::Docked);
    int height = 0;
    ::SetWindowSubclass(this->made.Combo().m_hWnd, &NoteFaceHeight, 1, reinterpret_cast<DWORD_PTR>(&height));
    afxGlobalData.SetScreenDpi(288);
    afxGlobalData.UpdateFonts();
    this->made.bar.OnGlobalFontsChanged();
    ::RemoveWindowSubclass(this->made.Combo().m_hWnd, &NoteFaceHeight, 1);
    EXPECT_EQ(height, 54);
}

/// From a corner of the field inwards, both ways, as far as its corner is round.
TYPED_TEST(FaceOnBar, LeavesTheRoundCornersOfTheFieldToTheBarAtEveryScale) {
    this->template Use<CQKVisualManagerOffice2007Silver>();
    for (const UINT dpi : {96u, 144u, 192u, 288u}) {
        for (const bool isMirrored : {false, true}) {
            afxGlobalData.SetScreenDpi(dpi);
            afxGlobalData.UpdateFonts();
            ToldBar made;
            made.template Make<TypeParam>(BarPlace::Docked);
            if (isMirrored) {
                made.bar.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
                made.Combo().ModifyStyleEx(0, WS_EX_LAYOUTRTL);
            }
            made.bar.OnGlobalFontsChanged();
            CRect place;
            made.Combo().GetClientRect(&place);
            CRgn region;
            region.CreateRectRgn(0, 0, 0, 0);
            ASSERT_NE(made.Combo().GetWindowRgn(region), ERROR);
            const int radius = MulDiv(3, static_cast<int>(dpi), 96);
            const int line = dpi >= 192 ? static_cast<int>(dpi) / 96 : 1;
            // A circle's point at 45 degrees, inside of the line.
            const int cut = line + static_cast<int>((radius - line) * (1 - 0.7071));
            for (int x = 0; x < cut; ++x) {
                for (int y = 0; y < cut; ++y) {
                    for (const CPoint at :
                         {CPoint(x, y), CPoint(place.right - 1 - x, y), CPoint(x, place.bottom - 1 - y),
                          CPoint(place.right - 1 - x, place.bottom - 1 - y)}) {
                        EXPECT_FALSE(region.PtInRegion(at)) << dpi << " " << isMirrored << ": " << at.x << "," << at.y;
                    }
                }
            }
            EXPECT_TRUE(region.PtInRegion(place.CenterPoint()));
        }
    }
}

} // namespace

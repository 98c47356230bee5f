#include <afxribbonbutton.h>
#include <afxribbonbuttonsgroup.h>
#include <afxribboncheckbox.h>
#include <afxRibbonEdit.h>
#include <afxRibbonLabel.h>
#include <afxribbonslider.h>

#include "element_fixture.h"

namespace {

class Scales : public ::testing::TestWithParam<double> {
protected:
    ScopedScale scale{GetParam()};
    int Scaled(int length) const { return static_cast<int>(length * GetParam() + 0.5); }
    int Row() const { return std::max(Scaled(16), afxGlobalData.GetCharacterHeight()) + 2 * Scaled(3); }
};

INSTANTIATE_TEST_SUITE_P(RibbonElements, Scales, ::testing::Values(1.0, 1.5, 2.0));

TEST_P(Scales, ALargeButtonIsAnImageAboveTwoLinesOfText) {
    const SolidIcon icon(32, RGB(200, 0, 0));
    CMFCRibbonButton button(1, L"Page Setup", icon.Get());
    EXPECT_EQ(button.GetImageSize(CMFCRibbonBaseElement::RibbonImageLarge), CSize(Scaled(32), Scaled(32)));
    EXPECT_EQ(button.GetImageSize(CMFCRibbonBaseElement::RibbonImageSmall), CSize(Scaled(16), Scaled(16)));
    const CSize size = button.GetRegularSize(nullptr);
    EXPECT_EQ(size.cy, Scaled(32) + 2 * afxGlobalData.GetCharacterHeight() + Scaled(1) + 2 * Scaled(3));
    EXPECT_GE(size.cx, Scaled(42));
}

TEST_P(Scales, SmallButtonsHaveTheHeightOfARow) {
    const SolidIcon icon(32, RGB(200, 0, 0));
    CMFCRibbonButton button(1, L"Page Setup", icon.Get());
    EXPECT_EQ(button.GetIntermediateSize(nullptr).cy, Row());
    EXPECT_EQ(button.GetCompactSize(nullptr), CSize(Scaled(16) + 2 * Scaled(4), Row()));
    EXPECT_GT(button.GetIntermediateSize(nullptr).cx, button.GetCompactSize(nullptr).cx);
}

TEST_P(Scales, AlwaysLargeShowsTheSmallImageWhereThereIsNoLargeOne) {
    class OnlySmall : public CMFCRibbonButton {
    public:
        using CMFCRibbonButton::CMFCRibbonButton;
        CSize GetImageSize(RibbonImageType type) const override {
            const int side = type == RibbonImageSmall ? afxGlobalData.ScalePixels(16) : 0;
            return {side, side};
        }
    };
    OnlySmall button(1, L"Page Setup");
    const CSize with = button.GetIntermediateSize(nullptr);
    button.SetAlwaysLargeImage();
    EXPECT_EQ(button.GetIntermediateSize(nullptr), with) << "there is room for the image still";
    EXPECT_FALSE(button.IsLargeImage());
    const SolidIcon icon(32, RGB(200, 0, 0));
    CMFCRibbonButton both(1, L"Page Setup", icon.Get());
    both.SetAlwaysLargeImage();
    EXPECT_TRUE(both.IsLargeImage());
}

TEST_P(Scales, OtherElementsHaveTheHeightOfARow) {
    CMFCRibbonEdit edit(1, 80);
    CMFCRibbonSlider slider(2, 100);
    CMFCRibbonCheckBox check(3, L"Grid");
    CMFCRibbonLabel label(L"Zoom");
    EXPECT_EQ(edit.GetRegularSize(nullptr), CSize(Scaled(80), Row()));
    EXPECT_EQ(slider.GetRegularSize(nullptr), CSize(Scaled(100) + 2 * Scaled(2), Row()));
    EXPECT_EQ(check.GetRegularSize(nullptr).cy, Row());
    EXPECT_EQ(label.GetRegularSize(nullptr).cy, Row());
}

TEST(ElementText, IsMeasuredAnewInAnotherFont) {
    CMFCRibbonLabel label(L"Some words");
    const CSize before = label.GetRegularSize(nullptr);
    LOGFONT font;
    ASSERT_TRUE(afxGlobalData.fontRegular.GetLogFont(&font));
    font.lfHeight *= 2;
    ASSERT_TRUE(afxGlobalData.SetMenuFont(&font, TRUE));
    EXPECT_GT(label.GetRegularSize(nullptr).cx, before.cx * 3 / 2);
    afxGlobalData.UpdateFonts();
    EXPECT_EQ(label.GetRegularSize(nullptr), before);
}

TEST(ElementText, OfAnyNumberOfElementsHasItsOwnWidth) {
    const auto widthOf = [](int number) {
        return CMFCRibbonLabel(CString(L'i', number % 50) + CString(L'W', number / 50)).GetRegularSize(nullptr).cx;
    };
    std::vector<LONG> widths;
    for (int number = 0; number < 3000; ++number) {
        widths.push_back(widthOf(number));
    }
    for (int number = 2999; number >= 0; --number) {
        ASSERT_EQ(widthOf(number), widths[static_cast<std::size_t>(number)]) << number;
    }
    EXPECT_GT(widths[49], widths[48]);
    EXPECT_GT(widths[2950], widths[2900]);
}

TEST(ButtonMode, GetSizeFollowsTheMode) {
    const SolidIcon icon(32, RGB(200, 0, 0));
    CMFCRibbonButton button(1, L"Page Setup", icon.Get());
    button.SetInitialMode();
    EXPECT_TRUE(button.IsLargeMode());
    EXPECT_EQ(button.GetSize(nullptr), button.GetRegularSize(nullptr));
    button.SetIntermediateMode();
    EXPECT_TRUE(button.IsIntermediateMode());
    EXPECT_EQ(button.GetSize(nullptr), button.GetIntermediateSize(nullptr));
    button.SetCompactMode();
    EXPECT_TRUE(button.IsCompactMode());
    EXPECT_FALSE(button.IsIntermediateMode());
    EXPECT_EQ(button.GetSize(nullptr), button.GetCompactSize(nullptr));
    button.SetCompactMode(FALSE);
    EXPECT_TRUE(button.IsIntermediateMode());
}

TEST(ButtonMode, InOneRowAButtonBeginsIntermediate) {
    const SolidIcon icon(32, RGB(200, 0, 0));
    CMFCRibbonButton button(1, L"Page Setup", icon.Get());
    button.SetInitialMode(TRUE);
    EXPECT_TRUE(button.IsIntermediateMode());
    EXPECT_FALSE(button.IsLargeImage());
}

TEST(ButtonMode, WithoutImagesThereIsTextOnly) {
    CMFCRibbonButton button(1, L"Page Setup");
    EXPECT_FALSE(button.HasLargeMode());
    EXPECT_FALSE(button.HasCompactMode());
    button.SetCompactMode();
    EXPECT_FALSE(button.IsCompactMode());
    EXPECT_EQ(button.GetRegularSize(nullptr), button.GetIntermediateSize(nullptr));
}

// What a button that keeps its pictures elsewhere overrides.
class PictureButton : public CMFCRibbonButton {
public:
    PictureButton() : CMFCRibbonButton(7, L"Page Setup") {}
    CSize GetImageSize(RibbonImageType type) const override {
        return type == RibbonImageLarge ? CSize(48, 40) : CSize(24, 20);
    }
    void DrawImage(CDC* /*pDC*/, RibbonImageType type, CRect rect) override { drawn.push_back({type, rect}); }
    BOOL HasLargeMode() const override { return isLarge; }

    BOOL isLarge = TRUE;
    std::vector<std::pair<RibbonImageType, CRect>> drawn;
};

TEST(ImageOverride, DecidesSizesAndIsAskedToDraw) {
    PictureButton button;
    EXPECT_EQ(button.GetCompactSize(nullptr).cx, 24 + 8);
    Place(button, {10, 0});
    Canvas canvas(200, 100);
    button.OnDraw(&canvas);
    ASSERT_EQ(button.drawn.size(), 1u);
    EXPECT_EQ(button.drawn[0].first, CMFCRibbonBaseElement::RibbonImageLarge);
    EXPECT_EQ(button.drawn[0].second.Size(), CSize(48, 40));
    EXPECT_EQ(button.drawn[0].second.top, 3);
}

TEST(ImageOverride, WithoutLargeModeTheSmallImageIsDrawn) {
    PictureButton button;
    button.isLarge = FALSE;
    Place(button, {0, 0});
    EXPECT_FALSE(button.IsWholeRowHeight());
    Canvas canvas(200, 100);
    button.OnDraw(&canvas);
    ASSERT_EQ(button.drawn.size(), 1u);
    EXPECT_EQ(button.drawn[0].first, CMFCRibbonBaseElement::RibbonImageSmall);
}

TEST(ButtonAreas, OfASplitButtonAreCommandAndMenu) {
    PictureButton button;
    button.AddSubItem(new CMFCRibbonButton(8, L"Sub"));
    button.SetDefaultCommand();
    Place(button, {5, 5});
    const CRect rect = button.GetRect();
    EXPECT_TRUE(button.IsMenuOnBottom());
    EXPECT_EQ(button.GetCommandRect().TopLeft(), rect.TopLeft());
    EXPECT_EQ(button.GetMenuRect().BottomRight(), rect.BottomRight());
    EXPECT_EQ(button.GetCommandRect().bottom, button.GetMenuRect().top);

    button.SetIntermediateMode();
    Place(button, {5, 5});
    EXPECT_FALSE(button.IsMenuOnBottom());
    EXPECT_EQ(button.GetCommandRect().right, button.GetMenuRect().left);
    EXPECT_EQ(button.GetMenuRect().right, button.GetRect().right);
}

TEST(ButtonAreas, WithoutDefaultCommandAllIsMenu) {
    PictureButton button;
    button.AddSubItem(new CMFCRibbonButton(8, L"Sub"));
    Place(button, {5, 5});
    EXPECT_EQ(button.GetMenuRect(), button.GetRect());
    EXPECT_TRUE(button.GetCommandRect().IsRectEmpty());
}

TEST(Separator, IsALineAcrossTheRow) {
    CMFCRibbonSeparator vertical;
    CMFCRibbonBaseElement& element = vertical;
    EXPECT_TRUE(element.IsSeparator());
    EXPECT_TRUE(element.IsWholeRowHeight());
    EXPECT_LT(element.GetRegularSize(nullptr).cx, element.GetRegularSize(nullptr).cy);
    EXPECT_FALSE(element.CanBeAddedToQuickAccessToolBar());
}

TEST(MultiLineLabel, TakesThreeLinesInsteadOfOneLongOne) {
    const wchar_t* text = L"The quick brown fox jumps over the lazy dog and over the fence";
    CMFCRibbonLabel oneLine(text);
    CMFCRibbonLabel lines(text, TRUE);
    const CSize wide = oneLine.GetRegularSize(nullptr);
    const CSize high = lines.GetRegularSize(nullptr);
    EXPECT_LT(high.cx, wide.cx / 2);
    EXPECT_GT(high.cy, 2 * afxGlobalData.GetCharacterHeight());
    EXPECT_LE(high.cy, 3 * afxGlobalData.GetCharacterHeight() + 6);
}

} // namespace

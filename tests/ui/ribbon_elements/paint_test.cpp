// What is drawn where: pixels of a memory bitmap at named places.
#include <afxribbonbutton.h>
#include <afxribbonbuttonsgroup.h>
#include <afxribboncheckbox.h>
#include <afxRibbonEdit.h>
#include <afxRibbonLabel.h>
#include <afxribbonslider.h>

#include "element_fixture.h"

namespace {

constexpr COLORREF kRed = RGB(230, 20, 20);

bool IsRed(COLORREF pixel) { return GetRValue(pixel) > 180 && GetGValue(pixel) < 60 && GetBValue(pixel) < 60; }

bool IsDark(COLORREF pixel) { return GetRValue(pixel) + GetGValue(pixel) + GetBValue(pixel) < 300; }

class Painted : public ::testing::TestWithParam<double> {
protected:
    ScopedScale scale{GetParam()};
    int Scaled(int length) const { return static_cast<int>(length * GetParam() + 0.5); }
    SolidIcon large{32, kRed};
    SolidIcon small{16, kRed};
    Canvas canvas{400, 300};
};

INSTANTIATE_TEST_SUITE_P(Scales, Painted, ::testing::Values(1.0, 1.5));

TEST_P(Painted, ALargeButtonShowsItsIconAboveItsText) {
    CMFCRibbonButton button(1, L"Page Setup", large.Get());
    Place(button, {10, 10});
    button.OnDraw(&canvas);
    const CRect rect = button.GetRect();
    const int side = Scaled(32);
    const CRect image(CPoint(rect.left + (rect.Width() - side) / 2, rect.top + Scaled(3)), CSize(side, side));
    EXPECT_TRUE(IsRed(canvas.At(image.TopLeft() + CSize(2, 2))));
    EXPECT_TRUE(IsRed(canvas.At(image.BottomRight() - CSize(3, 3))));
    EXPECT_FALSE(IsRed(canvas.At(image.left + side / 2, image.bottom + 2)));
    CRect text(rect.left, image.bottom, rect.right, rect.bottom);
    EXPECT_GT(canvas.Count(text, IsDark), 30);
    const int middle = image.bottom + Scaled(1) + afxGlobalData.GetCharacterHeight();
    EXPECT_GT(canvas.Count(CRect(rect.left, middle, rect.right, rect.bottom - 2), IsDark), 10) << "second line";
}

TEST_P(Painted, NothingIsDrawnOutsideOfTheRectangle) {
    CMFCRibbonButton button(1, L"Page Setup", large.Get());
    CMFCRibbonSlider slider(2, 80);
    slider.SetZoomButtons();
    CMFCRibbonCheckBox check(3, L"Grid lines");
    CMFCRibbonLabel label(L"A label");
    CMFCRibbonEdit edit(4, 60, L"Name");
    for (CMFCRibbonBaseElement* element :
         {static_cast<CMFCRibbonBaseElement*>(&button), static_cast<CMFCRibbonBaseElement*>(&slider),
          static_cast<CMFCRibbonBaseElement*>(&check), static_cast<CMFCRibbonBaseElement*>(&label),
          static_cast<CMFCRibbonBaseElement*>(&edit)}) {
        canvas.Clear(RGB(255, 255, 255));
        Place(*element, {40, 30});
        element->OnDraw(&canvas);
        const CRect rect = element->GetRect();
        const int all = canvas.Count(CRect(0, 0, 400, 300), [](COLORREF pixel) { return pixel != RGB(255, 255, 255); });
        const int inside = canvas.Count(rect, [](COLORREF pixel) { return pixel != RGB(255, 255, 255); });
        EXPECT_EQ(all, inside) << element->GetRuntimeClass()->m_lpszClassName;
        EXPECT_GT(inside, 20) << element->GetRuntimeClass()->m_lpszClassName;
    }
}

TEST_P(Painted, ADisabledIconLosesItsColour) {
    CMFCRibbonButton button(1, L"", large.Get(), FALSE, small.Get());
    button.SetIntermediateMode();
    Place(button, {10, 10});
    button.OnDraw(&canvas);
    EXPECT_GT(canvas.Count(button.GetRect(), IsRed), Scaled(16) * Scaled(16) * 8 / 10);
    canvas.Clear(RGB(255, 255, 255));
    button.SetDisabled(TRUE);
    button.OnDraw(&canvas);
    EXPECT_EQ(canvas.Count(button.GetRect(), IsRed), 0);
    EXPECT_GT(canvas.Count(button.GetRect(), [](COLORREF pixel) { return pixel != RGB(255, 255, 255); }), 50);
}

TEST_P(Painted, WithoutASmallIconTheLargeOneIsShrunk) {
    CMFCRibbonButton button(1, L"", large.Get());
    button.SetIntermediateMode();
    Place(button, {10, 10});
    button.OnDraw(&canvas);
    EXPECT_TRUE(IsRed(canvas.At(button.GetRect().CenterPoint())));
    EXPECT_LE(canvas.Count(CRect(0, 0, 400, 300), IsRed), Scaled(16) * Scaled(16));
}

TEST_P(Painted, AMenuButtonShowsItsArrow) {
    CMFCRibbonButton button(1, L"", large.Get());
    button.SetIntermediateMode();
    button.AddSubItem(new CMFCRibbonButton(2, L"Sub"));
    Place(button, {10, 10});
    button.OnDraw(&canvas);
    const CRect rect = button.GetRect();
    const CRect right(rect.right - Scaled(4) - Scaled(6), rect.top + 2, rect.right - 2, rect.bottom - 2);
    EXPECT_GE(canvas.Count(right, IsDark), 9 /* 5 + 3 + 1 */);
}

TEST_P(Painted, TheTextSwappedForOneDrawIsTheOneThatShows) {
    class Translated : public CMFCRibbonButton {
    public:
        Translated() : CMFCRibbonButton(1, L"iiiiiiiiiiii") {}
        void OnDraw(CDC* pDC) override {
            const CString kept = m_strText;
            m_strText = shown;
            CMFCRibbonButton::OnDraw(pDC);
            m_strText = kept;
        }
        CString shown;
    } button;
    Place(button, {10, 10});
    button.OnDraw(&canvas);
    EXPECT_EQ(canvas.Count(button.GetRect(), IsDark), 0);
    button.shown = L"WW";
    button.OnDraw(&canvas);
    EXPECT_GT(canvas.Count(button.GetRect(), IsDark), 10);
    EXPECT_STREQ(button.GetText(), L"iiiiiiiiiiii");
}

TEST_P(Painted, LabelsHaveTheColourThatTheContainerHasSet) {
    CMFCRibbonLabel label(L"MMMM");
    Place(label, {10, 10});
    (&canvas)->SetTextColor(kRed);
    label.OnDraw(&canvas);
    EXPECT_GT(canvas.Count(label.GetRect(), IsRed), 10);
    canvas.Clear(RGB(255, 255, 255));
    label.SetDisabled(TRUE);
    label.OnDraw(&canvas);
    EXPECT_EQ(canvas.Count(label.GetRect(), IsRed), 0);
}

TEST_P(Painted, ACheckedBoxDiffersFromAnUncheckedOne) {
    CMFCRibbonCheckBox check(1, L"");
    Place(check, {10, 10});
    check.OnDraw(&canvas);
    const int before = canvas.Count(check.GetRect(), IsDark);
    canvas.Clear(RGB(255, 255, 255));
    check.SetChecked(TRUE);
    check.OnDraw(&canvas);
    EXPECT_GT(canvas.Count(check.GetRect(), IsDark), before);
}

TEST_P(Painted, AnEditWithoutAWindowShowsItsText) {
    CMFCRibbonEdit edit(1, 60);
    edit.SetEditText(L"MMMM");
    Place(edit, {10, 10});
    edit.OnDraw(&canvas);
    CRect inner = edit.GetEditRect();
    inner.DeflateRect(3, 3);
    EXPECT_GT(canvas.Count(inner, IsDark), 10);
    edit.SetEditText(L"");
    canvas.Clear(RGB(255, 255, 255));
    edit.OnDraw(&canvas);
    EXPECT_EQ(canvas.Count(inner, IsDark), 0);
}

TEST_P(Painted, TheGroupDrawsItsImagesHotAndDisabledOnes) {
    const SolidIcon normal(16, RGB(0, 0, 255));
    const SolidIcon hot(16, kRed);
    CMFCToolBarImages images;
    CMFCToolBarImages hotImages;
    images.SetImageSize(CSize(16, 16));
    hotImages.SetImageSize(CSize(16, 16));
    images.AddIcon(normal.Get());
    hotImages.AddIcon(hot.Get());
    CMFCRibbonButtonsGroup group;
    auto* button = new CMFCRibbonButton(1, L"B", 0);
    group.AddButton(button);
    group.SetImages(&images, &hotImages, nullptr);
    Place(group, {10, 10});
    group.OnDraw(&canvas);
    const CPoint center = button->GetRect().CenterPoint();
    EXPECT_EQ(canvas.At(center), RGB(0, 0, 255));
    button->SetHighlighted(TRUE);
    group.OnDraw(&canvas);
    EXPECT_TRUE(IsRed(canvas.At(center)));
    button->SetDisabled(TRUE);
    canvas.Clear(RGB(255, 255, 255));
    group.OnDraw(&canvas);
    EXPECT_NE(canvas.At(center), RGB(0, 0, 255));
    EXPECT_FALSE(IsRed(canvas.At(center)));
}

TEST_P(Painted, AnElementWithoutRectangleDrawsNothing) {
    CMFCRibbonButton button(1, L"Text", large.Get());
    CMFCRibbonSlider slider(2);
    CMFCRibbonEdit edit(3, 50);
    CMFCRibbonCheckBox check(4, L"Text");
    CMFCRibbonLabel label(L"Text");
    button.OnDraw(&canvas);
    slider.OnDraw(&canvas);
    edit.OnDraw(&canvas);
    check.OnDraw(&canvas);
    label.OnDraw(&canvas);
    EXPECT_EQ(canvas.CountColor(CRect(0, 0, 400, 300), RGB(255, 255, 255)), 400 * 300);
}

} // namespace

#include <afxribbonbutton.h>
#include <afxribbonbuttonsgroup.h>
#include <afxribboncheckbox.h>
#include <afxRibbonEdit.h>
#include <afxRibbonLabel.h>
#include <afxribbonslider.h>

#include <memory>
#include <ostream>

#include "element_fixture.h"

// Every run-time class: created by its class object, configured, copied, compared field by field.
namespace {

using Element = std::unique_ptr<CMFCRibbonBaseElement>;

struct ClassCase {
    const char* name;
    CRuntimeClass* runtimeClass;
    std::function<Element()> make;
    // Compares what the class adds to the base element.
    std::function<void(const CMFCRibbonBaseElement&, const CMFCRibbonBaseElement&)> compare;
};

void PrintTo(const ClassCase& value, std::ostream* out) { *out << value.name; }

void CompareButtons(const CMFCRibbonBaseElement& a, const CMFCRibbonBaseElement& b) {
    const auto& left = dynamic_cast<const CMFCRibbonButton&>(a);
    const auto& right = dynamic_cast<const CMFCRibbonButton&>(b);
    EXPECT_EQ(left.GetImageIndex(TRUE), right.GetImageIndex(TRUE));
    EXPECT_EQ(left.GetImageIndex(FALSE), right.GetImageIndex(FALSE));
    EXPECT_EQ(left.GetIcon(TRUE), right.GetIcon(TRUE));
    EXPECT_EQ(left.GetIcon(FALSE), right.GetIcon(FALSE));
    EXPECT_EQ(left.GetMenu(), right.GetMenu());
    EXPECT_EQ(left.IsDefaultCommand(), right.IsDefaultCommand());
    EXPECT_EQ(left.IsRightAlignMenu(), right.IsRightAlignMenu());
    EXPECT_EQ(left.IsAlwaysLargeImage(), right.IsAlwaysLargeImage());
    EXPECT_EQ(left.IsAlwaysShowDescription(), right.IsAlwaysShowDescription());
    ASSERT_EQ(left.GetSubItems().GetSize(), right.GetSubItems().GetSize());
    for (int i = 0; i < left.GetSubItems().GetSize(); ++i) {
        EXPECT_NE(left.GetSubItems()[i], right.GetSubItems()[i]);
        EXPECT_EQ(left.GetSubItems()[i]->GetID(), right.GetSubItems()[i]->GetID());
        EXPECT_EQ(left.GetSubItems()[i]->GetRuntimeClass(), right.GetSubItems()[i]->GetRuntimeClass());
    }
}

Element MakeButton() {
    auto button = std::make_unique<CMFCRibbonButton>(0, L"", 3, 4, TRUE);
    button->SetMenu(reinterpret_cast<HMENU>(0x1234), TRUE, TRUE);
    button->SetAlwaysLargeImage();
    button->AddSubItem(new CMFCRibbonButton(21, L"One"));
    button->AddSubItem(new CMFCRibbonCheckBox(22, L"Two"));
    return button;
}

Element MakeEdit() {
    auto edit = std::make_unique<CMFCRibbonEdit>(0, 77, L"", 5);
    edit->SetEditText(L"typed");
    edit->SetWidth(88, TRUE);
    edit->SetTextAlign(ES_RIGHT);
    return edit;
}

void CompareEdits(const CMFCRibbonBaseElement& a, const CMFCRibbonBaseElement& b) {
    CompareButtons(a, b);
    const auto& left = dynamic_cast<const CMFCRibbonEdit&>(a);
    const auto& right = dynamic_cast<const CMFCRibbonEdit&>(b);
    EXPECT_EQ(left.GetEditText(), right.GetEditText());
    EXPECT_EQ(left.GetWidth(), right.GetWidth());
    EXPECT_EQ(left.GetWidth(TRUE), right.GetWidth(TRUE));
    EXPECT_EQ(left.GetTextAlign(), right.GetTextAlign());
}

Element MakeSlider() {
    auto slider = std::make_unique<CMFCRibbonSlider>(0, 66);
    slider->SetRange(-5, 45);
    slider->SetPos(17);
    slider->SetZoomButtons();
    slider->SetZoomIncrement(3);
    return slider;
}

void CompareSliders(const CMFCRibbonBaseElement& a, const CMFCRibbonBaseElement& b) {
    const auto& left = dynamic_cast<const CMFCRibbonSlider&>(a);
    const auto& right = dynamic_cast<const CMFCRibbonSlider&>(b);
    EXPECT_EQ(left.GetWidth(), right.GetWidth());
    EXPECT_EQ(left.GetRangeMin(), right.GetRangeMin());
    EXPECT_EQ(left.GetRangeMax(), right.GetRangeMax());
    EXPECT_EQ(left.GetPos(), right.GetPos());
    EXPECT_EQ(left.HasZoomButtons(), right.HasZoomButtons());
    EXPECT_EQ(left.GetZoomIncrement(), right.GetZoomIncrement());
}

Element MakeGroup() {
    auto group = std::make_unique<CMFCRibbonButtonsGroup>();
    group->AddButton(new CMFCRibbonButton(31, L"A"));
    group->AddButton(new CMFCRibbonSlider(32, 40));
    CMFCToolBarImages images;
    const SolidIcon icon(16, RGB(0, 90, 200));
    images.SetImageSize(CSize(16, 16));
    images.AddIcon(icon.Get());
    group->SetImages(&images, nullptr, nullptr);
    return group;
}

void CompareGroups(const CMFCRibbonBaseElement& a, const CMFCRibbonBaseElement& b) {
    const auto& left = dynamic_cast<const CMFCRibbonButtonsGroup&>(a);
    const auto& right = dynamic_cast<const CMFCRibbonButtonsGroup&>(b);
    ASSERT_EQ(left.GetCount(), right.GetCount());
    for (int i = 0; i < left.GetCount(); ++i) {
        EXPECT_NE(left.GetButton(i), right.GetButton(i));
        EXPECT_EQ(left.GetButton(i)->GetID(), right.GetButton(i)->GetID());
        EXPECT_EQ(left.GetButton(i)->GetRuntimeClass(), right.GetButton(i)->GetRuntimeClass());
        EXPECT_EQ(right.GetButton(i)->GetOriginal(), left.GetButton(i));
    }
    EXPECT_TRUE(left.HasImages());
    EXPECT_EQ(left.HasImages(), right.HasImages());
    EXPECT_EQ(left.GetImageSize(), right.GetImageSize());
}

void CompareLabels(const CMFCRibbonBaseElement& a, const CMFCRibbonBaseElement& b) {
    CompareButtons(a, b);
    EXPECT_EQ(dynamic_cast<const CMFCRibbonLabel&>(a).IsMultiLine(),
              dynamic_cast<const CMFCRibbonLabel&>(b).IsMultiLine());
}

void CompareSeparators(const CMFCRibbonBaseElement& a, const CMFCRibbonBaseElement& b) {
    EXPECT_EQ(dynamic_cast<const CMFCRibbonSeparator&>(a).IsHorizontal(),
              dynamic_cast<const CMFCRibbonSeparator&>(b).IsHorizontal());
}

const ClassCase kClasses[] = {
    {"button", RUNTIME_CLASS(CMFCRibbonButton), MakeButton, CompareButtons},
    {"check box", RUNTIME_CLASS(CMFCRibbonCheckBox), [] { return std::make_unique<CMFCRibbonCheckBox>(0, L""); },
     CompareButtons},
    {"edit", RUNTIME_CLASS(CMFCRibbonEdit), MakeEdit, CompareEdits},
    {"group", RUNTIME_CLASS(CMFCRibbonButtonsGroup), MakeGroup, CompareGroups},
    {"label", RUNTIME_CLASS(CMFCRibbonLabel), [] { return std::make_unique<CMFCRibbonLabel>(L"", TRUE); },
     CompareLabels},
    {"separator", RUNTIME_CLASS(CMFCRibbonSeparator), [] { return std::make_unique<CMFCRibbonSeparator>(TRUE); },
     CompareSeparators},
    {"slider", RUNTIME_CLASS(CMFCRibbonSlider), MakeSlider, CompareSliders},
};

class RunTimeClasses : public ::testing::TestWithParam<ClassCase> {
protected:
    static void Configure(CMFCRibbonBaseElement& element) {
        element.SetID(4711);
        element.SetText(L"Text\nTK");
        element.SetKeys(element.GetKeys(), L"MK");
        element.SetToolTipText(L"Tip");
        element.SetDescription(L"Description");
        element.SetData(99);
        element.SetTextAlwaysOnRight();
        element.SetDefaultMenuLook();
        element.SetVisible(FALSE);
    }
    static void CompareBase(const CMFCRibbonBaseElement& a, const CMFCRibbonBaseElement& b) {
        EXPECT_EQ(a.GetID(), b.GetID());
        EXPECT_STREQ(a.GetText(), b.GetText());
        EXPECT_STREQ(a.GetKeys(), b.GetKeys());
        EXPECT_STREQ(a.GetMenuKeys(), b.GetMenuKeys());
        EXPECT_EQ(a.GetToolTipText(), b.GetToolTipText());
        EXPECT_EQ(a.GetDescription(), b.GetDescription());
        EXPECT_EQ(a.GetData(), b.GetData());
        EXPECT_EQ(a.IsTextAlwaysOnRight(), b.IsTextAlwaysOnRight());
        EXPECT_EQ(a.IsDefaultMenuLook(), b.IsDefaultMenuLook());
        EXPECT_EQ(a.IsVisible(), b.IsVisible());
        EXPECT_EQ(a.IsCompactMode(), b.IsCompactMode());
        EXPECT_EQ(a.IsIntermediateMode(), b.IsIntermediateMode());
    }
};

INSTANTIATE_TEST_SUITE_P(RibbonElements, RunTimeClasses, ::testing::ValuesIn(kClasses));

TEST_P(RunTimeClasses, AreCreatedAndCopiedFieldByField) {
    const Element source = GetParam().make();
    Configure(*source);
    ASSERT_EQ(source->GetRuntimeClass(), GetParam().runtimeClass);

    const Element copy(static_cast<CMFCRibbonBaseElement*>(GetParam().runtimeClass->CreateObject()));
    ASSERT_NE(copy, nullptr);
    copy->CopyFrom(*source);
    CompareBase(*source, *copy);
    GetParam().compare(*source, *copy);
    EXPECT_EQ(copy->GetOriginal(), nullptr);
    EXPECT_STREQ(copy->GetText(), L"Text");
    EXPECT_STREQ(copy->GetKeys(), L"TK");
}

TEST_P(RunTimeClasses, TakeTheRestOfTheStateAndTheLinkToTheirOriginal) {
    const Element source = GetParam().make();
    source->SetDisabled(TRUE);
    source->SetChecked(TRUE);
    const Element copy(static_cast<CMFCRibbonBaseElement*>(GetParam().runtimeClass->CreateObject()));
    copy->CopyFrom(*source);
    EXPECT_FALSE(copy->IsDisabled());
    copy->CopyStateFrom(source.get());
    EXPECT_TRUE(copy->IsDisabled());
    EXPECT_TRUE(copy->IsChecked());
    EXPECT_EQ(copy->GetOriginal(), source.get());

    const Element second(static_cast<CMFCRibbonBaseElement*>(GetParam().runtimeClass->CreateObject()));
    second->CopyStateFrom(copy.get());
    EXPECT_EQ(second->GetOriginal(), source.get());
}

TEST_P(RunTimeClasses, AreFoundInTheClassList) {
    CRuntimeClass* found = CRuntimeClass::FromName(GetParam().runtimeClass->m_lpszClassName);
    EXPECT_EQ(found, GetParam().runtimeClass);
}

TEST_P(RunTimeClasses, AnOriginalThatGoesIsNoOriginalAnyMore) {
    Element first = GetParam().make();
    Element second = GetParam().make();
    const Element copy = GetParam().make();
    const Element other = GetParam().make();
    second->SetOriginal(first.get());
    copy->SetOriginal(second.get());
    other->SetOriginal(second.get());
    other->SetOriginal(first.get());
    second.reset();
    EXPECT_EQ(copy->GetOriginal(), first.get()) << "what its original was a copy of";
    first.reset();
    EXPECT_EQ(copy->GetOriginal(), nullptr);
    EXPECT_EQ(other->GetOriginal(), nullptr);
}

TEST(CopyFrom, ASubItemsCopyIsNotLinkedToAnItemThatIsGone) {
    CMFCRibbonButton source;
    source.AddSubItem(new CMFCRibbonButton(1, L"One"));
    CMFCRibbonButton copy;
    copy.CopyFrom(source);
    ASSERT_EQ(copy.GetSubItems()[0]->GetOriginal(), source.GetSubItems()[0]);
    source.RemoveAllSubItems();
    ASSERT_EQ(copy.GetSubItems().GetSize(), 1) << "a copy of the host's own keeps what it has";
    EXPECT_EQ(copy.GetSubItems()[0]->GetOriginal(), nullptr);
}

TEST(CopyFrom, AnotherClassGivesWhatBothHave) {
    CMFCRibbonSlider slider(5, 60);
    slider.SetToolTipText(L"Zoom");
    CMFCRibbonButton button;
    button.CopyFrom(slider);
    EXPECT_EQ(button.GetID(), 5u);
    EXPECT_EQ(button.GetToolTipText(), CString(L"Zoom"));
}

TEST(CopyFrom, AButtonThatDestroysItsIconsGivesTheCopyItsOwn) {
    SolidIcon large(32, RGB(1, 2, 3));
    CMFCRibbonButton source(1, L"", large.Release(), FALSE, nullptr, TRUE);
    CMFCRibbonButton copy;
    copy.CopyFrom(source);
    ASSERT_NE(copy.GetIcon(), nullptr);
    EXPECT_NE(copy.GetIcon(), source.GetIcon());
}

} // namespace

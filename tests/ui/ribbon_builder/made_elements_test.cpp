// What is made of the record of one element.
#include "library_context.h"
#include "ribbon_check_combo.h"
#include "ribbon_multi_combo.h"
#include "tests/ui/icon_button/button_flags.h"
#include "tests/ui/ribbon_builder/drawn_icons.h"
#include "tests/ui/ribbon_builder/ribbon_fixture.h"
#include <fx/scoped_change.h>

namespace {

RibbonInfo InfoOf(const wchar_t* type) {
    RibbonInfo info;
    info.type = type;
    info.name = L"name";
    info.tooltip = L"tip";
    info.picPath = L"pic\\a.ico";
    return info;
}

std::unique_ptr<CMFCRibbonBaseElement> Make(const RibbonInfo& info, const CAddRibbonBar* owner = nullptr) {
    return std::unique_ptr<CMFCRibbonBaseElement>(CAddRibbonBar::CreateACtrl(7, info, owner));
}

TEST_F(RibbonBuilder, ButtonTakesBothIconSizesAndASmallOneThe16PixelIcon) {
    // Below this test's installation directory where it is the first in its process to ask.
    const CString largeFile = GetIconPathStr(L"pic\\a.ico", 32);
    const CString smallFile = GetIconPathStr(L"pic\\a.ico", 16);
    RibbonInfo info = InfoOf(L"BUTTON");
    auto button = Make(info);
    auto* icon = DYNAMIC_DOWNCAST(CMFCRibbonUNIcoButton, button.get());
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(icon->GetRuntimeClass(), RUNTIME_CLASS(CMFCRibbonUNIcoButton));
    EXPECT_EQ(icon->GetIconPath(TRUE), largeFile);
    EXPECT_EQ(icon->GetIconPath(FALSE), smallFile);
    EXPECT_EQ(icon->GetID(), 7u);
    EXPECT_EQ(CString(icon->GetText()), L"name");
    EXPECT_EQ(icon->GetToolTipText(), L"tip");
    EXPECT_TRUE(icon->HasLargeMode());

    info.size = 16;
    button = Make(info);
    icon = DYNAMIC_DOWNCAST(CMFCRibbonSmallButton, button.get());
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(icon->GetIconPath(TRUE), smallFile);
    EXPECT_TRUE(icon->GetIconPath(FALSE).IsEmpty());
    EXPECT_FALSE(icon->HasLargeMode());

    for (const int size : {0, 15, 17, 24, 32, -16}) {
        info.size = size;
        EXPECT_EQ(Make(info)->GetRuntimeClass(), RUNTIME_CLASS(CMFCRibbonUNIcoButton)) << size;
    }
}

TEST_F(RibbonBuilder, ButtonsOwnTheirIconsBlendNoneAndShowNoDescription) {
    for (const int size : {16, 32}) {
        RibbonInfo info = InfoOf(L"BUTTON");
        info.size = size;
        const auto made = Make(info);
        const auto& button = static_cast<const CMFCRibbonUNIcoButton&>(*made);
        EXPECT_TRUE(ButtonFlags::DestroysIcons(button)) << size;
        EXPECT_FALSE(ButtonFlags::BlendsIcons(button)) << size;
        EXPECT_FALSE(button.IsAlwaysShowDescription()) << size;
    }
}

TEST_F(RibbonBuilder, ButtonsAlternateIconsAreFormed) {
    RibbonInfo info = InfoOf(L"BUTTON");
    info.picPath = L"skin\\modle\\a.ico";
    for (const int size : {16, 32}) {
        info.size = size;
        const auto made = Make(info);
        auto& button = static_cast<CMFCRibbonUNIcoButton&>(*made);
        WriteLargeIcons(button);
        EXPECT_EQ(AlternateColour(button), blue) << size;
    }
}

/// An image of one colour in a category's list.
void AddImage(CMFCToolBarImages& images, const TemporaryDirectory& directory, int side, std::uint32_t colour) {
    images.SetImageSize(CSize(side, side));
    const std::wstring file = directory.Write("image.ico", MakeIconFile(side, {colour, colour}));
    const auto icon = static_cast<HICON>(::LoadImageW(nullptr, file.c_str(), IMAGE_ICON, side, side, LR_LOADFROMFILE));
    EXPECT_EQ(images.AddIcon(icon, TRUE), 0);
    ::DestroyIcon(icon);
}

TEST_F(RibbonBuilder, ButtonWhoseLargeFileIsMissingDrawsFromItsImageIndexes) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' TYPE='BUTTON' PICPATH='late\\a.ico'/>")));
    CMFCRibbonCategory& category = *m_bar.GetCategory(0);
    AddImage(category.GetLargeImages(), m_installation.Directory(), 32, red);
    AddImage(category.GetSmallImages(), m_installation.Directory(), 16, blue);
    auto& button = static_cast<CMFCRibbonUNIcoButton&>(*Element(0));
    button.SetImageIndex(0, TRUE);
    button.SetImageIndex(0, FALSE);
    WriteIcon(button.GetIconPath(FALSE), 16, green);
    EXPECT_EQ(ColourDrawn(button, CMFCRibbonBaseElement::RibbonImageLarge), red);
    EXPECT_EQ(ColourDrawn(button, CMFCRibbonBaseElement::RibbonImageSmall), blue) << "not from the small file either";
    WriteIcon(button.GetIconPath(TRUE), 32, yellow);
    EXPECT_EQ(ColourDrawn(button, CMFCRibbonBaseElement::RibbonImageLarge), yellow);
    EXPECT_EQ(ColourDrawn(button, CMFCRibbonBaseElement::RibbonImageSmall), green);
}

TEST_F(RibbonBuilder, F1HintIsGivenToButtonsWhoseOwnerAndRecordWantIt) {
    EXPECT_EQ(CAddRibbonBar::m_strHelpF1, L"\u6309F1\u952E\u83B7\u5F97\u6B64\u529F\u80FD\u89C6\u9891");
    for (const int size : {16, 32}) {
        RibbonInfo info = InfoOf(L"BUTTON");
        info.size = size;
        m_builder.SetCreateF1Tip(true);
        EXPECT_EQ(Make(info, &m_builder)->GetDescription(), CAddRibbonBar::m_strHelpF1);
        EXPECT_EQ(Make(info, nullptr)->GetDescription(), L"");
        info.acceptF1 = false;
        EXPECT_EQ(Make(info, &m_builder)->GetDescription(), L"");
        info.acceptF1 = true;
        m_builder.SetCreateF1Tip(false);
        EXPECT_FALSE(m_builder.getAcceptF1());
        EXPECT_EQ(Make(info, &m_builder)->GetDescription(), L"");
    }
}

TEST_F(RibbonBuilder, F1HintIsForButtonsOnly) {
    for (const wchar_t* type :
         {L"slider", L"label", L"edit", L"qkRibbonCheckComb", L"qkRibbonMultiComb", L"qkRibbonMultiComb2"}) {
        EXPECT_EQ(Make(InfoOf(type), &m_builder)->GetDescription(), L"") << type;
    }
}

TEST_F(RibbonBuilder, SliderIsAsWideAsConfiguredOrFifty) {
    for (const auto& [width, expected] : {std::pair{120, 120}, {1, 1}, {0, 50}, {-5, 50}}) {
        RibbonInfo info = InfoOf(L"SLIDER");
        info.width = width;
        const auto made = Make(info);
        const auto* const slider = DYNAMIC_DOWNCAST(CMFCRibbonSlider, made.get());
        ASSERT_NE(slider, nullptr);
        const CMFCRibbonSlider same(7, expected);
        EXPECT_EQ(slider->GetWidth(), same.GetWidth()) << width;
        EXPECT_EQ(slider->GetID(), 7u);
        EXPECT_EQ(CString(slider->GetText()), L"name");
        EXPECT_EQ(slider->GetToolTipText(), L"tip");
    }
}

TEST_F(RibbonBuilder, EditIsAsWideAsConfiguredOrFiftyAndHoldsTheName) {
    for (const auto& [width, expected] : {std::pair{120, 120}, {1, 1}, {0, 50}, {-5, 50}}) {
        RibbonInfo info = InfoOf(L"edit");
        info.width = width;
        const auto made = Make(info);
        auto* const edit = DYNAMIC_DOWNCAST(CMFCRibbonEdit, made.get());
        ASSERT_NE(edit, nullptr);
        EXPECT_EQ(edit->GetWidth(), CMFCRibbonEdit(7, expected).GetWidth()) << width;
        EXPECT_EQ(edit->GetID(), 7u);
        EXPECT_EQ(edit->GetEditText(), L"name");
        EXPECT_EQ(CString(edit->GetText()), L"");
        EXPECT_EQ(edit->GetImageIndex(FALSE), -1);
        EXPECT_EQ(edit->GetImageIndex(TRUE), -1);
        EXPECT_EQ(edit->GetToolTipText(), L"tip");
    }
}

TEST_F(RibbonBuilder, LabelHasNameAndIdAndNothingMore) {
    const auto made = Make(InfoOf(L"Label"));
    const auto* const label = DYNAMIC_DOWNCAST(CMFCRibbonLabel, made.get());
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(CString(label->GetText()), L"name");
    EXPECT_EQ(label->GetID(), 7u);
    EXPECT_NE(label->GetToolTipText(), L"tip");
    EXPECT_FALSE(label->IsMultiLine());
}

template <class Combo>
std::unique_ptr<Combo> MakeCombo(const wchar_t* type) {
    RibbonInfo info = InfoOf(type);
    info.width = 300;
    std::unique_ptr<CMFCRibbonBaseElement> made = Make(info);
    auto* const combo = DYNAMIC_DOWNCAST(Combo, made.get());
    EXPECT_NE(combo, nullptr);
    if (combo) {
        static_cast<void>(made.release());
    }
    return std::unique_ptr<Combo>(combo);
}

void ExpectBuiltCombo(CMFCRibbonComboBox& combo) {
    EXPECT_EQ(combo.GetID(), 7u);
    EXPECT_FALSE(combo.HasEditBox());
    EXPECT_EQ(combo.GetWidth(), CMFCRibbonComboBox(7, FALSE).GetWidth()) << "the usual width, whatever the file says";
    EXPECT_EQ(combo.GetImageIndex(FALSE), -1);
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_EQ(CString(combo.GetText()), L"name");
    EXPECT_EQ(combo.GetToolTipText(), L"tip");
}

TEST_F(RibbonBuilder, ACheckComboAndAMultiComboDropInTheirClassesStaticHeight) {
    const fx::ScopedChange checkHeight(CMFCRibbonCheckComb::m_nStaticDropDownHeight, 321);
    const fx::ScopedChange multiHeight(CMFCRibbonMultiCombo::m_nStaticDropDownHeight, 123);
    const auto check = MakeCombo<CMFCRibbonCheckComb>(L"qkRibbonCheckComb");
    ASSERT_NE(check, nullptr);
    ExpectBuiltCombo(*check);
    EXPECT_EQ(check->GetDropDownHeight(), 321);
    check->SetStaticDropDownHeight(333);
    EXPECT_EQ(CMFCRibbonCheckComb::m_nStaticDropDownHeight, 333) << "it uses the static height";
    const auto multi = MakeCombo<CMFCRibbonMultiCombo>(L"qkRibbonMultiComb");
    ASSERT_NE(multi, nullptr);
    ExpectBuiltCombo(*multi);
    EXPECT_EQ(multi->GetDropDownHeight(), 123);
    multi->SetStaticDropDownHeight(111);
    EXPECT_EQ(CMFCRibbonMultiCombo::m_nStaticDropDownHeight, 111);
}

TEST_F(RibbonBuilder, ALightOnlyComboKeepsItsDropDownHeight) {
    const auto light = MakeCombo<CMFCRibbonVesMultiCombo>(L"qkRibbonMultiComb2");
    ASSERT_NE(light, nullptr);
    ExpectBuiltCombo(*light);
    EXPECT_EQ(light->GetDropDownHeight(), CMFCRibbonComboBox(7, FALSE).GetDropDownHeight());
}

TEST_F(RibbonBuilder, UnknownTypesMakeNothing) {
    for (const wchar_t* type : {L"", L"lamp", L"GROUP", L"BUTTON ", L"buttons", L"qkRibbonMultiComb3", L"CheckComb"}) {
        EXPECT_EQ(Make(InfoOf(type)), nullptr) << type;
    }
}

} // namespace

// Buttons with icon files: how they are made, and the small ones among them.
#include "tests/ui/icon_button/button_flags.h"
#include "tests/ui/icon_button/icon_fixture.h"

namespace {

template <class Button>
class ButtonTexts : public testing::Test {};
using IconButtonClasses = testing::Types<CMFCRibbonUNIcoButton, CMFCRibbonSmallButton>;
TYPED_TEST_SUITE(ButtonTexts, IconButtonClasses);

template <class Button, class Text>
void ExpectTextTaken(const Text& text) {
    EXPECT_EQ(CString(Button(1, text).GetText()), L"text");
    EXPECT_EQ(Button(1, text, 4, 5).GetImageIndex(TRUE), 5);
    EXPECT_EQ(Button(1, text, 4, 5).GetImageIndex(FALSE), 4);
    EXPECT_EQ(CString(Button(1, text, ::LoadIcon(nullptr, IDI_APPLICATION)).GetText()), L"text");
    EXPECT_NE(Button(1, text, ::LoadIcon(nullptr, IDI_APPLICATION)).GetIcon(TRUE), nullptr);
    EXPECT_EQ(Button(1, text, CString(L"large"), FALSE, CString(L"small")).GetIconPath(FALSE), L"small");
    EXPECT_EQ(Button(1, text, L"large", TRUE).GetIconPath(TRUE), L"large");
    EXPECT_TRUE(Button(1, text, L"large", TRUE).IsAlwaysShowDescription());
}

TYPED_TEST(ButtonTexts, MayBeOfEveryKind) {
    ExpectTextTaken<TypeParam>(L"text");
    ExpectTextTaken<TypeParam>(static_cast<const wchar_t*>(L"text"));
    ExpectTextTaken<TypeParam>(CString(L"text"));
    ExpectTextTaken<TypeParam>(std::wstring(L"text"));
}

TEST_F(IconButton, ConstructorWithPathsSetsIdTextAndFlags) {
    for (const BOOL flag : {FALSE, TRUE}) {
        const CMFCRibbonUNIcoButton shows(7, L"text", m_large, flag, m_small, !flag, flag, FALSE);
        EXPECT_EQ(shows.GetID(), 7u);
        EXPECT_EQ(CString(shows.GetText()), L"text");
        EXPECT_EQ(shows.IsAlwaysShowDescription(), flag);
        EXPECT_EQ(ButtonFlags::DestroysIcons(shows), !flag);
        EXPECT_EQ(ButtonFlags::BlendsIcons(shows), flag);
        const CMFCRibbonSmallButton small(7, L"text", m_large, flag, m_small, !flag, flag);
        EXPECT_EQ(small.IsAlwaysShowDescription(), flag);
        EXPECT_EQ(ButtonFlags::DestroysIcons(small), !flag);
        EXPECT_EQ(ButtonFlags::BlendsIcons(small), flag);
    }
}

TEST_F(IconButton, IsMadeByItsRunTimeClass) {
    for (CRuntimeClass* runtimeClass : {RUNTIME_CLASS(CMFCRibbonUNIcoButton), RUNTIME_CLASS(CMFCRibbonSmallButton)}) {
        const std::unique_ptr<CObject> made(runtimeClass->CreateObject());
        ASSERT_NE(made, nullptr) << runtimeClass->m_lpszClassName;
        EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CMFCRibbonUNIcoButton)));
        EXPECT_EQ(made->GetRuntimeClass(), runtimeClass);
    }
}

TEST_F(IconButton, ChangedRectangleReachesTheFrameworksButton) {
    const auto button = MakeButton();
    TestWindow window;
    button->SetParentWnd(&window);
    button->SetIntermediateMode(TRUE);
    button->AddSubItem(new CMFCRibbonButton(2, L"sub"));
    button->SetDefaultCommand(TRUE);
    button->SetRect(CRect(0, 0, 80, 24));
    EXPECT_TRUE(button->GetMenuRect().IsRectEmpty());
    button->OnAfterChangeRect(m_canvas.Dc());
    EXPECT_FALSE(button->GetMenuRect().IsRectEmpty());
}

class SmallButton : public IconButton {};

TEST_F(SmallButton, HasALargeModeUntilItIsSetSmall) {
    CMFCRibbonSmallButton button(1, L"", m_large, FALSE, m_small);
    EXPECT_TRUE(button.HasLargeMode());
    button.SetSmallMode();
    EXPECT_FALSE(button.HasLargeMode());
    button.SetLargeMode();
    EXPECT_TRUE(button.HasLargeMode());
}

TEST_F(SmallButton, WithoutALargePictureHasNoLargeMode) {
    EXPECT_FALSE(CMFCRibbonSmallButton().HasLargeMode());
    EXPECT_FALSE(CMFCRibbonSmallButton(1, L"", CString(), FALSE, m_small).HasLargeMode());
}

TEST_F(SmallButton, FormsBothAlternates) {
    CMFCRibbonSmallButton button(1, L"", m_large, FALSE, m_small);
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    EXPECT_EQ(ColourDrawn(button, Large), blue);
    EXPECT_EQ(ColourDrawn(button, Small), yellow);
}

TEST_F(SmallButton, CopyOfAnotherKindOfButtonKeepsTheSmallMode) {
    CMFCRibbonSmallButton copy(1, L"", m_large, FALSE, m_small);
    copy.SetSmallMode();
    copy.CopyFrom(*MakeButton());
    EXPECT_FALSE(copy.HasLargeMode());
    EXPECT_EQ(copy.GetIconPath(TRUE), m_large);
}

TEST_F(SmallButton, LinkedSmallButtonHasALargeModeWhereItsOriginalHasALargePicture) {
    CMFCRibbonSmallButton copy;
    EXPECT_FALSE(copy.HasLargeMode());
    const auto original = MakeButton();
    copy.SetOriginal(original.get());
    EXPECT_TRUE(copy.HasLargeMode());
}

TEST_F(SmallButton, CopyTakesTheSmallMode) {
    CMFCRibbonSmallButton source(1, L"", m_large, FALSE, m_small);
    source.SetSmallMode();
    CMFCRibbonSmallButton copy;
    copy.CopyFrom(source);
    EXPECT_EQ(copy.GetIconPath(TRUE), m_large);
    EXPECT_FALSE(copy.HasLargeMode());
    copy.CopyFrom(CMFCRibbonSmallButton(1, L"", m_large));
    EXPECT_TRUE(copy.HasLargeMode());
}

} // namespace

// A button for the command of a keyword, made after the one that the bar has.
#include "tests/ui/icon_button/button_flags.h"
#include "tests/ui/ribbon_builder/drawn_icons.h"
#include "tests/ui/ribbon_builder/ribbon_fixture.h"

namespace {

class ButtonFromKey : public RibbonBuilder {
protected:
    void SetUp() override {
        RibbonBuilder::SetUp();
        ASSERT_TRUE(m_installation.Translate("K L"));
    }
    std::unique_ptr<CMFCRibbonUNIcoButton> Make(const std::wstring& keyword, int keepLarge = 0) {
        m_id = -7;
        return std::unique_ptr<CMFCRibbonUNIcoButton>(
            CAddRibbonBar::CreateBtnFromKey(&m_bar, keyword, 5, m_id, keepLarge));
    }
    int m_id = -7;
};

const char* const keyButton = "<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='BUTTON' PICPATH='pic\\a.ico' AcceptF1='N'/>";

TEST_F(ButtonFromKey, CopiesTheCommandsButton) {
    m_builder.SetCreateF1Tip(false);
    ASSERT_TRUE(Load(Panel(keyButton)));
    const auto button = Make(L"K");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(m_id, m_firstId + 1);
    EXPECT_EQ(button->GetID(), static_cast<UINT>(m_id));
    EXPECT_EQ(CString(button->GetText()), L"<K>");
    EXPECT_EQ(button->GetToolTipText(), L"tip of <K>");
    EXPECT_EQ(button->GetDescription(), CAddRibbonBar::m_strHelpF1) << "always";
    const auto* const found = static_cast<CMFCRibbonUNIcoButton*>(Element(0));
    EXPECT_EQ(button->GetIconPath(TRUE), found->GetIconPath(TRUE));
    EXPECT_EQ(button->GetIconPath(FALSE), found->GetIconPath(FALSE));
    EXPECT_EQ(button->GetRuntimeClass(), RUNTIME_CLASS(CMFCRibbonUNIcoButton));
}

TEST_F(ButtonFromKey, NameAndTooltipAreTheRegisteredOnesWhateverTheFoundButtonShows) {
    ASSERT_TRUE(Load(Panel(keyButton)));
    Element(0)->SetText(L"another text");
    Element(0)->SetToolTipText(L"another tip");
    const auto button = Make(L"K");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(CString(button->GetText()), L"<K>");
    EXPECT_EQ(button->GetToolTipText(), L"tip of <K>");
}

TEST_F(ButtonFromKey, TakesThePathsOfTheVisibleOneOfTwo) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='BUTTON' PICPATH='pic\\a.ico'/>"
                           "<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='BUTTON' PICPATH='pic\\b.ico'/>")));
    EXPECT_EQ(Make(L"K")->GetIconPath(TRUE).Right(5), L"a.ico");
    Element(0)->SetVisible(FALSE);
    const auto button = Make(L"K");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->GetIconPath(TRUE).Right(5), L"b.ico");
}

TEST_F(ButtonFromKey, LeavesIconsAndDescriptionFlagsOff) {
    ASSERT_TRUE(Load(Panel(keyButton)));
    const auto button = Make(L"K", 1);
    ASSERT_NE(button, nullptr);
    EXPECT_FALSE(ButtonFlags::DestroysIcons(*button));
    EXPECT_FALSE(ButtonFlags::BlendsIcons(*button));
    EXPECT_FALSE(button->IsAlwaysShowDescription());
}

TEST_F(ButtonFromKey, LastArgumentKeepsTheLargePath) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='BUTTON' PICPATH='skin\\modle\\k.ico'/>")));
    WriteLargeIcons(static_cast<CMFCRibbonUNIcoButton&>(*Element(0)));
    const auto kept = Make(L"K", 1);
    ASSERT_NE(kept, nullptr);
    EXPECT_EQ(AlternateColour(*kept), red);
    const auto formed = Make(L"K", 0);
    ASSERT_NE(formed, nullptr);
    EXPECT_EQ(AlternateColour(*formed), blue);
}

TEST_F(ButtonFromKey, IsFoundOnTheQuickAccessToolbarToo) {
    ASSERT_TRUE(Load("<r KEYWORD='QK_Rbbion_QAToolbar'><i KEYWORD='K'/></r>" + Panel(keyButton)));
    const CString path = static_cast<CMFCRibbonUNIcoButton*>(Element(0))->GetIconPath(TRUE);
    m_bar.ShowCategory(0, FALSE);
    const auto button = Make(L"K");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->GetIconPath(TRUE), path);
}

TEST_F(ButtonFromKey, OfASmallButtonIsAnOrdinaryOneWithTheSmallOnesPaths) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='BUTTON' SIZE='16' PICPATH='pic\\a.ico'/>")));
    const auto button = Make(L"K");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->GetRuntimeClass(), RUNTIME_CLASS(CMFCRibbonUNIcoButton));
    EXPECT_EQ(button->GetIconPath(TRUE).Right(12), L"pic\\16\\a.ico");
    EXPECT_TRUE(button->GetIconPath(FALSE).IsEmpty());
    EXPECT_TRUE(button->HasLargeMode());
}

TEST_F(ButtonFromKey, IsFoundAmongSubItemsAndMembersOfGroups) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='B' TYPE='BUTTON'><s KEYWORD='K' NAME='' TOOLTIP='' TYPE='BUTTON'/></e>"
                           "<e KEYWORD='G' TYPE='GROUP'><s KEYWORD='L' NAME='' TOOLTIP='' TYPE='BUTTON'/></e>")));
    EXPECT_NE(Make(L"K"), nullptr);
    EXPECT_NE(Make(L"L"), nullptr);
}

TEST_F(ButtonFromKey, IsNullWithoutABar) {
    ASSERT_TRUE(Load(Panel(keyButton)));
    int id = -7;
    EXPECT_EQ(CAddRibbonBar::CreateBtnFromKey(nullptr, L"K", 0, id, 0), nullptr);
    EXPECT_EQ(id, -7);
}

TEST_F(ButtonFromKey, IsNullForAnUnknownKeyword) {
    ASSERT_TRUE(Load(Panel(keyButton)));
    EXPECT_EQ(Make(L"unknown"), nullptr);
    EXPECT_EQ(m_id, -7);
}

TEST_F(ButtonFromKey, IsNullForAKeywordWithoutATooltip) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' NAME='' TYPE='BUTTON'/>")));
    EXPECT_EQ(Make(L"K"), nullptr);
    EXPECT_EQ(m_id, -7);
}

TEST_F(ButtonFromKey, IsNullWhereTheBarHasNoSuchElementButTellsTheId) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='lamp'/>")));
    EXPECT_EQ(Make(L"K"), nullptr);
    EXPECT_EQ(m_id, m_firstId + 1);
}

TEST_F(ButtonFromKey, IsNullForAnElementOfAnotherKind) {
    ASSERT_TRUE(Load(Panel("<e KEYWORD='K' NAME='' TOOLTIP='' TYPE='edit'/>")));
    EXPECT_EQ(Make(L"K"), nullptr);
    EXPECT_EQ(m_id, m_firstId + 1);
}

TEST_F(ButtonFromKey, IsNullForAHiddenButton) {
    ASSERT_TRUE(Load(Panel(keyButton), 0));
    EXPECT_EQ(Make(L"K"), nullptr);
}

} // namespace

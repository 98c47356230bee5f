// What people and assistive programs read of an element whose text is a translation key, beside what is drawn.
#include <afxribbonpanelmenu.h>

#include "ribbon_icon_button.h"
#include "ribbon_label_ex.h"
#include "tests/support/ribbon_host.h"
#include "tests/support/translation_tables.h"

namespace {

constexpr UINT buttonId = 700;
constexpr UINT menuId = 701;

class ShownText : public testing::Test {
protected:
    // "zoo <key>": another first letter than the key's.
    void SetUp() override { ASSERT_TRUE(m_installation.Translate("key", "Common", "zoo ")); }
    void TearDown() override {
        CMFCRibbonPanelMenu::DismissAll();
        PumpPending();
    }
    CMFCRibbonUNIcoButton& AddButton() { return m_host.Add(std::make_unique<CMFCRibbonUNIcoButton>(buttonId, L"key")); }
    CString NameOf(CMFCRibbonBaseElement& element) {
        CAccessibilityData data;
        element.SetACCData(&m_host.Bar(), data);
        return data.m_strName;
    }
    static CMFCRibbonPanelMenuBar& PopupBar() { return CMFCRibbonPanelMenu::GetDeepest()->GetRibbonMenuBar(); }

    TranslatedInstallation m_installation;
    RibbonHost m_host;
};

TEST_F(ShownText, IsTheAccessibleName) {
    EXPECT_EQ(NameOf(AddButton()), L"zoo <key>");
    CMFCRibbonLabelEx label(L"key");
    EXPECT_EQ(NameOf(label), L"zoo <key>");
}

TEST_F(ShownText, IsTheTipOfAButtonWithoutOne) {
    CMFCRibbonUNIcoButton& button = AddButton();
    EXPECT_EQ(button.GetToolTipText(), L"zoo <key>");
    button.SetToolTipText(L"tip");
    EXPECT_EQ(button.GetToolTipText(), L"tip");
}

TEST_F(ShownText, GivesTheLetterOfTheKeyTip) {
    CMFCRibbonUNIcoButton& button = AddButton();
    EXPECT_EQ(button.GetKeyTipText(FALSE), L"Z");
    ASSERT_TRUE(m_installation.Translate("key", "Common", "queue "));
    m_host.LayOut();
    EXPECT_EQ(button.GetKeyTipText(FALSE), L"Q") << "the language has changed";
}

TEST_F(ShownText, IsTheRowOfTheMenuThatCustomisesTheQuickAccessToolbar) {
    AddButton();
    CMFCRibbonQuickAccessToolBarDefaultState state;
    state.AddCommand(buttonId);
    m_host.Bar().SetQuickAccessDefaultState(state);
    ASSERT_TRUE(m_host.Bar().OnShowRibbonQATMenu(&m_host.Bar(), 50, 50, nullptr));
    const std::vector<CMFCRibbonBaseElement*>& rows = PopupBar().GetShown();
    ASSERT_GE(rows.size(), 2u);
    EXPECT_EQ(CString(rows[1]->GetText()), L"zoo <key>");
}

TEST_F(ShownText, ItsFirstLetterChoosesTheRowOfAMenu) {
    auto menu = std::make_unique<CMFCRibbonButton>(menuId, L"Menu");
    menu->AddSubItem(new CMFCRibbonUNIcoButton(buttonId, L"key"));
    CMFCRibbonButton& button = m_host.Add(std::move(menu));
    button.OnShowPopupMenu();
    ASSERT_NE(CMFCRibbonPanelMenu::GetDeepest(), nullptr);
    EXPECT_FALSE(PopupBar().TranslateChar(L'K'));
    EXPECT_TRUE(PopupBar().TranslateChar(L'Z'));
    PumpPending();
    EXPECT_EQ(m_host.Frame().CountCommands(buttonId), 1);
}

} // namespace

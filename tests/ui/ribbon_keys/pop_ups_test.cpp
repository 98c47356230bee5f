#include "tests/ui/ribbon_keys/keyboard_fixture.h"

#include <gmock/gmock.h>

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

namespace {

constexpr UINT kMenu = commands::firstHandled + 60;
constexpr UINT kAlpha = kMenu + 1;
constexpr UINT kBeta = kMenu + 2;

class KeyPopupTest : public KeyboardTest {
protected:
    /// A button with two sub-items in the second category; its key is M.
    void AddMenu() {
        auto* button = new CMFCRibbonButton(kMenu, L"Menu");
        button->AddSubItem(new CMFCRibbonButton(kAlpha, L"Alpha"));
        button->AddSubItem(new CMFCRibbonButton(kBeta, L"Beta"));
        button->SetKeys(L"M");
        Bar().GetCategory(1)->GetPanel(0)->Add(button);
        Bar().RecalcLayout();
    }
};

TEST_F(KeyPopupTest, TheItemsOfAMenuThatALetterOpenedHaveLetters) {
    AddMenu();
    Press({VK_MENU, 'V', 'M'});
    EXPECT_EQ(Bar().GetKeyboardNavigationLevel(), 2);
    EXPECT_THAT(ShownTips(), ElementsAre(L"A", L"B"));
    Press('B');
    EXPECT_THAT(m_frame->commands, ElementsAre(kBeta));
    EXPECT_THAT(ShownTips(), IsEmpty());
    EXPECT_EQ(::GetFocus(), Document());
    EXPECT_EQ(Bar().GetDroppedDown(), nullptr);
}

TEST_F(KeyPopupTest, EscapeGoesBackFromAMenuToTheTipsBelow) {
    AddMenu();
    Press({VK_MENU, 'V', 'M', VK_ESCAPE});
    EXPECT_EQ(Bar().GetKeyboardNavigationLevel(), 1);
    EXPECT_THAT(ShownTips(), Contains(L"M"));
    EXPECT_EQ(Bar().GetDroppedDown(), nullptr);
    Press({VK_ESCAPE, VK_ESCAPE});
    EXPECT_EQ(::GetFocus(), Document());
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(KeyPopupTest, AnArrowHidesTheLettersOfAMenuAndWalksInIt) {
    AddMenu();
    Press({VK_MENU, 'V', 'M', VK_DOWN});
    EXPECT_THAT(ShownTips(), IsEmpty());
    Press({VK_END, VK_RETURN});
    EXPECT_THAT(m_frame->commands, ElementsAre(kBeta));
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyPopupTest, ThePanelsOfAMinimisedBarShowTheirLetters) {
    Bar().ToggleMimimizeState();
    Press({VK_MENU, 'V'});
    EXPECT_THAT(ShownTips(), Contains(KeysOf(Element(commands::find))));
    Press(VK_ESCAPE);
    EXPECT_THAT(ShownTips(), ElementsAre(L"H", L"V"));
    Press('V');
    Type(KeysOf(Element(commands::find)).c_str());
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::find));
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyPopupTest, ACollapsedPanelOpensByItsKeyAndItsElementsByTheirs) {
    CMFCRibbonCategory* many = AddManyButtons(60, 12);
    many->SetKeys(L"X");
    Bar().SetActiveCategory(many);
    SetClientWidth(300);
    CMFCRibbonPanel& panel = *many->GetPanel(0);
    ASSERT_TRUE(panel.IsCollapsed());
    panel.SetKeys(L"ZZ");
    Press({VK_MENU, 'X', 'Z', 'Z'});
    EXPECT_EQ(ShownTips().size(), 12u);
    EXPECT_THAT(ShownTips(), Not(Contains(L"ZZ")));
    Type(KeysOf(*panel.GetElement(7)).c_str());
    EXPECT_THAT(m_frame->commands, ElementsAre(panel.GetElement(7)->GetID()));
    EXPECT_EQ(::GetFocus(), Document());
}

} // namespace

// Elements and containers that take keys themselves, in the bar, in pop-ups and while the bar is minimised.
#include "tests/ui/ribbon_keys/keyboard_fixture.h"

#include <gmock/gmock.h>

#include "afxRibbonEdit.h"
#include "afxribbonpanelmenu.h"
#include "afxribbonslider.h"

using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

/// Notes the keys that its panel is asked about, and takes one of them.
class AskedPanel : public CMFCRibbonPanel {
    DECLARE_DYNCREATE(AskedPanel)

public:
    std::vector<UINT> keys;
    BOOL OnKey(UINT nChar) override {
        keys.push_back(nChar);
        return nChar == VK_INSERT || CMFCRibbonPanel::OnKey(nChar);
    }
};
IMPLEMENT_DYNCREATE(AskedPanel, CMFCRibbonPanel)

class AskedCategory : public CMFCRibbonCategory {
    DECLARE_DYNCREATE(AskedCategory)

public:
    std::vector<UINT> keys;
    BOOL OnKey(UINT nChar) override {
        keys.push_back(nChar);
        return CMFCRibbonCategory::OnKey(nChar);
    }
};
IMPLEMENT_DYNCREATE(AskedCategory, CMFCRibbonCategory)

class OwnKeyTest : public KeyboardTest {
protected:
    CMFCRibbonSlider& Slider() { return static_cast<CMFCRibbonSlider&>(Element(commands::zoom)); }

    /// Each key moves the slider as its name says; the command follows each move.
    void ExpectTakesItsKeys() {
        CMFCRibbonSlider& slider = Slider();
        slider.SetPos(40);
        const int step = slider.GetZoomIncrement();
        const int page = (slider.GetRangeMax() - slider.GetRangeMin()) / 5;
        m_frame->commands.clear();
        const std::pair<UINT, int> moves[] = {{VK_RIGHT, 40 + step}, {VK_LEFT, 40}, {VK_UP, 40 + step}, {VK_DOWN, 40},
                                              {VK_PRIOR, 40 + page}, {VK_NEXT, 40}, {VK_END, 100},      {VK_HOME, 0}};
        for (const auto& [key, position] : moves) {
            Press(key);
            EXPECT_EQ(slider.GetPos(), position) << key;
        }
        EXPECT_EQ(m_frame->commands.size(), std::size(moves));
        EXPECT_THAT(m_frame->commands, Each(commands::zoom));
    }

    void CollapseSlidersPanel() { Collapse(1).SetKeys(L"ZZ"); }
};

TEST_F(OwnKeyTest, AFocusedSliderTakesArrowsHomeEndAndPageKeys) {
    Press({VK_MENU, 'H'});
    Type(Slider().GetKeyTipText(FALSE));
    ASSERT_EQ(Bar().GetFocused(), &Slider());
    ExpectTakesItsKeys();
    EXPECT_EQ(Bar().GetFocused(), &Slider()) << "none of them leads on";
    Press(VK_TAB);
    EXPECT_EQ(Bar().GetFocused(), &Element(commands::options)) << "Tab does";
}

TEST_F(OwnKeyTest, TheLettersOfASliderGiveItTheKeyboardInThePopUpOfACollapsedPanel) {
    CollapseSlidersPanel();
    Press({VK_MENU, 'H', 'Z', 'Z'});
    Type(Slider().GetKeyTipText(FALSE));
    CMFCRibbonPanelMenu* popup = CMFCRibbonPanelMenu::GetDeepest();
    ASSERT_NE(popup, nullptr) << "a slider is moved more than once";
    EXPECT_EQ(popup->GetRibbonMenuBar().GetHighlighted(), &Slider());
    EXPECT_THAT(ShownTips(), IsEmpty());
    ExpectTakesItsKeys();
    EXPECT_EQ(popup->GetRibbonMenuBar().GetHighlighted(), &Slider());
    Press(VK_TAB);
    EXPECT_EQ(popup->GetRibbonMenuBar().GetHighlighted(), &Element(commands::options));
    Press({VK_ESCAPE, VK_ESCAPE, VK_ESCAPE});
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(OwnKeyTest, TheSameInThePanelsOfAMinimisedBar) {
    Bar().ToggleMimimizeState();
    Press({VK_MENU, 'H'});
    Type(Slider().GetKeyTipText(FALSE));
    CMFCRibbonPanelMenu* popup = CMFCRibbonPanelMenu::GetDeepest();
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->GetRibbonMenuBar().GetHighlighted(), &Slider());
    ExpectTakesItsKeys();
}

TEST_F(OwnKeyTest, AnEditInThePanelsOfAMinimisedBarGetsTheCaretByItsLetters) {
    Bar().ToggleMimimizeState();
    Press({VK_MENU, 'H'});
    auto& edit = static_cast<CMFCRibbonEdit&>(Element(commands::size));
    Type(edit.GetKeyTipText(FALSE));
    ASSERT_NE(edit.GetEditWnd(), nullptr);
    EXPECT_EQ(::GetFocus(), edit.GetEditWnd()->GetSafeHwnd());
    Press({'4', '2', VK_RETURN});
    EXPECT_EQ(edit.GetEditText(), L"42");
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::size));
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(OwnKeyTest, EscapeInAnEditOfAPopUpFirstTakesTheTextBackAndThenClosesThePopUp) {
    CollapseSlidersPanel();
    auto& edit = static_cast<CMFCRibbonEdit&>(Element(commands::size));
    Press({VK_MENU, 'H', 'Z', 'Z'});
    Type(edit.GetKeyTipText(FALSE));
    ASSERT_TRUE(edit.HasFocus());
    Press({'4', '2'});
    EXPECT_EQ(edit.GetEditText(), L"42");
    Press(VK_ESCAPE);
    EXPECT_EQ(edit.GetEditText(), L"12");
    EXPECT_FALSE(edit.HasFocus());
    CMFCRibbonPanelMenu* popup = CMFCRibbonPanelMenu::GetDeepest();
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->GetRibbonMenuBar().GetHighlighted(), &edit) << "arrows go on from it";
    Press(VK_TAB);
    EXPECT_EQ(popup->GetRibbonMenuBar().GetHighlighted(), &Slider());
    Press(VK_ESCAPE);
    EXPECT_EQ(CMFCRibbonPanelMenu::GetDeepest(), nullptr);
    EXPECT_EQ(::GetFocus(), Bar().GetSafeHwnd()) << "back to what opened it";
    Press(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), Document());
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(OwnKeyTest, EscapeInAnEditThatWasClickedInAPopUpDoesTheSame) {
    CollapseSlidersPanel();
    auto& edit = static_cast<CMFCRibbonEdit&>(Element(commands::size));
    m_pointer.Click(Bar().GetSafeHwnd(), Center(Bar().GetCategory(0)->GetPanel(1)->GetDefaultButton().GetRect()));
    PumpPending();
    ASSERT_NE(CMFCRibbonPanelMenu::GetDeepest(), nullptr);
    edit.GetEditWnd()->SetFocus();
    PumpPending();
    Press({VK_END, '7', VK_ESCAPE});
    EXPECT_EQ(edit.GetEditText(), L"12");
    EXPECT_FALSE(edit.HasFocus());
    EXPECT_NE(CMFCRibbonPanelMenu::GetDeepest(), nullptr);
    Press(VK_ESCAPE);
    EXPECT_EQ(CMFCRibbonPanelMenu::GetDeepest(), nullptr);
    EXPECT_EQ(::GetFocus(), Document());
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(OwnKeyTest, InAMinimisedBarArrowsWalkFromTheTabIntoItsPanelsAndEnterSends) {
    Bar().ToggleMimimizeState();
    Press({VK_MENU, VK_END});
    EXPECT_EQ(FocusedText(), L"View");
    Press(VK_HOME);
    EXPECT_EQ(FocusedText(), L"Home");
    Press(VK_DOWN);
    CMFCRibbonPanelMenu* popup = CMFCRibbonPanelMenu::GetDeepest();
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->GetRibbonMenuBar().GetHighlighted(), &Element(commands::paste));
    Press({VK_RIGHT, VK_RETURN});
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::cut));
    EXPECT_EQ(CMFCRibbonPanelMenu::GetDeepest(), nullptr);
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(OwnKeyTest, InAMinimisedBarEscapeGoesBackFromThePanelsToTheTab) {
    Bar().ToggleMimimizeState();
    Press({VK_MENU, VK_DOWN, VK_ESCAPE});
    ASSERT_FALSE(AreTipsShown());
}

TEST_F(OwnKeyTest, CategoryAndPanelAreAskedForKeysWhileAnElementOfTheirsHasThem) {
    auto* category = static_cast<AskedCategory*>(
        Bar().AddCategory(L"Asked", 0, 0, CSize(16, 16), CSize(32, 32), -1, RUNTIME_CLASS(AskedCategory)));
    auto* panel = static_cast<AskedPanel*>(category->AddPanel(L"Asked", nullptr, RUNTIME_CLASS(AskedPanel)));
    panel->Add(new CMFCRibbonButton(commands::firstHandled + 70, L"One"));
    panel->Add(new CMFCRibbonButton(commands::firstHandled + 71, L"Two"));
    Bar().SetActiveCategory(category);
    Bar().RecalcLayout();
    Press({VK_F6, VK_INSERT});
    EXPECT_THAT(category->keys, IsEmpty()) << "the tab is none of its elements";
    Press({VK_DOWN, VK_INSERT, VK_DOWN});
    EXPECT_THAT(category->keys, ElementsAre(VK_INSERT, VK_DOWN));
    EXPECT_THAT(panel->keys, ElementsAre(VK_INSERT, VK_DOWN));
    EXPECT_EQ(FocusedText(), L"Two") << "a key that is not taken walks on";
    Press(VK_ESCAPE);
    Bar().ToggleMimimizeState();
    panel->keys.clear();
    Press({VK_F6, VK_DOWN, VK_INSERT});
    EXPECT_THAT(panel->keys, Contains(VK_INSERT)) << "in the pop-up as well";
}

} // namespace

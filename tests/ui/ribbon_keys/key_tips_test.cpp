#include "tests/ui/ribbon_keys/keyboard_fixture.h"

#include <gmock/gmock.h>

#include <set>

#include "afxRibbonEdit.h"
#include "afxribbonslider.h"

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

namespace {

class KeyTipTest : public KeyboardTest {};

TEST_F(KeyTipTest, AltShowsTheTipsOfTheTabsAndAltHidesThemAgain) {
    ASSERT_EQ(::GetFocus(), Document());
    Press(VK_MENU);
    EXPECT_EQ(Bar().GetKeyboardNavigationLevel(), 0);
    EXPECT_EQ(Bar().GetKeyboardNavLevelCurrent(), &Bar());
    EXPECT_EQ(Bar().GetKeyboardNavLevelParent(), nullptr);
    EXPECT_THAT(ShownTips(), ElementsAre(L"H", L"V"));
    EXPECT_EQ(::GetFocus(), Bar().GetSafeHwnd());
    Press(VK_MENU);
    EXPECT_EQ(Bar().GetKeyboardNavigationLevel(), -1);
    EXPECT_THAT(ShownTips(), IsEmpty());
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyTipTest, F10DoesTheSame) {
    Press(VK_F10);
    EXPECT_THAT(ShownTips(), ElementsAre(L"H", L"V"));
    Press(VK_F10);
    EXPECT_FALSE(AreTipsShown());
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyTipTest, ALetterLeadsToTheCategoryAndAnotherSendsItsCommandOnce) {
    Press({VK_MENU, 'V'});
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(1));
    EXPECT_EQ(m_frame->categoryChanges, 1);
    EXPECT_EQ(Bar().GetKeyboardNavigationLevel(), 1);
    EXPECT_EQ(Bar().GetKeyboardNavLevelCurrent(), Bar().GetCategory(1));
    EXPECT_EQ(Bar().GetKeyboardNavLevelParent(), &Bar());
    EXPECT_THAT(m_frame->commands, IsEmpty());
    Type(Element(commands::find).GetKeyTipText(FALSE));
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::find));
    EXPECT_FALSE(AreTipsShown());
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyTipTest, EscapeGoesBackALevelAndThenLeaves) {
    Press({VK_MENU, 'H', VK_ESCAPE});
    EXPECT_EQ(Bar().GetKeyboardNavigationLevel(), 0);
    EXPECT_THAT(ShownTips(), ElementsAre(L"H", L"V"));
    Press(VK_ESCAPE);
    EXPECT_EQ(Bar().GetKeyboardNavigationLevel(), -1);
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyTipTest, KeysThatWereGivenWin) {
    Bar().GetCategory(0)->SetKeys(L"q");
    EXPECT_TRUE(Bar().SetElementKeys(commands::cut, L"XY"));
    Bar().GetCategory(0)->GetPanel(0)->GetElement(2)->SetText(L"Copy\nXZ");
    Press(VK_MENU);
    EXPECT_THAT(ShownTips(), ElementsAre(L"Q", L"V"));
    Press({'Q', 'X'});
    EXPECT_THAT(ShownTips(), ElementsAre(L"XY", L"XZ")) << "only what can still follow";
    Press(VK_ESCAPE);
    EXPECT_THAT(ShownTips(), Contains(KeysOf(Element(commands::paste))));
    Press({'X', 'Z'});
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::copy));
}

TEST_F(KeyTipTest, ALetterThatLeadsNowhereLeavesTheTips) {
    Press({VK_MENU, 'Z'});
    EXPECT_THAT(ShownTips(), ElementsAre(L"H", L"V"));
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(KeyTipTest, TheQuickAccessToolbarHasDigits) {
    Bar().SetQuickAccessCommands(CommandList{commands::paste, commands::bold});
    Press(VK_MENU);
    EXPECT_THAT(ShownTips(), ElementsAre(L"1", L"2", L"H", L"V"));
    Press('2');
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::bold));
}

TEST_F(KeyTipTest, ADisabledElementIsNotCalled) {
    m_frame->disabledCommand = commands::paste;
    PumpPending();
    Press({VK_MENU, 'H'});
    Type(Element(commands::paste).GetKeyTipText(FALSE));
    EXPECT_THAT(m_frame->commands, IsEmpty());
    EXPECT_EQ(Bar().GetKeyboardNavigationLevel(), 1) << "the tips stay";
}

TEST_F(KeyTipTest, AnEditGetsTheCaretAndEnterGivesTheFocusBack) {
    Press({VK_MENU, 'H'});
    Type(Element(commands::size).GetKeyTipText(FALSE));
    auto& edit = static_cast<CMFCRibbonEdit&>(Element(commands::size));
    EXPECT_EQ(::GetFocus(), edit.GetEditWnd()->GetSafeHwnd());
    EXPECT_FALSE(AreTipsShown());
    Press({'4', '2', VK_RETURN});
    EXPECT_EQ(edit.GetEditText(), L"42");
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::size));
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyTipTest, ALaunchButtonHasATipAndItsLettersSendItsCommand) {
    constexpr UINT launch = commands::firstHandled + 300;
    Bar().GetCategory(0)->GetPanel(0)->EnableLaunchButton(launch, -1, L"FN");
    Bar().RecalcLayout();
    Press({VK_MENU, 'H'});
    EXPECT_THAT(ShownTips(), Contains(L"FN"));
    Press({'F', 'N'});
    EXPECT_THAT(m_frame->commands, ElementsAre(launch));
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyTipTest, ALaunchButtonInThePopUpOfACollapsedPanelHasATipToo) {
    constexpr UINT launch = commands::firstHandled + 300;
    CMFCRibbonCategory* many = AddManyButtons(60, 12);
    many->SetKeys(L"X");
    many->GetPanel(0)->EnableLaunchButton(launch, -1, L"FN");
    many->GetPanel(0)->SetKeys(L"ZZ");
    Bar().SetActiveCategory(many);
    SetClientWidth(300);
    ASSERT_TRUE(many->GetPanel(0)->IsCollapsed());
    Press({VK_MENU, 'X'});
    EXPECT_THAT(ShownTips(), Not(Contains(L"FN")));
    Press({'Z', 'Z'});
    EXPECT_THAT(ShownTips(), Contains(L"FN"));
    Press({'F', 'N'});
    EXPECT_THAT(m_frame->commands, ElementsAre(launch));
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyTipTest, ASliderGetsTheFocusAndTheArrowsAcross) {
    Press({VK_MENU, 'H'});
    auto& slider = static_cast<CMFCRibbonSlider&>(Element(commands::zoom));
    // A slider has no text: its letters come from the alphabet.
    Type(slider.GetKeyTipText(FALSE));
    EXPECT_EQ(Bar().GetFocused(), &slider);
    const int before = slider.GetPos();
    Press(VK_RIGHT);
    EXPECT_EQ(slider.GetPos(), before + slider.GetZoomIncrement());
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::zoom));
    Press(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyTipTest, AClickLeaves) {
    Press({VK_MENU, 'H'});
    m_pointer.Click(Bar(), CenterOf(commands::cut));
    PumpPending();
    EXPECT_FALSE(AreTipsShown());
    EXPECT_THAT(ShownTips(), IsEmpty());
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::cut));
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyTipTest, AnElementThatGoesTakesItsTipAlong) {
    Press({VK_MENU, 'H'});
    const std::wstring keys = KeysOf(Element(commands::paste));
    Bar().GetCategory(0)->GetPanel(0)->Remove(0);
    PumpPending();
    EXPECT_THAT(ShownTips(), Not(Contains(keys)));
    Type(keys.c_str());
    EXPECT_THAT(m_frame->commands, IsEmpty());
    Bar().RemoveAllCategories();
    PumpPending();
    EXPECT_THAT(ShownTips(), Not(Contains(L"H")));
    Press(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyTipTest, AHandlerMayDestroyTheFrame) {
    Bar().GetCategory(0)->GetPanel(0)->Add(new CMFCRibbonButton(commands::closesFrame, L"Close"));
    Press({VK_MENU, 'H'});
    Type(Element(commands::closesFrame).GetKeyTipText(FALSE));
    EXPECT_FALSE(::IsWindow(m_window));
    EXPECT_THAT(ShownTips(), IsEmpty());
}

TEST_F(KeyTipTest, TheTipsOfAMinimisedBarWorkToo) {
    Bar().ToggleMimimizeState();
    Press(VK_MENU);
    EXPECT_THAT(ShownTips(), ElementsAre(L"H", L"V"));
    Press('V');
    Type(Element(commands::find).GetKeyTipText(FALSE));
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::find));
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyTipTest, WithoutKeyTipsAltIsNotTheRibbons) {
    Bar().EnableKeyTips(FALSE);
    EXPECT_FALSE(Bar().OnSysKeyDown(m_frame, VK_F10, 1));
    Bar().EnableKeyTips(TRUE);
    EXPECT_TRUE(Bar().OnSysKeyDown(m_frame, VK_F10, 1));
}

TEST_F(KeyTipTest, ASplitButtonHasATipForItsMenu) {
    auto* split = new CMFCRibbonButton(commands::firstHandled + 50, L"Split");
    split->AddSubItem(new CMFCRibbonButton(commands::firstHandled + 51, L"Item"));
    split->SetDefaultCommand();
    split->SetKeys(L"SP", L"SM");
    Bar().GetCategory(1)->GetPanel(0)->Add(split);
    Press({VK_MENU, 'V'});
    EXPECT_THAT(ShownTips(), Contains(L"SP"));
    EXPECT_THAT(ShownTips(), Contains(L"SM"));
    Press({'S', 'P'});
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::firstHandled + 50));
}

TEST_F(KeyTipTest, TheTipsAreSmallWindowsAtTheirElements) {
    Press({VK_MENU, 'H'});
    CClientDC dc(&Bar());
    CMFCRibbonBaseElement& paste = Element(commands::paste);
    const CRect tip = paste.GetKeyTipRect(&dc, FALSE);
    EXPECT_EQ(tip.Size(), paste.GetKeyTipSize(&dc));
    CRect overlap;
    EXPECT_TRUE(overlap.IntersectRect(tip, paste.GetRect()));
    EXPECT_LT(tip.Height(), paste.GetRect().Height() / 2);
    EXPECT_NEAR(tip.CenterPoint().x, paste.GetRect().CenterPoint().x, 1);
}

TEST_F(KeyTipTest, EveryCommandOfABigRandomRibbonIsReachedByTipsAlone) {
    const std::set<UINT> ids = FillAtRandom(1, 9);
    ASSERT_GT(ids.size(), 100u);
    PumpPending();
    m_frame->commands.clear();
    for (int index = 0; index < Bar().GetCategoryCount(); ++index) {
        CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
        Bar().GetCategory(index)->GetElements(elements);
        for (INT_PTR place = 0; place < elements.GetSize(); ++place) {
            if (elements[place]->IsSeparator()) {
                continue;
            }
            // What a collapsed panel holds is the business of its pop-up.
            ASSERT_FALSE(elements[place]->GetParentPanel()->IsCollapsed());
            Press(VK_MENU);
            // Only what the screen shows is typed: the letters of the tab's tip, then those of the element's.
            CMFCRibbonBaseElement* tabElement = Bar().HitTest(Bar().GetCategory(index)->GetTabRect().CenterPoint());
            ASSERT_NE(tabElement, nullptr);
            ASSERT_THAT(ShownTips(), Contains(KeysOf(*tabElement)));
            Type(KeysOf(*tabElement).c_str());
            ASSERT_THAT(ShownTips(), Contains(KeysOf(*elements[place])));
            Type(KeysOf(*elements[place]).c_str());
            ASSERT_FALSE(AreTipsShown());
        }
    }
    EXPECT_EQ(m_frame->commands.size(), ids.size());
    EXPECT_EQ(std::set<UINT>(m_frame->commands.begin(), m_frame->commands.end()), ids);
}

} // namespace

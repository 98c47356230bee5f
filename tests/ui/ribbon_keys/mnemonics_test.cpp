// Letters of key tips that texts and names bring along, in any script.
#include "tests/ui/ribbon_keys/keyboard_fixture.h"

#include <gmock/gmock.h>

#include "tests/support/keys.h"

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;

namespace {

struct Marked {
    LPCTSTR text;
    LPCTSTR capital;
    wchar_t typed;
};

// "Öffnen", "Файл", "Έξοδος": German, Russian, Greek.
constexpr Marked kMarked[] = {
    {L"&\x00F6"
     L"ffnen",
     L"\x00D6", L'\x00F6'},
    {L"&\x0424\x0430\x0439\x043B", L"\x0424", L'\x0444'},
    {L"\x0388&\x03BE\x03BF\x03B4\x03BF\x03C2", L"\x039E", L'\x03BE'},
};

class KeyMnemonicTest : public KeyboardTest {};

TEST_F(KeyMnemonicTest, AMarkedLetterOfAnyScriptIsTheTipOfItsTab) {
    for (const Marked& marked : kMarked) {
        Bar().AddCategory(marked.text, 0, 0);
    }
    Bar().RecalcLayout();
    Press(VK_MENU);
    EXPECT_THAT(ShownTips(), AllOf(Contains(L"\x00D6"), Contains(L"\x0424"), Contains(L"\x039E")));
    Press(VK_ESCAPE);
    for (const Marked& marked : kMarked) {
        SCOPED_TRACE(static_cast<int>(marked.typed));
        EXPECT_TRUE(Bar().TranslateChar(marked.typed)) << "in small letters too";
        EXPECT_STREQ(Bar().GetActiveCategory()->GetName(), marked.text);
        Bar().DeactivateKeyboardFocus();
    }
}

TEST_F(KeyMnemonicTest, KeysThatWereGivenInAnyScriptAreFoundInAnyCase) {
    Bar().GetCategory(1)->SetKeys(L"\x0444\x044F");
    Press(VK_MENU);
    EXPECT_THAT(ShownTips(), Contains(L"\x0424\x042F"));
    EXPECT_TRUE(Bar().TranslateChar(L'\x0424'));
    EXPECT_TRUE(Bar().TranslateChar(L'\x044F'));
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(1));
}

TEST_F(KeyMnemonicTest, NamesBringTheirKeys) {
    CMFCRibbonCategory* category = Bar().AddCategory(L"Tools\nq", 0, 0);
    CMFCRibbonPanel* panel = category->AddPanel(L"Clipboard\nzz");
    panel->Add(new CMFCRibbonButton(commands::firstHandled + 70, L"Line numbers\nln"));
    Bar().RecalcLayout();
    Press(VK_MENU);
    EXPECT_THAT(ShownTips(), Contains(L"Q"));
    Press({'Q', 'L', 'N'});
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::firstHandled + 70));
    EXPECT_STREQ(panel->GetDefaultButton().GetKeyTipText(FALSE), L"ZZ");
}

TEST_F(KeyMnemonicTest, TheSameTextWithOtherKeysHasAnotherTip) {
    CMFCRibbonBaseElement& cut = Element(commands::cut);
    const CString former = cut.GetKeyTipText(FALSE);
    ASSERT_NE(former, L"ZZ");
    cut.SetText(CString(cut.GetText()) + L"\nzz");
    EXPECT_EQ(cut.GetKeyTipText(FALSE), L"ZZ");
}

TEST_F(KeyMnemonicTest, AMarkedLetterCallsARowOfAMenu) {
    auto* button = new CMFCRibbonButton(commands::firstHandled + 60, L"&Menu");
    for (UINT place = 0; place < std::size(kMarked); ++place) {
        button->AddSubItem(new CMFCRibbonButton(commands::firstHandled + 61 + place, kMarked[place].text));
    }
    button->AddSubItem(new CMFCRibbonButton(commands::firstHandled + 69, L"E&xit"));
    Bar().GetCategory(1)->GetPanel(0)->Add(button);
    Bar().RecalcLayout();
    Press({VK_MENU, 'V', 'M', 'X'});
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::firstHandled + 69)) << "by its tip";
    // Opened by the pointer there are no tips: the pop-up finds the mark itself.
    for (UINT place = 0; place < std::size(kMarked); ++place) {
        m_frame->commands.clear();
        m_pointer.Click(Bar(), button->GetRect().CenterPoint());
        Keys(m_frame->GetSafeHwnd()).Type(std::wstring(1, kMarked[place].typed));
        PumpPending();
        EXPECT_THAT(m_frame->commands, ElementsAre(commands::firstHandled + 61 + place));
    }
}

} // namespace

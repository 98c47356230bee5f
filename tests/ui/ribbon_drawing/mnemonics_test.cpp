// Texts with marks of mnemonics, and names with the letters of a key tip, as the ribbon draws them.
#include <gmock/gmock.h>

#include "afxribboncheckbox.h"
#include "afxRibbonEdit.h"
#include "afxRibbonLabel.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"
#include "tests/ui/ribbon_drawing/drawn_texts.h"

using ::testing::Contains;
using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class RibbonMnemonics : public RibbonBarTest {
protected:
    std::vector<std::wstring> Drawn() {
        Bar().RecalcLayout();
        std::vector<std::wstring> texts;
        for (const DrawnText& text : TextsDrawnBy([this](CDC& dc) { Bar().DoPaint(&dc); })) {
            texts.push_back(text.text);
        }
        return texts;
    }
    static constexpr UINT kFirst = commands::firstHandled + 400;
};

TEST_F(RibbonMnemonics, AreNotDrawnInTabsAndPanelCaptions) {
    CMFCRibbonCategory* category = Bar().AddCategory(L"&Buttons && more", 0, 0);
    CMFCRibbonPanel* panel = category->AddPanel(L"Clip&board");
    panel->Add(new CMFCRibbonButton(kFirst, L"Any"));
    Bar().SetActiveCategory(category);
    const std::vector<std::wstring> drawn = Drawn();
    EXPECT_THAT(drawn, Contains(L"Buttons & more"));
    EXPECT_THAT(drawn, Contains(L"Clipboard"));
    EXPECT_STREQ(category->GetName(), L"&Buttons && more");
    EXPECT_STREQ(panel->GetName(), L"Clip&board");
}

TEST_F(RibbonMnemonics, AreNotDrawnInButtonsCheckBoxesAndTheLabelsOfEdits) {
    CMFCRibbonCategory* category = Bar().AddCategory(L"Own", 0, 0);
    CMFCRibbonPanel* panel = category->AddPanel(L"Panel");
    panel->Add(new CMFCRibbonButton(kFirst, L"Groups && Subitems"));
    panel->Add(new CMFCRibbonCheckBox(kFirst + 1, L"Che&ck"));
    panel->Add(new CMFCRibbonEdit(kFirst + 2, 60, L"Si&ze"));
    Bar().SetActiveCategory(category);
    const std::vector<std::wstring> drawn = Drawn();
    EXPECT_THAT(drawn, Contains(L"Groups & Subitems"));
    EXPECT_THAT(drawn, Contains(L"Check"));
    EXPECT_THAT(drawn, Contains(L"Size"));
    EXPECT_STREQ(Element(kFirst).GetText(), L"Groups && Subitems");
}

TEST_F(RibbonMnemonics, AreNotDrawnUnderALargeImage) {
    Element(commands::paste).SetText(L"E&xit");
    EXPECT_THAT(Drawn(), Contains(L"Exit"));
    Element(commands::paste).SetText(L"&Save all && close the window");
    EXPECT_THAT(Drawn(), Each(Not(HasSubstr(L"&S"))));
    EXPECT_THAT(Drawn(), Each(Not(HasSubstr(L"&&"))));
}

TEST_F(RibbonMnemonics, TakeNoRoom) {
    CMFCRibbonPanel* panel = Bar().AddCategory(L"Own", 0, 0)->AddPanel(L"Panel");
    auto* marked = new CMFCRibbonButton(kFirst, L"&Button");
    auto* plain = new CMFCRibbonButton(kFirst + 1, L"Button");
    panel->Add(marked);
    panel->Add(plain);
    CClientDC dc(&Bar());
    EXPECT_EQ(marked->GetIntermediateSize(&dc), plain->GetIntermediateSize(&dc));
    CMFCRibbonCategory* markedTab = Bar().AddCategory(L"&Tab", 0, 0);
    CMFCRibbonCategory* plainTab = Bar().AddCategory(L"Tab", 0, 0);
    Bar().RecalcLayout();
    EXPECT_EQ(markedTab->GetTabRect().Width(), plainTab->GetTabRect().Width());
}

TEST_F(RibbonMnemonics, TakeNoRoomInTheCaptionOfAContext) {
    CMFCRibbonCategory* marked = Bar().AddContextCategory(L"A", L"&Name of a context", 7, AFX_CategoryColor_Red, 0, 0);
    CMFCRibbonCategory* plain = Bar().AddContextCategory(L"A", L"Name of a context", 8, AFX_CategoryColor_Red, 0, 0);
    Bar().ShowContextCategories(7);
    Bar().ShowContextCategories(8);
    Bar().RecalcLayout();
    EXPECT_EQ(marked->GetTabRect().Width(), plain->GetTabRect().Width());
}

TEST_F(RibbonMnemonics, OfALabelAreItsText) {
    CMFCRibbonCategory* category = Bar().AddCategory(L"Own", 0, 0);
    category->AddPanel(L"Panel")->Add(new CMFCRibbonLabel(L"A & B && C"));
    Bar().SetActiveCategory(category);
    EXPECT_THAT(Drawn(), Contains(L"A & B && C"));
}

TEST_F(RibbonMnemonics, AreNotInATooltipThatRepeatsTheText) {
    Element(commands::cut).SetText(L"C&ut && paste");
    EXPECT_EQ(Element(commands::cut).GetToolTipText(), L"Cut & paste");
    Element(commands::cut).SetToolTipText(L"Own & literal");
    EXPECT_EQ(Element(commands::cut).GetToolTipText(), L"Own & literal");
}

TEST_F(RibbonMnemonics, KeysBehindALineBreakAreNoPartOfNames) {
    CMFCRibbonCategory* category = Bar().AddCategory(L"Tools\nto", 0, 0);
    CMFCRibbonPanel* panel = category->AddPanel(L"Clipboard\nd");
    auto* button = new CMFCRibbonButton(kFirst, L"Line numbers\nln");
    panel->Add(button);
    Bar().SetActiveCategory(category);
    EXPECT_STREQ(category->GetName(), L"Tools");
    EXPECT_STREQ(category->GetTab().GetKeys(), L"to");
    EXPECT_STREQ(panel->GetName(), L"Clipboard");
    EXPECT_STREQ(panel->GetDefaultButton().GetText(), L"Clipboard");
    EXPECT_STREQ(panel->GetDefaultButton().GetKeys(), L"d");
    EXPECT_STREQ(button->GetText(), L"Line numbers");
    EXPECT_STREQ(button->GetKeys(), L"ln");
    const std::vector<std::wstring> drawn = Drawn();
    EXPECT_THAT(drawn, Contains(L"Tools"));
    EXPECT_THAT(drawn, Contains(L"Clipboard"));
}

TEST_F(RibbonMnemonics, ANewNameKeepsTheKeysUnlessItBringsSome) {
    CMFCRibbonCategory* category = Bar().AddCategory(L"Tools\nto", 0, 0);
    category->SetName(L"Other");
    EXPECT_STREQ(category->GetName(), L"Other");
    EXPECT_STREQ(category->GetTab().GetKeys(), L"to");
    category->SetName(L"Third\nx");
    EXPECT_STREQ(category->GetName(), L"Third");
    EXPECT_STREQ(category->GetTab().GetKeys(), L"x");
}

TEST_F(RibbonMnemonics, TheNameOfAContextBringsNoKeys) {
    CMFCRibbonCategory* category =
        Bar().AddContextCategory(L"&Picture\np", L"&Pictures\nx", 7, AFX_CategoryColor_Red, 0, 0);
    Bar().ShowContextCategories(7);
    CString name;
    ASSERT_TRUE(Bar().GetContextName(7, name));
    EXPECT_EQ(name, L"&Pictures");
    EXPECT_STREQ(category->GetName(), L"&Picture");
    EXPECT_STREQ(category->GetTab().GetKeys(), L"p");
}

} // namespace

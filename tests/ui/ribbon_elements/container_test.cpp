// Sub-items, groups, texts and searches.
#include <afxribbonbutton.h>
#include <afxribbonbuttonsgroup.h>
#include <afxRibbonLabel.h>
#include <afxribbonslider.h>

#include <memory>

#include "element_fixture.h"

namespace {

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;

class CountedButton : public CMFCRibbonButton {
public:
    explicit CountedButton(UINT id = 0) : CMFCRibbonButton(id, L"Counted") { ++s_alive; }
    ~CountedButton() override { --s_alive; }
    static inline int s_alive = 0;
};

TEST(SubItems, BelongToTheirButton) {
    {
        CMFCRibbonButton button(1, L"Menu");
        button.AddSubItem(new CountedButton(11));
        button.AddSubItem(new CountedButton(12));
        button.AddSubItem(new CountedButton(13));
        EXPECT_EQ(CountedButton::s_alive, 3);
        EXPECT_TRUE(button.RemoveSubItem(1));
        EXPECT_EQ(CountedButton::s_alive, 2);
        EXPECT_EQ(button.FindSubItemIndexByID(13), 1);
        EXPECT_FALSE(button.RemoveSubItem(2));
        EXPECT_FALSE(button.RemoveSubItem(-1));
    }
    EXPECT_EQ(CountedButton::s_alive, 0);
}

TEST(SubItems, RemoveAllMakesAPlainButton) {
    CMFCRibbonButton button(1, L"Menu");
    button.AddSubItem(new CountedButton);
    EXPECT_TRUE(button.HasMenu());
    button.RemoveAllSubItems();
    EXPECT_FALSE(button.HasMenu());
    EXPECT_EQ(CountedButton::s_alive, 0);
}

TEST(SubItems, StandWhereTheyWereInserted) {
    CMFCRibbonButton button(1, L"Menu");
    button.AddSubItem(new CMFCRibbonButton(11, L"A"));
    button.AddSubItem(new CMFCRibbonButton(12, L"B"), 0);
    button.AddSubItem(new CMFCRibbonButton(13, L"C"), 99);
    button.AddSubItem(nullptr);
    ASSERT_EQ(button.GetSubItems().GetSize(), 3);
    EXPECT_EQ(button.GetSubItems()[0]->GetID(), 12u);
    EXPECT_EQ(button.GetSubItems()[1]->GetID(), 11u);
    EXPECT_EQ(button.GetSubItems()[2]->GetID(), 13u);
    EXPECT_EQ(button.FindSubItemIndexByID(99), -1);
}

TEST(SubItems, AreFoundThroughTheirButton) {
    CMFCRibbonButton original(5, L"Original");
    CMFCRibbonButton button(1, L"Menu");
    auto* item = new CMFCRibbonButton(11, L"A");
    item->SetData(77);
    item->SetOriginal(&original);
    button.AddSubItem(item);
    EXPECT_EQ(button.FindByID(11), item);
    EXPECT_EQ(button.FindByID(1), &button);
    EXPECT_EQ(button.FindByID(3), nullptr);
    EXPECT_EQ(button.Find(item), item);
    EXPECT_EQ(button.FindByData(77), item);
    EXPECT_EQ(button.FindByOriginal(&original), item);
    button.AddSubItem(new CMFCRibbonButton(1, L"Same id"));
    ElementArray found;
    button.GetElementsByID(1, found);
    EXPECT_EQ(found.GetSize(), 2);
}

TEST(Texts, SplitOffTheKeysAndKeepThemOtherwise) {
    CMFCRibbonButton button(1, L"Open\nO");
    EXPECT_STREQ(button.GetText(), L"Open");
    EXPECT_STREQ(button.GetKeys(), L"O");
    button.SetText(L"\x6253\x5F00");
    EXPECT_STREQ(button.GetText(), L"\x6253\x5F00");
    EXPECT_STREQ(button.GetKeys(), L"O");
    button.SetKeys(L"X", L"Y");
    EXPECT_STREQ(button.GetMenuKeys(), L"Y");
    button.SetText(nullptr);
    EXPECT_STREQ(button.GetText(), L"");
}

TEST(Texts, TheTooltipOfAButtonIsItsTextWhenItHasNone) {
    CMFCRibbonButton button(1, L"Open");
    EXPECT_EQ(button.GetToolTipText(), CString(L"Open"));
    button.SetToolTipText(L"Opens a file");
    button.SetDescription(L"Any file");
    EXPECT_EQ(button.GetToolTipText(), CString(L"Opens a file"));
    EXPECT_EQ(button.GetDescription(), CString(L"Any file"));
}

TEST(HitTest, AnswersVisibleElementsUnderThePoint) {
    CMFCRibbonButton button(1, L"Open");
    button.SetRect(CRect(10, 10, 50, 30));
    EXPECT_EQ(button.HitTest({10, 10}), &button);
    EXPECT_EQ(button.HitTest({49, 29}), &button);
    EXPECT_EQ(button.HitTest({50, 29}), nullptr);
    button.SetVisible(FALSE);
    EXPECT_EQ(button.HitTest({10, 10}), nullptr);
}

class Groups : public ::testing::Test {
protected:
    CMFCRibbonButton& Add(UINT id, const wchar_t* text = L"B") {
        auto* button = new CMFCRibbonButton(id, text);
        group.AddButton(button);
        return *button;
    }
    CMFCRibbonButtonsGroup group;
};

TEST_F(Groups, ASingleButtonHasTheWholeBorder) {
    CMFCRibbonButton& button = Add(1);
    Place(group, {5, 5});
    EXPECT_EQ(button.GetLocationInGroup(), CMFCRibbonBaseElement::RibbonElementSingleInGroup);
    EXPECT_EQ(button.GetRect(), group.GetRect());
}

TEST_F(Groups, ButtonsStandSideBySideAndKnowTheirPlace) {
    CMFCRibbonButton& first = Add(1);
    CMFCRibbonButton& middle = Add(2, L"Wider");
    CMFCRibbonButton& last = Add(3);
    Place(group, {5, 5});
    EXPECT_EQ(first.GetLocationInGroup(), CMFCRibbonBaseElement::RibbonElementFirstInGroup);
    EXPECT_EQ(middle.GetLocationInGroup(), CMFCRibbonBaseElement::RibbonElementMiddleInGroup);
    EXPECT_EQ(last.GetLocationInGroup(), CMFCRibbonBaseElement::RibbonElementLastInGroup);
    EXPECT_EQ(first.GetRect().left, group.GetRect().left);
    EXPECT_EQ(first.GetRect().right, middle.GetRect().left);
    EXPECT_EQ(middle.GetRect().right, last.GetRect().left);
    EXPECT_EQ(last.GetRect().right, group.GetRect().right);
    EXPECT_TRUE(first.IsShowGroupBorder());
}

TEST_F(Groups, AHiddenButtonTakesNoPlace) {
    CMFCRibbonButton& first = Add(1);
    CMFCRibbonButton& hidden = Add(2);
    hidden.SetVisible(FALSE);
    Place(group, {0, 0});
    EXPECT_EQ(first.GetLocationInGroup(), CMFCRibbonBaseElement::RibbonElementSingleInGroup);
    EXPECT_TRUE(hidden.GetRect().IsRectEmpty());
    EXPECT_EQ(group.GetRect().Width(), first.GetRect().Width());
}

TEST_F(Groups, AnswerTheirButtons) {
    CMFCRibbonButton& first = Add(1);
    CMFCRibbonButton& second = Add(2);
    Place(group, {0, 0});
    EXPECT_EQ(group.GetCount(), 2);
    EXPECT_EQ(group.GetButton(1), &second);
    EXPECT_EQ(group.GetButton(2), nullptr);
    EXPECT_EQ(group.GetButton(-1), nullptr);
    EXPECT_EQ(group.HitTest(second.GetRect().CenterPoint()), &second);
    EXPECT_EQ(group.FindByID(1), &first);
    EXPECT_EQ(group.FindByID(9), nullptr);
    ElementArray elements;
    group.GetElements(elements);
    ASSERT_EQ(elements.GetSize(), 2);
    EXPECT_EQ(elements[0], &first);
    first.SetHighlighted(TRUE);
    EXPECT_EQ(group.GetHighlighted(), &first);
    EXPECT_EQ(group.GetPressed(), nullptr);
    group.SetHighlighted(TRUE);
    group.SetHighlighted(FALSE);
    EXPECT_FALSE(first.IsHighlighted());
}

TEST_F(Groups, DeleteTheirButtons) {
    group.AddButton(new CountedButton);
    group.AddButton(new CountedButton);
    EXPECT_EQ(CountedButton::s_alive, 2);
    group.RemoveAll();
    EXPECT_EQ(CountedButton::s_alive, 0);
    EXPECT_EQ(group.GetCount(), 0);
}

TEST_F(Groups, ImagesOfTheGroupMakeCompactButtons) {
    CMFCToolBarImages images;
    images.SetImageSize(CSize(16, 16));
    const SolidIcon icon(16, RGB(0, 0, 255));
    ASSERT_EQ(images.AddIcon(icon.Get()), 0);
    auto* button = new CMFCRibbonButton(1, L"Bold", 0);
    group.AddButton(button);
    EXPECT_EQ(button->GetImageSize(CMFCRibbonBaseElement::RibbonImageSmall), CSize(0, 0));
    group.SetImages(&images, nullptr, nullptr);
    EXPECT_TRUE(group.HasImages());
    Place(group, {0, 0});
    EXPECT_EQ(button->GetImageSize(CMFCRibbonBaseElement::RibbonImageSmall), CSize(16, 16));
    EXPECT_TRUE(button->IsCompactMode());
    EXPECT_EQ(group.GetRect().Width(), 24);
}

} // namespace

#include "tests/ui/ribbon_access/accessible.h"

#include <gmock/gmock.h>

#include "afxRibbonEdit.h"
#include "afxRibbonLabel.h"
#include "afxribbonslider.h"
#include "tests/support/keys.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr UINT kFirst = commands::firstHandled + 100;

class AccessElementTest : public AccessTest {
protected:
    template <class Element, class... Arguments>
    Element& AddToSearch(Arguments&&... arguments) {
        auto* element = new Element(std::forward<Arguments>(arguments)...);
        Bar().GetCategory(1)->GetPanel(0)->Add(element);
        Bar().SetActiveCategory(Bar().GetCategory(1));
        Bar().RecalcLayout();
        return *element;
    }
    Accessible Last() {
        const Accessible panel = Part(ROLE_SYSTEM_PROPERTYPAGE).ChildAt(1);
        return panel.ChildAt(static_cast<LONG>(panel.ChildCount()));
    }
};

TEST_F(AccessElementTest, EachKindHasItsRole) {
    EXPECT_EQ(Of(commands::paste).Role(), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(Of(commands::bold).Role(), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(Of(commands::bold).Parent().Role(), ROLE_SYSTEM_TOOLBAR);
    EXPECT_EQ(Of(commands::size).Role(), ROLE_SYSTEM_TEXT);
    EXPECT_EQ(Of(commands::zoom).Role(), ROLE_SYSTEM_SLIDER);
    EXPECT_EQ(Of(commands::options).Role(), ROLE_SYSTEM_CHECKBUTTON);
    const Accessible text = Part(ROLE_SYSTEM_PROPERTYPAGE).ChildAt(2);
    EXPECT_EQ(text.ChildAt(2).Role(), ROLE_SYSTEM_SEPARATOR);
    EXPECT_EQ(text.ChildAt(4).Role(), ROLE_SYSTEM_STATICTEXT);
}

TEST_F(AccessElementTest, AButtonWithAMenuIsAMenuButtonAndWithACommandASplitOne) {
    auto& button = AddToSearch<CMFCRibbonButton>(kFirst, L"Menu");
    button.AddSubItem(new CMFCRibbonButton(kFirst + 1, L"Item"));
    EXPECT_EQ(Last().Role(), ROLE_SYSTEM_BUTTONMENU);
    EXPECT_EQ(Last().Action(), L"Open");
    EXPECT_EQ(Last().State() & (STATE_SYSTEM_HASPOPUP | STATE_SYSTEM_COLLAPSED | STATE_SYSTEM_EXPANDED),
              STATE_SYSTEM_HASPOPUP | STATE_SYSTEM_COLLAPSED);
    button.SetDefaultCommand();
    EXPECT_EQ(Last().Role(), ROLE_SYSTEM_SPLITBUTTON);
    EXPECT_EQ(Last().Action(), L"Press");
    button.SetDroppedDown(&Bar());
    EXPECT_EQ(Last().State() & (STATE_SYSTEM_COLLAPSED | STATE_SYSTEM_EXPANDED), STATE_SYSTEM_EXPANDED);
    button.SetDroppedDown(nullptr);
}

TEST_F(AccessElementTest, NamesHaveNoMarksAndComeFromTheTipWhereThereIsNoText) {
    AddToSearch<CMFCRibbonButton>(kFirst, L"&Save && close");
    EXPECT_EQ(Last().Name(), L"Save & close");
    AddToSearch<CMFCRibbonButton>(kFirst + 1, L"").SetToolTipText(L"From the tip");
    EXPECT_EQ(Last().Name(), L"From the tip");
}

TEST_F(AccessElementTest, TheDescriptionIsTheElements) {
    EXPECT_EQ(Of(commands::cut).Description(), L"Removes it");
    EXPECT_EQ(Of(commands::copy).Description(), L"");
}

TEST_F(AccessElementTest, TheShortcutIsTheWayOfTheKeyTips) {
    EXPECT_EQ(Of(commands::paste).Keys(), L"Alt, H, P");
    Bar().SetElementKeys(commands::paste, L"V");
    Bar().GetCategory(0)->SetKeys(L"HO");
    EXPECT_EQ(Of(commands::paste).Keys(), L"Alt, HO, V");
    EXPECT_EQ(Part(ROLE_SYSTEM_PAGETABLIST).ChildAt(2).Keys(), L"Alt, V");
}

TEST_F(AccessElementTest, StatesAreTheElements) {
    const auto has = [this](UINT id, LONG state) { return (Of(id).State() & state) == state; };
    EXPECT_TRUE(has(commands::paste, STATE_SYSTEM_FOCUSABLE));
    EXPECT_FALSE(has(commands::paste, STATE_SYSTEM_UNAVAILABLE));
    m_frame->disabledCommand = commands::paste;
    m_frame->checkedCommand = commands::options;
    PumpPending();
    EXPECT_TRUE(has(commands::paste, STATE_SYSTEM_UNAVAILABLE));
    EXPECT_FALSE(has(commands::paste, STATE_SYSTEM_FOCUSABLE));
    EXPECT_TRUE(has(commands::options, STATE_SYSTEM_CHECKED));
    EXPECT_EQ(Of(commands::options).Action(), L"Uncheck");
    m_pointer.MoveTo(Bar(), CenterOf(commands::cut));
    EXPECT_TRUE(has(commands::cut, STATE_SYSTEM_HOTTRACKED));
    m_pointer.Press();
    EXPECT_TRUE(has(commands::cut, STATE_SYSTEM_PRESSED));
    m_pointer.Release();
    EXPECT_FALSE(has(commands::cut, STATE_SYSTEM_PRESSED));
}

TEST_F(AccessElementTest, WhatIsNotInViewSaysSo) {
    const Accessible paste = Of(commands::paste);
    EXPECT_EQ(paste.State() & (STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_OFFSCREEN), 0);
    Bar().SetActiveCategory(Bar().GetCategory(1));
    EXPECT_EQ(paste.State() & (STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_OFFSCREEN),
              STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_OFFSCREEN);
    EXPECT_TRUE(paste.Location().IsRectEmpty());
}

TEST_F(AccessElementTest, TheDefaultActionPressesOnce) {
    const Accessible paste = Of(commands::paste);
    EXPECT_EQ(paste.Action(), L"Press");
    EXPECT_EQ(paste.DoDefaultAction(), S_OK);
    EXPECT_THAT(m_frame->commands, IsEmpty()) << "the caller does not wait for the command";
    PumpPending();
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
}

TEST_F(AccessElementTest, ADisabledElementAndALabelHaveNoAction) {
    m_frame->disabledCommand = commands::paste;
    PumpPending();
    EXPECT_EQ(Of(commands::paste).DoDefaultAction(), DISP_E_MEMBERNOTFOUND);
    const Accessible label = Part(ROLE_SYSTEM_PROPERTYPAGE).ChildAt(2).ChildAt(4);
    EXPECT_EQ(label.Action(), L"");
    EXPECT_EQ(label.DoDefaultAction(), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(Root().DoDefaultAction(), DISP_E_MEMBERNOTFOUND);
    PumpPending();
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(AccessElementTest, TheActionOfATabOpensItsCategory) {
    EXPECT_EQ(Part(ROLE_SYSTEM_PAGETABLIST).ChildAt(2).DoDefaultAction(), S_OK);
    PumpPending();
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(1));
    EXPECT_EQ(m_frame->categoryChanges, 1);
    EXPECT_EQ(Part(ROLE_SYSTEM_PAGETABLIST).ChildAt(1).Select(SELFLAG_TAKESELECTION), S_OK);
    PumpPending();
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(0));
}

TEST_F(AccessElementTest, SelectingTakesTheFocus) {
    EXPECT_FALSE(Root().Focus());
    EXPECT_EQ(Of(commands::copy).Select(SELFLAG_TAKEFOCUS), S_OK);
    EXPECT_EQ(Bar().GetFocused(), &Element(commands::copy));
    EXPECT_NE(Of(commands::copy).State() & STATE_SYSTEM_FOCUSED, 0);
    EXPECT_EQ(*Root().Focus(), Of(commands::copy));
    EXPECT_EQ(*Of(commands::copy).Focus(), Of(commands::copy));
    EXPECT_FALSE(Of(commands::cut).Focus());
    EXPECT_EQ(Of(commands::copy).Select(SELFLAG_ADDSELECTION), E_INVALIDARG);
}

TEST_F(AccessElementTest, AnEditHasItsTextAsValueAndTakesAnother) {
    EXPECT_EQ(Of(commands::size).Value(), L"12");
    EXPECT_EQ(Of(commands::paste).Value(), L"");
    BSTR text = ::SysAllocString(L"36");
    const Accessible edit = Of(commands::size);
    EXPECT_EQ(edit->put_accValue(edit.Self(), text), S_OK);
    EXPECT_EQ(edit.Value(), L"36");
    EXPECT_EQ(static_cast<CMFCRibbonEdit&>(Element(commands::size)).GetEditText(), L"36");
    const Accessible paste = Of(commands::paste);
    EXPECT_EQ(paste->put_accValue(paste.Self(), text), DISP_E_MEMBERNOTFOUND);
    ::SysFreeString(text);
    PumpPending();
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::size));
}

TEST_F(AccessElementTest, ASliderHasItsPositionAsValueAndTakesANumber) {
    const Accessible slider = Of(commands::zoom);
    EXPECT_EQ(slider.Value(), L"40");
    const auto put = [&slider](LPCWSTR value) {
        BSTR text = ::SysAllocString(value);
        const HRESULT result = slider->put_accValue(slider.Self(), text);
        ::SysFreeString(text);
        return result;
    };
    EXPECT_EQ(put(L"75"), S_OK);
    EXPECT_EQ(slider.Value(), L"75");
    EXPECT_EQ(put(L"a lot"), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(put(L""), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(slider.Value(), L"75");
    PumpPending();
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::zoom));
}

/// An element with three rows inside, as a drop list has.
class RowsElement : public CMFCRibbonButton {
public:
    RowsElement() : CMFCRibbonButton(kFirst, L"Rows") {}
    int GetACCRowCount() const override { return 3; }
    BOOL SetACCRowData(int row, CAccessibilityData& data) override {
        data.m_strName.Format(L"Row %d", row);
        data.m_nRole = ROLE_SYSTEM_LISTITEM;
        data.m_nState = row == chosen ? STATE_SYSTEM_SELECTED : 0;
        data.m_rect = CRect(10, 20 * row, 60, 20 * row + 20);
        return row >= 0 && row < 3;
    }
    BOOL OnACCRowDefaultAction(int row) override {
        chosen = row;
        return row != 2;
    }
    int chosen = -1;
};

TEST_F(AccessElementTest, RowsInsideAnElementAreChildrenWithNumbers) {
    auto& rows = AddToSearch<RowsElement>();
    const Accessible object = Last();
    ASSERT_EQ(object.ChildCount(), 3);
    const Accessible second = object.ChildAt(2);
    EXPECT_EQ(second.Name(), L"Row 1");
    EXPECT_EQ(second.Role(), ROLE_SYSTEM_LISTITEM);
    EXPECT_EQ(second.Location(), CRect(10, 20, 60, 40));
    EXPECT_EQ(second.DoDefaultAction(), S_OK);
    EXPECT_EQ(rows.chosen, 1);
    EXPECT_EQ(second.State(), STATE_SYSTEM_SELECTED);
    EXPECT_EQ(object.ChildAt(3).DoDefaultAction(), DISP_E_MEMBERNOTFOUND);
    VARIANT role;
    EXPECT_EQ(object->get_accRole(Accessible::Child(4), &role), E_INVALIDARG);
}

TEST_F(AccessElementTest, WrongArgumentsAreRefused) {
    const Accessible root = Root();
    EXPECT_EQ(root->get_accName(Accessible::Child(0), nullptr), E_POINTER);
    EXPECT_EQ(root->accHitTest(0, 0, nullptr), E_POINTER);
    BSTR name = nullptr;
    EXPECT_EQ(root->get_accName(Accessible::Child(77), &name), E_INVALIDARG);
    EXPECT_EQ(root->get_accName(Accessible::Child(-1), &name), E_INVALIDARG);
    VARIANT text;
    text.vt = VT_BSTR;
    text.bstrVal = nullptr;
    EXPECT_EQ(root->get_accName(text, &name), E_INVALIDARG);
    EXPECT_EQ(name, nullptr);
    VARIANT end;
    EXPECT_EQ(Of(commands::cut)->accNavigate(99, Accessible::Child(0), &end), E_INVALIDARG);
}

} // namespace

// When and where lists open.
#include "tests/ui/marked_combos/combo_fixture.h"

#include <afxRibbonPanel.h>

#include <new>

namespace {

/// A combo whose list there may be no memory for, and whose edit area may be taken away.
template <class Combo>
class Poor : public Combo {
public:
    using Combo::Combo;
    bool hasMemory = true;
    bool hasList = true;

    void LoseEditArea() { this->m_rectCommand.SetRectEmpty(); }

protected:
    std::unique_ptr<CMFCDropDownListBox> MakeDropDownList() override {
        if (!hasMemory) {
            throw std::bad_alloc();
        }
        return hasList ? Combo::MakeDropDownList() : nullptr;
    }
};

template <class Combo>
class Opening : public RibbonCombos {};
using Kinds = testing::Types<CMFCRibbonCheckComb, CMFCRibbonMultiCombo, CMFCRibbonVesMultiCombo>;
TYPED_TEST_SUITE(Opening, Kinds);

TYPED_TEST(Opening, WithoutMemoryForTheListNothingOpensAndNothingIsTold) {
    auto& combo = this->template Add<Poor<TypeParam>>();
    const CPoint arrow = combo.GetMenuRect().CenterPoint();
    for (bool* const lack : {&combo.hasMemory, &combo.hasList}) {
        *lack = false;
        this->m_pointer.Click(combo.GetParentWnd()->GetSafeHwnd(), arrow);
        EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
        EXPECT_FALSE(combo.IsDroppedDown());
        EXPECT_EQ(this->TakeTold(), Told{});
        *lack = true;
    }
    this->Open(combo);
    EXPECT_TRUE(combo.IsDroppedDown());
    EXPECT_EQ(this->Rows()->GetRowCount(), 3);
}

TYPED_TEST(Opening, TheElementIsToldOnceBeforeItsListIsThere) {
    class Told : public TypeParam {
    public:
        using TypeParam::TypeParam;
        void OnShowPopupMenu() override {
            ++shown;
            wasOpen = wasOpen || this->IsDroppedDown();
            TypeParam::OnShowPopupMenu();
        }
        int shown = 0;
        bool wasOpen = false;
    };
    auto& combo = this->template Add<Told>();
    this->Open(combo);
    EXPECT_EQ(combo.shown, 1);
    EXPECT_FALSE(combo.wasOpen);
    CMFCPopupMenu::CloseAll();
    combo.DropDownList();
    EXPECT_EQ(combo.shown, 2);
    CMFCPopupMenu::CloseAll();
    combo.SetDisabled(TRUE);
    combo.DropDownList();
    EXPECT_EQ(combo.shown, 2) << "nothing opens";
}

TYPED_TEST(Opening, AHiddenEditWindowOpensNothing) {
    auto& combo = this->m_host.Add(std::make_unique<TypeParam>(comboId, TRUE, 120));
    combo.AddItem(L"one");
    ASSERT_NE(combo.GetEditWnd(), nullptr);
    combo.GetEditWnd()->ShowWindow(SW_HIDE);
    combo.DropDownList();
    EXPECT_EQ(this->Rows(), nullptr);
    EXPECT_FALSE(combo.IsDroppedDown());
    combo.GetEditWnd()->ShowWindow(SW_SHOW);
    combo.DropDownList();
    EXPECT_NE(this->Rows(), nullptr);
}

TYPED_TEST(Opening, AnEditWindowHasTheFocusAndAllOfItsTextSelected) {
    auto& combo = this->m_host.Add(std::make_unique<TypeParam>(comboId, TRUE, 120));
    combo.AddItem(L"one");
    combo.SelectItem(0);
    combo.DropDownList();
    ASSERT_NE(this->Rows(), nullptr);
    EXPECT_EQ(::GetFocus(), combo.GetEditWnd()->GetSafeHwnd());
    CHARRANGE selected{-1, -1};
    combo.GetEditWnd()->GetSel(selected);
    EXPECT_EQ(selected.cpMin, 0);
    EXPECT_GE(selected.cpMax, 3);
}

TYPED_TEST(Opening, WithoutAnEditAreaTheListOpensBelowTheElement) {
    auto& combo = this->template Add<Poor<TypeParam>>();
    combo.LoseEditArea();
    combo.DropDownList();
    ASSERT_NE(this->Rows(), nullptr);
    CRect list;
    CMFCPopupMenu::GetActiveMenu()->GetWindowRect(&list);
    CRect element = combo.GetRect();
    this->m_host.Bar().ClientToScreen(&element);
    EXPECT_EQ(list.TopLeft(), CPoint(element.left, element.bottom));
}

TEST_F(RibbonCombos, WithoutAnEditAreaTheCheckColumnIsStillARowHigh) {
    auto& combo = Add<Poor<CMFCRibbonCheckComb>>();
    combo.LoseEditArea();
    combo.DropDownList();
    ASSERT_NE(Rows(), nullptr);
    ClickRow(1, 8, afxGlobalData.GetTextHeight() - 1);
    EXPECT_EQ(ChecksOf(combo), "?1?");
    EXPECT_NE(Rows(), nullptr);
}

TYPED_TEST(Opening, ThePanelIsHotNoLonger) {
    TypeParam& combo = this->template Add<TypeParam>();
    this->m_pointer.MoveTo(this->m_host.BarWindow(), combo.GetRect().CenterPoint());
    PumpPending();
    ASSERT_TRUE(combo.GetParentPanel()->IsHighlighted());
    combo.DropDownList();
    EXPECT_FALSE(combo.GetParentPanel()->IsHighlighted());
    EXPECT_TRUE(combo.IsHighlighted()) << "while its list is open";
}

TYPED_TEST(Opening, TheListIsTheCombosAndItsOwnersAndShowsItsItemsInLines) {
    TypeParam& combo = this->template Add<TypeParam>();
    CMFCPopupMenuBarEx& rows = this->Open(combo);
    auto* const list = DYNAMIC_DOWNCAST(CMFCCheckDropDown, CMFCPopupMenu::GetActiveMenu());
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->GetMenuBar(), &rows);
    EXPECT_EQ(list->GetParentRibbonElement(), &combo);
    EXPECT_EQ(list->GetOwnerWindow(), this->m_host.Frame().GetSafeHwnd());
    EXPECT_EQ(rows.GetRowHeight(), afxGlobalData.GetTextHeight());
    for (int i = 0; i < 3; ++i) {
        CString text;
        EXPECT_TRUE(list->GetText(i, text));
        EXPECT_STREQ(text, someItems[i]);
    }
    EXPECT_EQ(list->GetCount(), 3);
}

TYPED_TEST(Opening, AListThatMayBeResizedTakesNoLessThanTwoLines) {
    TypeParam& combo = this->template Add<TypeParam>(comboId, 0);
    for (int i = 0; i < 50; ++i) {
        combo.AddItem(L"item");
    }
    combo.SetDropDownHeight(200);
    combo.EnableDropDownListResize(TRUE);
    this->Open(combo);
    CMFCPopupMenu* const list = CMFCPopupMenu::GetActiveMenu();
    EXPECT_TRUE(list->IsResizeble());
    CRect window;
    list->GetWindowRect(&window);
    const CPoint grip(window.CenterPoint().x, window.bottom - 4);
    this->m_pointer.MoveTo(grip);
    this->m_pointer.Press();
    this->m_pointer.MoveTo(CPoint(grip.x, grip.y - 190));
    this->m_pointer.Release();
    EXPECT_TRUE(list->HasBeenResized());
    CRect small;
    list->GetWindowRect(&small);
    EXPECT_EQ(small.Height(), 2 * afxGlobalData.GetTextHeight());
    EXPECT_EQ(small.Width(), window.Width()) << "its height alone";
}

TEST_F(RibbonCombos, AListAndItsRowsThatAreMadeByNameHaveNeitherZonesNorANotifyChild) {
    const std::unique_ptr<CObject> list(RUNTIME_CLASS(CMFCCheckDropDown)->CreateObject());
    ASSERT_TRUE(list && list->IsKindOf(RUNTIME_CLASS(CMFCDropDownListBox)));
    EXPECT_TRUE(dynamic_cast<CMFCCheckDropDown&>(*list).GetMenuBar()->IsKindOf(RUNTIME_CLASS(CMFCPopupMenuBarEx)));

    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CMFCPopupMenuBarEx)->CreateObject());
    ASSERT_TRUE(made && made->IsKindOf(RUNTIME_CLASS(CMFCPopupMenuBar)));
    auto& rows = dynamic_cast<CMFCPopupMenuBarEx&>(*made);
    ASSERT_TRUE(rows.Create(&m_host.Frame(), WS_CHILD, 4711));
    struct Notified : CRibbonNotifyCombox {
        bool NotifyChangeData(int, int, bool) override {
            ++count;
            return true;
        }
        int count = 0;
    } child;
    // Neither without a child nor without zones is anybody told.
    rows.SetSpRects({CRect(0, 0, 50, 50)});
    rows.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    rows.SetSpRects({});
    rows.SetNotifyChild(&child);
    rows.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(child.count, 0);
    rows.SetSpRects({CRect(0, 0, 50, 50)});
    rows.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(child.count, 1);
    rows.DestroyWindow();
}

TEST_F(RibbonCombos, TheZonesOfABarThatIsNoListRepeatWithTheHeightOfALineOfText) {
    CMFCPopupMenuBarEx rows;
    ASSERT_TRUE(rows.Create(&m_host.Frame(), WS_CHILD, 4711));
    const int line = afxGlobalData.GetTextHeight();
    ASSERT_GT(rows.GetRowHeight(), line) << "a menu's rows are higher";
    struct Notified : CRibbonNotifyCombox {
        bool NotifyChangeData(int, int zone, bool) override {
            zones.push_back(zone);
            return true;
        }
        std::vector<int> zones;
    } child;
    rows.SetNotifyChild(&child);
    rows.SetSpRects({CRect(0, 0, 50, 1)});
    for (const int y : {0, line - 1, line, line + 1, 2 * line, rows.GetRowHeight()}) {
        rows.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, y));
    }
    EXPECT_EQ(child.zones, std::vector<int>(3, 0)) << "at the top of each line";
    rows.DestroyWindow();
}

TYPED_TEST(Opening, AListThatIsNotToBeResizedHasNoGrip) {
    TypeParam& combo = this->template Add<TypeParam>();
    this->Open(combo);
    EXPECT_FALSE(CMFCPopupMenu::GetActiveMenu()->IsResizeble());
}

// ---- the owner

TYPED_TEST(Opening, TheOwnerThatWasSetGetsTheMessages) {
    TypeParam& combo = this->template Add<TypeParam>();
    combo.SelectItem(0);
    RibbonHost other;
    other.Frame().listensTo = this->m_host.Frame().listensTo;
    other.Frame().carriesText = CarriesText;
    LeaveForeground();
    this->m_host.Bar().SetOwner(&other.Frame());
    combo.NotifyChangeData(1, 0, false);
    const CRect edit = combo.GetEditRect();
    combo.OnLButtonDown(CPoint(edit.left + 8, edit.CenterPoint().y));
    PumpPending();
    EXPECT_EQ(this->TakeTold(), Told{});
    EXPECT_EQ(other.Frame().received.size(), 2u);
    this->m_host.Bar().SetOwner(&this->m_host.Frame());
}

TYPED_TEST(Opening, WithoutAnOwnerAClickOnTheFacesMarkIsLikeOneBesideIt) {
    TypeParam& combo = this->template Add<TypeParam>();
    combo.SelectItem(0);
    {
        RibbonHost other;
        this->m_host.Bar().SetOwner(&other.Frame());
    }
    EXPECT_FALSE(combo.NotifyChangeData(1, 0, false)) << "the owner is gone";
    EXPECT_EQ(combo.GetCurSel(), 0);
    class Counting : public TypeParam {
    public:
        using TypeParam::TypeParam;
        void DropDownList() override { ++opened; }
        int opened = 0;
    };
    auto& face = this->template Add<Counting>(comboId + 1);
    face.SelectItem(0);
    this->ClickFace(face, 8);
    EXPECT_EQ(face.opened, 1);
    EXPECT_EQ(this->TakeTold(), Told{});
    this->m_host.Bar().SetOwner(&this->m_host.Frame());
}

} // namespace

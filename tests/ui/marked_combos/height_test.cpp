// The height in which the lists of a class drop.
#include "tests/ui/marked_combos/combo_fixture.h"

namespace {

TEST_F(RibbonCombos, TheStaticHeightsAreFiveHundredAndSixtyAtFirst) {
    EXPECT_EQ(CMFCRibbonCheckComb::m_nStaticDropDownHeight, 560);
    EXPECT_EQ(CMFCRibbonMultiCombo::m_nStaticDropDownHeight, 560);
}

template <class Combo>
class StaticHeight : public RibbonCombos {
protected:
    /// A press at the point of the screen, a move by so many pixels, a release.
    void DragVertically(CPoint from, int by) {
        m_pointer.MoveTo(from);
        m_pointer.Press();
        m_pointer.MoveTo(CPoint(from.x, from.y + by));
        m_pointer.Release();
    }
    /// So far that there is no room below the combo.
    void MoveFrameDown(const CMFCRibbonComboBox& combo) {
        MONITORINFO monitor{};
        monitor.cbSize = sizeof(monitor);
        ::GetMonitorInfo(::MonitorFromWindow(m_host.BarWindow(), MONITOR_DEFAULTTOPRIMARY), &monitor);
        CRect edit = combo.GetEditRect();
        m_host.Bar().ClientToScreen(&edit);
        CRect frame;
        m_host.Frame().GetWindowRect(&frame);
        m_host.Frame().SetWindowPos(nullptr, frame.left, frame.top + monitor.rcWork.bottom - edit.bottom - 20, 0, 0,
                                    SWP_NOSIZE | SWP_NOZORDER);
        PumpPending();
    }
};
using WithHeight = testing::Types<CMFCRibbonCheckComb, CMFCRibbonMultiCombo>;
TYPED_TEST_SUITE(StaticHeight, WithHeight);

TYPED_TEST(StaticHeight, IsTakenWhenItIsSwitchedOnAndNoEarlier) {
    TypeParam combo(comboId, FALSE);
    combo.SetDropDownHeight(77);
    combo.UserStaticDropDownHeight(false);
    EXPECT_EQ(combo.GetDropDownHeight(), 77);
    combo.UserStaticDropDownHeight(true);
    EXPECT_EQ(combo.GetDropDownHeight(), 560);
    combo.SetDropDownHeight(88);
    combo.UserStaticDropDownHeight(false);
    EXPECT_EQ(combo.GetDropDownHeight(), 88);
}

TYPED_TEST(StaticHeight, IsSetByCombosThatUseItOnly) {
    TypeParam combo(comboId, FALSE);
    combo.SetDropDownHeight(77);
    combo.SetStaticDropDownHeight(400);
    EXPECT_EQ(combo.GetDropDownHeight(), 77);
    EXPECT_EQ(TypeParam::m_nStaticDropDownHeight, 560);
    combo.UserStaticDropDownHeight(true);
    combo.SetStaticDropDownHeight(400);
    EXPECT_EQ(combo.GetDropDownHeight(), 400);
    EXPECT_EQ(TypeParam::m_nStaticDropDownHeight, 400);
    TypeParam other(comboId, FALSE);
    other.UserStaticDropDownHeight(true);
    EXPECT_EQ(other.GetDropDownHeight(), 400);
}

TYPED_TEST(StaticHeight, GoesWithACopyThatUsesIt) {
    TypeParam combo(comboId, FALSE);
    combo.UserStaticDropDownHeight(true);
    combo.SetDropDownHeight(77);
    TypeParam copy(comboId, FALSE);
    copy.CopyFrom(combo);
    EXPECT_EQ(copy.GetDropDownHeight(), 560) << "not the height of that combo alone";
    copy.SetStaticDropDownHeight(300);
    EXPECT_EQ(copy.GetDropDownHeight(), 300) << "the copy uses it";
    combo.UserStaticDropDownHeight(false);
    combo.SetDropDownHeight(99);
    copy.CopyFrom(combo);
    EXPECT_EQ(copy.GetDropDownHeight(), 99);
}

/// Gives the open list another height, as a user's hand does.
void ResizeOpenList(int height) {
    CMFCPopupMenu* const list = CMFCPopupMenu::GetActiveMenu();
    CRect rect;
    list->GetWindowRect(&rect);
    list->SetWindowPos(nullptr, 0, 0, rect.Width(), height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

int HeightOfOpenList() {
    CRect rect(0, 0, 0, 0);
    if (CMFCPopupMenu* const list = CMFCPopupMenu::GetActiveMenu()) {
        list->GetWindowRect(&rect);
    }
    return rect.Height();
}

TYPED_TEST(StaticHeight, AUsersResizeOfOneListIsTheNextHeightOfAllThatUseIt) {
    auto& first = this->template Add<TypeParam>(comboId, 0);
    auto& second = this->template Add<TypeParam>(comboId + 1, 0);
    auto& alone = this->template Add<TypeParam>(comboId + 2, 0);
    for (TypeParam* const combo : {&first, &second, &alone}) {
        for (int i = 0; i < 200; ++i) {
            combo->AddItem(L"item");
        }
        combo->EnableDropDownListResize(TRUE);
        combo->SetDropDownHeight(200);
    }
    first.UserStaticDropDownHeight(true);
    second.UserStaticDropDownHeight(true);
    this->Open(first);
    EXPECT_EQ(HeightOfOpenList(), 560);
    EXPECT_EQ(TypeParam::m_nStaticDropDownHeight, 560) << "opening is no resize";
    ResizeOpenList(300);
    EXPECT_EQ(TypeParam::m_nStaticDropDownHeight, 300);
    EXPECT_EQ(first.GetDropDownHeight(), 300);
    CMFCPopupMenu::CloseAll();
    EXPECT_EQ(CMFCRibbonCheckComb::m_nStaticDropDownHeight + CMFCRibbonMultiCombo::m_nStaticDropDownHeight, 860)
        << "the other class keeps its own";
    EXPECT_EQ(alone.GetDropDownHeight(), 200);

    this->Open(first);
    EXPECT_EQ(HeightOfOpenList(), 300);
    CMFCPopupMenu::CloseAll();
    this->Open(second);
    EXPECT_EQ(HeightOfOpenList(), 300);
    CMFCPopupMenu::CloseAll();

    this->Open(alone);
    ResizeOpenList(250);
    EXPECT_EQ(TypeParam::m_nStaticDropDownHeight, 300) << "one that does not use it";
    EXPECT_EQ(alone.GetDropDownHeight(), 200);
}

TYPED_TEST(StaticHeight, IsSetByADragOfTheListsGrip) {
    auto& combo = this->template Add<TypeParam>(comboId, 0);
    for (int i = 0; i < 200; ++i) {
        combo.AddItem(L"item");
    }
    combo.EnableDropDownListResize(TRUE);
    combo.UserStaticDropDownHeight(true);
    combo.SetStaticDropDownHeight(300);
    this->Open(combo);
    CRect before;
    CMFCPopupMenu::GetActiveMenu()->GetWindowRect(&before);
    this->DragVertically(CPoint(before.CenterPoint().x, before.bottom - 4), 60);
    CRect after;
    CMFCPopupMenu::GetActiveMenu()->GetWindowRect(&after);
    EXPECT_EQ(after, CRect(before.left, before.top, before.right, before.bottom + 60));
    EXPECT_EQ(TypeParam::m_nStaticDropDownHeight, after.Height());
    EXPECT_EQ(combo.GetDropDownHeight(), after.Height());
    CMFCPopupMenu::CloseAll();
    this->Open(combo);
    EXPECT_EQ(HeightOfOpenList(), after.Height());
}

TYPED_TEST(StaticHeight, IsTheHeightOfAListThatTheUserMayNotResizeToThePixel) {
    auto& combo = this->template Add<TypeParam>(comboId, 0);
    auto& other = this->template Add<TypeParam>(comboId + 1, 0);
    for (TypeParam* const each : {&combo, &other}) {
        for (int i = 0; i < 200; ++i) {
            each->AddItem(L"item");
        }
        each->UserStaticDropDownHeight(true);
    }
    this->Open(combo);
    EXPECT_FALSE(CMFCPopupMenu::GetActiveMenu()->IsResizeble());
    EXPECT_EQ(HeightOfOpenList(), 560);
    ResizeOpenList(300);
    CMFCPopupMenu::CloseAll();
    for (TypeParam* const each : {&combo, &other}) {
        this->Open(*each);
        EXPECT_EQ(HeightOfOpenList(), 300);
        CMFCPopupMenu::CloseAll();
    }
}

TYPED_TEST(StaticHeight, IsSetByADragOfTheGripOfAListThatOpensUpwards) {
    auto& combo = this->template Add<TypeParam>(comboId, 0);
    for (int i = 0; i < 200; ++i) {
        combo.AddItem(L"item");
    }
    combo.EnableDropDownListResize(TRUE);
    combo.UserStaticDropDownHeight(true);
    combo.SetStaticDropDownHeight(300);
    this->MoveFrameDown(combo);
    this->Open(combo);
    CMFCPopupMenu* const list = CMFCPopupMenu::GetActiveMenu();
    ASSERT_EQ(list->GetDropDirection(), CMFCPopupMenu::DROP_DIRECTION_TOP);
    CRect before;
    list->GetWindowRect(&before);
    this->DragVertically(CPoint(before.CenterPoint().x, before.top + 4), -40);
    CRect after;
    list->GetWindowRect(&after);
    EXPECT_EQ(after, CRect(before.left, before.top - 40, before.right, before.bottom)) << "at the combo it stays";
    EXPECT_EQ(TypeParam::m_nStaticDropDownHeight, after.Height());
}

TYPED_TEST(StaticHeight, AListOfFewItemsThatIsLowerLeavesItAlone) {
    auto& combo = this->template Add<TypeParam>();
    combo.UserStaticDropDownHeight(true);
    this->Open(combo);
    EXPECT_LT(HeightOfOpenList(), 200);
    CMFCPopupMenu::CloseAll();
    EXPECT_EQ(TypeParam::m_nStaticDropDownHeight, 560);
}

TYPED_TEST(StaticHeight, AnItemAddedToTheOpenListIsNoResize) {
    auto& combo = this->template Add<TypeParam>();
    combo.UserStaticDropDownHeight(true);
    this->Open(combo);
    const int before = HeightOfOpenList();
    for (int i = 0; i < 5; ++i) {
        combo.AddItem(L"more");
    }
    EXPECT_GT(HeightOfOpenList(), before) << "the list takes the items up";
    EXPECT_EQ(TypeParam::m_nStaticDropDownHeight, 560);
    EXPECT_EQ(combo.GetDropDownHeight(), 560);
    ResizeOpenList(before);
    EXPECT_EQ(TypeParam::m_nStaticDropDownHeight, before) << "but a user's hand is one, then as before";
}

TEST_F(RibbonCombos, ALightOnlyListKeepsItsHeightToItself) {
    auto& combo = Add<CMFCRibbonVesMultiCombo>(comboId, 0);
    for (int i = 0; i < 200; ++i) {
        combo.AddItem(L"item");
    }
    combo.EnableDropDownListResize(TRUE);
    combo.SetDropDownHeight(200);
    Open(combo);
    ResizeOpenList(300);
    EXPECT_EQ(CMFCRibbonCheckComb::m_nStaticDropDownHeight, 560);
    EXPECT_EQ(CMFCRibbonMultiCombo::m_nStaticDropDownHeight, 560);
    EXPECT_EQ(combo.GetDropDownHeight(), 200);
}

TEST_F(RibbonCombos, AListOpensBelowTheEditAreaAtItsLeftEdge) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    Open(combo);
    CRect rect;
    CMFCPopupMenu::GetActiveMenu()->GetWindowRect(&rect);
    CRect edit = combo.GetEditRect();
    m_host.Bar().ClientToScreen(&edit);
    EXPECT_EQ(rect.TopLeft(), CPoint(edit.left, edit.bottom));
}

TEST_F(RibbonCombos, TheListOfAnotherElementClosesAndNothingOpens) {
    auto& first = Add<CMFCRibbonCheckComb>();
    auto& second = Add<CMFCRibbonMultiCombo>(comboId + 1);
    first.DropDownList();
    ASSERT_TRUE(first.IsDroppedDown());
    second.DropDownList();
    EXPECT_FALSE(first.IsDroppedDown());
    EXPECT_FALSE(second.IsDroppedDown());
    EXPECT_EQ(Rows(), nullptr);
    second.DropDownList();
    EXPECT_TRUE(second.IsDroppedDown());
}

TEST_F(RibbonCombos, TheListShowsTheSelectedItemHot) {
    auto& combo = Add<CMFCRibbonVesMultiCombo>();
    combo.SelectItem(2);
    EXPECT_EQ(Open(combo).GetHotRow(), 2);
}

} // namespace

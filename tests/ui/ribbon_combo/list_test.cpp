#include "tests/ui/ribbon_combo/combo_fixture.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>

namespace {

using ::testing::ElementsAre;

class ComboList : public RibbonComboTest {
protected:
    static int RowHeight() { return afxGlobalData.GetTextHeight(); }
};

TEST_F(ComboList, TheFaceHasAnEditAreaOfTheConfiguredWidthAndADropButtonBesideIt) {
    for (SpyCombo* combo : {&Plain(), &Edit()}) {
        EXPECT_EQ(combo->GetCommandRect().Width(), 90);
        EXPECT_EQ(combo->GetMenuRect().left, combo->GetCommandRect().right);
        EXPECT_EQ(combo->GetMenuRect().right, combo->GetRect().right);
        EXPECT_GT(combo->GetMenuRect().Width(), 8);
    }
    EXPECT_EQ(Plain().GetEditWnd(), nullptr);
    ASSERT_NE(Edit().GetEditWnd(), nullptr);
    EXPECT_LE(ScreenRect(*Edit().GetEditWnd()).right, BoxOnScreen(Edit()).right - Edit().GetMenuRect().Width());
}

TEST_F(ComboList, OpensBelowTheEditAreaAndIsAsWideAsTheBox) {
    ClickButton(Plain());
    ASSERT_TRUE(IsOpen());
    EXPECT_TRUE(Plain().IsDroppedDown());
    EXPECT_EQ(Plain().GetDropDownList(), &List());
    EXPECT_EQ(List().GetParentCombo(), &Plain());
    const CRect box = BoxOnScreen(Plain());
    const CRect list = ScreenRect(List());
    EXPECT_EQ(list.left, box.left);
    EXPECT_EQ(list.top, box.bottom);
    EXPECT_GE(list.Width(), box.Width());
    EXPECT_EQ(List().GetDropDirection(), CMFCPopupMenu::DROP_DIRECTION_BOTTOM);
}

TEST_F(ComboList, HasARowForEachItemOneTextHighFromTheBarsTop) {
    ClickButton(Plain());
    EXPECT_TRUE(ListBar().IsDropDownListMode());
    EXPECT_EQ(ListBar().GetRowCount(), 10);
    EXPECT_EQ(ListBar().GetCount(), 0) << "no button is made for a row";
    EXPECT_EQ(ListBar().GetRowHeight(), RowHeight());
    for (int row = 0; row < 10; ++row) {
        const CRect rect = ListBar().GetRowRect(row);
        EXPECT_EQ(rect.top, row * RowHeight());
        EXPECT_EQ(rect.Height(), RowHeight());
        EXPECT_EQ(ListBar().HitTest(rect.TopLeft()), row);
        EXPECT_EQ(ListBar().HitTest(CPoint(rect.right - 1, rect.bottom - 1)), row);
    }
    EXPECT_EQ(ListBar().HitTest(CPoint(-1, 0)), -1);
    EXPECT_EQ(ListBar().HitTest(CPoint(3, 10 * RowHeight())), -1);
    EXPECT_TRUE(ListBar().GetRowRect(-1).IsRectEmpty());
    EXPECT_TRUE(ListBar().GetRowRect(10).IsRectEmpty());
}

TEST_F(ComboList, AClickOnARowSelectsItClosesTheListAndSendsTheCommand) {
    ClickButton(Plain());
    ClickRow(3);
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(Plain().IsDroppedDown());
    EXPECT_EQ(Plain().GetCurSel(), 3);
    EXPECT_THAT(Plain().chosen, ElementsAre(3));
    EXPECT_THAT(m_frame->commands, ElementsAre(kPlain));
}

TEST_F(ComboList, TheCommandFindsTheListClosedAndTheItemSelected) {
    int selected = -2;
    bool wasOpen = true;
    m_frame->onCommand = [&] {
        selected = Plain().GetCurSel();
        wasOpen = IsOpen();
    };
    ClickButton(Plain());
    ClickRow(5);
    EXPECT_EQ(selected, 5);
    EXPECT_FALSE(wasOpen);
}

TEST_F(ComboList, AnotherClickOnTheComboClosesItAndDoesNotOpenItAgain) {
    ClickButton(Plain());
    ASSERT_TRUE(IsOpen());
    ClickButton(Plain());
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Plain().GetCurSel(), -1);
    ClickButton(Plain());
    EXPECT_TRUE(IsOpen());
}

TEST_F(ComboList, AClickOutsideClosesItAndReachesItsWindow) {
    ClickButton(Plain());
    m_pointer.Click(Bar().GetSafeHwnd(), CenterOf(commands::paste));
    PumpPending();
    EXPECT_FALSE(IsOpen());
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
}

TEST_F(ComboList, ADisabledComboOpensNothing) {
    m_frame->disabledCommand = kPlain;
    RunIdle();
    ASSERT_TRUE(Plain().IsDisabled());
    ClickButton(Plain());
    EXPECT_FALSE(IsOpen());
    Plain().DropDownList();
    EXPECT_FALSE(IsOpen());
}

TEST_F(ComboList, ClosesWhenItsComboIsDisabled) {
    ClickButton(Plain());
    ASSERT_TRUE(IsOpen());
    Plain().SetDisabled(TRUE);
    EXPECT_FALSE(IsOpen());
}

TEST_F(ComboList, ClosesWhenItsComboIsHiddenOrAnotherCategoryShown) {
    ClickButton(Plain());
    Bar().SetActiveCategory(Bar().GetCategory(1));
    PumpPending();
    EXPECT_FALSE(IsOpen());
    Bar().SetActiveCategory(Bar().GetCategory(0));
    PumpPending();
    ClickButton(Plain());
    ASSERT_TRUE(IsOpen());
    Plain().SetVisible(FALSE);
    EXPECT_FALSE(IsOpen());
}

TEST_F(ComboList, DroppingDownClosesWhatAnotherElementHasOpenAndStops) {
    ClickButton(Plain());
    ASSERT_TRUE(IsOpen());
    Edit().DropDownList();
    EXPECT_FALSE(IsOpen());
    Edit().DropDownList();
    EXPECT_EQ(List().GetParentCombo(), &Edit());
    EXPECT_FALSE(Plain().IsDroppedDown());
}

TEST_F(ComboList, WithoutItemsItHasOneEmptyRowsPlace) {
    Plain().RemoveAllItems();
    ClickButton(Plain());
    EXPECT_EQ(ListBar().GetRowCount(), 0);
    CRect client;
    ListBar().GetClientRect(client);
    EXPECT_EQ(client.Height(), RowHeight());
    Press(VK_DOWN);
    Press(VK_END);
    Press(VK_NEXT);
    EXPECT_EQ(ListBar().GetHotRow(), -1);
    m_pointer.Click(ListBar().GetSafeHwnd(), client.CenterPoint());
    Press(VK_RETURN);
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(ComboList, TheHeightIsTheMostThatItTakesToThePixel) {
    for (const int wanted : {100, 101, 117}) {
        Plain().SetDropDownHeight(wanted);
        ClickButton(Plain());
        EXPECT_EQ(ScreenRect(List()).Height(), wanted);
        CMFCPopupMenu::CloseAll();
    }
}

TEST_F(ComboList, ARowThatIsCutAtTheLowerEdgeIsDrawnAndChosen) {
    Plain().SetDropDownHeight(100);
    ClickButton(Plain());
    CRect client;
    ListBar().GetClientRect(client);
    const int cut = client.Height() / RowHeight();
    ASSERT_GT(client.Height() % RowHeight(), 2);
    m_pointer.Click(ListBar().GetSafeHwnd(), CPoint(10, client.bottom - 2));
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Plain().GetCurSel(), cut);
}

TEST_F(ComboList, FewItemsMakeItLower) {
    Plain().SetDropDownHeight(560);
    ClickButton(Plain());
    CRect client;
    ListBar().GetClientRect(client);
    EXPECT_EQ(client.Height(), 10 * RowHeight());
    EXPECT_FALSE(List().IsScrollable());
}

TEST_F(ComboList, OpensUpwardsWhenThereIsNoRoomBelow) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    ::GetMonitorInfo(::MonitorFromWindow(m_window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    CRect frame;
    m_frame->GetWindowRect(frame);
    const int below = BoxOnScreen(Plain()).bottom - frame.top;
    m_frame->SetWindowPos(nullptr, 0, monitor.rcWork.bottom - below - 20, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    PumpPending();
    ClickButton(Plain());
    const CRect list = ScreenRect(List());
    EXPECT_EQ(list.bottom, BoxOnScreen(Plain()).top);
    EXPECT_GE(list.top, monitor.rcWork.top);
    EXPECT_EQ(List().GetDropDirection(), CMFCPopupMenu::DROP_DIRECTION_TOP);
}

TEST_F(ComboList, AWiderTextMakesItWiderButNotWiderThanHalfTheScreen) {
    ClickButton(Plain());
    const int narrow = ScreenRect(List()).Width();
    CMFCPopupMenu::CloseAll();
    Plain().AddItem(L"A text that is much longer than the combo box is wide");
    ClickButton(Plain());
    const int wide = ScreenRect(List()).Width();
    EXPECT_GT(wide, narrow);
    CMFCPopupMenu::CloseAll();
    Plain().AddItem(std::wstring(100000, L'x').c_str());
    ClickButton(Plain());
    const int widest = ScreenRect(List()).Width();
    EXPECT_GT(widest, wide);
    EXPECT_LE(widest, ::GetSystemMetrics(SM_CXSCREEN) * 2 / 3);
}

TEST_F(ComboList, TheSelectedRowIsHotAndInView) {
    for (int item = 10; item < 200; ++item) {
        Plain().AddItem(L"more");
    }
    for (const int selected : {0, 3, 100, 199}) {
        Plain().SelectItem(selected);
        ClickButton(Plain());
        EXPECT_EQ(ListBar().GetHotRow(), selected);
        EXPECT_EQ(List().GetCurSel(), selected);
        CRect client;
        ListBar().GetClientRect(client);
        const CRect row = ListBar().GetRowRect(selected);
        EXPECT_GE(row.top, client.top) << selected;
        EXPECT_LE(row.bottom, client.bottom) << selected;
        CMFCPopupMenu::CloseAll();
    }
}

TEST_F(ComboList, TheComboDrawsTheVisibleRowsWithOneButton) {
    ClickButton(Plain());
    Plain().drawn.clear();
    ListBar().Invalidate();
    ListBar().UpdateWindow();
    EXPECT_THAT(Plain().drawn, ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9));
    ASSERT_NE(Plain().button, nullptr);
    EXPECT_EQ(Plain().button->GetParentWnd(), &ListBar());
    EXPECT_EQ(Plain().rowRect, ListBar().GetRowRect(9));
    CMFCToolBarMenuButton* const button = Plain().button;
    Plain().drawn.clear();
    ListBar().InvalidateRow(4);
    ListBar().UpdateWindow();
    EXPECT_THAT(Plain().drawn, ElementsAre(4));
    EXPECT_EQ(Plain().button, button);
}

TEST_F(ComboList, TheMouseMakesRowsHotAndTheLastOneStaysSo) {
    ClickButton(Plain());
    m_pointer.MoveTo(ListBar().GetSafeHwnd(), ListBar().GetRowRect(2).CenterPoint());
    EXPECT_EQ(ListBar().GetHotRow(), 2);
    m_pointer.MoveTo(ListBar().GetSafeHwnd(), ListBar().GetRowRect(6).CenterPoint());
    EXPECT_EQ(ListBar().GetHotRow(), 6);
    m_pointer.SendLeave();
    EXPECT_EQ(ListBar().GetHotRow(), 6);
}

TEST_F(ComboList, TheRightButtonOverARowChoosesNothing) {
    ClickButton(Plain());
    m_pointer.Click(ListBar().GetSafeHwnd(), ListBar().GetRowRect(3).CenterPoint(), VK_RBUTTON);
    PumpPending();
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Plain().GetCurSel(), -1);
    EXPECT_TRUE(m_frame->commands.empty());
    ClickRow(3);
    EXPECT_EQ(Plain().GetCurSel(), 3);
}

TEST_F(ComboList, RedrawingTheComboDrawsTheRowsOfItsOpenList) {
    ClickButton(Plain());
    ListBar().UpdateWindow();
    ASSERT_FALSE(ListBar().GetUpdateRect(nullptr));
    Plain().drawn.clear();
    Plain().Redraw();
    ListBar().UpdateWindow();
    EXPECT_THAT(Plain().drawn, ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9));
    CMFCPopupMenu::CloseAll();
    Plain().Redraw();
}

TEST_F(ComboList, APressOnTheComboReleasedOverARowChoosesIt) {
    m_pointer.MoveTo(Bar().GetSafeHwnd(), Plain().GetMenuRect().CenterPoint());
    m_pointer.Press();
    ASSERT_TRUE(IsOpen());
    m_pointer.MoveTo(ListBar().GetSafeHwnd(), ListBar().GetRowRect(1).CenterPoint());
    m_pointer.MoveTo(ListBar().GetSafeHwnd(), ListBar().GetRowRect(2).CenterPoint());
    EXPECT_EQ(ListBar().GetHotRow(), 2);
    m_pointer.Release();
    PumpPending();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Plain().GetCurSel(), 2);
}

TEST_F(ComboList, ItemsAddedMeanwhileGetRows) {
    ClickButton(Plain());
    const int height = ScreenRect(List()).Height();
    Plain().AddItem(L"More");
    EXPECT_EQ(ListBar().GetRowCount(), 11);
    EXPECT_EQ(ScreenRect(List()).Height(), height + RowHeight());
    ClickRow(10);
    EXPECT_EQ(Plain().GetCurSel(), 10);
    EXPECT_EQ(Plain().GetEditText(), L"More");
}

TEST_F(ComboList, ClosesWhenItemsGoMeanwhile) {
    ClickButton(Plain());
    Plain().DeleteItem(3);
    EXPECT_FALSE(IsOpen());
    ClickButton(Plain());
    ASSERT_TRUE(IsOpen());
    Plain().RemoveAllItems();
    EXPECT_FALSE(IsOpen());
}

TEST_F(ComboList, ResizableItHasAGripThatMovesItsLowerEdge) {
    Plain().SetDropDownHeight(120);
    Plain().EnableDropDownListResize(TRUE);
    ClickButton(Plain());
    const CRect before = ScreenRect(List());
    EXPECT_EQ(before.Height(), 120);
    const auto drag = [this](int distance) {
        const CRect rect = ScreenRect(List());
        CPoint grip(rect.Width() / 2, rect.Height() - 4);
        m_pointer.Drag(List().GetSafeHwnd(), grip, grip + CPoint(0, distance));
        return ScreenRect(List());
    };
    const CRect larger = drag(35);
    EXPECT_EQ(larger.Height(), 155);
    EXPECT_EQ(larger.TopLeft(), before.TopLeft());
    EXPECT_EQ(larger.Width(), before.Width());
    EXPECT_EQ(drag(-1000).Height(), 2 * RowHeight());
}

TEST_F(ComboList, ANarrowPixelOfTheLastRowIsStillARow) {
    Plain().SetDropDownHeight(120);
    Plain().EnableDropDownListResize(TRUE);
    ClickButton(Plain());
    CRect client;
    ListBar().GetClientRect(client);
    ASSERT_NE(client.Height() % RowHeight(), 0);
    EXPECT_EQ(ListBar().HitTest(CPoint(5, client.bottom - 1)), client.Height() / RowHeight());
}

TEST_F(ComboList, AMirroredWindowsListEndsAtTheBoxsRightEdge) {
    Bar().ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    LayOut();
    const CRect box = BoxOnScreen(Plain());
    ASSERT_GT(box.left, 300) << "the box is at the right of the frame";
    ClickButton(Plain());
    const CRect list = ScreenRect(List());
    EXPECT_EQ(list.right, box.right);
    EXPECT_EQ(list.top, box.bottom);
    EXPECT_NE(List().GetExStyle() & WS_EX_LAYOUTRTL, 0u);
    ClickRow(1);
    EXPECT_EQ(Plain().GetCurSel(), 1);
}

TEST_F(ComboList, IsMadeByNameAndTakesTextsWithoutACombo) {
    std::unique_ptr<CObject> object(RUNTIME_CLASS(CMFCDropDownListBox)->CreateObject());
    auto* list = DYNAMIC_DOWNCAST(CMFCDropDownListBox, object.get());
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->AddString(L"one"), 0);
    EXPECT_EQ(list->AddString(L"two"), 1);
    EXPECT_EQ(list->AddString(nullptr), -1);
    EXPECT_EQ(list->GetCount(), 2);
    EXPECT_TRUE(list->SetCurSel(1));
    EXPECT_FALSE(list->SetCurSel(2));
    EXPECT_FALSE(list->SetCurSel(-2));
    EXPECT_EQ(list->GetCurSel(), 1);
    CString text = L"before";
    EXPECT_FALSE(list->GetText(2, text));
    EXPECT_FALSE(list->GetText(-1, text));
    EXPECT_EQ(text, L"before");
    EXPECT_TRUE(list->GetText(0, text));
    EXPECT_EQ(text, L"one");
    list->ResetContent();
    EXPECT_EQ(list->GetCount(), 0);
    EXPECT_EQ(list->GetCurSel(), -1);
}

/// A list with a bar of its own, as derived combos have.
class OtherBar : public CMFCPopupMenuBar {
public:
    int paints = 0;
    std::vector<int> hits;

protected:
    void DoPaint(CDC* dc) override {
        ++paints;
        CMFCPopupMenuBar::DoPaint(dc);
    }
    afx_msg void OnLButtonUp(UINT flags, CPoint point) {
        hits.push_back(HitTest(point));
        if (point.x >= 20) {
            CMFCPopupMenuBar::OnLButtonUp(flags, point);
        }
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(OtherBar, CMFCPopupMenuBar)
ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

class OtherList : public CMFCDropDownListBox {
public:
    using CMFCDropDownListBox::CMFCDropDownListBox;
    CMFCPopupMenuBar* GetMenuBar() override { return &bar; }
    OtherBar bar;
    int userSizes = 0;

protected:
    afx_msg void OnSize(UINT type, int cx, int cy) {
        CMFCDropDownListBox::OnSize(type, cx, cy);
        userSizes += IsShown() ? 1 : 0;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(OtherList, CMFCDropDownListBox)
ON_WM_SIZE()
END_MESSAGE_MAP()

/// Opens the list above.
class OtherCombo : public CMFCRibbonComboBox {
public:
    using CMFCRibbonComboBox::CMFCRibbonComboBox;
    void DropDownList() override {
        if (BeginDropDown()) {
            OpenDropDown(m_rect.Width());
        }
    }

protected:
    std::unique_ptr<CMFCDropDownListBox> MakeDropDownList() override { return std::make_unique<OtherList>(this); }
};

TEST_F(ComboList, ADerivedListsOwnBarIsUsedEverywhere) {
    auto* combo = new OtherCombo(1300, FALSE, 60, L"Other:");
    for (int i = 0; i < 40; ++i) {
        combo->AddItem(L"Row");
    }
    Bar().GetCategory(0)->GetPanel(0)->Add(combo);
    LayOut();
    m_pointer.Click(Bar().GetSafeHwnd(), combo->GetMenuRect().CenterPoint());
    auto* list = dynamic_cast<OtherList*>(CMFCPopupMenu::GetActiveMenu());
    ASSERT_NE(list, nullptr);
    EXPECT_GE(ScreenRect(*list).Width(), combo->GetRect().Width());
    EXPECT_GT(list->bar.paints, 0);
    EXPECT_EQ(list->bar.GetRowCount(), 40);
    EXPECT_EQ(list->userSizes, 0);
    Press(VK_DOWN);
    EXPECT_EQ(list->bar.GetHotRow(), 0);
    CPoint left = list->bar.GetRowRect(2).CenterPoint();
    left.x = 5;
    m_pointer.Click(list->bar.GetSafeHwnd(), left);
    EXPECT_THAT(list->bar.hits, ElementsAre(2));
    ASSERT_TRUE(IsOpen()) << "the derived bar kept the click";
    list->SetWindowPos(nullptr, 0, 0, ScreenRect(*list).Width(), 300, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(list->userSizes, 1);
    ClickRow(2);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(combo->GetCurSel(), 2);
}

} // namespace

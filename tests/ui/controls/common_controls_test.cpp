#include "afxcmn.h"

#include "tests/support/ui_test.h"

namespace {

constexpr UINT controlId = 300;
const CRect place(0, 0, 200, 100);

class CommonControls : public ::testing::Test {
protected:
    TestWindow window;
};

TEST_F(CommonControls, TooltipKeepsToolsOfWindowsAndRectangles) {
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&window));
    EXPECT_TRUE(tip.AddTool(&window, L"whole window"));
    EXPECT_TRUE(tip.AddTool(&window, L"part", CRect(1, 2, 30, 40), 5));
    EXPECT_EQ(tip.GetToolCount(), 2);
    CString text;
    tip.GetText(text, &window);
    EXPECT_STREQ(text, L"whole window");
    tip.UpdateTipText(L"changed", &window, 5);
    tip.GetText(text, &window, 5);
    EXPECT_STREQ(text, L"changed");
    tip.SetToolRect(&window, 5, CRect(10, 10, 20, 20));
    CToolInfo info;
    ASSERT_TRUE(tip.GetToolInfo(info, &window, 5));
    EXPECT_EQ(CRect(info.rect), CRect(10, 10, 20, 20));
    tip.DelTool(&window, 5);
    EXPECT_EQ(tip.GetToolCount(), 1);
}

TEST_F(CommonControls, ATooltipRectangleNeedsAnIdAndAnIdARectangle) {
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&window));
    EXPECT_FALSE(tip.AddTool(&window, L"x", CRect(1, 2, 3, 4), 0));
    EXPECT_FALSE(tip.AddTool(&window, L"x", nullptr, 9));
    EXPECT_EQ(tip.GetToolCount(), 0);
}

TEST_F(CommonControls, TooltipKeepsTimesAndWidth) {
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&window));
    tip.SetDelayTime(TTDT_INITIAL, 123);
    EXPECT_EQ(tip.GetDelayTime(TTDT_INITIAL), 123);
    EXPECT_EQ(tip.SetMaxTipWidth(250), -1);
    EXPECT_EQ(tip.GetMaxTipWidth(), 250);
}

TEST_F(CommonControls, SliderKeepsRangePositionAndSteps) {
    CSliderCtrl control;
    ASSERT_TRUE(control.Create(WS_CHILD | TBS_AUTOTICKS, place, &window, controlId));
    control.SetRange(-5, 25);
    control.SetPos(7);
    EXPECT_EQ(::SendMessageW(control.m_hWnd, TBM_GETPOS, 0, 0), 7);
    EXPECT_EQ(control.GetPos(), 7);
    int first = 0;
    int last = 0;
    control.GetRange(first, last);
    EXPECT_EQ(first, -5);
    EXPECT_EQ(last, 25);
    control.SetLineSize(3);
    control.SetPageSize(9);
    EXPECT_EQ(control.GetLineSize(), 3);
    EXPECT_EQ(control.GetPageSize(), 9);
    control.SetPos(100);
    EXPECT_EQ(control.GetPos(), 25);
}

TEST_F(CommonControls, ProgressBarStepsThroughItsRange) {
    CProgressCtrl control;
    ASSERT_TRUE(control.Create(WS_CHILD, place, &window, controlId));
    control.SetRange32(0, 1000);
    EXPECT_EQ(control.SetPos(500), 0);
    control.SetStep(25);
    EXPECT_EQ(control.StepIt(), 500);
    EXPECT_EQ(control.GetPos(), 525);
    EXPECT_EQ(control.OffsetPos(5), 525);
    int lower = 0;
    int upper = 0;
    control.GetRange(lower, upper);
    EXPECT_EQ(upper, 1000);
}

TEST_F(CommonControls, SpinButtonMovesItsBuddysNumber) {
    CEdit buddy;
    ASSERT_TRUE(buddy.Create(WS_CHILD, place, &window, 1));
    CSpinButtonCtrl control;
    ASSERT_TRUE(control.Create(WS_CHILD | UDS_SETBUDDYINT | UDS_NOTHOUSANDS, place, &window, controlId));
    control.SetBuddy(&buddy);
    EXPECT_EQ(control.GetBuddy(), &buddy);
    control.SetRange32(0, 100000);
    control.SetPos32(70000);
    EXPECT_EQ(control.GetPos32(), 70000);
    CString text;
    buddy.GetWindowText(text);
    EXPECT_STREQ(text, L"70000");
}

TEST_F(CommonControls, HeaderHoldsItemsInOrder) {
    CHeaderCtrl control;
    ASSERT_TRUE(control.Create(WS_CHILD, place, &window, controlId));
    wchar_t name[] = L"name";
    HDITEM item{};
    item.mask = HDI_TEXT | HDI_WIDTH;
    item.pszText = name;
    item.cxy = 50;
    EXPECT_EQ(control.InsertItem(0, &item), 0);
    EXPECT_EQ(control.InsertItem(1, &item), 1);
    EXPECT_EQ(control.GetItemCount(), 2);
    int order[] = {1, 0};
    EXPECT_TRUE(control.SetOrderArray(2, order));
    EXPECT_EQ(control.OrderToIndex(0), 1);
    EXPECT_TRUE(control.DeleteItem(0));
    EXPECT_EQ(control.GetItemCount(), 1);
}

TEST_F(CommonControls, TabControlSelectsItems) {
    CTabCtrl control;
    ASSERT_TRUE(control.Create(WS_CHILD, place, &window, controlId));
    EXPECT_EQ(control.InsertItem(0, L"first"), 0);
    EXPECT_EQ(control.InsertItem(1, L"second"), 1);
    EXPECT_EQ(control.SetCurSel(1), 0);
    EXPECT_EQ(control.GetCurSel(), 1);
    wchar_t text[20] = L"";
    TCITEM item{};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = 20;
    ASSERT_TRUE(control.GetItem(1, &item));
    EXPECT_STREQ(text, L"second");
}

TEST_F(CommonControls, TreeHoldsItemsWithTextDataAndChildren) {
    CTreeCtrl control;
    ASSERT_TRUE(control.Create(WS_CHILD | TVS_HASBUTTONS, place, &window, controlId));
    const HTREEITEM root = control.InsertItem(L"root");
    const HTREEITEM child = control.InsertItem(L"child", root);
    EXPECT_EQ(control.GetCount(), 2u);
    EXPECT_EQ(control.GetRootItem(), root);
    EXPECT_EQ(control.GetChildItem(root), child);
    EXPECT_EQ(control.GetParentItem(child), root);
    EXPECT_TRUE(control.ItemHasChildren(root));
    EXPECT_TRUE(control.SetItemData(child, 0x1234567890));
    EXPECT_EQ(control.GetItemData(child), 0x1234567890u);
    const CString longText(L'x', 600);
    EXPECT_TRUE(control.SetItemText(child, longText));
    EXPECT_GE(control.GetItemText(child).GetLength(), 259) << "longer than the first buffer";
    EXPECT_TRUE(control.Expand(root, TVE_EXPAND));
    EXPECT_TRUE(control.SelectItem(child));
    EXPECT_EQ(control.GetSelectedItem(), child);
    EXPECT_TRUE(control.DeleteItem(root));
    EXPECT_EQ(control.GetCount(), 0u);
}

TEST_F(CommonControls, ListHoldsColumnsItemsAndSelections) {
    CListCtrl control;
    ASSERT_TRUE(control.Create(WS_CHILD | LVS_REPORT, place, &window, controlId));
    EXPECT_EQ(control.InsertColumn(0, L"first", LVCFMT_LEFT, 60), 0);
    EXPECT_EQ(control.InsertColumn(1, L"second", LVCFMT_LEFT, 70, 1), 1);
    EXPECT_EQ(control.GetColumnWidth(1), 70);
    EXPECT_EQ(control.InsertItem(0, L"a"), 0);
    EXPECT_EQ(control.InsertItem(1, L"b"), 1);
    EXPECT_TRUE(control.SetItemText(1, 1, L"cell"));
    EXPECT_STREQ(control.GetItemText(1, 1), L"cell");
    EXPECT_TRUE(control.SetItemData(1, 77));
    EXPECT_EQ(control.GetItemData(1), 77u);
    EXPECT_TRUE(control.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED));
    POSITION position = control.GetFirstSelectedItemPosition();
    ASSERT_NE(position, nullptr);
    EXPECT_EQ(control.GetNextSelectedItem(position), 1);
    EXPECT_EQ(position, nullptr);
    ASSERT_NE(control.GetHeaderCtrl(), nullptr);
    EXPECT_EQ(::SendMessageW(control.GetHeaderCtrl()->m_hWnd, HDM_GETITEMCOUNT, 0, 0), 2);
    control.SetExtendedStyle(LVS_EX_CHECKBOXES);
    control.SetCheck(0);
    EXPECT_TRUE(control.GetCheck(0));
    EXPECT_FALSE(control.GetCheck(1));
    EXPECT_TRUE(control.DeleteItem(0));
    EXPECT_EQ(control.GetItemCount(), 1);
}

TEST_F(CommonControls, StatusBarControlShowsTextsInParts) {
    CStatusBarCtrl control;
    ASSERT_TRUE(control.Create(WS_CHILD, place, &window, controlId));
    int edges[] = {50, -1};
    EXPECT_TRUE(control.SetParts(2, edges));
    EXPECT_TRUE(control.SetText(L"part", 1, 0));
    EXPECT_STREQ(control.GetText(1), L"part");
    EXPECT_EQ(control.GetTextLength(1), 4);
}

TEST_F(CommonControls, ToolBarControlTakesButtons) {
    CToolBarCtrl control;
    ASSERT_TRUE(control.Create(WS_CHILD, place, &window, controlId));
    TBBUTTON buttons[2] = {};
    buttons[0].idCommand = 11;
    buttons[0].fsState = TBSTATE_ENABLED;
    buttons[1].idCommand = 12;
    EXPECT_TRUE(control.AddButtons(2, buttons));
    EXPECT_EQ(control.GetButtonCount(), 2);
    EXPECT_EQ(control.CommandToIndex(12), 1u);
    EXPECT_TRUE(control.IsButtonEnabled(11));
    EXPECT_FALSE(control.IsButtonEnabled(12));
    EXPECT_TRUE(control.EnableButton(12));
    EXPECT_TRUE(control.IsButtonEnabled(12));
}

TEST_F(CommonControls, RichEditSelectsAndReplaces) {
    CRichEditCtrl control;
    ASSERT_TRUE(control.Create(WS_CHILD | ES_MULTILINE, place, &window, controlId));
    control.SetWindowText(L"plain text");
    control.SetSel(0, 5);
    EXPECT_STREQ(control.GetSelText(), L"plain");
    control.ReplaceSel(L"rich", TRUE);
    CString text;
    control.GetWindowText(text);
    EXPECT_STREQ(text, L"rich text");
}

} // namespace

#include "afxwin.h"

#include "tests/support/ui_test.h"

namespace {

constexpr UINT controlId = 200;
const CRect place(0, 0, 120, 80);

class StandardControls : public ::testing::Test {
protected:
    TestWindow window;
};

TEST_F(StandardControls, StaticShowsTextAndIcon) {
    CStatic control;
    ASSERT_TRUE(control.Create(L"text", WS_CHILD | SS_ICON, place, &window, controlId));
    EXPECT_EQ(control.GetDlgCtrlID(), static_cast<int>(controlId));
    const HICON icon = ::LoadIconW(nullptr, IDI_APPLICATION);
    EXPECT_EQ(control.SetIcon(icon), nullptr);
    EXPECT_EQ(reinterpret_cast<HICON>(::SendMessageW(control.m_hWnd, STM_GETICON, 0, 0)), icon);
    EXPECT_EQ(control.GetIcon(), icon);
}

TEST_F(StandardControls, ButtonKeepsCheckStateAndStyle) {
    CButton control;
    ASSERT_TRUE(control.Create(L"check", WS_CHILD | BS_AUTO3STATE, place, &window, controlId));
    control.SetCheck(BST_INDETERMINATE);
    EXPECT_EQ(::SendMessageW(control.m_hWnd, BM_GETCHECK, 0, 0), BST_INDETERMINATE);
    EXPECT_EQ(control.GetCheck(), BST_INDETERMINATE);
    EXPECT_EQ(control.GetButtonStyle() & BS_TYPEMASK, static_cast<UINT>(BS_AUTO3STATE));
    control.SetButtonStyle(BS_RADIOBUTTON, FALSE);
    EXPECT_EQ(control.GetButtonStyle() & BS_TYPEMASK, static_cast<UINT>(BS_RADIOBUTTON));
    control.SetState(TRUE);
    EXPECT_TRUE(control.GetState() & BST_PUSHED);
    CString text;
    control.GetWindowText(text);
    EXPECT_STREQ(text, L"check");
}

TEST_F(StandardControls, EditSelectsReplacesAndReadsLines) {
    CEdit control;
    ASSERT_TRUE(control.Create(WS_CHILD | ES_MULTILINE | ES_AUTOHSCROLL, place, &window, controlId));
    control.SetWindowText(L"first\r\nsecond");
    EXPECT_EQ(control.GetLineCount(), 2);
    control.SetSel(0, 5);
    control.ReplaceSel(L"one", TRUE);
    int start = 0;
    int end = 0;
    control.GetSel(start, end);
    EXPECT_EQ(start, 3);
    EXPECT_EQ(end, 3);
    EXPECT_TRUE(control.CanUndo());
    wchar_t line[16] = L"";
    EXPECT_EQ(control.GetLine(1, line, 15), 6);
    EXPECT_STREQ(line, L"second");
    EXPECT_EQ(control.LineIndex(1), 5);
    EXPECT_EQ(control.LineFromChar(6), 1);
    control.SetModify(FALSE);
    EXPECT_FALSE(control.GetModify());
    control.SetLimitText(99);
    EXPECT_EQ(control.GetLimitText(), 99u);
}

TEST_F(StandardControls, EditTakesASelectionAsOneNumber) {
    CEdit control;
    ASSERT_TRUE(control.Create(WS_CHILD, place, &window, controlId));
    control.SetWindowText(L"abcdef");
    control.SetSel(MAKELONG(1, 4));
    EXPECT_EQ(control.GetSel(), static_cast<DWORD>(MAKELONG(1, 4)));
    control.SetSel(0xFFFF0000);
    EXPECT_EQ(control.GetSel(), static_cast<DWORD>(MAKELONG(0, 6))) << "to the end";
}

TEST_F(StandardControls, ListBoxHoldsTextsDataAndSelections) {
    CListBox control;
    ASSERT_TRUE(control.Create(WS_CHILD | LBS_MULTIPLESEL, place, &window, controlId));
    EXPECT_EQ(control.AddString(L"a"), 0);
    EXPECT_EQ(control.AddString(L"a longer text"), 1);
    EXPECT_EQ(control.InsertString(1, L"b"), 1);
    EXPECT_EQ(control.GetCount(), 3);
    CString text;
    control.GetText(2, text);
    EXPECT_STREQ(text, L"a longer text");
    EXPECT_NE(control.SetItemData(1, 0x123456789), LB_ERR);
    EXPECT_EQ(control.GetItemData(1), 0x123456789u);
    control.SelItemRange(TRUE, 0, 1);
    EXPECT_EQ(control.GetSelCount(), 2);
    int chosen[2] = {};
    EXPECT_EQ(control.GetSelItems(2, chosen), 2);
    EXPECT_EQ(chosen[1], 1);
    control.SelItemRange(FALSE, 0, 1);
    EXPECT_EQ(control.GetSelCount(), 0);
    EXPECT_EQ(control.FindStringExact(-1, L"b"), 1);
    EXPECT_EQ(control.DeleteString(0), 2);
    control.ResetContent();
    EXPECT_EQ(control.GetCount(), 0);
}

TEST_F(StandardControls, ComboBoxHoldsTextsDataAndDropsDown) {
    CComboBox control;
    ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, place, &window, controlId));
    EXPECT_EQ(control.AddString(L"one"), 0);
    EXPECT_EQ(control.InsertString(0, L"zero"), 0);
    EXPECT_EQ(control.GetCount(), 2);
    EXPECT_EQ(control.SetCurSel(1), 1);
    EXPECT_EQ(control.GetCurSel(), 1);
    CString text;
    control.GetLBText(1, text);
    EXPECT_STREQ(text, L"one");
    EXPECT_EQ(control.GetLBTextLen(0), 4);
    control.SetItemData(0, 99);
    EXPECT_EQ(::SendMessageW(control.m_hWnd, CB_GETITEMDATA, 0, 0), 99);
    EXPECT_EQ(control.FindStringExact(-1, L"one"), 1);
    EXPECT_EQ(control.SetDroppedWidth(300), 300);
    EXPECT_FALSE(control.GetDroppedState());
    control.ShowDropDown();
    EXPECT_TRUE(control.GetDroppedState());
    control.ShowDropDown(FALSE);
    EXPECT_FALSE(control.GetDroppedState());
    EXPECT_EQ(control.DeleteString(5), CB_ERR);
    control.ResetContent();
    EXPECT_EQ(control.GetCount(), 0);
}

TEST_F(StandardControls, AnEmptyPlaceInAListGivesAnEmptyText) {
    CComboBox combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | CBS_DROPDOWNLIST, place, &window, controlId));
    CString text = L"before";
    combo.GetLBText(3, text);
    EXPECT_TRUE(text.IsEmpty());
}

TEST_F(StandardControls, ScrollBarKeepsRangePageAndPosition) {
    CScrollBar control;
    ASSERT_TRUE(control.Create(WS_CHILD | SBS_HORZ, place, &window, controlId));
    control.SetScrollRange(2, 50);
    EXPECT_EQ(control.SetScrollPos(20), 2);
    EXPECT_EQ(control.GetScrollPos(), 20);
    int first = 0;
    int last = 0;
    control.GetScrollRange(&first, &last);
    EXPECT_EQ(first, 2);
    EXPECT_EQ(last, 50);
    EXPECT_EQ(control.GetScrollLimit(), 50);
    SCROLLINFO info{};
    info.fMask = SIF_PAGE;
    info.nPage = 10;
    control.SetScrollInfo(&info);
    EXPECT_EQ(control.GetScrollLimit(), 41) << "the last page's first position";
}

} // namespace

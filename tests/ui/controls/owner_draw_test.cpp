#include "afxwin.h"

#include "tests/support/ui_test.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

const CRect place(0, 0, 120, 200);

class DrawnCombo : public CComboBox {
public:
    void DrawItem(LPDRAWITEMSTRUCT item) override {
        drawn.push_back(item->itemID);
        EXPECT_EQ(item->hwndItem, m_hWnd);
    }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = 33; }
    int CompareItem(LPCOMPAREITEMSTRUCT items) override {
        ++compared;
        return items->itemData1 < items->itemData2 ? -1 : items->itemData1 > items->itemData2;
    }
    void DeleteItem(LPDELETEITEMSTRUCT item) override { deleted.push_back(item->itemData); }
    std::vector<UINT> drawn;
    std::vector<ULONG_PTR> deleted;
    int compared = 0;
};

class DrawnButton : public CButton {
public:
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    int drawn = 0;
};

TEST(OwnerDraw, AComboMeasuresComparesDrawsAndDeletesItsOwnItems) {
    TestWindow window;
    DrawnCombo combo;
    ASSERT_TRUE(
        combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_SORT, place, &window, 7));
    combo.AddString(reinterpret_cast<LPCTSTR>(30));
    combo.AddString(reinterpret_cast<LPCTSTR>(10));
    combo.AddString(reinterpret_cast<LPCTSTR>(20));
    EXPECT_GT(combo.compared, 0);
    EXPECT_EQ(combo.GetItemData(0), 10u);
    EXPECT_EQ(combo.GetItemData(2), 30u);
    EXPECT_EQ(combo.GetItemHeight(0), 33);

    combo.SetCurSel(1);
    combo.drawn.clear();
    combo.RedrawWindow();
    EXPECT_TRUE(std::count(combo.drawn.begin(), combo.drawn.end(), 1u) > 0);

    combo.DeleteString(1);
    EXPECT_EQ(combo.deleted, (std::vector<ULONG_PTR>{20}));
    combo.ResetContent();
    EXPECT_EQ(combo.deleted.size(), 3u);
}

TEST(OwnerDraw, AButtonDrawsItself) {
    TestWindow window;
    DrawnButton button;
    ASSERT_TRUE(button.Create(L"x", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, place, &window, 7));
    button.drawn = 0;
    button.RedrawWindow();
    EXPECT_GE(button.drawn, 1);
}

class DrawnList : public CListBox {
public:
    void DrawItem(LPDRAWITEMSTRUCT) override {}
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = 21; }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++deleted; }
    int VKeyToItem(UINT key, UINT) override { return key == 'X' ? -2 : -1; }
    int deleted = 0;
};

TEST(OwnerDraw, AListBoxMeasuresAndDeletesItsOwnItems) {
    TestWindow window;
    DrawnList list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED, place, &window, 7));
    list.AddString(reinterpret_cast<LPCTSTR>(1));
    EXPECT_EQ(list.GetItemHeight(0), 21);
    list.ResetContent();
    EXPECT_EQ(list.deleted, 1);
}

TEST(OwnerDraw, AControlWithoutAnOverrideIsNoError) {
    TestWindow window;
    CButton button;
    ASSERT_TRUE(button.Create(L"x", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, place, &window, 7));
    button.RedrawWindow();
    EXPECT_TRUE(::IsWindow(button.m_hWnd));
}

} // namespace

// Rows and faces of the window combos in a memory bitmap.
#include "tests/ui/window_combos/combo_host.h"

#include "library_context.h"

namespace {

constexpr int width = 160;
constexpr int height = 18;

/// An item drawn into a 32-bit bitmap.
class DrawnRow {
public:
    DrawnRow(CComboBox& combo, int index, UINT state = 0, CPoint corner = {0, 0}, UINT action = ODA_DRAWENTIRE)
        : m_dc(::CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_before = ::SelectObject(m_dc, m_bitmap);
        const RECT all{0, 0, width, height};
        const HBRUSH magenta = ::CreateSolidBrush(RGB(255, 0, 255));
        ::FillRect(m_dc, &all, magenta);
        ::DeleteObject(magenta);
        m_font = ::GetCurrentObject(m_dc, OBJ_FONT);
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_COMBOBOX;
        item.itemID = static_cast<UINT>(index);
        item.itemAction = action;
        item.itemState = state;
        item.hwndItem = combo.m_hWnd;
        item.hDC = m_dc;
        item.rcItem = {corner.x, corner.y, width, height};
        item.itemData = static_cast<ULONG_PTR>(index >= 0 ? combo.GetItemData(index) : 0);
        combo.DrawItem(&item);
        ::GdiFlush();
    }
    ~DrawnRow() {
        ::SelectObject(m_dc, m_before);
        ::DeleteObject(m_bitmap);
        ::DeleteDC(m_dc);
    }
    DrawnRow(const DrawnRow&) = delete;
    DrawnRow& operator=(const DrawnRow&) = delete;

    COLORREF At(int x, int y) const { return ::GetPixel(m_dc, x, y); }
    /// Whether any pixel of the columns is not of that colour.
    bool HasOther(int left, int right, COLORREF ground) const {
        for (int x = left; x < right; ++x) {
            for (int y = 0; y < height; ++y) {
                if (At(x, y) != ground) {
                    return true;
                }
            }
        }
        return false;
    }
    bool Equals(const DrawnRow& other) const {
        for (int x = 0; x < width; ++x) {
            for (int y = 0; y < height; ++y) {
                if (At(x, y) != other.At(x, y)) {
                    return false;
                }
            }
        }
        return true;
    }
    bool HasFontBack() const { return ::GetCurrentObject(m_dc, OBJ_FONT) == m_font; }

private:
    HDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_before = nullptr;
    HGDIOBJ m_font = nullptr;
};

template <class Combo>
class Rows : public testing::Test {
protected:
    void SetUp() override {
        host.Place(combo);
        AddColours(combo);
    }
    static COLORREF Colour(int index) { return ::GetSysColor(index); }
    ComboHost host;
    Combo combo;
};

using CheckRows = Rows<CCheckComboBox>;

TEST_F(CheckRows, AnEnabledItemLiesOnTheWindowsGround) {
    const DrawnRow row(combo, 0);
    EXPECT_EQ(row.At(width - 2, 2), Colour(COLOR_WINDOW));
}

TEST_F(CheckRows, ASelectedItemLiesOnTheHighlight) {
    const DrawnRow row(combo, 0, ODS_SELECTED);
    EXPECT_EQ(row.At(width - 2, 2), Colour(COLOR_HIGHLIGHT));
}

TEST_F(CheckRows, ADisabledComboLiesOnTheButtonFace) {
    combo.EnableWindow(FALSE);
    const DrawnRow row(combo, 0);
    EXPECT_EQ(row.At(width - 2, 2), Colour(COLOR_BTNFACE));
}

TEST_F(CheckRows, ACheckShowsInTheBoxAndNowhereElse) {
    const DrawnRow without(combo, 0);
    combo.SetCheck(0, 1, 0);
    const DrawnRow with(combo, 0);
    EXPECT_FALSE(with.Equals(without));
    for (int x = 40; x < width; ++x) {
        EXPECT_EQ(with.At(x, 9), without.At(x, 9));
    }
}

TEST_F(CheckRows, ARowWhoseLeftIsBelowSixBeginsAtZero) {
    const DrawnRow face(combo, 0, ODS_COMBOBOXEDIT, {3, 0});
    EXPECT_EQ(face.At(0, 1), Colour(COLOR_WINDOW));
    const DrawnRow moved(combo, 0, 0, {6, 0});
    EXPECT_EQ(moved.At(5, 1), static_cast<COLORREF>(RGB(255, 0, 255))) << "left alone";
}

TEST_F(CheckRows, TheSelectionFieldWithoutAnItemShowsNothing) {
    combo.CheckAll(1);
    const DrawnRow row(combo, -1, ODS_COMBOBOXEDIT);
    EXPECT_FALSE(row.HasOther(0, width, Colour(COLOR_WINDOW)));
}

TEST_F(CheckRows, AFocusRectangleIsDrawnUnlessTheSelectionAloneChanged) {
    const DrawnRow plain(combo, 0);
    EXPECT_FALSE(DrawnRow(combo, 0, ODS_FOCUS).Equals(plain));
    EXPECT_TRUE(DrawnRow(combo, 0, ODS_FOCUS, {0, 0}, ODA_SELECT).Equals(plain));
}

TEST_F(CheckRows, TheFontIsGivenBack) { EXPECT_TRUE(DrawnRow(combo, 0).HasFontBack()); }

TEST_F(CheckRows, ALongTextEndsInAnEllipsisAndNotBeyondTheRow) {
    const int index = combo.AddString(std::wstring(5000, L'W').c_str());
    const DrawnRow row(combo, index);
    EXPECT_TRUE(row.HasOther(100, width, Colour(COLOR_WINDOW)));
}

using MultiRows = Rows<CMultiCombo>;

TEST_F(MultiRows, TheSwatchIsFifteenPixelsFromThreeInItsColourWithABlackFrame) {
    combo.SetItemColor(0, RGB(10, 200, 30));
    const DrawnRow row(combo, 0);
    EXPECT_EQ(row.At(2, 9), Colour(COLOR_WINDOW));
    EXPECT_EQ(row.At(3, 9), 0u);
    EXPECT_EQ(row.At(4, 9), static_cast<COLORREF>(RGB(10, 200, 30)));
    EXPECT_EQ(row.At(16, 9), static_cast<COLORREF>(RGB(10, 200, 30)));
    EXPECT_EQ(row.At(17, 9), 0u);
    EXPECT_EQ(row.At(18, 9), Colour(COLOR_WINDOW));
}

TEST_F(MultiRows, TheLightRightOfTheSwatchFollowsBitFour) {
    const DrawnRow off(combo, 0);
    EXPECT_TRUE(off.HasOther(21, 36, Colour(COLOR_WINDOW)));
    combo.SetItemData(0, 0x4);
    const DrawnRow on(combo, 0);
    EXPECT_FALSE(on.Equals(off));
    combo.SetItemData(0, 0x9);
    EXPECT_TRUE(DrawnRow(combo, 0).Equals(off)) << "the lock is not drawn";
}

TEST_F(MultiRows, AnItemWithoutAColourHasAnEmptyFrame) {
    const DrawnRow row(combo, 0);
    EXPECT_EQ(row.At(3, 9), 0u);
    EXPECT_EQ(row.At(10, 9), Colour(COLOR_WINDOW));
}

using LightRows = Rows<CVesMultiCombo>;

TEST_F(LightRows, TheLightStandsAloneAndFollowsBitFour) {
    combo.SetItemColor(0, RGB(10, 200, 30));
    const DrawnRow off(combo, 0);
    EXPECT_TRUE(off.HasOther(3, 16, Colour(COLOR_WINDOW)));
    for (int x = 0; x < width; ++x) {
        ASSERT_NE(off.At(x, 9), static_cast<COLORREF>(RGB(10, 200, 30))) << "no swatch";
    }
    combo.SetItemData(0, 0x4);
    EXPECT_FALSE(DrawnRow(combo, 0).Equals(off));
}

TEST_F(MultiRows, AreAllOfOneHeight) { EXPECT_EQ(combo.GetItemHeight(0), height); }

} // namespace

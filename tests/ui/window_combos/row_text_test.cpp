// Texts and check boxes of the window combos' rows, beside what the system draws with the same font, colours and place.
#include "tests/ui/window_combos/combo_host.h"

#include "tests/support/canvas.h"

namespace {

const CSize kRow(160, 18);
constexpr LPCWSTR kSimSun = L"\u5b8b\u4f53";
constexpr int kRowFontHeight = 15;

struct Look {
    int textLeft = 0;
    LPCWSTR face = kSimSun;
    int textColor = COLOR_WINDOWTEXT;
    int ground = COLOR_WINDOW;
    int fontHeight = kRowFontHeight;
};

template <class Combo>
class RowLooks : public testing::Test {
protected:
    void SetUp() override {
        host.Place(combo);
        AddColours(combo);
    }
    void DrawItem(Canvas& canvas, int index, UINT state = 0) {
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_COMBOBOX;
        item.itemID = static_cast<UINT>(index);
        item.itemAction = ODA_DRAWENTIRE;
        item.itemState = state;
        item.hwndItem = combo.m_hWnd;
        item.hDC = canvas.Dc()->GetSafeHdc();
        item.rcItem = {0, 0, kRow.cx, kRow.cy};
        combo.DrawItem(&item);
    }
    /// Ground and text alone.
    static void DrawText(Canvas& canvas, const CString& text, const Look& look) {
        CDC& dc = *canvas.Dc();
        ::FillRect(dc.GetSafeHdc(), CRect(CPoint(0, 0), kRow), ::GetSysColorBrush(look.ground));
        CFont font;
        font.CreateFont(look.fontHeight, 0, 0, 0, 300, FALSE, FALSE, 0, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                        CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, 32, look.face);
        CFont* const before = dc.SelectObject(&font);
        dc.SetTextColor(::GetSysColor(look.textColor));
        dc.SetBkMode(TRANSPARENT);
        CRect place(look.textLeft, 0, kRow.cx, kRow.cy);
        dc.DrawText(text, place, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS);
        dc.SelectObject(before);
    }
    static bool IsSameFrom(int left, const Canvas& one, const Canvas& other) {
        for (int y = 0; y < kRow.cy; ++y) {
            for (int x = left; x < kRow.cx; ++x) {
                if (one.At(x, y) != other.At(x, y)) {
                    return false;
                }
            }
        }
        return true;
    }
    void ExpectText(int index, const CString& text, const Look& look, UINT state = 0) {
        Canvas drawn(kRow);
        DrawItem(drawn, index, state);
        Canvas expected(kRow);
        DrawText(expected, text, look);
        EXPECT_TRUE(IsSameFrom(look.textLeft, drawn, expected)) << "item " << index;
        Look lower = look;
        lower.fontHeight -= 4;
        DrawText(expected, text, lower);
        EXPECT_FALSE(IsSameFrom(look.textLeft, drawn, expected)) << "no text can be seen";
    }
    /// Height and leading of the combo's own font.
    int MarkWidth() const {
        TEXTMETRIC metrics{};
        CClientDC dc(const_cast<Combo*>(&combo));
        CFont* const font = combo.GetFont();
        CFont* const before = font ? dc.SelectObject(font) : nullptr;
        dc.GetTextMetrics(&metrics);
        if (before) {
            dc.SelectObject(before);
        }
        return static_cast<int>(metrics.tmHeight + metrics.tmExternalLeading);
    }
    ComboHost host;
    Combo combo;
};

using CheckRowLooks = RowLooks<CCheckComboBox>;

TEST_F(CheckRowLooks, TheTextStandsBehindTheBoxAndOneBlankInItsOwnFont) { ExpectText(1, L" green", {MarkWidth() + 7}); }

TEST_F(CheckRowLooks, ASelectedItemsTextIsTheHighlightsOnItsGround) {
    ExpectText(1, L" green", {MarkWidth() + 7, kSimSun, COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT}, ODS_SELECTED);
}

TEST_F(CheckRowLooks, ADisabledCombosTextIsGreyOnTheButtonFaceUnlessItsItemIsSelected) {
    combo.EnableWindow(FALSE);
    ExpectText(1, L" green", {MarkWidth() + 7, kSimSun, COLOR_GRAYTEXT, COLOR_BTNFACE});
    ExpectText(1, L" green", {MarkWidth() + 7, kSimSun, COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT}, ODS_SELECTED);
}

TEST_F(CheckRowLooks, ATextThatIsTooLongEndsInAnEllipsis) {
    const CString words = L"words that go on and on beyond the end of any row";
    ExpectText(combo.AddString(words), L" " + words, {MarkWidth() + 7});
}

TEST_F(CheckRowLooks, TheBoxIsTheSystemsInTheStateOfItemAndCombo) {
    for (const bool isEnabled : {true, false}) {
        for (const int check : {0, 1}) {
            combo.EnableWindow(isEnabled);
            combo.SetCheck(1, check, 0);
            Canvas drawn(kRow);
            DrawItem(drawn, 1);
            Canvas expected(kRow);
            DrawText(expected, L"", {0, kSimSun, COLOR_WINDOWTEXT, isEnabled ? COLOR_WINDOW : COLOR_BTNFACE});
            const int right = MarkWidth() + 7 - 1;
            CRect box(1, 1, right, kRow.cy - 1);
            expected.Dc()->DrawFrameControl(
                box, DFC_BUTTON, DFCS_BUTTONCHECK | (check ? DFCS_CHECKED : 0u) | (isEnabled ? 0u : DFCS_INACTIVE));
            bool isSame = true;
            for (int y = 0; y < kRow.cy; ++y) {
                for (int x = 0; x <= right; ++x) {
                    isSame = isSame && drawn.At(x, y) == expected.At(x, y);
                }
            }
            EXPECT_TRUE(isSame) << isEnabled << check;
        }
    }
}

using MultiRowLooks = RowLooks<CMultiCombo>;

TEST_F(MultiRowLooks, TheTextStandsBehindSwatchAndLightAndOneBlankInArial) {
    ExpectText(1, L" green", {3 + 15 + 3 + 15 + 3, L"Arial"});
    ExpectText(1, L" green", {3 + 15 + 3 + 15 + 3, L"Arial", COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT}, ODS_SELECTED);
}

using LightRowLooks = RowLooks<CVesMultiCombo>;

TEST_F(LightRowLooks, TheTextStandsBehindTheLightAndOneBlankInTheFontOfCheckCombos) {
    ExpectText(1, L" green", {3 + 13 + 3, kSimSun});
    combo.EnableWindow(FALSE);
    ExpectText(1, L" green", {3 + 13 + 3, kSimSun, COLOR_GRAYTEXT, COLOR_BTNFACE});
}

} // namespace

#include <afxribboncombobox.h>

#include <algorithm>

#include "tests/support/message_pump.h"
#include "tests/ui/ribbon_combo/combo_fixture.h"

namespace {

class FontCombo : public ::testing::Test {
protected:
    CMFCRibbonFontComboBox combo{1};
};

TEST_F(FontCombo, HasTheSystemsFontsInTheOrderOfTheirNames) {
    ASSERT_GT(combo.GetCount(), 1);
    for (int i = 0; i < combo.GetCount(); ++i) {
        const CMFCFontInfo* const font = combo.GetFontDesc(i);
        ASSERT_NE(font, nullptr);
        EXPECT_STREQ(combo.GetItem(i), font->m_strName);
        EXPECT_NE(font->m_strName[0], L'@');
        if (i > 0) {
            EXPECT_LT(CString(combo.GetItem(i - 1)).CompareNoCase(combo.GetItem(i)), 0) << i;
        }
    }
    EXPECT_EQ(combo.GetFontDesc(static_cast<int>(combo.GetCount())), nullptr);
    EXPECT_EQ(combo.GetFontDesc(), nullptr) << "none is selected";
}

TEST_F(FontCombo, SelectsAFontByItsName) {
    const CString name = combo.GetItem(1);
    EXPECT_TRUE(combo.SetFont(CString(name).MakeUpper()));
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_STREQ(combo.GetEditText(), name);
    ASSERT_NE(combo.GetFontDesc(), nullptr);
    EXPECT_STREQ(combo.GetFontDesc()->m_strName, name);
    EXPECT_FALSE(combo.SetFont(L"No such font"));
    EXPECT_FALSE(combo.SetFont(nullptr));
    EXPECT_EQ(combo.GetCurSel(), 1);
}

TEST_F(FontCombo, AnExactSearchTakesTheCharacterSet) {
    const CMFCFontInfo& font = *combo.GetFontDesc(0);
    EXPECT_TRUE(combo.SetFont(font.m_strName, font.m_nCharSet, TRUE));
    const BYTE other = font.m_nCharSet == ANSI_CHARSET ? MAC_CHARSET : ANSI_CHARSET;
    EXPECT_FALSE(combo.SetFont(font.m_strName, other, TRUE));
    EXPECT_TRUE(combo.SetFont(font.m_strName, other));
}

TEST_F(FontCombo, TakesOnlyTheFontsThatAreAskedFor) {
    const INT_PTR all = combo.GetCount();
    combo.BuildFonts(TRUETYPE_FONTTYPE, DEFAULT_CHARSET, FIXED_PITCH);
    EXPECT_EQ(combo.GetFontType(), TRUETYPE_FONTTYPE);
    EXPECT_EQ(combo.GetPitchAndFamily(), FIXED_PITCH);
    EXPECT_EQ(combo.GetCharSet(), DEFAULT_CHARSET);
    EXPECT_LT(combo.GetCount(), all);
    for (int i = 0; i < combo.GetCount(); ++i) {
        EXPECT_NE(combo.GetFontDesc(i)->m_nPitchAndFamily & FIXED_PITCH, 0) << i;
        EXPECT_NE(combo.GetFontDesc(i)->m_nType & TRUETYPE_FONTTYPE, 0) << i;
    }
    combo.BuildFonts(0);
    EXPECT_EQ(combo.GetCount(), 0);
}

TEST_F(FontCombo, TheChosenFontStaysWhenTheFontsAreBuiltAnew) {
    combo.SetFont(combo.GetItem(1));
    const CString name = combo.GetEditText();
    combo.RebuildFonts();
    EXPECT_EQ(combo.GetCurSel(), 1);
    combo.BuildFonts(0);
    EXPECT_STREQ(combo.GetEditText(), name);
    EXPECT_EQ(combo.GetCurSel(), -1);
}

TEST_F(FontCombo, ACopyHasTheSameFonts) {
    CMFCRibbonFontComboBox copy(2, 0);
    copy.CopyFrom(combo);
    ASSERT_EQ(copy.GetCount(), combo.GetCount());
    EXPECT_EQ(*copy.GetFontDesc(1), *combo.GetFontDesc(1));
    EXPECT_EQ(copy.GetFontType(), combo.GetFontType());
}

TEST_F(FontCombo, RowsAreWrittenInTheirFontWhenThatIsOn) {
    CClientDC screen(nullptr);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    EXPECT_EQ(combo.GetDropListItemWidth(&memory, 0, CSize(50, 10)), 50);
    CMFCToolBarMenuButton row;
    EXPECT_FALSE(combo.OnDrawDropListItem(&memory, 0, &row, FALSE));
    CMFCRibbonFontComboBox::m_bDrawUsingFont = TRUE;
    CFont* const before = memory.GetCurrentFont();
    EXPECT_TRUE(combo.OnDrawDropListItem(&memory, 0, &row, FALSE));
    EXPECT_EQ(memory.GetCurrentFont()->m_hObject, before->m_hObject);
    // In a font of fixed pitch each letter takes as much.
    CMFCRibbonFontComboBox fixed(2, TRUETYPE_FONTTYPE, DEFAULT_CHARSET, FIXED_PITCH);
    ASSERT_GT(fixed.GetCount(), 0);
    CFont font;
    LOGFONT log{};
    memory.GetCurrentFont()->GetLogFont(&log);
    ::lstrcpynW(log.lfFaceName, fixed.GetItem(0), LF_FACESIZE);
    log.lfCharSet = fixed.GetFontDesc(0)->m_nCharSet;
    log.lfPitchAndFamily = fixed.GetFontDesc(0)->m_nPitchAndFamily;
    font.CreateFontIndirect(&log);
    memory.SelectObject(&font);
    const int width = memory.GetTextExtent(fixed.GetItem(0)).cx;
    memory.SelectStockObject(SYSTEM_FONT);
    EXPECT_GE(fixed.GetDropListItemWidth(&memory, 0, CSize(1, 1)), width);
    CMFCRibbonFontComboBox::m_bDrawUsingFont = FALSE;
}

} // namespace

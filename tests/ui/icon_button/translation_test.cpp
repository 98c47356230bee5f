// The text of a button, which is the key of what it shows.
#include "tests/support/translation_tables.h"
#include "tests/ui/icon_button/icon_fixture.h"

namespace {

/// Stands on a window; keeps the texts that it is asked to draw, and the place of the last one.
class ShownButton : public CMFCRibbonUNIcoButton {
public:
    ShownButton(LPCTSTR text, const CString& large, const CString& small)
        : CMFCRibbonUNIcoButton(1, text, large, FALSE, small) {
        SetParentWnd(&m_window);
    }
    std::wstring Draw(CDC* dc) {
        m_drawn.clear();
        OnDraw(dc);
        return m_drawn;
    }
    int DrawRibbonText(CDC*, const CString& text, CRect rect, UINT, COLORREF) override {
        m_drawn += text.GetString();
        place = rect;
        return 0;
    }
    CRect place{0, 0, 0, 0};

private:
    TestWindow m_window;
    std::wstring m_drawn;
};

TEST_F(IconButton, TextIsTranslatedAtEveryDrawAndPutBack) {
    const TranslatedInstallation installation;
    ShownButton button(L"key", m_large, m_small);
    button.SetIntermediateMode(TRUE);
    button.SetRect(CRect(0, 0, 64, 24));
    for (const std::string language : {"one ", "two "}) {
        ASSERT_TRUE(installation.Translate("key", "Common", language));
        EXPECT_EQ(button.Draw(m_canvas.Dc()), std::wstring(language.begin(), language.end()) + L"<key>");
        EXPECT_EQ(CString(button.GetText()), L"key");
    }
}

TEST_F(IconButton, TextIsTranslatedBelowALargePictureAndInARowOfAMenu) {
    const TranslatedInstallation installation;
    ASSERT_TRUE(installation.Translate("key", "Common"));
    ShownButton button(L"key", m_large, m_small);
    button.SetRect(CRect(0, 0, 64, 64));
    ASSERT_TRUE(button.IsLargeMode());
    EXPECT_EQ(button.Draw(m_canvas.Dc()), L"<key>");
    EXPECT_GE(button.place.top, 32) << "below the picture";
    button.SetMenuMode(TRUE);
    EXPECT_EQ(button.Draw(m_canvas.Dc()), L"<key>");
    EXPECT_GE(button.place.left, 16) << "beside the picture";
}

TEST_F(IconButton, SizesAreThoseOfTheTranslationInEveryMode) {
    const TranslatedInstallation installation;
    ASSERT_TRUE(installation.Translate("key", "Common", "a long and winding "));
    CMFCRibbonUNIcoButton button(1, L"key", m_large, FALSE, m_small);
    CMFCRibbonUNIcoButton translated(1, L"a long and winding <key>", m_large, FALSE, m_small);
    CDC* const dc = m_canvas.Dc();
    EXPECT_EQ(button.GetRegularSize(dc), translated.GetRegularSize(dc));
    EXPECT_EQ(button.GetIntermediateSize(dc), translated.GetIntermediateSize(dc));
    EXPECT_EQ(button.GetCompactSize(dc), translated.GetCompactSize(dc));
    EXPECT_EQ(CString(button.GetText()), L"key");
    ASSERT_TRUE(installation.Translate("key", "Common"));
    EXPECT_LT(button.GetIntermediateSize(dc).cx, translated.GetIntermediateSize(dc).cx) << "the language has changed";
}

TEST_F(IconButton, LongTranslationsAreDrawnWhole) {
    const TranslatedInstallation installation;
    ASSERT_TRUE(installation.Translate("key", "Common", "a long and winding "));
    ShownButton button(L"key", m_large, m_small);
    button.SetIntermediateMode(TRUE);
    CDC* const dc = m_canvas.Dc();
    button.OnCalcTextSize(dc);
    button.SetRect(CRect(CPoint(0, 0), button.GetSize(dc)));
    button.OnAfterChangeRect(dc);
    button.Draw(dc);
    CFont* const former = dc->SelectObject(&afxGlobalData.fontRegular);
    EXPECT_GE(button.place.Width(), dc->GetTextExtent(CString(L"a long and winding <key>")).cx);
    dc->SelectObject(former);
}

TEST_F(IconButton, KeyTipsStayWhenTheTextIsSwappedAtADraw) {
    const TranslatedInstallation installation;
    ASSERT_TRUE(installation.Translate("key", "Common"));
    ShownButton button(L"key\nK", m_large, m_small);
    button.SetRect(CRect(0, 0, 64, 24));
    const CString keys = button.GetKeys();
    EXPECT_EQ(keys, L"K");
    button.Draw(m_canvas.Dc());
    EXPECT_EQ(CString(button.GetKeys()), keys);
    EXPECT_EQ(CString(button.GetText()), L"key");
}

} // namespace

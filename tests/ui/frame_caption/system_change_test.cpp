#include "tests/ui/frame_caption/caption_frame.h"

namespace {

class SystemChange : public ::testing::Test {
protected:
    SystemChange() { frame.Show(); }
    ~SystemChange() override {
        afxGlobalData.SetScreenDpi(0);
        afxGlobalData.UpdateFonts();
    }
    RibbonFrameWithCaption frame;
};

TEST_F(SystemChange, AnotherMonitorsResolutionScalesTheRibbonAndMovesTheFrame) {
    const int before = frame.bar.GetCaptionHeight();
    const RECT place{60, 50, 960, 650};
    frame.SendMessage(WM_DPICHANGED, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&place));
    EXPECT_EQ(afxGlobalData.GetRibbonImageScale(), 2.0);
    EXPECT_NEAR(frame.bar.GetCaptionHeight(), 2 * before, 4);
    EXPECT_EQ(frame.WindowRect(), CRect(place));
    CRect bar;
    frame.bar.GetClientRect(&bar);
    EXPECT_GT(bar.Height(), frame.bar.GetCaptionHeight() + frame.bar.GetCategoryHeight());
    frame.SendMessage(WM_DPICHANGED, MAKEWPARAM(96, 96), 0);
    EXPECT_EQ(frame.bar.GetCaptionHeight(), before);
}

TEST_F(SystemChange, ColoursAreReadAgain) {
    const int element = COLOR_3DFACE;
    const COLORREF before = ::GetSysColor(element);
    const COLORREF other = RGB(1, 2, 3);
    ASSERT_TRUE(::SetSysColors(1, &element, &other));
    frame.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(afxGlobalData.clrBarFace, other);
    ::SetSysColors(1, &element, &before);
    frame.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(afxGlobalData.clrBarFace, before);
}

TEST_F(SystemChange, ASettingDrawsTheRibbonAgain) {
    frame.bar.UpdateWindow();
    PumpPending();
    frame.SendMessage(WM_SETTINGCHANGE);
    EXPECT_TRUE(::GetUpdateRect(frame.bar.m_hWnd, nullptr, FALSE));
}

TEST_F(SystemChange, AnotherThemeDrawsTheRibbonAgainInItsColours) {
    frame.bar.UpdateWindow();
    PumpPending();
    afxGlobalData.clrBarFace = RGB(1, 2, 3);
    frame.SendMessage(WM_THEMECHANGED);
    EXPECT_EQ(afxGlobalData.clrBarFace, ::GetSysColor(COLOR_3DFACE));
    EXPECT_TRUE(::GetUpdateRect(frame.bar.m_hWnd, nullptr, FALSE));
}

TEST_F(SystemChange, ASettingThatChangesNoFontLeavesTheFontsInTheControlsThatShowThem) {
    const HGDIOBJ regular = afxGlobalData.fontRegular.GetSafeHandle();
    const HGDIOBJ bold = afxGlobalData.fontBold.GetSafeHandle();
    frame.SendMessage(WM_SETTINGCHANGE);
    EXPECT_EQ(afxGlobalData.fontRegular.GetSafeHandle(), regular);
    EXPECT_EQ(afxGlobalData.fontBold.GetSafeHandle(), bold);
    EXPECT_EQ(::GetObjectType(regular), static_cast<DWORD>(OBJ_FONT));
}

} // namespace

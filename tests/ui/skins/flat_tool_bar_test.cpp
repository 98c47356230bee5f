// The suites here look at what holds for the whole process, so each is a process of its own.
#include "tests/ui/skins/skin_fixture.h"

namespace {

class FlatToolBarBeforeAnyBegin : public SkinTest {};

TEST_F(FlatToolBarBeforeAnyBegin, EndWritesBackZeroColours) {
    auto& skin = Use<OpenBlackSkin>();
    ASSERT_NE(skin.m_clrToolBarGradientLight, 0u);
    skin.EndDrawFlatToolBar();
    EXPECT_EQ(skin.m_clrToolBarGradientLight, 0u);
    EXPECT_EQ(skin.m_clrToolBarGradientDark, 0u);
}

class FlatToolBar : public SkinTest {};

TEST_F(FlatToolBar, FirstColourIsThatOfThePlatformsStyleBetweenBeginAndEnd) {
    auto& skin = Use<OpenBlackSkin>();
    skin.m_clrToolBarGradientLight = RGB(1, 2, 3);
    skin.m_clrToolBarGradientDark = RGB(4, 5, 6);
    const struct {
        CMFCVisualManagerOffice2007::Style style;
        COLORREF color;
    } expected[] = {{CMFCVisualManagerOffice2007::Office2007_LunaBlue, RGB(1, 2, 3)},
                    {CMFCVisualManagerOffice2007::Office2007_ObsidianBlack, RGB(168, 176, 186)},
                    {CMFCVisualManagerOffice2007::Office2007_Aqua, RGB(159, 158, 185)},
                    {CMFCVisualManagerOffice2007::Office2007_Silver, RGB(192, 192, 192)}};
    for (const auto& [style, color] : expected) {
        CMFCVisualManagerOffice2007::SetStyle(style);
        skin.BeginDrawFlatToolBar();
        EXPECT_EQ(skin.m_clrToolBarGradientLight, color) << style;
        EXPECT_EQ(skin.m_clrToolBarGradientDark, RGB(4, 5, 6));
        skin.EndDrawFlatToolBar();
        EXPECT_EQ(skin.m_clrToolBarGradientLight, RGB(1, 2, 3));
        EXPECT_EQ(skin.m_clrToolBarGradientDark, RGB(4, 5, 6));
    }
}

TEST_F(FlatToolBar, EndPutsBackTheSecondColourToo) {
    auto& skin = Use<OpenBlackSkin>();
    const COLORREF dark = skin.m_clrToolBarGradientDark;
    skin.BeginDrawFlatToolBar();
    skin.m_clrToolBarGradientDark = RGB(9, 9, 9);
    skin.EndDrawFlatToolBar();
    EXPECT_EQ(skin.m_clrToolBarGradientDark, dark);
}

} // namespace

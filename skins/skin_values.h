#pragma once

// The two skins, value by value. The names are those of the getters (tovasque/skin_getters.h, which says what each
// colour paints); red, green and blue of the black skin, then of the silver one.
//
// clang-format off
#define BARWRIGHT_SKIN_COLORS(X)                                              \
    X(GetDropDownBtnColor,         RGB(167, 170, 180), RGB(242, 242, 246))    \
    X(GetDropDownBtnHilightClr,    RGB(51, 64, 73),    RGB(97, 110, 116))     \
    X(GetEraseTabAreaBorderClr,    RGB(105, 110, 125), RGB(166, 175, 190))    \
    X(GetEraseTabAreaColor,        RGB(97, 101, 116),  RGB(166, 175, 190))    \
    X(GetEraseTabButtonColor,      RGB(73, 78, 89),    RGB(215, 222, 233))    \
    X(GetEraseTabFrameColor,       RGB(74, 79, 90),    RGB(241, 248, 255))    \
    X(GetMainBtnHilightClr,        RGB(66, 75, 80),    RGB(128, 128, 128))    \
    X(GetMainBtnInnerBorderClr,    RGB(89, 92, 103),   RGB(224, 231, 242))    \
    X(GetMainBtnOuterBorderClr,    RGB(47, 52, 55),    RGB(178, 185, 196))    \
    X(GetMainButtonColor,          RGB(0, 0, 0),       RGB(224, 231, 242))    \
    X(GetPaneCaptionGridColor,     RGB(105, 110, 127), RGB(251, 252, 255))    \
    X(GetPaneCaptionLeftGridColor, RGB(105, 110, 127), RGB(219, 220, 230))    \
    X(GetPaneDividerBgColor,       RGB(75, 80, 90),    RGB(235, 240, 244))    \
    X(GetPanelBtnClrHilighted,     RGB(100, 100, 100), RGB(100, 100, 100))    \
    X(GetPanelBtnClrNormal,        RGB(150, 150, 150), RGB(150, 150, 150))    \
    X(GetPanelBtnClrPressed,       RGB(70, 70, 70),    RGB(70, 70, 70))       \
    X(GetPanelBtnTextColor,        RGB(226, 233, 240), RGB(17, 17, 17))       \
    X(GetPanelInnerBorderColor,    RGB(112, 114, 128), RGB(241, 243, 249))    \
    X(GetPanelOuterBorderColor,    RGB(65, 66, 75),    RGB(166, 175, 190))    \
    X(GetPanelTextColor,           RGB(255, 255, 255), RGB(34, 41, 69))       \
    X(GetRibbonBtnClrChecked,      RGB(97, 110, 116),  RGB(97, 110, 116))     \
    X(GetRibbonBtnClrHilighted,    RGB(192, 192, 192), RGB(226, 226, 230))    \
    X(GetRibbonBtnClrPressed,      RGB(80, 80, 25),    RGB(80, 80, 25))       \
    X(GetRibbonBtnTextColor,       RGB(255, 255, 255), RGB(0, 0, 0))          \
    X(GetRibbonEditBgColor,        RGB(167, 170, 180), RGB(242, 242, 246))    \
    X(GetRibbonTabBgColor,         RGB(50, 52, 62),    RGB(81, 87, 94))       \
    X(GetRibbonTabTextHilightClr,  RGB(255, 255, 255), RGB(0, 0, 0))          \
    X(GetRibbonTabTextNormalClr,   RGB(246, 247, 255), RGB(255, 255, 255))    \
    X(GetRightLeftBgColor,         RGB(67, 71, 82),    RGB(233, 238, 238))    \
    X(GetRightLeftLineColor,       RGB(51, 54, 61),    RGB(197, 197, 197))    \
    X(GetRightPopUpBgColor,        RGB(75, 80, 92),    RGB(250, 250, 250))    \
    X(GetStatusBarIntervalColor,   RGB(50, 55, 62),    RGB(185, 187, 203))    \
    X(GetStatusBarTextColor,       RGB(234, 238, 245), RGB(17, 17, 17))       \
    X(GetTabCheckColor,            RGB(60, 64, 73),    RGB(255, 255, 255))    \
    X(GetTabHilightedColor,        RGB(60, 64, 73),    RGB(255, 255, 255))    \
    X(GetTabTextHilightColor,      RGB(255, 255, 255), RGB(77, 77, 77))       \
    X(GetTabTextNormalColor,       RGB(224, 250, 255), RGB(77, 77, 77))       \
    X(GetTitleBgColor,             RGB(74, 77, 89),    RGB(255, 255, 255))

// The pictures in their order: black, silver. What each paints stands in platform/tovasque/src/skin_images.cpp. The
// eighth has another name in the silver skin, for hosts that bring their own.
#define BARWRIGHT_SKIN_IMAGES(X)                                              \
    X(L"pic\\skin\\black\\main.png",             L"pic\\skin\\silver\\main.png")             \
    X(L"pic\\skin\\black\\tab.png",              L"pic\\skin\\silver\\tab.png")              \
    X(L"pic\\skin\\black\\btnhilight.png",       L"pic\\skin\\silver\\btnhilight.png")       \
    X(L"pic\\skin\\black\\btnchecked.png",       L"pic\\skin\\silver\\btnchecked.png")       \
    X(L"pic\\skin\\black\\narrowbtnhilight.png", L"pic\\skin\\silver\\narrowbtnhilight.png") \
    X(L"pic\\skin\\black\\narrowbtnchecked.png", L"pic\\skin\\silver\\narrowbtnchecked.png") \
    X(L"pic\\skin\\black\\black.png",            L"pic\\skin\\silver\\silver.png")           \
    X(L"pic\\skin\\black\\paneldown.png",        L"pic\\skin\\silver\\paneldown16.png")      \
    X(L"pic\\skin\\black\\childbtn.png",         L"pic\\skin\\silver\\childbtn.png")         \
    X(L"pic\\skin\\black\\righthilight.png",     L"pic\\skin\\silver\\righthilight.png")     \
    X(L"pic\\skin\\black\\rightcheck.png",       L"pic\\skin\\silver\\rightcheck.png")       \
    X(L"pic\\skin\\black\\captionbg.png",        L"pic\\skin\\silver\\captionbg.png")        \
    X(L"pic\\skin\\black\\tabarea.png",          L"pic\\skin\\silver\\tabarea.png")          \
    X(L"pic\\skin\\black\\statusbar.png",        L"pic\\skin\\silver\\statusbar.png")        \
    X(L"pic\\skin\\black\\statusbarchecked.png", L"pic\\skin\\silver\\statusbarchecked.png") \
    X(L"pic\\skin\\black\\statusbarbg.png",      L"pic\\skin\\silver\\statusbarbg.png")
// clang-format on

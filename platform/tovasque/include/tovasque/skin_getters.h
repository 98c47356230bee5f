#pragma once

// The colours that a skin gives to CMFCVisualManagerOffice20072: the name of each getter and what is painted in it. The
// list declares the getters, names them for those who list them, and gives the base manager's own values, red, green
// and blue. Texts that lie on a colour are the getter's own where 4.5:1 is reached.
//
// clang-format off
#define TOVASQUE_SKIN_GETTERS(X)                                                                                       \
    X(GetDropDownBtnColor, 238, 239, 242)       /* drop-down button of a combo */                                      \
    X(GetDropDownBtnHilightClr, 96, 104, 112)   /* the same under the pointer, with a light arrow */                   \
    X(GetEraseTabAreaBorderClr, 170, 176, 186)  /* line below the row of document tabs */                              \
    X(GetEraseTabAreaColor, 170, 176, 186)      /* ground behind document tabs */                                      \
    X(GetEraseTabButtonColor, 216, 220, 226)    /* a document tab at rest, and the buttons beside the tabs */          \
    X(GetEraseTabFrameColor, 244, 246, 250)     /* the active document tab and the frame around the document */        \
    X(GetMainBtnHilightClr, 150, 154, 160)      /* application button under the pointer */                             \
    X(GetMainBtnInnerBorderClr, 228, 231, 236)  /* its light line inside */                                            \
    X(GetMainBtnOuterBorderClr, 180, 185, 194)  /* its outline */                                                      \
    X(GetMainButtonColor, 228, 231, 236)        /* its ground */                                                       \
    X(GetPaneCaptionGridColor, 248, 249, 251)   /* caption of a docking pane */                                        \
    X(GetPaneCaptionLeftGridColor, 220, 222, 228) /* the line around that caption */                                   \
    X(GetPaneDividerBgColor, 236, 239, 242)     /* between panes, and behind bars */                                   \
    X(GetPanelBtnClrHilighted, 100, 100, 100)   /* signs in pane captions under the pointer */                         \
    X(GetPanelBtnClrNormal, 130, 130, 130)      /* the same at rest, and the outline of joined buttons */              \
    X(GetPanelBtnClrPressed, 70, 70, 70)        /* the same, pressed */                                                \
    X(GetPanelBtnTextColor, 20, 20, 20)         /* texts that lie in a panel, on bars and in pop-ups */                \
    X(GetPanelInnerBorderColor, 242, 244, 248)  /* second of the two lines between panels */                           \
    X(GetPanelOuterBorderColor, 170, 176, 186)  /* first of them, and edges of bars and panes */                       \
    X(GetPanelTextColor, 36, 42, 60)            /* captions: of panels, panes and the window */                        \
    X(GetRibbonBtnClrChecked, 97, 110, 116)     /* plate of a checked button without its picture */                    \
    X(GetRibbonBtnClrHilighted, 226, 226, 230)  /* the same under the pointer */                                       \
    X(GetRibbonBtnClrPressed, 80, 80, 80)       /* the same, pressed */                                                \
    X(GetRibbonBtnTextColor, 0, 0, 0)           /* texts and signs of ribbon buttons */                                \
    X(GetRibbonEditBgColor, 242, 242, 246)      /* text fields, combos and light drop lists */                         \
    X(GetRibbonTabBgColor, 84, 90, 96)          /* row of category tabs, edges of the window */                        \
    X(GetRibbonTabTextHilightClr, 0, 0, 0)      /* text of the active tab and of the one under the pointer */          \
    X(GetRibbonTabTextNormalClr, 255, 255, 255) /* text of the other tabs */                                           \
    X(GetRightLeftBgColor, 234, 238, 240)       /* image column of menus and pop-ups */                                \
    X(GetRightLeftLineColor, 200, 200, 200)     /* line beside it, and lines in pop-ups */                             \
    X(GetRightPopUpBgColor, 250, 250, 250)      /* ground of menus, pop-ups and tooltips */                            \
    X(GetStatusBarIntervalColor, 186, 188, 202) /* lines of the status bar */                                          \
    X(GetStatusBarTextColor, 20, 20, 20)        /* its texts */                                                        \
    X(GetTabCheckColor, 255, 255, 255)          /* active category tab and the category below it */                    \
    X(GetTabHilightedColor, 255, 255, 255)      /* tab under the pointer, mixed with the row */                        \
    X(GetTabTextHilightColor, 76, 76, 76)       /* text of the active document tab */                                  \
    X(GetTabTextNormalColor, 76, 76, 76)        /* texts of the other document tabs */                                 \
    X(GetTitleBgColor, 255, 255, 255)           /* the window's title */
// clang-format on

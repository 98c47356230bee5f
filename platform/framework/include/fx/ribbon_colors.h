#pragma once

/// Colour of a category's tab; context categories use the coloured ones.
enum AFX_RibbonCategoryColor {
    AFX_CategoryColor_None,
    AFX_CategoryColor_Red,
    AFX_CategoryColor_Orange,
    AFX_CategoryColor_Yellow,
    AFX_CategoryColor_Green,
    AFX_CategoryColor_Blue,
    AFX_CategoryColor_Indigo,
    AFX_CategoryColor_Violet
};

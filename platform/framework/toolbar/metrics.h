#pragma once

#include <afxglobals.h>

// Sizes that toolbars and menus share: pixels at 96 DPI, scaled where they are used.
namespace toolbar {

inline int Scaled(int n) { return afxGlobalData.ScalePixels(n); }
inline CSize Scaled(CSize size) { return CSize(Scaled(size.cx), Scaled(size.cy)); }

/// A toolbar button: between image and edge, between image and text, between text and edge.
constexpr int ButtonPadding = 3;
constexpr int ButtonTextGap = 4;
constexpr int ButtonTextMargin = 4;
/// Width of a separator in a horizontal toolbar, height in a vertical one.
constexpr int SeparatorSize = 6;
/// Between the text of a menu bar's button and its sides, beside the margin that every button has.
constexpr int MenuBarPadding = 4;
/// The grip at the beginning of a docked bar.
constexpr int GripperSize = 7;
/// The button at the end of a docked bar that opens the menu of the rest.
constexpr int OverflowSize = 11;
/// The arrow beside a toolbar button that opens a menu.
constexpr int ArrowWidth = 12;

/// A text without mnemonic signs: "&&" stands for "&", a single one is dropped.
CString WithoutPrefix(const CString& text);
/// The mnemonic of a text in upper case; 0 when it has none.
wchar_t MnemonicOf(const CString& text);

} // namespace toolbar

#pragma once

#include "combos/item_bits.h"
#include "combos/mark_geometry.h"

#include <afxwin.h>

/// What the window combos have in common: the window, the colours and the text of a row, whom they tell.

namespace window_combo {

inline constexpr int rowHeight = 18;
/// Of a colour swatch.
inline constexpr int swatchSize = 15;

/// The styles of a combo that draws its items, all of one height, and keeps their strings.
inline constexpr DWORD ownerDrawn = CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;

enum class Face { SimSun, Arial };

/// Where the text begins in a row, after its marks are drawn into it.
using MarkPainter = int (*)(const CComboBox& combo, CDC& dc, const DRAWITEMSTRUCT& item, const marks::Rect& row);

/// Draws one item: the marks, which the painter leaves out for the selection field without an item, and the text.
void DrawRow(const CComboBox& combo, const DRAWITEMSTRUCT& item, const marks::Rect& row, Face face,
             MarkPainter paintMarks);

/// Empty for an index without an item.
CString TextOf(const CComboBox& combo, int index);

/// State bits of an existing item.
item_bits::Data DataOf(const CComboBox& combo, int index);

/// The window that gets the combo's messages: its owner, else its parent; null when there is none.
HWND HostOf(const CComboBox& combo);
/// WM_COMMAND of the combo to its parent.
void TellParent(const CComboBox& combo, UINT code);

/// Makes the list as wide as its widest row: `marksWidth` and the text.
void FitDroppedWidth(CComboBox& combo, int marksWidth);

/// The item field of the closed face, in client pixels; empty when it is not known.
marks::Rect FaceRow(const CComboBox& combo);

} // namespace window_combo

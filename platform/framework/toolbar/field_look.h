#pragma once

#include "afxwin.h"

namespace toolbar {

// Fields on bars, edits and the faces of combos, look like those of the ribbon.

/// Draws the ground of a field; its border is drawn on its edge afterwards.
void DrawField(CDC& dc, const CRect& rect, bool isDisabled);

/// What a control that lies on such a field answers WM_CTLCOLOR with: colours for its context, and the brush of its
/// ground, which belongs to the context.
HBRUSH ColorField(CDC& dc, bool isDisabled);
/// The same for the list that a combo drops.
HBRUSH ColorList(CDC& dc);

/// For what is said in a field that is empty. The field's colours are the context's.
COLORREF HintColor(const CDC& dc);

} // namespace toolbar

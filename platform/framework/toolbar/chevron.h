#pragma once

#include <afxwin.h>

namespace toolbar {

enum class ChevronTo { Right, Bottom };

/// Two arrow heads: there is more than is shown.
void DrawChevron(CDC& dc, CPoint middle, int size, ChevronTo direction, COLORREF color);

} // namespace toolbar

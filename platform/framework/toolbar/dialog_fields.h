#pragma once

#include "afxwin.h"

#include <commctrl.h>

// How controls of dialogs are painted where the system would paint them bright on a dark ground, or mirror their marks.
namespace toolbar {

struct FieldColors {
    COLORREF text;
    COLORREF dimmedText;
    COLORREF ground;
    COLORREF face;
    COLORREF border;
};

/// Whether the keyboard cue (UISF_HIDEFOCUS, UISF_HIDEACCEL) is not to be seen.
bool HidesCue(HWND window, UINT cue);
/// The control's; null: the system's.
HGDIOBJ FontOf(HWND window);
CString TextOf(HWND window);

/// A window that runs from the right. The system mirrors the marks in it, a tick among them.
bool RunsFromTheRight(HWND window);

/// A box to be checked with its text, on the ground that its dialog says.
void PaintBox(HWND box, CDC& dc);
/// The closed field of a combo box without an edit field.
void PaintDropList(HWND combo, CDC& dc, const FieldColors& colors);
/// The border of a field, which is no part of its client area; no more than a hairline is seen of it.
void PaintFieldBorder(HWND field, const FieldColors& colors);
/// A row of a list view that has one column, with its box where it has boxes.
void PaintListRow(const NMLVCUSTOMDRAW& row);

} // namespace toolbar

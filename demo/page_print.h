#pragma once

#include <afxwin.h>

#include "map_state.h"

#include <string>

enum class PrintOutcome { Printed, Cancelled, Failed };

/// Asks for the printer and its settings with the system's dialog, and prints the picture on one sheet with a margin
/// around. `title` is what the printer's queue shows.
PrintOutcome PrintPicture(HWND owner, CBitmap& picture, PageShape shape, const std::wstring& title);

/// Draws the picture on the sheet that `printer` stands for, which may be a metafile's or a bitmap's context, too.
/// False when there is no room, or the device refuses.
bool DrawOnSheet(HDC printer, CBitmap& picture);

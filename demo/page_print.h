#pragma once

#include <afxwin.h>

#include "page_layout.h"

#include <string>

class PrintPages;

enum class PrintOutcome { Printed, Cancelled, NoPrinter, Failed };

/// Asks for the printer, its settings and the pages with the system's dialog, and prints. `title` is what the printer's
/// queue shows. Where no printer is set up nobody is asked anything; what does not succeed is the caller's to tell.
PrintOutcome Print(HWND owner, const PrintPages& pages, const std::wstring& title);

/// Draws the picture on the sheet that `printer` stands for, which may be a metafile's or a bitmap's context, too.
/// False when there is no room, or the device refuses.
bool DrawOnSheet(HDC printer, CBitmap& picture);
/// The same on a sheet that is told.
bool DrawOnSheet(HDC printer, CBitmap& picture, const PrintSheet& sheet);

#pragma once

#include <afxwin.h>

#include <string>

/// Puts the picture on the clipboard, which then owns the bitmap. False, and the picture stays the caller's, when the
/// clipboard is in use by another program.
bool PutPictureOnClipboard(HWND owner, CBitmap& picture);
/// False when the clipboard is in use by another program.
bool PutTextOnClipboard(HWND owner, const std::wstring& text);
/// Asks for the file that a PNG picture is written to; empty when the user thinks better of it. `filterName` names the
/// kind of file in the user's language.
std::wstring AskForPictureFile(HWND owner, const std::wstring& filterName);
/// The file that the user chose to open; empty when the question was cancelled.
std::wstring AskForMapFile(HWND owner, const std::wstring& filterName);

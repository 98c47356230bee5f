#pragma once

#include "elements/icon_file.h"

#include <string>

/// The road to the small pictures of commands in menus and toolbars.

/// The icon file of a configured path (see GetIconPathStr) at 16 pixels; empty for an empty path and for a file that
/// cannot be loaded.
FileIcon LoadCommandIcon(const std::wstring& picPath);

/// Gives a command its picture in menus and toolbars, unless it has one. A null icon is noted as "no picture". The icon
/// stays the caller's.
void GiveCommandIcon(unsigned int id, HICON icon);
/// The same from a file, which is not read when the command has a picture. An empty path changes nothing.
void GiveCommandIcon(unsigned int id, const std::wstring& picPath);

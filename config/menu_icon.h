#pragma once

#include "elements/icon_file.h"

#include <string>

class CMFCToolBarImages;

/// The road to the small pictures of commands in menus and toolbars.

/// A command's icon at 16 pixels and, where the display's scale draws it larger, the picture of the same file that fits
/// it best there; empty where the file has none that is larger.
struct CommandIcon {
    FileIcon small;
    FileIcon larger;
};

/// The icon file of a configured path (see GetIconPathStr); empty for an empty path and for a file that cannot be
/// loaded.
CommandIcon LoadCommandIcon(const std::wstring& picPath);

/// Adds both pictures as one image. The index of the image; -1: the icon is empty.
int AddCommandIcon(CMFCToolBarImages& images, const CommandIcon& icon);

/// Gives a command its picture in menus and toolbars, unless it has one. An empty icon is noted as "no picture".
void GiveCommandIcon(unsigned int id, const CommandIcon& icon);
/// The same from a file, which is not read when the command has a picture. An empty path changes nothing.
void GiveCommandIcon(unsigned int id, const std::wstring& picPath);

#pragma once

#include <windows.h>

/// The context menu of the map, IDR_MAP_MENU, is the application's (CContextMenuManager): users change it in the
/// customize dialog. Its resource has keywords, because only the configured files decide which numbers their commands
/// have.
namespace map_menu {

/// Behind the ribbon and the menu, whenever they are built: adds it once, under its name in the language in force.
void Add();
/// Gives the items of a menu that has come from the resource their commands, and all items the names of their commands
/// in the language in force. Commands that no file has are left out.
void Fill(HMENU menu);
/// What the user has made of it, from one run to the next: with keywords, as in the resource, since numbers may be
/// others then, and the language too.
void Load();
void Save();

} // namespace map_menu

#pragma once

#include "afxtoolbarmenubutton.h"

#include <memory>

class CMFCPopupMenu;
class CMFCPopupMenuBar;
class CMFCToolBar;

// Open menus show copies of what the buttons of bars have. These functions lead from a menu to what it was made from,
// which users change.
namespace toolbar {

/// The button of a bar, or an item of it at any depth, whose items a menu shows.
struct MenuSource {
    CMFCToolBar* bar = nullptr;
    CMFCToolBarMenuButton* owner = nullptr; ///< null: the menu shows something else, or must stay as it is

    explicit operator bool() const { return owner != nullptr; }
};
MenuSource SourceOf(CMFCPopupMenu& menu);

/// The item that a row of the owner's menu shows; null: it has none.
CMFCToolBarMenuButton* ItemOfRow(const CMFCPopupMenuBar& menu, const CMFCToolBarMenuButton& owner, int row);
/// Before which of the owner's items something belongs that is to be shown before the row.
int PlaceBeforeRow(const CMFCPopupMenuBar& menu, const CMFCToolBarMenuButton& owner, int row);

/// Which button of the bar, or item of one, has the item among its own. The item is compared and not touched; null:
/// none has it.
CMFCToolBarMenuButton* OwnerOf(const CMFCToolBar& bar, const CMFCToolBarMenuButton* item);
/// Whether the part is the item or lies below it.
bool IsWithin(const CMFCToolBarMenuButton& item, const CMFCToolBarMenuButton* part);

/// Users change the items of buttons that only show them to everybody else. nBefore: index of the item that the new one
/// comes before; beyond the last: at the end.
void InsertItem(CMFCToolBarMenuButton& owner, std::unique_ptr<CMFCToolBarMenuButton> item, int nBefore);
/// False: it is none of the owner's own items; it is compared only.
bool RemoveItem(CMFCToolBarMenuButton& owner, const CMFCToolBarMenuButton* item);

/// The innermost open menu whose window, or a child of it, lies at the point of the screen; null: none does.
CMFCPopupMenu* MenuAt(CPoint screen);

/// A button as an item or row of a menu; one that is a menu button keeps its class and its items.
std::unique_ptr<CMFCToolBarMenuButton> MenuItemFor(const CMFCToolBarButton& button);
/// An item as a button of a toolbar: one that opens no menu becomes an ordinary button with the command's image.
std::unique_ptr<CMFCToolBarButton> BarButtonFor(const CMFCToolBarMenuButton& item);

} // namespace toolbar

#pragma once

#include <windows.h>

class CMFCPopupMenu;
class CObList;

/// Puts an item for each pane that can be shown and hidden in the place of the menu's item `entry`. A menu without that
/// item, and one that has no pane to show, stays as it is.
void ShowPanesInMenu(CMFCPopupMenu& menu, UINT entry, const CObList& panes, bool showsToolbarsOnly);

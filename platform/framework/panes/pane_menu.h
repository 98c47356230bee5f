#pragma once

#include "afxPane.h"

#include <vector>

/// The panes that a menu offers to show and hide, in the order of the list: those with a name that allow it.
std::vector<CPane*> PanesForMenu(const CObList& panes, bool showsToolbarsOnly);

/// What the menu of a frame's panes shows. `customizeCommand` 0: no command below the panes.
struct PaneMenuContent {
    std::vector<CPane*> panes;
    UINT customizeCommand = 0;
    CString customizeText;
};

/// Shows the menu over the frame; the point is one of the screen. Menus lie above this room, which is why the room that
/// knows them sets it while the library is loaded.
using PaneMenuShower = void (*)(CWnd& frame, CPoint point, const PaneMenuContent& content);
void SetPaneMenuShower(PaneMenuShower shower);
void ShowPaneMenu(CWnd& frame, CPoint point, const PaneMenuContent& content);

/// Asked first when the menu of a pane is wanted at a point of the screen. True: it is done, and the pane may be gone.
/// The room that knows what lies in panes sets it while the library is loaded.
using PaneMenuFilter = bool (*)(CBasePane& pane, CPoint point);
void SetPaneMenuFilter(PaneMenuFilter filter);
bool FilterPaneMenu(CBasePane& pane, CPoint point);

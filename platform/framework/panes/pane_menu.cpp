#include "panes/pane_menu.h"

std::vector<CPane*> PanesForMenu(const CObList& panes, bool showsToolbarsOnly) {
    std::vector<CPane*> offered;
    for (POSITION position = panes.GetHeadPosition(); position;) {
        auto* pane =
            DYNAMIC_DOWNCAST(CPane, const_cast<CObject*>(static_cast<const CObject*>(panes.GetNext(position))));
        if (!pane || !pane->AllowShowOnPaneMenu() || (showsToolbarsOnly && pane->IsResizable())) {
            continue;
        }
        CString name;
        pane->GetPaneName(name);
        if (!name.IsEmpty()) {
            offered.push_back(pane);
        }
    }
    return offered;
}

#include "panes/pane_menu.h"

namespace {

// Initialised before any code runs: the rooms above set it while the library is loaded.
constinit PaneMenuShower g_shower = nullptr;
constinit PaneMenuFilter g_filter = nullptr;

} // namespace

void SetPaneMenuShower(PaneMenuShower shower) { g_shower = shower; }

void ShowPaneMenu(CWnd& frame, CPoint point, const PaneMenuContent& content) {
    if (g_shower != nullptr) {
        g_shower(frame, point, content);
    }
}

void SetPaneMenuFilter(PaneMenuFilter filter) { g_filter = filter; }

bool FilterPaneMenu(CBasePane& pane, CPoint point) { return g_filter != nullptr && g_filter(pane, point); }

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

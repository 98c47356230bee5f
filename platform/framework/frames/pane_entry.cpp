#include "frames/pane_entry.h"

#include "afxpopupmenu.h"
#include "frames/window_item.h"
#include "panes/pane_menu.h"

namespace {

void SwitchPane(HWND window) {
    if (CPane* const pane = DYNAMIC_DOWNCAST(CPane, CWnd::FromHandlePermanent(window))) {
        pane->ShowPane(!pane->IsVisible(), FALSE, FALSE);
    }
}

WindowItem ItemOf(const CPane& pane) {
    CString name;
    pane.GetPaneName(name);
    return {pane.GetSafeHwnd(), &SwitchPane, pane.IsVisible() != FALSE, name};
}

int IndexOf(CMFCPopupMenu& menu, UINT entry) {
    for (int index = 0; index < menu.GetMenuItemCount(); ++index) {
        const CMFCToolBarMenuButton* const item = menu.GetMenuItem(index);
        if (item != nullptr && item->m_nID == entry) {
            return index;
        }
    }
    return -1;
}

/// The panes to be shown and hidden, and below them the command that changes the bars.
class PaneMenu : public CMFCPopupMenu {
public:
    explicit PaneMenu(const PaneMenuContent& content) : m_content(content) {}

protected:
    BOOL InitMenuBar() override {
        if (!CMFCPopupMenu::InitMenuBar()) {
            return FALSE;
        }
        for (const CPane* const pane : m_content.panes) {
            InsertItem(ItemOf(*pane));
        }
        if (m_content.customizeCommand != 0) {
            if (!m_content.panes.empty()) {
                InsertSeparator();
            }
            InsertItem(CMFCToolBarMenuButton(m_content.customizeCommand, nullptr, -1, m_content.customizeText));
        }
        return TRUE;
    }

private:
    const PaneMenuContent& m_content; ///< only until the window is there
};

void ShowMenuOfPanes(CWnd& frame, CPoint point, const PaneMenuContent& content) {
    if (content.panes.empty() && content.customizeCommand == 0) {
        return;
    }
    // The window deletes the object, also where it cannot be made.
    (new PaneMenu(content))->Create(&frame, point.x, point.y, nullptr);
}

[[maybe_unused]] const bool g_isShowerSet = [] {
    SetPaneMenuShower(&ShowMenuOfPanes);
    return true;
}();

} // namespace

void ShowPanesInMenu(CMFCPopupMenu& menu, UINT entry, const CObList& panes, bool showsToolbarsOnly) {
    const int place = entry != 0 ? IndexOf(menu, entry) : -1;
    const std::vector<CPane*> offered = PanesForMenu(panes, showsToolbarsOnly);
    if (place < 0 || offered.empty()) {
        return;
    }
    int next = place + 1;
    for (const CPane* pane : offered) {
        menu.InsertItem(ItemOf(*pane), next++);
    }
    menu.RemoveItem(place);
}

#include "toolbar/user_tool_items.h"

#include "afxcommandmanager.h"
#include "afxpopupmenu.h"
#include "afxusertoolsmanager.h"

namespace {

/// -1: the menu does not have it.
int RowOf(CMFCPopupMenu& menu, UINT command) {
    for (int row = 0; row < menu.GetMenuItemCount(); ++row) {
        const CMFCToolBarMenuButton* const item = menu.GetMenuItem(row);
        if (item != nullptr && item->m_nID == command) {
            return row;
        }
    }
    return -1;
}

} // namespace

void toolbar::ShowUserTools(CMFCPopupMenu& menu) {
    // A user changes the menu itself, which has the one command.
    if (afxUserToolsManager == nullptr || CMFCToolBar::IsCustomizeMode()) {
        return;
    }
    const CObList& tools = afxUserToolsManager->GetUserTools();
    const int place = RowOf(menu, afxUserToolsManager->GetToolsEntryCmd());
    if (place < 0 || tools.IsEmpty()) {
        return;
    }
    int row = place;
    for (POSITION position = tools.GetHeadPosition(); position != nullptr;) {
        const auto* const tool = static_cast<const CUserTool*>(tools.GetNext(position));
        const UINT command = tool->GetCommandId();
        const int image = GetCmdMgr()->GetCmdImage(command, FALSE);
        menu.InsertItem(CMFCToolBarMenuButton(command, nullptr, image, tool->m_strLabel), row++);
    }
    menu.RemoveItem(row);
}

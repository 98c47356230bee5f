// A pop-up's items, which lie in its bar.
#include "afxpopupmenu.h"

CMFCToolBarMenuButton* CMFCPopupMenu::GetMenuItem(int iIndex) const {
    CMFCPopupMenuBar* bar = const_cast<CMFCPopupMenu*>(this)->GetMenuBar();
    return DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, bar->GetButton(iIndex));
}

int CMFCPopupMenu::GetMenuItemCount() const { return const_cast<CMFCPopupMenu*>(this)->GetMenuBar()->GetCount(); }

CMFCToolBarMenuButton* CMFCPopupMenu::GetSelItem() {
    return DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, GetMenuBar()->GetHighlightedButton());
}

CMFCToolBarMenuButton* CMFCPopupMenu::FindSubItemByCommand(UINT uiCmd) const {
    const CMFCPopupMenuBar* bar = const_cast<CMFCPopupMenu*>(this)->GetMenuBar();
    const int index = bar->CommandToIndex(uiCmd);
    return index >= 0 ? GetMenuItem(index) : nullptr;
}

int CMFCPopupMenu::InsertItem(const CMFCToolBarMenuButton& button, int iInsertA) {
    return GetMenuBar()->InsertButton(button, iInsertA);
}

int CMFCPopupMenu::InsertSeparator(int iInsertAt) { return GetMenuBar()->InsertSeparator(iInsertAt); }

BOOL CMFCPopupMenu::RemoveItem(int iIndex) { return GetMenuBar()->RemoveButton(iIndex); }

void CMFCPopupMenu::RemoveAllItems() { GetMenuBar()->RemoveAllButtons(); }

void CMFCPopupMenu::SetDefaultItem(UINT uiCmd) { GetMenuBar()->SetDefaultMenuId(uiCmd); }

// The quick access toolbar as the bar's hosts and users change it.
#include "afxribbonbar.h"

#include "ribbon/bar_menus.h"
#include "ribbon/bar_parts.h"

void CMFCRibbonBar::SetQuickAccessCommands(const CList<UINT, UINT>& lstCommands, BOOL bRecalcLayout) {
    m_parts->quickAccessChosen = true;
    m_parts->quickAccessPending = false;
    m_parts->quickAccess.SetCommands(this, lstCommands);
    MarkLayoutDirty();
    if (bRecalcLayout) {
        EnsureLayout();
    }
}

void CMFCRibbonBar::GetQuickAccessCommands(CList<UINT, UINT>& lstCommands) {
    m_parts->quickAccess.GetCommands(lstCommands);
}

void CMFCRibbonBar::SetQuickAccessDefaultState(const CMFCRibbonQuickAccessToolBarDefaultState& state) {
    m_parts->quickAccessDefault.CopyFrom(state);
    if (!m_parts->quickAccessChosen) {
        ApplyDefaultQuickAccess();
    }
    MarkLayoutDirty();
}

void CMFCRibbonBar::ApplyDefaultQuickAccess() {
    const CMFCRibbonQuickAccessToolBarDefaultState& state = m_parts->quickAccessDefault;
    CList<UINT, UINT> visible;
    INT_PTR commands = 0;
    for (INT_PTR index = 0; index < state.m_arCommands.GetSize(); ++index) {
        if (state.m_arVisibleState[index]) {
            visible.AddTail(state.m_arCommands[index]);
            ++commands;
        }
    }
    m_parts->quickAccess.SetCommands(this, visible);
    m_parts->quickAccessPending = m_parts->quickAccess.GetCount() < commands;
}

void CMFCRibbonBar::SetQuickAccessToolbarOnTop(BOOL bOnTop) {
    m_parts->quickAccessOnTop = bOnTop != FALSE;
    MarkLayoutDirty();
}

BOOL CMFCRibbonBar::IsQuickAccessToolbarOnTop() const { return m_parts->quickAccessOnTop; }

BOOL CMFCRibbonBar::IsQATEmpty() const { return m_parts->quickAccess.IsEmpty(); }

CRect CMFCRibbonBar::GetQuickAccessToolbarLocation() const { return m_parts->quickAccess.GetRect(); }

CRect CMFCRibbonBar::GetQATCommandsLocation() const { return m_parts->quickAccess.GetCommandsRect(); }

CMFCRibbonBaseElement* CMFCRibbonBar::GetQATDroppedDown() { return m_parts->quickAccess.GetDroppedDown(); }

void CMFCRibbonBar::ToggleQuickAccessCommand(UINT uiCmdID) {
    CMFCRibbonQuickAccessToolBar& toolbar = m_parts->quickAccess;
    m_parts->quickAccessChosen = true;
    if (CMFCRibbonBaseElement* copy = toolbar.FindByID(uiCmdID)) {
        toolbar.Remove(copy);
    } else {
        toolbar.Add(FindByID(uiCmdID, FALSE, TRUE));
    }
    MarkLayoutDirty();
}

void CMFCRibbonBar::AddPlaceOfQuickAccess(RibbonMenu& menu) {
    menu.AddCommand(
        RibbonText(m_parts->quickAccessOnTop ? RibbonTextId::QuickAccessBelow : RibbonTextId::QuickAccessAbove),
        [this] { SetQuickAccessToolbarOnTop(!m_parts->quickAccessOnTop); });
    menu.AddCheck(RibbonText(RibbonTextId::Minimize), m_parts->minimized, [this] { ToggleMimimizeState(); });
}

// The commands of the default state, those in the toolbar checked; then where the toolbar lies.
BOOL CMFCRibbonBar::OnShowRibbonQATMenu(CWnd* pWnd, int x, int y, CMFCRibbonBaseElement* pHit) {
    const CMFCRibbonQuickAccessToolBarDefaultState& state = m_parts->quickAccessDefault;
    RibbonMenu menu;
    menu.AddHeading(RibbonText(RibbonTextId::QuickAccessCustomize));
    for (INT_PTR index = 0; index < state.m_arCommands.GetSize(); ++index) {
        const UINT id = state.m_arCommands[index];
        if (CMFCRibbonBaseElement* element = FindByID(id, FALSE, TRUE)) {
            menu.AddCheck(element->GetText(), m_parts->quickAccess.FindByID(id) != nullptr,
                          [this, id] { ToggleQuickAccessCommand(id); });
        }
    }
    menu.AddSeparator();
    AddPlaceOfQuickAccess(menu);
    return menu.Track(CPoint(x, y), pWnd, pHit);
}

// The element may go while the menu is open; nothing is done with it then.
BOOL CMFCRibbonBar::OnShowRibbonContextMenu(CWnd* pWnd, int x, int y, CMFCRibbonBaseElement* pHit) {
    RibbonMenu menu;
    m_parts->menuSubject = pHit;
    if (pHit != nullptr && pHit->IsQATMode()) {
        menu.AddCommand(RibbonText(RibbonTextId::QuickAccessRemove), [this] {
            m_parts->quickAccessChosen = true;
            m_parts->quickAccess.Remove(m_parts->menuSubject);
            MarkLayoutDirty();
        });
    } else if (pHit != nullptr && pHit->CanBeAddedToQuickAccessToolBar()) {
        const bool isThere = m_parts->quickAccess.FindByOriginal(pHit) != nullptr;
        menu.AddCommand(RibbonText(RibbonTextId::QuickAccessAdd), !isThere, [this] {
            m_parts->quickAccessChosen = true;
            m_parts->quickAccess.Add(m_parts->menuSubject);
            MarkLayoutDirty();
        });
    }
    menu.AddSeparator();
    AddPlaceOfQuickAccess(menu);
    return menu.Track(CPoint(x, y), pWnd);
}

// A menu's item: its own items and the pop-up that shows them.
#include "afxtoolbarmenubutton.h"

#include "afxcommandmanager.h"
#include "afxmenubar.h"
#include "afxpopupmenu.h"
#include "fx/window_guard.h"
#include "toolbar/menu_items.h"
#include "toolbar/metrics.h"

#include <memory>
#include <utility>
#include <vector>

IMPLEMENT_SERIAL(CMFCToolBarMenuButton, CMFCToolBarButton, VERSIONABLE_SCHEMA | 1)

BOOL CMFCToolBarMenuButton::m_bAlwaysCallOwnerDraw = FALSE;

CMFCToolBarMenuButton::CMFCToolBarMenuButton() = default;

CMFCToolBarMenuButton::CMFCToolBarMenuButton(const CMFCToolBarMenuButton& src) : CMFCToolBarButton() {
    CMFCToolBarMenuButton::CopyFrom(src);
}

CMFCToolBarMenuButton::CMFCToolBarMenuButton(UINT uiID, HMENU hMenu, int iImage, LPCTSTR lpszText, BOOL bUserButton)
    : CMFCToolBarButton(uiID, iImage, lpszText, bUserButton) {
    if (hMenu) {
        CMFCToolBarMenuButton::CreateFromMenu(hMenu);
    }
}

CMFCToolBarMenuButton::~CMFCToolBarMenuButton() {
    if (m_pPopupMenu) {
        CMFCPopupMenu* const menu = std::exchange(m_pPopupMenu, nullptr);
        menu->SetParentButton(nullptr);
        menu->CloseMenu();
    }
    ClearCommands();
}

void CMFCToolBarMenuButton::ClearCommands() {
    while (!m_listCommands.IsEmpty()) {
        delete m_listCommands.RemoveHead();
    }
}

void CMFCToolBarMenuButton::CopyFrom(const CMFCToolBarButton& src) {
    CMFCToolBarButton::CopyFrom(src);
    const auto* other = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, &src);
    if (!other || other == this) {
        return;
    }
    ClearCommands();
    for (POSITION position = other->m_listCommands.GetHeadPosition(); position;) {
        const auto* item = static_cast<const CMFCToolBarMenuButton*>(other->m_listCommands.GetNext(position));
        std::unique_ptr<CMFCToolBarMenuButton> copy(
            static_cast<CMFCToolBarMenuButton*>(item->GetRuntimeClass()->CreateObject()));
        if (copy) {
            copy->CopyFrom(*item);
            m_listCommands.AddTail(copy.release());
        }
    }
    m_bIsRadio = other->m_bIsRadio;
    m_bDrawDownArrow = other->m_bDrawDownArrow;
    m_pWndMessage = other->m_pWndMessage;
}

BOOL CMFCToolBarMenuButton::CompareWith(const CMFCToolBarButton& other) const {
    const auto* menuButton = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, &other);
    if (!menuButton || !CMFCToolBarButton::CompareWith(other) ||
        m_listCommands.GetCount() != menuButton->m_listCommands.GetCount()) {
        return FALSE;
    }
    POSITION mine = m_listCommands.GetHeadPosition();
    POSITION theirs = menuButton->m_listCommands.GetHeadPosition();
    while (mine) {
        const auto* left = static_cast<const CMFCToolBarMenuButton*>(m_listCommands.GetNext(mine));
        const auto* right = static_cast<const CMFCToolBarMenuButton*>(menuButton->m_listCommands.GetNext(theirs));
        if (!left->CompareWith(*right)) {
            return FALSE;
        }
    }
    return TRUE;
}

void CMFCToolBarMenuButton::Serialize(CArchive& ar) {
    CMFCToolBarButton::Serialize(ar);
    if (ar.IsLoading()) {
        int count = 0;
        ar >> m_bIsRadio >> m_bDrawDownArrow >> count;
        fx::ArchiveChecks::RequireElements(ar, static_cast<ULONGLONG>(count));
        std::vector<std::unique_ptr<CObject>> commands;
        for (int i = 0; i < count; ++i) {
            // The count may be a damaged one. NOLINTNEXTLINE(performance-inefficient-vector-operation)
            commands.emplace_back(fx::ArchiveChecks::ReadOwnedObject(ar, RUNTIME_CLASS(CMFCToolBarMenuButton)));
        }
        ClearCommands();
        for (auto& command : commands) {
            m_listCommands.AddTail(command.release());
        }
        return;
    }
    ar << m_bIsRadio << m_bDrawDownArrow << static_cast<int>(m_listCommands.GetCount());
    for (POSITION position = m_listCommands.GetHeadPosition(); position;) {
        ar.WriteObject(m_listCommands.GetNext(position));
    }
}

void CMFCToolBarMenuButton::CreateFromMenu(HMENU hMenu) {
    ClearCommands();
    const int count = hMenu ? ::GetMenuItemCount(hMenu) : 0;
    for (int i = 0; i < count; ++i) {
        toolbar::MenuItem item;
        if (!toolbar::ReadMenuItem(hMenu, i, item)) {
            continue;
        }
        auto button = std::make_unique<CMFCToolBarMenuButton>(item.id, item.submenu, -1, item.text);
        button->m_nStyle = item.style;
        button->m_bIsRadio = item.isRadio;
        button->TakeCommandImage();
        m_listCommands.AddTail(button.release());
    }
}

// The images that the command has in every menu.
void CMFCToolBarMenuButton::TakeCommandImage() {
    m_bText = TRUE;
    m_iImage = m_nID == 0 || m_nID == static_cast<UINT>(-1) ? -1 : GetCmdMgr()->GetCmdImage(m_nID, FALSE);
    m_iUserImage = m_iImage < 0 && m_nID != static_cast<UINT>(-1) ? GetCmdMgr()->GetCmdImage(m_nID, TRUE) : -1;
    m_bUserButton = m_iUserImage >= 0;
}

HMENU CMFCToolBarMenuButton::CreateMenu() const {
    if (m_listCommands.IsEmpty()) {
        return nullptr;
    }
    const HMENU menu = ::CreatePopupMenu();
    for (POSITION position = m_listCommands.GetHeadPosition(); position;) {
        const auto* item = static_cast<const CMFCToolBarMenuButton*>(m_listCommands.GetNext(position));
        toolbar::AppendMenuItem(menu,
                                {item->m_nID, item->m_strText, item->m_nStyle, item->m_bIsRadio, item->CreateMenu()});
    }
    return menu;
}

void CMFCToolBarMenuButton::ResetImageToDefault() {
    if (m_nID != 0 && m_nID != static_cast<UINT>(-1)) {
        CMFCToolBarButton::ResetImageToDefault();
    }
}

CMFCPopupMenuBar* CMFCToolBarMenuButton::GetMenuBar() const { return DYNAMIC_DOWNCAST(CMFCPopupMenuBar, m_pWndParent); }

BOOL CMFCToolBarMenuButton::IsSplit() const {
    return m_nID != 0 && m_nID != static_cast<UINT>(-1) && !m_listCommands.IsEmpty() && !GetMenuBar();
}

CMFCPopupMenu* CMFCToolBarMenuButton::CreatePopupMenu() { return new CMFCPopupMenu; }

BOOL CMFCToolBarMenuButton::OpenPopupMenu(CWnd* pWnd) {
    if (m_pPopupMenu || !m_pWndParent || !HasPopup()) {
        return FALSE;
    }
    CMFCPopupMenu* const menu = CreatePopupMenu();
    if (!menu) {
        return FALSE;
    }
    const bool isInMenu = GetMenuBar() != nullptr;
    const auto* toolBar = DYNAMIC_DOWNCAST(CMFCToolBar, m_pWndParent);
    const bool isBelow = !isInMenu && (!toolBar || toolBar->IsHorizontal());
    CPoint corner(isBelow ? m_rect.left : m_rect.right, isBelow ? m_rect.bottom : m_rect.top);
    m_pWndParent->ClientToScreen(&corner);
    if (isInMenu) {
        // The first item beside the one that opened it, with the borders over each other.
        const int border = menu->GetBorderSize();
        const bool isMirrored = (m_pWndParent->GetExStyle() & WS_EX_LAYOUTRTL) != 0;
        corner.Offset(isMirrored ? border : -border, -border);
    }
    m_pPopupMenu = menu;
    menu->SetParentButton(this);
    if (const auto* menuBar = DYNAMIC_DOWNCAST(CMFCMenuBar, m_pWndParent)) {
        menu->SetOpenedByKey(menuBar->IsKeyboardActive());
    }
    CWnd* const receiver = m_pWndMessage ? m_pWndMessage : isInMenu ? nullptr : pWnd;
    if (receiver) {
        menu->SetMessageWnd(receiver);
    }
    const fx::WindowGuard bar(m_pWndParent);
    const BOOL isOpen = menu->Create(m_pWndParent, corner.x, corner.y, CreateMenu(), IsLocked());
    // The frame that hears of it may take the button away, and the bar too.
    auto* holder = bar.IsAlive() ? DYNAMIC_DOWNCAST(CMFCToolBar, CWnd::FromHandlePermanent(bar.Handle())) : nullptr;
    if (bar.IsGone() || (holder && holder->ButtonToIndex(this) < 0)) {
        return FALSE;
    }
    // A pop-up that could not be shown is gone, and has cleared m_pPopupMenu if its window had come to life.
    if (!isOpen) {
        m_pPopupMenu = nullptr;
        return FALSE;
    }
    OnAfterCreatePopupMenu();
    if (m_pWndParent) {
        m_pWndParent->InvalidateRect(m_rect);
    }
    return TRUE;
}

void CMFCToolBarMenuButton::OnPopupClosed() {
    CMFCPopupMenu* const closed = std::exchange(m_pPopupMenu, nullptr);
    if (!m_pWndParent || !m_pWndParent->GetSafeHwnd()) {
        return;
    }
    m_pWndParent->InvalidateRect(m_rect);
    if (auto* bar = DYNAMIC_DOWNCAST(CMFCToolBar, m_pWndParent)) {
        bar->OnMenuClosed(this, closed && closed->IsEscClose());
    }
}

BOOL CMFCToolBarMenuButton::OnClick(CWnd* pWnd, BOOL) {
    if (!HasPopup()) {
        return FALSE;
    }
    if (m_pPopupMenu) {
        if (!GetMenuBar()) {
            m_pPopupMenu->CloseMenu();
        }
        return TRUE;
    }
    if (IsSplit()) {
        CPoint cursor;
        ::GetCursorPos(&cursor);
        pWnd->ScreenToClient(&cursor);
        m_bClickedOnMenu = GetArrowRect(m_rect, m_bHorz).PtInRect(cursor);
        if (!m_bClickedOnMenu) {
            return FALSE;
        }
    }
    return OpenPopupMenu();
}

void CMFCToolBarMenuButton::OnCancelMode() {
    if (m_pPopupMenu) {
        m_pPopupMenu->CloseMenu();
    }
}

void CMFCToolBarMenuButton::OnChangeParentWnd(CWnd* pWndParent) {
    if (!pWndParent) {
        OnCancelMode();
    }
    CMFCToolBarButton::OnChangeParentWnd(pWndParent);
    // In a menu bar every button looks alike, whoever made it.
    if (auto* menuBar = DYNAMIC_DOWNCAST(CMFCMenuBar, pWndParent)) {
        m_bDrawDownArrow = menuBar->GetForceDownArrows();
    }
}

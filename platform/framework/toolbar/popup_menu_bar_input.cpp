// Mouse and keys over a pop-up's items.
#include "afxpopupmenubar.h"

#include "afxpopupmenu.h"
#include "core/letters.h"
#include "fx/window_guard.h"
#include "popups/wheel_rows.h"
#include "toolbar/metrics.h"
#include "toolbar/popup_menu_rows.h"

#include <algorithm>

namespace {

constexpr UINT_PTR openTimer = 0xF111, closeTimer = 0xF112;

UINT HoverDelay() {
    DWORD delay = 0;
    return ::SystemParametersInfoW(SPI_GETMENUSHOWDELAY, 0, &delay, 0) ? std::clamp<UINT>(delay, 10, 2000) : 400;
}

bool IsSelectable(const CMFCToolBarButton* button) {
    return button && !(button->m_nStyle & (TBBS_SEPARATOR | TBBS_DISABLED)) && !button->IsHidden() &&
           button->IsVisible();
}

} // namespace

BEGIN_MESSAGE_MAP(CMFCPopupMenuBar, CMFCToolBar)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_RBUTTONUP()
ON_WM_TIMER()
ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

void CMFCPopupMenuBar::OnDestroy() {
    m_pDelayedPopupMenuButton = nullptr;
    m_pDelayedClosePopupMenuButton = nullptr;
    CMFCToolBar::OnDestroy();
}

int CMFCPopupMenuBar::OnMouseActivate(CWnd*, UINT, UINT) { return MA_NOACTIVATE; }

void CMFCPopupMenuBar::OnMouseMove(UINT, CPoint point) {
    CPoint screen = point;
    ClientToScreen(&screen);
    // The system sends a move when the menu appears below the mouse: that one chooses nothing.
    if (screen == m_ptLastMouse || (m_ptLastMouse == CPoint(-1, -1) && screen == m_ptOpened)) {
        m_ptLastMouse = screen;
        return;
    }
    m_ptLastMouse = screen;
    m_bAcceptsRelease = TRUE;
    if (!m_bTracked) {
        TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, m_hWnd, 0};
        m_bTracked = ::TrackMouseEvent(&track);
    }
    const int hit = HitTest(point);
    if (m_rows) {
        // Beside the rows the last one stays hot, as in every list. The host is told, which may end this.
        SetHighlighted(hit >= 0 ? hit : m_iHighlighted);
        return;
    }
    CMFCToolBarButton* button = GetButton(hit);
    // Over its own item again, an open pop-up stays.
    CMFCToolBarMenuButton* open = GetDroppedDownMenu();
    if (open && open == button) {
        RestoreDelayedSubMenu();
    }
    if (hit == m_iHighlighted) {
        return;
    }
    const fx::WindowGuard guard(this);
    SetHighlighted(IsSelectable(button) ? hit : -1);
    if (guard.IsGone() || GetButton(hit) != button) {
        return; // the host is told what is hot
    }
    if (open && open != button) {
        CloseDelayedSubMenu();
    }
    auto* menuButton = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, button);
    if (menuButton && IsSelectable(menuButton) && menuButton->HasPopup() && !menuButton->IsDroppedDown()) {
        StartPopupMenuTimer(menuButton);
    } else {
        KillTimer(openTimer);
        m_pDelayedPopupMenuButton = nullptr;
    }
}

void CMFCPopupMenuBar::OnMouseLeave() {
    m_bTracked = FALSE;
    m_wheel.Reset();
    if (m_rows) {
        return;
    }
    KillTimer(openTimer);
    m_pDelayedPopupMenuButton = nullptr;
    int open = -1;
    // The way into an open pop-up leads out of this one.
    SetHighlighted(GetDroppedDownMenu(&open) ? open : -1);
    RestoreDelayedSubMenu();
}

void CMFCPopupMenuBar::StartPopupMenuTimer(CMFCToolBarMenuButton* pMenuButton, int nDelayFactor) {
    m_pDelayedPopupMenuButton = pMenuButton;
    SetTimer(openTimer, HoverDelay() * static_cast<UINT>(std::max(1, nDelayFactor)), nullptr);
}

void CMFCPopupMenuBar::CloseDelayedSubMenu() {
    m_pDelayedClosePopupMenuButton = GetDroppedDownMenu();
    if (m_pDelayedClosePopupMenuButton) {
        SetTimer(closeTimer, HoverDelay(), nullptr);
    }
}

void CMFCPopupMenuBar::RestoreDelayedSubMenu() {
    m_pDelayedClosePopupMenuButton = nullptr;
    KillTimer(closeTimer);
}

void CMFCPopupMenuBar::OnTimer(UINT_PTR nIDEvent) {
    if (nIDEvent == closeTimer) {
        CMFCToolBarMenuButton* button = std::exchange(m_pDelayedClosePopupMenuButton, nullptr);
        KillTimer(closeTimer);
        if (button && ButtonToIndex(button) >= 0 && button->IsDroppedDown()) {
            button->OnCancelMode();
        }
    } else if (nIDEvent == openTimer) {
        CMFCToolBarMenuButton* button = std::exchange(m_pDelayedPopupMenuButton, nullptr);
        KillTimer(openTimer);
        const int index = button ? ButtonToIndex(button) : -1;
        if (index >= 0 && index == m_iHighlighted) {
            RestoreDelayedSubMenu();
            OpenSubMenu(index, FALSE);
        }
    } else if (nIDEvent == Rows::addedTimer) {
        LayOutAddedRows();
    } else {
        CMFCToolBar::OnTimer(nIDEvent);
    }
}

BOOL CMFCPopupMenuBar::OpenSubMenu(int iIndex, BOOL bSelectFirst) {
    auto* button = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, GetButton(iIndex));
    if (!IsSelectable(button) || !button->HasPopup()) {
        return FALSE;
    }
    KillTimer(openTimer);
    m_pDelayedPopupMenuButton = nullptr;
    // The host is told what is hot, and the frame what opens. Where the menu or the item is gone, there is nothing more
    // to do with it.
    const fx::WindowGuard guard(this);
    SetHighlighted(iIndex);
    if (guard.IsGone() || GetButton(iIndex) != button) {
        return TRUE;
    }
    const BOOL isOpen = button->IsDroppedDown() || button->OpenPopupMenu();
    if (guard.IsGone() || GetButton(iIndex) != button) {
        return TRUE;
    }
    if (!isOpen) {
        return FALSE;
    }
    if (bSelectFirst && button->GetPopupMenu()) {
        button->GetPopupMenu()->GetMenuBar()->SelectFirstItem();
    }
    return TRUE;
}

void CMFCPopupMenuBar::OnLButtonDown(UINT, CPoint point) {
    m_bAcceptsRelease = TRUE;
    const int hit = HitTest(point);
    if (m_rows) {
        SetHighlighted(hit >= 0 ? hit : m_iHighlighted);
        return;
    }
    if (!IsSelectable(GetButton(hit))) {
        return;
    }
    const fx::WindowGuard guard(this);
    SetHighlighted(hit);
    if (guard.IsAlive()) {
        OpenSubMenu(hit, FALSE);
    }
}

void CMFCPopupMenuBar::OnLButtonUp(UINT, CPoint point) {
    // The button that opened the menu is let go above it.
    if (!std::exchange(m_bAcceptsRelease, TRUE)) {
        return;
    }
    ChooseItem(HitTest(point));
}

void CMFCPopupMenuBar::OnLButtonDblClk(UINT nFlags, CPoint point) { OnLButtonDown(nFlags, point); }

// A menu's items are chosen by either button; a list's rows, which may have marks, by the left one.
void CMFCPopupMenuBar::OnRButtonUp(UINT nFlags, CPoint point) {
    if (!m_rows) {
        OnLButtonUp(nFlags, point);
    }
}

void CMFCPopupMenuBar::ChooseItem(int iIndex) {
    if (m_rows) {
        ChooseRow(iIndex);
        return;
    }
    CMFCToolBarButton* button = GetButton(iIndex);
    CMFCPopupMenu* popup = GetParentPopup();
    if (!button || !popup) {
        return;
    }
    if (!IsSelectable(button)) {
        if (popup->IsAlwaysClose()) {
            CMFCPopupMenu::CloseAll();
        }
        return;
    }
    if (OpenSubMenu(iIndex, FALSE)) {
        return;
    }
    m_nLastCommandIndex = iIndex;
    const UINT id = button->m_nID;
    const HWND window = m_hWnd;
    auto* menuButton = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, button);
    if ((menuButton && menuButton->OnClickMenuItem()) || !::IsWindow(window)) {
        return;
    }
    popup->OnChooseItem(id);
    if (!::IsWindow(window) || OnSendCommand(button)) {
        return;
    }
    if (UINT* result = popup->GetRootPopupMenu()->m_pTrackResult) {
        *result = id;
    } else {
        popup->PostCommand(id);
    }
    CMFCPopupMenu::CloseAll();
}

BOOL CMFCPopupMenuBar::OnSendCommand(const CMFCToolBarButton*) { return FALSE; }

void CMFCPopupMenuBar::OnChangeHot(int iHot) {
    CMFCPopupMenu* popup = GetParentPopup();
    if (!popup) {
        return;
    }
    const bool isList = m_rows != nullptr;
    popup->OnChangeHot(iHot);
    if (isList) {
        return; // and what the host was told may have ended this
    }
    const CMFCToolBarButton* button = GetButton(iHot);
    CWnd* target = GetCommandTarget();
    if (!button || !target || !CMFCPopupMenu::IsSendMenuSelectMsg()) {
        return;
    }
    const auto* menuButton = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, button);
    const bool opens = menuButton && menuButton->HasPopup();
    const UINT flags = MF_HILITE | (opens ? MF_POPUP : 0u) | ((button->m_nStyle & TBBS_DISABLED) ? MF_GRAYED : 0u) |
                       ((button->m_nStyle & TBBS_CHECKED) ? MF_CHECKED : 0u);
    target->SendMessage(WM_MENUSELECT, MAKEWPARAM(opens ? static_cast<UINT>(iHot) : button->m_nID, flags),
                        reinterpret_cast<LPARAM>(popup->GetHMenu()));
}

int CMFCPopupMenuBar::FindSelectable(int iFrom, int nStep) const {
    const int count = GetCount();
    int index = iFrom < 0 ? (nStep > 0 ? -1 : count) : iFrom;
    for (int tried = 0; tried < count; ++tried) {
        index = (index + nStep + count) % count;
        if (IsSelectable(GetButton(index))) {
            return index;
        }
    }
    return -1;
}

void CMFCPopupMenuBar::SelectFirstItem() {
    if (m_iHighlighted < 0 && !m_rows) {
        const int first = FindSelectable(-1, 1);
        MakeVisible(first);
        SetHighlighted(first);
    }
}

void CMFCPopupMenuBar::MakeVisible(int iIndex) {
    CMFCPopupMenu* popup = GetParentPopup();
    CRect rect;
    GetItemRect(iIndex, rect);
    if (rect.IsRectEmpty() || !popup || !popup->IsScrollable()) {
        return;
    }
    CRect client;
    GetClientRect(&client);
    if (m_rows) {
        popup->ScrollBy(GetRowGeometry().OffsetToShow(iIndex, client.Height()) - m_iOffset);
        return;
    }
    if (rect.top < client.top) {
        popup->ScrollBy(rect.top - client.top);
    } else if (rect.bottom > client.bottom) {
        popup->ScrollBy(rect.bottom - client.bottom);
    }
}

int CMFCPopupMenuBar::GetRowsPerNotch() const {
    constexpr UINT usual = 3;
    UINT lines = 0;
    if (!::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0)) {
        lines = usual;
    }
    CRect client;
    GetClientRect(&client);
    return toolbar::WheelRowsPerNotch(lines, client.Height() / std::max(1, GetRowHeight()));
}

BOOL CMFCPopupMenuBar::OnWheel(short zDelta) {
    CMFCPopupMenu* popup = GetParentPopup();
    if (!popup || !popup->IsScrollable()) {
        return FALSE;
    }
    if (m_rows) {
        return OnRowWheel(zDelta);
    }
    const int before = m_iOffset;
    popup->ScrollBy(-m_wheel.Add(zDelta, GetRowsPerNotch() * GetRowHeight()));
    return m_iOffset != before;
}

BOOL CMFCPopupMenuBar::OnKey(UINT nChar) {
    CMFCPopupMenu* popup = GetParentPopup();
    if (!popup) {
        return FALSE;
    }
    if (m_rows) {
        return OnRowKey(nChar);
    }
    const auto select = [this](int index) {
        if (index >= 0) {
            const fx::WindowGuard guard(this);
            CMFCToolBarMenuButton* open = GetDroppedDownMenu();
            if (open && ButtonToIndex(open) != index) {
                open->OnCancelMode();
            }
            if (guard.IsGone()) {
                return; // the frame heard that the pop-up has closed
            }
            MakeVisible(index);
            SetHighlighted(index);
        }
    };
    switch (nChar) {
    case VK_DOWN:
        select(FindSelectable(m_iHighlighted, 1));
        return TRUE;
    case VK_UP:
        select(FindSelectable(m_iHighlighted, -1));
        return TRUE;
    case VK_TAB:
        select(FindSelectable(m_iHighlighted, ::GetKeyState(VK_SHIFT) < 0 ? -1 : 1));
        return TRUE;
    case VK_HOME:
        select(FindSelectable(-1, 1));
        return TRUE;
    case VK_END:
        select(FindSelectable(-1, -1));
        return TRUE;
    case VK_RIGHT:
        if (m_iHighlighted < 0 || !OpenSubMenu(m_iHighlighted, TRUE)) {
            if (CMFCToolBar* bar = popup->GetRootPopupMenu()->GetParentToolBar()) {
                bar->NextMenu();
            }
        }
        return TRUE;
    case VK_LEFT:
        if (popup->GetParentPopupMenu()) {
            popup->CloseMenu();
        } else if (CMFCToolBar* bar = popup->GetParentToolBar()) {
            bar->PrevMenu();
        }
        return TRUE;
    case VK_ESCAPE:
        popup->m_bEscClose = TRUE;
        popup->CloseMenu(TRUE);
        return TRUE;
    case VK_RETURN:
        if (m_iHighlighted >= 0 && !OpenSubMenu(m_iHighlighted, TRUE)) {
            ChooseItem(m_iHighlighted);
        }
        return TRUE;
    default:
        return FALSE;
    }
}

// One item with the mnemonic is chosen; among several the next becomes hot. Without mnemonics the first letter counts.
BOOL CMFCPopupMenuBar::TranslateChar(UINT nChar) {
    if (m_rows) {
        return OnRowChar(nChar);
    }
    const wchar_t wanted = fx::UpperCase(static_cast<wchar_t>(nChar));
    int first = -1, next = -1, found = 0;
    for (int i = 0; i < GetCount(); ++i) {
        const CMFCToolBarButton* button = GetButton(i);
        if (!IsSelectable(button)) {
            continue;
        }
        wchar_t mnemonic = m_bDropDownListMode ? 0 : toolbar::MnemonicOf(button->m_strText);
        if (mnemonic == 0 && !button->m_strText.IsEmpty()) {
            mnemonic = fx::UpperCase(button->m_strText[0]);
        }
        if (mnemonic != wanted) {
            continue;
        }
        ++found;
        first = first < 0 ? i : first;
        next = next < 0 && i > m_iHighlighted ? i : next;
    }
    if (found == 0) {
        return FALSE;
    }
    const int index = next >= 0 ? next : first;
    MakeVisible(index);
    const fx::WindowGuard guard(this);
    SetHighlighted(index);
    if (guard.IsAlive() && found == 1 && !m_bDropDownListMode && !OpenSubMenu(index, TRUE)) {
        ChooseItem(index);
    }
    return TRUE;
}

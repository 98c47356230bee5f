// Mouse and keys over a pop-up's items.
#include "afxpopupmenubar.h"

#include "afxmenubar.h"
#include "afxpopupmenu.h"
#include "core/letters.h"
#include "fx/window_guard.h"
#include "popups/row_keys.h"
#include "popups/row_letters.h"
#include "popups/row_stack.h"
#include "popups/user_settings.h"
#include "toolbar/button_drag.h"
#include "toolbar/key_direction.h"
#include "toolbar/menu_source.h"
#include "toolbar/metrics.h"
#include "toolbar/popup_menu_rows.h"
#include "window/command_id.h"

#include <algorithm>

namespace {

constexpr UINT_PTR openTimer = 0xF111, closeTimer = 0xF112;

bool IsSelectable(const CMFCToolBarButton* button) {
    return button && !(button->m_nStyle & (TBBS_SEPARATOR | TBBS_DISABLED)) && !button->IsHidden() &&
           button->IsVisible();
}

/// One that cannot be chosen may be shown hot all the same.
bool MayBeHot(const CMFCToolBarButton* button) {
    return IsSelectable(button) ||
           (CMFCMenuBar::IsHighlightDisabledItems() && button && (button->m_nStyle & TBBS_SEPARATOR) == 0);
}

toolbar::RowLetters LettersOf(const CString& text) {
    const wchar_t mnemonic = toolbar::MnemonicOf(text);
    return {mnemonic, mnemonic == 0 && !text.IsEmpty() ? fx::UpperCase(text[0]) : L'\0'};
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
    SetHighlighted(MayBeHot(button) ? hit : -1);
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
    SetTimer(openTimer, toolbar::MenuDelay() * static_cast<UINT>(std::max(1, nDelayFactor)), nullptr);
}

void CMFCPopupMenuBar::CloseDelayedSubMenu() {
    m_pDelayedClosePopupMenuButton = GetDroppedDownMenu();
    if (m_pDelayedClosePopupMenuButton) {
        SetTimer(closeTimer, toolbar::MenuDelay(), nullptr);
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
    CPoint screen = point;
    ClientToScreen(&screen);
    if (IsCustomizeMode() && toolbar::ButtonDrag::BeginWithRow(*this, hit, screen)) {
        KillTimer(openTimer); // the drag opens menus itself
        m_pDelayedPopupMenuButton = nullptr;
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
    if (OpenSubMenu(iIndex, FALSE) || (IsCustomizeMode() && toolbar::SourceOf(*popup))) {
        return; // while it can be changed no item does what it is for
    }
    m_nLastCommandIndex = iIndex;
    const UINT id = button->m_nID;
    if (fx::IsSendableCommand(id)) {
        AddCommandUsage(id);
    }
    const fx::WindowGuard guard(this);
    auto* menuButton = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, button);
    if ((menuButton && menuButton->OnClickMenuItem()) || guard.IsGone()) {
        return;
    }
    popup->OnChooseItem(id);
    if (guard.IsGone() || OnSendCommand(button)) {
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

int CMFCPopupMenuBar::FindSelectable(toolbar::RowStep step) const {
    return toolbar::WalkRows({GetCount(), m_iHighlighted}, step,
                             [this](int index) { return IsSelectable(GetButton(index)); });
}

void CMFCPopupMenuBar::SelectFirstItem() {
    if (m_iHighlighted < 0 && !m_rows) {
        const int first = FindSelectable(toolbar::RowStep::First);
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
    popup->ScrollTo(GetOffsetToShow(iIndex));
}

toolbar::RowStack CMFCPopupMenuBar::GetStack() const {
    std::vector<int> heights;
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        heights.push_back(static_cast<const CMFCToolBarButton*>(m_Buttons.GetNext(position))->Rect().Height());
    }
    return toolbar::RowStack(std::move(heights));
}

int CMFCPopupMenuBar::GetOffsetToShow(int nRow) const {
    CRect client;
    GetClientRect(&client);
    return m_rows ? GetRowGeometry().OffsetToShow(nRow, client.Height())
                  : GetStack().OffsetToShow(nRow, m_iOffset, client.Height());
}

int CMFCPopupMenuBar::GetOffsetAfter(int nRows) const {
    CRect client;
    GetClientRect(&client);
    return m_rows ? GetRowGeometry().OffsetAfter(nRows, client.Height())
                  : GetStack().OffsetAfter(m_iOffset, nRows, client.Height());
}

BOOL CMFCPopupMenuBar::OnWheel(short zDelta) {
    CMFCPopupMenu* popup = GetParentPopup();
    if (!popup || !popup->IsScrollable()) {
        return FALSE;
    }
    CRect client;
    GetClientRect(&client);
    const int rowHeight = std::max(1, GetRowHeight());
    const int rowsPerNotch = toolbar::WheelRows(client.Height() / rowHeight);
    const int before = m_iOffset;
    // A list moves by whole rows, a menu follows small turns.
    popup->ScrollBy(m_rows ? -m_wheel.Add(zDelta, rowsPerNotch) * rowHeight
                           : -m_wheel.Add(zDelta, rowsPerNotch * rowHeight));
    return m_iOffset != before;
}

// What was opened from another item closes.
void CMFCPopupMenuBar::StepTo(int nIndex) {
    if (nIndex < 0) {
        return;
    }
    const fx::WindowGuard guard(this);
    CMFCToolBarMenuButton* open = GetDroppedDownMenu();
    if (open && ButtonToIndex(open) != nIndex) {
        open->OnCancelMode();
    }
    if (guard.IsGone()) {
        return; // the frame heard that the pop-up has closed
    }
    MakeVisible(nIndex);
    SetHighlighted(nIndex);
}

BOOL CMFCPopupMenuBar::OnKey(UINT nChar) {
    CMFCPopupMenu* popup = GetParentPopup();
    if (!popup) {
        return FALSE;
    }
    if (m_rows) {
        return OnRowKey(nChar);
    }
    if (const auto step = toolbar::RowStepOf(nChar); step && !toolbar::IsPage(*step)) {
        StepTo(FindSelectable(*step));
        return TRUE;
    }
    switch (toolbar::KeyFromTheLeft(*this, nChar)) {
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

// The only item with the mnemonic is chosen; among several the next becomes hot.
BOOL CMFCPopupMenuBar::TranslateChar(UINT nChar) {
    if (m_rows) {
        return OnRowChar(nChar);
    }
    std::vector<toolbar::RowLetters> rows;
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        const auto* button = static_cast<const CMFCToolBarButton*>(m_Buttons.GetNext(position));
        rows.push_back(IsSelectable(button) ? LettersOf(button->m_strText) : toolbar::RowLetters());
    }
    const toolbar::LetterGoal goal =
        toolbar::FindByLetter(rows, fx::UpperCase(static_cast<wchar_t>(nChar)), m_iHighlighted);
    if (goal.row < 0) {
        return FALSE;
    }
    MakeVisible(goal.row);
    const fx::WindowGuard guard(this);
    SetHighlighted(goal.row);
    if (guard.IsAlive() && goal.isOnlyOne && !OpenSubMenu(goal.row, TRUE)) {
        ChooseItem(goal.row);
    }
    return TRUE;
}

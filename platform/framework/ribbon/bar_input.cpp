// Pointer input, command updates and menus of a ribbon bar. A press belongs to its element until the button is
// released; the element that loses the capture is told nothing but that it is no longer pressed.
#include "afxribbonbar.h"

#include "afxcmn.h"
#include "afxRibbonEdit.h"
#include "fx/registered_messages.h"
#include "ribbon/bar_parts.h"

namespace {

const CPoint kNowhere(-1, -1);

bool TakesInput(const CMFCRibbonBaseElement& element) { return !element.IsDisabled() && !element.IsSeparator(); }

CPoint CursorPosition() {
    CPoint position = kNowhere;
    ::GetCursorPos(&position);
    return position;
}

} // namespace

void CMFCRibbonBar::OnLButtonDown(UINT nFlags, CPoint point) {
    CPane::OnLButtonDown(nFlags, point);
    PopTooltip();
    CMFCRibbonBaseElement* hit = HitTest(point, TRUE);
    if (hit != nullptr && TakesInput(*hit)) {
        Press(hit, point);
    }
}

void CMFCRibbonBar::OnLButtonDblClk(UINT nFlags, CPoint point) {
    CPane::OnLButtonDblClk(nFlags, point);
    CMFCRibbonBaseElement* hit = HitTest(point, TRUE);
    if (hit == nullptr || !TakesInput(*hit)) {
        return;
    }
    if (DYNAMIC_DOWNCAST(CMFCRibbonTab, hit) != nullptr) {
        ToggleMimimizeState();
        return;
    }
    Press(hit, point);
}

void CMFCRibbonBar::Press(CMFCRibbonBaseElement* element, CPoint point) {
    SetHot(element, point);
    m_parts->press.Start(*this, *element, [this, element, point] {
        const bool inCategory = m_parts->active != nullptr && element->GetParentPanel() != nullptr;
        if (inCategory) {
            m_parts->active->OnLButtonDown(point);
        } else {
            element->OnLButtonDown(point);
        }
    });
}

void CMFCRibbonBar::OnLButtonUp(UINT nFlags, CPoint point) {
    CPane::OnLButtonUp(nFlags, point);
    const CPoint before = CursorPosition();
    if (m_parts->press.Release(point) != RibbonPress::Released::Element) {
        return;
    }
    // The command may have taken its time, in a dialog for example: the pointer is where the cursor has gone since.
    const CPoint now = CursorPosition();
    CPoint place = point;
    if (now != before) {
        place = now;
        ScreenToClient(&place);
    }
    const bool isAway = now != before && ::WindowFromPoint(now) != m_hWnd;
    SetHot(isAway ? nullptr : HitTest(place, TRUE), isAway ? kNowhere : place);
    if (!isAway) {
        TrackLeave(); // a dialog has used up the former request
    }
}

void CMFCRibbonBar::TrackLeave() {
    if (!m_parts->tracksLeave) {
        TRACKMOUSEEVENT track{sizeof(track), TME_LEAVE, m_hWnd, 0};
        m_parts->tracksLeave = ::TrackMouseEvent(&track) != FALSE;
    }
}

void CMFCRibbonBar::OnMouseMove(UINT nFlags, CPoint point) {
    CPane::OnMouseMove(nFlags, point);
    TrackLeave();
    CMFCRibbonBaseElement* hit = HitTest(point, TRUE);
    if (CMFCRibbonBaseElement* pressed = m_parts->press.GetElement()) {
        SetHot(hit == pressed ? hit : nullptr, point);
        pressed->OnMouseMove(point);
        return;
    }
    SetHot(hit, point);
    if (m_parts->hot != nullptr) {
        m_parts->hot->OnMouseMove(point);
    }
}

void CMFCRibbonBar::OnMouseLeave() {
    CPane::OnMouseLeave();
    m_parts->tracksLeave = false;
    m_parts->wheel.Reset();
    if (!m_parts->press.IsActive() && !IsPointerInEdit(m_parts->hot)) {
        SetHot(nullptr, kNowhere);
    }
}

void CMFCRibbonBar::OnEditPointer(CMFCRibbonEdit& edit, BOOL bInside, CPoint point) {
    if (m_parts->press.IsActive()) {
        return;
    }
    if (bInside) {
        SetHot(&edit, point);
    } else if (m_parts->hot == &edit && !m_parts->tracksLeave) {
        SetHot(nullptr, kNowhere);
    }
}

// The panel and the element under the pointer change their look; nothing else is drawn again.
void CMFCRibbonBar::SetHot(CMFCRibbonBaseElement* element, CPoint point) {
    if (element != nullptr && element->IsSeparator()) {
        element = nullptr;
    }
    if (m_parts->ShownCategory() != nullptr) {
        m_parts->hotPanel = m_parts->active->HighlightPanel(m_parts->hotPanel, point);
    }
    if (m_parts->hot == element) {
        return;
    }
    if (m_parts->hot != nullptr) {
        m_parts->hot->SetHighlighted(FALSE);
    }
    m_parts->hot = element;
    if (element != nullptr) {
        element->SetHighlighted(TRUE);
    }
    PlaceTooltip();
}

void CMFCRibbonBar::CancelPress() { m_parts->press.Cancel(); }

void CMFCRibbonBar::OnCancelMode() {
    CPane::OnCancelMode();
    CancelPress();
    SetHot(nullptr, kNowhere);
}

void CMFCRibbonBar::OnCaptureChanged(CWnd* pWnd) {
    CPane::OnCaptureChanged(pWnd);
    if (pWnd != this && m_parts->press.IsActive()) {
        CancelPress();
        SetHot(nullptr, kNowhere);
    }
}

void CMFCRibbonBar::OnTimer(UINT_PTR nIDEvent) {
    if (nIDEvent == RibbonPress::kTimer) {
        m_parts->press.OnTimer(m_hWnd);
    } else {
        CPane::OnTimer(nIDEvent);
    }
}

// Over the bar the wheel walks through the shown categories, without going round at the ends.
BOOL CMFCRibbonBar::OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) {
    CPoint client = pt;
    ScreenToClient(&client);
    CRect area;
    GetClientRect(area);
    if (!area.PtInRect(client) || m_parts->active == nullptr || m_parts->press.IsActive() || m_parts->minimized ||
        GetDroppedDown() != nullptr) {
        return CPane::OnMouseWheel(nFlags, zDelta, pt);
    }
    const int notches = m_parts->wheel.Add(zDelta);
    const int step = notches > 0 ? -1 : 1;
    int index = GetCategoryIndex(m_parts->active);
    for (int notch = std::abs(notches); notch > 0; --notch) {
        int next = index + step;
        while (GetCategory(next) != nullptr && !GetCategory(next)->IsVisible()) {
            next += step;
        }
        if (GetCategory(next) == nullptr) {
            break;
        }
        index = next;
    }
    if (GetCategory(index) != m_parts->active) {
        SetActiveCategory(GetCategory(index));
        NotifyCategoryChanged();
    }
    return TRUE;
}

void CMFCRibbonBar::NotifyCategoryChanged() {
    if (CWnd* owner = GetOwner()) {
        owner->SendMessage(AFX_WM_ON_CHANGE_RIBBON_CATEGORY, 0, reinterpret_cast<LPARAM>(this));
    }
}

BOOL CMFCRibbonBar::PreTranslateMessage(MSG* pMsg) {
    const bool isMouse = pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST;
    const bool hasTool = pMsg->hwnd == m_hWnd || m_parts->editTool.IsOf(pMsg->hwnd);
    if (isMouse && m_pToolTip != nullptr && hasTool) {
        m_pToolTip->RelayEvent(pMsg);
    }
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE && m_parts->press.IsActive()) {
        CancelPress();
        return TRUE;
    }
    return CPane::PreTranslateMessage(pMsg);
}

void CMFCRibbonBar::OnSettingChange(UINT uFlags, LPCTSTR lpszSection) {
    CPane::OnSettingChange(uFlags, lpszSection);
    ForceRecalcLayout();
}

void CMFCRibbonBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    UpdateMaximizeMode();
    EnsureLayout();
    CMFCRibbonCmdUI update;
    update.m_pOther = this;
    if (m_parts->applicationButton != nullptr) {
        m_parts->applicationButton->OnUpdateCmdUI(&update, pTarget, bDisableIfNoHndler);
    }
    m_parts->quickAccess.OnUpdateCmdUI(&update, pTarget, bDisableIfNoHndler);
    for (const auto& element : m_parts->tabElements) {
        element->OnUpdateCmdUI(&update, pTarget, bDisableIfNoHndler);
    }
    if (m_parts->active != nullptr && !m_parts->minimized) {
        m_parts->active->OnUpdateCmdUI(&update, pTarget, bDisableIfNoHndler);
    }
}

// The element sends its command itself; a derived bar adds what else a click does.
void CMFCRibbonBar::OnClickButton(CMFCRibbonButton* /*pButton*/, CPoint /*point*/) {}

void CMFCRibbonBar::OnPaneContextMenu(CWnd* pParentFrame, CPoint point) {
    if (point == CPoint(-1, -1)) {
        if (CMFCRibbonBaseElement* focused = GetFocused()) {
            CRect rect = focused->GetRect();
            ClientToScreen(rect);
            OnShowRibbonContextMenu(this, rect.left, rect.bottom, focused);
            if (pParentFrame != nullptr) {
                pParentFrame->SetFocus();
            }
        }
        return;
    }
    DeactivateKeyboardFocus(FALSE);
    CPoint client = point;
    ScreenToClient(&client);
    CMFCRibbonBaseElement* hit = HitTest(client, TRUE, TRUE);
    if (hit == nullptr && m_rectCaption.PtInRect(client)) {
        return;
    }
    OnShowRibbonContextMenu(this, point.x, point.y, hit);
}

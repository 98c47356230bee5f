// Pointer input, command updates and menus of a ribbon bar. A press belongs to its element until the button is
// released; the element that loses the capture is told nothing but that it is no longer pressed.
#include "afxribbonbar.h"

#include "afxcmn.h"
#include "afxRibbonEdit.h"
#include "fx/registered_messages.h"
#include "ribbon/asking_for_states.h"

namespace {

const CPoint kNowhere(-1, -1);

CPoint CursorPosition() {
    CPoint position = kNowhere;
    ::GetCursorPos(&position);
    return position;
}

} // namespace

void CMFCRibbonBar::OnLButtonDown(UINT nFlags, CPoint point) {
    CPane::OnLButtonDown(nFlags, point);
    PopTooltip();
    PressAt(point);
}

void CMFCRibbonBar::OnLButtonDblClk(UINT nFlags, CPoint point) {
    CPane::OnLButtonDblClk(nFlags, point);
    const CMFCRibbonBaseElement* hit = HitTest(point, TRUE);
    if (DYNAMIC_DOWNCAST(CMFCRibbonTab, hit) != nullptr && RibbonPointer::TakesInput(*hit)) {
        ToggleMimimizeState();
    } else {
        PressAt(point);
    }
}

void CMFCRibbonBar::PressAt(CPoint point) {
    CMFCRibbonBaseElement* hit = HitTest(point, TRUE);
    if (hit != nullptr && RibbonPointer::TakesInput(*hit)) {
        LightPanelAt(point);
        m_parts->pointer.SetHot(hit);
        m_parts->pointer.Press(*hit, point);
    }
}

void CMFCRibbonBar::TellPressed(CMFCRibbonBaseElement& element, CPoint point) {
    if (m_parts->active != nullptr && element.GetParentPanel() != nullptr) {
        m_parts->active->OnLButtonDown(point);
    } else {
        element.OnLButtonDown(point);
    }
}

void CMFCRibbonBar::OnLButtonUp(UINT nFlags, CPoint point) {
    CPane::OnLButtonUp(nFlags, point);
    const CPoint before = CursorPosition();
    if (m_parts->pointer.Release(point) != RibbonPointer::Released::Element) {
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
    LightPanelAt(isAway ? kNowhere : place);
    m_parts->pointer.SetHot(isAway ? nullptr : HitTest(place, TRUE));
    if (!isAway) {
        m_parts->pointer.TrackLeave(); // a dialog has used up the former request
    }
}

void CMFCRibbonBar::OnMouseMove(UINT nFlags, CPoint point) {
    CPane::OnMouseMove(nFlags, point);
    m_parts->pointer.TrackLeave();
    CMFCRibbonBaseElement* hit = HitTest(point, TRUE);
    LightPanelAt(point);
    m_parts->pointer.Move(hit, point);
}

void CMFCRibbonBar::OnMouseLeave() {
    CPane::OnMouseLeave();
    m_parts->wheel.Reset();
    m_parts->pointer.Leave();
    if (!m_parts->pointer.IsPressed() && m_parts->pointer.GetHot() == nullptr) {
        LightPanelAt(kNowhere);
    }
}

void CMFCRibbonBar::OnEditPointer(CMFCRibbonEdit& edit, BOOL bInside, CPoint point) {
    RibbonPointer& pointer = m_parts->pointer;
    const bool leaves = !bInside && pointer.GetHot() == &edit && !pointer.TracksLeave();
    if (!pointer.IsPressed() && (bInside || leaves)) {
        LightPanelAt(bInside ? point : kNowhere);
    }
    pointer.OnEdit(edit, bInside != FALSE);
}

// The panel and the element under the pointer change their look; nothing else is drawn again.
void CMFCRibbonBar::LightPanelAt(CPoint point) {
    if (m_parts->ShownCategory() != nullptr) {
        m_parts->hotPanel = m_parts->active->HighlightPanel(m_parts->hotPanel, point);
    }
}

void CMFCRibbonBar::OnHotChanged(CMFCRibbonBaseElement* /*pHot*/) { PlaceTooltip(); }

void CMFCRibbonBar::CancelPress() { m_parts->pointer.Cancel(); }

void CMFCRibbonBar::OnCancelMode() {
    CPane::OnCancelMode();
    CancelPress();
    LightPanelAt(kNowhere);
    m_parts->pointer.SetHot(nullptr);
}

void CMFCRibbonBar::OnCaptureChanged(CWnd* pWnd) {
    CPane::OnCaptureChanged(pWnd);
    if (pWnd != this && m_parts->pointer.OnCaptureLost()) {
        LightPanelAt(kNowhere);
        m_parts->pointer.SetHot(nullptr);
    }
}

void CMFCRibbonBar::OnTimer(UINT_PTR nIDEvent) {
    if (nIDEvent == RibbonPointer::kTimer) {
        m_parts->pointer.OnTimer();
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
    if (!area.PtInRect(client) || m_parts->active == nullptr || m_parts->pointer.IsPressed() || m_parts->minimized ||
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
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE && m_parts->pointer.IsPressed()) {
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
    const AskingForStates asking(*this, *m_parts);
    if (IsMainRibbonBar()) {
        UpdateMaximizeMode();
    }
    EnsureLayout();
    CMFCRibbonCmdUI update;
    update.m_pOther = this;
    if (m_parts->applicationButton != nullptr) {
        m_parts->applicationButton->OnUpdateCmdUI(&update, pTarget, bDisableIfNoHndler);
    }
    m_parts->quickAccess.OnUpdateCmdUI(&update, pTarget, bDisableIfNoHndler);
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> own;
    GetBarElements(own);
    for (INT_PTR index = 0; index < own.GetSize(); ++index) {
        own[index]->OnUpdateCmdUI(&update, pTarget, bDisableIfNoHndler);
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

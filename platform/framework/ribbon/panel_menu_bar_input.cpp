// The pointer in a ribbon pop-up: what the controller that it shares with the bar does not know of, as strips that
// scroll, rows that open while the pointer rests, and presses that began elsewhere.
#include "afxribbonpanelmenu.h"

#include <algorithm>
#include <utility>

#include "afxribbonbar.h"
#include "afxribbonbutton.h"
#include "afxRibbonEdit.h"
#include "afxRibbonLabel.h"
#include "fx/registered_messages.h"
#include "fx/to_rect.h"
#include "fx/window_guard.h"
#include "popups/user_settings.h"
#include "ribbon/element_metrics.h"
#include "ribbon/panel_menu_parts.h"

BEGIN_MESSAGE_MAP(CMFCRibbonPanelMenuBar, CMFCPopupMenuBar)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_CONTEXTMENU()
ON_WM_CANCELMODE()
ON_WM_CAPTURECHANGED()
ON_WM_TIMER()
ON_WM_MOUSEWHEEL()
ON_WM_RBUTTONUP()
ON_WM_DESTROY()
ON_MESSAGE(WM_GETOBJECT, &CMFCRibbonPanelMenuBar::OnGetObject)
ON_MESSAGE(kRibbonAccessAction, &CMFCRibbonPanelMenuBar::OnAccessAction)
ON_NOTIFY_EX(TTN_NEEDTEXT, 0, OnNeedTipText)
ON_REGISTERED_MESSAGE(AFX_WM_UPDATETOOLTIPS, OnUpdateToolTips)
END_MESSAGE_MAP()

namespace {

constexpr UINT_PTR kHoverTimer = 1;
constexpr UINT_PTR kScrollTimer = 2;

} // namespace

// ---- pointer

CMFCRibbonBaseElement* CMFCRibbonPanelMenuBar::GetElementUnder(CPoint point) {
    EnsureLayout();
    return HitTest(point);
}

void CMFCRibbonPanelMenuBar::TellPressed(CMFCRibbonBaseElement& element, CPoint point) { element.OnLButtonDown(point); }

void CMFCRibbonPanelMenuBar::OnLButtonDown(UINT nFlags, CPoint point) {
    CPane::OnLButtonDown(nFlags, point);
    m_bAcceptsRelease = TRUE;
    PopTooltip();
    CMFCRibbonBaseElement* hit = GetElementUnder(point);
    if (ScrollFromStrip(point)) {
        return;
    }
    CMFCRibbonPanelMenu* menu = GetMenu();
    if (menu != nullptr && (hit == nullptr || !hit->IsDroppedDown())) {
        menu->DismissChildren();
    }
    if (hit != nullptr && RibbonPointer::TakesInput(*hit)) {
        m_parts->pointer.SetHot(hit);
        m_parts->pointer.Press(*hit, point);
    }
}

void CMFCRibbonPanelMenuBar::OnLButtonDblClk(UINT nFlags, CPoint point) { OnLButtonDown(nFlags, point); }

// The command may end the window, its owner, or the elements: nothing is looked at afterwards.
void CMFCRibbonPanelMenuBar::OnLButtonUp(UINT nFlags, CPoint point) {
    CPane::OnLButtonUp(nFlags, point);
    const std::shared_ptr<RibbonPanelMenuParts> parts = m_parts;
    if (parts->pointer.Release(point) == RibbonPointer::Released::Nothing && m_bAcceptsRelease) {
        ReleaseOver(point);
    }
}

// A press that began elsewhere, on what opened the pop-up for example, ends on a button: it is clicked.
void CMFCRibbonPanelMenuBar::ReleaseOver(CPoint point) {
    CMFCRibbonBaseElement* hit = GetElementUnder(point);
    CMFCRibbonButton* button = DYNAMIC_DOWNCAST(CMFCRibbonButton, hit);
    if (button == nullptr || !RibbonPointer::TakesInput(*button) ||
        DYNAMIC_DOWNCAST(CMFCRibbonLabel, button) != nullptr || DYNAMIC_DOWNCAST(CMFCRibbonEdit, button) != nullptr ||
        button->IsDroppedDown()) {
        return;
    }
    const fx::WindowGuard guard(this);
    button->OnLButtonDown(point);
    if (guard.IsAlive() && HitTest(point) == hit && !button->IsDroppedDown()) {
        button->OnLButtonUp(point);
    }
}

void CMFCRibbonPanelMenuBar::OnMouseMove(UINT nFlags, CPoint point) {
    CPane::OnMouseMove(nFlags, point);
    CPoint screen = point;
    ClientToScreen(&screen);
    // The button that opened the pop-up may be let go above it, where the pointer was.
    m_bAcceptsRelease = m_bAcceptsRelease || screen != m_ptOpened;
    // Windows repeats moves when windows appear; the keyboard's choice must not be lost by that.
    if (std::exchange(m_parts->lastMove, point) == point) {
        return;
    }
    RibbonPointer& pointer = m_parts->pointer;
    pointer.TrackLeave();
    CMFCRibbonBaseElement* hit = GetElementUnder(point);
    const bool opens = !pointer.IsPressed() && IsMenuMode() && hit != pointer.GetHot();
    if (!pointer.IsPressed()) {
        LightStripAt(point);
    }
    if (opens) {
        SetTimer(kHoverTimer, toolbar::MenuDelay(), nullptr);
    }
    pointer.Move(hit, point);
}

// The row whose menu is open stays lit while the pointer is in that menu.
void CMFCRibbonPanelMenuBar::OnMouseLeave() {
    CPane::OnMouseLeave();
    m_parts->wheel.Reset();
    m_parts->lastMove = CPoint(-1, -1);
    m_parts->strips.Unlight();
    KillTimer(kScrollTimer);
    KillTimer(kHoverTimer);
    CMFCRibbonBaseElement* dropped = nullptr;
    for (const RibbonLoan& loan : m_parts->loans) {
        dropped = dropped != nullptr ? dropped : loan.element->GetDroppedDown();
    }
    m_parts->pointer.Leave(dropped);
}

// As with the moves that the pop-up itself gets.
void CMFCRibbonPanelMenuBar::OnEditPointer(CMFCRibbonEdit& edit, BOOL bInside, CPoint point) {
    if (bInside && !m_parts->pointer.IsPressed() && std::exchange(m_parts->lastMove, point) == point) {
        return;
    }
    m_parts->pointer.OnEdit(edit, bInside != FALSE);
}

void CMFCRibbonPanelMenuBar::OnContextMenu(CWnd* /*pWnd*/, CPoint point) {
    CPoint client = point;
    ScreenToClient(&client);
    CMFCRibbonBaseElement* hit = HitTest(client);
    CMFCRibbonBar* bar = hit != nullptr ? hit->GetTopLevelRibbonBar() : nullptr;
    if (bar != nullptr) {
        bar->OnShowRibbonContextMenu(this, point.x, point.y, hit);
    }
}

BOOL CMFCRibbonPanelMenuBar::OnMouseWheel(UINT /*nFlags*/, short zDelta, CPoint /*pt*/) {
    OnWheel(zDelta);
    return TRUE;
}

BOOL CMFCRibbonPanelMenuBar::OnWheel(short zDelta) {
    CRect client;
    GetClientRect(&client);
    const int rowsPerNotch = toolbar::WheelRows(client.Height() / ribbon::CurrentMetrics().RowHeight());
    const int rows = m_parts->wheel.Add(zDelta, rowsPerNotch);
    return rows != 0 && Scroll(-rows);
}

// The right button chooses nothing; the system makes its context menu of it.
void CMFCRibbonPanelMenuBar::OnRButtonUp(UINT nFlags, CPoint point) { CPane::OnRButtonUp(nFlags, point); }

void CMFCRibbonPanelMenuBar::OnCancelMode() {
    CPane::OnCancelMode();
    CancelPress();
}

void CMFCRibbonPanelMenuBar::OnCaptureChanged(CWnd* pWnd) {
    CPane::OnCaptureChanged(pWnd);
    if (pWnd != this) {
        m_parts->pointer.OnCaptureLost();
    }
}

void CMFCRibbonPanelMenuBar::CancelPress() { m_parts->pointer.Cancel(); }

void CMFCRibbonPanelMenuBar::OnTimer(UINT_PTR nIDEvent) {
    switch (nIDEvent) {
    case kHoverTimer:
        KillTimer(kHoverTimer);
        OpenHot();
        break;
    case kScrollTimer:
        Scroll(m_parts->strips.Rows());
        break;
    case RibbonPointer::kTimer:
        m_parts->pointer.OnTimer();
        break;
    default:
        CPane::OnTimer(nIDEvent);
    }
}

// What rests under the pointer opens its menu, or closes that of another row.
void CMFCRibbonPanelMenuBar::OpenHot() {
    CMFCRibbonBaseElement* hot = m_parts->pointer.GetHot();
    CMFCRibbonPanelMenu* menu = GetMenu();
    if (menu == nullptr || hot == nullptr || m_parts->pointer.IsPressed() || hot->IsDroppedDown()) {
        return;
    }
    menu->DismissChildren();
    PopTooltip();
    if (hot->HasMenu() && RibbonPointer::TakesInput(*hot)) {
        hot->OnShowPopupMenu();
    }
}

void CMFCRibbonPanelMenuBar::OnHotChanged(CMFCRibbonBaseElement* pHot) {
    if (pHot != nullptr) {
        pHot->NotifyAccessibility(EVENT_OBJECT_FOCUS);
    }
    PlaceTooltip();
    for (const RibbonLoan& loan : m_parts->loans) {
        loan.element->OnChangeMenuHighlight(this, pHot);
    }
}

// ---- strips that scroll

BOOL CMFCRibbonPanelMenuBar::ScrollFromStrip(CPoint point) {
    const int rows = m_parts->strips.RowsAt(fx::FromPoint(point));
    if (rows != 0) {
        Scroll(rows);
    }
    return rows != 0;
}

void CMFCRibbonPanelMenuBar::LightStripAt(CPoint point) {
    if (!m_parts->strips.Light(fx::FromPoint(point))) {
        return;
    }
    Invalidate(FALSE);
    if (m_parts->strips.Rows() != 0) {
        SetTimer(kScrollTimer, toolbar::ScrollStrips::kInterval, nullptr);
    } else {
        KillTimer(kScrollTimer);
    }
}

BOOL CMFCRibbonPanelMenuBar::Scroll(int nRows) {
    if (m_parts->list.scrollDown.IsEmpty()) {
        return FALSE;
    }
    const bool can = nRows < 0 ? m_parts->list.canScrollUp : m_parts->list.canScrollDown;
    if (!can) {
        return FALSE;
    }
    if (CMFCRibbonPanelMenu* menu = GetMenu()) {
        menu->DismissChildren();
    }
    m_parts->pointer.SetHot(nullptr);
    m_parts->list.firstRow = std::max(0, m_parts->list.firstRow + nRows);
    CalcContentSize(m_parts->room);
    Invalidate(FALSE);
    return TRUE;
}

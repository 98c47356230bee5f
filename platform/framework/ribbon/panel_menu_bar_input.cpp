// Pointer and keyboard of a ribbon pop-up. A press belongs to its element until the button is released.
#include "afxribbonpanelmenu.h"

#include <algorithm>
#include <utility>

#include "afxribbonbar.h"
#include "afxribbonbutton.h"
#include "afxRibbonEdit.h"
#include "afxRibbonLabel.h"
#include "afxRibbonMainPanel.h"
#include "fx/registered_messages.h"
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
constexpr UINT kScrollDelay = 100;

bool TakesInput(const CMFCRibbonBaseElement& element) { return !element.IsDisabled() && !element.IsSeparator(); }

UINT HoverDelay() {
    DWORD delay = 400;
    ::SystemParametersInfo(SPI_GETMENUSHOWDELAY, 0, &delay, 0);
    return std::max<UINT>(delay, 1);
}

bool IsHeading(CMFCRibbonBaseElement& element) { return DYNAMIC_DOWNCAST(CMFCRibbonLabel, &element) != nullptr; }

wchar_t Upper(wchar_t letter) {
    return static_cast<wchar_t>(reinterpret_cast<UINT_PTR>(
        ::CharUpperW(reinterpret_cast<LPWSTR>(static_cast<UINT_PTR>(static_cast<unsigned short>(letter))))));
}

} // namespace

// ---- pointer

void CMFCRibbonPanelMenuBar::OnLButtonDown(UINT nFlags, CPoint point) {
    CPane::OnLButtonDown(nFlags, point);
    m_bAcceptsRelease = TRUE;
    PopTooltip();
    EnsureLayout();
    const ribbon::Point at{static_cast<int>(point.x), static_cast<int>(point.y)};
    if (m_parts->list.scrollUp.Contains(at) || m_parts->list.scrollDown.Contains(at)) {
        Scroll(m_parts->list.scrollUp.Contains(at) ? -1 : 1);
        return;
    }
    CMFCRibbonBaseElement* hit = HitTest(point);
    CMFCRibbonPanelMenu* menu = GetMenu();
    if (menu != nullptr && (hit == nullptr || !hit->IsDroppedDown())) {
        menu->DismissChildren();
    }
    if (hit == nullptr || !TakesInput(*hit)) {
        return;
    }
    SetHot(hit);
    m_parts->press.Start(*this, *hit, [hit, point] { hit->OnLButtonDown(point); });
}

void CMFCRibbonPanelMenuBar::OnLButtonDblClk(UINT nFlags, CPoint point) { OnLButtonDown(nFlags, point); }

// The command may end the window, its owner, or the elements: nothing is looked at afterwards.
void CMFCRibbonPanelMenuBar::OnLButtonUp(UINT nFlags, CPoint point) {
    CPane::OnLButtonUp(nFlags, point);
    const std::shared_ptr<RibbonPanelMenuParts> parts = m_parts;
    if (parts->press.Release(point) == RibbonPress::Released::Nothing && m_bAcceptsRelease) {
        ReleaseOver(point);
    }
}

// A press that began elsewhere, on what opened the pop-up for example, ends on a button: it is clicked.
void CMFCRibbonPanelMenuBar::ReleaseOver(CPoint point) {
    EnsureLayout();
    CMFCRibbonBaseElement* hit = HitTest(point);
    CMFCRibbonButton* button = DYNAMIC_DOWNCAST(CMFCRibbonButton, hit);
    if (button == nullptr || !TakesInput(*button) || IsHeading(*button) ||
        DYNAMIC_DOWNCAST(CMFCRibbonEdit, button) != nullptr || button->IsDroppedDown()) {
        return;
    }
    const HWND window = m_hWnd;
    button->OnLButtonDown(point);
    if (::IsWindow(window) && HitTest(point) == hit && !button->IsDroppedDown()) {
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
    if (!m_parts->tracksLeave) {
        TRACKMOUSEEVENT track{sizeof(track), TME_LEAVE, m_hWnd, 0};
        m_parts->tracksLeave = ::TrackMouseEvent(&track) != FALSE;
    }
    EnsureLayout();
    CMFCRibbonBaseElement* hit = HitTest(point);
    if (CMFCRibbonBaseElement* pressed = m_parts->press.GetElement()) {
        SetHot(hit == pressed ? hit : nullptr);
        pressed->OnMouseMove(point);
        return;
    }
    const ribbon::Point at{static_cast<int>(point.x), static_cast<int>(point.y)};
    const int scroll = m_parts->list.scrollUp.Contains(at) ? -1 : m_parts->list.scrollDown.Contains(at) ? 1 : 0;
    if (std::exchange(m_parts->scrollHot, scroll) != scroll) {
        Invalidate(FALSE);
        if (scroll != 0) {
            SetTimer(kScrollTimer, kScrollDelay, nullptr);
        } else {
            KillTimer(kScrollTimer);
        }
    }
    const bool changes = hit != m_parts->hot;
    SetHot(hit);
    if (m_parts->hot != nullptr) {
        m_parts->hot->OnMouseMove(point);
    }
    if (changes && IsMenuMode()) {
        SetTimer(kHoverTimer, HoverDelay(), nullptr);
    }
}

// The row whose menu is open stays lit while the pointer is in that menu.
void CMFCRibbonPanelMenuBar::OnMouseLeave() {
    CPane::OnMouseLeave();
    m_parts->tracksLeave = false;
    m_parts->wheel.Reset();
    m_parts->lastMove = CPoint(-1, -1);
    m_parts->scrollHot = 0;
    KillTimer(kScrollTimer);
    KillTimer(kHoverTimer);
    if (m_parts->press.IsActive() || IsPointerInEdit(m_parts->hot)) {
        return;
    }
    CMFCRibbonBaseElement* dropped = nullptr;
    for (const RibbonLoan& loan : m_parts->loans) {
        dropped = dropped != nullptr ? dropped : loan.element->GetDroppedDown();
    }
    SetHot(dropped);
}

void CMFCRibbonPanelMenuBar::OnEditPointer(CMFCRibbonEdit& edit, BOOL bInside, CPoint point) {
    if (m_parts->press.IsActive()) {
        return;
    }
    if (bInside) {
        // As with the moves that the pop-up itself gets.
        if (std::exchange(m_parts->lastMove, point) != point) {
            SetHot(&edit);
        }
    } else if (m_parts->hot == &edit && !m_parts->tracksLeave) {
        SetHot(nullptr);
    }
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
    const int rows = m_parts->wheel.Add(zDelta);
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
    if (pWnd != this && m_parts->press.IsActive()) {
        CancelPress();
    }
}

void CMFCRibbonPanelMenuBar::CancelPress() { m_parts->press.Cancel(); }

void CMFCRibbonPanelMenuBar::OnTimer(UINT_PTR nIDEvent) {
    switch (nIDEvent) {
    case kHoverTimer:
        KillTimer(kHoverTimer);
        OpenHot();
        break;
    case kScrollTimer:
        if (m_parts->scrollHot == 0 || !Scroll(m_parts->scrollHot)) {
            KillTimer(kScrollTimer);
        }
        break;
    case RibbonPress::kTimer:
        m_parts->press.OnTimer(m_hWnd);
        break;
    default:
        CPane::OnTimer(nIDEvent);
    }
}

// What rests under the pointer opens its menu, or closes that of another row.
void CMFCRibbonPanelMenuBar::OpenHot() {
    CMFCRibbonBaseElement* hot = m_parts->hot;
    CMFCRibbonPanelMenu* menu = GetMenu();
    if (menu == nullptr || hot == nullptr || m_parts->press.IsActive() || hot->IsDroppedDown()) {
        return;
    }
    menu->DismissChildren();
    PopTooltip();
    if (hot->HasMenu() && TakesInput(*hot)) {
        hot->OnShowPopupMenu();
    }
}

void CMFCRibbonPanelMenuBar::SetHot(CMFCRibbonBaseElement* pElement) {
    if (pElement != nullptr && pElement->IsSeparator()) {
        pElement = nullptr;
    }
    if (m_parts->hot == pElement) {
        return;
    }
    if (m_parts->hot != nullptr) {
        m_parts->hot->SetHighlighted(FALSE);
    }
    m_parts->hot = pElement;
    if (pElement != nullptr) {
        pElement->SetHighlighted(TRUE);
        pElement->NotifyAccessibility(EVENT_OBJECT_FOCUS);
    }
    PlaceTooltip();
    for (const RibbonLoan& loan : m_parts->loans) {
        loan.element->OnChangeMenuHighlight(this, pElement);
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
    SetHot(nullptr);
    m_parts->list.firstRow = std::max(0, m_parts->list.firstRow + nRows);
    CalcContentSize(m_parts->room);
    Invalidate(FALSE);
    return TRUE;
}

// ---- keyboard

void CMFCRibbonPanelMenuBar::Highlight(CMFCRibbonBaseElement* pElement) {
    ShowRowOf(pElement);
    SetHot(pElement);
}

void CMFCRibbonPanelMenuBar::HighlightFirst() {
    ElementArray stops;
    CollectStops(stops);
    if (!stops.IsEmpty()) {
        Highlight(stops[0]);
    }
}

// What the keyboard stops at, in the order of Tab. Rows that are scrolled out of view count.
void CMFCRibbonPanelMenuBar::CollectStops(ElementArray& stops) const {
    ElementArray all;
    if (m_parts->category != nullptr) {
        m_parts->category->GetVisibleElements(all);
    } else {
        for (CMFCRibbonBaseElement* element : m_parts->shown) {
            element->GetElements(all);
        }
    }
    for (INT_PTR index = 0; index < all.GetSize(); ++index) {
        CMFCRibbonBaseElement& element = *all[index];
        if (element.IsVisible() && element.IsTabStop() && !element.IsSeparator() && !IsHeading(element)) {
            stops.Add(&element);
        }
    }
}

BOOL CMFCRibbonPanelMenuBar::OnKey(UINT nChar) {
    CMFCRibbonBaseElement* hot = m_parts->hot;
    CMFCRibbonPanelMenu* menu = GetMenu();
    if (menu == nullptr) {
        return FALSE;
    }
    const HWND window = m_hWnd;
    if (OfferKey(nChar) || !::IsWindow(window)) {
        return TRUE;
    }
    switch (nChar) {
    case VK_ESCAPE:
        menu->GoBack();
        return TRUE;
    case VK_RETURN:
    case VK_SPACE:
        if (hot != nullptr) {
            Activate(hot, Choice::Command);
        }
        return TRUE;
    case VK_F4:
        return DropDown();
    case VK_RIGHT:
        if (hot != nullptr && IsMenuMode() && hot->HasMenu() && TakesInput(*hot)) {
            Activate(hot, Choice::Menu);
            return TRUE;
        }
        break;
    case VK_LEFT:
        if (IsMenuMode() && menu->GetParentMenu() != nullptr &&
            (hot == nullptr || DYNAMIC_DOWNCAST(CMFCRibbonButton, hot) != nullptr)) {
            menu->GoBack();
            return TRUE;
        }
        break;
    default:
        break;
    }
    return MoveHot(nChar);
}

// In a list one goes up and down, whatever a row could do with the key.
BOOL CMFCRibbonPanelMenuBar::OfferKey(UINT nChar) {
    if (IsMenuMode() && (nChar == VK_UP || nChar == VK_DOWN)) {
        return FALSE;
    }
    if (m_parts->category != nullptr) {
        return m_parts->category->OnKey(nChar);
    }
    return GetPanel() != nullptr && GetPanel()->OnKey(nChar);
}

// A split button's row sends its command; its menu opens by the arrow key and the pointer.
void CMFCRibbonPanelMenuBar::Activate(CMFCRibbonBaseElement* pElement, Choice choice) {
    if (!TakesInput(*pElement)) {
        return;
    }
    CMFCRibbonButton* button = DYNAMIC_DOWNCAST(CMFCRibbonButton, pElement);
    const bool opens =
        button != nullptr && button->HasMenu() && (!button->IsDefaultCommand() || choice == Choice::Menu);
    if (!opens) {
        pElement->OnKey(FALSE);
        return;
    }
    if (!pElement->IsDroppedDown()) {
        pElement->OnShowPopupMenu();
    }
    CMFCRibbonPanelMenu* opened = CMFCRibbonPanelMenu::GetDeepest();
    if (opened != nullptr && opened->GetOpener() == pElement) {
        opened->GetRibbonMenuBar().HighlightFirst();
    }
}

BOOL CMFCRibbonPanelMenuBar::CanDropDown() const {
    CMFCRibbonBaseElement* hot = m_parts->hot;
    return hot != nullptr && hot->HasDropDown() && TakesInput(*hot) && !(IsMenuMode() && hot->HasMenu());
}

BOOL CMFCRibbonPanelMenuBar::DropDown() {
    if (!CanDropDown()) {
        return FALSE;
    }
    CMFCRibbonBaseElement* hot = m_parts->hot;
    if (hot->HasMenu()) {
        Activate(hot, Choice::Menu);
    } else {
        hot->OnKey(TRUE);
    }
    return TRUE;
}

BOOL CMFCRibbonPanelMenuBar::MoveHot(UINT nChar) {
    ElementArray stops;
    CollectStops(stops);
    if (stops.IsEmpty()) {
        return FALSE;
    }
    switch (nChar) {
    case VK_HOME:
        Highlight(stops[0]);
        return TRUE;
    case VK_END:
        Highlight(stops[stops.GetUpperBound()]);
        return TRUE;
    case VK_TAB:
        return Step(::GetKeyState(VK_SHIFT) < 0 ? -1 : 1);
    case VK_UP:
    case VK_DOWN:
        // Arrows that look for the nearest place would not find rows that are scrolled out of view.
        if (m_parts->look == RibbonPopupLook::Menu || !m_parts->list.scrollDown.IsEmpty()) {
            return Step(nChar == VK_UP ? -1 : 1);
        }
        return StepTowards(nChar);
    case VK_LEFT:
    case VK_RIGHT:
        return m_parts->look == RibbonPopupLook::Menu ? TRUE : StepTowards(nChar);
    default:
        return FALSE;
    }
}

BOOL CMFCRibbonPanelMenuBar::Step(int direction) {
    ElementArray stops;
    CollectStops(stops);
    const INT_PTR count = stops.GetSize();
    if (count == 0) {
        return FALSE;
    }
    INT_PTR at = direction > 0 ? -1 : count;
    for (INT_PTR index = 0; index < count; ++index) {
        if (stops[index] == m_parts->hot) {
            at = index;
        }
    }
    Highlight(stops[(at + direction + count) % count]);
    return TRUE;
}

// The nearest stop on that side; sideways distance counts double.
BOOL CMFCRibbonPanelMenuBar::StepTowards(UINT nChar) {
    if (m_parts->hot == nullptr) {
        HighlightFirst();
        return TRUE;
    }
    ElementArray stops;
    CollectStops(stops);
    const CRect from = m_parts->hot->GetRect();
    CMFCRibbonBaseElement* best = nullptr;
    int bestDistance = 0;
    for (INT_PTR index = 0; index < stops.GetSize(); ++index) {
        const CRect to = stops[index]->GetRect();
        if (stops[index] == m_parts->hot || to.IsRectEmpty()) {
            continue;
        }
        const bool isVertical = nChar == VK_UP || nChar == VK_DOWN;
        const int along = nChar == VK_DOWN    ? to.top - from.bottom
                          : nChar == VK_UP    ? from.top - to.bottom
                          : nChar == VK_RIGHT ? to.left - from.right
                                              : from.left - to.right;
        const int across = isVertical ? std::abs(to.CenterPoint().x - from.CenterPoint().x)
                                      : std::abs(to.CenterPoint().y - from.CenterPoint().y);
        const int distance = along + 2 * across;
        if (along >= -1 && (best == nullptr || distance < bestDistance)) {
            best = stops[index];
            bestDistance = distance;
        }
    }
    if (best != nullptr) {
        Highlight(best);
    }
    return TRUE;
}

void CMFCRibbonPanelMenuBar::ShowRowOf(CMFCRibbonBaseElement* pElement) {
    if (pElement == nullptr || m_parts->list.scrollDown.IsEmpty()) {
        return;
    }
    const auto row =
        std::find_if(m_parts->shown.begin(), m_parts->shown.end(),
                     [pElement](CMFCRibbonBaseElement* shown) { return shown->Find(pElement) != nullptr; });
    if (row == m_parts->shown.end()) {
        return;
    }
    int first = m_parts->list.firstRow;
    if (m_parts->mainPanel != nullptr) {
        first = m_parts->mainPanel->FirstRowThatShows(*row, first);
    } else {
        first = ribbon::FirstRowThatShows(m_parts->rows, static_cast<int>(row - m_parts->shown.begin()),
                                          static_cast<int>(m_parts->room.cy), first, ribbon::CurrentMetrics());
    }
    if (first != m_parts->list.firstRow) {
        m_parts->list.firstRow = first;
        CalcContentSize(m_parts->room);
        Invalidate(FALSE);
    }
}

BOOL CMFCRibbonPanelMenuBar::TranslateChar(UINT nChar) { return OnLetter(Upper(static_cast<wchar_t>(nChar))); }

// A key tip that fits acts at once; a first letter that several texts share walks through them.
BOOL CMFCRibbonPanelMenuBar::OnLetter(UINT nUpperChar) {
    ElementArray stops;
    CollectStops(stops);
    const auto letter = static_cast<wchar_t>(nUpperChar);
    std::vector<CMFCRibbonBaseElement*> byText;
    for (INT_PTR index = 0; index < stops.GetSize(); ++index) {
        CMFCRibbonBaseElement& element = *stops[index];
        if (TakesInput(element) && element.OnMenuKey(nUpperChar)) {
            return TRUE;
        }
        const CString keys = *element.GetMenuKeys() != 0 ? element.GetMenuKeys() : element.GetKeys();
        if (keys.GetLength() == 1 && Upper(keys[0]) == letter) {
            Highlight(&element);
            Activate(&element, Choice::Command);
            return TRUE;
        }
        const CString text = element.GetShownText();
        if (keys.IsEmpty() && !text.IsEmpty() && Upper(text[0]) == letter) {
            byText.push_back(&element);
        }
    }
    if (byText.empty()) {
        return FALSE;
    }
    const auto at = std::find(byText.begin(), byText.end(), m_parts->hot);
    CMFCRibbonBaseElement* next = at == byText.end() || at + 1 == byText.end() ? byText.front() : *(at + 1);
    Highlight(next);
    if (byText.size() == 1) {
        Activate(next, Choice::Command);
    }
    return TRUE;
}

// The windows of ribbon pop-ups: opening, place, keys, and the end.
#include "afxribbonpanelmenu.h"

#include <vector>

#include "afxribbonbar.h"
#include "afxvisualmanager.h"
#include "fx/window_guard.h"
#include "popups/menu_watch.h"
#include "popups/popup_place.h"
#include "ribbon/element_metrics.h"
#include "ribbon/menu_geometry.h"

IMPLEMENT_DYNCREATE(CMFCRibbonPanelMenu, CMFCPopupMenu)

BEGIN_MESSAGE_MAP(CMFCRibbonPanelMenu, CMFCPopupMenu)
ON_WM_CLOSE()
ON_WM_DESTROY()
ON_WM_ACTIVATE()
END_MESSAGE_MAP()

namespace {

/// A window of an element's inside a pop-up, like an edit.
bool IsElementWindow(HWND window) {
    for (CMFCRibbonPanelMenu* menu = CMFCRibbonPanelMenu::GetDeepest(); menu != nullptr; menu = menu->GetParentMenu()) {
        if (::IsChild(menu->GetRibbonMenuBar().GetSafeHwnd(), window)) {
            return true;
        }
    }
    return false;
}

CMFCRibbonPanelMenu* NearestRibbonMenu(CMFCPopupMenu* menu) {
    while (menu != nullptr && DYNAMIC_DOWNCAST(CMFCRibbonPanelMenu, menu) == nullptr) {
        menu = menu->GetParentPopupMenu();
    }
    return static_cast<CMFCRibbonPanelMenu*>(menu);
}

/// Of a pop-up's window around the bar, for a room on the screen.
CSize SizeIn(CMFCRibbonPanelMenuBar& bar, int border, CSize room) {
    const CSize content = bar.CalcContentSize(CSize(room.cx - 2 * border, room.cy - 2 * border));
    return CSize(content.cx + 2 * border, content.cy + 2 * border);
}

CPoint WantedCorner(const CRect& area, CMFCRibbonPanelMenu::Side side) {
    switch (side) {
    case CMFCRibbonPanelMenu::Side::BelowAtRight:
        return area.BottomRight();
    case CMFCRibbonPanelMenu::Side::Beside:
        return CPoint(area.right, area.top);
    default:
        return CPoint(area.left, area.bottom);
    }
}

} // namespace

CMFCRibbonPanelMenu::CMFCRibbonPanelMenu() = default;

CMFCRibbonPanelMenu::CMFCRibbonPanelMenu(CMFCRibbonPanel* pPanel) : m_wndRibbonBar(pPanel) {}

CMFCRibbonPanelMenu::CMFCRibbonPanelMenu(CMFCRibbonCategory* pCategory, CSize size) : m_wndRibbonBar(pCategory, size) {}

CMFCRibbonPanelMenu::CMFCRibbonPanelMenu(const ElementArray& arButtons, BOOL bIsFloatyMode)
    : m_wndRibbonBar(arButtons, bIsFloatyMode) {}

CMFCRibbonPanelMenu::~CMFCRibbonPanelMenu() = default;

// ---- opening

BOOL CMFCRibbonPanelMenu::OpenFor(CMFCRibbonBaseElement* pElement, Side side) {
    return OpenAt(pElement->GetParentWnd(), pElement->GetRect(), side, pElement);
}

BOOL CMFCRibbonPanelMenu::OpenAt(CWnd* pParent, const CRect& area, Side side, CMFCRibbonBaseElement* pElement) {
    if (pParent == nullptr || pParent->GetSafeHwnd() == nullptr) {
        delete this;
        return FALSE;
    }
    m_area = area;
    pParent->ClientToScreen(m_area);
    m_side = side;
    const CMFCRibbonPanelMenuBar* parentBar = DYNAMIC_DOWNCAST(CMFCRibbonPanelMenuBar, pParent);
    const CMFCRibbonPanelMenu* parentMenu = parentBar != nullptr ? parentBar->GetMenu() : nullptr;
    m_bar = pElement != nullptr     ? pElement->GetTopLevelRibbonBar()
            : parentMenu != nullptr ? parentMenu->m_bar
                                    : static_cast<CMFCRibbonBar*>(dynamic_cast<RibbonBarHost*>(pParent));
    SetParentRibbonElement(pElement);
    if (!Create(pParent, m_area.left, m_area.bottom, nullptr)) {
        return FALSE; // it has deleted itself, or will
    }
    EnterKeyboard();
    return TRUE;
}

BOOL CMFCRibbonPanelMenu::InitMenuBar() {
    if (!m_wndRibbonBar.CreateBar(this)) {
        return FALSE;
    }
    if (const CMFCRibbonBaseElement* opener = GetOpener()) {
        m_wndRibbonBar.SetOpener(*opener);
    }
    m_wndRibbonBar.Lend();
    return TRUE;
}

void CMFCRibbonPanelMenu::OnOpened() {
    // What belongs to a dialog hands the question on to the dialog, which disables nothing.
    CFrameWnd* frame = GetCommandFrame();
    m_wndRibbonBar.UpdateElements(frame != nullptr ? frame : this, frame != nullptr && frame->m_bAutoMenuEnable);
}

// Opened by the keyboard it takes the next letters; without key tips it shows where the keyboard is.
void CMFCRibbonPanelMenu::EnterKeyboard() {
    if (m_bar == nullptr || !m_bar->GetElementKeys().IsActive()) {
        return;
    }
    CObject* object = GetOpener();
    if (m_wndRibbonBar.GetPanel() != nullptr) {
        object = m_wndRibbonBar.GetPanel();
    }
    ElementArray shown;
    m_wndRibbonBar.GetElements(shown);
    std::vector<CMFCRibbonBaseElement*> elements(shown.GetData(), shown.GetData() + shown.GetSize());
    m_bar->GetElementKeys().EnterPopup(m_wndRibbonBar, object, elements);
    if (m_bar->GetElementKeys().GetLevel() < 0) {
        m_wndRibbonBar.HighlightFirst();
    }
}

void CMFCRibbonPanelMenu::LeaveKeyboard() {
    if (CMFCRibbonBar* bar = std::exchange(m_bar, nullptr)) {
        bar->GetElementKeys().LeavePopup(m_wndRibbonBar, m_goesBack);
    }
}

// ---- place and looks

int CMFCRibbonPanelMenu::GetBorderSize() const {
    return CMFCVisualManager::GetInstance()->GetRibbonPopupBorderSize(this);
}

void CMFCRibbonPanelMenu::Place() {
    toolbar::PopupRequest request;
    request.workArea = toolbar::WorkAreaAround(m_area);
    request.avoid = m_area;
    request.wanted = WantedCorner(m_area, m_side);
    request.isRightAligned = m_side == Side::BelowAtRight;
    // Rows scroll where there is too little room; panels and buttons have one height only.
    request.noRoom = m_wndRibbonBar.GetLook() == RibbonPopupLook::Menu ? toolbar::NoRoom::Cut : toolbar::NoRoom::Cover;
    request.size = SizeIn(m_wndRibbonBar, GetBorderSize(), request.workArea.Size());
    toolbar::PopupPlacement placement = toolbar::PlacePopup(request);
    if (placement.rect.Height() < request.size.cy) {
        request.size =
            SizeIn(m_wndRibbonBar, GetBorderSize(), CSize(request.workArea.Width(), placement.rect.Height()));
        placement = toolbar::PlacePopup(request);
    }
    m_DropDirection = placement.direction;
    const CRect& place = placement.rect;
    SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(),
                 SWP_NOZORDER | SWP_NOOWNERZORDER | SWP_NOACTIVATE);
}

void CMFCRibbonPanelMenu::PlaceBar() {
    if (m_wndRibbonBar.GetSafeHwnd() == nullptr) {
        return;
    }
    CRect inside;
    GetClientRect(inside);
    inside.DeflateRect(GetBorderSize(), GetBorderSize());
    m_wndRibbonBar.SetWindowPos(nullptr, inside.left, inside.top, inside.Width(), inside.Height(),
                                SWP_NOZORDER | SWP_NOACTIVATE);
}

void CMFCRibbonPanelMenu::FitToContent() { RecalcLayout(); }

void CMFCRibbonPanelMenu::DrawFrame(CDC* pDC) {
    CRect client;
    GetClientRect(client);
    CMFCVisualManager::GetInstance()->OnDrawMenuBorder(pDC, this, client);
}

// A point, as a context menu's, is no area that a press is kept from.
CWnd* CMFCRibbonPanelMenu::GetParentArea(CRect& rectParentBtn) {
    if (m_area.Width() > 0) {
        return CMFCPopupMenu::GetParentArea(rectParentBtn);
    }
    rectParentBtn.SetRectEmpty();
    return nullptr;
}

// ---- the end

void CMFCRibbonPanelMenu::GoBack() {
    m_goesBack = true;
    Dismiss();
}

void CMFCRibbonPanelMenu::Dismiss() {
    if (std::exchange(m_isDismissed, true)) {
        return;
    }
    const fx::WindowGuard guard(this);
    if (!LeaveChain()) {
        return;
    }
    LeaveKeyboard();
    if (guard.IsGone()) {
        return;
    }
    // An edit with the focus sends its text now, and the handler may do anything.
    if (const HWND focus = ::GetFocus(); focus != nullptr && ::IsChild(m_hWnd, focus)) {
        GiveFocusToOwner();
        if (guard.IsGone()) {
            return;
        }
    }
    ForgetParents();
    m_wndRibbonBar.GiveBack();
    if (guard.IsGone()) {
        return;
    }
    HideWindow();
    ::PostMessageW(guard.Handle(), WM_CLOSE, 0, 0);
    TellClosed();
}

void CMFCRibbonPanelMenu::DismissChildren() {
    if (CMFCPopupMenu* child = GetChildPopupMenu()) {
        child->CloseMenu();
    }
}

void CMFCRibbonPanelMenu::DismissAll() { CloseAll(); }

CMFCRibbonPanelMenu* CMFCRibbonPanelMenu::GetDeepest() { return NearestRibbonMenu(GetActiveMenu()); }

CMFCRibbonPanelMenu* CMFCRibbonPanelMenu::GetParentMenu() const { return NearestRibbonMenu(GetParentPopupMenu()); }

BOOL CMFCRibbonPanelMenu::IsPopupWindow(HWND hWnd) { return toolbar::IsInOpenPopups(hWnd); }

void CMFCRibbonPanelMenu::OnClose() {
    if (m_isDismissed) {
        DestroyWindow();
    } else {
        Dismiss();
    }
}

// The owner's end takes the window with it, dismissed or not.
void CMFCRibbonPanelMenu::OnDestroy() {
    m_isDismissed = true;
    if (!LeaveChain()) {
        return;
    }
    LeaveKeyboard();
    ForgetParents();
    m_wndRibbonBar.GiveBack();
    CMFCPopupMenu::OnDestroy();
}

// ---- activation and focus

void CMFCRibbonPanelMenu::GiveFocusToOwner() {
    if (const HWND owner = GetOwnerWindow(); ::IsWindow(owner)) {
        ::SetFocus(owner);
    }
}

// An edit in a pop-up takes the activation with the focus; the frame goes on looking active.
void CMFCRibbonPanelMenu::OnActivate(UINT nState, CWnd* /*pWndOther*/, BOOL /*bMinimized*/) {
    const HWND owner = GetOwnerWindow();
    if (nState != WA_INACTIVE && ::IsWindow(owner)) {
        ::SendMessageW(owner, WM_NCACTIVATE, TRUE, 0);
    }
}

// ---- messages of the thread while the pop-up is the active one

CMFCPopupMenu::ChainInput CMFCRibbonPanelMenu::OnChainMessage(const MSG& message) {
    switch (message.message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        return OnKeyMessage(message);
    case WM_SYSKEYUP:
        return OnAltMessage(message);
    case WM_CHAR:
    case WM_SYSCHAR:
        if (IsElementWindow(message.hwnd)) {
            return ChainInput::ForWindow;
        }
        m_wndRibbonBar.TranslateChar(static_cast<UINT>(message.wParam));
        return ChainInput::Used;
    case WM_MOUSEWHEEL:
        return IsElementWindow(message.hwnd) ? ChainInput::ForWindow : CMFCPopupMenu::OnChainMessage(message);
    default:
        return ChainInput::ForWindow;
    }
}

// The keyboard is the deepest pop-up's; what it has no use for is lost, as in every menu.
CMFCPopupMenu::ChainInput CMFCRibbonPanelMenu::OnKeyMessage(const MSG& message) {
    const auto key = static_cast<UINT>(message.wParam);
    if (IsElementWindow(message.hwnd)) {
        if (key != VK_TAB) {
            return ChainInput::ForWindow;
        }
        const fx::WindowGuard guard(this);
        GiveFocusToOwner();
        if (guard.IsAlive() && !IsClosing()) {
            m_wndRibbonBar.OnKey(key);
        }
        return ChainInput::Used;
    }
    if (m_bar != nullptr && m_bar->GetElementKeys().IsActive() && message.message == WM_KEYDOWN &&
        m_bar->GetElementKeys().OnKeyDown(message)) {
        return ChainInput::Used;
    }
    if (key == VK_F10) {
        CloseAll();
        return ChainInput::Used;
    }
    if (key == VK_MENU || message.message == WM_SYSKEYDOWN) {
        return OnAltMessage(message);
    }
    if (message.message == WM_KEYDOWN && m_wndRibbonBar.OnKey(key)) {
        return ChainInput::Used;
    }
    return ChainInput::Unused;
}

// Alt leaves the pop-ups, when it is let go if it may be the first half of Alt and an arrow. What else it goes with
// means the frame.
CMFCPopupMenu::ChainInput CMFCRibbonPanelMenu::OnAltMessage(const MSG& message) {
    if (message.message == WM_SYSKEYUP) {
        const Alt alt = message.wParam == VK_MENU ? std::exchange(m_alt, Alt::Free) : Alt::Free;
        if (alt == Alt::Alone) {
            CloseAll();
        }
        return alt != Alt::Free ? ChainInput::Used : ChainInput::ForWindow;
    }
    const bool isArrow = message.wParam == VK_DOWN || message.wParam == VK_UP;
    const bool mayDropDown = message.message == WM_SYSKEYDOWN && m_wndRibbonBar.CanDropDown();
    if (mayDropDown && (isArrow || message.wParam == VK_MENU)) {
        constexpr LPARAM isRepeated = 1 << 30;
        if ((message.lParam & isRepeated) == 0) {
            m_alt = isArrow ? Alt::WithArrow : Alt::Alone;
            if (isArrow) {
                m_wndRibbonBar.DropDown();
            }
        }
        return ChainInput::Used;
    }
    const bool leaves = message.wParam == VK_MENU || message.wParam == VK_F4 || m_alt != Alt::Free;
    if (!leaves) {
        return ChainInput::Unused;
    }
    CloseAll();
    return ChainInput::ForWindow;
}

// The element that opened the first pop-up closes it itself when it is pressed again.
BOOL CMFCRibbonPanelMenu::IsClosedByOpener(const MSG& message) const {
    return GetOpener() != nullptr && (message.message == WM_LBUTTONDOWN || message.message == WM_LBUTTONDBLCLK);
}

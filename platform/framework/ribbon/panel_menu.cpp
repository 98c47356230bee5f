// The windows of ribbon pop-ups: opening, place, the chain of those that are open, and the end.
#include "afxribbonpanelmenu.h"

#include <algorithm>
#include <vector>

#include "afxribbonbar.h"
#include "afxvisualmanager.h"
#include "fx/window_dc.h"
#include "ribbon/element_metrics.h"
#include "ribbon/keyboard.h"
#include "ribbon/menu_geometry.h"
#include "window/thread_state.h"

IMPLEMENT_DYNCREATE(CMFCRibbonPanelMenu, CFrameWnd)

BEGIN_MESSAGE_MAP(CMFCRibbonPanelMenu, CFrameWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_CLOSE()
ON_WM_DESTROY()
ON_WM_MOUSEACTIVATE()
ON_WM_ACTIVATE()
ON_WM_ACTIVATEAPP()
END_MESSAGE_MAP()

namespace {

/// Open pop-ups, each opened from the one before it.
std::vector<CMFCRibbonPanelMenu*>& Chain() {
    static thread_local std::vector<CMFCRibbonPanelMenu*> chain;
    return chain;
}

bool IsPress(UINT message) {
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
    case WM_NCRBUTTONDOWN:
    case WM_NCMBUTTONDOWN:
        return true;
    default:
        return false;
    }
}

bool Holds(const CMFCRibbonPanelMenu& menu, HWND window) {
    return window == menu.GetSafeHwnd() || ::IsChild(menu.GetSafeHwnd(), window);
}

/// A window of an element's inside a pop-up, like an edit.
bool IsElementWindow(HWND window) {
    return std::any_of(Chain().begin(), Chain().end(), [window](CMFCRibbonPanelMenu* menu) {
        return ::IsChild(menu->GetRibbonMenuBar().GetSafeHwnd(), window) != FALSE;
    });
}

ribbon::PopupSide ToSide(CMFCRibbonPanelMenu::Side side) {
    switch (side) {
    case CMFCRibbonPanelMenu::Side::BelowAtRight:
        return ribbon::PopupSide::BelowAtRight;
    case CMFCRibbonPanelMenu::Side::Beside:
        return ribbon::PopupSide::Beside;
    default:
        return ribbon::PopupSide::Below;
    }
}

CRect WorkAreaAround(const CRect& area) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    if (::GetMonitorInfo(::MonitorFromRect(area, MONITOR_DEFAULTTONEAREST), &monitor)) {
        return monitor.rcWork;
    }
    return {0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
}

} // namespace

CMFCRibbonPanelMenu::CMFCRibbonPanelMenu() = default;

CMFCRibbonPanelMenu::CMFCRibbonPanelMenu(CMFCRibbonPanel* pPanel) : m_wndRibbonBar(pPanel) {}

CMFCRibbonPanelMenu::CMFCRibbonPanelMenu(CMFCRibbonCategory* pCategory, CSize size) : m_wndRibbonBar(pCategory, size) {}

CMFCRibbonPanelMenu::CMFCRibbonPanelMenu(const ElementArray& arButtons, BOOL bIsFloatyMode)
    : m_wndRibbonBar(arButtons, bIsFloatyMode) {}

CMFCRibbonPanelMenu::~CMFCRibbonPanelMenu() { TakeOutOfChain(); }

// ---- opening

BOOL CMFCRibbonPanelMenu::OpenFor(CMFCRibbonBaseElement* pElement, Side side) {
    return OpenAt(pElement->GetParentWnd(), pElement->GetRect(), side, pElement);
}

BOOL CMFCRibbonPanelMenu::OpenAt(CWnd* pParent, const CRect& area, Side side, CMFCRibbonBaseElement* pElement) {
    if (pParent == nullptr || pParent->GetSafeHwnd() == nullptr) {
        delete this;
        return FALSE;
    }
    auto* parentBar = DYNAMIC_DOWNCAST(CMFCRibbonPanelMenuBar, pParent);
    m_parentMenu = parentBar != nullptr ? parentBar->GetMenu() : nullptr;
    m_parentMenu != nullptr ? m_parentMenu->DismissChildren() : DismissAll();
    m_area = area;
    pParent->ClientToScreen(m_area);
    m_side = side;
    if (!CreateWindows(pParent)) {
        return FALSE; // the failed creation has deleted the object
    }
    m_opener = pElement;
    m_bar = pElement != nullptr       ? pElement->GetTopLevelRibbonBar()
            : m_parentMenu != nullptr ? m_parentMenu->m_bar
                                      : DYNAMIC_DOWNCAST(CMFCRibbonBar, pParent);
    if (pElement != nullptr) {
        m_wndRibbonBar.SetOpener(*pElement);
    }
    m_wndRibbonBar.Lend();
    Chain().push_back(this);
    fx::CurrentThread().popupFilter = &CMFCRibbonPanelMenu::FilterMessage;
    if (pElement != nullptr) {
        pElement->SetDroppedDown(this);
    }
    const HWND window = m_hWnd;
    if (CFrameWnd* frame = GetCommandFrame()) {
        m_wndRibbonBar.UpdateElements(frame, frame->m_bAutoMenuEnable);
    }
    if (!::IsWindow(window)) {
        return FALSE;
    }
    if (m_isDismissed) {
        return FALSE;
    }
    Place();
    SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    EnterKeyboard();
    return TRUE;
}

// Opened by the keyboard it takes the next letters; without key tips it shows where the keyboard is.
void CMFCRibbonPanelMenu::EnterKeyboard() {
    if (m_bar == nullptr || !m_bar->GetKeyboard().IsActive()) {
        return;
    }
    CObject* object = m_opener;
    if (m_wndRibbonBar.GetPanel() != nullptr) {
        object = m_wndRibbonBar.GetPanel();
    }
    ElementArray shown;
    m_wndRibbonBar.GetElements(shown);
    std::vector<CMFCRibbonBaseElement*> elements(shown.GetData(), shown.GetData() + shown.GetSize());
    m_bar->GetKeyboard().EnterPopup(m_wndRibbonBar, object, elements);
    if (m_bar->GetKeyboardNavigationLevel() < 0) {
        m_wndRibbonBar.HighlightFirst();
    }
}

void CMFCRibbonPanelMenu::LeaveKeyboard() {
    if (m_bar != nullptr) {
        m_bar->GetKeyboard().LeavePopup(m_wndRibbonBar, m_goesBack);
    }
}

BOOL CMFCRibbonPanelMenu::CreateWindows(CWnd* pParent) {
    m_owner = m_parentMenu != nullptr ? m_parentMenu->m_owner : ::GetAncestor(pParent->GetSafeHwnd(), GA_ROOT);
    const LPCTSTR windowClass =
        AfxRegisterWndClass(CS_DBLCLKS | CS_DROPSHADOW | CS_SAVEBITS, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CWnd::CreateEx(WS_EX_TOOLWINDOW, windowClass, L"", WS_POPUP | WS_CLIPCHILDREN, 0, 0, 1, 1, m_owner, nullptr,
                        nullptr)) {
        return FALSE;
    }
    if (!m_wndRibbonBar.CreateBar(this)) {
        DestroyWindow();
        return FALSE;
    }
    return TRUE;
}

int CMFCRibbonPanelMenu::BorderSize() const { return CMFCVisualManager::GetInstance()->GetRibbonPopupBorderSize(this); }

void CMFCRibbonPanelMenu::Place() {
    const CRect work = WorkAreaAround(m_area);
    const int border = BorderSize();
    const CSize content = m_wndRibbonBar.CalcContentSize({work.Width() - 2 * border, work.Height() - 2 * border});
    const ribbon::Size size{static_cast<int>(content.cx) + 2 * border, static_cast<int>(content.cy) + 2 * border};
    const CRect place =
        ribbon::ToRect(ribbon::PlacePopup(ribbon::FromRect(m_area), size, ToSide(m_side), ribbon::FromRect(work)));
    SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    m_wndRibbonBar.SetWindowPos(nullptr, border, border, content.cx, content.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

void CMFCRibbonPanelMenu::FitToContent() {
    if (!m_isDismissed && GetSafeHwnd() != nullptr) {
        Place();
        Invalidate(FALSE);
    }
}

CFrameWnd* CMFCRibbonPanelMenu::GetCommandFrame() const {
    return DYNAMIC_DOWNCAST(CFrameWnd, CWnd::FromHandlePermanent(m_owner));
}

// ---- the end

void CMFCRibbonPanelMenu::TakeOutOfChain() {
    auto& chain = Chain();
    chain.erase(std::remove(chain.begin(), chain.end(), this), chain.end());
    if (chain.empty()) {
        fx::CurrentThread().popupFilter = nullptr;
    }
}

void CMFCRibbonPanelMenu::GoBack() {
    m_goesBack = true;
    Dismiss();
}

void CMFCRibbonPanelMenu::Dismiss() {
    if (std::exchange(m_isDismissed, true)) {
        return;
    }
    const HWND window = m_hWnd;
    DismissChildren();
    TakeOutOfChain();
    LeaveKeyboard();
    if (!::IsWindow(window)) {
        return;
    }
    // An edit with the focus sends its text now, and the handler may do anything.
    if (const HWND focus = ::GetFocus(); focus != nullptr && ::IsChild(window, focus) && ::IsWindow(m_owner)) {
        ::SetFocus(m_owner);
        if (!::IsWindow(window)) {
            return;
        }
    }
    if (m_opener != nullptr) {
        std::exchange(m_opener, nullptr)->SetDroppedDown(nullptr);
    }
    m_wndRibbonBar.GiveBack();
    if (!::IsWindow(window)) {
        return;
    }
    ShowWindow(SW_HIDE);
    ::PostMessageW(window, WM_CLOSE, 0, 0);
}

void CMFCRibbonPanelMenu::DismissChildren() {
    // Each takes itself out; a handler of the host's may empty the chain at once.
    while (!Chain().empty() && Chain().back() != this &&
           std::find(Chain().begin(), Chain().end(), this) != Chain().end()) {
        Chain().back()->Dismiss();
    }
}

void CMFCRibbonPanelMenu::DismissAll() {
    while (!Chain().empty()) {
        Chain().back()->Dismiss();
    }
}

CMFCRibbonPanelMenu* CMFCRibbonPanelMenu::GetDeepest() { return Chain().empty() ? nullptr : Chain().back(); }

BOOL CMFCRibbonPanelMenu::IsPopupWindow(HWND hWnd) {
    return std::any_of(Chain().begin(), Chain().end(),
                       [hWnd](CMFCRibbonPanelMenu* menu) { return Holds(*menu, hWnd); });
}

void CMFCRibbonPanelMenu::OnParentElementDestroyed() {
    m_opener = nullptr;
    Dismiss();
}

void CMFCRibbonPanelMenu::OnClose() {
    if (m_isDismissed) {
        DestroyWindow();
    } else {
        Dismiss();
    }
}

// The owner's end takes the window with it, dismissed or not.
void CMFCRibbonPanelMenu::OnDestroy() {
    if (!std::exchange(m_isDismissed, true)) {
        DismissChildren();
        TakeOutOfChain();
        LeaveKeyboard();
        if (m_opener != nullptr) {
            std::exchange(m_opener, nullptr)->SetDroppedDown(nullptr);
        }
        m_wndRibbonBar.GiveBack();
    }
    CFrameWnd::OnDestroy();
}

// ---- window

void CMFCRibbonPanelMenu::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    CMFCVisualManager::GetInstance()->OnDrawMenuBorder(&dc, nullptr, client);
}

BOOL CMFCRibbonPanelMenu::OnEraseBkgnd(CDC* /*pDC*/) { return TRUE; }

int CMFCRibbonPanelMenu::OnMouseActivate(CWnd* /*pDesktopWnd*/, UINT /*nHitTest*/, UINT /*message*/) {
    return MA_NOACTIVATE;
}

// An edit in a pop-up takes the activation with the focus; the frame goes on looking active.
void CMFCRibbonPanelMenu::OnActivate(UINT nState, CWnd* /*pWndOther*/, BOOL /*bMinimized*/) {
    if (nState != WA_INACTIVE && ::IsWindow(m_owner)) {
        ::SendMessageW(m_owner, WM_NCACTIVATE, TRUE, 0);
    }
}

void CMFCRibbonPanelMenu::OnActivateApp(BOOL bActive, DWORD /*dwThreadID*/) {
    if (!bActive) {
        DismissAll();
    }
}

// ---- messages of the thread while a pop-up is open

BOOL CMFCRibbonPanelMenu::FilterMessage(MSG* pMsg) {
    if (Chain().empty()) {
        return FALSE;
    }
    switch (pMsg->message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        return FilterKey(*pMsg);
    case WM_CHAR:
    case WM_SYSCHAR: {
        if (IsElementWindow(pMsg->hwnd)) {
            return FALSE;
        }
        const UINT_PTR upper =
            reinterpret_cast<UINT_PTR>(::CharUpperW(reinterpret_cast<LPWSTR>(pMsg->wParam & 0xFFFF)));
        GetDeepest()->GetRibbonMenuBar().OnLetter(static_cast<UINT>(upper));
        return TRUE;
    }
    case WM_MOUSEWHEEL:
        if (IsElementWindow(pMsg->hwnd)) {
            return FALSE;
        }
        GetDeepest()->GetRibbonMenuBar().Scroll(static_cast<short>(HIWORD(pMsg->wParam)) > 0 ? -1 : 1);
        return TRUE;
    default:
        if (IsPress(pMsg->message)) {
            OnPressOutside(*pMsg);
        }
        return FALSE;
    }
}

// The keyboard is the deepest pop-up's; what it has no use for is lost, as in every menu.
BOOL CMFCRibbonPanelMenu::FilterKey(const MSG& message) {
    CMFCRibbonPanelMenuBar& bar = GetDeepest()->GetRibbonMenuBar();
    const auto key = static_cast<UINT>(message.wParam);
    if (IsElementWindow(message.hwnd)) {
        if (key != VK_TAB) {
            return FALSE;
        }
        const HWND owner = GetDeepest()->m_owner;
        ::SetFocus(owner);
        if (!Chain().empty()) {
            GetDeepest()->GetRibbonMenuBar().OnKey(key);
        }
        return TRUE;
    }
    CMFCRibbonBar* ribbonBar = GetDeepest()->m_bar;
    if (ribbonBar != nullptr && ribbonBar->GetKeyboard().IsActive() && message.message == WM_KEYDOWN &&
        ribbonBar->GetKeyboard().OnKeyDown(message)) {
        return TRUE;
    }
    if (key == VK_MENU || key == VK_F10) {
        DismissAll();
        return key == VK_F10;
    }
    if (message.message == WM_KEYDOWN && bar.OnKey(key)) {
        return TRUE;
    }
    // The letter comes back as a character.
    ::TranslateMessage(&message);
    return TRUE;
}

// The element that opened the first pop-up closes it itself when it is pressed again.
void CMFCRibbonPanelMenu::OnPressOutside(const MSG& message) {
    if (IsPopupWindow(message.hwnd)) {
        return;
    }
    CMFCRibbonBaseElement* opener = Chain().front()->m_opener;
    const CWnd* parent = opener != nullptr ? opener->GetParentWnd() : nullptr;
    const bool isLeft = message.message == WM_LBUTTONDOWN || message.message == WM_LBUTTONDBLCLK;
    if (isLeft && parent != nullptr && parent->GetSafeHwnd() == message.hwnd) {
        const CPoint point(static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam)));
        if (opener->GetRect().PtInRect(point)) {
            return;
        }
    }
    DismissAll();
}

// The life of a pop-up menu: creation, the chain, the end; its items, which lie in its bar.
#include "afxpopupmenu.h"

#include "afxbaseribbonelement.h"
#include "afxext.h"
#include "afxvisualmanager.h"
#include "fx/window_guard.h"
#include "popups/menu_watch.h"
#include "toolbar/popup_parts.h"
#include "window/command_id.h"

IMPLEMENT_DYNCREATE(CMFCPopupMenu, CMiniFrameWnd)

BEGIN_MESSAGE_MAP(CMFCPopupMenu, CMiniFrameWnd)
ON_WM_CREATE()
ON_WM_CLOSE()
ON_WM_DESTROY()
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_WINDOWPOSCHANGED()
ON_WM_MOUSEACTIVATE()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_CAPTURECHANGED()
ON_WM_TIMER()
ON_WM_SETCURSOR()
ON_WM_VSCROLL()
END_MESSAGE_MAP()

BOOL CMFCPopupMenu::m_bForceMenuFocus = TRUE;
BOOL CMFCPopupMenu::m_bForceShadow = FALSE;
BOOL CMFCPopupMenu::m_bSendMenuSelectMsg = TRUE;
CMFCPopupMenu::ANIMATION_TYPE CMFCPopupMenu::m_AnimationType = CMFCPopupMenu::NO_ANIMATION;
UINT CMFCPopupMenu::m_nAnimationSpeed = 30;

CMFCPopupMenu::CMFCPopupMenu() : m_parts(std::make_unique<Parts>()) {}

CMFCPopupMenu::CMFCPopupMenu(CMFCToolBarsMenuPropertyPage*, LPCTSTR lpszTitle) : CMFCPopupMenu() {
    m_strTitle = lpszTitle;
}

CMFCPopupMenu::~CMFCPopupMenu() {
    ForgetParents();
    // The bar lies in the window: it goes first, while this is still a pop-up menu.
    if (m_hWnd) {
        CMiniFrameWnd::DestroyWindow();
    }
    if (m_hMenu && m_bAutoDestroy) {
        ::DestroyMenu(m_hMenu);
    }
}

bool toolbar::IsOpenedMirrored(const CMFCToolBarMenuButton* button, HMENU menu, HWND parent) {
    const CWnd* const window = CWnd::FromHandlePermanent(parent);
    const bool isOfBar = window != nullptr && window->IsKindOf(RUNTIME_CLASS(CMFCToolBar));
    const CWnd* const opener = button != nullptr            ? button->GetParentWnd()
                               : menu != nullptr || isOfBar ? window
                                                            : nullptr;
    if (opener->GetSafeHwnd() == nullptr) {
        return false;
    }
    const CWnd* const around = button == nullptr ? opener->GetTopLevelFrame() : nullptr;
    return ((opener->GetExStyle() | (around != nullptr ? around->GetExStyle() : 0)) & WS_EX_LAYOUTRTL) != 0;
}

BOOL CMFCPopupMenu::PreCreateWindow(CREATESTRUCT& cs) {
    cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | CS_SAVEBITS, ::LoadCursorW(nullptr, IDC_ARROW));
    // The system does not hand it down to windows of their own.
    cs.dwExStyle |= toolbar::IsOpenedMirrored(m_pParentBtn, m_hMenu, m_hParentWnd) ? WS_EX_LAYOUTRTL : 0;
    return CMiniFrameWnd::PreCreateWindow(cs);
}

BOOL CMFCPopupMenu::Create(CWnd* pWndParent, int x, int y, HMENU hMenu, BOOL bLocked, BOOL bOwnMessage) {
    m_hMenu = hMenu;
    m_bLocked = bLocked;
    m_ptWanted = CPoint(x, y);
    if (x == -1 && y == -1) {
        ::GetCursorPos(&m_ptWanted);
    }
    FindParents(pWndParent, bOwnMessage);
    // One chain at a time: what hangs on the menu before this one closes, and every other chain.
    if (m_pParentPopup) {
        if (CMFCPopupMenu* sibling = m_pParentPopup->m_pChildPopup) {
            sibling->CloseMenu();
        }
    } else {
        CloseAll();
    }
    if (!CMiniFrameWnd::CreateEx(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, nullptr, m_strTitle, WS_POPUP | WS_CLIPCHILDREN,
                                 CRect(m_ptWanted, CSize(0, 0)), CWnd::FromHandlePermanent(m_hParentWnd))) {
        return FALSE;
    }
    const fx::WindowGuard guard(this);
    TellOpened();
    CFrameWnd* frame = GetOwnerFrame();
    const BOOL isAllowed = !frame || frame->OnShowPopupMenu(this);
    // The host may have closed the menu, or does not want it.
    if (guard.IsGone()) {
        return FALSE;
    }
    if (!isAllowed) {
        CMiniFrameWnd::DestroyWindow();
        return FALSE;
    }
    if (!IsOver()) {
        OnOpened();
    }
    if (guard.IsGone() || IsOver()) {
        return FALSE;
    }
    Place();
    PlaceBar();
    ShowAnimated();
    return guard.IsAlive() && !IsOver();
}

int CMFCPopupMenu::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    // The frame's own creation would make a client window and set a message in the status bar.
    if (CWnd::OnCreate(lpCreateStruct) == -1 || !InitMenuBar()) {
        return -1;
    }
    return 0;
}

BOOL CMFCPopupMenu::InitMenuBar() {
    CMFCPopupMenuBar* bar = GetMenuBar();
    if (!bar || !bar->Create(this)) {
        return FALSE;
    }
    bar->SetOwner(this);
    if (!m_hMenu) {
        return TRUE;
    }
    // Whoever gets the commands brings items and states up to date, as for a menu of the system.
    if (m_hMessageWnd) {
        ::SendMessageW(m_hMessageWnd, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(m_hMenu), 0);
    }
    if (!::IsMenu(m_hMenu) || !bar->ImportFromMenu(m_hMenu, TRUE)) {
        return FALSE;
    }
    if (HideRarelyUsedCommands()) {
        bar->HideRareItems();
    }
    return TRUE;
}

void CMFCPopupMenu::FindParents(CWnd* pWndParent, BOOL bOwnMessage) {
    // The nearest pop-up around the window, or around what opens this one.
    CWnd* opener = m_pParentBtn             ? m_pParentBtn->GetParentWnd()
                   : m_pParentRibbonElement ? m_pParentRibbonElement->GetParentWnd()
                                            : nullptr;
    m_pParentPopup = nullptr;
    for (HWND start : {opener->GetSafeHwnd(), pWndParent->GetSafeHwnd()}) {
        for (HWND window = start; window && !m_pParentPopup; window = ::GetAncestor(window, GA_PARENT)) {
            m_pParentPopup = DYNAMIC_DOWNCAST(CMFCPopupMenu, CWnd::FromHandlePermanent(window));
        }
    }
    if (m_pParentPopup == this || (m_pParentPopup && m_pParentPopup->IsOver())) {
        m_pParentPopup = nullptr;
    }
    m_hParentWnd = pWndParent ? pWndParent->GetSafeHwnd() : opener->GetSafeHwnd();
    if (!m_hParentWnd && AfxGetMainWnd()) {
        m_hParentWnd = AfxGetMainWnd()->GetSafeHwnd();
    }
    if (m_hMessageWnd) {
        return;
    }
    CMFCToolBar* bar = m_pParentPopup ? nullptr : GetParentToolBar();
    CWnd* parent = CWnd::FromHandlePermanent(m_hParentWnd);
    if (bOwnMessage) {
        m_hMessageWnd = pWndParent->GetSafeHwnd();
    } else if (m_pParentPopup) {
        m_hMessageWnd = m_pParentPopup->m_hMessageWnd;
    } else if (bar) {
        m_hMessageWnd = bar->GetCommandTarget()->GetSafeHwnd();
    } else if (parent) {
        CFrameWnd* frame = DYNAMIC_DOWNCAST(CFrameWnd, parent);
        m_hMessageWnd = (frame ? frame : parent->GetTopLevelFrame())->GetSafeHwnd();
    }
    if (!m_hMessageWnd) {
        m_hMessageWnd = m_hParentWnd;
    }
}

HWND CMFCPopupMenu::GetOwnerWindow() const {
    // A child is owned by the menu before it.
    HWND owner = m_hWnd ? ::GetWindow(m_hWnd, GW_OWNER) : nullptr;
    while (owner && DYNAMIC_DOWNCAST(CMFCPopupMenu, CWnd::FromHandlePermanent(owner))) {
        owner = ::GetWindow(owner, GW_OWNER);
    }
    return owner;
}

CFrameWnd* CMFCPopupMenu::GetOwnerFrame() const {
    return DYNAMIC_DOWNCAST(CFrameWnd, CWnd::FromHandlePermanent(GetOwnerWindow()));
}

void CMFCPopupMenu::TellOpened() {
    if (m_pParentPopup) {
        m_pParentPopup->m_pChildPopup = this;
    }
    m_life = Life::Open;
    toolbar::SetActivePopup(this);
    if (m_pParentRibbonElement) {
        m_pParentRibbonElement->SetDroppedDown(this);
    }
}

BOOL CMFCPopupMenu::LeaveChain() {
    m_life = std::max(m_life, Life::Closing);
    if (m_pChildPopup) {
        const fx::WindowGuard guard(this);
        m_pChildPopup->CloseMenu();
        if (guard.IsGone()) {
            return FALSE;
        }
    }
    if (m_life >= Life::OutOfChain) {
        return TRUE;
    }
    m_life = Life::OutOfChain;
    if (m_pParentPopup && m_pParentPopup->m_pChildPopup == this) {
        m_pParentPopup->m_pChildPopup = nullptr;
    }
    if (toolbar::ActivePopup() == this) {
        toolbar::SetActivePopup(m_pParentPopup);
    }
    return TRUE;
}

void CMFCPopupMenu::HideWindow() {
    m_parts->shadow.Hide();
    ShowWindow(SW_HIDE);
}

// The host may end this, by ending the window that it belongs to.
void CMFCPopupMenu::TellClosed() {
    if (std::exchange(m_life, Life::Notified) == Life::Notified) {
        return;
    }
    const fx::WindowGuard guard(this);
    const bool tellsSelection =
        m_bSendMenuSelectMsg && !GetMenuBar()->IsRibbonPanel() && !GetMenuBar()->IsDropDownListMode();
    if (tellsSelection && !m_pParentPopup && m_hasBeenShown && m_hMessageWnd) {
        // As the system says that its menus are closed.
        ::SendMessageW(m_hMessageWnd, WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
    }
    if (guard.IsGone()) {
        return;
    }
    if (CFrameWnd* frame = GetOwnerFrame()) {
        frame->OnClosePopupMenu(this);
    }
}

void CMFCPopupMenu::ForgetParents() {
    if (m_pParentBtn) {
        std::exchange(m_pParentBtn, nullptr)->OnPopupClosed();
    }
    if (m_pParentRibbonElement) {
        std::exchange(m_pParentRibbonElement, nullptr)->SetDroppedDown(nullptr);
    }
}

void CMFCPopupMenu::OnDestroy() {
    // The chain first: what is told may open or close menus of its own.
    if (!LeaveChain()) {
        return;
    }
    m_parts->shadow.Hide();
    m_parts->shadow.DestroyWindow();
    const fx::WindowGuard guard(this);
    TellClosed();
    if (guard.IsGone()) {
        return;
    }
    ForgetParents();
    CMiniFrameWnd::OnDestroy();
}

void CMFCPopupMenu::OnParentElementDestroyed() {
    m_pParentRibbonElement = nullptr;
    CloseMenu();
}

void CMFCPopupMenu::PostNcDestroy() { CMiniFrameWnd::PostNcDestroy(); }

void CMFCPopupMenu::OnClose() { CMiniFrameWnd::DestroyWindow(); }

void CMFCPopupMenu::CloseMenu(BOOL bSetFocusToBar) {
    if (!m_hWnd || IsOver()) {
        return;
    }
    CMFCToolBar* bar = bSetFocusToBar ? GetParentToolBar() : nullptr;
    CMFCToolBarMenuButton* button = m_pParentBtn;
    const HWND barWindow = bar->GetSafeHwnd();
    // Asked to close, so that a derived menu's WM_CLOSE is heard.
    SendMessage(WM_CLOSE);
    if (bar && ::IsWindow(barWindow) && bar->ButtonToIndex(button) >= 0) {
        bar->SetHot(button);
    }
}

CMFCPopupMenu* CMFCPopupMenu::GetActiveMenu() { return toolbar::ActivePopup(); }

void CMFCPopupMenu::CloseAll() { toolbar::CloseAllPopups(); }

BOOL __stdcall CMFCPopupMenu::ActivatePopupMenu(CFrameWnd* pTopFrame, CMFCPopupMenu* pPopupMenu) {
    if (pPopupMenu == toolbar::ActivePopup()) {
        return pPopupMenu != nullptr;
    }
    for (CMFCPopupMenu* menu = toolbar::ActivePopup(); menu; menu = menu->m_pParentPopup) {
        if (menu == pPopupMenu) {
            menu->m_pChildPopup->CloseMenu();
            return TRUE;
        }
    }
    CloseAll();
    return !pTopFrame || !pPopupMenu || pTopFrame->OnShowPopupMenu(pPopupMenu);
}

CMFCPopupMenu* CMFCPopupMenu::GetRootPopupMenu() {
    CMFCPopupMenu* root = this;
    while (root->m_pParentPopup) {
        root = root->m_pParentPopup;
    }
    return root;
}

CMFCToolBar* CMFCPopupMenu::GetParentToolBar() const {
    return m_pParentBtn ? DYNAMIC_DOWNCAST(CMFCToolBar, m_pParentBtn->GetParentWnd()) : nullptr;
}

CWnd* CMFCPopupMenu::GetParentArea(CRect& rectParentBtn) {
    rectParentBtn.SetRectEmpty();
    if (m_pParentBtn) {
        rectParentBtn = m_pParentBtn->Rect();
        return m_pParentBtn->GetParentWnd();
    }
    if (m_pParentRibbonElement) {
        rectParentBtn = m_pParentRibbonElement->GetRect();
        return m_pParentRibbonElement->GetParentWnd();
    }
    return nullptr;
}

CWnd* CMFCPopupMenu::GetMessageWnd() const {
    return ::IsWindow(m_hMessageWnd) ? CWnd::FromHandle(m_hMessageWnd) : nullptr;
}

BOOL CMFCPopupMenu::PostCommand(UINT uiCommandID) {
    return fx::IsSendableCommand(uiCommandID) && ::IsWindow(m_hMessageWnd) &&
           ::PostMessageW(m_hMessageWnd, WM_COMMAND, uiCommandID, 0);
}

BOOL CMFCPopupMenu::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    CWnd* target = CWnd::FromHandlePermanent(m_hMessageWnd);
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           (target && target != this && target->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo));
}

BOOL CMFCPopupMenu::PreTranslateMessage(MSG* pMsg) { return CMiniFrameWnd::PreTranslateMessage(pMsg); }

CMFCPopupMenu::ANIMATION_TYPE CMFCPopupMenu::GetAnimationType(BOOL bNoSystem) {
    if (m_AnimationType != SYSTEM_DEFAULT_ANIMATION || bNoSystem) {
        return m_AnimationType;
    }
    BOOL isAnimated = FALSE, isFading = FALSE;
    ::SystemParametersInfoW(SPI_GETMENUANIMATION, 0, &isAnimated, 0);
    ::SystemParametersInfoW(SPI_GETMENUFADE, 0, &isFading, 0);
    return !isAnimated ? NO_ANIMATION : isFading ? FADE : SLIDE;
}

BOOL CMFCPopupMenu::OnChainKey(UINT nMessage, UINT nChar) {
    CMFCPopupMenuBar* bar = GetMenuBar();
    if (nMessage == WM_CHAR || nMessage == WM_SYSCHAR) {
        return bar && !IsEditFocused() && bar->TranslateChar(nChar);
    }
    if (nChar == VK_MENU || nChar == VK_F10) {
        CloseAll();
        return TRUE;
    }
    return bar && bar->OnKey(nChar);
}

CMFCPopupMenu::ChainInput CMFCPopupMenu::OnChainMessage(const MSG& message) {
    switch (message.message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_CHAR:
    case WM_SYSCHAR:
        if (OnChainKey(message.message, static_cast<UINT>(message.wParam))) {
            return ChainInput::Used;
        }
        return IsEditFocused() ? ChainInput::ForWindow : ChainInput::Unused;
    case WM_MOUSEWHEEL:
        if (CMFCPopupMenuBar* bar = GetMenuBar()) {
            bar->OnWheel(static_cast<short>(HIWORD(message.wParam)));
        }
        return ChainInput::Used;
    default:
        return ChainInput::Unused;
    }
}

// ---- items

CMFCToolBarMenuButton* CMFCPopupMenu::GetMenuItem(int iIndex) const {
    CMFCPopupMenuBar* bar = const_cast<CMFCPopupMenu*>(this)->GetMenuBar();
    return DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, bar->GetButton(iIndex));
}

int CMFCPopupMenu::GetMenuItemCount() const { return const_cast<CMFCPopupMenu*>(this)->GetMenuBar()->GetCount(); }

CMFCToolBarMenuButton* CMFCPopupMenu::GetSelItem() {
    return DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, GetMenuBar()->GetHighlightedButton());
}

CMFCToolBarMenuButton* CMFCPopupMenu::FindSubItemByCommand(UINT uiCmd) const {
    const CMFCPopupMenuBar* bar = const_cast<CMFCPopupMenu*>(this)->GetMenuBar();
    const int index = bar->CommandToIndex(uiCmd);
    return index >= 0 ? GetMenuItem(index) : nullptr;
}

int CMFCPopupMenu::InsertItem(const CMFCToolBarMenuButton& button, int iInsertA) {
    return GetMenuBar()->InsertButton(button, iInsertA);
}

int CMFCPopupMenu::InsertSeparator(int iInsertAt) { return GetMenuBar()->InsertSeparator(iInsertAt); }

BOOL CMFCPopupMenu::RemoveItem(int iIndex) { return GetMenuBar()->RemoveButton(iIndex); }

void CMFCPopupMenu::RemoveAllItems() { GetMenuBar()->RemoveAllButtons(); }

void CMFCPopupMenu::SetDefaultItem(UINT uiCmd) { GetMenuBar()->SetDefaultMenuId(uiCmd); }

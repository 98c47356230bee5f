#include "toolbar/button_drag.h"

#include "afxmenubar.h"
#include "afxpopupmenu.h"
#include "fx/to_rect.h"
#include "fx/window_guard.h"
#include "popups/user_settings.h"
#include "toolbar/button_copy.h"
#include "toolbar/menu_source.h"

#include <cstdlib>
#include <utility>

#include <ole2.h>

namespace toolbar {

BEGIN_MESSAGE_MAP(ButtonDrag, fx::DragWindow)
ON_WM_TIMER()
END_MESSAGE_MAP()

namespace {

constexpr UINT_PTR kWaitTimer = 1;

bool MayBeChanged(const CMFCToolBar& bar) {
    return bar.IsWindowVisible() && !bar.IsLocked() && !bar.IsKindOf(RUNTIME_CLASS(CMFCMenuBar));
}

/// No other window of the program's, a dialog, lies over the bar there.
bool IsInSight(const CMFCToolBar& bar, CPoint screen) {
    const HWND top = ::WindowFromPoint(screen);
    const bool isOurs = top != nullptr && ::GetWindowThreadProcessId(top, nullptr) == ::GetCurrentThreadId();
    return !isOurs || ::GetAncestor(top, GA_ROOT) == ::GetAncestor(bar.m_hWnd, GA_ROOT);
}

/// The bar that is seen at the point, whether it may be changed or not. Those that float lie over the others.
CMFCToolBar* BarAt(CPoint screen) {
    CMFCToolBar* found = nullptr;
    for (POSITION position = CMFCToolBar::GetAllToolbars().GetHeadPosition(); position != nullptr;) {
        auto* const bar =
            const_cast<CMFCToolBar*>(static_cast<const CMFCToolBar*>(CMFCToolBar::GetAllToolbars().GetNext(position)));
        CRect window;
        bar->GetWindowRect(&window);
        if (window.PtInRect(screen) && bar->IsWindowVisible() && IsInSight(*bar, screen) &&
            (found == nullptr || bar->IsFloating())) {
            found = bar;
        }
    }
    return found;
}

DropPlace PlaceIn(const CMFCToolBar& bar, CPoint screen) {
    std::vector<fx::Rect> buttons;
    buttons.reserve(static_cast<std::size_t>(bar.GetCount()));
    for (int index = 0; index < bar.GetCount(); ++index) {
        buttons.push_back(fx::FromRect(bar.GetButton(index)->Rect()));
    }
    CPoint point = screen;
    bar.ScreenToClient(&point);
    const bool isMenu = bar.IsKindOf(RUNTIME_CLASS(CMFCPopupMenuBar)) != FALSE;
    DropPlace place = FindDropPlace(buttons, fx::FromPoint(point), !isMenu && bar.IsHorizontal());
    CRect client;
    bar.GetClientRect(&client);
    if (isMenu && place.mark.bottom > client.bottom) {
        constexpr int kLineWidth = 2;
        place.mark = place.mark.Moved(0, client.bottom - kLineWidth - place.mark.top); // else nobody would see it
    }
    return place;
}

} // namespace

ButtonDrag* ButtonDrag::Current() { return dynamic_cast<ButtonDrag*>(DragWindow::Current()); }

ButtonDrag::ButtonDrag(const CMFCToolBar& bar, const CMFCToolBarButton& button, CPoint screen, bool isByAlt)
    : m_source(bar.m_hWnd), m_button(&button), m_isByAlt(isByAlt), m_start(screen), m_last(screen) {}

ButtonDrag::ButtonDrag(std::unique_ptr<CMFCToolBarButton> command, CPoint screen)
    : m_command(std::move(command)),
      m_source(nullptr),
      m_button(m_command.get()),
      m_isByAlt(false),
      m_start(screen),
      m_last(screen) {}

bool ButtonDrag::Start(std::unique_ptr<ButtonDrag> drag, CWnd* parent) {
    if (!drag->TakeMouse(parent)) {
        return false;
    }
    static_cast<void>(drag.release()); // it is the window's own now
    return true;
}

bool ButtonDrag::BeginWithCommand(const CMFCToolBarButton& command, CWnd& frame, CPoint screen) {
    std::unique_ptr<CMFCToolBarButton> copy = CopyOf(command);
    if (DragWindow::Current() != nullptr || !copy || !copy->OnBeforeDrag()) {
        return false;
    }
    return Start(std::unique_ptr<ButtonDrag>(new ButtonDrag(std::move(copy), screen)), &frame);
}

bool ButtonDrag::Begin(CMFCToolBar& bar, const CMFCToolBarButton& button, CPoint screen, bool isByAlt) {
    const bool isProtected = CMFCToolBarButton::GetProtectedCommands().Find(button.m_nID) != nullptr;
    if (DragWindow::Current() != nullptr || !MayBeChanged(bar) || isProtected || !button.IsEditable() ||
        !button.OnBeforeDrag()) {
        return false;
    }
    return Start(std::unique_ptr<ButtonDrag>(new ButtonDrag(bar, button, screen, isByAlt)), bar.GetTopLevelFrame());
}

bool ButtonDrag::BeginWithRow(const CMFCPopupMenuBar& menu, int row, CPoint screen) {
    CMFCPopupMenu* const popup = menu.GetParentPopup();
    const MenuSource source = popup != nullptr ? SourceOf(*popup) : MenuSource();
    const CMFCToolBarMenuButton* const item = source ? ItemOfRow(menu, *source.owner, row) : nullptr;
    if (item == nullptr || DragWindow::Current() != nullptr) {
        return false;
    }
    const bool isProtected = CMFCToolBarButton::GetProtectedCommands().Find(item->m_nID) != nullptr;
    std::unique_ptr<CMFCToolBarButton> copy = CopyOf(*item);
    if (isProtected || !copy || !copy->IsEditable() || !copy->OnBeforeDrag()) {
        return false;
    }
    auto drag = std::unique_ptr<ButtonDrag>(new ButtonDrag(std::move(copy), screen));
    drag->m_source = source.bar->m_hWnd;
    drag->m_item = item;
    return Start(std::move(drag), source.bar->GetTopLevelFrame());
}

CMFCToolBarButton* ButtonDrag::Button() const {
    const CMFCToolBar* const bar = Source();
    if (!m_command) {
        return bar != nullptr ? bar->GetButton(bar->ButtonToIndex(m_button)) : nullptr;
    }
    const bool isThere = m_item == nullptr || (bar != nullptr && OwnerOf(*bar, m_item) != nullptr);
    return isThere ? m_command.get() : nullptr;
}

CMFCToolBar* ButtonDrag::FindTarget(CPoint screen) const {
    if (CMFCPopupMenu* const menu = MenuAt(screen)) {
        return SourceOf(*menu) ? menu->GetMenuBar() : nullptr;
    }
    CMFCToolBar* const bar = BarAt(screen);
    return bar != nullptr && MayBeChanged(*bar) ? bar : nullptr;
}

// In a bar or a menu whose items may be changed. What is dragged does not open itself.
CMFCToolBarMenuButton* ButtonDrag::FindOpener(CPoint screen) const {
    CMFCPopupMenu* const menu = MenuAt(screen);
    CMFCToolBar* const bar = menu != nullptr ? menu->GetMenuBar() : BarAt(screen);
    if (bar == nullptr || (menu != nullptr ? !SourceOf(*menu) : bar->IsLocked())) {
        return nullptr;
    }
    CPoint point = screen;
    bar->ScreenToClient(&point);
    auto* const button = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, bar->GetButton(bar->HitTest(point)));
    const bool opens = button != nullptr && !button->GetCommands().IsEmpty() && button->CanBeStored();
    return opens ? button : nullptr;
}

fx::Rect ButtonDrag::MarkIn(const CMFCToolBar& bar) const {
    return m_isUnderWay && bar.m_hWnd == m_target ? m_place.mark : fx::Rect{};
}

void ButtonDrag::ShowMark(HWND target, const DropPlace& place) {
    if (m_target == target && m_place.mark == place.mark) {
        return;
    }
    for (const HWND window : {m_target, target}) {
        if (window != nullptr) {
            ::InvalidateRect(window, nullptr, FALSE);
        }
    }
    m_target = target;
    m_place = place;
}

void ButtonDrag::WaitOver(CMFCToolBarMenuButton* opener, const PageTab& tab) {
    if (opener == m_opener && tab == m_tab) {
        return;
    }
    m_opener = opener;
    m_tab = tab;
    KillTimer(kWaitTimer);
    const bool opens = opener != nullptr && opener != m_button && !opener->IsDroppedDown();
    if (opens || tab) {
        SetTimer(kWaitTimer, MenuDelay(), nullptr);
    }
}

// The host hears of both, and may end this.
void ButtonDrag::OnTimer(UINT_PTR nIDEvent) {
    KillTimer(nIDEvent);
    if (!m_isUnderWay) {
        return;
    }
    if (m_tab && m_tab == PageTabAt(m_last)) {
        ShowPage(m_tab);
        return;
    }
    CMFCToolBarMenuButton* const opener = FindOpener(m_last);
    if (opener != nullptr && opener == m_opener && !opener->IsDroppedDown()) {
        opener->OpenPopupMenu();
    }
}

void ButtonDrag::MoveTo(CPoint screen) {
    const bool isFar = std::abs(screen.x - m_start.x) >= ::GetSystemMetrics(SM_CXDRAG) ||
                       std::abs(screen.y - m_start.y) >= ::GetSystemMetrics(SM_CYDRAG);
    m_hasMoved = m_hasMoved || isFar;
    m_last = screen;
    CMFCToolBarButton* const button = Button();
    if (button == nullptr) {
        Cancel();
        return;
    }
    WaitOver(m_hasMoved ? FindOpener(screen) : nullptr, m_hasMoved ? PageTabAt(screen) : PageTab());
    CMFCToolBar* const target = FindTarget(screen);
    const bool isWelcome = target != nullptr && button->CanBeDropped(target);
    ShowMark(isWelcome && m_hasMoved ? target->m_hWnd : nullptr, isWelcome ? PlaceIn(*target, screen) : DropPlace{});
    ::SetCursor(::LoadCursorW(nullptr, isWelcome ? IDC_SIZEALL : IDC_NO));
}

void ButtonDrag::Stop() {
    m_isUnderWay = false;
    KillTimer(kWaitTimer);
    ShowMark(nullptr, {});
    ReleaseMouse();
}

// The window goes when nothing of it is on the way any more.
void ButtonDrag::Leave() {
    PostMessage(WM_CLOSE);
    if (m_hasMoved) {
        CMFCPopupMenu::CloseAll(); // the host hears of it
    }
}

void ButtonDrag::KeepOriginals(CMFCToolBar& bar) { bar.KeepOriginalButtons(); }

void ButtonDrag::Cancel() {
    if (m_isUnderWay) {
        Stop();
        Leave();
    }
}

void ButtonDrag::Remove(DROPEFFECT effect) {
    CMFCToolBar* const source = Source();
    CMFCToolBarButton* const button = Button();
    if (source == nullptr || button == nullptr) {
        return;
    }
    if (m_item != nullptr) {
        RemoveItem(*source, effect);
        return;
    }
    const fx::WindowGuard guard(this);
    if (!source->OnBeforeRemoveButton(button, effect) || guard.IsGone()) {
        return;
    }
    if (CMFCToolBar* const bar = Source(); bar != nullptr && Button() != nullptr) {
        bar->RemoveButton(bar->ButtonToIndex(m_button));
        bar->AdjustLayout();
    }
}

void ButtonDrag::RemoveItem(CMFCToolBar& source, DROPEFFECT effect) {
    const fx::WindowGuard guard(this);
    const fx::WindowGuard bar(&source);
    // The bar is asked for its menus as well, with the item itself.
    if (!source.OnBeforeRemoveButton(const_cast<CMFCToolBarMenuButton*>(m_item), effect) || guard.IsGone() ||
        bar.IsGone()) {
        return;
    }
    if (CMFCToolBarMenuButton* const owner = OwnerOf(source, m_item)) {
        toolbar::RemoveItem(*owner, m_item);
    }
}

void ButtonDrag::Finish(CPoint screen) {
    const fx::WindowGuard guard(this);
    MoveTo(screen);
    if (guard.IsGone() || !m_isUnderWay) {
        return;
    }
    const bool isCopy = IsFromList() || ::GetKeyState(VK_CONTROL) < 0;
    const DropPlace place = m_place;
    CMFCToolBar* const target = CMFCToolBar::FromHandlePermanent(m_target);
    const bool isBeside = MenuAt(screen) == nullptr && BarAt(screen) == nullptr;
    Stop();
    if (!m_hasMoved) {
        CMFCToolBarMenuButton* const opener = m_isByAlt ? nullptr : FindOpener(screen);
        if (opener != nullptr && !opener->IsDroppedDown()) {
            opener->OpenPopupMenu(); // a click
        }
    } else if (auto* const menu = DYNAMIC_DOWNCAST(CMFCPopupMenuBar, target)) {
        DropIntoMenu(*menu, place.index, isCopy);
    } else if (target != nullptr) {
        Drop(*target, place.index, isCopy);
    } else if (!isCopy && isBeside) {
        Source()->KeepOriginalButtons();
        Remove(DROPEFFECT_NONE);
    }
    if (guard.IsAlive()) {
        Leave();
    }
}

void ButtonDrag::Drop(CMFCToolBar& target, int place, bool isCopy) {
    CMFCToolBar* const source = Source();
    CMFCToolBarButton* const button = Button();
    const int index = source != nullptr ? source->ButtonToIndex(button) : -1;
    const bool staysWhereItIs = !isCopy && source == &target && index >= 0 && (place == index || place == index + 1);
    const fx::WindowGuard guard(&target);
    const fx::WindowGuard self(this);
    if (staysWhereItIs || !button->OnBeforeDrop(&target) || self.IsGone() || guard.IsGone() || Button() == nullptr) {
        return;
    }
    if (CMFCToolBar* const bar = Source()) {
        bar->KeepOriginalButtons();
    }
    target.KeepOriginalButtons();
    if (m_item != nullptr) {
        target.InsertButton(BarButtonFor(static_cast<const CMFCToolBarMenuButton&>(*m_command)).release(), place);
    } else {
        target.InsertButton(*button, place);
    }
    if (!isCopy) {
        Remove(DROPEFFECT_MOVE);
    }
    if (guard.IsAlive()) {
        target.AdjustLayout();
    }
}

void ButtonDrag::DropIntoMenu(CMFCPopupMenuBar& target, int row, bool isCopy) {
    const fx::WindowGuard guard(&target);
    const fx::WindowGuard self(this);
    if (!Button()->OnBeforeDrop(&target) || self.IsGone() || guard.IsGone() || Button() == nullptr) {
        return;
    }
    const MenuSource menu = SourceOf(*target.GetParentPopup());
    std::unique_ptr<CMFCToolBarMenuButton> item = menu ? MenuItemFor(*Button()) : nullptr;
    // A menu cannot come to lie in itself, and what nobody can read is of no use in one.
    const CMFCToolBarMenuButton* const dragged =
        m_item != nullptr ? m_item : DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, Button());
    if (!item || item->m_strText.IsEmpty() || (dragged != nullptr && IsWithin(*dragged, menu.owner))) {
        return;
    }
    for (CMFCToolBar* const bar : {Source(), menu.bar}) {
        if (bar != nullptr) {
            bar->KeepOriginalButtons();
        }
    }
    InsertItem(*menu.owner, std::move(item), PlaceBeforeRow(target, *menu.owner, row));
    if (!isCopy) {
        Remove(DROPEFFECT_MOVE);
    }
}

} // namespace toolbar

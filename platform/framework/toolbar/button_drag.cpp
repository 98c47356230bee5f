#include "toolbar/button_drag.h"

#include "afxmenubar.h"
#include "fx/to_rect.h"
#include "fx/window_guard.h"
#include "toolbar/button_copy.h"

#include <cstdlib>
#include <utility>

#include <ole2.h>

namespace toolbar {

namespace {

bool MayBeChanged(const CMFCToolBar& bar) {
    return bar.IsWindowVisible() && !bar.IsLocked() && !bar.IsKindOf(RUNTIME_CLASS(CMFCMenuBar));
}

/// No other window of the program's, a dialog, lies over the bar there.
bool IsInSight(const CMFCToolBar& bar, CPoint screen) {
    const HWND top = ::WindowFromPoint(screen);
    const bool isOurs = top != nullptr && ::GetWindowThreadProcessId(top, nullptr) == ::GetCurrentThreadId();
    return !isOurs || ::GetAncestor(top, GA_ROOT) == ::GetAncestor(bar.m_hWnd, GA_ROOT);
}

DropPlace PlaceIn(const CMFCToolBar& bar, CPoint screen) {
    std::vector<fx::Rect> buttons;
    for (int index = 0; index < bar.GetCount(); ++index) {
        buttons.push_back(fx::FromRect(bar.GetButton(index)->Rect()));
    }
    CPoint point = screen;
    bar.ScreenToClient(&point);
    return FindDropPlace(buttons, fx::FromPoint(point), bar.IsHorizontal() != FALSE);
}

} // namespace

ButtonDrag* ButtonDrag::Current() { return dynamic_cast<ButtonDrag*>(DragWindow::Current()); }

ButtonDrag::ButtonDrag(const CMFCToolBar& bar, const CMFCToolBarButton& button, CPoint screen, bool isByAlt)
    : m_source(bar.m_hWnd), m_button(&button), m_isByAlt(isByAlt), m_start(screen) {}

ButtonDrag::ButtonDrag(std::unique_ptr<CMFCToolBarButton> command, CPoint screen)
    : m_command(std::move(command)), m_source(nullptr), m_button(m_command.get()), m_isByAlt(false), m_start(screen) {}

bool ButtonDrag::BeginWithCommand(const CMFCToolBarButton& command, CWnd& frame, CPoint screen) {
    std::unique_ptr<CMFCToolBarButton> copy = CopyOf(command);
    if (DragWindow::Current() != nullptr || !copy || !copy->OnBeforeDrag()) {
        return false;
    }
    auto drag = std::unique_ptr<ButtonDrag>(new ButtonDrag(std::move(copy), screen));
    if (!drag->TakeMouse(&frame)) {
        return false;
    }
    drag.release(); // it is the window's own now
    return true;
}

bool ButtonDrag::Begin(CMFCToolBar& bar, const CMFCToolBarButton& button, CPoint screen, bool isByAlt) {
    const bool isProtected = CMFCToolBarButton::GetProtectedCommands().Find(button.m_nID) != nullptr;
    if (DragWindow::Current() != nullptr || !MayBeChanged(bar) || isProtected || !button.IsEditable() ||
        !button.OnBeforeDrag()) {
        return false;
    }
    auto drag = std::unique_ptr<ButtonDrag>(new ButtonDrag(bar, button, screen, isByAlt));
    if (!drag->TakeMouse(bar.GetTopLevelFrame())) {
        return false;
    }
    drag.release(); // it is the window's own now
    return true;
}

CMFCToolBarButton* ButtonDrag::Button() const {
    if (m_command) {
        return m_command.get();
    }
    const CMFCToolBar* const bar = Source();
    return bar != nullptr ? bar->GetButton(bar->ButtonToIndex(m_button)) : nullptr;
}

// Those that float lie over the others.
CMFCToolBar* ButtonDrag::FindTarget(CPoint screen) const {
    CMFCToolBar* found = nullptr;
    for (POSITION position = CMFCToolBar::GetAllToolbars().GetHeadPosition(); position != nullptr;) {
        auto* const bar =
            const_cast<CMFCToolBar*>(static_cast<const CMFCToolBar*>(CMFCToolBar::GetAllToolbars().GetNext(position)));
        CRect window;
        bar->GetWindowRect(&window);
        if (window.PtInRect(screen) && IsInSight(*bar, screen) && MayBeChanged(*bar) &&
            (found == nullptr || bar->IsFloating())) {
            found = bar;
        }
    }
    return found;
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

void ButtonDrag::MoveTo(CPoint screen) {
    const bool isFar = std::abs(screen.x - m_start.x) >= ::GetSystemMetrics(SM_CXDRAG) ||
                       std::abs(screen.y - m_start.y) >= ::GetSystemMetrics(SM_CYDRAG);
    m_hasMoved = m_hasMoved || isFar;
    CMFCToolBarButton* const button = Button();
    if (button == nullptr) {
        Cancel();
        return;
    }
    CMFCToolBar* const target = FindTarget(screen);
    const bool isWelcome = target != nullptr && button->CanBeDropped(target);
    ShowMark(isWelcome && m_hasMoved ? target->m_hWnd : nullptr, isWelcome ? PlaceIn(*target, screen) : DropPlace{});
    ::SetCursor(::LoadCursorW(nullptr, isWelcome ? IDC_SIZEALL : IDC_NO));
}

// The window goes when nothing of it is on the way any more.
void ButtonDrag::End() {
    m_isUnderWay = false;
    ShowMark(nullptr, {});
    ReleaseMouse();
    PostMessage(WM_CLOSE);
}

void ButtonDrag::Cancel() {
    if (m_isUnderWay) {
        End();
    }
}

void ButtonDrag::Remove(DROPEFFECT effect) {
    CMFCToolBar* const source = Source();
    CMFCToolBarButton* const button = Button();
    if (button == nullptr || !source->OnBeforeRemoveButton(button, effect)) {
        return;
    }
    if (CMFCToolBar* const bar = Source(); bar != nullptr && Button() != nullptr) {
        bar->RemoveButton(bar->ButtonToIndex(m_button));
        bar->AdjustLayout();
    }
}

void ButtonDrag::Finish(CPoint screen) {
    MoveTo(screen);
    if (!m_isUnderWay) {
        return;
    }
    const bool isCopy = m_command || ::GetKeyState(VK_CONTROL) < 0;
    const DropPlace place = m_place;
    CMFCToolBar* const target = CMFCToolBar::FromHandlePermanent(m_target);
    const bool hasEnd = m_hasMoved && Button() != nullptr;
    End();
    if (!hasEnd) {
        return;
    }
    if (target != nullptr) {
        Drop(*target, place.index, isCopy);
    } else if (!isCopy && FindTarget(screen) == nullptr) { // else that bar has refused it
        Source()->KeepOriginalButtons();
        Remove(DROPEFFECT_NONE);
    }
}

void ButtonDrag::Drop(CMFCToolBar& target, int place, bool isCopy) {
    CMFCToolBar* const source = Source();
    CMFCToolBarButton* const button = Button();
    const int index = source != nullptr ? source->ButtonToIndex(button) : -1;
    const bool staysWhereItIs = !isCopy && source == &target && (place == index || place == index + 1);
    const fx::WindowGuard guard(&target);
    if (staysWhereItIs || !button->OnBeforeDrop(&target) || guard.IsGone() || Button() == nullptr) {
        return;
    }
    if (CMFCToolBar* const bar = Source()) {
        bar->KeepOriginalButtons();
    }
    target.KeepOriginalButtons();
    target.InsertButton(*button, place);
    if (!isCopy) {
        Remove(DROPEFFECT_MOVE);
    }
    if (guard.IsAlive()) {
        target.AdjustLayout();
    }
}

} // namespace toolbar

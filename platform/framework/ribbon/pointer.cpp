#include "ribbon/pointer.h"

#include <utility>

#include "afxbaseribbonelement.h"
#include "fx/ribbon_host.h"
#include "fx/window_guard.h"
#include "ribbon/edit_tool.h"

namespace {

constexpr int kFarAway = -32000;

void LetPointerGo(HWND window) {
    if (::IsWindow(window) && ::GetCapture() == window) {
        ::ReleaseCapture();
    }
}

int KeyboardDelay() {
    int setting = 1;
    ::SystemParametersInfo(SPI_GETKEYBOARDDELAY, 0, &setting, 0);
    return setting;
}

} // namespace

bool RibbonPointer::TakesInput(const CMFCRibbonBaseElement& element) {
    return !element.IsDisabled() && !element.IsSeparator();
}

void RibbonPointer::SetHot(CMFCRibbonBaseElement* element) {
    if (element != nullptr && element->IsSeparator()) {
        element = nullptr;
    }
    if (m_state.Hot() == element) {
        return;
    }
    if (CMFCRibbonBaseElement* former = m_state.SetHot(element)) {
        former->SetHighlighted(FALSE);
    }
    if (element != nullptr) {
        element->SetHighlighted(TRUE);
    }
    m_target.OnHotChanged(element);
}

void RibbonPointer::Press(CMFCRibbonBaseElement& element, CPoint point) {
    const fx::WindowGuard guard(&m_window);
    m_state.Press(element);
    ::SetCapture(guard.Handle());
    element.SetPressed(TRUE);
    element.Redraw();
    m_target.TellPressed(element, point);
    if (guard.IsGone() || !m_state.IsPressed()) {
        return;
    }
    CMFCRibbonBaseElement* pressed = m_state.Pressed();
    if (pressed->IsDroppedDown()) {
        m_state.Drop()->SetPressed(FALSE);
        LetPointerGo(guard.Handle());
        return;
    }
    int delay = 0;
    if (pressed->IsAutoRepeatMode(delay)) {
        m_repeatDelay = static_cast<UINT>(delay);
        m_isFirstRepeat = true;
        m_window.SetTimer(kTimer, ribbon::FirstRepeatDelay(KeyboardDelay(), m_repeatDelay), nullptr);
    }
}

RibbonPointer::Released RibbonPointer::Release(CPoint point) {
    const fx::WindowGuard guard(&m_window);
    if (CMFCRibbonBaseElement* dropped = m_state.ReleaseDropped()) {
        dropped->OnLButtonUp(point);
        return guard.IsAlive() ? Released::Element : Released::WindowGone;
    }
    CMFCRibbonBaseElement* element = m_state.BeginRelease();
    if (element == nullptr) {
        return Released::Nothing;
    }
    m_window.KillTimer(kTimer);
    LetPointerGo(guard.Handle());
    if (guard.IsGone()) {
        return Released::WindowGone;
    }
    if (!m_state.IsReleasing()) {
        return Released::Element;
    }
    element->OnLButtonUp(point);
    if (guard.IsGone()) {
        return Released::WindowGone;
    }
    if (CMFCRibbonBaseElement* released = m_state.EndRelease()) {
        released->SetPressed(FALSE);
        released->Redraw();
    }
    return Released::Element;
}

void RibbonPointer::Move(CMFCRibbonBaseElement* hit, CPoint point) {
    SetHot(m_state.HotOver(hit));
    if (CMFCRibbonBaseElement* element = m_state.IsPressed() ? m_state.Pressed() : m_state.Hot()) {
        element->OnMouseMove(point);
    }
}

void RibbonPointer::Leave(CMFCRibbonBaseElement* stays) {
    m_tracksLeave = false;
    if (!m_state.IsPressed() && !IsPointerInEdit(m_state.Hot())) {
        SetHot(stays);
    }
}

void RibbonPointer::OnEdit(CMFCRibbonBaseElement& edit, bool isInside) {
    if (m_state.IsPressed()) {
        return;
    }
    if (isInside) {
        SetHot(&edit);
    } else if (m_state.Hot() == &edit && !m_tracksLeave) {
        SetHot(nullptr);
    }
}

void RibbonPointer::Cancel() {
    CMFCRibbonBaseElement* element = m_state.Cancel();
    if (element == nullptr) {
        return;
    }
    const HWND window = m_window.GetSafeHwnd();
    ::KillTimer(window, kTimer);
    element->SetPressed(FALSE);
    // Whatever the element is in the middle of ends here; no element acts on a release so far away.
    element->OnLButtonUp(CPoint(kFarAway, kFarAway));
    LetPointerGo(window);
}

bool RibbonPointer::OnCaptureLost() {
    const bool ends = m_state.IsPressed();
    Cancel();
    return ends;
}

// The first repeat has waited longer: a click is no held button.
void RibbonPointer::OnTimer() {
    const fx::WindowGuard guard(&m_window);
    if (std::exchange(m_isFirstRepeat, false)) {
        m_window.SetTimer(kTimer, m_repeatDelay, nullptr);
    }
    const bool goesOn = m_state.IsPressed() && m_state.Pressed()->OnAutoRepeat();
    if (!goesOn && guard.IsAlive()) {
        m_window.KillTimer(kTimer);
    }
}

void RibbonPointer::TrackLeave() {
    if (!m_tracksLeave) {
        TRACKMOUSEEVENT track{sizeof(track), TME_LEAVE, m_window.GetSafeHwnd(), 0};
        m_tracksLeave = ::TrackMouseEvent(&track) != FALSE;
    }
}

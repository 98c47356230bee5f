#include "ribbon/press.h"

#include <utility>

#include "afxbaseribbonelement.h"

namespace {

constexpr int kFarAway = -32000;

void LetPointerGo(HWND window) {
    if (::IsWindow(window) && ::GetCapture() == window) {
        ::ReleaseCapture();
    }
}

} // namespace

void RibbonPress::Start(CWnd& window, CMFCRibbonBaseElement& element, const std::function<void()>& tellElement) {
    const HWND handle = window.GetSafeHwnd();
    m_window = handle;
    m_element = &element;
    m_dropped = nullptr;
    ::SetCapture(handle);
    element.SetPressed(TRUE);
    element.Redraw();
    tellElement();
    if (!::IsWindow(handle) || m_element == nullptr) {
        return;
    }
    if (m_element->IsDroppedDown()) {
        m_dropped = std::exchange(m_element, nullptr);
        m_dropped->SetPressed(FALSE);
        LetPointerGo(handle);
        return;
    }
    int delay = 0;
    if (m_element->IsAutoRepeatMode(delay)) {
        ::SetTimer(handle, kTimer, static_cast<UINT>(delay), nullptr);
    }
}

RibbonPress::Released RibbonPress::Release(CPoint point) {
    if (CMFCRibbonBaseElement* dropped = std::exchange(m_dropped, nullptr)) {
        const HWND window = m_window;
        dropped->OnLButtonUp(point);
        return ::IsWindow(window) ? Released::Element : Released::WindowGone;
    }
    CMFCRibbonBaseElement* element = std::exchange(m_element, nullptr);
    if (element == nullptr) {
        return Released::Nothing;
    }
    const HWND window = m_window;
    ::KillTimer(window, kTimer);
    m_releasing = element;
    LetPointerGo(window);
    if (!::IsWindow(window)) {
        return Released::WindowGone;
    }
    if (m_releasing == nullptr) {
        return Released::Element;
    }
    element->OnLButtonUp(point);
    if (!::IsWindow(window)) {
        return Released::WindowGone;
    }
    if (CMFCRibbonBaseElement* released = std::exchange(m_releasing, nullptr)) {
        released->SetPressed(FALSE);
        released->Redraw();
    }
    return Released::Element;
}

void RibbonPress::Cancel() {
    m_dropped = nullptr;
    CMFCRibbonBaseElement* element = std::exchange(m_element, nullptr);
    if (element == nullptr) {
        return;
    }
    const HWND window = m_window;
    ::KillTimer(window, kTimer);
    element->SetPressed(FALSE);
    // Whatever the element is in the middle of ends here; no element acts on a release so far away.
    element->OnLButtonUp(CPoint(kFarAway, kFarAway));
    LetPointerGo(window);
}

void RibbonPress::OnTimer(HWND window) {
    const bool goesOn = m_element != nullptr && m_element->OnAutoRepeat();
    if (!goesOn && ::IsWindow(window)) {
        ::KillTimer(window, kTimer);
    }
}

void RibbonPress::Forget(const CMFCRibbonBaseElement* element) {
    for (CMFCRibbonBaseElement** holder : {&m_element, &m_releasing, &m_dropped}) {
        if (*holder == element) {
            *holder = nullptr;
        }
    }
}

#pragma once

#include "fx/wnd.h"

namespace fx {

/// Answers, after foreign code has run, whether a window is still there.
///
/// A handler of the host, a command, a virtual function or a message that is sent may destroy any window, the one whose
/// member function is running included. Whoever goes on afterwards makes a guard before the call and asks it after:
///
///     const fx::WindowGuard guard(this);
///     SendMessage(...);
///     if (guard.IsGone()) {
///         return;   // "this" may be deleted: touch no member any more
///     }
///
/// Made from an object, the guard watches the object and its window together: it says "gone" too when the object let go
/// of the window (CWnd::Detach) or created another one meanwhile, for then the pointer may dangle though the handle
/// lives. Made from a handle, or from a temporary object (CWnd::FromHandle), it watches the window alone and promises
/// nothing about an object.
///
/// It owns nothing, costs two words, never touches the object, and may be copied and kept. Ask it on the thread that
/// the window belongs to: the table of objects is the thread's own. A window that was never created counts as gone.
class [[nodiscard]] WindowGuard {
public:
    explicit WindowGuard(const CWnd* window)
        : m_object(window), m_handle(window != nullptr ? window->m_hWnd : nullptr) {
        if (CWnd::FromHandlePermanent(m_handle) != window) {
            m_object = nullptr;
        }
    }
    explicit WindowGuard(HWND window) : m_handle(window) {}

    bool IsAlive() const {
        return ::IsWindow(m_handle) && (m_object == nullptr || CWnd::FromHandlePermanent(m_handle) == m_object);
    }
    bool IsGone() const { return !IsAlive(); }
    /// The watched window, for a call that wants its handle; null when there was none.
    HWND Handle() const { return m_handle; }

private:
    const CWnd* m_object = nullptr;
    HWND m_handle;
};

} // namespace fx

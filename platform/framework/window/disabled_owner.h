#pragma once

#include "afxwin.h"

namespace fx {

/// The owner of a modal window, which takes no input while the object lives: otherwise nobody could use it any more
/// where the window ends by an exception.
class DisabledOwner {
public:
    /// `parent` null: the owner that windows of the program have then (CWnd::GetSafeOwner).
    explicit DisabledOwner(CWnd* parent)
        : m_owner(CWnd::GetSafeOwner(parent, &m_top)),
          m_window(m_owner->GetSafeHwnd()),
          m_isDisabled(m_window && ::IsWindowEnabled(m_window)) {
        if (m_isDisabled) {
            ::EnableWindow(m_window, FALSE);
        }
    }
    ~DisabledOwner() {
        Enable(nullptr);
        if (m_top) {
            ::EnableWindow(m_top, TRUE);
        }
    }
    DisabledOwner(const DisabledOwner&) = delete;
    DisabledOwner& operator=(const DisabledOwner&) = delete;

    CWnd* Get() const { return m_owner; }
    /// Before the modal window goes, else the system would activate another program's window.
    void Enable(HWND modal) {
        if (m_isDisabled) {
            m_isDisabled = false;
            ::EnableWindow(m_window, TRUE);
            if (modal && ::GetActiveWindow() == modal) {
                ::SetActiveWindow(m_window);
            }
        }
    }

private:
    HWND m_top = nullptr; ///< that GetSafeOwner has disabled
    CWnd* m_owner;
    HWND m_window;
    bool m_isDisabled;
};

} // namespace fx

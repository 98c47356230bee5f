#pragma once

#include <functional>

#include <afxwin.h>

class CMFCRibbonBaseElement;

/// The element that the pointer presses in a window that shows elements, with the capture and the repeats that belong
/// to a press. The element may close the window from any of its handlers; what a function answers says whether the
/// window, and this object with it, is still there. Part of what the window keeps.
class RibbonPress {
public:
    /// The window's timer for repeats.
    static constexpr UINT_PTR kTimer = 3;

    /// The pressed element; null when there is none.
    CMFCRibbonBaseElement* GetElement() const { return m_element; }
    bool IsActive() const { return m_element != nullptr; }

    /// Presses the element; tellElement hands it the press. When that drops down its pop-up the press is over: the
    /// pointer is let go, so that the same press may end on an item of the pop-up.
    void Start(CWnd& window, CMFCRibbonBaseElement& element, const std::function<void()>& tellElement);
    /// The button was released over this window.
    enum class Released { Nothing, Element, WindowGone };
    Released Release(CPoint point);
    /// Ends the press without a click.
    void Cancel();
    void OnTimer(HWND window);

    void Forget(const CMFCRibbonBaseElement* element);
    /// An element that is just being released is not looked at afterwards.
    void ForgetReleased() { m_releasing = nullptr; }

private:
    HWND m_window = nullptr;
    CMFCRibbonBaseElement* m_element = nullptr;
    CMFCRibbonBaseElement* m_releasing = nullptr; // gets the button's release now
    CMFCRibbonBaseElement* m_dropped = nullptr;   // its press has opened its pop-up; the button is still down
};

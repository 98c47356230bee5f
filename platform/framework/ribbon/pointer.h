#pragma once

#include <afxwin.h>

#include "ribbon/pointer_state.h"

class CMFCRibbonBaseElement;
class RibbonPointerTarget;

/// The pointer over a window that shows elements, one for bars and pop-ups: what it lights, what it presses, with the
/// capture, the repeats and the drags that belong to a press, and the message of its leaving. Part of what the window
/// keeps. An element may end the window from any of its handlers; what a function answers says whether the window, and
/// this object with it, is still there.
class RibbonPointer {
public:
    /// The window's timer for repeats.
    static constexpr UINT_PTR kTimer = 3;

    RibbonPointer(CWnd& window, RibbonPointerTarget& target) : m_window(window), m_target(target) {}

    CMFCRibbonBaseElement* GetHot() const { return m_state.Hot(); }
    CMFCRibbonBaseElement* GetPressed() const { return m_state.Pressed(); }
    bool IsPressed() const { return m_state.IsPressed(); }
    /// WM_MOUSELEAVE will come.
    bool TracksLeave() const { return m_tracksLeave; }

    /// Lights the element, null for none; a separator is none.
    void SetHot(CMFCRibbonBaseElement* element);
    /// Nothing is lit any more, and nobody is told: the elements may be gone.
    void ForgetHot() { m_state.SetHot(nullptr); }

    /// Presses the element. When it drops down its pop-up the press is over: the pointer is let go, so that the same
    /// press may end on an item of the pop-up.
    void Press(CMFCRibbonBaseElement& element, CPoint point);
    /// The button was released over this window.
    enum class Released { Nothing, Element, WindowGone };
    Released Release(CPoint point);
    /// The pointer is at the point, over the element; nothing is looked at afterwards.
    void Move(CMFCRibbonBaseElement* hit, CPoint point);
    /// The pointer has left; it lights `stays`, unless it holds something or is in an edit.
    void Leave(CMFCRibbonBaseElement* stays = nullptr);
    /// The pointer is in the edit window of an element, or has left it.
    void OnEdit(CMFCRibbonBaseElement& edit, bool isInside);
    /// Ends the press without a click.
    void Cancel();
    /// The capture went to another window. True: that has ended a press.
    bool OnCaptureLost();
    void OnTimer();
    /// Asks for WM_MOUSELEAVE, unless it is on its way already.
    void TrackLeave();

    void Forget(const CMFCRibbonBaseElement* element) { m_state.Forget(element); }
    /// An element that is just being released is not looked at afterwards.
    void ForgetReleased() { m_state.ForgetReleased(); }

    static bool TakesInput(const CMFCRibbonBaseElement& element);

private:
    CWnd& m_window;
    RibbonPointerTarget& m_target;
    ribbon::PointerState<CMFCRibbonBaseElement> m_state;
    UINT m_repeatDelay = 0; // between two repeats of the press
    bool m_isFirstRepeat = false;
    bool m_tracksLeave = false;
};

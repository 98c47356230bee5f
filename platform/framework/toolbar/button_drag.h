#pragma once

#include "afxtoolbar.h"

#include "toolbar/drop_place.h"
#include "window/drag_window.h"

namespace toolbar {

/// A toolbar's button in its user's hand, from the press on. The window deletes itself afterwards. Over a toolbar the
/// gap is marked in which the button would come to lie; beside all of them it is removed when it is let go. With Ctrl a
/// copy is made. Esc, or the loss of the mouse, ends it.
class ButtonDrag : public fx::DragWindow {
public:
    /// FALSE: nothing can be dragged there, and nothing has begun.
    static bool Begin(CMFCToolBar& bar, const CMFCToolBarButton& button, CPoint screen, bool isByAlt);
    /// Of this thread; null when nothing is dragged.
    static ButtonDrag* Current();

    void Cancel() override;
    bool IsOf(const CMFCToolBarButton* button) const { return m_isUnderWay && button && m_button == button; }
    bool IsByAlt() const { return m_isByAlt; }
    /// The gap in the bar, its client pixels; empty: the button would not come to lie there.
    fx::Rect MarkIn(const CMFCToolBar& bar) const;

protected:
    bool IsUnderWay() const override { return m_isUnderWay; }
    void MoveTo(CPoint screen) override;
    void Finish(CPoint screen) override;
    void PostNcDestroy() override { delete this; }

private:
    ButtonDrag(const CMFCToolBar& bar, const CMFCToolBarButton& button, CPoint screen, bool isByAlt);

    /// The button, as long as its bar has it.
    CMFCToolBarButton* Button() const;
    CMFCToolBar* Source() const { return CMFCToolBar::FromHandlePermanent(m_source); }
    CMFCToolBar* FindTarget(CPoint screen) const;
    void ShowMark(HWND target, const DropPlace& place);
    void End();
    void Remove(DROPEFFECT effect);

    HWND m_source;
    const CMFCToolBarButton* m_button;
    bool m_isByAlt;
    bool m_isUnderWay = true;
    bool m_hasMoved = false;
    CPoint m_start;
    HWND m_target = nullptr;
    DropPlace m_place;
};

} // namespace toolbar

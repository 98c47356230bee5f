#pragma once

#include "afxtoolbar.h"

#include "toolbar/drop_place.h"
#include "window/drag_window.h"

#include <memory>

namespace toolbar {

/// A toolbar's button in its user's hand, from the press on. The window deletes itself afterwards. Over a toolbar the
/// gap is marked in which the button would come to lie; beside all of them it is removed when it is let go. With Ctrl a
/// copy is made. Esc, or the loss of the mouse, ends it. A command from a list lies in no bar: copies of it are
/// dropped, and beside all bars nothing happens.
class ButtonDrag : public fx::DragWindow {
public:
    /// FALSE: nothing can be dragged there, and nothing has begun.
    static bool Begin(CMFCToolBar& bar, const CMFCToolBarButton& button, CPoint screen, bool isByAlt);
    /// A command that is in no bar yet, copied; `frame` is the window above the bars that it may come to.
    static bool BeginWithCommand(const CMFCToolBarButton& command, CWnd& frame, CPoint screen);
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
    ButtonDrag(std::unique_ptr<CMFCToolBarButton> command, CPoint screen);

    /// The button, as long as its bar has it.
    CMFCToolBarButton* Button() const;
    CMFCToolBar* Source() const { return CMFCToolBar::FromHandlePermanent(m_source); }
    CMFCToolBar* FindTarget(CPoint screen) const;
    void ShowMark(HWND target, const DropPlace& place);
    void End();
    void Remove(DROPEFFECT effect);
    /// Into the bar, of which the button may be a part already.
    void Drop(CMFCToolBar& target, int place, bool isCopy);

    std::unique_ptr<CMFCToolBarButton> m_command; ///< null: the button is one of a bar
    HWND m_source;                                ///< null: of none
    const CMFCToolBarButton* m_button;
    bool m_isByAlt;
    bool m_isUnderWay = true;
    bool m_hasMoved = false;
    CPoint m_start;
    HWND m_target = nullptr;
    DropPlace m_place;
};

} // namespace toolbar

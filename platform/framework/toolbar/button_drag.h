#pragma once

#include "afxtoolbar.h"

#include "toolbar/drop_place.h"
#include "toolbar/page_tab.h"
#include "window/drag_window.h"

#include <memory>

class CMFCPopupMenuBar;
class CMFCToolBarMenuButton;

namespace toolbar {

/// A toolbar's button, or an item of a menu, in its user's hand, from the press on. The window deletes itself
/// afterwards. Over a toolbar, and over an open menu of a bar, the gap is marked in which it would come to lie; a
/// button that opens a menu opens it when the pointer rests there, and the page of a tab that it rests on comes to the
/// front: what is dragged may come from one page and belong to another. Beside all bars and menus it is removed when it
/// is let go. With Ctrl a copy is made. Esc, or the loss of the mouse, ends it. A command from a list lies in no bar:
/// copies of it are dropped, and beside all bars nothing happens. Whatever menus were open are closed at the end.
class ButtonDrag : public fx::DragWindow {
public:
    /// FALSE: nothing can be dragged there, and nothing has begun.
    static bool Begin(CMFCToolBar& bar, const CMFCToolBarButton& button, CPoint screen, bool isByAlt);
    /// A command that is in no bar yet, copied; `frame` is the window above the bars that it may come to.
    static bool BeginWithCommand(const CMFCToolBarButton& command, CWnd& frame, CPoint screen);
    /// The item that a row of an open menu shows.
    static bool BeginWithRow(const CMFCPopupMenuBar& menu, int row, CPoint screen);
    /// Of this thread; null when nothing is dragged.
    static ButtonDrag* Current();
    /// Before the user's first change of a bar, however he makes it: what it is put back to.
    static void KeepOriginals(CMFCToolBar& bar);

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

    afx_msg void OnTimer(UINT_PTR nIDEvent);
    DECLARE_MESSAGE_MAP()

private:
    ButtonDrag(const CMFCToolBar& bar, const CMFCToolBarButton& button, CPoint screen, bool isByAlt);
    ButtonDrag(std::unique_ptr<CMFCToolBarButton> command, CPoint screen);
    static bool Start(std::unique_ptr<ButtonDrag> drag, CWnd* parent);

    /// What is dragged, as long as its bar has it.
    CMFCToolBarButton* Button() const;
    CMFCToolBar* Source() const { return CMFCToolBar::FromHandlePermanent(m_source); }
    bool IsFromList() const { return m_command && m_item == nullptr; }
    CMFCToolBar* FindTarget(CPoint screen) const;
    CMFCToolBarMenuButton* FindOpener(CPoint screen) const;
    /// Starts to wait where the pointer begins to rest on something else.
    void WaitOver(CMFCToolBarMenuButton* opener, const PageTab& tab);
    void ShowMark(HWND target, const DropPlace& place);
    void Stop();
    void Leave();
    void Remove(DROPEFFECT effect);
    void RemoveItem(CMFCToolBar& source, DROPEFFECT effect);
    /// Into the bar, of which the button may be a part already.
    void Drop(CMFCToolBar& target, int place, bool isCopy);
    void DropIntoMenu(CMFCPopupMenuBar& target, int row, bool isCopy);

    std::unique_ptr<CMFCToolBarButton> m_command; ///< of a list, or of a menu's item; null: the button is one of a bar
    HWND m_source;                                ///< null: of none
    const CMFCToolBarButton* m_button;
    const CMFCToolBarMenuButton* m_item = nullptr; ///< of a menu of the source; only compared
    bool m_isByAlt;
    bool m_isUnderWay = true;
    bool m_hasMoved = false;
    CPoint m_start;
    CPoint m_last;
    const CMFCToolBarMenuButton* m_opener = nullptr; ///< the pointer rests on it; only compared
    PageTab m_tab;                                   ///< or on this
    HWND m_target = nullptr;
    DropPlace m_place;
};

} // namespace toolbar

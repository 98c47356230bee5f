#pragma once

#include "afxDockingManager.h"
#include "fx/frame.h"

#include <memory>
#include <vector>

class CMFCMenuBar;
class CMFCPopupMenu;
class CMFCRibbonBar;
class CMFCToolBar;
class CMFCToolBarButton;

/// What fx::BarFrameOf leaves to a class that does not depend on the kind of frame: special panes, the open popup, keys
/// and caption of the ribbon. Part of the frame.
class FRAMEWORK_API CFrameImpl {
public:
    CFrameImpl(CFrameWnd* frame, CDockingManager& dockingManager);
    ~CFrameImpl();
    CFrameImpl(const CFrameImpl&) = delete;
    CFrameImpl& operator=(const CFrameImpl&) = delete;

    /// Before the frame's first pane is made.
    bool Create();
    /// What the frame's panes keep below the application's base section, and which toolbars the user has made.
    BOOL LoadState();
    BOOL SaveState();
    /// A toolbar that the user makes and names: docked at the top, the frame's own. Null: there are too many, or it
    /// could not be made.
    CMFCToolBar* CreateUserToolBar(LPCTSTR name);
    /// FALSE: it is none of those.
    BOOL DeleteUserToolBar(const CMFCToolBar* bar);
    /// The frame and its panes are made: the application loads their state (CWinAppEx::LoadState), if it has a registry
    /// key to keep it below.
    void OnLoadFrame();
    CFrameWnd* Frame() const { return m_frame; }
    /// The first ribbon among the panes, else null.
    CMFCRibbonBar* RibbonBar();
    /// The first menu bar among the panes, else null.
    CMFCMenuBar* MenuBar() const;
    /// Hands a turn of the wheel above the ribbon to the ribbon, whoever has the focus. TRUE: the message is done.
    BOOL HandWheelToRibbon(const MSG& message);
    /// A key while the ribbon's keyboard is active comes before the accelerators, one that would start it (Alt, F10,
    /// Alt with a letter, Ctrl+F1) after them. A click ends the keyboard. TRUE: the message is done.
    BOOL HandActiveKeyToRibbon(const MSG& message);
    BOOL HandKeyToRibbon(const MSG& message);
    /// The same for a menu bar that is shown.
    BOOL HandActiveKeyToMenuBar(const MSG& message);
    BOOL HandKeyToMenuBar(const MSG& message);

    /// F6 and Shift+F6 in the frame or one of its panes: the focus goes on to the next of ribbon, panes and document.
    BOOL MoveFocusToNextPane(BOOL forward);

    // The ribbon as the frame's caption: the frame gives up the system's (WS_CAPTION) while a ribbon that replaces it
    // is shown, and answers the system for it.
    /// Takes the caption away or gives it back, as the ribbon says now. Before each layout.
    void UpdateCaptionStyle();
    bool ReplacesCaption() const { return m_replacesCaption; }
    /// Modal. Screen point; what was chosen is posted to the frame.
    void ShowSystemMenu(CPoint point);

    /// The DefWindowProc of the frame's base class.
    using SystemProc = LRESULT (*)(CFrameWnd& frame, UINT message, WPARAM wParam, LPARAM lParam);
    /// The frame's DefWindowProc: what it does itself, then or instead what the system does.
    LRESULT OnDefault(UINT message, WPARAM wParam, LPARAM lParam, SystemProc system);
    /// Another look may shape the window differently: lays out and redraws everything.
    void OnChangeVisualManager();

    /// A menu that opens shows the panes in place of its item `entry`; 0: of none.
    void SetPaneEntry(UINT entry, bool showsToolbarsOnly);
    void OnShowPopupMenu(CMFCPopupMenu* popup);
    void OnClosePopupMenu(CMFCPopupMenu* popup);
    CMFCPopupMenu* ActivePopup() const { return m_activePopup; }

    UINT m_defaultResourceId = 0;
    bool m_isInLayout = false;

private:
    /// The ribbon, when the message is for the frame and what lies in it: a dialog's keys are its own.
    CMFCRibbonBar* RibbonForKeys(const MSG& message);
    CMFCMenuBar* MenuBarForKeys(const MSG& message);
    bool IsInputForFrame(const MSG& message) const;
    int BorderWidth() const;
    void UpdateRegion();
    bool DrawsCaption(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, SystemProc system);
    LRESULT DefaultWithCaption(UINT message, WPARAM wParam, LPARAM lParam, SystemProc system);
    LRESULT OnEraseBkgnd(HDC dc, SystemProc system);
    /// The client area is all within the sizing borders; all of the window when it is maximised.
    void OnNcCalcSize(RECT& rect) const;
    LRESULT OnNcHitTest(CPoint point);
    void OnNcPaint();
    void OnNcActivate(bool isActive);
    /// A maximised frame covers the work area of its monitor, not the whole monitor.
    void OnGetMinMaxInfo(MINMAXINFO& info) const;
    /// The system fits a maximised frame to the primary monitor and scales it for others, task bars left out of
    /// account: the place that it proposes is corrected.
    void OnWindowPosChanging(WINDOWPOS& place) const;
    void OnWindowPosChanged(const WINDOWPOS& place);
    void RedrawCaption();
    /// TRUE: the message is done. Double click on caption or icon, right click, press on the icon.
    BOOL OnNcButton(UINT message, UINT hit, CPoint point);
    /// TRUE when the command opens the system menu by keyboard, which then was shown.
    BOOL OnSysCommand(UINT command, LPARAM key);
    /// Colours, fonts or scale of the system have changed: reads them again, lays out and redraws. dpi 0: as it was.
    void OnSystemChange(UINT dpi = 0);
    void OnDpiChanged(UINT dpi, const RECT* place);

    CMFCToolBar* MakeUserToolBar(UINT id, LPCTSTR name);
    BOOL SaveUserToolBars();
    void LoadUserToolBars();

    CFrameWnd* m_frame;
    CDockingManager& m_dockingManager;
    std::vector<std::unique_ptr<CMFCToolBar>> m_userToolBars;
    bool m_replacesCaption = false;
    bool m_hasRegion = false;
    bool m_wasZoomed = false; ///< when its size last changed
    CSize m_regionSize{0, 0}; ///< of the window when its region was set; 0, 0: maximised or none
    CMFCPopupMenu* m_activePopup = nullptr;
    UINT m_paneEntry = 0;
    bool m_paneEntryShowsToolbarsOnly = false;
};

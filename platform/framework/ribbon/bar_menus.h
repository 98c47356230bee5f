#pragma once

#include <functional>
#include <vector>

#include "afxwin.h"

/// Texts of the bar's own menus and tips; string resources of the framework.
enum class RibbonTextId : UINT {
    QuickAccessCustomize = 17096,
    QuickAccessAdd = 17097,
    QuickAccessRemove = 17098,
    QuickAccessBelow = 17099,
    QuickAccessAbove = 17100,
    Minimize = 17101,
    WindowMinimize = 17120,
    WindowMaximize = 17121,
    WindowRestore = 17122,
    WindowClose = 17123,
};

CString RibbonText(RibbonTextId id);

/// A popup menu whose items carry what they do. Lives for one Track.
class RibbonMenu {
public:
    using Action = std::function<void()>;

    RibbonMenu();

    void AddCommand(const CString& text, Action action) { AddCommand(text, true, std::move(action)); }
    void AddCommand(const CString& text, bool enabled, Action action);
    void AddCheck(const CString& text, bool checked, Action action);
    /// Only between items: not before the first one.
    void AddSeparator();

    /// Shows the menu at a screen point and does what was chosen. FALSE when the menu was left without a choice.
    BOOL Track(CPoint screen, CWnd* owner);

private:
    void Append(UINT flags, const CString& text, Action action);

    CMenu m_menu;
    std::vector<Action> m_actions;
};

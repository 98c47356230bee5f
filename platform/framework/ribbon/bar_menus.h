#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "afxribbonbutton.h"
#include "core/framework_text.h"

/// Texts of the bar's own menus and tips; string resources of the framework.
enum class RibbonTextId : UINT {
    QuickAccessCustomize = 17096,
    QuickAccessAdd = 17097,
    QuickAccessRemove = 17098,
    QuickAccessBelow = 17099,
    QuickAccessAbove = 17100,
    Minimize = 17101,
    QuickAccessMore = 17102,
    CustomizeDialog = 17103,
    WindowMinimize = 17120,
    WindowMaximize = 17121,
    WindowRestore = 17122,
    WindowClose = 17123,
};

inline CString RibbonText(RibbonTextId id) { return FrameworkText(static_cast<UINT>(id)); }

/// A pop-up menu whose items carry what they do. Lives until Track.
class RibbonMenu {
public:
    using Action = std::function<void()>;

    void AddHeading(const CString& text);
    void AddCommand(const CString& text, Action action) { AddCommand(text, true, std::move(action)); }
    void AddCommand(const CString& text, bool enabled, Action action);
    void AddCheck(const CString& text, bool checked, Action action);
    /// Only between items: not before the first one.
    void AddSeparator();

    /// Opens the menu at a screen point and returns at once; what is chosen is done after the menu has closed. FALSE:
    /// it has no items, or could not be opened.
    BOOL Track(CPoint screen, CWnd* owner, CMFCRibbonBaseElement* opener = nullptr);

private:
    CMFCRibbonButton& Append(const CString& text, Action action);

    std::vector<std::unique_ptr<CMFCRibbonBaseElement>> m_items;
};

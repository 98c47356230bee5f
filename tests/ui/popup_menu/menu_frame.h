#pragma once

#include <functional>
#include <vector>

#include "afxcontrolbars.h"
#include "tests/support/keys.h"
#include "tests/support/message_pump.h"
#include "tests/support/pointer.h"
#include "tests/support/ui_test.h"

/// Commands of the tests' menu: Open, -, Recent > (First, Second, More > (Deep)), Close (disabled by its handler),
/// Checked, Unhandled.
namespace menu_ids {
constexpr UINT open = 2001, first = 2002, second = 2003, deep = 2004, close = 2005, checked = 2006;
constexpr UINT unhandled = 7001;
} // namespace menu_ids

/// A frame that notes the commands it gets. Deletes itself with its window, as frames do.
class MenuFrame : public CFrameWndEx {
public:
    std::vector<UINT> commands;
    std::vector<UINT> hotItems; ///< what WM_MENUSELECT said
    int shown = 0;
    int closed = 0;
    bool allowsMenus = true;
    std::function<void()> onUpdate, onSelect, onShow, onClose; ///< what else the host does

    BOOL OnShowPopupMenu(CMFCPopupMenu* menu) override;
    void OnClosePopupMenu(CMFCPopupMenu* menu) override;

protected:
    afx_msg void OnMenuCommand(UINT id);
    afx_msg void OnUpdateMenuCommand(CCmdUI* state);
    afx_msg void OnMenuSelect(UINT item, UINT flags, HMENU menu);
    DECLARE_MESSAGE_MAP()
};

class PopupMenuTest : public ::testing::Test {
protected:
    PopupMenuTest();
    ~PopupMenuTest() override;

    /// The menu above; the caller's.
    static HMENU MakeMenu();
    /// Opens that menu at a point inside the frame.
    CMFCPopupMenu* Open(CPoint offset = CPoint(40, 60));
    /// Index of the item with that text in the menu.
    static int IndexOf(CMFCPopupMenu* menu, LPCTSTR text);
    static CPoint CenterOf(CMFCPopupMenu* menu, int index);
    void ClickItem(CMFCPopupMenu* menu, LPCTSTR text);
    static CMFCPopupMenu* Active() { return CMFCPopupMenu::GetActiveMenu(); }
    /// The pop-up of the item, opened by a click.
    CMFCPopupMenu* OpenChild(CMFCPopupMenu* menu, LPCTSTR text);

    MenuFrame* m_frame = nullptr;
    HWND m_window = nullptr; ///< of the frame; stays when the frame is gone
    Pointer m_pointer;
};

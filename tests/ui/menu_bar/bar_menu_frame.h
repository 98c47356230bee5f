#pragma once

#include <functional>
#include <vector>

#include "afxcontrolbars.h"
#include "tests/support/keys.h"
#include "tests/support/message_pump.h"
#include "tests/support/pointer.h"
#include "tests/support/ui_test.h"

/// Commands of the tests' menu: File (New, Open, Recent > (First), Close (disabled by its handler), Checked),
/// Edit (Copy, Paste), Run (an item of the bar itself), View (Zoom).
namespace bar_ids {
constexpr UINT create = 2001, open = 2002, first = 2003, close = 2004, checked = 2005, copy = 2006, paste = 2007;
constexpr UINT run = 2008, zoom = 2009;
} // namespace bar_ids

/// A menu bar whose protected operations the tests use.
class TestMenuBar : public CMFCMenuBar {
public:
    using CMFCMenuBar::DoPaint;
};

/// A frame with a menu bar and accelerators; notes the commands it gets. Deletes itself with its window.
class BarMenuFrame : public CFrameWndEx {
public:
    TestMenuBar bar;
    std::vector<UINT> commands;
    std::function<void()> onShow, onClose; ///< what else the host does, once
    std::function<void(CCmdUI&)> onUpdate; ///< the same, for an item of a menu that opens

    BOOL OnShowPopupMenu(CMFCPopupMenu* menu) override;
    void OnClosePopupMenu(CMFCPopupMenu* menu) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnMenuCommand(UINT id);
    afx_msg void OnUpdateMenuCommand(CCmdUI* state);
    DECLARE_MESSAGE_MAP()
};

class MenuBarTest : public ::testing::Test {
protected:
    MenuBarTest();
    ~MenuBarTest() override;

    /// The menu above; the caller's.
    static HMENU MakeMenu();
    TestMenuBar& Bar() { return m_frame->bar; }
    /// Texts of the buttons, with a blank between them.
    CString Texts();
    CPoint CenterOf(int index);
    void ClickButton(int index) { m_pointer.Click(Bar().m_hWnd, CenterOf(index)); }
    static CMFCPopupMenu* Active() { return CMFCPopupMenu::GetActiveMenu(); }
    /// Index of the button whose menu is open; -1: none is.
    int OpenIndex();
    /// Index of the hot button.
    int HotIndex();
    /// Text of the hot item in the innermost open menu.
    static CString HotItem();
    void PressAlt();
    /// The letter with Alt held: its key and the character that comes of it.
    void PressAltWith(wchar_t letter);

    BarMenuFrame* m_frame = nullptr;
    HWND m_window = nullptr; ///< of the frame; stays when the frame is gone
    HMENU m_menu = nullptr;
    Pointer m_pointer;
    Keys m_keys;
};

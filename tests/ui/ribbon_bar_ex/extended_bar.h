#pragma once

#include "ribbon_bar_ex.h"
#include "ribbon_category_ex.h"
#include "tests/support/message_pump.h"
#include "tests/support/pointer.h"
#include "tests/support/ui_test.h"
#include <fx/scoped_change.h>

#include <afxcontrolbars.h>
#include <afxribbonpanelmenu.h>

#include <functional>
#include <list>
#include <optional>
#include <string>
#include <vector>

/// A command that a window was sent.
struct SentCommand {
    UINT id = 0;
    UINT code = 0;
    HWND control = nullptr;
    bool isPosted = false; // it came out of the queue

    friend bool operator==(const SentCommand&, const SentCommand&) = default;
    friend std::ostream& operator<<(std::ostream& out, const SentCommand& command) {
        return out << "{" << command.id << ", " << command.code << ", " << command.control
                   << (command.isPosted ? ", posted}" : ", sent}");
    }
};

/// An element that notes what is done to it.
class WatchedButton : public CMFCRibbonButton {
public:
    using CMFCRibbonButton::CMFCRibbonButton;

    std::vector<int> hooks;
    std::function<void()> onHook;
    std::function<void()> onEnd;

    ~WatchedButton() override {
        if (onEnd) {
            onEnd();
        }
    }
    void OnMenuCommandHook(int command) override {
        hooks.push_back(command);
        if (const auto heard = onHook) {
            heard();
        }
    }
};

/// A frame with an extended bar, which keeps the commands that it gets. Deletes itself with its window.
class ExtendedBarFrame : public CFrameWndEx {
public:
    CMFCRibbonBarEx bar{FALSE};
    std::vector<SentCommand> commands;
    std::function<void(const SentCommand&)> onCommand; ///< After it was noted; may destroy the frame.
    std::function<void()> onAction;                    ///< Run by kAction.
    std::function<void()> onPopupClosed;               ///< Once; may destroy the frame.
    std::function<void()> onManagerChanged;            ///< Once; may destroy the frame.

    /// Posted, to have something done while a menu is open.
    static constexpr UINT kAction = WM_APP + 77;

    BOOL PreTranslateMessage(MSG* message) override;
    void OnClosePopupMenu(CMFCPopupMenu* popup) override;
    /// Every command is enabled.
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    UINT m_taken = 0; ///< The message that was last taken from the queue.
};

/// A visible frame, the application's main window, whose bar has six categories "C0" to "C5", each of one panel with
/// three buttons. Those at positions 2 and 4 are of the extended class.
class ExtendedBarTest : public testing::Test {
protected:
    static constexpr int kCategories = 6;
    static constexpr UINT kFirstExtendedId = 7002; ///< Of the category at position 2; the other one has 7004.

    ExtendedBarTest();
    ~ExtendedBarTest() override;

    CMFCRibbonBarEx& Bar() { return m_frame->bar; }
    bool IsAlive() const { return ::IsWindow(m_window) != FALSE; }
    /// The id of a button: 1000 + 10 times the category's position + its own, from 0.
    static UINT ButtonId(int category, int button) { return static_cast<UINT>(1000 + 10 * category + button); }
    WatchedButton& Button(int category, int button);
    void LayOut();

    /// A digit for each category that is shown, the active one in brackets: "0[1]2".
    std::string Shown();
    std::vector<UINT> QuickAccess();

    CPoint OnScreen(CRect client);
    CPoint TabOf(int category) { return Bar().GetCategory(category)->GetTabRect().CenterPoint(); }
    void PutCursor(CPoint screen) { ::SetCursorPos(screen.x, screen.y); }
    /// Does it in the loop of the menu that is opened next.
    void WhileOpen(std::function<void()> action);
    /// Chooses the row of the menu that is open, from 1; 0 leaves it.
    void Choose(int row);

    ExtendedBarFrame* m_frame;
    HWND m_window = nullptr; ///< Stays when the frame is gone.
    Pointer m_pointer;

private:
    std::optional<fx::ScopedChange<CWnd*>> m_mainWindow;
};

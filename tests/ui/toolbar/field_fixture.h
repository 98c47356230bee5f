#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/ui/toolbar/bar_frame.h"

constexpr UINT kFieldCommand = 3050;
constexpr UINT kStolenCommand = 3077;

/// Writes down the codes of the notifications about a field that reach the toolbar's owner.
class CodeList : public CWnd {
public:
    CodeList() { CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0); }
    std::vector<int> Taken() { return std::exchange(m_codes, {}); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMMAND && LOWORD(wParam) == kFieldCommand) {
            m_codes.push_back(HIWORD(wParam));
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    std::vector<int> m_codes;
};

/// The frame is active; V, Delete, Ctrl+C and F7 are accelerators of its, which are kStolenCommand.
class FieldTest : public ToolBarTest {
protected:
    FieldTest() {
        std::vector<ACCEL> keys{{FVIRTKEY, 'V', kStolenCommand},
                                {FVIRTKEY, VK_DELETE, kStolenCommand},
                                {FVIRTKEY | FCONTROL, 'C', kStolenCommand},
                                {FVIRTKEY, VK_F7, kStolenCommand}};
        m_frame->m_hAccelTable = ::CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size()));
        ::SetForegroundWindow(m_frame->m_hWnd);
        m_frame->SetFocus();
    }
    static std::wstring TextOf(CWnd* window) {
        CString text;
        window->GetWindowText(text);
        return text.GetString();
    }
    std::vector<UINT> TakeCommands() { return std::exchange(m_frame->commands, {}); }
    /// In the middle of a child window of the bar, in the bar.
    CPoint MiddleOf(const CWnd* child) {
        CRect rect;
        child->GetWindowRect(&rect);
        Bar().ScreenToClient(&rect);
        return rect.CenterPoint();
    }

    Keys m_keys;
};

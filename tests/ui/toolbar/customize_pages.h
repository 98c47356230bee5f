#pragma once

#include "tests/support/real_mouse.h"
#include "tests/ui/toolbar/bar_frame.h"

/// An open customize dialog with one page in front.
class CustomizePageTest : public ToolBarTest {
protected:
    ~CustomizePageTest() override { Close(); }

    template <class Dialog = CMFCToolBarsCustomizeDialog>
    Dialog& Open(UINT flags = AFX_CUSTOMIZE_NOHELP) {
        auto* const dialog = new Dialog(m_frame, FALSE, flags);
        m_dialog = dialog;
        EXPECT_TRUE(dialog->Create());
        m_dialogWindow = dialog->m_hWnd;
        dialog->SetWindowPos(nullptr, 250, 300, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        PumpPending();
        return *dialog;
    }
    void Close() {
        ::SendMessageW(m_dialogWindow, WM_CLOSE, 0, 0);
        PumpPending();
    }
    bool IsOpen() const { return ::IsWindow(m_dialogWindow) != FALSE; }
    /// -1: there is no such tab.
    int FindTab(LPCTSTR tab) const {
        const CTabCtrl& tabs = *m_dialog->GetTabControl();
        for (int index = 0; index < tabs.GetItemCount(); ++index) {
            wchar_t text[100] = {};
            TCITEMW item{};
            item.mask = TCIF_TEXT;
            item.pszText = text;
            item.cchTextMax = 100;
            tabs.GetItem(index, &item);
            if (CString(text) == tab) {
                return index;
            }
        }
        return -1;
    }
    /// The page under that tab. False: there is none.
    bool GoTo(LPCTSTR tab) {
        const int index = FindTab(tab);
        const BOOL isInFront = index >= 0 && m_dialog->SetActivePage(index);
        PumpPending();
        return isInFront != FALSE;
    }
    HWND Item(int id) const { return ::GetDlgItem(m_dialog->GetActivePage()->m_hWnd, id); }
    bool IsEnabled(int id) const { return ::IsWindowEnabled(Item(id)) != FALSE; }
    void Tell(int id, UINT code) {
        ::SendMessageW(::GetParent(Item(id)), WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(Item(id)));
        PumpPending();
    }
    void Click(int id) { Tell(id, BN_CLICKED); }
    void Select(int list, int row) {
        ::SendMessageW(Item(list), LB_SETCURSEL, static_cast<WPARAM>(row), 0);
        Tell(list, LBN_SELCHANGE);
    }
    /// The answer to the question that the click asks.
    void ClickAndAnswer(int id, int answer) {
        static int s_answer = 0;
        s_answer = answer;
        const UINT_PTR timer = ::SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR, DWORD) {
            const HWND box = ::FindWindowW(L"#32770", nullptr);
            for (HWND each = box; each != nullptr; each = ::FindWindowExW(nullptr, each, L"#32770", nullptr)) {
                if (::IsWindowVisible(each) && ::GetDlgItem(each, s_answer) != nullptr) {
                    ::PostMessageW(each, WM_COMMAND, static_cast<WPARAM>(s_answer), 0);
                }
            }
        });
        Click(id);
        ::KillTimer(nullptr, timer);
        PumpPending();
    }
    CString Text(int id) const {
        wchar_t text[200] = {};
        ::GetWindowTextW(Item(id), text, 200);
        return text;
    }

    CMFCToolBarsCustomizeDialog* m_dialog = nullptr; ///< deletes itself
    HWND m_dialogWindow = nullptr;
};

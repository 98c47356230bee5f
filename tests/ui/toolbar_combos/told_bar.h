#pragma once

#include "tests/ui/window_combos/combo_host.h"
#include "toolbar_combos.h"

#include <afxframewndex.h>
#include <afxtoolbar.h>

#include <utility>

/// What a frame hears of its toolbar's combo; outlives the frame.
struct Told {
    Heard heard;
    /// Run in each message, before it is answered.
    std::function<void()> onMessage;
    LRESULT answer = 0;
};

/// A frame that writes down what its toolbar's combo tells it, in the words of ComboHost.
class ToldFrame : public CFrameWndEx {
public:
    explicit ToldFrame(Told& told) : m_told(told) {}

    /// The command is enabled, as one that has a handler is.
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        if (id == ComboHost::comboId && code == CN_UPDATE_COMMAND_UI) {
            static_cast<CCmdUI*>(extra)->Enable(TRUE);
            return TRUE;
        }
        return CFrameWndEx::OnCmdMsg(id, code, extra, info);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        std::wstring words = ComboHost::WordsFor(message, wParam, lParam);
        if (words.empty()) {
            return CFrameWndEx::WindowProc(message, wParam, lParam);
        }
        Told& told = m_told;
        told.heard.push_back(std::move(words));
        if (told.onMessage) {
            told.onMessage(); // which may be the frame's end
        }
        return told.answer;
    }

private:
    Told& m_told;
};

enum class BarPlace { Docked, Floating };

/// A toolbar with one combo, "green" of five colours selected, in a frame on the screen.
class ToldBar {
public:
    template <class Button>
    void Make(BarPlace place) {
        m_frame = new ToldFrame(told);
        ASSERT_TRUE(m_frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(50, 50, 650, 350)));
        m_window = m_frame->m_hWnd;
        ASSERT_TRUE(bar.Create(m_frame));
        m_frame->EnableDocking(CBRS_ALIGN_ANY);
        bar.EnableDocking(CBRS_ALIGN_ANY);
        m_frame->DockPane(&bar);
        Button made(ComboHost::comboId, -1);
        for (const wchar_t* text : {L"red", L"green", L"blue", L"white", L"black"}) {
            made.AddItem(text);
        }
        made.SelectItem(1, FALSE);
        bar.InsertButton(made);
        m_frame->ShowWindow(SW_SHOWNOACTIVATE);
        m_frame->RecalcLayout();
        if (place == BarPlace::Floating) {
            Float();
        }
        bar.AdjustLocations();
        PumpPending();
        ASSERT_NE(Shown(), nullptr);
        ASSERT_NE(Shown()->GetComboBox(), nullptr);
        told.heard.clear();
    }
    ToldBar() = default;
    ~ToldBar() {
        told.onMessage = nullptr;
        if (::IsWindow(m_window)) {
            ::DestroyWindow(m_window);
        }
        PumpPending();
    }
    ToldBar(const ToldBar&) = delete;
    ToldBar& operator=(const ToldBar&) = delete;

    void Float() { bar.FloatPane(CRect(CPoint(200, 200), CSize(0, 0))); }
    void Dock(UINT side = AFX_IDW_DOCKBAR_TOP) {
        if (::IsWindow(m_window)) {
            m_frame->DockPane(&bar, side);
        }
    }
    void DestroyFrame() {
        if (::IsWindow(m_window)) {
            ::DestroyWindow(m_window);
        }
    }
    HWND FrameWindow() const { return m_window; }
    /// Null when it is gone.
    CMFCToolBarComboBoxButton* Shown() const {
        return bar.GetCount() > 0 ? static_cast<CMFCToolBarComboBoxButton*>(bar.GetButton(0)) : nullptr;
    }
    CComboBox& Combo() const { return *Shown()->GetComboBox(); }

    Told told;
    CMFCToolBar bar;

private:
    ToldFrame* m_frame = nullptr;
    HWND m_window = nullptr;
};

/// The list of an open combo, painted once, as it is before anybody can press on it.
inline HWND OpenListOf(HWND combo) {
    ::SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    ::SendMessageW(combo, CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(&info));
    if (info.hwndList != nullptr) {
        ::RedrawWindow(info.hwndList, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
    return info.hwndList;
}

// What a user does. The host may end everything in the middle of it.
using ComboGesture = void (*)(HWND combo);

inline void ClickFirstMark(HWND combo) { Pointer().Click(combo, {5, 10}); }
inline void ClickSecondMark(HWND combo) { Pointer().Click(combo, {30, 10}); }
inline void DoubleClickFirstMark(HWND combo) { Pointer().DoubleClick(combo, {5, 10}); }
inline void PressSpace(HWND combo) {
    Keys keys(combo);
    keys.Down(VK_SPACE);
    keys.Type(L" ");
    keys.Up(VK_SPACE);
}
inline void StepDown(HWND combo) { Keys(combo).Press(VK_DOWN); }
inline void OpenAndChooseByMouse(HWND combo) {
    const HWND list = OpenListOf(combo);
    Pointer().Click(list, InRow(list, 3, 100));
}
inline void OpenStepAndEnter(HWND combo) {
    OpenListOf(combo);
    Keys keys(combo);
    keys.Press(VK_DOWN);
    keys.Press(VK_RETURN);
}
inline void OpenAndTick(HWND combo) {
    const HWND list = OpenListOf(combo);
    Pointer().Click(list, InRow(list, 2, 5));
}
inline void OpenAndTickAll(HWND combo) {
    const HWND list = OpenListOf(combo);
    Pointer().DoubleClick(list, InRow(list, 2, 5));
}
inline void OpenAndPressSpace(HWND combo) {
    OpenListOf(combo);
    PressSpace(combo);
}
/// A press that the toolbar itself gets, at a point of the combo: its border is the toolbar's to draw.
inline void PressBarAt(HWND combo, POINT point) {
    ::ClientToScreen(combo, &point);
    ::SetCursorPos(point.x, point.y);
    const HWND bar = ::GetParent(combo);
    ::ScreenToClient(bar, &point);
    ::SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    ::SendMessageW(bar, WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
}
inline void PressBarAtFirstMark(HWND combo) { PressBarAt(combo, {5, 0}); }
inline void PressBarAtSecondMark(HWND combo) { PressBarAt(combo, {30, 0}); }

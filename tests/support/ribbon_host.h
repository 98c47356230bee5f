#pragma once

#include "tests/support/message_pump.h"
#include "tests/support/ui_test.h"

#include <afxcontrolbars.h>
#include <afxglobals.h>
#include <afxribbonbar.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// What a host was told: a command (WM_COMMAND without a control) or one of the messages that it listens to.
struct HostMessage {
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    std::wstring text;     // of a message whose wParam is a text
    bool isPosted = false; // it came out of the queue
};

/// A frame with a ribbon bar of one category and one panel, which keeps what it is told. Deletes itself with its
/// window, as frames do.
class RibbonHostFrame : public CFrameWndEx {
public:
    CMFCRibbonBar bar;
    std::vector<HostMessage> received;
    /// Which messages are kept, and whether their wParam is the address of a text.
    std::function<bool(UINT message)> listensTo = [](UINT) { return false; };
    std::function<bool(UINT message)> carriesText = [](UINT) { return false; };
    /// Called for each message that was kept, commands included; its result is the message's.
    std::function<LRESULT(const HostMessage&)> onMessage;
    /// Called while a pop-up closes, which has left the chain by then; it may destroy the frame.
    std::function<void(CMFCPopupMenu&)> onPopupClosed;

    int CountCommands(UINT id) const {
        int count = 0;
        for (const HostMessage& one : received) {
            count += one.message == WM_COMMAND && one.wParam == id ? 1 : 0;
        }
        return count;
    }

    /// Every other command is enabled.
    UINT disabledCommand = 0;

    BOOL PreTranslateMessage(MSG* message) override {
        if (message->hwnd == m_hWnd) {
            m_taken = message->message;
        }
        return CFrameWndEx::PreTranslateMessage(message);
    }
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        if (code != CN_UPDATE_COMMAND_UI || extra == nullptr) {
            return CFrameWndEx::OnCmdMsg(id, code, extra, info);
        }
        static_cast<CCmdUI*>(extra)->Enable(id != disabledCommand);
        return TRUE;
    }

    void OnClosePopupMenu(CMFCPopupMenu* popup) override {
        CFrameWndEx::OnClosePopupMenu(popup);
        if (const auto heard = onPopupClosed) {
            heard(*popup);
        }
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const bool isTaken = std::exchange(m_taken, 0u) == message;
        const bool isCommand = message == WM_COMMAND && lParam == 0 && HIWORD(wParam) == 0;
        if (!isCommand && !listensTo(message)) {
            return CFrameWndEx::WindowProc(message, wParam, lParam);
        }
        HostMessage one{message, wParam, lParam, {}, isTaken};
        if (carriesText(message)) {
            one.text = reinterpret_cast<const CString*>(wParam)->GetString();
        }
        received.push_back(one);
        // A copy: the answer may destroy the frame.
        const auto answer = onMessage;
        return answer ? answer(one) : 0;
    }

private:
    UINT m_taken = 0; // the message that was last taken from the queue
};

/// Makes the frame, and destroys it unless the test did. Client width 1000 pixels.
class RibbonHost {
public:
    RibbonHost() : m_frame(new RibbonHostFrame) {
        if (!m_frame->Create(nullptr, L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 1000, 600)) ||
            !m_frame->bar.Create(m_frame)) {
            throw std::runtime_error("the frame could not be created");
        }
        m_window = m_frame->GetSafeHwnd();
        m_panel = m_frame->bar.AddCategory(L"Home", 0, 0)->AddPanel(L"Panel");
    }
    ~RibbonHost() {
        Destroy();
        PumpPending();
    }
    RibbonHost(const RibbonHost&) = delete;
    RibbonHost& operator=(const RibbonHost&) = delete;

    bool IsAlive() const { return ::IsWindow(m_window) != FALSE; }
    void Destroy() {
        if (IsAlive()) {
            m_frame->DestroyWindow();
        }
    }
    RibbonHostFrame& Frame() { return *m_frame; }
    CMFCRibbonBar& Bar() { return m_frame->bar; }
    /// Puts an element on the panel, which owns it, and lays the bar out.
    template <class Element>
    Element& Add(std::unique_ptr<Element> element) {
        Element& added = *element;
        m_panel->Add(element.release());
        LayOut();
        return added;
    }
    void LayOut() {
        Bar().ForceRecalcLayout();
        PumpPending();
    }
    HWND BarWindow() { return Bar().GetSafeHwnd(); }

private:
    RibbonHostFrame* m_frame;
    HWND m_window = nullptr;
    CMFCRibbonPanel* m_panel = nullptr;
};

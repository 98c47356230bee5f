#pragma once

#include "tests/support/message_pump.h"
#include "tests/support/ui_test.h"

#include <afxcontrolbars.h>

#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

/// A bar that shows what derived bars work on.
class OpenStatusBar : public CMFCRibbonStatusBar {
public:
    using CMFCRibbonStatusBar::GetSizeGripWidth;
    using CMFCRibbonStatusBar::m_bIsBottomFrame;
    using CMFCRibbonStatusBar::m_rectBottomResize;
    using CMFCRibbonStatusBar::m_rectInformation;
    using CMFCRibbonStatusBar::m_rectSizeGrip;

    int layouts = 0;
    std::vector<CString> drawnInformation;

    void RecalcLayout() override {
        ++layouts;
        CMFCRibbonStatusBar::RecalcLayout();
    }

protected:
    void OnDrawInformation(CDC* dc, CString& text, CRect rect) override {
        drawnInformation.push_back(text);
        CMFCRibbonStatusBar::OnDrawInformation(dc, text, rect);
    }
};

/// A frame with a ribbon status bar; notes what the bar sends. Deletes itself with its window, as frames do.
class StatusFrame : public CFrameWndEx {
public:
    OpenStatusBar bar;
    std::vector<UINT> commands;
    std::vector<UINT> sizingHits; ///< Of presses on the frame's border.
    UINT disabledCommand = 0;

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        if (code != CN_UPDATE_COMMAND_UI || extra == nullptr) {
            return CFrameWndEx::OnCmdMsg(id, code, extra, info);
        }
        static_cast<CCmdUI*>(extra)->Enable(id != disabledCommand);
        return TRUE;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMMAND && lParam == 0 && HIWORD(wParam) == 0) {
            commands.push_back(LOWORD(wParam));
            return 0;
        }
        if (message == WM_NCLBUTTONDOWN && wParam >= HTLEFT && wParam <= HTBOTTOMRIGHT) {
            sizingHits.push_back(static_cast<UINT>(wParam));
            return 0;
        }
        return CFrameWndEx::WindowProc(message, wParam, lParam);
    }
};

class StatusBarTest : public ::testing::Test {
protected:
    explicit StatusBarTest(DWORD style = WS_OVERLAPPEDWINDOW | WS_VISIBLE, DWORD extendedStyle = 0)
        : m_frame(new StatusFrame) {
        if (!m_frame->Create(nullptr, L"Host", style, CRect(0, 0, 900, 500), nullptr, nullptr, extendedStyle) ||
            !m_frame->bar.Create(m_frame)) {
            throw std::runtime_error("the frame could not be created");
        }
        m_window = m_frame->GetSafeHwnd();
        LayOut();
    }
    ~StatusBarTest() override {
        if (::IsWindow(m_window)) {
            m_frame->DestroyWindow();
        }
        PumpPending();
    }

    OpenStatusBar& Bar() { return m_frame->bar; }
    void LayOut() {
        m_frame->RecalcLayout();
        Bar().EnsureLayout();
        PumpPending();
    }
    CMFCRibbonButton& AddButton(UINT id, LPCTSTR text, LPCTSTR label = L"") {
        auto* const button = new CMFCRibbonButton(id, text);
        Bar().AddElement(button, label);
        LayOut();
        return *button;
    }
    CMFCRibbonButton& AddExtendedButton(UINT id, LPCTSTR text) {
        auto* const button = new CMFCRibbonButton(id, text);
        Bar().AddExtendedElement(button, L"");
        LayOut();
        return *button;
    }
    CRect Client() const {
        CRect client;
        m_frame->bar.GetClientRect(client);
        return client;
    }

    StatusFrame* m_frame;
    HWND m_window = nullptr;
};

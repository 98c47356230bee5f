#pragma once

#include <afxcontrolbars.h>

/// The window of a benchmark: a frame of 1600 x 900 pixels with an empty ribbon bar. Deletes itself with its window.
template <class Ribbon>
class CBenchFrameWith : public CFrameWndEx {
public:
    CBenchFrameWith() : m_ribbon(FALSE) {}
    /// Not shown yet. Classes above fill the bar and show the window.
    virtual bool Make() {
        return Create(nullptr, L"bench", WS_OVERLAPPEDWINDOW, CRect(0, 0, 1600, 900)) && m_ribbon.Create(this);
    }
    Ribbon m_ribbon;

protected:
    /// All commands are enabled.
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        if (code == CN_UPDATE_COMMAND_UI) {
            static_cast<CCmdUI*>(extra)->Enable(TRUE);
            return TRUE;
        }
        return CFrameWndEx::OnCmdMsg(id, code, extra, info);
    }
};

using CBenchFrame = CBenchFrameWith<CMFCRibbonBar>;

/// Makes the window, measures with it and ends.
template <class Frame>
class CBenchApp : public CWinAppEx {
public:
    BOOL InitInstance() override {
        CWinAppEx::InitInstance();
        auto* const frame = new Frame;
        m_pMainWnd = frame;
        if (frame->Make()) {
            Measure(*frame);
        }
        frame->DestroyWindow();
        return FALSE;
    }

protected:
    virtual void Measure(Frame& frame) = 0;
};

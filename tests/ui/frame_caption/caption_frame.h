#pragma once

#include "afxcontrolbars.h"
#include "afxframewndex.h"
#include "afxglobals.h"
#include "afxMDIChildWndEx.h"
#include "afxMDIFrameWndEx.h"
#include "afxribbonbar.h"
#include "tests/support/message_pump.h"
#include "tests/support/pointer.h"
#include "tests/support/real_mouse.h"
#include "tests/support/ui_test.h"

#include <optional>

/// A shown frame, 640 x 400, whose ribbon stands for its caption; belongs to the test.
template <class Frame>
class CaptionFrame : public Frame {
public:
    explicit CaptionFrame(BOOL replacesCaption = TRUE) : bar(replacesCaption) {}
    ~CaptionFrame() override { this->DestroyWindow(); }

    void Show(DWORD style = WS_OVERLAPPEDWINDOW) {
        ASSERT_TRUE(this->Frame::Create(nullptr, L"Atlas", style | WS_CLIPCHILDREN, CRect(40, 30, 680, 430)));
        ASSERT_TRUE(bar.Create(this));
        bar.AddCategory(L"Map", 0, 0)->AddPanel(L"Zoom")->Add(new CMFCRibbonButton(1001, L"In"));
        bar.AddCategory(L"Layers", 0, 0)->AddPanel(L"Show")->Add(new CMFCRibbonButton(1002, L"Rivers"));
        this->SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        this->ShowWindow(SW_SHOW);
        this->SetForegroundWindow();
        this->RecalcLayout();
        PumpPending();
    }

    CRect WindowRect() const {
        CRect rect;
        this->GetWindowRect(&rect);
        return rect;
    }
    CRect ClientOnScreen() const {
        CRect rect;
        this->GetClientRect(&rect);
        this->ClientToScreen(&rect);
        return rect;
    }
    CPoint OnScreen(CPoint inBar) const {
        bar.ClientToScreen(&inBar);
        return inBar;
    }
    /// A point of the caption that nothing else covers, screen.
    CPoint CaptionPoint() {
        const CRect caption = bar.GetCaptionRect();
        for (int x = caption.CenterPoint().x; x < caption.right; ++x) {
            const CPoint point(x, caption.CenterPoint().y);
            if (bar.HitTestCaption(point) == HTCAPTION) {
                return OnScreen(point);
            }
        }
        return {-1, -1};
    }
    /// The button for a command, NULL when it is not shown. Searches from the right.
    CMFCRibbonCaptionButton* Button(UINT command, bool ofChild = false) {
        CRect area;
        bar.GetClientRect(&area);
        for (int y = 2; y < area.bottom; y += 4) {
            for (int x = area.right - 1; x >= 0; x -= 4) {
                auto* button = DYNAMIC_DOWNCAST(CMFCRibbonCaptionButton, bar.HitTest(CPoint(x, y)));
                if (button != nullptr && button->GetSystemCommand() == command &&
                    (button->GetMDIChild() != nullptr) == ofChild) {
                    return button;
                }
            }
        }
        return nullptr;
    }
    LRESULT HitAt(CPoint screen) const {
        return ::SendMessageW(this->m_hWnd, WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y));
    }
    bool HasCaptionStyle() const { return (this->GetStyle() & WS_CAPTION) == WS_CAPTION; }

    CMFCRibbonBar bar;

protected:
    void PostNcDestroy() override {}
};

class RibbonFrameWithCaption : public CaptionFrame<CFrameWndEx> {};
class RibbonMdiFrameWithCaption : public CaptionFrame<CMDIFrameWndEx> {};

/// Lets real pointer and key input through the thread's loop.
void SendClick(CPoint screen, DWORD down = MOUSEEVENTF_LEFTDOWN, DWORD up = MOUSEEVENTF_LEFTUP);
/// A drag that goes on by a timer, also inside the system's own loops; the caller pumps.
void StartDrag(CPoint from, CPoint to);

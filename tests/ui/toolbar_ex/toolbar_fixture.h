#pragma once

#include "toolbar_ex.h"

#include "tests/support/ui_test.h"

#include <afxframewndex.h>
#include <afxvisualmanager.h>

/// A toolbar whose protected operations the tests use; notes the manager's colours while it paints.
class OpenToolBar : public CMFCToolBarEx {
public:
    using CMFCToolBarEx::DoPaint;

    void OnFillBackground(CDC* dc) override {
        if (m_onFill) {
            m_onFill(dc);
        }
    }
    std::function<void(CDC* dc)> m_onFill;
};

/// A frame with a docked toolbar; deletes itself with its window, as frames do.
class ToolBarHost : public testing::Test {
protected:
    void SetUp() override {
        m_frame = new CFrameWndEx;
        ASSERT_TRUE(m_frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 500, 300)));
        m_bar = new OpenToolBar;
        ASSERT_TRUE(m_bar->CreateEx(m_frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_GRIPPER | CBRS_TOP));
        m_frame->EnableDocking(CBRS_ALIGN_ANY);
        m_frame->DockPane(m_bar);
        m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    }
    void TearDown() override {
        m_bar->DestroyWindow();
        delete m_bar;
        m_frame->DestroyWindow();
        CMFCVisualManager::SetDefaultManager(nullptr);
    }

    void PaintInMemory() {
        CClientDC screen(m_bar);
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, 400, 40);
        CBitmap* const before = memory.SelectObject(&bitmap);
        m_bar->DoPaint(&memory);
        memory.SelectObject(before);
    }

    CFrameWndEx* m_frame = nullptr;
    OpenToolBar* m_bar = nullptr;
};

#pragma once

#include <vector>

#include "afxcontrolbars.h"
#include "tests/support/keys.h"
#include "tests/support/message_pump.h"
#include "tests/support/pointer.h"
#include "tests/support/ui_test.h"

/// A toolbar whose protected operations the tests use.
class TestBar : public CMFCToolBar {
public:
    using CMFCToolBar::DoPaint;
    using CMFCToolBar::m_pToolTip;
    using CMFCToolBar::OnUserToolTip;
};

/// A frame with a docked toolbar; notes the commands it gets. Deletes itself with its window, as frames do.
class BarFrame : public CFrameWndEx {
public:
    TestBar bar;
    std::vector<UINT> commands;
    UINT disabled = 0;
    UINT checked = 0;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnBarCommand(UINT id);
    afx_msg void OnUpdateBarCommand(CCmdUI* state);
    DECLARE_MESSAGE_MAP()
};

/// The bar holds buttons with the commands 3001, 3002, a separator, and 3003; each with an image.
class ToolBarTest : public ::testing::Test {
protected:
    ToolBarTest();
    ~ToolBarTest() override;

    TestBar& Bar() { return m_frame->bar; }
    /// Class or command of each button: "3001 3002 | 3003".
    CString Contents();
    CPoint CenterOf(int index);
    void LayOut();

    BarFrame* m_frame = nullptr;
    HWND m_window = nullptr;
    Pointer m_pointer;
};

/// A list of that many images, each a solid square of another colour.
void AddImages(CMFCToolBarImages& images, int count);

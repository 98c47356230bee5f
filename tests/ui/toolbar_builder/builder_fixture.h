#pragma once

#include "dyn_toolbar_creater.h"

#include "host_messages.h"
#include "menu_id_mgr.h"
#include "tests/support/message_pump.h"
#include "tests/support/translation_tables.h"
#include "tests/support/ui_test.h"

#include <varnhold/strings.h>

#include <string>

/// Lives on the stack: its window's end does not delete it.
class BarsFrame : public CMDIFrameWndEx {
public:
    std::wstring checks;

protected:
    void PostNcDestroy() override {}
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMBO_CHECK_CHANGED) {
            checks += std::wstring(*reinterpret_cast<const CString*>(wParam)) + L"=" + std::to_wstring(lParam) + L";";
        }
        return CMDIFrameWndEx::WindowProc(message, wParam, lParam);
    }
};

class ToolBarBuilder : public testing::Test {
protected:
    ToolBarBuilder() {
        CMenuIdMgr::Destroy();
        m_firstId = CMenuIdMgr::s_AddBeginID;
    }
    ~ToolBarBuilder() override {
        CMenuIdMgr::Destroy();
        CMenuIdMgr::s_AddBeginID = m_firstId;
    }
    void SetUp() override {
        ASSERT_TRUE(frame.Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(50, 50, 750, 450)));
        frame.ShowWindow(SW_SHOWNOACTIVATE);
    }
    void TearDown() override {
        frame.DestroyWindow();
        PumpPending();
        CMFCToolBar::SetUserImages(nullptr);
    }
    bool Load(const std::string& groups) {
        m_installation.Directory().Write("toolbar.xml", "<bars>" + groups + "</bars>");
        return creater.Load(L"toolbar.xml", &frame);
    }
    /// Class, id relative to the first that the test could take, and text of each button.
    std::string Contents(const CMFCToolBar& bar) const {
        std::string contents;
        for (int i = 0; i < bar.GetCount(); ++i) {
            const CMFCToolBarButton& button = *bar.GetButton(i);
            contents += contents.empty() ? "" : ", ";
            if (button.m_nStyle & TBBS_SEPARATOR) {
                contents += "|";
                continue;
            }
            contents += button.GetRuntimeClass()->m_lpszClassName;
            contents += "#" + std::to_string(static_cast<int>(button.m_nID - m_firstId));
            contents += button.m_strText.IsEmpty() ? "" : " " + wstring2String(std::wstring(button.m_strText));
        }
        return contents;
    }
    CMFCToolBar& First() const { return *creater.GetAllToolBar().front(); }
    int TakenIds() const { return static_cast<int>(CMenuIdMgr::s_AddBeginID - m_firstId); }

    TranslatedInstallation m_installation;
    unsigned int m_firstId = 0;
    BarsFrame frame;
    CDynToolBarCreater creater;
};

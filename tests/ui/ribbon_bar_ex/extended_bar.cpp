#include "tests/ui/ribbon_bar_ex/extended_bar.h"

#include "tests/support/command_list.h"

#include <fx/registered_messages.h>

#include <stdexcept>
#include <utility>

BOOL ExtendedBarFrame::PreTranslateMessage(MSG* message) {
    if (message->hwnd == m_hWnd) {
        m_taken = message->message;
    }
    return CFrameWndEx::PreTranslateMessage(message);
}

BOOL ExtendedBarFrame::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) {
    if (code != CN_UPDATE_COMMAND_UI || extra == nullptr) {
        return CFrameWndEx::OnCmdMsg(id, code, extra, info);
    }
    static_cast<CCmdUI*>(extra)->Enable(TRUE);
    return TRUE;
}

void ExtendedBarFrame::OnClosePopupMenu(CMFCPopupMenu* popup) {
    CFrameWndEx::OnClosePopupMenu(popup);
    if (const auto heard = std::exchange(onPopupClosed, nullptr)) {
        heard();
    }
}

LRESULT ExtendedBarFrame::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const bool isPosted = std::exchange(m_taken, 0u) == message;
    if (message == kAction) {
        const auto action = std::exchange(onAction, nullptr);
        action();
        return 0;
    }
    if (message == AFX_WM_CHANGEVISUALMANAGER && onManagerChanged) {
        std::exchange(onManagerChanged, nullptr)();
        return 0;
    }
    if (message != WM_COMMAND) {
        return CFrameWndEx::WindowProc(message, wParam, lParam);
    }
    const SentCommand command{LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam), isPosted};
    commands.push_back(command);
    if (const auto heard = onCommand) {
        heard(command);
    }
    return 0;
}

ExtendedBarTest::ExtendedBarTest() : m_frame(new ExtendedBarFrame) {
    m_mainWindow.emplace(AfxGetApp()->m_pMainWnd, m_frame);
    if (!m_frame->Create(nullptr, L"Extended", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 1000, 600)) ||
        !Bar().Create(m_frame)) {
        throw std::runtime_error("the frame could not be created");
    }
    m_window = m_frame->GetSafeHwnd();
    for (int index = 0; index < kCategories; ++index) {
        const bool isExtended = index == 2 || index == 4;
        const std::wstring name = L"C" + std::to_wstring(index);
        CMFCRibbonCategory* const category =
            Bar().AddCategory(name.c_str(), 0, 0, CSize(16, 16), CSize(32, 32), -1,
                              isExtended ? RUNTIME_CLASS(CMFCRibbonCategoryEx) : nullptr);
        if (isExtended) {
            static_cast<CMFCRibbonCategoryEx*>(category)->SetID(7000u + static_cast<UINT>(index));
        }
        CMFCRibbonPanel* const panel = category->AddPanel(L"Panel");
        for (int button = 0; button < 3; ++button) {
            const UINT id = ButtonId(index, button);
            panel->Add(new WatchedButton(id, (L"Button " + std::to_wstring(id)).c_str()));
        }
    }
    PutCursor(CPoint(5, 590));
    LayOut();
}

ExtendedBarTest::~ExtendedBarTest() {
    m_mainWindow.reset(); // the end of the main window is that of the program
    if (IsAlive()) {
        m_frame->DestroyWindow();
    }
    PumpPending();
}

void ExtendedBarTest::LayOut() {
    m_frame->RecalcLayout();
    Bar().ForceRecalcLayout();
    PumpPending();
}

WatchedButton& ExtendedBarTest::Button(int category, int button) {
    return dynamic_cast<WatchedButton&>(*Bar().GetCategory(category)->GetPanel(0)->GetElement(button));
}

std::string ExtendedBarTest::Shown() {
    std::string shown;
    for (int index = 0; index < Bar().GetCategoryCount(); ++index) {
        CMFCRibbonCategory* const category = Bar().GetCategory(index);
        const std::string digit = std::to_string(index);
        if (category->IsVisible()) {
            shown += category->IsActive() ? "[" + digit + "]" : digit;
        }
    }
    return shown;
}

std::vector<UINT> ExtendedBarTest::QuickAccess() {
    CommandList commands;
    Bar().GetQuickAccessCommands(commands);
    return commands.Ids();
}

CPoint ExtendedBarTest::OnScreen(CRect client) {
    CPoint point = client.CenterPoint();
    Bar().ClientToScreen(&point);
    return point;
}

void ExtendedBarTest::WhileOpen(std::function<void()> action) {
    m_frame->onAction = std::move(action);
    m_frame->PostMessage(ExtendedBarFrame::kAction);
}

void ExtendedBarTest::Choose(int row) {
    for (int step = 0; step < row; ++step) {
        m_frame->PostMessage(WM_KEYDOWN, VK_DOWN);
    }
    m_frame->PostMessage(WM_KEYDOWN, row == 0 ? VK_ESCAPE : VK_RETURN);
}

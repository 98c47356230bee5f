// The window of the customize dialog: its pages, its buttons, what the frame hears.
#include "afxToolBarsCustomizeDialog.h"

#include "afximageeditordialog.h"
#include "afxkeyboardmanager.h"
#include "afxmenubar.h"
#include "afxusertoolsmanager.h"
#include "core/framework_text.h"
#include "fx/registered_messages.h"
#include "fx/scoped_change.h"
#include "fx/window_guard.h"
#include "toolbar/command_catalog.h"
#include "toolbar/customize_page.h"
#include "toolbar/dark_dialog.h"

IMPLEMENT_DYNAMIC(CMFCToolBarsCustomizeDialog, CPropertySheet)

BEGIN_MESSAGE_MAP(CMFCToolBarsCustomizeDialog, CPropertySheet)
ON_WM_CLOSE()
ON_WM_HELPINFO()
END_MESSAGE_MAP()

namespace {

/// While it lives, new windows without a parent run the way a frame does.
class LayoutOf {
public:
    explicit LayoutOf(const CFrameWnd& frame) {
        ::GetProcessDefaultLayout(&m_before);
        const bool isMirrored = (frame.GetExStyle() & WS_EX_LAYOUTRTL) != 0;
        ::SetProcessDefaultLayout(isMirrored ? m_before | LAYOUT_RTL : m_before & ~static_cast<DWORD>(LAYOUT_RTL));
    }
    ~LayoutOf() { ::SetProcessDefaultLayout(m_before); }
    LayoutOf(const LayoutOf&) = delete;
    LayoutOf& operator=(const LayoutOf&) = delete;

private:
    DWORD m_before = 0;
};

/// The dialog that is being made: one whose window goes meanwhile is deleted by who makes it.
thread_local const CMFCToolBarsCustomizeDialog* t_made = nullptr;
thread_local CMFCToolBarsCustomizeDialog* t_current = nullptr;

HMENU MenuOf(const CFrameWnd& frame) {
    for (POSITION position = CMFCToolBar::GetAllToolbars().GetHeadPosition(); position != nullptr;) {
        const auto* const bar = DYNAMIC_DOWNCAST(CMFCMenuBar, CMFCToolBar::GetAllToolbars().GetNext(position));
        if (bar != nullptr && bar->GetTopLevelFrame() == &frame) {
            return bar->GetHMenu();
        }
    }
    return ::GetMenu(frame.m_hWnd);
}

} // namespace

CMFCToolBarsCustomizeDialog::CMFCToolBarsCustomizeDialog(CFrameWnd* pWndParentFrame, BOOL bAutoSetFromMenus,
                                                         UINT uiFlags,
                                                         CList<CRuntimeClass*, CRuntimeClass*>* plistCustomPages)
    : CPropertySheet(FrameworkText(toolbar::kTitleText), pWndParentFrame),
      m_catalog(std::make_unique<toolbar::CommandCatalog>()),
      m_frame(pWndParentFrame->GetSafeHwnd()),
      m_bFromMenus(bAutoSetFromMenus),
      m_uiFlags(uiFlags) {
    if (m_bFromMenus) {
        AddFrameMenu();
    }
    AddPages(plistCustomPages);
}

CMFCToolBarsCustomizeDialog::~CMFCToolBarsCustomizeDialog() {
    const fx::ScopedChange<const CMFCToolBarsCustomizeDialog*> made(t_made, this); // it is being deleted
    DestroyWindow();
    if (t_current == this) {
        t_current = nullptr;
    }
    if (m_isOpen) {
        CMFCToolBar::SetCustomizeMode(FALSE);
        ::SendMessageW(m_frame, AFX_WM_CUSTOMIZETOOLBAR, FALSE, 0); // nothing where the frame is gone
    }
}

CFrameWnd* CMFCToolBarsCustomizeDialog::Frame() const {
    return DYNAMIC_DOWNCAST(CFrameWnd, CWnd::FromHandlePermanent(m_frame));
}

void CMFCToolBarsCustomizeDialog::AddFrameMenu() {
    const CFrameWnd* const frame = Frame();
    if (const HMENU menu = frame != nullptr ? MenuOf(*frame) : nullptr) {
        AddMenuCommands(CMenu::FromHandle(menu), FALSE);
    }
}

// Without a manager of keys there is nobody to change them; the same holds for tools.
void CMFCToolBarsCustomizeDialog::AddPages(const CList<CRuntimeClass*, CRuntimeClass*>* custom) {
    m_ownPages.push_back(toolbar::MakeCommandsPage(*this));
    m_ownPages.push_back(toolbar::MakeToolBarsPage(*this));
    if (afxUserToolsManager != nullptr && (m_uiFlags & AFX_CUSTOMIZE_NOTOOLS) == 0) {
        m_ownPages.push_back(toolbar::MakeToolsPage(*this));
        m_toolsPage = m_ownPages.back().get();
    }
    if (afxKeyboardManager != nullptr) {
        m_ownPages.push_back(toolbar::MakeKeyboardPage(*this));
    }
    m_ownPages.push_back(toolbar::MakeMenusPage(*this));
    m_ownPages.push_back(toolbar::MakeOptionsPage(*this));
    for (POSITION position = custom != nullptr ? custom->GetHeadPosition() : nullptr; position != nullptr;) {
        std::unique_ptr<CObject> made(custom->GetNext(position)->CreateObject());
        if (auto* const page = DYNAMIC_DOWNCAST(CPropertyPage, made.get())) {
            static_cast<void>(made.release()); // the list's from here on
            m_ownPages.emplace_back(page);
        }
    }
    for (const auto& page : m_ownPages) {
        AddPage(page.get());
    }
}

BOOL CMFCToolBarsCustomizeDialog::Create(CWnd* pParentWnd, DWORD dwStyle, DWORD dwExStyle) {
    return CPropertySheet::Create(pParentWnd, dwStyle, dwExStyle);
}

BOOL CMFCToolBarsCustomizeDialog::Create() {
    CFrameWnd* const frame = Frame();
    m_isOpen = frame != nullptr && CMFCToolBar::SetCustomizeMode(TRUE);
    const fx::WindowGuard guard(frame);
    if (m_isOpen) {
        ::SendMessageW(m_frame, AFX_WM_CUSTOMIZETOOLBAR, TRUE, 0);
    }
    bool isMade = false;
    if (m_isOpen && guard.IsAlive()) {
        const LayoutOf layout(*frame);
        const fx::ScopedChange<const CMFCToolBarsCustomizeDialog*> made(t_made, this);
        isMade = CPropertySheet::Create(frame) != FALSE;
    }
    if (!isMade) {
        delete this;
        return FALSE;
    }
    t_current = this;
    return TRUE;
}

CMFCToolBarsCustomizeDialog* CMFCToolBarsCustomizeDialog::Current() { return t_current; }

BOOL CMFCToolBarsCustomizeDialog::OnInitDialog() {
    const BOOL result = CPropertySheet::OnInitDialog();
    PlaceButtons();
    CenterWindow();
    toolbar::DressDialog(m_hWnd);
    if ((m_uiFlags & AFX_CUSTOMIZE_CONTEXT_HELP) != 0) {
        ModifyStyleEx(0, WS_EX_CONTEXTHELP, SWP_FRAMECHANGED);
    }
    return result;
}

// The system's own, which it has hidden with OK and Apply: they have the size and the font of its dialogs.
void CMFCToolBarsCustomizeDialog::PlaceButtons() {
    CRect tabs;
    CRect button;
    CRect client;
    CRect window;
    const HWND close = ::GetDlgItem(m_hWnd, IDCANCEL);
    const HWND help = ::GetDlgItem(m_hWnd, IDHELP);
    const CTabCtrl* const control = GetTabControl();
    if (close == nullptr || control == nullptr) {
        return;
    }
    control->GetWindowRect(&tabs);
    ScreenToClient(&tabs);
    ::GetWindowRect(close, &button);
    GetClientRect(&client);
    GetWindowRect(&window);
    const int margin = tabs.left;
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() + button.Height() + margin,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    int right = tabs.right;
    const bool hasHelp = help != nullptr && (m_uiFlags & AFX_CUSTOMIZE_NOHELP) == 0;
    const struct {
        HWND window;
        toolbar::CustomizeText text;
    } buttons[] = {{hasHelp ? help : nullptr, toolbar::kHelpText}, {close, toolbar::kCloseText}};
    for (const auto& [item, text] : buttons) {
        if (item != nullptr) {
            ::SetWindowTextW(item, FrameworkText(text));
            ::SetWindowPos(item, nullptr, right - button.Width(), client.bottom, button.Width(), button.Height(),
                           SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
            ::EnableWindow(item, TRUE);
            right -= button.Width() + margin;
        }
    }
}

BOOL CMFCToolBarsCustomizeDialog::OnCommand(WPARAM wParam, LPARAM lParam) {
    switch (LOWORD(wParam)) {
    case IDOK:
    case IDCANCEL:
        PostMessage(WM_CLOSE); // the system is at work on the key that said so
        return TRUE;
    case IDHELP:
        TellHelp();
        return TRUE;
    default:
        return CPropertySheet::OnCommand(wParam, lParam);
    }
}

BOOL CMFCToolBarsCustomizeDialog::MayClose() {
    const fx::WindowGuard guard(this);
    if (m_toolsPage == nullptr || afxUserToolsManager == nullptr) {
        return TRUE;
    }
    const BOOL isValid = CheckToolsValidity(afxUserToolsManager->GetUserTools());
    if (!isValid && guard.IsAlive()) {
        SetActivePage(m_toolsPage);
    }
    return isValid && guard.IsAlive();
}

void CMFCToolBarsCustomizeDialog::OnClose() {
    if (MayClose()) {
        DestroyWindow();
    }
}

BOOL CMFCToolBarsCustomizeDialog::OnHelpInfo(HELPINFO*) {
    TellHelp();
    return TRUE;
}

void CMFCToolBarsCustomizeDialog::TellHelp() {
    if ((m_uiFlags & AFX_CUSTOMIZE_NOHELP) == 0) {
        ::SendMessageW(m_frame, AFX_WM_CUSTOMIZEHELP, static_cast<WPARAM>(GetActiveIndex()),
                       reinterpret_cast<LPARAM>(this));
    }
}

void CMFCToolBarsCustomizeDialog::PostNcDestroy() {
    if (t_made != this) {
        delete this;
    }
}

BOOL CMFCToolBarsCustomizeDialog::OnEditToolbarMenuImage(CWnd* pWndParent, CBitmap& bitmap, int nBitsPerPixel) {
    CMFCImageEditorDialog editor(&bitmap, pWndParent, nBitsPerPixel);
    return editor.DoModal() == IDOK;
}

BOOL CMFCToolBarsCustomizeDialog::OnAssignKey(ACCEL*) { return TRUE; }
BOOL CMFCToolBarsCustomizeDialog::CheckToolsValidity(const CObList&) { return TRUE; }
void CMFCToolBarsCustomizeDialog::OnInitToolsPage() {}
void CMFCToolBarsCustomizeDialog::OnBeforeChangeTool(CUserTool*) {}
void CMFCToolBarsCustomizeDialog::OnAfterChangeTool(CUserTool*) {}

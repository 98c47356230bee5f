// A keyword that stands in the ribbon's, the menu's and the toolbars' files is one command: one id, one state, and one
// call of the reactors, whoever the user turns to.
#include <afxcontrolbars.h>

#include "add_ribbon_bar.h"
#include "dyn_menu_creater.h"
#include "dyn_toolbar_creater.h"
#include "menu_event.h"
#include "menu_id_mgr.h"
#include "menubar_ex.h"
#include "ribbon_bar_ex.h"
#include "tests/support/keys.h"
#include "tests/support/message_pump.h"
#include "tests/support/pointer.h"
#include "tests/support/translation_tables.h"
#include "tests/support/ui_test.h"

#include <boost/make_shared.hpp>

namespace {

constexpr char kRibbon[] = "<ribbon><row><category KEYWORD='Tab' NAME=''><panel KEYWORD='P' NAME=''>"
                           "<e KEYWORD='Save' NAME='' TYPE='BUTTON' SIZE='32' CMD='save'/>"
                           "<e KEYWORD='Grid' NAME='' TYPE='BUTTON' SIZE='32' CMD='grid'/>"
                           "</panel></category></row></ribbon>";
constexpr char kMenu[] = "<menu><g><p KEYWORD='File' MENUNAME='' SHORTKEY='F'>"
                         "<i KEYWORD='Save' MENUNAME='' SHORTKEY='S' HOTKEY='Ctrl+S' CMD='save'/>"
                         "<i KEYWORD='Grid' MENUNAME='' SHORTKEY='G' HOTKEY='Ctrl+Shift+G' CMD='grid'/>"
                         "<i KEYWORD='QK_DEF_ZJWJ' MENUNAME=''/></p></g></menu>";
constexpr char kToolbars[] = "<bars><g KEYWORD='Group'><t PROMPT='Bar'>"
                             "<b TYPE='button' KEYWORD='Save' PROMPT='Save'/>"
                             "<b TYPE='button' KEYWORD='Grid' PROMPT='Grid'/></t></g></bars>";

/// What reached the reactor, and the states that it gives.
struct Calls {
    std::vector<unsigned int> clicks;
    bool isEnabled = true;
    bool isChecked = false;
};
Calls g_calls;

class CountingReactor : public CMenuReactor {
protected:
    bool MenuClick(unsigned int id) const override {
        g_calls.clicks.push_back(id);
        return true;
    }
    bool Update(CCmdUI* state) const override {
        state->Enable(g_calls.isEnabled);
        state->SetCheck(g_calls.isChecked ? 1 : 0);
        return true;
    }
};

class HostFrame : public CFrameWndEx {
public:
    CMFCRibbonBarEx ribbon{FALSE};
    CMfcMenubarEx menuBar;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create) {
        return CFrameWndEx::OnCreate(create) == -1 || !ribbon.Create(this) || !menuBar.Create(this) ? -1 : 0;
    }
    afx_msg void OnConfiguredCommand(UINT id) { CMenuEvtHandleMgr::Ins()->MenuClick(id); }
    afx_msg void OnUpdateConfiguredCommand(CCmdUI* state) { CMenuEvtHandleMgr::Ins()->Update(state); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(HostFrame, CFrameWndEx)
ON_WM_CREATE()
ON_COMMAND_RANGE(41000, 44999, OnConfiguredCommand)
ON_UPDATE_COMMAND_UI_RANGE(41000, 44999, OnUpdateConfiguredCommand)
END_MESSAGE_MAP()

class OneCommand : public ::testing::Test {
protected:
    static void SetUpTestSuite() { CMenuEvtHandleMgr::Ins()->addReactor(boost::make_shared<CountingReactor>()); }

    OneCommand() {
        g_calls = Calls();
        CMenuIdMgr::Destroy();
        m_frame = new HostFrame;
        m_formerMain = std::exchange(AfxGetApp()->m_pMainWnd, m_frame);
        m_frame->Create(nullptr, L"Host", WS_OVERLAPPEDWINDOW, CRect(50, 50, 850, 550));
        m_frame->ShowWindow(SW_SHOW);
        m_installation.Directory().Write("ribbon.xml", kRibbon);
        m_installation.Directory().Write("menu.xml", kMenu);
        m_installation.Directory().Write("toolbar.xml", kToolbars);
        // A menu gives keys to commands that nobody has entered before it.
        m_menu.Load(L"menu.xml");
        m_menu.SetAppAccelTable();
        CAddRibbonBar().Load(L"ribbon.xml", &m_frame->ribbon, TRUE);
        m_frame->menuBar.CreateFromMenu(m_menu.GetMenu()->m_hMenu, TRUE, TRUE);
        m_toolbars.Load(L"toolbar.xml", m_frame);
        m_frame->ribbon.ForceRecalcLayout();
        m_frame->RecalcLayout();
        PumpPending();
        CMenuIdMgr::Ins()->GetMenuId(L"Save", m_save);
        CMenuIdMgr::Ins()->GetMenuId(L"Grid", m_grid);
    }
    ~OneCommand() override {
        CMFCPopupMenu::CloseAll();
        AfxGetApp()->m_pMainWnd = m_formerMain;
        m_frame->DestroyWindow();
        PumpPending();
        CMenuIdMgr::Destroy();
    }

    CMFCRibbonBaseElement* RibbonElement(int id) { return m_frame->ribbon.FindByID(static_cast<UINT>(id)); }
    CMFCToolBar* ToolBar() { return m_toolbars.GetAllToolBar().front(); }
    CMFCPopupMenu* OpenMenu() {
        CRect place;
        m_frame->menuBar.GetItemRect(0, place);
        m_pointer.Click(m_frame->menuBar.m_hWnd, place.CenterPoint());
        return CMFCPopupMenu::GetActiveMenu();
    }
    void PressShortcut() {
        m_keys.Hold(VK_CONTROL);
        m_keys.Press('S');
        m_keys.Let(VK_CONTROL);
        PumpPending();
    }
    void ExpectOneClick() {
        EXPECT_EQ(g_calls.clicks, std::vector<unsigned int>{static_cast<unsigned int>(m_save)});
        g_calls.clicks.clear();
    }
    void ShowOnly(CBasePane* shown) {
        for (CBasePane* pane : {static_cast<CBasePane*>(&m_frame->ribbon), static_cast<CBasePane*>(&m_frame->menuBar),
                                static_cast<CBasePane*>(ToolBar())}) {
            m_frame->ShowPane(pane, pane == shown, FALSE, FALSE);
        }
        PumpPending();
    }

    TranslatedInstallation m_installation;
    HostFrame* m_frame = nullptr;
    CWnd* m_formerMain = nullptr;
    CDynMenuCreater m_menu;
    CDynToolBarCreater m_toolbars;
    Pointer m_pointer;
    Keys m_keys;
    int m_save = 0;
    int m_grid = 0;
};

} // namespace

TEST_F(OneCommand, RibbonMenuAndToolbarHaveTheSameId) {
    ASSERT_NE(m_save, 0);
    EXPECT_NE(RibbonElement(m_save), nullptr);
    EXPECT_EQ(ToolBar()->GetItemID(0), static_cast<UINT>(m_save));
    EXPECT_EQ(ToolBar()->GetItemID(1), static_cast<UINT>(m_grid));
    CMFCPopupMenu* const menu = OpenMenu();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->GetMenuBar()->GetItemID(0), static_cast<UINT>(m_save));
    EXPECT_EQ(menu->GetMenuBar()->GetItemID(1), static_cast<UINT>(m_grid));
}

TEST_F(OneCommand, AClickInEachReachesTheReactorOnce) {
    CRect place;
    ToolBar()->GetItemRect(0, place);
    m_pointer.Click(ToolBar()->m_hWnd, place.CenterPoint());
    PumpPending();
    ExpectOneClick();

    m_pointer.Click(m_frame->ribbon.m_hWnd, RibbonElement(m_save)->GetRect().CenterPoint());
    PumpPending();
    ExpectOneClick();

    CMFCPopupMenu* const menu = OpenMenu();
    ASSERT_NE(menu, nullptr);
    menu->GetMenuBar()->GetItemRect(0, place);
    m_pointer.Click(menu->GetMenuBar()->m_hWnd, place.CenterPoint());
    PumpPending();
    ExpectOneClick();
}

TEST_F(OneCommand, ItsShortcutReachesTheReactorOnceInEachMode) {
    PressShortcut();
    ExpectOneClick();
    ShowOnly(&m_frame->ribbon);
    PressShortcut();
    ExpectOneClick();
    ShowOnly(&m_frame->menuBar);
    PressShortcut();
    ExpectOneClick();
    ShowOnly(ToolBar());
    PressShortcut();
    ExpectOneClick();
    ShowOnly(nullptr);
    PressShortcut();
    ExpectOneClick();
}

TEST_F(OneCommand, AnotherModifierIsAnotherKey) {
    m_keys.Hold(VK_CONTROL);
    m_keys.Hold(VK_SHIFT);
    m_keys.Press('S');
    EXPECT_TRUE(g_calls.clicks.empty());
    m_keys.Press('G');
    EXPECT_EQ(g_calls.clicks, std::vector<unsigned int>{static_cast<unsigned int>(m_grid)});
}

TEST_F(OneCommand, AnOpenMenuHasTheKeysToItself) {
    ASSERT_NE(OpenMenu(), nullptr);
    PressShortcut();
    EXPECT_TRUE(g_calls.clicks.empty());
}

TEST_F(OneCommand, ADisabledCommandIsGreyInAllAndCannotBeGiven) {
    g_calls.isEnabled = false;
    PumpPending();
    RunIdle();
    EXPECT_TRUE(RibbonElement(m_save)->IsDisabled());
    EXPECT_TRUE(ToolBar()->GetButtonStyle(0) & TBBS_DISABLED);
    CMFCPopupMenu* const menu = OpenMenu();
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->GetMenuBar()->GetButtonStyle(0) & TBBS_DISABLED);
    CMFCPopupMenu::CloseAll();
    PressShortcut();
    EXPECT_TRUE(g_calls.clicks.empty());
}

TEST_F(OneCommand, ACheckedCommandIsMarkedInAll) {
    g_calls.isChecked = true;
    PumpPending();
    RunIdle();
    EXPECT_TRUE(RibbonElement(m_grid)->IsChecked());
    EXPECT_TRUE(ToolBar()->GetButtonStyle(1) & TBBS_CHECKED);
    CMFCPopupMenu* const menu = OpenMenu();
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->GetMenuBar()->GetButtonStyle(1) & TBBS_CHECKED);
}

TEST_F(OneCommand, TheMenuNamesTheKeysBesideItsItems) {
    CMFCPopupMenu* const menu = OpenMenu();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->GetMenuBar()->GetButtonText(0), L"Save(&S)\tCtrl+S");
    EXPECT_EQ(menu->GetMenuBar()->GetButtonText(1), L"Grid(&G)\tCtrl+Shift+G");
}

TEST_F(OneCommand, LoadingTheMenuAgainKeepsIdsShortcutsAndStates) {
    CDynMenuCreater again;
    ASSERT_TRUE(again.Load(L"menu.xml"));
    again.SetAppAccelTable();
    m_frame->menuBar.CreateFromMenu(again.GetMenu()->m_hMenu, TRUE, TRUE);
    int save = 0;
    CMenuIdMgr::Ins()->GetMenuId(L"Save", save);
    EXPECT_EQ(save, m_save);
    EXPECT_EQ(m_frame->menuBar.GetCount(), 1);
    PressShortcut();
    ExpectOneClick();
    EXPECT_EQ(::CopyAcceleratorTableW(m_frame->m_hAccelTable, nullptr, 0), 2) << "nothing was added twice";
    m_frame->menuBar.CreateFromMenu(nullptr, TRUE, TRUE);
}

TEST_F(OneCommand, TheRecentFilesOfTheApplicationStandInThePlaceholder) {
    class Application : public CWinApp {
    public:
        using CWinApp::LoadStdProfileSettings;
    };
    auto& application = static_cast<Application&>(*AfxGetApp());
    application.LoadStdProfileSettings(4);
    application.AddToRecentFileList(L"C:\\maps\\first.geojson");
    application.AddToRecentFileList(L"C:\\maps\\second.geojson");
    CMFCPopupMenu* const menu = OpenMenu();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->GetMenuBar()->GetItemID(2), static_cast<UINT>(ID_FILE_MRU_FILE1));
    EXPECT_GE(menu->GetMenuBar()->GetButtonText(2).Find(L"second.geojson"), 0);
    EXPECT_GE(menu->GetMenuBar()->GetButtonText(3).Find(L"first.geojson"), 0);
    application.LoadStdProfileSettings(0);
}

#include "menu_fixture.h"

#include <afxkeyboardmanager.h>
#include <fx/scoped_change.h>

namespace {

constexpr BYTE kCtrl = FCONTROL | FVIRTKEY;

TEST_F(MenuShortcuts, AreCollectedInFileOrderWithTheIdsOfTheirItems) {
    ASSERT_TRUE(
        Load("<i KEYWORD='A' HOTKEY='Ctrl+S'/><i KEYWORD='B'/><i KEYWORD='C' HOTKEY='Ctrl+Shift+Z'/>"
             "<i KEYWORD='D' HOTKEY='S'/><i KEYWORD='E' HOTKEY='Alt+F4'/><i KEYWORD='F' HOTKEY='Ctrl+Shift'/>"));
    EXPECT_EQ(OfCreater(), L"09 53 0;0D 5A 2;00 53 3;11 46 4;");
}

TEST_F(MenuShortcuts, RegisteredKeywordAddsNone) {
    CMenuIdMgr::Ins()->Add(L"A", 12345, L"n", L"", L"", L"", L"");
    ASSERT_TRUE(Load("<i KEYWORD='A' HOTKEY='Ctrl+S'/>"));
    EXPECT_EQ(m_creater.m_nAccelCount, 0);
}

TEST_F(MenuShortcuts, RecentFilePlaceholderTakesTheNextIdForItsShortcut) {
    ASSERT_TRUE(Load("<i KEYWORD='QK_DEF_ZJWJ' HOTKEY='Ctrl+R'/><i KEYWORD='A'/>"));
    EXPECT_EQ(OfCreater(), L"09 52 0;");
}

TEST_F(MenuShortcuts, ItemWithoutAKeywordHasOneAllTheSame) {
    ASSERT_TRUE(Load("<i HOTKEY='Ctrl+S'/><i KEYWORD='A' MENUNAME=''/>"));
    EXPECT_EQ(OfCreater(), L"09 53 0;");
    EXPECT_EQ(Outline(), L"A#0");
}

TEST_F(MenuShortcuts, FramesOwnComeFirst) {
    GiveFrame({{kCtrl, 'S', 7}, {FVIRTKEY, VK_F1, 8}});
    ASSERT_TRUE(Load("<i KEYWORD='A' HOTKEY='Ctrl+S'/>"));
    EXPECT_EQ(OfCreater(), L"09 53 7;01 70 8;09 53 0;");
    EXPECT_EQ(OfFrame(), L"09 53 7;01 70 8;") << "Load changed the frame's table";
}

TEST_F(MenuShortcuts, SetAppAccelTableInstallsThemOnce) {
    GiveFrame({{FVIRTKEY, VK_F1, 8}});
    ASSERT_TRUE(Load("<i KEYWORD='A' HOTKEY='Ctrl+S'/>"));
    m_creater.SetAppAccelTable();
    EXPECT_EQ(OfFrame(), L"01 70 8;09 53 0;");
    EXPECT_EQ(m_creater.m_pAccel, nullptr);
    EXPECT_EQ(m_creater.m_nAccelCount, 2);
    const HACCEL installed = m_frame.m_hAccelTable;
    m_creater.SetAppAccelTable();
    EXPECT_EQ(m_frame.m_hAccelTable, installed);
}

TEST_F(MenuShortcuts, OneWhoseCommandNoMessageCanCarryIsKeptWithItsLow16BitsButNotInstalled) {
    GiveFrame({{FVIRTKEY, VK_F1, 8}});
    m_creater.reset();
    CMenuIdMgr::s_AddBeginID = 0xFFFF;
    ASSERT_TRUE(Load("<i KEYWORD='A' HOTKEY='Ctrl+A'/><i KEYWORD='B' HOTKEY='Ctrl+B'/>"));
    const fx::ScopedChange asTheyAre(m_firstId, 0U); // ids as they are, not relative to the first
    EXPECT_EQ(OfCreater(), L"01 70 8;09 41 FFFF;09 42 0;");
    m_creater.SetAppAccelTable();
    EXPECT_EQ(OfFrame(), L"01 70 8;09 41 FFFF;") << "the key would run the command 0";
    EXPECT_EQ(m_creater.m_nAccelCount, 3);
}

TEST_F(MenuShortcuts, NoneOfALoadThatCannotBeCarriedHoldsBackThoseOfTheNext) {
    CMenuIdMgr::s_AddBeginID = 0x10010;
    ASSERT_TRUE(Load("<i KEYWORD='A' HOTKEY='Ctrl+A'/>"));
    CMenuIdMgr::s_AddBeginID = m_firstId;
    ASSERT_TRUE(Load("<i KEYWORD='B' HOTKEY='Ctrl+B'/>"));
    m_creater.SetAppAccelTable();
    EXPECT_EQ(OfFrame(), L"09 42 0;");
}

TEST_F(MenuShortcuts, WithoutAnyNothingIsInstalled) {
    ASSERT_TRUE(Load("<i KEYWORD='A'/>"));
    EXPECT_EQ(m_creater.m_pAccel, nullptr);
    m_creater.SetAppAccelTable();
    EXPECT_EQ(m_frame.m_hAccelTable, nullptr);
}

TEST_F(MenuShortcuts, AddAppAccelTablePutsTheCallersBehindTheFramesAndTakesTheArray) {
    GiveFrame({{FVIRTKEY, VK_F1, 8}});
    auto* entries = new ACCEL[2]{{kCtrl, 'A', 1}, {kCtrl, 'B', 2}};
    CDynMenuCreater::AddAppAccelTable(entries, 2);
    EXPECT_EQ(entries, nullptr);
    EXPECT_EQ(OfFrame(), L"01 70 8;09 41 1;09 42 2;");
}

TEST_F(MenuShortcuts, AddAppAccelTableWithoutATableLeavesTheArrayToTheCaller) {
    ACCEL kept[] = {{kCtrl, 'A', 1}};
    ACCEL* entries = kept;
    CDynMenuCreater::AddAppAccelTable(entries, 1);
    EXPECT_EQ(entries, kept);
    EXPECT_EQ(OfFrame(), L"09 41 1;");
}

TEST_F(MenuShortcuts, AddAppAccelTableOfNothingDoesNothing) {
    GiveFrame({{FVIRTKEY, VK_F1, 8}});
    ACCEL* entries = nullptr;
    CDynMenuCreater::AddAppAccelTable(entries, 3);
    EXPECT_EQ(OfFrame(), L"01 70 8;");
}

TEST_F(MenuShortcuts, SecondLoadBeginsWithWhatTheFirstHasInstalledAndAddsNothingTwice) {
    GiveFrame({{FVIRTKEY, VK_F1, 8}});
    const char* const items = "<i KEYWORD='A' HOTKEY='Ctrl+S'/>";
    ASSERT_TRUE(Load(items));
    m_creater.SetAppAccelTable();
    ASSERT_TRUE(Load(items));
    EXPECT_EQ(OfCreater(), L"01 70 8;09 53 0;");
    m_creater.SetAppAccelTable();
    EXPECT_EQ(OfFrame(), L"01 70 8;09 53 0;");
}

TEST_F(MenuShortcuts, MainWindowThatIsNoFrameHasNoneAndGetsNone) {
    GiveFrame({{FVIRTKEY, VK_F1, 8}});
    CWnd window;
    ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), L"no frame", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    AfxGetThread()->m_pMainWnd = &window;
    ASSERT_TRUE(Load("<i KEYWORD='A' HOTKEY='Ctrl+S'/>"));
    EXPECT_EQ(OfCreater(), L"09 53 0;");
    m_creater.SetAppAccelTable();
    EXPECT_EQ(m_creater.m_pAccel, nullptr) << "given up all the same";
    ACCEL kept[] = {{kCtrl, 'A', 1}};
    ACCEL* entries = kept;
    CDynMenuCreater::AddAppAccelTable(entries, 1);
    EXPECT_EQ(entries, kept) << "it stays the caller's";
    AfxGetThread()->m_pMainWnd = &m_frame;
    EXPECT_EQ(OfFrame(), L"01 70 8;");
    window.DestroyWindow();
}

TEST_F(MenuShortcuts, KeyReachesTheCommandOnce) {
    struct Counter : CCmdTarget {
        BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
            if (code == CN_COMMAND && id == m_id && !info) {
                ++m_count;
                return TRUE;
            }
            return CCmdTarget::OnCmdMsg(id, code, extra, info);
        }
        UINT m_id = 0;
        int m_count = 0;
    };
    struct RoutedFrame : MenuFrame {
        BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
            return m_counter.OnCmdMsg(id, code, extra, info) || MenuFrame::OnCmdMsg(id, code, extra, info);
        }
        Counter m_counter;
    } frame;
    ASSERT_TRUE(frame.Create(nullptr, L"routed", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300)));
    CWnd* const before = AfxGetThread()->m_pMainWnd;
    AfxGetThread()->m_pMainWnd = &frame;
    ASSERT_TRUE(Load("<i KEYWORD='A' HOTKEY='Q'/>")); // a lone letter: the character, whatever keys are down
    m_creater.SetAppAccelTable();
    frame.m_counter.m_id = m_firstId;
    MSG key{frame.m_hWnd, WM_CHAR, 'Q', 1, 0, {}};
    EXPECT_TRUE(frame.PreTranslateMessage(&key));
    EXPECT_EQ(frame.m_counter.m_count, 1);
    AfxGetThread()->m_pMainWnd = before;
    frame.DestroyWindow();
}

/// Notes the commands that come to it.
struct NotingFrame : MenuFrame {
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        if (code == CN_COMMAND && !info) {
            commands.push_back(id);
            return TRUE;
        }
        return MenuFrame::OnCmdMsg(id, code, extra, info);
    }
    std::vector<UINT> commands;
};

TEST_F(MenuShortcuts, OfTwoCommandsWithOneShortcutTheEarlierHasItAndTheFramesBeforeTheFiles) {
    NotingFrame frame;
    ASSERT_TRUE(frame.Create(nullptr, L"noting", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300)));
    const fx::ScopedChange main(AfxGetThread()->m_pMainWnd, static_cast<CWnd*>(&frame));
    ACCEL own{0, 'F', 7};
    frame.m_hAccelTable = ::CreateAcceleratorTableW(&own, 1);
    ASSERT_TRUE(Load("<i KEYWORD='A' HOTKEY='Q'/><i KEYWORD='B' HOTKEY='Q'/><i KEYWORD='C' HOTKEY='F'/>"));
    EXPECT_EQ(m_creater.m_nAccelCount, 4) << "nothing takes duplicates away";
    m_creater.SetAppAccelTable();
    for (const WPARAM letter : {'Q', 'F'}) {
        MSG key{frame.m_hWnd, WM_CHAR, letter, 1, 0, {}};
        EXPECT_TRUE(frame.PreTranslateMessage(&key));
    }
    EXPECT_EQ(frame.commands, (std::vector<UINT>{m_firstId, 7}));
    frame.DestroyWindow();
}

TEST_F(MenuShortcuts, TenThousandTakeNoQuadraticTime) {
    std::string items;
    for (int i = 0; i < 10000; ++i) {
        items += "<i KEYWORD='K" + std::to_string(i) + "' HOTKEY='Ctrl+S'/>";
    }
    ASSERT_TRUE(Load(items));
    EXPECT_EQ(m_creater.m_nAccelCount, 10000);
}

} // namespace

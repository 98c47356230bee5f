#include "library_context.h"
#include "menu_fixture.h"
#include "tests/support/gui_objects.h"
#include "tests/support/heard_problems.h"
#include "tests/support/icon_writer.h"

#include <afxcommandmanager.h>
#include <afxtoolbar.h>

#include <varnhold/file_op.h>

#include <stdexcept>

namespace {

TEST_F(MenuBuilder, GroupOfThreeItemsGivesATopMenuOfThreeItems) {
    ASSERT_TRUE(m_installation.Translate("A B C"));
    ASSERT_TRUE(Load("<g KEYWORD='G' MENUNAME=''><i KEYWORD='A' MENUNAME=''/><i KEYWORD='B' MENUNAME=''/>"
                     "<i KEYWORD='C' MENUNAME=''/></g>"));
    EXPECT_EQ(Outline(), L"<A>#0 <B>#1 <C>#2");
}

TEST_F(MenuBuilder, BeforeTheFirstLoadThereIsNoMenuAndNoShortcut) {
    EXPECT_EQ(m_creater.GetMenu()->GetSafeHmenu(), nullptr);
    EXPECT_EQ(m_creater.m_pAccel, nullptr);
    EXPECT_EQ(m_creater.m_nAccelCount, 0);
    EXPECT_TRUE(m_creater.m_strPath.empty());
    EXPECT_TRUE(m_creater.m_vecCmd.empty());
}

TEST_F(MenuBuilder, AnUnknownInstallationDirectoryLoadsNothingAndShowsNoMessage) {
    ASSERT_TRUE(Load("<i KEYWORD='A'/>"));
    const ScopedAppPath unknown([](std::wstring&) { return false; });
    EXPECT_FALSE(m_creater.Load(L"menu.xml"));
    EXPECT_TRUE(m_messages.empty());
}

TEST_F(MenuBuilder, GetMenuIsTheObjectItself) {
    EXPECT_EQ(m_creater.GetMenu(), &m_creater);
    ASSERT_TRUE(Load("<i KEYWORD='A'/>"));
    EXPECT_TRUE(::IsMenu(m_creater.GetMenu()->m_hMenu));
}

TEST_F(MenuBuilder, PopupsNestAndKeepTheirCaptionsWithMnemonics) {
    ASSERT_TRUE(Load("<g><p KEYWORD='File' MENUNAME='' SHORTKEY='F'><i KEYWORD='Open' MENUNAME='' SHORTKEY='O'/>"
                     "<s MENUNAME='separator'/><q KEYWORD='More' MENUNAME=''><i KEYWORD='Deep' MENUNAME=''/></q></p>"
                     "<i KEYWORD='Last' MENUNAME=''/></g>"));
    EXPECT_EQ(Outline(), L"File(&F){Open(&O)#0 - More{Deep#1}} Last#2");
}

TEST_F(MenuBuilder, CommandsAreRegisteredWithTheirTexts) {
    ASSERT_TRUE(m_installation.Translate("A"));
    ASSERT_TRUE(Load("<i KEYWORD='A' MENUNAME='' TOOLTIP='' CMD='do' Param='7'/>"));
    CMenuIdMgr& registry = *CMenuIdMgr::Ins();
    int id = 0;
    std::wstring name;
    std::wstring tip;
    std::wstring cmd;
    std::wstring param;
    std::wstring help;
    ASSERT_TRUE(registry.GetMenuId(L"A", id));
    EXPECT_EQ(id, static_cast<int>(m_firstId));
    EXPECT_TRUE(registry.GetMenuName(L"A", name) && registry.GetToolTip(id, tip) && registry.GetCmd(id, cmd) &&
                registry.GetCmdParam(id, param));
    EXPECT_EQ(name + L"|" + tip + L"|" + cmd + L"|" + param, L"<A>|tip of <A>|do|7");
    EXPECT_FALSE(registry.GetHelpFile(id, help));
}

TEST_F(MenuBuilder, PopupIsRegisteredUnderIdZeroWithoutTakingOne) {
    ASSERT_TRUE(Load("<g><p KEYWORD='P' MENUNAME='' CMD='pc'><i KEYWORD='A'/></p></g>"));
    int id = -1;
    std::wstring cmd;
    ASSERT_TRUE(CMenuIdMgr::Ins()->GetMenuId(L"P", id));
    EXPECT_EQ(id, 0);
    ASSERT_TRUE(CMenuIdMgr::Ins()->GetCmd(0, cmd));
    EXPECT_EQ(cmd, L"pc");
    ASSERT_TRUE(CMenuIdMgr::Ins()->GetMenuId(L"A", id));
    EXPECT_EQ(id, static_cast<int>(m_firstId));
}

TEST_F(MenuBuilder, ItemWithTheKeywordOfAPopupGetsItsIdZero) {
    ASSERT_TRUE(Load("<g><p KEYWORD='P' MENUNAME=''><i KEYWORD='A' MENUNAME=''/></p><i KEYWORD='P' MENUNAME=''/></g>"));
    ASSERT_EQ(::GetMenuItemCount(m_creater.m_hMenu), 2);
    EXPECT_EQ(::GetMenuItemID(m_creater.m_hMenu, 1), 0u);
    EXPECT_EQ(m_creater.m_nCurId, m_firstId + 1) << "no id is taken for it";
}

TEST_F(MenuBuilder, ElementWithChildrenIsAPopupEvenIfItCallsItselfASeparator) {
    ASSERT_TRUE(
        Load("<g><p KEYWORD='P' CMD='c' MENUNAME='SEPARATOR' SHORTKEY='x'><i KEYWORD='A' MENUNAME=''/></p></g>"));
    EXPECT_EQ(Outline(), L"{A#0}");
    EXPECT_EQ(m_creater.m_vecCmd, (std::vector<std::wstring>{L"c", L""}));
    int id = -1;
    ASSERT_TRUE(CMenuIdMgr::Ins()->GetMenuId(L"P", id));
    EXPECT_EQ(id, 0);
}

TEST_F(MenuBuilder, SeparatorAddsAnEmptyCommandTextWhateverStandsBeforeItsName) {
    ASSERT_TRUE(Load("<g><s KEYWORD='S' CMD='c' MENUNAME='SEPARATOR'/><i KEYWORD='A' CMD='a'/></g>"));
    EXPECT_EQ(m_creater.m_vecCmd, (std::vector<std::wstring>{L"", L"a"}));
    int id = 0;
    EXPECT_FALSE(CMenuIdMgr::Ins()->GetMenuId(L"S", id));
}

TEST_F(MenuBuilder, PopupIsRegisteredWithItsTextsAsAnItemIs) {
    ASSERT_TRUE(m_installation.Translate("P"));
    ASSERT_TRUE(Load("<g><p KEYWORD='P' MENUNAME='' TOOLTIP='' Param='7'><i KEYWORD='A'/></p></g>"));
    std::wstring name;
    std::wstring tip;
    std::wstring param;
    EXPECT_TRUE(CMenuIdMgr::Ins()->GetMenuName(L"P", name) && CMenuIdMgr::Ins()->GetToolTip(0, tip) &&
                CMenuIdMgr::Ins()->GetCmdParam(0, param));
    EXPECT_EQ(name + L"|" + tip + L"|" + param, L"<P>|tip of <P>|7");
}

TEST_F(MenuBuilder, PopupTakesARegisteredKeywordToIdZero) {
    CMenuIdMgr::Ins()->Add(L"P", 12345, L"n", L"", L"", L"", L"");
    ASSERT_TRUE(Load("<g><p KEYWORD='P' MENUNAME=''><i KEYWORD='A'/></p></g>"));
    int id = -1;
    ASSERT_TRUE(CMenuIdMgr::Ins()->GetMenuId(L"P", id));
    EXPECT_EQ(id, 0);
}

TEST_F(MenuBuilder, RegisteredKeywordKeepsItsIdAndItsTexts) {
    CMenuIdMgr::Ins()->Add(L"A", 12345, L"name", L"cmd", L"", L"", L"");
    ASSERT_TRUE(Load("<i KEYWORD='A' MENUNAME='' CMD='other'/><i KEYWORD='B' MENUNAME=''/>"));
    EXPECT_EQ(::GetMenuItemID(m_creater.m_hMenu, 0), 12345u);
    EXPECT_EQ(::GetMenuItemID(m_creater.m_hMenu, 1), m_firstId);
    std::wstring cmd;
    ASSERT_TRUE(CMenuIdMgr::Ins()->GetCmd(12345, cmd));
    EXPECT_EQ(cmd, L"cmd");
}

TEST_F(MenuBuilder, ItemWithoutAKeywordIsNotShownAndTakesNoId) {
    ASSERT_TRUE(Load("<i MENUNAME='' CMD='c'/><i KEYWORD='A' MENUNAME=''/>"));
    EXPECT_EQ(Outline(), L"A#0");
    EXPECT_EQ(m_creater.m_vecCmd, (std::vector<std::wstring>{L"c", L""}));
}

TEST_F(MenuBuilder, FckKeywordIsLikeAnyOther) {
    ASSERT_TRUE(Load("<i KEYWORD='M_ST_FCK' MENUNAME=''/><i KEYWORD='M_ST_FCK1' MENUNAME=''/>"));
    EXPECT_EQ(Outline(), L"M_ST_FCK#0 M_ST_FCK1#1");
}

TEST_F(MenuBuilder, RecentFilePlaceholderGetsTheFrameworksIdAndTakesNone) {
    ASSERT_TRUE(m_installation.Translate("QK_DEF_ZJWJ A"));
    ASSERT_TRUE(Load("<i KEYWORD='QK_DEF_ZJWJ' MENUNAME=''/><i KEYWORD='A' MENUNAME=''/>"));
    EXPECT_EQ(Outline(), L"<QK_DEF_ZJWJ>#recent <A>#0");
    int id = 0;
    EXPECT_FALSE(CMenuIdMgr::Ins()->GetMenuId(L"QK_DEF_ZJWJ", id));
    EXPECT_EQ(::GetMenuItemID(m_creater.m_hMenu, 0), 57616u);
}

TEST_F(MenuBuilder, RecentFilePlaceholderIsNotLookedUp) {
    CMenuIdMgr::Ins()->Add(L"QK_DEF_ZJWJ", 12345, L"n", L"", L"", L"", L"");
    ASSERT_TRUE(Load("<i KEYWORD='QK_DEF_ZJWJ' MENUNAME=''/>"));
    EXPECT_EQ(::GetMenuItemID(m_creater.m_hMenu, 0), 57616u);
}

TEST_F(MenuBuilder, RecentFilePlaceholderIsKnownByItsExactLetters) {
    ASSERT_TRUE(Load("<i KEYWORD='qk_def_zjwj' MENUNAME=''/>"));
    EXPECT_EQ(Outline(), L"qk_def_zjwj#0");
}

TEST_F(MenuBuilder, CounterIsLeftOneBeyondTheNextId) {
    ASSERT_TRUE(Load("<i KEYWORD='A'/><i KEYWORD='B'/>"));
    EXPECT_EQ(TakenIds(), 3);
    EXPECT_EQ(CDynMenuCreater::GetNextBeginId(), m_firstId + 3);
    EXPECT_EQ(m_creater.m_nBeginId, m_firstId);
    EXPECT_EQ(m_creater.m_nCurId, m_firstId + 2);
}

TEST_F(MenuBuilder, CounterMovesForAnElementThatIsSkippedButNotForAnEmptyFile) {
    ASSERT_TRUE(Load(""));
    EXPECT_EQ(TakenIds(), 0);
    ASSERT_TRUE(Load("<i/>"));
    EXPECT_EQ(TakenIds(), 1);
}

TEST_F(MenuBuilder, SecondLoadNumbersNewItemsTwoAboveTheLastAndKeepsTheOldOnes) {
    ASSERT_TRUE(Load("<i KEYWORD='A' MENUNAME=''/><i KEYWORD='B' MENUNAME=''/>"));
    const HMENU first = m_creater.m_hMenu;
    ASSERT_TRUE(Load("<i KEYWORD='A' MENUNAME=''/><i KEYWORD='C' MENUNAME=''/><i KEYWORD='B' MENUNAME=''/>"));
    EXPECT_EQ(Outline(), L"A#0 C#3 B#1");
    EXPECT_FALSE(::IsMenu(first) && first != m_creater.m_hMenu);
}

TEST_F(MenuBuilder, CommandTextsAreKeptInReadingOrder) {
    ASSERT_TRUE(Load("<i KEYWORD='A' CMD='a'/><g CMD='group'><p KEYWORD='P' CMD='p'><i KEYWORD='B' CMD='b'/></p>"
                     "<s CMD='s' MENUNAME='SEPARATOR'/></g>"));
    EXPECT_EQ(m_creater.m_vecCmd, (std::vector<std::wstring>{L"a", L"p", L"b", L""}));
    ASSERT_TRUE(Load("<i KEYWORD='A' CMD='x'/>"));
    EXPECT_EQ(m_creater.m_vecCmd, std::vector<std::wstring>{L"x"});
}

TEST_F(MenuBuilder, EmptyPathIsRefusedSilentlyAndEmptiesTheMenu) {
    ASSERT_TRUE(Load("<i KEYWORD='A' CMD='a'/>"));
    EXPECT_EQ(m_creater.m_strPath, L"menu.xml");
    EXPECT_FALSE(m_creater.Load(L""));
    EXPECT_EQ(Outline(), L"");
    EXPECT_TRUE(m_creater.m_strPath.empty() && m_creater.m_vecCmd.empty() && m_messages.empty());
}

TEST_F(MenuBuilder, FileThatCannotBeLoadedIsToldAndLeavesAnEmptyMenu) {
    m_installation.Directory().Write("broken.xml", "<menu><i KEYWORD='A'/>");
    for (const wchar_t* name : {L"missing.xml", L"broken.xml"}) {
        m_messages.clear();
        EXPECT_FALSE(m_creater.Load(name));
        ASSERT_EQ(m_messages.size(), 1u);
        EXPECT_EQ(m_messages[0].text, L"请确认文件:" + m_installation.Directory().Prefix() + name + L"是否存在");
        EXPECT_EQ(m_messages[0].status, 2);
        EXPECT_EQ(Outline(), L"");
        EXPECT_EQ(TakenIds(), 0);
    }
}

TEST_F(MenuBuilder, EmptyKeyPieceLeavesLoadAsOutOfRangeWithNothingHalfBuilt) {
    EXPECT_THROW(Load("<i KEYWORD='A' MENUNAME=''/><g><p KEYWORD='P'><i KEYWORD='B' HOTKEY='Ctrl+'/></p></g>"),
                 std::out_of_range);
    EXPECT_EQ(Outline(), L"");
    int id = 0;
    ASSERT_TRUE(CMenuIdMgr::Ins()->GetMenuId(L"B", id));
    ASSERT_TRUE(Load("<i KEYWORD='C' MENUNAME=''/>"));
    EXPECT_GT(::GetMenuItemID(m_creater.m_hMenu, 0), static_cast<UINT>(id)) << "an id was given twice";
}

TEST_F(MenuBuilder, EmptyKeyPieceOfTheFirstItemDoesNotGiveItsIdAgain) {
    EXPECT_THROW(Load("<i KEYWORD='A' HOTKEY='+'/>"), std::out_of_range);
    ASSERT_TRUE(Load("<i KEYWORD='C' MENUNAME=''/>"));
    EXPECT_NE(::GetMenuItemID(m_creater.m_hMenu, 0), m_firstId);
}

TEST_F(MenuBuilder, MenusAreLeftBehindByNoLoad) {
    const std::string branches = "<g><p KEYWORD='P'><i KEYWORD='A'/><q KEYWORD='Q'><i KEYWORD='B'/></q></p></g>";
    int round = 0; // a keyword that is registered adds no shortcut
    EXPECT_TRUE(RepeatedLeavesNothingBehind(2, 20, [&](int) {
        ++round;
        CDynMenuCreater creater;
        EXPECT_TRUE(Load(creater, branches));
        EXPECT_TRUE(Load(creater, branches));
        if (round % 2 == 0) {
            EXPECT_THROW(Load(creater, "<g><p KEYWORD='P'><i KEYWORD='Z" + std::to_string(round) +
                                           "' HOTKEY='Ctrl++'/></p></g>"),
                         std::out_of_range);
        }
    }));
}

TEST_F(MenuBuilder, NestingOf5000PopupsIsBuiltAndDestroyedWithoutTheStack) {
    std::string open = "<g>";
    std::string close = "</g>";
    for (int depth = 0; depth < 5000; ++depth) {
        open += "<p KEYWORD='P' MENUNAME=''>";
        close.insert(0, "</p>");
    }
    ASSERT_TRUE(Load(open + "<i KEYWORD='A' MENUNAME=''/>" + close));
    HMENU menu = m_creater.m_hMenu;
    int depth = 0;
    while (const HMENU popup = ::GetSubMenu(menu, 0)) {
        menu = popup;
        ++depth;
    }
    EXPECT_EQ(depth, 5000);
    EXPECT_EQ(::GetMenuItemID(menu, 0), m_firstId);
    m_creater.reset();
    EXPECT_FALSE(::IsMenu(menu));
}

/// The shared picture of a command and the icon files that it comes from.
class MenuIcons : public MenuBuilder {
protected:
    MenuIcons() {
        const std::string bytes = MakeIconFile(16, {0xFF0000, 0xFF0000});
        // Where a configured icon lies is remembered for the process: the file is written to where it is looked for.
        const std::filesystem::path file(GetIconPathStr(L"pic\\menu.ico", 16).GetString());
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        CMenuIdMgr::Ins()->Add(L"A", kId, L"n", L"", L"", L"", L"");
        GetCmdMgr()->ClearCmdImage(kId);
    }
    ~MenuIcons() override { GetCmdMgr()->ClearCmdImage(kId); }

    static constexpr int kId = 12345;
};

TEST_F(MenuIcons, RegisteredCommandGetsTheSmallPictureOfTheFile) {
    const int before = CMFCToolBar::GetImages()->GetCount();
    ASSERT_TRUE(Load("<i KEYWORD='A' PicPath='pic\\menu.ico'/>"));
    EXPECT_EQ(GetCmdMgr()->GetCmdImage(kId, FALSE), before);
    EXPECT_EQ(CMFCToolBar::GetImages()->GetCount(), before + 1);
}

TEST_F(MenuIcons, CommandThatHasAPictureKeepsIt) {
    GetCmdMgr()->SetCmdImage(kId, 0, FALSE);
    const int before = CMFCToolBar::GetImages()->GetCount();
    ASSERT_TRUE(Load("<i KEYWORD='A' PicPath='pic\\menu.ico'/>"));
    EXPECT_EQ(GetCmdMgr()->GetCmdImage(kId, FALSE), 0);
    EXPECT_EQ(CMFCToolBar::GetImages()->GetCount(), before);
}

TEST_F(MenuIcons, FileThatCannotBeLoadedIsNotedAsNone) {
    const int before = CMFCToolBar::GetImages()->GetCount();
    ASSERT_TRUE(Load("<i KEYWORD='A' PicPath='pic\\missing.ico'/>"));
    EXPECT_EQ(GetCmdMgr()->GetCmdImage(kId, FALSE), -1);
    EXPECT_EQ(CMFCToolBar::GetImages()->GetCount(), before);
}

TEST_F(MenuIcons, NewCommandGetsNone) {
    const int before = CMFCToolBar::GetImages()->GetCount();
    ASSERT_TRUE(Load("<i KEYWORD='New' PicPath='pic\\menu.ico'/>"));
    EXPECT_EQ(CMFCToolBar::GetImages()->GetCount(), before);
}

TEST_F(MenuBuilder, ProblemsOfTheFileAreToldToAHostThatListensEvenIfLoadingEndsAtOne) {
    HeardProblems problems;
    EXPECT_TRUE(Load("<i KEYWORD='A' MENUNAME='' HOTKEY='F5'/>"));
    EXPECT_THROW(Load("<i KEYWORD='B' MENUNAME='' HOTKEY='Ctrl+'/>"), std::out_of_range);
    EXPECT_EQ(problems.text, "1:34 shortcut-syntax\n1:34 shortcut-syntax\n");
}

} // namespace

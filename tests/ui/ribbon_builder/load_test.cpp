#include "tests/ui/ribbon_builder/ribbon_fixture.h"

#include "tests/support/heard_problems.h"
#include "tests/support/import_spy.h"
#include <varnhold/xml.h>

#include <set>

extern "C" {
extern void* __imp_GetFileAttributesExW;
}

namespace {

/// The icon files that were looked at, in order.
std::vector<std::wstring> g_looks;
decltype(&::GetFileAttributesExW) g_look = nullptr;

BOOL WINAPI KeepLook(LPCWSTR name, GET_FILEEX_INFO_LEVELS level, LPVOID information) {
    if (std::wstring_view(name).ends_with(L".ico")) {
        g_looks.emplace_back(name);
    }
    return g_look(name, level, information);
}

const std::string twoCategories =
    "<r><c KEYWORD='A' NAME=''><p KEYWORD='PA' NAME=''><e KEYWORD='K1' NAME='' TYPE='BUTTON'/></p></c>"
    "<c KEYWORD='B' NAME=''/></r>";
const std::string quickAccess = "<r KEYWORD='QK_Rbbion_QAToolbar'><i KEYWORD='K1'/><i KEYWORD='unknown'/><i/></r>";

TEST_F(RibbonBuilder, NewBuilderHasNothingAdded) {
    int first = 7;
    int last = 7;
    EXPECT_EQ(m_builder.GetAddIndex(first, last), 0);
    EXPECT_EQ(first, -1);
    EXPECT_EQ(last, -1);
    EXPECT_TRUE(m_builder.getAcceptF1());
    EXPECT_EQ(m_builder.m_cfgPath, L"");
    EXPECT_TRUE(m_builder.m_cmdList.empty());
    EXPECT_TRUE(m_builder.GetQAToolBar().empty());
}

TEST_F(RibbonBuilder, EveryLoadLooksAtAnIconFileOnceHoweverManyButtonsHaveIt) {
    const ImportSpy<decltype(KeepLook)> spy(__imp_GetFileAttributesExW, &KeepLook);
    g_look = spy.GetOriginal();
    std::string buttons;
    for (int index = 0; index < 30; ++index) {
        const std::string picture = index % 2 == 0 ? "even" : "odd";
        buttons += "<e KEYWORD='K" + std::to_string(index) + "' TYPE='BUTTON' PICPATH='" + picture + ".ico'/>";
    }
    for (int round = 0; round < 2; ++round) {
        g_looks.clear();
        ASSERT_TRUE(Load(Panel(buttons)));
        ASSERT_EQ(g_looks.size(), 4u) << "in round " << round;
        const std::set<std::wstring> different(g_looks.begin(), g_looks.end());
        EXPECT_EQ(different.size(), 4u) << "two pictures at two sizes";
    }
}

TEST_F(RibbonBuilder, FirstBuilderKeepsTheInstallationDirectory) {
    // The fixture's builder was made after the installation directory was set, unless an earlier test made the first.
    const CString before = CAddRibbonBar::m_sAppPath;
    EXPECT_FALSE(before.IsEmpty());
    const ScopedAppPath other(L"Z:\\elsewhere\\");
    const CAddRibbonBar later;
    EXPECT_EQ(CAddRibbonBar::m_sAppPath, before);
    CAddRibbonBar::m_sAppPath.Empty();
    const CAddRibbonBar latest;
    EXPECT_EQ(CAddRibbonBar::m_sAppPath, L"Z:\\elsewhere\\");
    CAddRibbonBar::m_sAppPath = before;
}

TEST_F(RibbonBuilder, EmptyPathIsRefusedWithoutAMessageAndChangesNothing) {
    ASSERT_TRUE(Load(twoCategories));
    EXPECT_FALSE(m_builder.Load(L"", &m_bar, 1));
    EXPECT_FALSE(m_builder.Load(L"", nullptr, 1));
    EXPECT_TRUE(m_messages.empty());
    EXPECT_EQ(m_builder.m_cfgPath, L"ribbon.xml");
    EXPECT_EQ(m_builder.m_cmdList.size(), 4u);
}

TEST_F(RibbonBuilder, NullBarIsRefusedWithoutAMessageAndForgetsPathAndCommands) {
    ASSERT_TRUE(Load(twoCategories));
    EXPECT_FALSE(m_builder.Load(L"ribbon.xml", nullptr, 1));
    EXPECT_TRUE(m_messages.empty());
    EXPECT_EQ(m_builder.m_cfgPath, L"");
    EXPECT_TRUE(m_builder.m_cmdList.empty());
}

TEST_F(RibbonBuilder, UnknownInstallationDirectoryIsRefusedWithoutAMessage) {
    m_installation.Directory().Write("ribbon.xml", "<ribbon/>");
    const ScopedAppPath unknown([](std::wstring&) { return false; });
    EXPECT_FALSE(m_builder.Load(L"ribbon.xml", &m_bar, 1));
    EXPECT_TRUE(m_messages.empty());
}

TEST_F(RibbonBuilder, MissingFileShowsOneMessageWithItsFullPath) {
    AfxGetApp()->m_pMainWnd = &m_frame;
    EXPECT_FALSE(m_builder.Load(L"cfg\\missing.xml", &m_bar, 1));
    AfxGetApp()->m_pMainWnd = nullptr;
    ASSERT_EQ(m_messages.size(), 1u);
    EXPECT_EQ(m_messages[0].text, L"请确认文件:" + m_installation.Directory().Prefix() + L"cfg\\missing.xml是否存在");
    EXPECT_EQ(m_messages[0].status, 2);
    EXPECT_EQ(m_messages[0].owner, m_frame.GetSafeHwnd());
    EXPECT_EQ(m_builder.m_cfgPath, L"");
}

TEST_F(RibbonBuilder, PathWithPercentSignsStandsInTheMessageAsItIs) {
    EXPECT_FALSE(m_builder.Load(L"%s%n%d.xml", &m_bar, 1));
    ASSERT_EQ(m_messages.size(), 1u);
    EXPECT_EQ(m_messages[0].text, L"请确认文件:" + m_installation.Directory().Prefix() + L"%s%n%d.xml是否存在");
}

TEST_F(RibbonBuilder, NoSeparatorIsPutBetweenDirectoryAndPath) {
    m_installation.Directory().Write("part-ribbon.xml", "<ribbon>" + twoCategories + "</ribbon>");
    const std::wstring directory = m_installation.Directory().Prefix() + L"part-";
    const ScopedAppPath unclosed([directory](std::wstring& path) {
        path = directory;
        return true;
    });
    EXPECT_TRUE(m_builder.Load(L"ribbon.xml", &m_bar, 1));
}

TEST_F(RibbonBuilder, RefusedFileShowsTheMessageAndLosesNothing) {
    ASSERT_TRUE(Load(quickAccess + twoCategories + "<r KEYWORD='StatusEx_btns'><i KEYWORD='S'/></r>"));
    const std::wstring before = Outline();
    const int idsBefore = TakenIds();
    const TemporaryDirectory& directory = m_installation.Directory();
    directory.Write("folder.xml/x", "");
    const std::string whole = "<ribbon>" + twoCategories + "</ribbon>";
    std::vector<std::string> refused = {"", "<ribbon>", std::string("<ribbon>\0</ribbon>", 18),
                                        "<?xml version='1.0' encoding='no-such'?><ribbon/>"};
    for (std::size_t length = 0; length < whole.size(); length += 50) {
        refused.push_back(whole.substr(0, length));
    }
    for (const std::string& bytes : refused) {
        directory.Write("refused.xml", bytes);
        EXPECT_FALSE(m_builder.Load(L"refused.xml", &m_bar, 0)) << bytes;
    }
    EXPECT_FALSE(m_builder.Load(L"folder.xml", &m_bar, 0));
    EXPECT_EQ(m_messages.size(), refused.size() + 1);

    EXPECT_EQ(Outline(), before);
    EXPECT_EQ(TakenIds(), idsBefore);
    EXPECT_TRUE(m_bar.GetCategory(0)->IsVisible());
    EXPECT_EQ(m_builder.GetQAToolBar().size(), 3u);
    EXPECT_EQ(CAddRibbonBar::m_smStatusExBtns.count(L"ribbon.xml"), 1u);
    int first = 0;
    int last = 0;
    EXPECT_EQ(m_builder.GetAddIndex(first, last), 2);
}

TEST_F(RibbonBuilder, ShownLoadLeavesCategoriesVisibleAndSetsTheQuickAccessCommands) {
    ASSERT_TRUE(Load(quickAccess + twoCategories));
    EXPECT_TRUE(m_bar.GetCategory(0)->IsVisible());
    EXPECT_TRUE(m_bar.GetCategory(1)->IsVisible());
    EXPECT_EQ(QuickAccessIds(), std::vector<UINT>{1});
}

TEST_F(RibbonBuilder, AnyFlagButZeroShows) {
    ASSERT_TRUE(Load(twoCategories, -1));
    EXPECT_TRUE(m_bar.GetCategory(0)->IsVisible());
}

TEST_F(RibbonBuilder, HiddenLoadHidesTheCategoriesAndLeavesTheQuickAccessCommands) {
    ASSERT_TRUE(Load(twoCategories));
    m_bar.SetQuickAccessCommands(CommandList{static_cast<UINT>(m_firstId) + 1});
    const std::vector<UINT> before = QuickAccessIds();
    CAddRibbonBar second;
    ASSERT_TRUE(Load(second,
                     "<r KEYWORD='QK_Rbbion_QAToolbar'><i KEYWORD='K2'/></r><r><c KEYWORD='C' NAME=''><p KEYWORD='P'>"
                     "<e KEYWORD='K2' TYPE='BUTTON'/></p></c><c KEYWORD='D' NAME=''/></r>",
                     0, "second.xml"));
    EXPECT_TRUE(m_bar.GetCategory(0)->IsVisible());
    EXPECT_TRUE(m_bar.GetCategory(1)->IsVisible());
    EXPECT_FALSE(m_bar.GetCategory(2)->IsVisible());
    EXPECT_FALSE(m_bar.GetCategory(3)->IsVisible());
    EXPECT_EQ(QuickAccessIds(), before);
    EXPECT_EQ(second.GetQAToolBar(), std::vector<std::wstring>{L"K2"});
}

TEST_F(RibbonBuilder, ShownLoadWithoutQuickAccessKeywordsLeavesTheCommandsAlone) {
    ASSERT_TRUE(Load(quickAccess + twoCategories));
    CAddRibbonBar second;
    ASSERT_TRUE(Load(second, "<r><c KEYWORD='C' NAME=''/></r>", 1, "second.xml"));
    EXPECT_EQ(QuickAccessIds(), std::vector<UINT>{1});
}

TEST_F(RibbonBuilder, AddIndexCountsTheCategoriesOfTheLoad) {
    ASSERT_TRUE(Load(twoCategories));
    CAddRibbonBar second;
    ASSERT_TRUE(Load(second, "<r><c KEYWORD='1'/><c KEYWORD='2'/></r><r><c KEYWORD='3'/></r>", 1, "second.xml"));
    int first = 0;
    int last = 0;
    EXPECT_EQ(second.GetAddIndex(first, last), 3);
    EXPECT_EQ(first, 2);
    EXPECT_EQ(last, 4);
}

TEST_F(RibbonBuilder, FileWithoutCategoriesKeepsTheIndexesAndHidesTheFormerOnesAgain) {
    ASSERT_TRUE(Load(twoCategories, 1));
    EXPECT_TRUE(m_bar.GetCategory(0)->IsVisible());
    ASSERT_TRUE(Load(quickAccess, 0, "none.xml"));
    EXPECT_FALSE(m_bar.GetCategory(0)->IsVisible());
    EXPECT_FALSE(m_bar.GetCategory(1)->IsVisible());
    int first = 7;
    int last = 7;
    EXPECT_EQ(m_builder.GetAddIndex(first, last), 2);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(last, 1);
}

TEST_F(RibbonBuilder, IndexesOfCategoriesThatAreGoneDoNoHarm) {
    ASSERT_TRUE(Load(twoCategories, 1));
    m_bar.RemoveAllCategories();
    EXPECT_TRUE(Load(quickAccess, 0, "none.xml"));
    int first = 0;
    int last = 0;
    EXPECT_EQ(m_builder.GetAddIndex(first, last), 2);
    EXPECT_EQ(m_bar.GetCategoryCount(), 0);
}

TEST_F(RibbonBuilder, HiddenLoadWithoutAnyCategoryHidesNothing) {
    ASSERT_TRUE(Load(twoCategories, 1));
    CAddRibbonBar second;
    EXPECT_TRUE(Load(second, "", 0, "none.xml"));
    EXPECT_TRUE(m_bar.GetCategory(0)->IsVisible());
    EXPECT_TRUE(m_bar.GetCategory(1)->IsVisible());
}

TEST_F(RibbonBuilder, LoadingTwiceAddsTheCategoriesTwiceUnderTheSameIds) {
    ASSERT_TRUE(Load(twoCategories));
    const std::wstring once = Outline();
    const int ids = TakenIds();
    ASSERT_TRUE(Load(twoCategories));
    EXPECT_EQ(Outline(), once + once);
    EXPECT_EQ(TakenIds(), ids);
}

TEST_F(RibbonBuilder, BuiltAndTornDownFiveTimesTheBarIsTheSame) {
    const std::string rows =
        quickAccess + twoCategories + Panel("<e KEYWORD='G' TYPE='GROUP'><s KEYWORD='K2' TYPE='BUTTON'/></e>");
    ASSERT_TRUE(Load(rows));
    const std::wstring outline = Outline();
    for (int i = 0; i < 5; ++i) {
        m_bar.RemoveAllCategories();
        EXPECT_EQ(Outline(), L"");
        CAddRibbonBar builder;
        ASSERT_TRUE(Load(builder, rows));
        EXPECT_EQ(Outline(), outline);
        EXPECT_EQ(QuickAccessIds(), std::vector<UINT>{1});
    }
}

TEST_F(RibbonBuilder, IdsGoOnAfterTheRegistryWasDestroyed) {
    ASSERT_TRUE(Load(twoCategories));
    EXPECT_EQ(Outline(), L"[A #0 (PA UNIcoButton K1 #1)][B #2]");
    CMenuIdMgr::Destroy();
    m_bar.RemoveAllCategories();
    ASSERT_TRUE(Load(twoCategories));
    EXPECT_EQ(Outline(), L"[A #3 (PA UNIcoButton K1 #4)][B #5]");
}

TEST_F(RibbonBuilder, QuickAccessKeywordsOfASecondLoadAreAppended) {
    ASSERT_TRUE(Load(quickAccess));
    ASSERT_TRUE(Load("<r KEYWORD='QK_Rbbion_QAToolbar'><i KEYWORD='K9'/></r>", 1, "second.xml"));
    EXPECT_EQ(m_builder.GetQAToolBar(), (std::vector<std::wstring>{L"K1", L"unknown", L"", L"K9"}));
}

TEST_F(RibbonBuilder, QuickAccessIdsAreThoseOfRegisteredKeywordsInReadingOrder) {
    ASSERT_TRUE(
        Load("<r KEYWORD='QK_Rbbion_QAToolbar'><i KEYWORD='B'/><i KEYWORD='no'/><i KEYWORD='A'/><i KEYWORD='B'/></r>" +
             twoCategories));
    std::vector<unsigned int> ids{99};
    EXPECT_EQ(m_builder.GetQAToolBar(ids), 3);
    const auto base = static_cast<unsigned int>(m_firstId);
    EXPECT_EQ(ids, (std::vector<unsigned int>{base + 2, base, base + 2}));
}

TEST_F(RibbonBuilder, QuickAccessRowMayStandBeforeTheCommandsItNames) {
    ASSERT_TRUE(Load(quickAccess + twoCategories));
    EXPECT_EQ(QuickAccessIds(), std::vector<UINT>{1});
}

TEST_F(RibbonBuilder, QuickAccessItemsTakeNoIds) {
    ASSERT_TRUE(Load(quickAccess));
    EXPECT_EQ(TakenIds(), 0);
}

TEST_F(RibbonBuilder, StatusRowIsKeptUnderThePathWithItsRecords) {
    ASSERT_TRUE(m_installation.Translate("S1"));
    ASSERT_TRUE(Load("<r KEYWORD='StatusEx_btns' PARAM='x'><i KEYWORD='S1' NAME='' TYPE='BUTTON' SIZE='16' PARAM='p'/>"
                     "<i KEYWORD='S2' WIDTH='x'/></r>"));
    const auto found = CAddRibbonBar::m_smStatusExBtns.find(L"ribbon.xml");
    ASSERT_NE(found, CAddRibbonBar::m_smStatusExBtns.end());
    EXPECT_EQ(found->second.first, L"StatusEx_btns");
    ASSERT_EQ(found->second.second.size(), 2u);
    const RibbonInfo& button = found->second.second[0];
    EXPECT_EQ(button.keyword, L"S1");
    EXPECT_EQ(button.name, L"<S1>");
    EXPECT_EQ(button.type, L"BUTTON");
    EXPECT_EQ(button.size, 16);
    EXPECT_EQ(button.param, L"p");
    EXPECT_EQ(button.help, L"<S1>.swf");
    EXPECT_EQ(found->second.second[1].keyword, L"S2");
    EXPECT_EQ(found->second.second[1].param, L"") << "each button is read into a fresh record";
    EXPECT_EQ(TakenIds(), 0);
    EXPECT_TRUE(m_builder.m_cmdList.empty());
}

TEST_F(RibbonBuilder, StatusRowOfALaterLoadOrLaterRowReplacesTheFormerOne) {
    ASSERT_TRUE(Load("<r KEYWORD='StatusEx_btns'><i KEYWORD='1'/><i KEYWORD='2'/></r>"));
    ASSERT_TRUE(Load("<r KEYWORD='StatusEx_btns'><i KEYWORD='3'/></r>"));
    ASSERT_EQ(CAddRibbonBar::m_smStatusExBtns[L"ribbon.xml"].second.size(), 1u);
    EXPECT_EQ(CAddRibbonBar::m_smStatusExBtns[L"ribbon.xml"].second[0].keyword, L"3");
    ASSERT_TRUE(Load("<r KEYWORD='StatusEx_btns'><i KEYWORD='4'/></r><r KEYWORD='StatusEx_btns'/>", 1, "other.xml"));
    EXPECT_TRUE(CAddRibbonBar::m_smStatusExBtns[L"other.xml"].second.empty());
    EXPECT_EQ(CAddRibbonBar::m_smStatusExBtns.size(), 2u);
}

TEST_F(RibbonBuilder, LoadWithoutAStatusRowKeepsTheFormerOne) {
    ASSERT_TRUE(Load("<r KEYWORD='StatusEx_btns'><i KEYWORD='1'/></r>"));
    ASSERT_TRUE(Load(twoCategories));
    EXPECT_EQ(CAddRibbonBar::m_smStatusExBtns[L"ribbon.xml"].second.size(), 1u);
}

TEST_F(RibbonBuilder, CommandTextsAreCollectedInReadingOrderAndAnewAtEachLoad) {
    const std::string rows = "<r CMD='row'><c KEYWORD='c' CMD='1'><p KEYWORD='p'><e KEYWORD='e' CMD='2' TYPE='BUTTON'>"
                             "<s KEYWORD='s' CMD='3' TYPE='BUTTON'/><s KEYWORD='t' TYPE='BUTTON'/></e>"
                             "<e KEYWORD='f' TYPE='lamp'/><e KEYWORD='g' CMD='4' TYPE='label'><s CMD='never'/></e></p>"
                             "<p KEYWORD='q' CMD='5'/></c></r>";
    const std::vector<std::wstring> expected = {L"1", L"1", L"2", L"3", L"3", L"", L"4", L"5"};
    ASSERT_TRUE(Load(rows));
    EXPECT_EQ(m_builder.m_cmdList, expected);
    ASSERT_TRUE(Load(rows));
    EXPECT_EQ(m_builder.m_cmdList, expected);
    EXPECT_EQ(m_builder.m_cfgPath, L"ribbon.xml");
}

TEST_F(RibbonBuilder, PathGivenByReferenceToTheBuildersOwnMemberIsLoaded) {
    ASSERT_TRUE(Load(twoCategories));
    EXPECT_TRUE(m_builder.Load(m_builder.m_cfgPath, &m_bar, 1));
    EXPECT_EQ(m_builder.m_cfgPath, L"ribbon.xml");
}

TEST_F(RibbonBuilder, CopiedBuilderHoldsWhatTheOriginalFound) {
    m_builder.SetCreateF1Tip(false);
    ASSERT_TRUE(Load(quickAccess + twoCategories));
    const CAddRibbonBar copy(m_builder);
    CAddRibbonBar assigned;
    assigned = m_builder;
    for (const CAddRibbonBar* builder : {&copy, const_cast<const CAddRibbonBar*>(&assigned)}) {
        int first = 0;
        int last = 0;
        EXPECT_EQ(builder->m_cfgPath, L"ribbon.xml");
        EXPECT_EQ(builder->m_cmdList, m_builder.m_cmdList);
        EXPECT_EQ(builder->GetQAToolBar(), m_builder.GetQAToolBar());
        EXPECT_EQ(builder->GetAddIndex(first, last), 2);
        EXPECT_FALSE(builder->getAcceptF1());
    }
}

TEST_F(RibbonBuilder, Vector2ListAppendsAtTheTail) {
    CommandList list{1};
    CAddRibbonBar::vector2List({2, 3, 2}, list);
    EXPECT_EQ(list.Ids(), (std::vector<UINT>{1, 2, 3, 2}));
    CAddRibbonBar::vector2List({}, list);
    EXPECT_EQ(list.GetCount(), 4);
}

TEST_F(RibbonBuilder, FiveThousandButtonsAreBuilt) {
    std::string rows = "<r>";
    for (int c = 0; c < 50; ++c) {
        const std::string category = std::to_string(c);
        rows += "<c KEYWORD='C" + category + "'><p KEYWORD='P'>";
        for (int e = 0; e < 100; ++e) {
            rows +=
                "<e KEYWORD='K" + category + "_" + std::to_string(e) + "' TYPE='BUTTON' PICPATH='pic\\missing.ico'/>";
        }
        rows += "</p></c>";
    }
    ASSERT_TRUE(Load(rows + "</r>"));
    EXPECT_EQ(m_bar.GetCategoryCount(), 50);
    EXPECT_EQ(m_bar.GetCategory(49)->GetPanel(0)->GetCount(), 100);
    EXPECT_EQ(TakenIds(), 5050);
}

TEST_F(RibbonBuilder, ProblemsOfTheFileAreToldToAHostThatListens) {
    HeardProblems problems;
    EXPECT_TRUE(Load(Panel("<i KEYWORD='A' NAME='' TYPE='lamp'/>")));
    EXPECT_EQ(problems.text, "1:81 unknown-type\n");
    EXPECT_EQ(m_messages.size(), 0u);
}

} // namespace

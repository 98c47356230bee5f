// Toolbars from a configuration file, in a frame with documents.
#include "tests/ui/toolbar_builder/builder_fixture.h"

#include "tests/support/heard_problems.h"
#include "toolbar_ex.h"

#include <fx/scoped_change.h>

namespace {

TEST_F(ToolBarBuilder, EachTypeInsertsItsButton) {
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='Bar'>"
                     "<i TYPE='separate'/>"
                     "<i TYPE='button' KEYWORD='A' PROMPT='One'/>"
                     "<i TYPE='qkLayerCheckCtrl' KEYWORD='B'/>"
                     "<i TYPE='qkLayerMultiCtrl' KEYWORD='C'/>"
                     "<i TYPE='qkLayerMultiCtrl2' KEYWORD='D'/></b></g>"));
    EXPECT_EQ(Contents(First()), "|, CMFCToolBarButton#0 One, CMFCCheckCombo#1, CMFCMultiCombo#2, CMFCMultiCombo2#3");
}

TEST_F(ToolBarBuilder, TypesAndAttributeNamesAreReadInAnyCase) {
    ASSERT_TRUE(Load("<g keyword='G'><b prompt='Bar'><i Type='BUTTON' Keyword='A' pRoMpT='One'/><i type='Separate'/>"
                     "<i TYPE='QKLAYERCHECKCTRL' KEYWORD='B'/></b></g>"));
    EXPECT_EQ(Contents(First()), "CMFCToolBarButton#0 One, |, CMFCCheckCombo#1");
}

TEST_F(ToolBarBuilder, AnUnknownTypeInsertsNothingAndIsStillRegistered) {
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='Bar'><i TYPE='slider' KEYWORD='A' TOOLTIP='tip'/><i KEYWORD='B'/></b>"
                     "</g>"));
    EXPECT_EQ(Contents(First()), "");
    int id = 0;
    ASSERT_TRUE(CMenuIdMgr::Ins()->GetMenuId(L"A", id));
    EXPECT_EQ(id, static_cast<int>(m_firstId));
    EXPECT_TRUE(CMenuIdMgr::Ins()->GetMenuId(L"B", id));
    EXPECT_EQ(TakenIds(), 2);
}

TEST_F(ToolBarBuilder, TheRegistryGetsPromptAndTooltipAndThreeEmptyTexts) {
    ASSERT_TRUE(Load("<g KEYWORD='G'><b><i TYPE='button' KEYWORD='A' PROMPT='One' TOOLTIP='tip'/></b></g>"));
    std::wstring text;
    ASSERT_TRUE(CMenuIdMgr::Ins()->GetMenuName(L"A", text));
    EXPECT_EQ(text, L"One");
    const int id = static_cast<int>(m_firstId);
    ASSERT_TRUE(CMenuIdMgr::Ins()->GetToolTip(id, text));
    EXPECT_EQ(text, L"tip");
    EXPECT_FALSE(CMenuIdMgr::Ins()->GetCmd(id, text));
    EXPECT_FALSE(CMenuIdMgr::Ins()->GetCmdParam(id, text));
    EXPECT_FALSE(CMenuIdMgr::Ins()->GetHelpFile(id, text));
}

TEST_F(ToolBarBuilder, ARegisteredKeywordIsTheSameCommand) {
    CMenuIdMgr::Ins()->Add(L"A", 40777, L"Ribbon", L"cmd", L"tip", L"", L"");
    ASSERT_TRUE(Load("<g KEYWORD='G'><b><i TYPE='button' KEYWORD='A' PROMPT='One'/></b></g>"));
    EXPECT_EQ(First().GetItemID(0), 40777u);
    EXPECT_EQ(TakenIds(), 0);
    std::wstring name;
    CMenuIdMgr::Ins()->GetMenuName(L"A", name);
    EXPECT_EQ(name, L"Ribbon");
}

TEST_F(ToolBarBuilder, AnEmptyKeywordStillTakesAnId) {
    ASSERT_TRUE(Load("<g KEYWORD='G'><b><i TYPE='button'/><i TYPE='button' KEYWORD='A'/></b></g>"));
    EXPECT_EQ(Contents(First()), "CMFCToolBarButton#0, CMFCToolBarButton#1");
}

TEST_F(ToolBarBuilder, ABarWithoutChildrenIsCreatedTitledAndGrouped) {
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='Empty'/></g>"));
    CMFCToolBar* const bar = creater.GetToolBar(L"G", L"Empty");
    ASSERT_NE(bar, nullptr);
    EXPECT_TRUE(::IsWindow(bar->m_hWnd));
    EXPECT_EQ(bar->GetCount(), 0);
    EXPECT_EQ(bar->GetRuntimeClass(), RUNTIME_CLASS(CMFCToolBarEx));
    EXPECT_TRUE(bar->m_bFromConfig);
    EXPECT_EQ(::GetParent(bar->m_hWnd), frame.m_hWnd);
}

/// Before any test has made a bar.
const std::uint32_t g_firstWindowId = CDynToolBarCreater::s_ToolbarIndex;

TEST_F(ToolBarBuilder, ABarsWindowIsAFlatVisibleChildWithAGripperAtTheTopAndBordersOfOne) {
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='Bar'/></g>"));
    const CMFCToolBar& bar = First();
    EXPECT_EQ(bar.GetStyle() & (WS_CHILD | WS_VISIBLE), static_cast<DWORD>(WS_CHILD | WS_VISIBLE));
    const DWORD wanted = CBRS_GRIPPER | CBRS_TOP;
    EXPECT_EQ(bar.GetPaneStyle() & (wanted | CBRS_ALIGN_ANY), wanted);
    EXPECT_EQ(bar.GetBorders(), CRect(1, 1, 1, 1));
}

TEST_F(ToolBarBuilder, ABarWithoutAWindowIsLeftOutAndStillTakesANumber) {
    const fx::ScopedChange index(CDynToolBarCreater::s_ToolbarIndex, 45200u);
    m_installation.Directory().Write("toolbar.xml", "<bars><g KEYWORD='G'><b PROMPT='1'><i TYPE='button' KEYWORD='A'/>"
                                                    "</b><b PROMPT='2'/></g></bars>");
    CWnd windowless;
    EXPECT_FALSE(creater.Load(L"toolbar.xml", &windowless));
    EXPECT_TRUE(creater.empty());
    EXPECT_EQ(CDynToolBarCreater::s_ToolbarIndex, 45202u);
    EXPECT_EQ(TakenIds(), 0) << "nothing is filled";
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='1'/></g>"));
    EXPECT_EQ(First().GetDlgCtrlID(), 45202);
}

TEST_F(ToolBarBuilder, SizesAreSetByAFileThatLoadsWhereThereAreNoUsersImages) {
    CMFCToolBar::SetSizes(CSize(40, 30), CSize(16, 15));
    EXPECT_FALSE(creater.Load(L"missing.xml", &frame));
    EXPECT_FALSE(Load("<g KEYWORD='G'><b>"));
    const CMFCToolBar bar;
    EXPECT_EQ(bar.GetButtonSize(), CSize(40, 30)) << "nothing was loaded";
    EXPECT_FALSE(Load(""));
    EXPECT_EQ(bar.GetButtonSize(), CSize(23, 22)) << "a file without groups loads";
    EXPECT_EQ(bar.GetImageSize(), CSize(16, 16));
}

TEST_F(ToolBarBuilder, UsersImagesKeepTheSizes) {
    CMFCToolBar::SetSizes(CSize(40, 30), CSize(16, 16));
    CMFCToolBarImages own;
    own.SetImageSize(CSize(16, 16));
    ASSERT_TRUE(CMFCToolBar::SetUserImages(&own));
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='1'/></g>"));
    EXPECT_EQ(First().GetButtonSize(), CSize(40, 30));
    CMFCToolBar::SetUserImages(nullptr);
    CMFCToolBar::SetSizes(CSize(23, 22), CSize(16, 16));
}

TEST_F(ToolBarBuilder, WindowIdsCountUpFromTheSharedNumber) {
    EXPECT_EQ(g_firstWindowId, 45000u);
    const fx::ScopedChange index(CDynToolBarCreater::s_ToolbarIndex, 45100u);
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='1'/><b PROMPT='2'/></g>"));
    EXPECT_EQ(creater.GetToolBar(L"G", L"1")->GetDlgCtrlID(), 45100);
    EXPECT_EQ(creater.GetToolBar(L"G", L"2")->GetDlgCtrlID(), 45101);
    EXPECT_EQ(CDynToolBarCreater::s_ToolbarIndex, 45102u);
}

TEST_F(ToolBarBuilder, TheFirstOfTwoBarsWithOneTitleIsFound) {
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='Bar'/><b PROMPT='bar'/></g>"));
    EXPECT_EQ(creater.GetToolBar(L"G", L"BAR"), &First());
}

TEST_F(ToolBarBuilder, ABarIsFoundUnderThePresentTitle) {
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='Bar'/></g>"));
    First().SetWindowText(L"Other");
    EXPECT_EQ(creater.GetToolBar(L"G", L"Bar"), nullptr);
    EXPECT_EQ(creater.GetToolBar(L"G", L"Other"), &First());
    EXPECT_EQ(creater.GetToolBar(L"H", L"Other"), nullptr);
}

TEST_F(ToolBarBuilder, AllBarsComeByGroupNameAndThenByCreation) {
    ASSERT_TRUE(Load("<g KEYWORD='Z'><b PROMPT='1'/></g><g KEYWORD='A'><b PROMPT='2'/><b PROMPT='3'/></g>"
                     "<g KEYWORD='Z'><b PROMPT='4'/></g>"));
    std::wstring order;
    for (const CMFCToolBar* const bar : creater.GetAllToolBar()) {
        CString title;
        bar->GetWindowText(title);
        order += title;
    }
    EXPECT_EQ(order, L"2314");
    std::wstring groups;
    for (const auto& [group, bar] : creater.GetGroupedToolBars()) {
        groups += group;
    }
    EXPECT_EQ(groups, L"AAZZ");
}

TEST_F(ToolBarBuilder, FailsSilentlyWithoutPathParentFileOrBars) {
    EXPECT_FALSE(creater.Load(L"", &frame));
    EXPECT_FALSE(creater.Load(L"missing.xml", &frame));
    m_installation.Directory().Write("toolbar.xml", "<bars><g KEYWORD='G'><b/></g></bars>");
    EXPECT_FALSE(creater.Load(L"toolbar.xml", nullptr));
    EXPECT_FALSE(Load("<g KEYWORD='G'/>"));
    EXPECT_FALSE(Load("<g KEYWORD='G'><b>"));
    EXPECT_TRUE(creater.empty());
    EXPECT_TRUE(creater.GetAllToolBar().empty());
}

TEST_F(ToolBarBuilder, LoadingAgainAddsToTheGroups) {
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='1'/></g>"));
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='2'/></g>"));
    EXPECT_EQ(creater.GetAllToolBar().size(), 2u);
}

TEST_F(ToolBarBuilder, ProblemsOfTheFileAreToldToAHostThatListens) {
    HeardProblems problems;
    EXPECT_TRUE(Load("<g KEYWORD='G'><b PROMPT='P'><i TYPE='buton' KEYWORD='K'/></b></g>"));
    EXPECT_EQ(problems.text, "1:39 unknown-type\n");
    EXPECT_EQ(problems.last.fix, L"did you mean \"button\"?");
}

} // namespace

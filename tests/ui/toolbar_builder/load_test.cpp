// Toolbars from a configuration file, in a frame with documents.
#include "dyn_toolbar_creater.h"

#include "library_context.h"
#include "menu_id_mgr.h"
#include "tests/support/heard_problems.h"
#include "tests/support/icon_writer.h"
#include "tests/support/message_pump.h"
#include "tests/support/translation_tables.h"
#include "tests/support/ui_test.h"
#include "toolbar_combos.h"
#include "toolbar_ex.h"

#include <afxcommandmanager.h>
#include <fx/scoped_change.h>
#include <varnhold/strings.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

/// Lives on the stack: its window's end does not delete it.
class BarsFrame : public CMDIFrameWndEx {
protected:
    void PostNcDestroy() override {}
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

TEST_F(ToolBarBuilder, WindowIdsCountUpFromTheSharedNumber) {
    EXPECT_GE(CDynToolBarCreater::s_ToolbarIndex, 45000u);
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

TEST_F(ToolBarBuilder, CopiesShareTheBars) {
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='1'/></g>"));
    const CDynToolBarCreater copy(creater);
    EXPECT_EQ(copy.GetAllToolBar(), creater.GetAllToolBar());
    CDynToolBarCreater assigned;
    EXPECT_TRUE(assigned.empty());
    assigned = creater;
    EXPECT_EQ(assigned.GetAllToolBar(), creater.GetAllToolBar());
}

TEST_F(ToolBarBuilder, ABarOfTheHostsJoinsAGroupThatExistsAndIsConfiguredInAnyCase) {
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='1'/></g>"));
    CMFCToolBar own;
    ASSERT_TRUE(own.Create(&frame));
    own.SetWindowText(L"Own");
    EXPECT_FALSE(creater.AddCustomBar(L"G", nullptr, L"x"));
    EXPECT_FALSE(creater.AddCustomBar(L"H", &own, L"x"));
    EXPECT_TRUE(own.m_bFromConfig);
    EXPECT_EQ(creater.GetAllToolBar().size(), 1u);
    EXPECT_TRUE(creater.AddCustomBar(L"G", &own, L""));
    EXPECT_EQ(creater.GetToolBar(L"G", L"own"), &own);
    own.DestroyWindow();
}

TEST_F(ToolBarBuilder, BarsAreDockedShownAndHiddenByGroup) {
    ASSERT_TRUE(Load("<g KEYWORD='A'><b PROMPT='1'/></g><g KEYWORD='B'><b PROMPT='2'/></g>"));
    frame.EnableDocking(CBRS_ALIGN_ANY);
    creater.EnableDocking(CBRS_ALIGN_ANY, &frame);
    creater.DockPane(&frame);
    CMFCToolBar& first = *creater.GetToolBar(L"A", L"1");
    CMFCToolBar& second = *creater.GetToolBar(L"B", L"2");
    EXPECT_EQ(first.GetEnabledAlignment(), static_cast<DWORD>(CBRS_ALIGN_ANY));
    const auto isShown = [](const CMFCToolBar& bar) { return (bar.GetStyle() & WS_VISIBLE) != 0; };
    creater.ShowBars(L"A", FALSE, &frame);
    PumpPending();
    EXPECT_FALSE(isShown(first));
    EXPECT_TRUE(isShown(second));
    creater.ShowBars(0, &frame);
    PumpPending();
    EXPECT_FALSE(isShown(second));
    creater.ShowBars(7, &frame);
    PumpPending();
    EXPECT_TRUE(isShown(first));
    EXPECT_TRUE(isShown(second));
    creater.ShowBars(L"none", 0, &frame);
    EXPECT_TRUE(isShown(first));
}

TEST_F(ToolBarBuilder, ANullFrameIsTheMainWindowWhenThatIsOne) {
    ASSERT_TRUE(Load("<g KEYWORD='A'><b PROMPT='1'/></g>"));
    const auto isShown = [this] { return (First().GetStyle() & WS_VISIBLE) != 0; };
    {
        TestWindow other;
        const fx::ScopedChange main(AfxGetThread()->m_pMainWnd, static_cast<CWnd*>(&other));
        creater.ShowBars(0, nullptr);
        creater.DockPane(nullptr);
        creater.EnableDocking(CBRS_ALIGN_ANY, nullptr);
        EXPECT_TRUE(isShown());
    }
    const fx::ScopedChange main(AfxGetThread()->m_pMainWnd, static_cast<CWnd*>(&frame));
    creater.ShowBars(0, nullptr);
    PumpPending();
    EXPECT_FALSE(isShown());
}

TEST_F(ToolBarBuilder, BarsEndWithTheirFramesWindow) {
    ASSERT_TRUE(Load("<g KEYWORD='A'><b PROMPT='1'><i TYPE='qkLayerCheckCtrl' KEYWORD='A'/></b></g>"));
    const HWND window = First().m_hWnd;
    frame.DestroyWindow();
    EXPECT_FALSE(::IsWindow(window));
}

// ---- icons

void WriteIconAt(const CString& path) {
    const std::filesystem::path file(path.GetString());
    std::filesystem::create_directories(file.parent_path());
    const std::string bytes = MakeIconFile(16, {0xFF0000, 0xFF0000});
    std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

TEST_F(ToolBarBuilder, AnIconIsTheUsersImageOfItsButton) {
    WriteIconAt(GetIconPathStr(L"pic\\bar.ico", 16));
    ASSERT_TRUE(Load("<g KEYWORD='G'><b><i TYPE='button' KEYWORD='A' PICPATH='pic\\bar.ico'/>"
                     "<i TYPE='button' KEYWORD='B' PICPATH='pic\\none.ico'/></b></g>"));
    const CMFCToolBarButton& with = *First().GetButton(0);
    EXPECT_TRUE(with.m_bUserButton);
    EXPECT_FALSE(with.IsLocked());
    EXPECT_GE(with.GetImage(), 0);
    EXPECT_EQ(First().GetButton(1)->GetImage(), -1) << "still inserted, without an image";
    ASSERT_NE(CMFCToolBar::GetUserImages(), nullptr) << "the library's list stands in for missing user's images";
    EXPECT_EQ(CSize(CMFCToolBar::GetUserImages()->GetImageSize()), CSize(16, 16));
    EXPECT_LT(with.GetImage(), CMFCToolBar::GetUserImages()->GetCount());
}

TEST_F(ToolBarBuilder, ARegisteredCommandWithoutAnImageGetsTheSharedOne) {
    WriteIconAt(GetIconPathStr(L"pic\\bar.ico", 16));
    constexpr int with = 40801;
    constexpr int without = 40802;
    CMenuIdMgr::Ins()->Add(L"A", with, L"", L"", L"", L"", L"");
    CMenuIdMgr::Ins()->Add(L"B", without, L"", L"", L"", L"", L"");
    GetCmdMgr()->SetCmdImage(without, 3, FALSE);
    GetCmdMgr()->ClearCmdImage(with);
    const int before = CMFCToolBar::GetImages()->GetCount();
    ASSERT_TRUE(Load("<g KEYWORD='G'><b><i TYPE='qkLayerCheckCtrl' KEYWORD='A' PICPATH='pic\\bar.ico'/>"
                     "<i TYPE='button' KEYWORD='B' PICPATH='pic\\bar.ico'/></b></g>"));
    EXPECT_EQ(GetCmdMgr()->GetCmdImage(with), before);
    EXPECT_EQ(CMFCToolBar::GetImages()->GetCount(), before + 1);
    EXPECT_EQ(GetCmdMgr()->GetCmdImage(without), 3) << "it has one";
}

TEST_F(ToolBarBuilder, UsersImagesOfTheHostStay) {
    WriteIconAt(GetIconPathStr(L"pic\\bar.ico", 16));
    CMFCToolBar::SetSizes(CSize(23, 22), CSize(16, 16));
    CMFCToolBarImages own;
    own.SetImageSize(CSize(16, 16));
    ASSERT_TRUE(CMFCToolBar::SetUserImages(&own));
    ASSERT_TRUE(Load("<g KEYWORD='G'><b><i TYPE='button' KEYWORD='A' PICPATH='pic\\bar.ico'/></b></g>"));
    EXPECT_EQ(CMFCToolBar::GetUserImages(), &own);
    CMFCToolBar::SetUserImages(nullptr);
}

TEST_F(ToolBarBuilder, ProblemsOfTheFileAreToldToAHostThatListens) {
    HeardProblems problems;
    EXPECT_TRUE(Load("<g KEYWORD='G'><b PROMPT='P'><i TYPE='buton' KEYWORD='K'/></b></g>"));
    EXPECT_EQ(problems.text, "1:39 unknown-type\n");
    EXPECT_EQ(problems.last.fix, L"did you mean \"button\"?");
}

} // namespace

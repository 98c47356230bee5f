// What becomes of loaded bars: they are shared, shown, docked, and end with their windows.
#include "tests/ui/toolbar_builder/builder_fixture.h"

#include "tests/support/churn_memory.h"
#include "toolbar_combos.h"

#include <fx/scoped_change.h>

namespace {

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
    EXPECT_EQ(creater.GetName(&own), L"Own") << "the window's text, where no name is given";
    own.DestroyWindow();
}

TEST_F(ToolBarBuilder, ABarOfTheHostsHasTheGivenName) {
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='1'/></g>"));
    CMFCToolBar own;
    ASSERT_TRUE(own.Create(&frame));
    own.SetWindowText(L"Own");
    EXPECT_TRUE(creater.AddCustomBar(L"G", &own, L"given"));
    EXPECT_EQ(creater.GetName(&own), L"given");
    own.DestroyWindow();
}

TEST_F(ToolBarBuilder, AnUnknownInstallationDirectoryLoadsNothing) {
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='1'/></g>"));
    CDynToolBarCreater other;
    const ScopedAppPath unknown([](std::wstring&) { return false; });
    EXPECT_FALSE(other.Load(L"toolbar.xml", &frame));
    EXPECT_TRUE(other.empty());
}

TEST_F(ToolBarBuilder, BarsAreDockedShownAndHiddenByGroup) {
    ASSERT_TRUE(Load("<g KEYWORD='A'><b PROMPT='1'/></g><g KEYWORD='B'><b PROMPT='2'/></g>"));
    frame.EnableDocking(CBRS_ALIGN_ANY);
    creater.EnableDocking(CBRS_ALIGN_ANY, &frame);
    creater.DockPane(&frame);
    CMFCToolBar& first = *creater.GetToolBar(L"A", L"1");
    CMFCToolBar& second = *creater.GetToolBar(L"B", L"2");
    EXPECT_EQ(first.GetEnabledAlignment(), static_cast<DWORD>(CBRS_ALIGN_ANY));
    for (const CMFCToolBar* const bar : {&first, &second}) {
        EXPECT_TRUE(bar->IsDocked());
        EXPECT_EQ(bar->GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_TOP));
    }
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

TEST_F(ToolBarBuilder, ACombosMarkIsToldToTheFrame) {
    ASSERT_TRUE(Load("<g KEYWORD='A'><b PROMPT='1'><i TYPE='qkLayerCheckCtrl' KEYWORD='A'/></b></g>"));
    creater.DockPane(&frame);
    auto& button = *static_cast<CMFCCheckCombo*>(CMFCToolBarComboBoxButton::GetByCmd(m_firstId));
    button.AddItem(L"roads");
    button.SelectItem(0, FALSE);
    ASSERT_NE(button.GetComboBox(), nullptr);
    button.GetComboBox()->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(6, 8));
    EXPECT_EQ(frame.checks, L"roads=1;");
    EXPECT_TRUE(button.GetCheck(0));
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
        EXPECT_FALSE(First().IsDocked());
        EXPECT_EQ(First().GetEnabledAlignment(), 0u);
    }
    {
        const fx::ScopedChange main(AfxGetThread()->m_pMainWnd, static_cast<CWnd*>(nullptr));
        creater.ShowBars(0, nullptr);
        creater.ShowBars(L"A", 0, nullptr);
        EXPECT_TRUE(isShown());
    }
    const fx::ScopedChange main(AfxGetThread()->m_pMainWnd, static_cast<CWnd*>(&frame));
    creater.ShowBars(0, nullptr);
    PumpPending();
    EXPECT_FALSE(isShown());
}

/// Writes down how it is shown.
class ToldBar : public CMFCToolBar {
public:
    std::string told;
    void ShowPane(BOOL show, BOOL delay, BOOL activate) override {
        told += std::string(show ? "shown" : "hidden") + (delay ? " later" : " now") + (activate ? " active;" : ";");
        CMFCToolBar::ShowPane(show, delay, activate);
    }
};

TEST_F(ToolBarBuilder, OnlyBarsThatAreNotYetSoAreShownOrHiddenWithoutActivationAndTheLayoutFollows) {
    ASSERT_TRUE(Load("<g KEYWORD='A'><b PROMPT='1'/></g>"));
    ToldBar own;
    ASSERT_TRUE(own.Create(&frame));
    ASSERT_TRUE(creater.AddCustomBar(L"A", &own, L"own"));
    creater.ShowBars(1, &frame);
    EXPECT_EQ(own.told, "") << "it is shown";
    creater.ShowBars(0, &frame);
    creater.ShowBars(0, &frame);
    creater.ShowBars(L"A", 0, &frame);
    EXPECT_EQ(own.told, "hidden later;");
    creater.ShowBars(L"A", -1, &frame);
    creater.ShowBars(L"A", 1, &frame);
    EXPECT_EQ(own.told, "hidden later;shown later;");
    own.DestroyWindow();
}

TEST_F(ToolBarBuilder, BarsOfAFrameThatIsGoneArePassedOver) {
    ASSERT_TRUE(Load("<g KEYWORD='A'><b PROMPT='1'/></g>"));
    const CDynToolBarCreater copy(creater);
    frame.DestroyWindow();
    ChurnMemory();
    EXPECT_EQ(creater.GetToolBar(L"A", L"1"), nullptr);
    EXPECT_EQ(creater.GetToolBar(L"A", L""), nullptr);
    ASSERT_EQ(creater.GetAllToolBar().size(), 1u);
    EXPECT_EQ(First().m_hWnd, nullptr);
    BarsFrame other;
    ASSERT_TRUE(other.Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(50, 50, 750, 450)));
    other.EnableDocking(CBRS_ALIGN_ANY);
    creater.EnableDocking(CBRS_ALIGN_ANY, &other);
    creater.DockPane(&other);
    creater.ShowBars(1, &other);
    creater.ShowBars(L"A", 0, &other);
    PumpPending();
    EXPECT_EQ(First().m_hWnd, nullptr);
    EXPECT_TRUE(First().m_bFromConfig);
    creater = CDynToolBarCreater();
    ChurnMemory();
    EXPECT_TRUE(copy.GetAllToolBar().front()->m_bFromConfig) << "the copy remembers it";
    other.DestroyWindow();
}

TEST_F(ToolBarBuilder, ABarThatTheHostDestroysIsPassedOverAndTheNextOneWithItsTitleFound) {
    ASSERT_TRUE(Load("<g KEYWORD='A'><b PROMPT='1'/><b PROMPT='1'/></g>"));
    CMFCToolBar* const second = creater.GetAllToolBar().back();
    First().DestroyWindow();
    ChurnMemory();
    EXPECT_EQ(creater.GetToolBar(L"A", L"1"), second);
    creater.ShowBars(0, &frame);
    PumpPending();
    EXPECT_EQ(second->GetStyle() & WS_VISIBLE, 0u);
}

TEST_F(ToolBarBuilder, ABarOutlivesTheCreaterAsLongAsItsWindowIsThere) {
    CMFCToolBar* bar = nullptr;
    {
        CDynToolBarCreater shortLived;
        m_installation.Directory().Write("toolbar.xml", "<bars><g KEYWORD='A'><b PROMPT='1'/></g></bars>");
        ASSERT_TRUE(shortLived.Load(L"toolbar.xml", &frame));
        bar = shortLived.GetAllToolBar().front();
    }
    ChurnMemory();
    EXPECT_TRUE(::IsWindow(bar->m_hWnd));
    EXPECT_EQ(CWnd::FromHandlePermanent(bar->m_hWnd), bar);
}

TEST_F(ToolBarBuilder, ABarOfTheHostsWithoutAWindowHasNoTitle) {
    ASSERT_TRUE(Load("<g KEYWORD='G'><b PROMPT='1'/></g>"));
    CMFCToolBar own;
    EXPECT_TRUE(creater.AddCustomBar(L"G", &own, L""));
    EXPECT_TRUE(creater.AddCustomBar(L"G", &own, L"name"));
    EXPECT_EQ(creater.GetToolBar(L"G", L""), nullptr);
    EXPECT_EQ(creater.GetToolBar(L"G", L"name"), nullptr) << "bars are found by their window's text";
    EXPECT_EQ(creater.GetAllToolBar().size(), 3u);
}

TEST_F(ToolBarBuilder, BarsEndWithTheirFramesWindow) {
    ASSERT_TRUE(Load("<g KEYWORD='A'><b PROMPT='1'><i TYPE='qkLayerCheckCtrl' KEYWORD='A'/></b></g>"));
    const HWND window = First().m_hWnd;
    frame.DestroyWindow();
    EXPECT_FALSE(::IsWindow(window));
}

} // namespace

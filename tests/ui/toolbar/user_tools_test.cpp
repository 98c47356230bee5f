// The user's tools: the list, the commands, the page of the customize dialog.
#include "tests/support/canvas.h"
#include "tests/support/icon_handle.h"
#include "tests/ui/toolbar/customize_pages.h"

namespace {

constexpr UINT kDummy = 5000;
constexpr UINT kFirst = 5001;
constexpr UINT kLast = 5003;
constexpr LPCTSTR kProfile = L"UserTools";

/// Notes that it was started.
class NotedTool : public CUserTool {
    DECLARE_DYNCREATE(NotedTool)

public:
    static int s_started;
    static BOOL s_works;

    BOOL Invoke() override {
        ++s_started;
        return s_works;
    }

protected:
    HICON LoadDefaultIcon() override {
        return MakeIcon(16, RGB(0, 200, 0), [](int, int) { return true; });
    }
};
IMPLEMENT_DYNCREATE(NotedTool, CUserTool)
int NotedTool::s_started = 0;
BOOL NotedTool::s_works = TRUE;

std::vector<CString> LabelsOf(const CUserToolsManager& manager) {
    std::vector<CString> labels;
    for (POSITION position = manager.GetUserTools().GetHeadPosition(); position != nullptr;) {
        labels.push_back(static_cast<const CUserTool*>(manager.GetUserTools().GetNext(position))->m_strLabel);
    }
    return labels;
}
using Labels = std::vector<CString>;

class UserToolsTest : public CustomizePageTest {
protected:
    UserToolsTest() {
        NotedTool::s_started = 0;
        NotedTool::s_works = TRUE;
    }
    ~UserToolsTest() override {
        Close();
        App().CleanState(App().GetRegSectionPath(kProfile));
    }
    static CWinAppEx& App() { return *static_cast<CWinAppEx*>(AfxGetApp()); }
    CUserTool& Add(LPCTSTR label) {
        CUserTool& tool = *m_manager.CreateNewTool();
        tool.m_strLabel = label;
        return tool;
    }

    CUserToolsManager m_manager{kDummy, kFirst, kLast, RUNTIME_CLASS(NotedTool)};
};

TEST_F(UserToolsTest, EachToolHasTheFirstIdThatIsFreeAndNoneIsMadeBeyondTheLast) {
    EXPECT_EQ(m_manager.GetMaxTools(), 3);
    CUserTool* const one = m_manager.CreateNewTool();
    CUserTool* const two = m_manager.CreateNewTool();
    CUserTool* const three = m_manager.CreateNewTool();
    ASSERT_NE(three, nullptr);
    EXPECT_TRUE(one->IsKindOf(RUNTIME_CLASS(NotedTool))) << "the class that the program asked for";
    EXPECT_EQ(one->GetCommandId(), kFirst);
    EXPECT_EQ(three->GetCommandId(), kLast);
    EXPECT_EQ(m_manager.CreateNewTool(), nullptr);
    ASSERT_TRUE(m_manager.RemoveTool(two));
    EXPECT_EQ(m_manager.CreateNewTool()->GetCommandId(), kFirst + 1);
    EXPECT_EQ(m_manager.FindTool(kLast), three);
    EXPECT_EQ(m_manager.FindTool(kDummy), nullptr);
    EXPECT_TRUE(m_manager.IsUserToolCmd(kLast));
    EXPECT_FALSE(m_manager.IsUserToolCmd(kLast + 1));
    EXPECT_FALSE(m_manager.IsUserToolCmd(kDummy));
}

TEST_F(UserToolsTest, AToolMovesByOnePlaceAndStaysAtTheEnds) {
    CUserTool& a = Add(L"A");
    Add(L"B");
    CUserTool& c = Add(L"C");
    EXPECT_FALSE(m_manager.MoveToolUp(&a));
    EXPECT_FALSE(m_manager.MoveToolDown(&c));
    EXPECT_TRUE(m_manager.MoveToolUp(&c));
    EXPECT_EQ(LabelsOf(m_manager), (Labels{L"A", L"C", L"B"}));
    EXPECT_TRUE(m_manager.MoveToolDown(&a));
    EXPECT_EQ(LabelsOf(m_manager), (Labels{L"C", L"A", L"B"}));
    EXPECT_FALSE(m_manager.MoveToolUp(nullptr));
    EXPECT_FALSE(m_manager.RemoveTool(nullptr));
}

TEST_F(UserToolsTest, ToolsComeBackInTheNextRunAndDamagedOnesChangeNothing) {
    CUserTool& tool = Add(L"&Notes");
    tool.SetCommand(L"notes.exe");
    tool.m_strArguments = L"-n \"a b\"";
    tool.m_strInitialDirectory = L"C:\\data";
    m_manager.RemoveTool(&Add(L"gone"));
    Add(L"Second");
    ASSERT_TRUE(m_manager.SaveState(kProfile));
    CUserToolsManager next(kDummy, kFirst, kLast, RUNTIME_CLASS(NotedTool));
    ASSERT_TRUE(next.LoadState(kProfile));
    ASSERT_EQ(LabelsOf(next), (Labels{L"&Notes", L"Second"}));
    const CUserTool& read = *next.FindTool(kFirst);
    EXPECT_STREQ(read.GetCommand(), L"notes.exe");
    EXPECT_STREQ(read.m_strArguments, L"-n \"a b\"");
    EXPECT_STREQ(read.m_strInitialDirectory, L"C:\\data");
    CUserToolsManager others(kDummy, kFirst + 100, kLast + 100, RUNTIME_CLASS(NotedTool));
    ASSERT_NE(others.CreateNewTool(), nullptr);
    EXPECT_FALSE(others.LoadState(kProfile)) << "commands that are not set aside";
    EXPECT_EQ(others.GetUserTools().GetCount(), 1);
    EXPECT_FALSE(others.LoadState(L"Nothing there"));
}

TEST_F(UserToolsTest, TheCommandOfAToolIsEnabledAndStartsIt) {
    Add(L"A");
    CFrameWnd& frame = *m_frame;
    CCmdUI state;
    state.m_nID = kFirst;
    EXPECT_TRUE(frame.OnCmdMsg(kFirst, CN_UPDATE_COMMAND_UI, &state, nullptr));
    EXPECT_TRUE(frame.OnCmdMsg(kFirst, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(NotedTool::s_started, 1);
    AFX_CMDHANDLERINFO info{};
    EXPECT_TRUE(frame.OnCmdMsg(kFirst, CN_COMMAND, nullptr, &info)) << "who asks for a handler hears that there is one";
    EXPECT_EQ(NotedTool::s_started, 1);
    EXPECT_FALSE(frame.OnCmdMsg(kFirst + 1, CN_COMMAND, nullptr, nullptr)) << "no tool has it";
}

TEST_F(UserToolsTest, AProgramThatIsNotThereIsNotStarted) {
    CUserToolsManager manager(kDummy, kFirst, kLast);
    CUserTool& tool = *manager.CreateNewTool();
    EXPECT_FALSE(manager.InvokeTool(kFirst)) << "without a command";
    tool.SetCommand(L"C:\\no\\such\\program.exe");
    EXPECT_FALSE(manager.InvokeTool(kFirst));
    EXPECT_NE(tool.SetToolIcon(), nullptr) << "the icon of programs without one";
}

TEST_F(UserToolsTest, AMenuShowsTheToolsWhereTheirCommandStands) {
    const HMENU menu = ::CreatePopupMenu();
    ::AppendMenuW(menu, MF_STRING, 3001, L"First");
    ::AppendMenuW(menu, MF_STRING, kDummy, L"(tools)");
    ::AppendMenuW(menu, MF_STRING, 3002, L"Last");
    const auto rows = [&] {
        CMFCPopupMenu* const popup =
            App().GetContextMenuManager()->ShowPopupMenu(menu, 300, 300, m_frame, FALSE, FALSE);
        std::vector<UINT> ids;
        for (int row = 0; popup != nullptr && row < popup->GetMenuItemCount(); ++row) {
            ids.push_back(popup->GetMenuItem(row)->m_nID);
        }
        CMFCPopupMenu::CloseAll();
        PumpPending();
        return ids;
    };
    EXPECT_EQ(rows(), (std::vector<UINT>{3001, kDummy, 3002})) << "there are no tools";
    Add(L"A");
    Add(L"B");
    EXPECT_EQ(rows(), (std::vector<UINT>{3001, kFirst, kFirst + 1, 3002}));
    ::DestroyMenu(menu);
}

TEST_F(UserToolsTest, AMenuShowsTheIconOfAToolUnlessItsCommandHasAnImage) {
    Add(L"A").SetToolIcon();
    Add(L"B").SetToolIcon();
    AddImages(*CMFCToolBar::GetImages(), 1);
    GetCmdMgr()->SetCmdImage(kFirst + 1, 0, FALSE);
    const HMENU menu = ::CreatePopupMenu();
    ::AppendMenuW(menu, MF_STRING, kDummy, L"(tools)");
    ::AppendMenuW(menu, MF_STRING, 3001, L"None");
    CMFCPopupMenu* const popup = App().GetContextMenuManager()->ShowPopupMenu(menu, 300, 300, m_frame, FALSE, FALSE);
    ASSERT_NE(popup, nullptr);
    ASSERT_EQ(popup->GetMenuItemCount(), 3);
    CMFCPopupMenuBar& bar = *popup->GetMenuBar();
    Canvas canvas(ClientSize(bar));
    constexpr std::uint32_t kGreen = 0x00C800;
    const auto greens = [&](int row) {
        CMFCToolBarMenuButton& item = *popup->GetMenuItem(row);
        item.OnDraw(canvas.Dc(), item.Rect(), CMFCToolBar::GetImages(), FALSE, FALSE, FALSE, FALSE, TRUE);
        CRect image;
        item.GetImageRect(image);
        image.InflateRect(0, 1); // images are a row lower than icons here
        int count = 0;
        for (int y = item.Rect().top; y < item.Rect().bottom; ++y) {
            for (int x = item.Rect().left; x < item.Rect().right; ++x) {
                const bool isGreen = canvas.At(x, y) == kGreen;
                EXPECT_TRUE(!isGreen || image.PtInRect(CPoint(x, y))) << x << "," << y;
                count += isGreen ? 1 : 0;
            }
        }
        return count;
    };
    EXPECT_EQ(greens(0), 16 * 16);
    EXPECT_EQ(greens(1), 0) << "the image that the user has given to the command";
    EXPECT_EQ(greens(2), 0) << "no tool";
    CMFCPopupMenu::CloseAll();
    PumpPending();
    GetCmdMgr()->ClearCmdImage(kFirst + 1);
    ::DestroyMenu(menu);
}

TEST_F(UserToolsTest, TheIconOfAProgramHasTheSizeInWhichItIsDrawn) {
    const auto widthOf = [](HICON icon) {
        ICONINFO info{};
        ::GetIconInfo(icon, &info);
        BITMAP bitmap{};
        ::GetObjectW(info.hbmMask, sizeof(bitmap), &bitmap);
        ::DeleteObject(info.hbmMask);
        ::DeleteObject(info.hbmColor);
        return static_cast<int>(bitmap.bmWidth);
    };
    CUserTool tool;
    const double before = afxGlobalData.GetRibbonImageScale();
    for (const double scale : {1.0, 1.5, 2.0}) {
        afxGlobalData.SetRibbonImageScale(scale);
        for (LPCTSTR program : {L"notepad.exe", L"C:\\no\\such\\program.exe"}) {
            tool.SetCommand(program);
            EXPECT_EQ(widthOf(tool.SetToolIcon()), static_cast<int>(16 * scale)) << CStringA(program).GetString();
        }
    }
    afxGlobalData.SetRibbonImageScale(before);
}

// ---- the page

constexpr int kTools = 1001;
constexpr int kNew = 1002;
constexpr int kDelete = 1003;
constexpr int kUp = 1004;
constexpr int kDown = 1005;
constexpr int kName = 1006;
constexpr int kCommand = 1007;
constexpr int kArguments = 1008;
constexpr int kDirectory = 1009;
constexpr int kOfferArguments = 1011;

TEST_F(UserToolsTest, OnItsPageAToolIsMadeNamedMovedAndDeleted) {
    Open();
    ASSERT_TRUE(GoTo(L"Tools"));
    EXPECT_FALSE(IsEnabled(kName)) << "there is no tool yet";
    EXPECT_FALSE(IsEnabled(kDelete));
    Click(kNew);
    ::SetWindowTextW(Item(kName), L"&Notes");
    ::SetWindowTextW(Item(kCommand), L"notes.exe");
    ::SetWindowTextW(Item(kArguments), L"-a");
    ::SetWindowTextW(Item(kDirectory), L"C:\\");
    PumpPending();
    const CUserTool& tool = *m_manager.FindTool(kFirst);
    EXPECT_STREQ(tool.m_strLabel, L"&Notes");
    EXPECT_STREQ(tool.GetCommand(), L"notes.exe");
    EXPECT_STREQ(tool.m_strArguments, L"-a");
    EXPECT_STREQ(tool.m_strInitialDirectory, L"C:\\");
    Click(kNew);
    ::SetWindowTextW(Item(kName), L"Second");
    EXPECT_TRUE(IsEnabled(kUp));
    EXPECT_FALSE(IsEnabled(kDown));
    Click(kUp);
    EXPECT_EQ(LabelsOf(m_manager), (Labels{L"Second", L"&Notes"}));
    EXPECT_STREQ(Text(kName), L"Second") << "it stays selected";
    Click(kNew);
    EXPECT_FALSE(IsEnabled(kNew)) << "all commands are taken";
    EXPECT_FALSE(::IsWindowVisible(Item(kOfferArguments))) << "the program offers no arguments";
    Select(kTools, 0);
    ClickAndAnswer(kDelete, IDNO);
    EXPECT_EQ(m_manager.GetUserTools().GetCount(), 3);
    ClickAndAnswer(kDelete, IDYES);
    EXPECT_EQ(m_manager.GetUserTools().GetCount(), 2);
    EXPECT_EQ(m_manager.FindTool(kFirst + 1), nullptr) << "the second";
    EXPECT_STREQ(Text(kName), L"&Notes");
}

TEST_F(UserToolsTest, ThePageIsThereForAManagerAloneAndCanBeLeftOut) {
    Open(AFX_CUSTOMIZE_NOHELP | AFX_CUSTOMIZE_NOTOOLS);
    EXPECT_FALSE(GoTo(L"Tools"));
    Close();
    CUserToolsManager* const manager = std::exchange(afxUserToolsManager, nullptr);
    Open();
    EXPECT_FALSE(GoTo(L"Tools"));
    Close();
    afxUserToolsManager = manager;
}

/// Refuses tools without a name, and notes what it hears.
class StrictDialog : public CMFCToolBarsCustomizeDialog {
public:
    using CMFCToolBarsCustomizeDialog::CMFCToolBarsCustomizeDialog;
    int begun = 0;
    int before = 0;
    int after = 0;

protected:
    BOOL CheckToolsValidity(const CObList& tools) override {
        for (POSITION position = tools.GetHeadPosition(); position != nullptr;) {
            if (static_cast<const CUserTool*>(tools.GetNext(position))->m_strLabel.IsEmpty()) {
                return FALSE;
            }
        }
        return TRUE;
    }
    void OnInitToolsPage() override { ++begun; }
    void OnBeforeChangeTool(CUserTool* tool) override {
        EXPECT_STREQ(tool->m_strLabel, L"A");
        ++before;
    }
    void OnAfterChangeTool(CUserTool* tool) override {
        EXPECT_STREQ(tool->m_strLabel, L"");
        ++after;
    }
};

TEST_F(UserToolsTest, AnInvalidToolKeepsItsPageInFrontAndTheDialogOpen) {
    Add(L"A");
    auto& dialog = Open<StrictDialog>();
    EXPECT_EQ(dialog.begun, 0);
    ASSERT_TRUE(GoTo(L"Tools"));
    EXPECT_EQ(dialog.begun, 1);
    ::SetWindowTextW(Item(kName), L"");
    PumpPending();
    EXPECT_EQ(dialog.before, 1);
    EXPECT_EQ(dialog.after, 1);
    CPropertyPage* const page = dialog.GetActivePage();
    GoTo(L"Commands");
    EXPECT_EQ(dialog.GetActivePage(), page);
    Close();
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(dialog.GetActivePage(), page);
    m_manager.FindTool(kFirst)->m_strLabel = L"B";
    Close();
    EXPECT_FALSE(IsOpen());
}

} // namespace

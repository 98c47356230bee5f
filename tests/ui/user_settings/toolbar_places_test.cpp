// Where toolbars are docked, from one run to the next, when their file changes in between.
#include "dyn_toolbar_creater.h"
#include "menu_id_mgr.h"
#include "tests/support/message_pump.h"
#include "tests/support/translation_tables.h"
#include "tests/support/ui_test.h"
#include "user_settings.h"

#include <afxwinappex.h>

#include <cstdint>
#include <iterator>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr wchar_t kSection[] = L"Named toolbars";
constexpr std::uint32_t kFirstBar = 45000;

CWinAppEx& App() { return *static_cast<CWinAppEx*>(AfxGetApp()); }

/// Lives on the stack: its window's end does not delete it.
class PlacesFrame : public CFrameWndEx {
protected:
    void PostNcDestroy() override {}
};

/// One run of a program: its bars get their numbers anew, in the order of the file.
class ProgramRun {
public:
    ProgramRun(TranslatedInstallation& installation, const std::string& groups) {
        CDynToolBarCreater::s_ToolbarIndex = kFirstBar;
        EXPECT_TRUE(m_frame.Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(50, 50, 850, 550)));
        m_frame.EnableDocking(CBRS_ALIGN_ANY);
        installation.Directory().Write("toolbar.xml", "<bars>" + groups + "</bars>");
        EXPECT_TRUE(m_bars.Load(L"toolbar.xml", &m_frame));
        for (CMFCToolBar* const bar : m_bars.GetAllToolBar()) {
            bar->EnableDocking(CBRS_ALIGN_ANY);
            m_frame.DockPane(bar);
        }
        m_frame.ShowWindow(SW_SHOWNOACTIVATE);
        PumpPending();
    }
    ~ProgramRun() {
        m_frame.DestroyWindow();
        PumpPending();
    }
    ProgramRun(const ProgramRun&) = delete;
    ProgramRun& operator=(const ProgramRun&) = delete;

    CMFCToolBar& Bar(int index) const {
        const auto bars = m_bars.GetAllToolBar();
        return **std::next(bars.begin(), index);
    }
    /// A letter for each bar: the side that it is docked to.
    std::string Sides() const {
        std::string sides;
        for (const CMFCToolBar* const bar : m_bars.GetAllToolBar()) {
            const DWORD side = bar->GetCurrentAlignment() & CBRS_ALIGN_ANY;
            sides += bar->IsFloating()           ? 'F'
                     : side == CBRS_ALIGN_LEFT   ? 'L'
                     : side == CBRS_ALIGN_RIGHT  ? 'R'
                     : side == CBRS_ALIGN_BOTTOM ? 'B'
                                                 : 'T';
        }
        return sides;
    }
    void Keep() {
        const CNamedToolBars named(m_bars);
        EXPECT_TRUE(App().SaveState(&m_frame, kSection));
    }
    bool Restore() {
        const CNamedToolBars named(m_bars);
        const bool isWhole = App().LoadState(&m_frame, kSection) != FALSE;
        PumpPending();
        return isWhole;
    }

    PlacesFrame m_frame;
    CDynToolBarCreater m_bars;
};

std::string BarOf(const std::string& title) {
    return "<b PROMPT='" + title + "'><i TYPE='button' KEYWORD='" + title + "'/></b>";
}

class ToolBarPlaces : public testing::Test {
protected:
    ToolBarPlaces() : m_next(CDynToolBarCreater::s_ToolbarIndex) { CMenuIdMgr::Destroy(); }
    ~ToolBarPlaces() override {
        CMenuIdMgr::Destroy();
        CMFCToolBar::SetUserImages(nullptr);
        CDynToolBarCreater::s_ToolbarIndex = m_next;
        App().CleanState(kSection);
        App().SetRegistryBase(nullptr);
    }

    /// "One" is taken to the left, the second "Same" to the lower edge, and that is kept.
    void MoveAndKeep() {
        ProgramRun run(m_installation, Group(BarOf("One") + BarOf("Same") + BarOf("Same")));
        ASSERT_EQ(run.Sides(), "TTT");
        run.m_frame.DockPane(&run.Bar(0), AFX_IDW_DOCKBAR_LEFT);
        run.m_frame.DockPane(&run.Bar(2), AFX_IDW_DOCKBAR_BOTTOM);
        PumpPending();
        ASSERT_EQ(run.Sides(), "LTB");
        run.Keep();
    }
    static std::string Group(const std::string& bars, const std::string& name = "G") {
        return "<g KEYWORD='" + name + "'>" + bars + "</g>";
    }

    TranslatedInstallation m_installation;
    std::uint32_t m_next;
};

TEST_F(ToolBarPlaces, ComeBackInTheNextRun) {
    MoveAndKeep();
    ProgramRun run(m_installation, Group(BarOf("One") + BarOf("Same") + BarOf("Same")));
    EXPECT_TRUE(run.Restore());
    EXPECT_EQ(run.Sides(), "LTB");
}

TEST_F(ToolBarPlaces, AreThoseOfTheBarsNamesWhateverTheirOrder) {
    MoveAndKeep();
    ProgramRun run(m_installation, Group(BarOf("Same") + BarOf("Same") + BarOf("One")));
    EXPECT_TRUE(run.Restore());
    EXPECT_EQ(run.Sides(), "TBL");
}

TEST_F(ToolBarPlaces, ABarThatIsNewTakesNobodysPlace) {
    MoveAndKeep();
    ProgramRun run(m_installation, Group(BarOf("New") + BarOf("One") + BarOf("Same") + BarOf("Same")));
    EXPECT_TRUE(run.Restore()) << "nothing of what was kept is lost";
    EXPECT_EQ(run.Sides(), "TLTB");
}

TEST_F(ToolBarPlaces, ABarThatIsGoneLeavesItsPlaceToNobody) {
    MoveAndKeep();
    ProgramRun run(m_installation, Group(BarOf("Same") + BarOf("Same")));
    EXPECT_TRUE(run.Restore());
    EXPECT_EQ(run.Sides(), "TB");
}

TEST_F(ToolBarPlaces, ABarOfThatNameInAnotherGroupIsAnother) {
    MoveAndKeep();
    ProgramRun run(m_installation, Group(BarOf("One"), "A") + Group(BarOf("One")));
    EXPECT_TRUE(run.Restore());
    EXPECT_EQ(run.Sides(), "TL");
}

TEST_F(ToolBarPlaces, AreFoundWhenTheTitleIsShownInAnotherLanguage) {
    MoveAndKeep();
    ProgramRun run(m_installation, Group(BarOf("New") + BarOf("One")));
    run.Bar(1).SetWindowText(L"\u4E00");
    run.Restore();
    EXPECT_EQ(run.Sides(), "TL");
}

TEST_F(ToolBarPlaces, ThatAreDamagedAreToldOfAlthoughABarIsNew) {
    MoveAndKeep();
    std::vector<BYTE> damage = {1, 2, 3, 4, 5};
    ASSERT_TRUE(
        App().WriteSectionBinary(L"DockingManager", L"Places", damage.data(), static_cast<UINT>(damage.size())));
    ProgramRun run(m_installation, Group(BarOf("New") + BarOf("One") + BarOf("Same") + BarOf("Same")));
    EXPECT_FALSE(run.Restore());
}

TEST_F(ToolBarPlaces, ADamagedValueOfOneBarIsToldOfAndCostsNothingElse) {
    MoveAndKeep();
    ProgramRun run(m_installation, Group(BarOf("New") + BarOf("One") + BarOf("Same") + BarOf("Same")));
    {
        const CNamedToolBars named(run.m_bars);
        CString section;
        section.Format(L"BasePane-%d", run.Bar(1).GetDlgCtrlID());
        ASSERT_TRUE(App().IsStateExists(section));
        ASSERT_TRUE(App().WriteSectionString(section, L"IsVisible", L"perhaps"));
        EXPECT_FALSE(run.Bar(1).LoadState(nullptr));
        EXPECT_FALSE(run.Bar(0).LoadState(nullptr)) << "nothing was kept of it";
        EXPECT_TRUE(run.Bar(2).LoadState(nullptr));
    }
    EXPECT_FALSE(run.Restore());
    EXPECT_EQ(run.Sides(), "TLTB");
}

TEST_F(ToolBarPlaces, TheBarsHaveTheirOwnNumbersAfterwards) {
    ProgramRun run(m_installation, Group(BarOf("One") + BarOf("Same") + BarOf("Same")));
    std::vector<int> numbers;
    {
        const CNamedToolBars named(run.m_bars);
        for (int index = 0; index < 3; ++index) {
            numbers.push_back(run.Bar(index).GetDlgCtrlID());
            EXPECT_GT(numbers.back(), 0xFFFF);
        }
    }
    EXPECT_NE(numbers[1], numbers[2]);
    for (int index = 0; index < 3; ++index) {
        EXPECT_EQ(run.Bar(index).GetDlgCtrlID(), static_cast<int>(kFirstBar) + index);
    }
}

TEST_F(ToolBarPlaces, ABarThatEndsMeanwhileHarmsNobody) {
    ProgramRun run(m_installation, Group(BarOf("One")));
    const CNamedToolBars named(run.m_bars);
    run.m_frame.DestroyWindow();
}

TEST_F(ToolBarPlaces, RandomChangesOfTheFileLeadNoBarAstray) {
    const std::vector<std::string> sides = {"L", "T", "R", "B"};
    const std::vector<UINT> docks = {AFX_IDW_DOCKBAR_LEFT, AFX_IDW_DOCKBAR_TOP, AFX_IDW_DOCKBAR_RIGHT,
                                     AFX_IDW_DOCKBAR_BOTTOM};
    std::vector<std::string> titles = {"A", "B", "C", "D", "E"};
    std::uint32_t random = 20261122;
    const auto below = [&random](std::size_t limit) {
        random = random * 1664525 + 1013904223;
        return (random >> 8) % limit;
    };
    std::map<std::string, std::string> wanted;
    for (int round = 0; round < 12; ++round) {
        std::string bars;
        for (std::size_t index = titles.size(); index-- > 1;) {
            std::swap(titles[index], titles[below(index + 1)]);
        }
        for (const std::string& title : titles) {
            bars += BarOf(title);
        }
        ProgramRun run(m_installation, Group(bars));
        if (round > 0) {
            EXPECT_TRUE(run.Restore());
        }
        for (std::size_t index = 0; index < titles.size(); ++index) {
            const std::string side = run.Sides().substr(index, 1);
            ASSERT_EQ(side, wanted.emplace(titles[index], side).first->second) << round << ' ' << titles[index];
        }
        const std::size_t moved = below(titles.size()), to = below(docks.size());
        run.m_frame.DockPane(&run.Bar(static_cast<int>(moved)), docks[to]);
        wanted[titles[moved]] = sides[to];
        PumpPending();
        run.Keep();
    }
}

} // namespace

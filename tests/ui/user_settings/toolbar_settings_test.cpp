// Toolbars that a user hid or showed.
#include "dyn_toolbar_creater.h"
#include "menu_id_mgr.h"
#include "tests/support/message_pump.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/translation_tables.h"
#include "tests/support/ui_test.h"
#include "user_settings.h"

#include <gmock/gmock.h>

#include <memory>
#include <type_traits>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

/// Lives on the stack: its window's end does not delete it.
template <class Base>
class BarsFrame : public Base {
protected:
    void PostNcDestroy() override {}
};

/// One run of a program with toolbars.
template <class Frame = CMDIFrameWndEx>
class BarsRun {
public:
    BarsRun(TranslatedInstallation& installation, const std::string& groups) {
        EXPECT_TRUE(m_frame.Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(50, 50, 750, 450)));
        m_frame.ShowWindow(SW_SHOWNOACTIVATE);
        installation.Directory().Write("toolbar.xml", "<bars>" + groups + "</bars>");
        EXPECT_TRUE(m_bars.Load(L"toolbar.xml", &m_frame));
        Dock();
        PumpPending();
    }
    ~BarsRun() {
        m_frame.DestroyWindow();
        PumpPending();
    }
    BarsRun(const BarsRun&) = delete;
    BarsRun& operator=(const BarsRun&) = delete;

    void Dock() {
        if constexpr (std::is_base_of_v<CMDIFrameWndEx, Frame>) {
            m_bars.EnableDocking(CBRS_ALIGN_ANY, &m_frame);
            m_bars.DockPane(&m_frame);
        } else {
            m_frame.EnableDocking(CBRS_ALIGN_ANY);
            for (CMFCToolBar* const bar : m_bars.GetAllToolBar()) {
                bar->EnableDocking(CBRS_ALIGN_ANY);
                m_frame.DockPane(bar);
            }
        }
    }

    /// A letter for each toolbar, "+" when it is shown.
    std::string Shown() {
        PumpPending();
        std::string shown;
        for (const CMFCToolBar* bar : m_bars.GetAllToolBar()) {
            shown += (bar->GetStyle() & WS_VISIBLE) != 0 ? '+' : '-';
        }
        return shown;
    }
    void Show(int index, bool isShown) {
        auto bars = m_bars.GetAllToolBar();
        m_frame.ShowPane(*std::next(bars.begin(), index), isShown ? TRUE : FALSE, FALSE, FALSE);
        PumpPending();
    }

    BarsFrame<Frame> m_frame;
    CDynToolBarCreater m_bars;
};

constexpr const char* kBars = "<g KEYWORD='G'><b PROMPT='One'><i TYPE='button' KEYWORD='A'/></b>"
                              "<b PROMPT='Same'><i TYPE='button' KEYWORD='B'/></b>"
                              "<b PROMPT='Same'><i TYPE='button' KEYWORD='C'/></b></g>";

class ToolBarSettings : public testing::Test {
protected:
    ToolBarSettings() { CMenuIdMgr::Destroy(); }
    ~ToolBarSettings() override {
        CMenuIdMgr::Destroy();
        CMFCToolBar::SetUserImages(nullptr);
    }
    std::wstring File() const { return (m_directory.Path() / L"bars.xml").wstring(); }

    /// Hides the third bar, one of two with the same title, and keeps that.
    void HideTheThird() {
        BarsRun<> run(m_installation, kBars);
        CUserSettings settings(File());
        settings.ApplyTo(run.m_bars, run.m_frame);
        run.Show(2, false);
        settings.TakeFrom(run.m_bars);
        ASSERT_TRUE(settings.Save());
    }

    TranslatedInstallation m_installation;
    TemporaryDirectory m_directory;
};

TEST_F(ToolBarSettings, AHiddenToolbarIsHiddenInTheNextRun) {
    HideTheThird();
    BarsRun<> run(m_installation, kBars);
    ASSERT_EQ(run.Shown(), "+++");
    CUserSettings settings(File());
    settings.Load();
    settings.ApplyTo(run.m_bars, run.m_frame);
    EXPECT_EQ(run.Shown(), "++-");
}

TEST_F(ToolBarSettings, OneIsKnownByItsNameInTheFileWhateverItsTitleHasBecome) {
    HideTheThird();
    BarsRun<> run(m_installation, kBars);
    for (CMFCToolBar* const bar : run.m_bars.GetAllToolBar()) {
        bar->SetWindowText(L"\u4E00"); // as in another language
    }
    CUserSettings settings(File());
    settings.Load();
    settings.ApplyTo(run.m_bars, run.m_frame);
    EXPECT_EQ(run.Shown(), "++-");
}

TEST_F(ToolBarSettings, OneThatIsShownAgainStaysShown) {
    HideTheThird();
    {
        BarsRun<> run(m_installation, kBars);
        CUserSettings settings(File());
        settings.Load();
        settings.ApplyTo(run.m_bars, run.m_frame);
        run.Show(2, true);
        settings.TakeFrom(run.m_bars);
        ASSERT_TRUE(settings.Save());
    }
    BarsRun<> run(m_installation, kBars);
    CUserSettings settings(File());
    settings.Load();
    settings.ApplyTo(run.m_bars, run.m_frame);
    EXPECT_EQ(run.Shown(), "+++");
}

TEST_F(ToolBarSettings, AToolbarThatIsGoneIsRememberedForLater) {
    HideTheThird();
    {
        BarsRun<> run(m_installation, "<g KEYWORD='G'><b PROMPT='Other'/></g>");
        CUserSettings settings(File());
        settings.Load();
        EXPECT_THAT(settings.UnknownKeywords(), IsEmpty()) << "nobody knows yet which bars there are";
        settings.ApplyTo(run.m_bars, run.m_frame);
        EXPECT_THAT(settings.UnknownKeywords(), ElementsAre(L"Same"));
        settings.TakeFrom(run.m_bars);
        EXPECT_EQ(run.Shown(), "+");
        ASSERT_TRUE(settings.Save());
    }
    BarsRun<> run(m_installation, kBars);
    CUserSettings settings(File());
    settings.Load();
    settings.ApplyTo(run.m_bars, run.m_frame);
    EXPECT_EQ(run.Shown(), "++-");
    EXPECT_THAT(settings.UnknownKeywords(), IsEmpty());
}

TEST_F(ToolBarSettings, AFrameWithoutChildrenIsServedToo) {
    HideTheThird();
    BarsRun<CFrameWndEx> run(m_installation, kBars);
    CUserSettings settings(File());
    settings.Load();
    settings.ApplyTo(run.m_bars, run.m_frame);
    EXPECT_EQ(run.Shown(), "++-");
}

} // namespace

// What a user changed in the ribbon, from one run to the next.
#include "menu_id_mgr.h"
#include "tests/support/command_list.h"
#include "tests/support/temporary_directory.h"
#include "tests/ui/ribbon_bar_ex/extended_bar.h"
#include "user_settings.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Ids = std::vector<UINT>;

constexpr UINT kHostsOwn = 1002; // has no keyword

class RibbonSettings : public ExtendedBarTest {
protected:
    RibbonSettings() {
        CMenuIdMgr::Destroy();
        Register({{L"Open", 1000}, {L"Save", 1001}, {L"Find", 1010}, {L"Copy", 1020}, {L"Paste", 1021}});
        Declare();
    }
    ~RibbonSettings() override { CMenuIdMgr::Destroy(); }

    static void Register(const std::vector<std::pair<std::wstring, int>>& commands) {
        CMenuIdMgr::Destroy();
        for (const auto& [keyword, id] : commands) {
            CMenuIdMgr::Ins()->Add(keyword, id, keyword, L"do", L"", L"", L"");
        }
    }
    /// What the configuration shows.
    void Declare() {
        Bar().setPath(L"browse", 0, 2, {1000, 1001});
        Bar().setPath(L"edit", 2, 4, {1020});
    }
    std::wstring File() const { return (m_directory.Path() / L"bars.xml").wstring(); }

    /// One run of a program with other changes of the user's in it.
    template <class Change>
    void OneRun(Change change) {
        CUserSettings settings(File());
        settings.Load();
        settings.ApplyTo(Bar());
        change();
        settings.TakeFrom(Bar());
        ASSERT_TRUE(settings.Save());
    }
    /// The bar as it is when the next run has built it.
    CUserSettings::Source Restart(CUserSettings& settings) {
        Declare();
        Bar().ShowPath(L"browse");
        const CUserSettings::Source source = settings.Load();
        settings.ApplyTo(Bar());
        return source;
    }
    Ids QuickAccessOfPath(const std::wstring& path) {
        Bar().ShowPath(path);
        return QuickAccess();
    }

    TemporaryDirectory m_directory;
};

TEST_F(RibbonSettings, WithoutAFileAllIsAsConfigured) {
    CUserSettings settings(File());
    EXPECT_EQ(Restart(settings), CUserSettings::Source::Nowhere);
    EXPECT_THAT(QuickAccessOfPath(L"browse"), ElementsAre(1000, 1001));
    EXPECT_THAT(QuickAccessOfPath(L"edit"), ElementsAre(1020));
}

TEST_F(RibbonSettings, TheQuickAccessToolbarOfEachPathComesBack) {
    OneRun([&] {
        Bar().ShowPath(L"edit");
        Bar().SetQuickAccessCommands(CommandList{1021, 1020});
        Bar().UpdateCurQATollBar(L"");
        Bar().ShowPath(L"browse");
        Bar().SetQuickAccessCommands(CommandList{1010});
    });
    CUserSettings settings(File());
    EXPECT_EQ(Restart(settings), CUserSettings::Source::File);
    EXPECT_THAT(QuickAccess(), ElementsAre(1010)) << "of the path that is shown, at once";
    EXPECT_THAT(QuickAccessOfPath(L"edit"), ElementsAre(1021, 1020));
    EXPECT_THAT(settings.UnknownKeywords(), IsEmpty());
}

TEST_F(RibbonSettings, CommandsAreFoundByKeywordWhenTheirIdsHaveMoved) {
    OneRun([&] {
        Bar().ShowPath(L"browse");
        Bar().SetQuickAccessCommands(CommandList{1010, 1000});
    });
    Register({{L"Find", 1000}, {L"Open", 1022}, {L"Save", 1010}});
    Bar().setPath(L"browse", 0, 2, {1022, 1010}); // Open and Save, as before
    Bar().ShowPath(L"browse");
    CUserSettings settings(File());
    settings.Load();
    settings.ApplyTo(Bar());
    EXPECT_THAT(QuickAccess(), ElementsAre(1000, 1022)) << "Find and Open";
}

TEST_F(RibbonSettings, ACommandThatIsGoneIsListedAndComesBackLater) {
    OneRun([&] {
        Bar().ShowPath(L"browse");
        Bar().SetQuickAccessCommands(CommandList{1010, 1000, 1001});
    });
    Register({{L"Open", 1000}, {L"Save", 1001}, {L"Copy", 1020}});
    {
        CUserSettings settings(File());
        Restart(settings);
        EXPECT_THAT(QuickAccess(), ElementsAre(1000, 1001));
        EXPECT_THAT(settings.UnknownKeywords(), ElementsAre(L"Find"));
        settings.TakeFrom(Bar());
        ASSERT_TRUE(settings.Save());
    }
    Register({{L"Open", 1000}, {L"Save", 1001}, {L"Find", 1010}, {L"Copy", 1020}});
    CUserSettings settings(File());
    Restart(settings);
    EXPECT_THAT(QuickAccess(), ElementsAre(1010, 1000, 1001));
}

TEST_F(RibbonSettings, CommandsWithoutAKeywordStayWhereTheyAreConfigured) {
    Bar().setPath(L"browse", 0, 2, {1000, kHostsOwn, 1001});
    OneRun([&] {
        Bar().ShowPath(L"browse");
        Bar().SetQuickAccessCommands(CommandList{1001, 1000, kHostsOwn});
    });
    CUserSettings settings(File());
    Bar().setPath(L"browse", 0, 2, {1000, kHostsOwn, 1001});
    settings.Load();
    settings.ApplyTo(Bar());
    EXPECT_THAT(QuickAccessOfPath(L"browse"), ElementsAre(1001, 1000, kHostsOwn));
    EXPECT_THAT(settings.UnknownKeywords(), IsEmpty());
}

TEST_F(RibbonSettings, AMinimisedRibbonAndItsQuickAccessToolbarBelowComeBack) {
    OneRun([&] {
        Bar().ToggleMimimizeState();
        Bar().SetQuickAccessToolbarOnTop(FALSE);
    });
    Bar().ToggleMimimizeState();
    Bar().SetQuickAccessToolbarOnTop(TRUE);
    LayOut();
    CUserSettings settings(File());
    Restart(settings);
    EXPECT_NE(Bar().GetHideFlags() & AFX_RIBBONBAR_HIDE_ELEMENTS, 0u);
    EXPECT_FALSE(Bar().IsQuickAccessToolbarOnTop());
}

TEST_F(RibbonSettings, AResetShowsWhatIsConfigured) {
    OneRun([&] {
        Bar().ShowPath(L"browse");
        Bar().SetQuickAccessCommands(CommandList{1010});
    });
    CUserSettings settings(File());
    settings.Load();
    settings.Reset();
    Declare();
    settings.ApplyTo(Bar());
    EXPECT_THAT(QuickAccess(), ElementsAre(1000, 1001));
}

TEST_F(RibbonSettings, TakingBeforeAnythingWasAppliedKeepsNothing) {
    CUserSettings settings(File());
    Bar().SetQuickAccessCommands(CommandList{1010});
    settings.TakeFrom(Bar());
    ASSERT_TRUE(settings.Save());
    CUserSettings next(File());
    Restart(next);
    EXPECT_THAT(QuickAccess(), ElementsAre(1000, 1001));
}

class RibbonWithoutPaths : public ExtendedBarTest {
protected:
    ~RibbonWithoutPaths() override { CMenuIdMgr::Destroy(); }
    TemporaryDirectory m_directory;
};

TEST_F(RibbonWithoutPaths, HasOneQuickAccessToolbarThatComesBack) {
    CMenuIdMgr::Destroy();
    CMenuIdMgr::Ins()->Add(L"Open", 1000, L"", L"do", L"", L"", L"");
    CMenuIdMgr::Ins()->Add(L"Find", 1010, L"", L"do", L"", L"", L"");
    const std::wstring file = (m_directory.Path() / L"bars.xml").wstring();
    Bar().SetQuickAccessCommands(CommandList{1000});
    {
        CUserSettings settings(file);
        settings.ApplyTo(Bar());
        Bar().SetQuickAccessCommands(CommandList{1010, 1000});
        settings.TakeFrom(Bar());
        ASSERT_TRUE(settings.Save());
    }
    Bar().SetQuickAccessCommands(CommandList{1000});
    CUserSettings settings(file);
    settings.Load();
    settings.ApplyTo(Bar());
    EXPECT_THAT(QuickAccess(), ElementsAre(1010, 1000));
}

} // namespace

// Keys that a user gave to commands.
#include "menu_id_mgr.h"
#include "tests/support/temporary_directory.h"
#include "user_settings.h"

#include <gmock/gmock.h>

#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::wstring> RowsOf(HACCEL table) {
    std::vector<ACCEL> entries(static_cast<std::size_t>(::CopyAcceleratorTableW(table, nullptr, 0)));
    ::CopyAcceleratorTableW(table, entries.data(), static_cast<int>(entries.size()));
    std::vector<std::wstring> rows;
    for (const ACCEL& entry : entries) {
        rows.push_back(std::to_wstring(entry.fVirt) + L" " + std::to_wstring(entry.key) + L" " +
                       std::to_wstring(entry.cmd));
    }
    return rows;
}

class ShortcutSettings : public testing::Test {
protected:
    ShortcutSettings() {
        CMenuIdMgr::Destroy();
        CMenuIdMgr::Ins()->Add(L"Open", 500, L"", L"do", L"", L"", L"");
        CMenuIdMgr::Ins()->Add(L"Save", 501, L"", L"do", L"", L"", L"");
    }
    ~ShortcutSettings() override {
        CMenuIdMgr::Destroy();
        for (const HACCEL table : m_tables) {
            ::DestroyAcceleratorTable(table);
        }
    }
    HACCEL Configured() {
        ACCEL rows[] = {{FVIRTKEY | FCONTROL, 'O', 500}, {FVIRTKEY, VK_F5, 501}, {0, 'x', 9}};
        return m_tables.emplace_back(::CreateAcceleratorTableW(rows, 3));
    }
    HACCEL Applied(CUserSettings& settings) {
        const HACCEL table = settings.ApplyTo(Configured());
        if (table != nullptr) {
            m_tables.push_back(table);
        }
        return table;
    }

    TemporaryDirectory m_directory;
    CUserSettings m_settings{(m_directory.Path() / L"bars.xml").wstring()};
    std::vector<HACCEL> m_tables;
};

TEST_F(ShortcutSettings, WithoutAnyTheTableNeedsNoChange) { EXPECT_EQ(Applied(m_settings), nullptr); }

TEST_F(ShortcutSettings, AUsersKeyReplacesTheConfiguredOneAndIsTakenFromOthers) {
    m_settings.SetShortcuts(L"Open", {L"F5"});
    EXPECT_THAT(RowsOf(Applied(m_settings)), ElementsAre(L"0 120 9", L"1 116 500"));
}

TEST_F(ShortcutSettings, TheyComeBackInTheNextRun) {
    m_settings.SetShortcuts(L"Open", {L"Alt+F5", L"no key"});
    ASSERT_TRUE(m_settings.Save());
    CUserSettings next((m_directory.Path() / L"bars.xml").wstring());
    EXPECT_EQ(next.Load(), CUserSettings::Source::File);
    EXPECT_THAT(RowsOf(Applied(next)), ElementsAre(L"1 116 501", L"0 120 9", L"17 116 500"));
}

TEST_F(ShortcutSettings, ACommandWithoutKeysHasNone) {
    m_settings.SetShortcuts(L"Open", {});
    EXPECT_THAT(RowsOf(Applied(m_settings)), ElementsAre(L"1 116 501", L"0 120 9"));
    m_settings.ResetShortcuts(L"Open");
    EXPECT_EQ(Applied(m_settings), nullptr);
}

TEST_F(ShortcutSettings, AKeywordThatNoCommandHasIsListed) {
    m_settings.SetShortcuts(L"Gone", {L"F6"});
    EXPECT_EQ(Applied(m_settings), nullptr);
    EXPECT_THAT(m_settings.UnknownKeywords(), ElementsAre(L"Gone"));
}

TEST_F(ShortcutSettings, WithoutATableTheUsersKeysMakeOne) {
    m_settings.SetShortcuts(L"Save", {L"Ctrl+S"});
    const HACCEL table = m_tables.emplace_back(m_settings.ApplyTo(HACCEL{}));
    EXPECT_THAT(RowsOf(table), ElementsAre(L"9 83 501"));
}

TEST_F(ShortcutSettings, WhatTheUserChangedInTheTableIsTakenFromIt) {
    ACCEL rows[] = {{FVIRTKEY, VK_F5, 500}, {0, 'x', 9}};
    const HACCEL changed = m_tables.emplace_back(::CreateAcceleratorTableW(rows, 2));
    m_settings.SetShortcuts(L"Gone", {L"F6"});
    m_settings.TakeFrom(Configured(), changed);
    ASSERT_TRUE(m_settings.Save());
    CUserSettings next((m_directory.Path() / L"bars.xml").wstring());
    EXPECT_EQ(next.Load(), CUserSettings::Source::File);
    EXPECT_THAT(RowsOf(Applied(next)), ElementsAre(L"0 120 9", L"1 116 500"));
    EXPECT_THAT(next.UnknownKeywords(), ElementsAre(L"Gone"));
}

TEST_F(ShortcutSettings, KeysThatAreAsConfiguredAgainAreForgotten) {
    m_settings.SetShortcuts(L"Open", {L"F5"});
    m_settings.TakeFrom(Configured(), Configured());
    EXPECT_EQ(Applied(m_settings), nullptr);
}

} // namespace

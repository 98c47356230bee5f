// Users give keys to commands and take them away, configurators change the commands and their ids, in turn and at
// random.
#include "menu_id_mgr.h"
#include "settings/settings_file.h"
#include "settings/shortcut_keys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <random>

namespace {

constexpr int kEdits = 10000;
constexpr int kCommands = 30;
constexpr int kKeys = 24;

class RandomShortcuts : public testing::Test {
protected:
    ~RandomShortcuts() override { CMenuIdMgr::Destroy(); }

    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }
    ShortcutKey AnyKey() {
        return {static_cast<std::uint8_t>(Below(2) * 8), static_cast<std::uint16_t>(0x70 + Below(kKeys / 2))};
    }
    static std::wstring KeywordOf(int command) { return L"K" + std::to_wstring(command); }

    /// Other commands, other ids for all of them, other keys for some.
    void Reconfigure() {
        CMenuIdMgr::Destroy();
        m_configured.clear();
        std::vector<int> commands(kCommands);
        std::iota(commands.begin(), commands.end(), 0);
        std::shuffle(commands.begin(), commands.end(), m_random);
        int id = 1000 + Below(500);
        std::map<std::pair<int, int>, bool> taken;
        for (const int command : commands) {
            if (Below(4) == 0) {
                continue;
            }
            CMenuIdMgr::Ins()->Add(KeywordOf(command), id, L"", L"do", L"", L"", L"");
            if (const ShortcutKey key = AnyKey();
                Below(3) == 0 && taken.emplace(std::pair(key.modifiers, key.key), true).second) {
                m_configured.push_back({key, true, static_cast<std::uint16_t>(id)});
            }
            ++id;
        }
    }

    static std::wstring CommandAt(int id) {
        std::wstring keyword;
        EXPECT_TRUE(CMenuIdMgr::Ins()->GetMenuMark(id, keyword)) << id;
        return keyword;
    }
    static bool Exists(const std::wstring& keyword) {
        int id = 0;
        return CMenuIdMgr::Ins()->GetMenuId(keyword, id);
    }

    /// What the keys call, by keyword, from what is kept as text.
    std::map<std::wstring, std::wstring> Applied(const std::string& text) {
        std::vector<UserKeys> users;
        const KeptSettings settings = ReadSettings(text).value();
        for (const KeptShortcuts& kept : settings.shortcuts) {
            int id = 0;
            if (!CMenuIdMgr::Ins()->GetMenuId(kept.keyword, id)) {
                continue;
            }
            UserKeys keys{static_cast<std::uint16_t>(id), {}};
            for (const std::wstring& key : kept.keys) {
                keys.keys.push_back(ReadShortcutKey(key).value());
            }
            users.push_back(std::move(keys));
        }
        std::map<std::wstring, std::wstring> called;
        for (const ShortcutRow& row : MergeShortcuts(m_configured, users)) {
            EXPECT_TRUE(called.emplace(ShortcutKeyText(row.key), CommandAt(row.id)).second) << "one key, two commands";
        }
        return called;
    }

    std::mt19937 m_random{20261123};
    std::vector<ShortcutRow> m_configured;
};

TEST_F(RandomShortcuts, NoKeyEverCallsAnotherCommandThanTheOneThatItWasGivenTo) {
    KeptSettings user; // of each command the keys that the user gave it
    for (int edit = 0; edit < kEdits; ++edit) {
        Reconfigure();
        const std::string text = WriteSettings(user);
        const std::map<std::wstring, std::wstring> called = Applied(text);

        std::map<std::wstring, std::wstring> given; // by key, the last command that it was given to and that is there
        std::map<std::wstring, bool> changed;
        for (const KeptShortcuts& kept : user.shortcuts) {
            changed[kept.keyword] = true;
            for (const std::wstring& key : Exists(kept.keyword) ? kept.keys : std::vector<std::wstring>()) {
                given[key] = kept.keyword;
            }
        }
        for (const auto& [key, keyword] : given) {
            ASSERT_EQ(called.at(key), keyword) << "edit " << edit;
        }
        for (const auto& [key, keyword] : called) {
            // Any other key is a configured one of a command that the user left as it is.
            ASSERT_TRUE(given.contains(key) || !changed.contains(keyword)) << "edit " << edit;
        }
        for (const ShortcutRow& row : m_configured) {
            const std::wstring keyword = CommandAt(row.id), key = ShortcutKeyText(row.key);
            if (!changed.contains(keyword) && !given.contains(key)) {
                ASSERT_EQ(called.at(key), keyword) << "edit " << edit;
            }
        }

        const std::wstring keyword = KeywordOf(Below(kCommands));
        std::erase_if(user.shortcuts, [&keyword](const KeptShortcuts& kept) { return kept.keyword == keyword; });
        if (Below(4) != 0) {
            KeptShortcuts kept{keyword, {}};
            for (int count = Below(3); count > 0; --count) {
                kept.keys.push_back(ShortcutKeyText(AnyKey()));
            }
            user.shortcuts.push_back(std::move(kept));
        }
    }
}

} // namespace

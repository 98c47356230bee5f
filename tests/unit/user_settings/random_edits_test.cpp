// Users change their quick access toolbar, configurators the commands, in turn and at random.
#include "menu_id_mgr.h"
#include "settings/kept_commands.h"
#include "settings/settings_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

namespace {

constexpr int kEdits = 10000;
constexpr int kCommands = 40;

class RandomEdits : public testing::Test {
protected:
    ~RandomEdits() override { CMenuIdMgr::Destroy(); }

    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

    /// Other commands, other ids for all of them, other commands shown at first.
    void Reconfigure() {
        CMenuIdMgr::Destroy();
        m_available.clear();
        m_configured.clear();
        std::vector<int> commands(kCommands);
        std::iota(commands.begin(), commands.end(), 0);
        std::shuffle(commands.begin(), commands.end(), m_random);
        int id = 1000 + Below(500);
        for (const int command : commands) {
            if (Below(4) == 0) {
                continue;
            }
            const std::wstring keyword = L"K" + std::to_wstring(command);
            CMenuIdMgr::Ins()->Add(keyword, id++, L"", L"do " + keyword, L"", L"", L"");
            m_available.insert(keyword);
            if (Below(6) == 0) {
                m_configured.push_back(keyword);
            }
        }
    }

    /// The ids that are shown, from what is kept as text.
    std::vector<int> Show(const std::string& text) {
        const std::optional<KeptSettings> settings = ReadSettings(text);
        EXPECT_TRUE(settings);
        m_kept = settings && !settings->quickAccess.empty() ? settings->quickAccess.front() : KeptCommands{};
        std::vector<int> ids;
        for (const std::wstring& keyword : MergeCommands(m_kept, m_configured)) {
            int id = 0;
            if (CMenuIdMgr::Ins()->GetMenuId(keyword, id)) {
                ids.push_back(id);
            }
        }
        return ids;
    }

    /// What a click on that id runs.
    static std::wstring CommandOf(int id) {
        std::wstring command;
        EXPECT_TRUE(CMenuIdMgr::Ins()->GetCmd(id, command)) << id;
        return command.substr(3);
    }

    std::string Keep(const Keywords& shown) {
        KeptSettings settings;
        if (auto kept = KeepCommands(m_kept, shown, m_configured,
                                     [this](const std::wstring& keyword) { return m_available.contains(keyword); })) {
            settings.quickAccess.push_back(*kept);
        }
        return WriteSettings(settings);
    }

    void Edit(Keywords& shown) {
        const int kind = Below(3);
        if (kind == 0 && !shown.empty()) {
            const auto at = shown.begin() + Below(static_cast<int>(shown.size()));
            m_removed.insert(*at);
            shown.erase(at);
        } else if (kind == 1 && shown.size() > 1) {
            std::swap(shown.front(), shown[static_cast<std::size_t>(Below(static_cast<int>(shown.size())))]);
        } else if (!m_available.empty()) {
            auto added = m_available.begin();
            std::advance(added, Below(static_cast<int>(m_available.size())));
            if (std::find(shown.begin(), shown.end(), *added) == shown.end()) {
                shown.insert(shown.begin() + Below(static_cast<int>(shown.size()) + 1), *added);
                m_removed.erase(*added);
            }
        }
    }

    std::mt19937 m_random{20261122};
    std::set<std::wstring> m_available; ///< commands of the configuration
    Keywords m_configured;              ///< of them, the ones that it shows
    KeptCommands m_kept;
    std::set<std::wstring> m_removed; ///< taken away by the user and not added again
};

Keywords Only(const Keywords& keywords, const std::set<std::wstring>& wanted) {
    Keywords result;
    std::copy_if(keywords.begin(), keywords.end(), std::back_inserter(result),
                 [&wanted](const std::wstring& keyword) { return wanted.contains(keyword); });
    return result;
}

TEST_F(RandomEdits, NoCommandEverEndsWhereAnotherWas) {
    Reconfigure();
    std::string text = WriteSettings({});
    Keywords wanted; // all that the user has, whether it can be shown now or not
    for (int i = 0; i < kEdits; ++i) {
        Reconfigure();
        Keywords shown;
        for (const int id : Show(text)) {
            shown.push_back(CommandOf(id));
        }
        // All of the user's commands that there are, in the user's order; beside them only what the configuration
        // shows.
        const std::set<std::wstring> before(wanted.begin(), wanted.end());
        ASSERT_EQ(Only(shown, before), Only(wanted, m_available)) << "edit " << i;
        for (const std::wstring& keyword : shown) {
            ASSERT_FALSE(m_removed.contains(keyword)) << "edit " << i;
            ASSERT_TRUE(before.contains(keyword) ||
                        std::find(m_configured.begin(), m_configured.end(), keyword) != m_configured.end());
        }
        ASSERT_EQ(std::set<std::wstring>(shown.begin(), shown.end()).size(), shown.size()) << "edit " << i;

        Edit(shown);
        text = Keep(shown);
        const std::optional<KeptSettings> kept = ReadSettings(text);
        ASSERT_TRUE(kept);
        // Where nothing is kept, all is as configured.
        wanted = kept->quickAccess.empty() ? Keywords() : kept->quickAccess.front().commands;
        if (!kept->quickAccess.empty()) {
            const std::set<std::wstring> now(shown.begin(), shown.end());
            ASSERT_EQ(Only(wanted, now), shown) << "edit " << i;
        } else {
            ASSERT_EQ(shown, m_configured) << "edit " << i;
            m_removed.clear();
        }
    }
}

} // namespace

#include "configuration_watch.h"
#include "tests/support/message_pump.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/ui_test.h"

#include <filesystem>
#include <optional>
#include <string>
#include <thread>

namespace {

using namespace std::chrono_literals;

class WatchedDirectory : public testing::Test {
protected:
    WatchedDirectory() {
        m_directory.Write("cfg/ribbon.xml", "<ribbon/>");
        m_directory.Write("lang/en/a.xlf", "<xliff/>");
    }

    void Start() {
        ASSERT_TRUE(m_watch.Start(
            m_directory.Prefix(), [this](const ConfigurationChange& change) { m_changes.push_back(change.files); },
            100ms));
    }
    /// The changes that were told until there are so many, and a while after.
    const std::vector<std::vector<std::wstring>>& Wait(std::size_t count) {
        const auto end = std::chrono::steady_clock::now() + 10s;
        while (m_changes.size() < count && std::chrono::steady_clock::now() < end) {
            PumpFor(20ms);
        }
        PumpFor(400ms);
        return m_changes;
    }
    static void PumpFor(std::chrono::milliseconds time) {
        const auto end = std::chrono::steady_clock::now() + time;
        do {
            PumpPending();
            std::this_thread::sleep_for(5ms);
        } while (std::chrono::steady_clock::now() < end);
    }

    using Changes = std::vector<std::vector<std::wstring>>;
    const TemporaryDirectory m_directory;
    CConfigurationWatch m_watch;
    Changes m_changes;
};

TEST_F(WatchedDirectory, AFileThatIsWrittenIsTold) {
    Start();
    m_directory.Write("cfg/ribbon.xml", "<ribbon></ribbon>");
    EXPECT_EQ(Wait(1), (Changes{{L"cfg\\ribbon.xml"}}));
}

TEST_F(WatchedDirectory, AFileThatKeepsItsLengthWithinTheSameSecondIsTold) {
    Start();
    for (std::size_t i = 1; i <= 4; ++i) { // a second may end between two of them
        m_directory.Write("cfg/ribbon.xml", "<ribbon" + std::to_string(i) + "/>");
        ASSERT_EQ(Wait(i).size(), i);
    }
}

TEST_F(WatchedDirectory, ManyStepsOfAnEditorAreOneChange) {
    Start();
    m_directory.Write("cfg/ribbon.xml", "");
    PumpFor(30ms);
    m_directory.Write("cfg/ribbon.xml", "<ribbon>");
    PumpFor(30ms);
    m_directory.Write("cfg/ribbon.xml", "<ribbon> </ribbon>");
    EXPECT_EQ(Wait(1), (Changes{{L"cfg\\ribbon.xml"}}));
}

TEST_F(WatchedDirectory, ANewFileThatTakesTheOldOnesNameIsAChangeOfThatFile) {
    Start();
    m_directory.Write("cfg/.ribbon.xml.part", "<ribbon>new</ribbon>");
    std::filesystem::rename(m_directory.Path() / "cfg/.ribbon.xml.part", m_directory.Path() / "cfg/ribbon.xml");
    EXPECT_EQ(Wait(1), (Changes{{L"cfg\\ribbon.xml"}}));
}

TEST_F(WatchedDirectory, FilesOfNewFoldersAreTold) {
    Start();
    m_directory.Write("lang/fr/a.xlf", "<xliff/>");
    EXPECT_EQ(Wait(1), (Changes{{L"lang\\fr\\a.xlf"}}));
}

TEST_F(WatchedDirectory, ARemovedFileIsTold) {
    Start();
    std::filesystem::remove(m_directory.Path() / "lang/en/a.xlf");
    EXPECT_EQ(Wait(1), (Changes{{L"lang\\en\\a.xlf"}}));
}

TEST_F(WatchedDirectory, OtherFilesAreNot) {
    Start();
    m_directory.Write("notes.txt", "x");
    m_directory.Write("cfg/ribbon.xml.bak", "x");
    PumpFor(500ms);
    EXPECT_EQ(m_changes, Changes());
}

TEST_F(WatchedDirectory, NothingIsToldAfterTheEnd) {
    Start();
    m_directory.Write("cfg/ribbon.xml", "<ribbon></ribbon>");
    m_watch.Stop();
    EXPECT_FALSE(m_watch.IsWatching());
    PumpFor(500ms);
    EXPECT_EQ(m_changes, Changes());
}

TEST_F(WatchedDirectory, TheListenerMayEndTheWatch) {
    auto watch = std::make_optional<CConfigurationWatch>();
    bool isTold = false;
    ASSERT_TRUE(watch->Start(
        m_directory.Prefix(),
        [&](const ConfigurationChange&) {
            isTold = true;
            watch.reset();
        },
        50ms));
    m_directory.Write("cfg/ribbon.xml", "<ribbon></ribbon>");
    for (int i = 0; i < 500 && !isTold; ++i) {
        PumpFor(20ms);
    }
    EXPECT_TRUE(isTold);
    EXPECT_FALSE(watch.has_value());
}

TEST_F(WatchedDirectory, ADirectoryThatIsNotThereIsNotWatched) {
    EXPECT_FALSE(m_watch.Start(m_directory.Prefix() + L"none\\", [](const ConfigurationChange&) {}));
    EXPECT_FALSE(m_watch.IsWatching());
}

TEST(ConfigurationFile, IsKnownByItsPath) {
    using enum ConfigurationFileKind;
    EXPECT_EQ(KindOfConfigurationFile(L"cfg\\Ribbon-b.XML"), Ribbon);
    EXPECT_EQ(KindOfConfigurationFile(L"cfg/menu.xml"), Menu);
    EXPECT_EQ(KindOfConfigurationFile(L"cfg\\toolbars.xml"), ToolBars);
    EXPECT_EQ(KindOfConfigurationFile(L"lang\\en\\a.xlf"), Texts);
    EXPECT_EQ(KindOfConfigurationFile(L"pic\\16\\a.ico"), Icon);
    EXPECT_EQ(KindOfConfigurationFile(L"cfg\\status.xml"), Other);
    EXPECT_EQ(KindOfConfigurationFile(L"cfg\\old\\ribbon.xml"), Other);
    EXPECT_EQ(KindOfConfigurationFile(L"lang\\a.xlf"), Other);
}

} // namespace

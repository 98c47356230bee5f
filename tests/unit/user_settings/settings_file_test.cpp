#include "settings/settings_file.h"
#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace {

namespace fs = std::filesystem;

KeptSettings Everything() {
    KeptSettings settings;
    settings.isMinimized = true;
    settings.isQuickAccessBelow = false;
    settings.quickAccess = {{L"", {L"A"}, {}},
                            {L"\x5730\x56FE <&\">", {L"Zoom\tin\n", L"B\x1"}, {L"A", L"\U0001F600"}}};
    settings.toolBars = {{L"Tools", L"Layers", 0, false}, {L"Tools", L"Layers", 1, true}};
    settings.shortcuts = {{L"ZoomIn", {L"Ctrl+Plus", L"F5"}}, {L"None", {}}};
    return settings;
}

TEST(SettingsText, GivesBackWhatWasWritten) {
    const std::string text = WriteSettings(Everything());
    const std::optional<KeptSettings> read = ReadSettings(text);
    ASSERT_TRUE(read);
    EXPECT_EQ(WriteSettings(*read), text);
    EXPECT_EQ(read->quickAccess[1].path, Everything().quickAccess[1].path);
    EXPECT_EQ(read->quickAccess[1].commands, Everything().quickAccess[1].commands);
    EXPECT_EQ(read->quickAccess[1].seen, Everything().quickAccess[1].seen);
    EXPECT_EQ(read->isMinimized, true);
    EXPECT_EQ(read->isQuickAccessBelow, false);
    EXPECT_EQ(read->toolBars[1].number, 1);
    EXPECT_FALSE(read->toolBars[0].isShown);
    EXPECT_EQ(read->shortcuts[0].keys, (std::vector<std::wstring>{L"Ctrl+Plus", L"F5"}));
    EXPECT_TRUE(read->shortcuts[1].keys.empty());
}

TEST(SettingsText, IsReadableAndHoldsNoIds) {
    KeptSettings settings;
    settings.isMinimized = true;
    settings.quickAccess = {{L"Map", {L"ZoomIn"}, {L"ZoomOut"}}};
    EXPECT_EQ(WriteSettings(settings), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                       "<settings VERSION=\"1\">\n"
                                       "  <ribbon MINIMIZED=\"Y\"/>\n"
                                       "  <quickaccess PATH=\"Map\">\n"
                                       "    <item KEYWORD=\"ZoomIn\"/>\n"
                                       "    <seen KEYWORD=\"ZoomOut\"/>\n"
                                       "  </quickaccess>\n"
                                       "</settings>\n");
}

TEST(SettingsText, WhatIsNotKnownIsPassedOver) {
    const std::optional<KeptSettings> read =
        ReadSettings("<settings VERSION='1' MORE='x'><new><item KEYWORD='A'/></new><ribbon MINIMIZED='perhaps'/>"
                     "<quickaccess PATH='p'><item/><other KEYWORD='B'/><item KEYWORD='C'/></quickaccess></settings>");
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->isMinimized);
    ASSERT_EQ(read->quickAccess.size(), 1u);
    EXPECT_EQ(read->quickAccess[0].commands, Keywords{L"C"});
}

TEST(SettingsText, AnotherDocumentIsNoSettings) {
    EXPECT_FALSE(ReadSettings(""));
    EXPECT_FALSE(ReadSettings("<ribbon VERSION='1'/>"));
    EXPECT_FALSE(ReadSettings("<settings VERSION='2'/>"));
    EXPECT_FALSE(ReadSettings("<settings VERSION='1'>"));
}

TEST(SettingsText, RandomDamageIsRefusedOrRead) {
    const std::string text = WriteSettings(Everything());
    std::mt19937 random(7);
    for (int i = 0; i < 20000; ++i) {
        std::string damaged = text;
        for (int hit = 0; hit <= i % 4; ++hit) {
            damaged[random() % damaged.size()] = static_cast<char>(random() % 256);
        }
        damaged.resize(i % 3 == 0 ? random() % damaged.size() : damaged.size());
        if (const std::optional<KeptSettings> read = ReadSettings(damaged)) {
            EXPECT_TRUE(ReadSettings(WriteSettings(*read))) << damaged;
        }
    }
}

class KeptFile : public testing::Test {
protected:
    std::wstring Path(const wchar_t* extension = L"") const {
        return (m_directory.Path() / L"bars.xml").wstring() + extension;
    }
    void Write(const std::wstring& path, const std::string& text) {
        std::ofstream(fs::path(path), std::ios::binary) << text;
    }
    static std::string Read(const std::wstring& path) {
        std::ifstream file(fs::path(path), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    static KeptSettings Minimized(bool value) {
        KeptSettings settings;
        settings.isMinimized = value;
        return settings;
    }

    TemporaryDirectory m_directory;
    SettingsFile m_file{Path()};
    KeptSettings m_settings;
};

using Source = SettingsFile::Source;

TEST_F(KeptFile, WithoutAFileAllIsAsConfigured) {
    m_settings = Minimized(true);
    EXPECT_EQ(m_file.Load(m_settings), Source::Nowhere);
    EXPECT_FALSE(m_settings.isMinimized);
}

TEST_F(KeptFile, WhatWasSavedIsLoaded) {
    EXPECT_TRUE(m_file.Save(Minimized(true)));
    EXPECT_EQ(m_file.Load(m_settings), Source::File);
    EXPECT_EQ(m_settings.isMinimized, true);
}

TEST_F(KeptFile, ADamagedFileGivesTheLastGoodOneAndIsKept) {
    EXPECT_TRUE(m_file.Save(Minimized(true)));
    EXPECT_TRUE(m_file.Save(Minimized(false)));
    Write(Path(), "<settings VERSION='1'><rib");
    EXPECT_EQ(m_file.Load(m_settings), Source::LastGood);
    EXPECT_EQ(m_settings.isMinimized, true);
    EXPECT_EQ(Read(Path(L".damaged")), "<settings VERSION='1'><rib");
}

TEST_F(KeptFile, AFileThatLostItsBytesGivesTheLastGoodOne) {
    EXPECT_TRUE(m_file.Save(Minimized(true)));
    EXPECT_TRUE(m_file.Save(Minimized(false)));
    const std::string whole = Read(Path());
    // As a machine leaves it that lost its power, a disk that was full, and another program's hand.
    const std::string damaged[] = {
        "",       std::string(whole.size(), '\0'),    whole.substr(0, whole.size() - 3), whole + whole,
        "PK\3\4", whole + std::string(17U << 20, ' ')};
    for (const std::string& bytes : damaged) {
        Write(Path(), bytes);
        m_settings = Minimized(false);
        EXPECT_EQ(m_file.Load(m_settings), Source::LastGood) << bytes.size();
        EXPECT_EQ(m_settings.isMinimized, true);
        EXPECT_EQ(Read(Path(L".damaged")), bytes);
    }
}

TEST_F(KeptFile, EveryBeginningOfAFileIsDamageOrTheWholeOfIt) {
    KeptSettings before = Everything();
    EXPECT_TRUE(m_file.Save(before));
    before.isMinimized = false;
    EXPECT_TRUE(m_file.Save(before));
    const std::string whole = Read(Path());
    for (std::size_t length = 0; length < whole.size(); length += 5) {
        Write(Path(), whole.substr(0, length));
        const Source source = m_file.Load(m_settings);
        ASSERT_EQ(m_settings.isMinimized, source == Source::LastGood) << length;
        ASSERT_TRUE(source == Source::LastGood || whole.find_first_not_of('\n', length) == std::string::npos) << length;
    }
}

TEST_F(KeptFile, ADamagedFileNeverBecomesTheLastGoodOne) {
    EXPECT_TRUE(m_file.Save(Minimized(true)));
    EXPECT_TRUE(m_file.Save(Minimized(true)));
    Write(Path(), "");
    EXPECT_TRUE(m_file.Save(Minimized(false)));
    Write(Path(), "");
    EXPECT_EQ(m_file.Load(m_settings), Source::LastGood);
    EXPECT_EQ(m_settings.isMinimized, true);
}

TEST_F(KeptFile, AFileThatIsMissingBesideTheLastGoodOneWasNotWrittenToItsEnd) {
    EXPECT_TRUE(m_file.Save(Minimized(true)));
    fs::rename(Path(), Path(L".last"));
    EXPECT_EQ(m_file.Load(m_settings), Source::LastGood);
    EXPECT_EQ(m_settings.isMinimized, true);
}

TEST_F(KeptFile, WithoutAnyGoneOneAllIsAsConfigured) {
    Write(Path(), "<");
    Write(Path(L".last"), "<");
    EXPECT_EQ(m_file.Load(m_settings), Source::Damaged);
    EXPECT_FALSE(m_settings.isMinimized);
}

TEST_F(KeptFile, AFileThatCannotBeWrittenStaysAsItWas) {
    EXPECT_TRUE(m_file.Save(Minimized(true)));
    const std::string before = Read(Path());
    fs::create_directory(Path(L".new"));
    EXPECT_FALSE(m_file.Save(Minimized(false)));
    EXPECT_EQ(Read(Path()), before);
}

TEST_F(KeptFile, AFolderThatIsMissingIsAFailure) {
    EXPECT_FALSE(SettingsFile(Path(L"/nowhere/bars.xml")).Save(Minimized(true)));
}

} // namespace

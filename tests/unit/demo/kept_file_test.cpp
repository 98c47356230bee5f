#include "kept_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace {

class KeptFileOnDisk : public testing::Test {
protected:
    void SetUp() override { fs::remove_all(m_folder); }
    void TearDown() override { fs::remove_all(m_folder); }

    /// Texts that begin with "good" are good.
    KeptFile::Source Read() {
        m_read.clear();
        return m_file.Read([this](const std::string& text) {
            const bool isGood = text.rfind("good", 0) == 0;
            m_read = isGood ? text : m_read;
            return isGood;
        });
    }

    void Damage(const char* name) const { std::ofstream(m_folder / name, std::ios::binary) << "bad"; }
    std::string TextOf(const char* name) const {
        std::ifstream file(m_folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    const fs::path m_folder =
        fs::temp_directory_path() /
        ("kept-file-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
    KeptFile m_file{m_folder / "viewer.json"};
    std::string m_read;
};

} // namespace

TEST_F(KeptFileOnDisk, AtFirstThereIsNone) { EXPECT_EQ(Read(), KeptFile::Source::Nowhere); }

TEST_F(KeptFileOnDisk, WhatIsWrittenIsReadAndTheFolderIsMade) {
    ASSERT_TRUE(m_file.Write("good 1"));
    EXPECT_EQ(Read(), KeptFile::Source::File);
    EXPECT_EQ(m_read, "good 1");
}

TEST_F(KeptFileOnDisk, ADamagedFileIsPutAsideForTheOneBefore) {
    m_file.Write("good 1");
    m_file.Write("good 2");
    Damage("viewer.json");
    EXPECT_EQ(Read(), KeptFile::Source::LastGood);
    EXPECT_EQ(m_read, "good 1");
    EXPECT_EQ(TextOf("viewer.json.damaged"), "bad");
    EXPECT_EQ(Read(), KeptFile::Source::LastGood); // and again, where nothing was written meanwhile
}

TEST_F(KeptFileOnDisk, ADamagedFileNeverBecomesTheLastGoodOne) {
    m_file.Write("good 1");
    m_file.Write("good 2");
    Damage("viewer.json");
    Read();
    m_file.Write("good 3");
    EXPECT_EQ(TextOf("viewer.json.last"), "good 1");
}

TEST_F(KeptFileOnDisk, EveryWriteRenewsTheLastGoodOne) {
    for (const char* text : {"good 1", "good 2", "good 3"}) {
        EXPECT_TRUE(m_file.Write(text));
    }
    EXPECT_EQ(TextOf("viewer.json.last"), "good 2");
    EXPECT_EQ(TextOf("viewer.json"), "good 3");
}

TEST_F(KeptFileOnDisk, WhereBothAreDamagedItSaysSo) {
    m_file.Write("good 1");
    m_file.Write("good 2");
    Damage("viewer.json");
    Damage("viewer.json.last");
    EXPECT_EQ(Read(), KeptFile::Source::Damaged);
    EXPECT_EQ(m_read, "");
}

TEST_F(KeptFileOnDisk, WhatCannotBeWrittenLeavesTheFileAsItWas) {
    m_file.Write("good 1");
    fs::create_directory(m_folder / "viewer.json.new"); // in the way
    EXPECT_FALSE(m_file.Write("good 2"));
    fs::remove(m_folder / "viewer.json.new");
    EXPECT_EQ(Read(), KeptFile::Source::File);
    EXPECT_EQ(m_read, "good 1");
}

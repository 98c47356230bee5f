#include "afx.h"

#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

namespace {

class FileFind : public ::testing::Test {
protected:
    FileFind() {
        folder.Write("one.map.txt", "12345");
        folder.Write("two.txt", "");
        folder.Write("three.dat", "");
        std::filesystem::create_directory(folder.Path() / "inner");
    }

    CString Pattern(const char* names) const { return (folder.Path() / names).c_str(); }

    std::set<std::wstring> Found(const char* names) const {
        std::set<std::wstring> found;
        CFileFind finder;
        BOOL isMore = finder.FindFile(Pattern(names));
        while (isMore) {
            isMore = finder.FindNextFile();
            found.insert(finder.GetFileName().GetString());
        }
        return found;
    }

    TemporaryDirectory folder;
};

} // namespace

TEST_F(FileFind, GoesThroughTheFilesThatFitThePattern) {
    EXPECT_EQ(Found("*.txt"), (std::set<std::wstring>{L"one.map.txt", L"two.txt"}));
    EXPECT_EQ(Found("two.txt"), std::set<std::wstring>{L"two.txt"});
    EXPECT_EQ(Found("*"), (std::set<std::wstring>{L".", L"..", L"inner", L"one.map.txt", L"three.dat", L"two.txt"}));
}

TEST_F(FileFind, FindsNothingWhereNothingFits) {
    CFileFind finder;
    const CString pattern = Pattern("*.none");
    EXPECT_FALSE(finder.FindFile(pattern));
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_FALSE(finder.FindNextFile());
}

TEST_F(FileFind, TellsTheNameInItsParts) {
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(Pattern("one*")));
    EXPECT_FALSE(finder.FindNextFile()) << "it is the last";
    EXPECT_EQ(finder.GetFileName(), L"one.map.txt");
    EXPECT_EQ(finder.GetFileTitle(), L"one.map");
    EXPECT_EQ(finder.GetFilePath(), Pattern("one.map.txt"));
    EXPECT_EQ(finder.GetFileURL(), L"file://" + Pattern("one.map.txt"));
    EXPECT_EQ(finder.GetRoot() + L"one.map.txt", Pattern("one.map.txt"));
    EXPECT_EQ(finder.GetLength(), 5U);
}

TEST_F(FileFind, TellsFoldersAndDots) {
    CFileFind finder;
    int folders = 0;
    int dots = 0;
    BOOL isMore = finder.FindFile(Pattern("*"));
    while (isMore) {
        isMore = finder.FindNextFile();
        folders += finder.IsDirectory() ? 1 : 0;
        dots += finder.IsDots() ? 1 : 0;
    }
    EXPECT_EQ(folders, 3);
    EXPECT_EQ(dots, 2);
}

TEST_F(FileFind, TellsAttributesAndTimes) {
    const CString path = Pattern("two.txt");
    ASSERT_TRUE(::SetFileAttributesW(path, FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE));
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(path));
    finder.FindNextFile();
    EXPECT_TRUE(finder.IsReadOnly());
    EXPECT_TRUE(finder.IsArchived());
    EXPECT_FALSE(finder.IsDirectory());
    EXPECT_TRUE(finder.MatchesMask(FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE));
    EXPECT_FALSE(finder.MatchesMask(FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_TEMPORARY));
    CTime written;
    EXPECT_TRUE(finder.GetLastWriteTime(written));
    EXPECT_LT((CTime::GetCurrentTime() - written).GetTotalMinutes(), 10);
    finder.Close();
    ::SetFileAttributesW(path, FILE_ATTRIBUTE_NORMAL);
}

TEST_F(FileFind, MayBeginAnewAndEndsWithTheObject) {
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(Pattern("*.txt")));
    ASSERT_TRUE(finder.FindFile(Pattern("three*")));
    finder.FindNextFile();
    EXPECT_EQ(finder.GetFileName(), L"three.dat");
    finder.Close();
    EXPECT_FALSE(finder.FindNextFile());
}

TEST(FileTitle, IsTheNameWithoutItsFolders) {
    wchar_t title[16] = {};
    EXPECT_EQ(AfxGetFileTitle(L"C:\\maps\\world.map", title, 16), 0U);
    EXPECT_EQ(CString(title).Left(5), L"world");
}

TEST(FileTitle, TellsTheRoomThatItNeeds) {
    wchar_t title[16] = L"untouched";
    const UINT room = AfxGetFileTitle(L"C:\\maps\\world.map", nullptr, 0);
    ASSERT_GT(room, 1U);
    EXPECT_EQ(AfxGetFileTitle(L"C:\\maps\\world.map", title, room - 1), room);
    EXPECT_STREQ(title, L"untouched");
    EXPECT_EQ(AfxGetFileTitle(L"C:\\maps\\world.map", title, room), 0U);
}

#include "commands/resource_paths.h"

#include <gtest/gtest.h>

namespace {

TEST(IconFile, SizeFolderIsPutBeforeTheFileName) {
    EXPECT_EQ(IconFileBelow(L"C:\\app\\", L"pic\\skin\\icon\\down.ico", 16), L"C:\\app\\pic\\skin\\icon\\16\\down.ico");
    EXPECT_EQ(IconFileBelow(L"C:\\app\\", L"a\\b.ico", 32), L"C:\\app\\a\\32\\b.ico");
}

TEST(IconFile, PathWithoutBackslashRunsTogetherWithTheSize) {
    EXPECT_EQ(IconFileBelow(L"C:\\app\\", L"down.ico", 16), L"C:\\app\\\\16down.ico");
    EXPECT_EQ(IconFileBelow(L"", L"", 16), L"\\16");
}

TEST(IconFile, NoSeparatorIsPutAfterTheInstallationDirectory) {
    EXPECT_EQ(IconFileBelow(L"C:\\app", L"a\\b.ico", 16), L"C:\\appa\\16\\b.ico");
}

TEST(IconFile, LeadingAndTrailingBackslashes) {
    EXPECT_EQ(IconFileBelow(L"C:\\app\\", L"\\b.ico", 16), L"C:\\app\\\\16\\b.ico");
    EXPECT_EQ(IconFileBelow(L"C:\\app\\", L"a\\", 16), L"C:\\app\\a\\16\\");
}

TEST(IconFile, ForwardSlashesSeparateNothing) {
    EXPECT_EQ(IconFileBelow(L"C:\\app\\", L"a/b.ico", 16), L"C:\\app\\\\16a/b.ico");
}

TEST(IconFile, SizeIsWrittenInDecimal) {
    EXPECT_EQ(IconFileBelow(L"", L"a\\b.ico", 0), L"a\\0\\b.ico");
    EXPECT_EQ(IconFileBelow(L"", L"a\\b.ico", -5), L"a\\-5\\b.ico");
}

TEST(MediaFolderRule, BackslashIsAppendedWhereItIsMissing) {
    EXPECT_EQ(MediaFolderOf(L"C:\\video"), L"C:\\video\\Media\\");
    EXPECT_EQ(MediaFolderOf(L"C:\\video\\"), L"C:\\video\\Media\\");
}

TEST(MediaFolderRule, EmptyValueGivesEmptyText) { EXPECT_EQ(MediaFolderOf(L""), L""); }

TEST(MediaFolderRule, OneCharacterGetsNoBackslash) {
    EXPECT_EQ(MediaFolderOf(L"C"), L"CMedia\\");
    EXPECT_EQ(MediaFolderOf(L"\\"), L"\\Media\\");
}

TEST(MediaFolderRule, TwoCharactersGetABackslash) { EXPECT_EQ(MediaFolderOf(L"C:"), L"C:\\Media\\"); }

} // namespace

#include "varnhold/file_op.h"

#include "temp_folder.h"

#include <gtest/gtest.h>

#include <string>

namespace {

#ifdef _WIN32
const std::wstring kClosing = L"\\";
#else
const std::wstring kClosing = L"/";
#endif

std::wstring GetAppPath() {
    std::wstring path = L"untouched";
    return FileOp::GetAppPath(path) ? path : L"<none>";
}

TEST(FileOpAppPath, IsTheFolderOfTheProgramUnlessSet) {
    const std::wstring path = GetAppPath();
    EXPECT_TRUE(path.ends_with(kClosing));
#ifdef _WIN32
    EXPECT_TRUE(FileOp::FileExist(path + L"varnhold_tests.exe"));
#else
    EXPECT_TRUE(FileOp::FileExist(path + L"varnhold_tests"));
#endif
}

TEST(FileOpAppPath, GetsItsClosingSeparatorOnce) {
    const std::wstring program = GetAppPath();
    FileOp::SetAppPath(L"somewhere");
    EXPECT_EQ(GetAppPath(), L"somewhere" + kClosing);
    FileOp::SetAppPath(L"somewhere" + kClosing);
    EXPECT_EQ(GetAppPath(), L"somewhere" + kClosing);
    FileOp::SetAppPath(L"somewhere/");
    EXPECT_EQ(GetAppPath(), L"somewhere/");
    FileOp::SetAppPath(L"");
    EXPECT_EQ(GetAppPath(), program);
}

TEST(FileOpAppPath, AnUnknownDirectoryLeavesTheArgumentAlone) {
    const ScopedAppPath none(FileOp::AppPathProvider([](std::wstring&) { return false; }));
    std::wstring path = L"untouched";
    EXPECT_FALSE(FileOp::GetAppPath(path));
    EXPECT_EQ(path, L"untouched");
}

TEST(FileOpAppPath, ScopedPathsNestAndComeBack) {
    const std::wstring program = GetAppPath();
    {
        const ScopedAppPath outer(L"outer");
        {
            const ScopedAppPath inner(L"inner");
            EXPECT_EQ(GetAppPath(), L"inner" + kClosing);
        }
        EXPECT_EQ(GetAppPath(), L"outer" + kClosing);
    }
    EXPECT_EQ(GetAppPath(), program);
}

TEST(FileOpFileExist, IsTrueForFilesOnly) {
    const TempFolder folder;
    const std::wstring file = folder.Write("a.txt", "");
    EXPECT_TRUE(FileOp::FileExist(file));
    EXPECT_FALSE(FileOp::FileExist(file + L"x"));
    EXPECT_FALSE(FileOp::FileExist(TempFolder::ToWide(folder.GetPath())));
    EXPECT_FALSE(FileOp::FileExist(folder.GetAppPath()));
    EXPECT_FALSE(FileOp::FileExist(L""));
    EXPECT_FALSE(FileOp::FileExist(file + std::wstring(L"\0x", 2)));
}

TEST(FileOpFileExist, KnowsNamesInAnyScript) {
    const TempFolder folder;
    EXPECT_TRUE(FileOp::FileExist(folder.Write(std::filesystem::path(u8"图标 \U0001F600.ico"), "x")));
}

} // namespace

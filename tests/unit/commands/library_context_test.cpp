#include "library_context.h"
#include "menu_id_mgr.h"
#include <fx/scoped_change.h>

#include <afxglobals.h>
#include <gtest/gtest.h>
#include <varnhold/file_op.h>

namespace {

TEST(LibraryContext, InsIsAlwaysTheSameInstanceWithAnEmptyImageList) {
    EXPECT_EQ(CQkMfc::Ins(), CQkMfc::Ins());
    EXPECT_EQ(CQkMfc::Ins()->m_imageList.GetSafeHandle(), nullptr);
}

TEST(LibraryContext, BitmapListIsEmptyUntilTheHostFillsIt) { EXPECT_TRUE(g_layCtrlBmp.empty()); }

TEST(LibraryContext, HelpFileNameIsTheRegisteredHelpFile) {
    CMenuIdMgr::Ins()->Add(L"K", 41000, L"", L"", L"", L"", L"k.swf");
    CMenuIdMgr::Ins()->Add(L"L", 41001, L"", L"", L"", L"", L"");
    EXPECT_EQ(GetHelpFileName(41000, L"not consulted"), L"k.swf");
    EXPECT_EQ(GetHelpFileName(41001, L"k.swf"), L"");
    EXPECT_EQ(GetHelpFileName(41002, L"k.swf"), L"");
    CMenuIdMgr::Destroy();
}

TEST(LibraryContext, HelpFileNameKeepsANulCharacter) {
    const std::wstring helpFile(L"a\0b", 3);
    CMenuIdMgr::Ins()->Add(L"K", 41000, L"", L"", L"", L"", helpFile);
    EXPECT_EQ(GetHelpFileName(41000, L"").GetLength(), 3);
    CMenuIdMgr::Destroy();
}

TEST(LibraryContext, IconPathStandsBelowTheInstallationDirectoryOfTheFirstCall) {
    static bool asked = false;
    if (asked) {
        GTEST_SKIP() << "the directory is taken once in a process; run this test alone";
    }
    asked = true;
    {
        const ScopedAppPath first(L"C:\\first\\");
        EXPECT_EQ(GetIconPathStr(L"a\\b.ico", 32), L"C:\\first\\a\\32\\b.ico");
    }
    const ScopedAppPath second(L"D:\\second\\");
    EXPECT_EQ(GetIconPathStr(L"pic\\skin\\icon\\down.ico", 16), L"C:\\first\\pic\\skin\\icon\\16\\down.ico");
    EXPECT_EQ(GetIconPathStr(L"down.ico", 16), L"C:\\first\\\\16down.ico");
}

TEST(LibraryContext, PathsOfTheSameIconShareTheirMemory) {
    const CString path = GetIconPathStr(L"pic\\shared.ico", 16);
    EXPECT_EQ(static_cast<LPCTSTR>(GetIconPathStr(L"pic\\shared.ico", 16)), static_cast<LPCTSTR>(path));
    EXPECT_NE(GetIconPathStr(L"pic\\shared.ico", 32), path);
    // More than are kept.
    for (int i = 0; i < 2000; ++i) {
        const std::wstring name = std::to_wstring(i) + L".ico";
        EXPECT_EQ(GetIconPathStr(L"pic\\" + name, 16).Right(static_cast<int>(name.size()) + 3),
                  (L"16\\" + name).c_str());
    }
    EXPECT_EQ(GetIconPathStr(L"pic\\shared.ico", 16), path);
}

/// Puts a value where the installer records the folder of the help videos, and takes it away at the end. The registry
/// is one for all tests of a machine, so they take turns.
class MediaFolder : public testing::Test {
protected:
    MediaFolder() : m_turn(::CreateMutexW(nullptr, FALSE, L"barwright-media-folder-test")) {
        ::WaitForSingleObject(m_turn, INFINITE);
        Remove();
    }
    ~MediaFolder() override {
        Remove();
        ::ReleaseMutex(m_turn);
        ::CloseHandle(m_turn);
    }
    /// What the library answers is found once in a process; ctest gives each of these tests one of its own.
    void SetUp() override {
        static bool asked = false;
        if (asked) {
            GTEST_SKIP() << "the folder is looked up once in a process; run this test alone";
        }
        asked = true;
    }

    static constexpr const wchar_t* plainKey = L"Software\\HALVORN\\Tessaly";
    static constexpr const wchar_t* redirectedKey = L"Software\\Wow6432Node\\HALVORN\\Tessaly";

    static void Record(const std::wstring& folder, const wchar_t* key = plainKey) {
        ASSERT_EQ(::RegSetKeyValueW(HKEY_LOCAL_MACHINE, key, L"FlashPath", REG_SZ, folder.c_str(),
                                    static_cast<DWORD>((folder.size() + 1) * sizeof(wchar_t))),
                  ERROR_SUCCESS);
    }
    static void Remove() {
        for (const wchar_t* key : {plainKey, redirectedKey}) {
            ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, key);
        }
    }

    static void ExpectFolder(const wchar_t* recorded, const wchar_t* expected) {
        Record(recorded);
        CString folder = L"before";
        EXPECT_EQ(GetHaveMedias_Brevant(folder), *expected != 0);
        EXPECT_EQ(folder, expected);
    }

private:
    HANDLE m_turn;
};

TEST_F(MediaFolder, GetsABackslashWhereItIsMissing) { ExpectFolder(L"C:\\video", L"C:\\video\\Media\\"); }

TEST_F(MediaFolder, KeepsItsBackslash) { ExpectFolder(L"C:\\video\\", L"C:\\video\\Media\\"); }

TEST_F(MediaFolder, OfOneCharacterGetsNone) { ExpectFolder(L"C", L"CMedia\\"); }

TEST_F(MediaFolder, EmptyValueGivesEmptyTextAndFalse) { ExpectFolder(L"", L""); }

TEST_F(MediaFolder, MissingKeyGivesEmptyTextAndFalse) {
    CString folder = L"before";
    EXPECT_FALSE(GetHaveMedias_Brevant(folder));
    EXPECT_EQ(folder, L"");
}

TEST_F(MediaFolder, Of32BitInstallerIsFoundWhereThereIsNoOtherRecord) {
    Record(L"C:\\redirected", redirectedKey);
    CString folder;
    EXPECT_TRUE(GetHaveMedias_Brevant(folder));
    EXPECT_EQ(folder, L"C:\\redirected\\Media\\");
}

TEST_F(MediaFolder, IsReadFromThePlainKeyWhereBothHoldOne) {
    Record(L"C:\\plain", plainKey);
    Record(L"C:\\redirected", redirectedKey);
    CString folder;
    EXPECT_TRUE(GetHaveMedias_Brevant(folder));
    EXPECT_EQ(folder, L"C:\\plain\\Media\\");
}

TEST_F(MediaFolder, EmptyRecordInThePlainKeyIsTheRecord) {
    Record(L"C:\\redirected", redirectedKey);
    ExpectFolder(L"", L"");
}

TEST_F(MediaFolder, OfTheRedirectedKeyIsNotLookedForWhereTheHostSaysThatTheSystemHasNone) {
    Record(L"C:\\redirected", redirectedKey);
    const fx::ScopedChange<BOOL> oldSystem(afxGlobalData.bIsWindows7, FALSE);
    CString folder;
    EXPECT_FALSE(GetHaveMedias_Brevant(folder));
}

TEST_F(MediaFolder, ValueThatIsNoTextGivesEmptyTextAndFalse) {
    const DWORD number = 7;
    ASSERT_EQ(::RegSetKeyValueW(HKEY_LOCAL_MACHINE, plainKey, L"FlashPath", REG_DWORD, &number, sizeof(number)),
              ERROR_SUCCESS);
    CString folder = L"before";
    EXPECT_FALSE(GetHaveMedias_Brevant(folder));
    EXPECT_EQ(folder, L"");
}

TEST_F(MediaFolder, IsLookedUpOnceInAProcess) {
    ExpectFolder(L"C:\\video", L"C:\\video\\Media\\");
    Record(L"D:\\other");
    CString folder;
    EXPECT_TRUE(GetHaveMedias_Brevant(folder));
    EXPECT_EQ(folder, L"C:\\video\\Media\\");
}

TEST_F(MediaFolder, ThatWasMissingAtFirstStaysMissing) {
    CString folder;
    EXPECT_FALSE(GetHaveMedias_Brevant(folder));
    Record(L"C:\\video");
    folder = L"before";
    EXPECT_FALSE(GetHaveMedias_Brevant(folder));
    EXPECT_EQ(folder, L"");
}

} // namespace

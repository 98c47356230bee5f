// The list of recent files: order, display names, settings, and its items in a menu.
#include <gmock/gmock.h>

#include <afxadv.h>
#include <afxres.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/ui_test.h"

namespace {

using testing::ElementsAre;

class RecentFiles : public testing::Test {
protected:
    ~RecentFiles() override { AfxGetApp()->WriteProfileString(section, nullptr, nullptr); }

    static std::vector<std::wstring> Paths(CRecentFileList& list) {
        std::vector<std::wstring> paths;
        for (int index = 0; index < list.GetSize(); ++index) {
            paths.emplace_back(list[index]);
        }
        return paths;
    }
    static CString Name(const CRecentFileList& list, LPCTSTR directory, BOOL atLeastName = TRUE) {
        CString name;
        EXPECT_TRUE(list.GetDisplayName(name, 0, directory, lstrlenW(directory), atLeastName));
        return name;
    }
    static std::vector<std::wstring> Items(const CMenu& menu) {
        std::vector<std::wstring> items;
        for (UINT index = 0; index < static_cast<UINT>(menu.GetMenuItemCount()); ++index) {
            CString text;
            menu.GetMenuString(index, text, MF_BYPOSITION);
            items.emplace_back(text);
        }
        return items;
    }
    /// New, recent files, Exit; updated as when it opens.
    static void Update(CMenu& menu, CRecentFileList& list) {
        CCmdUI item;
        item.m_pMenu = &menu;
        item.m_nIndexMax = static_cast<UINT>(menu.GetMenuItemCount());
        item.m_nIndex = 1;
        item.m_nID = ID_FILE_MRU_FILE1;
        list.UpdateMenu(&item);
    }
    static void Fill(CMenu& menu) {
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, 100, L"New");
        menu.AppendMenu(MF_STRING, ID_FILE_MRU_FILE1, L"No files");
        menu.AppendMenu(MF_STRING, 101, L"Exit");
    }

    static constexpr LPCTSTR section = L"Recent files of a test";
};

TEST_F(RecentFiles, TheLastAddedIsTheFirstAndEachIsThereOnce) {
    CRecentFileList list(0, section, L"File%d", 3);
    EXPECT_THAT(Paths(list), ElementsAre(L"", L"", L""));
    list.Add(L"C:\\a.map");
    list.Add(L"C:\\b.map");
    list.Add(L"C:\\A.MAP");
    EXPECT_THAT(Paths(list), ElementsAre(L"C:\\A.MAP", L"C:\\b.map", L""));
    list.Add(L"C:\\c.map");
    list.Add(L"C:\\d.map");
    EXPECT_THAT(Paths(list), ElementsAre(L"C:\\d.map", L"C:\\c.map", L"C:\\A.MAP")) << "the oldest goes";
    list.Remove(1);
    EXPECT_THAT(Paths(list), ElementsAre(L"C:\\d.map", L"C:\\A.MAP", L""));
    list.Remove(7);
    EXPECT_EQ(list.GetSize(), 3);
}

TEST_F(RecentFiles, ARelativePathIsKeptInFull) {
    CRecentFileList list(0, section, L"File%d", 2);
    list.Add(L"a.map");
    EXPECT_GT(list[0].GetLength(), 5);
    EXPECT_STREQ(list[0].Right(6), L"\\a.map");
}

TEST_F(RecentFiles, SettingsKeepThem) {
    CRecentFileList list(0, section, L"File%d", 3);
    list.Add(L"C:\\a.map");
    list.Add(L"C:\\b.map");
    list.WriteList();
    CRecentFileList other(0, section, L"File%d", 2);
    other.ReadList();
    EXPECT_THAT(Paths(other), ElementsAre(L"C:\\b.map", L"C:\\a.map"));
    other.Remove(1);
    other.WriteList();
    list.ReadList();
    EXPECT_THAT(Paths(list), ElementsAre(L"C:\\b.map", L"", L"")) << "what is no longer there is not kept either";
}

TEST_F(RecentFiles, ADisplayNameLosesItsDirectoryThenItsExtension) {
    CRecentFileList list(0, section, L"File%d", 1, 20);
    list.Add(L"C:\\maps\\coast.map");
    EXPECT_STREQ(Name(list, L"C:\\maps\\"), L"coast.map");
    EXPECT_STREQ(Name(list, L"C:\\other\\"), L"C:\\maps\\coast.map");
    list.Add(L"C:\\maps\\of\\the\\world\\coast.map");
    EXPECT_STREQ(Name(list, L"C:\\"), L"coast.map");
    list.Add(L"C:\\twenty letters long.map");
    EXPECT_STREQ(Name(list, L"D:\\"), L"twenty letters long");
    list.Add(L"C:\\a name that is longer than all of this.map");
    EXPECT_STREQ(Name(list, L"C:\\"), L"a name that is longer than all of this");
    EXPECT_STREQ(Name(list, L"C:\\", FALSE), L"");
    CString name;
    EXPECT_FALSE(list.GetDisplayName(name, 1, L"C:\\", 3));
}

TEST_F(RecentFiles, FilesStandInThePlaceOfTheirItem) {
    CRecentFileList list(0, section, L"File%d", 4);
    CMenu menu;
    Fill(menu);
    Update(menu, list);
    EXPECT_THAT(Items(menu), ElementsAre(L"New", L"No files", L"Exit"));
    EXPECT_NE(menu.GetMenuState(1, MF_BYPOSITION) & MF_GRAYED, 0u);
    list.Add(L"C:\\a.map");
    list.Add(L"C:\\r&d.map");
    Update(menu, list);
    EXPECT_THAT(Items(menu), ElementsAre(L"New", L"&1 C:\\r&&d.map", L"&2 C:\\a.map", L"Exit"));
    EXPECT_EQ(menu.GetMenuItemID(2), static_cast<UINT>(ID_FILE_MRU_FILE2));
    Update(menu, list);
    EXPECT_EQ(menu.GetMenuItemCount(), 4) << "not once more";
    list.Remove(0);
    list.Remove(0);
    Update(menu, list);
    EXPECT_THAT(Items(menu), ElementsAre(L"New", L"No files", L"Exit"));
}

TEST_F(RecentFiles, TheTenthHasNoughtAsItsMnemonic) {
    CRecentFileList list(0, section, L"File%d", 11);
    for (const wchar_t letter : std::wstring(L"kjihgfedcba")) {
        list.Add(CString(L"C:\\") + letter);
    }
    CMenu menu;
    Fill(menu);
    Update(menu, list);
    EXPECT_EQ(Items(menu)[9], L"&9 C:\\i");
    EXPECT_EQ(Items(menu)[10], L"1&0 C:\\j");
    EXPECT_EQ(Items(menu)[11], L"11 C:\\k");
}

} // namespace

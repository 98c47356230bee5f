// One builder, several loads: what the second one counts, hides and puts onto the quick access toolbar.
#include "tests/ui/ribbon_builder/ribbon_fixture.h"

namespace {

const std::string twoCategories =
    "<r><c KEYWORD='A' NAME=''><p KEYWORD='PA' NAME=''><e KEYWORD='K1' NAME='' TYPE='BUTTON'/></p></c>"
    "<c KEYWORD='B' NAME=''/></r>";
const std::string twoOthers =
    "<r><c KEYWORD='C' NAME=''><p KEYWORD='PC' NAME=''><e KEYWORD='K2' NAME='' TYPE='BUTTON'/></p></c>"
    "<c KEYWORD='D' NAME=''/></r>";

std::string QuickAccess(const std::string& keyword) {
    return "<r KEYWORD='QK_Rbbion_QAToolbar'><i KEYWORD='" + keyword + "'/></r>";
}

class LoadedAgain : public RibbonBuilder {
protected:
    void ExpectAdded(int count, int first, int last) {
        int shownFirst = -7;
        int shownLast = -7;
        EXPECT_EQ(m_builder.GetAddIndex(shownFirst, shownLast), count);
        EXPECT_EQ(shownFirst, first);
        EXPECT_EQ(shownLast, last);
    }
    std::string Visible() const {
        std::string visible;
        for (int i = 0; i < m_bar.GetCategoryCount(); ++i) {
            visible += m_bar.GetCategory(i)->IsVisible() ? '1' : '0';
        }
        return visible;
    }
    std::vector<UINT> Ids(const std::vector<const wchar_t*>& keywords) const {
        std::vector<UINT> ids;
        for (const wchar_t* const keyword : keywords) {
            int id = 0;
            EXPECT_TRUE(CMenuIdMgr::Ins()->GetMenuId(keyword, id)) << keyword;
            ids.push_back(static_cast<UINT>(id - m_firstId));
        }
        return ids;
    }
};

TEST_F(LoadedAgain, TheIndexesAreThoseOfTheLastLoad) {
    ASSERT_TRUE(Load(twoCategories));
    ExpectAdded(2, 0, 1);
    ASSERT_TRUE(Load(twoOthers, 1, "second.xml"));
    ExpectAdded(2, 2, 3);
}

TEST_F(LoadedAgain, AHiddenLoadHidesItsOwnCategoriesOnly) {
    ASSERT_TRUE(Load(twoCategories));
    ASSERT_TRUE(Load(twoOthers, 0, "second.xml"));
    EXPECT_EQ(Visible(), "1100");
    ExpectAdded(2, 2, 3);
    ASSERT_TRUE(Load(twoCategories, 1));
    EXPECT_EQ(Visible(), "110011") << "and a shown one shows none of the hidden ones";
    ExpectAdded(2, 4, 5);
}

TEST_F(LoadedAgain, TheQuickAccessCommandsAreThoseOfBothFiles) {
    ASSERT_TRUE(Load(QuickAccess("K1") + twoCategories));
    EXPECT_EQ(QuickAccessIds(), Ids({L"K1"}));
    ASSERT_TRUE(Load(QuickAccess("K2") + twoOthers, 1, "second.xml"));
    EXPECT_EQ(QuickAccessIds(), Ids({L"K1", L"K2"}));
}

TEST_F(LoadedAgain, AFileWithoutAQuickAccessRowSetsThatOfTheFirstOneAgain) {
    ASSERT_TRUE(Load(QuickAccess("K1") + twoCategories));
    const CList<UINT, UINT> none;
    m_bar.SetQuickAccessCommands(none);
    ASSERT_TRUE(QuickAccessIds().empty());
    ASSERT_TRUE(Load(twoOthers, 1, "second.xml"));
    EXPECT_EQ(QuickAccessIds(), Ids({L"K1"}));
}

TEST_F(LoadedAgain, KeywordsOfWhichNoneIsRegisteredLeaveTheQuickAccessCommandsAlone) {
    ASSERT_TRUE(Load(QuickAccess("K1") + twoCategories));
    CAddRibbonBar second;
    ASSERT_TRUE(Load(second, QuickAccess("unknown") + "<r><c KEYWORD='C' NAME=''/></r>", 1, "second.xml"));
    EXPECT_EQ(second.GetQAToolBar(), std::vector<std::wstring>{L"unknown"});
    EXPECT_EQ(QuickAccessIds(), Ids({L"K1"}));
}

TEST_F(LoadedAgain, AnUnknownInstallationDirectoryForgetsPathAndCommands) {
    ASSERT_TRUE(Load(twoCategories));
    ASSERT_FALSE(m_builder.m_cmdList.empty());
    const ScopedAppPath unknown([](std::wstring&) { return false; });
    EXPECT_FALSE(m_builder.Load(L"ribbon.xml", &m_bar, 1));
    EXPECT_EQ(m_builder.m_cfgPath, L"");
    EXPECT_TRUE(m_builder.m_cmdList.empty());
}

TEST_F(LoadedAgain, WithoutAMainWindowTheMessageHasNoOwner) {
    ASSERT_EQ(AfxGetApp()->m_pMainWnd, nullptr);
    EXPECT_FALSE(m_builder.Load(L"missing.xml", &m_bar, 1));
    ASSERT_EQ(m_messages.size(), 1u);
    EXPECT_EQ(m_messages[0].owner, nullptr);
}

TEST_F(LoadedAgain, ACategoryHasNoIdUntilItIsGivenOne) {
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CMFCRibbonCategoryEx)->CreateObject());
    auto* const category = DYNAMIC_DOWNCAST(CMFCRibbonCategoryEx, made.get());
    ASSERT_NE(category, nullptr);
    EXPECT_EQ(category->GetID(), 0u);
    category->SetID(7);
    EXPECT_EQ(category->GetID(), 7u);
}

} // namespace

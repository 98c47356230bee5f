#include "config/command_id.h"
#include "config/depth_walker.h"
#include "config/element_kind.h"
#include "menu_id_mgr.h"
#include "varnhold/letter_case.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class CommandIds : public testing::Test {
protected:
    CommandIds() { CMenuIdMgr::Destroy(); }
    ~CommandIds() override {
        CMenuIdMgr::Destroy();
        CMenuIdMgr::s_AddBeginID = m_savedNextId;
    }
    static RibbonInfo Named(const std::wstring& keyword, const std::wstring& help = L"") {
        RibbonInfo info;
        info.keyword = keyword;
        info.name = L"name";
        info.cmd = L"cmd";
        info.tooltip = L"tip";
        info.param = L"param";
        info.help = help;
        return info;
    }
    static std::wstring HelpOf(int id) {
        std::wstring help;
        CMenuIdMgr::Ins()->GetHelpFile(id, help);
        return help;
    }
    const std::uint32_t m_savedNextId = CMenuIdMgr::s_AddBeginID;
    const int m_first = static_cast<int>(m_savedNextId);
};

TEST_F(CommandIds, NewKeywordTakesTheNextIdAndIsRegisteredWithItsTexts) {
    EXPECT_EQ(ObtainCommandId(Named(L"K", L"help"), HelpOffer::Yes), m_first);
    EXPECT_EQ(CMenuIdMgr::s_AddBeginID, m_savedNextId + 1);
    const CMenuIdMgr& registry = *CMenuIdMgr::Ins();
    std::wstring text;
    EXPECT_TRUE(registry.GetMenuMark(m_first, text));
    EXPECT_EQ(text, L"K");
    EXPECT_TRUE(registry.GetMenuName(L"K", text));
    EXPECT_EQ(text, L"name");
    EXPECT_TRUE(registry.GetCmd(m_first, text));
    EXPECT_EQ(text, L"cmd");
    EXPECT_TRUE(registry.GetToolTip(m_first, text));
    EXPECT_EQ(text, L"tip");
    EXPECT_TRUE(registry.GetCmdParam(m_first, text));
    EXPECT_EQ(text, L"param");
    EXPECT_EQ(HelpOf(m_first), L"help");
}

TEST_F(CommandIds, RegisteredKeywordKeepsItsIdAndTexts) {
    ObtainCommandId(Named(L"K"), HelpOffer::Yes);
    RibbonInfo again = Named(L"K");
    again.name = L"other";
    EXPECT_EQ(ObtainCommandId(again, HelpOffer::Yes), m_first);
    EXPECT_EQ(CMenuIdMgr::s_AddBeginID, m_savedNextId + 1);
    std::wstring name;
    EXPECT_TRUE(CMenuIdMgr::Ins()->GetMenuName(L"K", name));
    EXPECT_EQ(name, L"name");
}

TEST_F(CommandIds, SecondHelpFileIsTakenOnlyWhereTheFirstHadNone) {
    ObtainCommandId(Named(L"without"), HelpOffer::Yes);
    ObtainCommandId(Named(L"with", L"first"), HelpOffer::Yes);
    ObtainCommandId(Named(L"without", L"second"), HelpOffer::Yes);
    ObtainCommandId(Named(L"with", L"second"), HelpOffer::Yes);
    EXPECT_EQ(HelpOf(m_first), L"second");
    EXPECT_EQ(HelpOf(m_first + 1), L"first");
}

TEST_F(CommandIds, CategoryOffersNoHelpFile) {
    const int id = ObtainCommandId(Named(L"K"), HelpOffer::No);
    EXPECT_EQ(ObtainCommandId(Named(L"K", L"second"), HelpOffer::No), id);
    EXPECT_EQ(HelpOf(id), L"");
}

TEST_F(CommandIds, EmptyKeywordConsumesAnIdEachTimeAndRegistersNothing) {
    EXPECT_EQ(ObtainCommandId(Named(L""), HelpOffer::Yes), m_first);
    EXPECT_EQ(ObtainCommandId(Named(L""), HelpOffer::Yes), m_first + 1);
    std::wstring mark;
    EXPECT_FALSE(CMenuIdMgr::Ins()->GetMenuMark(m_first, mark));
}

TEST_F(CommandIds, NumberingGoesOnAfterDestroy) {
    ObtainCommandId(Named(L"K"), HelpOffer::Yes);
    CMenuIdMgr::Destroy();
    EXPECT_EQ(ObtainCommandId(Named(L"K"), HelpOffer::Yes), m_first + 1);
}

TEST(ElementKinds, TypesAreKnownInAnyLetterCase) {
    EXPECT_EQ(KindOfElement(L"BUTTON"), ElementKind::Button);
    EXPECT_EQ(KindOfElement(L"Button"), ElementKind::Button);
    EXPECT_EQ(KindOfElement(L"group"), ElementKind::Group);
    EXPECT_EQ(KindOfElement(L"slider"), ElementKind::Slider);
    EXPECT_EQ(KindOfElement(L"LABEL"), ElementKind::Label);
    EXPECT_EQ(KindOfElement(L"Edit"), ElementKind::Edit);
    EXPECT_EQ(KindOfElement(L"QKRIBBONCHECKCOMB"), ElementKind::CheckCombo);
    EXPECT_EQ(KindOfElement(L"qkribbonmulticomb"), ElementKind::MultiCombo);
    EXPECT_EQ(KindOfElement(L"qkRibbonMultiComb2"), ElementKind::LightCombo);
    for (const wchar_t* type : {L"", L"BUTTONS", L" BUTTON", L"qkRibbonMultiComb3"}) {
        EXPECT_EQ(KindOfElement(type), ElementKind::Unknown) << type;
    }
}

TEST(LetterCase, TextsOfDifferentLengthDiffer) {
    EXPECT_TRUE(varnhold::EqualsIgnoringCase(L"", L""));
    EXPECT_TRUE(varnhold::EqualsIgnoringCase(L"aZ", L"Az"));
    EXPECT_FALSE(varnhold::EqualsIgnoringCase(L"a", L"ab"));
    EXPECT_FALSE(varnhold::EqualsIgnoringCase(L"ab", L"a"));
    EXPECT_FALSE(varnhold::EqualsIgnoringCase(L"[", L"{"));
    EXPECT_FALSE(varnhold::EqualsIgnoringCase(L"@", L"`"));
}

TEST(DepthWalker, GoesBelowAnElementOnlyWhereTheVisitorSaysSo) {
    CXmlDocumentWrapper document;
    ASSERT_TRUE(document.LoadFromMemory("<d><a><b/></a><c><e><f/></e></c></d>"));
    std::wstring seen;
    WalkBelow(varnhold::XmlCursor(document), [&seen](const varnhold::XmlCursor& node, std::size_t depth) {
        seen += std::to_wstring(depth) + node.GetName() + L" ";
        return node.GetName() != L"a";
    });
    EXPECT_EQ(seen, L"1a 1c 2e 3f ");
}

TEST(DepthWalker, DepthIsNotLimitedByTheStack) {
    std::string xml;
    constexpr int levels = 99999;
    for (int i = 0; i < levels; ++i) {
        xml += "<a>";
    }
    for (int i = 0; i < levels; ++i) {
        xml += "</a>";
    }
    CXmlDocumentWrapper document;
    ASSERT_TRUE(document.LoadFromMemory(xml));
    std::size_t deepest = 0;
    WalkBelow(varnhold::XmlCursor(document), [&deepest](const varnhold::XmlCursor&, std::size_t depth) {
        deepest = depth;
        return true;
    });
    EXPECT_EQ(deepest, static_cast<std::size_t>(levels - 1));
}

} // namespace

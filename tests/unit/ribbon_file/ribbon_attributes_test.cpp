#include "config/ribbon_attributes.h"
#include "tests/support/translation_tables.h"

#include <varnhold/xml.h>

#include <gtest/gtest.h>

#include <limits>

namespace {

struct Result {
    bool complete;
    RibbonInfo info;
};

/// Reads the attributes that stand in `attributes` into a record that held `before`.
Result ReadAttributes(const std::string& attributes, RibbonInfo before = {}) {
    CXmlDocumentWrapper document;
    EXPECT_TRUE(document.LoadFromMemory("<e " + attributes + "/>")) << attributes;
    Result result{false, std::move(before)};
    result.complete =
        ReadRibbonInfo(document.GetDocumentElement(), result.info, FileDiagnostics({}, DroppedDiagnostics()));
    return result;
}

RibbonInfo InfoOf(const std::string& attributes) { return ReadAttributes(attributes).info; }

RibbonInfo FilledRecord() {
    RibbonInfo info;
    info.groupBefore = true;
    info.name = info.type = info.tooltip = info.keyword = info.picPath = info.help = L"old";
    info.picDisPath = L"old disabled picture";
    info.cmd = L"old command";
    info.param = L"old parameter";
    info.size = 99;
    info.width = 98;
    info.acceptF1 = false;
    info.cateTab = true;
    info.valueGroup = {L"old"};
    return info;
}

class RibbonElementAttributes : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_installation.Translate("A B")); }
    TranslatedInstallation m_installation;
};

TEST(RibbonInfoRecord, NewRecordIsEmpty) {
    const RibbonInfo info;
    for (const std::wstring& text : {info.name, info.type, info.tooltip, info.keyword, info.picPath, info.picDisPath,
                                     info.cmd, info.param, info.help}) {
        EXPECT_EQ(text, L"");
    }
    EXPECT_TRUE(info.valueGroup.empty());
    EXPECT_EQ(info.size, 0);
    EXPECT_EQ(info.width, 0);
    EXPECT_FALSE(info.groupBefore);
    EXPECT_FALSE(info.cateTab);
}

TEST(RibbonInfoRecord, FieldsStandInTheirOrder) {
    const RibbonInfo info{true,   L"name",  L"type", L"tip", L"key", L"pic", L"dis", 16,
                          L"cmd", L"param", L"help", false,  true,   {L"a"}, 50};
    EXPECT_TRUE(info.groupBefore);
    EXPECT_EQ(info.name, L"name");
    EXPECT_EQ(info.type, L"type");
    EXPECT_EQ(info.tooltip, L"tip");
    EXPECT_EQ(info.keyword, L"key");
    EXPECT_EQ(info.picPath, L"pic");
    EXPECT_EQ(info.picDisPath, L"dis");
    EXPECT_EQ(info.size, 16);
    EXPECT_EQ(info.cmd, L"cmd");
    EXPECT_EQ(info.param, L"param");
    EXPECT_EQ(info.help, L"help");
    EXPECT_FALSE(info.acceptF1);
    EXPECT_TRUE(info.cateTab);
    EXPECT_EQ(info.valueGroup, std::vector<std::wstring>{L"a"});
    EXPECT_EQ(info.width, 50);
}

TEST_F(RibbonElementAttributes, TextsAreTakenAsWritten) {
    const RibbonInfo info = InfoOf(R"(KEYWORD=" A b " TYPE="Button" PICPATH="pic\a.ico" PICDisPATH="pic\d.ico" )"
                                   R"(CMD="do &lt;it&gt;" PARAM="p &amp; q" help="h.swf")");
    EXPECT_EQ(info.keyword, L" A b ");
    EXPECT_EQ(info.type, L"Button");
    EXPECT_EQ(info.picPath, L"pic\\a.ico");
    EXPECT_EQ(info.picDisPath, L"pic\\d.ico");
    EXPECT_EQ(info.cmd, L"do <it>");
    EXPECT_EQ(info.param, L"p & q");
    EXPECT_EQ(info.help, L"h.swf");
}

TEST_F(RibbonElementAttributes, NamesAreMatchedWithoutLetterCase) {
    const RibbonInfo info =
        InfoOf(R"(keyword="A" nAmE="" Type="t" tooltip="" picpath="p" PICDISPATH="d" size="1" )"
               R"(valuegroup="v" Width="2" cmd="c" param="m" HELP="h" CATETAB="y" ACCEPTF1="n" groupbefore="y")");
    EXPECT_EQ(info.keyword, L"A");
    EXPECT_EQ(info.name, L"<A>");
    EXPECT_EQ(info.type, L"t");
    EXPECT_EQ(info.tooltip, L"tip of <A>");
    EXPECT_EQ(info.picPath, L"p");
    EXPECT_EQ(info.picDisPath, L"d");
    EXPECT_EQ(info.size, 1);
    EXPECT_EQ(info.valueGroup, std::vector<std::wstring>{L"v"});
    EXPECT_EQ(info.width, 2);
    EXPECT_EQ(info.cmd, L"c");
    EXPECT_EQ(info.param, L"m");
    EXPECT_EQ(info.help, L"h");
    EXPECT_TRUE(info.cateTab);
    EXPECT_FALSE(info.acceptF1);
    EXPECT_TRUE(info.groupBefore);
}

TEST_F(RibbonElementAttributes, OnlyLatinLettersLoseTheirCase) {
    // U+212A is a kelvin sign, which some tables fold to k.
    EXPECT_EQ(InfoOf("\xE2\x84\xAA"
                     R"(EYWORD="A")")
                  .keyword,
              L"");
}

TEST_F(RibbonElementAttributes, UnknownAttributesAreIgnored) {
    const Result result = ReadAttributes(R"(KEYWORD="A" KEYWORDS="x" colour="red" xml:lang="en" NAME="")");
    EXPECT_TRUE(result.complete);
    EXPECT_EQ(result.info.keyword, L"A");
    EXPECT_EQ(result.info.name, L"<A>");
}

TEST_F(RibbonElementAttributes, IdKeyIsAnotherNameOfKeyword) {
    EXPECT_EQ(InfoOf(R"(IDKEY="A")").keyword, L"A");
    EXPECT_EQ(InfoOf(R"(KEYWORD="A" IDKEY="B")").keyword, L"B");
    EXPECT_EQ(InfoOf(R"(IDKEY="B" KEYWORD="A")").keyword, L"A");
    EXPECT_EQ(InfoOf(R"(IDKEY="B" NAME="")").name, L"<B>");
}

TEST_F(RibbonElementAttributes, NameIsTheTranslationOfTheKeywordNotTheWrittenValue) {
    const RibbonInfo info = InfoOf(R"(KEYWORD="A" NAME="written" TOOLTIP="written too")");
    EXPECT_EQ(info.name, L"<A>");
    EXPECT_EQ(info.tooltip, L"tip of <A>");
}

TEST_F(RibbonElementAttributes, WithoutTheAttributesThereIsNeitherNameNorTooltip) {
    const RibbonInfo info = InfoOf(R"(KEYWORD="A")");
    EXPECT_EQ(info.name, L"");
    EXPECT_EQ(info.tooltip, L"");
}

TEST_F(RibbonElementAttributes, NameBeforeKeywordTranslatesTheEmptyKeyword) {
    const RibbonInfo info = InfoOf(R"(NAME="written" KEYWORD="A")");
    EXPECT_EQ(info.keyword, L"A");
    EXPECT_EQ(info.name, CMultiLanguageMgr::translationW("", -1, "RibbonBarCfg"));
    EXPECT_NE(info.name, L"<A>");
    EXPECT_NE(info.name, L"written");
}

TEST_F(RibbonElementAttributes, TooltipBeforeKeywordTranslatesTheEmptyKeyword) {
    const RibbonInfo info = InfoOf(R"(TOOLTIP="written" KEYWORD="A")");
    EXPECT_EQ(info.keyword, L"A");
    EXPECT_EQ(info.tooltip, CMultiLanguageMgr::translationW("", 0, "RibbonBarCfg"));
    EXPECT_NE(info.tooltip, L"tip of <A>");
    EXPECT_NE(info.tooltip, L"written");
}

TEST_F(RibbonElementAttributes, KeywordOfTheElementReadBeforeIsNotTranslated) {
    RibbonInfo before = FilledRecord();
    before.keyword = L"B";
    const RibbonInfo info = ReadAttributes(R"(NAME="" TOOLTIP="" KEYWORD="A")", before).info;
    EXPECT_EQ(info.keyword, L"A");
    EXPECT_EQ(info.name, CMultiLanguageMgr::translationW("", -1, "RibbonBarCfg"));
    EXPECT_EQ(info.tooltip, CMultiLanguageMgr::translationW("", 0, "RibbonBarCfg"));
}

TEST_F(RibbonElementAttributes, NameBetweenTwoKeywordsTranslatesTheFirst) {
    EXPECT_EQ(InfoOf(R"(KEYWORD="A" NAME="" IDKEY="B")").name, L"<A>");
}

TEST_F(RibbonElementAttributes, MissingTranslationIsWhatTheServiceGivesWithoutFallback) {
    const RibbonInfo info = InfoOf(R"(KEYWORD="missing" NAME="" TOOLTIP="")");
    EXPECT_EQ(info.name, CMultiLanguageMgr::translationW("missing", -1, "RibbonBarCfg"));
    EXPECT_EQ(info.tooltip, CMultiLanguageMgr::translationW("missing", 0, "RibbonBarCfg"));
}

TEST_F(RibbonElementAttributes, KeywordOfAnyScriptIsTranslated) {
    ASSERT_TRUE(m_installation.Translate("\xE4\xBF\x9D\xE5\xAD\x98 \xF0\x9F\x97\xBA"));
    EXPECT_EQ(InfoOf("KEYWORD='\xE4\xBF\x9D\xE5\xAD\x98' NAME=''").name, L"<\u4FDD\u5B58>");
    EXPECT_EQ(InfoOf("KEYWORD='\xF0\x9F\x97\xBA' NAME=''").name, L"<\U0001F5FA>");
}

TEST_F(RibbonElementAttributes, GroupBeforeCountsOnlyAsTheLastAttribute) {
    EXPECT_FALSE(InfoOf(R"(GROUPBEFORE="Y" TYPE="BUTTON")").groupBefore);
    EXPECT_TRUE(InfoOf(R"(TYPE="BUTTON" GROUPBEFORE="y")").groupBefore);
    EXPECT_FALSE(InfoOf(R"(TYPE="BUTTON" GROUPBEFORE="Y" unknown="")").groupBefore);
}

TEST_F(RibbonElementAttributes, GroupBeforeIsTrueForYesOnly) {
    EXPECT_TRUE(InfoOf(R"(GROUPBEFORE="Y")").groupBefore);
    for (const char* value : {"N", "", "YES", " Y", "1", "true"}) {
        EXPECT_FALSE(InfoOf("GROUPBEFORE='" + std::string(value) + "'").groupBefore) << value;
    }
}

struct NumberCase {
    const char* text;
    bool isNumber;
    int value;
};

constexpr NumberCase numberCases[] = {
    {"16", true, 16},
    {"0", true, 0},
    {"+16", true, 16},
    {"-16", true, -16},
    {"-0", true, 0},
    {"0016", true, 16},
    {"2147483647", true, std::numeric_limits<int>::max()},
    {"-2147483648", true, std::numeric_limits<int>::min()},
    {"2147483648", false, 0},
    {"-2147483649", false, 0},
    {"99999999999999999999999999", false, 0},
    {"", false, 0},
    {" ", false, 0},
    {"16px", false, 0},
    {" 16", false, 0},
    {"16 ", false, 0},
    {"1 6", false, 0},
    {"+", false, 0},
    {"-", false, 0},
    {"+-16", false, 0},
    {"--16", false, 0},
    {"0x10", false, 0},
    {"1e3", false, 0},
    {"16.0", false, 0},
    {"1,000", false, 0},
    {"\xD9\xA1\xD9\xA6", false, 0},
    {"\xEF\xBC\x91\xEF\xBC\x96", false, 0},
};

TEST_F(RibbonElementAttributes, NumbersAreWholeDecimalTextsOf32Bits) {
    for (const NumberCase& numberCase : numberCases) {
        for (const char* attribute : {"SIZE", "WIDTH"}) {
            const Result result = ReadAttributes(std::string(attribute) + "='" + numberCase.text + "' CMD='after'");
            EXPECT_EQ(result.complete, numberCase.isNumber) << attribute << " " << numberCase.text;
            const RibbonInfo& info = result.info;
            EXPECT_EQ(*attribute == 'S' ? info.size : info.width, numberCase.value) << numberCase.text;
            EXPECT_EQ(info.cmd, numberCase.isNumber ? L"after" : L"") << numberCase.text;
        }
    }
}

TEST_F(RibbonElementAttributes, BadNumberLeavesTheLaterAttributesUnreadAndTheEarlierOnesRead) {
    const Result result =
        ReadAttributes(R"(KEYWORD="A" NAME="" SIZE="16px" TYPE="BUTTON" CMD="c" VALUEGROUP="a" AcceptF1="N")");
    EXPECT_FALSE(result.complete);
    EXPECT_EQ(result.info.keyword, L"A");
    EXPECT_EQ(result.info.name, L"<A>");
    EXPECT_EQ(result.info.type, L"");
    EXPECT_EQ(result.info.cmd, L"");
    EXPECT_TRUE(result.info.valueGroup.empty());
    EXPECT_TRUE(result.info.acceptF1);
}

TEST_F(RibbonElementAttributes, BadNumberGivesNoHelpFile) {
    EXPECT_EQ(InfoOf(R"(KEYWORD="A" NAME="" WIDTH="")").help, L"");
}

TEST_F(RibbonElementAttributes, BadNumberKeepsTheNumberReadBefore) {
    EXPECT_EQ(InfoOf(R"(SIZE="16" size="x")").size, 16);
}

TEST_F(RibbonElementAttributes, ValueGroupIsSplitAtEveryCommaWithEmptyPiecesKept) {
    using Texts = std::vector<std::wstring>;
    EXPECT_EQ(InfoOf(R"(VALUEGROUP="a,,b")").valueGroup, (Texts{L"a", L"", L"b"}));
    EXPECT_EQ(InfoOf(R"(VALUEGROUP="a")").valueGroup, Texts{L"a"});
    EXPECT_EQ(InfoOf(R"(VALUEGROUP=",")").valueGroup, (Texts{L"", L""}));
    EXPECT_EQ(InfoOf(R"(VALUEGROUP="")").valueGroup, Texts{L""});
    EXPECT_EQ(InfoOf(R"(VALUEGROUP=" a , b ")").valueGroup, (Texts{L" a ", L" b "}));
    EXPECT_EQ(InfoOf(R"(VALUEGROUP="a;b")").valueGroup, Texts{L"a;b"});
    EXPECT_EQ(InfoOf(R"(VALUEGROUP="a,b" valuegroup="c")").valueGroup, Texts{L"c"});
    EXPECT_TRUE(InfoOf(R"(TYPE="t")").valueGroup.empty());
}

TEST_F(RibbonElementAttributes, CateTabKnowsYesAndNoAndLeavesItselfForAnyOther) {
    EXPECT_TRUE(InfoOf(R"(CateTab="y")").cateTab);
    EXPECT_FALSE(InfoOf(R"(CateTab="n")").cateTab);
    EXPECT_FALSE(InfoOf(R"(CateTab="yes")").cateTab);
    EXPECT_TRUE(InfoOf(R"(CateTab="Y" catetab="maybe")").cateTab);
    EXPECT_FALSE(InfoOf(R"(CateTab="Y" catetab="N")").cateTab);
}

TEST_F(RibbonElementAttributes, AcceptF1IsTakenAwayByNoOnly) {
    EXPECT_TRUE(InfoOf(R"(TYPE="t")").acceptF1);
    EXPECT_FALSE(InfoOf(R"(AcceptF1="n")").acceptF1);
    EXPECT_TRUE(InfoOf(R"(AcceptF1="Y")").acceptF1);
    EXPECT_TRUE(InfoOf(R"(AcceptF1="no")").acceptF1);
    EXPECT_FALSE(InfoOf(R"(AcceptF1="N" acceptf1="Y")").acceptF1);
}

TEST_F(RibbonElementAttributes, HelpIsTheNameWithSwfUnlessConfiguredOrRefused) {
    EXPECT_EQ(InfoOf(R"(KEYWORD="A" NAME="")").help, L"<A>.swf");
    EXPECT_EQ(InfoOf(R"(KEYWORD="A" NAME="" help="own.swf")").help, L"own.swf");
    EXPECT_EQ(InfoOf(R"(KEYWORD="A" NAME="" AcceptF1="n")").help, L"");
    EXPECT_EQ(InfoOf(R"(KEYWORD="A" NAME="" AcceptF1="n" help="own.swf")").help, L"own.swf");
    EXPECT_EQ(InfoOf(R"(KEYWORD="A" NAME="" help="")").help, L"<A>.swf");
    EXPECT_EQ(InfoOf(R"(TYPE="t")").help, L".swf");
}

TEST_F(RibbonElementAttributes, ReadingResetsTheRecordButForPictureCommandAndParameter) {
    const Result result = ReadAttributes(R"(TYPE="t")", FilledRecord());
    EXPECT_TRUE(result.complete);
    const RibbonInfo& info = result.info;
    EXPECT_FALSE(info.groupBefore);
    EXPECT_FALSE(info.cateTab);
    EXPECT_TRUE(info.acceptF1);
    EXPECT_EQ(info.name, L"");
    EXPECT_EQ(info.type, L"t");
    EXPECT_EQ(info.tooltip, L"");
    EXPECT_EQ(info.keyword, L"");
    EXPECT_EQ(info.picPath, L"");
    EXPECT_EQ(info.help, L".swf");
    EXPECT_EQ(info.size, 0);
    EXPECT_EQ(info.width, 0);
    EXPECT_TRUE(info.valueGroup.empty());
    EXPECT_EQ(info.picDisPath, L"old disabled picture");
    EXPECT_EQ(info.cmd, L"old command");
    EXPECT_EQ(info.param, L"old parameter");
}

TEST_F(RibbonElementAttributes, CarriedFieldsAreReplacedAlsoByEmptyValues) {
    const RibbonInfo info = ReadAttributes(R"(CMD="" PARAM="" PICDISPATH="")", FilledRecord()).info;
    EXPECT_EQ(info.cmd, L"");
    EXPECT_EQ(info.param, L"");
    EXPECT_EQ(info.picDisPath, L"");
}

TEST_F(RibbonElementAttributes, ElementWithoutAttributesIsResetAndRefused) {
    const Result result = ReadAttributes("", FilledRecord());
    EXPECT_FALSE(result.complete);
    EXPECT_EQ(result.info.keyword, L"");
    EXPECT_EQ(result.info.help, L"");
    EXPECT_TRUE(result.info.acceptF1);
    EXPECT_FALSE(result.info.groupBefore);
    EXPECT_EQ(result.info.size, 0);
    EXPECT_EQ(result.info.cmd, L"old command");
}

TEST_F(RibbonElementAttributes, NullNodeIsRefused) {
    RibbonInfo info = FilledRecord();
    EXPECT_FALSE(ReadRibbonInfo(CXmlNodeWrapper(), info, FileDiagnostics({}, DroppedDiagnostics())));
    EXPECT_EQ(info.keyword, L"");
}

} // namespace

#include "command_search.h"

#include <gtest/gtest.h>

#include <cwctype>

namespace {

std::wstring Lower(std::wstring text) {
    for (wchar_t& c : text) {
        c = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c)));
    }
    return text;
}

SearchCommand Command(const wchar_t* keyword, const wchar_t* name, std::vector<std::wstring> otherNames = {}) {
    SearchCommand command;
    command.keyword = keyword;
    command.name = name;
    command.otherNames = std::move(otherNames);
    return command;
}

const std::vector<SearchCommand> kCommands = {
    Command(L"LayerScaleBar", L"Scale bar", {L"\u6BD4\u4F8B\u5C3A"}),
    Command(L"ZoomOriginal", L"Original scale", {L"\u539F\u59CB\u6BD4\u4F8B"}),
    Command(L"ZoomIn", L"Zoom in", {L"\u653E\u5927"}),
    Command(L"ZoomWorld", L"Whole world", {L"\u5168\u56FE"}),
    Command(L"LayerCoast", L"Coastlines", {L"Zoo"}),
};

/// The keywords of what was found.
std::vector<std::wstring> Found(const std::wstring& query, const std::vector<SearchCommand>& commands = kCommands) {
    std::vector<std::wstring> keywords;
    for (const SearchHit& hit : FindCommands(commands, query, Lower)) {
        keywords.push_back(commands[hit.command].keyword);
    }
    return keywords;
}

using Keywords = std::vector<std::wstring>;

} // namespace

TEST(PlainMenuText, HasNeitherMarksNorKeysAndEveryDoubledAmpersandOnce) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {{L"&Open...\tCtrl+O", L"Open..."},
                                                               {L"Save && &close", L"Save & close"},
                                                               {L"\u6253\u5F00(&O)", L"\u6253\u5F00"},
                                                               {L"A&&&&B", L"A&&B"},
                                                               {L"End&", L"End"},
                                                               {L"(&", L"("},
                                                               {L"", L""}};
    for (const auto& [text, plain] : cases) {
        EXPECT_EQ(PlainMenuText(text), plain);
    }
}

TEST(FindCommands, LetterCaseDoesNotMatter) { EXPECT_EQ(Found(L"zOOM iN"), (Keywords{L"ZoomIn", L"ZoomOriginal"})); }

TEST(FindCommands, TheBeginningOfTheNameComesBeforeAWordInItAndThatBeforeTheInside) {
    EXPECT_EQ(Found(L"scale"), (Keywords{L"LayerScaleBar", L"ZoomOriginal"}));
    EXPECT_EQ(Found(L"o"), (Keywords{L"ZoomOriginal", L"ZoomIn", L"ZoomWorld", L"LayerCoast"}));
}

TEST(FindCommands, TheShownNameComesBeforeOtherLanguagesAndThoseBeforeKeywords) {
    EXPECT_EQ(Found(L"zoo"), (Keywords{L"ZoomIn", L"LayerCoast", L"ZoomOriginal", L"ZoomWorld"}));
}

TEST(FindCommands, AnotherLanguagesNameIsToldWhereItLedToTheCommand) {
    const auto hits = FindCommands(kCommands, L"\u653E", Lower);
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_EQ(hits[0].otherName, L"\u653E\u5927");
    EXPECT_EQ(FindCommands(kCommands, L"zoom in", Lower)[0].otherName, L"");
}

TEST(FindCommands, AllWordsHaveToBeFoundInAnyOrder) {
    EXPECT_EQ(Found(L"world whole"), Keywords{L"ZoomWorld"});
    EXPECT_EQ(Found(L"whole scale"), Keywords{});
}

TEST(FindCommands, OfEqualsThoseThatCanBeRunComeFirst) {
    std::vector<SearchCommand> commands = {Command(L"A", L"Mark"), Command(L"B", L"Marks"), Command(L"C", L"Marker")};
    commands[0].isEnabled = false;
    EXPECT_EQ(Found(L"mark", commands), (Keywords{L"B", L"C", L"A"}));
}

TEST(FindCommands, AnEmptyQueryFindsAllInTheirOrder) {
    EXPECT_EQ(Found(L"  ").size(), kCommands.size());
    EXPECT_EQ(Found(L"").front(), L"LayerScaleBar");
}

#include "config/ribbon_record.h"
#include "config/text_arena.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

TEST(TextArena, TextsStayWhereTheyAreAndEndInNul) {
    TextArena arena;
    std::vector<std::wstring_view> texts;
    for (std::size_t length = 0; length < 3000; ++length) {
        texts.push_back(arena.Widen(std::string(length, static_cast<char>('a' + length % 26))));
    }
    for (std::size_t length = 0; length < texts.size(); ++length) {
        EXPECT_EQ(texts[length], std::wstring(length, static_cast<wchar_t>(L'a' + length % 26)));
        EXPECT_EQ(texts[length].data()[length], L'\0');
    }
}

TEST(TextArena, LettersOfSeveralBytesTakeNoMoreThanTheyNeed) {
    TextArena arena;
    const std::wstring_view chinese = arena.Widen("\xE4\xBF\x9D\xE5\xAD\x98");
    const std::wstring_view next = arena.Widen("a");
    EXPECT_EQ(chinese, L"\x4FDD\x5B58");
    EXPECT_EQ(chinese.data()[2], L'\0');
    EXPECT_EQ(next.data(), chinese.data() + 3);
}

TEST(TextArena, JoinsTexts) {
    TextArena arena;
    EXPECT_EQ(arena.Join(L"name", L".swf"), L"name.swf");
    EXPECT_EQ(arena.Join({}, {}).data()[0], L'\0');
}

TEST(TextArena, ArraysAreAlignedAndEmpty) {
    TextArena arena;
    for (const std::size_t count : {0, 1, 3, 1000, 100000}) {
        arena.Widen("x"); // leaves an odd place
        const std::span<RibbonRecord> records = arena.MakeArray<RibbonRecord>(count);
        ASSERT_EQ(records.size(), count);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(records.data()) % alignof(RibbonRecord), 0u);
        for (const RibbonRecord& record : records) {
            ASSERT_TRUE(record.info.keyword.empty() && record.children.empty() && record.info.acceptF1);
        }
    }
}

TEST(TextArena, MovedArenaKeepsItsTextsAndLeavesAnEmptyOne) {
    TextArena first;
    const std::wstring_view text = first.Widen("text");
    TextArena second(std::move(first));
    const std::wstring_view other = first.Widen("other"); // NOLINT(bugprone-use-after-move): empty, not broken
    first = std::move(second);
    EXPECT_EQ(text, L"text");
    EXPECT_NE(static_cast<const void*>(other.data()), static_cast<const void*>(text.data()));
}

TEST(RibbonTexts, EveryFieldIsAssigned) {
    const std::wstring_view pieces[] = {L"a", L"", L"b"};
    RibbonTexts texts;
    texts.groupBefore = texts.cateTab = true;
    texts.acceptF1 = false;
    texts.size = 16;
    texts.width = 50;
    texts.name = L"name";
    texts.type = L"type";
    texts.tooltip = L"tip";
    texts.keyword = L"key";
    texts.picPath = L"pic";
    texts.picDisPath = L"dis";
    texts.cmd = L"cmd";
    texts.param = L"param";
    texts.help = L"help";
    texts.valueGroup = pieces;
    const RibbonInfo info = ToRibbonInfo(texts);
    EXPECT_TRUE(info.groupBefore && info.cateTab && !info.acceptF1);
    EXPECT_EQ(info.size, 16);
    EXPECT_EQ(info.width, 50);
    EXPECT_EQ(info.name + L' ' + info.type + L' ' + info.tooltip + L' ' + info.keyword + L' ' + info.picPath + L' ' +
                  info.picDisPath + L' ' + info.cmd + L' ' + info.param + L' ' + info.help,
              L"name type tip key pic dis cmd param help");
    EXPECT_EQ(info.valueGroup, (std::vector<std::wstring>{L"a", L"", L"b"}));
}

} // namespace

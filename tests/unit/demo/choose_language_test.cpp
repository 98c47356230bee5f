#include "system_language.h"

#include <gtest/gtest.h>

TEST(ChooseLanguage, TakesTheOneThatIsWanted) {
    EXPECT_EQ(ChooseLanguage(L"zh-CN", {L"en", L"zh-CN"}), L"zh-CN");
    EXPECT_EQ(ChooseLanguage(L"en", {L"ar", L"en", L"zh-CN"}), L"en");
}

TEST(ChooseLanguage, TakesTheSameLanguageOfAnotherCountry) {
    EXPECT_EQ(ChooseLanguage(L"zh-TW", {L"en", L"zh-CN"}), L"zh-CN");
    EXPECT_EQ(ChooseLanguage(L"en-GB", {L"en", L"zh-CN"}), L"en");
    EXPECT_EQ(ChooseLanguage(L"ar", {L"ar-EG", L"en"}), L"ar-EG");
}

TEST(ChooseLanguage, TakesEnglishForAllOthersAndWhatThereIsWithoutIt) {
    EXPECT_EQ(ChooseLanguage(L"fr-FR", {L"ar", L"en", L"zh-CN"}), L"en");
    EXPECT_EQ(ChooseLanguage(L"", {L"ar", L"en"}), L"en");
    EXPECT_EQ(ChooseLanguage(L"fr-FR", {L"ar", L"zh-CN"}), L"ar");
    EXPECT_EQ(ChooseLanguage(L"en", {}), L"");
}

TEST(IsWrittenFromRight, KnowsTheLanguageWhateverTheCountry) {
    EXPECT_TRUE(IsWrittenFromRight(L"he"));
    EXPECT_TRUE(IsWrittenFromRight(L"ar-EG"));
    EXPECT_FALSE(IsWrittenFromRight(L"en"));
    EXPECT_FALSE(IsWrittenFromRight(L"zh-CN"));
    EXPECT_FALSE(IsWrittenFromRight(L""));
}

// What a user's tool is told on its command line.
#include "tool_arguments.h"

#include <gtest/gtest.h>

namespace {

std::wstring Filled(const std::wstring& arguments) {
    return FillArguments(arguments, [](const std::wstring& name) -> std::wstring {
        return name == L"File" ? L"C:\\a b\\$(Place).json" : name == L"Place" ? L"1,2" : L"";
    });
}

TEST(ToolArguments, EachPlaceholderGivesWayToItsValue) {
    EXPECT_EQ(Filled(L"-p $(Place) -q $(Place)"), L"-p 1,2 -q 1,2");
}

TEST(ToolArguments, AValueIsTakenAsItIsPlaceholdersIncluded) {
    EXPECT_EQ(Filled(L"\"$(File)\""), L"\"C:\\a b\\$(Place).json\"");
}

TEST(ToolArguments, WhatNobodyKnowsIsLeftOut) { EXPECT_EQ(Filled(L"a$(Nothing)b$()c"), L"abc"); }

TEST(ToolArguments, ABracketThatNothingClosesStays) {
    EXPECT_EQ(Filled(L"a $(Place"), L"a $(Place");
    EXPECT_EQ(Filled(L"$(Place) $("), L"1,2 $(");
    EXPECT_EQ(Filled(L"$5 (a) $"), L"$5 (a) $");
    EXPECT_EQ(Filled(L""), L"");
}

TEST(ToolArguments, WithoutValuesPlaceholdersAreLeftOut) { EXPECT_EQ(FillArguments(L"x$(Place)y", nullptr), L"xy"); }

TEST(ToolArguments, APlaceIsLatitudeAndLongitude) { EXPECT_EQ(PlaceArgument({121.47, -31.23}), L"-31.2300,121.4700"); }

} // namespace

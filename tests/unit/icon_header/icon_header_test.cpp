// What an icon file says of its pictures, looked up without decoding them.
#include "elements/icon_header.h"
#include "tests/support/icon_file_bytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

IconFileReader ReaderOf(const std::string& bytes) {
    return [&bytes](std::uint64_t offset, std::span<std::uint8_t> wanted) -> std::size_t {
        if (offset >= bytes.size()) {
            return 0;
        }
        const std::size_t count = std::min<std::size_t>(wanted.size(), bytes.size() - offset);
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(offset), count, wanted.begin());
        return count;
    };
}

std::optional<std::vector<IconPicture>> HeadersOf(const std::string& bytes) { return ReadIconHeaders(ReaderOf(bytes)); }

bool MayDecodeBytes(const std::string& bytes) { return MayDecode(HeadersOf(bytes)); }

TEST(IconHeader, PicturesAreListedInTheOrderOfTheDirectory) {
    const auto pictures =
        HeadersOf(MakeIconDirectory({BitmapHeader(16, 16), BitmapHeader(32, 48), PngHeader(256, 200)}));
    ASSERT_TRUE(pictures);
    ASSERT_EQ(pictures->size(), 3u);
    EXPECT_EQ(pictures->at(0).width, 16u);
    EXPECT_EQ(pictures->at(0).height, 16u) << "the rows of the mask are not the picture's";
    EXPECT_EQ(pictures->at(1).width, 32u);
    EXPECT_EQ(pictures->at(1).height, 48u);
    EXPECT_EQ(pictures->at(2).width, 256u);
    EXPECT_EQ(pictures->at(2).height, 200u);
}

TEST(IconHeader, PictureStandsWhereTheDirectorySays) {
    const auto pictures = HeadersOf(MakeIconDirectory({BitmapHeader(16, 16), PngHeader(64, 64)}));
    ASSERT_TRUE(pictures);
    EXPECT_EQ(pictures->at(0).offset, 6u + 2 * 16);
    EXPECT_EQ(pictures->at(0).byteCount, BitmapHeader(16, 16).size());
    EXPECT_EQ(pictures->at(1).offset, 6u + 2 * 16 + BitmapHeader(16, 16).size());
    EXPECT_EQ(pictures->at(1).byteCount, PngHeader(64, 64).size());
}

TEST(IconHeader, RowsThatGoDownwardsAreCountedAsWell) {
    const auto pictures = HeadersOf(MakeIconDirectory({BitmapHeader(16, -16)}));
    ASSERT_TRUE(pictures);
    EXPECT_EQ(pictures->at(0).height, 16u);
}

TEST(IconHeader, OldestBitmapHeaderHasSizesOfSixteenBits) {
    const auto pictures = HeadersOf(MakeIconDirectory({CoreBitmapHeader(16, 24)}));
    ASSERT_TRUE(pictures);
    EXPECT_EQ(pictures->at(0).width, 16u);
    EXPECT_EQ(pictures->at(0).height, 24u);
}

TEST(IconHeader, SizeIsThatOfThePictureNotOfTheDirectory) {
    std::string bytes = MakeIconDirectory({PngHeader(20000, 20000)});
    bytes[6] = 16;
    bytes[7] = 16;
    EXPECT_FALSE(MayDecodeBytes(bytes));
}

TEST(IconHeader, SideOf1024PixelsMayBeDecodedAndOneMoreMayNot) {
    for (const auto header : {&PngHeader, &BitmapHeader}) {
        EXPECT_TRUE(MayDecodeBytes(MakeIconDirectory({header(1024, 1024)})));
        EXPECT_FALSE(MayDecodeBytes(MakeIconDirectory({header(1025, 1)})));
        EXPECT_FALSE(MayDecodeBytes(MakeIconDirectory({header(1, 1025)})));
    }
    EXPECT_FALSE(MayDecodeBytes(MakeIconDirectory({CoreBitmapHeader(1025, 16)})));
}

TEST(IconHeader, OneLargePictureKeepsTheWholeFileFromDecoding) {
    EXPECT_FALSE(MayDecodeBytes(MakeIconDirectory({BitmapHeader(16, 16), PngHeader(4000, 4000)})));
}

TEST(IconHeader, LargestNumbersAreLarge) {
    EXPECT_FALSE(MayDecodeBytes(MakeIconDirectory({PngHeader(INT32_MIN, 16)})));
    EXPECT_FALSE(MayDecodeBytes(MakeIconDirectory({PngHeader(-1, -1)})));
    EXPECT_FALSE(MayDecodeBytes(MakeIconDirectory({BitmapHeader(INT32_MIN, 16)})));
    EXPECT_FALSE(MayDecodeBytes(MakeIconDirectory({BitmapHeader(INT32_MAX, 16)})));
}

TEST(IconHeader, WhatIsNoIconFileHasNoDirectory) {
    EXPECT_FALSE(HeadersOf(""));
    EXPECT_FALSE(HeadersOf(std::string("\0\0\1\0", 4)));
    EXPECT_FALSE(HeadersOf("BM is a bitmap"));
    EXPECT_FALSE(HeadersOf("RIFF....ACON"));
    EXPECT_FALSE(HeadersOf(PngHeader(16, 16)));
}

TEST(IconHeader, CursorFileHasTheSameDirectory) {
    std::string bytes = MakeIconDirectory({BitmapHeader(16, 16)});
    bytes[2] = 2;
    EXPECT_TRUE(MayDecodeBytes(bytes));
}

TEST(IconHeader, EmptyDirectoryHasNothingToDecode) {
    const std::string bytes = MakeIconDirectory({});
    ASSERT_TRUE(HeadersOf(bytes));
    EXPECT_TRUE(HeadersOf(bytes)->empty());
    EXPECT_FALSE(MayDecodeBytes(bytes));
}

TEST(IconHeader, PictureWithoutItsHeaderIsLeftOut) {
    std::string bytes = MakeIconDirectory({BitmapHeader(16, 16), BitmapHeader(32, 32)});
    bytes.resize(bytes.size() - BitmapHeader(32, 32).size() + 20);
    const auto pictures = HeadersOf(bytes);
    ASSERT_TRUE(pictures);
    ASSERT_EQ(pictures->size(), 1u);
    EXPECT_EQ(pictures->front().width, 16u);
}

TEST(IconHeader, PictureWithoutASizeIsLeftOut) {
    const auto pictures = HeadersOf(MakeIconDirectory({BitmapHeader(0, 16), PngHeader(16, 0), BitmapHeader(24, 24)}));
    ASSERT_TRUE(pictures);
    ASSERT_EQ(pictures->size(), 1u);
    EXPECT_EQ(pictures->front().width, 24u);
}

TEST(IconHeader, DirectoryOfMorePicturesThanAnyoneDrawsIsRefused) {
    std::string bytes = MakeIconDirectory({BitmapHeader(16, 16)});
    bytes[4] = 0;
    bytes[5] = 1; // 256, all but one of them beyond the end
    EXPECT_TRUE(HeadersOf(bytes));
    bytes[4] = 1;
    EXPECT_FALSE(HeadersOf(bytes));
}

TEST(IconHeader, EveryShorterFileIsReadWithoutHarm) {
    const std::string whole = MakeIconDirectory({BitmapHeader(16, 16), PngHeader(64, 64), CoreBitmapHeader(8, 8)});
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string bytes = whole.substr(0, length);
        const auto pictures = HeadersOf(bytes);
        EXPECT_EQ(pictures.has_value(), length >= 6) << length;
        EXPECT_LE(pictures ? pictures->size() : 0, 3u);
    }
}

// ---- which picture is drawn

std::vector<IconPicture> Pictures(std::initializer_list<std::uint32_t> sides) {
    std::vector<IconPicture> pictures;
    for (const std::uint32_t side : sides) {
        pictures.push_back({side, side, 0, 0});
    }
    return pictures;
}

TEST(IconSide, TheSmallestPictureThatNeedNotBeEnlargedIsDrawn) {
    const auto pictures = Pictures({64, 16, 32, 20, 48, 24});
    EXPECT_EQ(SideToLoad(pictures, 16, 20), 20);
    EXPECT_EQ(SideToLoad(pictures, 16, 28), 32) << "made smaller, not larger";
    EXPECT_EQ(SideToLoad(pictures, 32, 48), 48);
    EXPECT_EQ(SideToLoad(pictures, 32, 64), 64);
    EXPECT_EQ(SideToLoad(pictures, 32, 24), 24) << "a large file that is drawn small";
}

TEST(IconSide, TheLargestPictureIsEnlargedWhereNoneIsLargeEnough) {
    EXPECT_EQ(SideToLoad(Pictures({16, 40, 32}), 32, 64), 40);
}

TEST(IconSide, AFileWithNothingLargerIsLoadedInItsUsualSize) {
    EXPECT_EQ(SideToLoad(Pictures({32}), 32, 64), 32);
    EXPECT_EQ(SideToLoad(Pictures({16}), 32, 64), 32);
    EXPECT_EQ(SideToLoad({}, 32, 64), 32);
}

TEST(IconSide, OnAnOrdinaryDisplayItIsTheUsualSizeWhateverTheFileHolds) {
    EXPECT_EQ(SideToLoad(Pictures({48, 64}), 32, 32), 32);
    EXPECT_EQ(SideToLoad(Pictures({24}), 16, 16), 16);
}

// ---- which picture needs nothing of the system

std::string WholePicture(int side) {
    return BitmapHeader(side, side) +
           std::string(std::size_t(side) * std::size_t(side) * 4 + std::size_t(side) * 4, 'p');
}

std::optional<PictureBytes> PlainOf(const std::string& bytes, int side) {
    return FindPlainPicture(ReaderOf(bytes), side);
}

TEST(PlainPicture, IsTheOnlyOneOfItsSize) {
    const std::string file = MakeIconDirectory({WholePicture(16), WholePicture(32)}, {16, 32});
    const auto found = PlainOf(file, 32);
    ASSERT_TRUE(found);
    EXPECT_EQ(file.substr(static_cast<std::size_t>(found->offset), found->count), WholePicture(32));
    EXPECT_TRUE(PlainOf(file, 16));
    EXPECT_FALSE(PlainOf(file, 24));
    EXPECT_FALSE(PlainOf(MakeIconDirectory({WholePicture(32), WholePicture(32)}, {32, 32}), 32));
}

TEST(PlainPicture, IsWhatTheDirectoryAndItsOwnHeaderAgreeUpon) {
    EXPECT_FALSE(PlainOf(MakeIconDirectory({WholePicture(32)}, {16}), 16));
    EXPECT_FALSE(PlainOf(MakeIconDirectory({WholePicture(32)}, {16}), 32));
    EXPECT_TRUE(PlainOf(MakeIconDirectory({PngHeader(256, 256) + std::string(40, 'p')}, {0}), 256));
    EXPECT_FALSE(PlainOf(MakeIconDirectory({PngHeader(256, 128) + std::string(40, 'p')}, {0}), 256));
}

TEST(PlainPicture, NeedsNoConversion) {
    const auto changed = [](std::size_t place, char value) {
        std::string picture = WholePicture(32);
        picture[place] = value;
        return MakeIconDirectory({picture}, {32});
    };
    EXPECT_FALSE(PlainOf(changed(0, 12), 32)) << "an older header";
    EXPECT_FALSE(PlainOf(changed(12, 2), 32)) << "planes";
    EXPECT_FALSE(PlainOf(changed(14, 24), 32)) << "bits";
    EXPECT_FALSE(PlainOf(changed(16, 3), 32)) << "masks of colours";
    std::string downwards = WholePicture(32);
    downwards.replace(8, 4, LittleEndian(0u - 64u, 4));
    EXPECT_FALSE(PlainOf(MakeIconDirectory({downwards}, {32}), 32));
    std::string cursor = MakeIconDirectory({WholePicture(32)}, {32});
    cursor[2] = 2;
    EXPECT_FALSE(PlainOf(cursor, 32));
}

TEST(PlainPicture, IsNoShorterThanItsColoursAndItsMaskAndNoLongerThanTheLimit) {
    std::string file = MakeIconDirectory({WholePicture(32)}, {32});
    const auto withCount = [&file](std::uint32_t count) {
        return std::string(file).replace(14, 4, LittleEndian(count, 4));
    };
    constexpr std::uint32_t whole = 40 + 32 * 32 * 4 + 32 * 4;
    EXPECT_TRUE(PlainOf(withCount(whole), 32));
    EXPECT_FALSE(PlainOf(withCount(whole - 1), 32));
    EXPECT_TRUE(PlainOf(withCount(kMostPlainBytes), 32));
    EXPECT_FALSE(PlainOf(withCount(kMostPlainBytes + 1), 32));
}

std::optional<PictureBytes> OnlyPlainOf(const std::string& bytes) { return FindOnlyPlainPicture(ReaderOf(bytes)); }

TEST(OnlyPlainPicture, IsOneThatStandsAloneWhateverItsSide) {
    const std::string file = MakeIconDirectory({WholePicture(24)}, {24});
    const auto found = OnlyPlainOf(file);
    ASSERT_TRUE(found);
    EXPECT_EQ(file.substr(static_cast<std::size_t>(found->offset), found->count), WholePicture(24));
    EXPECT_TRUE(OnlyPlainOf(MakeIconDirectory({PngHeader(256, 256) + std::string(40, 'p')}, {0})));
    EXPECT_FALSE(OnlyPlainOf(MakeIconDirectory({WholePicture(16), WholePicture(32)}, {16, 32})));
    EXPECT_FALSE(OnlyPlainOf(MakeIconDirectory({})));
}

TEST(OnlyPlainPicture, IsAsPlainAsOneThatNeedsNoResizing) {
    EXPECT_FALSE(OnlyPlainOf(MakeIconDirectory({WholePicture(32)}, {16}))) << "the directory says another size";
    EXPECT_FALSE(OnlyPlainOf(MakeIconDirectory({PngHeader(256, 128) + std::string(40, 'p')}, {0})));
    std::string narrow = MakeIconDirectory({WholePicture(32)}, {32});
    narrow[6] = 16; // its width in the directory
    EXPECT_FALSE(OnlyPlainOf(narrow));
    std::string cursor = MakeIconDirectory({WholePicture(32)}, {32});
    cursor[2] = 2;
    EXPECT_FALSE(OnlyPlainOf(cursor));
    std::string converted = WholePicture(32);
    converted[14] = 24;
    EXPECT_FALSE(OnlyPlainOf(MakeIconDirectory({converted}, {32})));
}

TEST(OnlyPlainPicture, IsLookedForInEveryShorterFileWithoutHarm) {
    const std::string file = MakeIconDirectory({WholePicture(16)}, {16});
    for (std::size_t length = 0; length < file.size(); ++length) {
        EXPECT_EQ(OnlyPlainOf(file.substr(0, length)).has_value(), length >= 6 + 16 + 40) << length;
    }
}

TEST(PlainPicture, IsLookedForInEveryShorterFileWithoutHarm) {
    const std::string file = MakeIconDirectory({PngHeader(16, 16) + "behind", WholePicture(32)}, {16, 32});
    for (std::size_t length = 0; length < file.size(); length += 3) {
        const auto found = PlainOf(file.substr(0, length), 32);
        EXPECT_EQ(found.has_value(), length >= 6 + 2 * 16 + PngHeader(16, 16).size() + 6 + 40) << length;
    }
}

} // namespace

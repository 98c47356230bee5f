// Pictures for the time of one draw, whose bitmaps are used again.
#include "tests/support/gui_objects.h"
#include "visual/scratch_picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <span>

using visual::ScratchPicture;

namespace {

int MadeBy(auto draw) {
    const int before = ScratchPicture::GetMadeCount();
    draw();
    return ScratchPicture::GetMadeCount() - before;
}

bool IsClear(const ScratchPicture& picture) {
    const visual::PixelView& view = picture.View();
    const std::span pixels(view.bits, static_cast<std::size_t>(view.width * view.height));
    return std::ranges::all_of(pixels, [](std::uint32_t pixel) { return pixel == 0; });
}

TEST(ScratchPicture, HasTheSizeThatWasAskedForAndIsClearWhateverWasInItBefore) {
    for (int round = 0; round < 3; ++round) {
        const ScratchPicture picture(16, 24);
        ASSERT_FALSE(picture.IsEmpty());
        EXPECT_EQ(picture.View().width, 16);
        EXPECT_EQ(picture.View().height, 24);
        EXPECT_TRUE(IsClear(picture));
        picture.View().At(15, 23) = 0xFF102030;
        EXPECT_EQ(::GetPixel(picture.Context(), 15, 23), RGB(0x10, 0x20, 0x30));
    }
}

TEST(ScratchPicture, IsMadeOnceForDrawsOfOneSize) {
    { const ScratchPicture first(20, 20); }
    EXPECT_EQ(MadeBy([] {
                  for (int draw = 0; draw < 10; ++draw) {
                      const ScratchPicture picture(20, 20);
                  }
              }),
              0);
    EXPECT_EQ(MadeBy([] { const ScratchPicture other(20, 21); }), 1);
}

TEST(ScratchPicture, IsNoOtherOnesWhileThatIsAlive) {
    const ScratchPicture first(16, 16), second(16, 16);
    first.View().At(0, 0) = 0xFFFFFFFF;
    EXPECT_TRUE(IsClear(second));
    EXPECT_NE(first.Context(), second.Context());
}

TEST(ScratchPicture, FourSizesAreKeptAndTheOneNotUsedLongestGoes) {
    for (int side = 30; side < 34; ++side) {
        const ScratchPicture picture(side, side);
    }
    EXPECT_EQ(MadeBy([] { const ScratchPicture picture(30, 30); }), 0);
    EXPECT_EQ(MadeBy([] { const ScratchPicture fifth(34, 34); }), 1);
    EXPECT_EQ(MadeBy([] { const ScratchPicture picture(30, 30); }), 0);
    EXPECT_EQ(MadeBy([] { const ScratchPicture picture(31, 31); }), 1);
}

TEST(ScratchPicture, LargeOnesAreNotKept) {
    const auto draw = [] { const ScratchPicture picture(129, 10); };
    draw();
    EXPECT_EQ(MadeBy(draw), 1);
    const auto drawSmaller = [] { const ScratchPicture picture(128, 10); };
    drawSmaller();
    EXPECT_EQ(MadeBy(drawSmaller), 0);
}

TEST(ScratchPicture, DrawsInManySizesLeaveNothingBehind) {
    EXPECT_TRUE(RepeatedLeavesNothingBehind(8, 400, [](int round) {
        const ScratchPicture picture(1 + round % 40, 1 + round % 140);
        std::optional<ScratchPicture> nested;
        if (round % 2 == 0) {
            nested.emplace(8, 8);
        }
    }));
}

} // namespace

#include "combos/item_bits.h"

#include <gtest/gtest.h>

namespace {

using namespace item_bits;

TEST(ItemBits, TheLightIsBitFourAndLeavesTheOthersAlone) {
    EXPECT_TRUE(IsLightOn(0x4));
    EXPECT_FALSE(IsLightOn(0xfb));
    EXPECT_EQ(WithLight(0xf0, true), 0xf4u);
    EXPECT_EQ(WithLight(0xf4, true), 0xf4u);
    EXPECT_EQ(WithLight(0xff, false), 0xfbu);
}

TEST(ItemBits, EitherLockBitLocks) {
    EXPECT_TRUE(IsLocked(0x1));
    EXPECT_TRUE(IsLocked(0x8));
    EXPECT_TRUE(IsLocked(0x9));
    EXPECT_FALSE(IsLocked(0x4));
}

TEST(ItemBits, UnlockingAnItemWithOneLockBitFlipsBothSoThatItStaysLocked) {
    EXPECT_EQ(WithLock(0x1, false), 0x8u);
    EXPECT_TRUE(IsLocked(WithLock(0x1, false)));
    EXPECT_EQ(WithLock(0x8, false), 0x1u);
    EXPECT_EQ(WithLock(0x9, false), 0x0u);
    EXPECT_EQ(WithLock(0x0, true), 0x9u);
    EXPECT_EQ(WithLock(0x1, true), 0x1u) << "locked already";
}

TEST(ItemBits, BitsAboveThirtyTwoStay) {
    constexpr Data high = Data{0x12345678} << 32;
    EXPECT_EQ(WithLight(high, true), high | 0x4);
    EXPECT_EQ(WithLock(high, true), high | 0x9);
}

} // namespace

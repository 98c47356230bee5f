// The bytes that keep where panes are: they come back as they were, or not at all.
#include "panes/dock_state.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

using panes::DockState;
using panes::PlaceKind;
using panes::ReadDockState;
using panes::SavedPane;

using Bytes = std::vector<std::uint8_t>;

DockState Example() {
    SavedPane first;
    first.id = 45000;
    first.row = 1;
    first.offset = 120;
    SavedPane second;
    second.id = 0xFFFFFFFF;
    second.kind = PlaceKind::Floating;
    second.isVisible = false;
    second.dockedAt = PlaceKind::Right;
    second.wasDocked = true;
    second.floating = {-1900, 40, -1700, 90};
    SavedPane third;
    third.id = 7;
    third.kind = PlaceKind::Left;
    third.offset = -4;
    return {first, second, third};
}

void PutWord(Bytes& bytes, std::size_t at, std::uint32_t value) {
    for (std::size_t index = 0; index < 4; ++index) {
        bytes[at + index] = static_cast<std::uint8_t>(value >> (8 * index));
    }
}

/// What a damage would be that the check sum does not notice.
Bytes Sealed(Bytes bytes) {
    const std::size_t body = bytes.size() - 4;
    PutWord(bytes, body, panes::CheckSumOf(std::span(bytes).first(body)));
    return bytes;
}

TEST(SavedDocking, AStateComesBackAsItWas) {
    EXPECT_EQ(ReadDockState(panes::WriteDockState(Example())), Example());
    EXPECT_EQ(ReadDockState(panes::WriteDockState({})), DockState{});
}

TEST(SavedDocking, EachMissingOrAdditionalByteMakesItDamaged) {
    const Bytes whole = panes::WriteDockState(Example());
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(ReadDockState(std::span(whole).first(length))) << length;
    }
    Bytes longer = whole;
    longer.push_back(0);
    EXPECT_FALSE(ReadDockState(longer));
}

TEST(SavedDocking, EachChangedBitMakesItDamaged) {
    const Bytes whole = panes::WriteDockState(Example());
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        Bytes changed = whole;
        changed[bit / 8] = static_cast<std::uint8_t>(changed[bit / 8] ^ (1U << (bit % 8)));
        EXPECT_FALSE(ReadDockState(changed)) << bit;
    }
}

struct WrongWord {
    const char* what;
    std::size_t at;
    std::uint32_t value;
};

constexpr std::size_t kFirstPane = 12;

TEST(SavedDocking, ValuesThatNoPaneCanHaveAreDamageToo) {
    const WrongWord cases[] = {
        {"another kind of data", 0, 1},
        {"another version", 4, 2},
        {"more panes than there are", 8, 4},
        {"fewer", 8, 2},
        {"a number of panes that overflows", 8, 0x20000003},
        {"no side", kFirstPane + 4, 5},
        {"floating as the side of docking", kFirstPane + 4, 0x40},
        {"unknown bits", kFirstPane + 4, 0x100},
        {"a row below zero", kFirstPane + 8, 0xFFFFFFFF},
        {"a row that is too far", kFirstPane + 8, 20000},
        {"an offset that is too far", kFirstPane + 12, 0x7FFFFFFF},
        {"an offset that is too far to the left", kFirstPane + 12, 0x80000000},
        {"a rectangle that ends before it begins", kFirstPane + 16, 10},
        {"a reserved word", kFirstPane + 32, 1},
        {"an id twice", kFirstPane, 7},
    };
    const Bytes whole = panes::WriteDockState(Example());
    ASSERT_TRUE(ReadDockState(Sealed(whole)));
    for (const WrongWord& wrong : cases) {
        Bytes changed = whole;
        PutWord(changed, wrong.at, wrong.value);
        EXPECT_FALSE(ReadDockState(Sealed(changed))) << wrong.what;
    }
}

TEST(SavedDocking, AHundredThousandMutationsAreReadOrRefused) {
    std::mt19937 random(20);
    const auto number = [&random](std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
    };
    const Bytes whole = panes::WriteDockState(Example());
    int read = 0;
    for (int round = 0; round < 100000; ++round) {
        Bytes bytes = whole;
        for (std::size_t change = 1 + number(6); change > 0; --change) {
            switch (number(4)) {
            case 0:
                bytes.resize(number(bytes.size() + 20));
                break;
            case 1:
                bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(number(bytes.size() + 1)),
                             static_cast<std::uint8_t>(number(256)));
                break;
            default:
                if (!bytes.empty()) {
                    bytes[number(bytes.size())] = static_cast<std::uint8_t>(number(256));
                }
                break;
            }
        }
        const bool isSealed = bytes.size() >= 4 && number(4) != 0;
        const auto state = ReadDockState(isSealed ? Sealed(bytes) : bytes);
        if (state) {
            ++read;
            // What is read is a state: it can be written and comes back.
            ASSERT_EQ(ReadDockState(panes::WriteDockState(*state)), state) << round;
        }
    }
    EXPECT_GT(read, 1000) << "the mutations must reach the panes as well";
    EXPECT_LT(read, 90000);
}

} // namespace

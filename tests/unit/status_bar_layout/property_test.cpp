// What holds for every bar, with random elements and widths.
#include "items.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace status {
namespace {

using fx::Rect;

class Source {
public:
    int Pick(int from, int to) { return std::uniform_int_distribution(from, to)(m_random); }
    bool OneIn(int count) { return Pick(1, count) == 1; }

    Item MakeItem() {
        Item item = OneIn(4) ? Separator(Pick(1, 12)) : Plain(Pick(0, 220), Pick(0, 50));
        item.isVisible = !OneIn(4);
        item.fillsHeight = item.isSeparator || OneIn(8);
        item.isRight = !item.isSeparator && OneIn(6);
        item.fixedWidth = OneIn(3) ? Pick(-2, 200) : 0;
        return item;
    }
    Shape MakeShape() {
        Shape shape;
        shape.client = {Pick(0, 1200), Pick(24, 60)};
        shape.gripWidth = OneIn(2) ? std::min(18, shape.client.height) : 0;
        shape.showsInformation = OneIn(12);
        for (int count = Pick(0, 9); count > 0; --count) {
            shape.elements.push_back(MakeItem());
        }
        for (int count = Pick(0, 6); count > 0; --count) {
            shape.extended.push_back(MakeItem());
        }
        return shape;
    }

private:
    std::mt19937 m_random{3301122};
};

template <class Check>
void ForManyBars(const Check& check) {
    constexpr int kRounds = 30000;
    Source source;
    for (int round = 0; round < kRounds; ++round) {
        SCOPED_TRACE(round);
        const Shape shape = source.MakeShape();
        check(shape, Arrange(shape));
        if (testing::Test::HasFailure()) {
            return;
        }
    }
}

int WidthOf(const Item& item) { return item.fixedWidth >= 1 ? item.fixedWidth : item.size.width; }

/// The first slot may reach over the limit, and over what follows, with the width of a hidden second one.
bool TakesSecond(const Shape& shape) { return shape.elements.size() > 1 && !shape.elements[1].isVisible; }

TEST(StatusLayoutProperty, ExtendedElementsNeverOverlapNorLeaveTheBarToTheRight) {
    ForManyBars([](const Shape& shape, const Places& places) {
        int right = shape.client.width - shape.gripWidth;
        for (std::size_t index = places.extended.size(); index-- > 0;) {
            const Rect& rect = places.extended[index];
            if (rect.Width() == 0) {
                continue;
            }
            ASSERT_LE(rect.right, right);
            ASSERT_GE(rect.left, shape.extended[index].fillsHeight ? -5 : 0);
            right = rect.left;
        }
    });
}

TEST(StatusLayoutProperty, MainElementsNeverOverlapNorLeaveTheirAreaButRightLabelsAndTheWideFirstSlot) {
    ForManyBars([](const Shape& shape, const Places& places) {
        int left = 0;
        for (std::size_t index = 0; index < places.elements.size(); ++index) {
            const Rect& rect = places.elements[index];
            if (rect.Width() == 0 || shape.elements[index].isRight) {
                continue;
            }
            ASSERT_GE(rect.left, left) << index;
            left = rect.right;
            for (const Rect& extended : places.extended) {
                if (extended.Width() > 0 && !(index == 0 && TakesSecond(shape))) {
                    ASSERT_LE(rect.right + 10, extended.left) << index;
                }
            }
        }
    });
}

TEST(StatusLayoutProperty, NothingButTheSlotsReachesOutOfTheRow) {
    ForManyBars([](const Shape& shape, const Places& places) {
        for (std::size_t index = 0; index < places.elements.size(); ++index) {
            const bool isSlot = index < 2 && !shape.elements[index].isRight;
            const Rect& rect = places.elements[index];
            ASSERT_TRUE(rect.IsEmpty() || isSlot || (rect.top >= 2 && rect.bottom <= shape.client.height - 2)) << index;
        }
    });
}

TEST(StatusLayoutProperty, WhatIsHiddenHasAnEmptyRectangleAndWhatIsShownItsWidth) {
    ForManyBars([](const Shape& shape, const Places& places) {
        for (std::size_t index = 0; index < places.elements.size(); ++index) {
            const Item& item = shape.elements[index];
            const Rect& rect = places.elements[index];
            if (!item.isVisible || shape.showsInformation) {
                ASSERT_EQ(rect, Rect{}) << index;
            } else if (rect != Rect{} && !(index == 0 && TakesSecond(shape))) {
                ASSERT_EQ(rect.Width(), WidthOf(item)) << index;
            }
        }
    });
}

TEST(StatusLayoutProperty, SeparatorsStandBetweenOtherElementsOnly) {
    ForManyBars([](const Shape& shape, const Places& places) {
        bool followsSeparator = true;
        for (std::size_t index = 0; index < places.elements.size(); ++index) {
            const bool isSlot = index < 2 && !shape.elements[index].isRight;
            // Slots count for none: not even a separator behind a right label that comes first.
            if (places.elements[index] == Rect{} || isSlot) {
                continue;
            }
            const bool isSeparator = shape.elements[index].isSeparator;
            ASSERT_FALSE(isSeparator && followsSeparator) << index;
            followsSeparator = isSeparator;
        }
        ASSERT_TRUE(!followsSeparator ||
                    std::none_of(places.elements.begin(), places.elements.end(), [&](const Rect& rect) {
                        const auto place = &rect - places.elements.data();
                        return rect != Rect{} && place >= 2;
                    }));
    });
}

TEST(StatusLayoutProperty, HidingAnElementFromTheThirdOnMovesNobody) {
    ForManyBars([](const Shape& shape, const Places& places) {
        for (std::size_t hidden = 2; hidden < shape.elements.size(); ++hidden) {
            const Item& item = shape.elements[hidden];
            if (item.isSeparator || item.isRight || !item.isVisible) {
                continue;
            }
            Shape other = shape;
            other.elements[hidden].isVisible = false;
            const Places after = Arrange(other);
            for (std::size_t index = 0; index < shape.elements.size(); ++index) {
                if (index != hidden && !shape.elements[index].isSeparator && after.elements[index] != Rect{} &&
                    places.elements[index] != Rect{}) {
                    // A separator that is not shown for want of a neighbour takes no room either.
                    const bool hasSeparators = std::any_of(shape.elements.begin(), shape.elements.end(),
                                                           [](const Item& one) { return one.isSeparator; });
                    ASSERT_TRUE(hasSeparators || after.elements[index] == places.elements[index]) << index;
                }
            }
        }
    });
}

} // namespace
} // namespace status

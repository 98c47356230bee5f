#include "items.h"

#include <gmock/gmock.h>

namespace status {
namespace {

using fx::Rect;
using testing::Each;
using testing::ElementsAre;

std::vector<Rect> MainOf(std::vector<Item> elements) { return Arrange(Bar(std::move(elements))).elements; }
std::vector<Rect> ExtendedOf(std::vector<Item> extended) { return Arrange(Bar({}, std::move(extended))).extended; }

// ---- size grip

TEST(StatusLayoutGrip, TakesTheRightEnd) {
    Shape shape = Bar({}, {Plain(40)});
    shape.gripWidth = 18;
    const Places places = Arrange(shape);
    EXPECT_EQ(places.extended[0], (Rect{342, 6, 382, 22}));
}

// ---- extended elements

TEST(StatusLayoutExtended, ArePackedFromTheRightEndAndCentred) {
    EXPECT_THAT(ExtendedOf({Plain(30), Plain(40, 20)}), ElementsAre(Rect{330, 6, 360, 22}, Rect{360, 4, 400, 24}));
}

TEST(StatusLayoutExtended, OneThatFillsTheHeightLeavesFivePixelsAtItsRight) {
    EXPECT_THAT(ExtendedOf({Plain(30), Separator(), Plain(40)}),
                ElementsAre(Rect{317, 6, 347, 22}, Rect{347, 2, 355, 26}, Rect{360, 6, 400, 22}));
}

TEST(StatusLayoutExtended, HiddenOnesTakeNoRoom) {
    EXPECT_THAT(ExtendedOf({Plain(30), Hidden(50), Plain(40)}),
                ElementsAre(Rect{330, 6, 360, 22}, Rect{}, Rect{360, 6, 400, 22}));
}

TEST(StatusLayoutExtended, OneWithoutRoomIsNotShownANarrowerOneBehindItIs) {
    EXPECT_THAT(ExtendedOf({Plain(60), Plain(380), Plain(40)}),
                ElementsAre(Rect{300, 6, 360, 22}, Rect{}, Rect{360, 6, 400, 22}));
}

TEST(StatusLayoutExtended, OneHigherThanTheBarBeginsAtTheUpperMargin) {
    EXPECT_THAT(ExtendedOf({Plain(40, 50)}), ElementsAre(Rect{360, 2, 400, 52}));
}

// ---- information

TEST(StatusLayoutInformation, HasThePlaceOfTheMainElements) {
    Shape shape = Bar({Plain(50), Plain(60), Plain(70)}, {Plain(40)});
    shape.showsInformation = true;
    const Places places = Arrange(shape);
    EXPECT_EQ(places.information, (Rect{0, 2, 350, 26}));
    EXPECT_THAT(places.elements, Each(Rect{}));
    EXPECT_THAT(places.isSkipped, Each(true));
    EXPECT_EQ(places.extended[0], (Rect{360, 6, 400, 22}));
}

TEST(StatusLayoutInformation, WithoutAnyItsRectangleIsEmpty) {
    EXPECT_TRUE(Arrange(Bar({Plain(50)})).information.IsEmpty());
}

// ---- the two slots

TEST(StatusLayoutSlots, TheFirstIsFourPixelsHigherThanItMeasures) {
    EXPECT_THAT(MainOf({Plain(50, 10)}), ElementsAre(Rect{0, 7, 50, 21}));
}

TEST(StatusLayoutSlots, TheSecondIsAlways23High) {
    for (const int height : {1, 16, 19, 22, 40, 90}) {
        const Rect second = MainOf({Plain(50), Plain(60, height)})[1];
        EXPECT_EQ(second.Height(), 23) << height;
        EXPECT_EQ(second.left, 50) << height;
        EXPECT_EQ(second.top, 2 + std::max((24 - height - 4) / 2, 0)) << height;
    }
}

TEST(StatusLayoutSlots, TheFirstTakesTheWidthOfAHiddenSecond) {
    EXPECT_THAT(MainOf({Plain(50), Hidden(60), Plain(70)}),
                ElementsAre(Rect{0, 4, 110, 24}, Rect{}, Rect{110, 4, 180, 24}));
}

TEST(StatusLayoutSlots, TheFirstTakesWhatAHiddenSecondMeasuresNotItsFixedWidth) {
    EXPECT_EQ(MainOf({Plain(50), Fixed(Hidden(60), 200)})[0].Width(), 110);
}

TEST(StatusLayoutSlots, AShownSecondHasItsOwnPlace) {
    EXPECT_THAT(MainOf({Plain(50), Plain(60)}), ElementsAre(Rect{0, 4, 50, 24}, Rect{50, 4, 110, 27}));
}

TEST(StatusLayoutSlots, AHiddenFirstTakesNoRoom) {
    EXPECT_THAT(MainOf({Hidden(50), Plain(60), Plain(70)}),
                ElementsAre(Rect{}, Rect{0, 4, 60, 27}, Rect{60, 4, 130, 24}));
}

TEST(StatusLayoutSlots, OneWithoutRoomIsNotShownAndTakesNone) {
    EXPECT_THAT(MainOf({Plain(391), Plain(60)}), ElementsAre(Rect{}, Rect{0, 4, 60, 27}));
    EXPECT_THAT(MainOf({Plain(390)}), ElementsAre(Rect{0, 4, 390, 24}));
}

TEST(StatusLayoutSlots, DoNotChangeTheFreeWidth) {
    EXPECT_EQ(Arrange(Bar({Plain(50), Plain(60)})).space, 390);
    EXPECT_EQ(Arrange(Bar({Plain(50), Plain(60), Plain(70)})).space, 390 - 180);
}

TEST(StatusLayoutSlots, ARightLabelIsNone) { EXPECT_THAT(MainOf({Right(50)}), ElementsAre(Rect{340, 4, 390, 24})); }

// ---- the row behind them

const Item kFirst = Plain(10);
const Item kSecond = Plain(20);

TEST(StatusLayoutRow, StandsFromTheThirdElementOnOneBehindTheOther) {
    EXPECT_THAT(MainOf({kFirst, kSecond, Plain(50), Plain(60)}),
                ElementsAre(Rect{0, 4, 10, 24}, Rect{10, 4, 30, 27}, Rect{30, 4, 80, 24}, Rect{80, 4, 140, 24}));
}

TEST(StatusLayoutRow, AHiddenElementKeepsItsPlace) {
    const auto hidden = MainOf({kFirst, kSecond, Hidden(50), Plain(60)});
    EXPECT_THAT(hidden, ElementsAre(Rect{0, 4, 10, 24}, Rect{10, 4, 30, 27}, Rect{}, Rect{80, 4, 140, 24}));
    EXPECT_EQ(hidden[3], MainOf({kFirst, kSecond, Plain(50), Plain(60)})[3]);
}

TEST(StatusLayoutRow, AHiddenElementWithAFixedWidthKeepsThat) {
    EXPECT_EQ(MainOf({kFirst, kSecond, Fixed(Hidden(50), 90), Plain(60)})[3].left, 120);
}

TEST(StatusLayoutRow, OneWithoutRoomIsNotShownNorAreThoseBehindIt) {
    EXPECT_THAT(MainOf({kFirst, kSecond, Plain(361), Plain(5)}),
                ElementsAre(Rect{0, 4, 10, 24}, Rect{10, 4, 30, 27}, Rect{}, Rect{}));
    EXPECT_EQ(MainOf({kFirst, kSecond, Plain(360)})[2], (Rect{30, 4, 390, 24}));
}

TEST(StatusLayoutRow, TheHeightIsCutToThatOfTheRow) {
    EXPECT_EQ(MainOf({kFirst, kSecond, Plain(50, 90)})[2], (Rect{30, 2, 80, 26}));
    EXPECT_EQ(MainOf({kFirst, kSecond, Plain(50, 10)})[2], (Rect{30, 7, 80, 21}));
}

TEST(StatusLayoutRow, OneThatFillsTheHeightReachesFromMarginToMargin) {
    EXPECT_EQ(MainOf({kFirst, kSecond, FullHeight(50)})[2], (Rect{30, 2, 80, 26}));
}

TEST(StatusLayoutRow, ARightLabelStandsAtTheRightEndAndMovesNobody) {
    EXPECT_THAT(MainOf({kFirst, kSecond, Right(50), Plain(60)}),
                ElementsAre(Rect{0, 4, 10, 24}, Rect{10, 4, 30, 27}, Rect{340, 4, 390, 24}, Rect{30, 4, 90, 24}));
}

TEST(StatusLayoutRow, RightLabelsShareOnePlace) {
    const auto places = MainOf({kFirst, kSecond, Right(50), Right(70)});
    EXPECT_EQ(places[2], (Rect{340, 4, 390, 24}));
    EXPECT_EQ(places[3], (Rect{320, 4, 390, 24}));
}

TEST(StatusLayoutRow, TheFreeWidthIsThatBehindTheLastElementOrFromTheRightLabelOn) {
    EXPECT_EQ(Arrange(Bar({kFirst, kSecond, Plain(50)})).space, 390 - 80);
    EXPECT_EQ(Arrange(Bar({kFirst, kSecond, Plain(50), Right(70)})).space, 70);
    EXPECT_EQ(Arrange(Bar({kFirst, kSecond, Right(70), Plain(50)})).space, 390 - 80);
}

// ---- fixed widths

TEST(StatusLayoutWidth, AFixedWidthHoldsWhateverTheElementMeasures) {
    for (const int own : {1, 79, 81, 300}) {
        EXPECT_EQ(MainOf({kFirst, kSecond, kFirst, Fixed(Plain(own), 80)})[3].Width(), 80) << own;
    }
    EXPECT_EQ(MainOf({Fixed(Plain(50), 80)})[0].Width(), 80);
    EXPECT_EQ(MainOf({kFirst, Fixed(Plain(50), 80)})[1].Width(), 80);
}

TEST(StatusLayoutWidth, BelowOneTheElementHasItsOwn) {
    for (const int fixed : {0, -1, -1000}) {
        EXPECT_EQ(MainOf({kFirst, kSecond, Fixed(Plain(50), fixed)})[2].Width(), 50) << fixed;
    }
}

// ---- separators

TEST(StatusLayoutSeparators, NoneStandsFirstNorAfterAnother) {
    const Places places =
        Arrange(Bar({Separator(), Separator(), Separator(), Plain(50), Separator(), Separator(), Plain(60)}));
    EXPECT_THAT(places.elements, ElementsAre(Rect{}, Rect{}, Rect{}, Rect{0, 4, 50, 24}, Rect{50, 2, 58, 26}, Rect{},
                                             Rect{58, 4, 118, 24}));
    EXPECT_THAT(places.isSkipped, ElementsAre(true, true, true, false, false, true, false));
}

TEST(StatusLayoutSeparators, NoneStandsDirectlyBehindTheTwoSlots) {
    EXPECT_THAT(MainOf({kFirst, kSecond, Separator(), Plain(50)}),
                ElementsAre(Rect{0, 4, 10, 24}, Rect{10, 4, 30, 27}, Rect{}, Rect{30, 4, 80, 24}));
}

TEST(StatusLayoutSeparators, NoneStandsLast) {
    EXPECT_THAT(MainOf({kFirst, kSecond, Plain(50), Separator()}),
                ElementsAre(Rect{0, 4, 10, 24}, Rect{10, 4, 30, 27}, Rect{30, 4, 80, 24}, Rect{}));
}

TEST(StatusLayoutSeparators, NoneStandsLastWhereWhatFollowsIsHidden) {
    EXPECT_TRUE(MainOf({kFirst, kSecond, Plain(50), Separator(), Hidden(60)})[3].IsEmpty());
}

// ---- narrow bars

TEST(StatusLayoutNarrow, ABarWithoutRoomShowsNothing) {
    for (const fx::Size client : {fx::Size{0, 0}, fx::Size{5, 28}, fx::Size{400, 0}, fx::Size{0, 28}}) {
        Shape shape = Bar({kFirst, kSecond, Plain(50)}, {Plain(40)});
        shape.client = client;
        const Places places = Arrange(shape);
        if (client.width < 40) {
            EXPECT_THAT(places.elements, Each(Rect{}));
            EXPECT_THAT(places.extended, Each(Rect{}));
        }
        EXPECT_TRUE(places.elements[2].IsEmpty());
    }
}

} // namespace
} // namespace status

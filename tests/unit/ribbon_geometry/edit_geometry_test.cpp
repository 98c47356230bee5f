#include "ribbon/edit_geometry.h"

#include <gtest/gtest.h>

namespace ribbon {
namespace {

FaceMetrics At(double scale) { return {scale, static_cast<int>(15 * scale + 0.5)}; }

TEST(EditSize, IsTheBoxAloneWithoutLabelAndImage) { EXPECT_EQ(MeasureEdit({{}, {}, 80, 0}, At(1.0)), (Size{80, 22})); }

TEST(EditSize, AddsImageAndLabelWithTheirGaps) {
    EXPECT_EQ(MeasureEdit({{}, {30, 15}, 80, 0}, At(1.0)), (Size{4 + 34 + 80, 22}));
    EXPECT_EQ(MeasureEdit({{16, 16}, {30, 15}, 80, 0}, At(1.0)), (Size{4 + 20 + 34 + 80, 22}));
    EXPECT_EQ(MeasureEdit({{24, 24}, {45, 23}, 120, 0}, At(1.5)), (Size{6 + 30 + 51 + 120, 34}));
}

TEST(EditFace, TheBoxStandsAtTheRightEndAndTheLabelBeforeIt) {
    const EditContent content{{16, 16}, {30, 15}, 80, 0};
    const Size size = MeasureEdit(content, At(1.0));
    const EditFace face = PlaceEdit({0, 0, size.width, size.height}, content, At(1.0));
    EXPECT_EQ(face.image, (Rect{4, 3, 20, 19}));
    EXPECT_EQ(face.label, (Rect{24, 3, 54, 18}));
    EXPECT_EQ(face.box, (Rect{58, 0, 138, 22}));
    EXPECT_EQ(face.edit, face.box);
    EXPECT_TRUE(face.dropButton.IsEmpty());
    EXPECT_EQ(face.text, (Rect{61, 3, 135, 18}));
}

TEST(EditFace, TheDropButtonIsTheRightEndOfTheBox) {
    const EditFace face = PlaceEdit({0, 0, 100, 22}, {{}, {}, 100, 16}, At(1.0));
    EXPECT_EQ(face.edit, (Rect{0, 0, 84, 22}));
    EXPECT_EQ(face.dropButton, (Rect{84, 0, 100, 22}));
}

TEST(EditFace, TheLabelGivesWayBeforeTheBox) {
    const EditContent content{{}, {60, 15}, 80, 0};
    const EditFace face = PlaceEdit({0, 0, 100, 22}, content, At(1.0));
    EXPECT_EQ(face.box.Width(), 80);
    EXPECT_EQ(face.label, (Rect{4, 3, 16, 18}));
    EXPECT_TRUE(PlaceEdit({0, 0, 84, 22}, content, At(1.0)).label.IsEmpty());
    EXPECT_EQ(PlaceEdit({0, 0, 50, 22}, content, At(1.0)).box.Width(), 50);
}

TEST(EditFace, ABoxThatMayNarrowGivesWayBeforeTheLabelDownToItsLeastWidth) {
    EditContent content{{}, {60, 15}, 80, 14};
    content.leastBoxWidth = 54;
    const int full = MeasureEdit(content, At(1.0)).width;
    for (const int lacking : {0, 1, 26}) {
        const EditFace face = PlaceEdit({0, 0, full - lacking, 22}, content, At(1.0));
        EXPECT_EQ(face.label, (Rect{4, 3, 64, 18})) << lacking;
        EXPECT_EQ(face.box.Width(), 80 - lacking);
        EXPECT_EQ(face.dropButton.Width(), 14);
    }
    const EditFace cut = PlaceEdit({0, 0, full - 30, 22}, content, At(1.0));
    EXPECT_EQ(cut.box.Width(), 54);
    EXPECT_EQ(cut.label.Width(), 56);
    EXPECT_EQ(PlaceEdit({0, 0, full + 40, 22}, content, At(1.0)).box.Width(), 80) << "it grows no wider either";
}

TEST(EditFace, ABoxIsNeverNarrowedBelowWhatItHas) {
    EditContent content{{}, {}, 30, 0};
    content.leastBoxWidth = 60;
    EXPECT_EQ(PlaceEdit({0, 0, 100, 22}, content, At(1.0)).box.Width(), 30);
}

TEST(EditFace, TheBoxKeepsItsHeightInATallerRectangle) {
    const EditFace face = PlaceEdit({0, 0, 80, 66}, {{}, {}, 80, 0}, At(1.0));
    EXPECT_EQ(face.box, (Rect{0, 22, 80, 44}));
}

TEST(CheckBoxFace, TheTextStandsRightOfTheBox) {
    const Size size = MeasureCheckBox({40, 15}, At(1.0));
    EXPECT_EQ(size, (Size{4 + 13 + 4 + 40 + 4, 22}));
    const CheckBoxFace face = PlaceCheckBox({0, 0, size.width, size.height}, {40, 15}, At(1.0));
    EXPECT_EQ(face.box, (Rect{4, 4, 17, 17}));
    EXPECT_EQ(face.text, (Rect{21, 3, 61, 18}));
}

TEST(CheckBoxFace, WithoutTextIsTheBoxAlone) {
    EXPECT_EQ(MeasureCheckBox({}, At(1.0)), (Size{21, 22}));
    EXPECT_TRUE(PlaceCheckBox({0, 0, 21, 22}, {}, At(1.0)).text.IsEmpty());
}

} // namespace
} // namespace ribbon

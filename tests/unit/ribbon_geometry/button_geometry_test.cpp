#include "ribbon/button_geometry.h"

#include <gtest/gtest.h>

#include <ostream>

namespace ribbon {

void PrintTo(const Rect& rect, std::ostream* out) {
    *out << "[" << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << "]";
}

void PrintTo(const Size& size, std::ostream* out) { *out << size.width << " x " << size.height; }

namespace {

// Text of 15 pixels at 96 DPI, as the usual font has, and what becomes of it at other scales.
FaceMetrics At(double scale) { return {scale, static_cast<int>(15 * scale + 0.5)}; }

bool IsInside(const Rect& inner, const Rect& outer) {
    return inner.left >= outer.left && inner.right <= outer.right && inner.top >= outer.top &&
           inner.bottom <= outer.bottom;
}

ButtonContent Large(double scale, int textWidth, ButtonMenu menu = ButtonMenu::None) {
    ButtonContent content;
    content.look = ButtonLook::Large;
    content.menu = menu;
    content.image = {static_cast<int>(32 * scale), static_cast<int>(32 * scale)};
    content.bottomTextWidth = textWidth;
    return content;
}

ButtonContent Small(double scale, int textWidth, ButtonMenu menu = ButtonMenu::None) {
    ButtonContent content;
    content.menu = menu;
    content.image = {static_cast<int>(16 * scale), static_cast<int>(16 * scale)};
    content.rightText = {textWidth, At(scale).textHeight};
    return content;
}

struct SizeCase {
    double scale;
    Size large;   // text 50 (scaled) wide
    Size row;     // text 50 (scaled) wide
    Size compact; // image only
};

void PrintTo(const SizeCase& value, std::ostream* out) { *out << value.scale; }

class ButtonSizes : public ::testing::TestWithParam<SizeCase> {};

TEST_P(ButtonSizes, FollowTheScale) {
    const SizeCase& row = GetParam();
    const FaceMetrics metrics = At(row.scale);
    const int text = static_cast<int>(50 * row.scale);
    EXPECT_EQ(MeasureButton(Large(row.scale, text), metrics), row.large);
    EXPECT_EQ(MeasureButton(Small(row.scale, text), metrics), row.row);
    ButtonContent compact = Small(row.scale, text);
    compact.look = ButtonLook::ImageOnly;
    EXPECT_EQ(MeasureButton(compact, metrics), row.compact);
}

INSTANTIATE_TEST_SUITE_P(Scales, ButtonSizes,
                         ::testing::Values(SizeCase{1.0, {58, 69}, {78, 22}, {24, 22}},
                                           SizeCase{1.5, {87, 106}, {117, 34}, {36, 34}},
                                           SizeCase{2.0, {116, 138}, {156, 44}, {48, 44}}));

TEST(ButtonSize, OfALargeButtonHasAMinimum) {
    EXPECT_EQ(MeasureButton(Large(1.0, 10), At(1.0)).width, 42);
    EXPECT_EQ(MeasureButton(Large(2.0, 20), At(2.0)).width, 84);
}

TEST(ButtonSize, GrowsByTheMenuArrow) {
    const FaceMetrics metrics = At(1.0);
    const int plain = MeasureButton(Small(1.0, 50), metrics).width;
    EXPECT_EQ(MeasureButton(Small(1.0, 50, ButtonMenu::Whole), metrics).width, plain + 6 + 5);
    EXPECT_EQ(MeasureButton(Small(1.0, 50, ButtonMenu::Split), metrics).width, plain + 8 + 5);
}

class ButtonScales : public ::testing::TestWithParam<double> {};
INSTANTIATE_TEST_SUITE_P(Scales, ButtonScales, ::testing::Values(1.0, 1.25, 1.5, 2.0, 3.0));

TEST_P(ButtonScales, PartsOfAMeasuredButtonLieInsideItAndApart) {
    const double scale = GetParam();
    const FaceMetrics metrics = At(scale);
    const int text = metrics.Scaled(50);
    for (const ButtonMenu menu : {ButtonMenu::None, ButtonMenu::Whole, ButtonMenu::Split}) {
        for (ButtonContent content : {Large(scale, text, menu), Small(scale, text, menu)}) {
            const Size size = MeasureButton(content, metrics);
            const Rect rect{7, 5, 7 + size.width, 5 + size.height};
            const ButtonFace face = PlaceButton(rect, content, metrics);
            EXPECT_TRUE(IsInside(face.image, rect));
            EXPECT_TRUE(IsInside(face.text, rect));
            EXPECT_GE(face.text.Width(), text);
            if (content.look == ButtonLook::Large) {
                EXPECT_LE(face.image.bottom, face.text.top);
            } else {
                EXPECT_LE(face.image.right, face.text.left);
            }
            EXPECT_EQ(face.arrow.IsEmpty(), menu == ButtonMenu::None);
            EXPECT_TRUE(menu == ButtonMenu::None || IsInside(face.arrow, rect));
        }
    }
}

TEST_P(ButtonScales, SplitAreasCoverTheButtonWithoutOverlap) {
    const double scale = GetParam();
    const FaceMetrics metrics = At(scale);
    for (const ButtonContent& content : {Large(scale, 50, ButtonMenu::Split), Small(scale, 50, ButtonMenu::Split)}) {
        const Size size = MeasureButton(content, metrics);
        const Rect rect{3, 4, 3 + size.width, 4 + size.height};
        const ButtonFace face = PlaceButton(rect, content, metrics);
        if (content.look == ButtonLook::Large) {
            EXPECT_EQ(face.command, (Rect{rect.left, rect.top, rect.right, face.menu.top}));
            EXPECT_EQ(face.menu, (Rect{rect.left, face.text.top, rect.right, rect.bottom}));
        } else {
            EXPECT_EQ(face.command, (Rect{rect.left, rect.top, face.menu.left, rect.bottom}));
            EXPECT_EQ(face.menu, (Rect{face.command.right, rect.top, rect.right, rect.bottom}));
        }
    }
}

TEST(ButtonFace, AButtonWithoutMenuIsAllCommandAndOneWithoutDefaultAllMenu) {
    const Rect rect{0, 0, 90, 22};
    const ButtonFace plain = PlaceButton(rect, Small(1.0, 50), At(1.0));
    EXPECT_EQ(plain.command, rect);
    EXPECT_TRUE(plain.menu.IsEmpty());
    const ButtonFace menu = PlaceButton(rect, Small(1.0, 50, ButtonMenu::Whole), At(1.0));
    EXPECT_EQ(menu.menu, rect);
    EXPECT_TRUE(menu.command.IsEmpty());
}

TEST(ButtonFace, OfALargeButtonKeepsImageAndTextCentredInAWiderRectangle) {
    const Rect rect{100, 0, 180, 69};
    const ButtonFace face = PlaceButton(rect, Large(1.0, 40), At(1.0));
    EXPECT_EQ(face.image, (Rect{124, 3, 156, 35}));
    EXPECT_EQ(face.text, (Rect{104, 36, 176, 66}));
}

TEST(ButtonFace, TheArrowStandsBelowAOneLineTextAndBehindATwoLineText) {
    const Rect rect{0, 0, 60, 69};
    ButtonContent content = Large(1.0, 40, ButtonMenu::Whole);
    content.isArrowAlone = true;
    EXPECT_EQ(PlaceButton(rect, content, At(1.0)).arrow, (Rect{27, 57, 32, 60}));

    content.isArrowAlone = false;
    content.secondLineWidth = 20;
    // Text and arrow, 20 + 6 + 5 pixels, are centred together.
    EXPECT_EQ(PlaceButton(rect, content, At(1.0)).arrow, (Rect{40, 58, 45, 61}));
}

TEST(ButtonFace, AnEmptyRectangleHasNoParts) {
    const ButtonFace face = PlaceButton({10, 10, 10, 30}, Small(1.0, 50, ButtonMenu::Split), At(1.0));
    for (const Rect& part : {face.image, face.text, face.arrow, face.command, face.menu}) {
        EXPECT_TRUE(part.IsEmpty());
    }
}

} // namespace
} // namespace ribbon

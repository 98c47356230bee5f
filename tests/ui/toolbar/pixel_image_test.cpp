// What is drawn on a small image, pixel by pixel.
#include "toolbar/image_editor.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using toolbar::DrawingTool;
using toolbar::ImageDrawing;
using toolbar::PixelGrid;
using toolbar::PixelImage;

constexpr PixelImage::Pixel kInk = 0xFF000000;
constexpr PixelImage::Pixel kRed = 0xFFC00000;
constexpr PixelImage::Pixel kGrey = 0xFFC0C0C0;

PixelImage Clear(int width, int height) { return {{width, height}, {}}; }

/// A row for each row of pixels: '#' for the ink, '.' for clear ones, '?' for all others.
std::vector<std::string> Rows(const PixelImage& image) {
    std::vector<std::string> rows;
    for (int y = 0; y < image.Size().height; ++y) {
        rows.emplace_back();
        for (int x = 0; x < image.Size().width; ++x) {
            const PixelImage::Pixel pixel = image.At({x, y});
            rows.back() += pixel == kInk ? '#' : pixel == 0 ? '.' : '?';
        }
    }
    return rows;
}

using Picture = std::vector<std::string>;

TEST(PixelImage, LinesJoinTheirEndsInEveryDirection) {
    PixelImage image = Clear(5, 3);
    image.DrawLine({0, 0}, {4, 2}, kInk);
    EXPECT_EQ(Rows(image), (Picture{"#....", ".##..", "...##"})) << "the nearest pixels";
    PixelImage back = Clear(5, 3);
    back.DrawLine({0, 2}, {0, 0}, kInk);
    back.DrawLine({4, 1}, {4, 1}, kInk);
    EXPECT_EQ(Rows(back), (Picture{"#....", "#...#", "#...."}));
}

TEST(PixelImage, RectanglesAreOutlinesWithBothCorners) {
    PixelImage image = Clear(5, 4);
    image.DrawRectangle({3, 3}, {0, 1}, kInk);
    EXPECT_EQ(Rows(image), (Picture{".....", "####.", "#..#.", "####."}));
}

TEST(PixelImage, EllipsesTouchTheSidesOfTheirBoxAndAreSymmetrical) {
    PixelImage image = Clear(6, 6);
    image.DrawEllipse({0, 0}, {5, 5}, kInk);
    EXPECT_EQ(Rows(image), (Picture{".####.", "#....#", "#....#", "#....#", "#....#", ".####."}));
    PixelImage dot = Clear(3, 3);
    dot.DrawEllipse({1, 1}, {1, 1}, kInk);
    EXPECT_EQ(Rows(dot), (Picture{"...", ".#.", "..."}));
}

TEST(PixelImage, AFillingStopsAtOtherColoursAndDoesNotLeakThroughCorners) {
    PixelImage image = Clear(4, 4);
    image.DrawLine({0, 2}, {2, 0}, kRed);
    image.Fill({0, 0}, kInk);
    EXPECT_EQ(Rows(image), (Picture{"##?.", "#?..", "?...", "...."}));
    const PixelImage before = image;
    image.Fill({0, 0}, kInk);
    EXPECT_EQ(image, before) << "its own colour already";
}

TEST(PixelImage, WhatLiesOutsideIsLeftOut) {
    PixelImage image = Clear(2, 2);
    image.DrawLine({-5, 0}, {9, 0}, kInk);
    image.DrawEllipse({-4, -4}, {20, 20}, kInk);
    image.Fill({7, 7}, kInk);
    image.Set({0, -1}, kInk);
    EXPECT_EQ(Rows(image), (Picture{"##", ".."}));
    PixelImage none;
    none.DrawLine({0, 0}, {1, 1}, kInk);
    EXPECT_TRUE(none.Size().IsEmpty());
}

TEST(PixelGrid, SquaresAreWholeAndInTheMiddle) {
    const PixelGrid grid({16, 15}, {170, 160});
    EXPECT_EQ(grid.Side(), 10);
    EXPECT_EQ(grid.SquareOf({0, 0}), (fx::Rect{5, 5, 15, 15}));
    EXPECT_EQ(grid.PixelAt({5, 5}), (fx::Point{0, 0}));
    EXPECT_EQ(grid.PixelAt({164, 154}), (fx::Point{15, 14}));
    EXPECT_EQ(grid.PixelAt({4, 5}), std::nullopt);
    EXPECT_EQ(grid.PixelAt({165, 5}), std::nullopt);
    EXPECT_EQ(grid.NearestTo({4, -6}), (fx::Point{-1, -2}));
    EXPECT_EQ(PixelGrid({100, 100}, {10, 10}).Side(), 1) << "too large for its room";
}

TEST(ImageDrawing, ThePenDrawsFromPlaceToPlaceAndOneStrokeIsOneStepBack) {
    ImageDrawing drawing(Clear(4, 2), true);
    drawing.Begin({0, 0});
    drawing.MoveTo({3, 0});
    drawing.MoveTo({3, 1});
    drawing.End();
    EXPECT_EQ(Rows(drawing.Image()), (Picture{"####", "...#"}));
    drawing.MoveTo({0, 1});
    EXPECT_EQ(Rows(drawing.Image()), (Picture{"####", "...#"})) << "the button is up";
    ASSERT_TRUE(drawing.CanUndo());
    drawing.Undo();
    EXPECT_EQ(drawing.Image(), Clear(4, 2));
    EXPECT_FALSE(drawing.CanUndo());
}

TEST(ImageDrawing, ShapesFollowThePointerUntilItIsLetGo) {
    ImageDrawing drawing(Clear(4, 3), true);
    drawing.SetTool(DrawingTool::Rectangle);
    drawing.Begin({0, 0});
    drawing.MoveTo({3, 2});
    drawing.MoveTo({1, 1});
    drawing.End();
    EXPECT_EQ(Rows(drawing.Image()), (Picture{"##..", "##..", "...."}));
    drawing.SetTool(DrawingTool::Line);
    drawing.Begin({0, 2});
    drawing.MoveTo({3, 0});
    drawing.MoveTo({3, 2});
    drawing.End();
    EXPECT_EQ(Rows(drawing.Image()), (Picture{"##..", "##..", "####"}));
}

TEST(ImageDrawing, ALostMouseTakesTheStrokeBack) {
    ImageDrawing drawing(Clear(3, 1), true);
    drawing.Begin({0, 0});
    drawing.MoveTo({2, 0});
    drawing.Cancel();
    EXPECT_EQ(drawing.Image(), Clear(3, 1));
    EXPECT_FALSE(drawing.CanUndo());
    EXPECT_FALSE(drawing.IsUnderWay());
}

TEST(ImageDrawing, TheEraserMakesClearOrPutsTheGreyThatStandsForIt) {
    for (const bool hasAlpha : {true, false}) {
        ImageDrawing drawing(PixelImage({1, 1}, {kRed}), hasAlpha);
        drawing.SetTool(DrawingTool::Eraser);
        drawing.Begin({0, 0});
        drawing.End();
        EXPECT_EQ(drawing.Image().At({0, 0}), hasAlpha ? 0 : kGrey);
    }
}

TEST(ImageDrawing, ThePickerTakesTheColourAndChangesNothing) {
    ImageDrawing drawing(PixelImage({2, 1}, {kRed, 0}), true);
    drawing.SetTool(DrawingTool::Picker);
    drawing.Begin({0, 0});
    EXPECT_EQ(drawing.Color(), RGB(0xC0, 0, 0));
    drawing.Begin({1, 0});
    EXPECT_EQ(drawing.Color(), RGB(0xC0, 0, 0)) << "a clear pixel has no colour";
    EXPECT_FALSE(drawing.CanUndo());
}

TEST(ImageDrawing, APressBesideTheImageBeginsNothing) {
    ImageDrawing drawing(Clear(2, 2), true);
    drawing.Begin({-1, 0});
    drawing.MoveTo({1, 1});
    EXPECT_EQ(drawing.Image(), Clear(2, 2));
    EXPECT_FALSE(drawing.CanUndo());
}

} // namespace

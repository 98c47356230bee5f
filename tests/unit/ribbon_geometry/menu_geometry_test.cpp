#include "ribbon/menu_geometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "ribbon/main_panel_geometry.h"

namespace {

using namespace ribbon;

const FaceMetrics kMetrics[] = {{1.0, 13}, {1.5, 20}, {2.0, 27}};

bool IsInside(const Rect& inner, const Rect& outer) {
    return inner.IsEmpty() || (inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
                               inner.bottom <= outer.bottom);
}

MenuRowContent Content(ButtonMenu menu, const FaceMetrics& metrics) {
    MenuRowContent content;
    content.menu = menu;
    content.image = {metrics.Scaled(16), metrics.Scaled(16)};
    content.text = {80, metrics.textHeight};
    content.keys = {30, metrics.textHeight};
    content.imageColumn = MenuImageColumn(metrics.Scaled(16), metrics);
    return content;
}

TEST(MenuRow, PartsLieInItAndDoNotOverlap) {
    for (const FaceMetrics& metrics : kMetrics) {
        for (const ButtonMenu menu : {ButtonMenu::None, ButtonMenu::Whole, ButtonMenu::Split}) {
            const MenuRowContent content = Content(menu, metrics);
            const Size size = MeasureMenuRow(content, metrics);
            const Rect row{10, 20, 10 + size.width, 20 + size.height};
            const MenuRowFace face = PlaceMenuRow(row, content, metrics);
            for (const Rect& part :
                 {face.image, face.frame, face.text, face.keys, face.arrow, face.command, face.menu}) {
                EXPECT_TRUE(IsInside(part, row));
            }
            EXPECT_GE(face.text.Width(), content.text.width) << "a measured row has room for its text";
            EXPECT_LE(face.image.right, face.text.left);
            EXPECT_LE(face.text.right, face.keys.left);
            EXPECT_EQ(face.command.IsEmpty(), menu == ButtonMenu::Whole);
            EXPECT_EQ(face.menu.IsEmpty(), menu == ButtonMenu::None);
            if (menu == ButtonMenu::Split) {
                EXPECT_EQ(face.command.right, face.menu.left);
                EXPECT_EQ(face.menu.right, row.right);
            }
        }
    }
}

TEST(MenuList, RowsThatFitStandOneBelowTheOther) {
    const Size rows[] = {{50, 20}, {0, 0}, {90, 7}, {60, 20}};
    const MenuList list = PlaceMenuList(rows, 70, 1000, 3, kMetrics[0]);
    EXPECT_EQ(list.rows[0], (Rect{0, 0, 90, 20}));
    EXPECT_TRUE(list.rows[1].IsEmpty());
    EXPECT_EQ(list.rows[2], (Rect{0, 20, 90, 27}));
    EXPECT_EQ(list.rows[3], (Rect{0, 27, 90, 47}));
    EXPECT_EQ(list.size, (Size{90, 47}));
    EXPECT_TRUE(list.scrollDown.IsEmpty());
}

TEST(MenuList, ALongListShowsEveryRowFromSomePosition) {
    std::mt19937 random(5);
    for (const FaceMetrics& metrics : kMetrics) {
        std::vector<Size> rows;
        for (int i = 0; i < 60; ++i) {
            rows.push_back({100, 5 + static_cast<int>(random() % 40)});
        }
        std::vector<bool> seen(rows.size(), false);
        for (int first = 0; first < 60; ++first) {
            const MenuList list = PlaceMenuList(rows, 0, 300, first, metrics);
            EXPECT_LE(list.size.height, 300);
            EXPECT_EQ(list.canScrollUp, list.firstRow > 0);
            for (std::size_t row = 0; row < rows.size(); ++row) {
                if (list.rows[row].IsEmpty()) {
                    continue;
                }
                seen[row] = true;
                EXPECT_GE(list.rows[row].top, list.scrollUp.bottom);
                EXPECT_LE(list.rows[row].bottom, list.scrollDown.top);
            }
            EXPECT_EQ(list.canScrollDown, list.rows.back().IsEmpty());
        }
        for (const bool wasSeen : seen) {
            EXPECT_TRUE(wasSeen);
        }
    }
}

TEST(MenuList, AnyRowIsBroughtIntoView) {
    const std::vector<Size> rows(40, Size{100, 20});
    for (int from = 0; from < 40; ++from) {
        for (int row = 0; row < 40; ++row) {
            const int first = FirstRowThatShows(rows, row, 200, from, kMetrics[0]);
            const MenuList list = PlaceMenuList(rows, 0, 200, first, kMetrics[0]);
            EXPECT_FALSE(list.rows[static_cast<std::size_t>(row)].IsEmpty()) << from << " " << row;
        }
    }
}

TEST(Lines, GoOnInTheNextOneWhereTheWidthEnds) {
    const Size elements[] = {{40, 20}, {40, 10}, {40, 20}};
    const std::vector<Rect> places = PlaceLines(elements, 90, 5);
    EXPECT_EQ(places[0], (Rect{0, 0, 40, 20}));
    EXPECT_EQ(places[1], (Rect{45, 5, 85, 15})) << "in the middle of its line";
    EXPECT_EQ(places[2], (Rect{0, 20, 40, 40}));
}

TEST(MainPanelPlaces, PartsLieInTheFrameAndButtonsBelowIt) {
    for (const FaceMetrics& metrics : kMetrics) {
        MainPanelContent content;
        content.left = {{120, 40}, {150, 40}};
        content.right = {{100, 20}};
        content.bottom = {{70, 22}, {50, 22}};
        content.rightWidth = 200;
        const MainPanelPlaces places = PlaceMainPanel(content, metrics);
        for (const Rect& rect : {places.left[0], places.left[1], places.right[0], places.rightFrame}) {
            EXPECT_TRUE(IsInside(rect, places.frame));
        }
        EXPECT_LE(places.left[1].right, places.rightFrame.left);
        EXPECT_GE(places.rightFrame.Width(), 200);
        EXPECT_GE(places.bottom[0].top, places.frame.bottom);
        EXPECT_EQ(places.bottom[1].right, places.frame.right);
        EXPECT_LT(places.bottom[0].right, places.bottom[1].left);
        EXPECT_TRUE(IsInside(places.bottom[1], {0, 0, places.size.width, places.size.height}));
    }
}

TEST(MainPanelPlaces, ColumnsThatAreTooHighScrollSoThatEachRowHasItsTurn) {
    for (const FaceMetrics& metrics : kMetrics) {
        for (int maxHeight = metrics.Scaled(140); maxHeight < metrics.Scaled(420); maxHeight += 7) {
            MainPanelContent content;
            content.left.assign(8, {150, metrics.Scaled(40)});
            content.right.assign(12, {100, metrics.Scaled(20)});
            content.bottom = {{70, 22}};
            content.maxHeight = maxHeight;
            std::vector<bool> left(8), right(12);
            bool goesOn = true;
            while (goesOn) {
                const MainPanelPlaces places = PlaceMainPanel(content, metrics);
                EXPECT_LE(places.size.height, maxHeight);
                const Rect inside{places.frame.left, places.scrollUp.bottom, places.frame.right,
                                  places.scrollDown.IsEmpty() ? places.frame.bottom : places.scrollDown.top};
                for (size_t row = 0; row < 8; ++row) {
                    EXPECT_TRUE(IsInside(places.left[row], inside)) << maxHeight;
                    left[row] = left[row] || !places.left[row].IsEmpty();
                }
                for (size_t row = 0; row < 12; ++row) {
                    EXPECT_TRUE(IsInside(places.right[row], inside)) << maxHeight;
                    right[row] = right[row] || !places.right[row].IsEmpty();
                }
                goesOn = places.canScrollDown;
                content.firstRow = places.firstRow + 1;
            }
            EXPECT_EQ(std::count(left.begin(), left.end(), true), 8) << maxHeight;
            EXPECT_EQ(std::count(right.begin(), right.end(), true), 12) << maxHeight;
        }
    }
}

} // namespace

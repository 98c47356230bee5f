#include <gtest/gtest.h>

#include "toolbar/menu_row.h"

#include "afxpopupmenu.h"

#include "popups/popup_place.h"

using toolbar::PlacePopup;
using toolbar::PopupRequest;

namespace {

const CRect work(0, 0, 800, 600);
constexpr auto below = CMFCPopupMenu::DROP_DIRECTION_BOTTOM;
constexpr auto above = CMFCPopupMenu::DROP_DIRECTION_TOP;
constexpr auto toTheRight = CMFCPopupMenu::DROP_DIRECTION_RIGHT;
constexpr auto toTheLeft = CMFCPopupMenu::DROP_DIRECTION_LEFT;

struct Case {
    const char* name;
    CPoint wanted;
    CSize size;
    CRect avoid;
    bool isRightAligned;
    CRect expected;
    CMFCPopupMenu::DROP_DIRECTION direction;
};

const CRect none(0, 0, 0, 0);

const Case cases[] = {
    {"room on all sides", {100, 100}, {80, 60}, none, false, {100, 100, 180, 160}, below},
    {"point near the bottom", {100, 580}, {80, 60}, none, false, {100, 520, 180, 580}, above},
    {"point near the right", {780, 100}, {80, 60}, none, false, {700, 100, 780, 160}, below},
    {"below a button", {100, 50}, {80, 60}, {100, 20, 140, 50}, false, {100, 50, 180, 110}, below},
    {"above a button at the bottom", {100, 590}, {80, 60}, {100, 570, 140, 590}, false, {100, 510, 180, 570}, above},
    {"below a button at the right", {770, 50}, {80, 60}, {770, 20, 795, 50}, false, {720, 50, 800, 110}, below},
    {"right edges together", {140, 50}, {80, 60}, {100, 20, 140, 50}, true, {60, 50, 140, 110}, below},
    {"too high for both sides", {100, 300}, {80, 900}, {100, 200, 140, 300}, false, {100, 300, 180, 600}, below},
    {"more room above", {100, 500}, {80, 900}, {100, 400, 140, 500}, false, {100, 0, 180, 400}, above},
    {"beside an item", {198, 98}, {80, 60}, {100, 100, 200, 120}, false, {198, 98, 278, 158}, toTheRight},
    {"beside an item at the right", {758, 98}, {80, 60}, {660, 100, 760, 120}, false, {582, 98, 662, 158}, toTheLeft},
    {"beside an item at the bottom",
     {198, 578},
     {80, 60},
     {100, 580, 200, 600},
     false,
     {198, 540, 278, 600},
     toTheRight},
    {"outside on the left", {-50, 100}, {80, 60}, none, false, {0, 100, 80, 160}, below},
};

} // namespace

class PopupPlaceTest : public ::testing::TestWithParam<Case> {};

TEST_P(PopupPlaceTest, APopupOpensWhereThereIsRoom) {
    const Case& test = GetParam();
    PopupRequest request;
    request.wanted = test.wanted;
    request.size = test.size;
    request.avoid = test.avoid;
    request.workArea = work;
    request.isRightAligned = test.isRightAligned;
    const toolbar::PopupPlacement placement = PlacePopup(request);
    EXPECT_EQ(placement.rect, test.expected) << test.name << ": " << placement.rect.left << ' ' << placement.rect.top
                                             << ' ' << placement.rect.right << ' ' << placement.rect.bottom;
    EXPECT_EQ(placement.direction, test.direction) << test.name;
}

namespace {

CRect Reflected(const CRect& rect) {
    return rect.IsRectEmpty() ? rect : CRect(work.right - rect.right, rect.top, work.right - rect.left, rect.bottom);
}

CMFCPopupMenu::DROP_DIRECTION Reflected(CMFCPopupMenu::DROP_DIRECTION direction) {
    return direction == toTheRight ? toTheLeft : direction == toTheLeft ? toTheRight : direction;
}

} // namespace

TEST_P(PopupPlaceTest, OfAMirroredWindowItOpensTheOtherWayRound) {
    const Case& test = GetParam();
    PopupRequest request;
    request.isMirrored = true;
    request.wanted = CPoint(work.right - test.wanted.x, test.wanted.y);
    request.size = test.size;
    request.avoid = Reflected(test.avoid);
    request.workArea = work;
    request.isRightAligned = test.isRightAligned;
    const toolbar::PopupPlacement placement = PlacePopup(request);
    EXPECT_EQ(placement.rect, Reflected(test.expected)) << test.name;
    EXPECT_EQ(placement.direction, Reflected(test.direction)) << test.name;
}

INSTANTIATE_TEST_SUITE_P(All, PopupPlaceTest, ::testing::ValuesIn(cases));

TEST(PopupRoomTest, WhatCannotScrollKeepsItsSizeAndCoversWhatOpenedIt) {
    PopupRequest request;
    request.wanted = CPoint(100, 300);
    request.avoid = CRect(100, 200, 140, 300);
    request.size = CSize(80, 500);
    request.workArea = work;
    EXPECT_EQ(PlacePopup(request).rect, CRect(100, 300, 180, 600)) << "cut to the room below";
    request.noRoom = toolbar::NoRoom::Cover;
    EXPECT_EQ(PlacePopup(request).rect, CRect(100, 100, 180, 600));
    request.size = CSize(80, 200);
    EXPECT_EQ(PlacePopup(request).rect, CRect(100, 300, 180, 500)) << "where there is room both are the same";
}

TEST(PopupRoomTest, APopupOfAnyOpenerLiesInTheWorkArea) {
    for (const toolbar::NoRoom noRoom : {toolbar::NoRoom::Cut, toolbar::NoRoom::Cover}) {
        for (int x = -50; x < 850; x += 30) {
            for (int y = -50; y < 650; y += 30) {
                PopupRequest request;
                request.workArea = work;
                request.avoid = CRect(x, y, x + 40, y + 20);
                request.size = CSize(300, 400);
                request.noRoom = noRoom;
                for (const CPoint corner : {CPoint(x, y + 20), CPoint(x + 40, y)}) {
                    request.wanted = corner;
                    const CRect rect = PlacePopup(request).rect;
                    CRect inside;
                    inside.IntersectRect(rect, work);
                    EXPECT_EQ(inside, rect) << x << ' ' << y;
                }
            }
        }
    }
}

TEST(MenuRowTest, TheColumnsOfARowLieBesideEachOther) {
    toolbar::MenuRowMetrics metrics;
    metrics.gutter = 24;
    metrics.image = CSize(16, 16);
    metrics.textMargin = 8;
    metrics.arrow = 18;
    const int width = toolbar::MenuRowWidth(100, metrics);
    const toolbar::MenuRow row = toolbar::LayOutMenuRow(CRect(0, 10, width, 32), metrics);
    EXPECT_EQ(row.image, CRect(4, 13, 20, 29));
    EXPECT_EQ(row.text, CRect(32, 10, 132, 32));
    EXPECT_EQ(row.arrow, CRect(132, 10, 150, 32));
}

TEST(MenuRowTest, AListsRowIsAllText) {
    toolbar::MenuRowMetrics metrics;
    metrics.textMargin = 4;
    const toolbar::MenuRow row = toolbar::LayOutMenuRow(CRect(0, 0, toolbar::MenuRowWidth(50, metrics), 16), metrics);
    EXPECT_TRUE(row.image.IsRectEmpty());
    EXPECT_EQ(row.text, CRect(4, 0, 54, 16));
}

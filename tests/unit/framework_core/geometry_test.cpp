#include "atltypes.h"

#include <gtest/gtest.h>

namespace {

TEST(Geometry, RectanglesReportSizeAndCorners) {
    CRect rect(10, 20, 40, 60);
    EXPECT_EQ(rect.Width(), 30);
    EXPECT_EQ(rect.Height(), 40);
    EXPECT_TRUE(rect.Size() == CSize(30, 40));
    EXPECT_TRUE(rect.CenterPoint() == CPoint(25, 40));
    rect.TopLeft().Offset(1, 1);
    rect.BottomRight() += CSize(5, 5);
    EXPECT_TRUE(rect == CRect(11, 21, 45, 65));
    EXPECT_TRUE(CRect(CPoint(1, 2), CSize(3, 4)) == CRect(1, 2, 4, 6));
    EXPECT_TRUE(CRect(CPoint(1, 2), CPoint(3, 4)) == CRect(1, 2, 3, 4));
}

TEST(Geometry, RightAndBottomEdgesAreOutside) {
    const CRect rect(0, 0, 10, 10);
    EXPECT_TRUE(rect.PtInRect(CPoint(0, 0)));
    EXPECT_TRUE(rect.PtInRect(CPoint(9, 9)));
    EXPECT_FALSE(rect.PtInRect(CPoint(10, 9)));
    EXPECT_FALSE(rect.PtInRect(CPoint(9, 10)));
}

TEST(Geometry, EmptyAndNullDiffer) {
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 5, 9).IsRectNull());
    EXPECT_TRUE(CRect(9, 9, 5, 5).IsRectEmpty());
}

TEST(Geometry, InflateTakesEachEdgesOwnAmount) {
    CRect rect(10, 10, 20, 20);
    rect.InflateRect(1, 2, 3, 4);
    EXPECT_TRUE(rect == CRect(9, 8, 23, 24));
    rect.DeflateRect(1, 2, 3, 4);
    EXPECT_TRUE(rect == CRect(10, 10, 20, 20));
    rect.DeflateRect(CSize(2, 3));
    EXPECT_TRUE(rect == CRect(12, 13, 18, 17));
    const RECT margins = {1, 1, 1, 1};
    EXPECT_TRUE(rect + &margins == CRect(11, 12, 19, 18));
    EXPECT_TRUE(rect - &margins == CRect(13, 14, 17, 16));
}

TEST(Geometry, MovingKeepsTheSize) {
    CRect rect(10, 10, 30, 20);
    rect.MoveToXY(0, 5);
    EXPECT_TRUE(rect == CRect(0, 5, 20, 15));
    rect.MoveToX(3);
    rect.MoveToY(4);
    EXPECT_TRUE(rect == CRect(3, 4, 23, 14));
    rect += CPoint(1, 1);
    rect -= CSize(2, 2);
    EXPECT_TRUE(rect == CRect(2, 3, 22, 13));
}

TEST(Geometry, NormalizeSwapsEdges) {
    CRect rect(30, 5, 10, 50);
    rect.NormalizeRect();
    EXPECT_TRUE(rect == CRect(10, 5, 30, 50));
}

TEST(Geometry, IntersectionUnionDifference) {
    CRect rect;
    EXPECT_TRUE(rect.IntersectRect(CRect(0, 0, 10, 10), CRect(5, 5, 20, 20)));
    EXPECT_TRUE(rect == CRect(5, 5, 10, 10));
    EXPECT_FALSE(rect.IntersectRect(CRect(0, 0, 10, 10), CRect(10, 0, 20, 10)));
    EXPECT_TRUE(rect.IsRectNull());
    EXPECT_TRUE((CRect(0, 0, 1, 1) | CRect(5, 5, 6, 6)) == CRect(0, 0, 6, 6));
    EXPECT_TRUE((CRect(1, 1, 2, 2) | CRect()) == CRect(1, 1, 2, 2));
    EXPECT_TRUE(rect.SubtractRect(CRect(0, 0, 10, 10), CRect(0, 0, 4, 10)));
    EXPECT_TRUE(rect == CRect(4, 0, 10, 10));
}

TEST(Geometry, MessageParametersGiveSignedCoordinates) {
    EXPECT_TRUE(CPoint(LPARAM(MAKELPARAM(-3, 7))) == CPoint(-3, 7));
    EXPECT_TRUE(CSize(DWORD(MAKELONG(5, -6))) == CSize(5, -6));
}

TEST(Geometry, DifferenceOfPointsIsASize) {
    const CSize size = CPoint(5, 9) - CPoint(2, 3);
    EXPECT_TRUE(size == CSize(3, 6));
    EXPECT_TRUE(CPoint(1, 1) + size == CPoint(4, 7));
    EXPECT_TRUE(CPoint(4, 7) - size == CPoint(1, 1));
    EXPECT_TRUE(-size == CSize(-3, -6));
}

} // namespace

#include "Layout/Margin.h"
#include "Layout/SlateRect.h"

#include <gtest/gtest.h>

#include <limits>

TEST(SlateRectTest, TheDefaultRectangleIsTheInvalidMarker)
{
	const FSlateRect Unset;
	EXPECT_EQ(Unset, FSlateRect(-1.0f, -1.0f, -1.0f, -1.0f));
	EXPECT_FALSE(Unset.IsValid());
	// The same edges anywhere else make a valid, empty rectangle.
	EXPECT_TRUE(FSlateRect(-2.0f, -2.0f, -2.0f, -2.0f).IsValid());
	EXPECT_TRUE(FSlateRect(0.0f, 0.0f, 0.0f, 0.0f).IsValid());
}

TEST(SlateRectTest, ARectangleWithEdgesTheWrongWayRoundIsInvalid)
{
	EXPECT_TRUE(FSlateRect(10.0f, 20.0f, 30.0f, 40.0f).IsValid());
	EXPECT_FALSE(FSlateRect(30.0f, 20.0f, 10.0f, 40.0f).IsValid());
	EXPECT_FALSE(FSlateRect(10.0f, 40.0f, 30.0f, 20.0f).IsValid());
}

TEST(SlateRectTest, CornersSizeAndPointAndExtentAgree)
{
	const FSlateRect Rect = FSlateRect::FromPointAndExtent(FVector2D(10.0, 20.0), FVector2D(30.0, 5.0));
	EXPECT_EQ(Rect, FSlateRect(10.0f, 20.0f, 40.0f, 25.0f));
	EXPECT_EQ(Rect, FSlateRect(FVector2D(10.0, 20.0), FVector2D(40.0, 25.0)));
	EXPECT_EQ(Rect.GetTopLeft(), FVector2D(10.0, 20.0));
	EXPECT_EQ(Rect.GetBottomRight(), FVector2D(40.0, 25.0));
	EXPECT_EQ(Rect.GetSize(), FVector2D(30.0, 5.0));
	EXPECT_NE(Rect, FSlateRect(10.0f, 20.0f, 40.0f, 25.5f));
}

TEST(SlateRectTest, ContainsPointIncludesEveryEdgeAndNothingOutside)
{
	const FSlateRect Rect(10.0f, 20.0f, 40.0f, 25.0f);
	EXPECT_TRUE(Rect.ContainsPoint(FVector2D(10.0, 20.0)));
	EXPECT_TRUE(Rect.ContainsPoint(FVector2D(40.0, 25.0)));
	EXPECT_TRUE(Rect.ContainsPoint(FVector2D(25.0, 22.5)));
	EXPECT_FALSE(Rect.ContainsPoint(FVector2D(9.99, 22.0)));
	EXPECT_FALSE(Rect.ContainsPoint(FVector2D(40.01, 22.0)));
	EXPECT_FALSE(Rect.ContainsPoint(FVector2D(25.0, 19.99)));
	EXPECT_FALSE(Rect.ContainsPoint(FVector2D(25.0, 25.01)));
}

TEST(MarginTest, OnlyFiniteSidesMakeAValidMargin)
{
	EXPECT_TRUE(FMargin(1.0f, -2.0f, 3.0f, 4.0f).IsValid());
	EXPECT_FALSE(FMargin(1.0f, std::numeric_limits<float>::quiet_NaN(), 3.0f, 4.0f).IsValid());
	EXPECT_FALSE(FMargin(1.0f, 2.0f, std::numeric_limits<float>::infinity(), 4.0f).IsValid());
}

#include "Layout/Margin.h"

#include <gtest/gtest.h>

TEST(MarginTest, ConstructorsSpreadValuesToTheRightSides)
{
	EXPECT_EQ(FMargin(), FMargin(0.0f, 0.0f, 0.0f, 0.0f));
	EXPECT_EQ(FMargin(2.0f), FMargin(2.0f, 2.0f, 2.0f, 2.0f));
	EXPECT_EQ(FMargin(3.0f, 5.0f), FMargin(3.0f, 5.0f, 3.0f, 5.0f));
	EXPECT_EQ(FMargin(FVector2D(3.0, 5.0)), FMargin(3.0f, 5.0f, 3.0f, 5.0f));

	const FMargin Margin(1.0f, 2.0f, 3.0f, 4.0f);
	EXPECT_EQ(Margin.Left, 1.0f);
	EXPECT_EQ(Margin.Top, 2.0f);
	EXPECT_EQ(Margin.Right, 3.0f);
	EXPECT_EQ(Margin.Bottom, 4.0f);
}

TEST(MarginTest, TotalsPairOppositeSides)
{
	const FMargin Margin(1.0f, 2.0f, 3.0f, 4.0f);
	EXPECT_EQ(Margin.GetDesiredSize(), FVector2D(4.0, 6.0));
	EXPECT_EQ(Margin.GetTotalSpaceAlong<Orient_Horizontal>(), 4.0f);
	EXPECT_EQ(Margin.GetTotalSpaceAlong<Orient_Vertical>(), 6.0f);
	EXPECT_EQ(Margin.GetTopLeft(), FVector2D(1.0, 2.0));
}

TEST(MarginTest, ArithmeticActsPerSide)
{
	const FMargin Margin(1.0f, 2.0f, 3.0f, 4.0f);
	EXPECT_EQ(Margin + FMargin(1.0f), FMargin(2.0f, 3.0f, 4.0f, 5.0f));
	EXPECT_EQ(Margin - FMargin(1.0f), FMargin(0.0f, 1.0f, 2.0f, 3.0f));
	EXPECT_EQ(Margin * 2.0f, FMargin(2.0f, 4.0f, 6.0f, 8.0f));
	EXPECT_EQ(Margin * FMargin(0.0f, 1.0f, 2.0f, 3.0f), FMargin(0.0f, 2.0f, 6.0f, 12.0f));
	EXPECT_NE(Margin, FMargin(1.0f, 2.0f, 3.0f, 4.5f));
}

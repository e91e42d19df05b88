#include "Layout/LayoutUtils.h"

#include <gtest/gtest.h>

namespace
{
	struct FTestSlot
	{
		EHorizontalAlignment HAlign = HAlign_Fill;
		EVerticalAlignment VAlign = VAlign_Fill;

		EHorizontalAlignment GetHorizontalAlignment() const
		{
			return HAlign;
		}

		EVerticalAlignment GetVerticalAlignment() const
		{
			return VAlign;
		}
	};

	FTestSlot Aligned(EHorizontalAlignment HAlign, EVerticalAlignment VAlign)
	{
		return FTestSlot{HAlign, VAlign};
	}

	// Offset and size as a pair, so a failure shows both.
	std::pair<float, float> Horizontal(float Allotted, float Desired, EHorizontalAlignment HAlign, const FMargin& Padding = FMargin())
	{
		const AlignmentArrangeResult Result = AlignChild<Orient_Horizontal>(Allotted, Desired, Aligned(HAlign, VAlign_Fill), Padding);
		return {Result.Offset, Result.Size};
	}

	std::pair<float, float> Vertical(float Allotted, float Desired, EVerticalAlignment VAlign, const FMargin& Padding = FMargin())
	{
		const AlignmentArrangeResult Result = AlignChild<Orient_Vertical>(Allotted, Desired, Aligned(HAlign_Fill, VAlign), Padding);
		return {Result.Offset, Result.Size};
	}

	using FPair = std::pair<float, float>;
}

TEST(AlignChildTest, EachHorizontalAlignmentPlacesTheDesiredWidthWithoutPadding)
{
	EXPECT_EQ(Horizontal(100.0f, 20.0f, HAlign_Fill), FPair(0.0f, 100.0f));
	EXPECT_EQ(Horizontal(100.0f, 20.0f, HAlign_Left), FPair(0.0f, 20.0f));
	EXPECT_EQ(Horizontal(100.0f, 20.0f, HAlign_Center), FPair(40.0f, 20.0f));
	EXPECT_EQ(Horizontal(100.0f, 20.0f, HAlign_Right), FPair(80.0f, 20.0f));
}

TEST(AlignChildTest, EachVerticalAlignmentReadsTopAndBottomPadding)
{
	const FMargin Padding(1000.0f, 5.0f, 1000.0f, 15.0f);
	EXPECT_EQ(Vertical(100.0f, 20.0f, VAlign_Fill, Padding), FPair(5.0f, 80.0f));
	EXPECT_EQ(Vertical(100.0f, 20.0f, VAlign_Top, Padding), FPair(5.0f, 20.0f));
	// Centring shifts by the difference of the two sides: 40 + 5 - 15.
	EXPECT_EQ(Vertical(100.0f, 20.0f, VAlign_Center, Padding), FPair(30.0f, 20.0f));
	EXPECT_EQ(Vertical(100.0f, 20.0f, VAlign_Bottom, Padding), FPair(65.0f, 20.0f));
}

TEST(AlignChildTest, HorizontalPaddingUsesLeftAndRightOnly)
{
	const FMargin Padding(10.0f, 1000.0f, 30.0f, 1000.0f);
	EXPECT_EQ(Horizontal(100.0f, 20.0f, HAlign_Fill, Padding), FPair(10.0f, 60.0f));
	EXPECT_EQ(Horizontal(100.0f, 20.0f, HAlign_Left, Padding), FPair(10.0f, 20.0f));
	EXPECT_EQ(Horizontal(100.0f, 20.0f, HAlign_Center, Padding), FPair(20.0f, 20.0f));
	EXPECT_EQ(Horizontal(100.0f, 20.0f, HAlign_Right, Padding), FPair(50.0f, 20.0f));
}

TEST(AlignChildTest, AChildLargerThanTheSlotIsClampedToTheSpaceInsideThePadding)
{
	const FMargin Padding(10.0f, 0.0f, 10.0f, 0.0f);
	EXPECT_EQ(Horizontal(100.0f, 500.0f, HAlign_Left, Padding), FPair(10.0f, 80.0f));
	EXPECT_EQ(Horizontal(100.0f, 500.0f, HAlign_Center, Padding), FPair(10.0f, 80.0f));
	EXPECT_EQ(Horizontal(100.0f, 500.0f, HAlign_Right, Padding), FPair(10.0f, 80.0f));
	EXPECT_EQ(Horizontal(100.0f, 500.0f, HAlign_Fill, Padding), FPair(10.0f, 80.0f));
}

TEST(AlignChildTest, UnclampedChildrenKeepTheirDesiredSizeAndOverhang)
{
	const AlignmentArrangeResult Right =
		AlignChild<Orient_Horizontal>(100.0f, 150.0f, Aligned(HAlign_Right, VAlign_Fill), FMargin(), 1.0f, false);
	EXPECT_EQ(Right.Offset, -50.0f);
	EXPECT_EQ(Right.Size, 150.0f);
	const AlignmentArrangeResult Centre =
		AlignChild<Orient_Horizontal>(100.0f, 150.0f, Aligned(HAlign_Center, VAlign_Fill), FMargin(), 1.0f, false);
	EXPECT_EQ(Centre.Offset, -25.0f);
	EXPECT_EQ(Centre.Size, 150.0f);
}

TEST(AlignChildTest, PaddingLargerThanTheSlotLeavesNoNegativeSize)
{
	const FMargin Padding(40.0f, 40.0f, 40.0f, 40.0f);
	EXPECT_EQ(Horizontal(50.0f, 20.0f, HAlign_Fill, Padding), FPair(40.0f, 0.0f));
	EXPECT_EQ(Horizontal(50.0f, 20.0f, HAlign_Left, Padding), FPair(40.0f, 0.0f));
	EXPECT_EQ(Vertical(50.0f, 20.0f, VAlign_Bottom, Padding), FPair(10.0f, 0.0f));
}

TEST(AlignChildTest, ContentScaleScalesTheFilledSize)
{
	const AlignmentArrangeResult Filled =
		AlignChild<Orient_Horizontal>(100.0f, 20.0f, Aligned(HAlign_Fill, VAlign_Fill), FMargin(10.0f, 0.0f, 10.0f, 0.0f), 0.5f);
	EXPECT_EQ(Filled.Offset, 10.0f);
	EXPECT_EQ(Filled.Size, 40.0f);
}

#include "Layout/Geometry.h"
#include "Layout/SlateRect.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>

inline void PrintTo(const FSlateRect& Rect, std::ostream* Out)
{
	*Out << "(" << Rect.Left << ", " << Rect.Top << ", " << Rect.Right << ", " << Rect.Bottom << ")";
}

TEST(GeometryTest, AChildsAbsoluteTransformComposesItsOffsetWithEveryAncestorsScaleAndPosition)
{
	const FGeometry Window = FGeometry::MakeRoot(FVector2D(400.0, 300.0), FSlateLayoutTransform(2.0f, FVector2D(100.0, 50.0)));
	const FGeometry Child = Window.MakeChild(FVector2D(10.0, 20.0), FVector2D(30.0, 40.0));
	EXPECT_EQ(Child.GetAbsolutePosition(), FVector2D(120.0, 90.0));
	EXPECT_EQ(Child.GetAbsoluteSize(), FVector2D(60.0, 80.0));
	EXPECT_EQ(FVector2f(Child.AbsoluteToLocal(FVector2f(130.0f, 100.0f))), FVector2f(5.0f, 5.0f));
}

TEST(GeometryTest, ARenderTransformActsAboutItsPivotAndInvertsExactlyForHitTests)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2D(800.0, 600.0), FSlateLayoutTransform());
	const FGeometry Scaled = Root.MakeChild(FSlateRenderTransform(0.5f), FVector2D(0.5, 0.5));
	EXPECT_EQ(FVector2f(Scaled.LocalToAbsolute(FVector2f(0.0f, 0.0f))), FVector2f(200.0f, 150.0f));
	EXPECT_EQ(FVector2f(Scaled.AbsoluteToLocal(FVector2f(216.0f, 166.0f))), FVector2f(32.0f, 32.0f));
	// Layout ignores render transforms: the layout position is still the root's.
	EXPECT_EQ(Scaled.GetAbsolutePosition(), FVector2D(0.0, 0.0));
}

TEST(GeometryTest, AZeroScaleGivesNonFiniteLocalPointsInsteadOfStopping)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2D(10.0, 10.0), FSlateLayoutTransform());
	const FGeometry Flat = Root.MakeChild(FSlateRenderTransform(0.0f), FVector2D(0.0, 0.0));
	const FVector2f Local = Flat.AbsoluteToLocal(FVector2f(1.0f, 1.0f));
	EXPECT_FALSE(std::isfinite(Local.X));
}

namespace
{
	// A quarter turn for row vectors: (1, 0) goes to (0, 1).
	const FSlateRenderTransform QuarterTurn(FMatrix2x2(0.0f, 1.0f, -1.0f, 0.0f));
}

TEST(GeometryTest, AScaledChildsOffsetIsInItsOwnUnitsAndItsPositionInItsParents)
{
	const FGeometry Window = FGeometry::MakeRoot(FVector2D(400.0, 300.0), FSlateLayoutTransform(2.0f, FVector2D(100.0, 50.0)));
	const FGeometry Half = Window.MakeChild(FVector2D(10.0, 20.0), FVector2D(30.0, 40.0), 0.5f);

	EXPECT_EQ(Half.Position, FVector2f(5.0f, 10.0f));
	EXPECT_EQ(Half.Scale, 1.0f);
	EXPECT_EQ(Half.GetLocalSize(), FVector2D(30.0, 40.0));
	EXPECT_EQ(Half.GetAbsolutePosition(), FVector2D(110.0, 70.0));
	EXPECT_EQ(Half.GetAbsoluteSize(), FVector2D(30.0, 40.0));
	EXPECT_EQ(Half.GetLayoutBoundingRect(), FSlateRect(110.0f, 70.0f, 140.0f, 110.0f));
}

TEST(GeometryTest, NestedChildrenAccumulateEveryLayoutTransformOnTheWay)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2D(800.0, 600.0), FSlateLayoutTransform(1.5f));
	const FGeometry Panel = Root.MakeChild(FVector2D(200.0, 100.0), FSlateLayoutTransform(2.0f, FVector2D(10.0, 20.0)));
	const FGeometry Leaf = Panel.MakeChild(FVector2D(8.0, 4.0), FSlateLayoutTransform(FVector2D(4.0, 6.0)));

	EXPECT_EQ(Panel.GetAbsolutePosition(), FVector2D(15.0, 30.0));
	EXPECT_EQ(Leaf.Scale, 3.0f);
	EXPECT_EQ(Leaf.GetAbsolutePosition(), FVector2D(27.0, 48.0));
	EXPECT_EQ(Leaf.GetLayoutBoundingRect(), FSlateRect(27.0f, 48.0f, 51.0f, 60.0f));
	EXPECT_EQ(Leaf.GetAccumulatedLayoutTransform(), FSlateLayoutTransform(3.0f, FVector2D(27.0, 48.0)));
	EXPECT_FALSE(Leaf.HasRenderTransform());
	// Without render transforms the render bounds are the layout bounds.
	EXPECT_EQ(Leaf.GetRenderBoundingRect(), Leaf.GetLayoutBoundingRect());
}

TEST(GeometryTest, LocalAndAbsoluteRoundTripInSingleAndDoublePrecision)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2D(400.0, 300.0), FSlateLayoutTransform(2.0f, FVector2D(100.0, 50.0)));
	const FGeometry Child = Root.MakeChild(FVector2D(50.0, 50.0), FSlateLayoutTransform(0.5f, FVector2D(8.0, 4.0)));

	const FVector2D AbsoluteD = Child.LocalToAbsolute(FVector2D(3.5, 4.25));
	EXPECT_EQ(AbsoluteD, FVector2D(119.5, 62.25));
	const FVector2D LocalD = Child.AbsoluteToLocal(AbsoluteD);
	EXPECT_EQ(LocalD, FVector2D(3.5, 4.25));

	const FVector2f AbsoluteF = Child.LocalToAbsolute(FVector2f(10.0f, 20.0f));
	EXPECT_EQ(AbsoluteF, FVector2f(126.0f, 78.0f));
	EXPECT_EQ(FVector2f(Child.AbsoluteToLocal(AbsoluteF)), FVector2f(10.0f, 20.0f));

	EXPECT_EQ(Child.GetAbsolutePositionAtCoordinates(FVector2D(1.0, 1.0)), FVector2D(166.0, 108.0));
	EXPECT_EQ(Child.GetLocalPositionAtCoordinates(FVector2D(0.5, 0.25)), FVector2D(25.0, 12.5));
}

TEST(GeometryTest, ARenderTransformMovesWhereTheWidgetIsDrawnButNotItsLayout)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2D(800.0, 600.0), FSlateLayoutTransform());
	const FGeometry Box = Root.MakeChild(FVector2D(100.0, 50.0), FSlateLayoutTransform(FVector2D(200.0, 100.0)),
		FSlateRenderTransform(FVector2f(5.0f, -5.0f)), FVector2D(0.0, 0.0));

	EXPECT_TRUE(Box.HasRenderTransform());
	EXPECT_EQ(Box.GetLayoutBoundingRect(), FSlateRect(200.0f, 100.0f, 300.0f, 150.0f));
	EXPECT_EQ(Box.GetRenderBoundingRect(), FSlateRect(205.0f, 95.0f, 305.0f, 145.0f));

	// Children inherit the render transform of their parent.
	const FGeometry Inner = Box.MakeChild(FVector2D(10.0, 10.0), FVector2D(20.0, 20.0));
	EXPECT_TRUE(Inner.HasRenderTransform());
	EXPECT_EQ(Inner.GetAbsolutePosition(), FVector2D(210.0, 110.0));
	EXPECT_EQ(FVector2f(Inner.LocalToAbsolute(FVector2f(0.0f, 0.0f))), FVector2f(215.0f, 105.0f));
}

TEST(GeometryTest, ARotationAboutTheCentreTurnsTheRenderBoundsAboutTheCentre)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2D(800.0, 600.0), FSlateLayoutTransform());
	const FGeometry Turned = Root.MakeChild(FVector2D(100.0, 50.0), FSlateLayoutTransform(), QuarterTurn, FVector2D(0.5, 0.5));

	EXPECT_EQ(Turned.GetRenderBoundingRect(), FSlateRect(25.0f, -25.0f, 75.0f, 75.0f));
	EXPECT_EQ(Turned.GetAbsolutePositionAtCoordinates(FVector2D(0.5, 0.5)), FVector2D(50.0, 25.0));
	// The local top-left corner ends up at the top right of the turned box.
	EXPECT_EQ(FVector2f(Turned.LocalToAbsolute(FVector2f(0.0f, 0.0f))), FVector2f(75.0f, -25.0f));
	EXPECT_EQ(FVector2f(Turned.AbsoluteToLocal(FVector2f(75.0f, -25.0f))), FVector2f(0.0f, 0.0f));
}

TEST(GeometryTest, IsUnderLocationCountsEdgesAndFollowsTheRenderTransform)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2D(800.0, 600.0), FSlateLayoutTransform());
	const FGeometry Box = Root.MakeChild(FVector2D(10.0, 20.0), FVector2D(100.0, 50.0));

	EXPECT_TRUE(Box.IsUnderLocation(FVector2D(10.0, 20.0)));
	EXPECT_TRUE(Box.IsUnderLocation(FVector2D(110.0, 70.0)));
	EXPECT_TRUE(Box.IsUnderLocation(FVector2D(60.0, 45.0)));
	EXPECT_FALSE(Box.IsUnderLocation(FVector2D(9.9, 45.0)));
	EXPECT_FALSE(Box.IsUnderLocation(FVector2D(60.0, 70.1)));

	const FGeometry Turned = Root.MakeChild(FVector2D(100.0, 50.0), FSlateLayoutTransform(), QuarterTurn, FVector2D(0.5, 0.5));
	EXPECT_TRUE(Turned.IsUnderLocation(FVector2D(50.0, -20.0)));
	EXPECT_FALSE(Turned.IsUnderLocation(FVector2D(90.0, 25.0)));
}

TEST(GeometryTest, AppendingATransformMovesTheWholeGeometryIntoTheOuterSpace)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2D(400.0, 300.0), FSlateLayoutTransform(2.0f));
	FGeometry Child = Root.MakeChild(FVector2D(10.0, 10.0), FVector2D(20.0, 20.0));
	Child.AppendTransform(FSlateLayoutTransform(FVector2D(1000.0, 500.0)));

	EXPECT_EQ(Child.GetAbsolutePosition(), FVector2D(1020.0, 520.0));
	EXPECT_EQ(Child.GetAbsoluteSize(), FVector2D(40.0, 40.0));
	EXPECT_EQ(FVector2f(Child.LocalToAbsolute(FVector2f(20.0f, 20.0f))), FVector2f(1060.0f, 560.0f));
	EXPECT_TRUE(Child.IsUnderLocation(FVector2D(1030.0, 530.0)));
	EXPECT_FALSE(Child.IsUnderLocation(FVector2D(30.0, 30.0)));
	// Position stays relative to the parent.
	EXPECT_EQ(Child.Position, FVector2f(10.0f, 10.0f));
}

TEST(GeometryTest, PaintGeometryCarriesTheDrawnPositionSizeAndScale)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2D(400.0, 300.0), FSlateLayoutTransform(2.0f, FVector2D(10.0, 10.0)));
	const FPaintGeometry Whole = Root.ToPaintGeometry();
	EXPECT_EQ(Whole.DrawPosition, FVector2f(10.0f, 10.0f));
	EXPECT_EQ(Whole.DrawSize, FVector2f(800.0f, 600.0f));
	EXPECT_EQ(Whole.DrawScale, 2.0f);
	EXPECT_EQ(Whole.GetLocalSize(), FVector2f(400.0f, 300.0f));

	const FPaintGeometry Part = Root.ToPaintGeometry(FVector2D(5.0, 6.0), FSlateLayoutTransform(FVector2D(7.0, 8.0)));
	EXPECT_EQ(Part.DrawPosition, FVector2f(24.0f, 26.0f));
	EXPECT_EQ(Part.DrawSize, FVector2f(10.0f, 12.0f));
	EXPECT_EQ(Part.GetAccumulatedRenderTransform().TransformPoint(FVector2f(0.0f, 0.0f)), FVector2f(24.0f, 26.0f));
}

TEST(GeometryTest, EqualGeometriesCompareEqualAndAnyDifferenceShows)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2D(400.0, 300.0), FSlateLayoutTransform());
	const FGeometry A = Root.MakeChild(FVector2D(1.0, 2.0), FVector2D(3.0, 4.0));
	EXPECT_EQ(A, Root.MakeChild(FVector2D(1.0, 2.0), FVector2D(3.0, 4.0)));
	EXPECT_NE(A, Root.MakeChild(FVector2D(1.0, 2.0), FVector2D(3.0, 5.0)));
	EXPECT_NE(A, Root.MakeChild(FVector2D(1.0, 2.5), FVector2D(3.0, 4.0)));
	EXPECT_NE(A, Root.MakeChild(FVector2D(3.0, 4.0), FSlateLayoutTransform(FVector2D(1.0, 2.0)), FSlateRenderTransform(FVector2f(1.0f, 0.0f)),
					 FVector2D(0.0, 0.0)));
	EXPECT_EQ(A, Root.MakeChild(FVector2D(3.0, 4.0), FSlateLayoutTransform(FVector2D(1.0, 2.0))));
	EXPECT_EQ(FGeometry().GetAbsoluteSize(), FVector2D(0.0, 0.0));
}

TEST(GeometryTest, NestedRenderTransformsApplyTheChildsFirstThenItsParents)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2D(800.0, 600.0), FSlateLayoutTransform());
	// The parent is moved 100 right; its child, placed at (10, 0), is turned about its own corner.
	const FGeometry Parent = Root.MakeChild(FVector2D(200.0, 200.0), FSlateLayoutTransform(), FSlateRenderTransform(FVector2f(100.0f, 0.0f)),
		FVector2D(0.0, 0.0));
	const FGeometry Child = Parent.MakeChild(FVector2D(20.0, 10.0), FSlateLayoutTransform(FVector2D(10.0, 0.0)), QuarterTurn, FVector2D(0.0, 0.0));

	// (20, 0) turns to (0, 20), moves to (10, 20) in the parent, then to (110, 20).
	EXPECT_EQ(FVector2f(Child.LocalToAbsolute(FVector2f(20.0f, 0.0f))), FVector2f(110.0f, 20.0f));
	EXPECT_EQ(Child.GetRenderBoundingRect(), FSlateRect(100.0f, 0.0f, 110.0f, 20.0f));
	EXPECT_EQ(Child.GetLayoutBoundingRect(), FSlateRect(10.0f, 0.0f, 30.0f, 10.0f));
	EXPECT_EQ(FVector2f(Child.AbsoluteToLocal(FVector2f(105.0f, 10.0f))), FVector2f(10.0f, 5.0f));
}

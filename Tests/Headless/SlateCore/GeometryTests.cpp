#include "Layout/Geometry.h"

#include <gtest/gtest.h>

#include <cmath>

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

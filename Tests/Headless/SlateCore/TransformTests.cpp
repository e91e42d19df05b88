#include "Rendering/SlateLayoutTransform.h"
#include "Rendering/SlateRenderTransform.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
	// A quarter turn for row vectors: (1, 0) goes to (0, 1).
	const FMatrix2x2 QuarterTurn(0.0f, 1.0f, -1.0f, 0.0f);

	bool IsFinite(const FVector2f& Vector)
	{
		return std::isfinite(Vector.X) && std::isfinite(Vector.Y);
	}
}

TEST(LayoutTransformTest, ConcatenationAppliesTheLeftTransformFirst)
{
	const FSlateLayoutTransform Inner(2.0f, FVector2D(10.0, 20.0));
	const FSlateLayoutTransform Outer(3.0f, FVector2D(1.0, 1.0));
	const FSlateLayoutTransform Both = Concatenate(Inner, Outer);

	EXPECT_EQ(Both.GetScale(), 6.0f);
	EXPECT_EQ(Both.GetTranslation(), FVector2D(31.0, 61.0));
	const FVector2f Point(5.0f, -2.0f);
	EXPECT_EQ(Both.TransformPoint(Point), Outer.TransformPoint(Inner.TransformPoint(Point)));
	// The other order is a different transform.
	EXPECT_NE(Concatenate(Outer, Inner), Both);
	EXPECT_EQ(Concatenate(Outer, Inner).GetTranslation(), FVector2D(12.0, 22.0));
}

TEST(LayoutTransformTest, TheInverseUndoesScaleAndTranslation)
{
	const FSlateLayoutTransform Transform(4.0f, FVector2D(8.0, -12.0));
	const FSlateLayoutTransform Inv = Inverse(Transform);

	EXPECT_EQ(Inv.GetScale(), 0.25f);
	EXPECT_EQ(Inv.GetTranslation(), FVector2D(-2.0, 3.0));
	EXPECT_EQ(Concatenate(Transform, Inv), FSlateLayoutTransform());
	EXPECT_EQ(Concatenate(Inv, Transform), FSlateLayoutTransform());
	EXPECT_EQ(Inv.TransformPoint(Transform.TransformPoint(FVector2f(3.0f, 7.0f))), FVector2f(3.0f, 7.0f));
}

TEST(LayoutTransformTest, VectorsAreScaledButNotMovedInEitherPrecision)
{
	const FSlateLayoutTransform Transform(2.5f, FVector2D(100.0, 200.0));
	EXPECT_EQ(TransformVector(Transform, FVector2f(2.0f, 4.0f)), FVector2f(5.0f, 10.0f));
	EXPECT_EQ(TransformVector(Transform, FVector2D(2.0, 4.0)), FVector2D(5.0, 10.0));
	EXPECT_EQ(TransformPoint(Transform, FVector2f(2.0f, 4.0f)), FVector2f(105.0f, 210.0f));
	EXPECT_EQ(TransformPoint(Transform, FVector2D(2.0, 4.0)), FVector2D(105.0, 210.0));
}

TEST(LayoutTransformTest, AZeroScaleInvertsToNonFiniteValuesRatherThanStopping)
{
	const FSlateLayoutTransform Flat(0.0f, FVector2D(1.0, 1.0));
	const FSlateLayoutTransform Inv = Flat.Inverse();
	EXPECT_FALSE(std::isfinite(Inv.GetScale()));
	EXPECT_FALSE(IsFinite(Inv.TransformPoint(FVector2f(1.0f, 1.0f))));
}

TEST(RenderTransformTest, PointsAreRowVectorsSoAQuarterTurnTakesXToY)
{
	const FSlateRenderTransform Turn(QuarterTurn);
	EXPECT_EQ(Turn.TransformPoint(FVector2f(1.0f, 0.0f)), FVector2f(0.0f, 1.0f));
	EXPECT_EQ(Turn.TransformPoint(FVector2f(0.0f, 1.0f)), FVector2f(-1.0f, 0.0f));
	EXPECT_EQ(QuarterTurn.Determinant(), 1.0f);
}

TEST(RenderTransformTest, ConcatenationAppliesTheLeftTransformFirstWhenTheyDoNotCommute)
{
	const FSlateRenderTransform Stretch(FScale2f(2.0f, 1.0f));
	const FSlateRenderTransform Turn(QuarterTurn);
	const FVector2f Point(1.0f, 1.0f);

	// Stretch then turn: (2, 1) then (-1, 2). Turn then stretch: (-1, 1) then (-2, 1).
	EXPECT_EQ(Concatenate(Stretch, Turn).TransformPoint(Point), FVector2f(-1.0f, 2.0f));
	EXPECT_EQ(Concatenate(Turn, Stretch).TransformPoint(Point), FVector2f(-2.0f, 1.0f));
}

TEST(RenderTransformTest, TranslationIsAppliedAfterTheMatrixAndMovesWithLaterTransforms)
{
	const FSlateRenderTransform Move(FVector2f(10.0f, 0.0f));
	const FSlateRenderTransform Turn(QuarterTurn);

	// Moving then turning turns the move too.
	const FSlateRenderTransform MoveThenTurn = Concatenate(Move, Turn);
	EXPECT_EQ(MoveThenTurn.GetTranslation(), FVector2f(0.0f, 10.0f));
	EXPECT_EQ(MoveThenTurn.TransformPoint(FVector2f(1.0f, 0.0f)), FVector2f(0.0f, 11.0f));
	EXPECT_EQ(Concatenate(Turn, Move).TransformPoint(FVector2f(1.0f, 0.0f)), FVector2f(10.0f, 1.0f));

	// Vectors ignore the translation.
	EXPECT_EQ(MoveThenTurn.TransformVector(FVector2f(1.0f, 0.0f)), FVector2f(0.0f, 1.0f));
}

TEST(RenderTransformTest, TheInverseUndoesMatrixAndTranslation)
{
	const FSlateRenderTransform Transform(FMatrix2x2(2.0f, 0.0f, 1.0f, 4.0f), FVector2f(10.0f, 20.0f));
	const FSlateRenderTransform Inv = Inverse(Transform);

	const FVector2f Point(3.0f, -5.0f);
	const FVector2f Moved = Transform.TransformPoint(Point);
	EXPECT_EQ(Moved, FVector2f(11.0f, 0.0f));
	EXPECT_EQ(Inv.TransformPoint(Moved), Point);
	EXPECT_TRUE(Concatenate(Transform, Inv).IsIdentity());
	EXPECT_TRUE(Concatenate(Inv, Transform).IsIdentity());
}

TEST(RenderTransformTest, ASingularMatrixInvertsToNonFiniteValuesRatherThanStopping)
{
	const FSlateRenderTransform Collinear(FMatrix2x2(1.0f, 2.0f, 2.0f, 4.0f), FVector2f(1.0f, 1.0f));
	EXPECT_EQ(Collinear.GetMatrix().Determinant(), 0.0f);
	EXPECT_FALSE(IsFinite(Collinear.Inverse().TransformPoint(FVector2f(3.0f, 3.0f))));

	const FSlateRenderTransform Flat(0.0f);
	EXPECT_FALSE(IsFinite(Inverse(Flat).TransformPoint(FVector2f(0.0f, 0.0f))));
}

TEST(RenderTransformTest, ALayoutTransformBecomesAUniformScaleAndTheSameTranslation)
{
	const FSlateLayoutTransform Layout(3.0f, FVector2D(4.0, 5.0));
	const FSlateRenderTransform Render(Layout);
	EXPECT_EQ(Render, FSlateRenderTransform(3.0f, FVector2f(4.0f, 5.0f)));
	EXPECT_EQ(Render.TransformPoint(FVector2f(1.0f, 2.0f)), Layout.TransformPoint(FVector2f(1.0f, 2.0f)));
	EXPECT_TRUE(FSlateRenderTransform(FSlateLayoutTransform()).IsIdentity());
	EXPECT_FALSE(Render.IsIdentity());
}

TEST(RenderTransformTest, MixedConcatenationKeepsOrderAcrossLayoutAndRenderTransforms)
{
	const FSlateLayoutTransform Layout(2.0f, FVector2D(10.0, 0.0));
	const FSlateRenderTransform Turn(QuarterTurn);
	const FVector2f Point(1.0f, 0.0f);

	// Layout then turn: (12, 0) then (0, 12). Turn then layout: (0, 1) then (10, 2).
	EXPECT_EQ(Concatenate(Layout, Turn).TransformPoint(Point), FVector2f(0.0f, 12.0f));
	EXPECT_EQ(Concatenate(Turn, Layout).TransformPoint(Point), FVector2f(10.0f, 2.0f));

	// Several at once read left to right.
	const FSlateRenderTransform Chain = Concatenate(FSlateRenderTransform(FVector2f(1.0f, 0.0f)), Turn, FSlateRenderTransform(2.0f), Layout);
	// (2, 0) -> (0, 2) -> (0, 4) -> (10, 8)
	EXPECT_EQ(Chain.TransformPoint(Point), FVector2f(10.0f, 8.0f));
}

TEST(RenderTransformTest, DoublePrecisionTransformsComposeAndInvertLikeSinglePrecisionOnes)
{
	const FTransform2d Transform(UE::Math::TScale2<double>(2.0, 8.0), FVector2D(1.0, -1.0));
	const FVector2D Point(0.125, 0.5);
	EXPECT_EQ(TransformPoint(Transform, Point), FVector2D(1.25, 3.0));
	EXPECT_EQ(TransformPoint(Inverse(Transform), FVector2D(1.25, 3.0)), Point);
	EXPECT_EQ(TransformPoint(FScale2d(2.0, 8.0), Point), FVector2D(0.25, 4.0));
}

// Space around a widget's content, in slate units.
#pragma once

#include "HAL/Platform.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector2D.h"
#include "Types/SlateEnums.h"

struct FMargin
{
	float Left = 0.0f;
	float Top = 0.0f;
	float Right = 0.0f;
	float Bottom = 0.0f;

	FMargin() = default;

	FMargin(float UniformMargin)
		: Left(UniformMargin)
		, Top(UniformMargin)
		, Right(UniformMargin)
		, Bottom(UniformMargin)
	{
	}

	FMargin(float Horizontal, float Vertical)
		: Left(Horizontal)
		, Top(Vertical)
		, Right(Horizontal)
		, Bottom(Vertical)
	{
	}

	// X pads left and right, Y top and bottom.
	FMargin(const FVector2D& InVector)
		: Left(float(InVector.X))
		, Top(float(InVector.Y))
		, Right(float(InVector.X))
		, Bottom(float(InVector.Y))
	{
	}

	FMargin(float InLeft, float InTop, float InRight, float InBottom)
		: Left(InLeft)
		, Top(InTop)
		, Right(InRight)
		, Bottom(InBottom)
	{
	}

	FMargin operator*(float Scale) const
	{
		return FMargin(Left * Scale, Top * Scale, Right * Scale, Bottom * Scale);
	}

	FMargin operator*(const FMargin& InScale) const
	{
		return FMargin(Left * InScale.Left, Top * InScale.Top, Right * InScale.Right, Bottom * InScale.Bottom);
	}

	FMargin operator+(const FMargin& Other) const
	{
		return FMargin(Left + Other.Left, Top + Other.Top, Right + Other.Right, Bottom + Other.Bottom);
	}

	FMargin operator-(const FMargin& Other) const
	{
		return FMargin(Left - Other.Left, Top - Other.Top, Right - Other.Right, Bottom - Other.Bottom);
	}

	bool operator==(const FMargin& Other) const
	{
		return Left == Other.Left && Right == Other.Right && Top == Other.Top && Bottom == Other.Bottom;
	}

	bool operator!=(const FMargin& Other) const
	{
		return !(*this == Other);
	}

	FVector2D GetTopLeft() const
	{
		return FVector2D(Left, Top);
	}

	FVector2D GetDesiredSize() const
	{
		return FVector2D(Left + Right, Top + Bottom);
	}

	template <EOrientation Orientation>
	float GetTotalSpaceAlong() const
	{
		static_assert(Orientation == Orient_Horizontal || Orientation == Orient_Vertical, "Unknown orientation");
		return Orientation == Orient_Horizontal ? Left + Right : Top + Bottom;
	}

	bool IsValid() const
	{
		return FMath::IsFinite(Left) && FMath::IsFinite(Top) && FMath::IsFinite(Right) && FMath::IsFinite(Bottom);
	}
};

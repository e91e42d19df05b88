// Where a canvas child is anchored, as fractions of the canvas: equal minimum and maximum pin a
// point, different ones stretch the child between two lines.
#pragma once

#include "Math/Vector2D.h"

struct FAnchors
{
	FVector2D Minimum;
	FVector2D Maximum;

	FAnchors()
		: Minimum(0.0, 0.0)
		, Maximum(0.0, 0.0)
	{
	}

	FAnchors(float UnifiedAnchor)
		: Minimum(UnifiedAnchor, UnifiedAnchor)
		, Maximum(UnifiedAnchor, UnifiedAnchor)
	{
	}

	FAnchors(float Horizontal, float Vertical)
		: Minimum(Horizontal, Vertical)
		, Maximum(Horizontal, Vertical)
	{
	}

	FAnchors(float MinX, float MinY, float MaxX, float MaxY)
		: Minimum(MinX, MinY)
		, Maximum(MaxX, MaxY)
	{
	}

	bool IsStretchedHorizontal() const
	{
		return Minimum.X != Maximum.X;
	}

	bool IsStretchedVertical() const
	{
		return Minimum.Y != Maximum.Y;
	}

	bool operator==(const FAnchors& Other) const
	{
		return Minimum == Other.Minimum && Maximum == Other.Maximum;
	}

	bool operator!=(const FAnchors& Other) const
	{
		return !(*this == Other);
	}
};

// An axis-aligned rectangle by its edges, as Slate clips and culls with.
#pragma once

#include "Math/Vector2D.h"

class FSlateRect
{
public:
	float Left;
	float Top;
	float Right;
	float Bottom;

	explicit FSlateRect(float InLeft = -1.0f, float InTop = -1.0f, float InRight = -1.0f, float InBottom = -1.0f)
		: Left(InLeft)
		, Top(InTop)
		, Right(InRight)
		, Bottom(InBottom)
	{
	}

	FSlateRect(const FVector2D& InStartPos, const FVector2D& InEndPos)
		: Left(float(InStartPos.X))
		, Top(float(InStartPos.Y))
		, Right(float(InEndPos.X))
		, Bottom(float(InEndPos.Y))
	{
	}

	static FSlateRect FromPointAndExtent(const FVector2D& TopLeft, const FVector2D& Size)
	{
		return FSlateRect(TopLeft, TopLeft + Size);
	}

	FVector2D GetTopLeft() const
	{
		return FVector2D(Left, Top);
	}

	FVector2D GetBottomRight() const
	{
		return FVector2D(Right, Bottom);
	}

	FVector2D GetSize() const
	{
		return FVector2D(Right - Left, Bottom - Top);
	}

	bool IsValid() const
	{
		return !(Left == -1 && Right == -1 && Bottom == -1 && Top == -1) && Right >= Left && Bottom >= Top;
	}

	bool ContainsPoint(const FVector2D& Point) const
	{
		return Point.X >= Left && Point.X <= Right && Point.Y >= Top && Point.Y <= Bottom;
	}

	bool operator==(const FSlateRect& Other) const
	{
		return Left == Other.Left && Top == Other.Top && Right == Other.Right && Bottom == Other.Bottom;
	}

	bool operator!=(const FSlateRect& Other) const
	{
		return !(*this == Other);
	}
};

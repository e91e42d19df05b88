// The transform layout composes from parent to child: a uniform scale then a translation. It is
// kept separate from render transforms so that layout never sees rotation or shear.
#pragma once

#include "Math/Vector2D.h"

class FSlateLayoutTransform
{
public:
	explicit FSlateLayoutTransform(float InScale = 1.0f)
		: Scale(InScale)
		, Translation(0.0f, 0.0f)
	{
	}

	explicit FSlateLayoutTransform(const FVector2D& InTranslation)
		: Scale(1.0f)
		, Translation(FVector2f(InTranslation))
	{
	}

	FSlateLayoutTransform(float InScale, const FVector2D& InTranslation)
		: Scale(InScale)
		, Translation(FVector2f(InTranslation))
	{
	}

	FSlateLayoutTransform(float InScale, const FVector2f& InTranslation)
		: Scale(InScale)
		, Translation(InTranslation)
	{
	}

	float GetScale() const
	{
		return Scale;
	}

	FVector2D GetTranslation() const
	{
		return FVector2D(Translation);
	}

	FVector2f GetTranslation2f() const
	{
		return Translation;
	}

	template <typename T>
	UE::Math::TVector2<T> TransformPoint(const UE::Math::TVector2<T>& Point) const
	{
		return UE::Math::TVector2<T>(T(Point.X * Scale + Translation.X), T(Point.Y * Scale + Translation.Y));
	}

	template <typename T>
	UE::Math::TVector2<T> TransformVector(const UE::Math::TVector2<T>& Vector) const
	{
		return Vector * Scale;
	}

	// This transform first, then RHS.
	FSlateLayoutTransform Concatenate(const FSlateLayoutTransform& RHS) const
	{
		return FSlateLayoutTransform(Scale * RHS.Scale, RHS.TransformPoint(Translation));
	}

	FSlateLayoutTransform Inverse() const
	{
		return FSlateLayoutTransform(1.0f / Scale, -Translation / Scale);
	}

	bool operator==(const FSlateLayoutTransform& Other) const
	{
		return Scale == Other.Scale && Translation == Other.Translation;
	}

	bool operator!=(const FSlateLayoutTransform& Other) const
	{
		return !(*this == Other);
	}

private:
	float Scale;
	FVector2f Translation;
};

inline FSlateLayoutTransform Concatenate(const FSlateLayoutTransform& LHS, const FSlateLayoutTransform& RHS)
{
	return LHS.Concatenate(RHS);
}

inline FSlateLayoutTransform Inverse(const FSlateLayoutTransform& Transform)
{
	return Transform.Inverse();
}

template <typename T>
UE::Math::TVector2<T> TransformPoint(const FSlateLayoutTransform& Transform, const UE::Math::TVector2<T>& Point)
{
	return Transform.TransformPoint(Point);
}

template <typename T>
UE::Math::TVector2<T> TransformVector(const FSlateLayoutTransform& Transform, const UE::Math::TVector2<T>& Vector)
{
	return Transform.TransformVector(Vector);
}

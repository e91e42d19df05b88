// Where a widget is: its local size and the transforms from its local space to the space of
// the root it was arranged from (the window, or the desktop for cached geometry).
#pragma once

#include "Containers/UnrealString.h"
#include "Math/Vector2D.h"
#include "Rendering/RenderingCommon.h"
#include "Rendering/SlateLayoutTransform.h"
#include "Rendering/SlateRenderTransform.h"
#include "Templates/SharedPointer.h"
#include "Types/SlateVector2.h"

class SWidget;
struct FArrangedWidget;
class FSlateRect;

struct FGeometry
{
public:
	// Size in local space.
	FVector2f Size;
	// Accumulated layout scale.
	float Scale;
	// Position in absolute space, from layout transforms only.
	FVector2f AbsolutePosition;
	// Position relative to the parent, in the parent's local space.
	FVector2f Position;

	SLATECORE_API FGeometry();

	static SLATECORE_API FGeometry MakeRoot(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform);
	static SLATECORE_API FGeometry MakeRoot(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform,
		const FSlateRenderTransform& RenderTransform, const FVector2D& RenderTransformPivot);

	SLATECORE_API FGeometry MakeChild(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform,
		const FSlateRenderTransform& RenderTransform, const FVector2D& RenderTransformPivot) const;
	SLATECORE_API FGeometry MakeChild(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const;
	// The same size and place, with a render transform about a pivot given in normalized local coordinates.
	SLATECORE_API FGeometry MakeChild(const FSlateRenderTransform& RenderTransform, const FVector2D& RenderTransformPivot = FVector2D(0.5, 0.5)) const;
	SLATECORE_API FGeometry MakeChild(const FVector2D& ChildOffset, const FVector2D& InLocalSize, float InScale = 1.0f) const;

	// Arranging a widget applies its own render transform and pivot.
	SLATECORE_API FArrangedWidget MakeChild(const TSharedRef<SWidget>& ChildWidget, const FVector2D& ChildOffset, const FVector2D& InLocalSize, float ChildScale = 1.0f) const;
	SLATECORE_API FArrangedWidget MakeChild(const TSharedRef<SWidget>& ChildWidget, const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const;
	SLATECORE_API FArrangedWidget MakeChild(const TSharedRef<SWidget>& ChildWidget, const FSlateLayoutTransform& LayoutTransform) const;

	SLATECORE_API FPaintGeometry ToPaintGeometry() const;
	SLATECORE_API FPaintGeometry ToPaintGeometry(const FVector2D& InLocalSize, const FSlateLayoutTransform& InLayoutTransform) const;
	SLATECORE_API FPaintGeometry ToPaintGeometry(const FSlateLayoutTransform& InLayoutTransform) const;

	// Appends a transform at the root end, e.g. to go from window space to desktop space.
	SLATECORE_API void AppendTransform(const FSlateLayoutTransform& LayoutTransform);

	SLATECORE_API bool IsUnderLocation(const FVector2D& AbsoluteCoordinate) const;
	// Single-precision, through the inverse of the accumulated render transform.
	SLATECORE_API UE::Slate::FDeprecateVector2DResult AbsoluteToLocal(UE::Slate::FDeprecateVector2DParameter AbsoluteCoordinate) const;
	SLATECORE_API UE::Slate::FDeprecateVector2DResult LocalToAbsolute(UE::Slate::FDeprecateVector2DParameter LocalCoordinate) const;

	SLATECORE_API FSlateRect GetLayoutBoundingRect() const;
	SLATECORE_API FSlateRect GetRenderBoundingRect() const;

	FVector2D GetLocalSize() const
	{
		return FVector2D(Size);
	}

	FVector2D GetAbsolutePosition() const
	{
		return FVector2D(AbsolutePosition);
	}

	FVector2D GetAbsoluteSize() const
	{
		return FVector2D(Size * Scale);
	}

	FVector2D GetDrawSize() const
	{
		return GetAbsoluteSize();
	}

	SLATECORE_API FVector2D GetAbsolutePositionAtCoordinates(const FVector2D& NormalCoordinates) const;
	SLATECORE_API FVector2D GetLocalPositionAtCoordinates(const FVector2D& NormalCoordinates) const;

	const FSlateRenderTransform& GetAccumulatedRenderTransform() const
	{
		return AccumulatedRenderTransform;
	}

	FSlateLayoutTransform GetAccumulatedLayoutTransform() const
	{
		return FSlateLayoutTransform(Scale, AbsolutePosition);
	}

	bool HasRenderTransform() const
	{
		return bHasRenderTransform;
	}

	SLATECORE_API bool operator==(const FGeometry& Other) const;
	bool operator!=(const FGeometry& Other) const
	{
		return !(*this == Other);
	}

	SLATECORE_API FString ToString() const;

private:
	FGeometry(const FVector2D& InLocalSize, const FSlateLayoutTransform& InLocalLayoutTransform, const FSlateLayoutTransform& ParentAccumulatedLayoutTransform,
		const FSlateRenderTransform& ParentAccumulatedRenderTransform, bool bParentHasRenderTransform);
	FGeometry(const FVector2D& InLocalSize, const FSlateLayoutTransform& InLocalLayoutTransform, const FSlateRenderTransform& InLocalRenderTransform,
		const FVector2D& InLocalRenderTransformPivot, const FSlateLayoutTransform& ParentAccumulatedLayoutTransform,
		const FSlateRenderTransform& ParentAccumulatedRenderTransform, bool bParentHasRenderTransform);

	FSlateRenderTransform AccumulatedRenderTransform;
	bool bHasRenderTransform;
};

#include "Layout/Geometry.h"

#include "Layout/ArrangedWidget.h"
#include "Layout/SlateRect.h"
#include "Widgets/SWidget.h"

FGeometry::FGeometry()
	: Size(0.0f, 0.0f)
	, Scale(1.0f)
	, AbsolutePosition(0.0f, 0.0f)
	, Position(0.0f, 0.0f)
	, bHasRenderTransform(false)
{
}

FGeometry::FGeometry(const FVector2D& InLocalSize, const FSlateLayoutTransform& InLocalLayoutTransform, const FSlateLayoutTransform& ParentAccumulatedLayoutTransform,
	const FSlateRenderTransform& ParentAccumulatedRenderTransform, bool bParentHasRenderTransform)
	: Size(FVector2f(InLocalSize))
	, Scale(1.0f)
	, AbsolutePosition(0.0f, 0.0f)
	, Position(InLocalLayoutTransform.GetTranslation2f())
	, AccumulatedRenderTransform(Concatenate(InLocalLayoutTransform, ParentAccumulatedRenderTransform))
	, bHasRenderTransform(bParentHasRenderTransform)
{
	const FSlateLayoutTransform AccumulatedLayoutTransform = Concatenate(InLocalLayoutTransform, ParentAccumulatedLayoutTransform);
	AbsolutePosition = AccumulatedLayoutTransform.GetTranslation2f();
	Scale = AccumulatedLayoutTransform.GetScale();
}

FGeometry::FGeometry(const FVector2D& InLocalSize, const FSlateLayoutTransform& InLocalLayoutTransform, const FSlateRenderTransform& InLocalRenderTransform,
	const FVector2D& InLocalRenderTransformPivot, const FSlateLayoutTransform& ParentAccumulatedLayoutTransform,
	const FSlateRenderTransform& ParentAccumulatedRenderTransform, bool bParentHasRenderTransform)
	: FGeometry(InLocalSize, InLocalLayoutTransform, ParentAccumulatedLayoutTransform, ParentAccumulatedRenderTransform, bParentHasRenderTransform)
{
	// The render transform acts in local space about the pivot, before layout places the widget.
	const FVector2f PivotInLocalSpace = FVector2f(InLocalSize * InLocalRenderTransformPivot);
	AccumulatedRenderTransform = Concatenate(
		FSlateRenderTransform(-PivotInLocalSpace),
		InLocalRenderTransform,
		FSlateRenderTransform(PivotInLocalSpace),
		InLocalLayoutTransform,
		ParentAccumulatedRenderTransform);
	bHasRenderTransform = true;
}

FGeometry FGeometry::MakeRoot(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform)
{
	return FGeometry(InLocalSize, LayoutTransform, FSlateLayoutTransform(), FSlateRenderTransform(), false);
}

FGeometry FGeometry::MakeRoot(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform, const FSlateRenderTransform& RenderTransform,
	const FVector2D& RenderTransformPivot)
{
	return FGeometry(InLocalSize, LayoutTransform, RenderTransform, RenderTransformPivot, FSlateLayoutTransform(), FSlateRenderTransform(), false);
}

FGeometry FGeometry::MakeChild(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform, const FSlateRenderTransform& RenderTransform,
	const FVector2D& RenderTransformPivot) const
{
	return FGeometry(InLocalSize, LayoutTransform, RenderTransform, RenderTransformPivot, GetAccumulatedLayoutTransform(), AccumulatedRenderTransform, bHasRenderTransform);
}

FGeometry FGeometry::MakeChild(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const
{
	return FGeometry(InLocalSize, LayoutTransform, GetAccumulatedLayoutTransform(), AccumulatedRenderTransform, bHasRenderTransform);
}

FGeometry FGeometry::MakeChild(const FSlateRenderTransform& RenderTransform, const FVector2D& RenderTransformPivot) const
{
	return MakeChild(GetLocalSize(), FSlateLayoutTransform(), RenderTransform, RenderTransformPivot);
}

FGeometry FGeometry::MakeChild(const FVector2D& ChildOffset, const FVector2D& InLocalSize, float InScale) const
{
	// The offset is in the child's scaled space, so it is converted into this geometry's space.
	return MakeChild(InLocalSize, FSlateLayoutTransform(InScale, ChildOffset * InScale));
}

FArrangedWidget FGeometry::MakeChild(const TSharedRef<SWidget>& ChildWidget, const FVector2D& ChildOffset, const FVector2D& InLocalSize, float ChildScale) const
{
	return MakeChild(ChildWidget, InLocalSize, FSlateLayoutTransform(ChildScale, ChildOffset * ChildScale));
}

FArrangedWidget FGeometry::MakeChild(const TSharedRef<SWidget>& ChildWidget, const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const
{
	const TOptional<FSlateRenderTransform> RenderTransform = ChildWidget->GetRenderTransform();
	if (RenderTransform.IsSet())
	{
		return FArrangedWidget(ChildWidget, MakeChild(InLocalSize, LayoutTransform, RenderTransform.GetValue(), ChildWidget->GetRenderTransformPivot()));
	}
	return FArrangedWidget(ChildWidget, MakeChild(InLocalSize, LayoutTransform));
}

FArrangedWidget FGeometry::MakeChild(const TSharedRef<SWidget>& ChildWidget, const FSlateLayoutTransform& LayoutTransform) const
{
	return MakeChild(ChildWidget, ChildWidget->GetDesiredSize(), LayoutTransform);
}

FPaintGeometry FGeometry::ToPaintGeometry() const
{
	return FPaintGeometry(GetAccumulatedLayoutTransform(), AccumulatedRenderTransform, Size, bHasRenderTransform);
}

FPaintGeometry FGeometry::ToPaintGeometry(const FVector2D& InLocalSize, const FSlateLayoutTransform& InLayoutTransform) const
{
	return FPaintGeometry(Concatenate(InLayoutTransform, GetAccumulatedLayoutTransform()), Concatenate(InLayoutTransform, AccumulatedRenderTransform),
		FVector2f(InLocalSize), bHasRenderTransform);
}

FPaintGeometry FGeometry::ToPaintGeometry(const FSlateLayoutTransform& InLayoutTransform) const
{
	return ToPaintGeometry(GetLocalSize(), InLayoutTransform);
}

void FGeometry::AppendTransform(const FSlateLayoutTransform& LayoutTransform)
{
	const FSlateLayoutTransform AccumulatedLayoutTransform = Concatenate(GetAccumulatedLayoutTransform(), LayoutTransform);
	AccumulatedRenderTransform = Concatenate(AccumulatedRenderTransform, LayoutTransform);
	AbsolutePosition = AccumulatedLayoutTransform.GetTranslation2f();
	Scale = AccumulatedLayoutTransform.GetScale();
}

bool FGeometry::IsUnderLocation(const FVector2D& AbsoluteCoordinate) const
{
	// Edges count as inside, so adjacent widgets share their border line.
	const FVector2D Local = AbsoluteToLocal(AbsoluteCoordinate);
	return Local.X >= 0.0 && Local.Y >= 0.0 && Local.X <= Size.X && Local.Y <= Size.Y;
}

UE::Slate::FDeprecateVector2DResult FGeometry::AbsoluteToLocal(UE::Slate::FDeprecateVector2DParameter AbsoluteCoordinate) const
{
	return TransformPoint(Inverse(AccumulatedRenderTransform), FVector2f(AbsoluteCoordinate));
}

UE::Slate::FDeprecateVector2DResult FGeometry::LocalToAbsolute(UE::Slate::FDeprecateVector2DParameter LocalCoordinate) const
{
	return TransformPoint(AccumulatedRenderTransform, FVector2f(LocalCoordinate));
}

FSlateRect FGeometry::GetLayoutBoundingRect() const
{
	return FSlateRect::FromPointAndExtent(GetAbsolutePosition(), GetAbsoluteSize());
}

FSlateRect FGeometry::GetRenderBoundingRect() const
{
	const FVector2f Corners[4] = {
		TransformPoint(AccumulatedRenderTransform, FVector2f(0.0f, 0.0f)),
		TransformPoint(AccumulatedRenderTransform, FVector2f(Size.X, 0.0f)),
		TransformPoint(AccumulatedRenderTransform, FVector2f(0.0f, Size.Y)),
		TransformPoint(AccumulatedRenderTransform, Size),
	};
	FVector2f Min = Corners[0];
	FVector2f Max = Corners[0];
	for (const FVector2f& Corner : Corners)
	{
		Min = Min.ComponentMin(Corner);
		Max = Max.ComponentMax(Corner);
	}
	return FSlateRect(Min.X, Min.Y, Max.X, Max.Y);
}

FVector2D FGeometry::GetAbsolutePositionAtCoordinates(const FVector2D& NormalCoordinates) const
{
	return LocalToAbsolute(GetLocalPositionAtCoordinates(NormalCoordinates));
}

FVector2D FGeometry::GetLocalPositionAtCoordinates(const FVector2D& NormalCoordinates) const
{
	return GetLocalSize() * NormalCoordinates;
}

bool FGeometry::operator==(const FGeometry& Other) const
{
	return Size == Other.Size && Scale == Other.Scale && AbsolutePosition == Other.AbsolutePosition && Position == Other.Position
		&& AccumulatedRenderTransform == Other.AccumulatedRenderTransform;
}

FString FGeometry::ToString() const
{
	return FString::Printf(TEXT("[Abs=%s, Scale=%.2f, Size=%s]"), *FVector2D(AbsolutePosition).ToString(), double(Scale), *FVector2D(Size).ToString());
}

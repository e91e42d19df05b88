#include "Widgets/Layout/SConstraintCanvas.h"

#include "Styling/WidgetStyle.h"

namespace
{
	struct FAxisPlacement
	{
		double Position;
		double Size;
	};

	// One axis of a child's rectangle: stretched between its anchor lines less the insets, or
	// its size placed at the anchor plus offset, shifted back by the alignment fraction of it.
	FAxisPlacement PlaceOnAxis(double AllottedSize, double AnchorMin, double AnchorMax, float OffsetNear, float OffsetFar, double Size, double Alignment)
	{
		if (AnchorMin != AnchorMax)
		{
			const double Position = AnchorMin * AllottedSize + OffsetNear;
			return {Position, AnchorMax * AllottedSize - Position - OffsetFar};
		}
		return {AnchorMin * AllottedSize + OffsetNear - Size * Alignment, Size};
	}
}

SConstraintCanvas::SConstraintCanvas()
	: Children(this)
{
}

void SConstraintCanvas::Construct(const FArguments& InArgs)
{
	Children.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
}

SConstraintCanvas::FScopedWidgetSlotArguments SConstraintCanvas::AddSlot()
{
	return FScopedWidgetSlotArguments(MakeUnique<FSlot>(), Children, INDEX_NONE);
}

int32 SConstraintCanvas::RemoveSlot(const TSharedRef<SWidget>& SlotWidget)
{
	return Children.Remove(SlotWidget);
}

void SConstraintCanvas::ClearChildren()
{
	Children.Empty();
}

namespace
{
	/** Both anchors on the same edge of the axis, so the offset on that side moves the child away from it. */
	bool IsDockedToAnEdge(double AnchorMinimum, double AnchorMaximum)
	{
		return AnchorMinimum == AnchorMaximum && (AnchorMinimum == 0.0 || AnchorMinimum == 1.0);
	}
}

FVector2D SConstraintCanvas::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	FVector2D DesiredSize(0.0, 0.0);
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		const SWidget& Widget = Slot.GetWidget().Get();
		if (Widget.GetVisibility() == EVisibility::Collapsed)
		{
			continue;
		}
		const FMargin Offset = Slot.GetOffset();
		const FAnchors Anchors = Slot.GetAnchors();
		const FVector2D Size = Slot.GetAutoSize() ? Widget.GetDesiredSize() : FVector2D(Offset.Right, Offset.Bottom);
		const double Left = IsDockedToAnEdge(Anchors.Minimum.X, Anchors.Maximum.X) ? FMath::Abs(Offset.Left) : 0.0;
		const double Top = IsDockedToAnEdge(Anchors.Minimum.Y, Anchors.Maximum.Y) ? FMath::Abs(Offset.Top) : 0.0;
		DesiredSize.X = FMath::Max(DesiredSize.X, Size.X + Left);
		DesiredSize.Y = FMath::Max(DesiredSize.Y, Size.Y + Top);
	}
	return DesiredSize;
}

void SConstraintCanvas::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	TArray<int32> PaintOrder;
	PaintOrder.Reserve(Children.Num());
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		PaintOrder.Add(Index);
	}
	PaintOrder.StableSort([this](int32 A, int32 B) { return Children[A].GetZOrder() < Children[B].GetZOrder(); });

	const FVector2D AllottedSize = AllottedGeometry.GetLocalSize();
	for (const int32 Index : PaintOrder)
	{
		const FSlot& Slot = Children[Index];
		const EVisibility ChildVisibility = Slot.GetWidget()->GetVisibility();
		if (!ArrangedChildren.Accepts(ChildVisibility))
		{
			continue;
		}
		const FMargin Offset = Slot.GetOffset();
		const FAnchors Anchors = Slot.GetAnchors();
		const FVector2D Alignment = Slot.GetAlignment();
		const FVector2D Size = Slot.GetAutoSize() ? Slot.GetWidget()->GetDesiredSize() : FVector2D(Offset.Right, Offset.Bottom);

		const FAxisPlacement X = PlaceOnAxis(AllottedSize.X, Anchors.Minimum.X, Anchors.Maximum.X, Offset.Left, Offset.Right, Size.X, Alignment.X);
		const FAxisPlacement Y = PlaceOnAxis(AllottedSize.Y, Anchors.Minimum.Y, Anchors.Maximum.Y, Offset.Top, Offset.Bottom, Size.Y, Alignment.Y);
		ArrangedChildren.AddWidget(ChildVisibility, AllottedGeometry.MakeChild(Slot.GetWidget(), FVector2D(X.Position, Y.Position), FVector2D(X.Size, Y.Size)));
	}
}

int32 SConstraintCanvas::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	FArrangedChildren ArrangedChildren(EVisibility::Visible);
	ArrangeChildren(AllottedGeometry, ArrangedChildren);

	// Each child starts above everything painted before it, so a later child (higher z-order)
	// covers the whole subtree of an earlier one, not just its first layer.
	const FPaintArgs NewArgs = Args.WithNewParent(this);
	const bool bShouldBeEnabled = ShouldBeEnabled(bParentEnabled);
	int32 MaxLayerId = LayerId;
	for (int32 ChildIndex = 0; ChildIndex < ArrangedChildren.Num(); ++ChildIndex)
	{
		const FArrangedWidget& CurWidget = ArrangedChildren[ChildIndex];
		const int32 ChildLayerId = MaxLayerId + 1;
		const int32 CurWidgetsMaxLayerId =
			CurWidget.Widget->Paint(NewArgs, CurWidget.Geometry, MyCullingRect, OutDrawElements, ChildLayerId, InWidgetStyle, bShouldBeEnabled);
		MaxLayerId = FMath::Max(MaxLayerId, CurWidgetsMaxLayerId);
	}
	return MaxLayerId;
}

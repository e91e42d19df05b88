#include "Widgets/SBoxPanel.h"

#include "Layout/LayoutUtils.h"

namespace
{
	template <EOrientation Orientation>
	double AlongAxis(const FVector2D& Vector)
	{
		return Orientation == Orient_Horizontal ? Vector.X : Vector.Y;
	}

	// The space a child takes along the stacking axis before fill space is shared out.
	template <EOrientation Orientation>
	float AutoChildSize(const SBoxPanel::FSlot& Slot)
	{
		const float Desired = float(AlongAxis<Orientation>(Slot.GetWidget()->GetDesiredSize()));
		return Slot.GetMaxSize() > 0.0f ? FMath::Min(Desired, Slot.GetMaxSize()) : Desired;
	}

	template <EOrientation Orientation>
	FVector2D ComputeStackDesiredSize(const TPanelChildren<SBoxPanel::FSlot>& Children)
	{
		constexpr EOrientation Across = Orientation == Orient_Horizontal ? Orient_Vertical : Orient_Horizontal;
		double Along = 0.0;
		double Max = 0.0;
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			const SBoxPanel::FSlot& Slot = Children[Index];
			if (Slot.GetWidget()->GetVisibility() == EVisibility::Collapsed)
			{
				continue;
			}
			const FMargin Padding = Slot.GetPadding();
			Along += AutoChildSize<Orientation>(Slot) + Padding.GetTotalSpaceAlong<Orientation>();
			Max = FMath::Max(Max, AlongAxis<Across>(Slot.GetWidget()->GetDesiredSize()) + double(Padding.GetTotalSpaceAlong<Across>()));
		}
		return Orientation == Orient_Horizontal ? FVector2D(Along, Max) : FVector2D(Max, Along);
	}

	template <EOrientation Orientation>
	void ArrangeStack(const TPanelChildren<SBoxPanel::FSlot>& Children, const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren)
	{
		constexpr EOrientation Across = Orientation == Orient_Horizontal ? Orient_Vertical : Orient_Horizontal;
		const FVector2D LocalSize = AllottedGeometry.GetLocalSize();

		// Measure: what the auto children and all padding take, and how the rest is shared.
		float StretchTotal = 0.0f;
		float FixedTotal = 0.0f;
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			const SBoxPanel::FSlot& Slot = Children[Index];
			if (Slot.GetWidget()->GetVisibility() == EVisibility::Collapsed)
			{
				continue;
			}
			if (Slot.GetSizeRule() == SBoxPanel::SizeRule_Stretch)
			{
				StretchTotal += Slot.GetSizeValue();
			}
			else
			{
				FixedTotal += AutoChildSize<Orientation>(Slot);
			}
			FixedTotal += Slot.GetPadding().GetTotalSpaceAlong<Orientation>();
		}
		const float NonFixedSpace = FMath::Max(0.0f, float(AlongAxis<Orientation>(LocalSize)) - FixedTotal);

		// Distribute and place, one after another along the axis.
		float PositionSoFar = 0.0f;
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			const SBoxPanel::FSlot& Slot = Children[Index];
			const EVisibility ChildVisibility = Slot.GetWidget()->GetVisibility();
			if (ChildVisibility == EVisibility::Collapsed)
			{
				continue;
			}
			float ChildSize = 0.0f;
			if (Slot.GetSizeRule() == SBoxPanel::SizeRule_Stretch)
			{
				ChildSize = StretchTotal > 0.0f ? NonFixedSpace * Slot.GetSizeValue() / StretchTotal : 0.0f;
				if (Slot.GetMaxSize() > 0.0f)
				{
					ChildSize = FMath::Min(ChildSize, Slot.GetMaxSize());
				}
			}
			else
			{
				ChildSize = AutoChildSize<Orientation>(Slot);
			}

			const FMargin Padding = Slot.GetPadding();
			const AlignmentArrangeResult AcrossResult = AlignChild<Across>(float(AlongAxis<Across>(LocalSize)), Slot, Padding);
			// Along the axis the child is aligned within its share, so a fill slot need not stretch it.
			const AlignmentArrangeResult AlongResult = AlignChild<Orientation>(ChildSize + Padding.GetTotalSpaceAlong<Orientation>(), Slot, Padding);
			const float AlongOffset = PositionSoFar + AlongResult.Offset;
			const FVector2D Offset = Orientation == Orient_Horizontal ? FVector2D(AlongOffset, AcrossResult.Offset) : FVector2D(AcrossResult.Offset, AlongOffset);
			const FVector2D Size =
				Orientation == Orient_Horizontal ? FVector2D(AlongResult.Size, AcrossResult.Size) : FVector2D(AcrossResult.Size, AlongResult.Size);
			ArrangedChildren.AddWidget(ChildVisibility, AllottedGeometry.MakeChild(Slot.GetWidget(), Offset, Size));

			PositionSoFar += ChildSize + Padding.GetTotalSpaceAlong<Orientation>();
		}
	}
}

SBoxPanel::SBoxPanel(EOrientation InOrientation)
	: Children(this)
	, Orientation(InOrientation)
{
}

int32 SBoxPanel::RemoveSlot(const TSharedRef<SWidget>& SlotWidget)
{
	return Children.Remove(SlotWidget);
}

void SBoxPanel::ClearChildren()
{
	Children.Empty();
}

FVector2D SBoxPanel::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	return Orientation == Orient_Horizontal ? ComputeStackDesiredSize<Orient_Horizontal>(Children) : ComputeStackDesiredSize<Orient_Vertical>(Children);
}

void SBoxPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	if (Orientation == Orient_Horizontal)
	{
		ArrangeStack<Orient_Horizontal>(Children, AllottedGeometry, ArrangedChildren);
	}
	else
	{
		ArrangeStack<Orient_Vertical>(Children, AllottedGeometry, ArrangedChildren);
	}
}

void SVerticalBox::Construct(const FArguments& InArgs)
{
	Children.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
}

SVerticalBox::FScopedWidgetSlotArguments SVerticalBox::AddSlot()
{
	return InsertSlot(INDEX_NONE);
}

SVerticalBox::FScopedWidgetSlotArguments SVerticalBox::InsertSlot(int32 Index)
{
	return FScopedWidgetSlotArguments(MakeUnique<FSlot>(), Children, Index);
}

// The one rule for fitting a child into the space a slot offers along one axis: fill it, or
// keep the child's desired size (clamped to the space) and place it left/top, centre or
// right/bottom, after the slot's padding.
#pragma once

#include "Layout/Margin.h"
#include "Math/UnrealMathUtility.h"
#include "Types/SlateEnums.h"
#include "Widgets/SWidget.h"

struct AlignmentArrangeResult
{
	AlignmentArrangeResult(float InOffset, float InSize)
		: Offset(InOffset)
		, Size(InSize)
	{
	}

	float Offset;
	float Size;
};

namespace ArrangeUtils
{
	template <EOrientation Orientation>
	struct GetChildAlignment
	{
		template <typename SlotType>
		static int32 AsInt(const SlotType& InSlot)
		{
			if constexpr (Orientation == Orient_Horizontal)
			{
				return int32(InSlot.GetHorizontalAlignment());
			}
			else
			{
				return int32(InSlot.GetVerticalAlignment());
			}
		}
	};
}

template <EOrientation Orientation, typename SlotType>
static AlignmentArrangeResult AlignChild(float AllottedSize, float ChildDesiredSize, const SlotType& ChildToArrange, const FMargin& SlotPadding,
	const float& ContentScale = 1.0f, bool bClampToParent = true)
{
	const float TotalMargin = SlotPadding.GetTotalSpaceAlong<Orientation>();
	const float MarginPre = (Orientation == Orient_Horizontal) ? SlotPadding.Left : SlotPadding.Top;
	const float MarginPost = (Orientation == Orient_Horizontal) ? SlotPadding.Right : SlotPadding.Bottom;
	const int32 Alignment = ArrangeUtils::GetChildAlignment<Orientation>::AsInt(ChildToArrange);

	if (Alignment == HAlign_Fill)
	{
		return AlignmentArrangeResult(MarginPre, FMath::Max((AllottedSize - TotalMargin) * ContentScale, 0.0f));
	}

	const float ChildSize = FMath::Max(bClampToParent ? FMath::Min(ChildDesiredSize, AllottedSize - TotalMargin) : ChildDesiredSize, 0.0f);
	switch (Alignment)
	{
	case HAlign_Left:
		return AlignmentArrangeResult(MarginPre, ChildSize);
	case HAlign_Center:
		// Padding shifts the centred child by the difference of its two sides, as the engine does.
		return AlignmentArrangeResult((AllottedSize - ChildSize) / 2.0f + MarginPre - MarginPost, ChildSize);
	case HAlign_Right:
		return AlignmentArrangeResult(AllottedSize - ChildSize - MarginPost, ChildSize);
	default:
		return AlignmentArrangeResult(MarginPre, FMath::Max((AllottedSize - TotalMargin) * ContentScale, 0.0f));
	}
}

// The child's own desired size along the axis.
template <EOrientation Orientation, typename SlotType>
static AlignmentArrangeResult AlignChild(float AllottedSize, const SlotType& ChildToArrange, const FMargin& SlotPadding, const float& ContentScale = 1.0f,
	bool bClampToParent = true)
{
	const FVector2D DesiredSize = ChildToArrange.GetWidget()->GetDesiredSize();
	const float ChildDesiredSize = float(Orientation == Orient_Horizontal ? DesiredSize.X * ContentScale : DesiredSize.Y * ContentScale);
	return AlignChild<Orientation>(AllottedSize, ChildDesiredSize, ChildToArrange, SlotPadding, ContentScale, bClampToParent);
}

// Places each child by anchors, offsets and alignment, and draws children in z-order: a higher
// z-order is painted later, on a higher layer; equal z-orders keep the order they were added in.
#pragma once

#include "Layout/Children.h"
#include "Layout/Margin.h"
#include "Layout/SlotBase.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/Anchors.h"
#include "Widgets/SPanel.h"

class SConstraintCanvas : public SPanel
{
public:
	class FSlot : public TSlotBase<FSlot>
	{
	public:
		// Offsets are left, top, width and height for an unstretched axis; for a stretched axis
		// the two sides are insets from the anchor lines.
		FSlot()
			: Offset(FMargin(0.0f, 0.0f, 1.0f, 1.0f))
			, Anchors(FAnchors(0.0f, 0.0f))
			, Alignment(FVector2D(0.5, 0.5))
			, bAutoSize(false)
			, ZOrder(0.0f)
		{
		}

		struct FSlotArguments : public TSlotBase<FSlot>::FSlotArguments
		{
			explicit FSlotArguments(TUniquePtr<FSlot> InSlot)
				: TSlotBase<FSlot>::FSlotArguments(MoveTemp(InSlot))
			{
			}

			FSlotArguments& Offset(const FMargin& InOffset)
			{
				_Offset = InOffset;
				return *this;
			}

			FSlotArguments& Anchors(const FAnchors& InAnchors)
			{
				_Anchors = InAnchors;
				return *this;
			}

			FSlotArguments& Alignment(const FVector2D& InAlignment)
			{
				_Alignment = InAlignment;
				return *this;
			}

			FSlotArguments& AutoSize(bool bInAutoSize)
			{
				_AutoSize = bInAutoSize;
				return *this;
			}

			FSlotArguments& ZOrder(float InZOrder)
			{
				_ZOrder = InZOrder;
				return *this;
			}

			TOptional<FMargin> _Offset;
			TOptional<FAnchors> _Anchors;
			TOptional<FVector2D> _Alignment;
			TOptional<bool> _AutoSize;
			TOptional<float> _ZOrder;
		};

		void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
		{
			Offset = InArgs._Offset.Get(Offset);
			Anchors = InArgs._Anchors.Get(Anchors);
			Alignment = InArgs._Alignment.Get(Alignment);
			bAutoSize = InArgs._AutoSize.Get(bAutoSize);
			ZOrder = InArgs._ZOrder.Get(ZOrder);
			TSlotBase<FSlot>::Construct(SlotOwner, MoveTemp(InArgs));
		}

		void SetOffset(const FMargin& InOffset)
		{
			Offset = InOffset;
		}

		FMargin GetOffset() const
		{
			return Offset;
		}

		void SetAnchors(const FAnchors& InAnchors)
		{
			Anchors = InAnchors;
		}

		FAnchors GetAnchors() const
		{
			return Anchors;
		}

		void SetAlignment(const FVector2D& InAlignment)
		{
			Alignment = InAlignment;
		}

		FVector2D GetAlignment() const
		{
			return Alignment;
		}

		void SetAutoSize(bool bInAutoSize)
		{
			bAutoSize = bInAutoSize;
		}

		bool GetAutoSize() const
		{
			return bAutoSize;
		}

		void SetZOrder(float InZOrder)
		{
			ZOrder = InZOrder;
		}

		float GetZOrder() const
		{
			return ZOrder;
		}

	private:
		FMargin Offset;
		FAnchors Anchors;
		FVector2D Alignment;
		bool bAutoSize;
		float ZOrder;
	};

	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;

	SLATE_BEGIN_ARGS(SConstraintCanvas)
		{}
		SLATE_SLOT_ARGUMENT(FSlot, Slots)
	SLATE_END_ARGS()

	static FSlot::FSlotArguments Slot()
	{
		return FSlot::FSlotArguments(MakeUnique<FSlot>());
	}

	SLATE_API SConstraintCanvas();
	SLATE_API void Construct(const FArguments& InArgs);

	FChildren* GetChildren() override
	{
		return &Children;
	}

	SLATE_API FScopedWidgetSlotArguments AddSlot();
	// Returns the index the widget had, or INDEX_NONE.
	SLATE_API int32 RemoveSlot(const TSharedRef<SWidget>& SlotWidget);
	SLATE_API void ClearChildren();

	int32 NumSlots() const
	{
		return Children.Num();
	}

protected:
	// Big enough for every child that is not collapsed: an auto-sized child by its desired size,
	// any other by the width and height of its offsets, plus its left or top offset on an axis
	// where it is docked to an edge (both anchors at 0, or both at 1).
	SLATE_API FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	// In z-order, so that painting in arrange order draws higher z-orders on top.
	SLATE_API void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	SLATE_API int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	TPanelChildren<FSlot> Children;
};

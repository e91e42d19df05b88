// Panels that stack their children along one axis: each child takes its desired size (auto) or a
// share of the space the auto children leave (fill), and is aligned across the axis.
#pragma once

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Layout/Children.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

class SBoxPanel : public SPanel
{
public:
	enum ESizeRule : uint8
	{
		SizeRule_Auto,
		SizeRule_Stretch,
	};

	class FSlot : public TBasicLayoutWidgetSlot<FSlot>
	{
	public:
		// A new slot fills, with a coefficient of one, as the engine's does.
		FSlot()
			: TBasicLayoutWidgetSlot<FSlot>(HAlign_Fill, VAlign_Fill)
			, SizeRule(SizeRule_Stretch)
			, SizeValue(1.0f)
			, MaxSize(0.0f)
		{
		}

		struct FSlotArguments : public TBasicLayoutWidgetSlot<FSlot>::FSlotArguments
		{
			explicit FSlotArguments(TUniquePtr<FSlot> InSlot)
				: TBasicLayoutWidgetSlot<FSlot>::FSlotArguments(MoveTemp(InSlot))
			{
			}

			FSlotArguments& AutoHeight()
			{
				_SizeRule = SizeRule_Auto;
				return *this;
			}

			FSlotArguments& AutoWidth()
			{
				return AutoHeight();
			}

			FSlotArguments& FillHeight(float StretchCoefficient)
			{
				_SizeRule = SizeRule_Stretch;
				_SizeValue = StretchCoefficient;
				return *this;
			}

			FSlotArguments& FillWidth(float StretchCoefficient)
			{
				return FillHeight(StretchCoefficient);
			}

			// Zero means no limit.
			FSlotArguments& MaxHeight(float InMaxSize)
			{
				_MaxSize = InMaxSize;
				return *this;
			}

			FSlotArguments& MaxWidth(float InMaxSize)
			{
				return MaxHeight(InMaxSize);
			}

			TOptional<ESizeRule> _SizeRule;
			TOptional<float> _SizeValue;
			TOptional<float> _MaxSize;
		};

		void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
		{
			if (InArgs._SizeRule.IsSet())
			{
				SizeRule = InArgs._SizeRule.GetValue();
			}
			if (InArgs._SizeValue.IsSet())
			{
				SizeValue = InArgs._SizeValue.GetValue();
			}
			if (InArgs._MaxSize.IsSet())
			{
				MaxSize = InArgs._MaxSize.GetValue();
			}
			TBasicLayoutWidgetSlot<FSlot>::Construct(SlotOwner, MoveTemp(InArgs));
		}

		ESizeRule GetSizeRule() const
		{
			return SizeRule;
		}

		float GetSizeValue() const
		{
			return SizeValue;
		}

		float GetMaxSize() const
		{
			return MaxSize;
		}

		void SetAutoHeight()
		{
			SizeRule = SizeRule_Auto;
		}

		void SetAutoWidth()
		{
			SetAutoHeight();
		}

		void SetFillHeight(float StretchCoefficient)
		{
			SizeRule = SizeRule_Stretch;
			SizeValue = StretchCoefficient;
		}

		void SetFillWidth(float StretchCoefficient)
		{
			SetFillHeight(StretchCoefficient);
		}

		void SetMaxHeight(float InMaxSize)
		{
			MaxSize = InMaxSize;
		}

		void SetMaxWidth(float InMaxSize)
		{
			SetMaxHeight(InMaxSize);
		}

	private:
		ESizeRule SizeRule;
		float SizeValue;
		float MaxSize;
	};

	FChildren* GetChildren() override
	{
		return &Children;
	}

	int32 NumSlots() const
	{
		return Children.Num();
	}

	FSlot& GetSlot(int32 SlotIndex)
	{
		return Children[SlotIndex];
	}

	// Returns the index the widget had, or INDEX_NONE.
	SLATE_API int32 RemoveSlot(const TSharedRef<SWidget>& SlotWidget);
	SLATE_API void ClearChildren();

	EOrientation GetOrientation() const
	{
		return Orientation;
	}

protected:
	SLATE_API explicit SBoxPanel(EOrientation InOrientation);

	SLATE_API FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	SLATE_API void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

	TPanelChildren<FSlot> Children;
	const EOrientation Orientation;
};

class SVerticalBox : public SBoxPanel
{
public:
	using FSlot = SBoxPanel::FSlot;
	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;

	SLATE_BEGIN_ARGS(SVerticalBox)
		{}
		SLATE_SLOT_ARGUMENT(FSlot, Slots)
	SLATE_END_ARGS()

	static FSlot::FSlotArguments Slot()
	{
		return FSlot::FSlotArguments(MakeUnique<FSlot>());
	}

	SVerticalBox()
		: SBoxPanel(Orient_Vertical)
	{
	}

	SLATE_API void Construct(const FArguments& InArgs);

	// The slot is added when the returned arguments go out of scope, as in AddSlot().AutoHeight()[Widget].
	SLATE_API FScopedWidgetSlotArguments AddSlot();
	SLATE_API FScopedWidgetSlotArguments InsertSlot(int32 Index);
};

// Slots with padding and horizontal/vertical alignment, the layout most panels share.
#pragma once

#include "Layout/Children.h"
#include "Layout/Margin.h"
#include "Layout/SlotBase.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Types/SlateEnums.h"

template <typename SlotType>
class TBasicLayoutWidgetSlot : public TSlotBase<SlotType>
{
public:
	TBasicLayoutWidgetSlot(EHorizontalAlignment InHAlign = HAlign_Fill, EVerticalAlignment InVAlign = VAlign_Fill)
		: HAlignment(InHAlign)
		, VAlignment(InVAlign)
	{
	}

	struct FSlotArguments : public TSlotBase<SlotType>::FSlotArguments
	{
		using TSlotBase<SlotType>::FSlotArguments::FSlotArguments;

		typename SlotType::FSlotArguments& HAlign(EHorizontalAlignment InHAlignment)
		{
			_HAlignment = InHAlignment;
			return this->Me();
		}

		typename SlotType::FSlotArguments& VAlign(EVerticalAlignment InVAlignment)
		{
			_VAlignment = InVAlignment;
			return this->Me();
		}

		typename SlotType::FSlotArguments& Padding(const TAttribute<FMargin>& InPadding)
		{
			_Padding = InPadding;
			return this->Me();
		}

		typename SlotType::FSlotArguments& Padding(float Uniform)
		{
			return Padding(TAttribute<FMargin>(FMargin(Uniform)));
		}

		typename SlotType::FSlotArguments& Padding(float Horizontal, float Vertical)
		{
			return Padding(TAttribute<FMargin>(FMargin(Horizontal, Vertical)));
		}

		typename SlotType::FSlotArguments& Padding(float Left, float Top, float Right, float Bottom)
		{
			return Padding(TAttribute<FMargin>(FMargin(Left, Top, Right, Bottom)));
		}

		TOptional<EHorizontalAlignment> _HAlignment;
		TOptional<EVerticalAlignment> _VAlignment;
		TAttribute<FMargin> _Padding;
	};

	void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
	{
		if (InArgs._HAlignment.IsSet())
		{
			HAlignment = InArgs._HAlignment.GetValue();
		}
		if (InArgs._VAlignment.IsSet())
		{
			VAlignment = InArgs._VAlignment.GetValue();
		}
		if (InArgs._Padding.IsSet())
		{
			SlotPadding = InArgs._Padding;
		}
		TSlotBase<SlotType>::Construct(SlotOwner, MoveTemp(InArgs));
	}

	void SetHorizontalAlignment(EHorizontalAlignment InHAlignment)
	{
		HAlignment = InHAlignment;
	}

	EHorizontalAlignment GetHorizontalAlignment() const
	{
		return HAlignment;
	}

	void SetVerticalAlignment(EVerticalAlignment InVAlignment)
	{
		VAlignment = InVAlignment;
	}

	EVerticalAlignment GetVerticalAlignment() const
	{
		return VAlignment;
	}

	void SetPadding(TAttribute<FMargin> InPadding)
	{
		SlotPadding = MoveTemp(InPadding);
	}

	FMargin GetPadding() const
	{
		return SlotPadding.Get(FMargin());
	}

private:
	EHorizontalAlignment HAlignment;
	EVerticalAlignment VAlignment;
	TAttribute<FMargin> SlotPadding;
};

// The one child of a compound widget: children list and slot in one, set up fluently
// (ChildSlot.Padding(4).HAlign(HAlign_Center)[Content]).
class FSingleWidgetChildrenWithBasicLayoutSlot : public FChildren, public FSlotBase
{
public:
	explicit FSingleWidgetChildrenWithBasicLayoutSlot(SWidget* InOwner)
		: FChildren(InOwner)
		, HAlignment(HAlign_Fill)
		, VAlignment(VAlign_Fill)
	{
	}

	int32 Num() const override
	{
		return 1;
	}

	TSharedRef<SWidget> GetChildAt(int32 Index) override
	{
		check(Index == 0);
		return GetWidget();
	}

	TSharedRef<const SWidget> GetChildAt(int32 Index) const override
	{
		check(Index == 0);
		return GetWidget();
	}

	FSingleWidgetChildrenWithBasicLayoutSlot& operator[](const TSharedRef<SWidget>& InChildWidget)
	{
		AttachWidget(InChildWidget);
		return *this;
	}

	FSingleWidgetChildrenWithBasicLayoutSlot& HAlign(EHorizontalAlignment InHAlignment)
	{
		HAlignment = InHAlignment;
		return *this;
	}

	FSingleWidgetChildrenWithBasicLayoutSlot& VAlign(EVerticalAlignment InVAlignment)
	{
		VAlignment = InVAlignment;
		return *this;
	}

	FSingleWidgetChildrenWithBasicLayoutSlot& Padding(const TAttribute<FMargin>& InPadding)
	{
		SlotPadding = InPadding;
		return *this;
	}

	void SetHorizontalAlignment(EHorizontalAlignment InHAlignment)
	{
		HAlignment = InHAlignment;
	}

	EHorizontalAlignment GetHorizontalAlignment() const
	{
		return HAlignment;
	}

	void SetVerticalAlignment(EVerticalAlignment InVAlignment)
	{
		VAlignment = InVAlignment;
	}

	EVerticalAlignment GetVerticalAlignment() const
	{
		return VAlignment;
	}

	void SetPadding(TAttribute<FMargin> InPadding)
	{
		SlotPadding = MoveTemp(InPadding);
	}

	FMargin GetPadding() const
	{
		return SlotPadding.Get(FMargin());
	}

private:
	EHorizontalAlignment HAlignment;
	EVerticalAlignment VAlignment;
	TAttribute<FMargin> SlotPadding;
};

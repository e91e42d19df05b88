// A place for one child widget inside a panel, and the declarative arguments that build it.
#pragma once

#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"
#include "Widgets/SNullWidget.h"

class SWidget;
class FChildren;

class FSlotBase
{
public:
	FSlotBase()
		: Widget(SNullWidget::NullWidget)
	{
	}

	virtual ~FSlotBase() = default;

	const TSharedRef<SWidget>& GetWidget() const
	{
		return Widget;
	}

	void AttachWidget(const TSharedRef<SWidget>& InWidget)
	{
		Widget = InWidget;
	}

	// Leaves the null widget in the slot; returns what was there.
	const TSharedPtr<SWidget> DetachWidget()
	{
		TSharedPtr<SWidget> Detached = Widget;
		Widget = SNullWidget::NullWidget;
		return Detached;
	}

private:
	TSharedRef<SWidget> Widget;
};

template <typename SlotType>
class TSlotBase : public FSlotBase
{
public:
	// Arguments own the slot they will construct, so Expose can hand out its address at once.
	struct FSlotArguments
	{
		explicit FSlotArguments(TUniquePtr<SlotType> InSlot)
			: Slot(MoveTemp(InSlot))
		{
		}

		FSlotArguments(FSlotArguments&&) = default;
		FSlotArguments& operator=(FSlotArguments&&) = default;

		typename SlotType::FSlotArguments& operator[](const TSharedRef<SWidget>& InChildWidget)
		{
			ChildWidget = InChildWidget;
			return Me();
		}

		typename SlotType::FSlotArguments& Expose(SlotType*& OutVarToInit)
		{
			OutVarToInit = Slot.Get();
			return Me();
		}

		const TSharedPtr<SWidget>& GetAttachedWidget() const
		{
			return ChildWidget;
		}

		SlotType* GetSlot() const
		{
			return Slot.Get();
		}

		TUniquePtr<SlotType> StealSlot()
		{
			return MoveTemp(Slot);
		}

		typename SlotType::FSlotArguments& Me()
		{
			return static_cast<typename SlotType::FSlotArguments&>(*this);
		}

	private:
		TSharedPtr<SWidget> ChildWidget;
		TUniquePtr<SlotType> Slot;
	};

	void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
	{
		if (InArgs.GetAttachedWidget().IsValid())
		{
			AttachWidget(InArgs.GetAttachedWidget().ToSharedRef());
		}
	}
};

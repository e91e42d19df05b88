// The children of a widget, as the layout passes walk them.
#pragma once

#include "Containers/Array.h"
#include "Layout/SlotBase.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"

class SWidget;

class FChildren
{
public:
	explicit FChildren(SWidget* InOwner)
		: Owner(InOwner)
	{
	}

	virtual ~FChildren() = default;

	virtual int32 Num() const = 0;
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) = 0;
	virtual TSharedRef<const SWidget> GetChildAt(int32 Index) const = 0;

	SWidget& GetOwner() const
	{
		check(Owner);
		return *Owner;
	}

protected:
	SWidget* Owner;
};

class FNoChildren : public FChildren
{
public:
	static SLATECORE_API FNoChildren NoChildrenInstance;

	FNoChildren()
		: FChildren(nullptr)
	{
	}

	explicit FNoChildren(SWidget* InOwner)
		: FChildren(InOwner)
	{
	}

	int32 Num() const override
	{
		return 0;
	}

	TSharedRef<SWidget> GetChildAt(int32 Index) override
	{
		checkNoEntry();
		return SNullWidget::NullWidget;
	}

	TSharedRef<const SWidget> GetChildAt(int32 Index) const override
	{
		checkNoEntry();
		return SNullWidget::NullWidget;
	}
};

// Slots owned by a panel, in insertion order.
template <typename SlotType>
class TPanelChildren : public FChildren
{
public:
	explicit TPanelChildren(SWidget* InOwner)
		: FChildren(InOwner)
	{
	}

	int32 Num() const override
	{
		return Children.Num();
	}

	TSharedRef<SWidget> GetChildAt(int32 Index) override
	{
		return Children[Index]->GetWidget();
	}

	TSharedRef<const SWidget> GetChildAt(int32 Index) const override
	{
		return Children[Index]->GetWidget();
	}

	SlotType& operator[](int32 Index)
	{
		return *Children[Index];
	}

	const SlotType& operator[](int32 Index) const
	{
		return *Children[Index];
	}

	int32 AddSlot(typename SlotType::FSlotArguments&& SlotArgument)
	{
		return InsertSlot(MoveTemp(SlotArgument), Children.Num());
	}

	int32 InsertSlot(typename SlotType::FSlotArguments&& SlotArgument, int32 Index)
	{
		TUniquePtr<SlotType> NewSlot = SlotArgument.StealSlot();
		check(NewSlot.Get());
		NewSlot->Construct(*this, MoveTemp(SlotArgument));
		Index = (Index < 0 || Index > Children.Num()) ? Children.Num() : Index;
		Children.Insert(MoveTemp(NewSlot), Index);
		return Index;
	}

	void AddSlots(TArray<typename SlotType::FSlotArguments> SlotArguments)
	{
		for (typename SlotType::FSlotArguments& Argument : SlotArguments)
		{
			AddSlot(MoveTemp(Argument));
		}
	}

	// Returns the index the widget was at, or INDEX_NONE.
	int32 Remove(const TSharedRef<SWidget>& SlotWidget)
	{
		// From the end: clearing a panel removes its children last first, which keeps that linear.
		for (int32 Index = Children.Num() - 1; Index >= 0; --Index)
		{
			if (Children[Index]->GetWidget() == SlotWidget)
			{
				Children.RemoveAt(Index);
				return Index;
			}
		}
		return INDEX_NONE;
	}

	void RemoveAt(int32 Index)
	{
		Children.RemoveAt(Index);
	}

	void Empty()
	{
		Children.Empty();
	}

	// Adds a slot when the statement that built its arguments ends, as "AddSlot()[...]" expects.
	class FScopedWidgetSlotArguments final : public SlotType::FSlotArguments
	{
	public:
		FScopedWidgetSlotArguments(TUniquePtr<SlotType> InSlot, TPanelChildren& InChildren, int32 InIndex)
			: SlotType::FSlotArguments(MoveTemp(InSlot))
			, Children(InChildren)
			, Index(InIndex)
		{
		}

		FScopedWidgetSlotArguments(const FScopedWidgetSlotArguments&) = delete;
		FScopedWidgetSlotArguments& operator=(const FScopedWidgetSlotArguments&) = delete;

		~FScopedWidgetSlotArguments()
		{
			if (this->GetSlot())
			{
				Children.InsertSlot(MoveTemp(static_cast<typename SlotType::FSlotArguments&>(*this)), Index == INDEX_NONE ? Children.Num() : Index);
			}
		}

	private:
		TPanelChildren& Children;
		int32 Index;
	};

private:
	TArray<TUniquePtr<SlotType>> Children;
};

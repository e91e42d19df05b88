#include "Components/PanelWidget.h"

#include "Components/PanelSlot.h"

UPanelWidget::UPanelWidget(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bCanHaveMultipleChildren(true)
{
}

int32 UPanelWidget::GetChildrenCount() const
{
	return Slots.Num();
}

UWidget* UPanelWidget::GetChildAt(int32 Index) const
{
	return Slots.IsValidIndex(Index) && Slots[Index] ? Slots[Index]->Content.Get() : nullptr;
}

TArray<UWidget*> UPanelWidget::GetAllChildren() const
{
	TArray<UWidget*> Children;
	for (const TObjectPtr<UPanelSlot>& PanelSlot : Slots)
	{
		Children.Add(PanelSlot ? PanelSlot->Content.Get() : nullptr);
	}
	return Children;
}

int32 UPanelWidget::GetChildIndex(const UWidget* Content) const
{
	for (int32 Index = 0; Index < Slots.Num(); ++Index)
	{
		if (Slots[Index] && Slots[Index]->Content == Content)
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

bool UPanelWidget::HasChild(UWidget* Content) const
{
	return Content && Content->Slot && Content->Slot->Parent == this;
}

bool UPanelWidget::HasAnyChildren() const
{
	return Slots.Num() > 0;
}

UPanelSlot* UPanelWidget::AddChild(UWidget* Content)
{
	if (Content == nullptr)
	{
		return nullptr;
	}
	if (!bCanHaveMultipleChildren && GetChildrenCount() > 0)
	{
		return nullptr;
	}
	Content->RemoveFromParent();

	UPanelSlot* PanelSlot = NewObject<UPanelSlot>(this, GetSlotClass());
	PanelSlot->Content = Content;
	PanelSlot->Parent = this;
	Content->Slot = PanelSlot;
	Slots.Add(PanelSlot);
	OnSlotAdded(PanelSlot);
	return PanelSlot;
}

bool UPanelWidget::RemoveChildAt(int32 Index)
{
	if (!Slots.IsValidIndex(Index))
	{
		return false;
	}
	UPanelSlot* PanelSlot = Slots[Index];
	if (PanelSlot->Content)
	{
		PanelSlot->Content->Slot = nullptr;
	}
	Slots.RemoveAt(Index);
	OnSlotRemoved(PanelSlot);
	PanelSlot->ReleaseSlateResources(true);
	PanelSlot->Parent = nullptr;
	PanelSlot->Content = nullptr;
	return true;
}

bool UPanelWidget::RemoveChild(UWidget* Content)
{
	const int32 Index = GetChildIndex(Content);
	return Index != INDEX_NONE && RemoveChildAt(Index);
}

void UPanelWidget::ClearChildren()
{
	for (int32 Index = GetChildrenCount() - 1; Index >= 0; --Index)
	{
		RemoveChildAt(Index);
	}
}

TArray<UPanelSlot*> UPanelWidget::GetSlots() const
{
	TArray<UPanelSlot*> Result;
	for (const TObjectPtr<UPanelSlot>& PanelSlot : Slots)
	{
		Result.Add(PanelSlot.Get());
	}
	return Result;
}

void UPanelWidget::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	for (const TObjectPtr<UPanelSlot>& PanelSlot : Slots)
	{
		if (PanelSlot)
		{
			PanelSlot->ReleaseSlateResources(bReleaseChildren);
		}
	}
}

UClass* UPanelWidget::GetSlotClass() const
{
	return UPanelSlot::StaticClass();
}

void UPanelWidget::OnSlotAdded(UPanelSlot* InSlot)
{
}

void UPanelWidget::OnSlotRemoved(UPanelSlot* InSlot)
{
}

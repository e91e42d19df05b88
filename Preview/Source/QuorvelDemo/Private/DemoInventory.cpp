#include "DemoInventory.h"

#include "QuorvelStashPanel.h"

void UDemoInventory::Watch(UQuorvelStashPanel* Panel)
{
	Panel->OnDepositAccepted.AddUniqueDynamic(this, &UDemoInventory::HandleDepositAccepted);
	Panel->OnWithdrawAccepted.AddUniqueDynamic(this, &UDemoInventory::HandleWithdrawAccepted);
}

const FDemoCarriedStack* UDemoInventory::GetStack(int32 Slot) const
{
	return Slots.IsValidIndex(Slot) && Slots[Slot].Quantity > 0 ? &Slots[Slot] : nullptr;
}

void UDemoInventory::HandleDepositAccepted(FName ItemId, int32 Quantity, int32 SourceSlot)
{
	// The slot the item was dragged from, unless it no longer holds that item; then any that does.
	int32 Slot = SourceSlot;
	if (!Slots.IsValidIndex(Slot) || Slots[Slot].ItemId != ItemId)
	{
		Slot = Slots.IndexOfByPredicate([ItemId](const FDemoCarriedStack& Stack) { return Stack.ItemId == ItemId && Stack.Quantity > 0; });
	}
	if (Slot == INDEX_NONE)
	{
		return;
	}
	FDemoCarriedStack& Stack = Slots[Slot];
	Stack.Quantity = FMath::Max(Stack.Quantity - Quantity, 0);
	if (Stack.Quantity == 0)
	{
		Stack.ItemId = NAME_None;
	}
	++Revision;
}

void UDemoInventory::HandleWithdrawAccepted(const FQuorvelItemInstance& Instance)
{
	const int32 Quantity = FMath::Max(Instance.Quantity, 1);
	int32 Slot = Slots.IndexOfByPredicate([&Instance](const FDemoCarriedStack& Stack) { return Stack.ItemId == Instance.ItemId && Stack.Quantity > 0; });
	if (Slot == INDEX_NONE)
	{
		Slot = Slots.IndexOfByPredicate([](const FDemoCarriedStack& Stack) { return Stack.Quantity == 0; });
	}
	if (Slot == INDEX_NONE)
	{
		Slot = Slots.AddDefaulted();
	}
	Slots[Slot].ItemId = Instance.ItemId;
	Slots[Slot].Quantity += Quantity;
	++Revision;
}

// The character's own inventory, as the demo game keeps it: a row of slots that only the stash
// panels' acceptances change. A deposit leaves the slot it was dragged from once the platform holds
// it; a withdrawn stack joins the character once the platform has released it.
#pragma once

#include "CoreMinimal.h"
#include "QuorvelItemInstance.h"
#include "UObject/Object.h"

#include "DemoInventory.generated.h"

class UQuorvelStashPanel;

/** What one slot of the character holds. */
USTRUCT(BlueprintType)
struct QUORVELDEMO_API FDemoCarriedStack
{
	GENERATED_BODY()

	/** The item, named as the item table names its row; None for an empty slot. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Demo")
	FName ItemId;

	/** How many the character carries in this slot. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Demo")
	int32 Quantity = 0;
};

UCLASS()
class QUORVELDEMO_API UDemoInventory : public UObject
{
	GENERATED_BODY()

public:
	/** Changes the inventory on the panel's acceptances: binds to its deposit and withdraw delegates. */
	void Watch(UQuorvelStashPanel* Panel);

	/** The stack a slot holds, or null for an empty or missing slot. */
	const FDemoCarriedStack* GetStack(int32 Slot) const;

	/** The platform holds the deposit now: the game gives up its own copy. */
	UFUNCTION()
	void HandleDepositAccepted(FName ItemId, int32 Quantity, int32 SourceSlot);

	/** The platform released the stack: the character takes it, onto a slot with the same item or the first empty one. */
	UFUNCTION()
	void HandleWithdrawAccepted(const FQuorvelItemInstance& Instance);

	/** The character's slots, in the order the strip shows them. */
	UPROPERTY()
	TArray<FDemoCarriedStack> Slots;

	/** Counts changes, so that a screen knows when to redraw. */
	int32 Revision = 0;
};

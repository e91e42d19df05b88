// What a game hears from one panel, in order, and how those notifications changed the game's own
// inventory: items leave it when a deposit is accepted and join it when a withdraw is.
#pragma once

#include "CoreMinimal.h"
#include "QuorvelError.h"
#include "QuorvelItemInstance.h"
#include "UObject/Object.h"

#include "EndToEndListener.generated.h"

UCLASS()
class UEndToEndListener : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION()
	void HandleLoaded(int32 StackCount)
	{
		++Loads;
		Heard.Add(FString::Printf(TEXT("loaded %d"), StackCount));
	}

	UFUNCTION()
	void HandleFailed(const FQuorvelError& Error)
	{
		++Failures;
		LastError = Error;
		Heard.Add(FString::Printf(TEXT("failed %d %s"), Error.HttpStatus, *Error.Code));
	}

	UFUNCTION()
	void HandleDeposit(FName ItemId, int32 Quantity, int32 SourceSlot)
	{
		++Accepted;
		HeldChange.FindOrAdd(ItemId) -= Quantity;
		Heard.Add(FString::Printf(TEXT("deposit %s %d %d"), *ItemId.ToString(), Quantity, SourceSlot));
	}

	UFUNCTION()
	void HandleWithdraw(const FQuorvelItemInstance& Instance)
	{
		++Accepted;
		HeldChange.FindOrAdd(Instance.ItemId) += Instance.Quantity;
		Heard.Add(FString::Printf(TEXT("withdraw %s %d"), *Instance.ItemId.ToString(), Instance.Quantity));
	}

	UFUNCTION()
	void HandleTransfer(const FQuorvelItemInstance& Instance)
	{
		++Accepted;
		Heard.Add(FString::Printf(TEXT("transfer %s %d"), *Instance.ItemId.ToString(), Instance.Quantity));
	}

	TArray<FString> Heard;
	/** What this panel's notifications added to (or took from) the game's own inventory, by item id. */
	TMap<FName, int32> HeldChange;
	int32 Loads = 0;
	int32 Failures = 0;
	int32 Accepted = 0;
	FQuorvelError LastError;
};

// Binds to the panel's delegates the way a game's script would, and remembers what it heard.
#pragma once

#include "CoreMinimal.h"
#include "QuorvelError.h"
#include "QuorvelItemInstance.h"
#include "UObject/Object.h"

#include "StashPanelListener.generated.h"

UCLASS()
class UStashPanelListener : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION()
	void HandleLoaded(int32 StackCount)
	{
		Heard.Add(FString::Printf(TEXT("loaded %d"), StackCount));
	}

	UFUNCTION()
	void HandleFailed(const FQuorvelError& Error)
	{
		Heard.Add(FString::Printf(TEXT("failed %d %s %s %s"), Error.HttpStatus, *Error.Code, *Error.Message, *Error.RequestId));
	}

	UFUNCTION()
	void HandleDeposit(FName ItemId, int32 Quantity, int32 SourceSlot)
	{
		Heard.Add(FString::Printf(TEXT("deposit %s %d %d"), *ItemId.ToString(), Quantity, SourceSlot));
	}

	/** Written for withdrawals; fits transfers unchanged because both share one delegate type. */
	UFUNCTION()
	void HandleInstance(const FQuorvelItemInstance& Instance)
	{
		Heard.Add(FString::Printf(TEXT("instance %s %s %d"), *Instance.InstanceId, *Instance.ItemId.ToString(), Instance.Quantity));
	}

	TArray<FString> Heard;
};

// Counts what a panel tells the game, so a benchmark can wait for a drawing or an acceptance.
#pragma once

#include "CoreMinimal.h"
#include "QuorvelError.h"
#include "UObject/Object.h"

#include "BenchmarkPanelListener.generated.h"

UCLASS()
class UBenchmarkPanelListener : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION()
	void HandleLoaded(int32 StackCount)
	{
		++Loads;
	}

	UFUNCTION()
	void HandleFailed(const FQuorvelError& Error)
	{
		++Failures;
	}

	UFUNCTION()
	void HandleDeposit(FName ItemId, int32 Quantity, int32 SourceSlot)
	{
		++Deposits;
	}

	int32 Loads = 0;
	int32 Failures = 0;
	int32 Deposits = 0;
};

// Binds to a panel's outcome delegates and counts what it heard, so a driver can wait for them.
#pragma once

#include "CoreMinimal.h"
#include "QuorvelError.h"
#include "UObject/Object.h"

#include "StashPanelWatcher.generated.h"

UCLASS()
class QUORVELDEMO_API UStashPanelWatcher : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION()
	void HandleLoaded(int32 StackCount);

	UFUNCTION()
	void HandleFailed(const FQuorvelError& Error);

	int32 Loads = 0;
	int32 Failures = 0;
	int32 LastStackCount = 0;
	FString LastError;
};

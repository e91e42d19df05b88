// Binds to every delegate of one panel, counts what it heard and writes it to a log in the order the
// game heard it, so that a driver can wait for an outcome and a person can read what happened.
#pragma once

#include "CoreMinimal.h"
#include "QuorvelError.h"
#include "QuorvelItemInstance.h"
#include "UObject/Object.h"

#include "StashPanelWatcher.generated.h"

class UQuorvelStashPanel;

/** What the game heard from its panels, oldest first, numbered from the start of the run. */
UCLASS()
class QUORVELDEMO_API UDemoNotificationLog : public UObject
{
	GENERATED_BODY()

public:
	void Add(const FString& Line);

	/** The latest lines, at most MaxLines of them. */
	TArray<FString> Latest(int32 MaxLines) const;

	/** Lines written so far, including those no longer kept. */
	int32 Total = 0;

private:
	TArray<FString> Lines;
};

UCLASS()
class QUORVELDEMO_API UStashPanelWatcher : public UObject
{
	GENERATED_BODY()

public:
	/** Binds to the panel's five delegates; what it hears goes to Log prefixed with Name. */
	void Watch(UQuorvelStashPanel* Panel, const FString& InName, UDemoNotificationLog* InLog);

	UFUNCTION()
	void HandleLoaded(int32 StackCount);

	UFUNCTION()
	void HandleFailed(const FQuorvelError& Error);

	UFUNCTION()
	void HandleDeposit(FName ItemId, int32 Quantity, int32 SourceSlot);

	UFUNCTION()
	void HandleWithdraw(const FQuorvelItemInstance& Instance);

	UFUNCTION()
	void HandleTransfer(const FQuorvelItemInstance& Instance);

	FString Name;

	UPROPERTY()
	TObjectPtr<UDemoNotificationLog> Log;

	int32 Loads = 0;
	int32 Failures = 0;
	/** Deposits, withdraws and transfers accepted. */
	int32 Accepted = 0;
	int32 LastStackCount = 0;
	FQuorvelError LastError;

private:
	void Write(const FString& Line);
};

// Delegate types declared at namespace scope, an object that broadcasts them and one that listens.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "TestReflectedTypes.h"

#include "TestDelegates.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FTestCountChanged, int32, Count);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(FTestDeposited, FName, ItemId, int32, Quantity, int32, SourceSlot);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FTestRecordChanged, const FTestRecord&, Record);

UCLASS()
class UTestBroadcaster : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Test")
	FTestCountChanged OnCountChanged;

	UPROPERTY(BlueprintAssignable, Category = "Test")
	FTestDeposited OnDeposited;

	UPROPERTY(BlueprintAssignable, Category = "Test")
	FTestRecordChanged OnWithdrawn;

	UPROPERTY(BlueprintAssignable, Category = "Test")
	FTestRecordChanged OnTransferred;
};

UCLASS()
class UTestListener : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION()
	void HandleCount(int32 Count);

	UFUNCTION()
	void HandleDeposit(FName ItemId, int32 Quantity, int32 SourceSlot);

	UFUNCTION()
	void HandleRecord(const FTestRecord& Record);

	/** What this listener answers to, in order, tagged with its Tag. */
	TArray<FString>* Log = nullptr;
	FString Tag;
	/** Runs inside HandleCount, after it logs. */
	TFunction<void(UTestListener*)> OnCount;
};

#pragma once

#include "CoreMinimal.h"

#include "StructWithSuperStruct.generated.h"

/** What every record shares. */
USTRUCT(BlueprintType)
struct FQuorvelRecordBase
{
	GENERATED_BODY()

	/** Server-side id. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	FString Id;

	UPROPERTY(EditAnywhere, Category = "Tollmere")
	bool bHasSlot = false;

	// Not reflected: no UPROPERTY.
	int32 Cache = 0;

	bool IsValid() const { return !Id.IsEmpty(); }
};

USTRUCT(BlueprintType, meta = (HasNativeMake = "QuorvelCore.QuorvelRecordLibrary.MakeSlotted"))
struct QUORVELCORE_API FQuorvelSlottedRecord : public FQuorvelRecordBase
{
	GENERATED_USTRUCT_BODY()

	/** Only meaningful when the base says so: the condition names an inherited property. */
	UPROPERTY(EditAnywhere, Category = "Tollmere", meta = (EditCondition = "bHasSlot && SlotIndex >= 0"))
	int32 SlotIndex = -1;
};

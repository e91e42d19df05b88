#pragma once

#include "CoreMinimal.h"

#include "QuorvelItemInstance.generated.h"

/** One stack in a container, as the platform reports it. */
USTRUCT(BlueprintType)
struct QUORVELCORE_API FQuorvelItemInstance
{
	GENERATED_BODY()

	/** The platform's id of this stack. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	FString InstanceId;

	/** The item definition; also the row name in the project's item table. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	FName ItemId;

	/** Stack size. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	int32 Quantity = 0;

	/** Position in a slot container; negative when the stack has no slot. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	int32 SlotIndex = -1;

	/** The platform's key of the slot, carried along unread. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	FString SlotKey;

	/** Column of the stack's top-left cell; negative when it has none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	int32 X = -1;

	/** Row of the stack's top-left cell; negative when it has none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	int32 Y = -1;

	/** The stack lies rotated in the grid. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	bool bRotated = false;

	/** Footprint width in cells. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	int32 GridW = 1;

	/** Footprint height in cells. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	int32 GridH = 1;
};

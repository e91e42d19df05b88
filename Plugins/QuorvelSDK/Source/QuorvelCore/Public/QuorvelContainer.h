#pragma once

#include "CoreMinimal.h"
#include "QuorvelItemInstance.h"

#include "QuorvelContainer.generated.h"

/** One container as the platform reports it. */
USTRUCT(BlueprintType)
struct QUORVELCORE_API FQuorvelContainer
{
	GENERATED_BODY()

	/** The platform's id of the container. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	FString ContainerId;

	/** The container kind, such as "stash". */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	FString Kind;

	/** The layout the container was created with, spelt as the platform spells it ("slots" or "grid"). */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	FString Layout;

	/** The stacks, in the order the platform listed them. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	TArray<FQuorvelItemInstance> Items;
};

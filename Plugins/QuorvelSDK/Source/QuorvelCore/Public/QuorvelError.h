#pragma once

#include "CoreMinimal.h"

#include "QuorvelError.generated.h"

/** Why a platform request failed. */
USTRUCT(BlueprintType)
struct QUORVELCORE_API FQuorvelError
{
	GENERATED_BODY()

	/** HTTP status of the reply; 0 when no reply arrived (no connection, time-out). */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	int32 HttpStatus = 0;

	/** The platform's error code, or the client's own for failures without a platform reply. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	FString Code;

	/** Human-readable explanation, shown to the player unchanged. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	FString Message;

	/** The platform's id of the failed request, for support tickets; empty when it sent none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	FString RequestId;

	/** True when sending the same request again later could succeed. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	bool bRetryable = false;
};

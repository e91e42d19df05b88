// The demo project's item table row: what a game keeps per item, the icon among it.
#pragma once

#include "CoreMinimal.h"
#include "Engine/DataTable.h"
#include "Engine/Texture2D.h"
#include "UObject/SoftObjectPtr.h"

#include "StashItemRow.generated.h"

USTRUCT(BlueprintType)
struct QUORVELDEMO_API FStashItemRow : public FTableRowBase
{
	GENERATED_BODY()

	/** The name players see. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Item")
	FText DisplayName;

	/** The inventory icon. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Item")
	TSoftObjectPtr<UTexture2D> Icon;
};

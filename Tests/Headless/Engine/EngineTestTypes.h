// Row structs for the data table tests, as a game project would declare them.
#pragma once

#include "CoreMinimal.h"
#include "Engine/DataTable.h"
#include "Engine/Texture2D.h"
#include "UObject/SoftObjectPtr.h"

#include "EngineTestTypes.generated.h"

UENUM()
enum class ETestItemRarity : uint8
{
	Common,
	Rare,
	Legendary,
};

/** One item of a game's item table. */
USTRUCT(BlueprintType)
struct FTestItemRow : public FTableRowBase
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Item")
	FText DisplayName;

	UPROPERTY(EditAnywhere, Category = "Item")
	int32 MaxStack = 1;

	UPROPERTY(EditAnywhere, Category = "Item")
	float Weight = 0.0f;

	UPROPERTY(EditAnywhere, Category = "Item")
	bool bTradable = false;

	UPROPERTY(EditAnywhere, Category = "Item")
	ETestItemRarity Rarity = ETestItemRarity::Common;

	UPROPERTY(EditAnywhere, Category = "Item")
	TSoftObjectPtr<UTexture2D> Icon;

	UPROPERTY(EditAnywhere, Category = "Item")
	TObjectPtr<UTexture2D> Thumbnail;

	UPROPERTY(EditAnywhere, Category = "Item")
	TArray<FName> Tags;
};

/** A row struct unrelated to the item row. */
USTRUCT(BlueprintType)
struct FTestOtherRow : public FTableRowBase
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Other")
	int32 Value = 0;
};

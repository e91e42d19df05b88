// An item row as a project might lay it out: the icon is the fourth of six fields.
#pragma once

#include "CoreMinimal.h"
#include "Engine/DataTable.h"
#include "Engine/Texture2D.h"
#include "UObject/SoftObjectPtr.h"

#include "BenchmarkItemRow.generated.h"

USTRUCT()
struct FBenchmarkItemRow : public FTableRowBase
{
	GENERATED_BODY()

	UPROPERTY()
	FText DisplayName;

	UPROPERTY()
	FString Description;

	UPROPERTY()
	int32 MaxStack = 1;

	UPROPERTY()
	TSoftObjectPtr<UTexture2D> ItemIcon_4_0123456789ABCDEF0123456789ABCDEF;

	UPROPERTY()
	float Weight = 0.0f;

	UPROPERTY()
	FName Category;
};

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "DataTable.generated.h"

/** Rows of one reflected structure, each under its own name. */
UCLASS()
class ENGINE_API UDataTable : public UObject
{
	GENERATED_BODY()
};

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "Visual.generated.h"

/** The base of everything that can be shown: widgets and the slots that place them. */
UCLASS(Abstract)
class UMG_API UVisual : public UObject
{
	GENERATED_BODY()
};

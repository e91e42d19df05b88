#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "Texture.generated.h"

/** The base of every texture asset. */
UCLASS(Abstract)
class ENGINE_API UTexture : public UObject
{
	GENERATED_BODY()
};

#pragma once

#include "CoreMinimal.h"
#include "Engine/Texture.h"

#include "Texture2D.generated.h"

/** A two-dimensional texture asset. */
UCLASS()
class ENGINE_API UTexture2D : public UTexture
{
	GENERATED_BODY()
};

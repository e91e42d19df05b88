#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "Texture.generated.h"

/** The base of every texture asset. */
UCLASS(Abstract, MinimalAPI, BlueprintType)
class UTexture : public UObject
{
	GENERATED_BODY()

public:
	/** Width of the texture's surface in pixels. */
	virtual float GetSurfaceWidth() const
	{
		return 0.0f;
	}

	/** Height of the texture's surface in pixels. */
	virtual float GetSurfaceHeight() const
	{
		return 0.0f;
	}
};

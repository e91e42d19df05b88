#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"

#include "Image.generated.h"

/** Draws a brush: a texture or a plain tinted rectangle. */
UCLASS()
class UMG_API UImage : public UWidget
{
	GENERATED_BODY()
};

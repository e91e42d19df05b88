#pragma once

#include "CoreMinimal.h"
#include "Components/TextLayoutWidget.h"

#include "TextBlock.generated.h"

/** A line or block of text. */
UCLASS()
class UMG_API UTextBlock : public UTextLayoutWidget
{
	GENERATED_BODY()
};

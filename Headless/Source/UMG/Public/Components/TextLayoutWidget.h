#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"

#include "TextLayoutWidget.generated.h"

/** The base of widgets that lay out text. */
UCLASS(Abstract)
class UMG_API UTextLayoutWidget : public UWidget
{
	GENERATED_BODY()
};

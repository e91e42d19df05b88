#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"

#include "PanelWidget.generated.h"

/** A widget that holds other widgets in slots. */
UCLASS(Abstract)
class UMG_API UPanelWidget : public UWidget
{
	GENERATED_BODY()
};

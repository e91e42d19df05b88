#pragma once

#include "CoreMinimal.h"
#include "Components/PanelWidget.h"

#include "VerticalBox.generated.h"

/** Stacks its children top to bottom. */
UCLASS()
class UMG_API UVerticalBox : public UPanelWidget
{
	GENERATED_BODY()
};

#pragma once

#include "CoreMinimal.h"
#include "Components/PanelWidget.h"

#include "CanvasPanel.generated.h"

/** Places its children at explicit positions and sizes. */
UCLASS()
class UMG_API UCanvasPanel : public UPanelWidget
{
	GENERATED_BODY()
};

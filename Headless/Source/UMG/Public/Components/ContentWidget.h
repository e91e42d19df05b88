#pragma once

#include "CoreMinimal.h"
#include "Components/PanelWidget.h"

#include "ContentWidget.generated.h"

/** A panel with at most one child. */
UCLASS(Abstract)
class UMG_API UContentWidget : public UPanelWidget
{
	GENERATED_BODY()

public:
	UContentWidget(const FObjectInitializer& ObjectInitializer);

	UPanelSlot* GetContentSlot() const;
	UWidget* GetContent() const;

	/** Replaces the content; returns the new content's slot. */
	UPanelSlot* SetContent(UWidget* Content);
};

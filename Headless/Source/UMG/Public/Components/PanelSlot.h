#pragma once

#include "CoreMinimal.h"
#include "Components/Visual.h"

#include "PanelSlot.generated.h"

class UPanelWidget;
class UWidget;

/** Where one child sits in its panel; each panel type has its own slot class with its own layout settings. */
UCLASS(BlueprintType)
class UMG_API UPanelSlot : public UVisual
{
	GENERATED_BODY()

public:
	/** The panel that owns this slot. */
	UPROPERTY()
	TObjectPtr<UPanelWidget> Parent;

	/** The widget this slot places. */
	UPROPERTY()
	TObjectPtr<UWidget> Content;

	/** Pushes the slot's settings to the Slate slot, if one has been built. */
	virtual void SynchronizeProperties();

	/** Forgets the Slate slot; with bReleaseChildren, releases the content's Slate widgets too. */
	virtual void ReleaseSlateResources(bool bReleaseChildren) override;
};

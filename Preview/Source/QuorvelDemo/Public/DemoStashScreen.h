// The demo game's stash screen: its stash beside a loadout, the character's own items beneath.
// The game composes it in code and keeps it on screen while the player moves items around.
#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "Templates/SubclassOf.h"

#include "DemoStashScreen.generated.h"

class UCanvasPanel;
class UDemoCharacterStrip;
class UDemoInventory;
class UQuorvelStashPanel;

UCLASS()
class QUORVELDEMO_API UDemoStashScreen : public UUserWidget
{
	GENERATED_BODY()

public:
	/**
	 * Makes the two panels (of PanelClass, so a script subclass may implement their events) and the
	 * strip for Inventory. Their properties may still be changed until the screen is first shown.
	 */
	void Compose(TSubclassOf<UQuorvelStashPanel> PanelClass, UDemoInventory* Inventory);

	/** Places the panels and the strip side by side as they are sized now; returns the size they take. */
	FVector2D Arrange();

	UPROPERTY()
	TObjectPtr<UQuorvelStashPanel> Stash;

	UPROPERTY()
	TObjectPtr<UQuorvelStashPanel> Loadout;

	UPROPERTY()
	TObjectPtr<UDemoCharacterStrip> Strip;

	/** Space around and between the three parts, in slate units. */
	float Margin = 24.0f;

private:
	UPROPERTY()
	TObjectPtr<UCanvasPanel> Layer;
};

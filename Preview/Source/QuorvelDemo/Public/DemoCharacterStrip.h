// The character's carried items as a row of squares under the stash: the game's own widget, built in
// code, with a hit test of its own so that a drag can start or end on it.
#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"

#include "DemoCharacterStrip.generated.h"

class UBorder;
class UCanvasPanel;
class UDataTable;
class UDemoInventory;
class UTexture2D;

UCLASS()
class QUORVELDEMO_API UDemoCharacterStrip : public UUserWidget
{
	GENERATED_BODY()

public:
	UDemoCharacterStrip(const FObjectInitializer& ObjectInitializer);

	/** Draws the inventory's slots again: call after it changed. */
	void Refresh();

	/** The slot under a desktop position, as of the last layout. */
	bool SlotAtScreenPosition(const FVector2D& ScreenPosition, int32& OutSlot) const;

	/** The slot's square in the strip's canvas, in slate units from its top-left corner. */
	FVector2D SlotPosition(int32 Slot) const;

	/** The canvas the squares are drawn on; its geometry maps them onto the desktop. */
	const UCanvasPanel* GetSlotCanvas() const
	{
		return SlotCanvas;
	}

	/** What the strip shows. */
	UPROPERTY()
	TObjectPtr<UDemoInventory> Inventory;

	/** Where the icons come from: rows named by item id, an Icon field each. */
	UPROPERTY()
	TObjectPtr<UDataTable> ItemTable;

	/** Squares drawn, filled or not. */
	UPROPERTY()
	int32 SlotCount;

	/** Side of a square, in slate units. */
	UPROPERTY()
	float SlotSize;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;

private:
	void BuildTree();
	UTexture2D* FindIcon(FName ItemId) const;

	UPROPERTY()
	TObjectPtr<UBorder> Root;

	UPROPERTY()
	TObjectPtr<UCanvasPanel> SlotCanvas;

	UPROPERTY()
	TArray<TObjectPtr<UWidget>> SlotWidgets;
};

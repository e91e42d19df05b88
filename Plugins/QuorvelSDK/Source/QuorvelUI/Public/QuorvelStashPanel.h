#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "QuorvelContainer.h"
#include "QuorvelContainerLayout.h"
#include "QuorvelError.h"
#include "QuorvelItemInstance.h"

#include "QuorvelStashPanel.generated.h"

class UBorder;
class UCanvasPanel;
class UDataTable;
class USizeBox;
class UTextBlock;
class UTexture2D;
class UWidget;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FQuorvelStashLoaded, int32, StackCount);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FQuorvelStashFailed, const FQuorvelError&, Error);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(FQuorvelDepositAccepted, FName, ItemId, int32, Quantity, int32, SourceSlot);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FQuorvelWithdrawAccepted, const FQuorvelItemInstance&, Instance);

/**
 * Shows a player's out-of-raid stash at the grid coordinates the platform stores.
 * The whole widget tree is built in code rather than expected from a designer layout, so adding this one widget to a menu is all it takes.
 * Everything worth restyling is an exposed property, and a script subclass can override anything it wants.
 * Icons come from the project's own data table, never from the platform, which keeps only a small thumbnail for its own dashboard.
 */
UCLASS(meta = (DisplayName = "Tollmere Stash Panel"))
class QUORVELUI_API UQuorvelStashPanel : public UUserWidget
{
	GENERATED_BODY()

public:
	UQuorvelStashPanel(const FObjectInitializer& ObjectInitializer);

	UPROPERTY(BlueprintAssignable, Category = "Tollmere")
	FQuorvelStashLoaded OnStashLoaded;

	UPROPERTY(BlueprintAssignable, Category = "Tollmere")
	FQuorvelStashFailed OnStashFailed;

	/**
	 * The platform accepted a deposit: remove the item from the character now.
	 * Fired only after the server has it, because taking the item locally first and then pushing loses it outright if the push fails, while this order risks at worst a duplicate that a resync corrects.
	 */
	UPROPERTY(BlueprintAssignable, Category = "Tollmere")
	FQuorvelDepositAccepted OnDepositAccepted;

	/** The platform released an item. Put it into the character's inventory now. */
	UPROPERTY(BlueprintAssignable, Category = "Tollmere")
	FQuorvelWithdrawAccepted OnWithdrawAccepted;

	/** A stack moved into this panel from another one. */
	UPROPERTY(BlueprintAssignable, Category = "Tollmere")
	FQuorvelWithdrawAccepted OnTransferAccepted;

	/** Loads as soon as the widget is constructed. Turn off to drive it yourself. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere")
	bool bLoadOnConstruct;

	/** The identity provider. `anonymous` is refused on production environments: a shipping game sets this to `steam` and supplies a real ticket. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere|Identity")
	FString Provider;

	/** For `anonymous`, simply the identifier to claim. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere|Identity")
	FString Ticket;

	/** The kind of container to show, such as "stash". */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere|Container")
	FString ContainerKind;

	/**
	 * Match this to the inventory the game already has: a flat run of equal squares is Slots, a two-dimensional grid in which stacks may cover several cells is Grid.
	 * Getting it wrong is not subtle: the container is created with this layout, and a grid container has no slot indices for a slot-based interface to draw.
	 */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere|Container")
	EQuorvelContainerLayout Layout;

	/** Grid only: columns of the grid. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere|Container", meta = (ClampMin = "1", EditCondition = "Layout == EQuorvelContainerLayout::Grid", EditConditionHides))
	int32 GridWidth;

	/** Grid only: rows of the grid. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere|Container", meta = (ClampMin = "1", EditCondition = "Layout == EQuorvelContainerLayout::Grid", EditConditionHides))
	int32 GridHeight;

	/** Slots only: how many squares the container holds. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere|Container", meta = (ClampMin = "1", EditCondition = "Layout == EQuorvelContainerLayout::Slots", EditConditionHides))
	int32 SlotCount;

	/** Slots only: how many squares are drawn per row. Purely how it looks: the container is a flat list either way, so changing this rearranges the panel without touching a single item. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere|Container", meta = (ClampMin = "1", EditCondition = "Layout == EQuorvelContainerLayout::Slots", EditConditionHides))
	int32 SlotColumns;

	/** Pixels per grid cell before layout scaling. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere|Appearance", meta = (ClampMin = "16"))
	float CellSize;

	/** Background of the whole panel. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere|Appearance")
	FLinearColor PanelColour;

	/** Colour of every empty cell. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere|Appearance")
	FLinearColor CellColour;

	/** Colour of the title and of the quantity labels on stacks. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere|Appearance")
	FLinearColor AccentColour;

	/** Text above the grid. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Tollmere|Appearance")
	FText Title;

	/**
	 * Signs the player in, ensures their stash exists, and draws it.
	 * A second call is safe: it replaces what is drawn instead of stacking a second grid on top of the first.
	 */
	UFUNCTION(BlueprintCallable, Category = "Tollmere")
	void LoadStash();

	/** Draws a stash already in hand, for a caller doing its own auth. */
	UFUNCTION(BlueprintCallable, Category = "Tollmere")
	void ShowContainer(const FQuorvelContainer& Container);

	/**
	 * Puts an item into the stash, then asks the game to remove its own copy.
	 * -1 for X and Y lets the server place it in the first space that fits; naming a cell asks for that cell and is refused if it is occupied, which is what a player dropping an item onto a square means.
	 */
	UFUNCTION(BlueprintCallable, Category = "Tollmere")
	void DepositItem(FName ItemId, int32 Quantity = 1, int32 X = -1, int32 Y = -1, int32 SourceSlot = -1);

	/** Takes an item out of the stash, then asks the game to add it. */
	UFUNCTION(BlueprintCallable, Category = "Tollmere")
	void WithdrawInstance(const FQuorvelItemInstance& Instance);

	/**
	 * Moves a stack out of another panel and into this one.
	 * Both panels show containers of the same player, so this is a single move on the server instead of a withdraw followed by a deposit: two calls would leave the item nowhere at all if the second one failed, with no game inventory holding it in between.
	 * This is what a loadout-and-stash screen is made of, and neither container belongs to the game.
	 */
	UFUNCTION(BlueprintCallable, Category = "Tollmere")
	void TransferFrom(UQuorvelStashPanel* Source, const FQuorvelItemInstance& Instance, int32 X = -1, int32 Y = -1);

	/** The grid cell under a screen position, for an interface placing something where the player let go. */
	UFUNCTION(BlueprintPure, Category = "Tollmere")
	bool CellAtScreenPosition(const FVector2D& ScreenPosition, int32& OutX, int32& OutY) const;

	/** The stack under a screen position, for a UI picking one up. */
	UFUNCTION(BlueprintPure, Category = "Tollmere")
	bool InstanceAtScreenPosition(const FVector2D& ScreenPosition, FQuorvelItemInstance& OutInstance) const;

	/** True once a player is signed in and their stash has been read. */
	UFUNCTION(BlueprintPure, Category = "Tollmere")
	bool IsReady() const;

	/** The platform accepted a deposit; remove the game's own copy now. SourceSlot is whatever was passed to DepositItem, handed back so the subclass need not remember what it sent. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Tollmere|Interaction")
	void OnDeposited(FName ItemId, int32 Quantity, int32 SourceSlot);

	/** The platform released an item; the game must now take ownership of it. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Tollmere|Interaction")
	void OnWithdrawn(const FQuorvelItemInstance& Instance);

	/** A stack arrived from another panel. Nothing is owed here, since the item never left the platform: unlike OnWithdrawn, this is only a notification. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Tollmere|Interaction")
	void OnTransferred(const FQuorvelItemInstance& Instance);

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual void NativeConstruct() override;

private:
	void BuildTree();
	void DrawGrid(int32 Columns, int32 Rows, int32 InSlotCount);
	void DrawItems(const FQuorvelContainer& Container);
	void ClearItems();
	bool LayOutForDisplay(FQuorvelContainer& Container) const;
	UTexture2D* FindIcon(const FString& ItemId) const;
	void SetStatus(const FText& Text, bool bError);
	void Reload();
	int32 SlotIndexAt(int32 X, int32 Y) const;

	/** The failure branch every completion shares: the error on the status line, then OnStashFailed. */
	void ShowFailure(const FQuorvelError& Error);

	UPROPERTY(Instanced)
	TObjectPtr<UBorder> Root;

	/**
	 * Holds the grid at an explicit size. A canvas panel reports no desired size, so a panel built on one vanishes inside any parent that asks its children how big they are (an overlay, a vertical box, most menus).
	 * This size box is what makes the widget work wherever somebody drops it.
	 */
	UPROPERTY(Instanced)
	TObjectPtr<USizeBox> GridSizer;

	UPROPERTY(Instanced)
	TObjectPtr<UCanvasPanel> GridCanvas;

	UPROPERTY(Instanced)
	TObjectPtr<UBorder> GridFrame;

	UPROPERTY(Instanced)
	TObjectPtr<UTextBlock> TitleText;

	UPROPERTY(Instanced)
	TObjectPtr<UTextBlock> StatusText;

	/** Widgets drawn for the current contents, cleared before a redraw. */
	UPROPERTY(Instanced)
	TArray<TObjectPtr<UWidget>> ItemWidgets;

	UPROPERTY()
	TObjectPtr<UDataTable> ItemTable;

	FString PlayerId;
	FString AccessToken;
	FString ContainerId;

	/** The contents as last read, so a hit test does not have to re-parse widgets. */
	UPROPERTY()
	TArray<FQuorvelItemInstance> Contents;

	bool bLoading;
	bool bDrawnAsSlots;
	int32 DrawnColumns;
};

#include "DemoStashScreen.h"

#include "Blueprint/WidgetTree.h"
#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "DemoCharacterStrip.h"
#include "DemoInventory.h"
#include "QuorvelStashPanel.h"

void UDemoStashScreen::Compose(TSubclassOf<UQuorvelStashPanel> PanelClass, UDemoInventory* Inventory)
{
	Layer = WidgetTree->ConstructWidget<UCanvasPanel>(UCanvasPanel::StaticClass(), TEXT("ScreenLayer"));
	WidgetTree->RootWidget = Layer;

	Stash = WidgetTree->ConstructWidget<UQuorvelStashPanel>(PanelClass, TEXT("Stash"));
	Loadout = WidgetTree->ConstructWidget<UQuorvelStashPanel>(PanelClass, TEXT("Loadout"));
	Strip = WidgetTree->ConstructWidget<UDemoCharacterStrip>(UDemoCharacterStrip::StaticClass(), TEXT("Character"));
	Strip->Inventory = Inventory;
	for (UWidget* Part : { static_cast<UWidget*>(Stash), static_cast<UWidget*>(Loadout), static_cast<UWidget*>(Strip) })
	{
		Layer->AddChildToCanvas(Part)->SetAutoSize(true);
	}
	Inventory->Watch(Stash);
	Inventory->Watch(Loadout);
}

FVector2D UDemoStashScreen::Arrange()
{
	const FVector2D StashSize = Stash->GetDesiredSize();
	const FVector2D LoadoutSize = Loadout->GetDesiredSize();
	const FVector2D StripSize = Strip->GetDesiredSize();
	const FVector2D StashAt(Margin, Margin);
	const FVector2D LoadoutAt(StashAt.X + StashSize.X + Margin, Margin);
	const FVector2D StripAt(Margin, StashAt.Y + StashSize.Y + Margin);
	Cast<UCanvasPanelSlot>(Stash->Slot)->SetPosition(StashAt);
	Cast<UCanvasPanelSlot>(Loadout->Slot)->SetPosition(LoadoutAt);
	Cast<UCanvasPanelSlot>(Strip->Slot)->SetPosition(StripAt);
	return FVector2D(
		FMath::Max(LoadoutAt.X + LoadoutSize.X, StripAt.X + StripSize.X) + Margin,
		FMath::Max(LoadoutAt.Y + LoadoutSize.Y, StripAt.Y + StripSize.Y) + Margin);
}

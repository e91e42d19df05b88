#include "Components/CanvasPanel.h"

#include "Components/CanvasPanelSlot.h"
#include "Widgets/Layout/SConstraintCanvas.h"

UCanvasPanelSlot* UCanvasPanel::AddChildToCanvas(UWidget* Content)
{
	return Cast<UCanvasPanelSlot>(AddChild(Content));
}

void UCanvasPanel::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyCanvas.Reset();
}

TSharedRef<SWidget> UCanvasPanel::RebuildWidget()
{
	MyCanvas = SNew(SConstraintCanvas);
	for (const TObjectPtr<UPanelSlot>& PanelSlot : Slots)
	{
		if (UCanvasPanelSlot* TypedSlot = Cast<UCanvasPanelSlot>(PanelSlot))
		{
			TypedSlot->BuildSlot(MyCanvas.ToSharedRef());
		}
	}
	return MyCanvas.ToSharedRef();
}

UClass* UCanvasPanel::GetSlotClass() const
{
	return UCanvasPanelSlot::StaticClass();
}

void UCanvasPanel::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MyCanvas)
	{
		CastChecked<UCanvasPanelSlot>(InSlot)->BuildSlot(MyCanvas.ToSharedRef());
	}
}

void UCanvasPanel::OnSlotRemoved(UPanelSlot* InSlot)
{
	// Through the Slate slot, not the content's cached widget: a child added since the last
	// frame has a Slate widget that is not laid out yet.
	if (MyCanvas)
	{
		if (auto* LiveSlot = CastChecked<UCanvasPanelSlot>(InSlot)->GetLiveSlot())
		{
			MyCanvas->RemoveSlot(LiveSlot->GetWidget());
		}
	}
}

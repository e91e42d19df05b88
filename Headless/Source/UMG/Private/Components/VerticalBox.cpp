#include "Components/VerticalBox.h"

#include "Components/VerticalBoxSlot.h"
#include "Widgets/SBoxPanel.h"

UVerticalBoxSlot* UVerticalBox::AddChildToVerticalBox(UWidget* Content)
{
	return Cast<UVerticalBoxSlot>(AddChild(Content));
}

void UVerticalBox::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyVerticalBox.Reset();
}

TSharedRef<SWidget> UVerticalBox::RebuildWidget()
{
	MyVerticalBox = SNew(SVerticalBox);
	for (const TObjectPtr<UPanelSlot>& PanelSlot : Slots)
	{
		if (UVerticalBoxSlot* TypedSlot = Cast<UVerticalBoxSlot>(PanelSlot))
		{
			TypedSlot->BuildSlot(MyVerticalBox.ToSharedRef());
		}
	}
	return MyVerticalBox.ToSharedRef();
}

UClass* UVerticalBox::GetSlotClass() const
{
	return UVerticalBoxSlot::StaticClass();
}

void UVerticalBox::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MyVerticalBox)
	{
		CastChecked<UVerticalBoxSlot>(InSlot)->BuildSlot(MyVerticalBox.ToSharedRef());
	}
}

void UVerticalBox::OnSlotRemoved(UPanelSlot* InSlot)
{
	// Through the Slate slot, not the content's cached widget: a child added since the last
	// frame has a Slate widget that is not laid out yet.
	if (MyVerticalBox)
	{
		if (auto* LiveSlot = CastChecked<UVerticalBoxSlot>(InSlot)->GetLiveSlot())
		{
			MyVerticalBox->RemoveSlot(LiveSlot->GetWidget());
		}
	}
}

#include "Components/ContentWidget.h"

#include "Components/PanelSlot.h"

UContentWidget::UContentWidget(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	bCanHaveMultipleChildren = false;
}

UPanelSlot* UContentWidget::GetContentSlot() const
{
	return Slots.Num() > 0 ? Slots[0].Get() : nullptr;
}

UWidget* UContentWidget::GetContent() const
{
	return Slots.Num() > 0 && Slots[0] ? Slots[0]->Content.Get() : nullptr;
}

UPanelSlot* UContentWidget::SetContent(UWidget* Content)
{
	if (UWidget* PreviousContent = GetContent())
	{
		RemoveChild(PreviousContent);
	}
	return AddChild(Content);
}

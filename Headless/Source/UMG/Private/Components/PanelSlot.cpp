#include "Components/PanelSlot.h"

#include "Components/Widget.h"

void UPanelSlot::SynchronizeProperties()
{
}

void UPanelSlot::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	if (bReleaseChildren && Content)
	{
		Content->ReleaseSlateResources(bReleaseChildren);
	}
}

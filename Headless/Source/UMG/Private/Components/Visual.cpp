#include "Components/Visual.h"

void UVisual::ReleaseSlateResources(bool bReleaseChildren)
{
}

void UVisual::BeginDestroy()
{
	Super::BeginDestroy();
	// Slate widgets may point into this object (brushes, slots); they must not outlive it.
	ReleaseSlateResources(false);
}

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "Visual.generated.h"

/** The base of everything that can be shown: widgets and the slots that place them. */
UCLASS(Abstract)
class UMG_API UVisual : public UObject
{
	GENERATED_BODY()

public:
	/** Lets go of the Slate widgets this object built; with bReleaseChildren, those of everything below it too. */
	virtual void ReleaseSlateResources(bool bReleaseChildren);

	virtual void BeginDestroy() override;
};

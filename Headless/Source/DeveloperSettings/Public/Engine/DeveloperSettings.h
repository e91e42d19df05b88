#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "DeveloperSettings.generated.h"

/** The base of project and editor settings classes; the class default object holds the configured values. */
UCLASS(Abstract)
class DEVELOPERSETTINGS_API UDeveloperSettings : public UObject
{
	GENERATED_BODY()

public:
	UDeveloperSettings(const FObjectInitializer& ObjectInitializer);
};

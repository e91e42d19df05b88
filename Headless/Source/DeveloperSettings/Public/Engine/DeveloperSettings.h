#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "DeveloperSettings.generated.h"

/**
 * The base of project and editor settings classes. The class default object holds the configured
 * values: its config properties are read from the class's config file, in the section named after
 * the class ("/Script/Module.ClassName"), when it is made.
 */
UCLASS(Abstract, MinimalAPI)
class UDeveloperSettings : public UObject
{
	GENERATED_BODY()

public:
	DEVELOPERSETTINGS_API UDeveloperSettings(const FObjectInitializer& ObjectInitializer);

	DEVELOPERSETTINGS_API virtual void PostInitProperties() override;

	/** The settings container: "Editor" for editor config files, otherwise "Project". */
	DEVELOPERSETTINGS_API virtual FName GetContainerName() const;
	/** The category: CategoryName when set, otherwise one that follows from the config file ("Game" for Game). */
	DEVELOPERSETTINGS_API virtual FName GetCategoryName() const;
	/** The section: SectionName when set, otherwise the class's name. */
	DEVELOPERSETTINGS_API virtual FName GetSectionName() const;

	virtual bool SupportsAutoRegistration() const
	{
		return true;
	}

protected:
	/** Overrides the category the settings are listed under. */
	FName CategoryName;
	/** Overrides the section the settings are listed under. */
	FName SectionName;
};

#include "Engine/DeveloperSettings.h"

#include "Headless/ObjectConfig.h"
#include "Modules/ModuleManager.h"

UDeveloperSettings::UDeveloperSettings(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void UDeveloperSettings::PostInitProperties()
{
	Super::PostInitProperties();
	if (HasAnyFlags(RF_ClassDefaultObject))
	{
		UE::Headless::LoadObjectConfig(this);
	}
}

FName UDeveloperSettings::GetContainerName() const
{
	const FName ConfigName = GetClass()->ClassConfigName;
	if (ConfigName == FName(TEXT("EditorSettings")) || ConfigName == FName(TEXT("EditorPerProjectUserSettings")))
	{
		return FName(TEXT("Editor"));
	}
	return FName(TEXT("Project"));
}

FName UDeveloperSettings::GetCategoryName() const
{
	if (!CategoryName.IsNone())
	{
		return CategoryName;
	}
	const FName ConfigName = GetClass()->ClassConfigName;
	if (ConfigName == FName(TEXT("Game")))
	{
		return FName(TEXT("Game"));
	}
	if (ConfigName == FName(TEXT("EditorSettings")) || ConfigName == FName(TEXT("EditorPerProjectUserSettings")))
	{
		return FName(TEXT("General"));
	}
	if (ConfigName == FName(TEXT("Editor")) || ConfigName == FName(TEXT("EditorLayout")) || ConfigName == FName(TEXT("EditorKeyBindings")))
	{
		return FName(TEXT("Editor"));
	}
	return FName(TEXT("Engine"));
}

FName UDeveloperSettings::GetSectionName() const
{
	if (!SectionName.IsNone())
	{
		return SectionName;
	}
	return GetClass()->GetFName();
}

IMPLEMENT_MODULE(FDefaultModuleImpl, DeveloperSettings);

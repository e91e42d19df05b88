#include "Engine/DeveloperSettings.h"

#include "Modules/ModuleManager.h"

UDeveloperSettings::UDeveloperSettings(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

IMPLEMENT_MODULE(FDefaultModuleImpl, DeveloperSettings);

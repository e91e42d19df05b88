// Reading an object's config properties, as the engine's UObject::LoadConfig does. The headless
// object system has no config step of its own; settings classes call this for their default object.
#pragma once

#include "CoreMinimal.h"

class UObject;

namespace UE::Headless
{
	/**
	 * Imports every config property of Object's class from the class's config file: a property
	 * takes the value of the key named after it (an array every value of that key; a fixed array
	 * "Name[Index]") in the section named after the class's path, or the declaring class's path for
	 * global config properties. Keys that are absent leave the value alone; a value the property
	 * cannot read is logged and skipped.
	 */
	DEVELOPERSETTINGS_API void LoadObjectConfig(UObject* Object);

	/** The GConfig file name of a class config name ("Game" -> GGameIni). */
	DEVELOPERSETTINGS_API FString GetConfigFilename(FName ClassConfigName);
}

#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

struct FOutputDeviceHelper
{
	/** A line as the engine's console shows it: "Category: Verbosity: Text", the level omitted for Log. */
	CORE_API static FString FormatLogLine(ELogVerbosity::Type Verbosity, const FName& Category, const TCHAR* Message = nullptr);
};

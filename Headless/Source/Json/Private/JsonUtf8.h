// UTF-8 <-> UTF-16 for the reader: the parser works on UTF-8, FString holds UTF-16.
#pragma once

#include "CoreMinimal.h"

#include <string>

namespace UE::Json::Private
{
	/** The text must be valid UTF-8, which the parser guarantees for every string it reports. */
	FString Utf8ToString(const std::string& Utf8);
}

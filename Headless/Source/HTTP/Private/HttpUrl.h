#pragma once

#include "CoreMinimal.h"

namespace UE::Http::Private
{
	/** Only http:// and https:// URLs with a host are worth handing to a transport. */
	bool IsSupportedUrl(const FString& URL);

	/** The raw value of one query parameter; empty when absent. */
	FString FindUrlParameter(const FString& URL, const FString& ParameterName);
}

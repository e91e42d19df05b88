#include "QuorvelSettings.h"

UQuorvelSettings::UQuorvelSettings(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, BaseUrl(TEXT("http://127.0.0.1:8787"))
	, RequestTimeoutSeconds(10.0f)
	, MaxRetries(2)
	, RetryBaseDelaySeconds(0.5f)
	, RetryMaxDelaySeconds(8.0f)
{
}

const UQuorvelSettings& UQuorvelSettings::Get()
{
	return *GetDefault<UQuorvelSettings>();
}

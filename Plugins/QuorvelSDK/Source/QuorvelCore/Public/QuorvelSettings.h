#pragma once

#include "CoreMinimal.h"
#include "Engine/DeveloperSettings.h"
#include "UObject/SoftObjectPath.h"

#include "QuorvelSettings.generated.h"

/** Project settings of the Quorvel plugin, read from the [/Script/QuorvelCore.QuorvelSettings] section of DefaultGame.ini. */
UCLASS(config = Game, defaultconfig, meta = (DisplayName = "Quorvel"))
class QUORVELCORE_API UQuorvelSettings : public UDeveloperSettings
{
	GENERATED_BODY()

public:
	UQuorvelSettings(const FObjectInitializer& ObjectInitializer);

	/** The settings as configured for this project. */
	static const UQuorvelSettings& Get();

	/** Address of the platform, without a trailing slash; request paths are appended to it. */
	UPROPERTY(config, EditAnywhere, Category = "Platform")
	FString BaseUrl;

	/** The project's item data table; its rows are named by item id and hold the icons. */
	UPROPERTY(config, EditAnywhere, Category = "Items", meta = (AllowedClasses = "/Script/Engine.DataTable"))
	FSoftObjectPath ItemTablePath;

	/** Seconds one attempt may take before it counts as timed out. */
	UPROPERTY(config, EditAnywhere, Category = "Requests", meta = (ClampMin = "0.1"))
	float RequestTimeoutSeconds;

	/** How many times a request is sent again after a failure that a retry can help. */
	UPROPERTY(config, EditAnywhere, Category = "Requests", meta = (ClampMin = "0"))
	int32 MaxRetries;

	/** Delay before the first retry; each further retry doubles it, with jitter. */
	UPROPERTY(config, EditAnywhere, Category = "Requests", meta = (ClampMin = "0"))
	float RetryBaseDelaySeconds;

	/** Upper bound of the delay between two attempts. */
	UPROPERTY(config, EditAnywhere, Category = "Requests", meta = (ClampMin = "0"))
	float RetryMaxDelaySeconds;
};

// Settings classes as a plugin declares them. Each test reads one class's defaults, because the
// class default object is made once, at first use, from the config present then.
#pragma once

#include "CoreMinimal.h"
#include "Engine/DeveloperSettings.h"
#include "UObject/SoftObjectPath.h"

#include "TestSettings.generated.h"

/** Settings with a section in the project's DefaultGame.ini. */
UCLASS(config = Game, defaultconfig)
class UTestConfiguredSettings : public UDeveloperSettings
{
	GENERATED_BODY()

public:
	UPROPERTY(config, EditAnywhere, Category = "Platform")
	FString BaseUrl = TEXT("http://localhost");

	UPROPERTY(config, EditAnywhere, Category = "Items")
	FSoftObjectPath ItemTablePath;

	UPROPERTY(config, EditAnywhere, Category = "Requests")
	float RequestTimeoutSeconds = 10.0f;

	UPROPERTY(config, EditAnywhere, Category = "Requests")
	int32 MaxRetries = 3;

	UPROPERTY(config, EditAnywhere, Category = "Requests")
	bool bVerbose = false;

	UPROPERTY(config, EditAnywhere, Category = "Requests")
	TArray<FString> Regions;

	UPROPERTY(config, EditAnywhere, Category = "Requests")
	TArray<FString> Fallbacks = { TEXT("eu") };

	/** Not a config property: the file cannot change it. */
	UPROPERTY(EditAnywhere, Category = "Requests")
	int32 NotConfig = 5;
};

/** Settings whose project has no config file at all. */
UCLASS(config = Game, defaultconfig)
class UTestUnconfiguredSettings : public UDeveloperSettings
{
	GENERATED_BODY()

public:
	UPROPERTY(config, EditAnywhere, Category = "Platform")
	FString BaseUrl = TEXT("http://localhost");

	UPROPERTY(config, EditAnywhere, Category = "Requests")
	int32 MaxRetries = 3;
};

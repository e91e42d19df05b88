#pragma once

#include "EditConditions.generated.h"

UCLASS()
class UEditConditionBase : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere)
	bool bEnabled;

	UPROPERTY(EditAnywhere)
	EQuorvelContainerLayout Layout;
};

UCLASS()
class UEditConditions : public UEditConditionBase
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, meta = (EditCondition = "bEnabled && Layout != EQuorvelContainerLayout::Grid && Count > 2"))
	int32 Inherited;

	UPROPERTY(EditAnywhere, meta = (EditCondition = "!bLocal || false"))
	int32 Local;

	UPROPERTY(EditAnywhere)
	bool bLocal;

	UPROPERTY(EditAnywhere)
	int32 Count;
};

/** The chain leaves the parsed headers at UUserWidget, so its properties cannot be checked. */
UCLASS()
class UOutsideChain : public UUserWidget
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, meta = (EditCondition = "bIsEnabled"))
	int32 Anything;
};

#pragma once

UCLASS()
class UEditConditionBase : public UObject
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere)
	bool bEnabled;
};

UCLASS()
class UEditConditionMissing : public UEditConditionBase
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, meta = (EditCondition = "bEnabled && Layout == EQuorvelContainerLayout::Grid"))
	int32 GridWidth;

	UPROPERTY(EditAnywhere, meta = (EditCondition = "bVisible"))
	int32 Typo;
};

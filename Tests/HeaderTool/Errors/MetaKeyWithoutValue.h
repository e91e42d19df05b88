#pragma once

UCLASS()
class UMetaKeyWithoutValue : public UObject
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, meta = (ClampMin = ))
	int32 Count;
};

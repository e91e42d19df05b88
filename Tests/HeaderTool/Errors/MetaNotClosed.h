#pragma once

UCLASS()
class UMetaNotClosed : public UObject
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, meta = (ClampMin = "1", EditCondition = "bEnabled"
	int32 Count;
};

#pragma once

UCLASS()
class UFloatDefault : public UObject
{
	GENERATED_BODY()

	UFUNCTION(BlueprintCallable)
	void Resize(int32 Quantity, int32 Width = 1.5f);
};

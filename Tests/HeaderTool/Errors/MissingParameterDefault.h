#pragma once

UCLASS()
class UMissingParameterDefault : public UObject
{
	GENERATED_BODY()

	UFUNCTION(BlueprintCallable)
	void Deposit(int32 Quantity = , int32 Slot = 0);
};

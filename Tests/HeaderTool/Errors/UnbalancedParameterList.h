#pragma once

UCLASS()
class UUnbalanced : public UObject
{
	GENERATED_BODY()

	UFUNCTION(BlueprintCallable)
	void DepositItem(FName ItemId, int32 Quantity;
};

#pragma once

UCLASS()
class UUnsupportedDefault : public UObject
{
	GENERATED_BODY()

	UFUNCTION(BlueprintCallable)
	void Resize(int32 Width = 2 * 3);
};

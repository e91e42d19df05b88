#pragma once

UCLASS()
class UUParamParameter : public UObject
{
	GENERATED_BODY()

	UFUNCTION(BlueprintCallable)
	void Fill(UPARAM(ref) TArray<int32>& Values);
};

#pragma once

UCLASS()
class UArrayParameter : public UObject
{
	GENERATED_BODY()

	UFUNCTION(BlueprintCallable)
	void Fill(int32 Values[4]);
};

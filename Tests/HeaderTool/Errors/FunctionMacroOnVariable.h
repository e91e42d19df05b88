#pragma once

UCLASS()
class UFunctionMacroOnVariable : public UObject
{
	GENERATED_BODY()

	UFUNCTION(BlueprintCallable)
	int32 Count;
};

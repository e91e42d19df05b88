#pragma once

UCLASS()
class UUnknownSpecifier : public UObject
{
	GENERATED_BODY()

	UFUNCTION(BlueprintCallable, BlueprintPrue)
	int32 Count() const;
};

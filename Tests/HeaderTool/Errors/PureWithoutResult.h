#pragma once

UCLASS()
class UPureWithoutResult : public UObject
{
	GENERATED_BODY()

	UFUNCTION(BlueprintPure, Category = "Tollmere")
	void Refresh(const FQuorvelItemInstance& Instance) const;
};

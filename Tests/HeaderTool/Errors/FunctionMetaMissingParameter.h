#pragma once

UCLASS()
class UFunctionMeta : public UObject
{
	GENERATED_BODY()

	UFUNCTION(BlueprintCallable, meta = (AutoCreateRefTerm = "Instance, Extra"))
	void Deposit(const FQuorvelItemInstance& Instance);

	UFUNCTION(BlueprintCallable, meta = (WorldContext = "World", HidePin = "Self", DefaultToSelf = "Panel"))
	static void Find(const UObject* WorldContextObject, UObject* Panel);

	UFUNCTION(BlueprintCallable, meta = (ArrayParm = "Items", ExpandEnumAsExecs = "Result", DeterminesOutputType = "Class"))
	void Spawn(const TArray<int32>& Values, EQuorvelContainerLayout& Result);
};

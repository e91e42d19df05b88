#pragma once

#include "FunctionParameters.generated.h"

class UQuorvelStashPanel;

UCLASS(Abstract)
class UFunctionParameters : public UUserWidget
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Tollmere")
	void DepositItem(FName ItemId, int32 Quantity = 1, int32 SourceSlot = -1);

	UFUNCTION(BlueprintPure, Category = "Tollmere")
	bool CellAt(const FVector2D& ScreenPosition, int32& OutX, int32& OutY) const;

	/** Pure with no return value: the out parameter is the result. */
	UFUNCTION(BlueprintPure, Category = "Tollmere")
	void FindInstance(FName ItemId, FQuorvelItemInstance& OutInstance) const;

	UFUNCTION(BlueprintCallable, Category = "Tollmere")
	void TransferTo(UQuorvelStashPanel* Target, const FQuorvelItemInstance& Instance);

	UFUNCTION(BlueprintCallable, Category = "Tollmere", meta = (AutoCreateRefTerm = "Ids", ArrayParm = "Ids"))
	static TArray<FName> Sorted(const TArray<FName>& Ids);

	UFUNCTION(BlueprintNativeEvent, Category = "Tollmere|Interaction")
	void OnDeposited(FName ItemId, int32 Quantity, int32 SourceSlot);

	UFUNCTION(BlueprintImplementableEvent, Category = "Tollmere|Interaction")
	void OnWithdrawn(const FQuorvelItemInstance& Instance);

	UFUNCTION(BlueprintCallable, Category = "Tollmere", meta = (WorldContext = "WorldContextObject", DefaultToSelf = "Panel", HidePin = "Panel"))
	static UQuorvelStashPanel* FindPanel(const UObject* WorldContextObject, UQuorvelStashPanel* Panel);

	UFUNCTION(BlueprintCallable, Category = "Tollmere", meta = (DeterminesOutputType = "Class", ExpandEnumAsExecs = "ReturnValue"))
	EQuorvelContainerLayout Spawn(TSubclassOf<UObject> Class);

	UFUNCTION()
	virtual void NativeTick(const FGeometry& MyGeometry, float InDeltaTime) override;

	UFUNCTION(BlueprintCallable)
	int32 Inline(int32 Value) const { return Value * 2; }

	UFUNCTION(BlueprintCallable)
	void NoParams(void);
};

#pragma once

#include "FunctionDefaults.generated.h"

UCLASS()
class UFunctionDefaults : public UObject
{
	GENERATED_BODY()

public:
	/** Every kind of default argument the engine can store. */
	UFUNCTION(BlueprintCallable, Category = "Tollmere", meta = (AdvancedDisplay = "Offset"))
	void Everything(FName ItemId = NAME_None, int32 Quantity = 1, int32 X = -1, bool bRotated = false, bool bForce = true,
		float Scale = 1.f, double Ratio = 0.25, float Whole = 2, FString Kind = TEXT("stash"), const FString& Plain = "plain",
		FName Named = "Row", EQuorvelContainerLayout Layout = EQuorvelContainerLayout::Slots, UObject* Target = nullptr,
		const FVector2D& Offset = FVector2D::ZeroVector, FVector2D Size = FVector2D(1, 2.5f), FText Label = FText::GetEmpty(),
		FLinearColor Tint = FLinearColor::White, FVector Axis = FVector::UpVector, int32 Missing = INDEX_NONE, int64 Big = 0x10);

	UFUNCTION(BlueprintCallable, Category = "Tollmere")
	void NoDefaults(int32 Quantity);
};

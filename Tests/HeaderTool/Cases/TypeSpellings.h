#pragma once

#include "TypeSpellings.generated.h"

UCLASS()
class UTypeSpellings : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	unsigned int Plain;

	UPROPERTY()
	class UTexture2D* Icon;

	UPROPERTY()
	TObjectPtr<class UWidget> Forwarded;

	UPROPERTY()
	::FName Rooted;

	UPROPERTY()
	TMap<FName, TArray<int32>> Nested;

	UPROPERTY()
	mutable int32 Cache = 0;

	UPROPERTY()
	FVector2D Offset{1.f, 2.f};

	UPROPERTY()
	TArray<FName> Braced = {TEXT("a"), TEXT("b")};

	UPROPERTY()
	Quorvel::FScopedThing Scoped;

	UFUNCTION(BlueprintCallable)
	void Take(TArray<int32> const& Values, const UObject* const Source, struct FQuorvelItemInstance& Out);
};

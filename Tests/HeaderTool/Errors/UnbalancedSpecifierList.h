#pragma once

UCLASS()
class UUnbalanced : public UObject
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Tollmere"
	int32 Count;
};

#pragma once

UCLASS()
class UBitfield : public UObject
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere)
	uint8 bCompact : 1;
};

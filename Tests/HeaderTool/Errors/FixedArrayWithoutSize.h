#pragma once

UCLASS()
class UFixedArrayWithoutSize : public UObject
{
	GENERATED_BODY()

	UPROPERTY()
	int32 Slots[];
};

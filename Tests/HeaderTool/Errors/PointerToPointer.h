#pragma once

UCLASS()
class UPointerToPointer : public UObject
{
	GENERATED_BODY()

	UPROPERTY()
	UObject** Slots;
};

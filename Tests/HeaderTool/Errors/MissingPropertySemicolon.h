#pragma once

UCLASS()
class UMissingSemicolon : public UObject
{
	GENERATED_BODY()

	UPROPERTY()
	int32 Count = 3

	UPROPERTY()
	int32 Next;
};

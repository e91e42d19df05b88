#pragma once

UCLASS()
class UPropertyBeforeAccess : public UObject
{
	GENERATED_BODY()

	UPROPERTY()
public:
	int32 Count;
};

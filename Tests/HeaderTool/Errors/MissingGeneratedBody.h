#pragma once

UCLASS()
class UMissingGeneratedBody : public UObject
{
public:
	UPROPERTY()
	int32 Count;
};

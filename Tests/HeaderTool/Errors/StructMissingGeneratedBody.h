#pragma once

USTRUCT(BlueprintType)
struct FMissingGeneratedBody
{
	UPROPERTY()
	int32 Count;
};

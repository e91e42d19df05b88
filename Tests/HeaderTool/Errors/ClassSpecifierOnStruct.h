#pragma once

USTRUCT(BlueprintType, Blueprintable)
struct FClassSpecifierOnStruct
{
	GENERATED_BODY()
};

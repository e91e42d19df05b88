#pragma once

USTRUCT()
struct FFunctionInStruct
{
	GENERATED_BODY()

	UFUNCTION()
	void NotAllowed();
};

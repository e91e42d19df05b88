#pragma once

UCLASS()
class UNestedReflectedType : public UObject
{
	GENERATED_BODY()

	USTRUCT()
	struct FInner
	{
		GENERATED_BODY()
	};
};

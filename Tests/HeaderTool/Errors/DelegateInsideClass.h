#pragma once

UCLASS()
class UDelegateInside : public UObject
{
	GENERATED_BODY()

	DECLARE_DYNAMIC_MULTICAST_DELEGATE(FInside);
};

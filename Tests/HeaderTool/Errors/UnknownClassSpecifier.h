#pragma once

UCLASS(Blueprintable, Abstrakt)
class UUnknownSpecifier : public UObject
{
	GENERATED_BODY()
};

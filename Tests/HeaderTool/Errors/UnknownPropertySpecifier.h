#pragma once

UCLASS()
class UUnknownSpecifier : public UObject
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWirte)
	int32 Count;
};

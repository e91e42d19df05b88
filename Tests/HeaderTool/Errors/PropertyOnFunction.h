#pragma once

UCLASS()
class UPropertyOnFunction : public UObject
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadOnly)
	int32 GetCount() const;
};
